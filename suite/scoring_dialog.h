// The dialog behind the menu entry for customised scoring: number fields with bounds, the count-down switch,
// OK, Cancel, Default. Its fields are those of the game's `settings`; where a game's dialog does something
// else, a step says so.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "suite/game_window.h"

// The field of the games in which cards may be passed.
inline constexpr ScoringField kPassesField = BoundedField(
    "txtNumberOfCardsToPass", "lblNumberOfCardsToPass", "Number of cards user may pass (0 - 10):", 0, 10,
    "Sorry, you cannot pass fewer than 0 cards.", "Sorry, you cannot pass more than 10 cards.");

class ScoringDialog : public Form {
 public:
  explicit ScoringDialog(GameWindow& game);
  void Form_Load() override;

 private:
  const std::vector<const GameSetting*> settings_;  // in the order in which OK looks at them
  struct Row {
    Row(Control& parent, const ScoringField& field) : label(parent, field.label), box(parent, field.box) {}
    Label label;
    TextBox box;
  };
  std::vector<std::unique_ptr<Row>> MakeRows();
  std::vector<size_t> FromTopToBottom() const;

 public:
  Frame frmScoringOptions;
  const std::vector<std::unique_ptr<Row>> rows;  // in the order of the checks
  CheckBox chkCountDown;
  Label lblInfo{*this, "lblInfo"};
  CommandButton cmdOK{*this, "cmdOK"}, cmdCancel{*this, "cmdCancel"}, cmdDefault{*this, "cmdDefault"};

 protected:
  struct Refusal {
    std::string message;
    TextBox* box;  // gets the text and the focus
    std::string text;
    std::optional<long long> setting;  // taken all the same
  };

  // How a field shows what is kept.
  virtual std::string Shown(size_t field, long long kept) const;
  // Why the number in a field is refused, if it is; by the bounds of the table.
  virtual std::optional<Refusal> Judge(size_t field, double value);
  // Tells why a number is refused, and puts the field right.
  virtual void TellRefusal(const Refusal& refusal);
  // Takes a number that passed; and the setting that goes with one that was refused.
  virtual void Take(size_t field, double value);
  virtual void TakeRefused(size_t field, long long setting);

  // Steps of OK, in this order.
  virtual void BeforeFields() {}
  // All fields were looked at. If the last one passed, whatever the others did, the rest is taken.
  virtual void FieldsChecked(bool lastPassed);

  // Default was pressed: the fields and the switch are filled already.
  virtual void DefaultsShown() {}

  // Takes the count-down switch; sees whether scoring is customised; and tells the bonus round's score.
  void TakeRest();
  void TellGoal() { window.ShowBonusGoal(" for bonus round.  "); }
  // The top of a free row within the frame; see `ScoringNames::moreRows`.
  int FreeRowTop(int row) const;
  double NumberIn(size_t field) const;
  const ScoringField& Rule(size_t field) const { return *settings_[field]->field; }
  // A number as plain text, with no more decimals than it has.
  static std::string Plain(double number);

  GameWindow& window;

 private:
  void cmdOK_Click();
  // Takes the fields and the rest; false if a field had to be put right.
  bool TakeFields();
  // Takes a field, or puts it right and tells the player. False if it had to be put right.
  bool TakeField(size_t field);

  int freeRowsTop_ = 0;
};
