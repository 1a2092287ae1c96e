#include "suite/high_scores.h"

#include "suite/dialogs.h"
#include "suite/game_window.h"
#include "suite/settings_file.h"
#include "window/text.h"

HighScores ParseHighScores(std::string_view text, bool& damaged) {
  HighScores scores;
  damaged = false;
  for (std::string_view line : Lines(text)) {
    if (Trim(line).empty()) continue;
    const size_t comma = line.find(',');
    int score = 0;
    if (comma == std::string_view::npos || !ParseLong(Trim(line.substr(comma + 1)), score)) {
      damaged = true;
      break;
    }
    scores.push_back({std::string(Trim(line.substr(0, comma))), score});
  }
  return scores;
}

std::string FormatHighScores(const HighScores& scores) {
  std::string text;
  for (const HighScore& entry : scores) text += entry.name + ", " + std::to_string(entry.score) + "\r\n";
  return text + "\r\n";
}

HighScores FreshHighScores(const std::string& defaultScore) {
  return HighScores(kTablePlaces, {"Quillmark", Long(Val(defaultScore))});
}

std::optional<size_t> PlaceOf(const HighScores& scores, long long score) {
  for (size_t place = 0; place < scores.size() && place < kTablePlaces; ++place)
    if (scores[place].score < score) return place;
  return std::nullopt;
}

HighScores WithEntry(const HighScores& scores, const HighScore& entry) {
  HighScores result;
  bool inserted = false;
  for (size_t i = 0; i < scores.size() && result.size() < kTablePlaces; ++i) {
    if (!inserted && scores[i].score < entry.score) {
      result.push_back(entry);
      inserted = true;
    }
    result.push_back(scores[i]);
  }
  return result;
}

HighScores ReadHighScores(GameWindow& window, const std::string& tableName, const std::string& defaultScore) {
  Files& files = window.common.files;
  const auto path = files.PathOf(window.TableFile(tableName));
  std::string text;
  bool damaged = false;
  HighScores scores;
  switch (files.Read(path, text)) {
    case ReadOutcome::Read:
      scores = ParseHighScores(text, damaged);
      break;
    case ReadOutcome::Unusable:
      damaged = true;
      break;
    case ReadOutcome::Missing:
      break;
  }
  // What can still be read is kept in the new table; the damaged one stays beside it.
  if (!damaged && !scores.empty()) return scores;
  if (damaged) files.PutAside(path);
  if (scores.empty()) scores = FreshHighScores(defaultScore);
  files.Keep(path, FormatHighScores(scores));
  return scores;
}

void ShowHighScore(const std::string& tableName, GameWindow& window, const std::string& defaultScore) {
  HighScores scores;
  {
    const Files::Lock lock(window.common.files);
    scores = ReadHighScores(window, tableName, defaultScore);
  }
  window.lblHighScore.Caption = window.HighScorePrefix() + FormatNumber(scores.front().score);
  window.common.TellWhatCantBeKept();
}

void CreateHighScoreFile(const std::string& tableName, GameWindow& window, const std::string& defaultScore) {
  Files& files = window.common.files;
  {
    const Files::Lock lock(files);
    files.Keep(files.PathOf(window.TableFile(tableName)), FormatHighScores(FreshHighScores(defaultScore)));
  }
  window.common.TellWhatCantBeKept();
}

void UpdateHighScoreTable(const std::string& tableName, GameWindow& window, const std::string& defaultScore) {
  modCommon& common = window.common;
  HighScore entry{"", common.CurrentScore};
  bool placed = false;
  {
    const Files::Lock lock(common.files);
    placed = PlaceOf(ReadHighScores(window, tableName, defaultScore), entry.score).has_value();
  }
  if (placed) {
    if (common.PlaySounds) common.PlayWaveFile("\\HighScore.wav");
    frmHiScoreName dialog(common);
    dialog.Show(true);
    entry.name = common.PlayerName + (common.CustomScoringInUse ? "*" : "");
  }
  {
    // Another copy of the program may have entered a score while the player wrote: the table is read again.
    const Files::Lock lock(common.files);
    const HighScores scores = ReadHighScores(window, tableName, defaultScore);
    common.files.Keep(common.files.PathOf(window.TableFile(tableName)),
                      FormatHighScores(WithEntry(scores, entry)));
  }
  common.TellWhatCantBeKept();
  if (placed) {
    frmHighScores dialog(common, window);
    dialog.Show(true);
  }
}
