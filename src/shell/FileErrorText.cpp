#include "shell/FileErrorText.h"

#include <string_view>

namespace corvelle {

namespace {

struct Description {
  int Number;
  std::string_view Text;
};

Description Describe(FileError error) noexcept {
  switch (error) {
    case FileError::NotFound:
      return {53, "File not found"};
    case FileError::AlreadyExists:
      return {58, "File already exists"};
    case FileError::AccessDenied:
      return {75, "Path/File access error"};
    case FileError::InUse:
      return {70, "Permission denied"};
    case FileError::DiskFull:
      return {61, "Disk full"};
    case FileError::BadName:
      return {52, "Bad file name or number"};
    case FileError::Failed:
      break;
  }
  return {57, "Device I/O error"};
}

}  // namespace

std::string FileErrorDescription(FileError error) { return std::string(Describe(error).Text); }

std::string FileErrorText(FileError error) { return "Error: " + NumberedFileError(error); }

std::string NumberedFileError(FileError error) {
  const Description description = Describe(error);
  return std::to_string(description.Number) + " - " + std::string(description.Text);
}

}  // namespace corvelle
