// The numbers of deals.
#pragma once

#include <cstdint>
#include <string_view>

inline constexpr int kLastDeal = 999'999'999;

// FNV-1a of 64 bits.
uint64_t HashOf(std::string_view text);
// The number that everybody plays on a day, written YYYY-MM-DD; of the game named as on its button.
int DealOfTheDay(std::string_view date, std::string_view game);
