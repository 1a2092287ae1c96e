#include "window/desktop/painting/scene.h"

#include <algorithm>
#include <cmath>

#include "window/desktop/painting/pictures.h"

namespace {

constexpr QRect kEverywhere(-100000, -100000, 200000, 200000);

// Frames, picture surfaces and progress bars stand above whatever is only painted on the window.
bool IsOverlay(const Visual& control) {
  return control.kind == Control::Kind::Frame || control.kind == Control::Kind::PictureBox ||
         control.kind == Control::Kind::ProgressBar;
}

Still Seen(const Visual& control, const Stills& stills) {
  if (const auto kept = stills.find(&control); kept != stills.end()) return kept->second;
  if (control.kind != Control::Kind::Image) return {0, false, control.z};
  const auto& image = static_cast<const Image&>(control);
  return {image.Picture, image.BorderStyle == 1, image.z};
}

QRect RectOf(const Visual& control, const Still& still, const Pictures& pictures) {
  QRect rect = ModelRect(control);
  if (control.kind == Control::Kind::Label)
    rect.translate(0, Pixels(static_cast<const Label&>(control).Lower));
  if (still.picture == 0) return rect;
  const int frame = still.framed ? 2 : 0;
  return {rect.topLeft(), pictures.Size(still.picture) + QSize(frame, frame)};
}

void ArrangeWithin(const Control& container, const QRect& clip, const Pictures& pictures,
                   const Stills& stills, Scene& scene) {
  std::vector<Visual*> children;
  for (Control* control : container.form.Controls())
    if (control->parent == &container && IsDrawn(control->kind) && static_cast<Visual*>(control)->Visible)
      children.push_back(static_cast<Visual*>(control));
  std::ranges::stable_sort(children, {}, [&](const Visual* child) {
    return std::pair(IsOverlay(*child), stills.empty() ? child->z : Seen(*child, stills).z);
  });
  for (Visual* child : children) {
    const Still still = Seen(*child, stills);
    const QRect rect = RectOf(*child, still, pictures);
    scene.push_back({child, rect, clip, still.picture, still.framed});
    if (IsOverlay(*child)) ArrangeWithin(*child, clip & rect, pictures, stills, scene);
  }
}

// Whether a control without a picture or without anything to do is passed through by the mouse.
bool LetsMouseThrough(const Visual& control) {
  switch (control.kind) {
    case Control::Kind::Image:
      return false;
    case Control::Kind::Frame:
      return !static_cast<const Frame&>(control).Panel && !control.OnClick && !control.OnMouseMove;
    default:
      return !control.OnClick && !control.OnDblClick && !control.OnMouseMove;
  }
}

}  // namespace

int Pixels(int twips) { return static_cast<int>(std::lround(twips / 15.0)); }

QPoint Origin(const Control& container) {
  if (container.kind == Control::Kind::Form) return {0, 0};
  const auto& visual = static_cast<const Visual&>(container);
  return Origin(*visual.parent) + QPoint(Pixels(visual.Left), Pixels(visual.Top));
}

QRect ModelRect(const Visual& control) {
  const int left = Pixels(control.Left), top = Pixels(control.Top);
  const int right = Pixels(control.Left + control.Width), bottom = Pixels(control.Top + control.Height);
  return QRect(left, top, right - left, bottom - top).translated(Origin(*control.parent));
}

QRect DrawnRect(const Visual& control, const Pictures& pictures) {
  return RectOf(control, Seen(control, {}), pictures);
}

bool IsShown(const Visual& control) {
  for (const Control* each = &control; each->kind != Control::Kind::Form; each = each->parent)
    if (!static_cast<const Visual*>(each)->Visible) return false;
  return true;
}

bool IsDrawn(Control::Kind kind) {
  switch (kind) {
    case Control::Kind::Label:
    case Control::Kind::Image:
    case Control::Kind::Shape:
    case Control::Kind::Frame:
    case Control::Kind::PictureBox:
    case Control::Kind::ProgressBar:
      return true;
    default:
      return false;
  }
}

Scene Arrange(const Form& form, const Pictures& pictures, const Stills& stills) {
  Scene scene;
  ArrangeWithin(form, kEverywhere, pictures, stills, scene);
  return scene;
}

Visual* HitTest(const Scene& scene, QPoint point) {
  Visual* emptyPlace = nullptr;
  for (auto it = scene.rbegin(); it != scene.rend(); ++it) {
    if (!it->rect.contains(point) || !it->clip.contains(point) || LetsMouseThrough(*it->control)) continue;
    // A place without a card shows what lies beneath it, and the player means what shows.
    const bool empty =
        it->control->kind == Control::Kind::Image && static_cast<Image*>(it->control)->Picture == 0;
    if (!empty) {
      const bool panel = it->control->kind == Control::Kind::Frame;
      return panel && emptyPlace ? emptyPlace : it->control;
    }
    if (!emptyPlace) emptyPlace = it->control;
  }
  return emptyPlace;
}

bool IsBoard(const Form& form) {
  return std::ranges::any_of(form.Controls(), [](const Control* control) {
    return control->kind == Control::Kind::Image || control->kind == Control::Kind::Menu;
  });
}

bool IsOnBaize(const Visual& control) {
  return control.parent->kind == Control::Kind::Form && IsBoard(control.form);
}
