#include "suite/guide.h"

#include "suite/catalogue.h"
#include "suite/select.h"
#include "window/text.h"

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
  const auto take = [&](KeyRow row) {
    for (const KeyRow& own : rows)
      if (own.keys == row.keys) return;
    rows.push_back(std::move(row));
  };
  take({"Arrows", "Go to the nearest card that can be played; with Ctrl to any card", {}});
  take({"Space, Return", "Click on the card under the cursor", {}});
  take({"Tab", "Go to the buttons; the board comes first", {}});
  take({"P", "Pause, resume", {{"P", "cmdPause"}}});
  take({"Escape", "Pause", {{"Escape", "cmdPause"}}});
  take({"F1", "The rules", {{"F1", "mnuRules"}}});
  take({"F2", "Play", {{"F2", "mnuPlay"}}});
  take({"F11", "Full screen, and back", {}});
  take({"Ctrl with +, -, 0", "Larger, smaller, as at first", {}});
  take({"Shift+F1", "Say how the game stands", {}});
  return rows;
}

KeyRow GameGuide::RankKeys() {
  KeyRow row{"A, 2 to 9, 0 or T, J, Q, K", "The next card of that rank that can be played", {}};
  for (const char key : std::string("A234567890TJQK")) row.clicks.push_back({{key}, kNextOfRank});
  return row;
}

KeyRow GameGuide::BackKey() {
  return {"Backspace", "Take back the card selected last", {{"Backspace", kLastSelected}}};
}

bool GameGuide::IsOrnament(const Control& control) const {
  return control.parent == &window_.frmSplash && control.kind == Control::Kind::Image;
}

std::optional<GameFacts> GameGuide::Game() const {
  const modCommon& common = window_.common;
  GameFacts facts;
  facts.name = window_.plan.Name();
  facts.inProgress = !window_.standing.CanStart();
  facts.next = window_.daily != 0 ? window_.daily : common.askedDeal.number;
  facts.day = window_.day;
  facts.deal = window_.log.PlayedDeal().number;
  facts.repeated = window_.log.PlayedDeal().repeated;
  if (const auto& last = window_.log.Last()) {
    facts.last = FormatGame(last->game);
    facts.payments = last->payments;
  }
  return facts;
}

bool GameGuide::AskForDeal(int number) {
  if (window_.standing.InputIsDead()) return false;
  window_.common.nextDeal = DealName{number, true};
  return true;
}

std::string GameGuide::State() const {
  std::string state;
  const auto tell = [&](const std::string& text) {
    if (!text.empty()) state += (state.empty() ? "" : " ") + text + ".";
  };
  if (window_.lblMessage.Visible) tell(window_.lblMessage.Caption);
  if (window_.standing.CanStart()) return state;
  const modCommon& common = window_.common;
  tell(window_.CurrentRound > window_.plan.rounds ? "Bonus round"
                                                  : "Round " + std::to_string(window_.CurrentRound));
  tell("Score " + FormatNumber(common.CurrentScore));
  if (window_.standing.IsBusy()) return state;
  const long long left = window_.clock.Left();
  if (window_.plan.HasClock()) tell(std::to_string(left) + (left == 1 ? " second left" : " seconds left"));
  if (const std::string board = BoardState(); !board.empty()) state += " " + board;
  return state;
}

void GameGuide::Add(std::vector<Spot>& spots, Image& image, bool playable, bool selected,
                    const std::string& place) const {
  const std::string text = SpokenPicture(image.Picture);
  if (text.empty()) return;
  spots.push_back({&image, text + (place.empty() ? "" : ", " + place), playable && Plays(), selected, false,
                   RankOfPicture(image.Picture)});
}

void GameGuide::AddStock(std::vector<Spot>& spots, Image& image, bool playable) const {
  const size_t before = spots.size();
  Add(spots, image, playable, false, "stock");
  if (spots.size() > before) spots.back().draws = true;
}

// By the splash panel.
std::optional<Note> GameGuide::FirstStepsPlace() const {
  const Frame& splash = window_.frmSplash;
  if (!splash.Visible) return std::nullopt;
  return Note{&window_, splash.Left, splash.Top, splash.Width, splash.Height, "", 2, Note::Look::Sheet};
}

// The window's own clock is up to a minute late.
std::string GameGuide::PanelText(int number) const { return number == 3 ? window_.common.TimeOfDay() : ""; }

namespace {

class SelectGuide : public Guide {
 public:
  explicit SelectGuide(frmSelect& window) : window_(window) {}

  bool IsOrnament(const Control& control) const override { return control.kind == Control::Kind::Image; }

  std::vector<KeyRow> Keys() const override {
    KeyRow games{"1 to " + std::to_string(window_.gameButtons.size()), "Open that game", {}};
    for (size_t i = 0; i < window_.gameButtons.size(); ++i)
      games.clicks.push_back({std::to_string(i + 1), window_.gameButtons[i]->NameInForm()});
    return {games,
            {"F1", "What the games are about", {}},
            {"Ctrl with +, -, 0", "Larger, smaller, as at first", {}}};
  }
  bool IsChoice() const override { return true; }

  std::string ToolTip(const Control& control) const override {
    for (size_t i = 0; i < window_.gameButtons.size(); ++i)
      if (&control == window_.gameButtons[i].get()) return window_.Games()[i].what;
    return "";
  }

  std::string Picture(const Control& button) const override {
    for (size_t i = 0; i < window_.gameButtons.size(); ++i)
      if (&button == window_.gameButtons[i].get())
        return "games/" + std::string(window_.Games()[i].Name()) + ".svg";
    return "";
  }

  std::optional<Note> HelpPlace() const override {
    const int left = window_.cmdLaunchBrowser.Left + window_.cmdLaunchBrowser.Width, gap = 120;
    return Note{&window_,
                left + gap,
                window_.cmdClose.Top,
                window_.cmdClose.Left - left - 2 * gap,
                window_.cmdClose.Height,
                "Help"};
  }

  bool KeepsPlace() const override { return true; }

  std::vector<GameDoor> Doors() const override {
    std::vector<GameDoor> doors;
    for (size_t i = 0; i < window_.gameButtons.size(); ++i)
      doors.push_back({window_.gameButtons[i].get(), std::string(window_.Games()[i].Name())});
    return doors;
  }
  void AskForToday() override { window_.common.nextIsToday = true; }

 private:
  frmSelect& window_;
};

}  // namespace

std::unique_ptr<Guide> SharedGuide(Form& form) {
  if (auto* select = dynamic_cast<frmSelect*>(&form)) return std::make_unique<SelectGuide>(*select);
  return DialogGuide(form);
}
