// The layout of frmSumfall: its design, where things stand at any window size, what is shown when; and its
// settings.
#include "games/sumfall/dialogs.h"
#include "games/sumfall/sumfall.h"
#include "window/text.h"

using namespace modSumfall;

namespace {

constexpr TimeLimitEntry kLimits[] = {
    {30, "mnu30", "&30 seconds"},    {60, "mnu60", "&60 seconds"},    {90, "mnu90", "&90 seconds (Default)"},
    {120, "mnu120", "&120 seconds"}, {150, "mnu150", "1&50 seconds"}, {180, "mnu180", "1&80 seconds"},
};

constexpr const char* kSections[] = {"[Color]",    "[Play Music]", "[Time]",  "[DrawTimer]", "[Play Sounds]",
                                     "[CardGoal]", "[State]",      "[Width]", "[Height]",    "[Deck]"};

constexpr GamePlan kPlan{
    .names = {.window = "frmSumfall",
              .settingsFile = "\\Sumfall.Ini",
              .scoring = "",
              .viewEntry = "mnuViewHiScore",
              .customEntry = "mnuScoring",
              .fileCaption = "&Game",
              .clearCaption = "&Cear High Scores...",
              .customCaption = "C&ustomize Scoring...",
              .splashFace = "SFUP"},
    .tables = OneTable("HiScores", "50000", {"[CardGoal]", "High Scores for Card Goal of "}),
    .width = 9540,
    .height = 7200,
    .limits = kLimits,
    .timeLimit = 90,
    .sections = kSections,
    .rules = frmSumfall::kRules,
    .bonusCall = {"Bonus Round!", "\\HighScore.wav", true},
    .splashInterval = 250,
    .playFailure = std::nullopt,  // there is no game yet that could be lost
    .endGame = {.text = "You have a game in progress, are you sure you want to quit now?",
                .tipIsAhead = true},
    .whileClosing = WhileClosing::Paused,
};

constexpr Design kDesign[] = {
    {"lblTime", 150, 120, 1500, 255, "Time:"},
    {"TimerRectangle", 270, 420, 1260, 1260},
    {"Surface", 330, 480, 1140, 1140},
    {"lblScore", 1710, 120, 2340, 255, "Score"},
    {"ScoreRectangle", 1710, 420, 2340, 510},
    {"lblCurrentScore", 1860, 495, 0, 0, "0"},
    {"lblRound", 5640, 120, 1080, 255, "Round"},
    {"RoundRectangle", 5640, 420, 1080, 510},
    {"lblCurrentRound", 5640, 495, 0, 0, "1"},
    {"lblElevens", 6900, 120, 1200, 255, "Elevens:"},
    {"ElevensRectangle", 6900, 420, 1200, 510},
    {"lblCurrentElevens", 6900, 495, 0, 0, "0"},
    {"lblHighScore", 150, 6100, 2700, 255},
    {"lblTotal", 4230, 3900, 1245, 255, "Card Total"},
    {"CardTotalRectangle", 4410, 4170, 885, 450},
    {"lblCurrentTotal", 4410, 4245, 0, 0, "0"},
    {"lblCardCount", 2655, 5460, 900, 255, "Cards: 30"},
    {"FieldCardPicture", 0, 0, 1065, 1455},
    {"FieldSelectionRectangle", 0, 0, 1065, 1455},
    {"PlayCardPicture", 0, 0, 1065, 1455},
    {"UpCardPicture", 0, 0, 1065, 1455, nullptr, "100 points"},
    {"UpCardSelectionRectangle", 0, 0, 1065, 1455},
};

// Where the places of the field lie, seen from the first.
constexpr struct {
  int left, top;
} kField[kPlaces] = {
    {0, 0},        {-2610, 500}, {2610, 500},   {-630, 500},  {630, 500},    {-3285, 1000},
    {-1935, 1000}, {0, 1000},    {1935, 1000},  {3285, 1000}, {-3960, 1500}, {-2610, 1500},
    {-1260, 1500}, {1260, 1500}, {2610, 1500},  {3960, 1500}, {-3285, 2000}, {-1935, 2000},
    {1935, 2000},  {3285, 2000}, {-2610, 2500}, {2610, 2500},
};

constexpr struct {
  const char *menu, *caption;
  int colour;
} kSelectionColours[] = {
    {"mnuYellow", "&Yellow", 65535}, {"mnuRed", "&Red (Default)", 255},  {"mnuBlue", "&Blue", 0xFF0000},
    {"mnuGreen", "&Green", 49152},   {"mnuPurple", "&Purple", 0x800080}, {"mnuBlack", "&Black", 0},
};
constexpr int kDefaultColour = 1;

constexpr struct {
  const char *menu, *caption, *word, *number;
} kGoals[] = {{"mnu10", "1&0", "Tens:", "ten"},           {"mnu11", "1&1 (Default)", "Elevens:", "eleven"},
              {"mnu12", "1&2", "Twelves:", "twelve"},     {"mnu13", "1&3", "Thirteens:", "thirteen"},
              {"mnu14", "1&4", "Fourteens:", "fourteen"}, {"mnu15", "1&5", "Fifteens:", "fifteen"}};

}  // namespace

