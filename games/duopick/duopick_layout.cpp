// The layout of frmDuopick: its design, where things stand at any window size, what is shown when; and its
// settings.
#include "games/duopick/duopick.h"

using namespace modDuopick;

namespace {

constexpr TimeLimitEntry kLimits[] = {{30, "mnu30", "&30 seconds"},   {45, "mnu45", "&45 seconds (default)"},
                                      {60, "mnu60", "&60 seconds"},   {75, "mnu75", "&75 seconds"},
                                      {90, "mnu90", "&90 seconds"},   {105, "mnu105", "&105 seconds"},
                                      {120, "mnu120", "1&20 seconds"}};

// The music stands there twice.
constexpr const char* kSections[] = {
    "[Play Music]",  "[Time]",       "[Play Sounds]", "[Play Music]",  "[Count Down Score]",
    "[Pairs Bonus]", "[Runs Bonus]", "[Time Bonus]",  "[Bonus Score]", "[Completion Bonus]",
    "[State]",       "[Width]",      "[Height]",      "[Deck]"};

// The menu clears a table of another name than the one that is played into.
constexpr GamePlan kPlan{
    .names = {.window = "frmDuopick", .settingsFile = "\\Duopick.Ini"},
    .tables = {.shown = {"DuopickHighScores", "30000"},
               .final = {"DuopickHighScores", "50000"},
               .cleared = {"DuopickHiScores", "30000"},
               .clearingPauses = true},
    .width = 9570,
    .height = 7200,
    .limits = kLimits,
    .timeLimit = 45,
    .sections = kSections,
    .rules = frmDuopick::kRules,
    .dialog = {.window = "frmDuopickCustomScoring", .frameCaption = "Scoring Options"},
    .commandsLiveWhileTold = true,
};

// Where the cards lie.
struct Place {
  int left, top;
};
constexpr std::array<Place, kCards> kTable = {{
    {1620, 540},  {2775, 540},  {3915, 540},  {5070, 540},  {6225, 540},   //
    {2190, 990},  {3345, 990},  {4485, 990},  {5640, 990},                 //
    {1605, 1395}, {2760, 1395}, {3900, 1395}, {5055, 1395}, {6210, 1395},  //
    {2160, 1935}, {3315, 1935}, {4455, 1935}, {5610, 1935},                //
    {1575, 2340}, {2730, 2340}, {3870, 2340}, {5025, 2340}, {6180, 2340},  //
    {3150, 4260},                                                          // the up card
}};
constexpr int kCardWidth = 1035, kCardHeight = 1455;

// Everything but the cards. The field takes the upper part; the rest stands below.
constexpr Design kDesign[] = {
    {"frmSplash", 1620, 750, 6300, 2850},
    {"lblMessage", 0, 1500, 0, 0},
    {"lblScoring", 0, 2850, 0, 0},
    {"lblTime", 270, 4215, 1260, 255, "Time:"},
    {"TimerRectangle", 270, 4485, 1260, 1260},
    {"Surface", 330, 4545, 1140, 1140},
    {"lblHighScore", 345, 6120, 3600, 255},
    {"CardStackPicture", 1950, 4245, 1035, 1455},
    {"lblCardCount", 2025, 5805, 1650, 255, "Cards remaining:"},
    {"lblCards", 3675, 5805, 435, 255},
    {"lblScore", 4530, 4215, 2340, 255, "Score"},
    {"ScoreRectangle", 4530, 4485, 2340, 510},
    {"lblCurrentScore", 4530, 4560, 0, 0, "0"},
    {"lblRound", 7020, 4215, 1080, 255, "Round"},
    {"RoundRectangle", 7020, 4485, 1080, 510},
    {"lblCurrentRound", 7020, 4560, 0, 0, "1"},
    {"lblPairs", 4605, 5205, 2340, 255},
    {"lblScorePairs", 7020, 5205, 1080, 255, "0"},
    {"lblRuns", 4605, 5505, 2340, 255},
    {"lblScoreRuns", 7020, 5505, 1080, 255, "0"},
};

// Beside the field; their place across the window is the frame's.
constexpr Design kButtonDesign[] = {
    {"cmdPlay", 8250, 540, 1200, 420},
    {"cmdTakeScore", 8250, 1050, 1200, 420, nullptr, "End current round and take score"},
    {"cmdPause", 8250, 1560, 1200, 420},
    {"cmdExit", 8250, 2070, 1200, 420},
};

}  // namespace

