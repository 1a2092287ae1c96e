// Cards, shuffling, the catalogue of pictures, and the selector with its ring of cards.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "games/sumfall/board.h"
#include "tests/driver.h"

namespace {

TEST(Cards, HaveTheValueAtTheirStart) {
  const std::pair<const char*, int> rows[] = {{"1S", 1},   {" 2D", 2},
                                              {"2D", 2},   {" 10D", 10},
                                              {"10D", 10}, {"11H", 11},
                                              {"12C", 12}, {"13S", 13},
                                              {"", 0},     {"  ", 0},
                                              {"S", 0},    {"-3H", 0},
                                              {"1e2", 1},  {"99999999999999999999", 999}};
  for (const auto& [code, value] : rows) {
    if (value == 999)
      EXPECT_GT(CardValue(code), 15) << "a long number must neither fit nor overflow";
    else
      EXPECT_EQ(CardValue(code), value) << code;
  }
  EXPECT_EQ(CardKey(" 10D"), "10D");
}

TEST(Cards, StandardDeckIsInOrder) {
  const CardCodes deck = StandardDeck();
  ASSERT_EQ(UpperBound(deck), 52);
  EXPECT_EQ(deck[0], "");
  const std::pair<int, const char*> rows[] = {{1, " 1S"},  {13, " 13S"}, {14, " 1H"}, {26, " 13H"},
                                              {27, " 1C"}, {39, " 13C"}, {40, " 1D"}, {52, " 13D"}};
  for (const auto& [index, code] : rows) EXPECT_EQ(deck[index], code);
  EXPECT_EQ(std::set<std::string>(deck.begin() + 1, deck.end()).size(), 52u);
}

TEST(Shuffle, ExchangesEveryPositionInTurnWithADrawnOne) {
  TestFolder folder;
  Driver driver(folder.Path());
  modCommon& common = driver.common();
  common.Deck = StandardDeck();
  std::string ones = "random 1..52";
  for (int i = 0; i < 60; ++i) ones += " 1";
  driver.Do(ones);
  EXPECT_TRUE(common.ShuffleDeck());
  EXPECT_EQ(driver.Do("random 1..52"), "ok 8\n") << "as many draws as cards";
  // With the first place drawn each time, every card moves up one and the last comes to the top.
  const CardCodes before = StandardDeck();
  EXPECT_EQ(common.Deck[1], before[52]);
  for (int i = 2; i <= 52; ++i) EXPECT_EQ(common.Deck[i], before[i - 1]);

  // One draw of 2 among draws of one's own place: only these two change, and in the order of the steps.
  driver.Do("random\nrandom 1..52 1 1 3");
  std::string rest = "random 1..52";
  for (int i = 4; i <= 52; ++i) rest += " " + std::to_string(i);
  driver.Do(rest);
  common.Deck = before;
  common.ShuffleDeck();
  EXPECT_EQ(common.Deck[1], before[2]);
  EXPECT_EQ(common.Deck[2], before[1]);
  EXPECT_TRUE(std::equal(before.begin() + 3, before.end(), common.Deck.begin() + 3));

  common.Deck = modSumfall::DeckForGoal(15);
  CardCodes sorted = common.Deck;
  common.ShuffleDeck();
  CardCodes after = common.Deck;
  EXPECT_NE(after, sorted);
  std::ranges::sort(sorted);
  std::ranges::sort(after);
  EXPECT_EQ(after, sorted);
}

// Each place is drawn as often as any other, on the source that a player has: not seeded, on the real clock.
TEST(Shuffle, DrawsEachPlaceAsOften) {
  std::istringstream in;
  std::ostringstream out;
  ConsoleFrontEnd console(ConsoleOptions{}, in, out);
  modCommon common(console.platform, "");
  constexpr int kPlaces = 52, kDraws = 1000 * kPlaces;
  std::map<int, int> counts;
  for (int i = 0; i < kDraws; ++i) ++counts[common.RandomInteger(1, kPlaces)];
  EXPECT_EQ(counts.size(), size_t{kPlaces});
  // A thousand of each; beyond 200 lies one run in ten million.
  for (const auto& [place, count] : counts) EXPECT_NEAR(count, 1000, 200) << place;
}

TEST(Catalogue, HasAPictureBehindEveryEntry) {
  const PictureFiles files = Catalogue();
  ASSERT_EQ(files.size(), 68u);
  const std::filesystem::path pictures = std::filesystem::path(CARDHAVEN_SOURCE) / "data/pictures";
  for (const PictureFile& file : files)
    EXPECT_TRUE(std::filesystem::exists(pictures / file.file)) << file.file;
  const struct {
    int index;
    const char* key;
    int width, height;
  } rows[] = {{1, "FULL", 76, 98},     {2, "BACK", 71, 96},    {14, "1S", 69, 94},  {26, "13S", 69, 94},
              {27, "1H", 69, 94},      {52, "13C", 69, 94},    {53, "1D", 69, 94},  {65, "13D", 69, 94},
              {66, "POINTER", 32, 32}, {67, "Empty", 76, 100}, {68, "SFUP", 71, 96}};
  const ImageList images;
  for (const auto& row : rows) {
    EXPECT_EQ(images(row.key), row.index);
    EXPECT_EQ(files[row.index - 1].width, row.width) << row.key;
    EXPECT_EQ(files[row.index - 1].height, row.height) << row.key;
  }
  EXPECT_EQ(images("HALF"), 3);
  EXPECT_EQ(images("EMPTY"), 13);
  EXPECT_THROW(images("empty"), RuntimeError);
  EXPECT_THROW(images(""), RuntimeError);
}

TEST(Catalogue, EachDesignMovesTheThreeKeys) {
  TestFolder folder;
  Driver driver(folder.Path());
  driver.Do("click frmSelect.cmdSumfall");
  const std::pair<const char*, int> rows[] = {{"mnuHot", 10},  {"mnuMagic", 4}, {"mnuMagic", 4},
                                              {"mnuNight", 7}, {"mnuPalm", 1},  {"mnuHot", 10}};
  for (const auto& [menu, first] : rows) {
    driver.Do("click frmSumfall." + std::string(menu));
    std::string keys;
    for (int i = 1; i <= 12; ++i) keys += driver.common().ImageList2.Key(i) + ",";
    std::string expected;
    for (int i = 1; i <= 12; ++i)
      expected += std::string(i == first       ? "FULL"
                              : i == first + 1 ? "BACK"
                              : i == first + 2 ? "HALF"
                                               : "") +
                  ",";
    EXPECT_EQ(keys, expected) << menu;
    int ticks = 0;
    for (const char* each : {"mnuPalm", "mnuMagic", "mnuNight", "mnuHot"})
      ticks += driver.Get("frmSumfall." + std::string(each) + ".Checked") == true;
    EXPECT_EQ(ticks, 1);
    EXPECT_EQ(driver.common().DeckDesign, (first + 2) / 3);
  }
}

TEST(Selector, ShowsTheSuite) {
  TestFolder folder;
  Driver driver(folder.Path());
  EXPECT_EQ(driver.Text("frmSelect.Caption"), "Quillmark's Card Haven");
  const std::pair<const char*, const char*> captions[] = {
      {"cmdSumfall", "&Sumfall!"},    {"cmdFivestack", "&Fivestack "},
      {"cmdBlackrush", "&Blackrush"}, {"cmdDuopick", "D&uopick"},
      {"cmdSpirehold", "&Spirehold"}, {"cmdHandgrid", "&Handgrid"},
      {"cmdTreyshift", "Trey&shift"}, {"frmGameChoice", "Select your game"},
      {"cmdClose", "&Close"},         {"cmdLaunchBrowser", "&Go to Quillmark's website"}};
  int top = 240;
  for (const auto& [name, caption] : captions) {
    const std::string control = "frmSelect." + std::string(name);
    EXPECT_EQ(driver.Text(control + ".Caption"), caption);
    if (top > 3360) continue;
    EXPECT_EQ(driver.Get(control + ".Top"), top);
    top += 520;
  }
  EXPECT_EQ(driver.Get("frmSelect.Left"), (1024 * 15 - driver.Get("frmSelect.Width").get<int>()) / 2);
  EXPECT_EQ(LinesOf(driver.Do("click frmSelect.cmdLaunchBrowser"), "* shell \"open\" ").size(), 1u);
  const std::string opened = driver.Trace("click frmSelect.cmdSumfall");
  EXPECT_EQ(Joined(LinesOf(opened, "* set frmSelect.")), "MousePointer 11|MousePointer 0|Visible false");
  EXPECT_EQ(opened.substr(opened.rfind("* hide")), "* hide frmSelect\nok\n");
}

TEST(Selector, RingPassesAlternateBacksAndFaces) {
  TestFolder folder;
  Driver driver(folder.Path());
  const auto pictures = [&] {
    std::vector<int> all;
    for (int i = 0; i < 8; ++i)
      all.push_back(driver.Get("frmSelect.imgSplashImage(" + std::to_string(i) + ").Picture"));
    return all;
  };
  const std::vector<int> start = pictures();
  driver.Do("advance 250");
  EXPECT_EQ(pictures(), start) << "the first tick only sends image 0 behind the others";
  const std::string cycle = driver.Trace("advance 4000");
  EXPECT_EQ(LinesOf(cycle, "* set frmSelect.imgSplashImage(").size(), 16u) << "eight pictures, eight borders";
  for (int back : {2, 5, 8, 2, 5}) {
    EXPECT_EQ(pictures(), std::vector<int>(8, back));
    EXPECT_EQ(driver.Get("frmSelect.imgSplashImage(7).BorderStyle"), 0);
    driver.Do("advance 4000");
    for (int face : pictures()) EXPECT_TRUE(face >= 14 && face <= 65) << face;
    EXPECT_EQ(driver.Get("frmSelect.imgSplashImage(0).BorderStyle"), 1);
    driver.Do("advance 4000");
  }
  // In the middle of a pass the first images are new, the last old.
  driver.Do("random 14..65 20 21 22\nadvance 750");
  const std::vector<int> now = pictures();
  EXPECT_EQ(std::vector<int>(now.begin(), now.begin() + 4), (std::vector<int>{20, 21, 22, now[3]}));
  EXPECT_EQ(now[3], 8);
}

TEST(Selector, TellsItsEnd) {
  TestFolder folder;
  for (const char* way : {"click frmSelect.cmdClose", "close frmSelect"}) {
    Driver driver(folder.Path());
    EXPECT_EQ(driver.Do(std::string(way) + "\ntime"), "* unload frmSelect\n* end\n");
  }
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path())) << "the selector keeps nothing";
}

}  // namespace
