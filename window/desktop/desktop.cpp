#include "window/desktop/desktop.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDateTime>
#include <QEventLoop>
#include <QIcon>
#include <QProcess>
#include <QScreen>
#include <QStandardPaths>
#include <algorithm>
#include <cmath>
#include <iostream>
#include <utility>

#include "history/history.h"
#include "window/desktop/painting/canvas.h"
#include "window/desktop/painting/lettering.h"
#include "window/desktop/painting/style.h"
#include "window/desktop/view/boxes.h"
#include "window/desktop/view/form_window.h"

namespace fs = std::filesystem;

DesktopFrontEnd::DesktopFrontEnd(const DesktopFolders& folders, PictureFiles pictures, Operator by)
    : paintbox{Pictures(std::move(pictures), folders.own, folders.installed / "pictures")},
      looks(folders.view, paintbox),
      folders_(folders),
      by_(by),
      media_(folders.own, folders.installed),
      hurry_(
          platform, [this] { SettleBoards(); },
          [this] {
            FormWindow* const window = windows_.Front();
            return window ? &window->Board() : nullptr;
          }) {
  qApp->installEventFilter(&latinKeys_);
  looks.HoldCards(by == Operator::Script);
  looks.changed = [this] { ApplyView(); };
  clock_.start();
  media_.SetVolumes(looks.Now().waveVolume, looks.Now().musicVolume);
  timer_.setTimerType(Qt::PreciseTimer);
  timer_.setSingleShot(true);
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { ServeTick(); });
  clockTimer_.setSingleShot(true);
  QObject::connect(&clockTimer_, &QTimer::timeout, &timer_, [this] { ShowClock(); });
  QGuiApplication::setQuitOnLastWindowClosed(false);
  WatchScreens();
}

DesktopFrontEnd::~DesktopFrontEnd() { windows_.Clear(); }

void DesktopFrontEnd::ForgetWindows() {
  for (BoxWindow* box : boxes_) box->hide();
  windows_.Clear();
  paintbox.occasion.clicked = nullptr;
}

// Just after the next minute has begun.
void DesktopFrontEnd::ShowClock() {
  constexpr int kMinute = 60'000, kJustAfter = 20;
  for (const auto& [form, window] : windows_) window->ApplyClock();
  clockTimer_.start(kMinute - QTime::currentTime().msecsSinceStartOfDay() % kMinute + kJustAfter);
}

int DesktopFrontEnd::Run(const std::function<void()>& start) {
  QTimer::singleShot(0, &timer_, [this, start] {
    Run(nullptr, start);
    if (!platform.HasEnded()) Serve();
    if (platform.HasEnded()) Quit();
  });
  QApplication::exec();
  return status_;
}

// --- Handlers, one at a time ---------------------------------------------------------------------

void DesktopFrontEnd::Run(Form* form, const std::function<void()>& handler) {
  if (platform.HasEnded() || (form && !Knows(*form))) return;
  busy_ = true;
  const Control* const clicked = std::exchange(paintbox.occasion.clicked, nullptr);
  ++paintbox.occasion.number;
  {
    const Hurry::Handler within(hurry_);
    try {
      handler();
    } catch (const std::exception& error) {
      platform.End(error.what());
    }
    SettleBoards();
  }
  paintbox.occasion.clicked = clicked;
  busy_ = false;
  PlayWaveInAHurry();
  if (platform.HasEnded()) return Quit();
  SettleWindows();
  ArmTimer();
  if (!deeds_.empty() || hurry_.Keeps()) QTimer::singleShot(0, &timer_, [this] { DeliverWaiting(); });
  Wake();
}

void DesktopFrontEnd::Deliver(Form& form, std::function<void()> deed) {
  deeds_.push_back({&form, std::move(deed)});
  DeliverWaiting();
}

void DesktopFrontEnd::ClickSoftly(Control& control) {
  Do(control, [this, &control] {
    softly_ = true;
    const struct Loud {
      bool& softly;
      ~Loud() { softly = false; }
    } loud{softly_};
    player::Click(control);
  });
}

