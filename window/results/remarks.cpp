#include "window/results/remarks.h"

#include <algorithm>
#include <cmath>

#include "history/comparison.h"
#include "history/deal_number.h"
#include "window/results/days.h"
#include "window/system/disk.h"
#include "window/text.h"

namespace {

std::vector<PlayedGame> GamesWith(const std::filesystem::path& history, const std::string& text) {
  std::vector<PlayedGame> games;
  for (const std::string& line : Disk().LinesWith(history, text))
    if (auto game = ParseGame(line)) games.push_back(std::move(*game));
  return games;
}

// Which deal was played here, or is to be.
std::string DealText(const GameFacts& facts, const std::filesystem::path& history) {
  const std::string number = "Deal " + std::to_string(facts.last.empty() ? facts.next : facts.deal);
  if (!facts.day.empty()) {
    const std::string name = "Deal of the day, " + results::LongDay(results::ReadDay(facts.day));
    if (!facts.last.empty()) return name + (facts.repeated ? ": practice, in no table" : "");
    if (ResultOfDay(facts.day, facts.name, history))
      return name + ", played already:\nfrom here on it is practice, and enters no table";
    return name + ":\nthe first game counts";
  }
  if (facts.last.empty()) return facts.next == 0 ? "" : number + ": repeated deals enter no table";
  if (facts.deal == 0) return "";
  return number + (facts.repeated ? ", repeated: in no table" : "");
}

}  // namespace

std::string RemarkOn(const GameFacts& facts, const std::filesystem::path& history) {
  std::string remark;
  if (const auto last = ParseGame(facts.last))
    remark = HowItCompares(*last, GamesWith(history, SettingsField(*last)));
  const std::string deal = DealText(facts, history);
  if (!remark.empty() && !deal.empty()) remark += "\n";
  return remark + deal;
}

std::string ResultToCopy(const GameFacts& facts, const std::vector<KnownGame>& known) {
  const auto last = ParseGame(facts.last);
  if (!last || !last->PlayedOut()) return "";
  static constexpr const char* kBars[] = {"\u2581", "\u2582", "\u2583", "\u2584",
                                          "\u2585", "\u2586", "\u2587", "\u2588"};
  constexpr char kNothing[] = "\u00b7", kStar[] = "\u2605";
  const auto game = std::ranges::find(known, facts.name, &KnownGame::name);
  const size_t rounds = game == known.end() ? facts.payments.size() : static_cast<size_t>(game->rounds);
  int most = 0;
  for (const int payment : facts.payments) most = std::max(most, payment);
  std::string signs;
  for (size_t round = 0; round < facts.payments.size(); ++round) {
    const int payment = facts.payments[round];
    if (round == rounds) signs += kStar;
    const double share = most > 0 ? 1.0 * payment / most : 0;
    signs += payment <= 0 ? kNothing : kBars[std::lround(share * (std::size(kBars) - 1))];
  }
  const std::string cards =
      !facts.day.empty() ? "deal of the day, " + results::LongDay(results::ReadDay(facts.day))
      : facts.deal != 0
          ? "deal " + std::to_string(facts.deal) + ", " + results::LongDay(results::ReadDay(last->ended))
          : results::LongDay(results::ReadDay(last->ended));
  return "Card Haven, " + facts.name + ", " + cards + "\n" + FormatNumber(last->score) + " points  " + signs +
         (facts.repeated ? "  (practice)" : "") + "\n";
}

std::optional<int> ResultOfDay(const std::string& day, const std::string& game,
                               const std::filesystem::path& history) {
  const int deal = DealOfTheDay(day, game);
  for (const PlayedGame& played : GamesWith(history, "," + std::to_string(deal) + ","))
    if (played.game == game && played.deal == deal) return played.score;
  return std::nullopt;
}
