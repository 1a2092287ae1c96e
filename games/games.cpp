#include "games/games.h"

#include "games/spirehold/spirehold.h"
#include "games/sumfall/sumfall.h"
#include "games/treyshift/treyshift.h"

std::vector<GameEntry> AllGames() {
  return {
      {"cmdSumfall", "&Sumfall!", "Sumfall!",
       [](modCommon& common) { return std::make_unique<frmSumfall>(common); }},
      {"cmdFivestack", "&Fivestack ", "Fivestack!", nullptr},
      {"cmdBlackrush", "&Blackrush", "Blackrush!", nullptr},
      {"cmdDuopick", "D&uopick", "Duopick!", nullptr},
      {"cmdSpirehold", "&Spirehold", "Spirehold!",
       [](modCommon& common) { return std::make_unique<frmSpirehold>(common); }},
      {"cmdHandgrid", "&Handgrid", "Handgrid!", nullptr},
      {"cmdTreyshift", "Trey&shift", "Treyshift!",
       [](modCommon& common) { return std::make_unique<frmTreyshift>(common); }},
  };
}
