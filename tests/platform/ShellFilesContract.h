#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "platform/FileSystem.h"
#include "platform/ShellFiles.h"

// What the shell's work on files must do for the program. One file of each test program includes
// this header and instantiates the suite with makers of the shells that it has.

namespace corvelle {

/// A shell with an empty folder of its own for one test.
class ContractShellFiles {
 public:
  virtual ~ContractShellFiles() = default;

  virtual ShellFiles& Shell() = 0;
  virtual FileSystem& Files() = 0;
  /// An empty folder, with its trailing backslash.
  virtual std::string Root() = 0;
  /// What the user has for a folder for temporary files.
  virtual void SetTempPath(const std::string& path) = 0;
};

using ContractShellFilesMaker = std::unique_ptr<ContractShellFiles> (*)();

class ShellFilesContract : public testing::TestWithParam<ContractShellFilesMaker> {
 protected:
  void Put(const std::string& name) { ASSERT_TRUE(home_->Files().Write(root + name, "x")) << name; }
  bool Has(const std::string& name) { return home_->Files().FileExists(root + name); }
  int Delete(const std::string& from) {
    return home_->Shell().ShFileOperation({.Function = fileop::Delete,
                                           .From = from,
                                           .Flags = fileop::FilesOnly | fileop::NoConfirmation |
                                                    fileop::Silent | fileop::NoErrorBoxes});
  }

  std::unique_ptr<ContractShellFiles> home_ = GetParam()();
  const std::string root = home_->Root();
};

TEST_P(ShellFilesContract, DeletesTheFilesOfAPatternAndLeavesFolders) {
  Put("a.lnk");
  Put("b");
  ASSERT_TRUE(home_->Files().MakeFolder(root + "Inner"));
  Put("Inner\\c.lnk");
  EXPECT_EQ(Delete(root + "*.*"), 0);
  EXPECT_FALSE(Has("a.lnk"));
  EXPECT_FALSE(Has("b"));
  EXPECT_TRUE(Has("Inner\\c.lnk"));
}

TEST_P(ShellFilesContract, LeavesWhatDoesNotFitThePattern) {
  Put("a.lnk");
  Put("b.txt");
  EXPECT_EQ(Delete(root + "*.lnk"), 0);
  EXPECT_FALSE(Has("a.lnk"));
  EXPECT_TRUE(Has("b.txt"));
}

TEST_P(ShellFilesContract, NoPathAtAllIsAFailure) { EXPECT_NE(Delete(""), 0); }

TEST_P(ShellFilesContract, TellsTheFolderForTemporaryFilesThoughItIsMissing) {
  for (const std::string& folder : {root, root + "Gone\\"}) {
    home_->SetTempPath(folder);
    EXPECT_EQ(home_->Shell().TempPath(), folder);
  }
}

}  // namespace corvelle
