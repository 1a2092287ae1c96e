// The layout of frmTreyshift: its design, where things stand at any window size, what is shown when; and its
// settings.
#include "games/treyshift/treyshift.h"

using namespace modTreyshift;

namespace {

constexpr TimeLimitEntry kLimits[] = {
    {60, "mnu60", "&60 seconds"},
    {75, "mnu75", "&75 seconds"},
    {90, "mnu90", "&90 seconds"},
    {105, "mnu105", "&105 seconds"},
    {120, "mnu120", "1&20 seconds (default)"},
    {135, "mnu135", "1&35 seconds"},
    {150, "mnu150", "1&50 seconds"},
    {180, "mnu180", "1&80 seconds"},
};

constexpr const char* kSections[] = {"[Time]",       "[Play Sounds]", "[Play Music]",  "[Count Down Score]",
                                     "[Deck]",       "[Time Bonus]",  "[Bonus Score]", "[Trips Score]",
                                     "[Runs Score]", "[Flush Score]", "[State]",       "[Width]",
                                     "[Height]"};

constexpr GamePlan kPlan{
    .names = {.window = "frmTreyshift",
              .settingsFile = "\\Treyshift.Ini",
              .roundNumber = "",
              .roundBox = {},
              .exitButton = "cmdQuit",
              .takeScoreEntry = ""},
    .tables = OneTable("TreyshiftHiScores", "30000"),
    .width = 9540,
    .height = 7305,
    .limits = kLimits,
    .timeLimit = 120,
    .sections = kSections,
    .rules = frmTreyshift::kRules,
    .dialog = {.window = "frmTreyshiftCustom"},
    .playFailure = Icon::Critical,
    .endGame = {.meanwhile = WhileAsked::Silenced},
    // Only the buttons, and the entry Pause, wait until a round is scored: the others have their own reasons.
    .held = Held::Buttons,
    .dialRuns = DialRuns::FromLoading,
};

// The storage above, the field in the middle, the deck below; the clock and what was made to the left. The
// score stands where the big labels leave room for it, also when they take the deck's place.
constexpr Design kDesign[] = {
    {"FieldRect", 1800, 2040, 5895, 2415},
    {"lblTime", 150, 180, 1500, 255, "Time:"},
    {"TimerRectangle", 270, 450, 1260, 1260},
    {"Surface", 330, 510, 1140, 1140},
    {"lblRound", 150, 1785, 1500, 255, "Round: 1"},
    {"lblTemp", 1650, 720, 1140, 510, "Temporary Storage"},
    {"lblFieldCards", 0, 1935, 0, 0, "   Playing Field   "},
    {"lblTrips", 0, 2310, 0, 0},
    {"TripsRectangle", 180, 2580, 1440, 510},
    {"lblScoreTrips", 0, 0, 0, 0, "0"},
    {"lblRuns", 0, 3390, 0, 0},
    {"RunRectangle", 180, 3660, 1440, 510},
    {"lblScoreRuns", 0, 0, 0, 0, "0"},
    {"lblCardCount", 1530, 6210, 2400, 255},
    {"CardStackPicture", 2160, 4680, 1035, 1455},
    {"lblScore", 6960, 5610, 2340, 255, "Score"},
    {"ScoreRectangle", 6960, 5880, 2340, 510},
    {"lblCurrentScore", 0, 0, 0, 0, "0"},
    {"lblHighScore", 6750, 5190, 2760, 255},
    {"ScoringLabelOutline", 1200, 2520, 7140, 1395},
};

// The buttons' place across the window is the frame's.
constexpr Design kButtonDesign[] = {
    {"cmdPlay", 8220, 240, 1200, 420},
    {"cmdTakeScore", 8220, 750, 1200, 420, nullptr, "Ends the round and awards points"},
    {"cmdPause", 8220, 1260, 1200, 420},
    {"cmdQuit", 8220, 1770, 1200, 420},
};

constexpr int kCardWidth = 1035, kCardHeight = 1455;
constexpr int kDeckTop = 4680, kStorageTop = 240;

}  // namespace

frmTreyshift::frmTreyshift(modCommon& common) : GameWindow(common, kPlan) {
  NameSettings();
  SetUpBoard();
  BindBoardEvents();
}

