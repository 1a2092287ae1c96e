// What a player does to windows. Front ends turn mouse and keys into these calls, scripts make them directly.
#pragma once

#include <string>

#include "window/platform.h"

namespace player {

// Why the player can't use this control just now; "" if nothing stands in the way.
std::string WhyNot(const Control& control);
// The same for a form as a whole: closing, resizing, keys.
std::string WhyNot(const Form& form);

// Each runs the events that the deed leads to. The caller has asked `WhyNot`.
void Click(Control& control);
void DblClick(Control& control);
void MouseMove(Control& control);
void Type(TextBox& box, const std::string& text);
// Picks an entry of a list. False if it has no such entry.
bool Select(Control& list, int entry);
void Press(Form& form, Key key);
void Close(Form& form);
void Resize(Form& form, int width, int height);
void SetState(Form& form, int state);

}  // namespace player
