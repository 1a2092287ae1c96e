#include "tools/make-demonstrations/players.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <functional>
#include <map>

#include "games/blackrush/blackrush.h"
#include "games/duopick/duopick.h"
#include "games/fivestack/fivestack.h"
#include "games/handgrid/handgrid.h"
#include "games/spirehold/spirehold.h"
#include "games/sumfall/sumfall.h"
#include "games/treyshift/treyshift.h"

namespace {

std::string NameOf(std::string_view code) {
  static constexpr const char* kNames[] = {"",      "ace",   "two",  "three", "four", "five",  "six",
                                           "seven", "eight", "nine", "ten",   "jack", "queen", "king"};
  return kNames[CardValue(code)];
}

std::string Capital(std::string text) {
  text[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[0])));
  return text;
}

template <class Game>
class PlayerAt : public GoodPlayer {
 public:
  Advice Next(GameWindow& window) override { return For(static_cast<Game&>(window)); }
  virtual Advice For(Game& game) = 0;
};

Advice Take(const GameWindow& game, const std::string& comment) {
  return {{&game.cmdTakeScore}, comment, "take"};
}

// --- Sumfall: the combination that pays most -----------------------------------------------------

class Sumfall : public PlayerAt<frmSumfall> {
  using Board = modSumfall::Board;

 public:
  Advice For(frmSumfall& game) override {
    best_.clear();
    most_ = 0;
    std::vector<int> chosen;
    Seek(game.board, 0, chosen, 0);
    if (!best_.empty()) {
      Advice advice;
      std::string sum;
      for (const int place : best_) {
        advice.clicks.push_back(place == modSumfall::kUpCard ? &game.UpCardPicture
                                                             : &game.FieldCardPicture(place));
        sum += (sum.empty() ? "" : place == best_.back() ? " and " : ", ") + NameOf(game.board.CardAt(place));
      }
      advice.comment =
          best_.size() == 1 ? "A " + sum + " alone makes eleven as well." : Capital(sum) + " make eleven.";
      advice.kind = "sum" + std::to_string(best_.size());
      return advice;
    }
    if (game.board.CanTurn() && !game.board.IsStuck())
      return {{&game.PlayCardPicture},
              "Nothing here makes eleven: the next card costs a hundred points.",
              "turn"};
    return Take(game, "Nothing goes any more. The score is taken.");
  }

 private:
  void Seek(const Board& board, int from, std::vector<int>& chosen, int worth) {
    if (chosen.size() > 4) return;
    for (int place = from; place <= modSumfall::kUpCard; ++place) {
      if (board.selected[place] || !board.Takes(place)) continue;
      Board next = board;
      next.Toggle(place);
      if (next.total > next.goal) continue;
      chosen.push_back(place);
      const int sum = worth + modSumfall::kPoints[place];
      if (next.IsCombination() && sum > most_) {
        most_ = sum;
        best_ = chosen;
      }
      if (!next.IsCombination()) Seek(next, place + 1, chosen, sum);
      chosen.pop_back();
    }
  }
  std::vector<int> best_;
  int most_ = 0;
};

// --- Spirehold: the longest run that can be seen -------------------------------------------------

class Spirehold : public PlayerAt<frmSpirehold> {
  using Board = modSpirehold::Board;

 public:
  Advice For(frmSpirehold& game) override {
    int best = -1, longest = 0;
    for (int card = 0; card < modSpirehold::kCards; ++card) {
      if (!game.board.CheckForLegalMove(card)) continue;
      Board next = game.board;
      if (!next.Take(card)) continue;
      if (const int run = 1 + Run(next, 7); run > longest) longest = run, best = card;
    }
    if (best >= 0)
      return {{&game.UpCardImage(best)},
              longest > 4 ? "From here " + std::to_string(longest) +
                                " cards go one after the other: a long run pays more and more."
                          : "One higher or one lower than the last card: it may go.",
              longest > 4 ? "run" : "step"};
    if (!game.board.stack.empty())
      return {{&game.CardStackPicture}, "Nothing fits. A new card from the stack ends the run.", "turn"};
    return Take(game, "The stack is used up, and nothing fits. The score is taken.");
  }

 private:
  static int Run(const Board& board, int depth) {
    int longest = 0;
    if (depth == 0) return 0;
    for (int card = 0; card < modSpirehold::kCards; ++card) {
      if (!board.CheckForLegalMove(card)) continue;
      Board next = board;
      if (next.Take(card)) longest = std::max(longest, 1 + Run(next, depth - 1));
    }
    return longest;
  }
};

