#include "suite/guide.h"

#include "suite/catalogue.h"
#include "suite/select.h"

std::string SpokenPicture(int picture) {
  static constexpr const char* kRanks[] = {"Ace",   "Two",  "Three", "Four", "Five",  "Six", "Seven",
                                           "Eight", "Nine", "Ten",   "Jack", "Queen", "King"};
  static constexpr const char* kSuits[] = {"spades", "hearts", "clubs", "diamonds"};
  if (picture >= kFirstFace && picture <= kLastFace) {
    const int face = picture - kFirstFace;
    return std::string(kRanks[face % 13]) + " of " + kSuits[face / 13];
  }
  if (picture >= 1 && picture < kEmptyPlace) return "Face down";
  return picture == kEmptyPlace || picture == kEmptyWide ? "Empty" : "";
}

char RankOfPicture(int picture) {
  return picture >= kFirstFace && picture <= kLastFace ? "A23456789TJQK"[(picture - kFirstFace) % 13] : 0;
}

std::vector<KeyRow> GameGuide::Keys() const {
  std::vector<KeyRow> rows = BoardKeys();
  const std::vector<KeyRow> common = {
      {"Arrows", "Go to the nearest card that can be played; with Ctrl to any card", {}},
      {"Space, Return", "Click on the card under the cursor", {}},
      {"P", "Pause, resume", {{"P", "cmdPause"}}},
      {"Escape", "Pause", {}},
      {"F1", "The rules", {{"F1", "mnuRules"}}},
      {"F2", "Play", {{"F2", "mnuPlay"}}},
      {"F11", "Full screen, and back", {}},
      {"Shift+F1", "Say how the game stands", {}},
  };
  rows.insert(rows.end(), common.begin(), common.end());
  return rows;
}

std::string GameGuide::State() const {
  std::string state;
  const auto tell = [&](const Label& label, const std::string& before) {
    if (!label.Exists() || !label.Visible || label.Caption.get().empty()) return;
    if (!state.empty()) state += " ";
    state += before + label.Caption.get() + ".";
  };
  tell(window_.lblMessage, "");
  if (window_.InGame()) {
    tell(window_.lblCurrentRound, "Round ");
    tell(window_.lblCurrentScore, "Score ");
    tell(window_.lblTime, "");
  }
  if (const std::string board = window_.InGame() ? BoardState() : ""; !board.empty()) state += " " + board;
  return state;
}

void GameGuide::Add(std::vector<Spot>& spots, Image& image, bool playable, bool selected) const {
  if (!image.Visible || SpokenPicture(image.Picture).empty()) return;
  spots.push_back(
      {&image, SpokenPicture(image.Picture), playable && Plays(), selected, RankOfPicture(image.Picture)});
}

// Below the splash panel.
std::optional<Note> GameGuide::FirstStepsPlace() const {
  constexpr int kGap = 180, kHeight = 1020, kWider = 240;
  const Frame& splash = window_.frmSplash;
  if (!splash.Visible) return std::nullopt;
  return Note{&window_,
              splash.Left - kWider,
              splash.Top + splash.Height + kGap,
              splash.Width + 2 * kWider,
              kHeight,
              "",
              2,
              Note::Look::Sheet};
}

// The window's own clock is up to a minute late.
std::string GameGuide::PanelText(int number) const { return number == 3 ? window_.common.TimeOfDay() : ""; }

namespace {

class SelectGuide : public Guide {
 public:
  explicit SelectGuide(frmSelect& window) : window_(window) {}

  std::vector<KeyRow> Keys() const override {
    KeyRow games{"1 to " + std::to_string(window_.gameButtons.size()), "Open that game", {}};
    for (size_t i = 0; i < window_.gameButtons.size(); ++i)
      games.clicks.push_back({std::to_string(i + 1), window_.gameButtons[i]->NameInForm()});
    return {games};
  }

  std::string ToolTip(const Control& control) const override {
    for (const GameEntry& game : window_.Games())
      if (control.name == game.button) return game.what;
    return "";
  }

  bool KeepsPlace() const override { return true; }

 private:
  frmSelect& window_;
};

}  // namespace

std::unique_ptr<Guide> SharedGuide(Form& form) {
  if (auto* select = dynamic_cast<frmSelect*>(&form)) return std::make_unique<SelectGuide>(*select);
  return DialogGuide(form);
}
