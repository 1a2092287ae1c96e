// The board of frmSumfall: its design, where things stand at any window size, what is shown when; and its
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

constexpr GamePlan kPlan = [] {
  GamePlan plan{"frmSumfall", "\\Sumfall.Ini", "HiScores", "50000", 9540, 7200, kLimits, 90};
  plan.splashInterval = 250;
  plan.fileCaption = "&Game";
  plan.viewMenu = "mnuViewHiScore";
  plan.clearCaption = "&Cear High Scores...";
  plan.customMenu = "mnuScoring";
  plan.customCaption = "C&ustomize Scoring...";
  return plan;
}();

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

}  // namespace

frmSumfall::frmSumfall(modCommon& common) : GameWindow(common, kPlan) {
  SetUpBoard();
  SetUpGameMenus();
  BindBoardEvents();
}

void frmSumfall::SetUpBoard() {
  ApplyDesign(*this, kDesign);
  for (int i = 0; i < kPlaces; ++i) {
    FieldCardPicture(i).ToolTipText = std::to_string(kField[i].points) + " points";
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
  for (int i = 0; i < imgSplashImage.size(); ++i) ShowSplashFace(imgSplashImage(i));
  for (Label* label : {&lblCurrentScore, &lblCurrentRound, &lblCurrentTotal, &lblCurrentElevens})
    label->Fit();
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
    CountDownScore = !CountDownScore;
    mnuDrawTimer.Checked = CountDownScore;
  };
  mnuGoal.Caption = "Card &Goal";
  mnuGoal.rank = 75;
  static constexpr struct {
    const char* menu;
    const char* caption;
  } kGoals[] = {{"mnu10", "1&0"}, {"mnu11", "1&1 (Default)"}, {"mnu12", "1&2"},
                {"mnu13", "1&3"}, {"mnu14", "1&4"},           {"mnu15", "1&5"}};
  for (int goal = kLowestGoal; goal <= kHighestGoal; ++goal) {
    auto entry = std::make_unique<Menu>(mnuGoal, kGoals[goal - kLowestGoal].menu);
    entry->Caption = kGoals[goal - kLowestGoal].caption;
    entry->Checked = goal == kDefaultGoal;
    entry->OnClick = [this, goal] { ChooseGoal(goal); };
    goalEntries.push_back(std::move(entry));
  }
  mnuColor.Caption = "Selection &Color";
  mnuColor.rank = 85;
  for (size_t i = 0; i < kSelectionColours.size(); ++i) {
    auto entry = std::make_unique<Menu>(mnuColor, kSelectionColours[i].menu);
    entry->Caption = kSelectionColours[i].caption;
    entry->OnClick = [this, i] { SelectionColor(static_cast<int>(i)); };
    colourEntries.push_back(std::move(entry));
  }
}

