// What is recorded brings a whole game back, and nothing else does.
#include <gtest/gtest.h>

#include <random>

#include "record/recorder.h"
#include "record/replay.h"
#include "tests/driver.h"
#include "window/moments.h"
#include "window/player.h"

namespace {

using record::Verdict;

constexpr char kProgram[] = "1.2.3";

// What the windows do, line by line.
class Told {
 public:
  Told() {
    script.Execute("trace on");
    out_.str("");
  }
  // From the game's window on.
  std::vector<std::string> Lines() const {
    const std::string all = out_.str();
    const size_t selector = all.find("* load frmSelect");
    return LinesOf(all.substr(std::min(all.find("* load frm", selector + 1), all.size())), "* ");
  }

 private:
  struct NoHands : Hands {
    void Advance(int) override {}
  } hands_;
  std::ostringstream out_;
  std::istringstream none_;
  std::ostringstream nowhere_;
  ConsoleFrontEnd console_{{}, none_, nowhere_};

 public:
  Script script{console_.platform, hands_, out_};
};

struct Played {
  std::vector<std::string> records;  // at each game's end
  std::vector<GameResult> results;
  std::vector<std::string> told;
};

// A line "@" calls `meanwhile`.
Played Play(const std::string& commands, std::optional<uint64_t> seed = 7,
            const std::function<void(modCommon&)>& meanwhile = {}) {
  TestFolder folder;
  std::istringstream lines(commands);
  modCommon* common = nullptr;
  LiveInput input([&]() -> std::optional<std::string> {
    for (std::string line; std::getline(lines, line); meanwhile(*common))
      if (line != "@") return line;
    return std::nullopt;
  });
  std::istream in(&input);
  std::ostringstream out;
  Told told;
  ConsoleFrontEnd console({}, in, out);
  console.platform.trace = &told.script;
  if (seed) console.platform.random.Seed(*seed);
  Recorder recorder(console.platform, kProgram);
  Played played;
  recorder.onGameEnd = [&](const std::string& text, const GameResult& result) {
    played.records.push_back(text);
    played.results.push_back(result);
  };
  Suite suite(console.platform, {folder.Path()}, AllGames());
  recorder.Attach(suite.common);
  common = &suite.common;
  suite.Start();
  console.Run();
  played.told = told.Lines();
  return played;
}

std::string WholeGame(const std::string& game) {
  std::ifstream in(std::filesystem::path(CARDHAVEN_SOURCE "/tests/scripts") / (game + "_whole_game.console"));
  return {std::istreambuf_iterator<char>(in), {}};
}

std::string VerdictOn(const std::string& text, const std::string& program = kProgram) {
  return record::Replay(text, program, AllGames()).Text();
}

// The line that holds `part`, with what stands on it instead; "" takes it away.
std::string With(std::string text, const std::string& part, const std::string& instead) {
  const size_t at = text.find(part);
  EXPECT_NE(at, std::string::npos) << part;
  const size_t begin = text.rfind('\n', at) + 1, end = text.find('\n', at) + 1;
  return text.replace(begin, end - begin, instead);
}

// Three games of Spirehold in one window: one ended by the player, one by the clock, one that goes with its
// window; with dialogs, a pause, message boxes, custom scoring, and another game before them.
std::string ThreeGames() {
  const std::string play = "click frmSpirehold.cmdPlay\n", pause = "click frmSpirehold.cmdPause\n";
  std::string tries;
  for (int turn = 0; turn < 6; ++turn) {
    for (int card = 18; card < 28; ++card)
      tries += "click frmSpirehold.UpCardImage(" + std::to_string(card) + ")\n";
    tries += "click frmSpirehold.CardStackPicture\nadvance 730\n";
  }
  return "advance 777\nclick frmSelect.cmdSumfall\nclose frmSumfall\nanswer \"Yes\"\nadvance 130\n"
         "click frmSelect.cmdSpirehold\nadvance 3000\n" +
         play + tries + "click frmSpirehold.cmdTakeScore\nclick frmSpirehold.mnuAbout\nadvance 10\n" +
         "click frmAbout.cmdCoolDude\n" + tries + play + "advance 90\nanswer \"No\"\n" + play +
         "answer \"Yes\"\nresize frmSpirehold 12000 9000\nadvance 5000\n" + play + pause + "advance 61000\n" +
         pause + tries +
         "advance 90000\nadvance 90000\nclick frmSpirehold.mnuCustom\n"
         "type frmSpireholdCustom.txtTimeBonus \"250\"\nclick frmSpireholdCustom.cmdOK\n" +
         play + tries + "close frmSpirehold\nadvance 1500\nanswer \"Yes\"\nadvance 900\n";
}

}  // namespace

