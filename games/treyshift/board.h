// modTreyshift: the board of Treyshift, its cards and what can be done with them.
//
// Four columns take up to three cards each, three more cards may wait in the storage. The deck is turned up
// in a fan of three, of which the last one is in play. A third card makes its column whole: three of a rank
// are a trip, three in sequence a run, and such a column pays and empties itself; any other stays and blocks.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "suite/cards.h"
#include "window/number.h"

namespace modTreyshift {

inline constexpr int kColumns = 4, kRows = 3;
inline constexpr int kFieldSlots = kColumns * kRows;  // column c is the slots c, c + 4, c + 8 from the top
inline constexpr int kTempSlots = 3, kUpSlots = 3;
inline constexpr int kInPlay = 2;  // the card of the fan that may be moved
inline constexpr int kSecondRow = kColumns, kThirdRow = 2 * kColumns;  // their first slots
inline constexpr int kDealt = 3;        // the deck's slot turned up last, after the deal
inline constexpr int kUsedUp = 55;      // the same when no card is left in the fan
inline constexpr int kBeyondDeck = 56;  // from here on no card moves

enum class Worth { Nothing, Trip, Run };
enum class Zone { None = -1, Deck, Temp, Field };
// What came of a click on a slot.
enum class Outcome { Refused, Selected, LetGo, Laid };

struct Board {
  std::array<std::string, kFieldSlots> FieldCards;  // empty where no card lies
  std::array<std::string, kTempSlots> TempCards;
  std::array<std::string, kUpSlots> UpCards;
  CardCodes deck;                        // the cards behind its position aren't turned up yet
  std::vector<std::string> paid;         // in columns that were worth something
  Integer DeckPosition;                  // the slot of the deck turned up last; outlives the round
  std::array<bool, kFieldSlots> open{};  // takes a click: all that show something, and some below a last card
  int blank = -1;                        // the slot of the field that holds the card behind the last one
  Zone SourceZone = Zone::None;  // with `SourceIndex`, which outlives it, where the selected card lies
  int SourceIndex = -1;
  Integer TripCount, RunCount;  // of the round

  // Leaves nothing but the deck's position.
  void Clear();
  void Deal(const CardCodes& cards);

  std::string& CodeAt(Zone zone, int slot);
  bool Selected() const { return SourceZone != Zone::None; }
  bool IsSelected(Zone zone, int slot) const { return SourceZone == zone && SourceIndex == slot; }
  // How many cards the player is told of: those of the stack and of the fan.
  long long CardsRemaining() const { return kUsedUp - DeckPosition; }
  bool DeckIsUsedUp() const { return UpCards[kInPlay].empty(); }
  // Once the card behind the last one has been moved no card moves any more.
  bool CanMove() const { return DeckPosition < kBeyondDeck; }
  // Whether a click on the slot selects a card, lets go of it or moves one there.
  bool Takes(Zone zone, int slot) const;
  // A click on a slot. Wherever a column is clicked, its lowest open slot is meant; `slot` becomes the one in
  // which the card lies that was selected or moved.
  Outcome Take(Zone zone, int& slot);

  // What a column is worth by the order of its ranks; nothing as long as it isn't full.
  Worth Judge(int column) const;
  // Whether the column's cards are of one suit.
  bool CheckFlush(int column) const;
  void ClearColumn(int column);
  // The only position that is known to be stuck: four full columns, for none is worth anything, and a full
  // storage.
  bool IsStuck() const;

  bool operator==(const Board&) const = default;
  template <class Self, class Visit>
  static void VisitFields(Self& board, Visit&& visit) {
    visit("field", board.FieldCards, "temp", board.TempCards, "fan", board.UpCards, "deck", board.deck,
          "paid", board.paid, "position", board.DeckPosition, "open", board.open, "blank", board.blank,
          "zone", board.SourceZone, "slot", board.SourceIndex, "trips", board.TripCount, "runs",
          board.RunCount);
  }

 private:
  int Lowest(int slot) const;
  bool IsBare(int slot) const;
  bool Fits(Zone zone, int slot) const;
  void MoveCard(Zone zone, int& slot);
  void UpDateDeck();
};

}  // namespace modTreyshift
