// modFivestack: the cards of a round of Fivestack, what can be done with them, and what they pay.
//
// Five columns take up to five cards each and may not go over 21, pictures counting 10 and aces 1 or 11. The
// sum of the five columns is the card total: from 97 on it has a value, a thousand for the perfect 105. A
// round pays that value times the time bonus, which falls from second to second.
#pragma once

#include "suite/column21.h"

namespace modFivestack {

inline constexpr int kColumns = 5;
inline constexpr int kLowestPaid = 97;   // the card total from which a round pays
inline constexpr int kPerfect = 105;     // all columns at 21
inline constexpr int kBustTotal = 9999;  // stands for the total of a round lost by a bust
inline constexpr int kBonusRound = 4;

// What the card totals are worth, from 105 down; the last value is that of all that don't pay.
inline constexpr std::array kValues = {1000, 500, 400, 300, 250, 200, 150, 100, 50, 0};
// The place of a card total in that list, -1 above 105.
int RowOf(long long total);
// What a card total is worth; nothing if it has no place there.
int ValueOf(long long total);

// What the time bonus loses in a second of the round.
float BonusDecay(long long max, long long min, long long timeLimit);
// The time bonus after that many seconds: from the maximum down to the minimum.
long long BonusAfter(long long seconds, long long max, long long min, float decay);

enum class Laid { Refused, Stays, Over };

// The first card of a deck is never seen.
struct Board : ColumnBoard<kColumns> {
  std::vector<std::string> skipped;  // each ace that comes down costs a card that nobody sees
  Integer cardTotal;                 // as it was last summed up

  void Deal(const CardCodes& shuffled);
  // No card lies on the columns, and so many may be passed.
  void Clear(long long passes);

  // Whether the next card can be laid on that column.
  bool Takes(int column) const;
  // What has gone over 21 has to be looked at by `CheckForBust`.
  Laid Lay(int column);
  // A column has gone over 21. True if the round is lost; else an ace of the column counts 1 from now on.
  // What is raised for want of a next card leaves the ace as it was.
  bool CheckForBust(int column);
  // The next card goes unplayed; false if none may.
  bool Pass();

  // What the card total is worth. A round with a total that is worth something is paid, any other is lost.
  int Worth() const { return ValueOf(cardTotal); }

  bool operator==(const Board&) const = default;
  template <class Self, class Visit>
  static void VisitFields(Self& board, Visit&& visit) {
    ColumnBoard::VisitFields(board, visit);
    visit("skipped", board.skipped, "cardTotal", board.cardTotal);
  }

 private:
  const std::string& TakeNext();
  void SumUp();
};

}  // namespace modFivestack
