// The board of frmSpirehold: its design, where things stand at any window size, what is shown when; and its
// settings.
#include "games/spirehold/custom.h"
#include "games/spirehold/spirehold.h"

using namespace modSpirehold;

namespace {

constexpr TimeLimitEntry kLimits[] = {
    {30, "mnu30", "&30 seconds"},
    {45, "mnu45", "&45 seconds (default)"},
    {60, "mnu60", "&60 seconds"},
    {90, "mnu90", "&90 seconds "},
};

constexpr GamePlan kPlan = [] {
  GamePlan plan{"frmSpirehold", "\\Spirehold.Ini", "SpireholdHiScores", "30000", 9570, 7200, kLimits, 45};
  plan.fileMenu = "mnuGame";
  plan.fileCaption = "&Game";
  plan.playStartsMusic = false;
  plan.backsInPlay = true;
  return plan;
}();

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

frmSpirehold::frmSpirehold(modCommon& common) : GameWindow(common, kPlan) {
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
  // Nothing is dealt yet.
  ShowCards(false);
  HideTowerLabels();
  mnuClearHighRun.Caption = "Clear &High Run";
  mnuClearHighRun.rank = 25;
}

void frmSpirehold::BindBoardEvents() {
  UpCardImage.OnClick([this](int index) { UpCardImage_Click(index); });
  CardStackPicture.OnClick = [this] { CardStackPicture_Click(); };
  UpCardPicture.OnClick = [this] { UpCardPicture_Click(); };
  lblCurrentRun.OnChange = [this] { lblCurrentRun_Change(); };
  mnuClearHighRun.OnClick = [this] {
    PauseAround([this] {
      if (!common.Ask("This will clear the current high run value. Are you sure?")) return;
      HighestRun = 0;
      ShowHighRun();
    });
  };
}

// --- Placing -------------------------------------------------------------------------------------

void frmSpirehold::PlaceBoard() {
  PlaceInMiddle(kDesign);
  const int middle = (Width - kCardWidth) / 2, down = (Height - plan.height) / 2;
  for (int i = 0; i < kCards; ++i) {
    UpCardImage(i).Left = middle + kTable[i].halves * kCardWidth / 2;
    UpCardImage(i).Top = kTable[i].top + down;
  }
  for (const Design& row : kButtonDesign) static_cast<Visual&>(*find(row.name)).Top = row.top + down;
  for (Label* label : {&lblCurrentScore, &lblCurrentRound})
    label->Top = ScoreRectangle.Top + (ScoreRectangle.Height - label->Height) / 2;
  CenterIn(lblCurrentScore, ScoreRectangle);
  CenterIn(lblCurrentRound, RoundRectangle);
}

// --- Showing -------------------------------------------------------------------------------------

void frmSpirehold::ShowFace(Image& image, std::string_view code) {
  image.Picture = common.ImageList2(CardKey(code));
  image.BorderStyle = 1;
  image.MouseIcon = common.ImageList2("POINTER");
}

void frmSpirehold::ShowBack(Image& image) {
  image.Picture = common.ImageList2("BACK");
  image.BorderStyle = 0;
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
    if (UpCardImage(i).Picture != 0) UpCardImage(i).Visible = true;
  SetVisible({&CardStackPicture, &UpCardPicture}, true);
  RefreshFieldCards();  // the back design may be another by now
}

void frmSpirehold::RefreshPlayCard() {
  if (const char* stage = StackStage(StackIndex)) CardStackPicture.Picture = common.ImageList2(stage);
}

void frmSpirehold::RefreshFieldCards() {
  for (int i = 0; i < kCards; ++i)
    if (UpCardImage(i).Visible && !UpCardImage(i).Enabled) ShowBack(UpCardImage(i));
}

void frmSpirehold::ShowRun() { lblCurrentRun.Caption = "Current Run: " + std::to_string(CurrentRun); }

void frmSpirehold::ShowHighRun() { lblHighRun.Caption = "Highest Run: " + std::to_string(HighestRun); }

void frmSpirehold::HideTowerLabels() { SetVisible({&lblTower1, &lblTower2, &lblTower3}, false); }

void frmSpirehold::ShowGameControls(bool visible) {
  SetVisible({&lblCurrentRun, &lblHighRun, &lblHighScore, &lblCardCount, &lblCards, &lblNextCard}, visible);
}

// --- Settings and texts --------------------------------------------------------------------------

void frmSpirehold::SetDefaults() {
  CardValue = kCardValue;
  BonusScore = kBonusScore;
  HighRunBonus = kHighRunBonus;
  TowerBonus = kTowerBonus;
  common.TimeBonus = kTimeBonus;
}

void frmSpirehold::CheckForCustom() {
  common.CustomScoringInUse = CardValue != kCardValue || BonusScore != kBonusScore ||
                              HighRunBonus != kHighRunBonus || TowerBonus != kTowerBonus ||
                              common.TimeBonus != kTimeBonus;
}

bool frmSpirehold::ApplyGameSetting(std::string_view section, std::string_view value) {
  if (section == "[Hi Run]")
    ApplyNumber(value, HighestRun);
  else if (section == "[Card Bonus]")
    ApplyNumber(value, CardValue);
  else if (section == "[Bonus Score]")
    ApplyNumber(value, BonusScore);
  else if (section == "[Tower Bonus]")
    ApplyNumber(value, TowerBonus);
  else if (section == "[High Run Bonus]")
    ApplyNumber(value, HighRunBonus);
  else if (section == "[Time Bonus]")
    ApplyNumber(value, common.TimeBonus);
  else if (section == "[Count Down Score]")
    ApplyFlag(value, common.CountDownScore);
  else
    return false;
  return true;
}

void frmSpirehold::WriteSettings(SettingsWriter& writer) const {
  writer.AddFlag("[Play Music]", common.PlayMusic);
  writer.Add(plan.timeSection, common.TimeLimit);
  writer.AddFlag("[Play Sounds]", common.PlaySounds);
  writer.Add("[Hi Run]", HighestRun);
  writer.Add("[Card Bonus]", CardValue);
  writer.Add("[Bonus Score]", BonusScore);
  writer.Add("[Tower Bonus]", TowerBonus);
  writer.Add("[High Run Bonus]", HighRunBonus);
  writer.AddFlag("[Count Down Score]", common.CountDownScore);
  writer.Add("[Time Bonus]", common.TimeBonus);
  WriteWindowSettings(writer);
}

void frmSpirehold::ShowCustomScoring() { frmSpireholdCustom(*this).Show(true); }

RulesPage frmSpirehold::Rules() const {
  const std::string& title = common.AppTitle;
  const auto number = [](long long value) { return FormatNumber(value); };
  return {
      33,
      {"Requirements: To run " + title +
           " you need Windows 95 or above "
           "and a mouse. "
           " Recommended: Soundcard.",
       "As with most games, the object of " + title +
           " is to attain the highest number of points "
           "possible. The game consists of two rounds, each lasting " +
           number(common.TimeLimit) + " seconds. If you earn more than " + number(BonusScore) +
           " points in these rounds you are awarded an additional bonus round.",
       "You earn points in a number ways:",
       "1. Clicking on exposed cards to create runs. For example, Ace-2-3 or 9-8-7-6-5. A run may span from "
       "a "
       "King "
       "to an Ace and vice versa. For example Queen-King-Ace-2 and 3-2-Ace-King are both valid runs. The "
       "longer the "
       "run the more points you earn. Each time a new card is added to a run, the selected card's value "
       "increases by " +
           number(CardValue) + " points.",
       "2. Creating the longest run. " + title +
           " keeps a record of the longest run attained. "
           "When you exceed the longest run you receive an additional " +
           number(HighRunBonus) + " points for each card in the run.",
       "3. Clearing Towers. The upper card area is layed out in a manner that represents three 'Towers'. You "
       "can earn an additional "
       "bonus by clearing these Towers. This bonus is equal to the number of Towers cleared multiplied by " +
           number(TowerBonus) + " points.",
       "4. Time Bonus. If you have no playable cards remaining, clicking the 'Take Score' button will end "
       "the "
       "current round"
       " and award you " +
           number(common.TimeBonus) +
           " points for each second remaining on the clock. "
           "You do not get the Time Bonus if you have not cleared at least one tower.",
       "Good luck and have fun!"}};
}
