// The layout of frmFivestack: its design, where things stand at any window size, what is shown when; and its
// settings.
#include "games/fivestack/fivestack.h"
#include "suite/column_places.h"

using namespace modFivestack;

namespace {

constexpr TimeLimitEntry kLimits[] = {
    {15, "mnu15", "&15 seconds"},           {30, "mnu30", "&30 seconds"}, {45, "mnu45", "&45 seconds"},
    {60, "mnu60", "&60 seconds (default)"}, {75, "mnu75", "&75 seconds"},
};

constexpr const char* kSections[] = {"[Time]",           "[Play Sounds]",   "[Play Music]", "[Deck]",
                                     "[TimeBonusMax]",   "[TimeBonusMin]",  "[BonusScore]", "[WaitPeriod]",
                                     "[CountDownScore]", "[Cards To Pass]", "[State]",      "[Width]",
                                     "[Height]"};

constexpr GamePlan kPlan{
    .names = {.window = "frmFivestack",
              .settingsFile = "\\Fivestack.Ini",
              .message = "ScoringLabel",
              .scoring = "",
              .score = "lblTotalScore",
              .roundNumber = "",
              .roundBox = {},
              .takeScoreButton = "",
              .exitButton = "cmdQuit",
              .takeScoreEntry = "",
              .welcomeEnding = "   "},
    .tables = OneTable("HiScores", "50000"),
    .width = 9540,
    .height = 7305,
    .limits = kLimits,
    .timeLimit = 60,
    .sections = kSections,
    .rules = frmFivestack::kRules,
    .dialog =
        {.window = "frmFivestackCustomScoring",
         .frame = "frmCustomScoring",
         .frameCaption = "Apptitle Scoring options",
         .countDown = "chkCountScore",
         .countDownCaption = "Count down &when taking score",
         .info =
             "Note: Changing any of the Scoring Options or the number of cards a user may pass will cause your "
             "high scores to be marked with an * indicating custom scoring was in use.",
         .overTheGame = true},
    .rounds = 3,
    .designs = {kHotCards, kMagicHands, kNightCastle, kPalmTree},
    .endGame = {.meanwhile = WhileAsked::Silenced},
    .whileClosing = WhileClosing::PauseIsClicked,
    .sleepsMinimised = true,
    .limitChosenFirst = true,
    .otherTextIsOff = true,
};

constexpr ColumnPlaces kPlaces = {420, 1455, 1815, 2280, {2550, 2940, 3345, 3750, 4140}, 420, 5670};
constexpr int kLineTop = 2535;

// Everything but the columns: the deck, the clock and the score above them, the table at their right.
constexpr Design kDesign[] = {
    {"PlayCardPicture", 420, 120, kCardWidth, kCardHeight},
    {"NextCardPicture", 1875, 105, kCardWidth, kCardHeight},
    {"cmdPass", 3330, 150, 1065, 510, "&Pass"},
    {"lblRound", 3120, 900, 1485, 285, "Round: 1"},
    {"TimerRectangle", 4560, 75, 2790, 870},
    {"lblTime", 4635, 240, 750, 480, "Time Bonus:"},
    {"Surface", 6375, 105, 810, 810},
    {"lblScore", 4560, 1125, 600, 255, "Score"},
    {"ScoreRectangle", 5205, 1035, 2145, 420},
    {"lblCurrentRoundScore", 7590, 1470, 1575, 255, "Card Total"},
    {"lblCurrentTotal", 8002, 1815, 750, 360, "0"},
    {"frmScore", 7395, 2265, 1965, 3330, "Card Total Value"},
    {"cmdGiveUp", 7860, 5670, 1035, 555, "&Give Up"},
    {"ScoringLabelOutline", 420, 2850, 6855, 1620},
};
constexpr int kTableTop = 315, kTablePitch = 294, kHighScoreGap = 45;

// The two labels in each row of the table, and what the left one reads.
struct RowNames {
  const char *total, *value, *caption;
};
constexpr RowNames kRowNames[] = {
    {"lbl105", "lblScore105", "105"},    {"lbl104", "lblScore104", "104"}, {"lbl103", "lblscore103", "103"},
    {"lbl102", "lblscore102", "102"},    {"lbl101", "lblscore101", "101"}, {"lbl100", "lblscore100", "100"},
    {"lbl99", "lblscore99", "99"},       {"lbl98", "lblscore98", "98"},    {"lbl97", "lblscore97", "97"},
    {"lblNothing", "lblScore0", "< 97"},
};
constexpr int kRows = static_cast<int>(kValues.size());
static_assert(std::size(kRowNames) == kRows);

// The buttons' place across the window is the frame's.
constexpr Design kButtonDesign[] = {
    {"cmdPlay", 8220, 90, 1200, 420},
    {"cmdPause", 8220, 555, 1200, 420},
    {"cmdQuit", 8220, 1020, 1200, 420},
};

}  // namespace

