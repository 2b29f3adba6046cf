#include "icons/IconResolution.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "core/Program.h"
#include "icons/IconQuestions.h"
#include "icons/ShellIconRule.h"
#include "sim/World.h"

namespace corvelle {

namespace {

constexpr char kFallback[] = "C:\\Corvelle\\Icons\\W95MBX02.ICO";
constexpr Rgb kGround = 0x00123456;
constexpr PixelPoint kAt{5, 7};

/// Special folders with one known name.
class OneFolder final : public SpecialFoldersPort {
 public:
  int SpecialFolderIconIndex(std::string_view name) override {
    return name == "CSIDL_DRIVES" || name == "csidl_drives" ? 9 : -1;
  }
  void OpenSpecialFolder(std::string_view, std::string_view) override {}
  bool ShowContextMenu(std::string_view, std::string_view, PixelPoint, WindowId) override {
    return false;
  }
};

/// A program in its folder, and a bitmap to draw on.
class IconDesk : public ::testing::Test {
 protected:
  IconDesk() {
    program.Paths.AppPath = "C:\\Corvelle\\";
    program.Paths.IconsPath = "C:\\Corvelle\\Icons\\";
    program.Icons.WebLinkIcon = "C:\\Corvelle\\httpicon.htm";
    world.Files.Put("C:\\Corvelle\\corvelle.exe", "x");
    world.Files.Put("C:\\Corvelle\\httpicon.htm", "x");
    Put(kFallback, 41, 1);
    Put("C:\\Tools\\tool.exe", 12, 4);
    Clear();
  }

  /// A file with its index in the shell's list and so many icons in it.
  void Put(std::string_view path, int index, int icons) {
    world.Files.Put(path, "x");
    world.Icons.SetIndex(path, index);
    world.Icons.SetIconCount(path, icons);
  }

  void Clear() { canvas.FillBox({0, 0, 64, 64}, kGround); }

  /// Draws on a fresh ground; the colour of the icon that came.
  Rgb Drawn(std::string_view text, int size = 16, IconCaller caller = IconCaller::Toolbar) {
    Clear();
    drawn = ResolveAndDraw(program, canvas, text, kAt, size, caller);
    return canvas.PixelAt(kAt);
  }

  [[nodiscard]] Rgb FallbackColour() const { return sim::SimShellIcons::ColourOf(kFallback, 0); }

