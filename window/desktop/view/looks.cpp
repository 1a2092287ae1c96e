#include "window/desktop/view/looks.h"

#include <QApplication>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "window/desktop/painting/style.h"
#include "window/desktop/view/animations.h"

namespace {

// Boards as large as they fit into two thirds of the screen's height, and into its width.
int FirstZoom() {
  constexpr QSize kBoard(640, 480);
  constexpr int kStep = 25;
  const QScreen* const screen = QGuiApplication::primaryScreen();
  const QSize size = screen ? screen->size() : kBoard;
  const int fits = std::min(size.height() * 200 / 3 / kBoard.height(), size.width() * 100 / kBoard.width());
  return std::clamp(fits / kStep * kStep, 100, 300);
}

}  // namespace

Looks::Looks(std::filesystem::path file, Paintbox& paintbox)
    : file_(std::move(file)),
      paintbox_(paintbox),
      view_(file_.empty() ? View() : ReadView(file_, FirstZoom())),
      kept_(view_) {
  constexpr int kDelay = 300;  // milliseconds; what changes several times in a row is written once
  timer_.setSingleShot(true);
  timer_.setInterval(kDelay);
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Keep(); });
  Apply();
}

Looks::~Looks() {
  if (keepsView && kept_ != view_) WriteView(file_, view_, kept_, true);
}

// What can't be written now goes with the next change.
void Looks::Keep() {
  if (WriteView(file_, view_, kept_)) kept_ = view_;
}

void Looks::Set(const View& view) {
  if (view == view_) return;
  View before = std::exchange(view_, view);
  if (keepsView && !file_.empty() && !timer_.isActive()) timer_.start();
  // Where it was and what was done last changes nothing that is seen.
  before.maximised = view.maximised;
  before.selector = view.selector;
  before.lastGame = view.lastGame;
  before.seen = view.seen;
  before.lastName = view.lastName;
  if (before == view) return;
  Apply();
  if (changed) changed();
}

void Looks::Apply() {
  paintbox_.pictures.SetFourColours(view_.fourColours);
  paintbox_.pictures.SetStrongEdges(view_.highContrast);
  paintbox_.manner = {view_.highContrast, LessMotion(), !LessMotion() && !held_};
  style::SetHighContrast(view_.highContrast);
}

void Looks::HoldCards(bool held) {
  held_ = held;
  Apply();
}

// --- The desktop's own settings ------------------------------------------------------------------

void Looks::HeedDesktop() {
  AskDesktop();
  QObject::connect(qApp, &QGuiApplication::applicationStateChanged, &timer_,
                   [this](Qt::ApplicationState state) {
                     if (state == Qt::ApplicationActive) AskDesktop();
                   });
}

void Looks::AskDesktop() {
  DesktopSays(filesStopMotion_, animations::AreOffInFiles());
  animations::AskPortal(timer_, [this](bool off) { DesktopSays(portalStopsMotion_, off); });
}

void Looks::DesktopSays(bool& stopsMotion, bool now) {
  const bool before = LessMotion();
  stopsMotion = now;
  if (LessMotion() == before) return;
  Apply();
  if (changed) changed();
}
