#include "window/desktop/desktop.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDateTime>
#include <QEventLoop>
#include <QIcon>
#include <QProcess>
#include <QScreen>
#include <QStandardPaths>
#include <QWindow>
#include <algorithm>
#include <cmath>
#include <iostream>
#include <utility>

#include "window/desktop/painting/lettering.h"
#include "window/desktop/painting/style.h"
#include "window/desktop/view/animations.h"
#include "window/desktop/view/canvas.h"
#include "window/desktop/view/form_window.h"
#include "window/leaving.h"

namespace fs = std::filesystem;

namespace {

constexpr int kViewDelay = 300;  // milliseconds; what changes several times in a row is written once

}  // namespace

DesktopFrontEnd::DesktopFrontEnd(const DesktopFolders& folders, PictureFiles files)
    : pictures(std::move(files), folders.own, folders.installed / "pictures"),
      folders_(folders),
      media_(folders.own, folders.installed),
      view_(ReadView(folders.view)),
      kept_(view_) {
  ApplyLook();
  clock_.start();
  media_.SetVolumes(view_.waveVolume, view_.musicVolume);
  timer_.setTimerType(Qt::PreciseTimer);
  timer_.setSingleShot(true);
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { ServeTick(); });
  viewTimer_.setSingleShot(true);
  viewTimer_.setInterval(kViewDelay);
  QObject::connect(&viewTimer_, &QTimer::timeout, &timer_, [this] { KeepView(); });
  clockTimer_.setSingleShot(true);
  QObject::connect(&clockTimer_, &QTimer::timeout, &timer_, [this] { ShowClock(); });
  QGuiApplication::setQuitOnLastWindowClosed(false);
}

