// Deals: the same cards for the same number, in every game, however one came there.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <numeric>
#include <sstream>

#include "suite/deal.h"
#include "tests/driver.h"
#include "window/text.h"

namespace {

struct Example {
  int number;
  std::string game;
  int round;
  std::string cards;
};

std::vector<std::vector<std::string>> PageLines(const std::string& kind) {
  std::ifstream page(CARDHAVEN_SOURCE "/docs/deals.md");
  std::vector<std::vector<std::string>> found;
  for (std::string line; std::getline(page, line);) {
    std::istringstream words(line);
    std::vector<std::string> parts;
    for (std::string word; words >> word;) parts.push_back(word);
    if (!parts.empty() && parts[0] == kind && parts.size() > 3) found.push_back(parts);
  }
  return found;
}

std::string CardsOf(const CardCodes& deck) {
  std::string cards;
  for (int i = 1; i <= UpperBound(deck); ++i) cards += " " + std::string(CardKey(deck[i]));
  return cards;
}

// A suite in which games are begun by a deal.
class Dealt {
 public:
  Dealt(const std::string& game, int number, uint64_t seed = 7)
      : game(game), driver(folder.Path(), {.seed = seed}) {
    driver.common().askedDeal = {number, true};
    driver.Do("click frmSelect.cmd" + game);
  }
  std::string window() const { return "frm" + game; }
  void Begin() { driver.Do("click " + window() + ".cmdPlay"); }
  // Lets the clock end the round, where the game deals another.
  void NextRound() {
    const int before = driver.common().deal.Decks();
    for (int i = 0; i < 2000 && driver.common().deal.Decks() == before && driver.InGame(); ++i)
      driver.Do("advance 1000");
  }
  std::string Cards() { return CardsOf(driver.common().Deck); }

  TestFolder folder;
  std::string game;
  Driver driver;
};

}  // namespace

TEST(Deals, ThePageTellsTheCardsOfTwoRoundsInAllGames) {
  std::map<std::pair<std::string, std::string>, std::vector<std::string>> deals;
  for (const auto& parts : PageLines("deal")) {
    std::string cards;
    for (size_t i = 4; i < parts.size(); ++i) cards += " " + parts[i];
    deals[{parts[2], parts[1]}].push_back(cards);
  }
  ASSERT_EQ(deals.size(), 14u);
  for (const auto& [deal, rounds] : deals) {
    Dealt dealt(deal.first, std::stoi(deal.second));
    dealt.Begin();
    EXPECT_EQ(dealt.Cards(), rounds.at(0)) << deal.first;
    dealt.NextRound();
    EXPECT_EQ(dealt.Cards(), rounds.at(1)) << deal.first;
  }
}

TEST(Deals, ThePageTellsTheDealsOfDays) {
  const auto days = PageLines("day");
  ASSERT_EQ(days.size(), 21u);
  for (const auto& parts : days) EXPECT_EQ(DealOfTheDay(parts[1], parts[2]), std::stoi(parts[3]));
}

// Idling, other games before, speed, chance: nothing but number and game matters.
TEST(Deals, CardsFollowFromTheNumberAlone) {
  for (const GameEntry& entry : AllGames()) {
    const std::string game(entry.Name());
    for (int number : {3, 77'000'111}) {
      Dealt quick(game, number, 1), slow(game, number, 2);
      slow.driver.Do("advance 7777");
      slow.Begin();
      slow.driver.Do("advance 3333\nclick " + slow.window() + ".cmdPlay\nanswer \"Yes\"\nadvance 9999");
      quick.Begin();
      slow.Begin();
      for (int round = 1; round <= 3; ++round) {
        // A score may have earned one of them a bonus round.
        if (quick.driver.common().deal.Decks() != slow.driver.common().deal.Decks()) break;
        ASSERT_EQ(quick.Cards(), slow.Cards()) << game << " " << number << " " << round;
        quick.driver.Do("advance 2500\nclick " + quick.window() + ".cmdTakeScore");
        quick.NextRound();
        slow.NextRound();
      }
    }
  }
}

