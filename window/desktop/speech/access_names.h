// How controls are called where nobody sees what stands beside them.
#pragma once

#include <QString>
#include <map>

#include "window/guide.h"

class Canvas;

// A text as it is spoken: on one line, without the marks of access keys.
QString Spoken(const std::string& text);
// What the label says that tells what the control is for: beside it on the left, or above. "" if there is
// none.
QString LabelTextOf(const Visual& control);
// The names of all labels that show: their texts, figures with what tells what they are about. A label that
// only tells what figures are about has none.
std::map<const Label*, QString> NamesOfLabels(const Form& form, const Guide* guide);
// Whether the label shows something that is to be said when it comes: a large text on a board.
bool IsMessage(const Label& label, const Guide* guide);
// Names the widgets on a board that have no caption of their own, or one that several have; `spots` is what
// the guide tells of it.
void NameWidgets(Canvas& board, const std::vector<Spot>& spots);
