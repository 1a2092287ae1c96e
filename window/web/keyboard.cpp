#include "window/web/keyboard.h"

#include <algorithm>
#include <cstdlib>

#include "window/player.h"

namespace {

constexpr int kPatience = 2500;  // milliseconds between two keys that belong together

bool IsDigits(const std::string& keys) {
  return std::ranges::all_of(keys, [](char key) { return key >= '0' && key <= '9'; });
}

struct Place {
  int x, y;
};

// The middle of a control on its window, in twips.
Place MiddleOf(const Visual& control) {
  Place middle{control.Left + control.Width / 2, control.Top + control.Height / 2};
  for (const Control* holder = control.parent; holder->kind != Control::Kind::Form; holder = holder->parent) {
    middle.x += static_cast<const Visual*>(holder)->Left;
    middle.y += static_cast<const Visual*>(holder)->Top;
  }
  return middle;
}

}  // namespace

bool Keyboard::Lies(const Control* control) const {
  return std::ranges::any_of(spots_, [control](const Spot& spot) { return spot.control == control; });
}

void Keyboard::Settle() {
  spots_ = guide_.Spots();
  std::erase_if(selected_, [&](const Visual* each) {
    return std::ranges::none_of(spots_, [&](const Spot& s) { return s.control == each && s.selected; });
  });
  for (const Spot& spot : spots_)
    if (spot.selected && std::ranges::find(selected_, spot.control) == selected_.end())
      selected_.push_back(spot.control);
  if (!guide_.InGame() || spots_.empty()) {
    begun_.clear();
    cursor_ = nullptr;
    return;
  }
  if (!cursor_ || !Lies(cursor_)) {
    // The nearest to where it stood; at first the first one.
    const Spot* best = nullptr;
    int least = 0;
    for (const Spot& spot : spots_) {
      const Place middle = MiddleOf(*spot.control);
      const bool stood = cursorX_ != 0 || cursorY_ != 0;
      const int far = stood ? std::abs(middle.x - cursorX_) + std::abs(middle.y - cursorY_) : 0;
      if (!best || spot.playable > best->playable || (spot.playable == best->playable && far < least)) {
        best = &spot;
        least = far;
      }
    }
    cursor_ = best->control;
  }
  const Place middle = MiddleOf(*cursor_);
  cursorX_ = middle.x;
  cursorY_ = middle.y;
}

void Keyboard::Press(const Control& control) {
  begun_.clear();
  if (Lies(&control)) cursor_ = static_cast<const Visual*>(&control);
}

Control* Keyboard::Take(const std::string& key, bool far, long long now) {
  Settle();
  if (key == "Left") return Walk(-1, 0, far), nullptr;
  if (key == "Right") return Walk(1, 0, far), nullptr;
  if (key == "Up") return Walk(0, -1, far), nullptr;
  if (key == "Down") return Walk(0, 1, far), nullptr;
  if (key != "Space") return TakeWord(key, now);
  const bool can = cursor_ && player::WhyNot(*cursor_).empty();
  return can ? const_cast<Visual*>(cursor_) : nullptr;
}

Control* Keyboard::TakeWord(const std::string& word, long long now) {
  if (!begun_.empty() && now - begunAt_ > kPatience) begun_.clear();
  const std::string keys = IsDigits(word) ? begun_ + word : word;
  begun_.clear();
  const KeyClick* longer = nullptr;
  bool known = false;
  for (const KeyRow& row : rows_)
    for (const KeyClick& click : row.clicks) {
      known = known || click.keys == keys;
      if (!longer && IsDigits(click.keys) && click.keys.size() > keys.size() && click.keys.starts_with(keys))
        longer = &click;
    }
  if (known) return ClickFor(keys);
  if (longer) {  // the cursor shows which row it will be
    begun_ = keys;
    begunAt_ = now;
    if (const Control* control = Meant(*longer); Lies(control)) cursor_ = static_cast<const Visual*>(control);
  }
  return nullptr;
}

Control* Keyboard::ClickFor(const std::string& keys) {
  for (const KeyRow& row : rows_)
    for (const KeyClick& click : row.clicks) {
      Control* const control = click.keys == keys ? Meant(click) : nullptr;
      if (!control || !player::WhyNot(*control).empty()) continue;
      if (keys == "Escape" && control == guide_.Pause() && guide_.Paused()) continue;
      if (click.control == kNextOfRank) ranks_[keys[0]] = static_cast<Visual*>(control);
      const bool follows = click.control == kNextOfRank || IsDigits(keys);
      if (follows && Lies(control)) cursor_ = static_cast<const Visual*>(control);
      return control;
    }
  return nullptr;
}

Control* Keyboard::Meant(const KeyClick& click) const {
  if (click.control == kNextOfRank) return NextOfRank(click.keys[0]);
  if (click.control == kLastSelected) return LastSelected();
  const size_t bracket = click.control.find('(');
  const int index = bracket == std::string::npos ? -1 : std::atoi(click.control.c_str() + bracket + 1);
  return form_.find(click.control.substr(0, bracket), index);
}

// The first one behind the one clicked last; selected ones come last. Where none can be played the first that
// shows is meant, and the game refuses it.
Visual* Keyboard::NextOfRank(char key) const {
  const char rank = key == '0' ? 'T' : key;
  const auto last = ranks_.find(key);
  size_t start = 0;
  for (size_t i = 0; i < spots_.size(); ++i)
    if (last != ranks_.end() && spots_[i].control == last->second) start = i + 1;
  const auto find = [&](bool playable, bool selected) -> Visual* {
    for (size_t i = 0; i < spots_.size(); ++i) {
      const Spot& spot = spots_[(start + i) % spots_.size()];
      if (spot.rank == rank && spot.playable == playable && spot.selected == selected) return spot.control;
    }
    return nullptr;
  };
  if (Visual* fresh = find(true, false)) return fresh;
  if (Visual* chosen = find(true, true)) return chosen;
  return find(false, false);
}

Visual* Keyboard::LastSelected() const {
  if (selected_.empty()) return nullptr;
  if (Visual* control = guide_.LetsGo()) return control;
  return const_cast<Visual*>(selected_.back());
}

void Keyboard::Walk(int x, int y, bool far) {
  begun_.clear();
  if (!cursor_) return;
  constexpr int kLeast = 60;  // twips
  const Place from = MiddleOf(*cursor_);
  const Visual* nearest = nullptr;
  int least = 0;
  for (const Spot& spot : spots_) {
    if (spot.control == cursor_ || !(spot.playable || far)) continue;
    const Place middle = MiddleOf(*spot.control);
    const int wayX = middle.x - from.x, wayY = middle.y - from.y;
    const int along = wayX * x + wayY * y, aside = std::abs(x != 0 ? wayY : wayX);
    if (along < kLeast) continue;
    if (const int cost = along + 3 * aside; !nearest || cost < least) {
      nearest = spot.control;
      least = cost;
    }
  }
  if (nearest) cursor_ = nearest;
}