void DesktopFrontEnd::DeliverWaiting() {
  while (MayRun() && !platform.HasEnded()) {
    if (deeds_.empty()) {
      if (!hurry_.DeliverOne()) break;
      continue;
    }
    const Deed deed = std::move(deeds_.front());
    deeds_.pop_front();
    Run(deed.form, deed.run);
  }
}

void DesktopFrontEnd::ArmTimer() {
  const auto due = platform.timers.NextDue();
  if (!due || busy_ || ticks_ == Ticks::Held) return timer_.stop();
  timer_.start(static_cast<int>(std::clamp(*due - Milliseconds(), 0ll, 1000000000ll)));
}

// One tick at a time, and what the player did goes before a late one.
void DesktopFrontEnd::ServeTick() {
  if (busy_ || ticks_ == Ticks::Held) return;
  ServeInput();
  if (MayRun()) Run(nullptr, [this] { platform.Enter({Event::Kind::Tick}); });
}

// First what the windows have told, then what Qt has kept back during pauses.
void DesktopFrontEnd::ServeInput() {
  constexpr int kRounds = 100;  // input that never ends isn't waited for
  SettleBoards();
  hurry_.LetThrough();
  const Idle idle(*this, Ticks::Held);
  DeliverWaiting();
  QEventLoop loop;
  for (int i = 0; i < kRounds && !platform.HasEnded() && loop.processEvents(); ++i) DeliverWaiting();
}

// --- Waiting -------------------------------------------------------------------------------------

// Deeds and ticks go to the platform as they come. An answer waits for its turn: a box under another one may
// be answered as well.
Event DesktopFrontEnd::Next(const Wait& wait) {
  switch (wait.serving) {
    case Wait::Serving::Nothing:
      Sleep(static_cast<int>(wait.until - Milliseconds()));
      return {};
    case Wait::Serving::Input:
      Sleep(0);  // shows what has changed
      ServeInput();
      return {};
    case Wait::Serving::All:
      break;
  }
  const auto answer = [&] { return wait.box ? boxes_.back()->answer : std::nullopt; };
  if (wait.modal) windows_.PushModal(WindowOf(*wait.modal));
  ServeAll([&] { return !answer() && platform.StillWaits(); });
  if (wait.modal) windows_.PopModal();
  if (!answer()) return {};
  return {.kind = Event::Kind::Answer, .answer = *answer()};
}

void DesktopFrontEnd::Await(const std::function<bool()>& waiting) {
  SettleBoards();
  hurry_.Anew();
  PlayWaveInAHurry();
  const Idle idle(*this);
  QEventLoop* const outer = loop_;
  const std::function<bool()>* const outerWaiting = waiting_;
  waiting_ = &waiting;
  ArmTimer();
  if (!deeds_.empty() || hurry_.Keeps()) QTimer::singleShot(0, &timer_, [this] { DeliverWaiting(); });
  while (waiting() && !platform.HasEnded()) {
    QEventLoop loop;
    loop_ = &loop;
    loop.exec();
  }
  loop_ = outer;
  waiting_ = outerWaiting;
  timer_.stop();
  hurry_.Anew();
  Wake();
}

void DesktopFrontEnd::Wake() {
  if (loop_) loop_->quit();
}

// --- Sounds --------------------------------------------------------------------------------------

void DesktopFrontEnd::PlayWave(const std::string& path) {
  if (softly_) return;
  if (hurry_.Hurried()) {  // of many at once only the last one would be heard
    waveInAHurry_ = path;
    return;
  }
  media_.PlayWave(path, paintbox.occasion.number, Milliseconds());
}

void DesktopFrontEnd::PlayWaveInAHurry() {
  if (!waveInAHurry_.empty()) media_.PlayWave(std::exchange(waveInAHurry_, ""));
}

