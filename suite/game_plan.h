// What tells one game from another without any code: the names of its controls, its tables, limits and
// settings. A game fills a `GamePlan` with designated initialisers; what it leaves out is as in most games.
#pragma once

#include <optional>
#include <span>

#include "suite/catalogue.h"
#include "suite/rules_text.h"
#include "window/box.h"

// One entry of the time limit menu.
struct TimeLimitEntry {
  int seconds;
  const char* menu;
  const char* caption;
  bool comesBack = true;  // it is taken from the settings file
};

// A box let into the board and the two lines that light its edges.
struct BoxNames {
  const char *box = "", *side = "", *bottom = "";
};

// Names of controls and texts on them. A control that a game doesn't have is "". Where the name of a label
// differs from game to game, the frame's member keeps the common one, and the game may give it its own:
// `Label& ScoringLabel = lblMessage;`.
struct GameNames {
  const char* window;        // the form
  const char* settingsFile;  // "\\Name.Ini"

  const char* message = "lblMessage";           // tells "Game Paused", "Times Up!", "Game Over"
  const char* scoring = "lblScoring";           // shows an amount that is counted
  const char* score = "lblCurrentScore";        // shows `CurrentScore`
  const char* roundNumber = "lblCurrentRound";  // the number in the round box
  BoxNames roundBox{"RoundRectangle", "RoundBevelSide", "RoundBevelBottom"};

  const char* takeScoreButton = "cmdTakeScore";
  const char* exitButton = "cmdExit";
  const char* takeScoreEntry = "mnuTakeScore";
  const char* fileMenu = "mnuFile";
  const char* viewEntry = "mnuView";
  const char* customEntry = "mnuCustom";
  const char* timeMenu = "mnuTime";
  const char* clockTimer = "Timer3";  // refreshes the time of day

  const char* fileCaption = "&File";
  const char* clearCaption = "&Clear High Scores...";
  const char* customCaption = "&User Options...";
  const char* endGame = "&End Game";  // what Play reads during a game
  const char* pause = "Pau&se";
  const char* pauseTip = "Pauses the current game";
  const char* timeSection = "[Time]";

  const char* welcomeEnding = "  ";        // behind "Welcome to ..." in panel 1
  const char* highScore = "High Score: ";  // before the leader of the table
  const char* splashFace = nullptr;        // the picture on the cards of the splash panel; else any face
};

// The name of a game's high score tables, and the score in a fresh one.
struct HighScoreTable {
  const char* name;
  const char* defaultScore;
};

// Where there is a table for each value of a setting, as there is for each time limit.
struct TableGoal {
  const char* section = "";  // of the setting
  const char* info = "";     // before its value, in the Hall of Fame
};

struct HighScoreTables {
  HighScoreTable shown;    // in the window and in the Hall of Fame
  HighScoreTable final;    // entered at the end of a game
  HighScoreTable cleared;  // by the menu
  TableGoal goal{};
  bool clearingPauses = false;  // the menu's question pauses a running game
};
constexpr HighScoreTables OneTable(const char* name, const char* defaultScore, TableGoal goal = {}) {
  return {{name, defaultScore}, {name, defaultScore}, {name, defaultScore}, goal};
}

// The scoring dialog: its names, and what stands on it beside the fields.
struct ScoringNames {
  const char* window;
  const char* frame = "frmScoringOptions";
  const char* frameCaption = "AppTitle Scoring Options";
  const char* countDown = "chkCountDown";
  const char* countDownCaption = "&Count Down when taking score";
  const char* info =
      "Note: Changing any of the Scoring Options will cause your high scores to be marked with an * "
      "indicating custom scoring was in use.";
  int moreRows = 0;          // kept free behind the count-down switch, for controls of the game's own
  bool overTheGame = false;  // it stands in the middle of the game's window, not of the screen
  // The bonus round's score is told when its field has passed, and not when all have been looked at.
  bool tellsGoalAtOnce = false;
};

// What doesn't answer while input is dead.
enum class Held { Nothing, Buttons /* and the entry Pause */, Commands };

// When the dial is drawn anew five times a second. A full dial stops that.
enum class DialRuns { InLastQuarter, FromLoading, FromEachRound };

// What goes on while the player is asked whether to end the game, which then goes on or ends...
enum class WhileAsked {
  Paused,    // from where it was
  Silenced,  // the same, with the music stopped twice; it ends out of the pause
  RunsOn     // in silence
};
struct EndGameQuestion {
  const char* text = "You have a game in progress, are you sure you want to quit?";
  WhileAsked meanwhile = WhileAsked::Paused;
  bool tipIsAhead = false;  // the tool tip of Play tells of the answer Yes while the question stands
};
// ... and whether to close the window. Where Pause is clicked, a paused game runs meanwhile.
enum class WhileClosing { RunsOn, Paused, PauseIsClicked };

// Who reaches the bonus round.
enum class BonusRound { ForItsScore, ForMore, None };
struct BonusCall {
  const char* text = "Prepare for Bonus Round!";
  const char* wave = "\\Applause.wav";
  bool waveFirst = false;
};

struct GamePlan {
  GameNames names;
  // As on the game's button, without a sign: "Sumfall".
  std::string_view Name() const { return names.window + 3; }
  HighScoreTables tables;
  int width, height;  // smallest size, twips; written for a maximised window
  std::span<const TimeLimitEntry> limits;
  int timeLimit;                          // the default, seconds; a game with 0 has no clock
  std::span<const char* const> sections;  // of the settings file, in writing order
  const RulesText& rules;
  ScoringNames dialog{};
  int rounds = 2;  // before the bonus round
  BonusRound bonusRound = BonusRound::ForItsScore;
  BonusCall bonusCall{};
  // The back designs that "[Deck]" 1 to 4 stand for, and the default number.
  BackDesign designs[4] = {kPalmTree, kMagicHands, kNightCastle, kHotCards};
  int deckDesign = 1;
  int splashInterval = 200;  // milliseconds
  // With which icon an error on the way into a game is told before the program ends; without one it is told
  // as any other failure, and the suite goes on.
  std::optional<Icon> playFailure = Icon::None;

  EndGameQuestion endGame{};
  WhileClosing whileClosing = WhileClosing::RunsOn;
  Held held = Held::Nothing;
  DialRuns dialRuns = DialRuns::InLastQuarter;
  bool dialIsLate = false;             // it shows the second before
  bool sleepsMinimised = false;        // clock and music of a minimised window stand still
  bool playEntryFollows = true;        // the menu entry Play reads as the button does
  bool commandsLiveWhileTold = false;  // the buttons are back before the next round, or the end, is told
  bool limitChosenFirst = false;       // the default limit's table is looked at before the settings are read
  bool otherTextIsOff = false;         // sounds and music are off unless the file says "True"
  int panels[3] = {40, 45, 15};        // widths in the status bar, percent

  bool HasClock() const { return timeLimit > 0; }
};
