// frmFivestack: the window of Fivestack, what each click, tick and menu entry does.
#pragma once

#include "games/fivestack/rules.h"
#include "suite/game_window.h"

class frmFivestack : public GameWindow {
 public:
  explicit frmFivestack(modCommon& common);

  // --- Board and cards ---------------------------------------------------------------------------
  using Slots = ControlArray<Image, kCardsOfColumn>;
  Slots Column1{*this, "Column1"}, Column2{*this, "Column2"}, Column3{*this, "Column3"},
      Column4{*this, "Column4"}, Column5{*this, "Column5"};
  Shape Column1Line{*this, "Column1Line"}, Column2Line{*this, "Column2Line"},
      Column3Line{*this, "Column3Line"}, Column4Line{*this, "Column4Line"}, Column5Line{*this, "Column5Line"};
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
  // The rows of the table in it, in the order of `kTotals`.
  struct TableRow {
    Label total, value;
    TableRow(Control& frame, const modFivestack::TotalRow& row)
        : total(frame, row.label), value(frame, row.valueLabel) {}
  };
  std::vector<std::unique_ptr<TableRow>> tableRows;
  Label lblTimeBonus{*this, "lblTimeBonus"};
  Shape ScoringLabelOutline{*this, "ScoringLabelOutline"};
  Label &ScoringLabel = lblMessage, &lblTotalScore = lblCurrentScore;
  Label ScoringLabelRoundTotal{*this, "ScoringLabelRoundTotal"}, ScoringLabelInfo{*this, "ScoringLabelInfo"};
  CommandButton& cmdQuit = cmdExit;

  // --- State -------------------------------------------------------------------------------------
  // What Give Up does by now; it reads accordingly, and a total that was lost differs from none.
  enum class Offer { GiveUp, Lost, TakeScore };

  std::array<Column21, modFivestack::kColumns> columns;
  Integer DeckPosition;  // of the next card
  Integer PassesLeft;
  Integer CardTotal, CardTotalValue;
  Offer offer = Offer::GiveUp;
  bool QuitRequested = false;  // End Game was confirmed
  // Settings.
  Integer TimeBonusMax, TimeBonusMin, WaitPeriod, CardsToPass;
  float TimeBonusDecay() const;

  // --- Cards -------------------------------------------------------------------------------------
  void cmdHit_Click(int index);
  void cmdPass_Click();
  void CalculateColumnValue(int index);
  // True if the round is lost; else an ace of the column counts 1 from now on.
  bool CheckForBust(int index);
  void CloseColumn(int index, bool close = true);
  void CloseCurrentRound();
  bool EnableControls();
  void lblCurrentTotal_Change();
  void UpdateCardTotalValue();
  void ClearCardTotalRows();

  // --- Rounds ------------------------------------------------------------------------------------
  void Play() override;
  void cmdGiveUp_Click();
  void TakeScore() override;
  // The next round, or the end of the game if there is none of that number.
  bool EndRound(Integer round);
  bool Reset();

  // --- The frame's plan --------------------------------------------------------------------------
  std::string Welcome() const override { return "Welcome to " + common.AppTitle + "   "; }
  // The entry of the default limit runs before the file is read.
  void SetDefaults() override { ChooseTimeLimit(plan.timeLimit); }
  bool ApplyGameSetting(std::string_view section, std::string_view value) override;
  void SettingsRead() override;
  void LeaveIdle() override;
  void BackToIdle() override;
  void ShowTimeLeft() override;
  void TimeIsUp() override;
  void ResumeGame() override;
  void TellPause(bool paused) override;
  void CoverCards(bool covered) override;
  void Minimised() override;
  void Restored() override;
  void cmdTakeScore_Click() override { cmdGiveUp_Click(); }
  void GameOver() override;
  void GameFailed() override;
  void EndGame() override;
  void BeforeEndQuestion() override;
  void AfterEndQuestion(bool ends) override;
  void BeforeClosingQuestion() override;
  void AfterClosingQuestion(bool closes) override;
  void ShowCards(bool visible) override;
  void RefreshPlayCard() override { ShowBack(PlayCardPicture); }
  void ShowCustomScoring() override;
  RulesText Rules() const override;
  void PlaceMessage() override;
  void PlaceBoard() override;

 private:
  void SetUpBoard();
  void SetUpTable();
  void BindBoardEvents();
  Slots& ColumnImages(int index);
  Shape& ColumnLine(int index);

  void SumUp();
  void ShowCardTotal(long long total);
  void SetOffer(Offer which);
  void ShowNextCard();
  void DealCards();
  void StartClock();
  void LoseRound();
  void PrepareRound();
  void CountScore(long long roundScore);
  void Wait();

  void ShowGraphics(bool visible);
  void ShowHitButtons(bool visible);
  void ShowScoringLabel(bool visible);
  void ShowTimeBonus(long long bonus);
  void ShowRoundControls(bool visible);
  void CenterScoringLabel();
  void PlaceRoundTotal();
  void PlaceInfo();
  void CenterTimeBonus();
  void CenterCardTotal();
  void ResizeColumnHeaders();

  Integer shownTotal_;  // in `lblCurrentTotal`
  // Pause was clicked behind the closing question; and whether the game was paused before.
  std::optional<bool> pausedBeforeClosing_;
};
