#include "games/sumfall/dialogs.h"

#include "window/text.h"

namespace {

constexpr int kDialogWidth = 7200;

constexpr Design kScoringDesign[] = {
    {"Frame1", 240, 180, 6720, 2520, "Apptitle Scoring Options"},
    {"lblBonus", 240, 480, 4500, 285, "Score required for Bonus Round:"},
    {"txtBonus", 4920, 420, 1560, 360},
    {"lblCompletion", 240, 960, 4500, 285, "Score awarded for upper completion:"},
    {"txtCompletion", 4920, 900, 1560, 360},
    {"lblElevenBonus", 240, 1440, 4500, 285, "Score awarded for eleven combination:"},
    {"txtElevensBonus", 4920, 1380, 1560, 360},
    {"lblTimeBonus", 240, 1920, 4500, 285, "Score awarded for Time Bonus (per second):"},
    {"txtTimeBonus", 4920, 1860, 1560, 360},
    {"lblCustom", 240, 2880, 6720, 540,
     "Note: Any high score attained using customized scoring will be denoted by an asterisk in the High "
     "Score table."},
    {"cmdOK", 1380, 3540, 1320, 420, "&OK"},
    {"cmdCancel", 2940, 3540, 1320, 420, "&Cancel"},
    {"cmdDefault", 4500, 3540, 1320, 420, "&Default"},
};

constexpr Design kFileDesign[] = {
    {"Drive1", 240, 1080, 3240, 360},        {"Dir1", 240, 1500, 3240, 2640},
    {"File1", 3720, 1500, 3240, 2640},       {"txtGameName", 3720, 1080, 3240, 360, "*.sfl"},
    {"cmdOK", 2160, 4980, 1320, 420, "&OK"}, {"cmdCancel", 3720, 4980, 1320, 420, "&Cancel"},
};

constexpr int kLowestValue = 1, kHighestValue = 5'000'000;

// The number at the start of a box's text; a text that doesn't begin with a digit is 0.
double NumberIn(const TextBox& box) {
  const std::string& text = box.Text;
  return text.empty() || text[0] < '0' || text[0] > '9' ? 0 : Val(text);
}

}  // namespace

frmSumfallCustomScoring::frmSumfallCustomScoring(frmSumfall& game)
    : Form(game.platform, "frmSumfallCustomScoring"), game_(game) {
  Form::Move(0, 0, kDialogWidth, 4200);
  ApplyDesign(*this, kScoringDesign);
  for (TextBox* box : {&txtBonus, &txtCompletion, &txtElevensBonus, &txtTimeBonus})
    box->OnGotFocus = [box] { box->SelectAll(); };
  cmdOK.Default = true;
  cmdCancel.Cancel = true;
  cmdOK.OnClick = [this] { cmdOK_Click(); };
  cmdCancel.OnClick = [this] { Unload(); };
  cmdDefault.OnClick = [this] {
    txtBonus.Text = std::to_string(modSumfall::kBonusRoundScore);
    txtCompletion.Text = std::to_string(modSumfall::kCompletionBonus);
    txtElevensBonus.Text = std::to_string(modSumfall::kCombinationBonus);
    txtTimeBonus.Text = std::to_string(modSumfall::kTimeBonus);
  };
}

void frmSumfallCustomScoring::Form_Load() {
  CenterOnScreen();
  Caption = game_.common.AppTitle + " User Options";
  const int goal = static_cast<int>(game_.CardGoal);
  if (goal >= modSumfall::kLowestGoal && goal <= modSumfall::kHighestGoal)
    lblElevenBonus.Caption =
        std::string("Score awarded for ") + modSumfall::GoalNumberWord(goal) + " combination:";
  txtBonus.Text = std::to_string(game_.BonusRoundScore);
  txtCompletion.Text = std::to_string(game_.CompletionBonus);
  txtElevensBonus.Text = std::to_string(game_.CombinationBonus);
  txtTimeBonus.Text = std::to_string(game_.common.TimeBonus);
  txtBonus.SetFocus();
}

