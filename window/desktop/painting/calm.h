// What keeps a board still for a player who wants less motion: ornaments stay as they lay, and a colour that
// goes to and fro is shown once. The controls themselves go on as ever.
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <functional>
#include <string>
#include <unordered_map>

#include "window/guide.h"

// An image as it is drawn.
struct Still {
  int picture;
  bool framed;
  int z;
};
using Stills = std::unordered_map<const Visual*, Still>;

class Calm {
 public:
  // `settled` is told of a control whose colour may be shown from now on.
  explicit Calm(std::function<void(const Visual&)> settled);

  // Keeps the ornaments as they are just now, unless they are kept already.
  void Keep(const Form& form, const Guide& guide);
  const Stills& Kept() const { return stills_; }
  // The colour in which the control is to be drawn, which `text` belongs to; told is the one that it has.
  int Colour(const Visual& control, const std::string& text, int told);

 private:
  struct Seen {
    std::string text;
    int told, shown;
    long long changed;  // when it was told
  };

  void Settle();

  const std::function<void(const Visual&)> settled_;
  Stills stills_;
  std::unordered_map<const Visual*, Seen> seen_;
  QElapsedTimer clock_;
  QTimer timer_;
};
