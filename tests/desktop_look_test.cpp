// Looks at every window as a player does: nothing cut off, nothing on top of something else, letters that can
// be read on whatever lies behind them.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QFontInfo>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <algorithm>
#include <set>
#include <tuple>

#include "games/blackrush/custom.h"
#include "games/duopick/duopick.h"
#include "games/fivestack/custom.h"
#include "games/handgrid/handgrid.h"
#include "games/spirehold/spirehold.h"
#include "games/sumfall/dialogs.h"
#include "games/treyshift/custom.h"
#include "suite/catalogue.h"
#include "suite/dialogs.h"
#include "tests/desktop_screen.h"
#include "tests/harness.h"
#include "window/desktop/desktop.h"
#include "window/desktop/painting/canvas.h"
#include "window/desktop/painting/contrast.h"
#include "window/desktop/painting/lettering.h"
#include "window/desktop/painting/notes.h"
#include "window/desktop/painting/room.h"
#include "window/desktop/painting/style.h"
#include "window/desktop/view/form_window.h"
#include "window/player.h"

namespace {

// Waits for nothing: each pause is a moment to look at what the player would see meanwhile.
class Screen : public DesktopFrontEnd {
 public:
  using DesktopFrontEnd::DesktopFrontEnd;
  std::function<void()> onPause;
  std::vector<std::string> told;  // by message boxes; questions are answered with Yes

  Event Next(const Wait& wait) override {
    if (wait.box) return {.kind = Event::Kind::Answer, .answer = AnswersOf(wait.box->buttons).front()};
    if (onPause) onPause();
    // Whoever has a great score closes the window that asks for the name.
    if (wait.modal) return {Event::Kind::Close, wait.modal};
    return {};
  }
  void BoxShown(const MessageBox& box) override { told.push_back(box.text); }
  void BoxGone(const MessageBox&) override {}
  void PlayWave(const std::string&) override {}
  void MediaCommand(const std::string&) override {}
};

// Where the text of a visible label stands.
struct Text {
  const Label* label;
  size_t place;  // in the scene
  QRectF letters;
  QRectF whole;  // with the plate or outline
};

// How well each stretch of a label's letters stands out from what is right around them, in the picture
// itself: the worst of all stretches.
struct Seen {
  double worst = 21;
  int stretches = 0;
  QColor letters = {};
};

QColor Median(std::vector<QColor>& colours) {
  const auto middle = colours.begin() + static_cast<long>(colours.size() / 2);
  std::ranges::nth_element(colours, middle, {}, [](const QColor& colour) { return qGray(colour.rgb()); });
  return *middle;
}

Seen LookAt(const QImage& picture, const TextBlock& block) {
  // Where the letters are: full ink, and the pixels two and three away from any ink.
  QImage ink(picture.size(), QImage::Format_Grayscale8);
  ink.fill(0);
  QPainter painter(&ink);
  painter.setFont(block.font);
  painter.setPen(Qt::white);
  for (const TextLine& line : block.lines) painter.drawText(line.baseline, line.text);
  painter.end();
  const QRect area = block.bounds.toAlignedRect().adjusted(-3, -3, 3, 3) & picture.rect();
  const auto isNear = [&](int x, int y, int reach) {
    for (int dy = -reach; dy <= reach; ++dy)
      for (int dx = -reach; dx <= reach; ++dx)
        if (picture.rect().contains(x + dx, y + dy) && ink.constScanLine(y + dy)[x + dx] > 20) return true;
    return false;
  };
  Seen seen;
  constexpr int kStretch = 30;
  for (int left = area.left(); left < area.right(); left += kStretch) {
    std::vector<QColor> ring, letters;
    for (int y = area.top(); y <= area.bottom(); ++y)
      for (int x = left; x < std::min(left + kStretch, area.right()); ++x) {
        if (ink.constScanLine(y)[x] > 240)
          letters.push_back(picture.pixelColor(x, y));
        else if (!isNear(x, y, 1) && isNear(x, y, 2))
          ring.push_back(picture.pixelColor(x, y));
      }
    if (ring.size() < 30 || letters.empty()) continue;
    ++seen.stretches;
    seen.letters = Median(letters);
    seen.worst = std::min(seen.worst, Contrast(seen.letters, Median(ring)));
  }
  return seen;
}

class Look : public testing::Test {
 protected:
  void SetUp() override {
    suite.Start();
    Settle();
  }

