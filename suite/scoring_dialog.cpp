#include "suite/scoring_dialog.h"

#include "window/text.h"

namespace {

constexpr int kWidth = 8400, kRowHeight = 465;

}  // namespace

std::vector<std::unique_ptr<ScoringDialog::Row>> ScoringDialog::MakeRows(
    Control& parent, std::span<const ScoringField> fields) {
  std::vector<std::unique_ptr<Row>> rows;
  for (const ScoringField& field : fields) rows.push_back(std::make_unique<Row>(parent, field));
  return rows;
}

ScoringDialog::ScoringDialog(GameWindow& game, std::string_view name, std::span<const ScoringField> fields)
    : Form(game.platform, name), fields_(fields), rows(MakeRows(frmScoringOptions, fields)), window_(game) {
  int top = 360;
  for (size_t i = 0; i < rows.size(); ++i, top += kRowHeight) {
    rows[i]->label.Caption = fields[i].caption;
    rows[i]->label.Move(240, top + 60, 5940, 285);
    TextBox& box = rows[i]->box;
    box.Move(6240, top, 1440, 345);
    box.OnGotFocus = [&box] { box.SelectAll(); };
  }
  chkCountDown.Caption = "&Count Down when taking score";
  chkCountDown.Move(240, top, 5940, 285);
  frmScoringOptions.Caption = "AppTitle Scoring Options";
  frmScoringOptions.Move(240, 180, kWidth - 480, top + 420);
  top += 720;
  lblInfo.Caption =
      "Note: Changing any of the Scoring Options will cause your high scores to be marked with an * "
      "indicating custom scoring was in use.";
  lblInfo.Move(240, top, kWidth - 480, 540);
  top += 660;
  int left = (kWidth - 3 * 1320 - 2 * 240) / 2;
  for (CommandButton* button : {&cmdOK, &cmdCancel, &cmdDefault}) {
    button->Move(left, top, 1320, 420);
    left += 1560;
  }
  Form::Move(0, 0, kWidth, top + 600);

  cmdOK.Caption = "&OK";
  cmdCancel.Caption = "&Cancel";
  cmdDefault.Caption = "&Default";
  cmdOK.Default = true;
  cmdCancel.Cancel = true;
  cmdOK.OnClick = [this] { cmdOK_Click(); };
  cmdCancel.OnClick = [this] { Unload(); };
  cmdDefault.OnClick = [this] {
    for (size_t i = 0; i < rows.size(); ++i) rows[i]->box.Text = std::to_string(fields_[i].standard);
    chkCountDown.Value = 1;
  };
}

void ScoringDialog::Form_Load() {
  CenterOnScreen();
  Caption = window_.common.AppTitle + " User Options";
  for (size_t i = 0; i < rows.size(); ++i) rows[i]->box.Text = std::to_string(Setting(i));
  chkCountDown.Value = window_.common.CountDownScore ? 1 : 0;
  rows.front()->box.SetFocus();
}

bool ScoringDialog::TakeField(size_t field) {
  const ScoringField& rule = fields_[field];
  TextBox& box = rows[field]->box;
  const double value = Val(box.Text.get());
  if (value >= rule.lowest && value <= rule.highest) {
    SetSetting(field, RoundHalfEven(value));
    return true;
  }
  const OutOfBounds& wrong = value < rule.lowest ? rule.below : rule.above;
  SetSetting(field, wrong.setting);
  window_.common.MsgBox(wrong.message, Icon::Information);
  box.Text = std::to_string(wrong.text);
  box.SetFocus();
  return false;
}

// Every field is looked at, also after one that had to be put right.
void ScoringDialog::cmdOK_Click() {
  bool allPassed = true, passed = true;
  try {
    for (size_t i = 0; i < fields_.size(); ++i) {
      passed = TakeField(i);
      allPassed = allPassed && passed;
    }
    if (passed) {
      window_.common.CountDownScore = chkCountDown.Value == 1;
      LastFieldPassed();
    }
  } catch (const RuntimeError& error) {
    window_.common.MsgBox(error.what(), Icon::Exclamation);
  }
  if (allPassed) Unload();
}