TEST(Record, AWholeGameIsDoneAgainStepByStep) {
  for (const GameEntry& each : AllGames()) {
    std::string game(each.Name());
    game[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(game[0])));
    SCOPED_TRACE(game);
    const Played played = Play(WholeGame(game));
    ASSERT_FALSE(played.records.empty());
    Told told;
    const Verdict verdict = record::Replay(played.records.back(), kProgram, AllGames(), &told.script);
    ASSERT_EQ(verdict.kind, Verdict::Kind::Holds) << verdict.Text();
    EXPECT_EQ(verdict.result, played.results.back());
    const std::vector<std::string> again = told.Lines();
    ASSERT_GT(again.size(), 900u);
    ASSERT_LE(again.size(), played.told.size());
    for (size_t i = 0; i < again.size(); ++i) ASSERT_EQ(again[i], played.told[i]) << "line " << i;
    EXPECT_LT(played.records.back().size(), 100'000u);
  }
}

TEST(Record, HoldsAWindowUpToEachGamesEnd) {
  for (std::optional<uint64_t> seed : {std::optional<uint64_t>(3), std::optional<uint64_t>()}) {
    const Played played = Play(ThreeGames(), seed);
    ASSERT_EQ(played.results.size(), 3u) << Joined(LinesOf(played.records.back(), "end"));
    for (size_t i = 0; i < 3; ++i) {
      const Verdict verdict = record::Replay(played.records[i], kProgram, AllGames());
      ASSERT_EQ(verdict.kind, Verdict::Kind::Holds) << verdict.Text();
      EXPECT_EQ(verdict.result, played.results[i]);
      EXPECT_EQ(verdict.result.rounds, i == 2 ? 1 : 2);
      EXPECT_EQ(verdict.result.custom, i == 2);
    }
    EXPECT_EQ(played.results[0].limit, "45");
    EXPECT_EQ(VerdictOn(played.records[2]), "holds Spirehold 45 " + std::to_string(played.results[2].score) +
                                                " 0 " + IsoText(played.results[2].ended) + " custom");
  }
}

// One that runs a loop of its own, and asks the border only while a handler waits.
TEST(Record, TakesWhatAFrontEndServesWithoutBeingAsked) {
  TestFolder folder;
  std::istringstream in("answer \"Yes\"\n");
  std::ostringstream out;
  ConsoleFrontEnd console({}, in, out);
  Recorder recorder(console.platform, kProgram);
  std::string text;
  recorder.onGameEnd = [&](const std::string& record, const GameResult&) { text = record; };
  Suite suite(console.platform, {folder.Path()}, AllGames());
  recorder.Attach(suite.common);
  suite.Start();
  for (const auto& [form, control] : {std::pair("frmSelect", "cmdDuopick"),
                                      {"frmDuopick", "cmdPlay"},
                                      {"frmDuopick", "cmdPlay"},
                                      {"frmDuopick", "mnuSounds"}})
    player::Click(*console.platform.FindForm(form)->find(control));
  EXPECT_EQ(VerdictOn(text).substr(0, 8), "holds Du");
}

TEST(Record, EachWindowHasChanceOfItsOwnWithoutASeed) {
  const std::string opens =
      "click frmSelect.cmdDuopick\nclick frmDuopick.cmdPlay\nclose frmDuopick\nanswer \"Yes\"\n";
  const auto chanceIn = [](const std::string& text) {
    const size_t at = text.find("\nchance ");
    return text.substr(at, text.find('\n', at + 1) - at);
  };
  const Played free = Play(opens + opens, std::nullopt), seeded = Play(opens + opens, 5);
  ASSERT_EQ(free.records.size(), 2u);
  EXPECT_NE(chanceIn(free.records[0]), chanceIn(free.records[1]));
  EXPECT_EQ(chanceIn(seeded.records[0]), "\nchance 5 given");
  EXPECT_NE(chanceIn(seeded.records[1]), "\nchance 5 given") << "runs on";
}

TEST(Record, NothingElseHolds) {
  const std::string whole = Play(ThreeGames()).records[0];
  const std::string end = whole.substr(whole.rfind('\n', whole.size() - 2) + 1);
  const struct {
    std::string what, text, program, verdict;
  } cases[] = {
      {"as it was", whole, kProgram, "holds Spirehold 45 "},
      {"another score",
       With(whole, end, With(end, "end", "end Spirehold 45 900000 2 0 0 0 2000-01-01T12:00:30+00:00\n")),
       kProgram, "fails: line "},
      {"no game", With(whole, "cmdPlay", ""), kProgram, "fails: line "},
      {"other cards", With(whole, "chance ", "chance 99\n"), kProgram, "fails: line "},
      {"what isn't there", With(whole, "UpCardImage(18)", "click 0 frmSpirehold.UpCardImage(99)\n"), kProgram,
       "fails: line 46: there is no frmSpirehold.UpCardImage(99)"},
      {"what can't be clicked", With(whole, "UpCardImage(18)", "click 0 frmSpirehold.Timer1\n"), kProgram,
       "fails: line 46: frmSpirehold.Timer1 takes no part in what a player does"},
      {"an answer to nobody", With(whole, "UpCardImage(18)", "answer 0 Yes\n"), kProgram,
       "fails: line 46: no message box stands"},
      {"a version of ours that goes differently", With(whole, "chance ", "chance 99\n"), "1.3.0",
       "no record: version 1.2.3 made it"},
      {"another version that goes alike", whole, "1.3.0", "holds "},
      {"cut off", whole.substr(0, whole.size() / 2), kProgram, "no record: "},
      {"without its last line", whole.substr(0, whole.size() - end.size()), kProgram,
       "no record: it doesn't end with a game"},
      {"nothing", "", kProgram, "no record: it doesn't begin as one"},
      {"another form", With(whole, "card-haven-record 1", "card-haven-record 2\n"), kProgram,
       "no record: its form is of version 2"},
      {"chance out of bounds", With(whole, "UpCardImage(18)", "random 0 1 52 53\n"), kProgram,
       "no record: line 46: the number 53 doesn't fit"},
  };
  for (const auto& [what, text, program, verdict] : cases)
    EXPECT_EQ(VerdictOn(text, program).substr(0, verdict.size()), verdict) << what;
}

