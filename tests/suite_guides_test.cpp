// What the guides tell of the boards is so: places, keys, and which clicks are taken.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "games/games.h"
#include "tests/documents.h"
#include "tests/driver.h"
#include "window/player.h"

namespace {

std::vector<std::string> Buttons() {
  std::vector<std::string> buttons;
  for (const GameEntry& game : AllGames()) buttons.emplace_back(game.button);
  return buttons;
}

class Guided : public ::testing::TestWithParam<std::string> {
 protected:
  void Open(unsigned seed) {
    RunOptions options;
    options.seed = seed;
    driver.emplace(folder.Path(), options);
    driver->Do("click frmSelect." + GetParam());
    guide = MakeGuide(Game());
    ASSERT_TRUE(guide);
  }
  GameWindow& Game() { return *driver->common().window; }

  TestFolder folder;
  std::optional<Driver> driver;
  std::unique_ptr<Guide> guide;
};

TEST_P(Guided, KeysNameControlsOfTheWindow) {
  Open(1);
  int clicks = 0;
  for (const KeyRow& row : guide->Keys()) {
    EXPECT_FALSE(row.does.empty()) << row.keys;
    for (const KeyClick& click : row.clicks) {
      ++clicks;
      if (click.control[0] == '*') continue;
      EXPECT_FALSE(driver->Get(std::string(Game().name) + "." + click.control + ".Enabled").is_null())
          << click.keys << " " << click.control;
    }
  }
  EXPECT_GT(clicks, 5);
  EXPECT_EQ(guide->FirstSteps().size(), 3u);
  EXPECT_TRUE(guide->Spots().empty());
  driver->Do("click " + Game().cmdPlay.FullName());
  EXPECT_TRUE(Contains(guide->State(), "Round 1. Score 0.")) << guide->State();
  EXPECT_EQ(Contains(guide->State(), " seconds left. "), Game().plan.HasClock()) << guide->State();
}

// A wish that no game takes must not be left for the next one, which would count as a repeated deal.
TEST_P(Guided, ADealIsAskedForOnlyWhereAGameCanBegin) {
  Open(1);
  Game().standing.InputDies();
  EXPECT_FALSE(guide->AskForDeal(4711));
  Game().standing.InputLives();
  driver->Do("click " + Game().cmdPlay.FullName() + "\nclick " + Game().cmdPlay.FullName() +
             "\nanswer \"Yes\"");
  EXPECT_FALSE(guide->Game()->repeated);
  EXPECT_TRUE(guide->AskForDeal(4711));
  driver->Do("click " + Game().cmdPlay.FullName());
  EXPECT_EQ(guide->Game()->deal, 4711);
  EXPECT_TRUE(guide->Game()->repeated);
}

// Clicks at random places, many of which are refused.
TEST_P(Guided, WhatCanBePlayedIsTakenAndTheRestIsRefused) {
  int taken = 0, refused = 0;
  for (unsigned seed = 1; seed <= 4; ++seed) {
    Open(seed);
    driver->Do("click " + Game().cmdPlay.FullName());
    std::mt19937 chance(seed);
    for (int step = 0; step < 120 && Game().standing.IsPlaying(); ++step) {
      if (Game().standing.InputIsDead()) driver->Do("advance 250");  // a round has just begun
      const std::vector<Spot> spots = guide->Spots();
      ASSERT_FALSE(spots.empty());
      std::vector<const Spot*> playable;
      for (const Spot& spot : spots)
        if (spot.playable) playable.push_back(&spot);
      const bool any = playable.empty() || chance() % 3 == 0;
      const Spot& spot = any ? spots[chance() % spots.size()] : *playable[chance() % playable.size()];
      EXPECT_TRUE(spot.control->Visible);
      EXPECT_EQ(Contains(spot.text, " of "), spot.rank != 0) << spot.text;
      const std::string told = driver->Trace("click " + spot.control->FullName());
      const bool isTaken = Contains(told, "* s") && !Contains(told, "Chord") && !Contains(told, "error");
      ASSERT_EQ(isTaken, spot.playable)
          << "seed " << seed << ": " << spot.control->FullName() << " " << spot.text << "\n"
          << told;
      ++(isTaken ? taken : refused);
    }
    // Behind a pause nothing is played.
    if (!Game().standing.IsPlaying()) continue;
    driver->Do("click " + Game().cmdPause.FullName());
    EXPECT_TRUE(guide->Paused());
    for (const Spot& spot : guide->Spots()) EXPECT_FALSE(spot.playable) << spot.text;
  }
  EXPECT_GT(taken, 50);
  EXPECT_GT(refused, 25);
}

// --- The tables of keys in the documents -----------------------------------------------------------

struct KeyTable {
  std::string title;
  std::vector<KeyRow> rows;
};

// The selector's keys, each game's own, and those that most games have.
std::vector<KeyTable> AllKeys() {
  TestFolder folder;
  Driver driver(folder.Path());
  std::vector<KeyTable> tables;
  tables.push_back({"Selector", MakeGuide(*driver.platform().FindForm("frmSelect"))->Keys()});
  std::vector<std::vector<KeyRow>> games;
  for (const GameEntry& game : AllGames()) {
    driver.Do(std::string("click frmSelect.") + game.button);
    games.push_back(MakeGuide(*driver.common().window)->Keys());
    driver.Do("close " + std::string(driver.common().window->name) + "\nanswer \"Yes\"");
  }
  const auto same = [](const KeyRow& a) {
    return [&a](const KeyRow& b) { return a.keys == b.keys && a.does == b.does; };
  };
  const auto isCommon = [&](const KeyRow& row) {
    return 2 * std::ranges::count_if(games,
                                     [&](const auto& rows) { return std::ranges::any_of(rows, same(row)); }) >
           std::ssize(games);
  };
  for (size_t i = 0; i < games.size(); ++i) {
    std::vector<KeyRow> own;
    for (const KeyRow& row : games[i])
      if (!isCommon(row)) own.push_back(row);
    std::string title = AllGames()[i].title;
    tables.push_back({title.substr(0, title.size() - 1), own});  // without its mark
  }
  std::vector<KeyRow> common;
  for (const KeyRow& row : games.front())
    if (isCommon(row)) common.push_back(row);
  tables.insert(tables.begin() + 1, {"Every game, unless it says otherwise", common});
  return tables;
}

std::string AsMarkdown(const std::vector<KeyTable>& tables) {
  std::string text = "\n| Where | Key | What it does |\n|---|---|---|\n";
  for (const KeyTable& table : tables) {
    std::string title = table.title;
    for (const KeyRow& row : table.rows)
      text += "| " + std::exchange(title, "") + " | " + row.keys + " | " + row.does + " |\n";
  }
  return text + "\n";
}

std::string AsManual(const std::vector<KeyTable>& tables) {
  std::string text = "\n";
  for (const KeyTable& table : tables) {
    text += ".SS " + table.title + "\n";
    for (const KeyRow& row : table.rows)
      text += ".TP\n.B \"" + InManual(row.keys) + "\"\n" + InManual(row.does) + "\n";
  }
  return text;
}

// Where they differ, paste what is expected.
TEST(KeyTables, OfReadmeAndManualAreThoseOfTheGuides) {
  const std::filesystem::path root = CARDHAVEN_SOURCE;
  const std::vector<KeyTable> tables = AllKeys();
  ASSERT_EQ(tables.size(), AllGames().size() + 2);
  EXPECT_EQ(Between(root / "README.md", "<!-- keys -->", "<!-- /keys -->"), AsMarkdown(tables))
      << AsMarkdown(tables);
  EXPECT_EQ(Between(root / "packaging/cardhaven.6", ".\\\" keys", ".\\\" /keys"), AsManual(tables))
      << AsManual(tables);
}

INSTANTIATE_TEST_SUITE_P(Games, Guided, ::testing::ValuesIn(Buttons()),
                         [](const auto& info) { return info.param.substr(3); });

}  // namespace
