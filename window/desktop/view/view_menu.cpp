#include "window/desktop/view/view_menu.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <cmath>

#include "window/desktop/view/looks.h"

namespace {

constexpr int kZooms[] = {100, 125, 150, 175, 200, 225, 250, 275, 300};
constexpr int kVolumes[] = {100, 75, 50, 25, 0};

bool Fits(const ViewMenu::Size& size, const View& view) { return size.fit && view.*size.fit; }

}  // namespace

ViewMenu::ViewMenu(QWidget& window, Looks& looks, std::function<Size()> size, QMenuBar* bar)
    : QObject(&window), window_(window), looks_(looks), size_(std::move(size)) {
  QMenu* menu = nullptr;
  if (bar) {
    menu = new QMenu("&View", bar);
    menu->setObjectName("viewMenu");
    bar->insertMenu(bar->actions().isEmpty() ? nullptr : bar->actions().last(), menu);
    connect(menu, &QMenu::aboutToShow, this, &ViewMenu::Apply);
  }
  AddZooms(menu);
  if (!menu) return;
  menu->addSeparator();
  Add(
      menu, "viewFit", "&Fit to the Window",
      [this](View& view) {
        if (const auto fit = size_().fit) view.*fit = !(view.*fit);
      },
      [this](const View& view) { return Fits(size_(), view); });
  QAction* fullScreen = AddSwitch(menu, "viewFullScreen", "Full &Screen", &View::fullScreen);
  fullScreen->setShortcut(QKeySequence("F11"));
  fullScreen->setAutoRepeat(false);
  menu->addSeparator();
  AddSwitch(menu, "viewFourColours", "Four-&Colour Suits", &View::fourColours);
  AddSwitch(menu, "viewHighContrast", "&High Contrast", &View::highContrast);
  lessMotion_ = Add(
      menu, "viewLessMotion", "Less M&otion", [](View& view) { view.lessMotion = !view.lessMotion; },
      [this](const View&) { return looks_.LessMotion(); });
  menu->addSeparator();
  AddVolume(*menu, "viewWaves", "Sound &Volume", &View::waveVolume);
  AddVolume(*menu, "viewMusic", "&Music Volume", &View::musicVolume);
  if (looks_.mayKeepRecords) {
    menu->addSeparator();
    AddSwitch(menu, "viewKeepRecords", "&Keep Records of Games", &View::keepsRecords);
  }
  Apply();
}

QAction* ViewMenu::Add(QMenu* menu, const char* name, const QString& text, std::function<void(View&)> choose,
                       std::function<bool(const View&)> isTicked) {
  auto* action = new QAction(text, this);
  action->setObjectName(name);
  if (isTicked) action->setCheckable(true);
  connect(action, &QAction::triggered, this, [this, choose] {
    looks_.Alter(choose);
    Apply();  // Qt has set a tick by itself
  });
  menu ? menu->addAction(action) : window_.addAction(action);
  if (isTicked) entries_.push_back({action, std::move(isTicked)});
  return action;
}

void ViewMenu::AddZooms(QMenu* menu) {
  const auto add = [&](const char* name, const QString& text, const QList<QKeySequence>& keys, auto percent) {
    Add(menu, name, text, [this, percent](View& view) { ChooseZoom(view, percent()); })->setShortcuts(keys);
  };
  add("viewLarger", "&Larger", {QKeySequence("Ctrl++"), QKeySequence("Ctrl+=")},
      [this] { return NextZoom(true); });
  add("viewSmaller", "S&maller", {QKeySequence("Ctrl+-")}, [this] { return NextZoom(false); });
  add("viewNatural", "&Natural Size", {QKeySequence("Ctrl+0")}, [] { return 100; });
  if (!menu) return;
  auto* zooms = menu->addMenu("&Zoom");
  for (const int percent : kZooms)
    Add(
        zooms, qPrintable("viewZoom" + QString::number(percent)), QString("%1 %").arg(percent),
        [this, percent](View& view) { ChooseZoom(view, percent); },
        [this, percent](const View& view) {
          return !Fits(size_(), view) && std::lround(size_().zoom * 100) == percent;
        });
}

QAction* ViewMenu::AddSwitch(QMenu* menu, const char* name, const QString& text, bool View::*flag) {
  return Add(
      menu, name, text, [flag](View& view) { view.*flag = !(view.*flag); },
      [flag](const View& view) { return view.*flag; });
}

void ViewMenu::AddVolume(QMenu& menu, const char* name, const QString& text, int View::*volume) {
  QMenu* volumes = menu.addMenu(text);
  for (const int percent : kVolumes)
    Add(
        volumes, qPrintable(name + QString::number(percent)),
        percent == 0 ? "&Off" : QString("%1 %").arg(percent),
        [volume, percent](View& view) { view.*volume = percent; },
        [volume, percent](const View& view) { return view.*volume == percent; });
}

void ViewMenu::Apply() {
  if (lessMotion_) lessMotion_->setEnabled(!looks_.DesktopStopsMotion());
  for (const Entry& entry : entries_) entry.action->setChecked(entry.isTicked(looks_.Now()));
}

// Who asks for a size of their own no longer wants the one that fits, unless the screen has room for no more.
void ViewMenu::ChooseZoom(View& view, int percent) const {
  const Size size = size_();
  if (size.filled && Fits(size, view) && percent >= std::lround(size.leadersZoom * 100)) return;
  view.zoom = percent;
  if (size.fit) view.*size.fit = false;
}

// From what is seen, which may be less than what was asked for.
int ViewMenu::NextZoom(bool larger) const {
  const int now = static_cast<int>(std::lround(size_().zoom * 100));
  int next = larger ? kZooms[std::size(kZooms) - 1] : kZooms[0];
  for (const int each : kZooms) {
    if (larger && each > now) return each;
    if (!larger && each < now) next = each;
  }
  return next;
}
