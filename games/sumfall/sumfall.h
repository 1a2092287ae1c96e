// frmSumfall: the window of Sumfall, what each click, tick and menu entry does.
#pragma once

#include "games/sumfall/rules.h"
#include "games/sumfall/saved_game.h"
#include "suite/game_window.h"

class frmSumfall : public GameWindow {
 public:
  explicit frmSumfall(modCommon& common);

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
  CardCodes Round1Deck, Round2Deck, Round3Deck;  // as dealt, for replay and saved games
  std::array<std::string, modSumfall::kPlaces> FieldCards;
  std::array<std::string, modSumfall::kUpCards> UpCards;  // index 0 stays empty
  std::vector<std::string> StockCards;
  Integer UpCardIndex, StockIndex, CardGoal, CurrentTotal, CurrentRound, SelectionColorIndex;
  int DeckGoal = modSumfall::kDefaultGoal;  // the card goal that the decks were made for
  Long CombinationCount;
  Long BonusRoundScore, CompletionBonus, CombinationBonus;
  bool CountDownScore = true;  // of this game alone
  bool ReplayPending = false, UpCardUsed = false;

  // --- Play --------------------------------------------------------------------------------------
  bool CreateSumfallDeck();
  // Lays out `Deck` and starts the round clock. False, and the player is told, if a card can't be shown.
  bool Deal(bool newGame = false);
  bool CheckLegalFieldCardMove(int index) const;
  bool CheckForCompletion() const;
  void FieldCardPicture_Click(int index);
  void UpCardPicture_Click();
  void PlayCardPicture_Click();
  void CheckTotal();
  // False if no place of the field is free.
  bool MoveUpCardToFieldArea();

  // Reads a saved game and replays it. False, and the player is told, if the file is none.
  bool LoadSavedGame(const std::filesystem::path& path);
  // The last game, as `frmSave` writes it.
  modSumfall::SavedGame LastGame(const std::string& userName) const;
  // "Make n for Bonus Round!" in panel 1.
  void ShowBonusRoundGoal();

  // --- The frame's plan --------------------------------------------------------------------------
  void Form_Activate() override;
  void Play() override;
  void TakeScore() override;
  void EndGame() override;
  void GameFailed() override;
  void ShowCards(bool visible) override;
  void CoverCards(bool covered) override;
  void RefreshPlayCard() override;
  void RefreshFieldCards() override;
  void ShowCustomScoring() override;
  RulesPage Rules() const override;
  void WriteSettings(SettingsWriter& writer) const override;
  void SetDefaults() override;
  bool ApplyGameSetting(std::string_view section, std::string_view value) override;
  std::string TableFile(const std::string& tableName) const override;
  std::string HighScoreInfo() const override;
  void ShowSplashFace(Image& image) override;
  void ShowSplashBack(Image& image) override;
  void ShowGameControls(bool visible) override;
  void HideCardsAtTimeUp() override { ShowLowerCards(false); }
  void cmdPlay_Click() override;
  void mnuPlay_Click() override;
  void cmdTakeScore_Click() override;
  void mnuTakeScore_Click() override;
  bool PausesBeforeClosing() const override { return true; }
  void PlaceMessage() override;
  void PlaceBoard() override;

 private:
  void SetUpBoard();
  void SetUpGameMenus();
  void BindBoardEvents();
  void FieldCardDisplay(bool visible = true);
  void SelRectangle(bool visible = true);
  void CardTotalVisible(bool visible);
  void ShowLowerCards(bool visible);
  void DisableCommandButtons(bool disable);
  void ShowTimerRect();
  void SelectionColor(int index);
  void ChooseGoal(int goal);
  void ShowTotal();
  void TakePoints(long long points);
  void StoreRoundDeck();
  CardCodes& RoundDeck(long long round);
  int FreePlace() const;
  void PayCompletionBonus();
  void PayCombinationBonus();
  void PayTimeBonus();
  void StartRound(int round, const char* announcement);
  void GameOver();
  void EndScoring();
  void ReplayOrTakeScore(bool fromButton);

  bool commandLineTaken_ = false;
};
