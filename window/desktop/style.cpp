#include "window/desktop/style.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>
#include <cmath>

namespace style {

QFont Letters(int points, bool bold, const QString& family) {
  QFont font = QApplication::font();
  if (!family.isEmpty()) font.setFamilies({family, font.family()});
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(points * 96 / 72.0))));
  font.setBold(bold);
  return font;
}

void Apply(QApplication& application) {
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QPalette palette;
  palette.setColor(QPalette::Window, QColor(0xef, 0xe9, 0xda));
  palette.setColor(QPalette::WindowText, kInk);
  palette.setColor(QPalette::Base, QColor(0xff, 0xfd, 0xf7));
  palette.setColor(QPalette::AlternateBase, kPaper);
  palette.setColor(QPalette::Text, kInk);
  palette.setColor(QPalette::Button, QColor(0xf3, 0xea, 0xd3));
  palette.setColor(QPalette::ButtonText, kInk);
  palette.setColor(QPalette::BrightText, Qt::white);
  palette.setColor(QPalette::Highlight, QColor(0x1f, 0x74, 0x50));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::ToolTipBase, kIvory);
  palette.setColor(QPalette::ToolTipText, kInk);
  palette.setColor(QPalette::PlaceholderText, QColor(0x80, 0x78, 0x6c));
  const QColor faint(0x8c, 0x85, 0x78);
  for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, faint);
  QApplication::setPalette(palette);
  QFont font = application.font();
  font.setPixelSize(12);
  QApplication::setFont(font);
}

}  // namespace style
