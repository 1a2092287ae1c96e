// The end of the program from outside, as the windows hear of it.
#pragma once

class QApplication;

// Signals, and the session manager's word: what is open is kept when the session asks for it, and the program
// leaves when it is told to.
void HeedSession(QApplication& application, const class Platform& platform);
