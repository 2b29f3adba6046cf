#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>

#include "base/Text.h"
#include "platform/Registry.h"
#include "platform/ShellExec.h"
#include "platform/ShellIcons.h"
#include "platform/SystemInfo.h"

// What every shell, registry and machine must do. One file of each test program includes this
// header and instantiates the suite with makers of the shells that it has.

namespace corvelle {

/// A shell with a folder of its own, in which a test finds what it starts and looks at.
class ContractShell {
 public:
  virtual ~ContractShell() = default;

  virtual ShellExec& Exec() = 0;
  virtual ShellIcons& Icons() = 0;
  virtual Registry& Keys() = 0;
  virtual SystemInfo& System() = 0;
  virtual std::unique_ptr<Canvas> MakeCanvas(PixelSize size) = 0;

  /// A program that can be started and ends by itself, without blanks in its path.
  virtual std::string Program() = 0;
  /// An existing text file named "Contract.qzx", a type that no program is associated with.
  virtual std::string UnknownDocument() = 0;
  /// The folder that holds the document, with its trailing backslash.
  virtual std::string Folder() = 0;
  /// A file that holds exactly `Count` icons, at least one.
  virtual std::string IconFile() = 0;
  virtual int IconCount() = 0;
  /// A file that has an icon in the resource of that number.
  virtual std::string ResourceFile() = 0;
  virtual int IconResource() = 0;
  /// Puts values under HKEY_CURRENT_USER\Software\CorvelleContract.
  virtual void SetValue(const std::string& name, const RegistryValue& value) = 0;
};

using ContractShellMaker = std::unique_ptr<ContractShell> (*)();

class ShellContract : public testing::TestWithParam<ContractShellMaker> {
 protected:
  std::unique_ptr<ContractShell> shell_ = GetParam()();

