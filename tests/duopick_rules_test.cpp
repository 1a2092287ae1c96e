// The rules of Duopick, as tables.
#include <gtest/gtest.h>

#include <cstdlib>
#include <set>

#include "games/duopick/rules.h"

using namespace modDuopick;

TEST(DuopickRules, PairsAndRunsOnTheRingOfRanks) {
  for (int first = 1; first <= 13; ++first)
    for (int second = 1; second <= 13; ++second) {
      const int apart = std::abs(first - second);
      const Match match = apart == 0 ? Match::Pair : apart == 1 || apart == 12 ? Match::Run : Match::None;
      EXPECT_EQ(MatchOf(first, second), match) << first << ", " << second;
    }
  const struct {
    int first, second;
    Match match;
  } some[] = {{13, 1, Match::Run},
              {1, 13, Match::Run},
              {13, 2, Match::None},
              {1, 12, Match::None},
              // An up card that isn't there makes a run with an ace, if it comes first.
              {0, 1, Match::Run},
              {1, 0, Match::None},
              {0, 2, Match::None},
              {13, 0, Match::None},
              {0, 13, Match::None},
              {13, 14, Match::None}};
  for (const auto& each : some)
    EXPECT_EQ(MatchOf(each.first, each.second), each.match) << each.first << ", " << each.second;
}

TEST(DuopickRules, ACardIsCoveredByTwoOthers) {
  const std::pair<int, int> covers[] = {{5, 9},   {5, 6},   {6, 7},   {7, 8},   {8, 13},  {9, 10},
                                        {10, 11}, {11, 12}, {12, 13}, {14, 18}, {14, 15}, {15, 16},
                                        {16, 17}, {17, 22}, {18, 19}, {19, 20}, {20, 21}, {21, 22}};
  for (int card = 0; card < kCards; ++card) {
    std::set<int> wanted;
    if (card < 18) wanted = {covers[card].first, covers[card].second};
    // Each of the two is enough, and no other card matters.
    for (int other = 0; other < kField; ++other) {
      std::bitset<kField> only;
      only[other] = true;
      EXPECT_EQ(IsExposed(card, only), !wanted.contains(other)) << card << " under " << other;
    }
    EXPECT_EQ(IsExposed(card, std::bitset<kField>().set()), card >= 18) << card;
  }
}

TEST(DuopickRules, CardsThatCoverLieOnThoseTheyCover) {
  for (int card = 0; card < kField; ++card)
    for (int other = 0; other < kField; ++other) {
      std::bitset<kField> only;
      only[other] = true;
      if (IsExposed(card, only)) continue;
      EXPECT_GT(other, card) << "what is drawn later lies above";
      EXPECT_LT(std::abs(kTable[other].left - kTable[card].left), kCardWidth) << card << ", " << other;
      EXPECT_GT(kTable[other].top, kTable[card].top);
      EXPECT_LT(kTable[other].top, kTable[card].top + kCardHeight) << card << ", " << other;
    }
}

namespace {

Cards Dealt() {
  Cards cards;
  Deal(cards, StandardDeck());
  return cards;
}

}  // namespace

TEST(DuopickRules, TheUpCardGoesToTheFieldOrStaysInThePile) {
  Cards cards = Dealt();
  EXPECT_EQ(cards.DeckCards[0], " 1S");
  EXPECT_EQ(cards.DeckCards[kUpCard], " 11H");
  EXPECT_EQ(cards.UpCards[1], " 11H");
  EXPECT_EQ(cards.DeckCards[51], " 13D");
  TurnCard(cards);
  EXPECT_EQ(cards.WastePos, 2);
  EXPECT_EQ(cards.DeckCards[kUpCard], " 12H");
  PutUpCardBack(cards, 7);
  TurnCard(cards);
  EXPECT_EQ(cards.WastePos, 2);
  EXPECT_EQ(cards.DeckCards[7], " 12H");
  EXPECT_EQ(cards.DeckCards[kUpCard], " 13H");
  TakeUpCard(cards);
  EXPECT_EQ(cards.DeckCards[kUpCard], " 11H");
  TakeUpCard(cards);
  EXPECT_EQ(cards.WastePos, 0);
  EXPECT_EQ(cards.DeckCards[kUpCard], "");
  TurnCard(cards);
  EXPECT_EQ(cards.WastePos, 1);
  EXPECT_EQ(cards.DeckCards[kUpCard], " 1C");
  EXPECT_EQ(cards.StackIndex, 27);
}

TEST(DuopickRules, AFullPileTakesNothingMore) {
  Cards cards = Dealt();
  for (int turn = 1; turn <= 28; ++turn) {
    TurnCard(cards);
    EXPECT_EQ(cards.DeckCards[kUpCard], cards.DeckCards[23 + turn]) << turn;
    EXPECT_EQ(cards.WastePos, 1 + turn);
  }
  for (int turn = 29; turn <= 40000; ++turn) {
    TurnCard(cards);
    ASSERT_EQ(cards.WastePos, kPile);
    ASSERT_EQ(cards.DeckCards[kUpCard], "");
  }
  EXPECT_EQ(cards.StackIndex, 32767);
  TakeUpCard(cards);
  EXPECT_EQ(cards.DeckCards[kUpCard], " 13D");
  TurnCard(cards);
  EXPECT_EQ(cards.DeckCards[kUpCard], "");
}

TEST(DuopickRules, TheStackShrinksInStages) {
  const struct {
    int first, last;
    const char* stage;
  } stages[] = {{24, 34, "FULL"}, {35, 41, "HALF"}, {42, 51, "BACK"}, {52, 52, "EMPTY"}};
  for (const auto& each : stages)
    for (int index = each.first; index <= each.last; ++index) EXPECT_STREQ(StackStage(index), each.stage);
  for (int index : {0, 23, 53, 32767}) EXPECT_EQ(StackStage(index), nullptr) << index;
}
