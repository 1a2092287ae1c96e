// A round of Sumfall click by click, and what a whole game pays.
#include <gtest/gtest.h>

#include "tests/game_test.h"
#include "tests/sumfall_cards.h"

using namespace modSumfall;

namespace {

const std::string kFlip = "click frmSumfall.PlayCardPicture\n", kUp = "click frmSumfall.UpCardPicture\n";

class Sumfall : public GameTest {
 protected:
  Sumfall() : GameTest("Sumfall", "lblMessage", "HiScores90_11.Txt") { Open(); }
  frmSumfall& game() { return SumfallOf(driver); }
  // Deals a deck that begins with these cards.
  void Deal(const std::vector<std::string>& cards) {
    driver.Do(DrawsFor(DeckForGoal(static_cast<int>(game().CardGoal)), cards) + kPlay);
  }
  // The sounds of some clicks, and what they leave: "Chord.wav ... total score".
  std::string Played(const std::string& commands) {
    std::string all;
    for (const std::string& sound : LinesOf(driver.Trace(commands), "* sound "))
      all += sound.substr(3, sound.size() - 8) + " ";
    return all + Text("lblCurrentTotal.Caption") + " " + Text("lblCurrentScore.Caption");
  }
  // All pairs but the last card of the last are played; the click on that one is given back.
  std::string ClearButOne() {
    const std::string clicks = ClearElevenPairs();
    const size_t last = clicks.rfind("click");
    driver.Do(clicks.substr(0, last));
    return clicks.substr(last);
  }
};

TEST_F(Sumfall, DealsTheDeckAsItLies) {
  const std::string draws = DrawsFor(DeckForGoal(11), {});
  const std::string said = driver.Trace(draws + kPlay);
  EXPECT_EQ(driver.Do("random 1..52"), "ok 0\n");
  const CardCodes deck = DeckForGoal(11);
  for (int i = 0; i < kPlaces; ++i) {
    EXPECT_EQ(game().board.field[i], deck[i + 1]);
    EXPECT_EQ(game().FieldCardPicture(i).Picture, common().ImageList2(CardKey(deck[i + 1])));
    EXPECT_TRUE(game().FieldCardPicture(i).Visible && !game().FieldSelectionRectangle(i).Visible);
  }
  EXPECT_EQ(game().UpCardPicture.Picture, common().ImageList2("8S"));
  EXPECT_EQ(Text("lblCardCount.Caption") + Text("lblCurrentTotal.Caption") + Text("lblTime.Caption"),
            "Cards: 300Time: 90");
  EXPECT_EQ(Text("StatusBar1.Panels(1).Text"), "Make 80,000 for Bonus Round!   ");
  EXPECT_EQ(Text("StatusBar1.Panels(2).Text"), "Click on exposed cards to total 11!   ");
  EXPECT_EQ(game().Round1Deck, deck);
  EXPECT_EQ(game().Round2Deck, CardCodes(53));
  EXPECT_EQ(Text("cmdTakeScore.ToolTipText"), "Ends current round and awards time bonus");
  EXPECT_EQ(Joined(LinesOf(said, "* set frmSumfall.MousePointer ")), "11|0");
}

TEST_F(Sumfall, CombinationsPayByTierAtOnce) {
  auto cards = ElevenPairs();
  std::swap(cards[7], cards[13]);  // 9C at place 7
  cards.push_back("1H");           // the up card
  Deal(cards);
  EXPECT_EQ(Played(ClickField(7) + kUp), "Markq Markq 10 0");
  EXPECT_EQ(Played(kUp + ClickField(7)), "Tick Tick 0 0");
  EXPECT_EQ(Played(ClickField(20) + ClickField(21)), "Markq Markq TwentyOne 0 400");
  EXPECT_EQ(Text("lblCurrentElevens.Caption"), "1");
  EXPECT_FALSE(game().FieldCardPicture(20).Visible || game().FieldCardPicture(21).Visible);
  EXPECT_FALSE(game().FieldSelectionRectangle(20).Visible);
  EXPECT_EQ(Played(ClickField(18) + ClickField(19)), "Markq Markq TwentyOne 0 1,000");
  // Three cards, the up card among them: 500 and 300 and 100. The next card comes up by itself.
  game().board.field[17] = "1C";
  EXPECT_EQ(Played(ClickField(7) + kUp + ClickField(17)), "Markq Markq Markq TwentyOne 0 1,900");
  EXPECT_EQ(Text("lblCurrentElevens.Caption") + Text("lblCardCount.Caption"), "3Cards: 29");
}

TEST_F(Sumfall, FlipsCostMoreWhenTheFieldTakesTheCard) {
  auto cards = ElevenPairs();
  Deal(cards);
  const std::string top = game().board.stock.back();
  EXPECT_EQ(Played(ClickField(20) + kFlip), "Markq Markq 0 -100") << "the selection goes";
  EXPECT_FALSE(game().FieldSelectionRectangle(20).Visible);
  EXPECT_EQ(game().board.upCards.back(), top);
  EXPECT_EQ(Text("lblCardCount.Caption"), "Cards: 29");
  EXPECT_EQ(driver.Get("frmSumfall.lblCurrentScore.ForeColor"), 255) << "red below zero";
  EXPECT_EQ(Played(ClickField(20) + ClickField(21)), "Markq Markq TwentyOne 0 300");
  EXPECT_EQ(driver.Get("frmSumfall.lblCurrentScore.ForeColor"), 0xFF0000);
  EXPECT_EQ(Played(kFlip), "Markq 0 100") << "200 in all";
  EXPECT_EQ(game().board.field[20], top) << "the lowest number that is free";
  EXPECT_TRUE(game().FieldCardPicture(20).Visible && !game().FieldCardPicture(21).Visible);
}

TEST_F(Sumfall, EmptyPilesRefuse) {
  Deal(ElevenPairs());
  std::string pictures;
  for (int n = 30; n > 0; --n) {
    driver.Do(kFlip);
    pictures += common().ImageList2.Key(game().PlayCardPicture.Picture)[0];
  }
  EXPECT_EQ(pictures, "FFFFFFFFFHHHHHHHHHHBBBBBBBBBBE");
  EXPECT_EQ(Text("lblCardCount.Caption"), "Cards: 0");
  EXPECT_EQ(game().board.upCards.back(), game().board.upCards[0]) << "the repeated card comes last";
  EXPECT_EQ(Played(kFlip), "Chord 0 -3,000");
  game().board.upCards.clear();
  EXPECT_EQ(Played(kUp), "Chord 0 -3,000");
}

TEST_F(Sumfall, ASelectionAtTheTopSurvivesAPause) {
  Deal(ElevenPairs());
  for (int place : {3, 4}) game().board.field[place].clear();
  driver.Do(ClickField(0) + ClickField(20) + "click frmSumfall.cmdPause\n");
  EXPECT_EQ(Text("lblCurrentTotal.Caption"), "0");
  driver.Do("click frmSumfall.cmdPause");
  EXPECT_TRUE(game().FieldSelectionRectangle(0).Visible);
  EXPECT_FALSE(game().FieldSelectionRectangle(20).Visible);
  EXPECT_EQ(Played(ClickField(0)), "Tick -1 0");
}

// It stays through the rounds and into the game after an End Game; the end of a game takes it away.
TEST_F(Sumfall, ASelectionAtTheTopEndsWithTheGame) {
  const std::string rectangle = "FieldSelectionRectangle(0).Visible";
  Deal(ElevenPairs());
  for (int place : {3, 4}) game().board.field[place].clear();
  driver.Do(ClickField(0) + kTakeScore);
  EXPECT_EQ(Text(rectangle) + Text("lblCurrentTotal.Caption"), "true0");
  driver.Do("click frmSumfall.cmdPlay\nanswer \"Yes\"\n" + kPlay);
  EXPECT_EQ(Text(rectangle), "true");
  EXPECT_TRUE(game().board.selected[0]);
  driver.Do(kTakeScore + kTakeScore);
  EXPECT_EQ(Text("frmSplash.Visible") + Text(rectangle), "truefalse");
  EXPECT_FALSE(game().board.selected[0]);
}

TEST_F(Sumfall, AClearedFieldPaysThreeBonusesInOrder) {
  Deal(ElevenPairs());
  const std::string last = ClearButOne();
  driver.Do("advance 10000");
  const std::string trace = driver.Trace(last);
  EXPECT_EQ(Told(trace),
            "Markq, TwentyOne, Wingame, \"Completion Bonus! 10000\", 1000, Snap 75 x10, "
            "\"11 Elevens! Bonus = 16500\", Snap 75 x11, \"Speed Bonus! 8000\", 1000, Snap 75 x80, "
            "\"Prepare for Round Two!\", 250 x11, \"\"");
  EXPECT_EQ(Joined(LinesOf(trace, "* set frmSumfall.lblCurrentElevens.Caption ")),
            "\"11\"|\"10\"|\"9\"|\"8\"|\"7\"|\"6\"|\"5\"|\"4\"|\"3\"|\"2\"|\"1\"|\"0\"");
  const auto scores = LinesOf(trace, "* set frmSumfall.lblCurrentScore.Caption ");
  ASSERT_EQ(scores.size(), 1u + 10 + 11 + 80);
  EXPECT_EQ(scores[1] + scores[10] + scores[11] + scores[22], "\"10,600\"\"19,600\"\"21,100\"\"36,200\"");
  EXPECT_EQ(Score(), 9600 + 10000 + 16500 + 8000);
  EXPECT_EQ(Caption("lblCurrentRound") + Caption("lblTime"), "2Time: 90");
  EXPECT_TRUE(Is("Timer1.Enabled") && Is("FieldCardPicture(0).Visible") && !Is("lblMessage.Visible"));
}

TEST_F(Sumfall, WithoutCountingDownTheSumsComeAtOnce) {
  driver.Do("click frmSumfall.mnuDrawTimer");
  Deal(ElevenPairs());
  const std::string trace = driver.Trace(ClearButOne());
  EXPECT_EQ(
      Told(trace),
      "Markq, TwentyOne, Wingame, \"Completion Bonus! 10000\", 1000 x2, \"11 Elevens! Bonus = 16500\", 1000, "
      "\"Speed Bonus! 9000\", 1000 x2, \"Prepare for Round Two!\", 250 x11, \"\"");
  EXPECT_EQ(Joined(LinesOf(trace, "* set frmSumfall.lblCurrentScore.Caption ")),
            "\"9,600\"|\"19,600\"|\"36,100\"|\"45,100\"");
  EXPECT_LT(trace.find("lblCurrentElevens.Caption \"0\""), trace.find("Speed Bonus!"));
}

TEST_F(Sumfall, TheLastSecondIsPaid) {
  driver.Do(kPlay + "advance 89000\n" + kTakeScore);
  EXPECT_EQ(common().CurrentScore, 100);
}

TEST_F(Sumfall, TheBonusRoundIsTheLast) {
  driver.Do("click frmSumfall.mnuMusic\n" + kPlay);
  driver.clock().ElapsedSeconds = driver.clock().TimeLimit;
  driver.Do(kTakeScore);
  driver.clock().ElapsedSeconds = driver.clock().TimeLimit;
  common().CurrentScore = 80000;
  EXPECT_EQ(Tell(kTakeScore), "silence, HighScore, \"Bonus Round!\", 250 x11, \"\", open, music")
      << "the music is started once";
  EXPECT_EQ(Caption("lblCurrentRound"), "Bonus");
  common().CurrentScore = 500000;
  driver.Do(kTakeScore + "click frmHiScoreName.cmdOK\nclick frmHighScores.cmdDone\n");
  EXPECT_FALSE(driver.InGame()) << "there is no fourth round";
  EXPECT_EQ(common().PreviousScore, 509000);
  EXPECT_EQ(Best(), "Unknown User, 509000");
}

TEST_F(Sumfall, AReplayIsCardForCard) {
  driver.Do(kPlay + kTakeScore);
  common().CurrentScore = 100000;
  driver.Do(kTakeScore);
  const CardCodes decks[] = {game().Round1Deck, game().Round2Deck, game().Round3Deck};
  EXPECT_NE(decks[0], decks[1]);
  const std::string name = "click frmHiScoreName.cmdOK\nclick frmHighScores.cmdDone\n";
  driver.Do(kTakeScore + name);
  for (int turn = 0; turn < 2; ++turn) {
    driver.Do(turn == 0 ? "click frmSumfall.cmdTakeScore" : "click frmSumfall.mnuTakeScore");
    for (int round = 0; round < 3; ++round) {
      EXPECT_EQ(common().Deck, decks[round]) << round;
      for (int i = 0; i < kPlaces; ++i) EXPECT_EQ(game().board.field[i], decks[round][i + 1]);
      if (round == 1) common().CurrentScore = 100000;
      driver.Do(kTakeScore + (round == 2 ? name : ""));
    }
  }
  driver.Do(kPlay);
  EXPECT_NE(game().Round1Deck, decks[0]) << "Play shuffles anew";
}

TEST_F(Sumfall, AReplayAfterEndGameShufflesWhatWasNeverReached) {
  driver.Do(kPlay);
  const CardCodes first = game().Round1Deck;
  driver.Do("click frmSumfall.cmdPlay\nanswer \"Yes\"\n" + kTakeScore);
  EXPECT_EQ(common().Deck, first);
  EXPECT_EQ(Text("cmdTakeScore.Caption"), "&Take Score");
  driver.Do(DrawsFor(first, {"10D"}) + kTakeScore);
  EXPECT_EQ(CardKey(common().Deck[1]), "10D") << "round two is drawn";
  EXPECT_EQ(driver.Do("random 1..52"), "ok 0\n");
}

TEST_F(Sumfall, AScoreBeyondAllNumbersEndsTheGameAndNotTheProgram) {
  driver.Do("click frmSumfall.mnu180\n" + kPlay);
  common().TimeBonus = 5000000;
  driver.Do(kTakeScore + kTakeScore);
  EXPECT_EQ(common().CurrentScore, 1800000000);
  const std::string said =
      driver.Do(kTakeScore + "answer \"OK\"\nclick frmHiScoreName.cmdOK\nclick frmHighScores.cmdDone\n");
  EXPECT_EQ(LinesOf(said, "* msgbox ")[0],
            "{\"text\":\"Overflow\",\"title\":\"Sumfall!\",\"icon\":\"critical\",\"buttons\":[\"OK\"]}");
  EXPECT_FALSE(driver.InGame() || common().window->standing.InputIsDead());
  EXPECT_EQ(Text("cmdPlay.Caption") + Text("cmdPlay.Enabled") + Text("MousePointer"), "&Playtrue0");
  driver.Do(kPlay + "advance 1000");
  EXPECT_EQ(Text("lblTime.Caption"), "Time: 179");
}

TEST_F(Sumfall, AStrangeGoalPlaysTheSmallDeck) {
  driver.Do("close frmSumfall\nanswer \"Yes\"");
  folder.Write("Sumfall.Ini", "[CardGoal]\r\n9\r\n");
  driver.Do(kOpenSumfall + kPlay);
  EXPECT_EQ(UpperBound(common().Deck), 52);
  EXPECT_EQ(Text("StatusBar1.Panels(2).Text"), "Click on exposed cards to total 9!   ");
  EXPECT_TRUE(folder.Has("HiScores90_9.Txt"));
}

// The dial was in its last quarter: nothing draws it again while the next round is announced.
TEST(SumfallPlay, AClearedDialStaysClear) {
  TestFolder folder;
  Driver driver(folder.Path());
  driver.Do(kOpenSumfall + "click frmSumfall.mnuDrawTimer\n" + kPlay + "advance 75000");
  const std::string said = driver.Trace(kTakeScore);
  const size_t letThrough = said.find("* doevents");
  ASSERT_NE(letThrough, std::string::npos);
  EXPECT_EQ(said.find("* draw frmSumfall.Surface pie", letThrough), std::string::npos);
}

}  // namespace
