// The three lists with which a player finds a file: places, folders, files.
#pragma once

#include "window/controls.h"

// Common to the three: entries, and the one that is picked.
class ListControl : public Visual {
 public:
  using Visual::Visual;

  Property<std::vector<std::string>> List{*this, Prop::List, {}};
  Property<int> ListIndex{*this, Prop::ListIndex, -1};

  std::function<void()> OnChange;  // the place that the list is about has changed

  // The player picks an entry. False if there is no such entry.
  virtual bool Pick(int entry);
  void Visit(const PropertyVisitor& visit) const override;
};

// Places to start from: the root of the file system, the home folder, what is mounted.
class DriveListBox : public ListControl {
 public:
  DriveListBox(Control& parent, std::string_view name);

  Property<std::string> Drive{*this, Prop::Drive, ""};  // the picked place

  bool Pick(int entry) override;
  void Visit(const PropertyVisitor& visit) const override;
};

// The folders in `Path`, with ".." first; a double click goes there.
class DirListBox : public ListControl {
 public:
  DirListBox(Control& parent, std::string_view name);

  Property<std::string> Path{*this, Prop::Path, ""};

  void Visit(const PropertyVisitor& visit) const override;

 protected:
  void AfterChange(Prop prop) override;

 private:
  void Enter();
};

// The files in `Path` that fit `Pattern` ("*.sfl"; several are parted by ";"), in alphabetical order.
class FileListBox : public ListControl {
 public:
  FileListBox(Control& parent, std::string_view name);

  Property<std::string> Path{*this, Prop::Path, ""};
  Property<std::string> Pattern{*this, Prop::Pattern, "*"};

  // The picked name, "" if none is.
  std::string FileName() const;
  void Visit(const PropertyVisitor& visit) const override;

 protected:
  void AfterChange(Prop prop) override;
};

// Whether a file name fits a pattern of "*" and "?"; capitals and small letters are alike.
bool FitsPattern(std::string_view name, std::string_view pattern);
