// The keys of a window that has a guide: a cursor that walks its board, and keys that stand for clicks.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "window/guide.h"

class Keyboard {
 public:
  Keyboard(Form& form, Guide& guide) : form_(form), guide_(guide), rows_(guide.Keys()) {}

  // A handler has ended: the cursor stays with the places that there are.
  void Settle();
  // The control that is to be clicked for a key; null if there is none. "Left", "Right", "Up", "Down" move
  // the cursor, with `far` to places that can't be played as well; "Space" is a click where it stands. `now`
  // is a clock, in milliseconds.
  Control* Take(const std::string& key, bool far, long long now);
  // The mouse has pressed there.
  void Press(const Control& control);

  // Where the next click by a key would go; null where nothing lies.
  const Visual* Cursor() const { return cursor_; }

 private:
  Control* Meant(const KeyClick& click) const;
  Visual* NextOfRank(char key) const;
  Visual* LastSelected() const;
  Control* TakeWord(const std::string& word, long long now);
  Control* ClickFor(const std::string& keys);
  void Walk(int x, int y, bool far);
  bool Lies(const Control* control) const;

  Form& form_;
  Guide& guide_;
  const std::vector<KeyRow> rows_;
  std::vector<Spot> spots_;              // as the last handler left them
  std::vector<const Visual*> selected_;  // in the order in which they were
  std::map<char, const Visual*> ranks_;  // clicked last by their rank
  const Visual* cursor_ = nullptr;
  int cursorX_ = 0, cursorY_ = 0;
  std::string begun_;  // keys of a click that takes several
  long long begunAt_ = 0;
};
