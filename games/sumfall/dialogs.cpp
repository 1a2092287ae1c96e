#include "games/sumfall/dialogs.h"

#include "window/text.h"

namespace {

constexpr int kDialogWidth = 7200;

constexpr Design kScoringDesign[] = {
    {"Frame1", 240, 180, 6720, 2520, "Apptitle Scoring Options"},
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

// The number at the start of a box's text; a text that doesn't begin with a digit is 0.
double NumberIn(const TextBox& box) {
  const std::string& text = box.Text;
  return text.empty() || text[0] < '0' || text[0] > '9' ? 0 : Val(text);
}

template <class Kind>
std::vector<std::unique_ptr<Kind>> Make(Frame& frame, const std::vector<const GameSetting*>& settings,
                                        const char* ScoringField::*name) {
  std::vector<std::unique_ptr<Kind>> controls;
  for (const GameSetting* each : settings)
    controls.push_back(std::make_unique<Kind>(frame, *each->field.*name));
  return controls;
}

}  // namespace

frmSumfallCustomScoring::frmSumfallCustomScoring(frmSumfall& game)
    : Form(game.platform, "frmSumfallCustomScoring"),
      settings(game.settings.WithField()),
      labels(Make<Label>(Frame1, settings, &ScoringField::label)),
      boxes(Make<TextBox>(Frame1, settings, &ScoringField::box)),
      game_(game) {
  Form::Move(0, 0, kDialogWidth, 4200);
  ApplyDesign(*this, kScoringDesign);
  for (size_t i = 0; i < settings.size(); ++i) {
    TextBox& box = *boxes[i];
    const int top = 420 + 480 * static_cast<int>(i);
    labels[i]->Caption = settings[i]->field->caption;
    labels[i]->Move(240, top + 60, 4500, 285);
    box.Move(4920, top, 1560, 360);
    box.OnGotFocus = [&box] { box.SelectAll(); };
  }
  cmdOK.Default = true;
  cmdCancel.Cancel = true;
  cmdOK.OnClick = [this] { cmdOK_Click(); };
  cmdCancel.OnClick = [this] { Unload(); };
  cmdDefault.OnClick = [this] {
    for (size_t i = 0; i < settings.size(); ++i) boxes[i]->Text = std::to_string(settings[i]->standard);
  };
}

void frmSumfallCustomScoring::Form_Load() {
  CenterOnScreen();
  Caption = game_.common.AppTitle + " User Options";
  const int goal = static_cast<int>(game_.CardGoal);
  if (goal >= modSumfall::kLowestGoal && goal <= modSumfall::kHighestGoal)
    labels[2]->Caption =
        std::string("Score awarded for ") + modSumfall::GoalNumberWord(goal) + " combination:";
  for (size_t i = 0; i < settings.size(); ++i) boxes[i]->Text = settings[i]->Text();
  boxes[0]->SetFocus();
}

void frmSumfallCustomScoring::cmdOK_Click() {
  for (size_t i = 0; i < settings.size(); ++i) {
    const ScoringField& field = *settings[i]->field;
    const double value = NumberIn(*boxes[i]);
    if (value >= field.lowest && value <= field.highest) continue;
    game_.common.MsgBox(field.below.message, Icon::Exclamation);
    boxes[i]->SetFocus();
    return;
  }
  for (size_t i = 0; i < settings.size(); ++i) settings[i]->SetNumber(RoundHalfEven(NumberIn(*boxes[i])));
  game_.ShowBonusGoal();
  game_.CheckForCustom();
  Unload();
}

void frmSumfall::ShowCustomScoring() { frmSumfallCustomScoring(*this).Show(true); }

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
