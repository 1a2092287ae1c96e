#include "window/desktop/input/hurry.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QStyleHints>
#include <QTimer>
#include <QWindow>
#include <algorithm>

#include "window/desktop/input/events.h"
#include "window/desktop/input/key_again.h"
#include "window/desktop/painting/canvas.h"
#include "window/desktop/painting/room.h"
#include "window/desktop/painting/style.h"
#include "window/platform.h"

namespace {

constexpr int kPatience = 1000;    // milliseconds that pass before the player is offered to go on
constexpr size_t kMostKept = 500;  // more than hands can do in a wait
constexpr int kMostRounds = 100;

bool IsPress(QEvent::Type type) {
  return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
}

bool IsKey(QEvent::Type type) {
  return type == QEvent::KeyPress || type == QEvent::KeyRelease || type == QEvent::ShortcutOverride;
}

// A window that a box or dialog stands before takes no input.
bool IsBlocked(const QWindow& window) {
  const QWindow* modal = QGuiApplication::modalWindow();
  return modal && modal != &window && !modal->isAncestorOf(&window, QWindow::IncludeTransients);
}

}  // namespace

Hurry::Hurry(const Platform& platform, std::function<void()> settle, std::function<Canvas*()> board)
    : platform_(platform), settle_(std::move(settle)), board_(std::move(board)) {
  qApp->installEventFilter(this);
}

Hurry::~Hurry() { delete word_; }

Hurry::Handler::Handler(Hurry& hurry) : hurry_(hurry), outer_(std::exchange(hurry.state_, {})) {}

Hurry::Handler::~Handler() {
  hurry_.Anew();
  hurry_.state_ = outer_;
}

bool Hurry::TakePress() {
  if (!loop_) return false;
  state_.hurried = true;
  loop_->quit();
  return true;
}

void Hurry::LetThrough() {
  delete word_;
  if (state_.hurried) Drain();
  state_.delivering = false;
}

void Hurry::Anew() {
  LetThrough();
  state_ = {};
}

// --- Waiting -------------------------------------------------------------------------------------

// The clock by which windows wait.
long long Hurry::Now() const { return platform_.front.Milliseconds(); }

void Hurry::Pause(int milliseconds) {
  if (platform_.HasEnded()) return;
  settle_();
  QEventLoop loop;
  if (milliseconds <= 0) {
    loop.processEvents(QEventLoop::ExcludeUserInputEvents);
  } else {
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
  }
  // Else the input that was held back might lie there until something else happens.
  QAbstractEventDispatcher::instance()->wakeUp();
}

void Hurry::Sleep(int milliseconds) {
  if (state_.hurried || platform_.HasEnded()) return;
  QElapsedTimer taken;
  taken.start();
  if (state_.blocked == 0) state_.began = Now();
  const int alone = std::clamp(kPatience - state_.blocked, 0, std::max(0, milliseconds));
  if (alone > 0 || milliseconds <= 0) Pause(alone);
  if (alone < milliseconds) LookWhileWaiting(milliseconds - alone);
  if (milliseconds > 0) state_.blocked += std::max(1, static_cast<int>(taken.elapsed()));
}

void Hurry::LookWhileWaiting(int milliseconds) {
  if (!word_) ShowWord();
  settle_();
  PlaceWord();
  QEventLoop loop;
  QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
  loop_ = &loop;
  looking_ = true;
  QAbstractEventDispatcher::instance()->wakeUp();  // for what was kept back so far
  loop.exec();
  looking_ = false;
  loop_ = nullptr;
  if (state_.hurried) delete word_;
}

// What was pressed while the rest of the handler ran was meant for what it ran through.
void Hurry::Drain() {
  QEventLoop loop;
  looking_ = true;
  for (int i = 0; i < kMostRounds && !platform_.HasEnded() && loop.processEvents(); ++i) continue;
  looking_ = false;
}

void Hurry::ShowWord() {
  Canvas* const front = board_();
  if (!front) return;
  Canvas& board = *front;
  word_ = new QLabel("Click to skip", &board);
  word_->setObjectName("hurry");
  word_->setAttribute(Qt::WA_TransparentForMouseEvents);
  QFont font = style::Letters(11, true);
  font.setPixelSize(std::lround(font.pixelSize() * board.Zoom()));
  word_->setFont(font);
  word_->setStyleSheet(QString("QLabel { color: %1; background: rgba(13, 11, 14, 215); border: 1px solid %2;"
                               " border-radius: %3px; padding: %4px %5px }")
                           .arg(style::kIvory.name(), style::kGold.name())
                           .arg(std::lround(9 * board.Zoom()))
                           .arg(std::lround(3 * board.Zoom()))
                           .arg(std::lround(14 * board.Zoom())));
  word_->adjustSize();
  PlaceWord();
  word_->show();
  word_->raise();
}

