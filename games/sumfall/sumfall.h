// frmSumfall: the window of Sumfall, what each click, tick and menu entry does.
#pragma once

#include "games/sumfall/board.h"
#include "games/sumfall/saved_game.h"
#include "suite/round_game.h"

namespace modSumfall {

inline constexpr int kBonusRound = 3;
// What a game pays when nobody has changed it.
inline constexpr int kBonusRoundScore = 80000, kCompletionBonus = 10000, kCombinationBonus = 1500,
                     kTimeBonus = 100;

// "Tens:", "Elevens:" ... of a goal from 10 to 15.
const char* GoalWord(int cardGoal);
// "ten", "eleven" ... of a goal from 10 to 15.
const char* GoalNumberWord(int cardGoal);

}  // namespace modSumfall

class frmSumfall : public RoundGame {
 public:
  explicit frmSumfall(modCommon& common);
  static const RulesText kRules;

  // --- Board and cards ---------------------------------------------------------------------------
  ControlArray<Image, modSumfall::kPlaces> FieldCardPicture{*this, "FieldCardPicture"};
  Image PlayCardPicture{*this, "PlayCardPicture"}, UpCardPicture{*this, "UpCardPicture"};
  ControlArray<Shape, modSumfall::kPlaces> FieldSelectionRectangle{*this, "FieldSelectionRectangle"};
  Shape UpCardSelectionRectangle{*this, "UpCardSelectionRectangle"};
  Shape CardTotalRectangle{*this, "CardTotalRectangle"}, CardTotalBevelSide{*this, "CardTotalBevelSide"},
      CardTotalBevelBottom{*this, "CardTotalBevelBottom"};
  Shape ElevensRectangle{*this, "ElevensRectangle"}, ElevensBevelSide{*this, "ElevensBevelSide"},
      ElevensBevelBottom{*this, "ElevensBevelBottom"};
  Label lblCardCount{*this, "lblCardCount"}, lblTotal{*this, "lblTotal"},
      lblCurrentTotal{*this, "lblCurrentTotal"}, lblElevens{*this, "lblElevens"},
      lblCurrentElevens{*this, "lblCurrentElevens"};

  Menu mnuSave{mnuFile, "mnuSave"}, mnuOpen{mnuFile, "mnuOpen"};
  Menu mnuDrawTimer{mnuOptions, "mnuDrawTimer"}, mnuGoal{mnuOptions, "mnuGoal"},
      mnuColor{mnuOptions, "mnuColor"};
  std::vector<std::unique_ptr<Menu>> goalEntries, colourEntries;

  // --- State -------------------------------------------------------------------------------------
  modSumfall::Board board;
  CardCodes Round1Deck, Round2Deck, Round3Deck;  // as dealt, for replay and saved games
  Integer CardGoal, SelectionColorIndex;
  int DeckGoal = modSumfall::kDefaultGoal;  // the card goal that the decks were made for
  Long& BonusRoundScore = BonusScore;
  Long CompletionBonus, CombinationBonus;
  bool ReplayPending = false;

  // --- Play --------------------------------------------------------------------------------------
  bool CreateSumfallDeck();
  // Lays out `Deck` and starts the round clock. False, and the player is told, if a card can't be shown.
  bool Deal(bool newGame = false);
  void FieldCardPicture_Click(int index);
  void UpCardPicture_Click();
  void PlayCardPicture_Click();
  void CheckTotal();

  // Reads a saved game and replays it. False, and the player is told, if the file is none.
  bool LoadSavedGame(const std::filesystem::path& path);
  // The last game, as `frmSave` writes it.
  modSumfall::SavedGame LastGame(const std::string& userName) const;

  // --- The frame's plan --------------------------------------------------------------------------
  void Form_Activate() override;
  void Play() override;
  void BackToIdle() override;
  void BeginScoring() override;
  void HideBoard(bool timeIsUp) override;
  void PayAwards() override;
  void DropWaitingInput() override {}  // the awards have done so
  void InitRound() override;
  void GameOver() override;
  void EndGame() override;
  void ShowCards(bool visible) override;
  void CoverCards(bool covered) override;
  void RefreshPlayCard() override;
  void ShowCustomScoring() override;
  void SetDefaults() override;
  bool ApplyGameSetting(std::string_view section, std::string_view value) override;
  void SettingsRead() override { mnuDrawTimer.Checked = common.CountDownScore; }
  void cmdPlay_Click(By by) override;
  void cmdTakeScore_Click(By by) override;
  void PlaceMessage() override;
  void PlaceBoard() override;

 private:
  void NameSettings();
  void SetUpBoard();
  void SetUpGameMenus();
  void BindBoardEvents();
  void FieldCardDisplay(bool visible = true);
  void SelRectangle(bool visible = true);
  void CardTotalVisible(bool visible);
  void ShowLowerCards(bool visible);
  void EnableCommands(bool enable);
  void ShowTimerRect();
  void SelectionColor(int index);
  void ChooseGoal(int goal);
  void ShowUpCard();
  void ShowTotal();
  void OfferReplay();
  CardCodes& RoundDeck(long long round);
  void PayCompletionBonus();
  void PayCombinationBonus();
  void PayTimeBonus();
  void EndCount();
  void mnuPlay_Click();
  void ShowStock();
  void RefreshFieldCards();

  bool commandLineTaken_ = false;
  bool completed_ = false;  // the field, in the round that is being paid
};

std::unique_ptr<Guide> GuideTo(frmSumfall& window);
