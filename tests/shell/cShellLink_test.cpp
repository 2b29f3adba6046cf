#include "shell/cShellLink.h"

#include <memory>
#include <optional>
#include <string>

#include "shell/ShellDesk.h"

namespace corvelle {
namespace {

using Calls = std::vector<std::string>;

class cShellLinkTest : public ShellDesk {
 protected:
  cShellLinkTest() { world.Links.ClearLog(); }

  cShellLink link{world.Links};
  ShellLinkFields all{.ExeFile = kTool,
                      .WorkDir = "C:\\Links",
                      .ExeArgs = "/x \"a b\"",
                      .IconFile = "C:\\Tools\\tool.ico",
                      .IconIdx = 4,
                      .ShowCmd = 3,
                      .wHotKey = 0x0641};
};

// Making.

TEST_F(cShellLinkTest, AnEmptyTargetOrLinkNameCreatesNothing) {
  EXPECT_FALSE(link.CreateShellLink(kLink, {.WorkDir = "C:\\"}));
  EXPECT_FALSE(link.CreateShellLink("", {.ExeFile = kTool}));
  EXPECT_FALSE(world.Files.Has(kLink));
  EXPECT_EQ(world.Links.Log(), Calls());
}

TEST_F(cShellLinkTest, AllPartsAreSetInTheirOrder) {
  EXPECT_TRUE(link.CreateShellLink(kLink, all));
  EXPECT_EQ(world.Links.Log(), (Calls{"CreateLinkObject", "SetPath C:\\Tools\\tool.exe",
                                      "SetWorkingDirectory C:\\Links", "SetArguments /x \"a b\"",
                                      "SetHotkey 1601", "SetIconLocation C:\\Tools\\tool.ico",
                                      "SetShowCmd 3", "Resolve 5", "Save C:\\Links\\tool.lnk"}));
  EXPECT_EQ(world.Links.Get(kLink), (sim::SimLink{.Path = kTool,
                                                  .WorkDir = "C:\\Links",
                                                  .Arguments = "/x \"a b\"",
                                                  .Icon = {"C:\\Tools\\tool.ico", 4},
                                                  .Hotkey = 0x0641,
                                                  .ShowCmd = 3,
                                                  .Item = sim::SimShellLinks::ItemOf(kTool)}));
}

TEST_F(cShellLinkTest, EmptyPartsAreLeftAlone) {
  EXPECT_TRUE(link.CreateShellLink(kLink, {.ExeFile = kTool, .IconIdx = 4}));
  EXPECT_EQ(world.Links.Log(), (Calls{"CreateLinkObject", "SetPath C:\\Tools\\tool.exe",
                                      "SetShowCmd 0", "Resolve 5", "Save C:\\Links\\tool.lnk"}));
}

TEST_F(cShellLinkTest, AHotKeyOfZeroLeavesTheLinksHotKeyAlone) {
  all.wHotKey = 0;
  EXPECT_TRUE(link.CreateShellLink(kLink, all));
  for (const std::string& call : world.Links.Log()) EXPECT_FALSE(call.starts_with("SetHotkey"));
}

TEST_F(cShellLinkTest, AnOldLinkIsReplacedWhole) {
  EXPECT_TRUE(link.CreateShellLink(kLink, all));
  EXPECT_TRUE(link.CreateShellLink(kLink, {.ExeFile = kTool}));
  EXPECT_EQ(world.Links.Get(kLink),
            (sim::SimLink{.Path = kTool, .Item = sim::SimShellLinks::ItemOf(kTool)}));
}

TEST_F(cShellLinkTest, AMissingTargetMakesNoLink) {
  EXPECT_FALSE(link.CreateShellLink(kLink, {.ExeFile = "C:\\Tools\\gone.exe"}));
  EXPECT_FALSE(world.Files.Has(kLink));
}

TEST_F(cShellLinkTest, WhateverFailsWhileMakingGivesFalseAndReleasesTheLink) {
  for (int n = 1;; ++n) {
    sim::SimFiles files;
    files.Put(kTool, "tool");
    files.MakeFolders("C:\\Links");
    sim::SimShellLinks shell(files);
    shell.FailCall(n);
    const bool made = cShellLink(shell).CreateShellLink(kLink, all);
    EXPECT_EQ(shell.Alive(), 0) << "failing call " << n;
    EXPECT_EQ(made, files.Has(kLink)) << "failing call " << n;
    EXPECT_EQ(made, !shell.Hit()) << "failing call " << n;
    if (!shell.Hit()) {
      EXPECT_EQ(n, 10);
      break;
    }
    // Nothing more is asked of a link of which a part could not be set.
    EXPECT_EQ(shell.Log().size(), static_cast<std::size_t>(n)) << "failing call " << n;
  }
}

TEST_F(cShellLinkTest, AReadOnlyLinkIsNotReplaced) {
  world.Files.Put(kLink, "old");
  world.Files.SetReadOnly(kLink, true);
  EXPECT_FALSE(link.CreateShellLink(kLink, all));
  EXPECT_EQ(world.Files.Get(kLink), "old");
}

// Making for objects.

TEST_F(cShellLinkTest, AnObjectWithoutAPathGetsALink) {
  const auto item = world.Links.SpecialFolderLocation(kNoWindow, 17);
  ASSERT_TRUE(item.has_value());
  world.Links.ClearLog();
  EXPECT_TRUE(link.ShellLinkToObject(kLink, *item, 1));
  EXPECT_EQ(world.Links.Log(), (Calls{"CreateLinkObject", "SetIDList folder:17", "SetShowCmd 1",
                                      "Resolve 5", "Save C:\\Links\\tool.lnk"}));
  const auto info = link.GetShellLinkInfo(kLink);
  ASSERT_TRUE(info.has_value());
  EXPECT_EQ(info->Item, *item);
  EXPECT_EQ(info->Fields.ExeFile, "");
}

TEST_F(cShellLinkTest, NoObjectOrNoNameMakesNoLink) {
  EXPECT_FALSE(link.ShellLinkToObject(kLink, {}, 1));
  EXPECT_FALSE(link.ShellLinkToObject("", sim::SimShellLinks::ItemOf(kTool), 1));
  EXPECT_EQ(world.Links.Log(), Calls());
}

TEST_F(cShellLinkTest, WhateverFailsWhileLinkingToAnObjectGivesFalseAndReleasesTheLink) {
  for (int n = 1;; ++n) {
    sim::SimFiles files;
    files.MakeFolders("C:\\Links");
    sim::SimShellLinks shell(files);
    shell.FailCall(n);
    const bool made = cShellLink(shell).ShellLinkToObject(kLink, {"folder:17"}, 1);
    EXPECT_EQ(shell.Alive(), 0) << "failing call " << n;
    EXPECT_EQ(made, files.Has(kLink)) << "failing call " << n;
    EXPECT_EQ(made, !shell.Hit()) << "failing call " << n;
    if (!shell.Hit()) {
      EXPECT_EQ(n, 6);
      break;
    }
  }
}

// Reading.

TEST_F(cShellLinkTest, ALinkIsReadInTheGivenOrder) {
  world.Links.Put(kLink, {.Path = kTool,
                          .WorkDir = "C:\\Links",
                          .Arguments = "/x",
                          .Description = "A tool",
                          .Icon = {"C:\\Tools\\tool.ico", 2},
                          .Hotkey = 7,
                          .ShowCmd = 3});
  EXPECT_EQ(link.GetShellLinkInfo(kLink),
            (ShellLinkInfo{.Fields = {.ExeFile = kTool,
                                      .WorkDir = "C:\\Links",
                                      .ExeArgs = "/x",
                                      .IconFile = "C:\\Tools\\tool.ico",
                                      .IconIdx = 2,
                                      .ShowCmd = 3,
                                      .wHotKey = 7},
                           .Description = "A tool",
                           .Item = sim::SimShellLinks::ItemOf(kTool)}));
  EXPECT_EQ(world.Links.Log(), (Calls{"CreateLinkObject", "Load C:\\Links\\tool.lnk", "GetPath",
                                      "GetWorkingDirectory", "GetArguments", "GetDescription",
                                      "GetHotkey", "GetIconLocation", "GetIDList", "GetShowCmd"}));
}

TEST_F(cShellLinkTest, TextsAreCutAtTheFirstZeroAndTrimmed) {
  using namespace std::string_literals;
  world.Links.Put(kLink, {.Path = "  C:\\a.exe  \0 more"s,
                          .WorkDir = " C:\\w "s,
                          .Arguments = "\0x"s,
                          .Description = " words\0"s,
                          .Icon = {"C:\\i.ico \0\0"s, 0}});
  const auto info = link.GetShellLinkInfo(kLink);
  ASSERT_TRUE(info.has_value());
  EXPECT_EQ(info->Fields.ExeFile, "C:\\a.exe");
  EXPECT_EQ(info->Fields.WorkDir, "C:\\w");
  EXPECT_EQ(info->Fields.ExeArgs, "");
  EXPECT_EQ(info->Description, "words");
  EXPECT_EQ(info->Fields.IconFile, "C:\\i.ico");
}

TEST_F(cShellLinkTest, TextsAreReadUpTo255Characters) {
  std::string letters;
  for (int i = 0; i < 256; ++i) letters += "\xC3\xA4";
  world.Links.Put(kLink, {.Path = kTool, .Arguments = letters});
  const auto info = link.GetShellLinkInfo(kLink);
  ASSERT_TRUE(info.has_value());
  EXPECT_EQ(info->Fields.ExeArgs, letters.substr(2));
}

TEST_F(cShellLinkTest, AMissingOrDamagedLinkIsNothing) {
  EXPECT_EQ(link.GetShellLinkInfo(""), std::nullopt);
  EXPECT_EQ(world.Links.Log(), Calls());
  EXPECT_EQ(link.GetShellLinkInfo("C:\\Links\\gone.lnk"), std::nullopt);
  for (const char* bytes : {"", "x", "L\x01\x02"}) {
    world.Files.Put(kLink, bytes);
    EXPECT_EQ(link.GetShellLinkInfo(kLink), std::nullopt) << bytes;
  }
  EXPECT_EQ(world.Links.Alive(), 0);
}

TEST_F(cShellLinkTest, WhateverFailsWhileReadingGivesNothingAndReleasesTheLink) {
  world.Links.Put(kLink, {.Path = kTool});
  int failed = 0;
  for (int n = 1; n <= 10; ++n) {
    world.Links.FailCall(n);
    EXPECT_EQ(link.GetShellLinkInfo(kLink), std::nullopt) << "failing call " << n;
    EXPECT_EQ(world.Links.Alive(), 0) << "failing call " << n;
    ++failed;
  }
  EXPECT_EQ(failed, 10);
  world.Links.FailCall(11);
  EXPECT_TRUE(link.GetShellLinkInfo(kLink).has_value());
}

// Special folders.

TEST_F(cShellLinkTest, ASpecialFolderIsFoundByItsNumber) {
  EXPECT_EQ(link.GetSystemFolderPath(kNoWindow, 7), "C:\\Start\\Startup");
}

TEST_F(cShellLinkTest, AFolderWhosePathIsEmptyIsNothing) {
  struct EmptyPaths final : ShellLinks {
    std::unique_ptr<ShellLinkObject> CreateLinkObject() override { return nullptr; }
    bool LiesElsewhere(std::string_view) override { return false; }
    std::optional<ItemIdList> SpecialFolderLocation(WindowId, int) override {
      return ItemIdList{"item"};
    }
    std::optional<std::string> PathFromIDList(const ItemIdList&) override {
      return std::string(" \0 left over", 12);
    }
  } shell;
  EXPECT_EQ(cShellLink(shell).GetSystemFolderPath(kNoWindow, 7), std::nullopt);
}

TEST_F(cShellLinkTest, AFolderWithoutAPathOrAnUnknownOneIsNothing) {
  EXPECT_EQ(link.GetSystemFolderPath(kNoWindow, 17), std::nullopt);
  EXPECT_EQ(link.GetSystemFolderPath(kNoWindow, 99), std::nullopt);
  for (int n = 1; n <= 2; ++n) {
    world.Links.FailCall(n);
    EXPECT_EQ(link.GetSystemFolderPath(kNoWindow, 7), std::nullopt) << "failing call " << n;
  }
}

}  // namespace
}  // namespace corvelle
