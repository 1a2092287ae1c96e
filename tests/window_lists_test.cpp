// The lists of folders and files: from any folder up to the root and no further, and down again.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/harness.h"
#include "window/lists.h"

namespace {

namespace fs = std::filesystem;

class frmPlaces : public Form {
 public:
  explicit frmPlaces(Platform& platform) : Form(platform, "frmPlaces") {
    Dir1.OnChange = [this] { File1.Path = Dir1.Path; };
  }
  DriveListBox Drive1{*this, "Drive1"};
  DirListBox Dir1{*this, "Dir1"};
  FileListBox File1{*this, "File1"};
};

class Lists : public testing::Test {
 protected:
  void Enter(const std::string& name) {
    const std::vector<std::string>& list = places.Dir1.List;
    ASSERT_TRUE(places.Dir1.Pick(static_cast<int>(std::ranges::find(list, name) - list.begin()))) << name;
    places.Dir1.OnDblClick();
  }
  // ".." stands first, and everywhere but at the root; the folders follow in order, hidden ones left out.
  void CheckList() {
    const std::vector<std::string>& list = places.Dir1.List;
    const std::string& path = places.Dir1.Path;
    const bool up = !list.empty() && list.front() == "..";
    ASSERT_EQ(up, path != "/") << path;
    ASSERT_TRUE(std::is_sorted(list.begin() + up, list.end())) << path;
    for (size_t i = up; i < list.size(); ++i) ASSERT_NE(list[i][0], '.') << path;
    ASSERT_EQ(places.Dir1.ListIndex, -1) << path;
    ASSERT_EQ(places.File1.Path, path);
  }
  std::string Shown(const ListControl& control) {
    std::string all;
    for (const std::string& each : control.List.get()) all += each + "|";
    return all;
  }

  TestFolder folder;
  std::istringstream in;
  std::ostringstream out;
  ConsoleFrontEnd console{{}, in, out};
  frmPlaces places{console.platform};
};

}  // namespace

TEST_F(Lists, LeadUpToTheRootAndNoFurtherAndDownAgain) {
  for (const char* name : {"a/b/c", ".hidden", "none"}) fs::create_directories(folder.Path() / name);
  folder.Write("a/b/one.sfl", "x");
  folder.Write("a/b/two.txt", "x");
  places.File1.Pattern = "*.sfl";
  places.Dir1.Path = folder.Path().string();
  EXPECT_EQ(Shown(places.Dir1), "..|a|none|");
  for (const char* down : {"a", "b", "c"}) {
    Enter(down);
    CheckList();
  }
  EXPECT_EQ(Shown(places.Dir1) + Shown(places.File1), "..|");
  Enter("..");
  EXPECT_EQ(Shown(places.File1), "one.sfl|");
  std::vector<std::string> names;
  while (places.Dir1.Path != "/") {
    const fs::path here = places.Dir1.Path.get();
    names.push_back(here.filename());
    Enter("..");
    CheckList();
    ASSERT_EQ(places.Dir1.Path, here.parent_path().string());
  }
  places.Dir1.OnDblClick();  // nothing is chosen there
  EXPECT_EQ(places.Dir1.Path, "/");
  for (; !names.empty(); names.pop_back()) Enter(names.back());
  EXPECT_EQ(places.Dir1.Path, (folder.Path() / "a" / "b").string());
  EXPECT_FALSE(places.Dir1.Pick(-1) || places.Dir1.Pick(2));
}

TEST_F(Lists, OfPlacesBeginWithTheRoot) {
  EXPECT_EQ(places.Drive1.List.get().at(0), "/");
  for (const std::string& place : places.Drive1.List.get()) {
    places.Dir1.Path = place;
    CheckList();
  }
}
