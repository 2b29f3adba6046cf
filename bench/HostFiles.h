#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FileSystem.h"

namespace corvelle::bench {

/// The host's disk under Windows paths, with as little between as can be. Drive C: is a folder that
/// goes with the object. Notes what is read, so that the same can be read again by plain calls.
class HostFiles final : public FileSystem {
 public:
  struct ReadCall {
    std::filesystem::path Host;
    std::uint64_t Offset = 0;
    std::size_t Length = 0;  // bytes that came
  };

  HostFiles();
  ~HostFiles() override;
  HostFiles(const HostFiles&) = delete;
  HostFiles& operator=(const HostFiles&) = delete;

  void ClearReads() { reads_.clear(); }
  [[nodiscard]] const std::vector<ReadCall>& Reads() const { return reads_; }

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
  std::string LongPath(std::string_view path) override { return std::string(path); }
  std::string ShortPath(std::string_view path) override { return std::string(path); }

 private:
  [[nodiscard]] std::filesystem::path Host(std::string_view path) const;

  std::filesystem::path root_;
  std::vector<ReadCall> reads_;
};

/// Reads what the calls read, by nothing but open, seek, read and close. Gives the number of bytes.
std::size_t ReadBare(const std::vector<HostFiles::ReadCall>& calls);

}  // namespace corvelle::bench
