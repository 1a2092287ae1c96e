// All that comes to the windows from outside comes through here, and by no other way: what happens, and what
// they ask, what files hold among it. Whoever stands at this border sees a whole run go by, and can bring one
// back: the same events and the same answers lead to the same windows.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "window/box.h"
#include "window/system/disk.h"

class Control;
class Form;
class Label;

struct Extent {
  int width = 0, height = 0;  // twips
  bool operator==(const Extent&) const = default;
};

// A moment of the local calendar.
struct DateTime {
  int year = 2000, month = 1, day = 1, hour = 0, minute = 0, second = 0;
  int offset = 0;  // minutes before UTC
  bool operator==(const DateTime&) const = default;
};

// The moment so many milliseconds later; what doesn't fill a second is dropped.
DateTime Later(const DateTime& moment, long long milliseconds);
// The room for a label's caption in letters of one breadth: a rule that needs no font and gives the same
// everywhere.
Extent PlainExtent(const Label& label);

enum class Key { Return, Escape };

// What happens outside: a deed of the player's, the answer to a message box, a tick.
struct Event {
  enum class Kind {
    None,  // none: what came was handed to `Platform::Enter` already, or nothing came
    Click,
    DblClick,
    MouseMove,
    Focus,
    Type,     // the text box holds `text`
    Select,   // entry `x` of the list, from 0
    Press,    // `key`, in the window
    Close,    // the window's close box
    Place,    // the window was moved to x, y
    Resize,   // the window was made x wide, y high
    State,    // the window became x of `window_state`
    Foresee,  // chance gives z when it is asked for x to y next; where x is larger it forgets all it foresaw
    Answer,   // to the message box that stands
    Tick,     // of the timer that was due first: the time has come
    Over      // nothing will ever come any more
  };
  Kind kind = Kind::None;
  Control* control = nullptr;  // whom it happens to: a control, a window, a timer
  int x = 0, y = 0, z = 0;
  Key key = Key::Return;
  Answer answer = Answer::OK;
  std::string_view text = {};  // lasts until the event has been carried out
};

// What the program waits for.
struct Wait {
  enum class Serving {
    Nothing,  // a handler sleeps: nobody is served until the time has come
    Input,    // a handler lets the input through that has come so far, and goes on at once
    All       // input and ticks
  };
  Serving serving = Serving::All;
  long long until = kForever;       // when a sleep is over, or the next tick is due
  const MessageBox* box = nullptr;  // waits for its answer
  Form* modal = nullptr;            // waits until this window is gone

  static constexpr long long kForever = 1ll << 62;
};

// Stands between the windows and the world. A front end is one; another may be put before it, as
// `Platform::border`, as long as no windows are made yet: it hands on what it is asked, and sees the answers.
// A disk as well: the one there is, where nothing is overridden.
class Border : public Disk {
 public:
  // The only place where the program blocks. Shows what has changed, and gives the next event that the wait
  // serves, a tick when its time has come; or hands events to `Platform::Enter` as they come, and returns
  // when the wait is over or earlier.
  virtual Event Next(const Wait& wait) = 0;
  // An event is about to be carried out, whichever way it came; others may come before it is done.
  virtual void Entered(const Event& /*event*/) {}

  // Milliseconds since the start. Never goes back.
  virtual long long Milliseconds() = 0;
  virtual DateTime Now() = 0;
  // A number that nobody can foresee, to stir chance with.
  virtual uint64_t Chance();
  virtual Extent ScreenExtent() = 0;
  // The room that a label's caption needs in its lettering.
  virtual Extent TextExtent(const Label& label) = 0;
  // The program that opens web pages, "" if there is none; and opening one. False on failure.
  virtual std::string FindBrowser() = 0;
  virtual bool OpenPage(const std::string& browser, const std::string& url) = 0;
  // Whether the program has been told to go, and has no time for long waits.
  virtual bool MustLeave();
};
