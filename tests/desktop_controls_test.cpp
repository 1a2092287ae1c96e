// How the controls look on the baize of a board, in frames, on panels and on the paper of a dialog.
#include <gtest/gtest.h>

#include <QImage>

#include "suite/catalogue.h"
#include "tests/desktop_screen.h"
#include "tests/harness.h"
#include "window/desktop/painting/contrast.h"
#include "window/desktop/painting/scene.h"

namespace {

// A row of controls of all kinds, on the window or in a frame.
struct Row {
  Row(Control& parent, int top)
      : lbl(parent, "lbl"),
        lblOpaque(parent, "lblOpaque"),
        cmd(parent, "cmd"),
        opt(parent, "opt"),
        chk(parent, "chk"),
        txt(parent, "txt"),
        bar(parent, "bar") {
    lbl.Caption = "Score:";
    lblOpaque.Caption = "Opaque";
    lblOpaque.BackStyle = 1;
    lblOpaque.BackColor = 0xC0FFFF;
    lblOpaque.ForeColor = 255;
    lblOpaque.Alignment = 2;
    cmd.Caption = "&Deal";
    opt.Caption = "Option";
    opt.Value = true;
    chk.Caption = "Check";
    txt.Text = "Text";
    txt.ForeColor = 255;
    bar.Value = 50;
    lbl.Move(150, top, 900, 255);
    lblOpaque.Move(1200, top, 1050, 300);
    cmd.Move(2400, top, 1050, 375);
    opt.Move(3600, top, 1050, 300);
    chk.Move(4800, top, 1050, 300);
    txt.Move(6000, top, 1050, 330);
    bar.Move(7200, top, 1500, 300);
  }
  Label lbl, lblOpaque;
  CommandButton cmd;
  OptionButton opt;
  CheckBox chk;
  TextBox txt;
  ProgressBar bar;
};

class frmSamples : public Form {
 public:
  frmSamples(Platform& platform, bool board) : Form(platform, board ? "frmBoard" : "frmDialog") {
    Move(0, 0, 9600, 4800);
    fraGroup.Caption = "Group";
    fraGroup.Move(300, 900, 9000, 1200);
    fraPanel.Move(300, 2400, 9000, 1200);
    fraPanel.Panel = true;
    if (board) card = std::make_unique<Image>(*this, "imgCard");
  }
  Frame fraGroup{*this, "fraGroup"}, fraPanel{*this, "fraPanel"};
  Row free{*this, 300}, inGroup{fraGroup, 450}, onPanel{fraPanel, 450};
  std::unique_ptr<Image> card;
};

double MostContrast(const QImage& picture, const QRect& area) {
  double most = 1;
  const QColor ground = picture.pixelColor(area.topLeft());
  for (int y = area.top(); y <= area.bottom(); ++y)
    for (int x = area.left(); x <= area.right(); ++x)
      most = std::max(most, Contrast(ground, picture.pixelColor(x, y)));
  return most;
}

}  // namespace

