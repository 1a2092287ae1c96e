// The layout of frmSpirehold: its design, where things stand at any window size, what is shown when; and its
// settings.
#include "games/spirehold/spirehold.h"

using namespace modSpirehold;

namespace {

constexpr TimeLimitEntry kLimits[] = {
    {30, "mnu30", "&30 seconds"},
    {45, "mnu45", "&45 seconds (default)"},
    {60, "mnu60", "&60 seconds"},
    {90, "mnu90", "&90 seconds "},
};

constexpr const char* kSections[] = {
    "[Play Music]",       "[Time]",        "[Play Sounds]", "[Hi Run]",
    "[Card Bonus]",       "[Bonus Score]", "[Tower Bonus]", "[High Run Bonus]",
    "[Count Down Score]", "[Time Bonus]",  "[State]",       "[Width]",
    "[Height]",           "[Deck]"};

constexpr GamePlan kPlan{
    .names = {.window = "frmSpirehold",
              .settingsFile = "\\Spirehold.Ini",
              .fileMenu = "mnuGame",
              .fileCaption = "&Game",
              .highScore = "Current High Score: "},
    .tables = OneTable("SpireholdHiScores", "30000"),
    .width = 9570,
    .height = 7200,
    .limits = kLimits,
    .timeLimit = 45,
    .sections = kSections,
    .rules = frmSpirehold::kRules,
    .dialog = {.window = "frmSpireholdCustom"},
    .playEntryFollows = false,
};

// How far from the middle of the window a card's middle is, in halves of a card: between the two that cover
// it.
int HalvesOf(int card) {
  return card < kCovered ? HalvesOf(kLeftCover[card]) + 1 : 2 * (card - kCovered) - 9;
}
int TopOf(int card) { return card < 3 ? 375 : card < 9 ? 1080 : card < kCovered ? 1815 : 2520; }
constexpr int kCardWidth = 1065, kCardHeight = 1455;

// Everything but the towers. The cards take the upper part, across the whole width; the rest stands below.
constexpr Design kDesign[] = {
    {"frmSplash", 1620, 750, 6300, 2850},
    {"lblMessage", 0, 1500, 0, 0},
    {"lblScoring", 0, 2850, 0, 0},
    {"lblTime", 270, 4215, 1260, 255, "Time:"},
    {"TimerRectangle", 270, 4485, 1260, 1260},
    {"Surface", 330, 4545, 1140, 1140},
    {"lblHighScore", 270, 6120, 3600, 255},
    {"CardStackPicture", 2100, 4215, 1035, 1455},
    {"UpCardPicture", 3300, 4215, 1035, 1455},
    {"lblCardCount", 2100, 5745, 1650, 255, "Cards remaining:"},
    {"lblCards", 3870, 5745, 555, 255, nullptr, "Displays your Current Score"},
    {"lblScore", 4530, 4215, 2340, 255, "Score"},
    {"ScoreRectangle", 4530, 4485, 2340, 510},
    {"lblCurrentScore", 4530, 4560, 0, 0, "0"},
    {"lblRound", 7020, 4215, 1080, 255, "Round"},
    {"RoundRectangle", 7020, 4485, 1080, 510},
    {"lblCurrentRound", 7020, 4560, 0, 0, "1"},
    {"lblCurrentRun", 4605, 5205, 3480, 255, "Current Run:"},
    {"lblHighRun", 4605, 5505, 3480, 255, "Highest Run:"},
    {"lblNextCard", 4605, 5805, 3480, 255, "Next card worth:"},
    {"lblTower1", 390, 975, 2400, 300, "Tower 1 completed!"},
    {"lblTower2", 3585, 975, 2400, 300, "Tower 2 completed!"},
    {"lblTower3", 6780, 975, 2400, 300, "Tower 3 completed!"},
};

// The buttons' place across the window is the frame's.
constexpr Design kButtonDesign[] = {
    {"cmdPlay", 8250, 4290, 1200, 420},
    {"cmdTakeScore", 8250, 4800, 1200, 420, nullptr, "End current round and take score"},
    {"cmdPause", 8250, 5310, 1200, 420},
    {"cmdExit", 8250, 5820, 1200, 420},
};

}  // namespace

frmSpirehold::frmSpirehold(modCommon& common) : RoundGame(common, kPlan) {
  NameSettings();
  SetUpBoard();
  BindBoardEvents();
}

