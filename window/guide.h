// What a front end can tell a player of a window beyond what is drawn, and which keys stand for which click.
// Windows and their games know nothing of it: a guide stands beside the window and reads it.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "window/form.h"

// A place on the board that keys can go to and a voice can tell of: mostly an image; a button where that is
// what a player clicks to play there.
struct Spot {
  Visual* control;
  std::string text;       // "Ten of diamonds", "Face down, stock", "Empty, row 1, column 2"
  bool playable = false;  // a click on it would be taken as a move now
  bool selected = false;
  bool draws = false;  // such a click draws a card: nothing can be laid there
  char rank = 0;       // of a face that shows: 'A', '2' to '9', 'T', 'J', 'Q', 'K'; else 0
};

// A key, or several struck one after the other, for a click. Of several clicks for one key the first counts
// that can be made.
struct KeyClick {
  std::string keys;     // "P", "F1", "Escape", "-", "12"; letters are capitals
  std::string control;  // "cmdPause", "mnuRules", "PlayCards(7)"; or one of the two below
};
inline constexpr char kNextOfRank[] = "*rank";        // the next place of that rank that can be played
inline constexpr char kLastSelected[] = "*selected";  // lets go what was selected last

// A row of the table of keys as the player reads it. Keys that a front end serves by itself have no clicks.
struct KeyRow {
  std::string keys;  // "1 to 5"
  std::string does;  // "Hit on that column"
  std::vector<KeyClick> clicks;
};

// A text that a front end adds to a window.
struct Note {
  enum class Look {
    Plain,  // small letters
    Mark,   // a band beneath what stands there, its text strong
    Sheet,  // a small sheet, its lines centred
    Call    // a dark plate, for what is to be noticed; without a text a frame around it
  };
  const Control* within;         // the form or frame in whose coordinates it stands
  int left, top, width, height;  // twips
  std::string text;
  int alignment = 0;  // as a label's
  Look look = Look::Plain;

  friend bool operator==(const Note&, const Note&) = default;
};

// What there is to know of the games of a window beyond its board.
struct GameFacts {
  std::string name;           // "Sumfall"
  bool inProgress = false;    // a game is
  int deal = 0;               // of it, or of the one that has ended last here; 0 for none
  bool repeated = false;      // that deal was asked for
  int next = 0;               // the deal that all games here were asked to play; 0 if none was
  std::string day;            // "2026-11-21" where that is the deal of a day
  std::string last;           // the history's line of the game that has ended last here, "" before
  std::vector<int> payments;  // of the rounds of that one

  friend bool operator==(const GameFacts&, const GameFacts&) = default;
};

// What opens the window of a game, and how that is called.
struct GameDoor {
  Control* button;
  std::string name;  // "Sumfall"
};

class Guide {
 public:
  virtual ~Guide() = default;

  // The table of keys, the most useful first; the same at all times.
  virtual std::vector<KeyRow> Keys() const { return {}; }
  // What lies on the board now, in reading order: visible places only, and no disabled one is playable.
  std::vector<Spot> Spots() const;
  // What a click on lets go what was selected last, where that isn't the selected place itself; else null.
  virtual Visual* LetsGo() const { return nullptr; }
  // Whether the window is a choice: it starts with what was chosen last, of the buttons that digits stand
  // for.
  virtual bool IsChoice() const { return false; }
  // Whether a game goes on: the keyboard stays with the board, also while nothing lies there.
  virtual bool InGame() const { return false; }
  // Whether the player has paused the window: a key that only pauses does nothing then.
  virtual bool Paused() const { return false; }
  // Where the window stands, in short sentences: "Round 2. Score 12,300. 45 seconds left."
  virtual std::string State() const { return ""; }
  // What the player has so far; nothing for a window that doesn't count.
  virtual std::optional<long long> Score() const { return std::nullopt; }
  // What pauses the window and lets it go on; null if nothing does.
  virtual Control* Pause() const { return nullptr; }
  // The menu in which a player looks for the table of keys; null for none.
  virtual const Menu* KeysMenu() const { return nullptr; }
  // Whether the label tells what has just happened, however small it is written.
  virtual bool IsMessage(const Label& /*label*/) const { return false; }
  // What is left to click on once nothing on the board or in the stock can be played any more; null as long
  // as something can.
  virtual const CommandButton* WayOut() const { return nullptr; }
  // Texts to be added as the window stands now.
  virtual std::vector<Note> Notes() const { return {}; }
  // What a label says to who doesn't see where it stands; "" where its text, and what stands beside it, say
  // it all.
  virtual std::string Says(const Label& /*label*/) const { return ""; }
  // A sentence on a control that has no tool tip of its own; "" for none.
  virtual std::string ToolTip(const Control& /*control*/) const { return ""; }
  // The file of a button's small picture; "" for none.
  virtual std::string Picture(const Control& /*button*/) const { return ""; }
  // Where a button for help has room in a window without menus.
  virtual std::optional<Note> HelpPlace() const { return std::nullopt; }
  // Three lines on what to do, for a player who opens the window for the first time.
  virtual std::vector<std::string> FirstSteps() const { return {}; }
  // What they stand below, or above where there is no room; nothing while there is something else to see.
  virtual std::optional<Note> FirstStepsPlace() const { return std::nullopt; }
  // What a panel of the status bar says at this minute; "" for what the window has written there.
  virtual std::string PanelText(int /*number*/) const { return ""; }
  // The box for a text that the player may want to give again the next time; null for none.
  virtual TextBox* OffersAgain() const { return nullptr; }
  // Whether it is a picture that moves to please the eye and tells nothing.
  virtual bool IsOrnament(const Control& /*control*/) const { return false; }
  // How wide the window must be for all of its board to show, in twips; 0 where its smallest size is enough.
  virtual int Breadth() const { return 0; }
  // Whether the window comes back where the player has left it.
  virtual bool KeepsPlace() const { return false; }
  // Of a window in which games are played; nothing for any other.
  virtual std::optional<GameFacts> Game() const { return std::nullopt; }
  // What is clicked on to begin a game, while none is in progress; null where nothing is.
  virtual Control* Play() const { return nullptr; }
  // The menu in which a player looks for that; null for none.
  virtual const Menu* PlayMenu() const { return nullptr; }
  // The next game that is begun plays that deal; false if none can be begun now.
  virtual bool AskForDeal(int /*number*/) { return false; }
  // What opens games from here; and the next one plays the deal of the day.
  virtual std::vector<GameDoor> Doors() const { return {}; }
  virtual void AskForToday() {}

 protected:
  // All places of the board, whether they show or not.
  virtual std::vector<Spot> Places() const { return {}; }
};

// Makes the guide of a window; null for one that needs none.
using Guides = std::function<std::unique_ptr<Guide>(Form&)>;
