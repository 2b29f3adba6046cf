#include "shell/FileErrorText.h"

#include <gtest/gtest.h>

#include "sim/World.h"

namespace corvelle {
namespace {

TEST(FileErrorText, NumbersAndDescriptions) {
  struct Row {
    FileError error;
    const char* numbered;
  };
  const Row rows[] = {
      {FileError::NotFound, "53 - File not found"},
      {FileError::AlreadyExists, "58 - File already exists"},
      {FileError::AccessDenied, "75 - Path/File access error"},
      {FileError::InUse, "70 - Permission denied"},
      {FileError::DiskFull, "61 - Disk full"},
      {FileError::BadName, "52 - Bad file name or number"},
      {FileError::Failed, "57 - Device I/O error"},
  };
  for (const Row& row : rows) {
    const std::string numbered = row.numbered;
    EXPECT_EQ(NumberedFileError(row.error), numbered);
    EXPECT_EQ(FileErrorText(row.error), "Error: " + numbered);
    EXPECT_EQ(FileErrorDescription(row.error), numbered.substr(5));
  }
}

TEST(FileErrorText, AMissingFolderIsToldFromAMissingFile) {
  struct Row {
    const char* path;
    FileError error;
    const char* numbered;
  };
  const Row rows[] = {
      {"C:\\Here\\none.txt", FileError::NotFound, "53 - File not found"},
      {"C:\\none.txt", FileError::NotFound, "53 - File not found"},
      {"none.txt", FileError::NotFound, "53 - File not found"},
      {"C:\\Gone\\none.txt", FileError::NotFound, "76 - Path not found"},
      {"C:\\Gone\\", FileError::NotFound, "76 - Path not found"},
      {"C:\\Here\\file.txt\\none.txt", FileError::NotFound, "76 - Path not found"},
      {"Q:\\none.txt", FileError::NotFound, "76 - Path not found"},
      // The folder is no matter where the disk answered something else.
      {"C:\\Gone\\none.txt", FileError::DiskFull, "61 - Disk full"},
  };
  sim::World world;
  world.Files.Put("C:\\Here\\file.txt", "x");
  for (const Row& row : rows) {
    EXPECT_EQ(NumberedFileError(world.Files, row.path, row.error), row.numbered) << row.path;
  }
}

}  // namespace
}  // namespace corvelle
