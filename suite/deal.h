// Deals: a number from which the cards of a whole game follow.
#pragma once

#include <string_view>
#include <vector>

#include "history/deal_number.h"
#include "window/random.h"

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
  int Decks() const { return static_cast<int>(scores_.size()); }  // as many as rounds were dealt
  // What each of these rounds has paid, if that is the score by now.
  std::vector<int> Payments(int score) const;
  bool DrawsByItself() const { return name_.number > 0; }
  // Uniform in [0, 1).
  double Draw() { return source_.Next(); }
  // A deck is about to be shuffled, at that score.
  void DeckShuffled(int score) { scores_.push_back(score); }
  // One of so many cards was ready before it was shuffled: the next ones are as if it had been.
  void SkipDeck(int cards, int score);
  // Somebody has laid a card ready: what is played follows from no number.
  void Tampered() { tampered_ = true; }
  // What the game is called afterwards.
  DealName Played() const { return {tampered_ ? 0 : name_.number, name_.repeated}; }

 private:
  DealName name_;
  RandomSource source_;
  std::vector<int> scores_;  // when each deck was shuffled
  bool tampered_ = false;
};
