#include "history/deal_number.h"

#include <string>

uint64_t HashOf(std::string_view text) {
  uint64_t hash = 0xCBF29CE484222325u;
  for (const char letter : text) hash = (hash ^ static_cast<unsigned char>(letter)) * 0x100000001B3u;
  return hash;
}

int DealOfTheDay(std::string_view date, std::string_view game) {
  return 1 + static_cast<int>(HashOf(std::string(date) + " " + std::string(game)) % kLastDeal);
}
