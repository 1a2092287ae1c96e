#include "games/games.h"

#include "games/sumfall/sumfall.h"

std::vector<GameEntry> AllGames() {
  return {
      {"cmdSumfall", "&Sumfall!", "Sumfall!",
       [](modCommon& common) { return std::make_unique<frmSumfall>(common); }},
      {"cmdFivestack", "&Fivestack ", "Fivestack!", nullptr},
      {"cmdBlackrush", "&Blackrush", "Blackrush!", nullptr},
      {"cmdDuopick", "D&uopick", "Duopick!", nullptr},
      {"cmdSpirehold", "&Spirehold", "Spirehold!", nullptr},
      {"cmdHandgrid", "&Handgrid", "Handgrid!", nullptr},
      {"cmdTreyshift", "Trey&shift", "Treyshift!", nullptr},
  };
}
