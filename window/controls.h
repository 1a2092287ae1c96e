// The kinds of control that a window is made of.
#pragma once

#include <array>
#include <memory>

#include "window/control.h"
#include "window/number.h"

// What letters look like.
struct Lettering {
  explicit Lettering(Control& owner)
      : FontName(owner, Prop::FontName, ""),
        FontSize(owner, Prop::FontSize, 8),
        FontBold(owner, Prop::FontBold, false) {}
  Property<std::string> FontName;  // "" for the front end's own
  Property<int> FontSize;          // points
  Property<bool> FontBold;
};

class Label : public Visual, public Lettering {
 public:
  Label(Control& parent, std::string_view name, int index = -1)
      : Visual(Kind::Label, parent, name, index), Lettering(static_cast<Control&>(*this)) {}

  Property<std::string> Caption{*this, Prop::Caption, ""};
  Property<int> ForeColor{*this, Prop::ForeColor, 0};
  Property<int> BackColor{*this, Prop::BackColor, 0xFFFFFF};  // of an opaque label
  Property<int> BackStyle{*this, Prop::BackStyle, 0};         // 0 transparent, 1 opaque
  Property<int> Alignment{*this, Prop::Alignment, 0};         // 0 left, 1 right, 2 centre
  bool AutoSize = false;  // width and height follow the caption; else it wraps
  int Lower = 0;          // twips by which it is drawn lower than it stands
  bool Remark = false;    // says something of what it stands beside: drawn strong, in no colour of its own

  // The caption has taken a new text, and an `AutoSize` label its new size. May set the caption again, which
  // is told at once; without end raises "Out of stack space".
  std::function<void()> OnChange;

  // Fits the size to the caption if `AutoSize`.
  void Fit();
  void Visit(const PropertyVisitor& visit) const override;

 protected:
  void AfterChange(Prop prop) override;

 private:
  int changing_ = 0;  // how many `OnChange` are under way
};

class Image : public Visual {
 public:
  Image(Control& parent, std::string_view name, int index = -1) : Visual(Kind::Image, parent, name, index) {}

  Property<int> Picture{*this, Prop::Picture, 0};          // catalogue index, 0 for none
  Property<int> BorderStyle{*this, Prop::BorderStyle, 0};  // 1 draws a thin frame around the picture
  Property<int> MouseIcon{*this, Prop::MouseIcon, 0};      // shown while `MousePointer` is 99

  void Visit(const PropertyVisitor& visit) const override;
};

// A rectangle, or with no width or height a line.
class Shape : public Visual {
 public:
  Shape(Control& parent, std::string_view name, int index = -1) : Visual(Kind::Shape, parent, name, index) {}

  Property<int> BorderColor{*this, Prop::BorderColor, 0};
  Property<int> FillColor{*this, Prop::FillColor, 0};
  int BorderWidth = 1;  // pixels
  bool Sunken = false;  // drawn as a box let into the window, a score box
  bool Raised = false;  // drawn as a plate on the window, on which something is announced

  void Visit(const PropertyVisitor& visit) const override;
};

class CommandButton : public Visual {
 public:
  CommandButton(Control& parent, std::string_view name, int index = -1)
      : Visual(Kind::CommandButton, parent, name, index) {}

  Property<std::string> Caption{*this, Prop::Caption, ""};
  bool Default = false;  // pressed by Return
  bool Cancel = false;   // pressed by Escape

  void Visit(const PropertyVisitor& visit) const override;
};

class TextBox : public Visual {
 public:
  TextBox(Control& parent, std::string_view name) : Visual(Kind::TextBox, parent, name) {}

  Property<std::string> Text{*this, Prop::Text, ""};
  Property<int> ForeColor{*this, Prop::ForeColor, 0};
  bool MultiLine = false;  // with a vertical scroll bar
  bool Locked = false;     // can be read and copied, not written

  std::function<void()> OnReturn;  // takes the Return key from the default button

  void SelectAll();
  void Visit(const PropertyVisitor& visit) const override;
};

class CheckBox : public Visual {
 public:
  CheckBox(Control& parent, std::string_view name) : Visual(Kind::CheckBox, parent, name) {}

  Property<std::string> Caption{*this, Prop::Caption, ""};
  Property<int> Value{*this, Prop::Value, 0};  // 0 or 1

  void Visit(const PropertyVisitor& visit) const override;
};

// One of a group: the group is all option buttons with the same parent.
class OptionButton : public Visual {
 public:
  OptionButton(Control& parent, std::string_view name) : Visual(Kind::OptionButton, parent, name) {}

  Property<std::string> Caption{*this, Prop::Caption, ""};
  Property<bool> Value{*this, Prop::Value, false};