void frmSpirehold::SetUpBoard() {
  ApplyDesign(*this, kDesign);
  ApplyDesign(*this, kButtonDesign);
  for (int i = 0; i < kCards; ++i) {
    UpCardImage(i).Width = kCardWidth;
    UpCardImage(i).Height = kCardHeight;
    UpCardImage(i).MousePointer = kCustomPointer;
  }
  CardStackPicture.MousePointer = kCustomPointer;
  CardStackPicture.MouseIcon = common.ImageList2("POINTER");
  for (Label* label : {&lblTime, &lblScore, &lblRound, &lblHighScore, &lblCardCount, &lblCards,
                       &lblCurrentRun, &lblHighRun, &lblNextCard, &lblTower1, &lblTower2, &lblTower3})
    label->FontBold = true;
  for (Label* label : {&lblTime, &lblScore, &lblRound, &lblTower1, &lblTower2, &lblTower3})
    label->Alignment = 2;
  for (Label* label : {&lblTower1, &lblTower2, &lblTower3}) {
    label->FontSize = 10;
    label->ForeColor = kBlue;
  }
  lblMessage.Alignment = 2;
  for (Label* label : {&lblCurrentScore, &lblCurrentRound}) label->Fit();
  roundControls = {&lblCurrentRun, &lblHighRun, &lblHighScore, &lblCardCount, &lblCards, &lblNextCard};
  // Nothing is dealt yet.
  ShowCards(false);
  HideTowerLabels();
  mnuClearHighRun.Caption = "Clear &High Run";
  mnuClearHighRun.rank = 25;
  commands.gameOptions.push_back(&mnuClearHighRun);
}

void frmSpirehold::BindBoardEvents() {
  UpCardImage.OnClick([this](int index) { UpCardImage_Click(index); });
  CardStackPicture.OnClick = [this] { CardStackPicture_Click(); };
  UpCardPicture.OnClick = [this] { UpCardPicture_Click(); };
  lblCurrentRun.OnChange = [this] { lblCurrentRun_Change(); };
  mnuClearHighRun.OnClick = [this] {
    PauseAround([this] {
      if (!common.Ask("This will clear the current high run value. Are you sure?")) return;
      board.HighestRun = 0;
      ShowHighRun();
    });
  };
}

// --- Placing -------------------------------------------------------------------------------------

void frmSpirehold::PlaceBoard() {
  PlaceInMiddle(kDesign);
  const int middle = (Width - kCardWidth) / 2, down = (Height - plan.height) / 2;
  for (int i = 0; i < kCards; ++i) {
    UpCardImage(i).Left = middle + HalvesOf(i) * kCardWidth / 2;
    UpCardImage(i).Top = TopOf(i) + down;
  }
  for (const Design& row : kButtonDesign) static_cast<Visual&>(*find(row.name)).Top = row.top + down;
  for (Label* label : {&lblCurrentScore, &lblCurrentRound})
    label->Top = ScoreRectangle.Top + (ScoreRectangle.Height - label->Height) / 2;
  CenterIn(lblCurrentScore, ScoreRectangle);
  CenterIn(lblCurrentRound, RoundRectangle);
}

// --- Showing -------------------------------------------------------------------------------------

void frmSpirehold::ShowCard(Image& image, std::string_view code) {
  ShowFace(image, code);
  image.MouseIcon = common.ImageList2("POINTER");
}

void frmSpirehold::CoverCard(Image& image) {
  ShowBack(image);
  image.MouseIcon = 0;
}

void frmSpirehold::ShowCards(bool visible, bool disable) {
  for (int i = 0; i < kCards; ++i) {
    UpCardImage(i).Visible = visible;
    if (disable && i < kCovered) UpCardImage(i).Enabled = false;
  }
  SetVisible({&CardStackPicture, &UpCardPicture}, visible);
}

// A paused game shows no card; those that are gone stay so.
void frmSpirehold::CoverCards(bool covered) {
  if (covered) return ShowCards(false, false);
  for (int i = 0; i < kCards; ++i)
    if (!board.table[i].empty()) UpCardImage(i).Visible = true;
  SetVisible({&CardStackPicture, &UpCardPicture}, true);
  RefreshFieldCards();  // the back design may be another by now
}

void frmSpirehold::RefreshPlayCard() {
  if (board.IsDealt()) ShowStack();
  RefreshFieldCards();
}

void frmSpirehold::ShowStack() {
  CardStackPicture.Picture = common.ImageList2(StockKey(board.stack.size(), 18, 11));
}

// Covered cards lie face down in play, too.
void frmSpirehold::RefreshFieldCards() {
  for (int i = 0; i < kCards; ++i)
    if (UpCardImage(i).Visible && board.IsCovered(i)) CoverCard(UpCardImage(i));
}

void frmSpirehold::ShowRun() { lblCurrentRun.Caption = "Current Run: " + std::to_string(board.CurrentRun); }

void frmSpirehold::ShowHighRun() { lblHighRun.Caption = "Highest Run: " + std::to_string(board.HighestRun); }

void frmSpirehold::HideTowerLabels() { SetVisible({&lblTower1, &lblTower2, &lblTower3}, false); }
