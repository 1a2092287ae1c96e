// The order in which every window makes its controls: it decides what lies over what, which of two timers
// ticks first, and the order of menus and of the Tab key. tests/suite_controls.txt holds it; where it is
// changed on purpose, CARDHAVEN_RENEW=1 build/tests/tests/suite_tests --gtest_filter='Controls.*' writes it
// anew.
#include <gtest/gtest.h>

#include <cstdlib>
#include <set>

#include "suite/dialogs.h"
#include "tests/driver.h"

namespace {

constexpr const char* kKinds[] = {"Form",         "Label",      "Image",        "Shape", "CommandButton",
                                  "TextBox",      "CheckBox",   "OptionButton", "Frame", "PictureBox",
                                  "Timer",        "Menu",       "StatusBar",    "Panel", "ProgressBar",
                                  "DriveListBox", "DirListBox", "FileListBox"};

std::string Listed(const Form& form) {
  std::string list = std::string(form.name) + "\n";
  for (const Control* control : form.Controls()) {
    list += "  " + std::string(kKinds[static_cast<int>(control->kind)]) + " " + control->NameInForm();
    if (control->parent != &form) list += " in " + control->parent->NameInForm();
    list += "\n";
  }
  return list;
}

// Opens every game and clicks all entries of its menus but those that begin a game, so that all windows come.
class Visitor {
 public:
  Visitor() : console_({}, in_, out_), suite_(console_.platform, {folder_.Path()}, AllGames()) {
    suite_.Start();
    console_.Run();
    list += Listed(frmHiScoreName(suite_.common));
  }
  std::string list;

 private:
  std::optional<std::string> Next() {
    const Platform& platform = console_.platform;
    for (const Form* form : platform.forms)
      if (form->Loaded() && seen_.insert(std::string(form->name)).second) list += Listed(*form);
    if (const MessageBox* box = platform.StandingBox())
      return "answer \"" + std::string(AnswerName(leaving_ ? Answer::Yes : AnswersOf(box->buttons).back())) +
             "\"";
    if (const Form* modal = platform.ModalForm()) return "close " + std::string(modal->name);
    const GameWindow* game = suite_.common.window;
    if (!game) {
      if (games_ == AllGames().size()) return std::nullopt;
      entry_ = 0;
      leaving_ = false;
      return std::string("click frmSelect.") + AllGames()[games_++].button;
    }
    while (entry_ < game->Controls().size()) {
      const Control* control = game->Controls()[entry_++];
      const bool begins =
          control == &game->mnuPlay || control == &game->mnuTakeScore || control == &game->mnuExit;
      if (control->kind == Control::Kind::Menu && !begins) return "click " + control->FullName();
    }
    leaving_ = true;
    return "close " + std::string(game->name);
  }

  TestFolder folder_;
  LiveInput input_{[this] { return Next(); }};
  std::istream in_{&input_};
  std::ostringstream out_;
  ConsoleFrontEnd console_;
  Suite suite_;
  std::set<std::string> seen_;
  size_t games_ = 0, entry_ = 0;
  bool leaving_ = false;
};

}  // namespace

TEST(Controls, AreMadeInTheOrderThatIsRecorded) {
  const std::string file = CARDHAVEN_SOURCE "/tests/suite_controls.txt";
  const std::string list = Visitor().list;
  if (getenv("CARDHAVEN_RENEW")) std::ofstream(file) << list;
  std::ifstream recorded(file);
  std::istringstream made(list);
  std::string window, was, is;
  for (int line = 1;; ++line) {
    const bool more = !!std::getline(recorded, was), goesOn = !!std::getline(made, is);
    if (!more && !goesOn) break;
    if (goesOn && is[0] != ' ') window = is;
    ASSERT_TRUE(more && goesOn && was == is)
        << window << ", line " << line << " of the record: \"" << (more ? was : "") << "\" has become \""
        << (goesOn ? is : "") << "\"";
  }
}
