#include "record/head.h"

#include <charconv>
#include <climits>

#include "window/moments.h"

namespace record {

namespace {

constexpr char kTitle[] = "card-haven-record";
constexpr int kMostTwips = 10'000'000;

// What windows share and don't set anew when they open.
template <class Visitor>
void VisitKept(modCommon& common, Visitor visit) {
  visit("DeckDesign", common.DeckDesign);
  visit("CurrentScore", common.CurrentScore);
  visit("PreviousScore", common.PreviousScore);
  visit("TimeBonus", common.TimeBonus);
  visit("DialSeconds", common.DialSeconds);
  visit("DialLastColor", common.DialLastColor);
}
constexpr const char* kKept[] = {"DeckDesign", "CurrentScore", "PreviousScore",
                                 "TimeBonus",  "DialSeconds",  "DialLastColor"};
constexpr const char* kBacks[] = {"FULL", "BACK", "HALF"};

int Int(Line& line, long long lowest = INT_MIN, long long highest = INT_MAX) {
  return static_cast<int>(line.Number(lowest, highest));
}

// "file "\\Name.Ini" ...": a key that stands for a place within the folder, and never leads out of it.
std::string ReadKey(Line& line) {
  std::string key = line.Word();
  if (key.empty()) line.Wrong("a file has no name");
  return key;
}

void ReadMemory(Line& line, const std::string& what, const Shelf& shelf, Files::Memory& memory) {
  if (what == "stuck") {
    memory.stuck = true;
    return;
  }
  const auto path = shelf.PathOf(ReadKey(line));
  if (what == "known") memory.known[path] = line.Word();
  if (what == "unread") memory.unread.insert(path);
  if (what == "told") memory.told.emplace(static_cast<FileRefusal::What>(Int(line, 0, 3)), path);
  if (what == "waits") {
    const bool replaces = line.Flag();
    memory.waiting[path] = {line.Word(), replaces};
  }
}

}  // namespace

std::string KeyOf(const Label& label) {
  return std::to_string(label.FontSize.get()) + (label.FontBold ? " 1 " : " 0 ") +
         Quoted(label.FontName.get()) + " " + Quoted(label.Caption.get());
}

void Head::Take(modCommon& common) {
  Platform& platform = common.platform;
  chance = platform.random.State();
  given = common.chanceIsGiven;
  deal = common.askedDeal.number;
  foreseen = platform.random.AllForeseen();
  savedGame = platform.CommandLine;
  VisitKept(common, [&](const char*, auto& value) { kept.push_back(value); });
  for (size_t i = 0; i < backs.size(); ++i) backs[i] = common.ImageList2(kBacks[i]);
  memory = common.files.Remember();
  if (const Visual* active = common.selector->ActiveControl()) focus = active->name;
}

void Head::Give(modCommon& common) const {
  Platform& platform = common.platform;
  if (given || opens.empty()) platform.random.Seed(chance);
  common.chanceIsGiven = given;
  common.askedDeal = {deal, deal != 0};
  for (const auto& [bounds, results] : foreseen)
    for (int result : results) platform.random.Foresee(bounds.first, bounds.second, result);
  platform.CommandLine = savedGame;
  size_t next = 0;
  VisitKept(common, [&](const char*, auto& value) { value = kept[next++]; });
  UseBackDesign(common.ImageList2, {"", "", backs[0], backs[1], backs[2]});
  common.files.Recall(memory);
  Control* const active = common.selector->find(focus);
  if (active && active->kind == Control::Kind::CommandButton) static_cast<Visual*>(active)->SetFocus();
}

std::string Head::Text(const Shelf& shelf, bool withMemory) const {
  std::string text = std::string(kTitle) + " " + std::to_string(kVersion) + "\n";
  const auto put = [&](const std::string& name, const std::string& rest) { text += name + rest + "\n"; };
  put("program ", program);
  put("opened ", IsoText(opened));
  put("chance ", std::to_string(chance) + (given ? " given" : ""));
  if (deal != 0) put("deal", Numbers({deal}));
  if (!opens.empty()) put("opens ", opens + (today ? " today" : ""));
  for (const auto& [bounds, results] : foreseen)
    for (int result : results) put("random", Numbers({bounds.first, bounds.second, result}));
  put("ring", Numbers({ring, ringDue}));
  if (!focus.empty()) put("focus ", focus);
  for (size_t i = 0; i < kept.size(); ++i) put(std::string("kept ") + kKept[i], Numbers({kept[i]}));
  put("backs", Numbers({backs[0], backs[1], backs[2]}));
  if (!folder.empty()) put("folder ", Quoted(folder));
  if (!savedGame.empty()) put("savedgame ", Quoted(savedGame));
  put("screen", Numbers({screen.width, screen.height}));
  for (const auto& [key, extent] : texts) put("text", Numbers({extent.width, extent.height}) + " " + key);
  for (const auto& [key, content] : files) put("file ", Quoted(key) + " " + Quoted(content));
  const auto quoted = [&](const std::filesystem::path& path) { return Quoted(shelf.KeyOf(path)); };
  if (withMemory) {
    for (const auto& [path, content] : memory.known) put("known ", quoted(path) + " " + Quoted(content));
    for (const auto& [path, change] : memory.waiting)
      put("waits ", quoted(path) + (change.replaces ? " 1 " : " 0 ") + Quoted(change.text));
    for (const auto& path : memory.unread) put("unread ", quoted(path));
    for (const auto& [what, path] : memory.told)
      put("told ", quoted(path) + Numbers({static_cast<long long>(what)}));
    if (memory.stuck) put("stuck", "");
  }
  return text + "begin\n";
}

// What isn't written as we would write it is none.
DateTime ReadMoment(Line& line) {
  const std::string text = line.Word();
  const auto number = [&](size_t at, size_t digits) {
    int value = 0;
    if (at + digits <= text.size()) std::from_chars(text.data() + at, text.data() + at + digits, value);
    return value;
  };
  DateTime at{number(0, 4), number(5, 2), number(8, 2), number(11, 2), number(14, 2), number(17, 2)};
  at.offset = 60 * number(20, 2) + number(23, 2);
  if (text.find('-', 19) == 19) at.offset = -at.offset;
  const bool sound = at.year > 0 && at.month > 0 && at.month <= 12 && at.day > 0 && at.day <= 31;
  if (!sound || IsoText(at) != text) line.Wrong("there is no moment " + text);
  return at;
}

Extent ReadExtent(Line& line) {
  const int width = Int(line, 0, kMostTwips), height = Int(line, 0, kMostTwips);
  return {width, height};
}

bool BeginsAsRecord(std::string_view text) { return text.starts_with(std::string(kTitle) + " "); }

Head ReadHead(LineReader& lines) {
  Head head;
  Line line;
  if (!lines.Read(line) || line.Word() != kTitle) throw NoRecord{"it doesn't begin as one"};
  if (const long long version = line.Number(0, INT_MAX); version != kVersion)
    throw NoRecord{"its form is of version " + std::to_string(version)};
  head.kept.assign(std::size(kKept), 0);
  head.backs = {kPalmTree.full, kPalmTree.back, kPalmTree.half};
  while (true) {
    if (!lines.Read(line)) throw NoRecord{"it is cut off"};
    const std::string what = line.Word();
    if (what == "begin") break;
    if (what == "program") {
      head.program = line.Word();
    } else if (what == "opened") {
      head.opened = ReadMoment(line);
    } else if (what == "chance") {
      const std::string word = line.Word();
      const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), head.chance);
      if (error != std::errc() || end != word.data() + word.size()) line.Wrong("chance is no number");
      if (!line.AtEnd()) head.given = line.Word() == "given";
    } else if (what == "deal") {
      head.deal = Int(line, 1, kLastDeal);
    } else if (what == "opens") {
      head.opens = line.Word();
      if (!line.AtEnd()) head.today = line.Word() == "today";
    } else if (what == "random") {
      const int lower = Int(line), upper = Int(line, lower);
      head.foreseen[{lower, upper}].push_back(Int(line, lower, upper));
    } else if (what == "ring") {
      head.ring = Int(line, 0, kRing - 1);
      head.ringDue = line.Number(-kLongest, kRingTick);
    } else if (what == "focus") {
      head.focus = line.Word();
    } else if (what == "kept") {
      const std::string name = line.Word();
      bool known = false;
      for (size_t i = 0; i < std::size(kKept); ++i) {
        if (name != kKept[i]) continue;
        const bool isLong = name.ends_with("Score") || name == "TimeBonus" || name == "DialLastColor";
        head.kept[i] = isLong ? line.Number(INT_MIN, INT_MAX) : line.Number(SHRT_MIN, SHRT_MAX);
        known = true;
      }
      if (!known) line.Wrong("there is no value " + name);
    } else if (what == "backs") {
      for (int& back : head.backs) back = Int(line, 1, kPictureCount);
    } else if (what == "folder") {
      head.folder = line.Word();
      if (!head.folder.starts_with("/")) line.Wrong("there is no such folder");
    } else if (what == "savedgame") {
      head.savedGame = line.Word();
    } else if (what == "screen") {
      head.screen = ReadExtent(line);
    } else if (what == "text") {
      const Extent extent = ReadExtent(line);
      const std::string size = line.Word(), bold = line.Word(), font = Quoted(line.Word());
      head.texts[size + " " + bold + " " + font + " " + Quoted(line.Word())] = extent;
    } else if (what == "file") {
      const std::string key = ReadKey(line);
      head.files[key] = line.Word();
    } else if (what == "known" || what == "waits" || what == "unread" || what == "told" || what == "stuck") {
      ReadMemory(line, what, Shelf(head.folder.empty() ? kFolder : head.folder), head.memory);
    } else {
      line.Wrong("there is nothing like \"" + what + "\"");
    }
    line.End();
  }
  return head;
}

}  // namespace record
