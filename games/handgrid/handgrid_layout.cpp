// The layout of frmHandgrid: its design, where things stand at any window size, what is shown when; and its
// settings.
#include "games/handgrid/handgrid.h"

using namespace modHandgrid;

namespace {

constexpr TimeLimitEntry kLimits[] = {
    {30, "mnu30", "&30 seconds"},           {45, "mnu45", "&45 seconds"}, {60, "mnu60", "&60 seconds  "},
    {75, "mnu75", "&75 seconds (default)"}, {90, "mnu90", "&90 seconds"}, {105, "mnu105", "&105 seconds"},
    {120, "mnu120", "&120 seconds", false},
};

constexpr const char* kSections[] = {"[Time]",
                                     "[Play Sounds]",
                                     "[Play Music]",
                                     "[Count Down Score]",
                                     "[Deck]",
                                     "[Time Bonus]",
                                     "[Bonus Score]",
                                     "[Pair Score]",
                                     "[Two Pair Score]",
                                     "[Trips Score]",
                                     "[Flush Score]",
                                     "[Full House Score]",
                                     "[Straight Score]",
                                     "[Four Score]",
                                     "[Straight Flush Score]",
                                     "[Royal Flush Score]",
                                     "[Over Writes]",
                                     "[State]",
                                     "[Width]",
                                     "[Height]"};

constexpr GamePlan kPlan{
    .names = {.window = "frmHandgrid",
              .settingsFile = "\\Handgrid.Ini",
              .roundNumber = "",
              .roundBox = {},
              .takeScoreButton = "",
              .exitButton = "cmdQuit",
              .takeScoreEntry = ""},
    .tables = OneTable("HandgridHighScores", "30000"),
    .width = 9570,
    .height = 7200,
    .limits = kLimits,
    .timeLimit = 75,
    .sections = kSections,
    .rules = frmHandgrid::kRules,
    .dialog = {.window = "frmHandgridCustom", .tellsGoalAtOnce = true},
    .rounds = 3,
    .playFailure = Icon::Critical,
    .endGame = {.meanwhile = WhileAsked::Silenced},
    .held = Held::Commands,
    .dialRuns = DialRuns::FromEachRound,
    .dialIsLate = true,
};

// The grid takes the left, clock and score the right, the deck the lower right corner.
constexpr int kCardWidth = 1035, kCardHeight = 1455;
constexpr int kColumnLeft[kSide] = {210, 1320, 2415, 3525, 4635};
constexpr int kRowTop[kSide] = {204, 1260, 2310, 3345, 4410};
constexpr int kRowLabelLeft = 5820, kColumnLabelTop = 5895;
constexpr int kRowLabelTop[kSide] = {645, 1770, 2850, 3990, 4965};
// From there to the middle of what shows of its row: all but the lowest are overlapped by the next one.
constexpr int kRowLabelLower[kSide] = {-18, -90, -128, -218, 67};

constexpr Design kDesign[] = {
    {"CardStackPicture", 7110, 4395, kCardWidth, kCardHeight},
    {"HoleCard", 8310, 4395, kCardWidth, kCardHeight},
    {"lblTime", 7110, 75, 1080, 255, "Time:"},
    {"TimerRectangle", 7110, 345, 1080, 1080},
    {"Surface", 7170, 405, 960, 960},
    {"lblRound", 7170, 1545, 0, 0, "Round: 1"},
    {"lblScore", 7110, 1980, 2235, 255, "Score"},
    {"ScoreRectangle", 7110, 2250, 2235, 510},
    {"lblCurrentScore", 7110, 2325, 0, 0, "0"},
    {"lblOverwrites", 7110, 3210, 0, 0, "Over Writes Remaining: 3"},
    {"lblCards", 7110, 4080, 2235, 255, "Cards remaining: 52"},
    {"lblPointsEarned", 6990, 5895, 2475, 255, "Points Earned: 0"},
    {"lblHighScore", 6990, 6165, 2475, 255},
    {"ScoringLabelOutline", 210, 2100, 6420, 1800},
};

// The buttons' place across the window is the frame's.
constexpr Design kButtonDesign[] = {
    {"cmdPlay", 8250, 90, 1200, 420},
    {"cmdPause", 8250, 600, 1200, 420},
    {"cmdQuit", 8250, 1110, 1200, 420, nullptr, "Closes Handgrid"},
};

}  // namespace

