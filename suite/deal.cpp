#include "suite/deal.h"

#include <cstdint>
#include <string>

namespace {

// FNV-1a of 64 bits.
uint64_t HashOf(std::string_view text) {
  uint64_t hash = 0xCBF29CE484222325u;
  for (const char letter : text) hash = (hash ^ static_cast<unsigned char>(letter)) * 0x100000001B3u;
  return hash;
}

}  // namespace

int DealOfTheDay(std::string_view date, std::string_view game) {
  return 1 + static_cast<int>(HashOf(std::string(date) + " " + std::string(game)) % kLastDeal);
}

void Deal::Begin(DealName name, std::string_view game) {
  *this = {};
  name_ = name;
  source_.Seed(HashOf(std::to_string(name.number) + " " + std::string(game)));
}

void Deal::SkipDeck(int cards) {
  DeckShuffled();
  for (int i = 0; i < cards; ++i) source_.Next();
}
