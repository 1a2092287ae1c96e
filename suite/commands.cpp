#include "suite/commands.h"

void Commands::EnableButtons(bool enable) {
  GameControls& c = controls_;
  for (CommandButton* button : {&c.cmdTakeScore, &c.cmdPlay, &c.cmdPause, &c.cmdExit})
    button->Enabled = enable;
}

void Commands::EnableEntries(bool enable) {
  GameControls& c = controls_;
  for (Menu* entry : {&c.mnuPlay, &c.mnuTakeScore, &c.mnuPause, &c.mnuExit}) entry->Enabled = enable;
}

void Commands::EnableOptions(bool enable) {
  for (Menu* entry : gameOptions) entry->Enabled = enable;
}

void Commands::EnableAllButPause(bool enable) {
  GameControls& c = controls_;
  for (CommandButton* button : {&c.cmdExit, &c.cmdTakeScore, &c.cmdPlay}) button->Enabled = enable;
  for (Menu* entry : {&c.mnuExit, &c.mnuPlay, &c.mnuTakeScore}) entry->Enabled = enable;
}

void Commands::Rest() {
  GameControls& c = controls_;
  SetPlayCaption("&Play");
  TellStart();
  SetPauseCaptions(false);
  c.cmdPause.ToolTipText = plan_.names.pauseTip;
  for (CommandButton* button : {&c.cmdPlay, &c.cmdExit}) button->Enabled = true;
  for (CommandButton* button : {&c.cmdPause, &c.cmdTakeScore}) button->Enabled = false;
  for (Menu* entry : {&c.mnuPlay, &c.mnuExit}) entry->Enabled = true;
  EnableOptions(true);
  for (Menu* entry : {&c.mnuPause, &c.mnuTakeScore}) entry->Enabled = false;
}

void Commands::SetPlayCaption(const char* caption) {
  controls_.cmdPlay.Caption = caption;
  if (plan_.playEntryFollows) controls_.mnuPlay.Caption = caption;
}

void Commands::SetPauseCaptions(bool paused) {
  controls_.cmdPause.Caption = paused ? "&Resume" : plan_.names.pause;
  controls_.mnuPause.Caption = controls_.cmdPause.Caption;
}