// Shown and told as well as heard.
void DesktopFrontEnd::Refused() {
  const Control* const clicked = paintbox.occasion.clicked;
  if (!clicked || softly_) return;
  access_.Refused(*clicked);
  if (clicked->kind != Control::Kind::Image) return;
  if (FormWindow* window = WindowOf(clicked->form))
    window->Board().Refuse(static_cast<const Visual&>(*clicked));
}

// Only what has gone in the same breath is held up, that it can be seen.
void DesktopFrontEnd::Triumph(Visual& where, bool goes) {
  constexpr int kSeen = 900;
  FormWindow* const window = WindowOf(where.form);
  if (!guides || !window) return;
  window->Board().Celebrate(where);
  if (goes) Sleep(kSeen);
}

// --- The world -----------------------------------------------------------------------------------

DateTime DesktopFrontEnd::Now() {
  const QDateTime now = QDateTime::currentDateTime();
  const QDate date = now.date();
  const QTime time = now.time();
  return {date.year(),
          date.month(),
          date.day(),
          time.hour(),
          time.minute(),
          time.second(),
          now.offsetFromUtc() / 60};
}

Extent DesktopFrontEnd::ScreenExtent() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  const QSize size = screen ? screen->size() : QSize(1024, 768);
  return {size.width() * 15, size.height() * 15};
}

Extent DesktopFrontEnd::TextExtent(const Label& label) {
  const QSizeF needs = Needs(label);
  return {static_cast<int>(std::ceil(needs.width())) * 15, static_cast<int>(std::ceil(needs.height())) * 15};
}

std::string DesktopFrontEnd::FindBrowser() {
  const QString wanted = qEnvironmentVariable("BROWSER").section(':', 0, 0);
  for (const QString& name : {wanted, QStringLiteral("xdg-open")})
    if (const QString path = name.isEmpty() ? QString() : QStandardPaths::findExecutable(name);
        !path.isEmpty())
      return path.toStdString();
  return "";
}

bool DesktopFrontEnd::OpenPage(const std::string& browser, const std::string& url) {
  return QProcess::startDetached(QString::fromStdString(browser), {QString::fromStdString(url)});
}

void DesktopFrontEnd::Painted() {
  if (painted_) return;
  painted_ = true;
  Wake();
  // What the first window doesn't need waits until it stands on the screen.
  QTimer::singleShot(100, &timer_, [this] {
    media_.Start();
    ShowIcon();
    if (guides) ShowClock();
    if (guides) looks.HeedDesktop();
  });
}

// Beside the data while it is built, among the icons of the system when it is installed.
void DesktopFrontEnd::ShowIcon() {
  const fs::path name = "card-haven.svg";
  for (const fs::path& folder :
       {folders_.installed / "icons", folders_.installed.parent_path() / "icons/hicolor/scalable/apps"})
    if (const QImage icon = DrawFile(folder / name, QSize(64, 64)); !icon.isNull())
      return QGuiApplication::setWindowIcon(QPixmap::fromImage(icon));
}

void DesktopFrontEnd::Ended(const std::string& failure) {
  if (failure.empty()) return;
  status_ = 1;
  std::cerr << "cardhaven: " << failure << std::endl;
}

void DesktopFrontEnd::Quit() {
  Wake();
  QCoreApplication::exit(status_);
}

// --- Windows -------------------------------------------------------------------------------------

void DesktopFrontEnd::SettleBoards() {
  for (const auto& [form, window] : windows_) window->Board().Settle();
}

void DesktopFrontEnd::SettleWindows() {
  for (const auto& [form, window] : windows_)
    if (form->Visible) window->Settle();
}

// A dialog follows the window behind it.
void DesktopFrontEnd::InOrder(void (FormWindow::*apply)()) {
  for (const bool dialogs : {false, true})
    for (const auto& [form, window] : windows_)
      if (form->Modal() == dialogs) (window->*apply)();
}