const char* modSumfall::GoalWord(int cardGoal) { return kGoals[cardGoal - kLowestGoal].word; }

const char* modSumfall::GoalNumberWord(int cardGoal) { return kGoals[cardGoal - kLowestGoal].number; }

frmSumfall::frmSumfall(modCommon& common) : RoundGame(common, kPlan) {
  NameSettings();
  SetUpBoard();
  SetUpGameMenus();
  BindBoardEvents();
}

void frmSumfall::NameSettings() {
  const auto field = [](const char* box, const char* label, const char* caption, const char* message) {
    return BoundedField(box, label, caption, 1, 5'000'000, message, message);
  };
  goal = &CardGoal;
  settings = {
      {"bonusRoundScore", &BonusRoundScore, kBonusRoundScore, "", Customises::Yes,
       field("txtBonus", "lblBonus", "Score required for Bonus Round:",
             "Sorry, the score required for a Bonus Round must fall between 1 and 5,000,000.")},
      {"completionBonus", &CompletionBonus, kCompletionBonus, "", Customises::Yes,
       field("txtCompletion", "lblCompletion", "Score awarded for upper completion:",
             "Sorry, the score awarded for completing the upper playing area must fall between 1 and "
             "5,000,000.")},
      {"combinationBonus", &CombinationBonus, kCombinationBonus, "", Customises::Yes,
       field("txtElevensBonus", "lblElevenBonus", "Score awarded for eleven combination:",
             "Sorry, the score awarded for each eleven combination must fall between 1 and 5,000,000.")},
      {"timeBonus", &common.TimeBonus, kTimeBonus, "", Customises::Yes,
       field(
           "txtTimeBonus", "lblTimeBonus", "Score awarded for Time Bonus (per second):",
           "Sorry, the score awarded for each second remaining in the game after selecting 'Take Score' must "
           "fall between 1 and 5,000,000.")},
      {"colour", &SelectionColorIndex, kDefaultColour, "[Color]", Customises::No},
      {"cardGoal", &CardGoal, kDefaultGoal, "[CardGoal]", Customises::No},
      {"countDown", &common.CountDownScore, true, "[DrawTimer]", Customises::No},
  };
}

void frmSumfall::SetUpBoard() {
  ApplyDesign(*this, kDesign);
  for (int i = 0; i < kPlaces; ++i) {
    FieldCardPicture(i).ToolTipText = std::to_string(kPoints[i]) + " points";
    FieldCardPicture(i).BorderStyle = 1;
    FieldCardPicture(i).MousePointer = kCustomPointer;
    FieldSelectionRectangle(i).BorderWidth = 3;
  }
  UpCardSelectionRectangle.BorderWidth = 3;
  for (Image* image : {&PlayCardPicture, &UpCardPicture}) image->MousePointer = kCustomPointer;
  UpCardPicture.BorderStyle = 1;
  AddScoreBox(CardTotalRectangle, CardTotalBevelSide, CardTotalBevelBottom);
  AddScoreBox(ElevensRectangle, ElevensBevelSide, ElevensBevelBottom);
  for (Label* label : {&lblCurrentTotal, &lblCurrentElevens}) {
    label->FontSize = 12;
    label->FontBold = true;
    label->AutoSize = true;
    label->ForeColor = kBlue;
  }
  for (Label* label : {&lblTime, &lblScore, &lblRound, &lblElevens, &lblTotal, &lblHighScore, &lblCardCount})
    label->FontBold = true;
  for (Label* label : {&lblTime, &lblScore, &lblRound, &lblElevens, &lblTotal}) label->Alignment = 2;
  for (int i = 0; i < imgSplashImage.size(); ++i) imgSplashImage(i).Picture = common.ImageList2("SFUP");
  for (Label* label : {&lblCurrentScore, &lblCurrentRound, &lblCurrentTotal, &lblCurrentElevens})
    label->Fit();
  roundControls = {&lblElevens, &lblCurrentElevens, &ElevensRectangle, &ElevensBevelSide,
                   &ElevensBevelBottom};
  // Nothing is dealt yet.
  FieldCardDisplay(false);
  SelRectangle(false);
  FieldSelectionRectangle(0).Visible = false;
  ShowLowerCards(false);
  CardTotalVisible(false);
}

