// Texts that the desktop adds to a window.
#pragma once

#include <QPainter>
#include <QRect>

#include "window/guide.h"

// Marks lie beneath the controls, all other notes above them.
enum class NoteLayer { Beneath, Above };

// All that the note covers; pixels at 100 %.
QRect NoteRect(const Note& note);
// Draws the note if it belongs to that layer.
void PaintNote(QPainter& painter, const Note& note, NoteLayer layer, bool strong = false);
