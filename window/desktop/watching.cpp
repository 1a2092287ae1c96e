#include "window/desktop/watching.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPainter>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "window/desktop/input/events.h"
#include "window/desktop/painting/canvas.h"
#include "window/desktop/painting/style.h"
#include "window/desktop/view/boxes.h"
#include "window/desktop/view/form_window.h"

namespace {

constexpr int kSlice = 15;          // milliseconds
constexpr double kHandShows = 700;  // before the deed

}  // namespace

// What the viewer does to the game's windows doesn't get there; keys steer the bar.
class WatchingDesktop::Guard : public QObject {
 public:
  explicit Guard(WatchBar& bar) : bar_(bar) { qApp->installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (!watched->isWindowType() || !event->spontaneous() || !input::IsInput(event->type())) return false;
    if (watched == static_cast<QObject*>(bar_.windowHandle())) return false;
    if (event->type() == QEvent::KeyPress) bar_.Take(*static_cast<QKeyEvent*>(event));
    if (event->type() == QEvent::Close) bar_.close();
    event->setAccepted(event->type() != QEvent::Close);
    return true;
  }

 private:
  WatchBar& bar_;
};

// Where the recorded player is about to click.
class WatchingDesktop::Hand : public QWidget {
 public:
  Hand(QWidget* window, QPoint middle) : QWidget(window) {
    const int size = std::lround(kSize * style::ZoomOf(window));
    setObjectName("hand");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    resize(size, size);
    move(middle - QPoint(size / 2, size / 2));
    show();
    raise();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double line = width() / 11.0;
    const QRectF ring = QRectF(rect()).adjusted(line, line, -line, -line);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(style::kDeepInk, 2 * line));
    painter.drawEllipse(ring);
    painter.setPen(QPen(style::kGold, line));
    painter.drawEllipse(ring);
  }

 private:
  static constexpr int kSize = 34;
};

WatchingDesktop::WatchingDesktop(const DesktopFolders& folders, PictureFiles pictures,
                                 const Recording& recording)
    : DesktopFrontEnd(folders, std::move(pictures), Operator::Recording),
      bar_(recording),
      guard_(std::make_unique<Guard>(bar_)) {
  looks.keepsView = false;
  looks.Alter([](View& view) { view.fullScreen = false; });
  style::SetZoom(bar_, looks.Now().zoom / 100.0);
  bar_.Fit();
  bar_.left = [this] { left_ = true; };
  bar_.goTo = [this](const Recording::Round& round) {
    goesBack_ = round.step <= step_;
    target_ = round.step;
  };
}

WatchingDesktop::~WatchingDesktop() = default;

void WatchingDesktop::Play(const std::function<void()>& once) {
  bar_.show();
  while (!left_) {
    goesBack_ = false;
    step_ = 0;
    at_ = 0;
    owed_ = reading_ = 0;
    bar_.ShowComment("");
    const bool fast = target_ > 0;
    looks.HoldCards(fast);
    try {
      once();
    } catch (const Elsewhere&) {
    }
  }
  platform.End();
}

void WatchingDesktop::LeaveIfAsked() {
  if (!left_ && !goesBack_) return;
  delete hand_;
  next_ = {};
  ForgetWindows();
  throw Elsewhere{};
}

void WatchingDesktop::Pass(long long milliseconds, long long at, int step, bool isDeed) {
  const bool wasFast = IsFast();
  at_ = at;
  step_ = step;
  if (stepping_ && stepped_) {
    stepping_ = stepped_ = false;
    bar_.SetPaused(true);
  }
  if (stepping_ && isDeed) stepped_ = true;
  ++paintbox.occasion.number;
  paintbox.occasion.clicked = nullptr;
  if (IsFast()) {
    if (!sinceFast_.isValid() || sinceFast_.elapsed() > 4 * kSlice) {
      QCoreApplication::processEvents();
      sinceFast_.start();
      LeaveIfAsked();
    }
    return;
  }
  if (wasFast) {  // what has come meanwhile isn't seen to move
    SettleBoards();
    looks.HoldCards(false);
    milliseconds = 0;
  }
  if (next_.kind != Event::Kind::None) SettleWindows();  // no handler is in the middle of something
  Wait(static_cast<double>(std::clamp(milliseconds, 0ll, 3'600'000ll)));
  delete hand_;
  next_ = {};
}

