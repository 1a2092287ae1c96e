#include "window/form.h"

#include <algorithm>
#include <stdexcept>

#include "window/platform.h"

Form::Form(Platform& platform, std::string_view name) : Visual(*this, name), platform(platform) {
  Visible = false;
  platform.forms.push_back(this);
}

Form::~Form() { std::erase(platform.forms, this); }

void Form::Load() {
  if (loaded_) return;
  loaded_ = true;
  platform.FormLoaded(*this);
  Form_Load();
}

void Form::Show(bool modal) {
  Load();
  if (!loaded_) return;  // Form_Load may have unloaded it
  if (!shownBefore_) {
    shownBefore_ = true;
    Form_Resize();
  }
  modal_ = modal;
  auto& forms = platform.forms;
  std::erase(forms, this);
  forms.insert(forms.begin(), this);
  platform.FormShown(*this);
  Visible = true;
  Form_Activate();
  if (modal && Visible) platform.RunModal(*this);
}

void Form::Hide() {
  if (!Visible) return;
  Visible = false;
  modal_ = false;
  platform.FormHidden(*this);
}

void Form::Unload() {
  if (!loaded_) return;
  bool cancel = false;
  Form_QueryUnload(cancel);
  if (cancel || !loaded_) return;
  Form_Unload();
  Discard();
  Form_Terminate();
}

void Form::Discard() {
  if (!loaded_) return;
  for (Control* control : controls_)
    if (control->kind == Kind::Timer) static_cast<Timer*>(control)->Enabled = false;
  loaded_ = false;  // from here on nobody is told of changes
  modal_ = false;
  Visible = false;
  shownBefore_ = false;
  platform.FormUnloaded(*this);
}

Control* Form::find(std::string_view wanted, int index) const {
  for (Control* control : controls_)
    if (control->index == index && control->name == wanted) return control;
  return nullptr;
}

void Form::Move(int left, int top, int width, int height) {
  const bool resized = width != Width || height != Height;
  moving_ = true;
  Left = left;
  Top = top;
  Width = width;
  Height = height;
  moving_ = false;
  if (resized && loaded_) Form_Resize();
}

void Form::CenterOnScreen() {
  const Extent screen = platform.ScreenExtent();
  Left = (screen.width - Width) / 2;
  Top = (screen.height - Height) / 2;
}

namespace {

bool CanTakeFocus(const Control& control) {
  switch (control.kind) {
    case Control::Kind::CommandButton:
    case Control::Kind::TextBox:
    case Control::Kind::CheckBox:
    case Control::Kind::OptionButton:
    case Control::Kind::DriveListBox:
    case Control::Kind::DirListBox:
    case Control::Kind::FileListBox:
      break;
    default:
      return false;
  }
  if (!static_cast<const Visual&>(control).Enabled) return false;
  for (const Control* each = &control; each->kind != Control::Kind::Form; each = each->parent)
    if (!static_cast<const Visual*>(each)->Visible) return false;
  return true;
}

}  // namespace

Visual* Form::ActiveControl() const {
  if (focus_ && CanTakeFocus(*focus_)) return focus_;
  for (Control* control : controls_)
    if (CanTakeFocus(*control)) return static_cast<Visual*>(control);
  return nullptr;
}

void Form::Focus(Visual& control) {
  const bool had = focus_ == &control;
  focus_ = &control;
  if (!loaded_) return;
  platform.FocusMoved(control);
  if (!had && control.OnGotFocus) control.OnGotFocus();
}

void Form::Visit(const PropertyVisitor& visit) const {
  Tell(visit, Left, Top, Width, Height, Visible, Enabled, MousePointer, Caption, WindowState);
}

void Form::Adopt(Control& control) { controls_.push_back(&control); }

void Form::Notify(Control& control, Prop prop) {
  if (loaded_) platform.PropertyChanged(control, prop);
}

void Form::Reorder(Visual& control, int position) {
  control.z = position == 0 ? ++highestZ_ : --lowestZ_;
  if (loaded_) platform.OrderChanged(control);
}

void Form::SurfaceCleared(PictureBox& surface) {
  if (loaded_) platform.SurfaceCleared(surface);
}

void Form::SurfaceDrawn(PictureBox& surface, const Stroke& stroke) {
  if (loaded_) platform.SurfaceDrawn(surface, stroke);
}

void Form::AfterChange(Prop prop) {
  if (prop == Prop::WindowState) {
    const int before = shownState_;
    ApplyWindowState();
    if (loaded_) Form_StateChange(before);
  }
  if ((prop == Prop::Width || prop == Prop::Height) && loaded_ && !moving_) Form_Resize();
}

// A maximised form takes the whole screen and remembers where it came from.
void Form::ApplyWindowState() {
  if (shownState_ == window_state::kNormal) {
    normalLeft_ = Left;
    normalTop_ = Top;
    normalWidth_ = Width;
    normalHeight_ = Height;
  }
  shownState_ = WindowState;
  if (shownState_ == window_state::kMaximised) {
    const Extent screen = platform.ScreenExtent();
    Move(0, 0, screen.width, screen.height);
  } else if (shownState_ == window_state::kNormal) {
    Move(normalLeft_, normalTop_, normalWidth_, normalHeight_);
  }
}

void ApplyDesign(Form& form, const Design* rows, size_t count) {
  for (size_t i = 0; i < count; ++i) {
    const Design& row = rows[i];
    bool found = false;
    for (Control* control : form.Controls()) {
      if (control->name != row.name || control->kind == Control::Kind::Menu) continue;
      found = true;
      auto& visual = static_cast<Visual&>(*control);
      visual.Left = row.left;
      visual.Top = row.top;
      visual.Width = row.width;
      visual.Height = row.height;
      if (row.toolTip) visual.ToolTipText = row.toolTip;
      if (!row.caption) continue;
      switch (control->kind) {
        case Control::Kind::Label:
          static_cast<Label*>(control)->Caption = row.caption;
          break;
        case Control::Kind::CommandButton:
          static_cast<CommandButton*>(control)->Caption = row.caption;
          break;
        case Control::Kind::CheckBox:
          static_cast<CheckBox*>(control)->Caption = row.caption;
          break;
        case Control::Kind::OptionButton:
          static_cast<OptionButton*>(control)->Caption = row.caption;
          break;
        case Control::Kind::Frame:
          static_cast<Frame*>(control)->Caption = row.caption;
          break;
        case Control::Kind::TextBox:
          static_cast<TextBox*>(control)->Text = row.caption;
          break;
        default:
          break;
      }
    }
    if (!found) throw std::logic_error(std::string("no control named ") + row.name);
  }
}
