// A player who clicks at random, hundreds of thousands of times, and counts along.
#include <gtest/gtest.h>

#include <array>
#include <iostream>
#include <random>
#include <set>

#include "tests/sumfall_cards.h"

using namespace modSumfall;

namespace {

// Swallows what the console writes.
class Nowhere : public std::streambuf {
  int_type overflow(int_type letter) override { return traits_type::not_eof(letter); }
  std::streamsize xsputn(const char*, std::streamsize count) override { return count; }
};

class RandomPlayer {
 public:
  RandomPlayer(int goal, long clicks, const std::filesystem::path& folder)
      : goal_(goal),
        wanted_(clicks),
        chance_(static_cast<unsigned>(goal)),
        suite_(console_.platform, {folder}, AllGames()) {
    console_.platform.random.Seed(static_cast<uint64_t>(goal));
    suite_.Start();
    console_.Run();
  }

  long clicks = 0, combinations = 0, flips = 0, rounds = 0, games = 0, boxes = 0, names = 0, pauses = 0;

 private:
  frmSumfall& game() { return static_cast<frmSumfall&>(*suite_.common.window); }
  modCommon& common() { return suite_.common; }
  int Draw(int below) { return static_cast<int>(chance_() % static_cast<unsigned>(below)); }

  // What matters of the game at one moment.
  struct State {
    int sum = 0, total = 0, selected = 0, points = 0, onTable = 0, stock = 0, upCards = 0;
    long long score = 0, combos = 0, round = 0;
    bool running = false, otherSelected = false, topSelected = false, freePlace = false;
  };

  State Look() {
    frmSumfall& f = game();
    State s;
    s.total = static_cast<int>(f.CurrentTotal);
    s.stock = static_cast<int>(f.StockIndex) + 1;
    s.upCards = static_cast<int>(f.UpCardIndex);
    s.score = common().CurrentScore;
    s.combos = f.CombinationCount;
    s.round = f.CurrentRound;
    s.running = common().GameInProgress;
    s.onTable = s.stock + s.upCards;
    for (int i = 0; i < kPlaces; ++i) {
      if (f.FieldCardPicture(i).Visible)
        ++s.onTable;
      else
        s.freePlace = true;
      if (!f.FieldSelectionRectangle(i).Visible) continue;
      s.sum += CardValue(f.FieldCards[i]);
      s.points += kField[i].points;
      ++s.selected;
      (i == 0 ? s.topSelected : s.otherSelected) = true;
    }
    if (f.UpCardSelectionRectangle.Visible) {
      s.sum += CardValue(f.UpCards[f.UpCardIndex]);
      s.points += 100;
      ++s.selected;
      s.otherSelected = true;
    }
    return s;
  }

  // No card is there more often than the deck holds it; the up card of the deal counts once more.
  void CheckCards() {
    frmSumfall& f = game();
    std::array<int, 69> left{};
    const auto slot = [&](const std::string& code) { return common().ImageList2(CardKey(code)); };
    const CardCodes& deck = common().Deck;
    for (int i = 1; i <= UpperBound(deck); ++i) ++left[slot(deck[i])];
    ++left[slot(deck[kPlaces + 1])];
    for (int i = 0; i < kPlaces; ++i)
      if (f.FieldCardPicture(i).Visible) {
        --left[slot(f.FieldCards[i])];
        const int shown = f.FieldCardPicture(i).Picture;
        ASSERT_EQ(shown, f.IsPaused() ? common().ImageList2("BACK") : slot(f.FieldCards[i])) << "place " << i;
      }
    for (int i = 1; i <= f.UpCardIndex; ++i) --left[slot(f.UpCards[i])];
    for (int i = 0; i <= f.StockIndex; ++i) --left[slot(f.StockCards[i])];
    for (int each : left) ASSERT_GE(each, 0) << "a card is there twice";
  }

