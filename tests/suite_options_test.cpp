// Command lines: what they mean, and what is refused.
#include <gtest/gtest.h>

#include "app/options.h"
#include "games/games.h"
#include "tests/documents.h"

namespace {

// "refused", or what was understood.
std::string Told(Program program, const std::vector<std::string>& arguments) {
  try {
    const Options options = ParseOptions(program, arguments);
    return std::to_string(options.deal) + " " + (options.today ? "today " : "") + options.game + "|" +
           options.savedGame;
  } catch (const BadOptions&) {
    return "refused";
  }
}

// All games in the order of their buttons, each written that way.
template <class Write>
std::string Names(const std::string& between, Write write) {
  std::string names;
  for (const GameEntry& game : AllGames())
    names += (names.empty() ? "" : between) + write(std::string(game.Name()));
  return names;
}

}  // namespace

TEST(CommandLine, DealsGamesAndFiles) {
  using enum Program;
  const struct {
    Program program;
    std::vector<std::string> arguments;
    std::string told;
  } kRows[] = {
      {Console, {"--deal", "1"}, "1 |"},
      {Desktop, {"--deal=999999999"}, "999999999 |"},
      {Console, {"--deal", "0"}, "refused"},
      {Console, {"--deal", "1000000000"}, "refused"},
      {Console, {"--deal", "7x"}, "refused"},
      {Console, {"--deal"}, "refused"},
      {Desktop, {"--game", "sumfall"}, "0 Sumfall|"},
      {Console, {"--today", "Treyshift"}, "0 today Treyshift|"},
      {Console, {"--today", "Sumfall!"}, "refused"},
      {Console, {"--statistics", "Duopick"}, "0 Duopick|"},
      {Console, {"--statistics", "--history"}, "0 |"},
      {Console, {"--statistics", "mine.sfl"}, "refused"},
      {Desktop, {"--history"}, "refused"},
      {Console, {"mine.sfl"}, "0 |mine.sfl"},
      {Desktop, {"my game.sfl"}, "0 Sumfall|my game.sfl"},
      {Desktop, {"--console", "mine.sfl"}, "0 |mine.sfl"},
      {Desktop, {"file:///home/me/100%25%20sch%C3%B6n.sfl"}, "0 Sumfall|/home/me/100% schön.sfl"},
      {Desktop, {"file://here/a%2.sfl"}, "0 Sumfall|/a%2.sfl"},
      {Desktop, {"one.sfl", "two.sfl"}, "refused"},
  };
  for (const auto& row : kRows) EXPECT_EQ(Told(row.program, row.arguments), row.told);
}

// What is installed beside the programs, and README, know the games by name.
TEST(Documents, NameAllGames) {
  const std::filesystem::path root = CARDHAVEN_SOURCE, packaging = root / "packaging";
  const auto plain = [](const std::string& name) { return name; };
  const std::string list = Names(" ", plain);
  for (const auto& [name, lists] : {std::pair{"cardhaven.bash", 1},
                                    {"cardhaven.fish", 2},
                                    {"cardhaven.zsh", 2},
                                    {"cardhaven-console.fish", 3},
                                    {"cardhaven-console.zsh", 3}}) {
    const std::string text = ReadFile(packaging / "completions" / name);
    int found = 0;
    for (size_t at = 0; (at = text.find(list, at)) != std::string::npos; ++at) ++found;
    EXPECT_EQ(found, lists) << name << " completes " << list;
  }
  const std::string entry = ReadFile(packaging / "card-haven.desktop");
  EXPECT_NE(entry.find("\nActions=" + Names(";", plain) + ";\n"), std::string::npos);
  EXPECT_EQ(entry.substr(entry.find("\n[Desktop Action")),
            "\n" + Names("\n", [](const std::string& name) {
              return "[Desktop Action " + name + "]\nName=" + name + "\nExec=cardhaven --game " + name + "\n";
            }));
  for (const std::filesystem::path& file : {root / "README.md", packaging / "debian/control",
                                            packaging / "example.quillmark.card_haven.metainfo.xml"})
    for (const GameEntry& game : AllGames())
      EXPECT_NE(ReadFile(file).find(game.Name()), std::string::npos) << file << " lacks " << game.Name();
}
