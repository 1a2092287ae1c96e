#include "window/results/picture.h"

#include "window/results/charts.h"

namespace results {

namespace {

constexpr double kGap = 10;

using Across = Shape::Across;
using Down = Shape::Down;

// As much of a line as has room.
std::string Cut(std::string text, Font font, double room, const Letters& letters) {
  if (letters.Breadth(font, text) <= room) return text;
  constexpr char kMore[] = "\u2026";
  const auto isWithinLetter = [](char byte) { return (byte & 0xC0) == 0x80; };
  while (!text.empty() && letters.Breadth(font, text + kMore) > room) {
    while (text.size() > 1 && isWithinLetter(text.back())) text.pop_back();
    text.pop_back();
  }
  return text + kMore;
}

void Plate(Drawing& drawing, const Area& area) {
  drawing.shapes.push_back({.kind = Shape::Kind::Plate, .area = area});
}

void DrawNothingYet(Drawing& drawing, const Area& area) {
  const Area plate{area.Middle() - 170, area.top + area.height / 2 - 34, 340, 68};
  Plate(drawing, plate);
  drawing.Write({plate.left, plate.top + 10, plate.width, 24}, kNothingYet, Across::Middle, Down::Middle,
                Colour::Ink, Font::Large);
  drawing.Write({plate.left, plate.top + 36, plate.width, 24}, kWhatToDo, Across::Middle, Down::Middle);
}

void DrawSideBySide(Drawing& drawing, const Page& page, const Area& area) {
  const double low = std::min(CalendarHeight(drawing.letters), area.height);
  const Area calendar{area.left, area.Bottom() - low, area.width, low};
  const double breadth = (area.width - kGap) * 0.6, high = calendar.top - kGap - area.top;
  const Area scores{area.left, area.top, breadth, high};
  const double left = area.left + breadth + kGap;
  const Area histogram{left, area.top, area.Right() - left, high};
  for (const Area& plate : {scores, histogram, calendar}) Plate(drawing, plate);
  DrawScores(drawing, page, scores);
  DrawHistogram(drawing, page, histogram);
  DrawCalendar(drawing, page, calendar);
}

}  // namespace

void DrawPage(Drawing& drawing, const Page& page, const Area& area) {
  if (page.days.empty()) return DrawNothingYet(drawing, area);
  Area rest{area.left + kGap, area.top + 4, area.width - 2 * kGap, area.height - 4 - kGap};
  const auto line = [&](const std::string& text, Font font) {
    const double height = drawing.letters.Height(font);
    drawing.Write({rest.left, rest.top, rest.width, height}, Cut(text, font, rest.width, drawing.letters),
                  Across::Left, Down::Middle, Colour::Title, font);
    rest.top += height;
    rest.height -= height;
  };
  line(page.title, Font::Large);
  line(page.figures, Font::Small);
  line(page.latest, Font::Small);
  rest.top += 4;
  rest.height -= 4;
  DrawSideBySide(drawing, page, rest);
}

double DrawCharts(Drawing& drawing, const Page& page, double width, double height) {
  constexpr double kLeastChart = 150, kTall = 190;
  const double days = CalendarHeight(drawing.letters);
  if (width >= kLeastWidth) {
    height = std::max(height, kLeastChart + kGap + days);
    DrawSideBySide(drawing, page, {0, 0, width, height});
    return height;
  }
  const Area scores{0, 0, width, kTall}, histogram{0, kTall + kGap, width, kTall},
      calendar{0, 2 * (kTall + kGap), width, days};
  for (const Area& plate : {scores, histogram, calendar}) Plate(drawing, plate);
  DrawScores(drawing, page, scores);
  DrawHistogram(drawing, page, histogram);
  DrawCalendar(drawing, page, calendar);
  return calendar.Bottom();
}

}  // namespace results