// --- Duopick: pairs before runs ------------------------------------------------------------------

class Duopick : public PlayerAt<frmDuopick> {
 public:
  Advice For(frmDuopick& game) override {
    using namespace modDuopick;
    Advice run;
    for (int first = 0; first < kCards; ++first) {
      Board one = game.board;
      if (!one.Takes(first) || one.Take(first) != Outcome::Selected) continue;
      for (int second = 0; second < kCards; ++second) {
        if (second == first || !one.Takes(second)) continue;
        const std::string &a = game.board.Code(first), &b = game.board.Code(second);
        const Match match = MatchOf(CardValue(a), CardValue(b));
        if (match == Match::Pair)
          return {{&game.PlayCard(first), &game.PlayCard(second)},
                  "Two of a rank are a pair, and pay best: " + NameOf(a) + " and " + NameOf(b) + ".",
                  "pair"};
        if (match == Match::Run && run.clicks.empty())
          run = {{&game.PlayCard(first), &game.PlayCard(second)},
                 Capital(NameOf(a)) + " and " + NameOf(b) + " are neighbours: a run.",
                 "run"};
      }
    }
    if (!run.clicks.empty()) return run;
    if (!game.board.stack.empty())
      return {
          {&game.CardStackPicture}, "No two free cards go together. The stack brings another one.", "turn"};
    return Take(game, "The round is paid when it ends.");
  }
};

// --- Columns that go to 21 -----------------------------------------------------------------------

// How good a column stands that has such a total.
int Standing21(int total) {
  if (total == 21) return 1000;
  if (total == 11 || total == 10) return 90;
  if (total == 20) return 45;
  if (total > 15) return 20;
  if (total > 11) return 10;
  return 60 + total;
}

template <class Board>
int BestColumn(Board& board, const std::function<bool(int)>& takes) {
  int best = -1, most = -10'000;
  for (int i = 0; i < static_cast<int>(board.columns.size()); ++i) {
    const Column21& column = board.columns[i];
    const int with = column.TotalWith(board.Next());
    if (!takes(i) || with > kTwentyOne) continue;
    const int gain = Standing21(with) - Standing21(static_cast<int>(column.total));
    if (gain > most) most = gain, best = i;
  }
  return best;
}

class Fivestack : public PlayerAt<frmFivestack> {
 public:
  Advice For(frmFivestack& game) override {
    modFivestack::Board& board = game.board;
    int total = 0, open = 0;
    for (const Column21& column : board.columns) {
      total += static_cast<int>(column.total);
      open += column.total < 19;
    }
    if (!board.HasNext() || total >= 104 || (total >= modFivestack::kLowestPaid && open == 0))
      return Take(game, "The columns make " + std::to_string(total) + " together. From 97 on a round pays.");
    const int best = BestColumn(board, [&](int column) { return board.Takes(column); });
    if (best >= 0) {
      const int with = board.columns[best].TotalWith(board.Next());
      if (with == kTwentyOne) return {{&game.cmdHit(best)}, "Twenty-one: this column is perfect.", "21"};
      if (with == 10 || with == 11)
        return {{&game.cmdHit(best)},
                "A column of " + std::to_string(with) + " waits for a ten, jack, queen or king.",
                "ten"};
      return {{&game.cmdHit(best)}, "All five columns are to come near twenty-one.", "lay"};
    }
    if (board.passesLeft > 0)
      return {{&game.cmdPass}, "It fits nowhere. A card may be passed now and then.", "pass"};
    if (total >= modFivestack::kLowestPaid) return Take(game, "It fits nowhere: the score is taken.");
    int least = 0;
    for (int i = 0; i < modFivestack::kColumns; ++i)
      if (board.Takes(i) &&
          (!board.Takes(least) || board.columns[i].softAces > board.columns[least].softAces))
        least = i;
    return {{&game.cmdHit(least)}, "", ""};
  }
};

