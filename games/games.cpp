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
      {"cmdSumfall", "&Sumfall!", "Sumfall!", Make<frmSumfall>},
      {"cmdFivestack", "&Fivestack ", "Fivestack!", Make<frmFivestack>},
      {"cmdBlackrush", "&Blackrush", "Blackrush!", Make<frmBlackrush>},
      {"cmdDuopick", "D&uopick", "Duopick!", Make<frmDuopick>},
      {"cmdSpirehold", "&Spirehold", "Spirehold!", Make<frmSpirehold>},
      {"cmdHandgrid", "&Handgrid", "Handgrid!", Make<frmHandgrid>},
      {"cmdTreyshift", "Trey&shift", "Treyshift!", Make<frmTreyshift>},
  };
}
