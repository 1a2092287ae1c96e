// The statistics as the page shows them: JSON.
#pragma once

#include <filesystem>

#include "window/border.h"
#include "window/results/page.h"
#include "window/web/json.h"

class StatisticsPage {
 public:
  // Of the history as it is now, which is kept in that folder.
  StatisticsPage(const std::filesystem::path& folder, const std::vector<KnownGame>& known,
                 const DateTime& now);

  // The table, a line for each row; `chosen` is the one to begin with, of that game if one is named.
  void Table(Json& json, const std::string& game) const;
  // The pictures of a row: how large, and their shapes, lengths in tenths of a pixel.
  void Charts(Json& json, size_t row, int width, int height, bool strong) const;
  // The same to be saved, with the lines above.
  void Picture(Json& json, size_t row, bool strong) const;
  // The table to be saved.
  std::string Text() const { return TableOf(rows_); }

 private:
  results::Page PageOf(size_t row) const;

  const std::chrono::sys_days today_;
  std::string why_;  // the history can't be read
  std::vector<PlayedGame> games_;
  std::vector<HistoryRow> rows_;
};