  GameWindow& Open(const GameEntry& game) {
    Form& selector = *front.platform.FindForm("frmSelect");
    player::Click(*selector.find(game.button));
    Settle();
    return *suite.common.window;
  }
  void Close(Form& game) {
    player::Close(game);
    Settle();
    for (const std::string& text : front.told) EXPECT_TRUE(text.ends_with('?')) << text;  // no failures
    front.told.clear();
  }
  void Settle() {
    for (int i = 0; i < 3; ++i) QApplication::processEvents();
  }
  void Resize(Form& form, QSize size) {
    player::Resize(form, size.width() * 15, size.height() * 15);
    Settle();
  }

  std::vector<Text> Texts(const Form& form, const Scene& scene) {
    std::vector<Text> texts;
    for (size_t i = 0; i < scene.size(); ++i) {
      if (scene[i].control->kind != Control::Kind::Label) continue;
      const auto& label = static_cast<const Label&>(*scene[i].control);
      const TextBlock block = LayOut(label, scene[i].rect);
      const QRectF letters = block.bounds;
      if (letters.isEmpty() || IsHidden(scene, i, letters)) continue;
      for (const TextLine& line : block.lines)
        if (line.text.contains(QChar(0x2026)) && label.Caption.get().size() < 50)
          Fault(form, label.NameInForm() + " \"" + label.Caption.get() + "\" is shortened");
      const bool plain = !IsBoard(form) || label.parent != &form ||
                         (BoxOf(scene, i) && Contrast(ToColour(label.ForeColor), style::kIvory) >= kReadable);
      const double aside = plain ? 0 : label.FontSize < 14 ? 5 : 2;
      texts.push_back({&label, i, letters, letters.adjusted(-aside, 0, aside, 0)});
    }
    return texts;
  }
  // Whether a panel lies over all of it.
  static bool IsHidden(const Scene& scene, size_t place, const QRectF& letters) {
    return std::any_of(scene.begin() + place + 1, scene.end(), [&](const Placed& above) {
      return above.control->kind == Control::Kind::Frame && QRectF(above.rect).contains(letters) &&
             scene[place].control->parent != above.control;
    });
  }
  // The box let into the board in which that label stands.
  static const Placed* BoxOf(const Scene& scene, size_t place) {
    const QPoint middle = scene[place].rect.center();
    for (size_t i = place; i-- > 0;)
      if (scene[i].control->kind == Control::Kind::Shape &&
          (static_cast<Shape*>(scene[i].control)->Sunken || static_cast<Shape*>(scene[i].control)->Raised) &&
          scene[i].rect.contains(middle))
        return &scene[i];
    return nullptr;
  }

  // Each fault is told once.
  void Fault(const Form& form, const std::string& what) {
    const std::string text = std::string(form.name) + ": " + what;
    if (faults.insert(text).second)
      ADD_FAILURE() << text << " at " << form.Width / 15 << "x" << form.Height / 15 << where;
  }

  void Check(const Form& form) {
    FormWindow& window = *front.WindowOf(form);
    const Scene scene = Arrange(form, front.paintbox.pictures);
    const QRectF canvas = window.Board().rect();
    const std::vector<Text> texts = Texts(form, scene);
    ++looks;
    for (const Text& text : texts) {
      const Placed& placed = scene[text.place];
      const std::string says = text.label->NameInForm() + " \"" + text.label->Caption.get() + "\"";
      // What a stored card costs stands so high above it that its ground may lose a pixel.
      const QMarginsF more(0, text.label->name == "lblFlush" ? 1 : 0, 0, 0);
      if (!(canvas + more).contains(text.whole)) Fault(form, says + " leaves the window");
      if (!QRectF(placed.clip).contains(text.letters)) Fault(form, says + " leaves its frame");
      if (!text.label->AutoSize && !(QRectF(placed.rect) + QMarginsF(1, 1, 1, 1)).contains(text.letters))
        Fault(form, says + " leaves its place");
      if (const Placed* box = BoxOf(scene, text.place); box && !QRectF(box->rect).contains(text.whole))
        Fault(form, says + " leaves its box");
      for (const Text& other : texts)
        if (other.place > text.place && other.whole.intersects(text.whole))
          Fault(form, says + " and " + other.label->NameInForm() + " \"" + other.label->Caption.get() +
                          "\" lie on each other");
      // Only messages, big ones and a tower's or a column's own, come over the cards.
      const bool message =
          (text.label->FontSize >= 10 && !BoxOf(scene, text.place)) || text.label->name == "lblFlush";
      for (size_t i = 0; i < text.place && !message; ++i)
        if (scene[i].control->kind == Control::Kind::Image && scene[i].control->parent == &form &&
            static_cast<const Image*>(scene[i].control)->Picture != 0 &&
            QRectF(scene[i].rect).intersects(text.whole))
          Fault(form, says + " lies on " + scene[i].control->NameInForm());
      for (size_t i = text.place + 1; i < scene.size(); ++i) {
        const Visual& above = *scene[i].control;
        const bool hides =
            above.kind == Control::Kind::Frame || above.kind == Control::Kind::PictureBox ||
            (above.kind == Control::Kind::Image && static_cast<const Image&>(above).Picture != 0);
        // The card total stands there again when a game is over, whatever stands before it.
        const bool may = above.name == "frmSplash" &&
                         (text.label->name == "lblTotal" || text.label->name == "lblCurrentTotal");
        if (hides && !may && QRectF(scene[i].rect).intersects(text.whole))
          Fault(form, says + " lies under " + above.NameInForm());
      }
      for (const Control* control : form.Controls()) {
        const QWidget* widget = window.WidgetOf(*control);
        if (widget && widget->parent() == &window.Board() && widget->isVisible() &&
            QRectF(widget->geometry()).intersects(text.whole))
          Fault(form, says + " lies under " + control->NameInForm());
      }
    }
    CheckWidgets(form, window);
    if (form.MinWidth == form.Width) CheckLetters(form, window, texts, scene);
  }

