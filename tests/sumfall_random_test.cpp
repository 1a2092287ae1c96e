// Whatever is done in Sumfall, cards and points add up, and nothing hangs or crashes.
#include <gtest/gtest.h>

#include <array>
#include <map>

#include "tests/random_player.h"
#include "tests/sumfall_cards.h"

namespace {

using namespace modSumfall;

class SumfallPlayer : public RandomPlayer {
 public:
  explicit SumfallPlayer(const std::filesystem::path& folder) : RandomPlayer(folder, "cmdSumfall", 10) {}

  std::map<int, int> combinations;  // by card goal
  int flips = 0;

 private:
  // What matters of the game at one moment.
  struct State {
    long long total = 0, stock = 0, score = 0, combos = 0, round = 0;
    int sum = 0, selected = 0, points = 0, onTable = 0;
    bool running = false, otherSelected = false, freePlace = false, upCard = false;
  };

  State Look(const frmSumfall& game) {
    const Board& board = game.board;
    State s{.total = board.total,
            .stock = std::ssize(board.stock),
            .score = suite_.common.CurrentScore,
            .combos = board.combinations,
            .round = game.CurrentRound,
            .running = game.standing.InGame(),
            .upCard = !board.upCards.empty()};
    s.onTable = static_cast<int>(s.stock + std::ssize(board.upCards));
    const auto select = [&](const std::string& code, int points) {
      s.sum += CardValue(code);
      s.points += points;
      ++s.selected;
    };
    for (const std::string& card : board.field) card.empty() ? s.freePlace = true : ++s.onTable;
    for (int place = 0; place <= kUpCard; ++place) {
      if (!board.selected[place]) continue;
      select(board.CardAt(place), kPoints[place]);
      s.otherSelected |= place > 0;
    }
    return s;
  }

  // No card is there more often than the deck holds it; the up card of the deal counts once more. All that
  // is there is shown.
  void CheckCards(const frmSumfall& game) {
    std::array<int, 69> left{};
    const auto slot = [&](const std::string& code) { return suite_.common.ImageList2(CardKey(code)); };
    const CardCodes& deck = suite_.common.Deck;
    for (int i = 1; i <= UpperBound(deck); ++i) ++left[slot(deck[i])];
    ++left[slot(deck[kPlaces + 1])];
    const Board& board = game.board;
    for (int i = 0; i < kPlaces; ++i) {
      const Image& image = game.FieldCardPicture(i);
      ASSERT_EQ(image.Visible, !board.field[i].empty()) << i;
      ASSERT_EQ(game.FieldSelectionRectangle(i).Visible, board.selected[i]) << i;
      if (board.field[i].empty()) continue;
      const int face = slot(board.field[i]), back = suite_.common.ImageList2("BACK");
      --left[face];
      ASSERT_EQ(image.Picture, game.standing.IsPaused() ? back : face) << "place " << i;
    }
    ASSERT_EQ(game.UpCardSelectionRectangle.Visible, board.selected[kUpCard]);
    for (const auto* pile : {&board.upCards, &board.stock})
      for (const std::string& card : *pile) --left[slot(card)];
    for (int each : left) ASSERT_GE(each, 0) << "a card is there twice";
  }

  // Compares the game with what the last command should have made of it. A round never follows upon itself,
  // and a game only upon a moment without one.
  void Check(GameWindow& window) override {
    const auto& game = static_cast<const frmSumfall&>(window);
    const State now = Look(game), before = std::exchange(before_, now);
    const int clicked = std::exchange(clickedPoints_, 0), laid = UpperBound(suite_.common.Deck) + 1;
    if (!now.running) return;
    if (!before.running || now.round != before.round) {
      debt_ = now.sum - now.total;
      gone_ = 0;
      ASSERT_EQ(now.onTable, laid) << "a deal lays all cards, and one of them twice";
      ASSERT_FALSE(now.otherSelected);
      ASSERT_EQ(now.total, 0);
      return;
    }
    if (now.combos != before.combos) {
      ++combinations[static_cast<int>(game.CardGoal)];
      gone_ += before.selected + 1;
      ASSERT_EQ(now.combos, before.combos + 1);
      ASSERT_TRUE(now.total == 0 && now.selected == 0);
      ASSERT_EQ(now.score, before.score + before.points + clicked);
      debt_ = 0;
    } else if (now.stock != before.stock) {
      ++flips;
      ASSERT_EQ(now.stock, before.stock - 1);
      ASSERT_EQ(now.score, before.score - (before.upCard && before.freePlace ? 200 : 100));
      ASSERT_TRUE(now.total == 0 && now.selected == 0);
      debt_ = 0;
    } else {
      ASSERT_EQ(now.score, before.score);
      if (now.sum - now.total != debt_) {  // only a pause drops the total, and leaves place 0 alone
        ASSERT_EQ(now.total, 0);
        ASSERT_FALSE(now.otherSelected);
        debt_ = now.sum;
      }
    }
    ASSERT_LE(now.total, game.CardGoal);
    ASSERT_EQ(now.onTable + gone_, laid);
    ASSERT_LE(debt_, 13) << "one card at most is forgotten";
    if (Chance(6)) CheckCards(game);  // it is slow
  }

  // Mostly a card that could be selected now, so that there are combinations.
  std::string AtTheTable(GameWindow& window) override {
    const auto& game = static_cast<const frmSumfall&>(window);
    if (Chance(1)) return "click frmSumfall.cmdTakeScore";
    if (Chance(2)) return "click frmSumfall.PlayCardPicture";
    const auto helps = [&](int place) { return game.board.Takes(place) && !game.board.selected[place]; };
    const bool anywhere = Chance(23);
    const int start = Draw(kPlaces);
    for (int i = 0; i < kPlaces; ++i) {
      const int place = (start + i) % kPlaces;
      if (!anywhere && !helps(place)) continue;
      clickedPoints_ = kPoints[place];
      return "click " + Field(place);
    }
    if (!Chance(10) && !helps(kUpCard)) return "click frmSumfall.PlayCardPicture";
    clickedPoints_ = kPoints[kUpCard];
    return "click frmSumfall.UpCardPicture";
  }

  State before_;
  int clickedPoints_ = 0, gone_ = 0;
  long long debt_ = 0;  // what the selected cards are worth more than the total says
};

}  // namespace

TEST(SumfallRandomPlayer, DoesNoHarm) {
  TestFolder folder;
  SumfallPlayer player(folder.Path());
  player.Play(100000);
  std::cout << player.flips << " flips\n";
  for (int goal = kLowestGoal; goal <= kHighestGoal; ++goal) {
    std::cout << "goal " << goal << ": " << player.combinations[goal] << " combinations\n";
    EXPECT_GT(player.combinations[goal], 100) << goal;
  }
}
