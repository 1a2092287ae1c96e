// The dialog behind the menu entry for customised scoring: number fields with bounds, the count-down switch,
// OK, Cancel, Default. A game gives a table of its fields and says where their values are kept; where its
// dialog does something else, a step says so.
#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "suite/game_window.h"

// What becomes of a number beyond a bound.
struct OutOfBounds {
  const char* message;
  long long text;     // put into the field
  long long setting;  // taken
};

// All numbers but `OutOfBounds::setting` are as the field shows them.
struct ScoringField {
  const char* box;
  const char* label;
  const char* caption;     // of the label
  long long standard;      // what Default writes
  double lowest, highest;  // both allowed
  OutOfBounds below, above;
  int unit = 1;  // of the setting in one of the field: 1000 where seconds are kept as milliseconds
};

// The field of the games in which cards may be passed.
constexpr ScoringField PassesField(int standard) {
  return {"txtNumberOfCardsToPass",
          "lblNumberOfCardsToPass",
          "Number of cards user may pass (0 - 10):",
          standard,
          0,
          10,
          {"Sorry, you cannot pass fewer than 0 cards.", 0, 0},
          {"Sorry, you cannot pass more than 10 cards.", 10, 10}};
}

struct ScoringNames {
  const char* window;
  const char* frame = "frmScoringOptions";
  const char* frameCaption = "AppTitle Scoring Options";
  const char* countDown = "chkCountDown";
  const char* countDownCaption = "&Count Down when taking score";
  const char* info =
      "Note: Changing any of the Scoring Options will cause your high scores to be marked with an * "
      "indicating custom scoring was in use.";
  // The fields from top to bottom, by their places in the table, where that isn't the order of the checks.
  std::span<const int> order{};
  int moreRows = 0;  // kept free behind the count-down switch, for controls of the game's own
};

class ScoringDialog : public Form {
 public:
  // `fields` in the order in which OK looks at them. Both must outlive the dialog.
  ScoringDialog(GameWindow& game, const ScoringNames& names, std::span<const ScoringField> fields);
  void Form_Load() override;

 private:
  const std::span<const ScoringField> fields_;
  struct Row {
    Row(Control& parent, const ScoringField& field) : label(parent, field.label), box(parent, field.box) {}
    Label label;
    TextBox box;
  };
  static std::vector<std::unique_ptr<Row>> MakeRows(Control& parent, std::span<const ScoringField> fields,
                                                    std::span<const int> order);

 public:
  Frame frmScoringOptions;
  const std::vector<std::unique_ptr<Row>> rows;  // as in the table
  CheckBox chkCountDown;
  Label lblInfo{*this, "lblInfo"};
  CommandButton cmdOK{*this, "cmdOK"}, cmdCancel{*this, "cmdCancel"}, cmdDefault{*this, "cmdDefault"};

 protected:
  using Number = std::variant<Integer*, Long*>;
  struct Refusal {
    std::string message;
    TextBox* box;  // gets the text and the focus
    std::string text;
    std::optional<long long> setting;  // taken all the same
  };

  // Where the setting of a field is kept.
  virtual Number Setting(size_t field) = 0;
  // What a field shows when the dialog opens.
  virtual std::string Shown(size_t field);
  // Why the number in a field is refused, if it is; by the bounds of the table.
  virtual std::optional<Refusal> Judge(size_t field, double value);
  // Tells why a number is refused, and puts the field right.
  virtual void TellRefusal(const Refusal& refusal);
  // Takes a number that passed; and the setting that goes with one that was refused.
  virtual void Take(size_t field, double value);
  virtual void TakeRefused(size_t field, long long setting);

  // Steps of OK, in this order.
  virtual void BeforeFields() {}
  virtual void FieldPassed(size_t /*field*/) {}
  // All fields were looked at. If the last one passed, whatever the others did, the rest is taken.
  virtual void FieldsChecked(bool lastPassed);

  // Default was pressed: the fields and the switch are filled already.
  virtual void DefaultsShown() {}
  virtual void PlaceDialog() { CenterOnScreen(); }

  // Takes the count-down switch; sees whether scoring is customised; and tells the bonus round's score.
  void TakeRest();
  // The top of a free row within the frame; see `ScoringNames::moreRows`.
  int FreeRowTop(int row) const;
  void SetNumber(size_t field, long long value);
  double NumberIn(size_t field) const;
  // A number as plain text, with no more decimals than it has.
  static std::string Plain(double number);

  GameWindow& window;

 private:
  void cmdOK_Click();
  // Takes a field, or puts it right and tells the player. False if it had to be put right.
  bool TakeField(size_t field);

  int freeRowsTop_ = 0;
};