  // In the picture itself, as soon as one of them is there for the first time or in another colour.
  void CheckLetters(const Form& form, FormWindow& window, const std::vector<Text>& texts,
                    const Scene& scene) {
    bool isNew = false;
    for (const Text& text : texts)
      isNew |= pictured.insert(text.label->FullName() + std::to_string(text.label->ForeColor)).second;
    if (!isNew) return;
    const QImage picture = window.Board().grab().toImage();
    for (const Text& text : texts) {
      const Seen seen = LookAt(picture, LayOut(*text.label, scene[text.place].rect));
      if (seen.stretches > 0 && seen.worst < kReadable)
        Fault(form, text.label->NameInForm() + " \"" + text.label->Caption.get() + "\" stands out by only " +
                        std::to_string(seen.worst));
    }
  }

  void CheckWidgets(const Form& form, FormWindow& window) {
    std::vector<const QWidget*> widgets;
    for (const Control* control : form.Controls()) {
      const QWidget* widget = window.WidgetOf(*control);
      if (!widget || !widget->isVisible() || widget->parent() != &window.Board()) continue;
      const std::string name = control->NameInForm();
      if (!window.Board().rect().contains(widget->geometry())) Fault(form, name + " leaves the window");
      for (const QWidget* other : widgets)
        if (other->geometry().intersects(widget->geometry()))
          Fault(form, name + " and " + other->objectName().toStdString() + " lie on each other");
      widgets.push_back(widget);
      const auto* button = qobject_cast<const QAbstractButton*>(widget);
      if (!button) continue;
      const std::string caption = WithoutAccessKey(button->text().toStdString());
      const QFontMetrics metrics = button->fontMetrics();
      const bool fits =
          qobject_cast<const QPushButton*>(widget)
              ? metrics.horizontalAdvance(QString::fromStdString(caption)) <= button->width() - 8 &&
                    metrics.height() <= button->height() - 4
              : button->sizeHint().width() <= button->width() && metrics.height() <= button->height();
      if (!fits) Fault(form, name + " \"" + caption + "\" is too narrow for its caption");
      if (metrics.ascent() < 8) Fault(form, name + " \"" + caption + "\" has tiny letters");
    }
    for (const QLabel* panel : window.findChildren<QLabel*>()) {
      QString text = panel->text();
      while (text.endsWith(' ')) text.chop(1);
      const int room = panel->contentsRect().width() - panel->indent();
      if (panel->isVisible() && panel->fontMetrics().horizontalAdvance(text) > room)
        Fault(form, panel->objectName().toStdString() + " \"" + text.toStdString() + "\" is cut off");
      if (!window.rect().contains(QRect(panel->mapTo(&window, QPoint()), panel->size())))
        Fault(form, panel->objectName().toStdString() + " leaves the window");
    }
  }