  std::string Missing() { return shell_->Folder() + "Missing.exe"; }
  [[nodiscard]] std::optional<RunError> ErrorOf(const std::string& commandLine) {
    const auto result = shell_->Exec().Run(commandLine);
    if (result) return std::nullopt;
    return result.Error();
  }
  static bool Touched(const Canvas& canvas) {
    const PixelSize size = canvas.Size();
    for (int y = 0; y < size.height; ++y) {
      for (int x = 0; x < size.width; ++x) {
        if (canvas.PixelAt({x, y}) != 0x00FF00FF) return true;
      }
    }
    return false;
  }
  std::unique_ptr<Canvas> Sheet() {
    auto canvas = shell_->MakeCanvas({48, 48});
    canvas->FillBox({0, 0, 48, 48}, 0x00FF00FF);
    return canvas;
  }
};

// Starting.

TEST_P(ShellContract, OpensAProgram) {
  EXPECT_TRUE(shell_->Exec().Open(shell_->Program(), std::nullopt, std::nullopt));
  EXPECT_TRUE(shell_->Exec().Open(shell_->Program(), "one two", shell_->Folder()));
}

TEST_P(ShellContract, CannotOpenWhatIsNotThere) {
  EXPECT_FALSE(shell_->Exec().Open(Missing(), std::nullopt, std::nullopt));
}

TEST_P(ShellContract, NoTextOpensNothing) {
  EXPECT_FALSE(shell_->Exec().Open("", std::nullopt, std::nullopt));
  EXPECT_FALSE(shell_->Exec().Open("  ", "x", shell_->Folder()));
}

TEST_P(ShellContract, CannotOpenADocumentThatNoProgramIsAssociatedWith) {
  EXPECT_FALSE(shell_->Exec().Open(shell_->UnknownDocument(), std::nullopt, std::nullopt));
}

TEST_P(ShellContract, RunsAProgramWithAndWithoutQuotesAndArguments) {
  EXPECT_EQ(ErrorOf(shell_->Program()), std::nullopt);
  EXPECT_EQ(ErrorOf(shell_->Program() + " one two"), std::nullopt);
  EXPECT_EQ(ErrorOf("\"" + shell_->Program() + "\" one"), std::nullopt);
}

TEST_P(ShellContract, RunTellsThatAProgramIsMissing) {
  EXPECT_EQ(ErrorOf(Missing()), RunError::FileNotFound);
  EXPECT_EQ(ErrorOf("\"" + Missing() + "\" one"), RunError::FileNotFound);
}

TEST_P(ShellContract, RunTellsThatADriveOrAServerIsMissing) {
  EXPECT_EQ(ErrorOf("Q:\\Missing.exe"), RunError::FileNotFound);
  EXPECT_EQ(ErrorOf("\\\\corvelle.invalid\\share\\Missing.exe one"), RunError::FileNotFound);
  EXPECT_EQ(ErrorOf(shell_->UnknownDocument() + "\\Missing.exe"), RunError::FileNotFound);
}

TEST_P(ShellContract, RunTellsThatAFileIsNoProgram) {
  EXPECT_EQ(ErrorOf(shell_->UnknownDocument()), RunError::Other);
}

TEST_P(ShellContract, RunTellsThatThereIsNoAccess) {
  // No folder is a program, and nobody may run one.
  EXPECT_EQ(ErrorOf("\"" + shell_->Folder() + "\""), RunError::AccessDenied);
}

TEST_P(ShellContract, WhatFailsToOpenWasNotRefusedByTheUser) {
  for (const std::string& file : {Missing(), shell_->UnknownDocument(), std::string()}) {
    const auto opened = shell_->Exec().Open(file, std::nullopt, std::nullopt);
    ASSERT_FALSE(opened) << file;
    EXPECT_EQ(opened.Error(), OpenError::Other) << file;
  }
}

// Looking.

TEST_P(ShellContract, KnowsAnExistingFile) {
  const auto info = shell_->Icons().FileInfo(shell_->UnknownDocument(), IconList::Small);
  ASSERT_TRUE(info.has_value());
  EXPECT_GE(info->SystemIndex, 0);
  EXPECT_EQ(info->DisplayName.substr(0, 8), "Contract");
}

TEST_P(ShellContract, KnowsNothingOfAMissingFile) {
  for (const std::string& path : {Missing(), std::string(), std::string("*.mnu")}) {
    EXPECT_FALSE(shell_->Icons().FileInfo(path, IconList::Small).has_value()) << path;
    EXPECT_FALSE(shell_->Icons().FileInfo(path, IconList::Large).has_value()) << path;
  }
}

TEST_P(ShellContract, KnowsNothingOfATextThatNamesNoFile) {
  for (const std::string path :
       {"/:", "/:\xDA and more", "a\x07 b", "C:\\<>", "a|b", "*", "?", "\"C:\\\"", "//", "\\\\"}) {
    EXPECT_FALSE(shell_->Icons().FileInfo(path, IconList::Small).has_value()) << path;
  }
}

TEST_P(ShellContract, KnowsAFolderWithAndWithoutItsBackslash) {
  const std::string folder = shell_->Folder();
  const auto with = shell_->Icons().FileInfo(folder, IconList::Large);
  const auto without =
      shell_->Icons().FileInfo(folder.substr(0, folder.size() - 1), IconList::Large);
  ASSERT_TRUE(with.has_value());
  ASSERT_TRUE(without.has_value());
  EXPECT_EQ(with->SystemIndex, without->SystemIndex);
}

TEST_P(ShellContract, IconsAreSmallOrLarge) {
  EXPECT_EQ(shell_->Icons().IconWidth(IconList::Small), 16);
  EXPECT_GE(shell_->Icons().IconWidth(IconList::Large), 24);
}

TEST_P(ShellContract, DrawsTheIconOfAFile) {
  const auto info = shell_->Icons().FileInfo(shell_->UnknownDocument(), IconList::Small);
  ASSERT_TRUE(info.has_value());
  for (const IconList list : {IconList::Small, IconList::Large}) {
    for (const IconStyle style : {IconStyle::Normal, IconStyle::Blend25}) {
      const auto canvas = Sheet();
      EXPECT_TRUE(shell_->Icons().DrawSystemIcon(*canvas, list, info->SystemIndex, {4, 4}, style));
      EXPECT_TRUE(Touched(*canvas));
      EXPECT_EQ(canvas->PixelAt({3, 3}), 0x00FF00FFU);
    }
  }
}

TEST_P(ShellContract, DrawsNoIconOfANegativeIndex) {
  const auto canvas = Sheet();
  EXPECT_FALSE(
      shell_->Icons().DrawSystemIcon(*canvas, IconList::Small, -1, {0, 0}, IconStyle::Normal));
  EXPECT_FALSE(Touched(*canvas));
}

TEST_P(ShellContract, DrawsIconsInsideFilesAtAnySize) {
  for (const int size : {16, 32}) {
    const auto canvas = Sheet();
    EXPECT_TRUE(shell_->Icons().DrawFileIcon(*canvas, shell_->IconFile(), 0, {2, 2}, size));
    EXPECT_TRUE(Touched(*canvas));
    EXPECT_EQ(canvas->PixelAt({1, 1}), 0x00FF00FFU);
    EXPECT_EQ(canvas->PixelAt({size + 2, size + 2}), 0x00FF00FFU);
  }
}

TEST_P(ShellContract, DrawsTheIconOfAResourceByItsNegativeNumber) {
  ASSERT_GT(shell_->IconResource(), 0);
  for (const int size : {16, 32}) {
    const auto canvas = Sheet();
    EXPECT_TRUE(shell_->Icons().DrawFileIcon(*canvas, shell_->ResourceFile(),
                                             -shell_->IconResource(), {2, 2}, size));
    EXPECT_TRUE(Touched(*canvas));
    EXPECT_EQ(canvas->PixelAt({1, 1}), 0x00FF00FFU);
    EXPECT_EQ(canvas->PixelAt({size + 2, size + 2}), 0x00FF00FFU);
  }
  const auto canvas = Sheet();
  EXPECT_FALSE(shell_->Icons().DrawFileIcon(*canvas, shell_->ResourceFile(), -64999, {0, 0}, 16));
  EXPECT_FALSE(shell_->Icons().DrawFileIcon(*canvas, Missing(), -1, {0, 0}, 16));
  EXPECT_FALSE(Touched(*canvas));
}

TEST_P(ShellContract, DrawsNoIconThatAFileDoesNotHold) {
  const auto canvas = Sheet();
  EXPECT_FALSE(
      shell_->Icons().DrawFileIcon(*canvas, shell_->IconFile(), shell_->IconCount(), {0, 0}, 16));
  EXPECT_FALSE(shell_->Icons().DrawFileIcon(*canvas, shell_->UnknownDocument(), 0, {0, 0}, 16));
  EXPECT_FALSE(shell_->Icons().DrawFileIcon(*canvas, Missing(), 0, {0, 0}, 16));
  EXPECT_FALSE(Touched(*canvas));
}

TEST_P(ShellContract, CountsTheIconsInsideFiles) {
  EXPECT_EQ(shell_->Icons().IconCount(shell_->IconFile()), shell_->IconCount());
  for (const std::string& file : {shell_->UnknownDocument(), Missing(), std::string()}) {
    EXPECT_EQ(shell_->Icons().IconCount(file), 0) << file;
  }
}

// The registry.

TEST_P(ShellContract, NamesTheKeysBelowAKey) {
  shell_->SetValue("Name", std::string("Value"));
  const auto holds = [&](const char* key, std::string_view name) {
    for (const std::string& found : shell_->Keys().SubKeys(RegistryRoot::CurrentUser, key)) {
      if (EqualNoCase(found, name)) return true;
    }
    return false;
  };
  EXPECT_TRUE(holds("Software", "CorvelleContract"));
  EXPECT_TRUE(holds("SOFTWARE\\", "CorvelleContract"));
  EXPECT_FALSE(holds("Software", "Name"));
  EXPECT_TRUE(
      shell_->Keys().SubKeys(RegistryRoot::CurrentUser, "Software\\CorvelleMissing").empty());
}

TEST_P(ShellContract, ReadsTextValuesWithoutRegardToCase) {
  shell_->SetValue("Name", std::string("Value \xC3\xA4"));
  shell_->SetValue("", std::string("Default"));
  const auto text = [&](const char* key, const char* name) {
    return shell_->Keys().Text(RegistryRoot::CurrentUser, key, name);
  };
  EXPECT_EQ(text("Software\\CorvelleContract", "Name"), "Value \xC3\xA4");
  EXPECT_EQ(text("SOFTWARE\\corvellecontract", "NAME"), "Value \xC3\xA4");
  EXPECT_EQ(text("Software\\CorvelleContract", ""), "Default");
}

TEST_P(ShellContract, ReadsValuesOfAllKindsAndOnlyTextsAsText) {
  using Bytes = std::vector<unsigned char>;
  const RegistryValue values[] = {std::string("\xD0\x96 text"), std::uint32_t{0},
                                  std::uint32_t{4294967295}, Bytes{0, 255, 10}, Bytes{}};
  for (const RegistryValue& value : values) {
    shell_->SetValue("Name", value);
    EXPECT_EQ(shell_->Keys().Value(RegistryRoot::CurrentUser, "Software\\CorvelleContract", "NAME"),
              value)
        << value.index();
    EXPECT_EQ(shell_->Keys()
                  .Text(RegistryRoot::CurrentUser, "Software\\CorvelleContract", "NAME")
                  .has_value(),
              std::holds_alternative<std::string>(value))
        << value.index();
  }
  EXPECT_EQ(shell_->Keys().Value(RegistryRoot::CurrentUser, "Software\\CorvelleContract", "Other"),
            std::nullopt);
}

TEST_P(ShellContract, MissingKeysAndValuesAreNothing) {
  shell_->SetValue("Name", std::string("Value"));
  const auto text = [&](RegistryRoot root, const char* key, const char* name) {
    return shell_->Keys().Text(root, key, name);
  };
  EXPECT_EQ(text(RegistryRoot::CurrentUser, "Software\\CorvelleContract", "Other"), std::nullopt);
  EXPECT_EQ(text(RegistryRoot::CurrentUser, "Software\\CorvelleMissing", "Name"), std::nullopt);
  EXPECT_EQ(text(RegistryRoot::LocalMachine, "Software\\CorvelleContract", "Name"), std::nullopt);
  EXPECT_EQ(text(RegistryRoot::ClassesRoot, ".qzx", ""), std::nullopt);
}

// The machine.

TEST_P(ShellContract, TheMachineTellsItsFacts) {
  SystemInfo& system = shell_->System();
  EXPECT_NE(system.ApplicationFolder().find(":\\"), std::string::npos);
  EXPECT_NE(system.CurrentFolder().find(":\\"), std::string::npos);
  EXPECT_GE(system.CaptionHeight(96), 8);
  EXPECT_GE(system.CaptionButtonWidth(96), 8);
  EXPECT_GE(system.CaptionHeight(192), system.CaptionHeight(96));
  EXPECT_GE(system.CaptionButtonWidth(192), system.CaptionButtonWidth(96));
  EXPECT_GE(system.ColourDepth(), 8);
}

TEST_P(ShellContract, TheMachineTellsDateAndTime) {
  SystemInfo& system = shell_->System();
  const auto digits = [](const std::string& text) {
    return std::count_if(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
  };
  EXPECT_GE(digits(system.ShortDate()), 3) << system.ShortDate();
  EXPECT_GE(digits(system.LongDate()), 3) << system.LongDate();
  EXPECT_GT(system.LongDate().size(), system.ShortDate().size());
  const std::string time = system.TimeOfDay();
  ASSERT_GE(time.size(), 5U);
  EXPECT_EQ(time[2], ':') << time;
  EXPECT_EQ(digits(time), 4) << time;
  EXPECT_NE(time.back(), ' ') << time;
}

}  // namespace corvelle
