#include "window/desktop/style.h"

#include <QApplication>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QVariant>
#include <QWidget>
#include <cmath>

namespace {

constexpr char kZoom[] = "cardhavenZoom";
constexpr int kLetters = 12;  // pixels of a widget's letters at 100 %

// Fusion, with the parts of widgets that don't follow the size of letters as large as the window's zoom asks.
class Zoomed : public QProxyStyle {
 public:
  Zoomed() : QProxyStyle(QStyleFactory::create("Fusion")) {}

  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    const int natural = QProxyStyle::pixelMetric(metric, option, widget);
    switch (metric) {
      case PM_IndicatorWidth:
      case PM_IndicatorHeight:
      case PM_ExclusiveIndicatorWidth:
      case PM_ExclusiveIndicatorHeight:
      case PM_CheckBoxLabelSpacing:
      case PM_RadioButtonLabelSpacing:
      case PM_ScrollBarExtent:
      case PM_ScrollBarSliderMin:
      case PM_MessageBoxIconSize:
      case PM_SmallIconSize:
      case PM_ButtonMargin:
      case PM_MenuBarItemSpacing:
      case PM_LayoutLeftMargin:
      case PM_LayoutTopMargin:
      case PM_LayoutRightMargin:
      case PM_LayoutBottomMargin:
      case PM_LayoutHorizontalSpacing:
      case PM_LayoutVerticalSpacing:
        return static_cast<int>(std::lround(natural * style::ZoomOf(widget)));
      default:
        return natural;
    }
  }
};

}  // namespace

namespace style {

QFont Letters(double zoom) {
  QFont font = QApplication::font();
  font.setPixelSize(static_cast<int>(std::lround(kLetters * zoom)));
  return font;
}

void SetZoom(QWidget& window, double zoom) {
  window.setProperty(kZoom, zoom);
  window.setFont(Letters(zoom));
}

double ZoomOf(const QWidget* widget) {
  for (; widget; widget = widget->parentWidget())
    if (const QVariant zoom = widget->property(kZoom); zoom.isValid()) return zoom.toDouble();
  return 1;
}

QFont Letters(int points, bool bold, const QString& family) {
  QFont font = QApplication::font();
  if (!family.isEmpty()) font.setFamilies({family, font.family()});
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(points * 96 / 72.0))));
  font.setBold(bold);
  return font;
}

void Apply(QApplication& application) {
  QApplication::setStyle(new Zoomed);
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
  font.setPixelSize(kLetters);
  QApplication::setFont(font);
}

}  // namespace style
