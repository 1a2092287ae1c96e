// The dialog behind the menu entry for customised scoring: number fields with bounds, the count-down switch,
// OK, Cancel, Default. A game gives a table of its fields, and says where their values are kept.
#pragma once

#include <memory>
#include <span>
#include <vector>

#include "suite/game_window.h"

// What becomes of a number beyond a bound.
struct OutOfBounds {
  const char* message;
  int text;     // put into the field
  int setting;  // taken
};

struct ScoringField {
  const char* box;
  const char* label;
  const char* caption;  // of the label
  int standard;         // what Default writes
  int lowest, highest;  // both allowed
  OutOfBounds below, above;
};

class ScoringDialog : public Form {
 public:
  ScoringDialog(GameWindow& game, std::string_view name, std::span<const ScoringField> fields);
  void Form_Load() override;

 private:
  const std::span<const ScoringField> fields_;
  struct Row {
    Row(Control& parent, const ScoringField& field) : label(parent, field.label), box(parent, field.box) {}
    Label label;
    TextBox box;
  };
  static std::vector<std::unique_ptr<Row>> MakeRows(Control& parent, std::span<const ScoringField> fields);

 public:
  Frame frmScoringOptions{*this, "frmScoringOptions"};
  const std::vector<std::unique_ptr<Row>> rows;  // as in the table
  CheckBox chkCountDown{frmScoringOptions, "chkCountDown"};
  Label lblInfo{*this, "lblInfo"};
  CommandButton cmdOK{*this, "cmdOK"}, cmdCancel{*this, "cmdCancel"}, cmdDefault{*this, "cmdDefault"};

 protected:
  // The value of a field's setting, by its place in the table; and taking a new one.
  virtual long long Setting(size_t field) const = 0;
  virtual void SetSetting(size_t field, long long value) = 0;
  // The last field has passed, and the count-down switch is taken: the rest of what OK does.
  virtual void LastFieldPassed() = 0;

 private:
  void cmdOK_Click();
  // Takes a field, or puts it right and tells the player. False if it had to be put right.
  bool TakeField(size_t field);

  GameWindow& window_;
};