  const bool open = OpenScreen();
  TestFolder folder;
  Screen front{{folder.Path(), CARDHAVEN_TEST_DATA}, Catalogue()};
  Suite suite{front.platform, {folder.Path()}, AllGames()};
  std::set<std::string> faults, pictured;
  std::string where;
  int looks = 0;
};

// The longest texts that the windows come to show.
struct Longest {
  const char* control;
  const char* text;
  const char* window = nullptr;  // null for every game
};
constexpr Longest kMessages[] = {
    {"lblMessage", "Completion Bonus! 5000000", "frmSumfall"},
    {"lblMessage", "30 Thirteens! Bonus = 150000000", "frmSumfall"},
    {"lblMessage", "Speed Bonus! 900000000"},
    {"lblMessage", "Select your options and play again!", "frmSumfall"},
    {"lblMessage", "Prepare for Bonus Round!"},
    {"lblMessage", "Sorry, you must complete at least\r\none tower to receive the time bonus!",
     "frmSpirehold"},
    {"lblMessage", "Highest Run Bonus!", "frmSpirehold"},
    {"lblMessage", "Tower Bonus!!", "frmSpirehold"},
    {"ScoringLabelInfo", "Prepare for Bonus Round", "frmBlackrush"},
    {"ScoringLabelInfo", "Awesome score!", "frmBlackrush"},
    {"ScoringLabelInfo", "Times Up!", "frmBlackrush"},
    {"lblMessage", "Completion Bonus!", "frmDuopick"},
    {"lblMessage", "Times Up!"},
    {"lblMessage", "Game Over"},
    {"ScoringLabel", "1000000 X 120 =", "frmHandgrid"},
};
constexpr Longest kTexts[] = {
    {"lblScoring", "2,147,483,647"},
    {"lblCurrentScore", "-2,147,483,648"},
    {"lblCurrentScore", "2,147,483,647"},
    {"lblCurrentRound", "Bonus"},
    {"lblTime", "Time: 180"},
    {"lblElevens", "Fourteens:", "frmSumfall"},
    {"lblCardCount", "Cards: 42", "frmSumfall"},
    {"lblCurrentElevens", "31", "frmSumfall"},
    {"lblCurrentTotal", "15", "frmSumfall"},
    {"lblCurrentRun", "Current Run: 32767", "frmSpirehold"},
    {"lblHighRun", "Highest Run: 32767", "frmSpirehold"},
    {"lblNextCard", "Next card worth: 3276800 points", "frmSpirehold"},
    {"lblTrips", "Trips (20000):", "frmTreyshift"},
    {"lblRuns", "Runs (20000):", "frmTreyshift"},
    {"lblScoreRuns", "17", "frmTreyshift"},
    {"lblCardCount", "Cards remaining: 52", "frmTreyshift"},
    {"lblRound", "Round: 3", "frmTreyshift"},
    {"lblTotalScore", "-2,147,483,648", "frmBlackrush"},
    {"lblBonus", "130000", "frmBlackrush"},
    {"lblCardsUsedCount", "52", "frmBlackrush"},
    {"StatusBar1.Panels(1)", "Click on Play to start a new game  ", "frmBlackrush"},
    {"StatusBar1.Panels(2)", "Create columns of 21 to increase bonus score!   ", "frmBlackrush"},
    {"lblRow(1)", "Royal Flush", "frmHandgrid"},
    {"lblRow(2)", "3 of a kind", "frmHandgrid"},
    {"lblRow(3)", "4 of a kind", "frmHandgrid"},
    {"lblRow(5)", "Royal Flush", "frmHandgrid"},
    {"lblCol(4)", "4 of a kind", "frmHandgrid"},
    {"lblCol(5)", "Royal Flush", "frmHandgrid"},
    {"lblRound", "Bonus Round", "frmHandgrid"},
    {"lblTimeBonus", "120", "frmHandgrid"},
    {"lblOverwrites", "Over Writes Remaining: 26", "frmHandgrid"},
    {"lblPointsEarned", "Points Earned: 1000000", "frmHandgrid"},
    {"lblCards", "Cards remaining: 51", "frmHandgrid"},
    {"lblTotalScore", "-2,147,483,648", "frmFivestack"},
    {"lblTimeBonus", " 10000", "frmFivestack"},
    {"lblTimeBonus", "-32768", "frmFivestack"},
    {"lblCurrentTotal", "105", "frmFivestack"},
    {"ColumnTotal(4)", "21", "frmFivestack"},
    {"lblRound", "Round: 4", "frmFivestack"},
    {"StatusBar1.Panels(1)", "Make 2,147,483,647 for bonus round.  ", "frmFivestack"},
    {"StatusBar1.Panels(2)", "Click on Hit buttons to create columns of 21!   ", "frmFivestack"},
    {"StatusBar1.Panels(1)", "Make 5,000,000 for Bonus Round!   "},
    {"StatusBar1.Panels(2)", "Click on exposed cards to total 15!   ", "frmSumfall"},
    {"StatusBar1.Panels(2)", "Create runs by clicking on exposed cards!   ", "frmSpirehold"},
    {"lblPairs", "Pairs x -2147483648", "frmDuopick"},
    {"lblRuns", "Runs x -2147483648", "frmDuopick"},
    {"lblScorePairs", "26", "frmDuopick"},
    {"lblScoreRuns", "26", "frmDuopick"},
    {"StatusBar1.Panels(2)", "Create runs by clicking on exposed cards!   ", "frmDuopick"},
    {"StatusBar1.Panels(2)", "Create runs and triples by moving available cards!   ", "frmTreyshift"},
    {"StatusBar1.Panels(2)", "Click on cards to get the best Poker hand!   ", "frmHandgrid"},
    {"StatusBar1.Panels(2)", "Times running out!"},
    {"StatusBar1.Panels(3)", "12:59 PM"},
};

// The first is too small: the games make it their smallest.
constexpr QSize kSizes[] = {{1, 1}, {1024, 768}, {1920, 1080}, {2560, 1440}, {640, 900}, {1300, 480}};

bool IsOf(const Longest& longest, const Form& form) { return !longest.window || form.name == longest.window; }

// Writes the text; false if the window has no such control.
bool Write(Form& form, const Longest& longest) {
  if (!IsOf(longest, form)) return false;
  const std::string name = longest.control;
  if (name.starts_with("StatusBar1.Panels(")) {
    static_cast<GameWindow&>(form).StatusBar1.Panels(name[name.size() - 2] - '0').Text = longest.text;
    return true;
  }
  const size_t open = name.find('(');
  const int index = open == std::string::npos ? -1 : name[open + 1] - '0';
  auto* label = static_cast<Label*>(form.find(name.substr(0, open), index));
  if (!label) return false;
  label->Caption = longest.text;
  return true;
}

// Plays the round to its end.
void EndRound(GameWindow& game) {
  if (auto* fivestack = dynamic_cast<frmFivestack*>(&game)) return player::Click(fivestack->cmdGiveUp);
  auto* handgrid = dynamic_cast<frmHandgrid*>(&game);
  if (!handgrid) return player::Click(game.cmdTakeScore);
  game.standing.InputLives();
  for (int cell = 0; cell < modHandgrid::kCells; ++cell) player::Click(handgrid->PlayCards(cell));
}

}  // namespace

