// The plan to which every game window is built: splash, play, pause, round clock, end of game, menus,
// settings, closing. A game is a `GamePlan`, the handful of functions that it must give, and those in which
// it departs from the plan.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "suite/common.h"
#include "suite/settings_file.h"
#include "window/text.h"

// One entry of the time limit menu.
struct TimeLimitEntry {
  int seconds;
  const char* menu;
  const char* caption;
};

// What tells one game from another without any code. Names of controls that the game doesn't have are "".
struct GamePlan {
  const char* window;        // the form's name
  const char* settingsFile;  // "\\Name.Ini"
  const char* tableName;     // of its high score tables
  const char* defaultScore;  // in a fresh table
  int width, height;         // smallest size, twips; written for a maximised window
  std::span<const TimeLimitEntry> limits;
  int timeLimit;  // the default, seconds
  // The back designs that "[Deck]" 1 to 4 stand for, and the default number.
  BackDesign designs[4] = {kPalmTree, kMagicHands, kNightCastle, kHotCards};
  int deckDesign = 1;
  int splashInterval = 200;  // milliseconds
  const char* timeSection = "[Time]";
  const char* fileMenu = "mnuFile";
  const char* fileCaption = "&File";
  const char* viewMenu = "mnuView";
  const char* clearCaption = "&Clear High Scores...";
  const char* customMenu = "mnuCustom";
  const char* customCaption = "&User Options...";
  const char* exitButton = "cmdExit";
  const char* takeScoreButton = "cmdTakeScore";
  const char* takeScoreMenu = "mnuTakeScore";
  const char* clockTimer = "Timer3";  // refreshes the time of day
  // False if the game starts the music itself, with each round.
  bool playStartsMusic = true;
  // True if cards lie face down during play, so that a change of the back design is to be seen on them.
  bool backsInPlay = false;
};

// What the menu bar and the status bar take off a window's height, at most.
inline constexpr int kBars = 750;

// A box let into the board, with the lines that light its edges.
struct ScoreBox {
  Shape& box;
  Shape& side;
  Shape& bottom;
};

// What the rules window shows: the blanks before the heading, and the paragraphs.
struct RulesPage {
  int blanks;
  std::vector<std::string> paragraphs;
};

class GameWindow : public Form {
 public:
  GameWindow(modCommon& common, const GamePlan& plan);
  ~GameWindow() override;

  modCommon& common;
  const GamePlan& plan;

  // --- What a game must give ---------------------------------------------------------------------

  // Starts a game: `cmdPlay` reads "&End Game" already, the splash panel is hidden.
  virtual void Play() = 0;
  // Ends the round: pays, then starts the next round or ends the game.
  virtual void TakeScore() = 0;
  // The player has confirmed End Game.
  virtual void EndGame() = 0;
  // A failure has ended the game in progress; the player has been told.
  virtual void GameFailed() = 0;
  // All card images.
  virtual void ShowCards(bool visible) = 0;
  // Hides the cards of a paused game, or turns them down; or shows them again.
  virtual void CoverCards(bool covered) = 0;
  // Shows the stock in the back design in force; and the same for cards that lie face down.
  virtual void RefreshPlayCard() = 0;
  virtual void RefreshFieldCards() = 0;
  // The customised scoring dialog.
  virtual void ShowCustomScoring() = 0;
  virtual RulesPage Rules() const = 0;
  // The whole settings file.
  virtual void WriteSettings(SettingsWriter& writer) const = 0;

  // --- What a game may say differently -----------------------------------------------------------

  // The game's own defaults, set before the settings are read.
  virtual void SetDefaults() {}
  // Applies one setting of the game's own. False if it isn't a section of this game.
  virtual bool ApplyGameSetting(std::string_view /*section*/, std::string_view /*value*/) { return false; }
  // Called when all settings are read.
  virtual void SettingsRead() {}
  // The name of a table's file for the present settings.
  virtual std::string TableFile(const std::string& tableName) const;
  virtual std::string HighScorePrefix() const { return "High Score: "; }
  // The line under the Hall of Fame.
  virtual std::string HighScoreInfo() const { return "* denotes customized scoring was used"; }
  // The next picture of the splash panel when it doesn't show a back.
  virtual void ShowSplashFace(Image& image);
  virtual void ShowSplashBack(Image& image);
  // The game's own labels in the group that `ShowControls` shows and hides.
  virtual void ShowGameControls(bool /*visible*/) {}
  // Hides the cards when the time is up, as far as the game does so.
  virtual void HideCardsAtTimeUp() { ShowCards(false); }
  // The button and the menu entry Play; "&Play" starts a game, "&End Game" asks and ends it.
  virtual void cmdPlay_Click();
  virtual void mnuPlay_Click() { cmdPlay_Click(); }
  // The button and the menu entry Take Score.
  virtual void cmdTakeScore_Click();
  virtual void mnuTakeScore_Click() { cmdTakeScore_Click(); }
  // Whether the game stands still while the player is asked about closing.
  virtual bool PausesBeforeClosing() const { return false; }
  // Places `lblMessage` and `lblScoring` for their present texts.
  virtual void PlaceMessage();
  virtual void PlaceScoring();
  // Captions of the button and the menu entry Play at once.
  virtual void SetPlayCaption(const char* caption);
  // Places the board; the splash panel, the buttons and the status bar are placed already.
  virtual void PlaceBoard() {}
  // What else a finished game enables again.
  virtual void GameFinished() {}

  // --- What the frame offers ---------------------------------------------------------------------

