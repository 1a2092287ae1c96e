#include "window/board_keys.h"

#include <algorithm>
#include <cstdlib>

#include "window/player.h"

namespace {

constexpr int kPatience = 2500;  // milliseconds between two keys that belong together

bool IsDigits(const std::string& keys) {
  return std::ranges::all_of(keys, [](char key) { return key >= '0' && key <= '9'; });
}

int Far(BoardKeys::Point a, BoardKeys::Point b) { return std::abs(a.x - b.x) + std::abs(a.y - b.y); }

}  // namespace

void BoardKeys::Settle() {
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
  if (GoTo(cursor_)) return;
  // The nearest to where it stood; at first the first one.
  const Spot* best = nullptr;
  int least = 0;
  for (const Spot& spot : spots_) {
    const int far = stood_ ? Far(middle_(*spot.control), *stood_) : 0;
    if (!best || spot.playable > best->playable || (spot.playable == best->playable && far < least)) {
      best = &spot;
      least = far;
    }
  }
  GoTo(best->control);
}

void BoardKeys::Press(const Control* control) {
  begun_.clear();
  GoTo(control);
}

bool BoardKeys::GoTo(const Control* control) {
  const auto found = std::ranges::find(spots_, control, &Spot::control);
  if (found == spots_.end()) return false;
  cursor_ = found->control;
  stood_ = middle_(*cursor_);
  return true;
}

void BoardKeys::Walk(int x, int y, bool far) {
  begun_.clear();
  if (!cursor_) return;
  constexpr int kLeast = 60;  // twips
  const Point from = middle_(*cursor_);
  const Visual* nearest = nullptr;
  int least = 0;
  for (const Spot& spot : spots_) {
    if (spot.control == cursor_ || !(spot.playable || far)) continue;
    const Point to = middle_(*spot.control);
    const int along = (to.x - from.x) * x + (to.y - from.y) * y, aside = Far(from, to) - std::abs(along);
    if (along < kLeast) continue;
    if (const int cost = along + 3 * aside; !nearest || cost < least) {
      nearest = spot.control;
      least = cost;
    }
  }
  GoTo(nearest);
}

bool BoardKeys::Forget() { return !std::exchange(begun_, "").empty(); }

bool BoardKeys::Knows(const std::string& keys) const {
  return std::ranges::any_of(rows_, [&](const KeyRow& row) {
    return std::ranges::find(row.clicks, keys, &KeyClick::keys) != row.clicks.end();
  });
}

BoardKeys::Heard BoardKeys::Hear(const std::string& key, bool again, long long now) {
  if (key.empty()) return {};
  if (now - begunAt_ > kPatience) begun_.clear();
  const std::string keys = IsDigits(key) ? begun_ + key : key;
  const bool known = Knows(keys);
  const KeyClick* longer = nullptr;
  for (const KeyRow& row : rows_)
    for (const KeyClick& click : row.clicks)
      if (!longer && IsDigits(click.keys) && click.keys.size() > keys.size() && click.keys.starts_with(keys))
        longer = &click;
  if (!known && !longer) return {Forget(), ""};
  if (again) return {true, ""};
  begun_.clear();
  if (known) return {true, keys};
  begun_ = keys;
  begunAt_ = now;
  GoTo(Meant(*longer));  // the cursor shows which row it will be
  return {true, ""};
}

Control* BoardKeys::ClickFor(const std::string& keys) {
  for (const KeyRow& row : rows_)
    for (const KeyClick& click : row.clicks) {
      Control* const control = click.keys == keys ? Meant(click) : nullptr;
      if (!control || !player::WhyNot(*control).empty()) continue;
      if (keys == "Escape" && control == guide_.Pause() && guide_.Paused()) continue;
      if (click.control == kNextOfRank) ranks_[keys[0]] = static_cast<Visual*>(control);
      if (click.control == kNextOfRank || IsDigits(keys)) GoTo(control);
      return control;
    }
  return nullptr;
}

Control* BoardKeys::ClickHere() const {
  return cursor_ && player::WhyNot(*cursor_).empty() ? const_cast<Visual*>(cursor_) : nullptr;
}

std::vector<Visual*> BoardKeys::Choices() const {
  std::vector<Visual*> choices;
  for (const KeyRow& row : rows_)
    for (const KeyClick& click : row.clicks)
      if (IsDigits(click.keys))
        if (Control* control = Meant(click); control && control->kind == Control::Kind::CommandButton)
          choices.push_back(static_cast<Visual*>(control));
  return choices;
}

Control* BoardKeys::Meant(const KeyClick& click) const {
  if (click.control == kNextOfRank) return NextOfRank(click.keys[0]);
  if (click.control == kLastSelected) return LastSelected();
  const size_t bracket = click.control.find('(');
  const int index = bracket == std::string::npos ? -1 : std::stoi(click.control.substr(bracket + 1));
  return form_.find(click.control.substr(0, bracket), index);
}

// The first one behind the one clicked last; selected ones come last. Where none can be played the first that
// shows is meant, and the game refuses it.
Visual* BoardKeys::NextOfRank(char key) const {
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

Visual* BoardKeys::LastSelected() const {
  if (selected_.empty()) return nullptr;
  if (Visual* control = guide_.LetsGo()) return control;
  return const_cast<Visual*>(selected_.back());
}
