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
    constexpr int kBreadth = 300, kRankHeight = 240, kBandLeft = 60, kGap = 60;
    std::vector<Note> notes;
    const std::optional<size_t> taken = window_.PlaceJustTaken();
    for (size_t place = 0; place < kTablePlaces; ++place) {
      const Label& name = window_.ScoreList(2 * place);
      const Label& score = window_.ScoreList(2 * place + 1);
      if (score.Caption.get().empty()) continue;
      if (place == taken)
        notes.push_back({&window_, kBandLeft, name.Top - kGap, score.Left + score.Width, name.Height + kGap,
                         "", 0, Note::Look::Mark});
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
    const int top = window_.cmdOK.Top + 90, height = 300, side = window_.cmdOK.Left - 180;
    return {{&window_, 180, top, side, height, "Score " + FormatNumber(entry.score), 0, Note::Look::Plain},
            {&window_, window_.cmdOK.Left + window_.cmdOK.Width, top, side, height,
             "Place " + std::to_string(*entry.place + 1), 1, Note::Look::Plain}};
  }

  TextBox* OffersAgain() const override { return &window_.lblPlayerName; }

 private:
  frmHiScoreName& window_;
};

}  // namespace

std::unique_ptr<Guide> DialogGuide(Form& form) {
  if (auto* table = dynamic_cast<frmHighScores*>(&form)) return std::make_unique<HallOfFameGuide>(*table);
  if (auto* name = dynamic_cast<frmHiScoreName*>(&form)) return std::make_unique<NameGuide>(*name);
  return nullptr;
}