  // Stops the clock, puts the commands back, enters the score in the table, leaves only the score in view.
  void FinishGame(const std::string& tableName, const std::string& defaultScore);
  void ShowControls(bool visible, std::optional<bool> scoreVisible = std::nullopt);
  // Pauses the game, or resumes it, as a click on `cmdPause`.
  void Pause();
  // Asks whether the game in progress is to end, with the clock standing still, and ends it on Yes.
  void AskToEndGame(const std::string& question);
  bool IsPaused() const { return lblMessage.Caption == "Game Paused"; }
  // Pauses a running game, runs `action`, resumes it.
  void PauseAround(const std::function<void()>& action);
  void ShowSplash(bool visible);
  // A card may not be touched now: the game is paused or over.
  bool BoardIsClosed() const { return IsPaused() || lblMessage.Caption == "Game Over"; }
  // Plays a wave if the player wants sounds.
  void PlaySound(const char* path);
  void AddToScore(long long amount);
  void ShowScore();
  // Swaps the colour of `lblMessage` between red and black that many times, a quarter of a second each.
  void BlinkMessage(int times);
  void ShowMessage(const std::string& text);
  // Announces the next round, with a wave if one is named: the message blinks, and is gone.
  void Announce(const std::string& text, const char* wave = nullptr);
  // "Game Over" for two seconds; then the splash panel is back.
  void ShowGameOver();
  // Places controls as in their design, but in the middle of the present window.
  void PlaceInMiddle(std::span<const Design> rows);
  void ChooseTimeLimit(int seconds);
  void ChooseDeck(int number);
  // Ticks `entry` and no other entry of its menu.
  void TickOnly(Menu& entry);
  // The last sections of every settings file: "[State]", "[Width]", "[Height]", "[Deck]".
  void WriteWindowSettings(SettingsWriter& writer) const;
  // Applies "True" or "False" to a flag; other values change nothing.
  static void ApplyFlag(std::string_view value, bool& flag);
  // Applies a whole number; what is none, or doesn't fit, changes nothing.
  template <class Rep>
  static void ApplyNumber(std::string_view value, Checked<Rep>& number) {
    int read = 0;
    if (ParseLong(value, read) && std::in_range<Rep>(read)) number = read;
  }

  // --- The standing controls ---------------------------------------------------------------------

  PictureBox Surface{*this, "Surface"};
  Shape TimerRectangle{*this, "TimerRectangle"}, TimerBevelSide{*this, "TimerBevelSide"},
      TimerBevelBottom{*this, "TimerBevelBottom"};
  Shape ScoreRectangle{*this, "ScoreRectangle"}, ScoreBevelSide{*this, "ScoreBevelSide"},
      ScoreBevelBottom{*this, "ScoreBevelBottom"};
  Shape RoundRectangle{*this, "RoundRectangle"}, RoundBevelSide{*this, "RoundBevelSide"},
      RoundBevelBottom{*this, "RoundBevelBottom"};
  Label lblTime{*this, "lblTime"}, lblScore{*this, "lblScore"}, lblCurrentScore{*this, "lblCurrentScore"},
      lblRound{*this, "lblRound"}, lblCurrentRound{*this, "lblCurrentRound"},
      lblHighScore{*this, "lblHighScore"}, lblMessage{*this, "lblMessage"}, lblScoring{*this, "lblScoring"};
  Frame frmSplash{*this, "frmSplash"};
  ControlArray<Image, 4> imgSplashImage{frmSplash, "imgSplashImage"};
  Label lblCompanyProduct{frmSplash, "lblCompanyProduct"}, lblProductName{frmSplash, "lblProductName"},
      lblPlatform{frmSplash, "lblPlatform"}, lblVersion{frmSplash, "lblVersion"};
  CommandButton cmdPlay{*this, "cmdPlay"}, cmdTakeScore, cmdPause{*this, "cmdPause"}, cmdExit;
  StatusBar StatusBar1{*this, "StatusBar1"};
  Timer Timer1{*this, "Timer1"}, Timer2{*this, "Timer2"}, ClockTimer, Timer4{*this, "Timer4"};

  Menu mnuFile, mnuPlay, mnuTakeScore, mnuPause, mnuFileLine, mnuExit;
  Menu mnuOptions, mnuView, mnuClear, mnuOptionsLine, mnuMusic, mnuSounds, mnuCustom, mnuTime;
  std::vector<std::unique_ptr<Menu>> timeLimitEntries;
  Menu mnuDeck, mnuPalm, mnuMagic, mnuNight, mnuHot;
  Menu mnuHelp, mnuRules, mnuAbout;

  // The boxes of the board; a game adds its own. Their edges follow them.
  std::vector<ScoreBox> scoreBoxes;
  void AddScoreBox(Shape& box, Shape& side, Shape& bottom);

  // --- Events ------------------------------------------------------------------------------------

  void Form_Load() override;
  void Form_Resize() override;
  void Form_QueryUnload(bool& cancel) override;
  void Form_Unload() override;

 private:
  void SetUpControls();
  void SetUpMenus();
  void BindEvents();
  void ReadSettingsINI();
  bool ApplySetting(std::string_view section, std::string_view value);
  void ApplySize(std::string_view section, int value);
  // Writes the settings file; the text that it holds now.
  std::string SaveSettings();
  void ShowTimeLeft();
  void Timer1_Timer();
  void Timer4_Timer();
  void TimeIsUp();
  void ToggleSounds();
  void ToggleMusic();
  void ClearHighScores();

  int SplashPosition_ = 0;
  bool SplashForward_ = false, SplashShowBack_ = false;
};
