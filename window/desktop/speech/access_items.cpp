#include "window/desktop/speech/access_items.h"

#include <QTimer>

#include "window/desktop/input/deeds.h"
#include "window/desktop/input/keyboard.h"
#include "window/desktop/painting/canvas.h"
#include "window/desktop/painting/notes.h"
#include "window/desktop/speech/access_names.h"
#include "window/desktop/speech/board_face.h"
#include "window/desktop/speech/spoken_window.h"

namespace {

class Item : public QAccessibleInterface {
 public:
  explicit Item(BoardFace& board) : board_(board) {}

  bool isValid() const override { return board_.Lives(); }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return board_.window(); }
  QAccessibleInterface* parent() const override { return &board_; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  QAccessibleInterface* child(int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  void setText(QAccessible::Text, const QString&) override {}
  QString text(QAccessible::Text text) const override {
    return isValid() && text == QAccessible::Name ? Name() : QString();
  }
  QRect rect() const override { return isValid() ? board_.OnScreen(Area()) : QRect(); }
  QAccessible::Role role() const override { return QAccessible::StaticText; }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.invalid = !isValid();
    state.invisible = state.invalid || !Shows();
    if (!state.invalid) Add(state);
    return state;
  }

 protected:
  virtual QString Name() const = 0;
  virtual QRect Area() const = 0;
  virtual bool Shows() const { return true; }
  virtual void Add(QAccessible::State&) const {}

  BoardFace& board_;
};

// What is a control of the model.
class ControlItem : public Item {
 public:
  ControlItem(BoardFace& board, Visual& control) : Item(board), control_(control) {}

 protected:
  QRect Area() const override { return board_.Board().PlaceOf(control_); }
  bool Shows() const override { return IsShown(control_); }

  Visual& control_;
};

// What can be clicked on, as with the mouse.
class Clickable : public ControlItem, public QAccessibleActionInterface {
 public:
  using ControlItem::ControlItem;

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface && isValid() && !actionNames().empty()
               ? static_cast<QAccessibleActionInterface*>(this)
               : nullptr;
  }
  QStringList actionNames() const override {
    return TakesClick() ? QStringList{pressAction()} : QStringList();
  }
  // Not at once: who asks shouldn't have to wait for what the click leads to.
  void doAction(const QString& name) override {
    if (!isValid() || name != pressAction() || !TakesClick()) return;
    QTimer::singleShot(0, &board_.Board(), [this] {
      if (!isValid()) return;
      Deeds& deeds = board_.Window().GetDeeds();
      if (deeds.TakeAsHurry() || !board_.Board().SpotOf(control_)) return;  // no mouse could reach it
      deeds.Click(control_);
    });
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 protected:
  virtual bool TakesClick() const { return static_cast<bool>(control_.OnClick); }
};

class CardItem : public Clickable {
 public:
  using Clickable::Clickable;
  QAccessible::Role role() const override {
    return TakesClick() ? QAccessible::Button : QAccessible::StaticText;
  }
  QStringList actionNames() const override { return Clickable::actionNames() << setFocusAction(); }
  void doAction(const QString& name) override {
    if (name == setFocusAction() && isValid() && board_.Window().Keys())
      return board_.Window().Keys()->GoTo(control_);
    Clickable::doAction(name);
  }

 protected:
  QString Name() const override {
    const Spot spot = board_.SpotOf(control_);
    QString name = QString::fromStdString(spot.text);
    if (spot.rank && spot.playable) name += ", exposed";
    if (spot.selected) name += ", selected";
    return name;
  }
  void Add(QAccessible::State& state) const override {
    const Spot spot = board_.SpotOf(control_);
    state.selectable = true;
    state.selected = spot.selected;
    state.disabled = !control_.Enabled;
    state.focusable = board_.Board().focusPolicy() != Qt::NoFocus;
    state.focused = board_.CursorItem() == this;
  }
};

class TextItem : public Clickable {
 public:
  using Clickable::Clickable;
  QAccessible::Role role() const override {
    return TakesClick() ? QAccessible::Link : QAccessible::StaticText;
  }

 protected:
  QString Name() const override {
    if (control_.kind == Control::Kind::Frame) return Spoken(static_cast<const Frame&>(control_).Caption);
    const auto names = NamesOfLabels(control_.form, board_.Board().GetGuide());
    const auto found = names.find(&static_cast<const Label&>(control_));
    return found == names.end() ? QString() : found->second;
  }
  bool TakesClick() const override { return control_.kind == Control::Kind::Label && control_.OnClick; }
};

class BarItem : public ControlItem, public QAccessibleValueInterface {
 public:
  BarItem(BoardFace& board, ProgressBar& bar) : ControlItem(board, bar), bar_(bar) {}

