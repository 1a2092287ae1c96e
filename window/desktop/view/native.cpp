#include "window/desktop/view/native.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPalette>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <cmath>

#include "window/desktop/input/deeds.h"
#include "window/desktop/painting/contrast.h"
#include "window/desktop/painting/scene.h"
#include "window/desktop/painting/style.h"
#include "window/lists.h"

namespace {

QString Text(const std::string& text) { return QString::fromStdString(text); }

// Where the widget stands on its board.
QRect Place(const QWidget& widget, const Visual& control) {
  const double zoom = style::ZoomOf(&widget);
  const QRect rect = ModelRect(control);
  const auto at = [&](int pixels) { return static_cast<int>(std::lround(pixels * zoom)); };
  return {QPoint(at(rect.left()), at(rect.top())),
          QPoint(at(rect.left() + rect.width()) - 1, at(rect.top() + rect.height()) - 1)};
}

// Carries a click to the model, then shows what the model made of it: the widget may have changed by itself.
void Click(Visual& control, Deeds& deeds, QWidget& widget) {
  Form& form = control.form;
  const QPointer<QWidget> alive = &widget;
  deeds.Click(control);
  if (alive && deeds.Knows(form)) ApplyNative(widget, control, Prop::Value);
}

QWidget* MakeButton(CommandButton& button, Deeds& deeds, QWidget* parent) {
  auto* widget = new QPushButton(parent);
  QObject::connect(widget, &QPushButton::clicked, widget, [&, widget] { Click(button, deeds, *widget); });
  return widget;
}

void Edit(TextBox& box, Deeds& deeds, const QString& text) {
  deeds.Do(box, [&box, written = text.toStdString()] { player::Type(box, written); });
}

// A line edit or a page that tells of clicks too.
template <class Widget>
class Clickable : public Widget {
 public:
  Clickable(TextBox& box, Deeds& deeds, QWidget* parent) : Widget(parent), box_(box), deeds_(deeds) {}

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override {
    Widget::mouseReleaseEvent(event);
    Click(box_, deeds_, *this);
  }

 private:
  TextBox& box_;
  Deeds& deeds_;
};

QWidget* MakeTextBox(TextBox& box, Deeds& deeds, QWidget* parent) {
  if (box.MultiLine) {
    auto* widget = new Clickable<QPlainTextEdit>(box, deeds, parent);
    widget->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    widget->setTabChangesFocus(true);
    widget->setReadOnly(box.Locked);
    QObject::connect(widget, &QPlainTextEdit::textChanged, widget,
                     [&, widget] { Edit(box, deeds, widget->toPlainText()); });
    return widget;
  }
  auto* widget = new Clickable<QLineEdit>(box, deeds, parent);
  widget->setReadOnly(box.Locked);
  QObject::connect(widget, &QLineEdit::textChanged, widget,
                   [&](const QString& text) { Edit(box, deeds, text); });
  return widget;
}

// A list in which keys pick as the mouse does.
class PickList : public QListWidget {
 public:
  PickList(ListControl& list, Deeds& deeds, QWidget* parent)
      : QListWidget(parent), list_(list), deeds_(deeds) {
    setUniformItemSizes(true);
    connect(this, &QListWidget::itemPressed, this, [this] { Pick(); });
    connect(this, &QListWidget::itemDoubleClicked, this,
            [this] { deeds_.Do(list_, [&list = list_] { player::DblClick(list); }); });
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const int row = currentRow();
    QListWidget::keyPressEvent(event);
    if (currentRow() != row) Pick();
  }

 private:
  void Pick() {
    deeds_.Do(list_, [&list = list_, row = currentRow()] { player::Select(list, row); });
  }

