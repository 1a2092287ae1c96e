// How a game window comes into being, and which event runs what.
#include "suite/dialogs.h"
#include "suite/game_window.h"

GameWindow::GameWindow(modCommon& common, const GamePlan& plan)
    : Form(common.platform, plan.names.window), GameControls(*this, plan), common(common), plan(plan) {
  common.window = this;
  Sizable = true;
  MinWidth = plan.width;
  MinHeight = plan.height;
  BindEvents();
}

GameWindow::~GameWindow() {
  if (common.window == this) common.window = nullptr;
}

void GameWindow::BindEvents() {
  Timer1.OnTimer = [this] {
    if (standing.IsPlaying()) log.Second(clock.ElapsedSeconds + 1 == clock.TimeLimit);
    Tick();
  };
  Timer2.OnTimer = [this] { clock.Redraw(); };
  ClockTimer.OnTimer = [this] { StatusBar1.Panels(3).Text = common.TimeOfDay(); };

  const auto heldFrom = [this](Held from, auto deed) {
    return [this, isHeld = plan.held >= from, deed] {
      if (!isHeld || !standing.InputIsDead()) deed();
    };
  };
  cmdPlay.OnClick = heldFrom(Held::Buttons, [this] { cmdPlay_Click(By::Button); });
  mnuPlay.OnClick = heldFrom(Held::Commands, [this] { cmdPlay_Click(By::Entry); });
  cmdTakeScore.OnClick = [this] { cmdTakeScore_Click(By::Button); };
  mnuTakeScore.OnClick = [this] { cmdTakeScore_Click(By::Entry); };
  cmdPause.OnClick = mnuPause.OnClick = heldFrom(Held::Buttons, [this] { Pause(); });
  cmdExit.OnClick = heldFrom(Held::Buttons, [this] { Unload(); });
  mnuExit.OnClick = heldFrom(Held::Commands, [this] { Unload(); });

  mnuView.OnClick = [this] { PauseAround([this] { frmHighScores(common, *this).Show(true); }); };
  mnuRules.OnClick = [this] { PauseAround([this] { frmRules(common, *this).Show(true); }); };
  mnuAbout.OnClick = [this] { PauseAround([this] { frmAbout(common).Show(true); }); };
  mnuClear.OnClick = [this] { mnuClear_Click(); };
  mnuMusic.OnClick = [this] { ToggleMusic(); };
  mnuSounds.OnClick = [this] { ToggleSounds(); };
  mnuCustom.OnClick = [this] { ShowCustomScoring(); };

  for (size_t i = 0; i < plan.limits.size(); ++i)
    timeLimitEntries[i]->OnClick = [this, seconds = plan.limits[i].seconds] { ChooseTimeLimit(seconds); };
  for (int number = 1; number <= 4; ++number)
    DeckEntry(number).OnClick = [this, number] { ChooseDeck(number); };

  lblMessage.OnChange = [this] { PlaceMessage(); };
  lblCurrentScore.OnChange = [this] { CenterIn(lblCurrentScore, ScoreRectangle); };
  lblCurrentRound.OnChange = [this] { CenterIn(lblCurrentRound, RoundRectangle); };
}
