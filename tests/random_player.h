// A player who clicks anywhere, whatever stands before him: boxes, dialogs, menus, the board. A game says how
// its board is played, and what must be true between two commands.
//
// CARDHAVEN_DEEDS names a file, less its ending: what is done is written to .console there, and to .answers
// what the console says, for other builds of it to do the same (tests/web/players.test.mjs).
#pragma once

#include <chrono>
#include <cstdlib>
#include <iostream>

#include "record/recorder.h"
#include "record/replay.h"
#include "tests/board_player.h"
#include "tests/driver.h"
#include "window/player.h"

class RandomPlayer {
 public:
  // `button` opens the game in the selector.
  RandomPlayer(const std::filesystem::path& folder, std::string button, unsigned seed)
      : chance(seed), button_(std::move(button)), suite_(console_.platform, {folder}, AllGames()) {
    console_.platform.random.Seed(seed);
    if (writesDown) WriteHead(folder, seed);
    recorder_.Attach(suite_.common);
    recorder_.onGameEnd = [this](const std::string& text, const GameResult& result) { Verify(text, result); };
    suite_.Start();
  }
  virtual ~RandomPlayer() = default;

  // Goes on until that many commands have been obeyed, and tells how it went.
  void Play(int commands) {
    const auto start = std::chrono::steady_clock::now();
    left_ = commands;
    console_.Run();
    if (writesDown) answers_ << out_.str();
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start;
    std::cout << commands << " commands in " << passed.count() << " s: " << games << " games, " << rounds
              << " moments between rounds, " << dialogs << " commands in dialogs, " << overflows
              << " overflows, " << verified << " records\n";
    EXPECT_GT(verified, 3);
    EXPECT_FALSE(Contains(end, "* end")) << end;
    EXPECT_GT(games, 50);
  }

  // Where all is written down, nobody meddles.
  const bool writesDown = std::getenv("CARDHAVEN_DEEDS") != nullptr;
  int games = 0, rounds = 0, overflows = 0, dialogs = 0, verified = 0;
  std::string end;  // what the last command led to

 protected:
  // A command for the board of a game in progress, "click frmX.y".
  virtual std::string AtTheTable(GameWindow& game) = 0;
  // What must be true while no handler is under way.
  virtual void Check(GameWindow& game) = 0;

  // True for every game: nothing is left of a count, the clock runs when a game does, the captions agree.
  void CheckFrame(const GameWindow& game) {
    const modCommon& common = suite_.common;
    ASSERT_FALSE(game.standing.IsBusy());
    if (!game.standing.InGame()) {
      ASSERT_TRUE(game.frmSplash.Visible);
      ASSERT_FALSE(game.Timer1.Enabled || game.lblScoring.Visible);
      ASSERT_TRUE(game.standing.IsPaused() || game.cmdPlay.Enabled);
      return;
    }
    ASSERT_FALSE(game.frmSplash.Visible);
    const bool minimised = game.WindowState == window_state::kMinimised;  // may stop the clock
    ASSERT_TRUE(minimised || game.Timer1.Enabled != game.standing.IsPaused());
    ASSERT_EQ(game.cmdPlay.Enabled, !game.standing.IsPaused());
    ASSERT_EQ(game.lblCurrentScore.Caption, FormatNumber(common.CurrentScore));
    ASSERT_GE(game.clock.ElapsedSeconds, 0);
    ASSERT_LE(game.clock.ElapsedSeconds, game.clock.TimeLimit);
  }

  // The picture that a card's face has; 0 for no card.
  static int FaceOf(std::string_view code) {
    if (code.empty()) return 0;
    return kFirstFace - 1 + CardValue(code) +
           13 * static_cast<int>(std::string_view("SHCD").find(code.back()));
  }
  template <class T>
  T Pick(const std::vector<T>& from) {
    return from[chance.Draw(static_cast<int>(from.size()))];
  }

  Chance chance;
  // In every second window a player may lay cards and scores as he likes, which no record can hold.
  bool meddles = false;

 private:
  // Now and then: a record holds all games of its window.
  void Verify(const std::string& text, const GameResult& result) {
    if (meddles || games % 15 != 0 || text.empty()) return;  // or it is too long
    ++verified;
    const record::Verdict verdict = record::Replay(text, "random", AllGames());
    ASSERT_EQ(verdict.kind, record::Verdict::Kind::Holds) << verdict.Text();
    ASSERT_EQ(verdict.result, result);
  }