void frmSumfallCustomScoring::cmdOK_Click() {
  const struct {
    TextBox& box;
    Long& value;
    const char* message;
  } fields[] = {
      {txtBonus, game_.BonusRoundScore,
       "Sorry, the score required for a Bonus Round must fall between 1 and 5,000,000."},
      {txtCompletion, game_.CompletionBonus,
       "Sorry, the score awarded for completing the upper playing area must fall between 1 and 5,000,000."},
      {txtElevensBonus, game_.CombinationBonus,
       "Sorry, the score awarded for each eleven combination must fall between 1 and 5,000,000."},
      {txtTimeBonus, game_.common.TimeBonus,
       "Sorry, the score awarded for each second remaining in the game after selecting 'Take Score' must "
       "fall between 1 "
       "and 5,000,000."},
  };
  for (const auto& field : fields) {
    const double value = NumberIn(field.box);
    if (value >= kLowestValue && value <= kHighestValue) continue;
    game_.common.MsgBox(field.message, Icon::Exclamation);
    field.box.SetFocus();
    return;
  }
  for (const auto& field : fields) field.value = NumberIn(field.box);
  game_.ShowBonusGoal();
  game_.CheckForCustom();
  Unload();
}

SavedGameDialog::SavedGameDialog(frmSumfall& game, std::string_view name)
    : Form(game.platform, name), game_(game) {
  Form::Move(0, 0, kDialogWidth, 5640);
  ApplyDesign(*this, kFileDesign);
  File1.Pattern = "*.sfl";
  cmdOK.Default = true;
  cmdCancel.Cancel = true;
  Drive1.OnChange = [this] { Dir1.Path = Drive1.Drive; };
  Dir1.OnChange = [this] { File1.Path = Dir1.Path; };
  File1.OnClick = [this] { txtGameName.Text = File1.FileName(); };
  File1.OnDblClick = [this] {
    if (!File1.FileName().empty()) cmdOK_Click();
  };
  txtGameName.OnClick = [this] { txtGameName.SelectAll(); };
  txtGameName.OnReturn = [this] { File1.Pattern = txtGameName.Text; };
  cmdOK.OnClick = [this] { cmdOK_Click(); };
  cmdCancel.OnClick = [this] { Unload(); };
}

void SavedGameDialog::Form_Load() {
  CenterOnScreen();
  Dir1.Path = game_.common.files.Folder().lexically_normal().string();
}

std::filesystem::path SavedGameDialog::ChosenFile() {
  if (txtGameName.Text.get().find('.') == std::string::npos)
    txtGameName.Text = txtGameName.Text.get() + ".sfl";
  const std::string& name = txtGameName.Text;
  if (name == ".sfl" || name.find_first_of("*?") != std::string::npos) return {};
  return std::filesystem::path(Dir1.Path.get()) / name;
}

frmSave::frmSave(frmSumfall& game) : SavedGameDialog(game, "frmSave") {
  static constexpr Design kDesign[] = {
      {"lblSaveInfo", 240, 240, 6720, 720},
      {"lblUserName", 240, 4410, 1560, 285, "Your name:"},
      {"txtUserName", 1920, 4350, 5040, 360, "", "Enter your name if you want it to be saved with this game"},
  };
  ApplyDesign(*this, kDesign);
  Caption = "Save Last Game";
  lblSaveInfo.Caption =
      "Use this dialog to save the last game played. "
      "You may load a saved game later to replay it. This cannot be used to save a game in progress.";
  txtGameName.ToolTipText = "Enter the filename to be used for the saved game";
  cmdOK.ToolTipText = "Saves the game to the specified filename";
  cmdCancel.ToolTipText = "Cancels the save";
}

void frmSave::cmdOK_Click() {
  const std::string text = FormatSavedGame(game_.LastGame(txtUserName.Text));
  const auto file = ChosenFile();
  if (file.empty() || !game_.common.files.Write(file, text)) {
    game_.common.MsgBox(
        "Unable to save the file. Please verify that you have entered a valid path and file name.",
        Icon::Critical);
    return;
  }
  Unload();
}

frmOpen::frmOpen(frmSumfall& game) : SavedGameDialog(game, "frmOpen") {
  static constexpr Design kDesign[] = {{"lblOpenInfo", 240, 240, 6720, 720}};
  ApplyDesign(*this, kDesign);
  Caption = "Open Game";
  lblOpenInfo.Caption =
      "Use this dialog to open a previously saved game. If you want to use "
      "customized scoring you must set that option before opening a saved game.";
  txtGameName.ToolTipText = "Enter the name of the saved game to open";
  cmdOK.ToolTipText = "Opens the specified saved game";
  cmdCancel.ToolTipText = "Cancels opening a saved game";
}

void frmOpen::cmdOK_Click() {
  if (game_.LoadSavedGame(ChosenFile())) Unload();
}