TEST_F(Look, GamesStandAtEverySize) {
  for (const GameEntry& entry : AllGames()) {
    GameWindow& game = Open(entry);
    for (const QSize size : kSizes) {
      Resize(game, size);
      where = ", idle";
      Check(game);
      // What is told while a round begins, is paid and ends, each at the moments when the game says
      // something.
      std::set<std::string> said;
      auto* handgrid = dynamic_cast<frmHandgrid*>(&game);
      front.onPause = [&] {
        const std::string caption = game.lblMessage.Caption, amount = game.lblScoring.Caption,
                          announced = handgrid ? handgrid->ScoringLabel.Caption.get() : "";
        where = " while it says \"" + caption + "\", \"" + amount + "\"";
        Check(game);
        const auto wording = [](const std::string& text) {
          return text.substr(0, text.find_first_of("0123456789"));
        };
        const bool again =
            !said.insert(wording(caption) + "|" + wording(amount) + "|" + wording(announced)).second;
        // Where both stand side by side, the message is always the same.
        const bool aside = game.lblScoring.Visible && game.lblScoring.Top == int(game.lblMessage.Top);
        if (again || aside || !game.lblMessage.Visible || caption == "Times Up!") return;
        const int left = game.lblMessage.Left, top = game.lblMessage.Top;
        for (const Longest& longest : kMessages)
          if (Write(game, longest)) Check(game);
        game.lblMessage.Caption = caption;
        game.lblMessage.Left = left;
        game.lblMessage.Top = top;
      };
      game.standing.InputLives();  // the selector's timer would have seen to it
      player::Click(game.cmdPlay);
      where = " in play";
      Check(game);
      game.lblHighScore.Caption = std::string(game.plan.names.highScore) + "2,147,483,647";
      for (const Longest& longest : kTexts)
        if (Write(game, longest)) Check(game);
      for (const char* name : {"lblTower1", "lblTower2", "lblTower3"})
        if (auto* tower = static_cast<Label*>(game.find(name))) tower->Visible = true;
      Check(game);
      where = ", paused";
      game.Pause();
      Check(game);
      game.Pause();
      suite.common.CurrentScore = 1'000'000'000;
      if (auto* sumfall = dynamic_cast<frmSumfall*>(&game)) {
        sumfall->board.combinations = 30;
        sumfall->CompletionBonus = sumfall->CombinationBonus = 5'000'000;
      }
      if (auto* spirehold = dynamic_cast<frmSpirehold*>(&game)) {
        for (int tower = 0; tower < modSpirehold::kTowers; ++tower) spirehold->board.table[tower].clear();
        spirehold->board.NewHighRun = true;
        spirehold->board.HighestRun = 1;
      }
      if (auto* blackrush = dynamic_cast<frmBlackrush*>(&game)) {
        blackrush->board.twentyOnes = 26;
        blackrush->board.bonus = 130000;
        blackrush->ColumnSoft(1).Caption = "Soft";
        blackrush->ColumnSoft(1).Visible = true;
        blackrush->lblBust.Visible = true;
        Check(game);
        blackrush->lblBust.Visible = false;
        for (int card = 0; card < kCardsOfColumn; ++card) {  // a Five Card Gimme
          blackrush->board.deck[blackrush->board.position] = "2S";
          player::Click(blackrush->cmdHit(0));
        }
      }
      if (auto* duopick = dynamic_cast<frmDuopick*>(&game))
        duopick->board.PairsCount = duopick->board.RunsCount = 26;
      if (auto* fivestack = dynamic_cast<frmFivestack*>(&game)) {
        fivestack->ColumnSoft(4).Caption = "Soft";
        fivestack->ColumnSoft(4).Visible = true;
        suite.common.TimeBonus = 10000;
        suite.common.CountDownScore = false;
        fivestack->board.cardTotal = modFivestack::kPerfect;
        fivestack->UpdateCardTotalValue();
        Check(game);
      }
      EndRound(game);
      game.clock.ElapsedSeconds = game.clock.TimeLimit - 1;
      front.platform.Dispatch(game.Timer1.OnTimer);  // time is up
      for (int round = 3; round <= 4 && game.standing.InGame(); ++round) EndRound(game);
      front.onPause = nullptr;
      EXPECT_FALSE(game.standing.InGame());
      EXPECT_GE(said.size(), 5u);
      where = " after a game";
      Check(game);
    }
    Close(game);
  }
  EXPECT_GT(looks, 500);
}

