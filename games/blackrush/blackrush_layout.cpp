// The layout of frmBlackrush: its design, where things stand at any window size, what is shown when; and its
// settings.
#include <algorithm>

#include "games/blackrush/blackrush.h"
#include "suite/column_places.h"

using namespace modBlackrush;

namespace {

constexpr TimeLimitEntry kLimits[] = {
    {15, "mnu15", "&15 Seconds (for the daring)"},
    {30, "mnu30", "&30 Seconds"},
    {60, "mnu60", "&60 Seconds"},
    {90, "mnu90", "&90 Seconds (default)"},
    {120, "mnu120", "&120 Seconds"},
};

constexpr const char* kSections[] = {"[Play Sounds]",
                                     "[Timer Speed]",
                                     "[Play Music]",
                                     "[Deck]",
                                     "[Cards To Pass]",
                                     "[TwentyOne Bonus Value]",
                                     "[Cards Used Bonus Value]",
                                     "[5 Cards Bonus Value]",
                                     "[Deck Completion Bonus]",
                                     "[Wait Period]",
                                     "[Time Limit]",
                                     "[Bonus Round Score]",
                                     "[Count Down Score]",
                                     "[State]",
                                     "[Width]",
                                     "[Height]"};

constexpr GamePlan kPlan{
    .names = {.window = "frmBlackrush",
              .settingsFile = "\\Blackrush.Ini",
              .message = "ScoringLabelInfo",
              .scoring = "",
              .score = "lblTotalScore",
              .roundNumber = "",
              .roundBox = {},
              .takeScoreEntry = "",
              .customEntry = "mnuUserOptions",
              .timeMenu = "mnuTimeLimit",
              .clockTimer = "Timer6",
              .endGame = "&End game",
              .pause = "P&ause",
              .pauseTip = "Pauses the game in progress",
              .timeSection = "[Time Limit]",
              .welcomeEnding = "!"},
    .tables = OneTable("BlackrushHiScores", "50000"),
    .width = 9060,
    .height = 7155,
    .limits = kLimits,
    .timeLimit = 90,
    .sections = kSections,
    .rules = frmBlackrush::kRules,
    .dialog = {.window = "frmBlackrushCustomScoring",
               .frame = "frmCustomScoring",
               .frameCaption = "Apptitle Scoring options",
               .countDown = "chkCountScore",
               .countDownCaption = "Count down &when taking score",
               .moreRows = 3,
               .overTheGame = true},
    .rounds = 3,
    .bonusRound = BonusRound::ForMore,
    .designs = {kHotCards, kMagicHands, kNightCastle, kPalmTree},
    .deckDesign = 3,
    .endGame = {.text = "You have a game in progress. Are you sure you want to quit?",
                .meanwhile = WhileAsked::RunsOn},
    .held = Held::Commands,
    .panels = {36, 52, 12},  // the hint is long and the window narrow
};

// What stands once. Cards and columns on the left, the score on the right; the command buttons' place across
// the window is the frame's.
constexpr Design kDesign[] = {
    {"PlayCardPicture", 345, 60, 1035, 1455},
    {"NextCardPicture", 1815, 60, 1035, 1455},
    {"lblBust", 3420, 1155, 0, 0, "Bust"},
    {"lblTime", 4554, 45, 0, 0, "Time:"},
    {"TimerRectangle", 4562, 330, 1020, 1020},
    {"Surface", 4622, 390, 900, 900},
    {"Column1Line", 1501, 1665, 0, 4425},
    {"Column2Line", 2929, 1665, 0, 4425},
    {"Column3Line", 4357, 1665, 0, 4425},
    {"ScoringLabelOutline", 150, 3210, 5535, 960},
    {"lblScore", 5670, 60, 1950, 255, "Score"},
    {"ScoreRectangle", 5670, 330, 1950, 510},
    {"lblTotalScore", 5670, 405, 0, 0, "0"},
    {"lblRound", 5670, 1050, 1950, 255, "Round: 1"},
    {"frameScoreInfo", 5700, 2250, 3285, 2535, "Twenty One Scoring Status"},
    {"lblHighScore", 5700, 4980, 3285, 255},
    {"cmdPass", 6012, 5520, 1035, 570, "&Pass"},
};
constexpr Design kButtonDesign[] = {
    {"cmdPlay", 7740, 90, 1200, 420},
    {"cmdTakeScore", 7740, 600, 1200, 420, nullptr, "Totals score for current round"},
    {"cmdPause", 7740, 1110, 1200, 420},
    {"cmdExit", 7740, 1620, 1200, 420},
};
// Within their frame. The round's count takes the place of the counter.
constexpr Design kStatusDesign[] = {
    {"lblTwentyOnes", 300, 405, 1500, 255, "21's earned:"},
    {"lbl21s", 1890, 405, 1140, 255, "0"},
    {"lbl21Bonus", 300, 795, 1500, 255, "Bonus:"},
    {"lblBonus", 1890, 795, 1140, 255, "0"},
    {"lblCardsUsed", 300, 1185, 1500, 255, "Cards used:"},
    {"lblCardsUsedCount", 1890, 1185, 1140, 255, "0"},
    {"lblTwentyoneTime", 300, 1665, 2730, 255, "21 Counter:"},
    {"ProgressBar1", 300, 1980, 2730, 270},
    {"lblRoundScore", 300, 1665, 0, 0},
    {"lblRoundScoreCount", 300, 2025, 2730, 255},
    {"lblFiveCards", 0, 3570, 1335, 600, "Five Card Gimme"},
};

constexpr ColumnPlaces kPlaces = {270, 1428, 1650, 2025, {2355, 2730, 3150, 3555, 3945}, 300, 5520};

}  // namespace

