// Where things stand in Sumfall's window, and what its menus change there.
#include <gtest/gtest.h>

#include "tests/sumfall_cards.h"

using namespace modSumfall;

namespace {

TEST(SumfallWindow, CardsKeepTheirArrangementAtEverySize) {
  TestFolder folder;
  Driver driver(folder.Path());
  driver.Do(kOpenSumfall + kPlay);
  // Seen from place 0, at the window's own size.
  std::vector<std::pair<int, int>> offsets;
  for (int i = 0; i < kPlaces; ++i) {
    const Image& card = SumfallOf(driver).FieldCardPicture(i);
    offsets.emplace_back(card.Left - 4320, card.Top - 1400);
  }
  EXPECT_EQ(offsets[10], std::pair(-3960, 1500));
  EXPECT_EQ(offsets[13], std::pair(1260, 1500));
  const struct {
    const char* command;
    int x, y, width;
  } rows[] = {{"", 4320, 1400, 9540},
              {"resize frmSumfall 12001 9001", 5434, 1750, 12001},  // 5434.4, 1750.2
              {"resize frmSumfall 12003 9005", 5435, 1751, 12003},  // 5435.3, 1750.97
              {"resize frmSumfall 9539 20000", 4320, 1400, 9540},
              {"state frmSumfall 2", 6955, 2240, 15360},
              {"state frmSumfall 0", 4320, 1400, 9540}};
  for (const auto& row : rows) {
    driver.Do(row.command);
    frmSumfall& game = SumfallOf(driver);
    for (int i = 0; i < kPlaces; ++i) {
      EXPECT_EQ(game.FieldCardPicture(i).Left - row.x, offsets[i].first) << row.command;
      EXPECT_EQ(game.FieldCardPicture(i).Top - row.y, offsets[i].second) << row.command;
      EXPECT_EQ(game.FieldSelectionRectangle(i).Left, game.FieldCardPicture(i).Left);
      EXPECT_EQ(game.FieldSelectionRectangle(i).Top, game.FieldCardPicture(i).Top);
      EXPECT_EQ(game.FieldCardPicture(i).ToolTipText, std::to_string(kPoints[i]) + " points");
      EXPECT_EQ(game.FieldCardPicture(i).Width, 1065);
      EXPECT_EQ(game.FieldCardPicture(i).Height, 1455);
    }
    EXPECT_EQ(game.UpCardSelectionRectangle.Left, game.UpCardPicture.Left);
    EXPECT_EQ(game.UpCardPicture.ToolTipText, "100 points");
    for (const Visual* button : {&game.cmdPlay, &game.cmdTakeScore, &game.cmdPause, &game.cmdExit})
      EXPECT_EQ(button->Left, row.width - 1320);
    EXPECT_EQ(game.frmSplash.Left, (row.width - game.frmSplash.Width) / 2);
    EXPECT_EQ(game.StatusBar1.Top + game.StatusBar1.Height, game.Height);
  }
  // A minimised window is left as it stands.
  driver.Do("state frmSumfall 1");
  EXPECT_EQ(driver.Get("frmSumfall.FieldCardPicture(0).Left"), 4320);
}

TEST(SumfallWindow, PointerShowsWhatCanBePlayed) {
  TestFolder folder;
  Driver driver(folder.Path());
  driver.Do(kOpenSumfall + kPlay);
  const auto icon = [&](const std::string& control) {
    driver.Do("move frmSumfall." + control);
    return driver.Get("frmSumfall." + control + ".MouseIcon").get<int>();
  };
  EXPECT_EQ(driver.Get("frmSumfall.FieldCardPicture(3).MousePointer"), 99);
  EXPECT_EQ(icon("FieldCardPicture(7)"), 66);
  EXPECT_EQ(icon("FieldCardPicture(19)"), 0);
  EXPECT_EQ(icon("FieldCardPicture(21)"), 66);
  EXPECT_EQ(icon("UpCardPicture"), 66);
  EXPECT_EQ(icon("PlayCardPicture"), 66);
  SumfallOf(driver).board.field[21].clear();
  EXPECT_EQ(icon("FieldCardPicture(19)"), 66);
  SumfallOf(driver).standing.GameOver();
  for (const char* control : {"FieldCardPicture(19)", "UpCardPicture", "PlayCardPicture"})
    EXPECT_EQ(icon(control), 0);
  SumfallOf(driver).standing.Open();
  SumfallOf(driver).board.stock.clear();
  SumfallOf(driver).board.upCards.clear();
  for (const char* control : {"UpCardPicture", "PlayCardPicture"}) EXPECT_EQ(icon(control), 0);
}

TEST(SumfallTexts, ColoursAndGoalsFollowTheMenus) {
  TestFolder folder;
  Driver driver(folder.Path());
  driver.Do(kOpenSumfall);
  const std::pair<const char*, int> colours[] = {{"mnuYellow", 65535},    {"mnuRed", 255},
                                                 {"mnuBlue", 0xFF0000},   {"mnuGreen", 49152},
                                                 {"mnuPurple", 0x800080}, {"mnuBlack", 0}};
  for (const auto& [menu, colour] : colours) {
    driver.Do("click frmSumfall." + std::string(menu));
    for (const char* shape :
         {"FieldSelectionRectangle(0)", "FieldSelectionRectangle(21)", "UpCardSelectionRectangle"})
      EXPECT_EQ(driver.Get("frmSumfall." + std::string(shape) + ".BorderColor"), colour);
    for (const auto& each : colours)
      EXPECT_EQ(driver.Get("frmSumfall." + std::string(each.first) + ".Checked"), each.first == menu);
  }
  driver.Do("click frmSumfall.mnu13");
  EXPECT_EQ(driver.Text("frmSumfall.lblElevens.Caption"), "Thirteens:");
  EXPECT_EQ(driver.Text("frmSumfall.StatusBar1.Panels(2).Text"), "Click on exposed cards to total 13!   ");
}

}  // namespace