frmFivestack::frmFivestack(modCommon& common) : GameWindow(common, kPlan) {
  NameSettings();
  SetUpBoard();
  SetUpTable();
  BindBoardEvents();
}

void frmFivestack::SetUpBoard() {
  ApplyDesign(*this, kDesign);
  ApplyDesign(*this, kButtonDesign);
  SetUpColumns(*this, {});
  for (int i = 0; i < kColumns; ++i) ColumnLine(i).BorderColor = kWhite;
  ColumnTotal.Set(&Label::BackStyle, 1);
  ColumnTotal.Set(&Label::FontSize, 14);
  ColumnSoft.Set(&Label::AutoSize, true);
  ColumnSoft.Set(&Label::FontBold, true);
  ScoringLabelOutline.Raised = true;
  for (Label* label : {&lblTime, &lblScore, &lblCurrentRoundScore, &lblHighScore}) label->FontBold = true;
  for (Label* label : {&lblRound, &lblCurrentRoundScore, &lblCurrentTotal}) label->Alignment = 2;
  for (Label* label : {&lblRound, &ScoringLabelInfo}) label->FontSize = 10;
  for (Label* label : {&lblRound, &lblTimeBonus, &ScoringLabelInfo, &ScoringLabelRoundTotal})
    label->FontBold = true;
  for (Label* label : {&lblTimeBonus, &lblHighScore, &ScoringLabelRoundTotal, &ScoringLabelInfo})
    label->AutoSize = true;
  for (Label* label : {&ScoringLabel, &ScoringLabelRoundTotal}) label->FontSize = 18;
  lblCurrentTotal.BackStyle = 1;
  lblCurrentTotal.BackColor = kBlack;  // red and green can be read on it
  lblCurrentTotal.FontSize = 14;
  lblCurrentTotal.FontBold = true;
  lblCurrentTotal.ForeColor = kRed;
  lblTimeBonus.FontSize = 11;
  lblTimeBonus.ForeColor = kBlue;
  lblTotalScore.Fit();
  RefreshPlayCard();
  // No game has begun.
  ShowCards(false);
  ShowHitButtons(false);
  ShowRoundControls(false);
  ShowScoringLabel(false);
  ScoringLabelOutline.Visible = false;
  SetVisible({&lblScore, &ScoreRectangle, &ScoreBevelSide, &ScoreBevelBottom, &lblTotalScore}, false);
}

void frmFivestack::SetUpTable() {
  TableGround.Sunken = true;
  TableGround.Visual::Move(150, kTableTop - 30, frmScore.Width - 300, kRows * kTablePitch + 30);
  for (int row = 0; row < kRows; ++row) {
    const RowNames& names = kRowNames[row];
    for (const bool worth : {false, true}) {
      Label& label =
          *tableLabels.emplace_back(std::make_unique<Label>(frmScore, worth ? names.value : names.total));
      label.Caption = worth ? std::to_string(kValues[row]) : names.caption;
      label.Move(worth ? 960 : 270, kTableTop + row * kTablePitch, worth ? 735 : 585, 255);
      label.FontSize = 10;
      label.Alignment = 1;
    }
  }
}

void frmFivestack::BindBoardEvents() {
  for (int i = 0; i < kColumns; ++i) {
    cmdHit(i).OnClick = [this, i] { cmdHit_Click(i); };
    ColumnSoft(i).OnChange = [this, i] { CenterIn(ColumnSoft(i), ColumnTotal(i)); };
  }
  cmdPass.OnClick = [this] { cmdPass_Click(); };
  cmdGiveUp.OnClick = [this] { cmdGiveUp_Click(); };
  lblCurrentTotal.OnChange = [this] { lblCurrentTotal_Change(); };
  lblTimeBonus.OnChange = [this] { CenterTimeBonus(); };
  lblHighScore.OnChange = [this] { CenterIn(lblHighScore, ScoreRectangle); };
  ScoringLabelInfo.OnChange = [this] { PlaceInfo(); };
}