frmBlackrush::frmBlackrush(modCommon& common) : GameWindow(common, kPlan) {
  NameSettings();
  SetUpBoard();
  SetUpLabels();
  BindBoardEvents();
}

void frmBlackrush::SetUpBoard() {
  ApplyDesign(*this, kDesign);
  ApplyDesign(*this, kButtonDesign);
  ApplyDesign(*this, kStatusDesign);
  SetUpColumns(*this, kPlaces);
  for (Shape* line : {&Column1Line, &Column2Line, &Column3Line}) line->BorderColor = kWhite;
  ScoringLabelOutline.Raised = true;
  ScoringLabelOutline.FillColor = 0x101212;
  ScoringLabelOutline.BorderColor = 0x4EA9D4;
  messageBox = &ScoringLabelOutline;
  ProgressBar1.Max = kCounterEnd;
  Timer3.Interval = kNormalSpeed;
  Timer5.Interval = 250;
  // Nothing is dealt yet.
  ClearColumns();
  ShowGameBoard(false);
  SetVisible({&lblTime, &ScoringLabelOutline, &lblBust, &lblFiveCards, &lblRoundScore, &lblRoundScoreCount},
             false);
}

void frmBlackrush::SetUpLabels() {
  ScoringLabelInfo.FontSize = 19;
  lblTotalScore.FontSize = 11;
  for (Label* label : {&lblTime, &lblBust, &lblRoundScore}) label->AutoSize = true;
  for (Label* label : {&lblTime, &lblScore, &lblRound, &lblHighScore, &lblTwentyOnes, &lbl21s, &lbl21Bonus,
                       &lblBonus, &lblCardsUsed, &lblCardsUsedCount, &lblTwentyoneTime, &lblRoundScore,
                       &lblRoundScoreCount, &lblBust, &lblFiveCards})
    label->FontBold = true;
  for (Label* label :
       {&lblScore, &lblRound, &lblHighScore, &lblTwentyoneTime, &lblRoundScoreCount, &lblFiveCards})
    label->Alignment = 2;
  for (Label* label : {&lbl21s, &lblBonus, &lblCardsUsedCount}) label->Alignment = 1;
  for (Label* label : {&lblTwentyOnes, &lbl21s, &lbl21Bonus, &lblBonus, &lblCardsUsed, &lblCardsUsedCount,
                       &lblTwentyoneTime})
    label->ForeColor = kBlue;
  for (Label* label : {&lblBust, &lblFiveCards, &lblRoundScore, &lblRoundScoreCount}) label->ForeColor = kRed;
  lblBust.FontSize = 18;
  lblFiveCards.FontSize = 12;
  ColumnTotal.Set(&Label::FontSize, 12);
  ColumnTotal.Set(&Label::FontBold, true);
  ColumnTotal.Set(&Label::ForeColor, kBlue);
  ColumnSoft.Set(&Label::Alignment, 2);
  ColumnSoft.Set(&Label::ForeColor, kRed);
  for (int i = 0; i < kColumns; ++i) ColumnSoft(i).Visual::Move(0, kPlaces.softTop, kCardWidth, 255);
  for (Label* label : {&lblTime, &lblTotalScore, &lblBust}) label->Fit();
}