  // Compares the game with what the last command should have made of it.
  void Check() {
    const State now = Look();
    // A round never follows upon itself, and a game only upon a moment without one.
    const bool goesOn = now.running && before_.running && now.round == before_.round;
    if (!now.running || !goesOn) {
      debt_ = now.sum - now.total;
      gone_ = 0;
      if (now.running) {
        ASSERT_EQ(now.onTable, UpperBound(common().Deck) + 1)
            << "a deal lays all cards, and one of them twice";
        ASSERT_FALSE(now.otherSelected);
        ASSERT_EQ(now.total, 0);
      }
      return;
    }
    if (now.combos == before_.combos + 1) {
      ++combinations;
      gone_ += before_.selected + 1;
      ASSERT_EQ(now.total, 0);
      ASSERT_EQ(now.selected, 0);
      ASSERT_EQ(now.score, before_.score + before_.points + clickedPoints_);
      debt_ = 0;
    } else {
      ASSERT_EQ(now.combos, before_.combos);
      if (now.stock < before_.stock) {  // a flip that the player made
        ++flips;
        ASSERT_EQ(now.stock, before_.stock - 1);
        ASSERT_EQ(now.score, before_.score - (before_.upCards > 0 && before_.freePlace ? 200 : 100));
        ASSERT_EQ(now.selected, 0);
        ASSERT_EQ(now.total, 0);
        debt_ = 0;
      } else {
        ASSERT_EQ(now.score, before_.score);
        if (now.sum - now.total != debt_) {  // only a pause drops the total, and leaves place 0 alone
          ASSERT_EQ(now.total, 0);
          ASSERT_FALSE(now.otherSelected);
          debt_ = now.sum;
        }
      }
    }
    ASSERT_LE(now.total, game().CardGoal);
    ASSERT_EQ(now.onTable + gone_, UpperBound(common().Deck) + 1);
    ASSERT_LE(debt_, 13) << "one card at most is forgotten";
    if (clicks % 16 == 0) CheckCards();
  }

  std::optional<std::string> Next() {
    if (::testing::Test::HasFatalFailure() || clicks >= wanted_) return std::nullopt;
    Platform& platform = console_.platform;
    if (const MessageBox* box = platform.StandingBox()) return Answered(*box);
    if (Form* modal = platform.ModalForm()) return InDialog(*modal);
    if (!common().window) return "click frmSelect.cmdSumfall";
    if (!platform.FindForm("frmSumfall")) {
      ADD_FAILURE() << "the window is missing";
      return std::nullopt;
    }
    if (started_) {
      Check();
      if (::testing::Test::HasFatalFailure()) return std::nullopt;
    }
    started_ = true;
    ++clicks;
    before_ = Look();
    clickedPoints_ = 0;
    return common().GameInProgress ? InGame() : Idle();
  }

  std::string Answered(const MessageBox& box) {
    ++boxes;
    static const std::set<std::string> kKnown = {
        "You have a game in progress, are you sure you want to quit now?",
        "You have a game in progress, are you sure you want to restart now?",
        "You have a game in progress. Are you sure you want to quit now?",
        "This will clear all High Scores. Are You Sure?",
        "Giving up so soon?",
        "Are you sure you want to quit now? Were just getting started!"};
    EXPECT_TRUE(kKnown.count(box.text)) << box.text;
    if (box.buttons == Buttons::OK) return "answer \"OK\"";
    const bool yes = Draw(2) == 0;
    return yes ? "answer \"Yes\"" : "answer \"No\"";
  }

  std::string InDialog(const Form& form) {
    if (form.name == "frmHiScoreName") {
      ++names;
      return Draw(2) == 0 ? "click frmHiScoreName.cmdOK" : "close frmHiScoreName";
    }
    if (form.name == "frmHighScores")
      return Draw(9) == 0 ? "click frmHighScores.cmdClear" : "click frmHighScores.cmdDone";
    if (form.name == "frmRules") return "click frmRules.cmdOK";
    if (form.name == "frmAbout") return "advance 700\nclick frmAbout.cmdCoolDude";
    EXPECT_EQ(form.name, "frmSumfallCustomScoring");
    return "click frmSumfallCustomScoring.cmdOK";
  }

  std::string Idle() {
    switch (Draw(8)) {
      case 0:
        return "click frmSumfall.mnuPlay";
      case 1:
        return "click frmSumfall.cmdTakeScore";  // a replay, or refused
      case 2:
        return "click frmSumfall.mnuScoring";
      case 3:
        return "close frmSumfall";
      default:
        if (game().CardGoal != goal_) return "click frmSumfall.mnu" + std::to_string(goal_);
        ++games;
        return "click frmSumfall.cmdPlay";
    }
  }

