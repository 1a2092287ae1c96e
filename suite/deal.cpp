#include "suite/deal.h"

#include <string>

void Deal::Begin(DealName name, std::string_view game) {
  *this = {};
  name_ = name;
  source_.Seed(HashOf(std::to_string(name.number) + " " + std::string(game)));
}

// A game begins with no score, whatever stands on the board when its first deck is shuffled.
std::vector<int> Deal::Payments(int score) const {
  std::vector<int> payments;
  for (size_t round = 0; round < scores_.size(); ++round) {
    const int before = round == 0 ? 0 : scores_[round];
    payments.push_back((round + 1 < scores_.size() ? scores_[round + 1] : score) - before);
  }
  return payments;
}

void Deal::SkipDeck(int cards, int score) {
  DeckShuffled(score);
  for (int i = 0; i < cards; ++i) source_.Next();
}
