// The statistics of the page: a program of its own, which is fetched when somebody asks for them. It knows no
// game and never waits.
#include <optional>

#include "window/system/web/host.h"
#include "window/web/page.h"
#include "window/web/statistics.h"
#include "window/web/words.h"

namespace {

std::optional<StatisticsPage> statistics;

//   open GAME NAME ROUNDS...          the table, of the history as it is now; "-" for no game. All games and
//                                     how many rounds they have follow.
//   charts ROW WIDTH HEIGHT CONTRAST  pictures of a row of it
//   picture ROW CONTRAST              the same to be saved
//   table                             the table to be saved
void Tell(Json& json, std::string_view question) {
  const std::string_view what = WordOf(question);
  if (what == "open") {
    const std::string game(WordOf(question));
    std::vector<KnownGame> known;
    while (!question.empty()) {
      std::string name(WordOf(question));
      known.push_back({std::move(name), NumberOf(question)});
    }
    statistics.emplace("/card-haven", known, page::LocalTime());
    statistics->Table(json, game == "-" ? "" : game);
  } else if (what == "charts") {
    const auto row = static_cast<size_t>(NumberOf(question));
    const int width = NumberOf(question), height = NumberOf(question);
    statistics->Charts(json, row, width, height, NumberOf(question) != 0);
  } else if (what == "picture") {
    const auto row = static_cast<size_t>(NumberOf(question));
    statistics->Picture(json, row, NumberOf(question) != 0);
  } else if (what == "table") {
    json.Write(statistics->Text());
  }
}

}  // namespace

extern "C" __attribute__((export_name("ask"))) void Ask(int length) {
  const std::string question = host::Taken(length);
  Json json;
  Tell(json, question);
  page::Answer(json.Text().data(), json.Text().size());
}
