// frmSpirehold: the window of Spirehold, what each click, tick and menu entry does.
#pragma once

#include "games/spirehold/rules.h"
#include "suite/game_window.h"

class frmSpirehold : public GameWindow {
 public:
  explicit frmSpirehold(modCommon& common);

  // --- Board and cards ---------------------------------------------------------------------------
  ControlArray<Image, modSpirehold::kCards> UpCardImage{*this, "UpCardImage"};
  Image CardStackPicture{*this, "CardStackPicture"}, UpCardPicture{*this, "UpCardPicture"};
  Label lblCardCount{*this, "lblCardCount"}, lblCards{*this, "lblCards"},
      lblCurrentRun{*this, "lblCurrentRun"}, lblHighRun{*this, "lblHighRun"},
      lblNextCard{*this, "lblNextCard"};
  Label lblTower1{*this, "lblTower1"}, lblTower2{*this, "lblTower2"}, lblTower3{*this, "lblTower3"};
  Menu mnuClearHighRun{mnuOptions, "mnuClearHighRun"};

  // --- State -------------------------------------------------------------------------------------
  modSpirehold::Cards DeckCards;
  std::string UpCardCode;
  Integer StackIndex, UpCardValue = modSpirehold::kNoRank, CardsRemaining, CurrentRound;
  Integer CurrentRun, HighestRun, RunValue;  // `RunValue` lives on until a card is turned
  Long TowersCompleted;
  bool NewHighRun = false;
  // Settings.
  Integer CardValue;
  Long BonusScore, HighRunBonus, TowerBonus;

  // --- Play --------------------------------------------------------------------------------------
  void InitRound();
  void Deal();
  // Whether the card may be taken; if so it counts as the up card from now on.
  bool CheckForLegalMove(int index);
  void UpCardImage_Click(int index);
  void CardStackPicture_Click();
  void UpCardPicture_Click();
  void lblCurrentRun_Change();
  void ShowCards(bool visible, bool disable);
  // Sets `CustomScoringInUse`.
  void CheckForCustom();

  // --- The frame's plan --------------------------------------------------------------------------
  void Play() override;
  void TakeScore() override;
  void EndGame() override;
  void GameFailed() override;
  void ShowCards(bool visible) override { ShowCards(visible, true); }
  void CoverCards(bool covered) override;
  void RefreshPlayCard() override;
  void RefreshFieldCards() override;
  void ShowCustomScoring() override;
  RulesPage Rules() const override;
  void WriteSettings(SettingsWriter& writer) const override;
  void SetDefaults() override;
  bool ApplyGameSetting(std::string_view section, std::string_view value) override;
  void SettingsRead() override { CheckForCustom(); }
  std::string HighScorePrefix() const override { return "Current High Score: "; }
  void ShowGameControls(bool visible) override;
  void HideCardsAtTimeUp() override { ShowCards(false, false); }
  // The menu entry reads "&Play" at all times.
  void SetPlayCaption(const char* caption) override { cmdPlay.Caption = caption; }
  void PlaceBoard() override;
  void GameFinished() override { mnuClearHighRun.Enabled = true; }

 private:
  void SetUpBoard();
  void BindBoardEvents();
  void ShowFace(Image& image, std::string_view code);
  void ShowBack(Image& image);
  void ShowRun();
  void ShowHighRun();
  void HideTowerLabels();
  void CompleteTower(int index);
  void Uncover(int index);
  void TowerScore();
  void HighRunScore();
  void RefuseTimeBonus();
  void GameOver();
  void EndScoring();
};
