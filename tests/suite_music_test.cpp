// Whatever a player does to music, pauses and games: between two commands music plays exactly if it is
// switched on in a game that isn't paused, and it isn't begun or stopped twice.
#include <gtest/gtest.h>

#include <random>

#include "tests/driver.h"

namespace {

class Music : public ::testing::TestWithParam<std::string> {
 protected:
  void Do(const std::string& commands) {
    for (const std::string& sent : LinesOf(driver.Trace(commands), "* mci ")) {
      const bool opens = Contains(sent, "open"), plays = Contains(sent, "play");
      EXPECT_FALSE(playing && (opens || plays)) << commands << sent;
      opened = opens;
      if (!opens) playing = plays;
    }
    EXPECT_FALSE(opened) << commands << "opened, and not played";
  }
  bool Is(const std::string& property) { return driver.Get(window + property) == true; }

  const std::string window = "frm" + GetParam() + ".";
  TestFolder folder;
  Driver driver{folder.Path()};
  bool opened = false, playing = false;
};

std::vector<std::string> Names() {
  std::vector<std::string> names;
  for (const GameEntry& game : AllGames()) names.emplace_back(game.Name());
  return names;
}

}  // namespace

TEST_P(Music, PlaysInAGameThatIsNotPausedAndNowhereElse) {
  driver.Do("click frmSelect.cmd" + GetParam());
  const std::string click = "click " + window;
  const std::vector<std::string> ways{
      click + "mnuMusic\n",
      click + "mnuMusic\n",
      click + "cmdPause\n",
      click + "cmdPause\n",
      click + "mnuPause\n",
      click + "mnuSounds\n",
      click + "cmdPlay\n",
      click + "cmdPlay\nanswer \"No\"\n",
      click + "cmdPlay\nanswer \"Yes\"\n",
      "close frm" + GetParam() + "\nanswer \"No\"\n",
      "state frm" + GetParam() + " 1\nstate frm" + GetParam() + " 0\n",
      "advance 250\n",
  };
  std::mt19937 chance(7);
  int inGame = 0, inPause = 0;
  for (int step = 0; step < 400; ++step) {
    // No question may stand behind a command, so that each is one step.
    const bool plays = !Is("frmSplash.Visible");
    std::string way = ways[chance() % ways.size()];
    if (way == click + "cmdPlay\n" && plays) way += "answer \"No\"\n";
    // Time must not run out in the middle: it leads to tables, names and announcements.
    if (step % 60 == 59 && plays)
      way = (Is("cmdPlay.Enabled") ? "" : click + "cmdPause\n") + click + "cmdPlay\nanswer \"Yes\"\n";
    Do(way);
    const bool paused = Contains(driver.Text(window + "mnuPause.Caption"), "Resume"),
               game = !Is("frmSplash.Visible"), wanted = Is("mnuMusic.Checked");
    inGame += game && !paused && wanted;
    inPause += game && paused && wanted;
    ASSERT_EQ(playing, game && !paused && wanted) << step << ": " << way;
  }
  EXPECT_GT(inGame, 20);
  EXPECT_GT(inPause, 20);
}

INSTANTIATE_TEST_SUITE_P(Games, Music, ::testing::ValuesIn(Names()));