void frmBlackrush::BindBoardEvents() {
  cmdHit.OnClick([this](int index) { cmdHit_Click(index); });
  cmdPass.OnClick = [this] { cmdPass_Click(); };
  Timer3.OnTimer = [this] { Timer3_Timer(); };
  Timer5.OnTimer = [this] { Timer5_Timer(); };
  lblTime.OnChange = [this] { CenterIn(lblTime, Column4(0)); };
  lblRoundScore.OnChange = [this] { lblRoundScore.Left = (frameScoreInfo.Width - lblRoundScore.Width) / 2; };
}

// --- Placing -------------------------------------------------------------------------------------

void frmBlackrush::PlaceBoard() {
  PlaceInMiddle(kDesign);
  const int down = (Height - plan.height) / 2;
  for (const Design& row : kButtonDesign) static_cast<Visual&>(*find(row.name)).Top = row.top + down;
  PlaceColumns(*this, kPlaces, [&](int i, int left) {
    CenterIn(ColumnTotal(i), ColumnImages(i)(0));
    ColumnTotal(i).Top = kPlaces.totalTop + down;
    ColumnSoft(i).Left = left;
    ColumnSoft(i).Top = kPlaces.softTop + down;
  });
  lblFiveCards.Top = kPlaces.slotTops[0] + (kCardHeight - lblFiveCards.Height) / 2 + down;
  lblTotalScore.Top = ScoreRectangle.Top + (ScoreRectangle.Height - lblTotalScore.Height) / 2;
  CenterIn(lblTotalScore, ScoreRectangle);
  CenterIn(lblTime, Column4(0));
}

// --- Showing -------------------------------------------------------------------------------------

void frmBlackrush::KeepTelling(const std::string& text) {
  ShowMessage(text);
  ScoringLabelOutline.Visible = true;
}

void frmBlackrush::TellBriefly(const std::string& text) {
  KeepTelling(text);
  if (standing.InGame()) {
    MousePointer = kHourglass;
    platform.Sleep(std::max(0, static_cast<int>(WaitPeriod)));
    MousePointer = kDefaultPointer;
  }
  SetVisible({&ScoringLabelInfo, &ScoringLabelOutline}, false);
}

void frmBlackrush::StopTelling() {
  HideMessage();
  ScoringLabelOutline.Visible = false;
}

void frmBlackrush::ShowGameBoard(bool show) {
  ColumnTotal.Set(&Label::Visible, show);
  SetVisible({&Column1Line,      &Column2Line,    &Column3Line,     &lblScore,        &ScoreRectangle,
              &ScoreBevelBottom, &ScoreBevelSide, &lblTotalScore,   &lblTwentyOnes,   &lblCardsUsed,
              &cmdTakeScore,     &frameScoreInfo, &lbl21s,          &lblBonus,        &lblCardsUsedCount,
              &lblRound,         &lblHighScore,   &PlayCardPicture, &NextCardPicture, &cmdPass,
              &Surface,          &TimerRectangle, &TimerBevelSide,  &TimerBevelBottom},
             show);
  ShowHitButtons(show);
}

void frmBlackrush::EnablePlayControls(bool enable) {
  for (CommandButton* button : {&cmdPlay, &cmdExit, &cmdTakeScore}) button->Enabled = enable;
  for (Menu* entry : {&mnuPlay, &mnuExit}) entry->Enabled = enable;
  if (enable) board.ControlsAreBack();
  cmdPass.Enabled = enable && board.mayPass;
  EnableHitButtons(enable);
}

void frmBlackrush::EnablePause(bool enable) {
  cmdPause.Enabled = enable;
  mnuPause.Enabled = enable;
}

void frmBlackrush::ShowCards(bool visible) {
  if (visible) board.WordsAreShownAgain();
  for (int i = 0; i < kColumns; ++i) {
    const size_t places = std::max<size_t>(1, board.columns[i].cards.size());  // the first is always there
    for (size_t slot = 0; slot < places; ++slot) ColumnImages(i)(slot).Visible = visible;
    if (board.words[i] != Word::None) ColumnSoft(i).Visible = visible;
  }
}

void frmBlackrush::ForgetTwentyOnes() {
  board.ForgetTwentyOnes();
  lbl21s.Caption = "0";
  ShowBonus();
}

void frmBlackrush::ClearColumn(int index) {
  for (int slot = 0; slot < kCardsOfColumn; ++slot) {
    Image& image = ColumnImages(index)(slot);
    image.Visible = false;
    image.Picture = 0;
    image.BorderStyle = 0;
  }
}

void frmBlackrush::ShowEmptyPlace(int index) {
  ShowEmpty(ColumnImages(index)(0));
  ColumnImages(index)(0).Visible = true;
}
