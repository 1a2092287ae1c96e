// The modal windows that all games share.
#pragma once

#include <optional>

#include "suite/common.h"
#include "suite/game_window.h"

// The Hall of Fame: the table of the game's present settings.
class frmHighScores : public Form {
 public:
  frmHighScores(modCommon& common, GameWindow& game);
  void Form_Load() override;
  void ReadHighScoreTable();
  // The place, from 0, of the entry made last, if it stands in this table.
  std::optional<size_t> PlaceJustTaken() const;
  // The name of the table's file.
  std::string Table() const;

  ControlArray<Label, 20> ScoreList{*this, "ScoreList"};  // even index name, odd index score
  Label lblHiScoreInfo{*this, "lblHiScoreInfo"};
  CommandButton cmdDone{*this, "cmdDone"}, cmdClear{*this, "cmdClear"};

 private:
  modCommon& common_;
  GameWindow& game_;
};

// Asks for the name behind a great score; leaves it in `PlayerName`.
class frmHiScoreName : public Form {
 public:
  explicit frmHiScoreName(modCommon& common);
  void Form_Load() override;

  modCommon& common;

  Label lblInfo{*this, "lblInfo"};
  TextBox lblPlayerName{*this, "lblPlayerName"};
  CommandButton cmdOK{*this, "cmdOK"};
};

// The rules, composed from the game's live values.
class frmRules : public Form {
 public:
  frmRules(modCommon& common, const GameWindow& game);
  void Form_Load() override;

  TextBox lblRules{*this, "lblRules"};
  CommandButton cmdOK{*this, "cmdOK"};

 private:
  modCommon& common_;
  const GameWindow& game_;
};

class frmAbout : public Form {
 public:
  explicit frmAbout(modCommon& common);
  void Form_Load() override;

  modCommon& common;

  Label lblInfo{*this, "lblInfo"}, lblStats{*this, "lblStats"}, lblFolder{*this, "lblFolder"};
  CommandButton cmdCoolDude{*this, "cmdCoolDude"};
};