TEST(Controls, LookAlikeOnBaizeInFramesAndOnPaper) {
  OpenScreen();
  TestFolder folder;
  QuickDesktop front{{folder.Path(), CARDHAVEN_TEST_DATA}, Catalogue()};
  for (const bool board : {true, false}) {
    frmSamples form(front.platform, board);
    form.Show();
    input::Settle();
    Canvas& canvas = front.WindowOf(form)->Board();
    const auto look = [&] {
      input::Settle();
      return canvas.grab().toImage();
    };
    const auto at = [&](const QImage& picture, const Visual& control, double across) {
      const QRect rect = ModelRect(control);
      return picture.pixelColor(rect.left() + static_cast<int>(rect.width() * across), rect.center().y());
    };
    const QImage all = look();
    if (const char* file = getenv("CARDHAVEN_TEST_PICTURES"))
      all.save(QString("%1/%2.png").arg(file, board ? "board" : "dialog"));
    for (Row* row : {&form.free, &form.inGroup, &form.onPanel}) {
      const std::string where = std::string(form.name) + ", " + std::string(row->lbl.parent->name);
      // Half the bar is filled, and it moves.
      const QColor full = at(all, row->bar, 0.3), empty = at(all, row->bar, 0.7);
      EXPECT_GE(Contrast(full, empty), kReadable) << where;
      row->bar.Value = 100;
      EXPECT_EQ(at(look(), row->bar, 0.7), full) << where;
      row->bar.Value = -5;
      EXPECT_EQ(at(look(), row->bar, 0.3), empty) << where;
      // An opaque label stands on its colour unless that would hide its letters.
      row->lblOpaque.ForeColor = 0;
      EXPECT_EQ(at(look(), row->lblOpaque, 0.03), QColor(0xff, 0xff, 0xc0)) << where;
      row->lblOpaque.BackColor = 0x404040;
      EXPECT_EQ(at(look(), row->lblOpaque, 0.03), QColor(0x40, 0x40, 0x40)) << where;
      EXPECT_GE(MostContrast(look(), ModelRect(row->lblOpaque).adjusted(3, 3, -3, -3)), kReadable) << where;
      row->lblOpaque.BackStyle = 0;
      EXPECT_NE(at(look(), row->lblOpaque, 0.03), QColor(0x40, 0x40, 0x40)) << where;
      // Captions of tick boxes read well, and text boxes show their colour.
      for (const Visual* tick : std::initializer_list<Visual*>{&row->opt, &row->chk})
        EXPECT_GE(MostContrast(look(), ModelRect(*tick).adjusted(18, 2, -2, -2)), kReadable)
            << where << " " << tick->name;
      for (const int colour : {255, 0xFFFF00, 0}) {
        row->txt.ForeColor = colour;
        const QImage picture = look();
        const QRect area = ModelRect(row->txt).adjusted(4, 4, -4, -4);
        int coloured = 0;
        for (int y = area.top(); y <= area.bottom(); ++y)
          for (int x = area.left(); x <= area.right(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            coloured += Contrast(pixel, Qt::white) > 4 && Means(pixel, ToColour(colour));
          }
        EXPECT_GE(coloured, 5) << where << " colour " << colour;
        EXPECT_GE(MostContrast(picture, area), kReadable) << where << " colour " << colour;
      }
    }
    // A frame takes along what it holds.
    const QImage before = look();
    const int down = form.inGroup.bar.Top / 15;
    form.fraGroup.Top = form.fraGroup.Top + 60 * 15;
    form.fraPanel.Visible = false;
    EXPECT_EQ(form.fraGroup.Top / 15 + down, ModelRect(form.inGroup.bar).top());
    const QImage moved = look();
    EXPECT_EQ(at(moved, form.inGroup.bar, 0.5),
              before.pixelColor(ModelRect(form.inGroup.bar).center() - QPoint(0, 60)));
    form.fraGroup.Visible = false;
    const QImage bare = look();
    EXPECT_NE(at(bare, form.inGroup.bar, 0.5), at(moved, form.inGroup.bar, 0.5));
    for (const Visual* gone :
         std::initializer_list<Visual*>{&form.inGroup.opt, &form.inGroup.cmd, &form.onPanel.txt})
      EXPECT_FALSE(front.WindowOf(form)->WidgetOf(*gone)->isVisible()) << gone->name;
    form.fraGroup.Visible = true;
    EXPECT_EQ(look(), moved);
    // What stands above the bar hides it.
    form.fraPanel.Visible = true;
    form.fraPanel.Top = 150;
    form.fraPanel.ZOrder(0);
    const QColor panel = at(look(), form.free.bar, 0.5);
    form.free.bar.ZOrder(0);
    EXPECT_NE(at(look(), form.free.bar, 0.5), panel);
    form.Discard();
    input::Settle();
  }
}
