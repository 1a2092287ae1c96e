// How controls are called where nobody sees what stands beside them.
#pragma once

#include <QString>

#include "window/form.h"

class FormWindow;

// A text as it is spoken: on one line, without the marks of access keys.
QString Spoken(const std::string& text);
// The label that tells what the control is for: beside it on the left, or above. Null if there is none.
const Label* LabelOf(const Visual& control);
// The name of a label that shows: its text, with what tells what it is about before it. "" if it only tells
// what another one is about.
QString NameOfLabel(const Label& label);
// Whether the label shows something that is to be said when it comes: a large text on a board.
bool IsMessage(const Label& label);
// Names the widgets of a window that have no caption of their own, or one that several have.
void NameWidgets(FormWindow& window);
