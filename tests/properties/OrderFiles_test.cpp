#include "properties/OrderFiles.h"

#include <gtest/gtest.h>

#include <map>

#include "base/CodePage.h"
#include "core/FileTransaction.h"
#include "sim/SimFiles.h"

namespace corvelle {
namespace {

constexpr const char* kFolder = "C:\\Corvelle\\Menus\\";

using Folder = std::map<std::string, std::string>;

class OrderFiles : public testing::Test {
 protected:
  OrderFiles() { Fill(disk); }

  static std::string Menu(const std::string& title, const std::string& name) {
    const Windows1252 ansi;
    return FormatRecord({title, "Button", name}, ansi) +
           FormatRecord({title + " 1", "", "x"}, ansi);
  }
  static void Fill(sim::SimFiles& disk) {
    disk.MakeFolders("C:\\Corvelle\\Menus");
    disk.Put(In("BMENU001.MNU"), Menu("a", ""));
    disk.Put(In("BMENU002.MNU"), Menu("b", "/h"));
    disk.Put(In("BMENU003.MNU"), Menu("c", "C:\\c.exe"));
    disk.Put(In("BMENU001.BTN"), Menu("s", "C:\\s.exe"));
  }
  static std::string In(const std::string& name) { return kFolder + name; }
  static Folder Contents(const sim::SimFiles& disk) {
    Folder all;
    for (const std::string& name : disk.Names("C:\\Corvelle\\Menus")) {
      all[name] = disk.Get(In(name)).value_or("");
    }
    return all;
  }

  ButtonOrder Load(sim::SimFiles& from) const {
    ButtonOrder order;
    EXPECT_TRUE(LoadButtons(from, ansi, kFolder, order));
    return order;
  }
  /// c, hidden; a; b, shown.
  static void Change(ButtonOrder& order) {
    order.Drop(2, 0);
    order.SetChecked(0, false);
    order.SetChecked(2, true);
  }
  static Folder Changed() {
    return {{"BMENU001.MNU", Menu("c", "/h")},
            {"BMENU002.MNU", Menu("a", "")},
            {"BMENU003.MNU", Menu("b", "")},
            {"BMENU001.BTN", Menu("s", "C:\\s.exe")}};
  }
  OrderResult Apply(ButtonOrder& order) {
    return ApplyButtonOrder(disk, ansi, kFolder, order).Result;
  }

