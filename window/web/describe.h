// Windows and their controls as the page is told of them.
#pragma once

#include "window/guide.h"
#include "window/web/json.h"

// Numbers by which the page names a control: a window's own stands before those of its controls.
namespace ids {

inline constexpr int kPerForm = 4096;
int Of(int form, const Control& control);
// Null if the form has no such control any more.
Control* Find(Form& form, int id);

}  // namespace ids

// Twips as pixels at 100 %.
int Pixels(int twips);

// All that the page needs to draw a control as it is now.
void Describe(Json& json, int form, const Control& control);
// The same of a window with all that is on it, and its keys.
void Describe(Json& json, int id, const Form& form, const Guide* guide);
// The games of a window, and what is said of the last one.
struct Outcome {
  std::optional<GameFacts> facts = {};
  std::string remark = {};  // by the splash panel
  std::string result = {};  // to show to others
};
// What a guide tells of a window at the moment. `cursor` is null where none shows.
void Describe(Json& json, int id, const Form& form, const Guide& guide, const Visual* cursor,
              const Outcome& outcome);
