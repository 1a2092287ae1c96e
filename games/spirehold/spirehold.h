// frmSpirehold: the window of Spirehold, what each click, tick and menu entry does.
#pragma once

#include "games/spirehold/board.h"
#include "suite/round_game.h"

namespace modSpirehold {

// What a game pays when nobody has changed it.
inline constexpr int kCardValue = 100, kBonusScore = 40000, kHighRunBonus = 1000, kTowerBonus = 5000,
                     kTimeBonus = 100;

}  // namespace modSpirehold

class frmSpirehold : public RoundGame {
 public:
  explicit frmSpirehold(modCommon& common);
  static const RulesText kRules;

  // --- Board and cards ---------------------------------------------------------------------------
  ControlArray<Image, modSpirehold::kCards> UpCardImage{*this, "UpCardImage"};
  Image CardStackPicture{*this, "CardStackPicture"}, UpCardPicture{*this, "UpCardPicture"};
  Label lblCardCount{*this, "lblCardCount"}, lblCards{*this, "lblCards"},
      lblCurrentRun{*this, "lblCurrentRun"}, lblHighRun{*this, "lblHighRun"},
      lblNextCard{*this, "lblNextCard"};
  Label lblTower1{*this, "lblTower1"}, lblTower2{*this, "lblTower2"}, lblTower3{*this, "lblTower3"};
  Menu mnuClearHighRun{mnuOptions, "mnuClearHighRun"};

  // --- State -------------------------------------------------------------------------------------
  modSpirehold::Board board;
  // Settings.
  Integer CardValue;
  Long HighRunBonus, TowerBonus;

  // --- Play --------------------------------------------------------------------------------------
  void Deal();
  void UpCardImage_Click(int index);
  void CardStackPicture_Click();
  void UpCardPicture_Click();
  void lblCurrentRun_Change();
  void ShowCards(bool visible, bool disable);

  // --- The frame's plan --------------------------------------------------------------------------
  void Play() override;
  void InitRound() override;
  void HideBoard(bool) override { ShowCards(false, false); }
  void PayAwards() override;
  void EndGame() override;
  void GameFinished() override { HideTowerLabels(); }
  void ShowCards(bool visible) override { ShowCards(visible, true); }
  void CoverCards(bool covered) override;
  void RefreshPlayCard() override;
  void PlaceBoard() override;

 private:
  void NameSettings();
  void SetUpBoard();
  void BindBoardEvents();
  void ShowCard(Image& image, std::string_view code);
  void CoverCard(Image& image);
  void ShowRun();
  void ShowHighRun();
  void ShowStack();
  void RefreshFieldCards();
  void HideTowerLabels();
  void CompleteTower(int index);
  void Uncover(int index);
  void TowerScore();
  void HighRunScore();
  void RefuseTimeBonus();
};

std::unique_ptr<Guide> GuideTo(frmSpirehold& window);
