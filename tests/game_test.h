// The window of one game under test: its properties by their short names, and what it tells.
#pragma once

#include <gtest/gtest.h>

#include "tests/driver.h"

inline const std::string kYes = "answer \"Yes\"\n", kNo = "answer \"No\"\n", kOk = "answer \"OK\"\n";
inline const std::string kEnterName =
    "type frmHiScoreName.lblPlayerName \"Ann\"\nclick frmHiScoreName.cmdOK\nclick frmHighScores.cmdDone\n";

class GameTest : public ::testing::Test {
 protected:
  // `name` as in "frmSumfall"; `label` tells what comes, `table` holds the scores of the default limit.
  GameTest(const std::string& name, std::string label, std::string table)
      : form("frm" + name), win(form + "."), label_(std::move(label)), table_(std::move(table)) {}

  std::string Text(const std::string& property) { return driver.Text(win + property); }
  std::string Caption(const std::string& control) { return Text(control + ".Caption"); }
  std::string Panel(int number) { return Text("StatusBar1.Panels(" + std::to_string(number) + ").Text"); }
  int Number(const std::string& property) { return driver.Get(win + property).get<int>(); }
  bool Is(const std::string& property) { return driver.Get(win + property) == true; }
  // What the player hears, reads and waits for.
  std::string Tell(const std::string& commands) { return Told(driver.Trace(commands)); }
  std::string Told(const std::string& trace) { return StoryOf(trace, win + label_); }
  modCommon& common() { return driver.common(); }
  long long Score() { return common().CurrentScore; }
  // The first entry of the table, "Ann*, 500".
  std::string Best() {
    const std::string text = folder.Read(table_);
    return text.substr(0, text.find('\r'));
  }
  std::string Kept() { return folder.Read(form.substr(3) + ".Ini"); }
  // Opens the window with this settings file, closing the one that is open.
  void Open(const std::string& settings = "") {
    if (common().window) driver.Do("close " + form + "\n" + kYes);
    if (!settings.empty()) folder.Write(form.substr(3) + ".Ini", settings);
    driver.Do("click frmSelect.cmd" + form.substr(3));
  }

  const std::string form, win;
  TestFolder folder;
  Driver driver{folder.Path()};

 private:
  const std::string label_, table_;
};

// A settings file, "Time 60|Deck 3".
inline std::string Settings(const std::string& values) {
  std::string text;
  std::istringstream split(values);
  for (std::string value; std::getline(split, value, '|');) {
    const size_t at = value.rfind(' ');
    text += "[" + value.substr(0, at) + "]\r\n" + value.substr(at + 1) + "\r\n\r\n";
  }
  return text;
}
