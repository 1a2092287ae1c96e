// The keys of a board that has a guide: a cursor that walks its places, and keys that stand for clicks. A
// front end says what was pressed, and makes the clicks.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "window/guide.h"

class BoardKeys {
 public:
  // Of something on its window, in twips.
  struct Point {
    int x, y;
  };
  // `middle` tells where that of a control is drawn.
  BoardKeys(Form& form, Guide& guide, std::function<Point(const Visual&)> middle)
      : form_(form), guide_(guide), rows_(guide.Keys()), middle_(std::move(middle)) {}

  // A handler has ended: the cursor stays with the places that there are.
  void Settle();
  // Something was pressed with the mouse; null for nothing.
  void Press(const Control* control);
  // The cursor goes there, if that is one of the places. Whether it is.
  bool GoTo(const Control* control);
  // The cursor goes to the nearest place that way, one of `x` and `y` being 1 or -1; with `far` to places
  // that can't be played as well.
  void Walk(int x, int y, bool far);
  // Digits struck so far are forgotten. Whether there were any.
  bool Forget();

  // A key, by the name that the guide's table has for it.
  struct Heard {
    bool means = false;  // it stands for something
    std::string clicks;  // what `ClickFor` is to be asked for; "" while more digits may follow
  };
  // `again` for a key that is held down; `now` is a clock, in milliseconds.
  Heard Hear(const std::string& key, bool again, long long now);
  // Whether the guide's table has that key as it stands.
  bool Knows(const std::string& keys) const;
  // What these keys click on as the board was settled last; null for nothing.
  Control* ClickFor(const std::string& keys);
  // The same for the place under the cursor.
  Control* ClickHere() const;

  // Where the next click by a key would go; null where nothing lies.
  const Visual* Cursor() const { return cursor_; }
  // The buttons that digits stand for.
  std::vector<Visual*> Choices() const;

 private:
  Control* Meant(const KeyClick& click) const;
  Visual* NextOfRank(char key) const;
  Visual* LastSelected() const;

  Form& form_;
  Guide& guide_;
  const std::vector<KeyRow> rows_;
  const std::function<Point(const Visual&)> middle_;
  std::vector<Spot> spots_;              // as the last handler left them
  std::vector<const Visual*> selected_;  // in the order in which they were
  std::map<char, const Visual*> ranks_;  // clicked last by their rank
  const Visual* cursor_ = nullptr;
  std::optional<Point> stood_;  // the cursor
  std::string begun_;           // keys of a click that takes several
  long long begunAt_ = 0;
};
