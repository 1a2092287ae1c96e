// What the rules window of Treyshift says.
#include "games/treyshift/treyshift.h"

namespace {

constexpr RulesParagraph kParagraphs[] = {
    {"Requirements: To run {title} you need Windows 95 or above and a mouse. Recommended: Soundcard."},
    {"As with most games, the object of {title} is to attain the highest number of points possible. "
     "The game consists of two rounds, each lasting {limit} seconds. "
     "If you earn more than {#bonusScore} points in these rounds you are awarded an additional bonus round."},
    {"The {title} game board is separated into three sections: the storage area, the playing field, and the "
     "deck. The playing field consists of four columns, each of which may hold up to three cards. You earn "
     "points by creating '3 card runs' (a Run) and '3 of a kinds' (a Trip) in each column. To accomplish this "
     "you may move cards from the deck to the playing field or place them into the temporary storage area at "
     "the top of the board. The temporary storage area may hold up to three cards at one time and is used to "
     "store cards that are not needed at the time. You may also move the top card of a column in the playing "
     "field from one column to another."},
    {"Each time a column is populated with a Trip or Run the column will be cleared automatically. For each "
     "Trip you create, you will be awarded {tripValue} points while each  Run awards {runValue} points. If "
     "the Run you create also happens to be a flush, you are awarded an additional {flushValue} points. All "
     "these points are awarded during game play, not at the end of the round."},
    {"If you manage to clear the deck you are awarded a bonus of {deckValue} points at the end of the round. "
     "If you clear the deck, but still have cards remaining in the storage area or the playing field, "
     "-{penaltyValue} will be deducted from your score for each remaining card."},
    {"If during game play you feel that you have no more moves remaining, click on the 'Take Score' button to "
     "end the round. You will be awarded {timeBonus} points for each unused second remaining in the round."},
    {"This game moves very quickly. While it is important to clear the deck, don't overlook the value of the "
     "straight flush. It can really pay off! "},
    {"Good luck and have fun!"},
};

}  // namespace

const RulesText frmTreyshift::kRules{31, kParagraphs};
