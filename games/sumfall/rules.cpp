#include "games/sumfall/rules.h"

namespace modSumfall {

const std::array<Place, kPlaces> kField = {{
    {700, 0, 0},        {600, -2610, 500},  {600, 2610, 500},   {600, -630, 500},  {600, 630, 500},
    {500, -3285, 1000}, {500, -1935, 1000}, {500, 0, 1000},     {500, 1935, 1000}, {500, 3285, 1000},
    {400, -3960, 1500}, {400, -2610, 1500}, {400, -1260, 1500}, {400, 1260, 1500}, {400, 2610, 1500},
    {400, 3960, 1500},  {300, -3285, 2000}, {300, -1935, 2000}, {300, 1935, 2000}, {300, 3285, 2000},
    {200, -2610, 2500}, {200, 2610, 2500},
}};

std::span<const int> CoveredBy(int place) {
  struct Cover {
    int count;
    int places[2];
  };
  // Place 7 has no entry of its own although it lies in the fourth tier.
  static constexpr std::array<Cover, kPlaces> kCovers = {{
      {2, {3, 4}},   {2, {5, 6}}, {2, {8, 9}},   {2, {7, 12}},  {2, {7, 13}}, {2, {10, 11}},
      {2, {11, 12}}, {0, {}},     {2, {13, 14}}, {2, {14, 15}}, {1, {16}},    {2, {16, 17}},
      {1, {17}},     {1, {18}},   {2, {18, 19}}, {1, {19}},     {1, {20}},    {1, {20}},
      {1, {21}},     {1, {21}},   {0, {}},       {0, {}},
  }};
  if (place < 0 || place >= kPlaces) return {};
  return {kCovers[place].places, static_cast<size_t>(kCovers[place].count)};
}

CardCodes DeckForGoal(int cardGoal) {
  constexpr char kSuits[] = {'S', 'H', 'C', 'D'};
  CardCodes deck(1);
  for (char suit : kSuits) deck.insert(deck.end(), 4, std::string("1") + suit);
  for (char suit : kSuits)
    for (int rank = 2; rank <= 10; ++rank) deck.push_back(NumberedCode(rank, suit));
  const int faces = (DeckSize(cardGoal) - 52) / 4;
  for (int rank = 11; rank < 11 + faces; ++rank)
    for (char suit : kSuits) deck.push_back(std::to_string(rank) + suit);
  return deck;
}

int DeckSize(int cardGoal) {
  switch (cardGoal) {
    case 12:
      return 56;
    case 13:
      return 60;
    case 14:
    case 15:
      return 64;
    default:
      return 52;
  }
}

const char* GoalWord(int cardGoal) {
  static constexpr const char* kWords[] = {
      "Tens:", "Elevens:", "Twelves:", "Thirteens:", "Fourteens:", "Fifteens:"};
  return kWords[cardGoal - kLowestGoal];
}

const char* GoalNumberWord(int cardGoal) {
  static constexpr const char* kWords[] = {"ten", "eleven", "twelve", "thirteen", "fourteen", "fifteen"};
  return kWords[cardGoal - kLowestGoal];
}

const char* StockPicture(int stockIndex) {
  const int cards = stockIndex + 1;
  if (cards < 1) return "EMPTY";
  if (cards <= 10) return "BACK";
  return cards <= 20 ? "HALF" : "FULL";
}

const std::array<SelectionColour, 6> kSelectionColours = {{
    {"mnuYellow", "&Yellow", 65535},
    {"mnuRed", "&Red (Default)", 255},
    {"mnuBlue", "&Blue", 0xFF0000},
    {"mnuGreen", "&Green", 49152},
    {"mnuPurple", "&Purple", 0x800080},
    {"mnuBlack", "&Black", 0},
}};

}  // namespace modSumfall
