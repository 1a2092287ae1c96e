#include "games/treyshift/rules.h"

namespace modTreyshift {

namespace {

constexpr int kAce = 1, kQueen = 12, kKing = 13;

std::string_view SuitOf(std::string_view code) { return code.substr(code.empty() ? 0 : code.size() - 1); }

}  // namespace

// The ace is low, but for the two runs that end in it or begin with it as the highest card.
Worth Judge(int top, int middle, int bottom) {
  if (middle == top && bottom == top) return Worth::Trip;
  const bool rises = middle == top + 1 && bottom == top + 2, falls = middle == top - 1 && bottom == top - 2;
  const bool fromAce = top == kAce && middle == kKing && bottom == kQueen,
             toAce = top == kQueen && middle == kKing && bottom == kAce;
  return rises || falls || fromAce || toAce ? Worth::Run : Worth::Nothing;
}

bool OfOneSuit(std::string_view top, std::string_view middle, std::string_view bottom) {
  return SuitOf(top) == SuitOf(middle) && SuitOf(middle) == SuitOf(bottom);
}

const char* StackStage(long long deckPosition) {
  if (deckPosition < 20) return "FULL";
  if (deckPosition < 36) return "HALF";
  return deckPosition < 52 ? "BACK" : "EMPTY";
}

long long CardsRemaining(long long deckPosition) { return kUsedUp - deckPosition; }

}  // namespace modTreyshift
