// The values of a game that its settings file, its scoring dialog or its rules name: one row a value.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "window/control.h"
#include "window/number.h"

// What becomes of a number beyond a bound.
struct OutOfBounds {
  const char* message;
  long long text;     // put into the field
  long long setting;  // taken
};

// A value's field in the scoring dialog. All numbers but `OutOfBounds::setting` are as the field shows them.
struct ScoringField {
  const char* box;
  const char* label;
  const char* caption;     // of the label
  double lowest, highest;  // both allowed
  OutOfBounds below, above;
  int unit = 1;   // of the setting in one of the field: 1000 where seconds are kept as milliseconds
  int place = 0;  // from top to bottom, where that isn't the order of the checks
};

// A field in which a number beyond a bound becomes that bound.
constexpr ScoringField BoundedField(const char* box, const char* label, const char* caption, long long lowest,
                                    long long highest, const char* tooLow, const char* tooHigh) {
  return {box,
          label,
          caption,
          static_cast<double>(lowest),
          static_cast<double>(highest),
          {tooLow, lowest, lowest},
          {tooHigh, highest, highest}};
}

constexpr ScoringField At(int place, ScoringField field) {
  field.place = place;
  return field;
}

// Whether a value other than the default makes scoring a customised one.
enum class Customises { Yes, No };
// Whether what the file holds is taken; it is written in any case.
enum class Reads { Yes, No };

struct GameSetting {
  const char* name;  // in the text of the rules
  std::variant<Integer*, Long*, bool*, Property<int>*> value;
  int standard;              // 1 for true
  const char* section = "";  // of the settings file; "" if it isn't kept
  Customises customises = Customises::Yes;
  std::optional<ScoringField> field = std::nullopt;
  Reads reads = Reads::Yes;
  std::span<const int> only = {};  // of the file no other numbers are taken

  bool IsStandard() const;
  long long Number() const;
  void SetNumber(long long number) const;
  // As the settings file writes it, and takes it: what is none, or doesn't fit, changes nothing.
  std::string Text() const;
  void Apply(std::string_view text) const;
};

// All those of a game, in the order of the dialog's checks.
class GameSettings : public std::vector<GameSetting> {
 public:
  using vector::vector;
  using vector::operator=;

  // The first one under a section; null if there is none.
  const GameSetting* Find(std::string_view section) const;
  // Gives what the file holds to all of a section; false if there are none.
  bool Apply(std::string_view section, std::string_view text) const;
  void SetStandard() const;
  bool AreCustomised() const;
  // Those that the scoring dialog has a field for.
  std::vector<const GameSetting*> WithField() const;
};

// "True" and "False".
std::string FlagText(bool flag);
void ApplyFlag(std::string_view text, bool& flag);
