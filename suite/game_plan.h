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
};

// The name of a game's high score tables, and the score in a fresh one.
struct HighScoreTable {
  const char* name;
  const char* defaultScore;
};

struct HighScoreTables {
  HighScoreTable shown;    // in the window and in the Hall of Fame
  HighScoreTable final;    // entered at the end of a game
  HighScoreTable cleared;  // by the menu
};
constexpr HighScoreTables OneTable(const char* name, const char* defaultScore) {
  return {{name, defaultScore}, {name, defaultScore}, {name, defaultScore}};
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
};

struct GamePlan {
  GameNames names;
  HighScoreTables tables;
  int width, height;  // smallest size, twips; written for a maximised window
  std::span<const TimeLimitEntry> limits;
  int timeLimit;                          // the default, seconds
  std::span<const char* const> sections;  // of the settings file, in writing order
  const RulesText& rules;
  ScoringNames dialog{};
  int rounds = 2;  // before the bonus round
  // The back designs that "[Deck]" 1 to 4 stand for, and the default number.
  BackDesign designs[4] = {kPalmTree, kMagicHands, kNightCastle, kHotCards};
  int deckDesign = 1;
  int splashInterval = 200;  // milliseconds
  // With which icon an error on the way into a game is told before the program ends; without one it is told
  // as any other failure, and the suite goes on.
  std::optional<Icon> playFailure = Icon::None;
};