// Where it hides nothing that can be read or pressed; what is said may have changed since it came.
void Hurry::PlaceWord() {
  const Canvas* const board = board_();
  if (!board || !word_ || word_->parentWidget() != board) return;
  const double zoom = board->Zoom();
  const QRect room = RoomForHint(*board, (QSizeF(word_->size()) / zoom).toSize() + QSize(1, 1));
  word_->move((QPointF(room.topLeft()) * zoom).toPoint());
}

// --- Input ---------------------------------------------------------------------------------------

// Events carry the time of another clock. The one that came quickest so far tells how far ahead ours is.
void Hurry::Learn(const QEvent& event) {
  if (!event.isInputEvent()) return;
  const auto time = static_cast<long long>(static_cast<const QInputEvent&>(event).timestamp());
  if (time == 0) return;
  constexpr long long kStarted = 5000;  // anew, or gone round
  const long long ahead = Now() - time;
  if (!ahead_ || ahead < *ahead_ || ahead > *ahead_ + kStarted) ahead_ = ahead;
}

// Not the second press of a double click, nor one that was under way when the wait began.
bool Hurry::IsDeliberate(const QEvent& event) const {
  const auto time = static_cast<long long>(static_cast<const QInputEvent&>(event).timestamp());
  if (state_.hurried || time == 0 || !ahead_) return true;
  return time + *ahead_ >= state_.began + QGuiApplication::styleHints()->mouseDoubleClickInterval();
}

bool Hurry::Hurries(const QEvent& event) const {
  if (IsPress(event.type())) return IsDeliberate(event);
  if (event.type() != QEvent::KeyPress) return false;
  const auto& key = static_cast<const QKeyEvent&>(event);
  constexpr auto kOthers = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  return (key.key() == Qt::Key_Space || key.key() == Qt::Key_Escape) && !(key.modifiers() & kOthers) &&
         !key.isAutoRepeat() && IsDeliberate(event);
}

// Whether the event is the rest of a press that was taken as hurry.
bool Hurry::Swallow(QEvent& event) {
  if (IsPress(event.type()) || event.type() == QEvent::MouseButtonRelease) {
    const bool known = buttons_.erase(static_cast<QMouseEvent&>(event).button()) > 0;
    return known && event.type() == QEvent::MouseButtonRelease;
  }
  if (!IsKey(event.type())) return false;
  const auto& key = static_cast<const QKeyEvent&>(event);
  if (!keys_.contains(key.key())) return false;
  if (key.isAutoRepeat()) {
    event.accept();
    return true;
  }
  if (event.type() == QEvent::ShortcutOverride) return false;
  keys_.erase(key.key());
  return event.type() == QEvent::KeyRelease;
}

bool Hurry::eventFilter(QObject* watched, QEvent* event) {
  if (!watched->isWindowType() || !event->spontaneous() || !input::IsInput(event->type())) return false;
  if (Swallow(*event)) return true;
  const bool own =
      !looking_ && sent_ && IsKey(event->type()) && static_cast<QKeyEvent*>(event)->key() == sent_->key();
  if (own && event->type() == sent_->type()) {  // struck again it doesn't tell its place any more
    const std::unique_ptr<QEvent> whole(sent_->clone());
    QCoreApplication::sendEvent(watched, whole.get());
    event->setAccepted(whole->isAccepted());
    return true;
  }
  if (own || (!looking_ && kept_.empty())) {
    if (!own) Learn(*event);
    return false;
  }
  if (event->type() == QEvent::ShortcutOverride) {
    event->accept();  // no shortcut now
    return true;
  }
  if (looking_ && Hurries(*event)) {
    if (IsPress(event->type()))
      buttons_.insert(static_cast<QMouseEvent*>(event)->button());
    else
      keys_.insert(static_cast<QKeyEvent*>(event)->key());
    state_.hurried = true;
    if (loop_) loop_->quit();
    return true;
  }
  Keep(static_cast<QWindow&>(*watched), *event);
  event->setAccepted(event->type() != QEvent::Close);
  return true;
}

void Hurry::Keep(QWindow& window, const QEvent& event) {
  const bool move = event.type() == QEvent::MouseMove;
  if (move && !kept_.empty() && kept_.back().window == &window &&
      kept_.back().event->type() == QEvent::MouseMove)
    kept_.pop_back();  // only where it ends counts
  if (kept_.size() < kMostKept) kept_.push_back({&window, std::unique_ptr<QEvent>(event.clone())});
}

bool Hurry::DeliverOne() {
  if (kept_.empty() || state_.delivering) return false;
  const Kept next = std::move(kept_.front());
  kept_.pop_front();
  if (!next.window || IsBlocked(*next.window)) return true;
  state_.delivering = true;
  if (IsKey(next.event->type())) {
    const auto& key = static_cast<const QKeyEvent&>(*next.event);
    sent_ = &key;
    StrikeAgain(*next.window, key);
    sent_ = nullptr;
  } else {
    QCoreApplication::sendEvent(next.window, next.event.get());
  }
  state_.delivering = false;
  return true;
}