void frmTreyshift::SetUpBoard() {
  ApplyDesign(*this, kDesign);
  ApplyDesign(*this, kButtonDesign);
  const auto setUp = [this](Image& card, Shape& selection, int colour) {
    card.Width = selection.Width = kCardWidth;
    card.Height = selection.Height = kCardHeight;
    card.MousePointer = kCustomPointer;
    card.MouseIcon = common.ImageList2("POINTER");
    selection.BorderColor = colour;
    selection.BorderWidth = 3;
    selection.Visible = false;
  };
  for (int i = 0; i < kFieldSlots; ++i) setUp(PlayCard(i), PlayCardSelection(i), kRed);
  for (int i = 0; i < kTempSlots; ++i) setUp(TempCard(i), TempCardSelection(i), kBlue);
  for (int i = 0; i < kUpSlots; ++i) setUp(UpCard(i), UpCardSelection, kRed);
  for (int i = 0; i < kInPlay; ++i) UpCard(i).MousePointer = kDefaultPointer;
  AddScoreBox(TripsRectangle, TripsBevelSide, TripsBevelBottom);
  AddScoreBox(RunRectangle, RunBevelSide, RunBevelBottom);
  for (Label* figure : {&lblScoreTrips, &lblScoreRuns}) {
    figure->FontSize = 12;
    figure->ForeColor = kBlue;
  }
  for (Label* label : {&lblScoreTrips, &lblScoreRuns, &lblTrips, &lblRuns, &lblFieldCards})
    label->AutoSize = true;
  for (Label* label : {&lblTime, &lblScore, &lblRound, &lblHighScore, &lblCardCount, &lblTemp, &lblFieldCards,
                       &lblTrips, &lblRuns, &lblScoreTrips, &lblScoreRuns, &lblFlush})
    label->FontBold = true;
  for (Label* label : {&lblTime, &lblScore, &lblRound, &lblHighScore, &lblCardCount, &lblTemp, &lblFlush})
    label->Alignment = 2;
  lblFlush.Width = 930;
  lblFlush.Height = 240;
  lblFlush.ForeColor = kRed;
  FieldRect.BorderColor = kWhite;
  ScoringLabelOutline.BorderColor = kWhite;
  ScoringLabelOutline.Raised = true;
  lblCurrentScore.Fit();
  RestoreFlush();
  messageBox = &ScoringLabelOutline;
  roundControls = {&lblHighScore,   &lblCardCount,     &lblTrips, &lblScoreTrips, &TripsRectangle,
                   &TripsBevelSide, &TripsBevelBottom, &lblRuns,  &lblScoreRuns,  &RunRectangle,
                   &RunBevelSide,   &RunBevelBottom,   &lblTemp,  &lblFieldCards, &FieldRect};
  // Nothing is dealt yet.
  ShowCards(false);
  for (int i = kSecondRow; i < kFieldSlots; ++i) PlayCard(i).Visible = false;
  ShowScoringLabel(false);
  ShowControls(false);
  lblHighScore.Visible = true;
}

void frmTreyshift::BindBoardEvents() {
  PlayCard.OnClick([this](int index) { PlayCard_Click(index); });
  TempCard.OnClick([this](int index) { TempCard_Click(index); });
  UpCard.OnClick([this](int index) { UpCard_Click(index); });
  CardStackPicture.OnClick = [this] { CardStackPicture_Click(); };
  for (Label* label : {&lblCurrentScore, &lblScoreTrips, &lblScoreRuns, &lblTrips, &lblRuns})
    label->OnChange = [this] { CenterFigures(); };
}

// --- Placing -------------------------------------------------------------------------------------

void frmTreyshift::PlaceBoard() {
  PlaceInMiddle(kDesign);
  const int right = (Width - plan.width) / 2, down = (Height - plan.height) / 2;
  const auto place = [&](Visual& card, int left, int top) {
    card.Left = left + right;
    card.Top = top + down;
  };
  for (int i = 0; i < kFieldSlots; ++i)
    for (Visual* each : {static_cast<Visual*>(&PlayCard(i)), static_cast<Visual*>(&PlayCardSelection(i))})
      place(*each, 2040 + 1440 * (i % kColumns), 2160 + 360 * (i / kColumns));
  for (int i = 0; i < kTempSlots; ++i)
    for (Visual* each : {static_cast<Visual*>(&TempCard(i)), static_cast<Visual*>(&TempCardSelection(i))})
      place(*each, 2880 + 1320 * i, kStorageTop);
  for (int i = 0; i < kUpSlots; ++i) place(UpCard(i), 3720 + 360 * i, kDeckTop);
  place(UpCardSelection, 4455, kDeckTop);
  for (const Design& row : kButtonDesign) static_cast<Visual&>(*find(row.name)).Top = row.top + down;
  CenterIn(lblFieldCards, FieldRect);
  CenterFigures();
  // The hint of this game is a long one.
  StatusBar1.Panels(1).Width = Width * 35 / 100;
  StatusBar1.Panels(2).Width = Width * 52 / 100;
  StatusBar1.Panels(3).Width = Width * 13 / 100;
}

void frmTreyshift::CenterFigures() {
  CenterWithin(lblCurrentScore, ScoreRectangle);
  CenterWithin(lblScoreTrips, TripsRectangle);
  CenterWithin(lblScoreRuns, RunRectangle);
  CenterIn(lblTrips, TripsRectangle);
  CenterIn(lblRuns, RunRectangle);
}

// While an amount is counted, what it is for stands to its left.
void frmTreyshift::PlaceScoring() {
  GameWindow::PlaceScoring();
  lblMessage.Left = lblScoring.Left - lblMessage.Width - 100;
}

// --- Showing -------------------------------------------------------------------------------------

void frmTreyshift::ShowCards(bool visible) {
  for (int i = 0; i < kTempSlots; ++i) TempCard(i).Visible = visible;
  for (int i = 0; i < kUpSlots; ++i) UpCard(i).Visible = visible;
  for (int i = 0; i < kFieldSlots; ++i)
    if (i < kSecondRow || !board.FieldCards[i].empty()) PlayCard(i).Visible = visible;
  CardStackPicture.Visible = visible;
  if (board.Selected()) SelectionOf(board.SourceZone, board.SourceIndex).Visible = visible;
}

void frmTreyshift::RefreshPlayCard() {
  CardStackPicture.Picture = common.ImageList2(StockKey(52 - board.DeckPosition, 33, 17));
}

void frmTreyshift::ShowCardCount() {
  lblCardCount.Caption = "Cards remaining: " + std::to_string(board.CardsRemaining());
}

void frmTreyshift::ShowScoringLabel(bool visible) {
  SetVisible({&lblScoring, &ScoringLabelOutline}, visible);
}
