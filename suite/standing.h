// Where a game window stands, as one value. Captions and controls follow it; nothing is decided by them.
#pragma once

class Standing {
 public:
  // --- Questions -----------------------------------------------------------------------------------
  // A game is in progress: it is played, paused, or between two rounds.
  bool InGame() const {
    return phase_ == Phase::Playing || phase_ == Phase::Paused || phase_ == Phase::Scoring;
  }
  // A game can be begun: none is in progress, none is being made, and nothing is held.
  bool CanStart() const { return phase_ == Phase::Idle || phase_ == Phase::Over; }
  bool IsPlaying() const { return phase_ == Phase::Playing; }
  bool IsPaused() const { return phase_ == Phase::Paused || phase_ == Phase::Halted; }
  // The game has ended, and no other has begun.
  bool IsOver() const { return phase_ == Phase::Over; }
  // A game is being made, a round is being paid, or the next one made ready: whatever is asked for waits.
  bool IsBusy() const { return phase_ == Phase::Starting || phase_ == Phase::Scoring; }
  // A card may not be touched now: the game is paused or over.
  bool BoardIsClosed() const { return IsPaused() || IsOver(); }
  // Clicks come to nothing, where a game asks: what was clicked during a count meets no new board.
  bool InputIsDead() const { return inputIsDead_; }

  // --- Transitions ---------------------------------------------------------------------------------
  // The splash panel, as after loading.
  void Rest() { *this = {}; }
  // Until `Open` or `GameOver` the window is busy, with a game or without one.
  void Hold() { phase_ = InGame() ? Phase::Scoring : Phase::Starting; }
  // From now on a game is in progress. Its first round isn't open yet.
  void Begin() { phase_ = Phase::Scoring; }
  // The round can be played.
  void Open() { phase_ = Phase::Playing; }
  void Pause() { phase_ = InGame() ? Phase::Paused : Phase::Halted; }
  void Resume() { phase_ = InGame() ? Phase::Playing : Phase::Idle; }
  // The round is being paid.
  void Score() {
    Hold();
    InputDies();
  }
  // The end was confirmed in a pause, which still has to be left.
  void GiveUp() {
    if (phase_ == Phase::Paused) phase_ = Phase::Halted;
  }
  // The game is played out.
  void GameOver() { phase_ = Phase::Over; }
  // It has ended before its time, or the window goes.
  void End() { phase_ = Phase::Idle; }
  void InputDies() { inputIsDead_ = true; }
  void InputLives() { inputIsDead_ = false; }

 private:
  enum class Phase {
    Idle,
    Starting,  // held, without a game
    Playing,
    Paused,
    Halted,  // paused, without a game
    Scoring,
    Over
  };
  Phase phase_ = Phase::Idle;
  bool inputIsDead_ = false;
};
