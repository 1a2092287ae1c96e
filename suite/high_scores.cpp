#include "suite/high_scores.h"

#include <algorithm>

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
    scores.push_back({NameOnOneLine(Trim(line.substr(0, comma))), score});
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

namespace {

// What can be read of a table, or the fresh one.
HighScores Readable(std::string_view text, const std::string& defaultScore) {
  bool damaged = false;
  HighScores scores = ParseHighScores(text, damaged);
  return scores.empty() ? FreshHighScores(defaultScore) : scores;
}

// What can still be read of a damaged table is kept in the new one; the damaged one stays beside it. `note`
// is the entry that the change makes, as a line of the table.
void KeepTable(GameWindow& window, const std::string& tableName, std::function<HighScores(HighScores)> change,
               const std::string& defaultScore, bool replaces = false, const std::string& note = "") {
  Files& files = window.common.files;
  files.Keep(files.PathOf(window.TableFile(tableName)),
             {[change = std::move(change), defaultScore](const std::string& old) {
                return FormatHighScores(change(Readable(old, defaultScore)));
              },
              [](const std::string& old) {
                bool damaged = false;
                ParseHighScores(old, damaged);
                return !damaged;
              },
              replaces, false, note,
              [defaultScore](const std::string& old, const std::string& left) {
                bool damaged = false;
                HighScores scores = Readable(old, defaultScore);
                for (const HighScore& entry : ParseHighScores(left, damaged))
                  scores = WithEntry(scores, entry);
                return FormatHighScores(scores);
              },
              [](const std::string& text, const std::string& left) {
                bool damaged = false;
                const HighScores entries = ParseHighScores(left, damaged);
                const HighScores scores = ParseHighScores(text, damaged);
                return entries.empty() ? 0 : int(std::ranges::count(scores, entries.front()));
              }});
}

}  // namespace

HighScores ReadHighScores(GameWindow& window, const std::string& tableName, const std::string& defaultScore) {
  Files& files = window.common.files;
  const auto path = files.PathOf(window.TableFile(tableName));
  const auto asItIs = [](HighScores scores) { return scores; };
  if (files.HasNotes(path)) KeepTable(window, tableName, asItIs, defaultScore);
  std::string text;
  const ReadOutcome outcome = files.Read(path, text);
  bool damaged = false;
  const bool isWhole = outcome == ReadOutcome::Read && !ParseHighScores(text, damaged).empty() && !damaged;
  // Another copy may have made the table meanwhile: then it stays as it is.
  if (!isWhole && outcome != ReadOutcome::Refused) KeepTable(window, tableName, asItIs, defaultScore);
  return Readable(text, defaultScore);
}

void ShowHighScore(const std::string& tableName, GameWindow& window, const std::string& defaultScore) {
  const HighScores scores = ReadHighScores(window, tableName, defaultScore);
  window.lblHighScore.Caption = window.plan.names.highScore + FormatNumber(scores.front().score);
  window.common.TellWhatCantBeKept();
}

void CreateHighScoreFile(const std::string& tableName, GameWindow& window, const std::string& defaultScore) {
  KeepTable(
      window, tableName, [=](const HighScores&) { return FreshHighScores(defaultScore); }, defaultScore,
      true);
  window.common.TellWhatCantBeKept();
}

void UpdateHighScoreTable(const std::string& tableName, GameWindow& window, const std::string& defaultScore) {
  modCommon& common = window.common;
  const Long score = common.CurrentScore;
  // Another copy of the program may enter a score while the player writes: the table is read again then.
  const auto enter = [&window, &common, tableName, defaultScore, score](bool placed) {
    // A score without a place changes nothing that is worth waiting for.
    if (!placed &&
        (common.deal.Name().repeated || common.files.Waits(common.files.PathOf(window.TableFile(tableName)))))
      return;
    const std::string name = placed ? common.PlayerName + (common.CustomScoringInUse ? "*" : "") : "";
    common.lastEntry.name = name;
    KeepTable(
        window, tableName,
        [entry = HighScore{name, score}](const HighScores& scores) { return WithEntry(scores, entry); },
        defaultScore, false, placed ? FormatHighScores({{name, score}}) : "");
  };
  std::optional<size_t> place = PlaceOf(ReadHighScores(window, tableName, defaultScore), score);
  if (common.deal.Name().repeated) place.reset();
  window.log.End(place);
  const bool placed = place.has_value();
  common.lastEntry = {window.TableFile(tableName), "", score, place, common.lastEntry.number + 1};
  if (placed) {
    if (common.PlaySounds) common.PlayWaveFile("\\HighScore.wav");
    frmHiScoreName dialog(common);
    // Should the program have to leave, the score is entered as if the window had been closed.
    common.EnterWaitingScore = [&] { enter(true); };
    struct Guard {
      std::function<void()>& waiting;
      ~Guard() { waiting = nullptr; }
    } guard{common.EnterWaitingScore};
    dialog.Show(true);
  }
  enter(placed);
  common.TellWhatCantBeKept();
  if (placed) {
    frmHighScores dialog(common, window);
    dialog.Load();
    if (place == 0) common.platform.front.Triumph(dialog);
    dialog.Show(true);
  }
}
