// modBlackrush: the cards of Blackrush, what can be done with them, and what a round has earned by now.
//
// One deck is played through onto four columns. A column that reaches 21 is taken away and counts as a "21";
// one of five cards below 21 is a Five Card Gimme, pays at once and is taken away as well; a card that would
// make more than 21 isn't laid, and costs points. Each 21 raises the bonus by which the 21s of the round are
// multiplied at its end; a counter takes it back unless the next 21 comes in time.
#pragma once

#include "suite/column21.h"

namespace modBlackrush {

inline constexpr int kColumns = 4;
inline constexpr int kLastCard = 52;  // its index in the deck; behind it the deck is complete
inline constexpr int kBustCost = 100;
inline constexpr int kCounterEnd = 100, kCounterFlashes = 50;  // steps of the 21 Counter

enum class Laid { Stays, TwentyOne, FiveCardGimme };

// "Soft" under a column: a 21 takes only the sight of it away, and the end of a pause brings it back.
enum class Word { None, Hidden, Shown };

// Before a game the position is 0. Soft aces outlive their column, the round and the game.
struct Board : ColumnBoard<kColumns> {
  std::array<Word, kColumns> words{};
  std::vector<std::string> gone;  // with a 21 or a Five Card Gimme
  bool mayPass = false;
  Integer twentyOnes;
  Long bonus;  // by which they are multiplied, as it now stands
  Integer counter;

  void Deal(const CardCodes& shuffled);
  // Cards, words and bonus are gone, and the deck is put away. Soft aces stay.
  void Clear();
  void ForgetTwentyOnes() { twentyOnes = 0, bonus = 0; }
  // So many passes for the round. Whether there are any below 0 is asked when the controls come back after a
  // pause or a count.
  void GrantPasses(long long passes);
  void ControlsAreBack() { mayPass = passesLeft > 0 && position < kLastCard; }
  void WordsAreShownAgain() { std::ranges::replace(words, Word::Hidden, Word::Shown); }

  // What the column would total with the card on show. An ace that counts 11 is soft from now on.
  int GetHitTotal(int column);
  // Whether such a total can't be laid. One above 21 can where an ace came down for it, which lowers it.
  bool CheckForBust(int column, int& total);
  // A card that makes 21 is laid and counted; its column stays until `ClearTwentyOne`.
  Laid LayCard(int column, int total);
  // The column goes; the bonus rises first, and if it can't, all the rest stays.
  void ClearTwentyOne(int column, long long step);
  // The 21 Counter takes a step; false if it has run out, which takes the bonus back.
  bool StepCounter(long long bonusLeft);
  // The next card comes on show.
  void TurnNextCard();
  // The card on show goes unplayed; false if it may not.
  bool Pass();

  long long CardsUsed() const { return position - 1; }
  Long TwentyOnesPay() const { return twentyOnes * bonus; }

  bool operator==(const Board&) const = default;
  template <class Self, class Visit>
  static void VisitFields(Self& board, Visit&& visit) {
    ColumnBoard::VisitFields(board, visit);
    visit("words", board.words, "gone", board.gone, "mayPass", board.mayPass, "twentyOnes", board.twentyOnes,
          "bonus", board.bonus, "counter", board.counter);
  }

 private:
  void TakeColumnAway(int column);
};

}  // namespace modBlackrush
