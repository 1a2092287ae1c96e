// A key that was kept back is struck again.
#pragma once

class QKeyEvent;
class QWindow;

// Goes the whole way through the toolkit, shortcuts and access keys included, as when it was struck first.
void StrikeAgain(QWindow& window, const QKeyEvent& key);
