// The windows that belong to Sumfall alone: customised scoring, saving and opening games.
#pragma once

#include "games/sumfall/sumfall.h"
#include "window/lists.h"

class frmSumfallCustomScoring : public Form {
 public:
  explicit frmSumfallCustomScoring(frmSumfall& game);
  void Form_Load() override;

  // What a player may set of the game, each with its label and box.
  const std::vector<const GameSetting*> settings;
  Frame Frame1{*this, "Frame1"};
  const std::vector<std::unique_ptr<Label>> labels;
  const std::vector<std::unique_ptr<TextBox>> boxes;
  Label lblCustom{*this, "lblCustom"};
  CommandButton cmdOK{*this, "cmdOK"}, cmdCancel{*this, "cmdCancel"}, cmdDefault{*this, "cmdDefault"};

 private:
  void cmdOK_Click();

  frmSumfall& game_;
};

// What the two file windows have in common: the lists that find a folder and a file.
class SavedGameDialog : public Form {
 public:
  SavedGameDialog(frmSumfall& game, std::string_view name);
  void Form_Load() override;

  DriveListBox Drive1{*this, "Drive1"};
  DirListBox Dir1{*this, "Dir1"};
  FileListBox File1{*this, "File1"};
  TextBox txtGameName{*this, "txtGameName"};
  CommandButton cmdOK{*this, "cmdOK"}, cmdCancel{*this, "cmdCancel"};

 protected:
  virtual void cmdOK_Click() = 0;
  // The file that is named, its extension added; an empty path if no file can have that name.
  std::filesystem::path ChosenFile();

  frmSumfall& game_;
};

// Says in which folder it is.
std::unique_ptr<Guide> GuideTo(SavedGameDialog& window);

class frmSave : public SavedGameDialog {
 public:
  explicit frmSave(frmSumfall& game);

  Label lblUserName{*this, "lblUserName"}, lblSaveInfo{*this, "lblSaveInfo"};
  TextBox txtUserName{*this, "txtUserName"};

 private:
  void cmdOK_Click() override;
};

class frmOpen : public SavedGameDialog {
 public:
  explicit frmOpen(frmSumfall& game);

  Label lblOpenInfo{*this, "lblOpenInfo"};

 private:
  void cmdOK_Click() override;
};
