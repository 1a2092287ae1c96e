#include "window/desktop/speech/access_board.h"

#include <QPushButton>
#include <QTimer>
#include <algorithm>
#include <typeinfo>

#include "window/desktop/input/keyboard.h"
#include "window/desktop/painting/canvas.h"
#include "window/desktop/painting/notes.h"
#include "window/desktop/speech/access_items.h"
#include "window/desktop/speech/access_names.h"
#include "window/desktop/speech/spoken_window.h"

namespace {

// A window: a frame, or a dialog that stands before the others.
class WindowAccess : public QAccessibleWidget {
 public:
  explicit WindowAccess(QWidget& window) : QAccessibleWidget(&window, QAccessible::Window) {}
  QAccessible::Role role() const override {
    return widget()->isModal() ? QAccessible::Dialog : QAccessible::Window;
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.modal = widget()->isModal();
    return state;
  }
};

}  // namespace

QAccessibleInterface* MakeAccess(const QString& className, QObject* object) {
  if (className != "QWidget") return nullptr;
  auto* const widget = static_cast<QWidget*>(object);
  if (dynamic_cast<SpokenWindow*>(object)) return new WindowAccess(*widget);
  if (auto* canvas = dynamic_cast<Canvas*>(object)) return new BoardAccess(*canvas);
  const auto* window = dynamic_cast<SpokenWindow*>(object->parent());
  return window && window->StatusLine() == widget ? new QAccessibleWidget(widget, QAccessible::StatusBar)
                                                  : nullptr;
}

BoardAccess* BoardAccessOf(Canvas& board) {
  return static_cast<BoardAccess*>(QAccessible::queryAccessibleInterface(&board));
}

BoardAccess::BoardAccess(Canvas& canvas) : BoardFace(canvas) {}

BoardAccess::~BoardAccess() {
  for (const auto& [key, id] : items_) QAccessible::deleteAccessibleInterface(id);
  for (const QAccessible::Id id : sayings_) QAccessible::deleteAccessibleInterface(id);
}

// --- Children ------------------------------------------------------------------------------------

template <class Make>
QAccessibleInterface* BoardAccess::Keep(Key key, Make make) const {
  const auto found = items_.find(key);
  if (found != items_.end()) return QAccessible::accessibleInterface(found->second);
  QAccessibleInterface* item = make(const_cast<BoardAccess&>(*this));
  items_[key] = QAccessible::registerAccessibleInterface(item);
  return item;
}

QAccessibleInterface* BoardAccess::CardItem(Visual& control) const {
  return Keep({&control, 0}, [&](BoardFace& board) { return MakeCardItem(board, control); });
}

// The texts and widgets in the order in which they are read: line by line.
std::vector<QAccessibleInterface*> BoardAccess::Rest() const {
  constexpr int kLine = 12;  // pixels
  struct Placed {
    QRect rect;
    QAccessibleInterface* item;
  };
  std::vector<Placed> placed;
  const auto put = [&](const QRect& rect, QAccessibleInterface* item) {
    if (item) placed.push_back({rect, item});
  };
  const auto names = NamesOfLabels(Board().form, Board().GetGuide());
  for (Control* control : Board().form.Controls()) {
    if (IsDrawn(control->kind) && !IsShown(static_cast<Visual&>(*control))) continue;
    switch (control->kind) {
      case Control::Kind::Label: {
        auto& label = static_cast<Label&>(*control);
        if (IsTable(label)) {
          if (label.form.find(label.name, label.index - 1)) break;
          put(ModelRect(label),
              Keep({&label, 0}, [&](BoardFace& board) { return MakeTableItem(board, label); }));
        } else if (names.contains(&label)) {
          put(ModelRect(label),
              Keep({&label, 0}, [&](BoardFace& board) { return MakeTextItem(board, label); }));
        }
        break;
      }
      case Control::Kind::Frame: {
        auto& frame = static_cast<Frame&>(*control);
        if (!frame.Panel && !Spoken(frame.Caption).isEmpty())
          put({ModelRect(frame).topLeft(), QSize(1, 1)},
              Keep({&frame, 0}, [&](BoardFace& board) { return MakeTextItem(board, frame); }));
        break;
      }
      case Control::Kind::ProgressBar: {
        auto& bar = static_cast<ProgressBar&>(*control);
        put(ModelRect(bar), Keep({&bar, 0}, [&](BoardFace& board) { return MakeBarItem(board, bar); }));
        break;
      }
      default:
        if (QWidget* each = Board().WidgetOf(*control); each && !each->isHidden())
          put(ModelRect(static_cast<Visual&>(*control)), QAccessible::queryAccessibleInterface(each));
        break;
    }
  }
  for (QPushButton* each : Board().findChildren<QPushButton*>(Qt::FindDirectChildrenOnly))
    if (std::ranges::none_of(Board().widgets, [&](const auto& known) { return known.second == each; }))
      put({Board().ToBoard(each->pos()), QSize(1, 1)}, QAccessible::queryAccessibleInterface(each));
  const std::vector<Note> notes = Notes();
  for (size_t i = 0; i < notes.size(); ++i) {
    const QString text = QString::fromStdString(notes[i].text);
    const bool isNumber = std::ranges::all_of(text, [](QChar letter) { return letter.isDigit(); });
    if (isNumber) continue;  // the rows of a table have theirs
    const int number = static_cast<int>(i);
    put(NoteRect(notes[i]),
        Keep({nullptr, number}, [&](BoardFace& board) { return MakeNoteItem(board, number); }));
  }
  std::ranges::stable_sort(placed, {}, [](const Placed& each) { return each.rect.center().y(); });
  for (auto line = placed.begin(); line != placed.end();) {
    const auto end = std::find_if(line, placed.end(), [&](const Placed& each) {
      return each.rect.center().y() - line->rect.center().y() > kLine;
    });
    std::stable_sort(line, end,
                     [](const Placed& a, const Placed& b) { return a.rect.left() < b.rect.left(); });
    line = end;
  }
  std::vector<QAccessibleInterface*> items;
  for (const Placed& each : placed) items.push_back(each.item);
  return items;
}

