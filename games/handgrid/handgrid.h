// frmHandgrid: the window of Handgrid, what each click, tick and menu entry does.
#pragma once

#include "games/handgrid/board.h"
#include "suite/game_window.h"

namespace modHandgrid {

// What a game pays, asks and allows when nobody has changed it.
inline constexpr int kTimeBonus = 1, kBonusScore = 100000, kOverWrites = 3;

// What the labels call it.
const char* HandName(Hand hand);

}  // namespace modHandgrid

class frmHandgrid : public GameWindow {
 public:
  explicit frmHandgrid(modCommon& common);
  static const RulesText kRules;

  // --- Board and cards ---------------------------------------------------------------------------
  ControlArray<Image, modHandgrid::kCells> PlayCards{*this, "PlayCards"};
  Image CardStackPicture{*this, "CardStackPicture"}, HoleCard{*this, "HoleCard"};
  // The names of the hands, beside the rows and under the columns, numbered from 1.
  ControlArray<Label, modHandgrid::kSide, 1> lblRow{*this, "lblRow"}, lblCol{*this, "lblCol"};
  Label& HandLabel(int line) {
    return line < modHandgrid::kSide ? lblRow(line + 1) : lblCol(line - modHandgrid::kSide + 1);
  }
  Label lblCards{*this, "lblCards"}, lblOverwrites{*this, "lblOverwrites"},
      lblPointsEarned{*this, "lblPointsEarned"};
  Label lblTimeBonus{Surface, "lblTimeBonus"};  // the seconds that are left, on the dial
  // Announcements stand here; `lblMessage` and `lblScoring` above and below them.
  Shape ScoringLabelOutline{*this, "ScoringLabelOutline"};
  Label ScoringLabel{*this, "ScoringLabel"};

  // --- State -------------------------------------------------------------------------------------
  modHandgrid::Board board;
  Long RoundPoints;                   // of all ten hands
  bool HandSoundPlayed = false;       // a hand was named: the next card comes without a click
  const char* StackPicture = "FULL";  // the key of what the stack shows
  // Settings.
  modHandgrid::HandScores Scores;
  Integer OverWritesAllowed;

  // --- Play --------------------------------------------------------------------------------------
  void Deal();
  void PlayCards_Click(int index);
  void CardStackPicture_Click();
  // How a round came to its end.
  enum class RoundEnd { GridFull, TimesUp };
  void NextRound(RoundEnd end);
  // Clears the board; at the end of a game the window is idle again.
  void Reset(bool endOfGame);
  void CenterScoringLabel();
  void CenterTimeBonus();

  // --- The frame's plan --------------------------------------------------------------------------
  void Play() override;
  void EndGame() override;
  void GameOver() override;
  void GameFailed() override;
  void ShowCards(bool visible) override;
  void RefreshPlayCard() override;
  void ShowTimeLeft() override;
  void TimeIsUp() override;
  using GameWindow::ShowControls;
  void ShowControls(bool roundControls, bool frameControls) override;
  void PlaceMessage() override { CenterScoringLabel(); }
  void PlaceScoring() override;
  void PlaceBoard() override;

 private:
  void NameSettings();
  void SetUpBoard();
  void SetUpLabels();
  void BindBoardEvents();

  void DrawNextCard();
  void StackColumn(int column);
  void ShowHands(const std::array<modHandgrid::Hand, modHandgrid::kLines>& before);
  void lblRound_Change();
  void lblCol_Change(int line);

  void ForfeitRound();
  void PayRound();
  void AnnounceNextRound();
  void BeginNextRound();
  void ShowAnnouncement(bool visible);
  void SetAnnouncementFont(const char* name, int size);

  void ShowOverWrites();
  void ShowCardsRemaining();
  void ShowPointsEarned();
};

std::unique_ptr<Guide> GuideTo(frmHandgrid& window);
