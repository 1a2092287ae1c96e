#include "tests/transcripts/transcripts.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>

#include "tests/harness.h"
#include "window/text.h"

using nlohmann::json;

namespace transcripts {
namespace {

using Lines = std::vector<std::string>;

constexpr size_t kLongest = 160;             // letters
constexpr size_t kLargestTable = 4'000'000;  // beyond that, what differs is told as a whole

Lines CommandsOf(const std::string& script) {
  Lines commands = {"(the start)"};  // which is answered as well
  std::istringstream lines(script);
  for (std::string line; std::getline(lines, line);)
    if (const auto command = Trim(line); !command.empty() && command[0] != '#')
      commands.emplace_back(command);
  return commands;
}

// A step is what one command is answered: event lines, and the answer behind them.
std::vector<Lines> StepsOf(const std::string& output) {
  std::vector<Lines> steps;
  bool open = false;
  std::istringstream lines(output);
  for (std::string line; std::getline(lines, line);) {
    if (!open) steps.emplace_back();
    steps.back().push_back(line);
    open = line.starts_with("* ");
  }
  return steps;
}

struct Gap {
  size_t before, beforeEnd, now, nowEnd;
};

// Where two rows differ, when as much as possible of them is the same.
template <class T>
std::vector<Gap> Gaps(const std::vector<T>& before, const std::vector<T>& now) {
  size_t head = 0, beforeEnd = before.size(), nowEnd = now.size();
  while (head < beforeEnd && head < nowEnd && before[head] == now[head]) ++head;
  while (beforeEnd > head && nowEnd > head && before[beforeEnd - 1] == now[nowEnd - 1]) --beforeEnd, --nowEnd;
  const size_t rows = beforeEnd - head, columns = nowEnd - head;
  if (rows == 0 && columns == 0) return {};
  if (rows * columns > kLargestTable) return {{head, beforeEnd, head, nowEnd}};

  std::vector<uint32_t> table((rows + 1) * (columns + 1));  // how much is common from there on
  const auto common = [&](size_t row, size_t column) -> uint32_t& {
    return table[row * (columns + 1) + column];
  };
  for (size_t row = rows; row-- > 0;)
    for (size_t column = columns; column-- > 0;)
      common(row, column) = before[head + row] == now[head + column]
                                ? 1 + common(row + 1, column + 1)
                                : std::max(common(row + 1, column), common(row, column + 1));

  std::vector<Gap> gaps;
  bool open = false;
  for (size_t row = 0, column = 0; row < rows || column < columns;) {
    if (row < rows && column < columns && before[head + row] == now[head + column]) {
      ++row, ++column;
      open = false;
      continue;
    }
    if (!open) gaps.push_back({head + row, head + row, head + column, head + column});
    open = true;
    if (column == columns || (row < rows && common(row + 1, column) >= common(row, column + 1)))
      gaps.back().beforeEnd = head + ++row;
    else
      gaps.back().nowEnd = head + ++column;
  }
  return gaps;
}

// A long line from its beginning, and from shortly before `place` on.
std::string Shortened(const std::string& line, size_t place) {
  if (line.size() <= kLongest) return line;
  constexpr size_t kBeginning = 40, kBefore = 30;
  if (place < kLongest - kBefore) return line.substr(0, kLongest) + " ...";
  const std::string rest = line.substr(place - kBefore, kLongest - kBeginning);
  return line.substr(0, kBeginning) + " ... " + rest +
         (place - kBefore + rest.size() < line.size() ? " ..." : "");
}

// The properties in which two dumps differ.
Lines PropertiesApart(const json& before, const json& now) {
  Lines told;
  const auto tell = [&](std::string where, const json& was, const json& is) {
    where.erase(0, 1);
    std::ranges::replace(where, '/', '.');
    told.push_back("  " + where + ": " + Shortened(was.dump(), 0) + " -> " + Shortened(is.dump(), 0));
  };
  const json old = before.flatten(), fresh = now.flatten();
  for (const auto& [where, value] : old.items())
    if (!fresh.contains(where) || fresh[where] != value)
      tell(where, value, fresh.contains(where) ? fresh[where] : json("(gone)"));
  for (const auto& [where, value] : fresh.items())
    if (!old.contains(where)) tell(where, "(new)", value);
  return told;
}

json ObjectOf(const Lines& answer) {
  if (answer.size() != 1 || !answer[0].starts_with("ok {")) return {};
  return json::parse(answer[0].substr(3), nullptr, false);
}

Lines LinesApart(const Lines& before, const Lines& now) {
  Lines told;
  for (const Gap& gap : Gaps(before, now)) {
    const Lines gone(before.begin() + gap.before, before.begin() + gap.beforeEnd);
    const Lines come(now.begin() + gap.now, now.begin() + gap.nowEnd);
    const json old = ObjectOf(gone), fresh = ObjectOf(come);
    if (old.is_object() && fresh.is_object()) {
      std::ranges::copy(PropertiesApart(old, fresh), std::back_inserter(told));
      continue;
    }
    size_t place = 0;
    if (!gone.empty() && !come.empty()) place = std::ranges::mismatch(gone[0], come[0]).in1 - gone[0].begin();
    for (const std::string& line : gone) told.push_back("- " + Shortened(line, place));
    for (const std::string& line : come) told.push_back("+ " + Shortened(line, place));
  }
  return told;
}

// Steps that differ in the same way.
struct Finding {
  std::string title;
  Lines told;
  std::vector<size_t> others;
};

// The text with all numbers alike.
std::string ShapeOf(const Lines& lines) {
  std::string shape;
  for (const std::string& line : lines) {
    for (const char letter : line)
      if (letter < '0' || letter > '9')
        shape += letter;
      else if (shape.empty() || shape.back() != '#')
        shape += '#';
    shape += '\n';
  }
  return shape;
}

// "4, 7 to 9, 12", cut where there are many.
std::string Listed(const std::vector<size_t>& steps) {
  std::string text;
  int named = 0;
  for (size_t i = 0, next; i < steps.size(); i = next) {
    for (next = i + 1; next < steps.size() && steps[next] == steps[next - 1] + 1;) ++next;
    if (++named > 8) return text + ", ...";
    text += (text.empty() ? "" : ", ") + std::to_string(steps[i]);
    if (next - i > 1) text += " to " + std::to_string(steps[next - 1]);
  }
  return text;
}

std::string Counted(size_t number, const std::string& what) {
  return std::to_string(number) + " " + what + (number == 1 ? "" : "s");
}

}  // namespace

std::vector<std::filesystem::path> Scripts() {
  std::vector<std::filesystem::path> scripts;
  for (const auto& entry : std::filesystem::directory_iterator(CARDHAVEN_TEST_SCRIPTS))
    if (entry.path().extension() == ".console") scripts.push_back(entry.path());
  std::ranges::sort(scripts);
  return scripts;
}

std::filesystem::path TranscriptOf(std::filesystem::path script) {
  return script.replace_extension(".expected");
}

std::string Play(const std::string& commands) {
  const TestFolder folder;
  RunOptions options;
  options.seed = 7;
  std::string output = RunConsole(folder, commands, options);
  const std::string path = folder.Path().string();
  for (size_t at; (at = output.find(path)) != std::string::npos;) output.replace(at, path.size(), "FOLDER");
  return output;
}

std::string Differences(const std::string& commands, const std::string& before, const std::string& now,
                        size_t most) {
  const Lines names = CommandsOf(commands);
  const std::vector<Lines> old = StepsOf(before), fresh = StepsOf(now);
  std::vector<Finding> findings;
  std::map<std::string, size_t> places;
  size_t apart = 0;
  const auto titled = [&](size_t step) {
    return std::to_string(step) + ", " + (step < names.size() ? names[step] : "behind the last command");
  };
  const auto compare = [&](size_t step, const Lines& was, const Lines& is) {
    const Lines told = LinesApart(was, is);
    if (told.empty()) return;
    ++apart;
    const auto [place, isNew] = places.try_emplace(ShapeOf(told), findings.size());
    if (isNew)
      findings.push_back({"step " + titled(step), told, {}});
    else
      findings[place->second].others.push_back(step);
  };
  // Steps that stand on one side only.
  const auto tell = [&](size_t from, size_t to, const std::vector<Lines>& steps, const char* mark,
                        const char* what) {
    if (from == to) return;
    apart += to - from;
    Lines told;
    for (size_t step = from; step < to; ++step)
      for (const std::string& line : steps[step]) told.push_back(mark + Shortened(line, 0));
    const std::string last = to - from > 1 ? ", to step " + titled(to - 1) : "";
    findings.push_back({"step " + titled(from) + last + ": " + what, told, {}});
  };
  // The steps go together by their numbers, unless there are more or fewer than before.
  std::vector<Gap> gaps = {{0, old.size(), 0, fresh.size()}};
  if (old.size() != fresh.size()) gaps = Gaps(old, fresh);
  for (const Gap& gap : gaps) {
    const size_t both = std::min(gap.beforeEnd - gap.before, gap.nowEnd - gap.now);
    for (size_t i = 0; i < both; ++i) compare(gap.now + i, old[gap.before + i], fresh[gap.now + i]);
    tell(gap.now + both, gap.nowEnd, fresh, "+ ", "new");
    tell(gap.before + both, gap.beforeEnd, old, "- ", "gone");
  }
  if (findings.empty()) return before == now ? "" : "They differ in their line ends only.\n";

  std::string text = Counted(apart, "step") + " of " + std::to_string(std::max(old.size(), fresh.size())) +
                     (apart == 1 ? " differs" : " differ") + "\n";
  const size_t mostOfAStep = std::max<size_t>(8, most / 5);
  size_t lines = 0, told = 0;
  for (const Finding& finding : findings) {
    const size_t shown = std::min(finding.told.size(), mostOfAStep);
    if (told++ > 0 && lines + shown + 1 > most)
      return text + "... and " + Counted(findings.size() - told + 1, "other difference") + "\n";
    lines += shown + 2;
    text += "  " + finding.title + "\n";
    for (size_t i = 0; i < shown; ++i) text += "    " + finding.told[i] + "\n";
    if (shown < finding.told.size())
      text += "    ... and " + Counted(finding.told.size() - shown, "other line") + "\n";
    if (!finding.others.empty())
      text += "    the like in " + Counted(finding.others.size(), "other step") + ": " +
              Listed(finding.others) + "\n";
  }
  return text;
}

}  // namespace transcripts
