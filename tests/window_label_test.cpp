// Labels that place and rewrite themselves when their caption changes.
#include <gtest/gtest.h>

#include <sstream>

#include "window/console/console.h"

namespace {

class frmLabels : public Form {
 public:
  explicit frmLabels(Platform& platform) : Form(platform, "frmLabels") { lbl.AutoSize = true; }
  Label lbl{*this, "lbl"};
};

}  // namespace

TEST(LabelChange, PlacesAndRewritesTheLabel) {
  std::istringstream in;
  std::ostringstream out;
  ConsoleFrontEnd console({}, in, out);
  frmLabels form(console.platform);
  Label& lbl = form.lbl;
  std::string log;
  lbl.OnChange = [&] {
    const Extent fitted = console.TextExtent(lbl);
    log += lbl.Caption.get() + (lbl.Width == fitted.width && lbl.Height == fitted.height ? " " : "? ");
    if (lbl.Caption == "0") lbl.Caption = "none";
    if (lbl.Caption == "none") lbl.Caption = "nothing at all";
    lbl.Left = 5000 - lbl.Width;  // right after all that
  };
  lbl.Caption = "unseen";  // not before the window is there
  form.Load();
  const struct {
    const char *caption, *kept, *log;
  } cases[] = {{"12", "12", "12 "}, {"12", "12", ""}, {"0", "nothing at all", "0 none nothing at all "}};
  for (const auto& each : cases) {
    log.clear();
    lbl.Caption = each.caption;
    EXPECT_EQ(lbl.Caption.get(), each.kept);
    EXPECT_EQ(log, each.log);
    EXPECT_EQ(lbl.Left + console.TextExtent(lbl).width, 5000);
  }
  // A label that never settles fails as the system does, and can be used again.
  lbl.OnChange = [&] { lbl.Caption = lbl.Caption.get() + "x"; };
  std::string failure;
  console.platform.OnFailure = [&](const std::string& what) { failure = what; };
  console.platform.Dispatch([&] { lbl.Caption = "x"; });
  EXPECT_EQ(failure, "Out of stack space");
  int changes = 0;
  lbl.OnChange = [&] { ++changes; };
  lbl.Caption = "calm";
  EXPECT_EQ(changes, 1);
}