  // What another console needs to begin with, in comments.
  void WriteHead(const std::filesystem::path& folder, unsigned seed) {
    const std::string deeds = std::getenv("CARDHAVEN_DEEDS");
    deeds_.open(deeds + ".console");
    answers_.open(deeds + ".answers");
    deeds_ << "# seed " << seed << "\n# folder " << folder.native() << "\n";
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      std::ifstream file(entry.path(), std::ios::binary);
      const std::string text{std::istreambuf_iterator<char>(file), {}};
      deeds_ << "# file " << nlohmann::json{entry.path().native(), text}.dump() << "\n";
    }
  }

  std::optional<std::string> Next() {
    const bool traces = writesDown && std::exchange(isFirst_, false);
    const std::optional<std::string> command = traces ? "trace on" : Choose();
    if (command && writesDown) deeds_ << *command << "\n";
    return command;
  }

  std::optional<std::string> Choose() {
    const std::string said = out_.str();
    out_.str("");
    if (writesDown) answers_ << said;
    if (!said.starts_with("error")) --left_;
    if (Contains(said, "* end") || left_ < 0 || ::testing::Test::HasFatalFailure()) {
      end = said;
      return std::nullopt;
    }
    if (Contains(said, "Overflow")) ++overflows;
    const Platform& platform = console_.platform;
    if (const MessageBox* box = platform.StandingBox())
      return "answer \"" + std::string(AnswerName(Pick(AnswersOf(box->buttons)))) + "\"";
    if (const Form* modal = platform.ModalForm()) return InDialog(*modal);
    if (!suite_.common.window) {
      meddles = !meddles && !writesDown;
      return "click frmSelect." + button_;
    }
    GameWindow& game = *suite_.common.window;
    CheckFrame(game);
    Check(game);
    return InWindow(game);
  }

  std::string InDialog(const Form& dialog) {
    const std::string name(dialog.name);
    if (chance.Percent(10)) return "close " + name;
    if (name == "frmHiScoreName" && chance.Percent(50))
      return "type frmHiScoreName.lblPlayerName \"Bob, or so\"";
    ++dialogs;
    std::vector<std::string> ways;
    for (const Control* control : dialog.Controls()) {
      if (control->kind == Control::Kind::CommandButton || control->kind == Control::Kind::CheckBox ||
          control->kind == Control::Kind::OptionButton)
        ways.push_back("click " + control->FullName());
      if (control->kind == Control::Kind::TextBox && name != "frmRules")
        ways.push_back("type " + control->FullName() + " \"" + Pick(kTyped) + "\"");
    }
    return Pick(ways);
  }

  // Menu entries that lead to no other menu, by what they do least: nothing is spared.
  std::string AnyEntry(const GameWindow& game) {
    std::vector<std::string> entries;
    for (const Control* control : game.Controls())
      if (control->kind == Control::Kind::Menu && static_cast<const Menu*>(control)->OnClick)
        entries.push_back("click " + control->FullName());
    return Pick(entries);
  }

  std::string InWindow(GameWindow& game) {
    const std::string window(game.name);
    const std::string play = "click " + game.cmdPlay.FullName(), pause = "click " + game.cmdPause.FullName();
    if (!game.standing.InGame()) {
      if (game.standing.IsPaused()) return "click " + game.mnuPause.FullName();
      if (game.standing.InputIsDead()) return "advance 250";  // the selector ends it
      if (chance.Percent(25)) {
        ++games;
        return play;
      }
      return chance.Percent(25) ? "click " + game.mnuCustom.FullName() : AnyEntry(game);
    }
    if (game.standing.IsPaused() && chance.Percent(70)) return pause;
    const int what = chance.Draw(1000);
    if (what < 10) return pause;
    if (what < 14) return AnyEntry(game);
    if (what < 16) return play;
    if (what < 18) return "resize " + window + " " + std::to_string(6000 + chance.Draw(9000)) + " 9000";
    if (what < 20) return "state " + window + " " + std::to_string(chance.Draw(3));
    if (what < 22) return "close " + window;
    if (what < 60) {
      ++rounds;
      return "advance " + std::to_string(chance.Draw(9000));
    }
    return AtTheTable(game);
  }

  const std::vector<std::string> kTyped{
      "0",     "1",   "1000",  "1001", "32767", "900000", "900001",
      "-3",    "abc", "12abc", "",     "0.5",   "1e9",    "999999999999999999999",
      "20000", "100", "1",     "26",   "45",    "-20001"};

  const std::string button_;
  int left_ = 0;
  std::ofstream deeds_, answers_;
  bool isFirst_ = true;
  LiveInput input_{[this] { return Next(); }};
  std::istream in_{&input_};
  std::ostringstream out_;
  ConsoleFrontEnd console_{{}, in_, out_};
  Recorder recorder_{console_.platform, "random"};

 protected:
  Suite suite_;
};

// One who plays as somebody plays that game's boards (tests/<game>_board_player.h).
template <class Window, class Player>
class PlayerAt : public RandomPlayer {
 public:
  using RandomPlayer::RandomPlayer;

 protected:
  // The control that makes a move, and what is done now and then instead; nothing mostly.
  virtual const Control& ControlFor(Window& game, const typename Player::Move& move) = 0;
  virtual std::string Instead(Window&) { return ""; }
  // What must be true of a game in progress, and where there is none.
  virtual void CheckBoard(Window& game, bool paused) = 0;
  virtual void CheckNoGame(Window&) {}

 private:
  std::string AtTheTable(GameWindow& window) final {
    auto& game = static_cast<Window&>(window);
    const std::string other = Instead(game);
    return other.empty() ? "click " + ControlFor(game, Player::Choose(game.board, chance)).FullName() : other;
  }
  void Check(GameWindow& window) final {
    auto& game = static_cast<Window&>(window);
    if (game.standing.InGame())
      CheckBoard(game, game.standing.IsPaused());
    else
      CheckNoGame(game);
  }
};
