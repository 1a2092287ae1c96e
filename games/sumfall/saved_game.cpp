#include "games/sumfall/saved_game.h"

#include <vector>

#include "games/sumfall/board.h"
#include "window/number.h"
#include "window/text.h"

namespace modSumfall {
namespace {

constexpr const char* kDeckSections[3] = {"[Round 1 Deck]", "[Round 2 Deck]", "[Round 3 Deck]"};

// No game was ever played with a longer one, and counting up its seconds would take minutes.
constexpr int kLongestTimeLimit = 600;

[[noreturn]] void RaiseDamaged() { throw RuntimeError("Bad file format"); }

// Takes field after field of a text: commas end a field as line ends do.
class FieldReader {
 public:
  explicit FieldReader(std::string_view text) : rest_(text) {}

  bool AtEnd() const { return rest_.empty(); }

  std::string_view Take() {
    if (AtEnd()) RaiseDamaged();
    const size_t end = rest_.find_first_of(",\n");
    const std::string_view field = rest_.substr(0, end);
    rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
    return Trim(field);
  }

  int TakeNumber() {
    int number = 0;
    if (!ParseLong(Take(), number)) RaiseDamaged();
    return number;
  }

 private:
  std::string_view rest_;
};

}  // namespace

std::string FormatSavedGame(const SavedGame& game) {
  std::vector<std::string> lines = {
      "[Card Goal]",  std::to_string(game.cardGoal),
      "[Time Limit]", std::to_string(game.timeLimit),
      "[Score]",      std::to_string(game.score),
      "[Custom]",     game.custom ? "True" : "False",
      "[UserName]",   game.userName.empty() ? "an anonymous user" : game.userName};
  for (int round = 0; round < 3; ++round) {
    const CardCodes& deck = game.decks[round];
    if (round > 0 && (deck.size() < 2 || deck[1].empty())) continue;
    lines.push_back(kDeckSections[round]);
    for (size_t i = 1; i < deck.size(); ++i) lines.emplace_back(CardKey(deck[i]));
  }
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

SavedGame ParseSavedGame(std::string_view text) {
  SavedGame game;
  FieldReader fields(text);
  if (fields.Take() != "[Card Goal]") RaiseDamaged();
  game.cardGoal = fields.TakeNumber();
  if (game.cardGoal < kLowestGoal || game.cardGoal > kHighestGoal) RaiseDamaged();
  const size_t slots = DeckSize(game.cardGoal) + 1;
  for (CardCodes& deck : game.decks) deck.assign(slots, "");
  while (!fields.AtEnd()) {
    const std::string_view section = fields.Take();
    if (section == "[Time Limit]") {
      game.timeLimit = fields.TakeNumber();
      if (game.timeLimit < 1 || game.timeLimit > kLongestTimeLimit) RaiseDamaged();
    } else if (section == "[UserName]") {
      game.userName = NameOnOneLine(fields.Take());
    } else if (section == "[Score]") {
      game.score = fields.TakeNumber();
    } else if (section == "[Custom]") {
      game.custom = fields.Take() != "False";
    }
    for (int round = 0; round < 3; ++round)
      if (section == kDeckSections[round])
        for (size_t i = 1; i < slots; ++i) game.decks[round][i] = fields.Take();
  }
  return game;
}

const char* Verdict(int score) {
  if (score < 20000) return "amassed a pitiful";
  if (score <= 40000) return "accumulated a sorry";
  if (score <= 60000) return "earned a pretty weak";
  if (score <= 80000) return "earned a mediocre";
  if (score <= 100000) return "earned a respectable";
  if (score <= 120000) return "earned a decent";
  if (score <= 140000) return "earned a darned good";
  if (score <= 160000) return "earned an incredible";
  // "earned an outstanding" would have the same range as the verdict before, and so is never given.
  return "earned an unbelievable";
}

}  // namespace modSumfall
