// What the guides tell of the boards is so: places, keys, and which clicks are taken.
#include <gtest/gtest.h>

#include <random>

#include "games/guides.h"
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
  EXPECT_TRUE(Contains(guide->State(), " seconds left. ")) << guide->State();
}

// Clicks at random places, many of which are refused.
TEST_P(Guided, WhatCanBePlayedIsTakenAndTheRestIsRefused) {
  int taken = 0, refused = 0;
  for (unsigned seed = 1; seed <= 4; ++seed) {
    Open(seed);
    driver->Do("click " + Game().cmdPlay.FullName());
    std::mt19937 chance(seed);
    for (int step = 0; step < 120 && Game().phase == Phase::Playing; ++step) {
      if (driver->common().TakingScore) driver->Do("advance 250");  // a round has just begun
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
    if (Game().phase != Phase::Playing) continue;
    driver->Do("click " + Game().cmdPause.FullName());
    EXPECT_TRUE(guide->Paused());
    for (const Spot& spot : guide->Spots()) EXPECT_FALSE(spot.playable) << spot.text;
  }
  EXPECT_GT(taken, 50);
  EXPECT_GT(refused, 25);
}

INSTANTIATE_TEST_SUITE_P(Games, Guided, ::testing::ValuesIn(Buttons()),
                         [](const auto& info) { return info.param.substr(3); });

}  // namespace