// Lines left out, doubled, exchanged, cut, with other numbers: whatever still holds has the honest score.
TEST(Record, NoChangeMakesABetterScore) {
  const Played played = Play(ThreeGames());
  std::mt19937 random(1);
  int held = 0;
  for (int i = 0; i < 400; ++i) {
    std::vector<std::string> lines;
    std::istringstream text(played.records[random() % 3]);
    for (std::string line; std::getline(text, line);) lines.push_back(line);
    const long long honest = std::stoll(lines.back().substr(lines.back().find(" 45 ") + 4));
    const size_t at = random() % lines.size();
    switch (random() % 5) {
      case 0:
        lines.erase(lines.begin() + static_cast<long>(at));
        break;
      case 1:
        lines.insert(lines.begin() + static_cast<long>(at), lines[at]);
        break;
      case 2:
        std::swap(lines[at], lines[random() % lines.size()]);
        break;
      case 3:
        lines[at].resize(random() % (lines[at].size() + 1));
        break;
      default:
        if (const size_t digit = lines[at].find_first_of("0123456789"); digit != std::string::npos)
          lines[at][digit] = static_cast<char>('0' + random() % 10);
    }
    const Verdict verdict = record::Replay(Joined(lines, "\n") + "\n", kProgram, AllGames());
    if (verdict.kind != Verdict::Kind::Holds) continue;
    ++held;
    EXPECT_EQ(verdict.result.score, honest) << "change " << i;
  }
  EXPECT_LT(held, 300) << "changes are noticed";
}

// The day's window is opened, and a deal begun, by a click that a front end has spoken of before.
TEST(Records, WhatAFrontEndHasAskedForIsPlayedAgain) {
  const Played played = Play(
      "@\nclick frmSelect.cmdDuopick\n@\nclick frmDuopick.cmdPlay\nadvance 3000\nclick frmDuopick.cmdPlay\n"
      "answer \"Yes\"\nadvance 9000\nclose frmDuopick\nanswer \"Yes\"\n"
      "click frmSelect.cmdDuopick\n@\nclick frmDuopick.cmdPlay\nadvance 3000\nclick frmDuopick.cmdPlay\n"
      "answer \"Yes\"\nadvance 9000",
      std::nullopt, [](modCommon& common) {
        if (common.window)
          common.nextDeal = DealName{4711, true};
        else
          common.nextIsToday = true;
      });
  ASSERT_EQ(played.records.size(), 2u);
  EXPECT_TRUE(played.records[0].find("nextistoday") != std::string::npos);
  EXPECT_EQ(played.results[0].deal, DealOfTheDay("2000-01-01", "Duopick"));
  EXPECT_EQ(played.results[1].deal, 4711);
  for (const std::string& text : played.records) EXPECT_EQ(VerdictOn(text).substr(0, 6), "holds ");
}

// They are shown to players, and must go on as they were played.
TEST(Record, DemonstrationsComeIntoTheBonusRound) {
  for (const GameEntry& game : AllGames()) {
    SCOPED_TRACE(game.Name());
    std::string text;
    const auto file = std::filesystem::path(CARDHAVEN_SOURCE "/data/demonstrations") /
                      (std::string(game.Name()) + ".record");
    EXPECT_EQ(record::ReadRecord(file, text).why, "");
    record::Contents contents;
    const Verdict verdict = LookThrough(text, kProgram, AllGames(), contents);
    ASSERT_EQ(verdict.kind, Verdict::Kind::Holds) << verdict.Text();
    EXPECT_EQ(verdict.result.game, game.Name());
    EXPECT_GT(verdict.result.rounds, game.rounds);
    EXPECT_EQ(static_cast<int>(contents.rounds.size()), verdict.result.rounds);
    EXPECT_GT(contents.comments, 4);
    EXPECT_FALSE(verdict.result.custom);
  }
}
