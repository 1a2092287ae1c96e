// What the rules window of Fivestack says.
#include <cmath>

#include "games/fivestack/fivestack.h"

namespace {

constexpr RulesParagraph kParagraphs[] = {
    {"Requirements: To run {title} you need Windows 95 or above and a mouse.  Recommended: Soundcard."},
    {"As with most games, the object of {title} is to attain the highest number of points possible. "
     "The game consists of three rounds, each lasting {limit} seconds. "
     "If you earn more than {#bonusScore} points in these rounds you are awarded an additional bonus round."},
    {"You earn points by creating 5 columns of cards to a maximum of 5 cards per column. "
     "Each card is worth it's face value (face cards are 10 points each, Aces are worth 1 or 11 points). "
     "If any column exceeds 21 points (ie: busted), the round is automatically ended and no points are "
     "awarded. "
     "Once you achieve a total of 97 points or greater (total of all 5 columns without busting) "
     "you begin to earn points towards the current round."},
    {"The number of points you earn in a round is equal to your Card Total Value multiplied by the Time "
     "Bonus. "
     "Your Card Total Value is determined by the total of all five columns. "
     "If the total of all five columns is less than 97, your Card Total Value is 0. "
     "A column total of 97 is worth 50 points, 98 is worth 100 and so on up to a maximum of 105 which is "
     "worth 1000 points. "
     "There is a table located on the right side of the {title} window which describes the Card Total Value "
     "earned for a given card column total."},
    {"The Time Bonus begins at {bonusMax}. It decreases by {decay} for each second used in the round. "
     "If time expires the Time Bonus is worth {bonusMin}."},
    {"You are allowed to pass {passes} card(s) per round."},
    {"Good luck and have fun!"},
};

}  // namespace

const RulesText frmFivestack::kRules{33, kParagraphs};

RulesValues frmFivestack::MoreRulesValues() const {
  return {{"decay", std::to_string(static_cast<long long>(std::trunc(TimeBonusDecay())))}};
}