class Blackrush : public PlayerAt<frmBlackrush> {
 public:
  Advice For(frmBlackrush& game) override {
    modBlackrush::Board& board = game.board;
    if (board.position >= modBlackrush::kLastCard + 1 || !board.HasNext()) return Take(game, "");
    const int best = BestColumn(board, [](int) { return true; });
    if (best >= 0) {
      const int with = board.columns[best].TotalWith(board.Next());
      if (with == kTwentyOne)
        return {
            {&game.cmdHit(best)}, "Twenty-one! The column goes, and the bonus for the next one rises.", "21"};
      if (board.columns[best].cards.size() == kCardsOfColumn - 1)
        return {{&game.cmdHit(best)}, "Five cards without going over pay as well.", "five"};
      return {{&game.cmdHit(best)}, "Each column collects cards up to twenty-one.", "lay"};
    }
    if (board.mayPass)
      return {{&game.cmdPass}, "This card would be too much everywhere: it is passed.", "pass"};
    return Take(game, "No column takes this card. The score is taken.");
  }
};

// --- Handgrid: rows of a suit, columns of a rank -------------------------------------------------

class Handgrid : public PlayerAt<frmHandgrid> {
 public:
  Advice For(frmHandgrid& game) override {
    using namespace modHandgrid;
    const Board& board = game.board;
    int best = -1, most = -1000;
    for (int cell = 0; cell < kCells; ++cell) {
      if (!board.cells[cell].empty()) continue;
      int worth = 0;
      for (int other = 0; other < kCells; ++other) {
        const std::string& code = board.cells[other];
        if (code.empty() || other == cell) continue;
        const bool sameSuit = code.back() == board.hole.back(),
                   sameRank = CardValue(code) == CardValue(board.hole);
        if (other / kSide == cell / kSide) worth += sameSuit ? 12 : -14;
        if (other % kSide == cell % kSide) worth += sameRank ? 40 : -3;
      }
      if (worth > most) most = worth, best = cell;
    }
    if (best < 0) return Take(game, "");
    const Hand before = board.hands[kSide + best % kSide];
    Board next = board;
    next.Lay(best);
    next.EvaluateLines();
    const Hand row = next.hands[best / kSide], column = next.hands[kSide + best % kSide];
    if (row == Hand::Flush)
      return {{&game.PlayCards(best)}, "Five cards of one suit: a flush in this row.", "flush"};
    if (column == Hand::Four)
      return {{&game.PlayCards(best)}, "Four " + NameOf(board.hole) + "s in one column.", "four"};
    if (column == Hand::FullHouse) return {{&game.PlayCards(best)}, "Three and two: a full house.", "house"};
    if (column == Hand::Trips && before != column)
      return {{&game.PlayCards(best)}, "Three of a rank in one column.", "trips"};
    if (column == Hand::OnePair && before != column)
      return {{&game.PlayCards(best)}, "Two of a rank make a pair at once.", "pair"};
    return {{&game.PlayCards(best)},
            "Each row and each column is a hand of poker: here rows collect suits, columns ranks.",
            "lay"};
  }
};

// --- Treyshift: the best of many ways through the deck ------------------------------------------

class Treyshift : public PlayerAt<frmTreyshift> {
  using Board = modTreyshift::Board;
  using Zone = modTreyshift::Zone;
  struct Move {
    Zone from;
    int slot;
    Zone to;
    int target;
  };
  struct Way {
    Board board;
    std::vector<Move> moves;
    long long earned = 0, hopes = 0;
  };

 public:
  Advice For(frmTreyshift& game) override {
    if (next_ >= plan_.size() || !(game.board == expected_)) {
      plan_ = Plan(game.board);
      next_ = 0;
    }
    if (plan_.empty())
      return Take(game, "Nothing more is to be earned: the seconds that are left pay as well.");
    const Move move = plan_[next_++];
    expected_ = game.board;
    const auto earned = Make(expected_, move);
    const Control* const from = move.from == Zone::Temp ? &game.TempCard(move.slot) : &game.UpCard(move.slot);
    if (move.to == Zone::Temp)
      return {{from, &game.TempCard(move.target)},
              "It goes with nothing now, and waits in the storage.",
              "store"};
    const Control* const to = &game.PlayCard(move.target);
    if (earned >= modTreyshift::kTripValue)
      return {{from, to}, "Three of a rank are a trip, which pays most. The column is free again.", "trip"};
    if (earned >= modTreyshift::kFlushValue)
      return {{from, to}, "Three in sequence, of one suit: a run that pays as a flush, too.", "flush"};
    if (earned > 0) return {{from, to}, "A run pays little, but makes room.", "run"};
    if (game.board.FieldCards[move.target].empty())
      return {{from, to}, "An empty column takes any card.", "empty"};
    return {{from, to}, "Cards of one rank are collected in one column.", "collect"};
  }

