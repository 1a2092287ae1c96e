// What a player sees of the records of games: marks in the Hall of Fame, a game to watch, a file that was
// dropped. What a record is the desktop doesn't know; it is told.
#pragma once

#include <QObject>
#include <QPointer>
#include <atomic>
#include <filesystem>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "window/form.h"

class Canvas;
class QMenu;
class QPushButton;
class QTimer;
class QWidget;

// A table of scores: its rows, and what finds the file that proves each, "" for none. That runs on a thread
// of its own, and ends early once `stop` is set.
struct ProvedTable {
  std::vector<const Label*> rows;  // their scores
  std::function<std::vector<std::string>(const std::atomic<bool>& stop)> find;
};

struct RecordDesk {
  std::filesystem::path folder, demonstrations;
  // The table that a form shows; no rows where it shows none.
  std::function<ProvedTable(Form&)> table;
  // Whether a file holds, in a line.
  std::function<std::string(const std::string& file)> check;
};

// Plays it again in a program of its own.
void WatchRecord(const RecordDesk& records, const std::filesystem::path& file);
// Asks what to do with a file that may be a record.
void OfferRecord(QWidget& window, const RecordDesk& records, const std::filesystem::path& file);
// Adds the demonstration of that game to the menu, if there is one.
void AddDemonstration(const RecordDesk& records, const std::string& game, QMenu& menu);

// Marks the rows that are proved, in the background, and offers to watch their games.
class ProofMarks : public QObject {
 public:
  ProofMarks(Canvas& canvas, const RecordDesk& records);
  ~ProofMarks() override;

  // The table may have changed.
  void Settle();
  void Zoom();

 private:
  void Stop();
  void Find();
  void Show(const std::vector<std::string>& files);

  Canvas& canvas_;
  const RecordDesk& records_;
  const ProvedTable table_;
  std::string shown_;  // by the rows, when they were looked at last
  std::vector<std::pair<const Label*, QPushButton*>> marks_;
  std::thread thread_;
  std::atomic<bool> stop_ = false;
  int search_ = 0;
};
