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

constexpr int kSlice = 15;  // milliseconds

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
      watching(recording, *this),
      bar_(watching),
      guard_(std::make_unique<Guard>(bar_)) {
  looks.keepsView = false;
  looks.Alter([](View& view) { view.fullScreen = false; });
  style::SetZoom(bar_, looks.Now().zoom / 100.0);
  bar_.Fit();
}

WatchingDesktop::~WatchingDesktop() = default;

void WatchingDesktop::Play(const std::function<void()>& once) {
  bar_.show();
  watching.Play(once);
  platform.End();
}

void WatchingDesktop::StepBegins(bool fast) {
  ++paintbox.occasion.number;
  paintbox.occasion.clicked = nullptr;
  if (!fast || (sinceFast_.isValid() && sinceFast_.elapsed() <= 4 * kSlice)) return;
  QCoreApplication::processEvents();
  sinceFast_.start();
}

void WatchingDesktop::Rest(double milliseconds) {
  QEventLoop loop;
  const int slice = milliseconds < 0 ? kSlice : std::clamp(static_cast<int>(milliseconds), 1, kSlice);
  QTimer::singleShot(slice, Qt::PreciseTimer, &loop, &QEventLoop::quit);
  loop.exec();
}

void WatchingDesktop::Point(const Event& next) {
  if (next.kind == Event::Kind::None) delete hand_;
  if (hand_) return;
  if (next.kind == Event::Kind::Answer) {
    QMessageBox* const box = StandingBox();
    QWidget* const button = box ? box->button(ButtonOf(next.answer)) : nullptr;
    if (button) hand_ = new Hand(box, button->mapTo(box, button->rect().center()));
    return;
  }
  if ((next.kind != Event::Kind::Click && next.kind != Event::Kind::DblClick) || !next.control) return;
  FormWindow* const window = WindowOf(next.control->form);
  if (!window || !window->isVisible()) return;
  if (QWidget* widget = window->WidgetOf(*next.control)) {
    hand_ = new Hand(window, widget->mapTo(window, widget->rect().center()));
  } else if (next.control->kind == Control::Kind::Image || next.control->kind == Control::Kind::PictureBox ||
             next.control->kind == Control::Kind::Label || next.control->kind == Control::Kind::Shape) {
    if (const auto spot = window->Board().SpotOf(static_cast<const Visual&>(*next.control)))
      hand_ = new Hand(window, window->Board().mapTo(window, *spot));
  }
}

void WatchingDesktop::Speak(const std::string& comment) {
  if (FormWindow* front = FrontWindow()) Ears().Say(front->Board(), QString::fromStdString(comment));
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
  if (!watching.IsFast()) DesktopFrontEnd::PlayWave(path);
}