// Nobody sits through long thoughts, but the clock of the game is seen to run: it ticks.
void WatchingDesktop::Wait(double milliseconds) {
  if (IsFast()) return;
  SettleBoards();
  owed_ = std::max(owed_, -static_cast<double>(kSlice) * bar_.Speed()) + milliseconds;
  const double all = owed_;
  QElapsedTimer taken;
  taken.start();
  while (true) {
    if (bar_.TakeStep()) {
      bar_.SetPaused(false);
      stepping_ = true;
    }
    LeaveIfAsked();
    if (IsFast()) {
      looks.HoldCards(true);
      owed_ = 0;
      return;
    }
    if (stepping_) owed_ = std::min(owed_, 0.0);
    if (!bar_.Paused() && owed_ <= 0 && reading_ <= 0) break;
    if (owed_ <= kHandShows) ShowHand();
    bar_.ShowPlace(at_ + std::llround(std::clamp(all - owed_, 0.0, all)));
    QEventLoop loop;
    const double left = std::max(owed_, reading_) / bar_.Speed();
    QTimer::singleShot(bar_.Paused() ? kSlice : std::clamp(static_cast<int>(left), 1, kSlice),
                       Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
    const double passed = static_cast<double>(taken.restart()) * bar_.Speed();
    if (bar_.Paused()) continue;
    // Who reads lets the game wait.
    if (reading_ > 0)
      reading_ -= passed;
    else
      owed_ -= passed;
  }
}

void WatchingDesktop::Comes(const Event& event) { next_ = event; }

void WatchingDesktop::ShowHand() {
  if (hand_) return;
  if (next_.kind == Event::Kind::Answer) {
    QMessageBox* const box = StandingBox();
    QWidget* const button = box ? box->button(ButtonOf(next_.answer)) : nullptr;
    if (button) hand_ = new Hand(box, button->mapTo(box, button->rect().center()));
    return;
  }
  if ((next_.kind != Event::Kind::Click && next_.kind != Event::Kind::DblClick) || !next_.control) return;
  FormWindow* const window = WindowOf(next_.control->form);
  if (!window || !window->isVisible()) return;
  if (QWidget* widget = window->WidgetOf(*next_.control)) {
    hand_ = new Hand(window, widget->mapTo(window, widget->rect().center()));
  } else if (next_.control->kind == Control::Kind::Image ||
             next_.control->kind == Control::Kind::PictureBox ||
             next_.control->kind == Control::Kind::Label || next_.control->kind == Control::Kind::Shape) {
    if (const auto spot = window->Board().SpotOf(static_cast<const Visual&>(*next_.control)))
      hand_ = new Hand(window, window->Board().mapTo(window, *spot));
  }
}

void WatchingDesktop::Say(const std::string& comment) {
  constexpr double kLetter = 55, kLeast = 1500;  // milliseconds of a slow reader
  if (IsFast()) return;
  const QString text = QString::fromStdString(comment);
  bar_.ShowComment(text);
  if (FormWindow* front = FrontWindow()) Ears().Say(front->Board(), text);
  reading_ = kLeast + kLetter * static_cast<double>(text.size());
}

void WatchingDesktop::AtEnd() {
  target_ = 0;
  bar_.ShowPlace(at_);
  bar_.SetPaused(true);
  stepping_ = stepped_ = false;
  const bool hasComment = reading_ > 0;
  if (!hasComment) bar_.ShowComment("The recording ends here. Page Up and Home go back.");
  // Going on from here is going back.
  while (true) {
    Wait(0);
    if (!bar_.Paused()) {
      target_ = 0;
      goesBack_ = true;
    }
  }
}

void WatchingDesktop::FormShown(Form& form) {
  FormWindow* const window = WindowOf(form);
  // From the selector the game was opened; here it already is.
  if (!window || (window->GetGuide() && window->GetGuide()->IsChoice())) return;
  DesktopFrontEnd::FormShown(form);
  if (std::exchange(placed_, true)) return;
  bar_.PlaceBelow(*window);
  constexpr int kFramed = 300;  // milliseconds until the frame is there
  QTimer::singleShot(kFramed, window, [this, window] { bar_.PlaceBelow(*window); });
}

// Windows stand where this screen has room for them.
void WatchingDesktop::PropertyChanged(Control& control, Prop prop) {
  const bool moves = control.kind == Control::Kind::Form && (prop == Prop::Left || prop == Prop::Top);
  if (moves && control.form.Visible) return;
  DesktopFrontEnd::PropertyChanged(control, prop);
}

void WatchingDesktop::PlayWave(const std::string& path) {
  if (!IsFast()) DesktopFrontEnd::PlayWave(path);
}
