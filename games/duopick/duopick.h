// frmDuopick: the window of Duopick, what each click, tick and menu entry does.
#pragma once

#include "games/duopick/board.h"
#include "suite/round_game.h"

namespace modDuopick {

// What a game pays when nobody has changed it.
inline constexpr int kPairsBonus = 3000, kRunsBonus = 500, kTimeBonus = 100, kBonusScore = 80000,
                     kCompletionBonus = 10000;

}  // namespace modDuopick

class frmDuopick : public RoundGame {
 public:
  explicit frmDuopick(modCommon& common);
  static const RulesText kRules;

  // --- Board and cards ---------------------------------------------------------------------------
  ControlArray<Image, modDuopick::kCards> PlayCard{*this, "PlayCard"};
  Image CardStackPicture{*this, "CardStackPicture"};
  ControlArray<Shape, modDuopick::kCards> FieldSelectionRectangle{*this, "FieldSelectionRectangle"};
  Label lblCardCount{*this, "lblCardCount"}, lblCards{*this, "lblCards"};
  Label lblPairs{*this, "lblPairs"}, lblScorePairs{*this, "lblScorePairs"}, lblRuns{*this, "lblRuns"},
      lblScoreRuns{*this, "lblScoreRuns"};

  // --- State -------------------------------------------------------------------------------------
  modDuopick::Board board;
  // Settings.
  Long PairsBonus, RunsBonus, CompletionBonus;

  // --- Play --------------------------------------------------------------------------------------
  void Deal();
  void ClearSelectionRectangles();
  void PlayCard_Click(int index);
  void CardStackPicture_Click();

  // --- The frame's plan --------------------------------------------------------------------------
  void Play() override;
  // Captions and tool tips follow with the round; the cards of the splash panel go on moving behind it.
  void LeaveIdle() override {}
  void InitRound() override;
  void HideBoard(bool timeIsUp) override;
  void PayAwards() override;
  void EndGame() override;
  void ShowCards(bool visible) override;
  void CoverCards(bool covered) override;
  void RefreshPlayCard() override;
  void SettingsRead() override;
  void PlaceBoard() override;

 private:
  void NameSettings();
  void SetUpBoard();
  void BindBoardEvents();
  void ShowUpCard();
  void TakeBoth(int first, int second);
  void RemoveCard(int index);
  void ShowNextUpCard(int first, int second);
  void ShowCounts();
};

std::unique_ptr<Guide> GuideTo(frmDuopick& window);