const char* modHandgrid::HandName(Hand hand) {
  static constexpr const char* kNames[kHands] = {"Nothing",   "1 Pair",     "2 Pair",     "3 of a kind",
                                                 "Straight",  "Flush",      "Full House", "4 of a kind",
                                                 "St. Flush", "Royal Flush"};
  return kNames[static_cast<int>(hand)];
}

frmHandgrid::frmHandgrid(modCommon& common) : GameWindow(common, kPlan) {
  NameSettings();
  SetUpBoard();
  SetUpLabels();
  BindBoardEvents();
}

void frmHandgrid::SetUpBoard() {
  ApplyDesign(*this, kDesign);
  ApplyDesign(*this, kButtonDesign);
  for (int i = 0; i < kCells; ++i) {
    PlayCards(i).Width = kCardWidth;
    PlayCards(i).Height = kCardHeight;
    PlayCards(i).MousePointer = kCustomPointer;
    PlayCards(i).MouseIcon = common.ImageList2("POINTER");
  }
  // Nothing is dealt yet; only the best score is told.
  ShowCards(false);
  ShowControls(false, false);
  lblHighScore.Visible = true;
}

void frmHandgrid::SetUpLabels() {
  for (Label* label :
       {&lblTime, &lblRound, &lblScore, &lblOverwrites, &lblCards, &lblPointsEarned, &lblHighScore})
    label->FontBold = true;
  for (Label* label : {&lblTime, &lblScore, &lblCards, &lblPointsEarned, &lblHighScore}) label->Alignment = 2;
  for (int line = 1; line <= kSide; ++line)
    for (Label* label : {&lblRow(line), &lblCol(line)}) {  // not in bold: two long names stand side by side
      label->AutoSize = true;
      label->ForeColor = kButtonText;
      label->Caption = HandName(Hand::Nothing);
    }
  lblTimeBonus.FontSize = 14;
  lblTimeBonus.FontBold = true;
  lblTimeBonus.Caption = std::to_string(kPlan.timeLimit);
  lblOverwrites.ForeColor = kBlue;
  lblMessage.FontSize = 14;
  ScoringLabelOutline.Raised = true;
  ScoringLabel.FontBold = true;
  SetAnnouncementFont("MS Sans Serif", 18);
  for (Label* label : {&lblTimeBonus, &lblRound, &lblOverwrites, &ScoringLabel, &lblCurrentScore}) {
    label->AutoSize = true;
    label->Fit();
  }
  ShowAnnouncement(false);
}

void frmHandgrid::BindBoardEvents() {
  PlayCards.OnClick([this](int index) { PlayCards_Click(index); });
  CardStackPicture.OnClick = [this] { CardStackPicture_Click(); };
  for (int line = 1; line <= kSide; ++line) lblCol(line).OnChange = [this, line] { lblCol_Change(line); };
  lblOverwrites.OnChange = [this] { CenterIn(lblOverwrites, lblScore); };
  lblRound.OnChange = [this] { lblRound_Change(); };
  lblTimeBonus.OnChange = [this] { CenterTimeBonus(); };
  ScoringLabel.OnChange = [this] { CenterScoringLabel(); };
}

// --- Placing -------------------------------------------------------------------------------------

void frmHandgrid::PlaceBoard() {
  PlaceInMiddle(kDesign);
  const int right = (Width - plan.width) / 2, down = (Height - plan.height) / 2;
  for (int i = 0; i < kCells; ++i) {
    PlayCards(i).Left = kColumnLeft[i % kSide] + right;
    PlayCards(i).Top = kRowTop[i / kSide] + down;
  }
  for (int line = 1; line <= kSide; ++line) {
    lblRow(line).Left = kRowLabelLeft + right;
    lblRow(line).Top = kRowLabelTop[line - 1] + down;
    lblRow(line).Lower = kRowLabelLower[line - 1];
    lblCol(line).Top = kColumnLabelTop + down;
    lblCol_Change(line);
  }
  for (const Design& row : kButtonDesign) static_cast<Visual&>(*find(row.name)).Top = row.top + down;
  lblCurrentScore.Top = ScoreRectangle.Top + (ScoreRectangle.Height - lblCurrentScore.Height) / 2;
  CenterIn(lblCurrentScore, ScoreRectangle);
  CenterIn(lblOverwrites, lblScore);
  lblRound_Change();
  CenterTimeBonus();
  PlaceScoring();
}