 private:
  // What the move pays; -1 if it can't be made.
  static long long Make(Board& board, const Move& move) {
    int slot = move.slot, target = move.target;
    if (!board.Takes(move.from, slot) || board.Take(move.from, slot) != modTreyshift::Outcome::Selected)
      return -1;
    if (!board.Takes(move.to, target) || board.Take(move.to, target) != modTreyshift::Outcome::Laid)
      return -1;
    if (move.to == Zone::Temp) return 0;
    const int column = move.target;
    const modTreyshift::Worth worth = board.Judge(column);
    if (worth == modTreyshift::Worth::Nothing) return 0;
    const long long pays =
        worth == modTreyshift::Worth::Trip
            ? modTreyshift::kTripValue
            : modTreyshift::kRunValue + (board.CheckFlush(column) ? modTreyshift::kFlushValue : 0);
    board.ClearColumn(column);
    return pays;
  }

  static long long Hopes(const Board& board) {
    long long hopes = 0;
    for (int column = 0; column < modTreyshift::kColumns; ++column) {
      const std::string& first = board.FieldCards[column];
      const std::string& second = board.FieldCards[column + modTreyshift::kSecondRow];
      if (!board.FieldCards[column + modTreyshift::kThirdRow].empty())
        hopes -= 9000;
      else if (second.empty())
        hopes += first.empty() ? 700 : 300;
      else if (CardValue(first) == CardValue(second))
        hopes += 2200;
      else if (std::abs(CardValue(first) - CardValue(second)) == 1)
        hopes += first.back() == second.back() ? 900 : -300;
      else
        hopes -= 5000;
    }
    for (const std::string& card : board.TempCards) hopes -= card.empty() ? 0 : 500;
    return hopes;
  }

  static void Add(std::vector<Way>& ways, const Way& way, const Move& move) {
    Way next = way;
    const long long pays = Make(next.board, move);
    if (pays < 0) return;
    next.earned += pays;
    next.moves.push_back(move);
    next.hopes = next.earned + Hopes(next.board);
    ways.push_back(std::move(next));
  }

  static void Keep(std::vector<Way>& ways, size_t most) {
    std::ranges::stable_sort(ways, std::greater(), &Way::hopes);
    if (ways.size() > most) ways.resize(most);
  }

  // By the cards of the deck, one after the other; before each of them waiting cards may come out.
  static std::vector<Move> Plan(const Board& board) {
    constexpr size_t kWays = 250;
    std::vector<Way> ways{{board, {}, 0, Hopes(board)}};
    Way best = ways.front();
    while (!ways.empty()) {
      std::vector<Way> out = ways;
      for (const Way& way : ways)
        for (int slot = 0; slot < modTreyshift::kTempSlots; ++slot)
          for (int column = 0; column < modTreyshift::kColumns && !way.board.TempCards[slot].empty();
               ++column)
            Add(out, way, {Zone::Temp, slot, Zone::Field, column});
      Keep(out, 2 * kWays);
      std::vector<Way> next;
      for (const Way& way : out) {
        if (way.earned > best.earned) best = way;
        if (!way.board.CanMove() || way.board.DeckIsUsedUp()) continue;
        for (int column = 0; column < modTreyshift::kColumns; ++column)
          Add(next, way, {Zone::Deck, modTreyshift::kInPlay, Zone::Field, column});
        for (int slot = 0; slot < modTreyshift::kTempSlots; ++slot)
          if (way.board.TempCards[slot].empty()) {
            Add(next, way, {Zone::Deck, modTreyshift::kInPlay, Zone::Temp, slot});
            break;
          }
      }
      Keep(next, kWays);
      ways = std::move(next);
    }
    return best.moves;
  }

  std::vector<Move> plan_;
  size_t next_ = 0;
  Board expected_;
};

}  // namespace

std::unique_ptr<GoodPlayer> PlayerOf(const std::string& game) {
  if (game == "Sumfall") return std::make_unique<Sumfall>();
  if (game == "Fivestack") return std::make_unique<Fivestack>();
  if (game == "Blackrush") return std::make_unique<Blackrush>();
  if (game == "Duopick") return std::make_unique<Duopick>();
  if (game == "Spirehold") return std::make_unique<Spirehold>();
  if (game == "Handgrid") return std::make_unique<Handgrid>();
  if (game == "Treyshift") return std::make_unique<Treyshift>();
  return nullptr;
}