  QAccessible::Role role() const override { return QAccessible::ProgressBar; }
  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ValueInterface && isValid() ? static_cast<QAccessibleValueInterface*>(this)
                                                            : nullptr;
  }
  QVariant currentValue() const override { return isValid() ? bar_.Value.get() : 0; }
  QVariant minimumValue() const override { return isValid() ? bar_.Min.get() : 0; }
  QVariant maximumValue() const override { return isValid() ? bar_.Max.get() : 0; }
  QVariant minimumStepSize() const override { return 1; }
  void setCurrentValue(const QVariant&) override {}

 protected:
  QString Name() const override { return LabelTextOf(bar_); }

 private:
  const ProgressBar& bar_;
};

class NoteItem : public Item {
 public:
  NoteItem(BoardFace& board, int number) : Item(board), number_(number) {}

 protected:
  QString Name() const override { return QString::fromStdString(Told().text).simplified(); }
  bool Shows() const override { return Told().within; }
  QRect Area() const override { return Told().within ? NoteRect(Told()) : QRect(); }

 private:
  Note Told() const {
    const std::vector<Note> notes = board_.Notes();
    return number_ < static_cast<int>(notes.size()) ? notes[number_] : Note{nullptr, 0, 0, 0, 0, ""};
  }
  const int number_;
};

class Saying : public Item {
 public:
  Saying(BoardFace& board, QString text) : Item(board), text_(std::move(text)) {}
  QAccessible::Role role() const override { return QAccessible::Notification; }

 protected:
  QString Name() const override { return text_; }
  QRect Area() const override { return {0, 0, 1, 1}; }

 private:
  const QString text_;
};

// --- Tables --------------------------------------------------------------------------------------

using Rows = std::vector<std::vector<Label*>>;

// The labels of an array by lines, as far as something stands in them.
Rows RowsOf(const Label& first) {
  std::map<int, std::map<int, Label*>> places;
  for (int i = first.index;; ++i) {
    auto* label = static_cast<Label*>(first.form.find(first.name, i));
    if (!label) break;
    places[label->Top][label->Left] = label;
  }
  Rows rows;
  for (const auto& [top, line] : places) {
    std::vector<Label*> row;
    bool empty = true;
    for (const auto& [left, label] : line) {
      row.push_back(label);
      empty = empty && label->Caption.get().empty();
    }
    if (!empty) rows.push_back(row);
  }
  return rows;
}

class TableItem;

class CellItem : public ControlItem, public QAccessibleTableCellInterface {
 public:
  CellItem(BoardFace& board, TableItem& table, Label& label) : ControlItem(board, label), table_(table) {}

  QAccessible::Role role() const override { return QAccessible::Cell; }
  QAccessibleInterface* parent() const override;
  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::TableCellInterface && isValid()
               ? static_cast<QAccessibleTableCellInterface*>(this)
               : nullptr;
  }
  bool isSelected() const override { return false; }
  QList<QAccessibleInterface*> columnHeaderCells() const override { return {}; }
  QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
  int columnIndex() const override { return Place().second; }
  int rowIndex() const override { return Place().first; }
  int columnExtent() const override { return 1; }
  int rowExtent() const override { return 1; }
  QAccessibleInterface* table() const override;

 protected:
  QString Name() const override { return Spoken(static_cast<const Label&>(control_).Caption); }

 private:
  std::pair<int, int> Place() const;
  TableItem& table_;
};

class RowItem : public Item {
 public:
  RowItem(BoardFace& board, TableItem& table, int number) : Item(board), table_(table), number_(number) {}

  QAccessible::Role role() const override { return QAccessible::Row; }
  QAccessibleInterface* parent() const override;
  int childCount() const override { return static_cast<int>(Labels().size()); }
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override {
    for (int i = 0; i < childCount(); ++i)
      if (this->child(i) == child) return i;
    return -1;
  }

 protected:
  QString Name() const override {
    QString name = QString::number(number_ + 1) + ".";
    for (const Label* label : Labels()) name += " " + Spoken(label->Caption);
    for (const Note& note : board_.Notes())
      if (note.look == Note::Look::Mark && NoteRect(note).contains(Area().center())) name += ", just entered";
    return name;
  }
  QRect Area() const override {
    QRect area;
    for (const Label* label : Labels()) area |= ModelRect(*label);
    return area;
  }
  bool Shows() const override { return !Labels().empty(); }

 private:
  std::vector<Label*> Labels() const;
  TableItem& table_;
  const int number_;
};

class TableItem : public Item, public QAccessibleTableInterface {
 public:
  TableItem(BoardFace& board, Label& first) : Item(board), first_(first) {}
  ~TableItem() override {
    for (const auto& [key, id] : parts_) QAccessible::deleteAccessibleInterface(id);
  }

  Rows Lines() const { return isValid() ? RowsOf(first_) : Rows(); }
  QAccessibleInterface* RowAt(int number) const {
    return Part({nullptr, number},
                [&] { return new RowItem(board_, const_cast<TableItem&>(*this), number); });
  }
  QAccessibleInterface* CellOf(Label& label) const {
    return Part({&label, 0}, [&] { return new CellItem(board_, const_cast<TableItem&>(*this), label); });
  }

