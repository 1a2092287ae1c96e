// The windows that there are, and which of them stands before which.
#pragma once

#include <QPointer>
#include <QWidget>
#include <unordered_map>
#include <vector>

#include "window/form.h"

class FormWindow;

class Windows {
 public:
  explicit Windows(const Platform& platform) : platform_(platform) {}
  Windows(const Windows&) = delete;

  void Add(const Form& form, FormWindow& window) { windows_[&form] = &window; }
  void Remove(const Form& form);
  // All of them go at once.
  void Clear();
  // Null if the form isn't there or loaded.
  FormWindow* Of(const Form& form) const;
  auto begin() const { return windows_.begin(); }
  auto end() const { return windows_.end(); }

  // A box or modal window is waited for, before all that stood there; or no longer.
  void PushModal(QWidget* window) { modals_.push_back(window); }
  void PopModal() { modals_.pop_back(); }

  // The window of the form in front; null if none is seen.
  FormWindow* Front() const;
  // What stands before all others, that one aside; null if nothing does.
  QWidget* Next(const QWidget* going) const;
  // A window or box that is about to be hidden hands the keyboard to the next one, as well as the boxes that
  // belong to it: where no window manager runs nobody else does.
  void LeaveActive(const QWidget& going) const;

 private:
  const Platform& platform_;
  std::unordered_map<const Form*, FormWindow*> windows_;
  std::vector<QPointer<QWidget>> modals_;
};
