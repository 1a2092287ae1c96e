// What a record says of the time before its window: all that the window can find from then.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <vector>

#include "record/lines.h"
#include "record/shelf.h"
#include "suite/common.h"

namespace record {

inline constexpr int kVersion = 1;
// `AppPath` where a game is played again, unless its window looked beyond it.
inline constexpr char kFolder[] = "/card-haven";
// After so many ticks the selector's ring stands as before them.
inline constexpr int kRing = 96;
inline constexpr long long kRingTick = 250;  // milliseconds

struct Head {
  std::string program;  // its version
  DateTime opened;
  uint64_t chance = 0;
  std::map<std::pair<int, int>, std::deque<int>> foreseen;
  int ring = 0;                 // ticks of the selector's ring
  long long ringDue = 0;        // its next one, in milliseconds
  std::string focus;            // the selector's control that has it
  bool given = false;           // chance, by who started the program
  std::string opens;            // the game that the program opens by itself
  bool today = false;           // with the deal of the day
  int deal = 0;                 // that all games are to play
  std::string folder;           // `AppPath`, where the window looked beyond it; else ""
  std::string savedGame;        // that the program was started with
  std::vector<long long> kept;  // shared values, in the order of `VisitKept`
  std::array<int, 3> backs{};   // pictures of a full stock, a back, half a stock
  Files::Memory memory;
  Extent screen;
  std::map<std::string, Extent> texts;                    // by `KeyOf`, where it isn't as by `PlainExtent`
  std::map<std::string, std::string, std::less<>> files;  // as they were found

  // The values of `common` go in, or come out.
  void Take(modCommon& common);
  void Give(modCommon& common) const;

  std::string Text(const Shelf& shelf, bool withMemory) const;
};

// Whether a text begins as records do.
bool BeginsAsRecord(std::string_view text);
// Reads a head, up to the line "begin". Throws `NoRecord`.
Head ReadHead(LineReader& lines);

DateTime ReadMoment(Line& line);
Extent ReadExtent(Line& line);

// A caption in its lettering.
std::string KeyOf(const Label& label);

}  // namespace record
