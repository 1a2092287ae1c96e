// Card codes and decks.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

// A deck's cards stand at the indices from 1; slot 0 stays empty. A code is a rank 1 to 13 and a suit letter,
// at times with a leading blank.
using CardCodes = std::vector<std::string>;

// The code as a picture's key: without blanks.
std::string_view CardKey(std::string_view code);

// The number at the start of a code: 1 for an ace, 11 to 13 for jack, queen and king; 0 for an empty code.
int CardValue(std::string_view code);

// The upper bound of a deck: the number of its cards.
int UpperBound(const CardCodes& deck);

// A code as number-to-text conversion writes it, with a leading blank.
std::string NumberedCode(int rank, char suit);

// 52 cards, ace to king of spades, hearts, clubs, diamonds.
CardCodes StandardDeck();

// Exchanges each card in turn with one at a drawn index; `draw(lower, upper)` is called once per card.
void Shuffle(CardCodes& deck, const std::function<int(int, int)>& draw);
