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

namespace {

void CarryOutClick(Control& control) {
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

void CarryOutPress(Form& form, Key key) {
  Visual* focus = form.ActiveControl();
  if (key == Key::Return && focus) {
    if (focus->kind == Control::Kind::TextBox && static_cast<TextBox*>(focus)->OnReturn)
      return Run(*focus, static_cast<TextBox*>(focus)->OnReturn);
    if (focus->kind == Control::Kind::CommandButton) return CarryOutClick(*focus);
    if (focus->kind == Control::Kind::DirListBox) return Run(*focus, focus->OnDblClick);
  }
  for (Control* control : form.Controls()) {
    if (control->kind != Control::Kind::CommandButton) continue;
    const auto& button = static_cast<const CommandButton&>(*control);
    if ((key == Key::Return ? button.Default : button.Cancel) && WhyNot(button).empty())
      return CarryOutClick(*control);
  }
}

void Enter(Event::Kind kind, Control& control, int x = 0, int y = 0) {
  control.form.platform.Enter({kind, &control, x, y});
}

}  // namespace

void CarryOut(const Event& deed) {
  Control& control = *deed.control;
  const auto dispatch = [&](auto what) { control.form.platform.Dispatch(what); };
  switch (deed.kind) {
    case Event::Kind::Click:
      return CarryOutClick(control);
    case Event::Kind::DblClick:
      return Run(control, static_cast<Visual&>(control).OnDblClick);
    case Event::Kind::MouseMove:
      return Run(control, static_cast<Visual&>(control).OnMouseMove);
    case Event::Kind::Focus:
      return dispatch([&] { static_cast<Visual&>(control).SetFocus(); });
    case Event::Kind::Type:
      return dispatch([&] {
        auto& box = static_cast<TextBox&>(control);
        box.SetFocus();
        box.Text = std::string(deed.text);
      });
    case Event::Kind::Select:
      if (deed.x >= static_cast<int>(static_cast<ListControl&>(control).List.get().size())) return;
      return dispatch([&] {
        static_cast<ListControl&>(control).SetFocus();
        static_cast<ListControl&>(control).Pick(deed.x);
      });
    case Event::Kind::Press:
      return CarryOutPress(control.form, deed.key);
    case Event::Kind::Close:
      return dispatch([&] { control.form.Unload(); });
    case Event::Kind::Place:
      control.form.Left = deed.x;
      control.form.Top = deed.y;
      return;
    case Event::Kind::Resize:
      return dispatch([&] { control.form.Move(control.form.Left, control.form.Top, deed.x, deed.y); });
    case Event::Kind::State:
      return dispatch([&] { control.form.WindowState = deed.x; });
    default:
      return;
  }
}

void Click(Control& control) { Enter(Event::Kind::Click, control); }
void DblClick(Control& control) {
  if (control.kind != Control::Kind::Menu) Enter(Event::Kind::DblClick, control);
}
void MouseMove(Control& control) {
  if (control.kind != Control::Kind::Menu) Enter(Event::Kind::MouseMove, control);
}
void Focus(Control& control) { Enter(Event::Kind::Focus, control); }
void Type(TextBox& box, const std::string& text) {
  box.form.platform.Enter({.kind = Event::Kind::Type, .control = &box, .text = text});
}
void Select(Control& list, int entry) { Enter(Event::Kind::Select, list, entry); }
void Press(Form& form, Key key) {
  form.platform.Enter({.kind = Event::Kind::Press, .control = &form, .key = key});
}
void Close(Form& form) { Enter(Event::Kind::Close, form); }
void Place(Form& form, int left, int top) { Enter(Event::Kind::Place, form, left, top); }
void Resize(Form& form, int width, int height) { Enter(Event::Kind::Resize, form, width, height); }
void SetState(Form& form, int state) { Enter(Event::Kind::State, form, state); }

}  // namespace player
