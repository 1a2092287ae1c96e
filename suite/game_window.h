// The plan to which every game window is built: splash, play, pause, round clock, end of round and game,
// menus, settings, closing. A game is a `GamePlan` (its names and numbers), the few functions that it must
// give, and the steps that it takes in another way: each step below says when it comes, and does what most
// games do. No step asks which game it serves.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "suite/commands.h"
#include "suite/common.h"
#include "suite/game_controls.h"
#include "suite/game_log.h"
#include "suite/round_clock.h"
#include "suite/settings.h"
#include "suite/splash.h"
#include "suite/standing.h"
#include "window/text.h"

class Guide;

// What the menu bar and the status bar take off a window's height, at most.
inline constexpr int kBars = 750;

class GameWindow : public Form, public GameControls {
 public:
  GameWindow(modCommon& common, const GamePlan& plan);
  ~GameWindow() override;

  modCommon& common;
  const GamePlan& plan;

  Standing standing;
  RoundClock clock{Surface, Timer2, plan, common};
  Commands commands{*this, plan};
  Splash splash{*this, common, plan};
  Integer CurrentRound;
  Long BonusScore;                // for the bonus round
  const Integer* goal = nullptr;  // what is played for, where the player chooses it
  // The deal of the day that is played here, 0 for none: by the standard settings, which aren't kept.
  int daily = 0;
  std::string day;  // whose deal that is: "2026-11-21"
  GameLog log{*this};
  // The game's own values, named in its constructor; those with a field in the order of the dialog's checks.
  GameSettings settings;

  // === What a game must give =======================================================================

  // Starts a game: begins it (`standing`), deals, starts the clock. The captions of Play have changed
  // already, and the splash panel is hidden.
  virtual void Play() = 0;
  // The player has confirmed End Game: nothing of the game goes on, its music neither.
  virtual void EndGame() = 0;
  // All card images.
  virtual void ShowCards(bool visible) = 0;
  // Shows the stock, and what else lies face down, in the back design in force.
  virtual void RefreshPlayCard() = 0;
  // Places the board; the splash panel, the buttons and the status bar are placed already.
  virtual void PlaceBoard() = 0;
  // The round's time is used up.
  virtual void TimeIsUp() = 0;
  // The game is played out: its score goes to the table, "Game Over" stands, the splash panel is back.
  virtual void GameOver() = 0;

  // === Steps, by when they come ====================================================================

  // --- Loading -------------------------------------------------------------------------------------
  // Before the file is read. Sumfall's colour is seen on the board at once, from its default on.
  virtual void SetDefaults() {}
  // A section that the game reads in its own way; asked before all others. False for the common way.
  // Sumfall's colour and card goal are ticked as they are read, a goal beyond the menu, too.
  virtual bool ApplyGameSetting(std::string_view /*section*/, std::string_view /*value*/) { return false; }
  // All settings are read; and the same after the scoring dialog.
  virtual void SettingsRead() {}
  // The customised scoring dialog.
  virtual void ShowCustomScoring();
  // What the text of the rules names beside `settings`, the title and the limit: what Fivestack works out.
  virtual RulesValues MoreRulesValues() const { return {}; }

  // --- Play and Take Score -------------------------------------------------------------------------
  // What was clicked. Only in Sumfall the entries do less than the buttons.
  enum class By { Button, Entry };
  virtual void cmdPlay_Click(By by);
  virtual void cmdTakeScore_Click(By by);
  // Play was pressed: tool tip and captions, the splash panel goes.
  virtual void LeaveIdle();
  // No game came of it: the window is as before a game.
  virtual void BackToIdle();
  // Pays the round, then begins the next one or ends the game. For a game with a Take Score.
  virtual void TakeScore() {}

  // --- The round clock and the pause ---------------------------------------------------------------
  // Writes the time that is left, and what follows from it.
  virtual void ShowTimeLeft();
  // Blackrush has a second clock and buttons that stand still, too, before and after all others.
  virtual void PauseGame();
  // Only a game in progress goes on.
  virtual void ResumeGame();
  // "Game Paused", and its end.
  virtual void TellPause(bool paused);
  // Hides the cards of a paused game, or turns them down; or shows them again.
  virtual void CoverCards(bool covered) { ShowCards(!covered); }
  // A failure has ended the game in progress; the player has been told.
  virtual void GameFailed();