// How often each card comes to each place, against what this shuffle's own steps lead to.
TEST(Deals, EveryCardComesToEveryPlaceAsTheShuffleHasIt) {
  constexpr int kCards = 52, kDeals = 100'000;
  std::vector<std::vector<double>> expected(kCards, std::vector<double>(kCards, 0));
  for (int card = 0; card < kCards; ++card) {
    std::vector<double> at(kCards, 0);
    at[card] = 1;
    for (int i = 0; i < kCards; ++i) {
      std::vector<double> next(kCards);
      for (int place = 0; place < kCards; ++place)
        next[place] = place == i ? 1.0 / kCards : at[place] * (kCards - 1) / kCards + at[i] / kCards;
      at = next;
    }
    expected[card] = at;
  }
  std::vector<std::vector<int>> counted(kCards, std::vector<int>(kCards, 0));
  for (int number = 1; number <= kDeals; ++number) {
    Deal deal;
    deal.Begin({number * 9'973 % kLastDeal + 1}, "Duopick");
    std::vector<int> deck(kCards);
    for (int i = 0; i < kCards; ++i) deck[i] = i;
    for (int i = 0; i < kCards; ++i) std::swap(deck[i], deck[static_cast<int>(kCards * deal.Draw())]);
    for (int place = 0; place < kCards; ++place) ++counted[deck[place]][place];
  }
  double chiSquare = 0;
  for (int card = 0; card < kCards; ++card)
    for (int place = 0; place < kCards; ++place) {
      const double mean = expected[card][place] * kDeals;
      chiSquare += (counted[card][place] - mean) * (counted[card][place] - mean) / mean;
    }
  // 51 * 51 degrees of freedom: mean 2601, deviation 72; five deviations.
  EXPECT_GT(chiSquare, 2601 - 5 * 72);
  EXPECT_LT(chiSquare, 2601 + 5 * 72);
}

namespace {

// A table of the game's that anybody enters.
void LowTable(Dealt& dealt) {
  const GameWindow& window = *dealt.driver.common().window;
  dealt.folder.Write(window.TableFile(window.plan.tables.final.name).substr(1), "Low, -999999\r\n");
}

std::vector<PlayedGame> HistoryOf(const TestFolder& folder) {
  return ParseHistory(folder.Read("History.csv"));
}

// A whole game, by its clock.
void PlayOut(Driver& driver, const std::string& window) {
  driver.Do("click " + window + ".cmdPlay");
  for (int i = 0; i < 3000 && driver.InGame(); ++i)
    driver.Do("advance 1000\nclose frmHiScoreName\nclose frmHighScores");
  driver.Do("advance 9000");
}

}  // namespace

// A number that was asked for: no wave, no name window, no entry; else the game is as any other.
TEST(Deals, ARepeatedDealEntersNoTable) {
  for (const GameEntry& entry : AllGames()) {
    Dealt dealt(std::string(entry.Name()), 5);
    SCOPED_TRACE(dealt.game);
    LowTable(dealt);
    PlayOut(dealt.driver, dealt.window());
    const EndedGame& last = *dealt.driver.common().window->log.Last();
    EXPECT_EQ(static_cast<int>(last.payments.size()), last.game.rounds);
    EXPECT_EQ(std::accumulate(last.payments.begin(), last.payments.end(), 0), last.game.score);
    EXPECT_TRUE(last.repeated);
    dealt.Begin();
    dealt.driver.Do("advance 1000\nclick " + dealt.window() + ".cmdPlay\nanswer \"Yes\"\nadvance 9000");
    dealt.driver.common().askedDeal = {};
    PlayOut(dealt.driver, dealt.window());
    const auto games = HistoryOf(dealt.folder);
    ASSERT_EQ(games.size(), 3u);
    const std::vector<std::pair<int, int>> expected = {{5, 0}, {5, 0}, {0, 1}};  // deal, place
    for (size_t i = 0; i < games.size(); ++i)
      EXPECT_EQ(std::pair(games[i].deal, games[i].place), expected[i]) << i;
  }
}

TEST(Deals, KnowWhatEachRoundHasPaid) {
  Deal deal;
  deal.Begin({5}, "Duopick");
  deal.DeckShuffled(900);  // of the game before
  EXPECT_EQ(deal.Payments(300), std::vector<int>{300});
  deal.SkipDeck(52, 300);
  deal.DeckShuffled(250);
  EXPECT_EQ(deal.Payments(1000), (std::vector<int>{300, -50, 750}));
}

// By standard settings, whatever the player's own are; these stay as they are.
TEST(Deals, TheFirstGameOfADayCounts) {
  TestFolder folder;
  const std::string own = "[Time]\r\n60\r\n[Play Sounds]\r\nFalse\r\n[Deck]\r\n2\r\n";
  folder.Write("Duopick.Ini", own);
  RunOptions today{.suite = {.game = "Duopick", .today = true}};
  today.console.start = {2026, 11, 21, 23, 59, 0};
  for (int start = 0; start < 2; ++start) {
    Driver driver(folder.Path(), today);
    folder.Write("DuopickHighScores45.Txt", "Low, -1\r\n");
    EXPECT_EQ(driver.clock().TimeLimit, 45);
    EXPECT_EQ(driver.common().DeckDesign, 1);
    EXPECT_FALSE(driver.common().PlaySounds);
    PlayOut(driver, "frmDuopick");
    PlayOut(driver, "frmDuopick");
    driver.Do("close frmDuopick\nanswer \"Yes\"");
  }
  EXPECT_EQ(folder.Read("Duopick.Ini"), own);
  const auto games = HistoryOf(folder);
  ASSERT_EQ(games.size(), 4u);
  for (size_t i = 0; i < games.size(); ++i) {
    EXPECT_EQ(games[i].deal, DealOfTheDay("2026-11-21", "Duopick"));
    EXPECT_EQ(games[i].place, i == 0 ? 1 : 0) << i;
  }
}

// Sumfall's Replay has the number of the game that it repeats, and its cards in rounds that weren't reached;
// a saved game, cards that were laid ready, and a replay with a goal that has another deck have none.
TEST(Deals, AReplayKeepsItsNumber) {
  Dealt dealt("Sumfall", 12);
  dealt.driver.common().askedDeal = {};
  dealt.driver.common().nextDeal = DealName{12, false};
  dealt.Begin();
  const std::string first = dealt.Cards();
  dealt.driver.Do("click frmSumfall.cmdPlay\nanswer \"Yes\"\nclick frmSumfall.cmdTakeScore");
  EXPECT_EQ(dealt.Cards(), first);
  EXPECT_EQ(dealt.driver.common().deal.Played().number, 12);
  dealt.NextRound();
  Dealt other("Sumfall", 12);
  other.Begin();
  other.NextRound();
  EXPECT_EQ(dealt.Cards(), other.Cards());
  dealt.driver.Do("click frmSumfall.cmdPlay\nanswer \"Yes\"\nrandom 1..52 9");
  dealt.driver.common().nextDeal = DealName{12, false};
  dealt.Begin();
  EXPECT_EQ(dealt.driver.common().deal.Played().number, 0);
  for (const auto& [entry, number] : {std::pair("mnu10", 12), std::pair("mnu13", 0)}) {
    other.driver.Do("click frmSumfall.cmdPlay\nanswer \"Yes\"\nclick frmSumfall." + std::string(entry) +
                    "\nclick frmSumfall.cmdTakeScore");
    EXPECT_EQ(other.driver.common().deal.Played().number, number) << entry;
  }
}
