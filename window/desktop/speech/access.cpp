#include "window/desktop/speech/access.h"

#include <QToolTip>

#include "window/desktop/desktop.h"
#include "window/desktop/painting/scene.h"
#include "window/desktop/speech/access_board.h"
#include "window/desktop/speech/access_names.h"
#include "window/desktop/view/canvas.h"
#include "window/desktop/view/form_window.h"

Access::Access(DesktopFrontEnd& front) : front_(front) {
  QAccessible::installFactory(MakeAccess);
  QAccessible::installActivationObserver(this);
  // A handler that waits lets this timer through: what it shows meanwhile is told meanwhile.
  flush_.setSingleShot(true);
  flush_.setInterval(0);
  QObject::connect(&flush_, &QTimer::timeout, &flush_, [this] { Flush(); });
}

Access::~Access() {
  QAccessible::removeActivationObserver(this);
  QAccessible::removeFactory(MakeAccess);
}

void Access::accessibilityActiveChanged(bool active) {
  said_.clear();
  if (!active) return;
  for (const Form* form : front_.platform.forms) Mark(*form);
}

void Access::Mark(const Form& form) {
  if (!QAccessible::isActive() || !front_.WindowOf(form)) return;
  dirty_.insert(&form);
  if (!flush_.isActive()) flush_.start();
}

void Access::Changed(const Control& control) {
  if (control.kind != Control::Kind::Timer) Mark(control.form);
}

void Access::Shown(FormWindow& window) { Mark(window.form); }

void Access::Gone(const Form& form) {
  dirty_.erase(&form);
  std::erase_if(said_, [&](const auto& each) { return &each.first->form == &form; });
}

void Access::Refused(const Control& clicked) {
  if (!QAccessible::isActive()) return;
  FormWindow* window = front_.WindowOf(clicked.form);
  if (!window) return;
  const Spot spot = BoardAccessOf(*window)->SpotOf(clicked);
  Announce(*window, spot.text.empty() ? "Refused" : "Refused: " + QString::fromStdString(spot.text));
}

void Access::Flush() {
  const auto forms = std::exchange(dirty_, {});
  for (const Form* form : forms) {
    FormWindow* window = front_.WindowOf(*form);
    if (!window || !form->Visible) continue;
    NameWidgets(*window);
    BoardAccessOf(*window)->TellChanges();
    TellMessages(*window);
  }
}

// A count changes nothing but figures: it is said when it begins.
void Access::TellMessages(FormWindow& window) {
  for (const Control* control : window.form.Controls()) {
    if (control->kind != Control::Kind::Label) continue;
    const auto& label = static_cast<const Label&>(*control);
    if (!IsShown(label) || !IsMessage(label)) {
      said_.erase(control);
      continue;
    }
    const QString text = Spoken(label.Caption);
    QString gist = text;
    gist.removeIf([](QChar letter) { return letter.isDigit() || letter == ',' || letter == '-'; });
    if (std::exchange(said_[control], gist) != gist) Announce(window, text);
  }
}

void Access::CursorMoved(FormWindow& window) {
  if (!QAccessible::isActive()) return;
  QAccessibleInterface* const item = BoardAccessOf(window)->CursorItem();
  const QAccessible::Id id = item ? QAccessible::uniqueId(item) : 0;
  if (std::exchange(focus_, id) == id || !item) return;
  QAccessibleEvent event(item, QAccessible::Focus);
  QAccessible::updateAccessibility(&event);
}

void Access::TellState(FormWindow& window) {
  const Guide* guide = front_.GuideOf(window.form);
  if (!guide) return;
  QString text;
  try {
    text = QString::fromStdString(guide->State());
  } catch (const std::exception&) {  // asked in the middle of something
  }
  if (text.isEmpty()) text = window.windowTitle();
  const QPoint place(window.Board().width() / 4, window.Board().height() / 2);
  QToolTip::showText(window.Board().mapToGlobal(place), text, &window.Board(), {}, 8000);
  if (QAccessible::isActive()) Announce(window, text);
}

void Access::Announce(FormWindow& window, const QString& text) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
  QAccessibleAnnouncementEvent event(&window.Board(), text);
  QAccessible::updateAccessibility(&event);
#else
  BoardAccessOf(window)->Announce(text);
#endif
}
