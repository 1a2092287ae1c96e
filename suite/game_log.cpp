#include "suite/game_log.h"

#include <algorithm>
#include <utility>

#include "suite/game_window.h"
#include "window/moments.h"

void GameLog::Begin() {
  End();  // of one that came to no table
  game_ = PlayedGame{.game = std::string(window_.plan.Name()),
                     .limit = static_cast<int>(window_.clock.TimeLimit),
                     .goal = window_.goal ? std::optional(static_cast<int>(*window_.goal)) : std::nullopt,
                     .custom = window_.common.CustomScoringInUse};
  givenUp_.reset();
  timedOut_ = 0;
}

void GameLog::Second(bool last) {
  if (!game_) return;
  ++game_->seconds;
  if (last) timedOut_ = window_.common.deal.Decks();
}

void GameLog::End(std::optional<size_t> place) {
  if (!game_) return;
  game_->place = place ? static_cast<int>(*place) + 1 : 0;
  const bool timedOut = timedOut_ > 0 && timedOut_ == window_.common.deal.Decks();
  Write(timedOut ? GameEnd::Time : GameEnd::Played, static_cast<int>(window_.common.CurrentScore));
}

void GameLog::Close(std::optional<int> score) {
  if (game_) Write(GameEnd::Closed, score.value_or(static_cast<int>(window_.common.CurrentScore)));
}

bool GameLog::WasPlayed(int deal) {
  modCommon& common = window_.common;
  const std::string field = "," + std::to_string(deal) + ",";
  const auto lines = common.platform.border->LinesWith(common.files.PathOf(kHistoryFile), field);
  return std::ranges::any_of(lines, [&](const std::string& line) {
    const auto game = ParseGame(line);
    return game && game->deal == deal && game->game == window_.plan.Name();
  });
}

DealName GameLog::PlayedDeal() const {
  if (!window_.standing.CanStart()) return window_.common.deal.Played();
  return last_ ? DealName{last_->game.deal, last_->repeated} : DealName{};
}

void GameLog::Write(GameEnd end, int score) {
  modCommon& common = window_.common;
  PlayedGame game = *std::exchange(game_, std::nullopt);
  game.ended = IsoText(common.platform.Now());
  game.rounds = common.deal.Decks();
  game.score = givenUp_.value_or(score);
  game.deal = common.deal.Played().number;
  game.record = common.record;
  game.end = givenUp_ ? GameEnd::GivenUp : end;
  last_ = EndedGame{game, common.deal.Name().repeated, common.deal.Payments(game.score)};
  const auto path = common.files.PathOf(kHistoryFile);
  const Ledger history{std::string(kHistoryHeader) + "\r\n", kLargestHistory};
  if (!common.files.Append(path, FormatGame(game) + "\r\n", history) && common.complain)
    common.complain("the game's line can't be written to " + path.string());
}