  ListControl& list_;
  Deeds& deeds_;
};

QWidget* MakeDriveList(DriveListBox& list, Deeds& deeds, QWidget* parent) {
  auto* widget = new QComboBox(parent);
  widget->setPlaceholderText("Places");
  QObject::connect(widget, &QComboBox::activated, widget, [&, widget](int entry) {
    Form& form = list.form;
    deeds.Do(list, [&list, entry] { player::Select(list, entry); });
    if (deeds.Knows(form)) ApplyNative(*widget, list, Prop::ListIndex);
  });
  return widget;
}

template <class Widget>
void FillList(Widget& widget, const ListControl& list) {
  const QSignalBlocker blocker(widget);
  widget.clear();
  QStringList entries;
  for (const std::string& entry : list.List.get()) entries.push_back(Text(entry));
  widget.addItems(entries);
}

void ApplyList(QListWidget& widget, const ListControl& list, Prop prop) {
  if (prop == Prop::List) FillList(widget, list);
  if (list.kind == Control::Kind::DirListBox)
    widget.setToolTip(Text(static_cast<const DirListBox&>(list).Path));
  const QSignalBlocker blocker(widget);
  if (widget.currentRow() != list.ListIndex) widget.setCurrentRow(list.ListIndex);
}

// The letters of a text box in the colour of what they mean.
void ApplyInk(QWidget& widget, const TextBox& box) {
  QPalette palette = QApplication::palette();
  const bool strong = palette.color(QPalette::Window) == style::kStrongGround;
  const QColor told = ToColour(box.ForeColor);
  const QColor ink = strong ? Strong(told) : LettersOn(palette.color(QPalette::Base), told);
  for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive})
    palette.setColor(group, QPalette::Text, ink);
  widget.setPalette(palette);
}

// The caption of a tick box stands on what lies beneath it.
void ApplyGround(QWidget& widget, const Visual& control) {
  if (!IsOnBaize(control)) return;
  QPalette palette = QApplication::palette();
  if (palette.color(QPalette::Window) == style::kStrongGround) return widget.setPalette(palette);
  for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive})
    palette.setColor(group, QPalette::WindowText, style::kIvory);
  palette.setColor(QPalette::Disabled, QPalette::WindowText, style::kIvory.darker(125));
  widget.setPalette(palette);
}

// Letters small enough for the caption to fit: the places were laid out for narrower ones.
void ApplyCaption(QPushButton& button, const std::string& caption) {
  constexpr int kMargin = 10, kSmallest = 9, kPictureSide = 22;
  button.setText(Text(caption));
  const QString plain = Text(WithoutAccessKey(caption));
  const double zoom = style::ZoomOf(&button);
  QFont font = style::Letters(zoom);
  const int side = button.icon().isNull() ? 0 : static_cast<int>(std::lround(kPictureSide * zoom));
  button.setIconSize({side, side});
  const auto fits = [&] {
    return QFontMetrics(font).horizontalAdvance(plain) <= button.width() - side - kMargin * zoom;
  };
  if (!fits()) font.setStretch(QFont::SemiCondensed);
  while (!fits() && font.pixelSize() > kSmallest * zoom) font.setPixelSize(font.pixelSize() - 1);
  if (button.font() != font) button.setFont(font);
}

// What a widget of its kind shows: caption, text, tick, entries.
void ApplyContent(QWidget& widget, const Visual& control, Prop prop) {
  const QSignalBlocker blocker(widget);
  switch (control.kind) {
    case Control::Kind::CommandButton:
      return ApplyCaption(static_cast<QPushButton&>(widget),
                          static_cast<const CommandButton&>(control).Caption);
    case Control::Kind::CheckBox: {
      const auto& box = static_cast<const CheckBox&>(control);
      static_cast<QCheckBox&>(widget).setText(Text(box.Caption));
      return static_cast<QCheckBox&>(widget).setChecked(box.Value == 1);
    }
    case Control::Kind::OptionButton: {
      const auto& option = static_cast<const OptionButton&>(control);
      static_cast<QRadioButton&>(widget).setText(Text(option.Caption));
      return static_cast<QRadioButton&>(widget).setChecked(option.Value);
    }
    case Control::Kind::TextBox: {
      const auto& box = static_cast<const TextBox&>(control);
      if (prop == Prop::ForeColor) return ApplyInk(widget, box);
      const QString text = Text(box.Text);
      if (auto* line = qobject_cast<QLineEdit*>(&widget); line && line->text() != text) line->setText(text);
      if (auto* page = qobject_cast<QPlainTextEdit*>(&widget); page && page->toPlainText() != text)
        page->setPlainText(text);
      return;
    }
    case Control::Kind::DriveListBox: {
      const auto& list = static_cast<const ListControl&>(control);
      auto& box = static_cast<QComboBox&>(widget);
      if (prop == Prop::List) FillList(box, list);
      return box.setCurrentIndex(list.ListIndex);
    }
    default:
      return ApplyList(static_cast<QListWidget&>(widget), static_cast<const ListControl&>(control), prop);
  }
}

}  // namespace

