// Saving the last game, opening it again, and the command line.
#include <gtest/gtest.h>

#include "tests/sumfall_cards.h"

using namespace modSumfall;

namespace {

std::string SavedText(const std::string& score = "12345", const std::string& limit = "90",
                      const std::string& name = "Ann", const std::string& custom = "False") {
  std::string text = "[Card Goal]\r\n11\r\n[Time Limit]\r\n" + limit + "\r\n[Score]\r\n" + score +
                     "\r\n[Custom]\r\n" + custom + "\r\n[UserName]\r\n" + name + "\r\n[Round 1 Deck]\r\n";
  const CardCodes deck = DeckForGoal(11);
  for (int i = 1; i <= 52; ++i) text += std::string(CardKey(deck[i])) + "\r\n";
  return text;
}

const std::string kDamaged =
    "Unable to open the requested file. It may be damaged or you may have entered an invalid file name.";

std::string OpenFile(const std::string& name) {
  return "click frmSumfall.mnuOpen\ntype frmOpen.txtGameName \"" + name + "\"\nclick frmOpen.cmdOK\n";
}
std::string SaveAs(const std::string& name, const std::string& user) {
  return "click frmSumfall.mnuSave\ntype frmSave.txtGameName \"" + name + "\"\ntype frmSave.txtUserName \"" +
         user + "\"\nclick frmSave.cmdOK\n";
}
const std::string kEndGame = "click frmSumfall.cmdPlay\nanswer \"Yes\"\n";

TEST(SumfallSaved, TheFileHoldsTheDecksOfTheLastGame) {
  TestFolder folder;
  Driver driver(folder.Path());
  driver.Do(kOpenSumfall + "click frmSumfall.mnu13\nclick frmSumfall.mnu60");
  const CardCodes deck = DeckForGoal(13);
  driver.Do(DrawsFor(deck, {}) + kPlay);
  driver.Do("click frmSumfall.PlayCardPicture\n" + kEndGame);
  EXPECT_EQ(driver.Do(SaveAs("one", "")),
            "* load frmSave\n* show frmSave modal\nok\nok\nok\n* unload frmSave\nok\n");
  std::string round;
  for (int i = 1; i <= 60; ++i) round += std::string(CardKey(deck[i])) + "\r\n";
  EXPECT_EQ(
      folder.Read("one.sfl"),
      "[Card Goal]\r\n13\r\n[Time Limit]\r\n60\r\n[Score]\r\n-100\r\n[Custom]\r\nFalse\r\n[UserName]\r\nan "
      "anonymous user\r\n[Round 1 Deck]\r\n" +
          round);
  // With a second round, customised scoring and a name.
  driver.common().CustomScoringInUse = true;
  driver.Do(DrawsFor(deck, {}) + kPlay);
  driver.Do(DrawsFor(deck, {}) + kTakeScore);
  driver.Do(kEndGame + SaveAs("two.txt", "J\xc3\xb6rg"));
  EXPECT_EQ(folder.Read("two.txt"),
            "[Card Goal]\r\n13\r\n[Time "
            "Limit]\r\n60\r\n[Score]\r\n6000\r\n[Custom]\r\nTrue\r\n[UserName]\r\nJ\xc3\xb6rg\r\n[Round 1 "
            "Deck]\r\n" +
                round + "[Round 2 Deck]\r\n" + round);
}

// Its cards are its own, also in a window that plays the deal of the day.
TEST(SumfallSaved, ASavedGameHasNoNumber) {
  TestFolder folder;
  folder.Write("g.sfl", SavedText());
  Driver driver(folder.Path(), {.suite = {.game = "Sumfall", .today = true}});
  driver.Do(kPlay + kEndGame);
  EXPECT_NE(driver.common().deal.Played().number, 0);
  driver.Do(OpenFile("g.sfl") + "answer \"OK\"");
  EXPECT_TRUE(driver.InGame());
  EXPECT_EQ(driver.common().Deck[17], "2S");
  EXPECT_EQ(driver.common().deal.Played().number, 0);
}

TEST(SumfallSaved, OpeningTellsTheStoryAndReplays) {
  const std::pair<const char*, const char*> verdicts[] = {
      {"-500", "amassed a pitiful score of -500"},
      {"19999", "amassed a pitiful score of 19,999"},
      {"20000", "accumulated a sorry score of 20,000"},
      {"40000", "accumulated a sorry score of 40,000"},
      {"40001", "earned a pretty weak score of 40,001"},
      {"60000", "earned a pretty weak score of 60,000"},
      {"60001", "earned a mediocre score of 60,001"},
      {"80000", "earned a mediocre score of 80,000"},
      {"80001", "earned a respectable score of 80,001"},
      {"100000", "earned a respectable score of 100,000"},
      {"100001", "earned a decent score of 100,001"},
      {"120000", "earned a decent score of 120,000"},
      {"120001", "earned a darned good score of 120,001"},
      {"140000", "earned a darned good score of 140,000"},
      {"140001", "earned an incredible score of 140,001"},
      {"160000", "earned an incredible score of 160,000"},
      {"160001", "earned an unbelievable score of 160,001"},
      {"2147483647", "earned an unbelievable score of 2,147,483,647"}};
  TestFolder folder;
  Driver driver(folder.Path());
  driver.Do(kOpenSumfall);
  for (const auto& [score, words] : verdicts) {
    folder.Write("g.sfl", SavedText(score));
    const std::string said = driver.Do(OpenFile("g") + "answer \"OK\"");
    ASSERT_EQ(LinesOf(said, "* msgbox "),
              std::vector<std::string>{
                  "{\"text\":\"This game was saved by Ann. He or she " + std::string(words) +
                  " in this game. Customized scoring was not in effect when this game was played. "
                  "\",\"title\":\"Saved Game Information\",\"icon\":\"information\",\"buttons\":[\"OK\"]}"});
    EXPECT_TRUE(Contains(said, "* unload frmOpen"));
    EXPECT_EQ(driver.common().Deck[52], "10D");
    EXPECT_EQ(driver.Text("frmSumfall.FieldCardPicture(0).Picture"), "14");
    EXPECT_EQ(driver.Text("frmSumfall.cmdTakeScore.Caption"), "&Take Score");
    EXPECT_TRUE(driver.InGame());
    driver.Do(kEndGame);
  }
}

TEST(SumfallSaved, AnotherTimeLimitIsOffered) {
  TestFolder folder;
  folder.Write("g.sfl", SavedText("50000", "30", "Ann", "True"));
  folder.Write("odd.sfl", SavedText("50000", "75"));
  Driver driver(folder.Path());
  driver.Do(kOpenSumfall);
  for (const char* answer : {"No", "Yes"}) {
    const std::string said = driver.Do(OpenFile("g.sfl") + "answer \"" + answer + "\"");
    EXPECT_EQ(Joined(BoxesOf(said)),
              "This game was saved by Ann. He or she earned a pretty weak score of 50,000 in this game. "
              "Customized scoring was in effect when this game was played. "
              "This game was saved with the time limit set to 30. Your time limit is currently set to 90. Do "
              "you want to change your time limit to 30?");
    EXPECT_TRUE(Contains(
        said, "\"title\":\"Saved Game Information\",\"icon\":\"question\",\"buttons\":[\"Yes\",\"No\"]"));
    const bool yes = std::string(answer) == "Yes";
    EXPECT_EQ(driver.Text("frmSumfall.lblTime.Caption"), yes ? "Time: 30" : "Time: 90");
    EXPECT_EQ(driver.Get("frmSumfall.mnu30.Checked"), yes);
    driver.Do(kEndGame);
  }
  driver.Do(OpenFile("odd") + "answer \"Yes\"");
  EXPECT_EQ(driver.Text("frmSumfall.lblTime.Caption"), "Time: 75");
  EXPECT_TRUE(folder.Has("HiScores75_11.Txt"));
}

TEST(SumfallSaved, AReplayOfAFileShufflesTheRoundsItLacks) {
  TestFolder folder;
  std::string text = SavedText();
  folder.Write("one.sfl", text);
  Driver driver(folder.Path());
  driver.Do(kOpenSumfall + OpenFile("one") + "answer \"OK\"");
  driver.Do(DrawsFor(driver.common().Deck, {"10D", "9D"}) + kTakeScore);
  EXPECT_EQ(driver.common().Deck[1] + driver.common().Deck[2], "10D9D");
  driver.Do(kEndGame);
  // A saved and opened game is the same game.
  driver.Do(kPlay + kTakeScore);
  const CardCodes first = SumfallOf(driver).Round1Deck, second = SumfallOf(driver).Round2Deck;
  driver.Do(kEndGame + SaveAs("mine", "Me") + "click frmSumfall.mnu14\n" + OpenFile("mine") +
            "answer \"OK\"");
  EXPECT_EQ(driver.Text("frmSumfall.lblElevens.Caption"), "Elevens:");
  EXPECT_EQ(SumfallOf(driver).board.stock.size(), 30u);
  const auto keys = [](const CardCodes& deck) {
    std::string all;
    for (const std::string& code : deck) all += std::string(CardKey(code)) + " ";
    return all;
  };
  EXPECT_EQ(keys(driver.common().Deck), keys(first));
  driver.Do(kTakeScore);
  EXPECT_EQ(keys(driver.common().Deck), keys(second));
}

TEST(SumfallSaved, NamesWithCommasEndThere) {
  TestFolder folder;
  folder.Write("g.sfl", SavedText("1", "90", "Ann, Bob"));
  Driver driver(folder.Path());
  const std::string said = driver.Do(kOpenSumfall + OpenFile("g") + "answer \"OK\"");
  EXPECT_EQ(BoxesOf(said)[0].substr(0, 40), "This game was saved by Ann. He or she am");
}

TEST(SumfallSaved, DamagedFilesAreToldAndChangeNothing) {
  const std::string good = SavedText();
  const auto with = [&](const std::string& from, const std::string& to) {
    std::string text = good;
    return text.replace(text.find(from), from.size(), to);
  };
  const std::string texts[] = {"",
                               "rubbish",
                               "\r\n" + good,
                               with("[Card Goal]\r\n11", "[Card Goal]\r\n16"),
                               with("[Card Goal]\r\n11", "[Card Goal]\r\neleven"),
                               with("[Card Goal]\r\n11", "[Card Goal]\r\n12"),  // 56 cards are wanted
                               with("[Score]\r\n12345", "[Score]\r\n99999999999"),
                               with("[Time Limit]\r\n90", "[Time Limit]\r\n40000"),
                               with("[Time Limit]\r\n90", "[Time Limit]\r\n0"),
                               good.substr(0, good.size() - 5),
                               good + "[Round 2 Deck]\r\n1S\r\n",
                               std::string(2 << 20, 'x')};
  TestFolder folder;
  Driver driver(folder.Path());
  driver.Do(kOpenSumfall + kPlay + kEndGame);
  const CardCodes deck = driver.common().Deck;
  for (const std::string& text : texts) {
    folder.Write("g.sfl", text);
    const std::string said = driver.Do(OpenFile("g") + "answer \"OK\"\nclick frmOpen.cmdCancel");
    EXPECT_EQ(Joined(BoxesOf(said)), kDamaged) << text.substr(0, 60);
    EXPECT_TRUE(Contains(said, "\"title\":\"Sumfall!\",\"icon\":\"critical\""));
    EXPECT_FALSE(driver.InGame());
    EXPECT_EQ(driver.common().Deck, deck);
    EXPECT_EQ(folder.Read("g.sfl"), text) << "a file that is only opened stays";
  }
  for (const char* name : {"none", "*.sfl", "", "/", ".", "g.sfl/x", "\\u0000"})
    EXPECT_EQ(Joined(BoxesOf(driver.Do(OpenFile(name) + "answer \"OK\"\nclick frmOpen.cmdCancel"))), kDamaged)
        << name;
}

TEST(SumfallSaved, WrongCardsCantBeDealt) {
  // A save before any game holds empty decks; a file may hold cards that are none.
  for (const char* way : {"empty", "face", "stock", "second"}) {
    TestFolder folder;
    Driver driver(folder.Path());
    driver.Do(kOpenSumfall);
    std::string text = SavedText();
    const std::string kind = way;
    if (kind == "empty") {
      driver.Do(SaveAs("g", "Me"));
      EXPECT_EQ(LinesOf(folder.Read("g.sfl"), "[Round").size(), 1u);
    } else {
      const size_t at = kind == "face" ? text.find("1S\r\n") : text.rfind("10D");
      text.replace(at, 2, "7X");
      if (kind == "second")
        text = SavedText() + "[Round 2 Deck]\r\n" + text.substr(text.find("[Round 1 Deck]") + 16);
      folder.Write("g.sfl", text);
    }
    std::string said;
    if (kind == "second") {
      driver.Do(OpenFile("g") + "answer \"OK\"\n");
      said = driver.Do(kTakeScore + "answer \"OK\"\n");
      EXPECT_EQ(Joined(BoxesOf(said)), "Unable to deal the cards.");
      EXPECT_FALSE(driver.InGame());
      EXPECT_EQ(driver.Text("frmSumfall.cmdPlay.Caption") + driver.Text("frmSumfall.cmdPlay.Enabled"),
                "&Playtrue");
      EXPECT_TRUE(driver.Get("frmSumfall.frmSplash.Visible") == true);
      driver.Do(kPlay);
      EXPECT_TRUE(driver.InGame());
      continue;
    }
    said = driver.Do(OpenFile("g") +
                     "answer \"OK\"\nanswer \"OK\"\nanswer \"Cancel\"\nanswer \"No\"\nwindows\n");
    EXPECT_EQ(BoxesOf(said).at(1) + "|" + BoxesOf(said).at(2),
              "Unable to deal the cards.|Unknown Error! Unable to play Sumfall!")
        << kind;
    EXPECT_EQ(BoxesOf(said).size(), 4u) << "the window is unloaded, which asks";
    EXPECT_FALSE(driver.InGame());
    driver.Do(kPlay);
    EXPECT_TRUE(driver.InGame()) << "the suite can be used on";
  }
}

TEST(SumfallSaved, DialogsFindFiles) {
  TestFolder folder;
  std::filesystem::create_directories(folder.Path() / "games" / "deep");
  folder.Write("a.sfl", "x");
  folder.Write("b.txt", "x");
  folder.Write("games/c.SFL", SavedText());
  Driver driver(folder.Path());
  const auto said = LinesOf(
      driver.Do(
          kOpenSumfall +
          "click frmSumfall.mnuOpen\nget frmOpen.Dir1.Path\nget frmOpen.Dir1.List\nget frmOpen.File1.List\n"
          "type frmOpen.txtGameName \"b*\"\nkey frmOpen \"Return\"\nget frmOpen.File1.List\n"
          "type frmOpen.txtGameName \"*.sfl\"\nkey frmOpen \"Return\"\n"
          "select frmOpen.Dir1 1\ndblclick frmOpen.Dir1\nget frmOpen.Dir1.List\nget frmOpen.File1.List\n"
          "select frmOpen.File1 0\nget frmOpen.txtGameName.Text\ndblclick frmOpen.File1\nanswer \"OK\"\n"),
      "ok ");
  ASSERT_EQ(said.size(), 7u) << Joined(said);
  EXPECT_EQ(said[0], nlohmann::json(folder.Path().string()).dump());
  EXPECT_EQ(Joined({said.begin() + 1, said.end()}),
            "[\"..\",\"games\"]|[\"a.sfl\"]|[\"b.txt\"]|[\"..\",\"deep\"]|[\"c.SFL\"]|\"c.SFL\"");
  EXPECT_TRUE(driver.InGame());
  driver.Do(kEndGame);
  const std::string cant =
      "Unable to save the file. Please verify that you have entered a valid path and file name.";
  for (const char* name : {"*.sfl", "none/x", "..", "games/deep/..", ""}) {
    const std::string out = driver.Do(SaveAs(name, "") + "answer \"OK\"\nwindows\nclick frmSave.cmdCancel");
    EXPECT_EQ(Joined(BoxesOf(out)), cant) << name;
    EXPECT_TRUE(Contains(out, "\"name\":\"frmSave\"")) << "the window stays";
  }
}

TEST(SumfallSaved, TheCommandLineOpensAGame) {
  TestFolder folder;
  folder.Write("g.sfl", SavedText());
  RunOptions options;
  options.savedGame = (folder.Path() / "g.sfl").string();
  Driver driver(folder.Path(), options);
  std::string said = driver.Do(kOpenSumfall + "answer \"OK\"\nwindows");
  EXPECT_EQ(BoxesOf(said).size(), 1u);
  EXPECT_TRUE(Contains(said, "\"name\":\"frmSelect\",\"visible\":false"));
  EXPECT_EQ(driver.common().Deck[1], "1S");
  EXPECT_TRUE(driver.InGame());
  options.savedGame = "/no/such/file.sfl";
  Driver other(folder.Path(), options);
  said = other.Do(kOpenSumfall + "answer \"OK\"\n" + kPlay);
  EXPECT_EQ(Joined(BoxesOf(said)), kDamaged);
  EXPECT_TRUE(other.InGame());
}

// A game without cards closes the window that was just opening: the selector must not hide behind it.
TEST(SumfallSaved, AGameWithoutCardsLeavesAWindow) {
  TestFolder folder;
  Driver(folder.Path()).Do(kOpenSumfall + SaveAs("empty", "Ann"));
  RunOptions options;
  options.savedGame = (folder.Path() / "empty.sfl").string();
  for (const char* close : {"Yes", "No"}) {
    Driver driver(folder.Path(), options);
    const std::string said =
        driver.Do(kOpenSumfall + "answer \"OK\"\nanswer \"OK\"\nanswer \"OK\"\nanswer \"" + close +
                  "\"\nget frmSelect.Visible\nget frmSumfall.Visible");
    EXPECT_EQ(BoxesOf(said).size(), 4u) << said;
    const bool closed = std::string(close) == "Yes";
    EXPECT_EQ(driver.Get("frmSelect.Visible"), closed);
    if (closed) continue;
    EXPECT_EQ(driver.Text("frmSumfall.cmdPlay.Caption"), "&Play");
    EXPECT_TRUE(driver.Get("frmSumfall.frmSplash.Visible") == true);
    driver.Do(kPlay);
    EXPECT_TRUE(driver.InGame());
  }
}

TEST(SumfallSaved, ReturnIsOk) {
  TestFolder folder;
  Driver driver(folder.Path());
  driver.Do(kOpenSumfall +
            "click frmSumfall.mnuSave\ntype frmSave.txtGameName \"one\"\ntype frmSave.txtUserName \"Ann\"\n"
            "key frmSave \"Return\"");
  EXPECT_TRUE(folder.Has("one.sfl"));
}

}  // namespace