// Under its column's card in the lowest row.
void frmHandgrid::lblCol_Change(int line) { CenterIn(lblCol(line), PlayCards(line + 19)); }

void frmHandgrid::lblRound_Change() { lblRound.Left = Surface.Left + Surface.Width / 2 - lblRound.Width / 2; }

// Somewhat up and left of the dial's middle, from the dial's corner.
void frmHandgrid::CenterTimeBonus() {
  const auto place = [](int room, int own) {
    return static_cast<int>(RoundHalfEven(room / 2.0 - own / 1.3));
  };
  lblTimeBonus.Left = place(Surface.Width, lblTimeBonus.Width);
  lblTimeBonus.Top = place(Surface.Height, lblTimeBonus.Height);
}

void frmHandgrid::CenterScoringLabel() {
  CenterWithin(ScoringLabel, ScoringLabelOutline);
  CenterIn(lblMessage, ScoringLabelOutline);
  lblMessage.Top = ScoringLabel.Top - lblMessage.Height - 100;
}

void frmHandgrid::PlaceScoring() {
  CenterIn(lblScoring, ScoringLabelOutline);
  lblScoring.Top = ScoringLabel.Top + ScoringLabel.Height + 50;
}

// --- Showing -------------------------------------------------------------------------------------

void frmHandgrid::ShowCards(bool visible) {
  for (int i = 0; i < kCells; ++i) {
    Image& image = PlayCards(i);
    image.Picture = common.ImageList2("EMPTY");
    image.Visible = visible;
    if (!visible) continue;
    if (board.cells[i].empty())
      image.BorderStyle = 0;
    else
      image.Picture = common.ImageList2(CardKey(board.cells[i]));
  }
  CardStackPicture.Visible = visible;
  HoleCard.Visible = visible;
}

// The rows overlap. Seen from above, a card lies over the row before it, and over empty places.
void frmHandgrid::StackColumn(int column) {
  for (const bool empty : {false, true})
    for (int i = kCells - kSide + column; i >= 0; i -= kSide)
      if (board.cells[i].empty() == empty) PlayCards(i).ZOrder(1);
}

void frmHandgrid::ShowControls(bool roundControls, bool frameControls) {
  SetVisible({&lblPointsEarned, &lblRound, &lblCards, &lblOverwrites}, roundControls);
  for (int line = 1; line <= kSide; ++line) SetVisible({&lblRow(line), &lblCol(line)}, roundControls);
  SetVisible(
      {&lblTimeBonus, &Surface, &lblTime, &TimerRectangle, &TimerBevelSide, &TimerBevelBottom,
       &ScoreRectangle, &ScoreBevelBottom, &ScoreBevelSide, &lblCurrentScore, &lblScore, &lblHighScore},
      frameControls);
}

// The stack keeps its stage when the back design changes.
void frmHandgrid::RefreshPlayCard() { CardStackPicture.Picture = common.ImageList2(StackPicture); }

void frmHandgrid::ShowAnnouncement(bool visible) {
  SetVisible({&ScoringLabel, &ScoringLabelOutline}, visible);
}

void frmHandgrid::SetAnnouncementFont(const char* name, int size) {
  ScoringLabel.FontName = name;
  ScoringLabel.FontSize = size;
}

void frmHandgrid::ShowOverWrites() {
  const long long left = OverWritesAllowed - board.overWritesUsed;
  lblOverwrites.Caption = "Over Writes Remaining: " + std::to_string(left);
  lblOverwrites.ForeColor = left == 0 ? kRed : kBlue;
}

void frmHandgrid::ShowCardsRemaining() {
  lblCards.Caption = "Cards remaining: " + std::to_string(board.stack.size());
}

void frmHandgrid::ShowPointsEarned() {
  lblPointsEarned.Caption = "Points Earned: " + std::to_string(RoundPoints);
}
