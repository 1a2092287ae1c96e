// Deals: a number from which the cards of a whole game follow.
#pragma once

#include <string_view>

#include "window/random.h"

inline constexpr int kLastDeal = 999'999'999;

// The number that everybody plays on a day, written YYYY-MM-DD; of the game named as on its button.
int DealOfTheDay(std::string_view date, std::string_view game);

// Which cards a game is played with.
struct DealName {
  int number = 0;         // 1 to `kLastDeal`; 0 where the cards follow from no number
  bool repeated = false;  // the number was asked for: the game enters no table
};

// The cards of the game in progress.
class Deal {
 public:
  // A game begins: its decks are shuffled by the number from now on, or, if that is 0, by common chance.
  void Begin(DealName name, std::string_view game);

  const DealName& Name() const { return name_; }
  int Decks() const { return decks_; }  // as many as rounds were dealt
  bool DrawsByItself() const { return name_.number > 0; }
  // Uniform in [0, 1).
  double Draw() { return source_.Next(); }
  // A deck of so many cards is ready.
  void DeckShuffled() { ++decks_; }
  // One was ready before it was shuffled: the next ones are as if it had been.
  void SkipDeck(int cards);
  // Somebody has laid a card ready: what is played follows from no number.
  void Tampered() { tampered_ = true; }
  // What the game is called afterwards.
  DealName Played() const { return {tampered_ ? 0 : name_.number, name_.repeated}; }

 private:
  DealName name_;
  RandomSource source_;
  int decks_ = 0;
  bool tampered_ = false;
};
