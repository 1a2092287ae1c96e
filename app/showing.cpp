#include "app/showing.h"

#include "games/games.h"
#include "window/text.h"

namespace {

using record::Moment;

class Showing : public record::Viewer {
 public:
  explicit Showing(Watching& watching) : watching_(watching) {}
  void Passes(const Moment& moment) override {
    watching_.Pass(moment.passes, moment.at, moment.step, moment.isDeed);
  }
  void Says(const std::string& comment) override { watching_.Say(comment); }
  void Comes(const Event& event) override { watching_.Comes(event); }
  void Ended() override { watching_.AtEnd(); }

 private:
  Watching& watching_;
};

}  // namespace

Recording Describe(const record::Contents& contents, const GameResult& result) {
  Recording recording;
  recording.length = contents.length;
  recording.hasComments = contents.comments > 0;
  recording.title = result.game + ", " + FormatNumber(result.score) + " points";
  const bool hasMany = !contents.rounds.empty() && contents.rounds.back().game > 1;
  for (const record::Round& round : contents.rounds)
    recording.rounds.push_back({(hasMany ? "Game " + std::to_string(round.game) + ", round " : "Round ") +
                                    std::to_string(round.number),
                                round.step, round.at});
  return recording;
}

void Show(Watching& watching, std::string_view text, Platform& platform) {
  Showing showing(watching);
  ReplayBefore(showing, text, CARDHAVEN_VERSION, AllGames(), &platform);
}
