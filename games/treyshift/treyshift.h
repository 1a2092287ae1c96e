// frmTreyshift: the window of Treyshift, what each click, tick and menu entry does.
#pragma once

#include "games/treyshift/board.h"
#include "suite/game_window.h"

namespace modTreyshift {

// What a game pays when nobody has changed it.
inline constexpr int kTripValue = 6000, kRunValue = 300, kFlushValue = 5000, kDeckValue = 15000,
                     kPenaltyValue = 250, kTimeBonus = 200, kBonusScore = 100000;

}  // namespace modTreyshift

class frmTreyshift : public GameWindow {
 public:
  explicit frmTreyshift(modCommon& common);
  static const RulesText kRules;

  // --- Board and cards ---------------------------------------------------------------------------
  Shape FieldRect{*this, "FieldRect"};
  Shape TripsRectangle{*this, "TripsRectangle"}, TripsBevelSide{*this, "TripsBevelSide"},
      TripsBevelBottom{*this, "TripsBevelBottom"};
  Shape RunRectangle{*this, "RunRectangle"}, RunBevelSide{*this, "RunBevelSide"},
      RunBevelBottom{*this, "RunBevelBottom"};
  Label lblTrips{*this, "lblTrips"}, lblScoreTrips{*this, "lblScoreTrips"}, lblRuns{*this, "lblRuns"},
      lblScoreRuns{*this, "lblScoreRuns"};
  Label lblTemp{*this, "lblTemp"}, lblFieldCards{*this, "lblFieldCards"}, lblCardCount{*this, "lblCardCount"};
  Image CardStackPicture{*this, "CardStackPicture"};
  ControlArray<Image, modTreyshift::kUpSlots> UpCard{*this, "UpCard"};
  ControlArray<Image, modTreyshift::kTempSlots> TempCard{*this, "TempCard"};
  ControlArray<Image, modTreyshift::kFieldSlots> PlayCard{*this, "PlayCard"};
  Shape UpCardSelection{*this, "UpCardSelection"};
  ControlArray<Shape, modTreyshift::kTempSlots> TempCardSelection{*this, "TempCardSelection"};
  ControlArray<Shape, modTreyshift::kFieldSlots> PlayCardSelection{*this, "PlayCardSelection"};
  Label lblFlush{*this, "lblFlush"};
  Shape ScoringLabelOutline{*this, "ScoringLabelOutline"};

  // --- State -------------------------------------------------------------------------------------
  modTreyshift::Board board;
  // Settings.
  Long TripValue, RunValue, FlushValue, DeckValue, PenaltyValue;

  // --- Moves -------------------------------------------------------------------------------------
  void PlayCard_Click(int index);
  void TempCard_Click(int index);
  void UpCard_Click(int index);
  void CardStackPicture_Click();
  void UpDateDeck();
  void Deal();
  void NoMovesLeft();

  // --- Columns -----------------------------------------------------------------------------------
  // Pays a full column, if it is worth something.
  void CheckColumn(int column);
  void ClearColumn(int column);
  void ShowFlushMessage(int column);

  // --- Rounds ------------------------------------------------------------------------------------
  void EndRound();
  void CenterScoringLabel() { CenterWithin(lblScoring, ScoringLabelOutline); }

  // --- The frame's plan --------------------------------------------------------------------------
  void Play() override;
  void TimeIsUp() override;
  // Ends the round, whoever asks for it.
  void TakeScore() override;
  void GameOver() override;
  void GameFailed() override;
  void EndGame() override;
  void ShowCards(bool visible) override;
  void RefreshPlayCard() override;
  void ShowCustomScoring() override;
  void PlaceScoring() override;
  void PlaceBoard() override;

 private:
  void NameSettings();
  void SetUpBoard();
  void BindBoardEvents();

  bool SlotsAreClosed();
  int Take(modTreyshift::Zone zone, int slot);
  Image& CardOf(modTreyshift::Zone zone, int index);
  Shape& SelectionOf(modTreyshift::Zone zone, int index);
  void ShowOpenSlots(int column);
  void ShowMove(modTreyshift::Zone source, modTreyshift::Zone zone, int slot);
  void ClearFieldSlot(int slot);
  void ShowNoCard(int slot);
  void EndStuckRound();

  void InitRound();
  void BeginRound();
  void CompleteDeck();
  void ShowInDeckPlace(int milliseconds);
  void RemoveLeftOvers();
  void RemoveCard(Image& card, Shape& selection);
  void RestoreFlush();
  bool GoesOn() const;
  void AnnounceNextRound();
  void ShowScoringLabel(bool visible);
  void ShowCardCount();
  void CenterFigures();

  bool endsStuck_ = false;  // the stuck round is about to be paid
};

std::unique_ptr<Guide> GuideTo(frmTreyshift& window);