  // --- What is shown, and where --------------------------------------------------------------------
  // The round's labels and boxes; and those of the score, with which Handgrid's clock stays in view.
  virtual void ShowControls(bool visible, bool scoreVisible);
  void ShowControls(bool visible) { ShowControls(visible, visible); }
  // Places `lblMessage` and `lblScoring` for their present texts.
  virtual void PlaceMessage();
  virtual void PlaceScoring();

  // === What the frame offers =======================================================================

  // Runs `Play`, as `LeaveIdle` has left the window. If no game comes of it the window is idle again.
  void StartGame();
  // An error has left no game that could be played: the player is told, and the program ends.
  void PlayFailed(const std::string& description);
  void AskToEndGame(const std::string& question);
  // A click on Pause: pauses the game, or resumes it.
  void Pause();
  // Pauses a running game, runs `action`, resumes it.
  void PauseAround(const std::function<void()>& action);

  // A round begins: nothing is being scored, no second is used, the message is gone.
  void ClearRound();
  // A round is ready: the commands of a running game, its controls, its music.
  void OpenRound();
  // A second has passed.
  void Tick();
  bool EarnsBonusRound() const;
  // What was counted is gone.
  void EndScoring();
  // Stops the clock, puts the commands back, enters the score in the table, leaves only the score in view.
  void FinishGame();
  // Enters the score in the final table, and shows its leader.
  void EnterHighScore();
  // Shows the leader of the window's table.
  void ShowTableLeader();
  // "Game Over" on that label, for so long.
  void TellGameOver(Label& label, int milliseconds = 2000);

  void ShowMessage(const std::string& text);
  void HideMessage();  // and empties it
  // Swaps a label's colour between red and black that many times.
  void Blink(Label& label, int times, int milliseconds = 250);
  void AddToScore(long long amount);
  void ShowScore();
  // "Time: n" for a round that begins.
  void ShowRoundTime();
  // "Make n" and that ending in panel 1.
  void ShowBonusGoal(const char* ending = " for Bonus Round!   ");
  // Shows a card, the back of one, or the place of none.
  void ShowFace(Image& image, std::string_view code);
  void ShowBack(Image& image);
  void ShowEmpty(Image& image);

  // The close box was pressed while a round was being paid, and the question can be asked now; and asks it.
  bool ClosesNow() const { return closeWanted_ && !standing.IsBusy(); }
  void CloseIfWanted();

  // If the player wants them.
  void PlaySound(const char* path);
  // The bonus round comes next.
  void CheerBonusRound();
  // The player's click isn't done, and sounds so.
  void Refuse();
  void StartMusic();
  void StopMusic();

  // Places controls as in their design, but in the middle of the present window.
  void PlaceInMiddle(std::span<const Design> rows);
  void ChooseTimeLimit(int seconds);
  void ChooseDeck(int number);
  // Ticks `entry` and no other entry of its menu.
  void TickOnly(Menu& entry);
  // Sets `CustomScoringInUse`; by the table of settings.
  void CheckForCustom();
  // The name of a table's file for the present settings; the line under the Hall of Fame.
  std::string TableFile(const std::string& tableName) const;
  std::string HighScoreInfo() const;
  // The text of the rules window.
  std::string RulesPage() const;
  // Writes the settings file; the text that it holds now.
  std::string KeepSettings();

  // === What a game may add ========================================================================

  // What of the game's own is shown during a round.
  std::vector<Visual*> roundControls;
  // Where messages stand in the middle; else across the window.
  const Shape* messageBox = nullptr;

  // === Events ======================================================================================

  void Form_Load() override;
  void Form_Resize() override;
  void Form_StateChange(int before) override;
  void Form_QueryUnload(bool& cancel) override;
  void Form_Unload() override;

 private:
  void BindEvents();
  void ReadSettingsINI();
  std::string SettingsText() const;
  bool ApplySetting(std::string_view section, std::string_view value);
  void ApplySize(std::string_view section, int value);
  std::string SettingText(std::string_view section) const;
  // The same, and tells what can't be kept.
  std::string SaveSettings();
  void Sleep();
  void ToggleSounds();
  void ToggleMusic();
  void mnuClear_Click();

  bool closeWanted_ = false;
};