  QAccessible::Role role() const override { return QAccessible::Table; }
  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::TableInterface && isValid() ? static_cast<QAccessibleTableInterface*>(this)
                                                            : nullptr;
  }
  int childCount() const override { return rowCount(); }
  QAccessibleInterface* child(int index) const override {
    return index >= 0 && index < rowCount() ? RowAt(index) : nullptr;
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    for (int i = 0; i < rowCount(); ++i)
      if (RowAt(i) == child) return i;
    return -1;
  }

  QAccessibleInterface* caption() const override { return nullptr; }
  QAccessibleInterface* summary() const override { return nullptr; }
  QAccessibleInterface* cellAt(int row, int column) const override {
    const Rows lines = Lines();
    if (row < 0 || row >= static_cast<int>(lines.size())) return nullptr;
    const bool there = column >= 0 && column < static_cast<int>(lines[row].size());
    return there ? CellOf(*lines[row][column]) : nullptr;
  }
  int rowCount() const override { return static_cast<int>(Lines().size()); }
  int columnCount() const override {
    const Rows lines = Lines();
    return lines.empty() ? 0 : static_cast<int>(lines.front().size());
  }
  QString columnDescription(int) const override { return {}; }
  QString rowDescription(int row) const override { return QString::number(row + 1); }
  int selectedCellCount() const override { return 0; }
  QList<QAccessibleInterface*> selectedCells() const override { return {}; }
  int selectedColumnCount() const override { return 0; }
  int selectedRowCount() const override { return 0; }
  QList<int> selectedColumns() const override { return {}; }
  QList<int> selectedRows() const override { return {}; }
  bool isColumnSelected(int) const override { return false; }
  bool isRowSelected(int) const override { return false; }
  bool selectRow(int) override { return false; }
  bool selectColumn(int) override { return false; }
  bool unselectRow(int) override { return false; }
  bool unselectColumn(int) override { return false; }
  void modelChange(QAccessibleTableModelChangeEvent*) override {}

 protected:
  QString Name() const override { return Spoken(first_.form.Caption); }
  QRect Area() const override {
    QRect area;
    for (const auto& line : Lines())
      for (const Label* label : line) area |= ModelRect(*label);
    return area;
  }

 private:
  using Key = std::pair<const Label*, int>;
  template <class Make>
  QAccessibleInterface* Part(Key key, Make make) const {
    const auto found = parts_.find(key);
    if (found != parts_.end()) return QAccessible::accessibleInterface(found->second);
    QAccessibleInterface* part = make();
    parts_[key] = QAccessible::registerAccessibleInterface(part);
    return part;
  }

  Label& first_;
  mutable std::map<Key, QAccessible::Id> parts_;
};

QAccessibleInterface* CellItem::table() const { return &table_; }

std::pair<int, int> CellItem::Place() const {
  const Rows lines = table_.Lines();
  for (size_t row = 0; row < lines.size(); ++row)
    for (size_t column = 0; column < lines[row].size(); ++column)
      if (lines[row][column] == &control_) return {static_cast<int>(row), static_cast<int>(column)};
  return {-1, -1};
}

QAccessibleInterface* CellItem::parent() const {
  const int row = rowIndex();
  return row < 0 ? &table_ : table_.RowAt(row);
}

QAccessibleInterface* RowItem::parent() const { return &table_; }

std::vector<Label*> RowItem::Labels() const {
  const Rows lines = table_.Lines();
  return number_ < static_cast<int>(lines.size()) ? lines[number_] : std::vector<Label*>();
}

QAccessibleInterface* RowItem::child(int index) const {
  const auto labels = Labels();
  return index >= 0 && index < static_cast<int>(labels.size()) ? table_.CellOf(*labels[index]) : nullptr;
}

}  // namespace

QAccessibleInterface* MakeCardItem(BoardFace& board, Visual& control) { return new CardItem(board, control); }
QAccessibleInterface* MakeTextItem(BoardFace& board, Visual& control) { return new TextItem(board, control); }
QAccessibleInterface* MakeBarItem(BoardFace& board, ProgressBar& bar) { return new BarItem(board, bar); }
QAccessibleInterface* MakeNoteItem(BoardFace& board, int number) { return new NoteItem(board, number); }
QAccessibleInterface* MakeSaying(BoardFace& board, const QString& text) { return new Saying(board, text); }
QAccessibleInterface* MakeTableItem(BoardFace& board, Label& first) { return new TableItem(board, first); }

bool IsTable(const Label& label) {
  if (label.index < 0 || IsBoard(label.form)) return false;
  const auto* next = static_cast<const Label*>(label.form.find(label.name, label.index + 1));
  const auto* second = static_cast<const Label*>(label.form.find(label.name, label.index + 2));
  return (next && second) || label.index > 1;
}
