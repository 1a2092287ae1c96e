// Guides to the windows that all games share, and what the games' own guides stand on.
#pragma once

#include "suite/game_window.h"
#include "window/guide.h"

// "Ten of diamonds", "Face down", "Empty"; "" for a picture that is no card.
std::string SpokenPicture(int picture);
// 'A', '2' to '9', 'T', 'J', 'Q', 'K' of a face; 0 for other pictures.
char RankOfPicture(int picture);

// The guide to a game window: the keys and the state that all games have in common. A game adds its own.
class GameGuide : public Guide {
 public:
  explicit GameGuide(GameWindow& window) : window_(window) {}

  std::vector<KeyRow> Keys() const override;
  bool InGame() const override { return !window_.standing.CanStart(); }
  bool Paused() const override { return window_.standing.IsPaused(); }
  std::string State() const override;
  bool IsOrnament(const Control& control) const override;
  std::optional<Note> FirstStepsPlace() const override;
  std::string PanelText(int number) const override;
  std::optional<long long> Score() const override { return window_.common.CurrentScore; }
  Control* Pause() const override { return &window_.cmdPause; }
  const Menu* KeysMenu() const override { return &window_.mnuHelp; }
  std::optional<GameFacts> Game() const override;
  Control* Play() const override { return &window_.cmdPlay; }
  const Menu* PlayMenu() const override { return &window_.mnuFile; }
  bool AskForDeal(int number) override;
  bool IsMessage(const Label& label) const override { return &label == &window_.lblMessage; }
  const CommandButton* WayOut() const override {
    return Plays() && IsStuck() ? &window_.cmdTakeScore : nullptr;
  }

 protected:
  // The rows of the game's own board, which go before the common ones.
  virtual std::vector<KeyRow> BoardKeys() const { return {}; }
  // What the game adds to the state.
  virtual std::string BoardState() const { return ""; }
  // Whether the board has nothing left to play, the stock included.
  virtual bool IsStuck() const { return false; }
  // Whether cards can be played now.
  bool Plays() const { return window_.standing.IsPlaying() && !window_.standing.InputIsDead(); }
  // A place that shows a card, a back or an empty place, and what place it is; nothing is added for one that
  // shows none of these. None can be played while no round runs.
  void Add(std::vector<Spot>& spots, Image& image, bool playable, bool selected = false,
           const std::string& place = "") const;
  // The same for what cards are drawn from.
  void AddStock(std::vector<Spot>& spots, Image& image, bool playable = false) const;
  // Rows that several games have.
  static KeyRow RankKeys();  // the next card of a rank
  static KeyRow BackKey();   // takes a selection back

 private:
  GameWindow& window_;
};

// The guide to the Hall of Fame, About, or the window that asks for a name; null for other forms.
std::unique_ptr<Guide> DialogGuide(Form& form);
// The guide to the selector or one of the dialogs that all games share; null if the form is none of them.
std::unique_ptr<Guide> SharedGuide(Form& form);
