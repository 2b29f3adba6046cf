#pragma once

#include "platform/FileSystem.h"

namespace corvelle::win32 {

/// The disks of the machine.
class Win32Files final : public FileSystem {
 public:
  bool FileExists(std::string_view path) override;
  bool FolderExists(std::string_view path) override;
  FileResult<std::vector<FileEntry>> List(std::string_view folder,
                                          std::string_view pattern) override;
  FileResult<std::uint64_t> Length(std::string_view path) override;
  FileResult<std::string> Read(std::string_view path, std::uint64_t offset,
                               std::size_t count) override;
  FileStatus Write(std::string_view path, std::string_view bytes) override;
  FileStatus WriteAt(std::string_view path, std::uint64_t offset, std::string_view bytes) override;
  FileStatus Replace(std::string_view path, std::string_view bytes) override;
  FileStatus ReplaceUnflushed(std::string_view path, std::string_view bytes) override;
  FileStatus Flush(std::string_view path) override;
  FileStatus Remove(std::string_view path) override;
  FileStatus ClearAttributes(std::string_view path) override;
  FileStatus Rename(std::string_view from, std::string_view to) override;
  FileStatus Copy(std::string_view from, std::string_view to) override;
  FileStatus MakeFolder(std::string_view path) override;
  std::string LongPath(std::string_view path) override;
  std::string ShortPath(std::string_view path) override;

 private:
  FileStatus ReplaceWith(std::string_view path, std::string_view bytes, bool flush);

  unsigned temporary_ = 0;  // how many files were replaced, for the names of their new contents
  std::uint64_t patientFrom_ = 0;  // the time from which a removal waits again
};

}  // namespace corvelle::win32
