#include "HostFiles.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <system_error>

#include "base/Text.h"

namespace corvelle::bench {

namespace fs = std::filesystem;

namespace {

struct CloseFile {
  void operator()(std::FILE* file) const noexcept { std::fclose(file); }
};
using OpenFile = std::unique_ptr<std::FILE, CloseFile>;

/// The patterns that the program lists by: all files, or all with an extension.
bool Fits(std::string_view name, std::string_view pattern) {
  return pattern == "*" || pattern == "*.*" || EndsWithNoCase(name, pattern.substr(1));
}

FileStatus Answer(const std::error_code& error) {
  if (error) return FileError::Failed;
  return Done{};
}

}  // namespace

HostFiles::HostFiles() {
  std::string name = (fs::temp_directory_path() / "corvelle-bench-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) {
    std::perror("no folder to measure in");
    std::exit(1);
  }
  root_ = name;
}

HostFiles::~HostFiles() {
  std::error_code ignored;  // A folder that stays is the system's to clear away.
  fs::remove_all(root_, ignored);
}

fs::path HostFiles::Host(std::string_view path) const {
  std::string rest(path.size() > 2 && path[1] == ':' ? path.substr(2) : path);
  std::replace(rest.begin(), rest.end(), '\\', '/');
  while (!rest.empty() && rest.front() == '/') rest.erase(0, 1);
  return root_ / rest;
}

bool HostFiles::FileExists(std::string_view path) { return fs::is_regular_file(Host(path)); }
bool HostFiles::FolderExists(std::string_view path) { return fs::is_directory(Host(path)); }

FileResult<std::vector<FileEntry>> HostFiles::List(std::string_view folder,
                                                   std::string_view pattern) {
  std::error_code error;
  std::vector<FileEntry> entries;
  for (const fs::directory_entry& entry : fs::directory_iterator(Host(folder), error)) {
    FileEntry found{.Name = entry.path().filename().string(), .IsFolder = entry.is_directory()};
    if (!Fits(found.Name, pattern)) continue;
    if (!found.IsFolder) found.Length = entry.file_size();
    entries.push_back(std::move(found));
  }
  if (error) return FileError::NotFound;
  return entries;
}

FileResult<std::uint64_t> HostFiles::Length(std::string_view path) {
  std::error_code error;
  const auto length = fs::file_size(Host(path), error);
  if (error) return FileError::NotFound;
  return std::uint64_t{length};
}

FileResult<std::string> HostFiles::Read(std::string_view path, std::uint64_t offset,
                                        std::size_t count) {
  const fs::path host = Host(path);
  const OpenFile file(std::fopen(host.c_str(), "rb"));
  if (!file) return FileError::NotFound;
  std::error_code error;
  const std::uint64_t length = fs::file_size(host, error);
  if (error) return FileError::Failed;
  const std::uint64_t there = offset < length ? length - offset : 0;
  std::string bytes(static_cast<std::size_t>(std::min<std::uint64_t>(there, count)), '\0');
  if (std::fseek(file.get(), static_cast<long>(offset), SEEK_SET) != 0) return FileError::Failed;
  bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file.get()));
  reads_.push_back({host, offset, bytes.size()});
  return bytes;
}

FileStatus HostFiles::Write(std::string_view path, std::string_view bytes) {
  const fs::path host = Host(path);
  std::ofstream file(host, std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!file) return FileError::Failed;
  return Done{};
}

FileStatus HostFiles::WriteAt(std::string_view path, std::uint64_t offset, std::string_view bytes) {
  if (!FileExists(path)) {
    if (const FileStatus made = Write(path, ""); !made) return made;
  }
  std::fstream file(Host(path), std::ios::binary | std::ios::in | std::ios::out);
  file.seekp(static_cast<std::streamoff>(offset));
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!file) return FileError::Failed;
  return Done{};
}

FileStatus HostFiles::Replace(std::string_view path, std::string_view bytes) {
  return Write(path, bytes);
}

FileStatus HostFiles::ReplaceUnflushed(std::string_view path, std::string_view bytes) {
  return Write(path, bytes);
}

FileStatus HostFiles::Flush(std::string_view path) {
  return FileExists(path) ? FileStatus(Done()) : FileStatus(FileError::NotFound);
}

FileStatus HostFiles::Remove(std::string_view path) {
  std::error_code error;
  if (!fs::remove(Host(path), error)) return FileError::NotFound;
  return Answer(error);
}

FileStatus HostFiles::ClearAttributes(std::string_view path) {
  // Files of the host bear none of these marks.
  if (!fs::exists(Host(path))) return FileError::NotFound;
  return Done{};
}

FileStatus HostFiles::Rename(std::string_view from, std::string_view to) {
  if (fs::exists(Host(to))) return FileError::AlreadyExists;
  std::error_code error;
  fs::rename(Host(from), Host(to), error);
  return Answer(error);
}

FileStatus HostFiles::Copy(std::string_view from, std::string_view to) {
  std::error_code error;
  fs::copy_file(Host(from), Host(to), error);
  return Answer(error);
}

FileStatus HostFiles::MakeFolder(std::string_view path) {
  std::error_code error;
  if (!fs::create_directory(Host(path), error) && !error) return FileError::AlreadyExists;
  return Answer(error);
}

std::size_t ReadBare(const std::vector<HostFiles::ReadCall>& calls) {
  std::size_t total = 0;
  std::vector<char> bytes;
  for (const HostFiles::ReadCall& call : calls) {
    const OpenFile file(std::fopen(call.Host.c_str(), "rb"));
    if (!file) continue;
    bytes.resize(call.Length);
    if (std::fseek(file.get(), static_cast<long>(call.Offset), SEEK_SET) != 0) continue;
    total += std::fread(bytes.data(), 1, bytes.size(), file.get());
  }
  return total;
}

}  // namespace corvelle::bench
