// Lays known cards for Treyshift, and says what is done with them.
#pragma once

#include "games/treyshift/treyshift.h"
#include "tests/game_test.h"
#include "tests/sumfall_cards.h"

inline frmTreyshift& TreyshiftOf(Driver& driver) {
  return static_cast<frmTreyshift&>(*driver.common().window);
}

inline const std::string kOpenTreyshift = "click frmSelect.cmdTreyshift\n";
inline const std::string kPlayTreyshift = "click frmTreyshift.cmdPlay\n";
inline const std::string kTakeTreyshift = "click frmTreyshift.cmdTakeScore\n";
inline const std::string kUp = "click frmTreyshift.UpCard(2)\n";

inline std::string Column(int column) {
  return "click frmTreyshift.PlayCard(" + std::to_string(column) + ")\n";
}
inline std::string Temp(int slot) { return "click frmTreyshift.TempCard(" + std::to_string(slot) + ")\n"; }
// The next cards of the deck go to that column.
inline std::string Lay(int column, int cards = 1) {
  std::string clicks;
  for (int i = 0; i < cards; ++i) clicks += kUp + Column(column);
  return clicks;
}
inline std::string Store(int slot) { return kUp + Temp(slot); }

// The command that makes the next deal give these cards in this order, and the others behind them. The fan
// of the deal is played from its last card to its first.
inline std::string InOrder(std::vector<std::string> cards) {
  if (cards.size() < 3) throw std::logic_error("the fan takes three cards");
  std::swap(cards[0], cards[2]);
  return DrawsFor(StandardDeck(), cards);
}

// Thirteen trips, then the diamonds from the ace to the king: four flushes and a king that is left over.
inline std::vector<std::string> WholeDeck() {
  std::vector<std::string> cards;
  for (int rank = 1; rank <= 13; ++rank)
    for (const char* suit : {"S", "H", "C"}) cards.push_back(std::to_string(rank) + suit);
  for (int rank = 1; rank <= 13; ++rank) cards.push_back(std::to_string(rank) + "D");
  return cards;
}
inline constexpr int kWholeDeckPays = 13 * 6000 + 4 * (5000 + 300);

// Four full columns that are worth nothing, and three cards for the storage.
inline std::vector<std::string> StuckBoard() {
  std::vector<std::string> cards;
  for (const char* suit : {"S", "H", "C", "D"})
    for (const char* rank : {"1", "3", "5"}) cards.push_back(std::string(rank) + suit);
  for (const char* card : {"7S", "7H", "7C"}) cards.emplace_back(card);
  return cards;
}
inline const std::string kFillColumns = Lay(0, 3) + Lay(1, 3) + Lay(2, 3) + Lay(3, 3);

// Opens Treyshift and starts a game with these cards.
inline void StartTreyshift(Driver& driver, const std::vector<std::string>& cards) {
  driver.Do(kOpenTreyshift + InOrder(cards) + kPlayTreyshift);
}

// What is heard, announced and waited for. Both big labels tell; the amounts that run down don't.
inline std::string TreyshiftStory(const std::string& trace) {
  const std::string scoring = "* set frmTreyshift.lblScoring.Caption \"";
  std::string told;
  std::istringstream lines(trace);
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with(scoring)) {
      const std::string text = line.substr(scoring.size() - 1);
      if (text.find_first_not_of("\"-0123456789,") == std::string::npos) continue;
      line = "* set frmTreyshift.lblMessage.Caption " + text;
    }
    told += line + "\n";
  }
  return StoryOf(told, "frmTreyshift.lblMessage");
}
