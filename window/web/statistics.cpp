#include "window/web/statistics.h"

#include <cmath>

#include "window/moments.h"
#include "window/results/days.h"
#include "window/results/picture.h"
#include "window/system/foreign_files.h"
#include "window/web/page.h"

using results::Shape;

namespace {

class PageLetters : public results::Letters {
 public:
  double Breadth(results::Font font, const std::string& text) const override {
    return page::Breadth(text.data(), text.size(), Pixels(font), font != results::Font::Small);
  }
  // As tall as on the desktop.
  double Height(results::Font font) const override { return std::ceil(1.36 * Pixels(font)); }
  double Ascent(results::Font font) const override { return 1.07 * Pixels(font); }

 private:
  static int Pixels(results::Font font) { return font == results::Font::Large ? 16 : 12; }
};

int Tenths(double pixels) { return static_cast<int>(std::lround(10 * pixels)); }

template <class Value>
int Number(Value value) {
  return static_cast<int>(value);
}

// "[kind, fill, its alpha, pen, its alpha, breadth, round, [numbers], text, font, across, down]": an area is
// its corner and its size.
void Write(Json& json, const Shape& shape) {
  json.Open('[').Write(Number(shape.kind)).Write(Number(shape.fill.colour)).Write(shape.fill.alpha);
  json.Write(Number(shape.pen.colour)).Write(shape.pen.alpha);
  json.Write(Tenths(shape.breadth)).Write(Tenths(shape.round)).Open('[');
  if (shape.points.empty())
    for (const double number : {shape.area.left, shape.area.top, shape.area.width, shape.area.height})
      json.Write(Tenths(number));
  for (const results::Point& point : shape.points) json.Write(Tenths(point.x)).Write(Tenths(point.y));
  json.Close(']');
  if (shape.kind == Shape::Kind::Text)
    json.Write(shape.text).Write(Number(shape.font)).Write(Number(shape.across)).Write(Number(shape.down));
  json.Close(']');
}

void Write(Json& json, const results::Drawing& drawing, double width, double height) {
  json.Open('{').Member("width", Tenths(width)).Member("height", Tenths(height)).Key("shapes").Open('[');
  for (const Shape& shape : drawing.shapes) Write(json, shape);
  json.Close(']').Close('}');
}

}  // namespace

StatisticsPage::StatisticsPage(const std::filesystem::path& folder, const std::vector<KnownGame>& known,
                               const DateTime& now)
    : today_(results::ReadDay(IsoText(now))) {
  std::string text;
  ReadForeignFile(folder / kHistoryFile, kLargestHistory, text, why_);
  games_ = ParseHistory(text);
  rows_ = OverviewOf(games_, known, results::ReadDay(UtcDay(now)));
}

void StatisticsPage::Table(Json& json, const std::string& game) const {
  json.Open('{')
      .Member("why", why_)
      .Member("nothing", results::kNothingYet)
      .Member("todo", results::kWhatToDo);
  json.Member("numbers", results::kFirstNumber).Key("columns").Open('[');
  for (const char* column : results::kColumns) json.Write(column);
  json.Close(']').Member("chosen", results::NewestRow(rows_, game)).Key("rows").Open('[');
  for (size_t i = 0; i < rows_.size(); ++i) {
    const results::Page page = PageOf(i);
    json.Open('{').Member("title", page.title).Member("figures", page.figures).Member("latest", page.latest);
    json.Key("cells").Open('[');
    for (const std::string& cell : results::CellsOf(rows_[i])) json.Write(cell);
    json.Close(']').Close('}');
  }
  json.Close(']').Close('}');
}

results::Page StatisticsPage::PageOf(size_t row) const {
  return row < rows_.size() ? results::PageOf(rows_[row], games_, today_) : results::Page();
}

void StatisticsPage::Charts(Json& json, size_t row, int width, int height, bool strong) const {
  const PageLetters letters;
  results::Drawing drawing{letters, strong};
  const double tall = results::DrawCharts(drawing, PageOf(row), width, height);
  Write(json, drawing, width, tall);
}

void StatisticsPage::Picture(Json& json, size_t row, bool strong) const {
  constexpr int kWidth = results::kSavedWidth, kHeight = results::kSavedHeight;
  const PageLetters letters;
  results::Drawing drawing{letters, strong};
  results::DrawPage(drawing, PageOf(row), {0, 0, kWidth, kHeight});
  Write(json, drawing, kWidth, kHeight);
}
