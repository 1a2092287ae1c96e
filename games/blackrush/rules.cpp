#include "games/blackrush/rules.h"

namespace modBlackrush {

int GetHitTotal(Column21& column, std::string_view card) {
  int worth = FaceWorth(card);
  if (worth == 1) worth = TakeAce(column);
  return static_cast<int>(column.total + worth);
}

// A fifth card that makes 21 is a 21 like any other.
Laid Judge(int total, long long cards) {
  if (total == kTwentyOne) return Laid::TwentyOne;
  return cards == kCardsOfColumn ? Laid::FiveCardGimme : Laid::Stays;
}

const char* PileStage(long long deckPosition) {
  if (deckPosition >= kLastCard) return "EMPTY";
  return deckPosition < 17 ? "FULL" : deckPosition < 35 ? "HALF" : "BACK";
}

Long TwentyOnesPay(long long twentyOnes, long long bonus) { return twentyOnes * bonus; }

}  // namespace modBlackrush
