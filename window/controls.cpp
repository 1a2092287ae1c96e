#include "window/controls.h"

#include "window/form.h"
#include "window/platform.h"

void Label::Fit() {
  if (!AutoSize) return;
  const Extent extent = form.platform.TextExtent(*this);
  Width = extent.width;
  Height = extent.height;
}

void Label::AfterChange(Prop prop) {
  if (prop == Prop::Caption || prop == Prop::FontSize || prop == Prop::FontBold || prop == Prop::FontName)
    Fit();
  if (prop != Prop::Caption || !OnChange || !form.Loaded()) return;
  constexpr int kDeepest = 100;
  if (changing_ == kDeepest) throw RuntimeError("Out of stack space");
  struct Guard {
    int& depth;
    ~Guard() { --depth; }
  } guard{++changing_};
  OnChange();
}

void Label::Visit(const PropertyVisitor& visit) const {
  Visual::Visit(visit);
  Tell(visit, Caption, ForeColor, BackColor, BackStyle, Alignment, FontName, FontSize, FontBold);
}

void Image::Visit(const PropertyVisitor& visit) const {
  Visual::Visit(visit);
  Tell(visit, Picture, BorderStyle, MouseIcon);
}

void Shape::Visit(const PropertyVisitor& visit) const {
  Visual::Visit(visit);
  Tell(visit, BorderColor, FillColor);
}

void CommandButton::Visit(const PropertyVisitor& visit) const {
  Visual::Visit(visit);
  Tell(visit, Caption);
}

void TextBox::SelectAll() { form.platform.TextSelected(*this); }

void TextBox::Visit(const PropertyVisitor& visit) const {
  Visual::Visit(visit);
  Tell(visit, Text, ForeColor);
}

void CheckBox::Visit(const PropertyVisitor& visit) const {
  Visual::Visit(visit);
  Tell(visit, Caption, Value);
}

void OptionButton::Visit(const PropertyVisitor& visit) const {
  Visual::Visit(visit);
  Tell(visit, Caption, Value);
}

void Frame::Visit(const PropertyVisitor& visit) const {
  Visual::Visit(visit);
  Tell(visit, Caption);
}

void PictureBox::Cls() {
  strokes.clear();
  form.SurfaceCleared(*this);
}

void PictureBox::Draw(const Stroke& stroke) {
  strokes.push_back(stroke);
  form.SurfaceDrawn(*this, stroke);
}

Timer::Timer(Control& parent, std::string_view name) : Control(Kind::Timer, parent, name) {
  if (Exists()) form.platform.timers.Add(*this);
}

Timer::~Timer() {
  if (Exists()) form.platform.timers.Remove(*this);
}

void Timer::AfterChange(Prop) {
  if (Exists()) form.platform.timers.Restart(*this);
}

void Timer::Visit(const PropertyVisitor& visit) const { Tell(visit, Interval, Enabled); }

void Menu::Visit(const PropertyVisitor& visit) const { Tell(visit, Caption, Checked, Enabled, Visible); }

void Panel::Visit(const PropertyVisitor& visit) const { Tell(visit, Text, Width); }

StatusBar::StatusBar(Control& parent, std::string_view name)
    : Visual(Kind::StatusBar, parent, name), panelName_(std::string(name) + ".Panels") {
  for (int i = 0; i < 3; ++i) panels_[i] = std::make_unique<Panel>(*this, panelName_, i + 1);
}

Panel& StatusBar::Panels(int number) {
  if (number < 1 || number > 3) RaiseSubscript();
  return *panels_[number - 1];
}

void ProgressBar::Visit(const PropertyVisitor& visit) const {
  Visual::Visit(visit);
  Tell(visit, Min, Max, Value);
}

std::string WithoutAccessKey(std::string_view caption) {
  std::string result;
  for (size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && i + 1 < caption.size()) ++i;
    result += caption[i];
  }
  return result;
}
