#include "window/desktop/input/keyboard.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QShortcutEvent>
#include <QTimer>
#include <algorithm>
#include <cctype>

#include "window/desktop/input/deeds.h"
#include "window/desktop/input/latin.h"
#include "window/desktop/painting/canvas.h"

namespace {

// The cursor: gold between two dark edges, so that it stands out from baize, faces and backs alike.
constexpr QColor kRingGold(0xff, 0xc9, 0x3c), kRingEdge(0x16, 0x12, 0x17);
constexpr double kRingWidth = 3, kEdgeWidth = 1.5;
constexpr int kRingReach = 7;  // pixels beyond the place that it marks

bool TakesText(const QWidget* widget) {
  return widget && (widget->inherits("QLineEdit") || widget->inherits("QPlainTextEdit") ||
                    widget->inherits("QComboBox") || widget->inherits("QAbstractItemView"));
}

// The key as the table of keys names it; "" for one that isn't in any.
std::string WordOf(const QKeyEvent& key) {
  if (key.key() == Qt::Key_Escape) return "Escape";
  if (key.key() == Qt::Key_Backspace) return "Backspace";
  const QString text = key.text().toUpper();
  const bool plain = text.size() == 1 && text[0] > u' ' && text[0] < u'\x7f';
  return plain ? text.toStdString() : "";
}

}  // namespace

Keyboard::Keyboard(Canvas& canvas, Deeds& deeds, Guide& guide)
    : QObject(canvas.parentWidget()),
      canvas_(canvas),
      window_(*canvas.parentWidget()),
      deeds_(deeds),
      guide_(&guide),
      keys_(canvas.form, guide, [&canvas](const Visual& control) {
        const QPoint middle = canvas.PlaceOf(control).center() * 15;
        return BoardKeys::Point{middle.x(), middle.y()};
      }) {
  clock_.start();
  window_.installEventFilter(this);
  canvas_.installEventFilter(this);
  for (const auto& [control, widget] : canvas_.widgets) widget->installEventFilter(this);
  canvas_.paintOver = [this](QPainter& painter) { Paint(painter); };
  OrderTabs();
  connect(qApp, &QApplication::focusChanged, this, [this] { ShowRing(); });
}

