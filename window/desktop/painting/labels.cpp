#include "window/desktop/painting/labels.h"

#include <algorithm>

#include "window/desktop/painting/contrast.h"
#include "window/desktop/painting/lettering.h"
#include "window/desktop/painting/plates.h"
#include "window/desktop/painting/style.h"

namespace {

constexpr int kLargeType = 14;                  // points
constexpr QMarginsF kAround(16, 3, 16, 3);      // letters on a plate
constexpr QMarginsF kBeside(5, 1, 5, 1);        // letters on a tag
constexpr QMarginsF kTogether(16, 16, 16, 16);  // what is announced nearer than that stands on one plate

bool IsOpaque(const Label& label) { return label.BackStyle == 1; }

// Of an opaque label. Plain white and plain black are no colours: they stand for paper, as everywhere.
QColor BackOf(const Label& label) {
  const int told = label.BackColor;
  return told == 0 || told == 0xFFFFFF ? style::kBox : ToColour(told);
}

QRectF LettersOf(const Label& label) { return LayOut(label, ModelRect(label)).bounds; }

// Whether something raised lies beneath the letters already.
bool HasPlate(const Easel& easel, size_t place, const QPointF& middle) {
  return std::any_of(
      easel.scene.begin(), easel.scene.begin() + static_cast<long>(place), [&](const Placed& below) {
        return below.control->kind == Control::Kind::Shape &&
               static_cast<const Shape&>(*below.control).Raised && QRectF(below.rect).contains(middle);
      });
}

// The first of those on one plate brings it.
void PaintItsPlate(const Easel& easel, size_t place, const Label& label) {
  const QRectF plate = PlateOf(label);
  for (size_t i = 0; i < place; ++i)
    if (IsAnnounced(*easel.scene[i].control) &&
        PlateOf(static_cast<const Label&>(*easel.scene[i].control)) == plate)
      return;
  plates::Plate(easel.painter, plate, easel.strong);
}

// What is beneath letters that bring nothing to stand on.
struct Ground {
  enum class Kind { Cloth, Paper, Picture } kind;
  QColor colour;
};

Ground GroundBeneath(const Easel& easel, size_t place, const QRectF& letters) {
  const Ground paper{Ground::Kind::Paper, style::kBox}, picture{Ground::Kind::Picture, style::kBox};
  for (size_t i = place; i-- > 0;) {
    const Placed& below = easel.scene[i];
    if (below.picture != 0 && letters.intersects(below.rect)) return picture;
    if (!QRectF(below.rect).contains(letters.center())) continue;
    switch (below.control->kind) {
      case Control::Kind::PictureBox:
        return picture;  // anything may be drawn there
      case Control::Kind::Frame:
        return static_cast<const Frame&>(*below.control).Panel ? Ground{paper.kind, style::kPanel} : paper;
      case Control::Kind::Label:
        if (const auto& other = static_cast<const Label&>(*below.control); IsOpaque(other))
          return {paper.kind, BackOf(other)};
        break;
      case Control::Kind::Shape:
        if (const auto& shape = static_cast<const Shape&>(*below.control); shape.Sunken || shape.Raised)
          return paper;
        break;
      default:
        break;
    }
  }
  return easel.board ? Ground{Ground::Kind::Cloth, style::kBaize} : Ground{paper.kind, style::kPaper};
}

// Draws what the letters need to stand on. The colour of their ground.
QColor PaintGround(const Easel& easel, size_t place, const QRectF& letters, const QColor& told) {
  const Placed& placed = easel.scene[place];
  const auto& label = static_cast<const Label&>(*placed.control);
  if (IsOpaque(label)) {
    plates::Box(easel.painter, placed.rect, easel.strong, BackOf(label));
    return BackOf(label);
  }
  if (Announces(label)) {
    if (!HasPlate(easel, place, letters.center())) PaintItsPlate(easel, place, label);
  } else if (!letters.isEmpty()) {
    const Ground ground = GroundBeneath(easel, place, letters);
    const bool plain = easel.strong || IsNeutral(told);
    if (ground.kind == Ground::Kind::Paper || (ground.kind == Ground::Kind::Cloth && plain))
      return ground.colour;
    plates::Tag(easel.painter, letters + kBeside, ground.kind == Ground::Kind::Picture, easel.strong);
  }
  return style::kBox;
}

}  // namespace

bool Announces(const Label& label) {
  return label.FontSize >= kLargeType && !IsOpaque(label) && IsOnBaize(label);
}

bool IsAnnounced(const Control& control) {
  if (control.kind != Control::Kind::Label) return false;
  const auto& label = static_cast<const Label&>(control);
  return Announces(label) && IsShown(label);
}

QRectF PlateOf(const Label& label) {
  std::vector<QRectF> others;
  for (const Control* control : label.form.Controls()) {
    if (control == &label || !IsAnnounced(*control)) continue;
    const QRectF letters = LettersOf(static_cast<const Label&>(*control));
    if (!letters.isEmpty()) others.push_back(letters);
  }
  QRectF plate = LettersOf(label);
  const auto joins = [&](const QRectF& other) { return other.intersects(plate + kTogether); };
  for (auto found = std::ranges::find_if(others, joins); found != others.end();
       found = std::ranges::find_if(others, joins)) {
    plate |= *found;
    others.erase(found);
  }
  return (plate + kAround).toAlignedRect();
}

void PaintLabel(const Easel& easel, size_t place) {
  const Placed& placed = easel.scene[place];
  const auto& label = static_cast<const Label&>(*placed.control);
  const TextBlock block = LayOut(label, placed.rect);
  if (block.lines.empty() && !IsOpaque(label)) return;
  const int colour = label.Remark ? 0 : label.ForeColor.get();
  const QColor told = ToColour(easel.calm ? easel.calm->Colour(label, label.Caption, colour) : colour);
  const QColor ground = PaintGround(easel, place, block.bounds, told);
  QPainter& painter = easel.painter;
  painter.setFont(block.font);
  painter.setPen(easel.strong ? Strong(told) : LettersOn(ground, told));
  for (const TextLine& line : block.lines) painter.drawText(line.baseline, line.text);
}

QRect LabelReach(const Label& label, const QRect& rect) {
  const QRectF letters = LayOut(label, rect).bounds;
  QRect reach = IsOpaque(label) ? rect.adjusted(-2, -2, 2, 2) : QRect();
  if (letters.isEmpty()) return reach;
  reach |= letters.toAlignedRect().adjusted(-8, -4, 8, 4);
  return Announces(label) && IsShown(label) ? reach | (PlateOf(label).toRect() + plates::kShadow) : reach;
}
