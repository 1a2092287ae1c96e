#include "suite/scoring_dialog.h"

#include <algorithm>
#include <cstdio>
#include <numeric>

namespace {

constexpr int kWidth = 8400, kRowHeight = 465;

}  // namespace

std::vector<size_t> ScoringDialog::FromTopToBottom() const {
  std::vector<size_t> order(settings_.size());
  std::iota(order.begin(), order.end(), 0);
  std::ranges::stable_sort(order, {}, [&](size_t field) { return Rule(field).place; });
  return order;
}

// The boxes take the focus in the order in which they stand.
std::vector<std::unique_ptr<ScoringDialog::Row>> ScoringDialog::MakeRows() {
  std::vector<std::unique_ptr<Row>> rows(settings_.size());
  for (const size_t field : FromTopToBottom())
    rows[field] = std::make_unique<Row>(frmScoringOptions, Rule(field));
  return rows;
}

ScoringDialog::ScoringDialog(GameWindow& game)
    : Form(game.platform, game.plan.dialog.window),
      settings_(game.settings.WithField()),
      frmScoringOptions(*this, game.plan.dialog.frame),
      rows(MakeRows()),
      chkCountDown(frmScoringOptions, game.plan.dialog.countDown),
      window(game) {
  const ScoringNames& names = game.plan.dialog;
  int top = 360;
  for (const size_t field : FromTopToBottom()) {
    rows[field]->label.Caption = Rule(field).caption;
    rows[field]->label.Move(240, top + 60, 5940, 285);
    TextBox& box = rows[field]->box;
    box.Move(6240, top, 1440, 345);
    box.OnGotFocus = [&box] { box.SelectAll(); };
    top += kRowHeight;
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
    for (size_t i = 0; i < rows.size(); ++i) rows[i]->box.Text = Shown(i, settings_[i]->standard);
    chkCountDown.Value = 1;
    DefaultsShown();
  };
}

void ScoringDialog::Form_Load() {
  if (window.plan.dialog.overTheGame)
    Form::Move(window.Left + (window.Width - Width) / 2, window.Top + (window.Height - Height) / 2, Width,
               Height);
  else
    CenterOnScreen();
  Caption = window.common.AppTitle + " User Options";
  for (size_t i = 0; i < rows.size(); ++i) rows[i]->box.Text = Shown(i, settings_[i]->Number());
  chkCountDown.Value = window.common.CountDownScore ? 1 : 0;
  if (Visual* first = ActiveControl()) first->SetFocus();
}

int ScoringDialog::FreeRowTop(int row) const { return freeRowsTop_ + row * kRowHeight; }

std::string ScoringDialog::Shown(size_t field, long long kept) const {
  return Plain(static_cast<double>(kept) / Rule(field).unit);
}

std::string ScoringDialog::Plain(double number) {
  char text[64];
  std::snprintf(text, sizeof text, "%.15g", number);
  return text;
}

double ScoringDialog::NumberIn(size_t field) const { return Val(rows[field]->box.Text.get()); }

std::optional<ScoringDialog::Refusal> ScoringDialog::Judge(size_t field, double value) {
  const ScoringField& rule = Rule(field);
  if (value >= rule.lowest && value <= rule.highest) return std::nullopt;
  const OutOfBounds& wrong = value < rule.lowest ? rule.below : rule.above;
  return Refusal{wrong.message, &rows[field]->box, std::to_string(wrong.text), wrong.setting};
}

void ScoringDialog::Take(size_t field, double value) {
  settings_[field]->SetNumber(RoundHalfEven(value * Rule(field).unit));
}

void ScoringDialog::TakeRefused(size_t field, long long setting) { settings_[field]->SetNumber(setting); }

bool ScoringDialog::TakeField(size_t field) {
  const double value = NumberIn(field);
  const auto refusal = Judge(field, value);
  if (!refusal) {
    Take(field, value);
    if (window.plan.dialog.tellsGoalAtOnce &&
        settings_[field]->value == decltype(GameSetting::value)(&window.BonusScore))
      TellGoal();
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
  if (!window.plan.dialog.tellsGoalAtOnce) TellGoal();
}

void ScoringDialog::FieldsChecked(bool lastPassed) {
  if (lastPassed) TakeRest();
}

// Every field is looked at, also after one that had to be put right.
bool ScoringDialog::TakeFields() {
  bool allPassed = true, passed = true;
  BeforeFields();
  for (size_t i = 0; i < settings_.size(); ++i) {
    passed = TakeField(i);
    allPassed = allPassed && passed;
  }
  FieldsChecked(passed);
  return allPassed;
}

void ScoringDialog::cmdOK_Click() {
  bool allPassed = false;
  const auto failure = FailureOf([&] { allPassed = TakeFields(); });
  if (failure) window.common.MsgBox(*failure, Icon::Exclamation);
  if (allPassed) Unload();
}