// --- Placing -------------------------------------------------------------------------------------

void frmFivestack::PlaceBoard() {
  PlaceInMiddle(kDesign);
  const int down = (Height - plan.height) / 2;
  for (const Design& row : kButtonDesign) static_cast<Visual&>(*find(row.name)).Top = row.top + down;
  PlaceColumns(*this, kPlaces, [&](int i, int left) {
    ColumnLine(i).Visual::Move(left, kLineTop + down, kCardWidth, 0);
    ColumnTotal(i).Top = kPlaces.totalTop + down;
    ColumnSoft(i).Top = kPlaces.softTop + down;
  });
  ResizeColumnHeaders();
  lblTotalScore.Top = ScoreRectangle.Top + (ScoreRectangle.Height - lblTotalScore.Height) / 2;
  CenterIn(lblTotalScore, ScoreRectangle);
  lblHighScore.Top = ScoreRectangle.Top + ScoreRectangle.Height + kHighScoreGap;
  CenterIn(lblHighScore, ScoreRectangle);
  CenterTimeBonus();
  CenterCardTotal();
  PlaceInfo();
}

void frmFivestack::ResizeColumnHeaders() {
  for (int i = 0; i < kColumns; ++i) {
    CenterIn(ColumnTotal(i), ColumnImages(i)(0));
    CenterIn(ColumnSoft(i), ColumnTotal(i));
  }
}

// Somewhat left of the middle and above it: the dial stands at the right.
void frmFivestack::CenterTimeBonus() {
  const auto before = [](int middle, int size) { return static_cast<int>(middle - size / 1.3); };
  lblTimeBonus.Left = before(TimerRectangle.Left + TimerRectangle.Width / 2, lblTimeBonus.Width);
  lblTimeBonus.Top = before(TimerRectangle.Top + TimerRectangle.Height / 2, lblTimeBonus.Height);
}

// A message stands in the middle of the outline; a score that is counted stays where it began.
void frmFivestack::PlaceMessage() {
  if (!ScoringLabelRoundTotal.Visible) CenterScoringLabel();
}

void frmFivestack::CenterScoringLabel() { CenterWithin(ScoringLabel, ScoringLabelOutline); }

// "Round 1 Total: " and the amount as one line.
void frmFivestack::PlaceRoundTotal() {
  const Shape& outline = ScoringLabelOutline;
  Label& total = ScoringLabelRoundTotal;
  total.Left = outline.Left + outline.Width / 2 - total.Width / 2 - ScoringLabel.Width / 2;
  total.Top = outline.Top + outline.Height / 2 - total.Height;
  ScoringLabel.Left = total.Left + total.Width;
  ScoringLabel.Top = total.Top.get();
}

// Below that line.
void frmFivestack::PlaceInfo() {
  CenterIn(ScoringLabelInfo, ScoringLabelOutline);
  ScoringLabelInfo.Top = ScoringLabelOutline.Top + ScoringLabelRoundTotal.Height + ScoringLabel.Height;
}

// --- Showing -------------------------------------------------------------------------------------

// The first place of a column shows itself; behind it one that holds no card has nothing to show.
void frmFivestack::ShowCards(bool visible) {
  for (int i = 0; i < kColumns; ++i) {
    const Column21& column = board.columns[i];
    const size_t places = visible ? std::max<size_t>(1, column.cards.size()) : 0;
    for (size_t slot = 0; slot < kCardsOfColumn; ++slot) ColumnImages(i)(slot).Visible = slot < places;
    if (column.softAces > 0) ColumnSoft(i).Visible = visible;
  }
  ShowTable(visible);
}

// Everything but the cards on the columns.
void frmFivestack::ShowTable(bool visible) {
  SetVisible({&NextCardPicture, &PlayCardPicture, &lblCurrentTotal, &lblCurrentRoundScore}, visible);
  ShowGraphics(visible);
}

void frmFivestack::ShowGraphics(bool visible) {
  for (int i = 0; i < kColumns; ++i) SetVisible({&ColumnLine(i), &ColumnTotal(i)}, visible);
  SetVisible({&cmdPass, &lblRound}, visible);
}

void frmFivestack::ShowRoundControls(bool visible) {
  SetVisible({&Surface, &TimerRectangle, &TimerBevelSide, &TimerBevelBottom, &lblTime, &lblTimeBonus,
              &frmScore, &lblCurrentRoundScore, &lblCurrentTotal},
             visible);
}
