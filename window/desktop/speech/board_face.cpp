#include "window/desktop/speech/board_face.h"

#include "window/desktop/painting/canvas.h"
#include "window/desktop/speech/spoken_window.h"

namespace {

// Asks a guide. Who listens may ask in the middle of anything, and an answer that can't be given is none.
template <class Answer>
Answer Ask(const Guide* guide, Answer (Guide::*question)() const) {
  if (!guide) return {};
  try {
    return (guide->*question)();
  } catch (const std::exception&) {
    return {};
  }
}

}  // namespace

BoardFace::BoardFace(Canvas& canvas) : QAccessibleWidget(&canvas, QAccessible::Pane) {}

SpokenWindow& BoardFace::Window() const { return dynamic_cast<SpokenWindow&>(*widget()->parentWidget()); }

Canvas& BoardFace::Board() const { return *static_cast<Canvas*>(widget()); }

bool BoardFace::Lives() const { return isValid() && Board().Lives(); }

std::vector<Spot> BoardFace::Spots() const {
  return Lives() ? Ask(Board().GetGuide(), &Guide::Spots) : std::vector<Spot>();
}

std::vector<Note> BoardFace::Notes() const { return Lives() ? Board().Notes() : std::vector<Note>(); }

Spot BoardFace::SpotOf(const Control& control) const {
  for (Spot& spot : Spots())
    if (spot.control == &control) return spot;
  return {nullptr, ""};
}

QRect BoardFace::OnScreen(const QRect& area) const {
  const QRect there = Board().ToWindow(area) & Board().rect();
  return {Board().mapToGlobal(there.topLeft()), there.size()};
}
