#include "window/player.h"

#include "window/lists.h"

namespace player {
namespace {

std::string WhyNotMenu(const Control& control) {
  for (const Control* each = &control; each->kind == Control::Kind::Menu; each = each->parent) {
    const auto& menu = static_cast<const Menu&>(*each);
    if (!menu.Visible) return menu.FullName() + " is not visible";
    if (!menu.Enabled) return menu.FullName() + " is disabled";
  }
  return "";
}

std::string WhyNotVisual(const Control& control) {
  for (const Control* each = &control; each->kind != Control::Kind::Form; each = each->parent) {
    const auto& visual = static_cast<const Visual&>(*each);
    if (!visual.Visible) return visual.FullName() + " is not visible";
    if (!visual.Enabled) return visual.FullName() + " is disabled";
  }
  return "";
}

void Run(Control& control, const std::function<void()>& handler) {
  if (handler) control.form.platform.Dispatch(handler);
}

void Toggle(CheckBox& box) { box.Value = 1 - box.Value; }

void Choose(OptionButton& option) {
  for (Control* each : option.form.Controls())
    if (each->kind == Control::Kind::OptionButton && each->parent == option.parent)
      static_cast<OptionButton*>(each)->Value = each == &option;
}

}  // namespace

std::string WhyNot(const Form& form) {
  if (!form.Loaded()) return std::string(form.name) + " is not loaded";
  if (!form.Visible) return std::string(form.name) + " is not visible";
  if (form.platform.StandingBox()) return "a message box stands before it";
  const Form* modal = form.platform.ModalForm();
  if (modal && modal != &form) return std::string(modal->name) + " stands before it";
  return "";
}

std::string WhyNot(const Control& control) {
  if (std::string why = WhyNot(control.form); !why.empty()) return why;
  switch (control.kind) {
    case Control::Kind::Form:
      return "";
    case Control::Kind::Menu:
      return WhyNotMenu(control);
    case Control::Kind::Timer:
    case Control::Kind::Panel:
    case Control::Kind::Shape:
      return control.FullName() + " takes no part in what a player does";
    default:
      return WhyNotVisual(control);
  }
}

void Click(Control& control) {
  control.form.platform.front.Clicked(control);
  if (control.kind == Control::Kind::Menu) return Run(control, static_cast<Menu&>(control).OnClick);
  auto& visual = static_cast<Visual&>(control);
  control.form.platform.Dispatch([&] {
    switch (control.kind) {
      case Control::Kind::CommandButton:
      case Control::Kind::TextBox:
      case Control::Kind::DriveListBox:
      case Control::Kind::DirListBox:
      case Control::Kind::FileListBox:
        visual.SetFocus();
        break;
      case Control::Kind::CheckBox:
        visual.SetFocus();
        Toggle(static_cast<CheckBox&>(control));
        break;
      case Control::Kind::OptionButton:
        visual.SetFocus();
        Choose(static_cast<OptionButton&>(control));
        break;
      default:
        break;
    }
    if (const auto handler = visual.OnClick) handler();
  });
}

void DblClick(Control& control) {
  if (control.kind == Control::Kind::Menu) return;
  Run(control, static_cast<Visual&>(control).OnDblClick);
}

void MouseMove(Control& control) {
  if (control.kind == Control::Kind::Menu) return;
  Run(control, static_cast<Visual&>(control).OnMouseMove);
}

void Type(TextBox& box, const std::string& text) {
  box.form.platform.Dispatch([&] {
    box.SetFocus();
    box.Text = text;
  });
}

bool Select(Control& list, int entry) {
  auto& control = static_cast<ListControl&>(list);
  if (entry < 0 || entry >= static_cast<int>(control.List.get().size())) return false;
  list.form.platform.Dispatch([&] {
    control.SetFocus();
    control.Pick(entry);
  });
  return true;
}

void Press(Form& form, Key key) {
  Visual* focus = form.ActiveControl();
  if (key == Key::Return && focus) {
    if (focus->kind == Control::Kind::TextBox && static_cast<TextBox*>(focus)->OnReturn)
      return Run(*focus, static_cast<TextBox*>(focus)->OnReturn);
    if (focus->kind == Control::Kind::CommandButton) return Click(*focus);
    if (focus->kind == Control::Kind::DirListBox) return DblClick(*focus);
  }
  for (Control* control : form.Controls()) {
    if (control->kind != Control::Kind::CommandButton) continue;
    const auto& button = static_cast<const CommandButton&>(*control);
    if ((key == Key::Return ? button.Default : button.Cancel) && WhyNot(button).empty())
      return Click(*control);
  }
}

void Close(Form& form) {
  form.platform.Dispatch([&] { form.Unload(); });
}

void Resize(Form& form, int width, int height) {
  form.platform.Dispatch([&] { form.Move(form.Left, form.Top, width, height); });
}

void SetState(Form& form, int state) {
  form.platform.Dispatch([&] { form.WindowState = state; });
}

}  // namespace player
