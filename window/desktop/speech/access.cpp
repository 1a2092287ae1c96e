#include "window/desktop/speech/access.h"

#include <QToolTip>

#include "window/desktop/painting/canvas.h"
#include "window/desktop/speech/access_board.h"
#include "window/desktop/speech/access_names.h"

Access::Access() {
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
  for (const auto& [form, board] : boards_) Mark(*form);
}

void Access::Mark(const Form& form) {
  if (!QAccessible::isActive() || !boards_.contains(&form)) return;
  dirty_.insert(&form);
  if (!flush_.isActive()) flush_.start();
}

void Access::Changed(const Control& control) {
  if (control.kind != Control::Kind::Timer) Mark(control.form);
}

void Access::Opened(Canvas& board) { boards_[&board.form] = &board; }

void Access::Gone(const Form& form) {
  boards_.erase(&form);
  dirty_.erase(&form);
  std::erase_if(said_, [&](const auto& each) { return &each.first->form == &form; });
}

void Access::Refused(const Control& clicked) {
  const auto found = boards_.find(&clicked.form);
  if (!QAccessible::isActive() || found == boards_.end()) return;
  Canvas& board = *found->second;
  const Spot spot = BoardAccessOf(board)->SpotOf(clicked);
  Announce(board, spot.text.empty() ? "Refused" : "Refused: " + QString::fromStdString(spot.text));
}

void Access::Flush() {
  const auto forms = std::exchange(dirty_, {});
  for (const Form* form : forms) {
    const auto found = boards_.find(form);
    if (found == boards_.end() || !form->Visible) continue;
    Canvas& board = *found->second;
    BoardAccess& access = *BoardAccessOf(board);
    NameWidgets(board, access.Spots());
    access.TellChanges();
    TellMessages(board);
  }
}

// A count changes nothing but figures: it is said when it begins.
void Access::TellMessages(Canvas& board) {
  QString call;
  for (const Note& note : board.Notes())
    if (note.look == Note::Look::Call) call = Spoken(note.text);
  if (std::exchange(said_[&board.form], call) != call && !call.isEmpty()) Announce(board, call);
  for (const Control* control : board.form.Controls()) {
    if (control->kind != Control::Kind::Label) continue;
    const auto& label = static_cast<const Label&>(*control);
    if (!IsShown(label) || !IsMessage(label, board.GetGuide())) {
      said_.erase(control);
      continue;
    }
    const QString text = Spoken(label.Caption);
    QString gist = text;
    gist.removeIf([](QChar letter) { return letter.isDigit() || letter == ',' || letter == '-'; });
    if (std::exchange(said_[control], gist) != gist) Announce(board, text);
  }
}

void Access::CursorMoved(Canvas& board) {
  if (!QAccessible::isActive()) return;
  QAccessibleInterface* const item = BoardAccessOf(board)->CursorItem();
  const QAccessible::Id id = item ? QAccessible::uniqueId(item) : 0;
  if (std::exchange(focus_, id) == id || !item) return;
  QAccessibleEvent event(item, QAccessible::Focus);
  QAccessible::updateAccessibility(&event);
}

void Access::TellState(Canvas& board) {
  const Guide* guide = board.GetGuide();
  if (!guide) return;
  QString text;
  try {
    text = QString::fromStdString(guide->State());
  } catch (const std::exception&) {  // asked in the middle of something
  }
  if (text.isEmpty()) text = board.window()->windowTitle();
  const QPoint place(board.width() / 4, board.height() / 2);
  QToolTip::showText(board.mapToGlobal(place), text, &board, {}, 8000);
  if (QAccessible::isActive()) Announce(board, text);
}

void Access::Announce(Canvas& board, const QString& text) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
  QAccessibleAnnouncementEvent event(&board, text);
  QAccessible::updateAccessibility(&event);
#else
  BoardAccessOf(board)->Announce(text);
#endif
}
