// Lays known cards for Sumfall: what the shuffle must draw to deal a wanted deck.
#pragma once

#include <algorithm>
#include <map>
#include <set>
#include <stdexcept>

#include "games/sumfall/sumfall.h"
#include "tests/driver.h"

inline frmSumfall& SumfallOf(Driver& driver) { return static_cast<frmSumfall&>(*driver.common().window); }

// The command that makes the next shuffle turn `from` into a deck that begins with `wanted`; the cards that
// nobody asked for keep their order behind. Both count from index 1 of a deck.
inline std::string DrawsFor(CardCodes from, const std::vector<std::string>& wanted) {
  const int cards = UpperBound(from);
  std::string command = "random 1.." + std::to_string(cards);
  for (int i = 1; i <= cards; ++i) {
    int drawn = i;
    if (i <= static_cast<int>(wanted.size())) {
      drawn = 0;
      for (int j = i; j <= cards && drawn == 0; ++j)
        if (CardKey(from[j]) == wanted[i - 1]) drawn = j;
      if (drawn == 0) throw std::logic_error("no " + wanted[i - 1] + " is left");
    }
    std::swap(from[i], from[drawn]);
    command += " " + std::to_string(drawn);
  }
  return command + "\n";
}

// The command that makes the next deal of the standard deck lay those cards at those indices (0 to 51), and
// any others elsewhere.
inline std::string LayCards(const std::map<int, std::string>& wanted) {
  const CardCodes deck = StandardDeck();
  std::set<std::string> taken;
  for (const auto& [index, code] : wanted) taken.insert(code);
  std::vector<std::string> cards;
  for (size_t i = 0, next = 1; i < 52; ++i) {
    const auto found = wanted.find(static_cast<int>(i));
    while (found == wanted.end() && taken.contains(std::string(CardKey(deck[next])))) ++next;
    cards.emplace_back(found == wanted.end() ? CardKey(deck[next++]) : found->second);
  }
  return DrawsFor(deck, cards);
}

inline std::string Field(int place) { return "frmSumfall.FieldCardPicture(" + std::to_string(place) + ")"; }
inline std::string ClickField(int place) { return "click " + Field(place) + "\n"; }

inline const std::string kOpenSumfall = "click frmSelect.cmdSumfall\n";
inline const std::string kPlay = "click frmSumfall.cmdPlay\n";
inline const std::string kTakeScore = "click frmSumfall.cmdTakeScore\n";

// Plays two rounds at once and ends with that score, below the bonus round. `answers` follow the game's end.
inline std::string FinishWith(Driver& driver, int score, const std::string& answers) {
  driver.Do(kPlay);
  for (int round = 1; round <= 2; ++round) {
    SumfallOf(driver).board.combinations = 0;
    driver.clock().ElapsedSeconds = driver.clock().TimeLimit;
    if (round == 1) driver.Do(kTakeScore);
  }
  driver.common().CurrentScore = score;
  return driver.Do(kTakeScore + answers);
}

// A field of aces, tens of pairs: places 0 to 21 hold eleven pairs that make eleven, from the bottom up
// (20, 21), (18, 19) ... The up card is an 8.
inline std::vector<std::string> ElevenPairs() {
  return {"1S", "10S", "1S", "10H", "1S", "10C", "1S", "10D", "2S", "9S", "2H",
          "9H", "2C",  "9C", "2D",  "9D", "3S",  "8S", "3H",  "8H", "3C", "8C"};
}
inline std::string ClearElevenPairs() {
  std::string clicks;
  for (int place = 20; place >= 0; place -= 2) clicks += ClickField(place) + ClickField(place + 1);
  return clicks;
}
