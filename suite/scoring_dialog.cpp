#include "suite/scoring_dialog.h"

#include <cmath>
#include <cstdio>

namespace {

constexpr int kWidth = 8400, kRowHeight = 465;

}  // namespace

// The boxes take the focus in the order in which they stand.
std::vector<std::unique_ptr<ScoringDialog::Row>> ScoringDialog::MakeRows(Control& parent,
                                                                         std::span<const ScoringField> fields,
                                                                         std::span<const int> order) {
  std::vector<std::unique_ptr<Row>> rows(fields.size());
  for (size_t i = 0; i < fields.size(); ++i) {
    const size_t field = order.empty() ? i : order[i];
    rows[field] = std::make_unique<Row>(parent, fields[field]);
  }
  return rows;
}

ScoringDialog::ScoringDialog(GameWindow& game, const ScoringNames& names,
                             std::span<const ScoringField> fields)
    : Form(game.platform, names.window),
      fields_(fields),
      frmScoringOptions(*this, names.frame),
      rows(MakeRows(frmScoringOptions, fields, names.order)),
      chkCountDown(frmScoringOptions, names.countDown),
      window(game) {
  int top = 360;
  for (size_t i = 0; i < rows.size(); ++i, top += kRowHeight) {
    const size_t field = names.order.empty() ? i : names.order[i];
    rows[field]->label.Caption = fields[field].caption;
    rows[field]->label.Move(240, top + 60, 5940, 285);
    TextBox& box = rows[field]->box;
    box.Move(6240, top, 1440, 345);
    box.OnGotFocus = [&box] { box.SelectAll(); };
  }
  chkCountDown.Caption = names.countDownCaption;
  chkCountDown.Move(240, top, 5940, 285);
  freeRowsTop_ = top + kRowHeight;
  top += names.moreRows * kRowHeight;
  frmScoringOptions.Caption = names.frameCaption;
  frmScoringOptions.Move(240, 180, kWidth - 480, top + 420);
  top += 720;
  lblInfo.Caption = names.info;
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
    DefaultsShown();
  };
}

void ScoringDialog::Form_Load() {
  PlaceDialog();
  Caption = window.common.AppTitle + " User Options";
  for (size_t i = 0; i < rows.size(); ++i) rows[i]->box.Text = Shown(i);
  chkCountDown.Value = window.common.CountDownScore ? 1 : 0;
  if (Visual* first = ActiveControl()) first->SetFocus();
}

int ScoringDialog::FreeRowTop(int row) const { return freeRowsTop_ + row * kRowHeight; }

std::string ScoringDialog::Shown(size_t field) {
  const double kept = std::visit([](auto* number) { return static_cast<double>(*number); }, Setting(field));
  return Plain(kept / fields_[field].unit);
}

void ScoringDialog::SetNumber(size_t field, long long value) {
  std::visit([&](auto* number) { *number = value; }, Setting(field));
}

std::string ScoringDialog::Plain(double number) {
  char text[64];
  std::snprintf(text, sizeof text, "%.15g", number);
  return text;
}

double ScoringDialog::NumberIn(size_t field) const { return Val(rows[field]->box.Text.get()); }

std::optional<ScoringDialog::Refusal> ScoringDialog::Judge(size_t field, double value) {
  const ScoringField& rule = fields_[field];
  if (value >= rule.lowest && value <= rule.highest) return std::nullopt;
  const OutOfBounds& wrong = value < rule.lowest ? rule.below : rule.above;
  return Refusal{wrong.message, &rows[field]->box, std::to_string(wrong.text), wrong.setting};
}

void ScoringDialog::Take(size_t field, double value) {
  SetNumber(field, RoundHalfEven(value * fields_[field].unit));
}

void ScoringDialog::TakeRefused(size_t field, long long setting) { SetNumber(field, setting); }

bool ScoringDialog::TakeField(size_t field) {
  const double value = NumberIn(field);
  const auto refusal = Judge(field, value);
  if (!refusal) {
    Take(field, value);
    FieldPassed(field);
    return true;
  }
  if (refusal->setting) TakeRefused(field, *refusal->setting);
  TellRefusal(*refusal);
  return false;
}

void ScoringDialog::TellRefusal(const Refusal& refusal) {
  window.common.MsgBox(refusal.message, Icon::Information);
  refusal.box->Text = refusal.text;
  refusal.box->SetFocus();
}

void ScoringDialog::TakeRest() {
  window.common.CountDownScore = chkCountDown.Value == 1;
  window.CheckForCustom();
  window.SettingsRead();
  window.ShowBonusGoal(" for bonus round.  ");
}

void ScoringDialog::FieldsChecked(bool lastPassed) {
  if (lastPassed) TakeRest();
}

// Every field is looked at, also after one that had to be put right.
void ScoringDialog::cmdOK_Click() {
  bool allPassed = true, passed = true;
  try {
    BeforeFields();
    for (size_t i = 0; i < fields_.size(); ++i) {
      passed = TakeField(i);
      allPassed = allPassed && passed;
    }
    FieldsChecked(passed);
  } catch (const RuntimeError& error) {
    window.common.MsgBox(error.what(), Icon::Exclamation);
    allPassed = false;
  }
  if (allPassed) Unload();
}
