// modSumfall: the cards of a round of Sumfall, and what can be done with them.
//
// Twenty-two cards lie in six tiers like roof tiles. The player selects exposed cards until their values add
// up to the card goal, and those cards go. Higher tiers pay more. Below the field lie a pile of stock cards
// and an up card, which may be selected too; turning the next one costs points.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "suite/cards.h"
#include "window/number.h"

namespace modSumfall {

inline constexpr int kPlaces = 22;
// The place of the up card, behind those of the field.
inline constexpr int kUpCard = kPlaces;
inline constexpr int kUpCards = 31;  // as many as the up pile holds
inline constexpr int kLowestGoal = 10, kHighestGoal = 15, kDefaultGoal = 11;

// What a card pays that goes from that place.
inline constexpr std::array<int, kPlaces + 1> kPoints = {700, 600, 600, 600, 600, 500, 500, 500,
                                                         500, 500, 400, 400, 400, 400, 400, 400,
                                                         300, 300, 300, 300, 200, 200, 100};
// What turning a card costs, and the same again if the one before falls into the field.
inline constexpr int kTurnCost = 100;

// The places that cover a place; twice the same where there is but one, and itself where there is none. Place
// 7 is exposed from the start although it lies in the fourth tier.
inline constexpr int kCovers[kPlaces][2] = {{3, 4},   {5, 6},   {8, 9},   {7, 12},  {7, 13},  {10, 11},
                                            {11, 12}, {7, 7},   {13, 14}, {14, 15}, {16, 16}, {16, 17},
                                            {17, 17}, {18, 18}, {18, 19}, {19, 19}, {20, 20}, {20, 20},
                                            {21, 21}, {21, 21}, {20, 20}, {21, 21}};

// The deck of a card goal before it is shuffled: 52 cards, and the face cards that the goal brings along.
CardCodes DeckForGoal(int cardGoal);
// The number of cards of that deck.
int DeckSize(int cardGoal);

struct Board {
  std::array<std::string, kPlaces> field;          // empty where no card lies
  std::vector<std::string> upCards, stock, taken;  // the last card lies on top
  std::array<bool, kPlaces + 1> selected{};        // by place
  Integer goal, total;                             // of the values of selected cards
  Long combinations;                               // made in this round
  bool upCardUsed = false;                         // by the present combination: the next turn is free

  // Lays a fresh round. A selection of the topmost place outlives the one before.
  void Deal(const CardCodes& deck, long long cardGoal);
  // The card that can be seen at that place; empty if there is none.
  const std::string& CardAt(int place) const;
  bool CheckLegalFieldCardMove(int place) const;
  // The field is cleared.
  bool CheckForCompletion() const;

  // Whether the card at that place can be selected, or given back.
  bool Takes(int place) const;
  // Selects it, or gives it back; true if it is selected now.
  bool Toggle(int place);
  bool IsCombination() const { return total == goal; }
  // Takes the selected cards away, the up card last. `pay(place)` comes before each of them: what fails there
  // leaves that card and those behind it.
  template <class Pay>
  void TakeCombination(Pay pay) {
    for (int place = 0; place <= kUpCard; ++place) {
      if (!selected[place]) continue;
      upCardUsed = place == kUpCard;
      pay(place);
      Remove(place);
    }
    combinations += 1;
    total = 0;
  }
  // The last up card has gone with a combination, which brings the next one.
  bool TurnsByItself() const { return upCardUsed && upCards.empty(); }

  bool CanTurn() const;
  // Before the stock is turned, the up card falls into the highest gap of the field: its place, or -1.
  int MoveUpCardToFieldArea();
  void TurnStock();

  // Lets all selected cards go but one at the top.
  void DropSelection();
  void ClearField();

  // No card can be combined, now or after whatever turns are left.
  bool IsStuck() const;

  bool operator==(const Board&) const = default;
  template <class Self, class Visit>
  static void VisitFields(Self& board, Visit&& visit) {
    visit("field", board.field);
    visit("up", board.upCards);
    visit("stock", board.stock);
    visit("taken", board.taken);
    visit("selected", board.selected);
    visit("goal", board.goal);
    visit("total", board.total);
    visit("combinations", board.combinations);
    visit("used", board.upCardUsed);
  }

 private:
  int FreePlace() const;
  bool CanCombine() const;
  void Remove(int place);
};

}  // namespace modSumfall
