// Plays each game well, at a human pace and with comments, until one comes into its bonus round; and writes
// down what was played.
//
//   make-demonstrations FOLDER [SEEDS [GAME...]]
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <random>
#include <sstream>
#include <streambuf>

#include "games/games.h"
#include "record/recorder.h"
#include "record/replay.h"
#include "tools/make-demonstrations/players.h"
#include "window/console/console.h"

namespace {

namespace fs = std::filesystem;

// A folder for one game's files.
class OwnFolder {
 public:
  OwnFolder() : path_(fs::temp_directory_path() / ("demonstration-" + Disk().Suffix())) {
    fs::create_directory(path_);
  }
  ~OwnFolder() {
    std::error_code error;
    fs::remove_all(path_, error);
  }
  const fs::path& Path() const { return path_; }

 private:
  fs::path path_;
};

struct Demonstration {
  std::string record;
  GameResult result;
};

class Demonstrator : private std::streambuf {
 public:
  Demonstrator(const GameEntry& game, unsigned seed)
      : game_(game),
        player_(PlayerOf(std::string(game.Name()))),
        chance_(seed),
        in_(this),
        console_({}, in_, out_),
        recorder_(console_.platform, CARDHAVEN_VERSION) {
    console_.platform.random.Seed(seed);
    suite_ = std::make_unique<Suite>(console_.platform, SuiteOptions{folder_.Path()}, AllGames());
    recorder_.Attach(suite_->common);
    recorder_.onGameEnd = [this](const std::string& record, const GameResult& result) {
      done_ = {record, result};
      over_ = true;
    };
  }

  Demonstration Play() {
    suite_->Start();
    console_.Run();
    return done_;
  }

 private:
  // A blank line between two commands: a person looks, and thinks.
  std::string Next() {
    GameWindow* const window = suite_->common.window;
    if (!window) return "click frmSelect." + std::string(game_.button);
    if (console_.platform.StandingBox()) return "answer \"Yes\"";
    if (!begun_) {
      begun_ = true;
      return "advance 1500";
    }
    if (const auto guide = MakeGuide(*window); !wide_ && guide->Breadth() > window->Width) {
      wide_ = true;  // all of the board is to be seen
      return "resize " + std::string(window->name) + " " + std::to_string(guide->Breadth()) + " " +
             std::to_string(window->Height);
    }
    if (!window->standing.InGame()) return "click " + window->cmdPlay.FullName();
    if (!window->standing.IsPlaying() || window->standing.InputIsDead()) {
      clicks_.clear();
      return "advance 250";
    }
    if (clicks_.empty() && !thought_) {
      thought_ = true;
      return "advance " + std::to_string(650 + Draw(500));
    }
    thought_ = false;
    if (clicks_.empty()) {
      Advice advice = player_->Next(*window);
      clicks_ = {advice.clicks.rbegin(), advice.clicks.rend()};
      constexpr int kTold = 2;  // of each kind
      if (!advice.comment.empty() && told_[advice.kind]++ < kTold) recorder_.Say(advice.comment);
    } else if (!struck_) {
      struck_ = true;
      return "advance " + std::to_string(280 + Draw(220));
    }
    struck_ = false;
    const std::string click = "click " + clicks_.back()->FullName();
    clicks_.pop_back();
    return click;
  }

  int_type underflow() override {
    constexpr int kMostLines = 4000;
    if (over_ || ++lines_ > kMostLines) return traits_type::eof();
    line_ = Next() + "\n";
    setg(line_.data(), line_.data(), line_.data() + line_.size());
    return traits_type::to_int_type(line_[0]);
  }
  int Draw(int below) { return static_cast<int>(chance_() % static_cast<unsigned>(below)); }

  const GameEntry& game_;
  std::unique_ptr<GoodPlayer> player_;
  std::mt19937 chance_;
  OwnFolder folder_;
  std::istream in_;
  std::ostringstream out_;
  ConsoleFrontEnd console_;
  Recorder recorder_;
  std::unique_ptr<Suite> suite_;
  std::vector<const Control*> clicks_;  // the next one last
  std::map<std::string, int> told_;
  std::string line_;
  int lines_ = 0;
  bool begun_ = false, wide_ = false, thought_ = false, struck_ = false, over_ = false;
  Demonstration done_;
};

// The best of so many games that comes into the bonus round.
bool Make(const GameEntry& game, unsigned seeds, const fs::path& file) {
  Demonstration best;
  long long most = 0;
  for (unsigned seed = 1; seed <= seeds; ++seed) {
    const Demonstration played = Demonstrator(game, seed).Play();
    most = std::max(most, played.result.score);
    const bool isBetter = best.record.empty() || played.result.score > best.result.score;
    if (!played.record.empty() && played.result.rounds > game.rounds && isBetter) best = played;
  }
  std::cout << game.Name() << ": " << best.result.score << " points, " << best.result.rounds
            << " rounds (of all " << most << "), " << best.record.size() << " bytes" << std::endl;
  if (best.record.empty()) return false;
  std::ofstream(file, std::ios::binary) << best.record;
  record::Contents contents;
  const auto verdict = LookThrough(best.record, CARDHAVEN_VERSION, AllGames(), contents);
  std::cout << "  " << verdict.Text() << ", " << contents.length / 1000 << " s, " << contents.comments
            << " comments" << std::endl;
  return verdict.kind == record::Verdict::Kind::Holds;
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  if (arguments.empty()) {
    std::cerr << "Usage: make-demonstrations FOLDER [SEEDS [GAME...]]\n";
    return 2;
  }
  const int asked = arguments.size() > 1 ? std::atoi(arguments[1].c_str()) : 400;
  bool all = true;
  for (const GameEntry& game : AllGames()) {
    const std::string name(game.Name());
    const bool wanted =
        arguments.size() < 3 || std::find(arguments.begin() + 2, arguments.end(), name) != arguments.end();
    const unsigned seeds =
        static_cast<unsigned>(name == "Treyshift" ? std::min(asked, 30) : asked);  // plans for long
    if (wanted) all = Make(game, seeds, fs::path(arguments[0]) / (name + ".record")) && all;
  }
  return all ? EXIT_SUCCESS : EXIT_FAILURE;
}
