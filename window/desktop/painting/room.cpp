#include "window/desktop/painting/room.h"

#include <algorithm>

#include "window/desktop/painting/canvas.h"

std::vector<QRect> Taken(const Canvas& board, Over over) {
  std::vector<QRect> taken;
  for (const Control* control : board.form.Controls()) {
    if (control->parent != &board.form || !(IsDrawn(control->kind) || board.WidgetOf(*control))) continue;
    const auto& visual = static_cast<const Visual&>(*control);
    const bool isCard = visual.kind == Control::Kind::Image;
    const bool yields = isCard && (over == Over::Cards || (over == Over::Backs && board.ShowsBack(visual)));
    if (visual.Visible && !yields) taken.push_back(board.ReachOf(visual));
  }
  return taken;
}

QRect FindRoom(const Canvas& board, QSize size, QPoint near, const std::vector<QRect>& taken) {
  constexpr int kStep = 4;
  const QPoint end = board.ToBoard(board.rect().bottomRight());
  QRect best;
  const auto far = [&](const QRect& place) { return (place.center() - near).manhattanLength(); };
  for (int top = kStep; top + size.height() < end.y(); top += kStep)
    for (int left = kStep; left + size.width() < end.x(); left += kStep) {
      const QRect here({left, top}, size), around = here.adjusted(-kStep, -kStep, kStep, kStep);
      if (!best.isNull() && far(here) >= far(best)) continue;
      if (std::ranges::none_of(taken, [&](const QRect& each) { return each.intersects(around); }))
        best = here;
    }
  return best;
}

QRect RoomForHint(const Canvas& board, QSize size) {
  const QPoint end = board.ToBoard(board.rect().bottomRight()), low(end.x() / 2, end.y());
  for (const Over over : {Over::Nothing, Over::Backs, Over::Cards})
    if (const QRect room = FindRoom(board, size, low, Taken(board, over)); !room.isNull()) return room;
  return {low - QPoint(size.width() / 2, size.height()), size};
}