  void Visit(const PropertyVisitor& visit) const override;
};

class Frame : public Visual {
 public:
  Frame(Control& parent, std::string_view name) : Visual(Kind::Frame, parent, name) {}

  Property<std::string> Caption{*this, Prop::Caption, ""};
  bool Panel = false;  // a raised panel without a caption line

  void Visit(const PropertyVisitor& visit) const override;
};

// One stroke on a picture surface.
struct Stroke {
  enum class Kind { Pie, Line, Circle } kind;
  double start = 0, end = 0;           // Pie: degrees clockwise from the top
  int x1 = 0, y1 = 0, x2 = 0, y2 = 0;  // Line: twips on the surface
  int x = 0, y = 0;                    // Pie, Circle: the centre
  double radius = 0;                   // Pie, Circle
  int colour = 0;
};

// A surface that keeps what was drawn on it since it was last cleared.
class PictureBox : public Visual {
 public:
  PictureBox(Control& parent, std::string_view name) : Visual(Kind::PictureBox, parent, name) {}

  std::vector<Stroke> strokes;

  void Cls();
  void Draw(const Stroke& stroke);
};

// Ticks every `Interval` milliseconds while enabled. Enabling starts the interval anew.
class Timer : public Control {
 public:
  Timer(Control& parent, std::string_view name);
  ~Timer() override;

  Property<int> Interval{*this, Prop::Interval, 0};
  Property<bool> Enabled{*this, Prop::Enabled, false};

  std::function<void()> OnTimer;

  void Visit(const PropertyVisitor& visit) const override;

 protected:
  void AfterChange(Prop prop) override;
};

// A menu or menu entry; the caption "-" is a separator.
class Menu : public Control {
 public:
  Menu(Control& parent, std::string_view name) : Control(Kind::Menu, parent, name) {}

  Property<std::string> Caption{*this, Prop::Caption, ""};
  Property<bool> Checked{*this, Prop::Checked, false};
  Property<bool> Enabled{*this, Prop::Enabled, true};
  Property<bool> Visible{*this, Prop::Visible, true};
  int rank = 50;  // siblings stand in rising rank, those of one rank in the order in which they were made

  std::function<void()> OnClick;

  void Visit(const PropertyVisitor& visit) const override;
};

class Panel : public Control {
 public:
  Panel(Control& bar, std::string_view name, int index) : Control(Kind::Panel, bar, name, index) {}

  Property<std::string> Text{*this, Prop::Text, ""};
  Property<int> Width{*this, Prop::Width, 0};

  void Visit(const PropertyVisitor& visit) const override;
};

// A bar with three panels along the bottom of its window.
class StatusBar : public Visual {
 public:
  StatusBar(Control& parent, std::string_view name);

  // `number` is 1 to 3; raises "Subscript out of range" for others.
  Panel& Panels(int number);

 private:
  std::string panelName_;
  std::array<std::unique_ptr<Panel>, 3> panels_;
};

class ProgressBar : public Visual {
 public:
  ProgressBar(Control& parent, std::string_view name) : Visual(Kind::ProgressBar, parent, name) {}

  Property<int> Min{*this, Prop::Min, 0};
  Property<int> Max{*this, Prop::Max, 100};
  Property<int> Value{*this, Prop::Value, 0};

  void Visit(const PropertyVisitor& visit) const override;
};

// A numbered row of like controls, N of them from index `First` on.
template <class T, int N, int First = 0>
class ControlArray {
 public:
  ControlArray(Control& parent, std::string_view name) {
    for (int i = 0; i < N; ++i) items_[i] = std::make_unique<T>(parent, name, First + i);
  }
  // Raises "Subscript out of range" outside the row.
  T& operator()(long long index) {
    if (index < First || index >= First + N) RaiseSubscript();
    return *items_[index - First];
  }
  const T& operator()(long long index) const { return const_cast<ControlArray&>(*this)(index); }
  static constexpr int size() { return N; }

  // Gives that property of all of them the value.
  void Set(auto property, const auto& value) {
    for (const auto& item : items_) (*item).*property = value;
  }
  void OnClick(const std::function<void(int)>& handler) {
    for (int i = 0; i < N; ++i) items_[i]->OnClick = [handler, i] { handler(First + i); };
  }
  void OnMouseMove(const std::function<void(int)>& handler) {
    for (int i = 0; i < N; ++i) items_[i]->OnMouseMove = [handler, i] { handler(First + i); };
  }

 private:
  std::array<std::unique_ptr<T>, N> items_;
};

// The text as a player reads it: without the marks of the access keys.
std::string WithoutAccessKey(std::string_view caption);
