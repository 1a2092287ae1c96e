#include "games/duopick/rules.h"

#include <algorithm>

namespace modDuopick {

const std::array<Place, kCards> kTable = {{
    {1620, 540},  {2775, 540},  {3915, 540},  {5070, 540},  {6225, 540},   //
    {2190, 990},  {3345, 990},  {4485, 990},  {5640, 990},                 //
    {1605, 1395}, {2760, 1395}, {3900, 1395}, {5055, 1395}, {6210, 1395},  //
    {2160, 1935}, {3315, 1935}, {4455, 1935}, {5610, 1935},                //
    {1575, 2340}, {2730, 2340}, {3870, 2340}, {5025, 2340}, {6180, 2340},  //
    {3150, 4260},                                                          // the up card
}};

// A card is covered by its two neighbours in the next row. At either end of the two rows of five that others
// cover there is one neighbour only, and the card straight below, two rows down, counts as well.
bool IsExposed(int card, const std::bitset<kField>& lying) {
  constexpr int kLowestRow = 18;
  if (card >= kLowestRow) return true;
  const bool leftEnd = card == 0 || card == 9, rightEnd = card == 4 || card == 13;
  const int left = leftEnd ? card + 9 : card + 4, right = rightEnd ? card + 9 : card + 5;
  return !lying[left] && !lying[right];
}

Match MatchOf(long long first, long long second) {
  constexpr int kAce = 1, kKing = 13;
  if (first == second) return Match::Pair;
  if (first == kAce) return second == 2 || second == kKing ? Match::Run : Match::None;
  if (first == kKing) return second == kAce || second == 12 ? Match::Run : Match::None;
  return second == first + 1 || second == first - 1 ? Match::Run : Match::None;
}

void Deal(Cards& cards, const CardCodes& deck) {
  for (int i = 0; i < kDealt; ++i) cards.DeckCards[i] = deck.at(i + 1);
  cards.UpCards[1] = cards.DeckCards[kUpCard];
  cards.WastePos = 1;
  cards.StackIndex = kCards;
}

void PutUpCardBack(Cards& cards, int gap) {
  cards.DeckCards[gap] = cards.UpCards[cards.WastePos];
  cards.WastePos -= 1;
}

void TurnCard(Cards& cards) {
  cards.WastePos = std::min<long long>(cards.WastePos + 1, kPile);
  std::string& upCard = cards.UpCards[cards.WastePos];
  upCard = cards.StackIndex <= kDealt ? cards.DeckCards[cards.StackIndex] : "";
  cards.DeckCards[kUpCard] = upCard;
  GoOnAfterError([&] { cards.StackIndex += 1; });
}

void TakeUpCard(Cards& cards) {
  cards.WastePos -= 1;
  cards.DeckCards[kUpCard] = cards.WastePos > 0 ? cards.UpCards[cards.WastePos] : "";
}

const char* StackStage(long long stackIndex) {
  if (stackIndex < kCards || stackIndex > kDealt) return nullptr;
  if (stackIndex == kDealt) return "EMPTY";
  return stackIndex < 35 ? "FULL" : stackIndex < 42 ? "HALF" : "BACK";
}

}  // namespace modDuopick
