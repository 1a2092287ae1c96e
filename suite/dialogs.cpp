#include "suite/dialogs.h"

#include "suite/high_scores.h"
#include "window/text.h"

namespace {

void CenterAcross(Visual& control) { control.Left = (control.form.Width - control.Width) / 2; }

constexpr Design kHighScoresDesign[] = {
    {"lblHiScoreInfo", 300, 4350, 5700, 480},
    {"cmdDone", 1680, 4980, 1320, 420, "&Done"},
    {"cmdClear", 3300, 4980, 1320, 420, "&Clear"},
};

constexpr Design kHiScoreNameDesign[] = {
    {"lblInfo", 300, 240, 4800, 600},
    {"lblPlayerName", 300, 960, 4800, 360, ""},
    {"cmdOK", 2040, 1530, 1320, 420, "&OK"},
};

constexpr Design kRulesDesign[] = {
    {"lblRules", 180, 180, 7140, 5400},
    {"cmdOK", 3090, 5760, 1320, 420, "&OK"},
};

constexpr Design kAboutDesign[] = {
    {"lblInfo", 300, 240, 5100, 1080},
    {"lblStats", 300, 1380, 5100, 540},
    {"lblFolder", 150, 1980, 5400, 300},
    {"cmdCoolDude", 2130, 2400, 1440, 420, "&Cool Dude"},
};

}  // namespace

frmHighScores::frmHighScores(modCommon& common, GameWindow& game)
    : Form(common.platform, "frmHighScores"), common_(common), game_(game) {
  Form::Move(0, 0, 6300, 5640);
  ApplyDesign(*this, kHighScoresDesign);
  for (int i = 0; i < ScoreList.size(); ++i) {
    const bool isName = i % 2 == 0;
    ScoreList(i).Visual::Move(isName ? 360 : 4260, 240 + i / 2 * 405, isName ? 3780 : 1680, 300);
    ScoreList(i).FontSize = 10;
    ScoreList(i).FontBold = true;
    if (!isName) {
      ScoreList(i).Alignment = 1;
      ScoreList(i).ForeColor = kBlue;
    }
  }
  lblHiScoreInfo.Alignment = 2;
  cmdDone.Default = cmdDone.Cancel = true;
  cmdDone.OnClick = [this] { Unload(); };
  cmdClear.OnClick = [this] {
    if (!common_.Ask("This will clear all High Scores. Are You Sure?")) return;
    const HighScoreTable& table = game_.plan.tables.shown;
    CreateHighScoreFile(table.name, game_, table.defaultScore);
    ReadHighScoreTable();
    ShowHighScore(table.name, game_, table.defaultScore);
  };
}

void frmHighScores::Form_Load() {
  CenterOnScreen();
  const std::string limit = " (" + std::to_string(game_.clock.TimeLimit) + " secs)";
  Caption = common_.AppTitle + " Hall of Fame" + (game_.plan.HasClock() ? limit : "");
  ReadHighScoreTable();
  lblHiScoreInfo.Caption = game_.HighScoreInfo();
  CenterAcross(lblHiScoreInfo);
}

void frmHighScores::ReadHighScoreTable() {
  const HighScoreTable& table = game_.plan.tables.shown;
  const HighScores scores = ReadHighScores(game_, table.name, table.defaultScore);
  for (size_t place = 0; place < kTablePlaces; ++place) {
    const bool taken = place < scores.size();
    ScoreList(2 * place).Caption = taken ? scores[place].name : "";
    ScoreList(2 * place + 1).Caption = taken ? FormatNumber(scores[place].score) : "";
  }
}

std::optional<size_t> frmHighScores::PlaceJustTaken() const {
  const TableEntry& entry = common_.lastEntry;
  if (entry.file != game_.TableFile(game_.plan.tables.shown.name)) return std::nullopt;
  const std::string score = FormatNumber(entry.score);
  // Of equal scores the new one stands last.
  for (size_t place = kTablePlaces; place-- > 0;)
    if (ScoreList(2 * place).Caption == entry.name && ScoreList(2 * place + 1).Caption == score) return place;
  return std::nullopt;
}

std::string frmHighScores::Table() const {
  return common_.files.PathOf(game_.TableFile(game_.plan.tables.shown.name)).filename().string();
}

frmHiScoreName::frmHiScoreName(modCommon& common) : Form(common.platform, "frmHiScoreName"), common(common) {
  Form::Move(0, 0, 5400, 2160);
  ApplyDesign(*this, kHiScoreNameDesign);
  cmdOK.Default = true;
  cmdOK.OnClick = [this] {
    if (lblPlayerName.Text.get().find(',') != std::string::npos) {
      this->common.MsgBox("Sorry, you may not use commas in your name.", Icon::Critical);
      lblPlayerName.SetFocus();  // the button had it
      return;
    }
    if (!lblPlayerName.Text.get().empty()) this->common.PlayerName = NameOnOneLine(lblPlayerName.Text.get());
    Unload();
  };
}

void frmHiScoreName::Form_Load() {
  common.PlayerName = "Unknown User";  // stays so when the window is closed by its box
  CenterOnScreen();
  Caption = common.AppTitle;
  lblInfo.Caption = "Great score! Please enter your name so we can induct you into the " + common.AppTitle +
                    " Hall of Fame:";
  lblPlayerName.SetFocus();
}

frmRules::frmRules(modCommon& common, const GameWindow& game)
    : Form(common.platform, "frmRules"), common_(common), game_(game) {
  Form::Move(0, 0, 7500, 6360);
  ApplyDesign(*this, kRulesDesign);
  lblRules.MultiLine = true;
  lblRules.Locked = true;
  cmdOK.Default = cmdOK.Cancel = true;
  cmdOK.OnClick = [this] { Unload(); };
}

void frmRules::Form_Load() {
  CenterOnScreen();
  Caption = common_.AppTitle + " Rules, Notes and Strategy";
  CenterAcross(cmdOK);
  cmdOK.SetFocus();
  lblRules.Text = game_.RulesPage();
}

frmAbout::frmAbout(modCommon& common) : Form(common.platform, "frmAbout"), common(common) {
  Form::Move(0, 0, 5700, 3000);
  ApplyDesign(*this, kAboutDesign);
  lblInfo.Alignment = 2;
  lblStats.Alignment = 2;
  const std::string folder = common.files.Folder().string();
  lblFolder.Alignment = 2;
  lblFolder.Caption = "Kept in " + folder;
  lblFolder.ToolTipText = "Settings, high scores and saved games are kept in " + folder;
  cmdCoolDude.Default = cmdCoolDude.Cancel = true;
  cmdCoolDude.OnClick = [this] { Unload(); };
}

void frmAbout::Form_Load() {
  CenterOnScreen();
  Caption = "About " + common.AppTitle;
  lblInfo.Caption =
      "These games are distributed and supported by Quillmark. Please direct questions, comments, bugs and "
      "suggestions to: support@quillmark.example";
  lblStats.Caption = "This session has lasted " + std::to_string(common.MinutesPlayed()) + " minutes." +
                     "Thanks for playing!";
  CenterAcross(cmdCoolDude);
  CenterAcross(lblInfo);
  CenterAcross(lblStats);
}
