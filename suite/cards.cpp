#include "suite/cards.h"

#include <algorithm>
#include <utility>

#include "window/text.h"

std::string_view CardKey(std::string_view code) { return Trim(code); }

int CardValue(std::string_view code) {
  int value = 0;
  code.remove_prefix(std::min(code.find_first_not_of(' '), code.size()));
  for (char letter : code) {
    if (letter < '0' || letter > '9') break;
    value = value * 10 + (letter - '0');
    if (value > 99) break;  // no card; kept small, so that rubbish can't overflow
  }
  return value;
}

int UpperBound(const CardCodes& deck) { return static_cast<int>(deck.size()) - 1; }

std::string NumberedCode(int rank, char suit) { return " " + std::to_string(rank) + suit; }

CardCodes StandardDeck() {
  CardCodes deck(1);
  for (char suit : {'S', 'H', 'C', 'D'})
    for (int rank = 1; rank <= 13; ++rank) deck.push_back(NumberedCode(rank, suit));
  return deck;
}

void Shuffle(CardCodes& deck, const std::function<int(int, int)>& draw) {
  const int cards = UpperBound(deck);
  for (int i = 1; i <= cards; ++i) std::swap(deck[i], deck[draw(1, cards)]);
}
