// frmDuopick: the window of Duopick, what each click, tick and menu entry does.
#pragma once

#include "games/duopick/rules.h"
#include "suite/game_window.h"

class frmDuopick : public GameWindow {
 public:
  explicit frmDuopick(modCommon& common);

  // --- Board and cards ---------------------------------------------------------------------------
  ControlArray<Image, modDuopick::kCards> PlayCard{*this, "PlayCard"};
  Image CardStackPicture{*this, "CardStackPicture"};
  ControlArray<Shape, modDuopick::kCards> FieldSelectionRectangle{*this, "FieldSelectionRectangle"};
  Label lblCardCount{*this, "lblCardCount"}, lblCards{*this, "lblCards"};
  Label lblPairs{*this, "lblPairs"}, lblScorePairs{*this, "lblScorePairs"}, lblRuns{*this, "lblRuns"},
      lblScoreRuns{*this, "lblScoreRuns"};

  // --- State -------------------------------------------------------------------------------------
  modDuopick::Cards cards;
  Integer CardsRemaining;
  Integer CardsSelected, FirstCardValue, FirstCardIndex;
  Long PairsCount, RunsCount;   // of this round, paid at its end
  bool RoundCompleted = false;  // the top row was cleared, and the round is being paid
  // Settings.
  Long PairsBonus, RunsBonus, CompletionBonus;

  // --- Play --------------------------------------------------------------------------------------
  void Deal();
  // Whether the card is exposed; its rank isn't looked at.
  bool CheckForLegalMove(int index) const;
  void ClearSelectionRectangles();
  void PlayCard_Click(int index);
  void CardStackPicture_Click();

  // --- The frame's plan --------------------------------------------------------------------------
  void Play() override;
  // Captions and tool tips follow with the round; the cards of the splash panel go on moving behind it.
  void LeaveIdle() override {}
  void InitRound() override;
  void HideBoard() override;
  void PayAwards() override;
  void AnnounceRound(bool bonus) override;
  void GameFinished() override;
  void EndGame() override;
  void ShowCards(bool visible) override;
  void CoverCards(bool covered) override;
  void HideCardsAtTimeUp() override;
  void RefreshPlayCard() override;
  void ShowCustomScoring() override;
  RulesText Rules() const override;
  void SettingsRead() override;
  void mnuClear_Click() override;
  void ShowGameControls(bool visible) override;
  void PlaceBoard() override;

 private:
  void SetUpBoard();
  void BindBoardEvents();
  // Shows a card; an empty code changes nothing.
  void ShowCard(Image& image, std::string_view code);
  void SelectCard(int index);
  void TakeSecondCard(int index);
  void TakeBoth(int index);
  void RemoveCard(int index);
  void ShowNextUpCard(int index);
  bool TopRowIsCleared() const;
  // The first gap of the field, or -1.
  int FirstGap() const;
  void ShowCounts();
};
