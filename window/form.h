// A window: the owner of named controls, and the events that every window may answer.
#pragma once

#include <vector>

#include "window/controls.h"

class Platform;

namespace window_state {
inline constexpr int kNormal = 0;
inline constexpr int kMinimised = 1;
inline constexpr int kMaximised = 2;
}  // namespace window_state

class Form : public Visual {
 public:
  Form(Platform& platform, std::string_view name);
  ~Form() override;

  Platform& platform;

  Property<std::string> Caption{*this, Prop::Caption, ""};
  Property<int> WindowState{*this, Prop::WindowState, window_state::kNormal};
  bool Sizable = false;  // the player may resize it; else it is a dialog of fixed size
  int MinWidth = 0,
      MinHeight = 0;  // what a front end should offer at least, twips; the window itself decides

  // Brings the form into being: `Form_Load` runs. Does nothing if it is loaded.
  void Load();
  // Loads the form if need be and shows it before the others. A modal one returns when it is hidden or gone.
  void Show(bool modal = false);
  void Hide();
  // Asks `Form_QueryUnload`; unless that cancels, the form is gone afterwards.
  void Unload();

  // Takes the form away without asking or telling it.
  void Discard();

  bool Loaded() const { return loaded_; }
  bool Modal() const { return modal_; }

  // The control of that name, and of that index if it is one of an array; null if there is none.
  Control* find(std::string_view name, int index = -1) const;
  // All controls in the order in which they were made.
  const std::vector<Control*>& Controls() const { return controls_; }

  // Sets place and size at once, with one resize event at most.
  void Move(int left, int top, int width, int height);
  // Puts the form in the middle of the screen.
  void CenterOnScreen();

  // The control with the keyboard focus; null if nothing on the form can have it.
  Visual* ActiveControl() const;
  void Focus(Visual& control);

  virtual void Form_Load() {}
  virtual void Form_Activate() {}
  virtual void Form_Resize() {}
  virtual void Form_StateChange(int /*before*/) {}  // `WindowState` was `before`; the new size is there
  virtual void Form_QueryUnload(bool& /*cancel*/) {}
  virtual void Form_Unload() {}     // before the form is gone
  virtual void Form_Terminate() {}  // after it

  void Visit(const PropertyVisitor& visit) const override;

  // For the controls.
  void Adopt(Control& control);
  void Notify(Control& control, Prop prop);
  int NextZ() { return ++highestZ_; }
  void Reorder(Visual& control, int position);
  void SurfaceCleared(PictureBox& surface);
  void SurfaceDrawn(PictureBox& surface, const Stroke& stroke);

 protected:
  void AfterChange(Prop prop) override;

 private:
  void ApplyWindowState();

  std::vector<Control*> controls_;
  Visual* focus_ = nullptr;
  bool loaded_ = false, modal_ = false, shownBefore_ = false, moving_ = false;
  int lowestZ_ = 0, highestZ_ = 0;
  int shownState_ = window_state::kNormal;
  int normalLeft_ = 0, normalTop_ = 0, normalWidth_ = 0, normalHeight_ = 0;
};

// One row of a window's design: where a control stands and what it says. Null texts leave a property alone.
struct Design {
  const char* name;
  int left, top, width, height;
  const char* caption = nullptr;  // the text of a text box
  const char* toolTip = nullptr;
};

// Places the controls of a form as a table tells. Every row must name a control (an array's name serves its
// whole row).
void ApplyDesign(Form& form, const Design* rows, size_t count);
template <size_t N>
void ApplyDesign(Form& form, const Design (&rows)[N]) {
  ApplyDesign(form, rows, N);
}
