// What the rules window of Spirehold says.
#include "games/spirehold/spirehold.h"

namespace {

constexpr RulesParagraph kParagraphs[] = {
    {"Requirements: To run {title} you need Windows 95 or above and a mouse.  Recommended: Soundcard."},
    {"As with most games, the object of {title} is to attain the highest number of points possible. "
     "The game consists of two rounds, each lasting {limit} seconds. "
     "If you earn more than {#bonusScore} points in these rounds you are awarded an additional bonus round."},
    {"You earn points in a number ways:"},
    {"1. Clicking on exposed cards to create runs. For example, Ace-2-3 or 9-8-7-6-5. "
     "A run may span from a King to an Ace and vice versa. "
     "For example Queen-King-Ace-2 and 3-2-Ace-King are both valid runs. "
     "The longer the run the more points you earn. "
     "Each time a new card is added to a run, the selected card's value increases by {#cardValue} points."},
    {"2. Creating the longest run. {title} keeps a record of the longest run attained. "
     "When you exceed the longest run you receive an additional {#highRunBonus} points for each card in the run."},
    {"3. Clearing Towers. The upper card area is layed out in a manner that represents three 'Towers'. "
     "You can earn an additional bonus by clearing these Towers. "
     "This bonus is equal to the number of Towers cleared multiplied by {#towerBonus} points."},
    {"4. Time Bonus. If you have no playable cards remaining, clicking the 'Take Score' button will end the "
     "current round and award you {#timeBonus} points for each second remaining on the clock. "
     "You do not get the Time Bonus if you have not cleared at least one tower."},
    {"Good luck and have fun!"},
};

}  // namespace

const RulesText frmSpirehold::kRules{33, kParagraphs};
