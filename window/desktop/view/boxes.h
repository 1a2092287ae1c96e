// Message boxes.
#pragma once

#include <QMessageBox>

#include "window/platform.h"

// The button that stands for an answer.
QMessageBox::StandardButton ButtonOf(Answer answer);
