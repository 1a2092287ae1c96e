// Lays known cards for Fivestack.
#pragma once

#include "games/fivestack/fivestack.h"
#include "tests/game_test.h"
#include "tests/sumfall_cards.h"

inline frmFivestack& FivestackOf(Driver& driver) {
  return static_cast<frmFivestack&>(*driver.common().window);
}

// The command that makes the next round play these cards, from the first that is seen.
inline std::string LayRound(std::vector<std::string> cards) {
  const CardCodes deck = StandardDeck();
  for (int i = 1; i <= 52; ++i) {
    const std::string unseen(CardKey(deck[i]));
    if (std::ranges::count(cards, unseen) > 0) continue;
    cards.insert(cards.begin(), unseen);
    break;
  }
  return DrawsFor(deck, cards);
}

inline const std::string kOpenFivestack = "click frmSelect.cmdFivestack\n";
inline const std::string kPlayFivestack = "click frmFivestack.cmdPlay\n";
inline const std::string kPass = "click frmFivestack.cmdPass\n";
inline const std::string kPauseFivestack = "click frmFivestack.cmdPause\n";
inline const std::string kGiveUp = "click frmFivestack.cmdGiveUp\n";

// Hits columns, a digit each: "001" hits the first one twice.
inline std::string Hit(const std::string& columns) {
  std::string clicks;
  for (const char column : columns) clicks += std::string("click frmFivestack.cmdHit(") + column + ")\n";
  return clicks;
}

// Four columns of 21, and a fifth of 10 and these cards. Played by `HitAll`.
inline std::vector<std::string> FourColumnsAnd(const std::vector<std::string>& last) {
  std::vector<std::string> cards{"10S", "11S", "1S",  "10H", "11H", "1H", "10C",
                                 "11C", "1C",  "10D", "11D", "1D",  "12S"};
  cards.insert(cards.end(), last.begin(), last.end());
  return cards;
}
inline std::string HitAll(size_t last) { return Hit("0001112223334" + std::string(last, '4')); }

// Opens Fivestack and starts a game with these cards.
inline void StartFivestack(Driver& driver, const std::vector<std::string>& cards) {
  driver.Do(kOpenFivestack + LayRound(cards) + kPlayFivestack);
}
// The cards for a round of that total, 97 to 105, and its clicks; 105 is scored by the last of them.
inline std::string PlayRound(int total) { return HitAll(total == 105 ? 2 : 1); }
inline std::vector<std::string> CardsFor(int total) {
  if (total == 105) return FourColumnsAnd({"6S", "5S"});
  return FourColumnsAnd({total == 104 ? "12H" : std::to_string(total - 94) + "S"});
}
