#include "window/desktop/painting/style.h"

#include <QApplication>
#include <QFontInfo>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <QVariant>
#include <QWidget>
#include <cmath>

namespace {

constexpr char kZoom[] = "cardhavenZoom";
constexpr int kLetters = 12;  // pixels of a widget's letters at 100 %

// Narrow enough for the places that were told for narrow letters, and all figures are equally wide.
constexpr char kFamily[] = "Open Sans";

// Where it isn't there the system's own family, mostly a wider one, has to make do with the same places.
int Less() {
  static const int less = QFontInfo(QApplication::font()).family() == kFamily ? 0 : 1;
  return less;
}

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

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    if (!IsStrong(*option)) return QProxyStyle::drawPrimitive(element, option, painter, widget);
    switch (element) {
      case PE_PanelButtonCommand: {
        const bool lit = option->state & (State_MouseOver | State_Sunken) && option->state & State_Enabled;
        const bool chosen = option->state & State_On;
        painter->fillRect(option->rect, chosen ? QColor(0x60, 0x60, 0x60)
                                        : lit  ? QColor(0x40, 0x40, 0x40)
                                               : style::kStrongGround);
        return Outline(*option, painter, option->rect);
      }
      case PE_IndicatorCheckBox:
        painter->fillRect(option->rect, style::kStrongGround);
        Outline(*option, painter, option->rect);
        if (option->state & State_On) {
          painter->fillRect(option->rect.adjusted(4, 4, -4, -4), option->palette.color(QPalette::WindowText));
        }
        return;
      default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
    if (element == PE_FrameLineEdit || element == PE_Frame || element == PE_PanelMenu ||
        element == PE_IndicatorRadioButton)
      Outline(*option, painter, option->rect, element == PE_IndicatorRadioButton);
  }

  // The picture of a button stands at its left edge, so that those of a column are in line.
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element != CE_PushButtonLabel || !button || button->icon.isNull() || button->iconSize.isEmpty())
      return QProxyStyle::drawControl(element, option, painter, widget);
    QStyleOptionButton label = *button;
    const int side = button->iconSize.width(), margin = side / 6;
    const QRect picture(button->rect.left() + margin, button->rect.center().y() - side / 2, side, side);
    button->icon.paint(painter, picture);
    label.icon = {};
    label.rect.setLeft(picture.right() + margin);
    QProxyStyle::drawControl(element, &label, painter, widget);
  }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (!IsStrong(*option)) return;
    if (control == CC_ComboBox) Outline(*option, painter, option->rect);
    if (control == CC_ScrollBar)
      Outline(*option, painter, subControlRect(CC_ScrollBar, option, SC_ScrollBarSlider, widget));
  }

 private:
  // Fusion's own edges are a shade darker than what they are around, and nothing is darker than black.
  static bool IsStrong(const QStyleOption& option) {
    return option.palette.color(QPalette::Window) == style::kStrongGround;
  }

  static void Outline(const QStyleOption& option, QPainter* painter, const QRect& rect, bool round = false) {
    const bool focused = option.state & State_HasFocus && option.state & State_Enabled;
    const QColor colour = focused ? style::kStrongMark : option.palette.color(QPalette::WindowText);
    const double breadth = focused ? 3 : 1.5, half = breadth / 2;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(colour, breadth));
    const QRectF edge = QRectF(rect).adjusted(half, half, -half, -half);
    round ? painter->drawEllipse(edge) : painter->drawRect(edge);
    painter->restore();
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

QFont Letters(int points, bool bold) {
  constexpr int kLabel = 10, kCount = 14, kAnnouncement = 20;  // the largest of each, in points
  const int pixels = points <= kLabel ? kLetters : points <= kCount ? 16 : points <= kAnnouncement ? 24 : 34;
  QFont font = QApplication::font();
  font.setPixelSize(pixels - Less());
  font.setWeight(bold ? QFont::DemiBold : QFont::Normal);
  return font;
}

namespace {

QPalette Usual() {
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
  const QColor faint(0x68, 0x62, 0x57);
  for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, faint);
  return palette;
}

QPalette HighContrast() {
  const QColor dim(0xb8, 0xb8, 0xb8);
  QPalette palette(QColor(0x26, 0x26, 0x26), kStrongGround);
  for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                                   QPalette::BrightText, QPalette::ToolTipText, QPalette::Light}) {
    palette.setColor(role, Qt::white);
    palette.setColor(QPalette::Disabled, role, dim);
  }
  for (QPalette::ColorRole role :
       {QPalette::Base, QPalette::AlternateBase, QPalette::Window, QPalette::ToolTipBase})
    palette.setColor(role, kStrongGround);
  palette.setColor(QPalette::Highlight, kStrongMark);
  palette.setColor(QPalette::HighlightedText, Qt::black);
  palette.setColor(QPalette::PlaceholderText, dim);
  return palette;
}

}  // namespace

void SetHighContrast(bool high) {
  const QPalette palette = high ? HighContrast() : Usual();
  if (QApplication::palette() != palette) QApplication::setPalette(palette);
}

void Apply(QApplication& application) {
  QApplication::setStyle(new Zoomed);
  SetHighContrast(false);
  QFont font = application.font();
  font.setFamilies(QStringList(kFamily) + font.families());
  font.setPixelSize(kLetters);
  QApplication::setFont(font);
}

}  // namespace style
