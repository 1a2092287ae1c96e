// The values of Blackrush's own: defaults, settings file, scoring dialog.
#include "games/blackrush/custom.h"

using namespace modBlackrush;

namespace {

enum Field : size_t { kPasses, kWait, kCardsUsed, kTwentyOneBonus, kDeck, kGimme, kBonus };

}  // namespace

// The fields in the order in which they are looked at.
void frmBlackrush::NameSettings() {
  constexpr long long kLargest = 2147483647;
  settings = {
      {"passes", &CardsToPass, kCardsToPass, "[Cards To Pass]", Customises::Yes, At(6, kPassesField)},
      // More than a minute doesn't fit the setting, so that the player is told of an overflow instead.
      {"waitPeriod", &WaitPeriod, kWaitPeriod, "[Wait Period]", Customises::No,
       ScoringField{
           "txtWaitPeriod",
           "lblWaitPeriod",
           "Seconds to wait between Rounds (0 - 10):",
           0,
           60,
           {"Sorry, a minimum of 0 seconds is required for the waiting period between rounds.", 0, 0},
           {"Sorry, a maximum of 60 seconds is allowed for the waiting period between rounds.", 0, 60000},
           1000,
           7}},
      {"cardsUsedBonus", &CardsUsedBonusValue, kCardsUsedBonusValue, "[Cards Used Bonus Value]",
       Customises::Yes,
       At(3, BoundedField("txtCardsUsedBonus", "lblCardsUsedBonus", "Cards Used Bonus Value:", 0, 5000,
                          "Sorry, a minimum of 0 is required for the Cards Used bonus score.",
                          "Sorry, the maximum value for the Cards Used bonus score is 5000."))},
      {"twentyOneBonus", &TwentyOneBonusValue, kTwentyOneBonusValue, "[TwentyOne Bonus Value]",
       Customises::No,
       At(2, BoundedField("txt21BonusValue", "lbl21BonusValue", "Twenty One Bonus Value:", 0, 5000,
                          "Sorry, a minimum of 0 is required for the Twenty One bonus score.",
                          "Sorry, the maximum value for the Twenty One bonus score is 5000."))},
      {"deckBonus", &DeckCompletionBonus, kDeckCompletionBonus, "[Deck Completion Bonus]", Customises::Yes,
       At(4, BoundedField("txtDeckCompletionBonus", "lblDeckCompletionBonus", "Deck Completion Bonus:", 0,
                          1000000, "Sorry, a minimum of 0 is required for the Deck Completion Bonus.",
                          "Sorry, the maximum value for the Deck Completion Bonus is 1000000."))},
      {"fiveCardBonus", &FiveCardGimmeBonus, kFiveCardGimmeBonus, "[5 Cards Bonus Value]", Customises::Yes,
       At(5, BoundedField("txtFiveCardGimmeBonus", "lblFiveCardGimmeBonus", "Five Card Gimme Bonus:", 0,
                          50000, "Sorry, a minimum of 0 is required for the Five Cards Gimme Bonus.",
                          "Sorry, the maximum value for the Five Cards Gimme Bonus is 50000."))},
      {"bonusScore", &BonusScore, kBonusScore, "[Bonus Round Score]", Customises::Yes,
       At(1, BoundedField("txtBonus", "lblBonus", "Score required for Bonus:", 0, kLargest,
                          "Sorry, a minimum of 0 is required for the bonus round score.",
                          "Sorry, the maximum value for achieving a bonus round is 2147483647."))},
      {"counterSpeed", &CounterSpeed, kNormalSpeed, "[Timer Speed]", Customises::Yes, std::nullopt,
       Reads::Yes, kCounterSpeeds},
      {"countDown", &common.CountDownScore, true, "[Count Down Score]", Customises::No},
  };
}

frmBlackrushCustomScoring::frmBlackrushCustomScoring(frmBlackrush& game) : ScoringDialog(game), game_(game) {
  lblCounterSpeed.Caption = "21 Counter Speed:";
  lblCounterSpeed.Move(240, FreeRowTop(0) + 30, 1800, 285);
  const std::pair<OptionButton*, const char*> options[] = {
      {&optDefault, "&Normal"},
      {&optSlow, "&Slow"},
      {&optSlowest, "&Any slower and it would be going backwards"}};
  int row = 0;
  for (const auto& [option, caption] : options) {
    option->Caption = caption;
    option->Move(2160, FreeRowTop(row++), 5520, 285);
  }
}

void frmBlackrushCustomScoring::Form_Load() {
  ScoringDialog::Form_Load();
  Choose(game_.CounterSpeed);
}

void frmBlackrushCustomScoring::Choose(long long speed) {
  optDefault.Value = speed == kNormalSpeed;
  optSlow.Value = speed == kSlowSpeed;
  optSlowest.Value = speed == kSlowestSpeed;
}

void frmBlackrushCustomScoring::BeforeFields() {
  if (optDefault.Value) game_.CounterSpeed = kNormalSpeed;
  if (optSlow.Value) game_.CounterSpeed = kSlowSpeed;
  if (optSlowest.Value) game_.CounterSpeed = kSlowestSpeed;
}

// A bonus below 0 is put right in the field of the bonus round's score, which is looked at after it.
std::optional<ScoringDialog::Refusal> frmBlackrushCustomScoring::Judge(size_t field, double value) {
  auto refusal = ScoringDialog::Judge(field, value);
  if (refusal && field == kTwentyOneBonus && value < 0) refusal->box = &rows[kBonus]->box;
  return refusal;
}

// Passes that were refused hold for no round: a game begins with `CardsToPass`.
void frmBlackrushCustomScoring::TakeRefused(size_t field, long long setting) {
  if (field == kPasses)
    game_.board.passesLeft = setting;
  else
    ScoringDialog::TakeRefused(field, setting);
}

void frmBlackrush::ShowCustomScoring() { frmBlackrushCustomScoring(*this).Show(true); }
