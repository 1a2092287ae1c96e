#include "window/desktop/view/menus.h"

#include <QAccessible>
#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <vector>

#include "window/desktop/input/deeds.h"
#include "window/desktop/painting/style.h"
#include "window/desktop/view/keys_window.h"

namespace {

constexpr int kTallest = 26;  // boards reckon with no more

std::vector<Menu*> EntriesOf(const Control& parent) {
  std::vector<Menu*> entries;
  for (Control* control : parent.form.Controls())
    if (control->kind == Control::Kind::Menu && control->parent == &parent)
      entries.push_back(static_cast<Menu*>(control));
  std::ranges::stable_sort(entries, {}, &Menu::rank);
  return entries;
}

}  // namespace

Menus::Menus(Form& form, const Guide* guide, Deeds& deeds, QWidget& window) : form_(form), deeds_(deeds) {
  if (EntriesOf(form).empty()) return;
  bar_ = new QMenuBar(&window);
  bar_->setObjectName("menuBar");
  bar_->setNativeMenuBar(false);
  Build(form, *bar_);
  if (guide) AddKeys(*guide, window);
}

// The function keys stand beside their entries, and all keys in a window of their own.
void Menus::AddKeys(const Guide& guide, QWidget& window) {
  for (const KeyRow& row : guide.Keys())
    for (const KeyClick& click : row.clicks) {
      const Control* control =
          click.keys[0] == 'F' && click.keys.size() > 1 ? form_.find(click.control) : nullptr;
      QAction* action = control && control->kind == Control::Kind::Menu
                            ? ActionOf(static_cast<const Menu&>(*control))
                            : nullptr;
      if (!action) continue;
      action->setShortcut(QKeySequence::fromString(QString::fromStdString(click.keys)));
      action->setAutoRepeat(false);
    }
  const Menu* menu = guide.KeysMenu();
  QAction* title = menu ? ActionOf(*menu) : nullptr;
  if (!title || !title->menu()) return;
  auto* keys = new QAction("&Keys...", title->menu());
  keys->setObjectName("keys");
  const QList<QAction*> entries = title->menu()->actions();
  title->menu()->insertAction(entries.size() > 1 ? entries[1] : nullptr, keys);
  QObject::connect(keys, &QAction::triggered, &window, [this, &guide, &window] {
    deeds_.Do(form_, [this, &guide, &window] { ShowKeys(form_, guide, deeds_, window); });
  });
}

void Menus::Build(const Control& parent, QWidget& holder) {
  for (Menu* entry : EntriesOf(parent)) {
    QAction* action = nullptr;
    if (!EntriesOf(*entry).empty()) {
      auto* menu = new QMenu(&holder);
      action = menu->menuAction();
      menu->setObjectName(QString::fromStdString(entry->NameInForm()));
      holder.addAction(action);
      Build(*entry, *menu);
    } else {
      action = new QAction(&holder);
      action->setObjectName(QString::fromStdString(entry->NameInForm()));
      action->setSeparator(entry->Caption == "-");
      holder.addAction(action);
      QObject::connect(action, &QAction::triggered, [this, entry] {
        Apply(*entry);  // Qt has set a tick by itself
        const auto click = [this, entry] { deeds_.Click(*entry); };
        // Whoever asks for it over a bus gets no answer before this is done, and it may open a window.
        QAccessible::isActive() ? QTimer::singleShot(0, bar_, click) : click();
      });
    }
    actions_[entry] = action;
    Apply(*entry);
  }
}

int Menus::Height() const {
  return bar_ ? std::min(bar_->sizeHint().height(), static_cast<int>(std::lround(kTallest * zoom_))) : 0;
}

void Menus::SetZoom(double zoom) {
  zoom_ = zoom;
  if (!bar_) return;
  const QFont font = style::Letters(zoom);
  bar_->setFont(font);
  for (QMenu* menu : bar_->findChildren<QMenu*>()) menu->setFont(font);
}

void Menus::Place(int width) {
  if (bar_) bar_->setGeometry(0, 0, width, Height());
}

void Menus::Apply(const Menu& menu) {
  QAction* action = ActionOf(menu);
  if (!action || action->isSeparator()) return;
  action->setText(QString::fromStdString(menu.Caption));
  action->setEnabled(menu.Enabled);
  action->setVisible(menu.Visible);
  if (menu.Checked) action->setCheckable(true);
  action->setChecked(menu.Checked);
}

QAction* Menus::ActionOf(const Menu& menu) const {
  const auto found = actions_.find(&menu);
  return found == actions_.end() ? nullptr : found->second;
}
