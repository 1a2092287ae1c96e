// Windows of the desktop's own that stand before a form's.
#pragma once

#include "window/guide.h"

class Deeds;
class QDialog;
class QWidget;

// Shows a dialog before the window of that form, at its zoom, and lets it go once it is closed. A game is
// paused meanwhile.
void ShowAside(QDialog& dialog, Form& form, const Guide& guide, Deeds& deeds, QWidget& window);
