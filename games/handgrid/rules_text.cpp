// What the rules window of Handgrid says.
#include "games/handgrid/handgrid.h"
#include "window/text.h"

namespace {

constexpr RulesParagraph kParagraphs[] = {
    {"Requirements: To run {title} you need Windows 95 or above and a mouse.  Recommended: Soundcard."},
    {"As with most games, the object of {title} is to attain the highest number of points possible. "
     "The game consists of three rounds, each lasting {limit} seconds. "
     "If you earn more than {#bonusScore} points in these rounds you are awarded an additional bonus round."},
    {"To earn points in this game you must create 10 poker hands by placing cards "
     "from the deck into the provided columns and rows. Once completed, each row "
     "and each column form a complete 5 card poker hand."},
    {"Once a card has been played it may not be moved, however, you are allowed to overwrite {overWrites} "
     "cards per round. You may not pass cards from the deck, each card off of the deck must be played "
     "before another card is exposed."},
    {"The hands are awarded points based on the following table:"},
    {"   One Pair = {pair}", 1},
    {"   Two Pair = {twoPair}", 1},
    {"   Three of a kind = {trips}", 1},
    {"   Straight = {straight}", 1},
    {"   Flush = {flush}", 1},
    {"   Full House = {fullHouse}", 1},
    {"   Four of a kind = {four}", 1},
    {"   Straight Flush = {straightFlush}", 1},
    {"   Royal Flush = {royalFlush}", 1},
    {"At the end of each round, the total value of all 10 hands is multiplied "
     "by the number of seconds remaing in the round. It is therefore essential to complete "
     "each round as quickly as possible! If time expires before all hands have been completed "
     "you forfeit the round (0 points)."},
    {"While each round is played, the current number of points earned is displayed at the bottom right of the "
     "game board. Remember...because your score is so dependent on the amount of time "
     "remaining, you must be quick!"},
    {"Good luck and have fun!"},
};

}  // namespace

const RulesText frmHandgrid::kRules{31, kParagraphs};
