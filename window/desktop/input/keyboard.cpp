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

constexpr int kPatience = 2500;  // milliseconds between two keys that belong together

bool TakesText(const QWidget* widget) {
  return widget && (widget->inherits("QLineEdit") || widget->inherits("QPlainTextEdit") ||
                    widget->inherits("QComboBox") || widget->inherits("QAbstractItemView"));
}

bool IsDigits(const std::string& keys) {
  return std::ranges::all_of(keys, [](char key) { return key >= '0' && key <= '9'; });
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
      rows_(guide.Keys()) {
  window_.installEventFilter(this);
  canvas_.installEventFilter(this);
  for (const auto& [control, widget] : canvas_.widgets) widget->installEventFilter(this);
  canvas_.paintOver = [this](QPainter& painter) { Paint(painter); };
  OrderTabs();
  connect(qApp, &QApplication::focusChanged, this, [this] { ShowRing(); });
}

std::vector<Visual*> Keyboard::Choices() const {
  std::vector<Visual*> choices;
  for (const KeyRow& row : rows_)
    for (const KeyClick& click : row.clicks)
      if (IsDigits(click.keys))
        if (Control* control = Meant(click); control && control->kind == Control::Kind::CommandButton)
          choices.push_back(static_cast<Visual*>(control));
  return choices;
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
  spots_ = guide_->Spots();
  std::erase_if(selected_, [&](const Visual* each) {
    return std::ranges::none_of(spots_, [&](const Spot& s) { return s.control == each && s.selected; });
  });
  for (const Spot& spot : spots_)
    if (spot.selected && std::ranges::find(selected_, spot.control) == selected_.end())
      selected_.push_back(spot.control);
  canvas_.setFocusPolicy(open_ ? Qt::StrongFocus : Qt::NoFocus);
  if (open_ && !wasOpen) FocusBoard();
  if (spots_.empty()) {
    begun_.clear();
    cursor_ = nullptr;
  } else {
    const auto stands = [this](const Spot& spot) { return spot.control == cursor_; };
    if (std::ranges::none_of(spots_, stands)) {
      // The nearest to where it stood; at first the first one.
      const Spot* best = nullptr;
      int least = 0;
      for (const Spot& spot : spots_) {
        const QPoint way = canvas_.PlaceOf(*spot.control).center() - cursorPlace_.center();
        const int far = cursorPlace_.isNull() ? 0 : way.manhattanLength();
        if (!best || spot.playable > best->playable || (spot.playable == best->playable && far < least)) {
          best = &spot;
          least = far;
        }
      }
      cursor_ = best->control;
    }
    cursorPlace_ = canvas_.PlaceOf(*cursor_);
  }
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
      begun_.clear();
      if (watched == &canvas_) {
        const Visual* at = canvas_.At(static_cast<QMouseEvent*>(event)->position().toPoint());
        if (std::ranges::any_of(spots_, [at](const Spot& spot) { return spot.control == at; })) MoveTo(at);
      }
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
      if (!key.isAutoRepeat()) ClickCursor();
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
  for (const KeyRow& row : rows_)
    for (const KeyClick& click : row.clicks)
      if (click.keys == word) return word;
  const char latin = plain || shifted ? 0 : LatinAt(key);
  return latin ? std::string(1, latin) : word;
}

bool Keyboard::TakeWord(const std::string& word, bool again) {
  if (word.empty()) return false;
  if (!begun_.empty() && sinceBegun_.hasExpired(kPatience)) begun_.clear();
  const std::string keys = IsDigits(word) ? begun_ + word : word;
  const KeyClick* longer = nullptr;
  bool known = false;
  for (const KeyRow& row : rows_)
    for (const KeyClick& click : row.clicks) {
      known = known || click.keys == keys;
      if (!longer && IsDigits(click.keys) && click.keys.size() > keys.size() && click.keys.starts_with(keys))
        longer = &click;
    }
  if (!known && !longer) {
    const bool wasBegun = !begun_.empty();
    begun_.clear();
    return wasBegun;
  }
  if (again) return true;
  begun_.clear();
  if (!known) {  // the cursor shows which row it will be
    begun_ = keys;
    sinceBegun_.start();
    if (const Control* control = Meant(*longer)) MoveTo(static_cast<const Visual*>(control));
    FocusBoard();
    return true;
  }
  Do(keys);
  return true;
}

// The click that the keys stand for, as the board is when its turn comes.
void Keyboard::Do(const std::string& keys) {
  FocusBoard();
  const QPointer<Keyboard> alive = this;
  deeds_.Deliver(canvas_.form, [this, alive, keys] {
    if (!alive || !guide_) return;
    Settle();
    for (const KeyRow& row : rows_)
      for (const KeyClick& click : row.clicks) {
        Control* control = click.keys == keys ? Meant(click) : nullptr;
        if (!control || !player::WhyNot(*control).empty()) continue;
        if (keys == "Escape" && control == guide_->Pause() && guide_->Paused()) continue;
        if (click.control == kNextOfRank) ranks_[keys[0]] = static_cast<Visual*>(control);
        const bool follows = click.control == kNextOfRank || IsDigits(keys);
        for (const Spot& spot : spots_)
          if (follows && spot.control == control) MoveTo(spot.control);
        return player::Click(*control);
      }
  });
}

Control* Keyboard::Meant(const KeyClick& click) const {
  if (click.control == kNextOfRank) return NextOfRank(click.keys[0]);
  if (click.control == kLastSelected) return LastSelected();
  const size_t bracket = click.control.find('(');
  const int index = bracket == std::string::npos ? -1 : std::stoi(click.control.substr(bracket + 1));
  return canvas_.form.find(click.control.substr(0, bracket), index);
}

// The first one behind the one clicked last; selected ones come last. Where none can be played the first that
// shows is meant, and the game refuses it.
Visual* Keyboard::NextOfRank(char key) const {
  const char rank = key == '0' ? 'T' : key;
  const auto last = ranks_.find(key);
  size_t start = 0;
  for (size_t i = 0; i < spots_.size(); ++i)
    if (last != ranks_.end() && spots_[i].control == last->second) start = i + 1;
  const auto find = [&](bool playable, bool selected) -> Visual* {
    for (size_t i = 0; i < spots_.size(); ++i) {
      const Spot& spot = spots_[(start + i) % spots_.size()];
      if (spot.rank == rank && spot.playable == playable && spot.selected == selected) return spot.control;
    }
    return nullptr;
  };
  if (Visual* fresh = find(true, false)) return fresh;
  if (Visual* chosen = find(true, true)) return chosen;
  return find(false, false);
}

Visual* Keyboard::LastSelected() const {
  if (selected_.empty()) return nullptr;
  if (Visual* control = guide_->LetsGo()) return control;
  return const_cast<Visual*>(selected_.back());
}

void Keyboard::ClickCursor() {
  const QPointer<Keyboard> alive = this;
  deeds_.Deliver(canvas_.form, [this, alive] {
    if (!alive || !guide_) return;
    Settle();
    for (const Spot& spot : spots_)
      if (spot.control == cursor_ && player::WhyNot(*spot.control).empty())
        return player::Click(*spot.control);
  });
}

// --- The cursor ----------------------------------------------------------------------------------

bool Keyboard::TakeArrow(const QKeyEvent& key) {
  if (!open_) return false;
  begun_.clear();
  const bool showed = boardHasFocus_;
  FocusBoard();
  if (!cursor_ || !showed) return true;
  const QPoint ahead(key.key() == Qt::Key_Right  ? 1
                     : key.key() == Qt::Key_Left ? -1
                                                 : 0,
                     key.key() == Qt::Key_Down ? 1
                     : key.key() == Qt::Key_Up ? -1
                                               : 0);
  const QPoint from = canvas_.PlaceOf(*cursor_).center();
  const Visual* nearest = nullptr;
  int least = 0;
  for (const Spot& spot : spots_) {
    if (spot.control == cursor_ || !(spot.playable || key.modifiers() & Qt::ControlModifier)) continue;
    const QPoint way = canvas_.PlaceOf(*spot.control).center() - from;
    const int along = QPoint::dotProduct(way, ahead), aside = way.manhattanLength() - std::abs(along);
    if (along < 4) continue;
    if (const int cost = along + 3 * aside; !nearest || cost < least) {
      nearest = spot.control;
      least = cost;
    }
  }
  if (nearest) MoveTo(nearest);
  return true;
}

void Keyboard::GoTo(const Visual& control) {
  if (std::ranges::none_of(spots_, [&](const Spot& spot) { return spot.control == &control; })) return;
  keysUsed_ = true;
  FocusBoard();
  MoveTo(&control);
}

void Keyboard::MoveTo(const Visual* control) {
  if (!control) return;
  cursor_ = control;
  cursorPlace_ = canvas_.PlaceOf(*control);
  ShowRing();
}

const Visual* Keyboard::Cursor() const {
  return keysUsed_ && HoldsFocus() && cursor_ && IsShown(*cursor_) ? cursor_ : nullptr;
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
