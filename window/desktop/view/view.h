// How this player wants the windows drawn and heard, and what the desktop remembers from one start to the
// next. The games know nothing of it.
#pragma once

#include <QPoint>
#include <QStringList>
#include <filesystem>
#include <optional>

struct View {
  int zoom = 100;            // percent, 100 to 300
  bool fitMaximised = true;  // a maximised window shows its usual arrangement larger
  bool fitNormal = false;    // the same for one that the player resizes
  bool fullScreen = false;
  std::optional<bool> maximised;  // all games; where nobody has chosen yet each is as its own file tells
  bool fourColours = false;
  bool highContrast = false;
  bool lessMotion = false;
  bool keepsRecords = true;                 // of games, beside the tables
  int waveVolume = 100, musicVolume = 100;  // percent

  // What was done last.
  std::optional<QPoint> selector;  // where it stood, in pixels
  QString lastGame;                // the button that opened it: "cmdSumfall"
  QStringList seen;                // the windows whose first steps have been read
  QString lastName;                // entered into a table

  friend bool operator==(const View&, const View&) = default;
};

// $XDG_CONFIG_HOME/card-haven/desktop.ini, or its usual place under the home folder; empty if there is none.
std::filesystem::path ViewFile();
// What is missing in the file, or makes no sense there, is as at first.
View ReadView(const std::filesystem::path& file, int firstZoom = View().zoom);
// Writes what has changed since `before`; the rest may have been changed by another copy of the program.
// False if that can't be done now; the last time, when there is no later, nobody is waited for.
bool WriteView(const std::filesystem::path& file, const View& view, const View& before, bool last = false);
