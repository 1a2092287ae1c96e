#include "score.h"

#include <algorithm>
#include <utility>

namespace make_tune {
namespace {

/// What the lines read so far have begun.
class Reader {
 public:
  explicit Reader(std::string name) : name_(std::move(name)) {}

  void Line(const std::string& text) {
    ++line_;
    // A sharp belongs to a note; a comment's mark starts the line or follows a blank.
    std::string_view content = text;
    for (std::size_t i = 0; i < content.size(); ++i)
      if (content[i] == '#' && (i == 0 || content[i - 1] == ' ')) content = content.substr(0, i);
    const std::vector<std::string> words = Words(content);
    if (words.empty()) return;
    try {
      if (!Block(words) && !InSection(words, content) && !InStyle(words, content) && !Head(words))
        throw std::invalid_argument("'" + words[0] + "' isn't known here");
    } catch (const std::invalid_argument& error) {
      Fail(line_, error.what());
    }
  }

  Score Take() {
    for (const auto& [section_name, section] : score_.sections) Check(section_name, section);
    if (score_.order.empty()) Fail(line_, "nothing is played: no 'play' line");
    for (const std::string& section : score_.order)
      if (!score_.sections.contains(section)) Fail(play_line_, "no section '" + section + "'");
    return std::move(score_);
  }

 private:
  [[noreturn]] void Fail(int line, const std::string& what) const {
    throw ScoreError(name_ + ":" + std::to_string(line) + ": " + what);
  }

  static int Number(const std::vector<std::string>& words, std::size_t index, int low, int high) {
    const std::optional<int> number = index < words.size() ? ParseInt(words[index]) : std::nullopt;
    if (!number || *number < low || *number > high)
      throw std::invalid_argument("'" + words[0] + "' wants a number from " + std::to_string(low) + " to " +
                                  std::to_string(high));
    return *number;
  }

  static const std::string& Name(const std::vector<std::string>& words, std::size_t index) {
    if (index >= words.size()) throw std::invalid_argument("'" + words[0] + "' wants a name");
    return words[index];
  }

  bool IsPart(const std::string& name) const {
    return std::any_of(score_.parts.begin(), score_.parts.end(),
                       [&](const Part& part) { return part.name == name; });
  }

  const std::string& PartName(const std::vector<std::string>& words, std::size_t index) const {
    if (!IsPart(Name(words, index))) throw std::invalid_argument("no part '" + words[index] + "'");
    return words[index];
  }

  /// The lines that end one block and begin another.
  bool Block(const std::vector<std::string>& words) {
    if (words[0] == "section" || (words[0] == "style" && words.size() == 2 && section_ == nullptr)) {
      section_ = nullptr;
      style_ = nullptr;
      const bool is_new = words[0] == "section" ? (section_ = &score_.sections[Name(words, 1)])->line == 0
                                                : (style_ = &score_.styles[words[1]])->rows.empty();
      if (!is_new) throw std::invalid_argument("'" + words[1] + "' is there already");
      if (section_ != nullptr) section_->line = line_;
      return true;
    }
    if (words[0] == "end" || words[0] == "play") {
      section_ = nullptr;
      style_ = nullptr;
      if (words[0] == "play") {
        score_.order.insert(score_.order.end(), words.begin() + 1, words.end());
        play_line_ = line_;
      }
      return true;
    }
    return false;
  }

  bool Head(const std::vector<std::string>& words) {
    if (section_ != nullptr || style_ != nullptr) return false;
    if (words[0] == "title") {
      score_.title = Name(words, 1);
      for (std::size_t i = 2; i < words.size(); ++i) score_.title += " " + words[i];
    } else if (words[0] == "tempo") {
      score_.tempo = Number(words, 1, 20, 400);
    } else if (words[0] == "swing") {
      score_.swing = Number(words, 1, 50, 75) / 100.0;
    } else if (words[0] == "drum") {
      score_.drums[Name(words, 1)] = Number(words, 2, 0, 127);
    } else if (words[0] == "part") {
      NewPart(words);
    } else {
      return false;
    }
    return true;
  }

  void NewPart(const std::vector<std::string>& words) {
    Part part;
    part.name = Name(words, 1);
    const std::map<std::string, std::pair<int*, int>> fields = {
        {"channel", {&part.channel, 16}}, {"program", {&part.program, 128}},
        {"volume", {&part.volume, 127}},  {"pan", {&part.pan, 127}},
        {"reverb", {&part.reverb, 127}},  {"velocity", {&part.velocity, 127}},
    };
    for (std::size_t i = 2; i < words.size(); i += 2) {
      const auto field = fields.find(words[i]);
      if (field == fields.end()) throw std::invalid_argument("a part has no '" + words[i] + "'");
      *field->second.first = Number(words, i + 1, 1, field->second.second);
    }
    score_.parts.push_back(part);
  }

  bool InStyle(const std::vector<std::string>& words, std::string_view content) {
    if (style_ == nullptr) return false;
    if (words[0] != "bass" && words[0] != "comp" && !score_.drums.contains(words[0])) return false;
    std::string cells;
    for (char c : content.substr(content.find(words[0]) + words[0].size()))
      if (c != ' ' && c != '|') cells.push_back(c);
    const std::string_view known = words[0] == "bass" ? "R358a-." : words[0] == "comp" ? "xX-." : "xXo.";
    if (cells.size() != kCellsPerBar || cells.find_first_not_of(known) != std::string::npos)
      throw std::invalid_argument("a row has eight of '" + std::string(known) + "'");
    style_->rows[words[0]] = cells;
    return true;
  }

