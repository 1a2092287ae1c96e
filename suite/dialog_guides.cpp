#include "suite/dialogs.h"
#include "suite/guide.h"
#include "suite/high_scores.h"
#include "window/text.h"

namespace {

// The places are numbered, and the one that was just taken is marked.
class HallOfFameGuide : public Guide {
 public:
  explicit HallOfFameGuide(frmHighScores& window) : window_(window) {}

  std::vector<Note> Notes() const override {
    constexpr int kBreadth = 300, kRankHeight = 195, kBandLeft = 40, kGap = 60, kBandHeight = 330;
    std::vector<Note> notes;
    const std::optional<size_t> taken = window_.PlaceJustTaken();
    for (size_t place = 0; place < kTablePlaces; ++place) {
      const Label& name = window_.ScoreList(2 * place);
      const Label& score = window_.ScoreList(2 * place + 1);
      if (score.Caption.get().empty()) continue;
      if (place == taken)
        notes.push_back({&window_, kBandLeft, name.Top - kGap, score.Left + score.Width + kGap - kBandLeft,
                         kBandHeight, "", 0, Note::Look::Mark});
      notes.push_back(
          {&window_, 0, name.Top, kBreadth, kRankHeight, std::to_string(place + 1), 1, Note::Look::Plain});
    }
    return notes;
  }

 private:
  frmHighScores& window_;
};

// What the name is for, and the name that was given the last time.
class NameGuide : public Guide {
 public:
  explicit NameGuide(frmHiScoreName& window) : window_(window) {}

  std::vector<Note> Notes() const override {
    const TableEntry& entry = window_.common.lastEntry;
    const TextBox& field = window_.lblPlayerName;
    const CommandButton& ok = window_.cmdOK;
    const int right = ok.Left + ok.Width;
    return {{&window_, field.Left, ok.Top, ok.Left - field.Left, ok.Height,
             "Score " + FormatNumber(entry.score), 0, Note::Look::Plain},
            {&window_, right, ok.Top, field.Left + field.Width - right, ok.Height,
             "Place " + std::to_string(*entry.place + 1), 1, Note::Look::Plain}};
  }

  TextBox* OffersAgain() const override { return &window_.lblPlayerName; }

 private:
  frmHiScoreName& window_;
};

// The number of the cards that were played last.
class AboutGuide : public Guide {
 public:
  explicit AboutGuide(frmAbout& window) : window_(window) {}

  std::vector<Note> Notes() const override {
    const GameWindow* const game = window_.common.window;
    const int deal = game ? game->log.PlayedDeal().number : 0;
    if (deal == 0) return {};
    const CommandButton& button = window_.cmdCoolDude;
    return {{&window_, window_.lblFolder.Left, button.Top, button.Left - window_.lblFolder.Left,
             button.Height, "Deal " + std::to_string(deal), 0, Note::Look::Plain}};
  }

 private:
  frmAbout& window_;
};

}  // namespace

std::unique_ptr<Guide> DialogGuide(Form& form) {
  if (auto* table = dynamic_cast<frmHighScores*>(&form)) return std::make_unique<HallOfFameGuide>(*table);
  if (auto* name = dynamic_cast<frmHiScoreName*>(&form)) return std::make_unique<NameGuide>(*name);
  if (auto* about = dynamic_cast<frmAbout*>(&form)) return std::make_unique<AboutGuide>(*about);
  return nullptr;
}
