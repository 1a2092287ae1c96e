// How the standing controls look: designs, captions, lettering.
#include "suite/game_controls.h"

#include "suite/common.h"

namespace {

constexpr Design kSplashDesign[] = {
    {"frmSplash", 1620, 1560, 6300, 2850},
    {"imgSplashImage", 0, 0, 1065, 1440},
    {"lblCompanyProduct", 2600, 330, 3550, 330},
    {"lblProductName", 2600, 780, 3550, 780},
    {"lblPlatform", 2600, 1830, 3550, 270, "Windows 95/98/NT"},
    {"lblVersion", 2600, 2160, 3550, 270},
};

constexpr Design kButtonDesign[] = {
    {"cmdPlay", 8220, 90, 1200, 420, "&Play", "Starts a new game"},
    {"cmdPause", 8220, 1110, 1200, 420},
    {"StatusBar1", 0, 6840, 9540, 360},
};

void SetLettering(Label& label, int size, bool bold) {
  label.FontSize = size;
  label.FontBold = bold;
}

void SetEntry(Menu& entry, const char* caption, int rank) {
  entry.Caption = caption;
  entry.rank = rank;
}

}  // namespace

GameControls::GameControls(Form& form, const GamePlan& plan) : form_(form), plan_(plan) {
  SetUpControls();
  SetUpMenus();
}

void GameControls::SetUpControls() {
  ApplyDesign(form_, kSplashDesign);
  ApplyDesign(form_, kButtonDesign);
  for (int i = 0; i < imgSplashImage.size(); ++i) {
    imgSplashImage(i).Left = 240 + 390 * i;
    imgSplashImage(i).Top = 300 + 270 * i;
    imgSplashImage(i).Picture = kFirstFace + 13 * i;
    imgSplashImage(i).BorderStyle = 1;
  }
  frmSplash.Panel = true;
  SetLettering(lblCompanyProduct, 10, true);
  SetLettering(lblProductName, 26, true);
  SetLettering(lblPlatform, 9, false);
  SetLettering(lblVersion, 9, false);
  for (Label* label : {&lblCompanyProduct, &lblProductName, &lblPlatform, &lblVersion}) label->Alignment = 2;
  lblProductName.ForeColor = kBlue;

  cmdTakeScore.Caption = "&Take Score";
  cmdTakeScore.Move(8220, 600, 1200, 420);
  cmdExit.Caption = "E&xit";
  cmdExit.ToolTipText = "Exits the game";
  cmdExit.Move(8220, 1620, 1200, 420);
  cmdPause.Caption = names_.pause;
  cmdPause.ToolTipText = names_.pauseTip;
  cmdTakeScore.Enabled = false;
  cmdPause.Enabled = false;

  for (Label* label : {&lblMessage, &lblScoring, &lblCurrentScore, &lblCurrentRound}) label->AutoSize = true;
  SetLettering(lblMessage, 20, true);
  SetLettering(lblScoring, 20, true);
  SetLettering(lblCurrentScore, 12, true);
  SetLettering(lblCurrentRound, 12, true);
  lblCurrentScore.ForeColor = kBlue;
  lblCurrentRound.ForeColor = kBlue;
  lblMessage.ForeColor = kRed;
  lblMessage.Visible = false;
  lblScoring.Visible = false;
  AddScoreBox(TimerRectangle, TimerBevelSide, TimerBevelBottom);
  AddScoreBox(ScoreRectangle, ScoreBevelSide, ScoreBevelBottom);
  AddScoreBox(RoundRectangle, RoundBevelSide, RoundBevelBottom);

  Timer1.Interval = plan_.HasClock() ? 1000 : 0;
  Timer2.Interval = plan_.HasClock() ? 200 : 0;
  ClockTimer.Interval = 60000;
  ClockTimer.Enabled = true;
}

void GameControls::SetUpMenus() {
  SetEntry(mnuFile, names_.fileCaption, 10);
  SetEntry(mnuPlay, "&Play", 10);
  SetEntry(mnuTakeScore, "&Take Score", 20);
  SetEntry(mnuPause, names_.pause, 30);
  SetEntry(mnuFileLine, "-", 80);
  SetEntry(mnuExit, "E&xit", 90);
  mnuTakeScore.Enabled = false;
  mnuPause.Enabled = false;

  SetEntry(mnuOptions, "&Options", 20);
  SetEntry(mnuView, "&View High Scores...", 10);
  SetEntry(mnuClear, names_.clearCaption, 20);
  SetEntry(mnuOptionsLine, "-", 30);
  SetEntry(mnuMusic, "Play &Music (plays during game)", 40);
  SetEntry(mnuSounds, "&Play Sounds", 45);
  SetEntry(mnuCustom, names_.customCaption, 60);
  SetEntry(mnuTime, "&Time Limit", 70);
  mnuSounds.Checked = true;
  for (const TimeLimitEntry& limit : plan_.limits) {
    auto entry = std::make_unique<Menu>(mnuTime, limit.menu);
    entry->Caption = limit.caption;
    entry->Checked = limit.seconds == plan_.timeLimit;
    timeLimitEntries.push_back(std::move(entry));
  }

  SetEntry(mnuDeck, "Dec&k", 90);
  for (int number = 1; number <= 4; ++number) DeckEntry(number).Caption = plan_.designs[number - 1].caption;

  SetEntry(mnuHelp, "&Help", 30);
  SetEntry(mnuRules, "&Rules...", 10);
  SetEntry(mnuAbout, "&About...", 20);
}

void GameControls::AddScoreBox(Shape& box, Shape& side, Shape& bottom) {
  box.Sunken = true;
  side.BorderColor = bottom.BorderColor = kWhite;
  scoreBoxes_.push_back({box, side, bottom});
}

void GameControls::PlaceEdges() {
  for (const ScoreBox& each : scoreBoxes_) {
    each.side.Visual::Move(each.box.Left + each.box.Width, each.box.Top, 0, each.box.Height);
    each.bottom.Visual::Move(each.box.Left, each.box.Top + each.box.Height, each.box.Width, 0);
  }
}