  bool InSection(const std::vector<std::string>& words, std::string_view content) {
    if (section_ == nullptr) return false;
    if (words[0] == "chords") {
      for (std::string_view bar : Bars(content)) section_->chords.push_back(ChordsOf(bar));
    } else if (words[0] == "style") {
      AddStyles(words);
    } else if (words[0] == "level") {
      section_->level = Number(words, 1, 10, 150);
    } else if (words[0] == "tempo") {
      section_->tempo_from = Number(words, 1, 20, 400);
      section_->tempo_to = words.size() > 2 ? Number(words, 2, 20, 400) : section_->tempo_from;
    } else if (words[0] == "double") {
      section_->doublings.push_back(
          {PartName(words, 1), Number(words, 2, -24, 24), Number(words, 3, 10, 100)});
    } else if (words[0] == "copy") {
      Copy(words);
    } else if (words[0] == "take") {
      TakePart(words);
    } else if (IsPart(words[0])) {
      for (std::string_view bar : Bars(content)) section_->parts[words[0]].push_back(ParseBar(bar, line_));
    } else {
      return false;
    }
    return true;
  }

  static std::vector<std::string_view> Bars(std::string_view content) {
    std::vector<std::string_view> bars;
    std::size_t begin = content.find('|');
    while (begin != std::string_view::npos) {
      const std::size_t end = content.find('|', begin + 1);
      if (end == std::string_view::npos) break;
      bars.push_back(content.substr(begin + 1, end - begin - 1));
      begin = end;
    }
    if (bars.empty()) throw std::invalid_argument("bars stand between '|' and '|'");
    return bars;
  }

  static std::vector<Chord> ChordsOf(std::string_view bar) {
    std::vector<Chord> chords;
    for (const std::string& word : Words(bar)) {
      const std::optional<Chord> chord = ParseChord(word);
      if (!chord) throw std::invalid_argument("'" + word + "' isn't a chord");
      chords.push_back(*chord);
    }
    if (chords.size() != 1 && chords.size() != 2 && chords.size() != 4)
      throw std::invalid_argument("a bar has one, two or four chords");
    return chords;
  }

  void AddStyles(const std::vector<std::string>& words) {
    for (std::size_t i = 1; i < words.size(); ++i) {
      const std::size_t times = words[i].find('*');
      const std::string name = words[i].substr(0, times);
      if (!score_.styles.contains(name)) throw std::invalid_argument("no style '" + name + "'");
      int count = 1;
      if (times != std::string::npos) count = ParseInt(words[i].substr(times + 1)).value_or(0);
      if (count < 1) throw std::invalid_argument("'" + words[i] + "' doesn't say how often");
      section_->styles.insert(section_->styles.end(), static_cast<std::size_t>(count), name);
    }
  }

  const Section& Source(const std::string& name) const {
    const auto found = score_.sections.find(name);
    if (found == score_.sections.end() || &found->second == section_)
      throw std::invalid_argument("no section '" + name + "' before this one");
    return found->second;
  }

  /// "3-12", the first and the last bar, as a range of indices.
  static std::pair<std::size_t, std::size_t> Range(const std::vector<std::string>& words, std::size_t index,
                                                   const Section& source) {
    const std::string& word = Name(words, index);
    const std::size_t dash = word.find('-');
    const int first = ParseInt(word.substr(0, dash)).value_or(0);
    const int last = dash == std::string::npos ? first : ParseInt(word.substr(dash + 1)).value_or(0);
    if (first < 1 || last < first || last > static_cast<int>(source.chords.size()))
      throw std::invalid_argument("'" + word + "' aren't bars of that section");
    return {static_cast<std::size_t>(first - 1), static_cast<std::size_t>(last)};
  }

  template <typename Row>
  static void Append(Row& to, const Row& from, std::pair<std::size_t, std::size_t> range) {
    const std::size_t end = std::min(range.second, from.size());
    for (std::size_t i = range.first; i < end; ++i) to.push_back(from[i]);
  }

  void Copy(const std::vector<std::string>& words) {
    const Section& source = Source(Name(words, 1));
    const auto range = Range(words, 2, source);
    Append(section_->chords, source.chords, range);
    Append(section_->styles, source.styles, range);
    for (const auto& [part, bars] : source.parts) Append(section_->parts[part], bars, range);
  }

  void TakePart(const std::vector<std::string>& words) {
    const Section& source = Source(Name(words, 2));
    const auto from = source.parts.find(PartName(words, 3));
    if (from == source.parts.end()) throw std::invalid_argument("that part isn't written out there");
    std::vector<Bar> bars;
    Append(bars, from->second, Range(words, 4, source));
    const int shift = words.size() > 5 ? Number(words, 5, -36, 36) : 0;
    for (Bar& bar : bars)
      for (Note& note : bar)
        for (int& pitch : note.pitches) pitch += shift;
    std::vector<Bar>& to = section_->parts[PartName(words, 1)];
    to.insert(to.end(), bars.begin(), bars.end());
  }

  void Check(const std::string& name, const Section& section) const {
    const std::size_t bars = section.chords.size();
    if (bars == 0) Fail(section.line, "section '" + name + "' has no chords");
    const auto compare = [&](const std::string& row, std::size_t size) {
      if (size != bars)
        Fail(section.line, "section '" + name + "' has " + std::to_string(bars) + " bars of chords but " +
                               std::to_string(size) + " of " + row);
    };
    compare("style", section.styles.size());
    for (const auto& [part, written] : section.parts) compare(part, written.size());
  }

  std::string name_;
  Score score_;
  Section* section_ = nullptr;
  Style* style_ = nullptr;
  int line_ = 0;
  int play_line_ = 0;
};

}  // namespace

Score ReadScore(std::istream& in, const std::string& name) {
  Reader reader(name);
  std::string line;
  while (std::getline(in, line)) reader.Line(line);
  return reader.Take();
}

}  // namespace make_tune
