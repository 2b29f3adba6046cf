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

constexpr Description kNoFolder = {76, "Path not found"};

std::string Numbered(const Description& description) {
  return std::to_string(description.Number) + " - " + std::string(description.Text);
}

}  // namespace

std::string FileErrorDescription(FileError error) { return std::string(Describe(error).Text); }

std::string FileErrorText(FileError error) { return "Error: " + NumberedFileError(error); }

std::string NumberedFileError(FileError error) { return Numbered(Describe(error)); }

std::string NumberedFileError(FileSystem& files, std::string_view path, FileError error) {
  const std::size_t slash = path.rfind('\\');
  const bool noFolder = error == FileError::NotFound && slash != std::string_view::npos &&
                        !files.FolderExists(path.substr(0, slash + 1));
  return noFolder ? Numbered(kNoFolder) : NumberedFileError(error);
}

}  // namespace corvelle
