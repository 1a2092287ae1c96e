// What the rules window of Duopick says.
#include "games/duopick/duopick.h"

namespace {

constexpr RulesParagraph kParagraphs[] = {
    {"Requirements: To run {title} you need Windows 95 or above and a mouse.  Recommended: Soundcard."},
    {"As with most games, the object of {title} is to attain the highest number of points possible. "
     "The game consists of two rounds, each lasting {limit} seconds. "
     "If you earn more than {#bonusScore} points in these rounds you are awarded an additional bonus round."},
    {"You earn points in a number ways:"},
    {"1. Clicking on pairs of exposed cards to create pairs and runs. For example, 2-2, 5-6, and 10-9. "
     "A run may span from a King to an Ace and vice versa. "
     "For example King-Ace and Ace-King are both valid runs. "
     "You are awarded {#pairsBonus} points for each pair you create and {#runsBonus} points for each run you "
     "create. These points are awarded at the end of each round. "
     "Obviously it is to your advantage to collect pairs rather than runs."},
    {"2. Clearing the upper cards. "
     "If you manage to clear all of the cards from the upper playing field you are awarded and additional "
     "{#completionBonus} points at the end of the round."},
    {"3. Time Bonus. If you have no playable cards remaining, clicking the 'Take Score' button will end the "
     "current round and award you {#timeBonus} points for each second remaining on the clock. "},
    {"Good luck and have fun!"},
};

}  // namespace

const RulesText frmDuopick::kRules{33, kParagraphs};
