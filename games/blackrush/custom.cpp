#include "games/blackrush/custom.h"

using namespace modBlackrush;

namespace {

constexpr long long kLargest = 2147483647;

enum Field : size_t { kPasses, kWait, kCardsUsed, kTwentyOneBonus, kDeck, kGimme, kBonus };

// In the order in which they are looked at.
constexpr ScoringField kFields[] = {
    PassesField(kCardsToPass),
    // More than a minute doesn't fit the setting, so that the player is told of an overflow instead.
    {"txtWaitPeriod",
     "lblWaitPeriod",
     "Seconds to wait between Rounds (0 - 10):",
     kWaitPeriod / 1000,
     0,
     60,
     {"Sorry, a minimum of 0 seconds is required for the waiting period between rounds.", 0, 0},
     {"Sorry, a maximum of 60 seconds is allowed for the waiting period between rounds.", 0, 60000},
     1000},
    {"txtCardsUsedBonus",
     "lblCardsUsedBonus",
     "Cards Used Bonus Value:",
     kCardsUsedBonusValue,
     0,
     5000,
     {"Sorry, a minimum of 0 is required for the Cards Used bonus score.", 0, 0},
     {"Sorry, the maximum value for the Cards Used bonus score is 5000.", 5000, 5000}},
    {"txt21BonusValue",
     "lbl21BonusValue",
     "Twenty One Bonus Value:",
     kTwentyOneBonusValue,
     0,
     5000,
     {"Sorry, a minimum of 0 is required for the Twenty One bonus score.", 0, 0},
     {"Sorry, the maximum value for the Twenty One bonus score is 5000.", 5000, 5000}},
    {"txtDeckCompletionBonus",
     "lblDeckCompletionBonus",
     "Deck Completion Bonus:",
     kDeckCompletionBonus,
     0,
     1000000,
     {"Sorry, a minimum of 0 is required for the Deck Completion Bonus.", 0, 0},
     {"Sorry, the maximum value for the Deck Completion Bonus is 1000000.", 1000000, 1000000}},
    {"txtFiveCardGimmeBonus",
     "lblFiveCardGimmeBonus",
     "Five Card Gimme Bonus:",
     kFiveCardGimmeBonus,
     0,
     50000,
     {"Sorry, a minimum of 0 is required for the Five Cards Gimme Bonus.", 0, 0},
     {"Sorry, the maximum value for the Five Cards Gimme Bonus is 50000.", 50000, 50000}},
    {"txtBonus",
     "lblBonus",
     "Score required for Bonus:",
     kBonusScore,
     0,
     kLargest,
     {"Sorry, a minimum of 0 is required for the bonus round score.", 0, 0},
     {"Sorry, the maximum value for achieving a bonus round is 2147483647.", kLargest, kLargest}},
};

constexpr int kOrder[] = {kBonus, kTwentyOneBonus, kCardsUsed, kDeck, kGimme, kPasses, kWait};

constexpr ScoringNames kNames{.window = "frmBlackrushCustomScoring",
                              .frame = "frmCustomScoring",
                              .frameCaption = "Apptitle Scoring options",
                              .countDown = "chkCountScore",
                              .countDownCaption = "Count down &when taking score",
                              .order = kOrder,
                              .moreRows = 3};

}  // namespace

frmBlackrushCustomScoring::frmBlackrushCustomScoring(frmBlackrush& game)
    : ScoringDialog(game, kNames, kFields), game_(game) {
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

// Over the game's window.
void frmBlackrushCustomScoring::PlaceDialog() {
  Form::Move(game_.Left + (game_.Width - Width) / 2, game_.Top + (game_.Height - Height) / 2, Width, Height);
}

void frmBlackrushCustomScoring::Choose(long long speed) {
  optDefault.Value = speed == kNormalSpeed;
  optSlow.Value = speed == kSlowSpeed;
  optSlowest.Value = speed == kSlowestSpeed;
}

void frmBlackrushCustomScoring::BeforeFields() {
  if (optDefault.Value) game_.SetCounterSpeed(kNormalSpeed);
  if (optSlow.Value) game_.SetCounterSpeed(kSlowSpeed);
  if (optSlowest.Value) game_.SetCounterSpeed(kSlowestSpeed);
}

ScoringDialog::Number frmBlackrushCustomScoring::Setting(size_t field) {
  const Number settings[] = {&game_.CardsToPass,         &game_.WaitPeriod,
                             &game_.CardsUsedBonusValue, &game_.TwentyOneBonusValue,
                             &game_.DeckCompletionBonus, &game_.FiveCardGimmeBonus,
                             &game_.BonusScore};
  return settings[field];
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
