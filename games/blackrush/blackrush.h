// frmBlackrush: the window of Blackrush, what each click, tick and menu entry does.
#pragma once

#include "games/blackrush/board.h"
#include "suite/game_window.h"

namespace modBlackrush {

// What a game pays, and asks for, when nobody has changed it.
inline constexpr int kTwentyOneBonusValue = 1000, kCardsUsedBonusValue = 100, kFiveCardGimmeBonus = 750,
                     kDeckCompletionBonus = 100000, kBonusScore = 250000, kCardsToPass = 3,
                     kWaitPeriod = 2000;

// The 21 Counter: milliseconds a step.
inline constexpr int kNormalSpeed = 90, kSlowSpeed = 180, kSlowestSpeed = 360;
inline constexpr int kCounterSpeeds[] = {kNormalSpeed, kSlowSpeed, kSlowestSpeed};

}  // namespace modBlackrush

class frmBlackrush : public GameWindow {
 public:
  explicit frmBlackrush(modCommon& common);
  static const RulesText kRules;

  // --- Board and cards ---------------------------------------------------------------------------
  Label& ScoringLabelInfo = lblMessage;
  Label& lblTotalScore = lblCurrentScore;
  Menu& mnuUserOptions = mnuCustom;
  Menu& mnuTimeLimit = mnuTime;

  Shape Column1Line{*this, "Column1Line"}, Column2Line{*this, "Column2Line"},
      Column3Line{*this, "Column3Line"};
  using Slots = ControlArray<Image, kCardsOfColumn>;
  Slots Column1{*this, "Column1"}, Column2{*this, "Column2"}, Column3{*this, "Column3"},
      Column4{*this, "Column4"};
  Slots& ColumnImages(int i) { return *std::array{&Column1, &Column2, &Column3, &Column4}[i]; }
  ControlArray<Label, modBlackrush::kColumns> ColumnTotal{*this, "ColumnTotal"},
      ColumnSoft{*this, "ColumnSoft"};
  Image PlayCardPicture{*this, "PlayCardPicture"}, NextCardPicture{*this, "NextCardPicture"};
  ControlArray<CommandButton, modBlackrush::kColumns> cmdHit{*this, "cmdHit"};
  CommandButton cmdPass{*this, "cmdPass"};
  Label lblBust{*this, "lblBust"}, lblFiveCards{*this, "lblFiveCards"};
  Shape ScoringLabelOutline{*this, "ScoringLabelOutline"};

  Frame frameScoreInfo{*this, "frameScoreInfo"};
  Label lblTwentyOnes{frameScoreInfo, "lblTwentyOnes"}, lbl21s{frameScoreInfo, "lbl21s"},
      lbl21Bonus{frameScoreInfo, "lbl21Bonus"}, lblBonus{frameScoreInfo, "lblBonus"},
      lblCardsUsed{frameScoreInfo, "lblCardsUsed"}, lblCardsUsedCount{frameScoreInfo, "lblCardsUsedCount"},
      lblTwentyoneTime{frameScoreInfo, "lblTwentyoneTime"}, lblRoundScore{frameScoreInfo, "lblRoundScore"},
      lblRoundScoreCount{frameScoreInfo, "lblRoundScoreCount"};
  ProgressBar ProgressBar1{frameScoreInfo, "ProgressBar1"};
  Timer Timer3{*this, "Timer3"}, Timer5{*this, "Timer5"};
  Timer& Timer6 = ClockTimer;

  // --- State -------------------------------------------------------------------------------------
  modBlackrush::Board board;
  bool QuitRequested = false;  // End Game was confirmed: the score isn't for the table
  // Settings.
  Integer CardsToPass, WaitPeriod;
  Property<int>& CounterSpeed = Timer3.Interval;
  Long TwentyOneBonusValue, CardsUsedBonusValue, FiveCardGimmeBonus, DeckCompletionBonus;

  // --- Play --------------------------------------------------------------------------------------
  void cmdHit_Click(int index);
  void cmdPass_Click();
  // What the column would total with the next card; shows that the column becomes a soft one.
  int GetHitTotal(int index);
  // Whether that total can't be laid; an ace that came down for it lowers it.
  bool CheckForBust(int index, int& total);
  void LayCard(int index, int total);
  void FiveCardGimme(int index);
  void NextRound();
  // The 21 Counter.
  void Timer3_Timer();
  void Timer5_Timer();

  // --- What is shown -----------------------------------------------------------------------------
  // A message in its outline: until further notice, or for `WaitPeriod` while a game is in progress.
  void KeepTelling(const std::string& text);
  void TellBriefly(const std::string& text);
  void StopTelling();
  void ShowGameBoard(bool show);
  void ShowHitButtons(bool show) { cmdHit.Set(&Visual::Visible, show); }
  void EnableHitButtons(bool enable) { cmdHit.Set(&Visual::Enabled, enable); }
  void EnablePlayControls(bool enable);
  void ShowPile() {
    PlayCardPicture.Picture = common.ImageList2(StockKey(modBlackrush::kLastCard - board.position, 36, 18));
  }
  void ClearColumns() {
    for (int i = 0; i < modBlackrush::kColumns; ++i) ClearColumn(i);
  }

  // --- The frame's plan --------------------------------------------------------------------------
  void Play() override;
  void TakeScore() override;
  void EndGame() override;
  void GameOver() override;
  void GameFailed() override;
  void BackToIdle() override;
  void TimeIsUp() override;
  void PauseGame() override;
  void ResumeGame() override;
  void TellPause(bool paused) override { paused ? KeepTelling("Game Paused") : StopTelling(); }
  // Cards that there are, and what is known of them.
  void ShowCards(bool visible) override;
  void CoverCards(bool covered) override;
  void RefreshPlayCard() override { ShowPile(); }
  void ShowCustomScoring() override;
  void PlaceBoard() override;

 private:
  void NameSettings();
  void SetUpBoard();
  void SetUpLabels();
  void BindBoardEvents();

  void Bust();
  void TwentyOne(int index);
  void TurnNextCard();
  void DeckCompleted();
  void ResetCounter();
  void PrepareRound(bool bonus);
  void OpenBoard(bool over);
  void CountCardsUsed();
  void CountTwentyOnes();
  void EndCount();
  void EmptyBoard();

  void ShowColumn(int index) { ColumnTotal(index).Caption = std::to_string(board.columns[index].total); }
  void ShowBonus() { lblBonus.Caption = std::to_string(board.bonus); }
  void ShowRound() { lblRound.Caption = "Round: " + std::to_string(CurrentRound); }
  void ShowCardsUsed(long long cards) { lblCardsUsedCount.Caption = std::to_string(cards); }
  void ForgetTwentyOnes();
  void ClearColumn(int index);
  void ShowEmptyPlace(int index);
  void EnablePause(bool enable);
};

std::unique_ptr<Guide> GuideTo(frmBlackrush& window);
