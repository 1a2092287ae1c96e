// What the rules window of Blackrush says.
#include "games/blackrush/blackrush.h"

namespace {

constexpr RulesParagraph kParagraphs[] = {
    {"Requirements: To run {title} you need Windows 95 or above and a mouse.  Recommended: Soundcard."},
    {"As with most games, the object of {title} is to attain the highest number of points possible. "
     "The game consists of three rounds, each lasting {limit} seconds. "
     "If you earn more than {#bonusScore} points in these rounds you are awarded an additional bonus round."},
    {"You earn points by creating cards combinations that total 21. "
     "Each card is worth it's face value (face cards are 10 points each, Aces are worth 1 or 11 points). "
     "If any column exceeds 21 points (ie: busted), your score is reduced by 100 points. "},
    {"At the end of each round, the total number of 21 combinations that you created is multiplied by the 21 "
     "Bonus Value. "
     "The 21 Bonus Value increases by {#twentyOneBonus} each time a 21 combination is created. "
     "The 21 Bonus Value is reset to {#twentyOneBonus} if the '21 Counter' (a timer) expires. "
     "The '21 Counter' is reset each time a 21 combination is created. "
     "The '21 Counter' is set for approxiametly 10 seconds. "
     "Once you create your first 21 combination, you must create another one before the '21 Counter' expires "
     "or your 21 Bonus Value is reset to {#twentyOneBonus}."},
    {"You also earn points by creating columns of 5 cards that do not exceed 21 (called a 'five card gimme'). "
     "Each time a column of this type is created you are awarded {#fiveCardBonus} points. "
     "Each time you create a 21 card combination or a 'five card gimme' the column is automatically cleared. "
     "If you are able to use all the cards in the deck you are awarded an additional {#deckBonus} points. "
     "At the end of each round you are also awarded {#cardsUsedBonus} points for each card you used during the "
     "round."},
    {" you may modify all of the scoring values such as the points required to achieve a bonus round, "
     "points awarded for completing the deck, the 21 Bonus Value and the 'five card gimme' bonus."},
    {"Good luck and have fun!"},
};

}  // namespace

const RulesText frmBlackrush::kRules{33, kParagraphs};
