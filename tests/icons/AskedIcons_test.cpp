#include "icons/AskedIcons.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "icons/IconDesk.h"
#include "icons/IconQuestions.h"

namespace corvelle {

namespace {

constexpr Rgb kGround = 0x00123456;
constexpr int kAtOnce = 60;  // milliseconds

/// What comes of an icon text where the shell answers at once.
class AskedIconsTest : public IconDesk {
 protected:
  void Clear() { canvas.FillBox({0, 0, 64, 64}, kGround); }

  /// Draws on a fresh ground; the colour of the icon that came.
  Rgb Drawn(std::string_view text, int size = 16, IconCaller caller = IconCaller::Toolbar) {
    Clear();
    AskedIcons icons(program.IconSources, caller);
    const IconLook look = icons.Ask(text, size, kAtOnce, [](const IconLook&) {});
    drawn = icons.Draw(canvas, look, size);
    return canvas.PixelAt({0, 0});
  }

  [[nodiscard]] Rgb BlankColour() const { return sim::SimShellIcons::ColourOf(kBlank, 0); }

  sim::SimCanvas canvas{{64, 64}};
  bool drawn = false;
};

Rgb System(int index) { return sim::SimShellIcons::ColourOf(index); }
Rgb InFile(std::string_view file, int index) { return sim::SimShellIcons::ColourOf(file, index); }

}  // namespace

TEST_F(AskedIconsTest, AFileIsDrawnAsTheShellShowsIt) {
  EXPECT_EQ(Drawn("C:\\Tools\\tool.exe"), System(12));
  EXPECT_TRUE(drawn);
}

TEST_F(AskedIconsTest, ANegativeIndexIsTheNumberOfAResource) {
  world.Icons.AddResource("C:\\Tools\\tool.exe", 16);
  world.Icons.AddResource("shell32.dll", 1);
  EXPECT_EQ(Drawn("C:\\Tools\\tool.exe|-16"), InFile("C:\\Tools\\tool.exe", -16));
  EXPECT_EQ(Drawn("C:\\Tools\\tool.exe | -16"), InFile("C:\\Tools\\tool.exe", -16));
  EXPECT_EQ(Drawn("shell32.dll|-1"), InFile("shell32.dll", -1));
  EXPECT_EQ(Drawn("C:\\Tools\\tool.exe|-17"), BlankColour());
}

TEST_F(AskedIconsTest, TheIconFillsItsPlaceAndNoMore) {
  for (const int size : {16, 32}) {
    EXPECT_EQ(Drawn("C:\\Tools\\tool.exe", size), System(12));
    EXPECT_EQ(canvas.PixelAt({size - 1, size - 1}), System(12)) << size;
    EXPECT_EQ(canvas.PixelAt({size, 0}), kGround) << size;
    EXPECT_EQ(canvas.PixelAt({0, size}), kGround) << size;
  }
}

TEST_F(AskedIconsTest, ATextInAnyCaseIsTheSameFile) {
  EXPECT_EQ(Drawn("c:\\TOOLS\\Tool.EXE"), System(12));
}

TEST_F(AskedIconsTest, NoTextGivesTheBlankDocument) {
  EXPECT_EQ(Drawn(""), BlankColour());
  EXPECT_TRUE(drawn);
}

TEST_F(AskedIconsTest, AMissingFileGivesTheBlankDocument) {
  EXPECT_EQ(Drawn("C:\\Tools\\gone.exe"), BlankColour());
  EXPECT_EQ(Drawn("\\icons\\gone.ico"), BlankColour());
}

TEST_F(AskedIconsTest, TheBlankDocumentComesFromTheShellWhereItDrawsIcons) {
  program.Icons.ShellDrawsIcons = true;
  EXPECT_EQ(Drawn(""), System(41));
}

TEST_F(AskedIconsTest, TheBlankDocumentComesFromTheShellWhenItsFileIsDamaged) {
  world.Icons.SetIconCount(kBlank, 0);
  EXPECT_EQ(Drawn(""), System(41));
}

TEST_F(AskedIconsTest, WithoutTheBlankDocumentNothingIsDrawn) {
  world.Files.Vanish(kBlank);
  world.Icons.SetIconCount(kBlank, 0);
  EXPECT_EQ(Drawn("C:\\Tools\\gone.exe"), kGround);
  EXPECT_FALSE(drawn);
}

TEST_F(AskedIconsTest, TheButtonsOwnPictureIsLeftAlone) {
  for (const char* word : {"Button", "button", "BUTTON"}) {
    EXPECT_EQ(Drawn(word), kGround) << word;
    EXPECT_FALSE(drawn) << word;
  }
}

TEST_F(AskedIconsTest, IconsOfTheProgramMoveWithIt) {
  Put("C:\\Corvelle\\Icons\\x.ico", 50, 1);
  EXPECT_EQ(Drawn("\\icons\\x.ico"), InFile("C:\\Corvelle\\Icons\\x.ico", 0));
  EXPECT_EQ(Drawn("\\ICONS\\X.ICO"), InFile("C:\\Corvelle\\Icons\\x.ico", 0));
  EXPECT_EQ(Drawn("C:\\Corvelle\\Icons\\x.ico"), InFile("C:\\Corvelle\\Icons\\x.ico", 0));
}

TEST_F(AskedIconsTest, TheShellDrawsTheProgramsIconsWhereItShowsThem) {
  Put("C:\\Corvelle\\Icons\\x.ico", 50, 1);
  program.Icons.ShellDrawsIcons = true;
  EXPECT_EQ(Drawn("\\icons\\x.ico"), System(50));
}

TEST_F(AskedIconsTest, AnIconOfTheProgramThatCannotBeTakenOutComesFromTheShell) {
  Put("C:\\Corvelle\\Icons\\x.ico", 50, 0);
  EXPECT_EQ(Drawn("\\icons\\x.ico"), System(50));
}

TEST_F(AskedIconsTest, OtherFoldersCalledIconsAreFoldersLikeAny) {
  Put("C:\\icons\\x.ico", 60, 1);
  Put("C:\\Corvelle\\Icons\\x.ico", 50, 1);
  EXPECT_EQ(Drawn("c:\\icons\\x.ico"), System(60));
}

TEST_F(AskedIconsTest, OnlyTheExactWordMeansTheWebLinkIcon) {
  world.Icons.SetIndex("C:\\Corvelle\\httpicon.htm", 70);
  EXPECT_EQ(Drawn("http"), System(70));
  EXPECT_EQ(Drawn("HTTP"), System(70));
  EXPECT_EQ(Drawn("http://a.example"), BlankColour());
  EXPECT_EQ(Drawn("https"), BlankColour());
}

TEST_F(AskedIconsTest, AWebLinkIconThatIsGoneGivesTheBlankDocument) {
  world.Files.Vanish("C:\\Corvelle\\httpicon.htm");
  EXPECT_EQ(Drawn("http"), BlankColour());
}

TEST_F(AskedIconsTest, ANumberIsAnIconOfTheSystem) {
  EXPECT_EQ(Drawn("37"), System(37));
  EXPECT_EQ(Drawn("0"), System(0));
}

TEST_F(AskedIconsTest, ANumberThatTheSystemDoesNotHaveGivesTheBlankDocument) {
  EXPECT_EQ(Drawn("-1"), BlankColour());
  EXPECT_EQ(Drawn("99999999999"), BlankColour());
}

TEST_F(AskedIconsTest, SpecialFoldersShowTheirIcon) {
  constexpr int kDrives = 17;
  world.Folders.SetSelf(kDrives, {.Name = "Drives", .IconIndex = 9});
  EXPECT_EQ(Drawn("CSIDL_DRIVES"), System(9));
  EXPECT_EQ(Drawn("csidl_drives"), System(9));
}

TEST_F(AskedIconsTest, ABarAndANumberChooseAnIconOfTheFile) {
  EXPECT_EQ(Drawn("C:\\Tools\\tool.exe|2"), InFile("C:\\Tools\\tool.exe", 2));
  EXPECT_EQ(Drawn("C:\\Tools\\tool.exe|0"), InFile("C:\\Tools\\tool.exe", 0));
  EXPECT_EQ(Drawn("c:\\tools\\TOOL.exe | 3"), InFile("C:\\Tools\\tool.exe", 3));
}

TEST_F(AskedIconsTest, AnIconThatTheFileDoesNotHaveGivesTheBlankDocument) {
  EXPECT_EQ(Drawn("C:\\Tools\\tool.exe|4"), BlankColour());
  EXPECT_EQ(Drawn("C:\\Tools\\gone.exe|0"), BlankColour());
  EXPECT_EQ(Drawn("|0"), BlankColour());
}

TEST_F(AskedIconsTest, ABarWithoutANumberIsPartOfAName) {
  EXPECT_EQ(Drawn("C:\\Tools\\tool.exe|x"), BlankColour());
  EXPECT_EQ(Drawn("C:\\Tools\\tool.exe|x2"), BlankColour());
  EXPECT_EQ(Drawn("C:\\Tools\\tool.exe|"), BlankColour());
}

TEST_F(AskedIconsTest, EachIsAskedForAgain) {
  EXPECT_EQ(Drawn("C:\\Tools\\tool.exe"), System(12));
  world.Icons.SetIndex("C:\\Tools\\tool.exe", 13);
  EXPECT_EQ(Drawn("C:\\Tools\\tool.exe"), System(13));
  world.Icons.ClearCounts();
  for (int i = 0; i < 10; ++i) Drawn("C:\\Tools\\tool.exe");
  EXPECT_EQ(world.Icons.Lookups(), 10);
}

TEST_F(AskedIconsTest, CallersHaveTheirOwnWords) {
  EXPECT_EQ(Drawn("New", 16, IconCaller::Menu), kGround);
  EXPECT_EQ(Drawn("New", 16, IconCaller::Toolbar), BlankColour());
  EXPECT_EQ(Drawn("HTTP", 16, IconCaller::Properties), BlankColour());
}

TEST_F(AskedIconsTest, SmallIconsAreSixteenPixelsAndAllOthersLarge) {
  EXPECT_EQ(IconListOf(16), IconList::Small);
  EXPECT_EQ(IconListOf(32), IconList::Large);
  EXPECT_EQ(IconListOf(48), IconList::Large);
}

TEST_F(AskedIconsTest, OneInsideAFileIsTakenOutWhereTheShellShowsIconFilesToo) {
  program.Icons.ShellDrawsIcons = true;
  EXPECT_EQ(Drawn("C:\\Tools\\tool.exe|1"), InFile("C:\\Tools\\tool.exe", 1));
}

}  // namespace corvelle
