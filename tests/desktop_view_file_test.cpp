// What the View menu's entries write, and that nothing else is changed by them.
#include <gtest/gtest.h>

#include <QAction>
#include <QMenu>
#include <map>

#include "games/games.h"
#include "suite/suite.h"
#include "tests/desktop_screen.h"
#include "tests/harness.h"
#include "window/desktop/view/view.h"
#include "window/player.h"

namespace {

class ViewFileTest : public testing::Test {
 protected:
  void SetUp() override {
    front.guides = MakeGuide;
    front.looks.mayKeepRecords = true;
    suite.Start();
    front.Deliver(*front.platform.FindForm("frmSelect"),
                  [&] { player::Click(*front.platform.FindForm("frmSelect")->find("cmdSumfall")); });
    input::Settle();
  }
  std::vector<QAction*> Entries() {
    std::vector<QAction*> entries;
    for (QAction* entry : front.WindowOf(*suite.common.window)->findChildren<QAction*>())
      if (entry->objectName().startsWith("view")) entries.push_back(entry);
    return entries;
  }
  QAction* Entry(const char* name) { return front.WindowOf(*suite.common.window)->findChild<QAction*>(name); }
  // Sets a view, and waits until the file holds it.
  void Keep(const View& view) {
    front.looks.Set(view);
    ASSERT_TRUE(input::Await([&] { return Kept() == front.looks.Now(); }));
    input::Settle();
  }
  View Kept() { return ReadView(file); }

  const bool open = OpenScreen();
  TestFolder folder;
  const std::filesystem::path file = folder.Path() / "view.ini";
  QuickDesktop front{{folder.Path(), CARDHAVEN_TEST_DATA, file}, Catalogue()};
  Suite suite{front.platform, {folder.Path()}, AllGames()};
};

using Change = std::function<void(View&)>;

// What each entry does to a view of 100 % with all switches as at first.
std::map<std::string, Change> Changes() {
  std::map<std::string, Change> changes{
      {"viewLarger", [](View& view) { view.zoom = 125; }},
      {"viewSmaller", [](View&) {}},
      {"viewNatural", [](View&) {}},
      {"viewFit", [](View& view) { view.fitNormal = true; }},
      {"viewFullScreen", [](View& view) { view.fullScreen = true; }},
      {"viewFourColours", [](View& view) { view.fourColours = true; }},
      {"viewHighContrast", [](View& view) { view.highContrast = true; }},
      {"viewLessMotion", [](View& view) { view.lessMotion = true; }},
      {"viewKeepRecords", [](View& view) { view.keepsRecords = false; }},
  };
  for (const int zoom : {100, 125, 150, 175, 200, 225, 250, 275, 300})
    changes["viewZoom" + std::to_string(zoom)] = [zoom](View& view) { view.zoom = zoom; };
  for (const int volume : {100, 75, 50, 25, 0}) {
    changes["viewWaves" + std::to_string(volume)] = [volume](View& view) { view.waveVolume = volume; };
    changes["viewMusic" + std::to_string(volume)] = [volume](View& view) { view.musicVolume = volume; };
  }
  return changes;
}

}  // namespace

TEST_F(ViewFileTest, EachEntryWritesWhatItSaysAndTheRestStays) {
  View first = front.looks.Now();
  first.maximised = false;
  front.looks.Set(first);
  const auto changes = Changes();
  int entries = 0;
  for (QAction* entry : Entries()) {
    const std::string name = entry->objectName().toStdString();
    if (entry->menu() || name == "viewMenu") continue;
    ++entries;
    ASSERT_TRUE(changes.contains(name)) << name;
    View wanted = first;
    changes.at(name)(wanted);
    entry->trigger();
    input::Settle();
    EXPECT_EQ(front.looks.Now(), wanted) << name;
    ASSERT_TRUE(input::Await([&] { return Kept() == wanted; })) << name;
    // The zoom that is ticked is the one that is seen, which the screen may limit.
    const bool says = wanted != first && entry->isCheckable() && !name.starts_with("viewZoom");
    const bool wasChecked = entry->isChecked();
    EXPECT_TRUE(!says || wasChecked == (name != "viewKeepRecords")) << name;
    if (says && !std::isdigit(static_cast<unsigned char>(name.back()))) {
      entry->trigger();  // a switch
      EXPECT_EQ(front.looks.Now(), first) << name;
      EXPECT_NE(entry->isChecked(), wasChecked) << name;
    }
    front.looks.Set(first);
    input::Settle();
  }
  EXPECT_EQ(entries, std::ssize(changes));
}

TEST_F(ViewFileTest, WhatAnotherCopyChangedMeanwhileStays) {
  View theirs = front.looks.Now();
  Keep(theirs);
  const View before = theirs;
  theirs.highContrast = true;
  theirs.musicVolume = 25;
  theirs.lastName = "Ann";
  theirs.seen = QStringList{"frmDuopick"};
  WriteView(file, theirs, before);
  Entry("viewFourColours")->trigger();
  View both = theirs;
  both.fourColours = true;
  EXPECT_TRUE(input::Await([&] { return Kept() == both; }));
  // And of what both changed the later one counts.
  Entry("viewMusic50")->trigger();
  both.musicVolume = 50;
  EXPECT_TRUE(input::Await([&] { return Kept() == both; }));
}

TEST_F(ViewFileTest, EveryKeyIsReadBackByItself) {
  // Each value that isn't as at first, alone in a file.
  const View first;
  View all = first;
  all.zoom = 150;
  all.fitMaximised = false;
  all.maximised = false;
  all.fitNormal = all.fullScreen = all.fourColours = all.highContrast = all.lessMotion = true;
  all.waveVolume = 75;
  all.musicVolume = 25;
  all.selector = QPoint(12, 34);
  all.lastGame = "cmdDuopick";
  all.seen = QStringList{"frmDuopick", "frmSumfall"};
  all.lastName = "Ann, or so";
  const std::vector<Change> changes{
      [&](View& view) { view.zoom = all.zoom; },
      [&](View& view) { view.fitMaximised = all.fitMaximised; },
      [&](View& view) { view.fitNormal = all.fitNormal; },
      [&](View& view) { view.fullScreen = all.fullScreen; },
      [&](View& view) { view.maximised = all.maximised; },
      [&](View& view) { view.fourColours = all.fourColours; },
      [&](View& view) { view.highContrast = all.highContrast; },
      [&](View& view) { view.lessMotion = all.lessMotion; },
      [&](View& view) { view.waveVolume = all.waveVolume; },
      [&](View& view) { view.musicVolume = all.musicVolume; },
      [&](View& view) { view.selector = all.selector; },
      [&](View& view) { view.lastGame = all.lastGame; },
      [&](View& view) { view.seen = all.seen; },
      [&](View& view) { view.lastName = all.lastName; },
  };
  View sum = first;
  const auto together = folder.Path() / "together.ini";
  for (size_t i = 0; i < changes.size(); ++i) {
    View view = first;
    changes[i](view);
    ASSERT_NE(view, first) << i;
    const auto alone = folder.Path() / (std::to_string(i) + ".ini");
    WriteView(alone, view, first);
    EXPECT_EQ(ReadView(alone), view) << i;
    const View before = sum;
    changes[i](sum);
    WriteView(together, sum, before);
    EXPECT_EQ(ReadView(together), sum) << i;
  }
  EXPECT_EQ(sum, all);
}
