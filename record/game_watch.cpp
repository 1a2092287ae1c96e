#include "record/game_watch.h"

#include "suite/game_window.h"

namespace {

// What stands between a table's name and ".Txt".
std::string LimitOf(const GameWindow& window) {
  const std::string name = window.plan.tables.final.name, file = window.TableFile(name);
  const size_t begin = std::min(file.find(name) + name.size(), file.size());
  return file.substr(begin, file.rfind('.') - begin);
}

}  // namespace

std::optional<GameResult> GameWatch::Look(const modCommon& common) {
  const GameWindow* const window = common.window;
  const bool inGame = window && window->standing.InGame();
  if (!under_) {
    if (!inGame) told_ = false;
    if (!inGame || told_) return std::nullopt;
    under_ = true;
    entriesBefore_ = common.lastEntry.number;
    result_ = {};
    result_.game = window->name.substr(3);
    result_.limit = LimitOf(*window);
    result_.table = window->TableFile(window->plan.tables.final.name);
  }
  const bool asksTable = common.lastEntry.number != entriesBefore_;
  if (inGame) {
    if (!asksTable) result_.score = common.CurrentScore;
    result_.custom = common.CustomScoringInUse;
  }
  if (asksTable) {
    result_.score = common.lastEntry.score;
    result_.place = common.lastEntry.place ? static_cast<int>(*common.lastEntry.place) + 1 : 0;
  } else if (inGame || (window && common.platform.HandlersUnderWay() > 0)) {
    return std::nullopt;  // the handler may come to ask the table
  }
  result_.rounds = common.deal.Decks();
  result_.deal = common.deal.Played().number;
  under_ = false;
  told_ = inGame;
  return result_;
}
