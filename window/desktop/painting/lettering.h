// Laying out the text of labels.
#pragma once

#include <QFont>
#include <QRectF>
#include <QString>
#include <vector>

#include "window/controls.h"

struct TextLine {
  QString text;
  QPointF baseline;
  double width = 0;
};

struct TextBlock {
  QFont font;
  std::vector<TextLine> lines;
  QRectF bounds;  // of all letters
};

// The font of a label.
QFont FontOf(const Label& label);
// The label's caption broken into lines: at line ends, and at blanks where a label of fixed size is too
// narrow. What such a label has no room for is left out of the middle of the last line.
TextBlock LayOut(const Label& label, const QRectF& rect);
// The room that the caption needs without further breaks, in pixels.
QSizeF Needs(const Label& label);