void frmSumfall::BindBoardEvents() {
  FieldCardPicture.OnClick([this](int index) { FieldCardPicture_Click(index); });
  FieldCardPicture.OnMouseMove([this](int index) {
    const bool playable = lblMessage.Caption != "Game Over" && CheckLegalFieldCardMove(index);
    FieldCardPicture(index).MouseIcon = playable ? common.ImageList2("POINTER") : 0;
  });
  UpCardPicture.OnClick = [this] { UpCardPicture_Click(); };
  PlayCardPicture.OnClick = [this] { PlayCardPicture_Click(); };
  for (Image* image : {&UpCardPicture, &PlayCardPicture})
    image->OnMouseMove = [this, image] {
      const bool playable = image->Picture != common.ImageList2("EMPTY") && lblMessage.Caption != "Game Over";
      image->MouseIcon = playable ? common.ImageList2("POINTER") : 0;
    };
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

void frmSumfall::ShowTimerRect() { SetVisible({&TimerRectangle, &TimerBevelSide, &TimerBevelBottom}, true); }

void frmSumfall::ShowGameControls(bool visible) {
  SetVisible({&lblElevens, &lblCurrentElevens, &ElevensRectangle, &ElevensBevelSide, &ElevensBevelBottom},
             visible);
}

void frmSumfall::ShowCards(bool visible) {
  FieldCardDisplay(visible);
  ShowLowerCards(visible);
}

void frmSumfall::DisableCommandButtons(bool disable) {
  for (CommandButton* button : {&cmdPause, &cmdPlay, &cmdExit, &cmdTakeScore}) button->Enabled = !disable;
  for (Menu* entry : {&mnuPause, &mnuPlay, &mnuExit, &mnuTakeScore}) entry->Enabled = !disable;
}

// A paused game lies face down, and what was selected no longer is.
void frmSumfall::CoverCards(bool covered) {
  if (covered) {
    SelRectangle(false);
    CurrentTotal = 0;
    ShowTotal();
    RefreshFieldCards();
    return;
  }
  for (int i = 0; i < kPlaces; ++i) {
    if (!FieldCardPicture(i).Visible) continue;
    FieldCardPicture(i).Picture = common.ImageList2(CardKey(FieldCards[i]));
    FieldCardPicture(i).BorderStyle = 1;
  }
  if (UpCardIndex == 0) return;
  UpCardPicture.Picture = common.ImageList2(CardKey(UpCards[UpCardIndex]));
  UpCardPicture.BorderStyle = 1;
}

void frmSumfall::RefreshPlayCard() {
  PlayCardPicture.Picture = common.ImageList2(StockPicture(static_cast<int>(StockIndex)));
}

void frmSumfall::RefreshFieldCards() {
  const int back = common.ImageList2("BACK");
  for (int i = 0; i < kPlaces; ++i) {
    if (!FieldCardPicture(i).Visible) continue;
    FieldCardPicture(i).Picture = back;
    FieldCardPicture(i).BorderStyle = 0;
  }
  if (UpCardIndex == 0) return;
  UpCardPicture.Picture = back;
  UpCardPicture.BorderStyle = 0;
}

// The splash panel shows the game's own card, and leaves the frame of the pictures alone.
void frmSumfall::ShowSplashFace(Image& image) { image.Picture = common.ImageList2("SFUP"); }

void frmSumfall::ShowSplashBack(Image& image) { image.Picture = common.ImageList2("BACK"); }

void frmSumfall::ShowBonusRoundGoal() {
  StatusBar1.Panels(1).Text = "Make " + FormatNumber(BonusRoundScore) + " for Bonus Round!   ";
}

// --- Settings and texts --------------------------------------------------------------------------

void frmSumfall::SetDefaults() {
  BonusRoundScore = 80000;
  CompletionBonus = 10000;
  CombinationBonus = 1500;
  common.TimeBonus = 100;
  CardGoal = kDefaultGoal;
  CurrentRound = 1;
  StockIndex = -1;
  SelectionColor(kDefaultColour);
}

bool frmSumfall::ApplyGameSetting(std::string_view section, std::string_view value) {
  int number = 0;
  const bool isNumber = ParseLong(value, number);
  if (section == "[Color]") {
    if (isNumber && number >= 0 && number < static_cast<int>(kSelectionColours.size()))
      SelectionColor(number);
  } else if (section == "[DrawTimer]") {
    ApplyFlag(value, CountDownScore);
    mnuDrawTimer.Checked = CountDownScore;
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

void frmSumfall::WriteSettings(SettingsWriter& writer) const {
  writer.Add("[Color]", SelectionColorIndex);
  writer.AddFlag("[Play Music]", common.PlayMusic);
  writer.Add(plan.timeSection, common.TimeLimit);
  writer.AddFlag("[DrawTimer]", CountDownScore);
  writer.AddFlag("[Play Sounds]", common.PlaySounds);
  writer.Add("[CardGoal]", CardGoal);
  WriteWindowSettings(writer);
}

std::string frmSumfall::TableFile(const std::string& tableName) const {
  return "\\" + tableName + std::to_string(common.TimeLimit) + "_" + std::to_string(CardGoal) + ".Txt";
}

std::string frmSumfall::HighScoreInfo() const {
  return "High Scores for Card Goal of " + std::to_string(CardGoal) + "\r\n" + GameWindow::HighScoreInfo();
}

void frmSumfall::ShowCustomScoring() { frmSumfallCustomScoring(*this).Show(true); }

RulesPage frmSumfall::Rules() const {
  const std::string& title = common.AppTitle;
  const std::string limit = std::to_string(common.TimeLimit), quarter = std::to_string(common.TimeLimit / 4);
  const std::string& takeScore = cmdTakeScore.Caption;
  return {
      30,
      {"Requirements: To run " + title +
           " you need Windows 95 or above "
           "and a mouse. "
           " Recommended: Soundcard.",
       "As with most games, the object of " + title +
           " is to attain the highest number of points "
           "possible. The game consists of two rounds, each lasting " +
           limit +
           " seconds. If "
           "you earn more than " +
           std::to_string(BonusRoundScore) +
           " points in these rounds you are awarded an "
           "additional bonus round. You earn points in several ways:",
       "1. Elevens: Selecting "
       "exposed cards that total eleven (the card goal). You are awarded " +
           std::to_string(CombinationBonus) +
           " points for each "
           "combination of 11's you select. These points are awarded at the end of each round. When "
           "selecting "
           "cards (to reach the card goal), each card is worth it's face value, aces are worth 1. The deck "
           "consists of "
           "52 "
           "cards; 16 Aces, 4 of each card 2 thru 10 and no face cards.",
       " you have the ability to change the card goal from 11 "
       "to any number between 10 and 15. When your card goal is set to 12, 4 Jacks (each with a value of 11) "
       "are added "
       "to the deck. When your card goal is 13, 4 Jacks and 4 Queens are added (Queens have a value of 12). "
       "When your "
       "card "
       "goal is 14 or 15, 4 Jacks, 4 Queens and 4 Kings are added to the deck. Kings have a value of 13 "
       "each. "
       "All face cards are in addition to the standard deck described above.",
       "2. "
       "Completion Bonus: If you clear all of the exposed cards (upper deck) you are awarded an additional " +
           std::to_string(CompletionBonus) +
           " points. Exposed cards are those in "
           "the upper playing area. You do not need to use all cards in the deck to earn the completion "
           "bonus.",
       "3. Time Bonus: You are awarded " + std::to_string(common.TimeBonus) +
           " points for each second "
           "remaining in the round after selecting the '" +
           takeScore.substr(1) + "' command button.",
       "4. Creating Eleven Combinations: When you are selecting cards to create an '11' combination, the "
       "location "
       "of the cards determines points awarded when 11 is reached. The 'Field cards' (upper deck) are "
       "displayed in 6 "
       "tiers. "
       "Selected cards in tier one (the bottom one) are worth 200 points, cards in tier two are worth 300 "
       "and so "
       "on to tier six which are worth 700 points. Cards selected from the deck are worth 100 points.",
       "Note: Each time you select a new card from the deck your "
       "score is decreased by 100 points.",
       "Strategy: On the average, you earn a larger number "
       "of points by creating eleven combinations as opposed to clearing the upper deck. If possible, clear "
       "the lower "
       "tiers and then sumfall. Try to clear the upper deck in the last " +
           quarter + " seconds of play. ",
       "Good luck and have fun!"}};
}
