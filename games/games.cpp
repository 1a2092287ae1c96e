#include "games/games.h"

#include "games/blackrush/blackrush.h"
#include "games/spirehold/spirehold.h"
#include "games/sumfall/sumfall.h"

std::vector<GameEntry> AllGames() {
  return {
      {"cmdSumfall", "&Sumfall!", "Sumfall!",
       [](modCommon& common) { return std::make_unique<frmSumfall>(common); }},
      {"cmdFivestack", "&Fivestack ", "Fivestack!", nullptr},
      {"cmdBlackrush", "&Blackrush", "Blackrush!",
       [](modCommon& common) { return std::make_unique<frmBlackrush>(common); }},
      {"cmdDuopick", "D&uopick", "Duopick!", nullptr},
      {"cmdSpirehold", "&Spirehold", "Spirehold!",
       [](modCommon& common) { return std::make_unique<frmSpirehold>(common); }},
      {"cmdHandgrid", "&Handgrid", "Handgrid!", nullptr},
      {"cmdTreyshift", "Trey&shift", "Treyshift!", nullptr},
  };
}
