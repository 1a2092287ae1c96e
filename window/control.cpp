#include "window/control.h"

#include <array>

#include "window/form.h"

std::string_view PropName(Prop prop) {
  static constexpr std::array<std::string_view, 33> kNames = {
      "Alignment", "BackColor",    "BackStyle", "BorderColor", "BorderStyle", "Caption",  "Checked",
      "Drive",     "Enabled",      "FillColor", "FontBold",    "FontName",    "FontSize", "ForeColor",
      "Height",    "Interval",     "Left",      "List",        "ListIndex",   "Max",      "Min",
      "MouseIcon", "MousePointer", "Path",      "Pattern",     "Picture",     "Text",     "ToolTipText",
      "Top",       "Value",        "Visible",   "Width",       "WindowState"};
  return kNames.at(static_cast<size_t>(prop));
}

Control::Control(Kind kind, Control& parent, std::string_view name, int index)
    : kind(kind), name(name), index(index), parent(&parent), form(parent.form) {
  if (Exists()) form.Adopt(*this);
}

Control::Control(Form& itself, std::string_view name)
    : kind(Kind::Form), name(name), index(-1), parent(nullptr), form(itself) {}

std::string Control::NameInForm() const {
  if (kind == Kind::Form) return "";
  std::string result(name);
  if (index >= 0) result += "(" + std::to_string(index) + ")";
  return result;
}

std::string Control::FullName() const {
  if (kind == Kind::Form) return std::string(name);
  return std::string(form.name) + "." + NameInForm();
}

bool Control::Get(Prop prop, Value& value) const {
  bool found = false;
  Visit([&](Prop each, const Value& held) {
    if (each != prop) return;
    value = held;
    found = true;
  });
  return found;
}

void Control::Changed(Prop prop) {
  if (Exists()) form.Notify(*this, prop);
  AfterChange(prop);
}

Visual::Visual(Kind kind, Control& parent, std::string_view name, int index)
    : Control(kind, parent, name, index), z(form.NextZ()) {}

void Visual::ZOrder(int position) { form.Reorder(*this, position); }

void Visual::SetFocus() { form.Focus(*this); }

void Visual::Visit(const PropertyVisitor& visit) const {
  Tell(visit, Left, Top, Width, Height, Visible, Enabled, ToolTipText, MousePointer);
}