DesktopFrontEnd::~DesktopFrontEnd() {
  for (const auto& [form, window] : windows_) {
    window->Leave();
    delete window;
  }
  if (viewTimer_.isActive()) KeepView();
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

bool DesktopFrontEnd::Knows(const Form& form) const { return windows_.contains(&form); }

FormWindow* DesktopFrontEnd::WindowOf(const Form& form) const {
  const auto found = windows_.find(&form);
  return found == windows_.end() ? nullptr : found->second;
}

Guide* DesktopFrontEnd::GuideOf(const Form& form) const {
  const auto found = guides_.find(&form);
  return found == guides_.end() ? nullptr : found->second.get();
}

void DesktopFrontEnd::SetView(const View& view) {
  if (view == view_) return;
  View before = std::exchange(view_, view);
  if (!folders_.view.empty() && !viewTimer_.isActive()) viewTimer_.start();
  // Where it was and what was done last changes nothing that is seen.
  before.selector = view.selector;
  before.lastGame = view.lastGame;
  before.seen = view.seen;
  before.lastName = view.lastName;
  if (before == view) return;
  ApplyLook();
  ApplyView();
}

void DesktopFrontEnd::KeepView() {
  WriteView(folders_.view, view_, kept_);
  kept_ = view_;
}

void DesktopFrontEnd::ApplyView() {
  for (const bool dialogs : {false, true})  // a dialog follows the window behind it
    for (const auto& [form, window] : windows_)
      if (form->Modal() == dialogs) window->ApplyView();
  media_.SetVolumes(view_.waveVolume, view_.musicVolume);
}

bool DesktopFrontEnd::LessMotion() const { return view_.lessMotion || DesktopStopsMotion(); }

// Once at the start, and whenever the player comes back, perhaps from the desktop's settings.
void DesktopFrontEnd::HeedAnimations() {
  const auto ask = [this] {
    const bool before = LessMotion();
    filesStopMotion_ = animations::AreOffInFiles();
    if (LessMotion() != before) ApplyView();
    animations::AskPortal(timer_, [this](bool off) {
      const bool before = LessMotion();
      portalStopsMotion_ = off;
      if (LessMotion() != before) ApplyView();
    });
  };
  ask();
  QObject::connect(qApp, &QGuiApplication::applicationStateChanged, &timer_,
                   [ask](Qt::ApplicationState state) {
                     if (state == Qt::ApplicationActive) ask();
                   });
}

void DesktopFrontEnd::ApplyLook() {
  pictures.SetFourColours(view_.fourColours);
  pictures.SetStrongEdges(view_.highContrast);
  style::SetHighContrast(view_.highContrast);
}

void DesktopFrontEnd::Run(Form* form, const std::function<void()>& handler) {
  if (platform.HasEnded() || (form && !Knows(*form))) return;
  busy_ = true;
  const Control* const clicked = std::exchange(clicked_, nullptr);
  ++handlerNumber_;
  {
    const Hurry::Handler within(hurry_);
    try {
      handler();
    } catch (const std::exception& error) {
      platform.End(error.what());
    }
    SettleBoards();
  }
  clicked_ = clicked;
  busy_ = false;
  PlayWaveInAHurry();
  if (platform.HasEnded()) return Quit();
  for (const auto& [each, window] : windows_)
    if (each->Visible) window->Settle();
  ArmTimer();
  if (!deeds_.empty() || hurry_.Keeps()) QTimer::singleShot(0, &timer_, [this] { DeliverWaiting(); });
  Wake();
}

void DesktopFrontEnd::Deliver(Form& form, std::function<void()> deed) {
  deeds_.push_back({&form, std::move(deed)});
  DeliverWaiting();
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
  const auto answer = [&] { return wait.box ? boxes_.back().answer : std::nullopt; };
  if (wait.modal) modals_.push_back(WindowOf(*wait.modal));
  ServeAll([&] { return !answer() && platform.StillWaits(); });
  if (wait.modal) modals_.pop_back();
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

void DesktopFrontEnd::Pause(int milliseconds) {
  if (platform.HasEnded()) return;
  SettleBoards();
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

// --- Sounds --------------------------------------------------------------------------------------

void DesktopFrontEnd::PlayWave(const std::string& path) {
  if (hurry_.Hurried()) {  // of many at once only the last one would be heard
    waveInAHurry_ = path;
    return;
  }
  constexpr int kCount = 500;  // milliseconds between the steps of a count at most
  const long long now = Milliseconds();
  const bool goesOn =
      lastWave_.path == path && lastWave_.handler == handlerNumber_ && now - lastWave_.at <= kCount;
  lastWave_ = {path, handlerNumber_, now, goesOn ? lastWave_.step + 1 : 0};
  media_.PlayWave(path, lastWave_.step);
}

void DesktopFrontEnd::PlayWaveInAHurry() {
  if (!waveInAHurry_.empty()) media_.PlayWave(std::exchange(waveInAHurry_, ""));
}

// Shown and told as well as heard.
void DesktopFrontEnd::Refused() {
  if (!clicked_) return;
  access_.Refused(*clicked_);
  if (clicked_->kind != Control::Kind::Image) return;
  if (FormWindow* window = WindowOf(clicked_->form))
    window->Board().Refuse(static_cast<const Visual&>(*clicked_));
}

// --- The world -----------------------------------------------------------------------------------

DateTime DesktopFrontEnd::Now() {
  const QDateTime now = QDateTime::currentDateTime();
  const QDate date = now.date();
  const QTime time = now.time();
  return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
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

bool DesktopFrontEnd::MustLeave() { return leaving::IsWanted(); }

void DesktopFrontEnd::Painted() {
  if (painted_) return;
  painted_ = true;
  Wake();
  // What the first window doesn't need waits until it stands on the screen.
  QTimer::singleShot(100, &timer_, [this] {
    media_.Start();
    ShowIcon();
    if (guides) ShowClock();
    if (guides) HeedAnimations();
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

FormWindow* DesktopFrontEnd::FrontWindow() const {
  for (const Form* form : platform.forms)
    if (FormWindow* window = WindowOf(*form); window && form->Visible && window->isVisible()) return window;
  return nullptr;
}

QWidget* DesktopFrontEnd::NextWindow(const QWidget* going) const {
  for (auto modal = modals_.rbegin(); modal != modals_.rend(); ++modal)
    if (*modal && *modal != going && (*modal)->isVisible()) return *modal;
  return FrontWindow();
}

void DesktopFrontEnd::LeaveActive(const QWidget& going) {
  QWidget* below = FrontWindow();
  for (QWidget* modal : modals_) {
    if (!modal || modal == &going || !modal->isVisible()) continue;
    if (modal->windowHandle()->transientParent() == going.windowHandle())
      modal->windowHandle()->setTransientParent(below ? below->windowHandle() : nullptr);
    below = modal;
  }
  if (below && going.isActiveWindow()) below->activateWindow();
}

void DesktopFrontEnd::FormLoaded(Form& form) {
  if (guides)
    if (auto guide = guides(form)) guides_[&form] = std::move(guide);
  windows_[&form] = new FormWindow(form, *this);
}

void DesktopFrontEnd::FormShown(Form& form) {
  if (FormWindow* window = WindowOf(form)) window->ShowForm(NextWindow(window));
}

void DesktopFrontEnd::FormHidden(Form& form) {
  if (FormWindow* window = WindowOf(form)) {
    LeaveActive(*window);
    window->hide();
  }
  Wake();
}

void DesktopFrontEnd::FormUnloaded(Form& form) {
  FormWindow* window = WindowOf(form);
  if (!window) return;
  if (clicked_ && &clicked_->form == &form) clicked_ = nullptr;
  access_.Gone(form);
  windows_.erase(&form);
  std::erase_if(deeds_, [&](const Deed& deed) { return deed.form == &form; });
  LeaveActive(*window);
  window->Leave();
  window->deleteLater();
  guides_.erase(&form);
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
