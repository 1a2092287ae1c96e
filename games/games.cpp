#include "games/games.h"

#include "games/blackrush/blackrush.h"
#include "games/duopick/duopick.h"
#include "games/fivestack/fivestack.h"
#include "games/handgrid/handgrid.h"
#include "games/spirehold/spirehold.h"
#include "games/sumfall/dialogs.h"
#include "games/treyshift/treyshift.h"
#include "suite/guide.h"

namespace {

template <class Window>
std::unique_ptr<Guide> Try(Form& form) {
  auto* window = dynamic_cast<Window*>(&form);
  return window ? GuideTo(*window) : nullptr;
}

// `Window` is the game's; a dialog of its own may have a guide, too.
template <class Window, class Dialog = Window>
GameEntry Entry(const char* button, const char* caption, const char* title, const char* what,
                int rounds = 2) {
  return {button,
          caption,
          title,
          what,
          [](modCommon& common) { return std::make_unique<Window>(common); },
          rounds,
          [](Form& form) {
            auto guide = Try<Window>(form);
            return guide ? std::move(guide) : Try<Dialog>(form);
          }};
}

}  // namespace

std::vector<GameEntry> AllGames() {
  return {
      Entry<frmSumfall, SavedGameDialog>(
          "cmdSumfall", "&Sumfall!", "Sumfall!",
          "Select free cards that add up to the goal, tier by tier, until the field is cleared."),
      Entry<frmFivestack>(
          "cmdFivestack", "&Fivestack ", "Fivestack!",
          "Fill five columns up to 21 each: the nearer all five come to it, the more they pay.", 3),
      Entry<frmBlackrush>("cmdBlackrush", "&Blackrush", "Blackrush!",
                          "Play a deck onto four columns and make one 21 after the other, quickly.", 3),
      Entry<frmDuopick>("cmdDuopick", "D&uopick", "Duopick!",
                        "Take cards two by two, as pairs or neighbours, until the top row is gone."),
      Entry<frmSpirehold>(
          "cmdSpirehold", "&Spirehold", "Spirehold!",
          "Take three towers down, one rank up or down at a time, in runs as long as you can."),
      Entry<frmHandgrid>("cmdHandgrid", "&Handgrid", "Handgrid!",
                         "Lay 25 cards so that the rows and columns make the best poker hands.", 3),
      Entry<frmTreyshift>("cmdTreyshift", "Trey&shift", "Treyshift!",
                          "Build columns of three cards that are trips or runs, flushes if you can."),
  };
}

std::vector<KnownGame> KnownGames() {
  std::vector<KnownGame> known;
  for (const GameEntry& entry : AllGames()) known.push_back({std::string(entry.Name()), entry.rounds});
  return known;
}

std::unique_ptr<Guide> MakeGuide(Form& form) {
  for (const GameEntry& game : AllGames())
    if (auto guide = game.guide(form)) return guide;
  return SharedGuide(form);
}
