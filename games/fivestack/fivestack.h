// frmFivestack: the window of Fivestack, what each click, tick and menu entry does.
#pragma once

#include "games/fivestack/board.h"
#include "suite/game_window.h"

namespace modFivestack {

// What a game pays and allows when nobody has changed it.
inline constexpr int kTimeBonusMax = 300, kTimeBonusMin = 100, kBonusScore = 200000, kWaitPeriod = 2000,
                     kCardsToPass = 1;

}  // namespace modFivestack

class frmFivestack : public GameWindow {
 public:
  explicit frmFivestack(modCommon& common);
  static const RulesText kRules;

  // --- Board and cards ---------------------------------------------------------------------------
  using Slots = ControlArray<Image, kCardsOfColumn>;
  Slots Column1{*this, "Column1"}, Column2{*this, "Column2"}, Column3{*this, "Column3"},
      Column4{*this, "Column4"}, Column5{*this, "Column5"};
  Shape Column1Line{*this, "Column1Line"}, Column2Line{*this, "Column2Line"},
      Column3Line{*this, "Column3Line"}, Column4Line{*this, "Column4Line"}, Column5Line{*this, "Column5Line"};
  Slots& ColumnImages(int i) { return *std::array{&Column1, &Column2, &Column3, &Column4, &Column5}[i]; }
  Shape& ColumnLine(int i) {
    return *std::array{&Column1Line, &Column2Line, &Column3Line, &Column4Line, &Column5Line}[i];
  }
  ControlArray<Label, modFivestack::kColumns> ColumnTotal{*this, "ColumnTotal"},
      ColumnSoft{*this, "ColumnSoft"};
  ControlArray<CommandButton, modFivestack::kColumns> cmdHit{*this, "cmdHit"};
  Image PlayCardPicture{*this, "PlayCardPicture"}, NextCardPicture{*this, "NextCardPicture"};
  CommandButton cmdPass{*this, "cmdPass"}, cmdGiveUp{*this, "cmdGiveUp"};

  // --- Totals, bonus and score -------------------------------------------------------------------
  Label lblCurrentRoundScore{*this, "lblCurrentRoundScore"};
  Label lblCurrentTotal{*this, "lblCurrentTotal"};
  Frame frmScore{*this, "frmScore"};
  Shape TableGround{frmScore, "TableGround"};  // below its rows
  // The rows of the table in it, in the order of `kValues`: a total, and what it is worth.
  std::vector<std::unique_ptr<Label>> tableLabels;
  Label lblTimeBonus{*this, "lblTimeBonus"};
  Shape ScoringLabelOutline{*this, "ScoringLabelOutline"};
  Label &ScoringLabel = lblMessage, &lblTotalScore = lblCurrentScore;
  Label ScoringLabelRoundTotal{*this, "ScoringLabelRoundTotal"}, ScoringLabelInfo{*this, "ScoringLabelInfo"};
  CommandButton& cmdQuit = cmdExit;

  // --- State -------------------------------------------------------------------------------------
  modFivestack::Board board;
  bool QuitRequested = false;  // End Game was confirmed
  // Settings.
  Integer TimeBonusMax, TimeBonusMin, WaitPeriod, CardsToPass;
  float TimeBonusDecay() const;

  // --- Cards -------------------------------------------------------------------------------------
  void cmdHit_Click(int index);
  void cmdPass_Click();
  modFivestack::Laid CalculateColumnValue(int index);
  // True if the round is lost; else an ace of the column counts 1 from now on.
  bool CheckForBust(int index);
  void CloseColumn(int index, bool close = true);
  void CloseCurrentRound() { cmdHit.Set(&Visual::Enabled, false); }
  void EnableControls();
  void lblCurrentTotal_Change();
  void UpdateCardTotalValue();
  void ClearCardTotalRows();

  // --- Rounds ------------------------------------------------------------------------------------
  void Play() override;
  void cmdGiveUp_Click();
  void TakeScore() override;
  // The next round, or the end of the game if there is none of that number.
  void EndRound(Integer round);
  void Reset();

  // --- The frame's plan --------------------------------------------------------------------------
  void SettingsRead() override { cmdPass.Enabled = board.passesLeft > 0; }
  void LeaveIdle() override;
  void BackToIdle() override;
  void ShowTimeLeft() override;
  void TimeIsUp() override;
  void TellPause(bool paused) override;
  void CoverCards(bool covered) override;
  void GameOver() override;
  void GameFailed() override;
  void EndGame() override;
  void ShowCards(bool visible) override;
  void RefreshPlayCard() override { ShowBack(PlayCardPicture); }
  void ShowCustomScoring() override;
  RulesValues MoreRulesValues() const override;
  void PlaceMessage() override;
  void PlaceBoard() override;

 private:
  void NameSettings();
  void SetUpBoard();
  void SetUpTable();
  void BindBoardEvents();

  void SumUp();
  void ShowCardTotal(long long total);
  void ShowNextCard() { ShowFace(NextCardPicture, board.Next()); }
  void ShowTable(bool visible);
  void DealCards();
  void StartClock();
  void LoseRound();
  void PrepareRound();
  void CountScore(long long roundScore);
  void Wait() { platform.Sleep(std::max(0, static_cast<int>(WaitPeriod))); }

  void ShowGraphics(bool visible);
  void ShowHitButtons(bool visible) {
    cmdHit.Set(&Visual::Visible, visible);
    cmdGiveUp.Visible = visible;
  }
  void ShowScoringLabel(bool visible) {
    SetVisible({&ScoringLabel, &ScoringLabelRoundTotal, &ScoringLabelInfo}, visible);
  }
  void ShowTimeBonus(long long bonus);
  void ShowRoundControls(bool visible);
  void CenterScoringLabel();
  void PlaceRoundTotal();
  void PlaceInfo();
  void CenterTimeBonus();
  void CenterCardTotal() { CenterIn(lblCurrentTotal, frmScore); }
  void ResizeColumnHeaders();

  Integer shownTotal_;  // in `lblCurrentTotal`
};

std::unique_ptr<Guide> GuideTo(frmFivestack& window);