void DesktopFrontEnd::WatchScreens() {
  constexpr int kSettled = 200;  // milliseconds; screens come and go several at a time
  refit_.setSingleShot(true);
  refit_.setInterval(kSettled);
  QObject::connect(&refit_, &QTimer::timeout, &refit_, [this] { InOrder(&FormWindow::Refit); });
  const auto changed = [this] { refit_.start(); };
  const auto watch = [this, changed](QScreen* screen) {
    QObject::connect(screen, &QScreen::availableGeometryChanged, &refit_, changed);
  };
  for (QScreen* screen : QGuiApplication::screens()) watch(screen);
  QObject::connect(qApp, &QGuiApplication::screenAdded, &refit_, watch);
  QObject::connect(qApp, &QGuiApplication::screenRemoved, &refit_, changed);
}

void DesktopFrontEnd::ApplyView() {
  InOrder(&FormWindow::ApplyView);
  media_.SetVolumes(looks.Now().waveVolume, looks.Now().musicVolume);
}

void DesktopFrontEnd::BoxShown(const MessageBox& box) {
  auto* const window = new BoxWindow(box, guides != nullptr, windows_.Next(nullptr));
  window->answered = [this] { Wake(); };
  window->leaving = [this, window] { windows_.LeaveActive(*window); };
  if (by_ == Operator::Recording) window->setWindowModality(Qt::NonModal);
  boxes_.push_back(window);
  windows_.PushModal(window);
  window->show();
  window->raise();
  window->activateWindow();
}

void DesktopFrontEnd::BoxGone(const MessageBox& box) {
  BoxWindow* const window = boxes_.back();
  windows_.PopModal();
  boxes_.pop_back();
  if (Form* modal = platform.ModalForm(); guides && modal && AnswersOf(box.buttons).size() == 1)
    if (FormWindow* asked = WindowOf(*modal)) asked->Refused();
  delete window;
}

QMessageBox* DesktopFrontEnd::StandingBox() const { return boxes_.empty() ? nullptr : boxes_.back(); }

void DesktopFrontEnd::FormLoaded(Form& form) {
  const Desk desk{*this,
                  looks,
                  paintbox,
                  access_,
                  [this] { Painted(); },
                  by_ == Operator::Recording ? fs::path() : folders_.own / kHistoryFile,
                  games,
                  by_ != Operator::Script,
                  by_ == Operator::Recording,
                  records};
  windows_.Add(form, *new FormWindow(form, guides ? guides(form) : nullptr, desk));
}

void DesktopFrontEnd::FormShown(Form& form) {
  if (FormWindow* window = WindowOf(form)) window->ShowForm(windows_.Next(window));
}

void DesktopFrontEnd::FormHidden(Form& form) {
  if (FormWindow* window = WindowOf(form)) {
    windows_.LeaveActive(*window);
    window->hide();
  }
  Wake();
}

void DesktopFrontEnd::FormUnloaded(Form& form) {
  if (const Control* clicked = paintbox.occasion.clicked; clicked && &clicked->form == &form)
    paintbox.occasion.clicked = nullptr;
  std::erase_if(deeds_, [&](const Deed& deed) { return deed.form == &form; });
  windows_.Remove(form);
  Wake();
}

void DesktopFrontEnd::PropertyChanged(Control& control, Prop prop) {
  if (control.kind == Control::Kind::Timer && !busy_) ArmTimer();
  if (FormWindow* window = WindowOf(control.form)) window->Apply(control, prop);
  access_.Changed(control);
}

void DesktopFrontEnd::OrderChanged(Visual& control) {
  if (FormWindow* window = WindowOf(control.form)) window->Reordered(control);
  access_.Reordered(control.form);
}

void DesktopFrontEnd::FocusMoved(Visual& control) {
  if (FormWindow* window = WindowOf(control.form)) window->FocusMoved();
}

void DesktopFrontEnd::TextSelected(TextBox& box) {
  if (FormWindow* window = WindowOf(box.form)) window->SelectText(box);
}

void DesktopFrontEnd::SurfaceCleared(PictureBox& surface) {
  if (FormWindow* window = WindowOf(surface.form)) window->SurfaceChanged(surface);
}

void DesktopFrontEnd::SurfaceDrawn(PictureBox& surface, const Stroke&) { SurfaceCleared(surface); }
