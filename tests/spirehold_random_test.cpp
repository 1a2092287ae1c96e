// A player who clicks anywhere: whatever is done, the table stays sound, and nothing hangs or crashes.
#include <gtest/gtest.h>

#include <chrono>
#include <iostream>
#include <random>

#include "tests/spirehold_table.h"
#include "window/player.h"
#include "window/text.h"

namespace {

class RandomPlayer {
 public:
  explicit RandomPlayer(const std::filesystem::path& folder)
      : console_({}, in_, out_), suite_(console_.platform, {folder}, AllGames()) {
    console_.platform.random.Seed(4);
    suite_.Start();
  }

  // Goes on until that many commands have been obeyed.
  void Play(int commands) {
    left_ = commands;
    console_.Run();
  }

  int games = 0, overflows = 0, dialogs = 0, runs = 0;
  std::string end;

 private:
  std::optional<std::string> Next() {
    const std::string said = out_.str();
    out_.str("");
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
    if (!suite_.common.window) return "click frmSelect.cmdSpirehold";
    const auto& game = static_cast<const frmSpirehold&>(*suite_.common.window);
    Check(game);
    return AtTheTable(game);
  }

  std::string InDialog(const Form& dialog) {
    const std::string name = std::string(dialog.name) + ".";
    if (Chance(10)) return "close " + std::string(dialog.name);
    if (name == "frmHiScoreName." && Chance(50)) return "type frmHiScoreName.lblPlayerName \"Bob, or so\"";
    std::vector<std::string> ways;
    for (const Control* control : dialog.Controls()) {
      if (control->kind == Control::Kind::CommandButton || control->kind == Control::Kind::CheckBox)
        ways.push_back("click " + control->FullName());
      if (control->kind == Control::Kind::TextBox && name == "frmSpireholdCustom.")
        ways.push_back("type " + control->FullName() + " \"" + Pick(kTyped) + "\"");
    }
    if (name == "frmSpireholdCustom.") ++dialogs;
    return Pick(ways);
  }

  std::string AtTheTable(const frmSpirehold& game) {
    if (!suite_.common.GameInProgress) {
      if (Chance(75)) return "click frmSpirehold." + Pick(kIdle);
      ++games;
      return "click frmSpirehold.cmdPlay";
    }
    if (Chance(4)) return "advance " + std::to_string(Draw(9000));
    if (Chance(1)) return Pick(kSeldom);
    if (game.StackIndex > 52 && !game.IsPaused() && Chance(20)) return "click frmSpirehold.cmdTakeScore";
    if (Chance(2) || game.IsPaused()) return "click frmSpirehold.cmdPause";
    if (!Chance(15))
      for (int card = 0; card < modSpirehold::kCards; ++card) {
        const Image& image = game.UpCardImage(card);
        if (image.Visible && image.Enabled &&
            modSpirehold::IsNeighbour(CardValue(game.DeckCards[card]), game.UpCardValue)) {
          ++runs;
          return ClickOn(card);
        }
      }
    return Chance(40) ? "click frmSpirehold.CardStackPicture" : ClickOn(Draw(modSpirehold::kCards));
  }

  void Check(const frmSpirehold& game) {
    const modCommon& common = suite_.common;
    ASSERT_FALSE(common.TakingScore && common.GameInProgress);
    if (!common.GameInProgress) {
      ASSERT_TRUE(game.frmSplash.Visible && game.cmdPlay.Enabled && game.cmdExit.Enabled);
      ASSERT_FALSE(game.lblMessage.Visible || game.lblScoring.Visible || game.Timer1.Enabled);
      return;
    }
    ASSERT_EQ(game.lblCurrentScore.Caption, FormatNumber(common.CurrentScore));
    ASSERT_EQ(game.CardsRemaining, std::max(0ll, 52 - game.StackIndex));
    const bool paused = game.IsPaused();
    ASSERT_NE(game.Timer1.Enabled, paused);
    int towers = 0;
    for (int card = 0; card < modSpirehold::kCards; ++card) {
      const Image& image = game.UpCardImage(card);
      ASSERT_EQ(image.Visible, !paused && image.Picture != 0);
      towers += card < modSpirehold::kTowers && image.Picture == 0;
      if (card >= modSpirehold::kCovered) continue;
      const modSpirehold::Pair pair = modSpirehold::kCoveredBy[card];
      const bool covered =
          game.UpCardImage(pair.left).Picture != 0 || game.UpCardImage(pair.right).Picture != 0;
      ASSERT_EQ(image.Enabled, !covered) << card;
      const bool showsBack = image.Picture == common.ImageList2("BACK");
      ASSERT_TRUE(paused || covered == showsBack) << card;
    }
    ASSERT_EQ(game.TowersCompleted, towers);
  }

  int Draw(int below) { return std::uniform_int_distribution<int>(0, below - 1)(chance_); }
  bool Chance(int percent) { return Draw(100) < percent; }
  template <class T>
  T Pick(const std::vector<T>& from) {
    return from[Draw(static_cast<int>(from.size()))];
  }
  static std::string ClickOn(int card) {
    return "click frmSpirehold.UpCardImage(" + std::to_string(card) + ")";
  }

  const std::vector<std::string> kTyped{
      "0",     "1",   "1000",  "1001", "32767", "900000", "900001",
      "-3",    "abc", "12abc", "",     "0.5",   "1e9",    "999999999999999999999",
      "20000", "100", "1"};
  const std::vector<std::string> kIdle{"mnuCustom", "mnuCustom", "mnuClearHighRun", "mnu30",   "mnu90",
                                       "mnuSounds", "mnuHot",    "mnuMusic",        "mnuView", "cmdExit"};
  const std::vector<std::string> kSeldom{"click frmSpirehold.cmdPlay",
                                         "click frmSpirehold.mnuPlay",
                                         "click frmSpirehold.cmdTakeScore",
                                         "click frmSpirehold.mnuTakeScore",
                                         "click frmSpirehold.mnuRules",
                                         "click frmSpirehold.mnuMagic",
                                         "click frmSpirehold.mnuPalm",
                                         "click frmSpirehold.mnuMusic",
                                         "click frmSpirehold.UpCardPicture",
                                         "resize frmSpirehold 12000 9000",
                                         "state frmSpirehold 2",
                                         "state frmSpirehold 0",
                                         "close frmSpirehold"};

  std::mt19937 chance_{11};
  int left_ = 0;
  LiveInput input_{[this] { return Next(); }};
  std::istream in_{&input_};
  std::ostringstream out_;
  ConsoleFrontEnd console_;
  Suite suite_;
};

}  // namespace

TEST(SpireholdRandomPlayer, DoesNoHarm) {
  TestFolder folder;
  RandomPlayer player(folder.Path());
  const auto start = std::chrono::steady_clock::now();
  player.Play(200000);
  const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start;
  std::cout << "200000 commands in " << passed.count() << " s: " << player.games << " games, " << player.runs
            << " cards, " << player.dialogs << " commands in the dialog, " << player.overflows
            << " overflows\n";
  EXPECT_FALSE(Contains(player.end, "* end")) << player.end;
  EXPECT_GT(player.games, 100);
  EXPECT_GT(player.overflows, 0);
}
