// The window that tells all keys.
#pragma once

#include "window/guide.h"

class Deeds;
class QWidget;

// Shows the table of keys before the window of that form. A game is paused meanwhile.
void ShowKeys(Form& form, const Guide& guide, Deeds& deeds, QWidget& window);
