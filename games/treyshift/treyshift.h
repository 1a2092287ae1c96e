// frmTreyshift: the window of Treyshift, what each click, tick and menu entry does.
#pragma once

#include <array>
#include <string>

#include "games/treyshift/rules.h"
#include "suite/game_window.h"

class frmTreyshift : public GameWindow {
 public:
  explicit frmTreyshift(modCommon& common);

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
  enum Zone { ZoneNone = -1, ZoneDeck, ZoneTemp, ZoneField };
  // Card codes by slot, "" where no card lies.
  std::array<std::string, modTreyshift::kFieldSlots> FieldCards;
  std::array<std::string, modTreyshift::kTempSlots> TempCards;
  std::array<std::string, modTreyshift::kUpSlots> UpCards;
  Integer DeckPosition;  // the slot of the deck that was turned up last
  bool Selected = false;
  Zone SourceZone = ZoneNone;  // with `SourceIndex` where the selected card lies; they outlive the selection
  int SourceIndex = -1;
  Integer TripCount, RunCount;  // of the round
  // Settings.
  Long TripValue, RunValue, FlushValue, DeckValue, PenaltyValue;

  // --- Moves -------------------------------------------------------------------------------------
  void PlayCard_Click(int index);
  void TempCard_Click(int index);
  void UpCard_Click(int index);
  void CardStackPicture_Click();
  // Moves the selected card; `destIndex` becomes the slot in which it lies.
  void MoveCard(int& destIndex, Zone destZone);
  void UpDateDeck();
  void Deal();
  void NoMovesLeft();

  // --- Columns -----------------------------------------------------------------------------------
  // Pays a full column, if it is worth something.
  void CheckColumn(int column);
  bool CheckFlush(int column) const;
  void ClearColumn(int column);
  void ShowFlushMessage(int column);

  // --- Rounds ------------------------------------------------------------------------------------
  void EndRound();
  void CenterScoringLabel();

  // --- The frame's plan --------------------------------------------------------------------------
  void SetDefaults() override;
  bool ApplyGameSetting(std::string_view section, std::string_view value) override;
  void Play() override;
  void PlayFailed(const std::string& description) override;
  void InitRound() override;
  // Input is dead while a round is scored, and a quarter of a second after the last one.
  bool TakesCommand() const override { return !standing.InputIsDead(); }
  void TimeIsUp() override;
  void ResetDial() override;
  // Ends the round, whoever asks for it.
  void TakeScore() override;
  void GameOver() override;
  void GameFailed() override;
  void BeforeEndQuestion() override;
  void AfterEndQuestion(bool ends) override;
  void EndGame() override;
  void ShowCards(bool visible) override;
  void RefreshPlayCard() override;
  void ShowCustomScoring() override;
  RulesText Rules() const override;
  void ShowGameControls(bool visible) override;
  void PlaceMessage() override;
  void PlaceScoring() override;
  void PlaceBoard() override;
  using GameWindow::ShowControls;

 private:
  void SetUpBoard();
  void BindBoardEvents();

  bool ShowsEmpty(const Image& slot) const;
  bool HasCard(const Image& slot) const;
  bool SlotsAreClosed();
  void Select(Zone zone, int index);
  void CancelSelection();
  Shape& SelectionOf(Zone zone, int index);
  void SelectFieldCard(int& index);
  void LayInColumn(int& index);
  void MoveToField(int& index);
  void MoveToTemp(int index);
  void LayOn(Image& slot, std::string& code);
  void ClearFieldSlot(int slot);
  bool IsStuck() const;
  void EndStuckRound();

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
