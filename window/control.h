// What every control has: a name, a place in its form, and properties that tell the form when they change.
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

class Form;
class Control;

// The properties that scripts can read and front ends are told of.
enum class Prop : uint8_t {
  Alignment,
  BackColor,
  BackStyle,
  BorderColor,
  BorderStyle,
  Caption,
  Checked,
  Drive,
  Enabled,
  FillColor,
  FontBold,
  FontName,
  FontSize,
  ForeColor,
  Height,
  Interval,
  Left,
  List,
  ListIndex,
  Max,
  Min,
  MouseIcon,
  MousePointer,
  Path,
  Pattern,
  Picture,
  Text,
  ToolTipText,
  Top,
  Value,
  Visible,
  Width,
  WindowState
};

std::string_view PropName(Prop prop);

// A property's value, as scripts see it.
using Value = std::variant<bool, int, std::string, std::vector<std::string>>;
using PropertyVisitor = std::function<void(Prop, const Value&)>;

// One property of a control. Assigning what it already holds does nothing.
template <class T>
class Property {
 public:
  Property(Control& owner, Prop id, T value) : owner_(owner), id_(id), value_(std::move(value)) {}
  Property(const Property&) = delete;

  operator const T&() const { return value_; }
  const T& get() const { return value_; }
  Prop id() const { return id_; }

  inline Property& operator=(T value);
  Property& operator=(const Property& other) { return *this = other.value_; }
  Property& operator+=(const T& amount) { return *this = value_ + amount; }
  friend bool operator==(const Property& property, const T& value) { return property.value_ == value; }
  friend bool operator==(const Property& a, const Property& b) { return a.value_ == b.value_; }

 private:
  Control& owner_;
  Prop id_;
  T value_;
};

class Control {
 public:
  enum class Kind {
    Form,
    Label,
    Image,
    Shape,
    CommandButton,
    TextBox,
    CheckBox,
    OptionButton,
    Frame,
    PictureBox,
    Timer,
    Menu,
    StatusBar,
    Panel,
    ProgressBar,
    DriveListBox,
    DirListBox,
    FileListBox
  };

  // `name` must outlive the control (in practice: a literal). An empty name makes a control that this window
  // doesn't have: shared code may set its properties, but nobody ever sees it.
  Control(Kind kind, Control& parent, std::string_view name, int index = -1);
  Control(const Control&) = delete;
  virtual ~Control() = default;

  const Kind kind;
  const std::string_view name;
  const int index;        // in its control array, -1 outside of one
  Control* const parent;  // null for a form
  Form& form;

  bool Exists() const { return !name.empty(); }
  // "frmSumfall.FieldCardPicture(7)"; of a form just its name.
  std::string FullName() const;
  // The name without its form, "" for the form itself.
  std::string NameInForm() const;

  // Calls `visit` with each property.
  virtual void Visit(const PropertyVisitor& visit) const = 0;
  // The value of one property. False if the control has no such property.
  bool Get(Prop prop, Value& value) const;

  // Called by a property that has taken a new value.
  void Changed(Prop prop);

 protected:
  explicit Control(Form& itself, std::string_view name);  // for Form

  // What the control itself does after a change, once the front end knows of it.
  virtual void AfterChange(Prop) {}

  template <class... T>
  static void Tell(const PropertyVisitor& visit, const Property<T>&... properties) {
    (visit(properties.id(), Value(properties.get())), ...);
  }
};

template <class T>
Property<T>& Property<T>::operator=(T value) {
  if (value == value_) return *this;
  value_ = std::move(value);
  owner_.Changed(id_);
  return *this;
}

// A control with a place on the window. Positions are twips, 15 to a pixel, relative to what holds it.
class Visual : public Control {
 public:
  Visual(Kind kind, Control& parent, std::string_view name, int index = -1);

  Property<int> Left{*this, Prop::Left, 0};
  Property<int> Top{*this, Prop::Top, 0};
  Property<int> Width{*this, Prop::Width, 0};
  Property<int> Height{*this, Prop::Height, 0};
  Property<bool> Visible{*this, Prop::Visible, true};
  Property<bool> Enabled{*this, Prop::Enabled, true};
  Property<std::string> ToolTipText{*this, Prop::ToolTipText, ""};
  Property<int> MousePointer{*this, Prop::MousePointer, 0};  // 0 default, 11 hourglass, 99 `MouseIcon`

  int z = 0;  // siblings are drawn in rising order

  void Move(int left, int top, int width, int height) {
    Left = left;
    Top = top;
    Width = width;
    Height = height;
  }
  // 0 brings the control before its siblings, 1 sends it behind them.
  void ZOrder(int position);
  // Takes the keyboard focus.
  void SetFocus();

  std::function<void()> OnClick;
  std::function<void()> OnDblClick;
  std::function<void()> OnMouseMove;
  std::function<void()> OnGotFocus;

  void Visit(const PropertyVisitor& visit) const override;

 protected:
  explicit Visual(Form& itself, std::string_view name) : Control(itself, name) {}
};

// Shows or hides a group at once.
inline void SetVisible(std::initializer_list<Visual*> controls, bool visible) {
  for (Visual* control : controls) control->Visible = visible;
}

// Puts `inner` in the middle of `outer`'s width: both in the same container.
inline void CenterIn(Visual& inner, const Visual& outer) {
  inner.Left = outer.Left + (outer.Width - inner.Width) / 2;
}
inline void CenterWithin(Visual& inner, const Visual& outer) {
  CenterIn(inner, outer);
  inner.Top = outer.Top + (outer.Height - inner.Height) / 2;
}