std::vector<QAccessibleInterface*> BoardAccess::Children() const {
  std::vector<QAccessibleInterface*> children;
  if (!Lives()) return children;
  for (const Spot& spot : Spots())
    if (IsDrawn(spot.control->kind)) children.push_back(CardItem(*spot.control));
  std::ranges::copy(Rest(), std::back_inserter(children));
  for (const QAccessible::Id id : sayings_) children.push_back(QAccessible::accessibleInterface(id));
  return children;
}

int BoardAccess::childCount() const { return static_cast<int>(Children().size()); }

QAccessibleInterface* BoardAccess::child(int index) const {
  const auto children = Children();
  return index >= 0 && index < static_cast<int>(children.size()) ? children[index] : nullptr;
}

int BoardAccess::indexOfChild(const QAccessibleInterface* child) const {
  const auto children = Children();
  const auto found = std::ranges::find(children, child);
  return found == children.end() ? -1 : static_cast<int>(found - children.begin());
}

QAccessibleInterface* BoardAccess::childAt(int x, int y) const {
  if (!Lives()) return nullptr;
  const QPoint point = Board().mapFromGlobal(QPoint(x, y));
  if (const QWidget* native = Board().childAt(point))
    return QAccessible::queryAccessibleInterface(const_cast<QWidget*>(native));
  const Visual* control = Board().At(point);
  const auto children = Children();
  for (QAccessibleInterface* child : children)
    if (const auto found = items_.find({control, 0});
        found != items_.end() && QAccessible::uniqueId(child) == found->second)
      return child;
  for (QAccessibleInterface* child : children)
    if (!child->object() && child->rect().contains(x, y)) return child;
  return nullptr;
}

QAccessibleInterface* BoardAccess::CursorItem() const {
  if (!Lives() || !Board().hasFocus() || !Window().Keys()) return nullptr;
  const Visual* stands = Window().Keys()->Stands();
  for (const Spot& spot : Spots())
    if (spot.control == stands && IsDrawn(spot.control->kind)) return CardItem(*spot.control);
  return nullptr;
}

QAccessibleInterface* BoardAccess::focusChild() const {
  QAccessibleInterface* const card = CursorItem();
  return card ? card : QAccessibleWidget::focusChild();
}

QString BoardAccess::text(QAccessible::Text text) const {
  return text == QAccessible::Name && Lives() && Board().GetGuide() && IsBoard(Board().form)
             ? "Board"
             : QAccessibleWidget::text(text);
}

// --- News ----------------------------------------------------------------------------------------

namespace {

void Tell(QAccessibleInterface* item, QAccessible::Event type) {
  QAccessibleEvent event(item, type);
  QAccessible::updateAccessibility(&event);
}

}  // namespace

void BoardAccess::TellChanges() {
  std::map<QAccessible::Id, Seen> now;
  for (QAccessibleInterface* child : Children()) {
    if (child->object()) continue;  // a widget tells by itself
    Seen& seen = now[QAccessible::uniqueId(child)];
    seen.name = child->text(QAccessible::Name);
    seen.selected = child->state().selected;
    if (QAccessibleValueInterface* value = child->valueInterface())
      seen.value = value->currentValue().toInt();
  }
  const auto before = std::exchange(seen_, now);
  if (!std::exchange(told_, true)) return;  // who asks for the first time gets all there is
  for (const auto& [id, seen] : before)
    if (!now.contains(id)) Tell(QAccessible::accessibleInterface(id), QAccessible::ObjectDestroyed);
  for (const auto& [id, seen] : now) {
    QAccessibleInterface* const item = QAccessible::accessibleInterface(id);
    const auto old = before.find(id);
    if (old == before.end()) {
      Tell(item, QAccessible::ObjectCreated);
      continue;
    }
    if (old->second.name != seen.name) Tell(item, QAccessible::NameChanged);
    if (old->second.selected != seen.selected)
      Tell(item, seen.selected ? QAccessible::SelectionAdd : QAccessible::SelectionRemove);
    if (old->second.value != seen.value) {
      QAccessibleValueChangeEvent event(item, seen.value);
      QAccessible::updateAccessibility(&event);
    }
  }
}

// Screen readers speak a notification when it shows. Each is an item of its own, that two in a row are both
// heard, and stays for a while for who asks what was said.
void BoardAccess::Announce(const QString& text) {
  constexpr int kStays = 5000;
  QAccessibleInterface* const saying = MakeSaying(*this, text);
  const QAccessible::Id id = QAccessible::registerAccessibleInterface(saying);
  sayings_.push_back(id);
  seen_[id] = {text};
  Tell(saying, QAccessible::ObjectCreated);
  Tell(saying, QAccessible::ObjectShow);
  QTimer::singleShot(kStays, &Board(), [this, id] {
    Tell(QAccessible::accessibleInterface(id), QAccessible::ObjectDestroyed);
    std::erase(sayings_, id);
    seen_.erase(id);
    QAccessible::deleteAccessibleInterface(id);
  });
}