bool IsNative(Control::Kind kind) {
  switch (kind) {
    case Control::Kind::CommandButton:
    case Control::Kind::TextBox:
    case Control::Kind::CheckBox:
    case Control::Kind::OptionButton:
    case Control::Kind::DriveListBox:
    case Control::Kind::DirListBox:
    case Control::Kind::FileListBox:
      return true;
    default:
      return false;
  }
}

QWidget* MakeNative(Visual& control, Deeds& deeds, QWidget* parent) {
  QWidget* widget = nullptr;
  switch (control.kind) {
    case Control::Kind::CommandButton:
      widget = MakeButton(static_cast<CommandButton&>(control), deeds, parent);
      break;
    case Control::Kind::TextBox:
      widget = MakeTextBox(static_cast<TextBox&>(control), deeds, parent);
      break;
    case Control::Kind::CheckBox: {
      auto* box = new QCheckBox(parent);
      QObject::connect(box, &QCheckBox::clicked, box, [&, box] { Click(control, deeds, *box); });
      widget = box;
      break;
    }
    case Control::Kind::OptionButton: {
      auto* option = new QRadioButton(parent);
      option->setAutoExclusive(false);  // the model knows the group
      QObject::connect(option, &QRadioButton::clicked, option,
                       [&, option] { Click(control, deeds, *option); });
      widget = option;
      break;
    }
    case Control::Kind::DriveListBox:
      widget = MakeDriveList(static_cast<DriveListBox&>(control), deeds, parent);
      break;
    default:
      widget = new PickList(static_cast<ListControl&>(control), deeds, parent);
      break;
  }
  if (control.kind == Control::Kind::CheckBox || control.kind == Control::Kind::OptionButton)
    ApplyGround(*widget, control);
  if (control.OnMouseMove) widget->setMouseTracking(true);
  widget->setGeometry(Place(*widget, control));
  ApplyNative(*widget, control, Prop::List);
  if (control.kind == Control::Kind::TextBox) ApplyNative(*widget, control, Prop::ForeColor);
  ApplyNative(*widget, control, Prop::Enabled);
  ApplyNative(*widget, control, Prop::ToolTipText);
  ApplyNative(*widget, control, Prop::Visible);
  return widget;
}

void ApplyNative(QWidget& widget, const Visual& control, Prop prop) {
  switch (prop) {
    case Prop::Left:
    case Prop::Top:
    case Prop::Width:
    case Prop::Height:
      return widget.setGeometry(Place(widget, control));
    case Prop::Visible:
      widget.setGeometry(Place(widget, control));
      return widget.setVisible(IsShown(control));
    case Prop::Enabled:
      return widget.setEnabled(control.Enabled);
    case Prop::ToolTipText:
      return widget.setToolTip(Text(control.ToolTipText));
    default:
      return ApplyContent(widget, control, prop);
  }
}

void RestyleNative(QWidget& widget, const Visual& control) {
  if (control.kind == Control::Kind::CheckBox || control.kind == Control::Kind::OptionButton)
    ApplyGround(widget, control);
  if (control.kind == Control::Kind::TextBox) ApplyNative(widget, control, Prop::ForeColor);
}

void ZoomNative(QWidget& widget, const Visual& control) {
  widget.setGeometry(Place(widget, control));
  if (control.kind == Control::Kind::CommandButton) ApplyNative(widget, control, Prop::Caption);
}
