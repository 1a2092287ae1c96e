#include "games/spirehold/rules.h"

namespace modSpirehold {

const std::array<Place, kCards> kTable = {{
    {-6, 375},  {0, 375},   {6, 375},                                                  //
    {-7, 1080}, {-5, 1080}, {-1, 1080}, {1, 1080},  {5, 1080},  {7, 1080},             //
    {-8, 1815}, {-6, 1815}, {-4, 1815}, {-2, 1815}, {0, 1815},  {2, 1815}, {4, 1815},  //
    {6, 1815},  {8, 1815},                                                             //
    {-9, 2520}, {-7, 2520}, {-5, 2520}, {-3, 2520}, {-1, 2520}, {1, 2520}, {3, 2520},  //
    {5, 2520},  {7, 2520},  {9, 2520},                                                 //
}};

const std::array<Pair, kCovered> kCoveredBy = {{
    {3, 4},
    {5, 6},
    {7, 8},  //
    {9, 10},
    {10, 11},
    {12, 13},
    {13, 14},
    {15, 16},
    {16, 17},  //
    {18, 19},
    {19, 20},
    {20, 21},
    {21, 22},
    {22, 23},
    {23, 24},
    {24, 25},
    {25, 26},
    {26, 27},
}};

bool IsNeighbour(int rank, long long upRank) {
  constexpr int kAce = 1, kKing = 13;
  if (rank == kAce) return upRank == kKing || upRank == 2;
  if (rank == kKing) return upRank == 12 || upRank == kAce;
  return rank > kAce && rank < kKing && (rank == upRank + 1 || rank == upRank - 1);
}

Integer NextRunValue(long long runValue, long long cardValue) { return runValue + cardValue; }

long long NextCardWorth(long long run, long long cardValue) { return (run + 1) * cardValue; }

const char* StackStage(long long stackIndex) {
  if (stackIndex < kFirstOfStack || stackIndex > 52) return nullptr;
  if (stackIndex == 52) return "EMPTY";
  return stackIndex < 35 ? "FULL" : stackIndex < 42 ? "HALF" : "BACK";
}

}  // namespace modSpirehold