  sim::SimFiles disk;
  Windows1252 ansi;
};

TEST_F(OrderFiles, TheListHasTheButtonsInTheOrderOfTheirFiles) {
  const ButtonOrder order = Load(disk);
  ASSERT_EQ(order.Nodes().size(), 3U);
  EXPECT_EQ(order.Nodes()[0].Title, "a");
  EXPECT_EQ(order.Nodes()[0].Key, "B1");
  EXPECT_TRUE(order.Nodes()[0].Checked);
  EXPECT_FALSE(order.Nodes()[1].Checked);
  EXPECT_TRUE(order.Nodes()[2].Checked);
  EXPECT_EQ(PathOfTag(order.Nodes()[2].Tag), In("BMENU003.MNU"));
}

TEST_F(OrderFiles, NamesFollowTheOrderAndThirdFieldsTheBoxes) {
  ButtonOrder order = Load(disk);
  Change(order);
  EXPECT_EQ(Apply(order), OrderResult::Applied);
  EXPECT_EQ(Contents(disk), Changed());
  EXPECT_EQ(PathOfTag(order.Nodes()[0].Tag), In("BMENU001.MNU"));
  EXPECT_FALSE(LosesCommand(order.Nodes()[0]));
  // The list leads to the new files, so that it can go on from there.
  order.Drop(0, 2);
  order.SetChecked(2, true);
  EXPECT_EQ(Apply(order), OrderResult::Applied);
  Folder again = Changed();
  again["BMENU001.MNU"] = Menu("a", "");
  again["BMENU002.MNU"] = Menu("b", "");
  again["BMENU003.MNU"] = Menu("c", "");
  EXPECT_EQ(Contents(disk), again);
}

TEST_F(OrderFiles, WithoutAChangeNoFileIsWritten) {
  ButtonOrder order = Load(disk);
  EXPECT_EQ(Apply(order), OrderResult::Applied);
  EXPECT_EQ(disk.Count("Replace"), 0);
  EXPECT_EQ(disk.Count("Remove"), 0);
}

TEST_F(OrderFiles, WithoutMenusThereIsNothingToDo) {
  for (const char* name : {"BMENU001.MNU", "BMENU002.MNU", "BMENU003.MNU"}) disk.Vanish(In(name));
  ButtonOrder order = Load(disk);
  EXPECT_TRUE(order.Empty());
  EXPECT_EQ(Apply(order), OrderResult::Applied);
}

TEST_F(OrderFiles, FilesOfAHalfDoneRenamingGo) {
  disk.Put(In("bmenu001.xxx"), "x");
  ButtonOrder order = Load(disk);
  Change(order);
  EXPECT_EQ(Apply(order), OrderResult::Applied);
  EXPECT_EQ(Contents(disk), Changed());
}

TEST_F(OrderFiles, TheThousandthMenuHasFourDigits) {
  std::vector<std::string> names;
  for (int i = 1; i <= 1001; ++i) names.push_back("X" + std::to_string(10000 + i) + ".MNU");
  disk.PutNew("C:\\Corvelle\\Menus", names);
  for (const char* name : {"BMENU001.MNU", "BMENU002.MNU", "BMENU003.MNU"}) disk.Vanish(In(name));
  ButtonOrder order = Load(disk);
  ASSERT_EQ(order.Nodes().size(), 1001U);
  EXPECT_EQ(Apply(order), OrderResult::Applied);
  EXPECT_TRUE(disk.Has(In("BMENU1000.MNU")));
  EXPECT_TRUE(disk.Has(In("BMENU1001.MNU")));
  EXPECT_TRUE(disk.Has(In("BMENU999.MNU")));
  EXPECT_FALSE(disk.Has(In("X11001.MNU")));
}

TEST_F(OrderFiles, AFolderThatChangedMeanwhileIsLeftAlone) {
  struct Row {
    const char* name;
    void (*change)(sim::SimFiles&);
  };
  const Row rows[] = {
      {"one menu more", [](sim::SimFiles& d) { d.Put(In("BMENU004.MNU"), Menu("d", "")); }},
      {"one menu less", [](sim::SimFiles& d) { d.Vanish(In("BMENU003.MNU")); }},
      {"another button", [](sim::SimFiles& d) { d.Put(In("BMENU002.MNU"), Menu("z", "/h")); }},
      {"another name",
       [](sim::SimFiles& d) {
         d.Vanish(In("BMENU003.MNU"));
         d.Put(In("BMENU004.MNU"), Menu("c", "C:\\c.exe"));
       }},
  };
  for (const Row& row : rows) {
    sim::SimFiles other;
    Fill(other);
    ButtonOrder order = Load(other);
    Change(order);
    row.change(other);
    const Folder before = Contents(other);
    EXPECT_EQ(ApplyButtonOrder(other, ansi, kFolder, order).Result, OrderResult::Outdated)
        << row.name;
    EXPECT_EQ(Contents(other), before) << row.name;
  }
}

TEST_F(OrderFiles, ANewEntryInAMenuMeanwhileStays) {
  ButtonOrder order = Load(disk);
  Change(order);
  const std::string more = Menu("b", "/h") + FormatRecord({"more", "", ""}, ansi);
  disk.Put(In("BMENU002.MNU"), more);
  EXPECT_EQ(Apply(order), OrderResult::Applied);
  EXPECT_EQ(disk.Get(In("BMENU003.MNU")), Menu("b", "") + FormatRecord({"more", "", ""}, ansi));
}

TEST_F(OrderFiles, AMenuThatCannotBeReadKeepsItsNameAndAllOthersTheirs) {
  disk.HoldOpen(In("BMENU002.MNU"));
  ButtonOrder order = Load(disk);
  ASSERT_EQ(order.Nodes().size(), 3U);
  order.Drop(2, 0);
  EXPECT_EQ(Apply(order), OrderResult::Failed);
  disk.LetGo(In("BMENU002.MNU"));
  EXPECT_EQ(Apply(order), OrderResult::Outdated);
  EXPECT_EQ(disk.Get(In("BMENU002.MNU")), Menu("b", "/h"));
}

TEST_F(OrderFiles, AnyOneFailureLeavesTheOldOrderOrTheNew) {
  const Folder before = Contents(disk);
  for (const FileError error : {FileError::DiskFull, FileError::InUse}) {
    for (int n = 1;; ++n) {
      ASSERT_LT(n, 100);
      sim::SimFiles other;
      Fill(other);
      ButtonOrder order = Load(other);
      Change(order);
      other.FailCall(n, error);
      const OrderResult result = ApplyButtonOrder(other, ansi, kFolder, order).Result;
      const bool hit = other.Hit();
      other.StopFailing();
      Folder after = Contents(other);
      after.erase(std::string(kJournalFileName));
      EXPECT_EQ(after, result == OrderResult::Applied ? Changed() : before) << "call " << n;
      EXPECT_TRUE(RecoverFiles(other, kFolder));
      EXPECT_EQ(Contents(other), result == OrderResult::Applied ? Changed() : before)
          << "call " << n;
      if (!hit) break;
    }
  }
}

TEST_F(OrderFiles, AfterAnEndAtAnyMomentTheNextStartFindsEveryMenuInOneOrder) {
  const Folder before = Contents(disk);
  bool old = false;
  bool renewed = false;
  for (int n = 1;; ++n) {
    ASSERT_LT(n, 100);
    sim::SimFiles other;
    Fill(other);
    ButtonOrder order = Load(other);
    Change(order);
    other.FailFrom(n, FileError::Failed);
    static_cast<void>(ApplyButtonOrder(other, ansi, kFolder, order));
    const bool hit = other.Hit();
    other.StopFailing();
    EXPECT_TRUE(RecoverFiles(other, kFolder));
    const Folder after = Contents(other);
    EXPECT_TRUE(after == before || after == Changed()) << "end at call " << n;
    old = old || after == before;
    renewed = renewed || after == Changed();
    if (!hit) break;
  }
  EXPECT_TRUE(old);
  EXPECT_TRUE(renewed);
}

}  // namespace
}  // namespace corvelle