// But for the roundings of shades.
bool LookAlike(const QImage& a, const QImage& b) {
  constexpr int kShade = 8;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x) {
      const QColor one = a.pixelColor(x, y), other = b.pixelColor(x, y);
      if (std::abs(one.red() - other.red()) > kShade || std::abs(one.green() - other.green()) > kShade ||
          std::abs(one.blue() - other.blue()) > kShade)
        return false;
    }
  return a.size() == b.size();
}

// Whatever has moved since it was painted last.
TEST_F(Look, APartOfABoardIsPaintedAsTheWholeIs) {
  for (const GameEntry& entry : AllGames()) {
    GameWindow& game = Open(entry);
    game.standing.InputLives();
    player::Click(game.cmdPlay);
    Canvas& board = front.WindowOf(game)->Board();
    for (const QSize size : kSizes) {
      board.grab();
      Resize(game, size);
      const QImage whole = board.grab().toImage();
      for (const Control* control : game.Controls()) {
        if (control->kind != Control::Kind::Label || !IsShown(static_cast<const Label&>(*control))) continue;
        const QRect area = board.ToWindow(board.PlaceOf(static_cast<const Label&>(*control))) & board.rect();
        EXPECT_TRUE(LookAlike(board.grab(area).toImage(), whole.copy(area))) << control->FullName();
      }
    }
    Close(game);
  }
}

