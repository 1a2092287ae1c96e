// What a player does to windows. Front ends turn mouse and keys into these calls, scripts make them directly.
#pragma once

#include <string>

#include "window/platform.h"

namespace player {

// Why the player can't use this control just now; "" if nothing stands in the way.
std::string WhyNot(const Control& control);
// The same for a form as a whole: closing, resizing, keys.
std::string WhyNot(const Form& form);

// What the player does, on its way to `Platform::Enter`. The caller has asked `WhyNot`.
void Click(Control& control);
void DblClick(Control& control);
void MouseMove(Control& control);
void Focus(Control& control);
void Type(TextBox& box, const std::string& text);
// Picks an entry of a list; nothing happens where it has no such one.
void Select(Control& list, int entry);
void Press(Form& form, Key key);
void Close(Form& form);
void Place(Form& form, int left, int top);
void Resize(Form& form, int width, int height);
void SetState(Form& form, int state);

// Runs what a deed leads to. For the platform alone.
void CarryOut(const Event& deed);

}  // namespace player
