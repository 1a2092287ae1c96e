// What the rules window of Sumfall says.
#include "games/sumfall/sumfall.h"

namespace {

constexpr RulesParagraph kParagraphs[] = {
    {"Requirements: To run {title} you need Windows 95 or above and a mouse.  Recommended: Soundcard."},
    {"As with most games, the object of {title} is to attain the highest number of points possible. "
     "The game consists of two rounds, each lasting {limit} seconds. "
     "If you earn more than {bonusRoundScore} points in these rounds you are awarded an additional bonus round. "
     "You earn points in several ways:"},
    {"1. Elevens: Selecting exposed cards that total eleven (the card goal). "
     "You are awarded {combinationBonus} points for each combination of 11's you select. "
     "These points are awarded at the end of each round. When selecting cards (to reach the card goal), "
     "each card is worth it's face value, aces are worth 1. "
     "The deck consists of 52 cards; 16 Aces, 4 of each card 2 thru 10 and no face cards."},
    {" you have the ability to change the card goal from 11 to any number between 10 and 15. "
     "When your card goal is set to 12, 4 Jacks (each with a value of 11) are added to the deck. "
     "When your card goal is 13, 4 Jacks and 4 Queens are added (Queens have a value of 12). "
     "When your card goal is 14 or 15, 4 Jacks, 4 Queens and 4 Kings are added to the deck. "
     "Kings have a value of 13 each. All face cards are in addition to the standard deck described above."},
    {"2. Completion Bonus: If you clear all of the exposed cards (upper deck) you are awarded an additional "
     "{completionBonus} points. Exposed cards are those in the upper playing area. "
     "You do not need to use all cards in the deck to earn the completion bonus."},
    {"3. Time Bonus: You are awarded {timeBonus} points for each second remaining in the round after selecting "
     "the '{takeScore}' command button."},
    {"4. Creating Eleven Combinations: When you are selecting cards to create an '11' combination, the location "
     "of the cards determines points awarded when 11 is reached. "
     "The 'Field cards' (upper deck) are displayed in 6 tiers. "
     "Selected cards in tier one (the bottom one) are worth 200 points, cards in tier two are worth 300 and so on "
     "to tier six which are worth 700 points. Cards selected from the deck are worth 100 points."},
    {"Note: Each time you select a new card from the deck your score is decreased by 100 points."},
    {"Strategy: On the average, you earn a larger number of points by creating eleven combinations as opposed to "
     "clearing the upper deck. If possible, clear the lower tiers and then sumfall. "
     "Try to clear the upper deck in the last {quarter} seconds of play. "},
    {"Good luck and have fun!"},
};

}  // namespace

const RulesText frmSumfall::kRules{30, kParagraphs};
