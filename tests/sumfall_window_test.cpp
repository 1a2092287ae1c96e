// Where things stand in Sumfall's window, and its dialogs for scoring and rules.
#include <gtest/gtest.h>

#include <set>

#include "tests/sumfall_cards.h"

using namespace modSumfall;

namespace {

TEST(SumfallWindow, ACardIsCoveredByWhatLiesOnIt) {
  TestFolder folder;
  Driver driver(folder.Path());
  driver.Do(kOpenSumfall);
  auto& card = SumfallOf(driver).FieldCardPicture;
  // Lower rows lie on higher ones. A card that lies on another only together with a card on which it lies
  // itself needs no mention: that one is in the way already.
  const auto lies = [&](int upper, int lower) {
    const int dx = card(upper).Left - card(lower).Left, dy = card(upper).Top - card(lower).Top;
    return dy > 0 && dy < 1455 && std::abs(dx) < 1065;
  };
  for (int place = 0; place < kPlaces; ++place) {
    std::set<int> on, direct;
    for (int other = 0; other < kPlaces; ++other)
      if (lies(other, place)) on.insert(other);
    for (int other : on) {
      bool implied = false;
      for (int between : on) implied |= lies(other, between);
      if (!implied) direct.insert(other);
    }
    if (direct.empty()) direct.insert(place);
    EXPECT_EQ(std::set<int>(std::begin(kCovers[place]), std::end(kCovers[place])), direct) << place;
  }
  // Each row pays a hundred less than the one above it, and lies 500 lower.
  for (int place = 0; place < kPlaces; ++place)
    EXPECT_EQ(card(place).Top - card(0).Top, 5 * (700 - kPoints[place])) << place;
  EXPECT_EQ(Joined({GoalWord(10), GoalWord(11), GoalWord(12), GoalWord(13), GoalWord(14), GoalWord(15)}, ""),
            "Tens:Elevens:Twelves:Thirteens:Fourteens:Fifteens:");
}

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

TEST(SumfallScoring, CustomValuesHaveLimits) {
  TestFolder folder;
  Driver driver(folder.Path());
  driver.Do(kOpenSumfall);
  const std::string sorry = "Sorry, the score ", range = " must fall between 1 and 5,000,000.";
  const struct {
    const char* box;
    std::string message;
  } boxes[] = {
      {"txtBonus", sorry + "required for a Bonus Round" + range},
      {"txtCompletion", sorry + "awarded for completing the upper playing area" + range},
      {"txtElevensBonus", sorry + "awarded for each eleven combination" + range},
      {"txtTimeBonus",
       sorry + "awarded for each second remaining in the game after selecting 'Take Score'" + range},
  };
  const std::string open = "click frmSumfall.mnuScoring\n", ok = "click frmSumfallCustomScoring.cmdOK\n",
                    cancel = "click frmSumfallCustomScoring.cmdCancel\n";
  const auto type = [](const std::string& box, const std::string& text) {
    return "type frmSumfallCustomScoring." + box + " \"" + text + "\"\n";
  };
  for (const auto& box : boxes) {
    for (const char* bad : {"0", "5000001", "", "abc", "-5", "99999999999999999999", "0.9"}) {
      const std::string said = driver.Do(open + type(box.box, bad) + ok + "answer \"OK\"\n" + cancel);
      EXPECT_EQ(Joined(BoxesOf(said)), box.message) << bad;
      EXPECT_TRUE(Contains(said, "\"title\":\"Sumfall!\",\"icon\":\"exclamation\",\"buttons\":[\"OK\"]"));
    }
    EXPECT_FALSE(driver.common().CustomScoringInUse);
    for (const char* good : {"1", "5000000", "5000000 points", "4,000"}) {
      const std::string said = driver.Do(open + type(box.box, good) + ok);
      EXPECT_TRUE(BoxesOf(said).empty()) << good;
      EXPECT_TRUE(Contains(said, "* unload frmSumfallCustomScoring"));
      EXPECT_TRUE(driver.common().CustomScoringInUse);
    }
    driver.Do(open + "click frmSumfallCustomScoring.cmdDefault\n" + ok);
    EXPECT_FALSE(driver.common().CustomScoringInUse) << "back at the defaults";
  }
  // Only the first wrong box is told, and none of the values is taken over.
  std::string said = driver.Do(open + type("txtBonus", "77") + type("txtCompletion", "0") +
                               type("txtTimeBonus", "0") + ok + "answer \"OK\"\n" + cancel);
  EXPECT_EQ(Joined(BoxesOf(said)), boxes[1].message);
  EXPECT_EQ(SumfallOf(driver).BonusRoundScore, 80000);
  driver.Do(open + type("txtBonus", "123456.5") + type("txtTimeBonus", "3.5") + ok);
  EXPECT_EQ(driver.Text("frmSumfall.StatusBar1.Panels(1).Text"), "Make 123,456 for Bonus Round!   ");
  EXPECT_EQ(driver.common().TimeBonus, 4);
  said = driver.Do(open +
                   "get frmSumfallCustomScoring.txtBonus.Text\nget frmSumfallCustomScoring.Caption\n"
                   "get frmSumfallCustomScoring.Frame1.Caption\nclick "
                   "frmSumfallCustomScoring.cmdDefault\nget frmSumfallCustomScoring.txtBonus.Text\n" +
                   cancel);
  EXPECT_EQ(Joined(LinesOf(said, "ok ")),
            "\"123456\"|\"Sumfall! User Options\"|\"Apptitle Scoring Options\"|\"80000\"");
  EXPECT_EQ(SumfallOf(driver).BonusRoundScore, 123456);
  const std::pair<int, const char*> words[] = {{10, "ten"},      {11, "eleven"},   {12, "twelve"},
                                               {13, "thirteen"}, {14, "fourteen"}, {15, "fifteen"}};
  for (const auto& [goal, word] : words) {
    said = driver.Do(
        "click frmSumfall.mnu" + std::to_string(goal) + "\n" + open +
        "get frmSumfallCustomScoring.lblElevenBonus.Caption\nkey frmSumfallCustomScoring \"Escape\"");
    EXPECT_EQ(Joined(LinesOf(said, "ok ")), "\"Score awarded for " + std::string(word) + " combination:\"");
  }
  // The values last as long as the window.
  driver.Do("close frmSumfall\nanswer \"Yes\"\n" + kOpenSumfall);
  EXPECT_EQ(SumfallOf(driver).BonusRoundScore, 80000);
  EXPECT_FALSE(driver.common().CustomScoringInUse);
}

TEST(SumfallTexts, RulesAreComposedOfTheLiveValues) {
  TestFolder folder;
  Driver driver(folder.Path());
  driver.Do(kOpenSumfall);
  const auto rules = [&] {
    const std::string said = driver.Do(
        "click frmSumfall.mnuRules\nget frmRules.lblRules.Text\nget frmRules.Caption\nclick frmRules.cmdOK");
    const auto values = LinesOf(said, "ok ");
    EXPECT_EQ(values.at(1), "\"Sumfall! Rules, Notes and Strategy\"");
    return nlohmann::json::parse(values.at(0)).get<std::string>();
  };
  const auto expected = [](const std::string& limit, const std::string& bonusRound,
                           const std::string& combination, const std::string& completion,
                           const std::string& second, const std::string& command,
                           const std::string& quarter) {
    const std::string gap = "\r\n\r\n";
    return "\r\n" + std::string(30, ' ') + "Sumfall! Rules, Notes and Strategy" + gap +
           "Requirements: To run Sumfall! you need Windows 95 or above and a mouse.  Recommended: "
           "Soundcard." +
           gap +
           "As with most games, the object of Sumfall! is to attain the highest number of points possible. "
           "The game "
           "consists of two rounds, each lasting " +
           limit + " seconds. If you earn more than " + bonusRound +
           " points in these rounds you are awarded an additional bonus round. You earn points in several "
           "ways:" +
           gap + "1. Elevens: Selecting exposed cards that total eleven (the card goal). You are awarded " +
           combination +
           " points for each combination of 11's you select. These points are awarded at the end of each "
           "round. When "
           "selecting cards (to reach the card goal), each card is worth it's face value, aces are worth 1. "
           "The deck "
           "consists of 52 cards; 16 Aces, 4 of each card 2 thru 10 and no face cards." +
           gap +
           " you have the ability to change the card goal from 11 to any number between 10 and 15. When your "
           "card goal "
           "is set to 12, 4 Jacks (each with a value of 11) are added to the deck. When your card goal is "
           "13, 4 Jacks "
           "and 4 Queens are added (Queens have a value of 12). When your card goal is 14 or 15, 4 Jacks, 4 "
           "Queens and "
           "4 Kings are added to the deck. Kings have a value of 13 each. All face cards are in addition to "
           "the "
           "standard deck described above." +
           gap +
           "2. Completion Bonus: If you clear all of the exposed cards (upper deck) you are awarded an "
           "additional " +
           completion +
           " points. Exposed cards are those in the upper playing area. You do not need to use all cards "
           "in the deck to earn the completion bonus." +
           gap + "3. Time Bonus: You are awarded " + second +
           " points for each second remaining in the round after "
           "selecting the '" +
           command + "' command button." + gap +
           "4. Creating Eleven Combinations: When you are selecting cards to create an '11' combination, the "
           "location "
           "of the cards determines points awarded when 11 is reached. The 'Field cards' (upper deck) are "
           "displayed in "
           "6 tiers. Selected cards in tier one (the bottom one) are worth 200 points, cards in tier two are "
           "worth 300 "
           "and so on to tier six which are worth 700 points. Cards selected from the deck are worth 100 "
           "points." +
           gap +
           "Note: Each time you select a new card from the deck your score is decreased by 100 points." +
           gap +
           "Strategy: On the average, you earn a larger number of points by creating eleven combinations as "
           "opposed to "
           "clearing the upper deck. If possible, clear the lower tiers and then sumfall. Try to clear the "
           "upper deck "
           "in the last " +
           quarter + " seconds of play. " + gap + "Good luck and have fun!";
  };
  EXPECT_EQ(rules(), expected("90", "80000", "1500", "10000", "100", "Take Score", "22"));
  driver.Do(
      "click frmSumfall.mnu150\nclick frmSumfall.mnuScoring\n"
      "type frmSumfallCustomScoring.txtBonus \"1234567\"\ntype frmSumfallCustomScoring.txtCompletion \"2\"\n"
      "type frmSumfallCustomScoring.txtElevensBonus \"3\"\ntype frmSumfallCustomScoring.txtTimeBonus \"4\"\n"
      "click frmSumfallCustomScoring.cmdOK\n" +
      kPlay + "click frmSumfall.cmdPlay\nanswer \"Yes\"");
  EXPECT_EQ(rules(), expected("150", "1234567", "3", "2", "4", "Replay", "37"));
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