  // A card that could be selected now, so that there are combinations: 22 for the up card, -1 if there is
  // none.
  int Fitting() {
    frmSumfall& f = game();
    const int start = Draw(kPlaces);
    for (int i = 0; i < kPlaces; ++i) {
      const int place = (start + i) % kPlaces;
      if (f.FieldCardPicture(place).Visible && !f.FieldSelectionRectangle(place).Visible &&
          f.CheckLegalFieldCardMove(place) && CardValue(f.FieldCards[place]) + f.CurrentTotal <= f.CardGoal)
        return place;
    }
    const bool upFits = f.UpCardIndex > 0 && !f.UpCardSelectionRectangle.Visible &&
                        CardValue(f.UpCards[f.UpCardIndex]) + f.CurrentTotal <= f.CardGoal;
    return upFits ? 22 : -1;
  }

  std::string InGame() {
    if (game().IsPaused() && Draw(3) > 0) return "click frmSumfall.cmdPause";
    const int what = Draw(1000);
    if (what < 930) {
      int target = Draw(100);
      if (target >= 98) return "click frmSumfall.PlayCardPicture";
      if (target >= 23) target = Fitting();
      if (target < 0) return "click frmSumfall.PlayCardPicture";
      if (target >= 22) {
        clickedPoints_ = 100;
        return "click frmSumfall.UpCardPicture";
      }
      clickedPoints_ = kField[target].points;
      return "click frmSumfall.FieldCardPicture(" + std::to_string(target) + ")";
    }
    static constexpr const char* kDesigns[] = {"mnuPalm", "mnuMagic", "mnuNight", "mnuHot"};
    if (what < 950) {
      ++pauses;
      return "click frmSumfall.cmdPause";
    }
    if (what < 960) return "click frmSumfall." + std::string(kDesigns[Draw(4)]);
    if (what < 965)
      return "resize frmSumfall " + std::to_string(6000 + Draw(9000)) + " " +
             std::to_string(5000 + Draw(6000));
    if (what < 967) return "state frmSumfall " + std::to_string(Draw(2) * 2);
    if (what < 975) return Draw(2) ? "click frmSumfall.mnuMusic" : "click frmSumfall.mnuDrawTimer";
    if (what < 980) return Draw(2) ? "click frmSumfall.mnuRules" : "click frmSumfall.mnuViewHiScore";
    if (what < 982) return "click frmSumfall.mnuAbout";
    if (what < 984) return Draw(2) ? "click frmSumfall.cmdPlay" : "click frmSumfall.mnuPlay";
    if (what < 985) return "close frmSumfall";
    if (what < 987)
      return "click frmSumfall.mnu" + std::to_string(kLowestGoal + Draw(6));  // refused in a game
    ++rounds;
    if (what < 993) return "click frmSumfall.cmdTakeScore";
    return "advance " + std::to_string(Draw(30000));
  }

  int goal_;
  long wanted_;
  std::mt19937 chance_;
  State before_;
  bool started_ = false;
  int debt_ = 0, gone_ = 0, clickedPoints_ = 0;
  Nowhere nowhere_;
  std::ostream out_{&nowhere_};
  LiveInput input_{[this] { return Next(); }};
  std::istream in_{&input_};
  ConsoleFrontEnd console_{ConsoleOptions{}, in_, out_};
  Suite suite_;
};

class AtRandom : public ::testing::TestWithParam<int> {};

TEST_P(AtRandom, EveryClickLeavesTheGameWhole) {
  TestFolder folder;
  std::string low;  // a table in which most games find a place
  for (int place = 0; place < 10; ++place) low += "Nobody, " + std::to_string(20000 - 1000 * place) + "\r\n";
  folder.Write("HiScores90_" + std::to_string(GetParam()) + ".Txt", low);
  RandomPlayer player(GetParam(), 200000, folder.Path());
  std::cout << "goal " << GetParam() << ": " << player.clicks << " clicks, " << player.combinations
            << " combinations, " << player.flips << " flips, " << player.pauses << " pauses, "
            << player.rounds << " rounds, " << player.games << " games, " << player.boxes << " boxes, "
            << player.names << " names\n";
  EXPECT_EQ(player.clicks, 200000);
  EXPECT_GT(player.combinations, 2000);
  EXPECT_GT(player.names, 0);
}
INSTANTIATE_TEST_SUITE_P(Goals, AtRandom, ::testing::Range(10, 16));

}  // namespace