  sim::World world;
  Program program{world.Services(), world.Windows()};
  sim::SimCanvas canvas{{64, 64}};
  OneFolder folders;
  bool drawn = false;
};

using ResolveAndDrawTest = IconDesk;
class DetectShellIconsTest : public IconDesk {
 protected:
  ShellIconRule rule{program.Answers, program.Paths, program.Icons};
};

Rgb System(int index) { return sim::SimShellIcons::ColourOf(index); }
Rgb InFile(std::string_view file, int index) { return sim::SimShellIcons::ColourOf(file, index); }

}  // namespace

TEST_F(ResolveAndDrawTest, AFileIsDrawnAsTheShellShowsIt) {
  EXPECT_EQ(Drawn("C:\\Tools\\tool.exe"), System(12));
  EXPECT_TRUE(drawn);
}

TEST_F(ResolveAndDrawTest, ANegativeIndexIsTheNumberOfAResource) {
  world.Icons.AddResource("C:\\Tools\\tool.exe", 16);
  world.Icons.AddResource("shell32.dll", 1);
  EXPECT_EQ(Drawn("C:\\Tools\\tool.exe|-16"), InFile("C:\\Tools\\tool.exe", -16));
  EXPECT_EQ(Drawn("C:\\Tools\\tool.exe | -16"), InFile("C:\\Tools\\tool.exe", -16));
  EXPECT_EQ(Drawn("shell32.dll|-1"), InFile("shell32.dll", -1));
  EXPECT_EQ(Drawn("C:\\Tools\\tool.exe|-17"), FallbackColour());
}

TEST_F(ResolveAndDrawTest, TheIconFillsItsPlaceAndNoMore) {
  for (const int size : {16, 32}) {
    EXPECT_EQ(Drawn("C:\\Tools\\tool.exe", size), System(12));
    EXPECT_EQ(canvas.PixelAt({kAt.x + size - 1, kAt.y + size - 1}), System(12)) << size;
    EXPECT_EQ(canvas.PixelAt({kAt.x + size, kAt.y}), kGround) << size;
    EXPECT_EQ(canvas.PixelAt({kAt.x, kAt.y + size}), kGround) << size;
    EXPECT_EQ(canvas.PixelAt({kAt.x - 1, kAt.y - 1}), kGround) << size;
  }
}

TEST_F(ResolveAndDrawTest, ATextInAnyCaseIsTheSameFile) {
  EXPECT_EQ(Drawn("c:\\TOOLS\\Tool.EXE"), System(12));
}

TEST_F(ResolveAndDrawTest, NoTextGivesTheBlankDocument) {
  EXPECT_EQ(Drawn(""), FallbackColour());
  EXPECT_TRUE(drawn);
}

TEST_F(ResolveAndDrawTest, AMissingFileGivesTheBlankDocument) {
  EXPECT_EQ(Drawn("C:\\Tools\\gone.exe"), FallbackColour());
  EXPECT_EQ(Drawn("\\icons\\gone.ico"), FallbackColour());
}

TEST_F(ResolveAndDrawTest, TheBlankDocumentComesFromTheShellWhereItDrawsIcons) {
  program.Icons.ShellDrawsIcons = true;
  EXPECT_EQ(Drawn(""), System(41));
}

TEST_F(ResolveAndDrawTest, TheBlankDocumentComesFromTheShellWhenItsFileIsDamaged) {
  world.Icons.SetIconCount(kFallback, 0);
  EXPECT_EQ(Drawn(""), System(41));
}

TEST_F(ResolveAndDrawTest, WithoutTheBlankDocumentNothingIsDrawn) {
  world.Files.Vanish(kFallback);
  world.Icons.SetIconCount(kFallback, 0);
  EXPECT_EQ(Drawn("C:\\Tools\\gone.exe"), kGround);
  EXPECT_FALSE(drawn);
}

TEST_F(ResolveAndDrawTest, TheButtonsOwnPictureIsLeftAlone) {
  for (const char* word : {"Button", "button", "BUTTON"}) {
    EXPECT_EQ(Drawn(word), kGround) << word;
    EXPECT_FALSE(drawn) << word;
  }
}

TEST_F(ResolveAndDrawTest, IconsOfTheProgramMoveWithIt) {
  Put("C:\\Corvelle\\Icons\\x.ico", 50, 1);
  EXPECT_EQ(Drawn("\\icons\\x.ico"), InFile("C:\\Corvelle\\Icons\\x.ico", 0));
  EXPECT_EQ(Drawn("\\ICONS\\X.ICO"), InFile("C:\\Corvelle\\Icons\\x.ico", 0));
  EXPECT_EQ(Drawn("C:\\Corvelle\\Icons\\x.ico"), InFile("C:\\Corvelle\\Icons\\x.ico", 0));
}

TEST_F(ResolveAndDrawTest, TheShellDrawsTheProgramsIconsWhereItShowsThem) {
  Put("C:\\Corvelle\\Icons\\x.ico", 50, 1);
  program.Icons.ShellDrawsIcons = true;
  EXPECT_EQ(Drawn("\\icons\\x.ico"), System(50));
}

TEST_F(ResolveAndDrawTest, AnIconOfTheProgramThatCannotBeTakenOutComesFromTheShell) {
  Put("C:\\Corvelle\\Icons\\x.ico", 50, 0);
  EXPECT_EQ(Drawn("\\icons\\x.ico"), System(50));
}

TEST_F(ResolveAndDrawTest, OtherFoldersCalledIconsAreFoldersLikeAny) {
  Put("C:\\icons\\x.ico", 60, 1);
  Put("C:\\Corvelle\\Icons\\x.ico", 50, 1);
  EXPECT_EQ(Drawn("c:\\icons\\x.ico"), System(60));
}

TEST_F(ResolveAndDrawTest, OnlyTheExactWordMeansTheWebLinkIcon) {
  world.Icons.SetIndex("C:\\Corvelle\\httpicon.htm", 70);
  EXPECT_EQ(Drawn("http"), System(70));
  EXPECT_EQ(Drawn("HTTP"), System(70));
  EXPECT_EQ(Drawn("http://a.example"), FallbackColour());
  EXPECT_EQ(Drawn("https"), FallbackColour());
}

TEST_F(ResolveAndDrawTest, AWebLinkIconThatIsGoneGivesTheBlankDocument) {
  world.Files.Vanish("C:\\Corvelle\\httpicon.htm");
  EXPECT_EQ(Drawn("http"), FallbackColour());
}

TEST_F(ResolveAndDrawTest, ANumberIsAnIconOfTheSystem) {
  EXPECT_EQ(Drawn("37"), System(37));
  EXPECT_EQ(Drawn("0"), System(0));
}

TEST_F(ResolveAndDrawTest, ANumberThatTheSystemDoesNotHaveGivesTheBlankDocument) {
  EXPECT_EQ(Drawn("-1"), FallbackColour());
  EXPECT_EQ(Drawn("99999999999"), FallbackColour());
}

TEST_F(ResolveAndDrawTest, SpecialFoldersShowTheirIcon) {
  program.Ports.SpecialFolders = &folders;
  EXPECT_EQ(Drawn("CSIDL_DRIVES"), System(9));
  EXPECT_EQ(Drawn("csidl_drives"), System(9));
  EXPECT_EQ(Drawn("CSIDL_NOSUCHTHING"), FallbackColour());
  EXPECT_EQ(Drawn("CSIDL_DRIVES\\x"), FallbackColour());
}

TEST_F(ResolveAndDrawTest, WithoutSpecialFoldersTheirNamesGiveTheBlankDocument) {
  EXPECT_EQ(Drawn("CSIDL_DRIVES"), FallbackColour());
}

TEST_F(ResolveAndDrawTest, ABarAndANumberChooseAnIconOfTheFile) {
  EXPECT_EQ(Drawn("C:\\Tools\\tool.exe|2"), InFile("C:\\Tools\\tool.exe", 2));
  EXPECT_EQ(Drawn("C:\\Tools\\tool.exe|0"), InFile("C:\\Tools\\tool.exe", 0));
  EXPECT_EQ(Drawn("c:\\tools\\TOOL.exe | 3"), InFile("C:\\Tools\\tool.exe", 3));
}

TEST_F(ResolveAndDrawTest, AnIconThatTheFileDoesNotHaveGivesTheBlankDocument) {
  EXPECT_EQ(Drawn("C:\\Tools\\tool.exe|4"), FallbackColour());
  EXPECT_EQ(Drawn("C:\\Tools\\gone.exe|0"), FallbackColour());
  EXPECT_EQ(Drawn("|0"), FallbackColour());
}

TEST_F(ResolveAndDrawTest, ABarWithoutANumberIsPartOfAName) {
  EXPECT_EQ(Drawn("C:\\Tools\\tool.exe|x"), FallbackColour());
  EXPECT_EQ(Drawn("C:\\Tools\\tool.exe|x2"), FallbackColour());
  EXPECT_EQ(Drawn("C:\\Tools\\tool.exe|"), FallbackColour());
}

TEST_F(ResolveAndDrawTest, EveryDrawAsksTheShellAnew) {
  EXPECT_EQ(Drawn("C:\\Tools\\tool.exe"), System(12));
  world.Icons.SetIndex("C:\\Tools\\tool.exe", 13);
  EXPECT_EQ(Drawn("C:\\Tools\\tool.exe"), System(13));
  world.Icons.ClearCounts();
  for (int i = 0; i < 10; ++i) Drawn("C:\\Tools\\tool.exe");
  EXPECT_EQ(world.Icons.Lookups(), 10);
}

TEST_F(ResolveAndDrawTest, CallersHaveTheirOwnWords) {
  EXPECT_EQ(Drawn("New", 16, IconCaller::Menu), kGround);
  EXPECT_EQ(Drawn("New", 16, IconCaller::Toolbar), FallbackColour());
  EXPECT_EQ(Drawn("HTTP", 16, IconCaller::Properties), FallbackColour());
}

TEST_F(ResolveAndDrawTest, SmallIconsAreSixteenPixelsAndAllOthersLarge) {
  EXPECT_EQ(IconListOf(16), IconList::Small);
  EXPECT_EQ(IconListOf(32), IconList::Large);
  EXPECT_EQ(IconListOf(48), IconList::Large);
}

TEST_F(ResolveAndDrawTest, IconFilesAreNotTakenApartWhereTheShellShowsThem) {
  EXPECT_TRUE(DrawIconFile(program, canvas, "C:\\Tools\\tool.exe", kAt, 16));
  program.Icons.ShellDrawsIcons = true;
  Clear();
  EXPECT_FALSE(DrawIconFile(program, canvas, "C:\\Tools\\tool.exe", kAt, 16));
  EXPECT_EQ(canvas.PixelAt(kAt), kGround);
  EXPECT_TRUE(DrawIconIndex(program, canvas, "C:\\Tools\\tool.exe", kAt, 16, 1));
  EXPECT_EQ(canvas.PixelAt(kAt), InFile("C:\\Tools\\tool.exe", 1));
}

TEST_F(DetectShellIconsTest, TwoIconFilesTellWhateverTheRegistrySays) {
  struct Row {
    const char* name;
    int second;
    bool expected;
  };
  for (const Row& row : {Row{"two pictures", 42, true}, Row{"one for both", 41, false}}) {
    for (const char* value : {"%1", "\"%1\"", "shell32.dll,1"}) {
      world.Keys.Set(RegistryRoot::ClassesRoot, "icofile\\DefaultIcon", "", value);
      Put("C:\\Corvelle\\Icons\\two.ico", row.second, 1);
      program.Icons.ShellDrawsIcons = !row.expected;
      rule.DetectShellIcons();
      EXPECT_EQ(program.Icons.ShellDrawsIcons, row.expected) << row.name << ", " << value;
    }
  }
}

TEST_F(DetectShellIconsTest, AShellThatTakesItsTimeIsNotWaitedFor) {
  Put("C:\\Corvelle\\Icons\\two.ico", 42, 1);
  world.SlowAnswers.Delay("C:", 50);
  world.SlowAnswers.Delay("C:*", 50);
  program.Icons.ShellDrawsIcons = true;
  const std::int64_t began = world.Desktop.Now();
  rule.DetectShellIcons();
  EXPECT_EQ(world.Desktop.Now(), began);
  EXPECT_FALSE(program.Icons.ShellDrawsIcons);
  world.Desktop.Advance(500);
  EXPECT_TRUE(program.Icons.ShellDrawsIcons);
}

TEST_F(DetectShellIconsTest, OneThatTellsNothingOfAFileMeansThatItDoesNot) {
  Put("C:\\Corvelle\\Icons\\a.ico", 42, 1);
  Put("C:\\Corvelle\\Icons\\b.ico", 43, 1);
  world.SlowAnswers.Delay("C:", 50);
  rule.DetectShellIcons();
  world.Desktop.Advance(49);
  world.Files.Vanish("C:\\Corvelle\\Icons\\b.ico");
  world.SlowAnswers.HangForGood("C:*");
  world.Desktop.Advance(20'000);
  EXPECT_FALSE(program.Icons.ShellDrawsIcons);
}

TEST_F(DetectShellIconsTest, NeedsNoMoreThanTheProgramsFolder) {
  // The start looks before the strip has set the other folders.
  program.Paths.IconsPath.clear();
  Put("C:\\Corvelle\\Icons\\two.ico", 42, 1);
  rule.DetectShellIcons();
  EXPECT_TRUE(program.Icons.ShellDrawsIcons);
}

TEST_F(DetectShellIconsTest, LooksAtTwoFilesAndNoMore) {
  for (const char* name : {"a.ico", "b.ico", "c.ico"}) {
    Put(std::string("C:\\Corvelle\\Icons\\") + name, 77, 1);
  }
  world.Files.MakeFolders("C:\\Corvelle\\Icons\\folder.ico");
  rule.DetectShellIcons();
  EXPECT_EQ(world.Icons.Lookups(), 2);
}

TEST_F(DetectShellIconsTest, AFolderIsNoIconFileWhateverItsName) {
  world.Files.MakeFolders("C:\\Corvelle\\Icons\\a.ico");
  rule.DetectShellIcons();
  EXPECT_FALSE(program.Icons.ShellDrawsIcons);
}

TEST_F(DetectShellIconsTest, NeitherFolderNorTwoFilesMeansThatItDoesNot) {
  program.Icons.ShellDrawsIcons = true;
  rule.DetectShellIcons();
  EXPECT_FALSE(program.Icons.ShellDrawsIcons) << "one icon file only";
  program.Icons.ShellDrawsIcons = true;
  world.Files.Vanish("C:\\Corvelle\\Icons");
  rule.DetectShellIcons();
  EXPECT_FALSE(program.Icons.ShellDrawsIcons) << "no folder";
}

TEST_F(DetectShellIconsTest, AFolderThatCannotBeListedMeansThatItDoesNot) {
  Put("C:\\Corvelle\\Icons\\two.ico", 42, 1);
  program.Icons.ShellDrawsIcons = true;
  world.Files.FailCall(1);
  rule.DetectShellIcons();
  EXPECT_FALSE(program.Icons.ShellDrawsIcons);
}

}  // namespace corvelle