// A flush, a deck that is used up, what is left over, a board that is stuck.
TEST_F(Look, TreyshiftTellsWhatColumnsAndDecksBring) {
  using namespace modTreyshift;
  for (const GameEntry& entry : AllGames()) {
    if (std::string(entry.button) != "cmdTreyshift") continue;
    auto& game = static_cast<frmTreyshift&>(Open(entry));
    const auto lay = [&](int column) {
      player::Click(game.UpCard(kInPlay));
      player::Click(game.PlayCard(column));
    };
    for (const QSize size : kSizes) {
      Resize(game, size);
      player::Click(game.mnuPlay);
      std::set<std::string> said;
      front.onPause = [&] {
        for (const Label* label : {&game.lblScoring, &game.lblFlush})
          if (label->Visible) said.insert(label->Caption);
        where = " while it says \"" + game.lblScoring.Caption.get() + "\"";
        Check(game);
      };
      CardCodes& deck = game.common.Deck;
      deck = {"",   "3D", "2D", "1D", "1S", "3S", "5S",  "1H", "3H",
              "5H", "1C", "3C", "5C", "7D", "9D", "11D", "8S"};
      deck.resize(53, "12H");
      game.Deal();
      for (int i = 0; i < 3; ++i) lay(0);
      for (int i = 0; i < 9; ++i) lay(i / 3);
      player::Click(game.UpCard(kInPlay));
      player::Click(game.TempCard(1));
      game.board.UpCards[kInPlay].clear();
      game.PenaltyValue = 20000;
      player::Click(game.cmdTakeScore);
      deck = StandardDeck();
      for (int i = 1; i <= 15; ++i) deck[i] = std::to_string(2 * i % 12 + 1) + "SH"[i % 2];
      game.Deal();
      for (int i = 0; i < 12; ++i) lay(i / 3);
      for (int i = 0; i < 3; ++i) {
        player::Click(game.UpCard(kInPlay));
        player::Click(game.TempCard(i));
      }
      front.onPause = nullptr;
      for (const char* text : {"Flush!", "Deck Completion Bonus!", "Removing left over cards", "-20000",
                               "No more legal moves left!", "Game Over"})
        EXPECT_TRUE(said.contains(text)) << text;
      EXPECT_FALSE(game.standing.InGame());
    }
    Close(game);
  }
}

// Four sizes in all windows, in one family, and a count keeps its breadth while its figures change.
TEST_F(Look, LettersAreOfFourSizesAndFiguresDontDance) {
  std::set<int> sizes;
  std::set<QString> families;
  for (const GameEntry& entry : AllGames()) {
    GameWindow& game = Open(entry);
    for (const Control* control : game.Controls()) {
      if (control->kind != Control::Kind::Label) continue;
      const QFont font = FontOf(static_cast<const Label&>(*control));
      sizes.insert(font.pixelSize());
      families.insert(QFontInfo(font).family());
      const QFontMetricsF metrics(font);
      for (const char* count : {"1,111,111", "9,190,017", "4,741,470"})
        EXPECT_EQ(metrics.horizontalAdvance(count), metrics.horizontalAdvance("8,888,888"))
            << control->FullName() << " " << count;
    }
    Close(game);
  }
  EXPECT_EQ(sizes.size(), 4u);
  EXPECT_EQ(families.size(), 1u);
}

// What the desktop adds: the first steps before the first game, and the offer to skip whatever is said.
TEST_F(Look, FirstStepsAndTheHintHideNothing) {
  front.guides = MakeGuide;  // to windows that are loaded from now on
  const auto check = [&](const GameWindow& game, const QRect& added, const char* what) {
    for (const QRect& each :
         Taken(front.WindowOf(game)->Board(), std::string(what) == "hint" ? Over::Cards : Over::Nothing))
      if (each.intersects(added)) Fault(game, std::string(what) + " covers something" + where);
  };
  for (const GameEntry& entry : AllGames()) {
    GameWindow& game = Open(entry);
    FormWindow& window = *front.WindowOf(game);
    for (const QSize size : kSizes) {
      Resize(game, size);
      window.Settle();
      where = ", idle";
      int sheets = 0;
      for (const Note& note : window.Board().Notes())
        if (note.look == Note::Look::Sheet) check(game, NoteRect(note), "sheet"), ++sheets;
      EXPECT_EQ(sheets, 1) << game.name;
    }
    int hints = 0;
    front.onPause = [&] {
      where = " while it says \"" + game.lblMessage.Caption.get() + "\"";
      check(game, RoomForHint(window.Board(), QSize(140, 28)), "hint"), ++hints;
    };
    for (const QSize size : kSizes) {
      Resize(game, size);
      game.standing.InputLives();
      player::Click(game.cmdPlay);
      EndRound(game);
      game.clock.ElapsedSeconds = game.clock.TimeLimit - 1;
      front.platform.Dispatch(game.Timer1.OnTimer);
      for (int round = 3; round <= 4 && game.standing.InGame(); ++round) EndRound(game);
    }
    front.onPause = nullptr;
    EXPECT_GT(hints, 10) << game.name;
    Close(game);
  }
}

