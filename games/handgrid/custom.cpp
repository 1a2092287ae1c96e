// The values of Handgrid's own: defaults, settings file, scoring dialog.
#include "games/handgrid/handgrid.h"

using namespace modHandgrid;

namespace {

// What is out of bounds on either side is put right in the same way, and is no default: a hand that was out
// of bounds becomes a costly one.
constexpr ScoringField Field(const char* box, const char* label, const char* caption, double highest,
                             long long putBack, const char* message) {
  const OutOfBounds wrong{message, putBack, putBack};
  return {box, label, caption, 0, highest, wrong, wrong};
}

}  // namespace

void frmHandgrid::NameSettings() {
  constexpr HandScores standard{};
  const auto hand = [&](const char* name, Long HandScores::*score, const char* section,
                        const ScoringField& field) {
    return GameSetting{name,    &(Scores.*score), static_cast<int>(standard.*score),
                       section, Customises::Yes,  field};
  };
  settings = {
      hand("pair", &HandScores::PairScore, "[Pair Score]",
           Field("txtPairScore", "lblPairScore", "Pair Score Value:", 50000, 6000,
                 "Sorry, the Pair Score Value: must be between 0 and 50,000 points.")),
      hand("twoPair", &HandScores::TwoPairScore, "[Two Pair Score]",
           Field("txt2PairScore", "lbl2PairScore", "2 Pair Score Value:", 50000, 7000,
                 "Sorry, the 2 Pair Score Value: must be between 0 and 50,000 points.")),
      hand("trips", &HandScores::TripsScore, "[Trips Score]",
           Field("txt3ofakindScore", "lbl3ofakindScore", "3 of a Kind Score Value:", 50000, 8000,
                 "Sorry, the 3 of a Kind Score Value: must be between 0 and 50,000 points.")),
      hand("straight", &HandScores::StraightScore, "[Straight Score]",
           Field("txtStraightScore", "lblStraightScore", "Straight Score Value:", 50000, 9000,
                 "Sorry, the Straight Score Value: must be between 0 and 50,000 points.")),
      hand("flush", &HandScores::FlushScore, "[Flush Score]",
           Field("txtFlushScore", "lblFlushScore", "Flush Score Value:", 50000, 10000,
                 "Sorry, the Flush Score Value: must be between 0 and 50,000 points.")),
      hand("fullHouse", &HandScores::FullHouseScore, "[Full House Score]",
           Field("txtFullHouseScore", "lblFullHouseScore", "Full House Score Value:", 50000, 20000,
                 "Sorry, the Full House Score Value: must be between 0 and 50,000 points.")),
      hand("four", &HandScores::FourScore, "[Four Score]",
           Field("txt4ofakindScore", "lbl4ofakindScore", "4 of a Kind Score Value:", 50000, 30000,
                 "Sorry, the 4 of a Kind Score Value: must be between 0 and 50,000 points.")),
      hand("straightFlush", &HandScores::StraightFlushScore, "[Straight Flush Score]",
           Field("txtStFlushScore", "lblStFlushScore", "Straight Flush Score Value:", 50000, 40000,
                 "Sorry, the Straight Flush Score Value: must be between 0 and 50,000 points.")),
      hand("royalFlush", &HandScores::RoyalFlushScore, "[Royal Flush Score]",
           Field("txtRoyalFlushScore", "lblRoyalFlushScore", "Royal Flush Score Value:", 100000, 50000,
                 "Sorry, the Royal Flush Score Value: must be between 0 and 100,000 points.")),
      {"bonusScore", &BonusScore, kBonusScore, "[Bonus Score]", Customises::Yes,
       Field("txtBonusScore", "lblBonusScore", "Score required for bonus round:", 1000000, 100000,
             "Sorry, the Score required for bonus round: must be between 0 and 1,000,000 points.")},
      {"overWrites", &OverWritesAllowed, kOverWrites, "[Over Writes]", Customises::Yes,
       Field("txtOverWrites", "lblOverWrites", "Number of overwrites allowed", 26, 1,
             "Sorry, the Number of overwrites allowed must be between 0 and 26 points.")},
      {"timeBonus", &common.TimeBonus, kTimeBonus, "[Time Bonus]", Customises::Yes,
       Field("txtTimeBonus", "lblTimeBonus", "Time Bonus (per second multipler)", 10, 1,
             "Sorry, the Time Bonus value must be between 0 and 10 points.")},
      {"countDown", &common.CountDownScore, true, "[Count Down Score]", Customises::No},
  };
}
