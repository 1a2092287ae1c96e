// What the player does to the windows, on its way to the model.
#pragma once

#include <functional>

#include "window/player.h"

class Deeds {
 public:
  // Runs a deed on a form: now, or as soon as the handler that is under way has ended or waits.
  virtual void Deliver(Form& form, std::function<void()> deed) = 0;
  // The same for one that happens to this control or window, if the player can do that by then.
  void Do(Control& control, std::function<void()> deed) {
    Deliver(control.form, [&control, deed = std::move(deed)] {
      if (player::WhyNot(control).empty()) deed();
    });
  }
  void Click(Control& control) {
    Do(control, [&control] { player::Click(control); });
  }

  // A click that only takes back what was begun: what the window says to it is neither heard nor shown.
  virtual void ClickSoftly(Control& control) = 0;
  // A press that came by no mouse or key: whether it only lets the handler under way run on without waiting.
  virtual bool TakeAsHurry() = 0;
  // Whether a handler is under way that doesn't wait for the player.
  virtual bool Busy() const = 0;
  // Whether the form is there and loaded.
  virtual bool Knows(const Form& form) const = 0;

 protected:
  ~Deeds() = default;
};