// The buttons for which digits stand come before the others.
void Keyboard::OrderTabs() {
  std::vector<QWidget*> order{&canvas_};
  const auto take = [&](const Control& control) {
    QWidget* widget = canvas_.WidgetOf(control);
    if (widget && std::ranges::find(order, widget) == order.end()) order.push_back(widget);
  };
  for (const Visual* choice : Choices()) take(*choice);
  for (const Control* control : canvas_.form.Controls()) take(*control);
  for (size_t i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

// --- What has happened ---------------------------------------------------------------------------

void Keyboard::Leave() {
  guide_ = nullptr;
  moved = nullptr;
}

void Keyboard::Settle() {
  if (!guide_) return;
  const bool wasOpen = open_;
  open_ = guide_->InGame();
  keys_.Settle();
  canvas_.setFocusPolicy(open_ ? Qt::StrongFocus : Qt::NoFocus);
  if (open_ && !wasOpen) FocusBoard();
  ShowRing();
}

bool Keyboard::HoldsFocus() const { return guide_ && open_ && boardHasFocus_; }

void Keyboard::FocusBoard() {
  if (!open_) return;
  boardHasFocus_ = true;
  if (window_.focusWidget() != &canvas_) canvas_.setFocus(Qt::OtherFocusReason);
}

bool Keyboard::eventFilter(QObject* watched, QEvent* event) {
  if (!guide_) return false;
  if (event->type() == QEvent::FocusIn && watched != &window_) boardHasFocus_ = watched == &canvas_;
  switch (event->type()) {
    case QEvent::ShortcutOverride:  // any key, before menus and access keys get it
      keysUsed_ = true;
      ShowRing();
      return false;
    case QEvent::KeyPress: {
      QWidget* const focus = window_.focusWidget();
      if (watched != (focus ? focus : &window_)) return false;
      keysUsed_ = true;
      const bool taken = Take(static_cast<QKeyEvent&>(*event), focus);
      ShowRing();
      return taken;
    }
    case QEvent::MouseButtonPress:
      keysUsed_ = false;
      keys_.Press(watched == &canvas_ ? canvas_.At(static_cast<QMouseEvent*>(event)->position().toPoint())
                                      : nullptr);
      ShowRing();
      return false;
    case QEvent::Shortcut:
      return TakeShared(watched, event);
    default:
      return false;
  }
}

// Where several buttons have one access key the first one is meant.
bool Keyboard::TakeShared(QObject* watched, QEvent* event) {
  const auto& shortcut = static_cast<QShortcutEvent&>(*event);
  if (!shortcut.isAmbiguous() || !qobject_cast<QPushButton*>(watched)) return false;
  for (QWidget* widget = canvas_.nextInFocusChain(); widget && widget != &canvas_;
       widget = widget->nextInFocusChain()) {
    auto* button = qobject_cast<QPushButton*>(widget);
    if (!button || !button->isVisible() || !button->isEnabled() || button->shortcut() != shortcut.key())
      continue;
    button->setFocus(Qt::ShortcutFocusReason);
    button->animateClick();
    return true;
  }
  return false;
}

// --- Keys ----------------------------------------------------------------------------------------

bool Keyboard::Take(const QKeyEvent& key, const QWidget* focus) {
  if (TakesText(focus)) return false;
  const Qt::KeyboardModifiers held = key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
  switch (key.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
      return (held == Qt::NoModifier || held == Qt::ControlModifier) && TakeArrow(key);
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (held != Qt::NoModifier || focus != &canvas_ || !open_) return false;
      if (!key.isAutoRepeat()) Click([this] { return keys_.ClickHere(); });
      return true;
    default:
      return held == Qt::NoModifier && TakeWord(WordFor(key), key.isAutoRepeat());
  }
}

// By the character; where that is neither letter nor digit and means nothing here, by the key's place.
std::string Keyboard::WordFor(const QKeyEvent& key) const {
  const std::string word = WordOf(key);
  const bool plain = !word.empty() && std::isalnum(static_cast<unsigned char>(word[0]));
  const bool shifted = !word.empty() && key.modifiers() & Qt::ShiftModifier;
  if (keys_.Knows(word)) return word;
  const char latin = plain || shifted ? 0 : LatinAt(key);
  return latin ? std::string(1, latin) : word;
}

bool Keyboard::TakeWord(const std::string& word, bool again) {
  const BoardKeys::Heard heard = keys_.Hear(word, again, clock_.elapsed());
  if (!heard.means || again) return heard.means;
  FocusBoard();
  if (!heard.clicks.empty()) Click([this, keys = heard.clicks] { return keys_.ClickFor(keys); });
  return true;
}

void Keyboard::Click(std::function<Control*()> meant) {
  const QPointer<Keyboard> alive = this;
  deeds_.Deliver(canvas_.form, [this, alive, meant = std::move(meant)] {
    if (!alive || !guide_) return;
    Settle();
    Control* const control = meant();
    ShowRing();
    if (control) player::Click(*control);
  });
}

// --- The cursor ----------------------------------------------------------------------------------

bool Keyboard::TakeArrow(const QKeyEvent& key) {
  if (!open_) return false;
  const bool showed = boardHasFocus_;
  FocusBoard();
  const int x = (key.key() == Qt::Key_Right) - (key.key() == Qt::Key_Left);
  const int y = (key.key() == Qt::Key_Down) - (key.key() == Qt::Key_Up);
  if (showed)
    keys_.Walk(x, y, key.modifiers() & Qt::ControlModifier);
  else
    keys_.Forget();
  return true;
}

void Keyboard::GoTo(const Visual& control) {
  if (!keys_.GoTo(&control)) return;
  keysUsed_ = true;
  FocusBoard();
  ShowRing();
}

const Visual* Keyboard::Cursor() const {
  const Visual* const cursor = Stands();
  return keysUsed_ && cursor && IsShown(*cursor) ? cursor : nullptr;
}

QRect Keyboard::Ring() const {
  if (!keysUsed_) return {};
  if (const Visual* cursor = Cursor()) return canvas_.PlaceOf(*cursor);
  const QWidget* focus = window_.focusWidget();
  if (!focus || focus == &canvas_ || !canvas_.isAncestorOf(focus) || !focus->isVisible()) return {};
  return {canvas_.ToBoard(focus->pos()), focus->size() / canvas_.Zoom()};
}

void Keyboard::ShowRing() {
  if (moved) moved();
  const QRect ring = Ring();
  if (ring == ring_) return;
  for (const QRect& each : {ring_, ring})
    if (!each.isNull()) canvas_.Repaint(each.adjusted(-kRingReach, -kRingReach, kRingReach, kRingReach));
  ring_ = ring;
}

void Keyboard::Paint(QPainter& painter) {
  const QRect ring = Ring();
  // A card that goes while a handler waits takes the ring along, which is larger than what is painted now.
  if (ring != ring_) QTimer::singleShot(0, this, [this] { ShowRing(); });
  if (ring.isNull()) return;
  const double out = 0.5 + kEdgeWidth + kRingWidth / 2;
  const QRectF path = QRectF(ring).adjusted(-out, -out, out, out);
  painter.setBrush(Qt::NoBrush);
  for (const auto& [colour, width] :
       {std::pair{kRingEdge, kRingWidth + 2 * kEdgeWidth}, std::pair{kRingGold, kRingWidth}}) {
    painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin));
    painter.drawRoundedRect(path, 6, 6);
  }
}
