// Records that are kept beside the tables: which stay, and to which entry they belong.
#include <gtest/gtest.h>

#include <thread>

#include "record/keeper.h"
#include "tests/harness.h"

namespace {

using record::Keeper;
using record::KeptEntry;

constexpr char kTable[] = "HiScores90_11.Txt";

std::string NameOf(int number) {
  char name[40];
  std::snprintf(name, sizeof name, "20260101-%06d-Sumfall-0.record", number);
  return name;
}

std::vector<std::string> Kept(const TestFolder& folder) {
  std::vector<std::string> names = Disk().Names(folder.Path() / "records", Disk::Entries::Files);
  std::ranges::sort(names);
  return names;
}

}  // namespace

TEST(Keeper, KeepsTheLastGamesAndThoseOfEntries) {
  const TestFolder folder;
  Keeper keeper(folder.Path());
  EXPECT_TRUE(keeper.Entries().empty());
  EXPECT_FALSE(keeper.Enter({kTable, NameOf(0), {"Ada", 500}})) << "there is no folder";
  folder.Write(kTable, "Ada, 500\r\nBob, 400\r\n");
  for (int number = 0; number < 130; ++number) {
    ASSERT_TRUE(keeper.Keep(NameOf(number), "text"));
    if (number == 3) {
      EXPECT_TRUE(keeper.Enter({kTable, NameOf(3), {"Ada", 500}}));
    }
    if (number == 5) {
      EXPECT_TRUE(keeper.Enter({kTable, NameOf(5), {"Eve", 450}})) << "pushed out of its table";
    }
  }
  std::vector<std::string> names = Kept(folder);
  ASSERT_EQ(names.size(), 100u + 2);
  EXPECT_EQ(names[0], NameOf(3));
  EXPECT_EQ(names[1], NameOf(30));
  EXPECT_EQ(names.back(), "Entries.csv");

  // Fifty million bytes are the most, those of entries go last.
  for (int number = 200; number < 260; ++number)
    ASSERT_TRUE(keeper.Keep(NameOf(number), std::string(1'000'000, 'x')));
  names = Kept(folder);
  EXPECT_EQ(names[0], NameOf(3));
  EXPECT_EQ(names[1], NameOf(211));
  EXPECT_EQ(names.size(), 49u + 2);

  // Where there is less room fewer stay.
  ASSERT_TRUE(Keeper(folder.Path(), {3, 2'500'000}).Keep(NameOf(260), "text"));
  EXPECT_EQ(Kept(folder),
            (std::vector<std::string>{NameOf(3), NameOf(258), NameOf(259), NameOf(260), "Entries.csv"}));
  ASSERT_TRUE(Keeper(folder.Path(), {3, 1'500'000}).Keep(NameOf(261), "text"));
  EXPECT_EQ(Kept(folder),
            (std::vector<std::string>{NameOf(3), NameOf(259), NameOf(260), NameOf(261), "Entries.csv"}));
}

TEST(Keeper, KnowsWhichEntryARecordBelongsTo) {
  const TestFolder folder;
  Keeper keeper(folder.Path());
  folder.Write(kTable, "Ada, 500\r\nBob, 400\r\nBob, 400\r\nA \"B\"*, 7\r\n\r\n");
  for (int number = 0; number < 6; ++number) keeper.Keep(NameOf(number), "text");
  EXPECT_TRUE(keeper.Enter({kTable, NameOf(0), {"Bob", 400}}));
  EXPECT_TRUE(keeper.Enter({kTable, NameOf(1), {"Bob", 400}}));
  EXPECT_TRUE(keeper.Enter({kTable, NameOf(2), {"Bob", 400}}));
  EXPECT_TRUE(keeper.Enter({kTable, NameOf(3), {"A \"B\"*", 7}}));
  EXPECT_TRUE(keeper.Enter({kTable, NameOf(3), {"Ada", 500}})) << "stands for one entry only";
  EXPECT_TRUE(keeper.Enter({"Other.Txt", NameOf(4), {"Bob", 400}}));
  const auto places = [&] {
    std::string text;
    for (const KeptEntry& entry : keeper.Entries(kTable))
      text += std::to_string(entry.place) + ":" + entry.record.substr(14, 1) + " ";
    return text;
  };
  EXPECT_EQ(places(), "0:3 2:2 1:1 ");
  std::filesystem::remove(keeper.PathOf(NameOf(2)));
  EXPECT_TRUE(keeper.Enter({"Other.Txt", NameOf(5), {"Bob", 400}}));
  EXPECT_EQ(places(), "0:3 2:1 1:0 ") << "a record that is gone stands for nothing";

  // What others have written there leads nowhere.
  for (const char* text :
       {"HiScores90_11.Txt,../../x.record,500,Ada\r\n", "../HiScores90_11.Txt,a.record,500,Ada\r\n",
        "HiScores90_11.Txt,a.record,5x,Ada\r\n", "HiScores90_11.Txt,.record,500,Ada\r\n", ",,,", "\0\r\n"}) {
    folder.Write("records/Entries.csv", text);
    EXPECT_TRUE(keeper.Entries().empty()) << text;
  }
}

TEST(Keeper, ManyAtOnceLoseNothing) {
  const TestFolder folder;
  std::string table;
  for (int copy = 0; copy < 10; ++copy) table += "Player " + std::to_string(copy) + ", 100\r\n";
  folder.Write(kTable, table);
  std::vector<std::thread> copies;
  for (int copy = 0; copy < 10; ++copy)
    copies.emplace_back([&folder, copy] {
      Keeper keeper(folder.Path());
      for (int number = 0; number < 5; ++number) {
        const std::string name = keeper.NameFor("Duopick", {});
        EXPECT_TRUE(keeper.Keep(name, "text"));
        if (number == 2) {
          EXPECT_TRUE(keeper.Enter({kTable, name, {"Player " + std::to_string(copy), 100}}));
        }
      }
    });
  for (std::thread& copy : copies) copy.join();
  EXPECT_EQ(Keeper(folder.Path()).Entries().size(), 10u);
  EXPECT_EQ(Kept(folder).size(), 51u);
}

TEST(Keeper, WhatCantBeWrittenIsTold) {
  const TestFolder folder;
  folder.Write("records", "a file where the folder should be");
  Keeper keeper(folder.Path());
  EXPECT_FALSE(keeper.Keep(NameOf(1), "text"));
  EXPECT_FALSE(keeper.Enter({kTable, NameOf(1), {"Ada", 500}}));
  EXPECT_EQ(folder.Read("records"), "a file where the folder should be");
}