frmDuopick::frmDuopick(modCommon& common) : RoundGame(common, kPlan) {
  NameSettings();
  SetUpBoard();
  BindBoardEvents();
}

void frmDuopick::SetUpBoard() {
  ApplyDesign(*this, kDesign);
  ApplyDesign(*this, kButtonDesign);
  for (int i = 0; i < kCards; ++i) {
    PlayCard(i).Move(kTable[i].left, kTable[i].top, kCardWidth, kCardHeight);
    PlayCard(i).MousePointer = kCustomPointer;
    FieldSelectionRectangle(i).Move(kTable[i].left, kTable[i].top, kCardWidth, kCardHeight);
    FieldSelectionRectangle(i).BorderColor = kRed;
    FieldSelectionRectangle(i).BorderWidth = 3;
    FieldSelectionRectangle(i).Visible = false;
  }
  CardStackPicture.MousePointer = kCustomPointer;
  CardStackPicture.MouseIcon = common.ImageList2("POINTER");
  for (Label* label : {&lblTime, &lblScore, &lblRound, &lblHighScore, &lblCardCount, &lblCards, &lblPairs,
                       &lblScorePairs, &lblRuns, &lblScoreRuns})
    label->FontBold = true;
  for (Label* label : {&lblTime, &lblScore, &lblRound, &lblScorePairs, &lblScoreRuns}) label->Alignment = 2;
  lblCards.Alignment = 1;
  lblMessage.Alignment = 2;
  for (Label* label : {&lblCurrentScore, &lblCurrentRound}) label->Fit();
  roundControls = {&lblHighScore,  &lblCardCount, &lblCards,    &lblPairs,
                   &lblScorePairs, &lblRuns,      &lblScoreRuns};
  ShowCards(false);  // nothing is dealt yet
}

void frmDuopick::BindBoardEvents() {
  PlayCard.OnClick([this](int index) { PlayCard_Click(index); });
  PlayCard.OnMouseMove([this](int index) {
    PlayCard(index).MouseIcon = board.CheckForLegalMove(index) ? common.ImageList2("POINTER") : 0;
  });
  CardStackPicture.OnClick = [this] { CardStackPicture_Click(); };
}

// --- Placing -------------------------------------------------------------------------------------

void frmDuopick::PlaceBoard() {
  PlaceInMiddle(kDesign);
  const int right = (Width - plan.width) / 2, down = (Height - plan.height) / 2;
  for (int i = 0; i < kCards; ++i) {
    for (Visual* each : std::initializer_list<Visual*>{&PlayCard(i), &FieldSelectionRectangle(i)}) {
      each->Left = kTable[i].left + right;
      each->Top = kTable[i].top + down;
    }
  }
  for (const Design& row : kButtonDesign) static_cast<Visual&>(*find(row.name)).Top = row.top + down;
  for (Label* label : {&lblCurrentScore, &lblCurrentRound})
    label->Top = ScoreRectangle.Top + (ScoreRectangle.Height - label->Height) / 2;
  CenterIn(lblCurrentScore, ScoreRectangle);
  CenterIn(lblCurrentRound, RoundRectangle);
}

// --- Showing -------------------------------------------------------------------------------------

// One of no rank doesn't show: the one before stays in view.
void frmDuopick::ShowUpCard() {
  if (!board.Code(kUpCard).empty()) ShowFace(PlayCard(kUpCard), board.Code(kUpCard));
}

void frmDuopick::ShowCards(bool visible) {
  for (int i = 0; i < kCards; ++i) PlayCard(i).Visible = visible;
  CardStackPicture.Visible = visible;
}

// A paused game shows no card; gaps stay gaps.
void frmDuopick::CoverCards(bool covered) {
  for (int i = 0; i < kCards; ++i) PlayCard(i).Visible = !covered && (i == kUpCard || !board.Code(i).empty());
  CardStackPicture.Visible = !covered;
}

void frmDuopick::RefreshPlayCard() {
  if (board.IsDealt()) CardStackPicture.Picture = common.ImageList2(StockKey(board.stack.size(), 18, 11));
}

void frmDuopick::ShowCounts() {
  lblScorePairs.Caption = std::to_string(board.PairsCount);
  lblScoreRuns.Caption = std::to_string(board.RunsCount);
}

void frmDuopick::SettingsRead() {
  lblPairs.Caption = "Pairs x " + std::to_string(PairsBonus);
  lblRuns.Caption = "Runs x " + std::to_string(RunsBonus);
}