void frmSumfall::SetUpGameMenus() {
  mnuSave.Caption = "Sa&ve Last Game...";
  mnuOpen.Caption = "&Open Game...";
  mnuSave.OnClick = [this] { frmSave(*this).Show(true); };
  mnuOpen.OnClick = [this] { frmOpen(*this).Show(true); };
  mnuDrawTimer.Caption = "Count &Down when taking score";
  mnuDrawTimer.Checked = true;
  mnuDrawTimer.OnClick = [this] {
    common.CountDownScore = !common.CountDownScore;
    mnuDrawTimer.Checked = common.CountDownScore;
  };
  mnuGoal.Caption = "Card &Goal";
  mnuGoal.rank = 75;
  for (int goal = kLowestGoal; goal <= kHighestGoal; ++goal) {
    auto entry = std::make_unique<Menu>(mnuGoal, kGoals[goal - kLowestGoal].menu);
    entry->Caption = kGoals[goal - kLowestGoal].caption;
    entry->Checked = goal == kDefaultGoal;
    entry->OnClick = [this, goal] { ChooseGoal(goal); };
    goalEntries.push_back(std::move(entry));
  }
  mnuColor.Caption = "Selection &Color";
  mnuColor.rank = 85;
  for (size_t i = 0; i < std::size(kSelectionColours); ++i) {
    auto entry = std::make_unique<Menu>(mnuColor, kSelectionColours[i].menu);
    entry->Caption = kSelectionColours[i].caption;
    entry->OnClick = [this, i] { SelectionColor(static_cast<int>(i)); };
    colourEntries.push_back(std::move(entry));
  }
}

void frmSumfall::BindBoardEvents() {
  FieldCardPicture.OnClick([this](int index) { FieldCardPicture_Click(index); });
  FieldCardPicture.OnMouseMove([this](int index) {
    const bool playable = !standing.IsOver() && board.CheckLegalFieldCardMove(index);
    FieldCardPicture(index).MouseIcon = playable ? common.ImageList2("POINTER") : 0;
  });
  UpCardPicture.OnClick = [this] { UpCardPicture_Click(); };
  PlayCardPicture.OnClick = [this] { PlayCardPicture_Click(); };
  const auto pointAt = [this](Image& image, const auto& pile) {
    image.OnMouseMove = [this, &image, &pile] {
      const bool playable = !pile.empty() && !standing.IsOver();
      image.MouseIcon = playable ? common.ImageList2("POINTER") : 0;
    };
  };
  pointAt(UpCardPicture, board.upCards);
  pointAt(PlayCardPicture, board.stock);
  lblCurrentScore.OnChange = [this] {
    CenterIn(lblCurrentScore, ScoreRectangle);
    lblCurrentScore.ForeColor = common.CurrentScore < 0 ? kRed : kBlue;
  };
  lblCurrentElevens.OnChange = [this] { CenterIn(lblCurrentElevens, ElevensRectangle); };
  lblCurrentTotal.OnChange = [this] { CenterIn(lblCurrentTotal, CardTotalRectangle); };
}

// --- Placing -------------------------------------------------------------------------------------

void frmSumfall::PlaceBoard() {
  const int x = static_cast<int>(RoundHalfEven(Width / 2.208333333333)),
            y = static_cast<int>(RoundHalfEven(Height / 5.142857142857));
  for (int i = 0; i < kPlaces; ++i) {
    const int left = x + kField[i].left, top = y + kField[i].top;
    FieldCardPicture(i).Left = left;
    FieldCardPicture(i).Top = top;
    FieldSelectionRectangle(i).Left = left;
    FieldSelectionRectangle(i).Top = top;
  }
  const int bottomRow = y + kField[kPlaces - 1].top;
  PlayCardPicture.Left = x - 630;
  UpCardPicture.Left = UpCardSelectionRectangle.Left = x + 630;
  PlayCardPicture.Top = UpCardPicture.Top = UpCardSelectionRectangle.Top = bottomRow + 975;
  lblCardCount.Left = x - 1665;
  lblCardCount.Top = bottomRow + 1560;

  // The card total stands between the field and the pile, in the middle of place 0.
  const int middle = x + FieldCardPicture(0).Width / 2;
  lblTotal.Left = middle - lblTotal.Width / 2;
  lblTotal.Top = bottomRow;
  CardTotalRectangle.Left = middle - CardTotalRectangle.Width / 2;
  CardTotalRectangle.Top = bottomRow + 270;
  lblCurrentTotal.Top = CardTotalRectangle.Top + (CardTotalRectangle.Height - lblCurrentTotal.Height) / 2;
  CenterIn(lblCurrentTotal, CardTotalRectangle);

  // The boxes of round and combinations keep their distance from the buttons.
  lblRound.Left = RoundRectangle.Left = Width - 3900;
  lblElevens.Left = ElevensRectangle.Left = Width - 2640;
  lblHighScore.Top = Height - kBars - 50 - lblHighScore.Height;
  for (Label* label : {&lblCurrentScore, &lblCurrentRound, &lblCurrentElevens})
    label->Top = ScoreRectangle.Top + (ScoreRectangle.Height - label->Height) / 2;
  CenterIn(lblCurrentScore, ScoreRectangle);
  CenterIn(lblCurrentRound, RoundRectangle);
  CenterIn(lblCurrentElevens, ElevensRectangle);
}

