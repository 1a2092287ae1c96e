#include "games/games.h"

#include "games/blackrush/blackrush.h"
#include "games/duopick/duopick.h"
#include "games/fivestack/fivestack.h"
#include "games/handgrid/handgrid.h"
#include "games/spirehold/spirehold.h"
#include "games/sumfall/sumfall.h"
#include "games/treyshift/treyshift.h"

namespace {

template <class Window>
std::unique_ptr<GameWindow> Make(modCommon& common) {
  return std::make_unique<Window>(common);
}

}  // namespace

std::vector<GameEntry> AllGames() {
  return {
      {"cmdSumfall", "&Sumfall!", "Sumfall!",
       "Select free cards that add up to the goal, tier by tier, until the field is cleared.",
       Make<frmSumfall>},
      {"cmdFivestack", "&Fivestack ", "Fivestack!",
       "Fill five columns up to 21 each: the nearer all five come to it, the more they pay.",
       Make<frmFivestack>},
      {"cmdBlackrush", "&Blackrush", "Blackrush!",
       "Play a deck onto four columns and make one 21 after the other, quickly.", Make<frmBlackrush>},
      {"cmdDuopick", "D&uopick", "Duopick!",
       "Take cards two by two, as pairs or neighbours, until the top row is gone.", Make<frmDuopick>},
      {"cmdSpirehold", "&Spirehold", "Spirehold!",
       "Take three towers down, one rank up or down at a time, in runs as long as you can.",
       Make<frmSpirehold>},
      {"cmdHandgrid", "&Handgrid", "Handgrid!",
       "Lay 25 cards so that the rows and columns make the best poker hands.", Make<frmHandgrid>},
      {"cmdTreyshift", "Trey&shift", "Treyshift!",
       "Build columns of three cards that are trips or runs, flushes if you can.", Make<frmTreyshift>},
  };
}
