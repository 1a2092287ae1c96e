// The window that shows a window's table of keys.
#pragma once

class DesktopFrontEnd;
class FormWindow;

// Shows the keys before that window. A game that runs is paused meanwhile.
void ShowKeys(FormWindow& window, DesktopFrontEnd& front);
