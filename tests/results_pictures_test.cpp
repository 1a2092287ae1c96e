// What is said and drawn of games that have ended.
#include <cmath>
#include <limits>
#include <random>

#include "history/deal_number.h"
#include "window/results/charts.h"
#include "window/results/days.h"
#include "window/results/picture.h"
#include "window/results/remarks.h"

namespace results {

namespace {

// Letters that are all equally broad.
class EvenLetters : public Letters {
 public:
  double Breadth(Font font, const std::string& text) const override {
    const auto isLetter = [](char byte) { return (byte & 0xC0) != 0x80; };
    return Height(font) * 0.45 * static_cast<double>(std::ranges::count_if(text, isLetter));
  }
  double Height(Font font) const override { return font == Font::Large ? 22 : 16; }
  double Ascent(Font font) const override { return 0.8 * Height(font); }
};
const EvenLetters letters;

const std::chrono::sys_days kToday = ReadDay("2026-11-22");

// So many games on as many days before today, and every third with the deal of a day.
Page PageWith(int games, int least, int best) {
  std::mt19937 chance(7);
  std::uniform_int_distribution<int> scores(least, best);
  Page page{.title = "Sumfall, 90 seconds, goal 11", .figures = "So many games", .today = kToday};
  for (int i = 0; i < games; ++i) {
    const auto day = kToday - std::chrono::days(300 * (games - 1 - i) / games);
    page.days.push_back(day);
    page.scores.push_back({scores(chance), day});
    if (i % 3 == 0) page.dailies.push_back(day);
  }
  return page;
}

// What a shape takes of the picture.
Area Reach(const Shape& shape) {
  if (shape.kind == Shape::Kind::Text) {
    const double breadth = letters.Breadth(shape.font, shape.text), height = letters.Height(shape.font);
    const Area& area = shape.area;
    const double left =
        area.left + (area.width - (area.width > 0 ? breadth : 0)) * static_cast<int>(shape.across) / 2;
    if (shape.down == Shape::Down::OnLine)
      return {left, area.top - letters.Ascent(shape.font), breadth, height};
    return {left, shape.down == Shape::Down::Top ? area.top : area.top + (area.height - height) / 2, breadth,
            height};
  }
  if (shape.points.empty()) return shape.area;
  const auto [west, east] = std::ranges::minmax(shape.points, {}, &Point::x);
  const auto [north, south] = std::ranges::minmax(shape.points, {}, &Point::y);
  return {west.x, north.y, east.x - west.x, south.y - north.y};
}

bool Overlap(const Area& a, const Area& b) {
  return a.left < b.Right() && b.left < a.Right() && a.top + 3 < b.Bottom() && b.top + 3 < a.Bottom();
}

}  // namespace

TEST(Results, PicturesStayWithinTheirEdgesAtEverySize) {
  constexpr int kMost = std::numeric_limits<int>::max(), kLeast = std::numeric_limits<int>::min();
  constexpr struct {
    int games, least, best;
  } kPages[] = {{1, 0, 0},       {1, kLeast, kLeast}, {2, kLeast, kMost}, {40, -900, 90000},
                {150, 500, 500}, {151, 0, 99},        {3000, 0, 250000}};
  for (const auto& [games, least, best] : kPages)
    for (const double width : {340.0, 479.0, 480.0, 820.0, 1800.0}) {
      const Page page = PageWith(games, least, best);
      Drawing drawing{letters, games % 2 == 0};
      const double height = DrawCharts(drawing, page, width, 200);
      std::vector<std::pair<Area, std::string>> texts;
      const std::string where = std::to_string(games) + " games at " + std::to_string(width);
      for (const Shape& shape : drawing.shapes) {
        const Area area = Reach(shape);
        ASSERT_TRUE(std::isfinite(area.Right()) && std::isfinite(area.Bottom())) << where;
        EXPECT_TRUE(area.left >= -5 && area.top >= 0 && area.Right() <= width + 5 &&
                    area.Bottom() <= height + 1)
            << where << ": " << shape.text << " " << area.left << " " << area.top << " " << area.Right()
            << " " << area.Bottom();
        if (shape.kind == Shape::Kind::Text) texts.emplace_back(area, shape.text);
      }
      if (least == kLeast) continue;  // no score is as long as that
      for (size_t i = 0; i < texts.size(); ++i)
        for (size_t j = 0; j < i; ++j)
          EXPECT_FALSE(Overlap(texts[i].first, texts[j].first))
              << where << ": " << texts[i].second << " over " << texts[j].second;
    }
}

TEST(Results, ALineThatIsTooLongIsCutBetweenLetters) {
  Page page = PageWith(1, 0, 9);
  for (int i = 0; i < 60; ++i) page.figures += "\u00b7 ";
  Drawing drawing{letters, false};
  DrawPage(drawing, page, {0, 0, kLeastWidth, kLeastHeight});
  const auto line = std::ranges::find_if(
      drawing.shapes, [](const Shape& shape) { return shape.text.starts_with("So many"); });
  ASSERT_NE(line, drawing.shapes.end());
  EXPECT_TRUE(line->text.ends_with("\u2026")) << line->text;
  EXPECT_LE(Reach(*line).Right(), kLeastWidth - 10);
  EXPECT_NE(line->text[line->text.size() - 4], '\xC2') << "half a letter";
}

TEST(Results, DaysAreWrittenOut) {
  constexpr struct {
    const char *text, *written, *brief;
  } kDays[] = {{"2026-11-22", "22 November 2026", "22 Nov 2026"},
               {"2024-02-29T23:59:59-11:00", "29 February 2024", "29 Feb 2024"},
               {"2026-09-01T00:00:00+00:00", "1 September 2026", "1 Sep 2026"}};
  for (const auto& [text, written, brief] : kDays) {
    EXPECT_EQ(LongDay(ReadDay(text)), written);
    EXPECT_EQ(ShortDay(ReadDay(text)), brief);
  }
}

TEST(Results, SignsTellWhatTheRoundsHavePaid) {
  GameFacts facts;
  facts.name = "Spirehold";
  facts.deal = 77;
  facts.payments = {500, 1000, 0, 250};
  facts.last = "2026-11-21T12:00:00+01:00,Spirehold,45,,0,3,1750,0,9,77,played,";
  EXPECT_EQ(
      ResultToCopy(facts, {{"Spirehold", 3}}),
      "Card Haven, Spirehold, deal 77, 21 November 2026\n1,750 points  \u2585\u2588\u00b7\u2605\u2583\n");
  facts.last = "2026-11-21T12:00:00+01:00,Spirehold,45,,0,3,1750,0,9,77,given-up,";
  EXPECT_EQ(ResultToCopy(facts, {}), "");
}

TEST(Results, ScalesAreOfRoundNumbersAndRecordsOnlyRise) {
  std::vector<Page::Score> scores;
  for (const int score : {-250, 300, 300, 120, 999, 5}) scores.push_back({score, {}});
  const Bins bins = BinsOf(scores, 10);
  EXPECT_EQ(std::tuple(bins.from, bins.step, bins.counts.size()), std::tuple(-400, 200, 7u));
  EXPECT_EQ(bins.counts, (std::vector<int>{1, 0, 2, 2, 0, 0, 1}));
  EXPECT_EQ(RecordsOf(scores), (std::vector<size_t>{1, 4}));
  EXPECT_EQ(RunningMeans(scores, 2), (std::vector<double>{-250, 25, 300, 210, 559.5, 502}));
}

}  // namespace results