void frmSumfall::PlaceMessage() {
  const bool low = lblMessage.Caption == "Times Up!" || lblMessage.Caption == "Game Paused";
  lblMessage.Top = low ? PlayCardPicture.Top.get() : FieldSelectionRectangle(0).Top + 1905;
  lblMessage.Left = lblTotal.Left + lblTotal.Width / 2 - lblMessage.Width / 2;
}

// --- Showing -------------------------------------------------------------------------------------

void frmSumfall::FieldCardDisplay(bool visible) {
  for (int i = 0; i < kPlaces; ++i) FieldCardPicture(i).Visible = visible;
}

// Place 0 is left out: a card selected there keeps its rectangle.
void frmSumfall::SelRectangle(bool visible) {
  for (int i = 1; i < kPlaces; ++i) FieldSelectionRectangle(i).Visible = visible;
  UpCardSelectionRectangle.Visible = visible;
}

void frmSumfall::CardTotalVisible(bool visible) {
  SetVisible({&CardTotalRectangle, &CardTotalBevelSide, &CardTotalBevelBottom, &lblCurrentTotal, &lblTotal},
             visible);
}

void frmSumfall::ShowLowerCards(bool visible) {
  SetVisible({&PlayCardPicture, &UpCardPicture, &lblCardCount}, visible);
}

void frmSumfall::SelectionColor(int index) {
  const int colour = kSelectionColours[index].colour;
  for (int i = 0; i < kPlaces; ++i) FieldSelectionRectangle(i).BorderColor = colour;
  UpCardSelectionRectangle.BorderColor = colour;
  SelectionColorIndex = index;
  TickOnly(*colourEntries[index]);
}

void frmSumfall::ShowTimerRect() { SetVisible({&TimerRectangle, &TimerBevelSide, &TimerBevelBottom}, true); }

void frmSumfall::ShowCards(bool visible) {
  FieldCardDisplay(visible);
  ShowLowerCards(visible);
}

void frmSumfall::EnableCommands(bool enable) {
  commands.EnableButtons(enable);
  commands.EnableEntries(enable);
}

// A paused game lies face down, and what was selected no longer is.
void frmSumfall::CoverCards(bool covered) {
  if (covered) {
    SelRectangle(false);
    board.DropSelection();
    ShowTotal();
    RefreshFieldCards();
    return;
  }
  for (int i = 0; i < kPlaces; ++i)
    if (!board.field[i].empty()) ShowFace(FieldCardPicture(i), board.field[i]);
  if (!board.upCards.empty()) ShowFace(UpCardPicture, board.upCards.back());
}

void frmSumfall::RefreshPlayCard() {
  ShowStock();
  RefreshFieldCards();
}

void frmSumfall::ShowStock() {
  PlayCardPicture.Picture = common.ImageList2(StockKey(board.stock.size(), 21, 11));
}

void frmSumfall::RefreshFieldCards() {
  if (!standing.IsPaused()) return;
  for (int i = 0; i < kPlaces; ++i)
    if (!board.field[i].empty()) ShowBack(FieldCardPicture(i));
  if (!board.upCards.empty()) ShowBack(UpCardPicture);
}

// --- Settings and texts --------------------------------------------------------------------------

void frmSumfall::SetDefaults() {
  CurrentRound = 1;
  SelectionColor(kDefaultColour);
}

bool frmSumfall::ApplyGameSetting(std::string_view section, std::string_view value) {
  int number = 0;
  const bool isNumber = ParseLong(value, number);
  if (section == "[Color]") {
    if (isNumber && number >= 0 && number < static_cast<int>(std::size(kSelectionColours)))
      SelectionColor(number);
  } else if (section == "[CardGoal]") {
    if (!isNumber || number < INT16_MIN || number > INT16_MAX) return true;
    for (const auto& entry : goalEntries) entry->Checked = false;
    CardGoal = number;
    if (number < kLowestGoal || number > kHighestGoal) return true;
    goalEntries[number - kLowestGoal]->Checked = true;
    lblElevens.Caption = GoalWord(number);
  } else {
    return false;
  }
  return true;
}
