// The window that tells what the games played so far amount to: a table, and below it pictures of what is
// chosen there.
#pragma once

#include <QDialog>
#include <filesystem>

#include "window/results/page.h"

class QLabel;
class QTableWidget;

class StatisticsWindow : public QDialog {
 public:
  // `history` is the file of the games played so far; the row of the newest game is chosen, of that game if
  // one is named.
  StatisticsWindow(const std::filesystem::path& history, const std::vector<KnownGame>& known,
                   const std::string& game, QWidget* parent);

  // The page as a picture that is drawn by lines, or by points if the file is called ".png"; the table.
  bool SavePicture(const std::filesystem::path& file);
  bool SaveTable(const std::filesystem::path& file);

 private:
  class View;
  void FillTable(const std::string& game);
  void Choose(int row);
  void FitScreen();
  void Ask(const QString& title, const QString& name, const QStringList& kinds,
           bool (StatisticsWindow::*save)(const std::filesystem::path&));

  std::vector<PlayedGame> games_;
  std::vector<HistoryRow> rows_;
  results::Page page_;
  QTableWidget* table_ = nullptr;
  View* view_ = nullptr;
  QLabel* told_ = nullptr;
};