TEST_F(Look, DialogsHoldTheirTexts) {
  const auto look = [&](Form&& dialog) {
    dialog.Show(false);
    Settle();
    Check(dialog);
    if (auto* table = dynamic_cast<frmHighScores*>(&dialog)) {
      for (int i = 0; i < table->ScoreList.size(); ++i)
        table->ScoreList(i).Caption = i % 2 == 0 ? "Wilhelmina Montgomery-Wu*" : "2,147,483,647";
      Check(dialog);
      for (int i = 0; i < table->ScoreList.size(); i += 2)  // the longest that the program keeps
        table->ScoreList(i).Caption = std::string(60, 'W') + " " + std::string(39, 'm') + "*";
      Check(dialog);
      const QString shown = LayOut(table->ScoreList(0), ModelRect(table->ScoreList(0))).lines.at(0).text;
      EXPECT_TRUE(shown.startsWith("WWW") && shown.endsWith("*")) << shown.toStdString();
    }
    dialog.Discard();
    Settle();
  };
  Check(*front.platform.FindForm("frmSelect"));
  for (const GameEntry& entry : AllGames()) {
    GameWindow& game = Open(entry);
    for (const GameEntry& each : AllGames()) {
      game.lblProductName.Caption = each.title;
      Check(game);
    }
    look(frmHighScores(suite.common, game));
    look(frmHiScoreName(suite.common));
    look(frmRules(suite.common, game));
    look(frmAbout(suite.common));
    if (auto* sumfall = dynamic_cast<frmSumfall*>(&game)) {
      for (int goal : {10, 11, 12, 13, 14, 15}) {
        sumfall->CardGoal = goal;
        look(frmSumfallCustomScoring(*sumfall));
      }
      look(frmSave(*sumfall));
      look(frmOpen(*sumfall));
    }
    if (auto* spirehold = dynamic_cast<frmSpirehold*>(&game)) look(ScoringDialog(*spirehold));
    if (auto* duopick = dynamic_cast<frmDuopick*>(&game)) look(ScoringDialog(*duopick));
    if (auto* handgrid = dynamic_cast<frmHandgrid*>(&game)) look(ScoringDialog(*handgrid));
    if (auto* fivestack = dynamic_cast<frmFivestack*>(&game)) look(frmFivestackCustomScoring(*fivestack));
    if (auto* treyshift = dynamic_cast<frmTreyshift*>(&game)) look(frmTreyshiftCustom(*treyshift));
    if (auto* blackrush = dynamic_cast<frmBlackrush*>(&game)) look(frmBlackrushCustomScoring(*blackrush));
    Close(game);
  }
  EXPECT_GT(looks, 30);
}

TEST_F(Look, LettersStandOutFromTheirGround) {
  constexpr int kColours[] = {kRed, kBlack, kBlue, kCyan, 49152};
  for (const GameEntry& entry : AllGames()) {
    GameWindow& game = Open(entry);
    player::Click(game.cmdPlay);
    game.lblScoring.Caption = "12,345";
    game.lblScoring.Visible = true;
    game.PlaceScoring();
    game.lblMessage.Caption = "Completion Bonus! 5000000";  // across the cards
    if (auto* ground = static_cast<Shape*>(game.find("ScoringLabelOutline"))) {
      game.lblMessage.Caption = "Prepare for Bonus Round";
      ground->Visible = true;
    }
    game.lblMessage.Visible = true;
    game.lblCurrentScore.Caption = "-2,147,483,648";
    game.lblCurrentRound.Caption = "Bonus";
    for (const int colour : kColours) {
      Label* const labels[] = {&game.lblMessage,      &game.lblScoring, &game.lblCurrentScore,
                               &game.lblCurrentRound, &game.lblTime,    &game.lblHighScore};
      for (Label* label : labels) label->ForeColor = colour;
      Settle();
      const QImage picture = front.WindowOf(game)->Board().grab().toImage();
      for (const Label* label : labels) {
        if (!label->Exists()) continue;
        const Seen seen = LookAt(picture, LayOut(*label, DrawnRect(*label, front.paintbox.pictures)));
        const std::string which = label->FullName() + " in colour " + std::to_string(colour);
        EXPECT_GE(seen.worst, kReadable) << which;
        EXPECT_TRUE(Means(seen.letters, ToColour(colour)))
            << which << " " << seen.letters.name().toStdString();
        EXPECT_GE(seen.stretches, 1) << which;
      }
    }
    Close(game);
  }
}
