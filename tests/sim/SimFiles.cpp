#include "sim/SimFiles.h"

#include <stdlib.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <system_error>

#include "base/Text.h"
#include "base/Wildcard.h"

namespace corvelle::sim {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void EndTest(std::string_view what, std::string_view path) {
  std::fprintf(stderr, "SimFiles: %.*s: %.*s\n", static_cast<int>(what.size()), what.data(),
               static_cast<int>(path.size()), path.data());
  std::abort();
}

std::string ReadHost(const fs::path& host, std::uint64_t offset, std::size_t count) {
  std::error_code error;
  const std::uint64_t length = fs::file_size(host, error);
  if (error || offset >= length) return {};
  std::string bytes(static_cast<std::size_t>(std::min<std::uint64_t>(count, length - offset)),
                    '\0');
  std::ifstream file(host, std::ios::binary);
  file.seekg(static_cast<std::streamoff>(offset));
  file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  bytes.resize(static_cast<std::size_t>(file.gcount()));
  return bytes;
}

std::uint64_t HostLength(const fs::path& host) {
  std::error_code error;
  const std::uint64_t length = fs::file_size(host, error);
  return error ? 0 : length;
}

/// The entry of a host folder with that name, case apart; empty when there is none.
fs::path FindEntry(const fs::path& folder, const std::string& name) {
  std::error_code error;
  if (fs::exists(folder / name, error)) return folder / name;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder, error)) {
    if (EqualNoCase(entry.path().filename().string(), name)) return entry.path();
  }
  return {};
}

std::string KeyOf(const SimPath& path) { return UpperCase(FormatPath(path)); }

}  // namespace

void SimFiles::WriteHost(const fs::path& host, std::string_view bytes) {
  ++changes_;
  std::ofstream file(host, std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.flush();
  if (!file) EndTest("the host cannot write", host.string());
}

SimFiles::SimFiles() {
  std::string pattern = (fs::temp_directory_path() / "corvelle-disk-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) EndTest("no temporary folder", pattern);
  root_ = pattern;
  AddDrive('C');
}

SimFiles::~SimFiles() {
  std::error_code error;
  fs::remove_all(root_, error);
  if (error) std::fprintf(stderr, "SimFiles: %s stays behind\n", root_.c_str());
}

void SimFiles::AddDrive(char letter) { fs::create_directory(root_ / std::string(1, letter)); }

void SimFiles::SetCurrentFolder(std::string_view folder) { currentFolder_ = folder; }

void SimFiles::MakeFolders(std::string_view path) {
  const ParsedPath parsed = ParsePath(path, currentFolder_);
  if (parsed.Fault != PathFault::None) EndTest("no such name", path);
  fs::path host = root_ / std::string(1, parsed.Path.Drive);
  for (const std::string& part : parsed.Path.Parts) {
    const fs::path found = FindEntry(host, part);
    host = found.empty() ? host / part : found;
    if (found.empty()) {
      fs::create_directory(host);
      ++changes_;
    }
  }
}

void SimFiles::Put(std::string_view path, std::string_view bytes) {
  const std::size_t slash = path.find_last_of("\\/");
  if (slash != std::string_view::npos) MakeFolders(path.substr(0, slash + 1));
  const Place place = MustFind(path);
  if (place.IsFolder) EndTest("is a folder", path);
  WriteHost(place.Host, bytes);
}

void SimFiles::PutNew(std::string_view folder, const std::vector<std::string>& names) {
  const Place place = MustFind(folder);
  if (!place.IsFolder) EndTest("is no folder", folder);
  for (const std::string& name : names) WriteHost(place.Host / name, {});
}

std::optional<std::string> SimFiles::Get(std::string_view path) const {
  const Place place = MustFind(path);
  if (!place.IsFile()) return std::nullopt;
  return ReadHost(place.Host, 0, static_cast<std::size_t>(HostLength(place.Host)));
}

bool SimFiles::Has(std::string_view path) const {
  // A name that the disk cannot hold names nothing.
  const FileResult<Place> place = Find(path);
  return place && place->Exists;
}

std::vector<std::string> SimFiles::Names(std::string_view folder) const {
  const Place place = MustFind(folder);
  if (!place.IsFolder) EndTest("is no folder", folder);
  std::vector<std::string> names;
  for (const fs::directory_entry& entry : fs::directory_iterator(place.Host)) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

void SimFiles::SetReadOnly(std::string_view path, bool readOnly) {
  attributes_[MustFind(path).Key].ReadOnly = readOnly;
}

void SimFiles::SetHidden(std::string_view path, bool hidden) {
  attributes_[MustFind(path).Key].Hidden = hidden;
}

void SimFiles::SetSystem(std::string_view path, bool system) {
  attributes_[MustFind(path).Key].System = system;
}

void SimFiles::SetTemporary(std::string_view path, bool temporary) {
  attributes_[MustFind(path).Key].Temporary = temporary;
}

void SimFiles::LinkFolder(std::string_view link, std::string_view target) {
  const Place place = MustFind(link);
  const Place there = MustFind(target);
  if (!there.IsFolder) EndTest("is no folder to link to", target);
  ++changes_;
  fs::create_directory_symlink(there.Host, place.Host);
}

void SimFiles::HoldOpen(std::string_view path, Hold hold) {
  const Place place = MustFind(path);
  if (!place.IsFile()) EndTest("is no file to hold", path);
  held_[place.Key] = hold;
}

void SimFiles::LetGo(std::string_view path) { held_.erase(MustFind(path).Key); }

void SimFiles::Protect(std::string_view folder, bool isProtected) {
  const Place place = MustFind(folder);
  if (!place.IsFolder) EndTest("is no folder", folder);
  if (isProtected) {
    protected_.insert(place.Key);
  } else {
    protected_.erase(place.Key);
  }
}

void SimFiles::Vanish(std::string_view path) {
  const Place place = MustFind(path);
  ++changes_;
  fs::remove_all(place.Host);
  std::erase_if(attributes_, [&](const auto& entry) {
    return entry.first == place.Key || entry.first.starts_with(place.Key + "\\");
  });
}

void SimFiles::FailCall(int n, FileError error) {
  failIn_ = n;
  failOn_ = false;
  hit_ = false;
  failWith_ = error;
}

void SimFiles::FailFrom(int n, FileError error) {
  FailCall(n, error);
  failOn_ = true;
}

void SimFiles::StopFailing() {
  failIn_ = 0;
  failOn_ = false;
}

void SimFiles::FillDisk(std::uint64_t bytesLeft) { bytesLeft_ = bytesLeft; }

int SimFiles::Count(std::string_view operation) const {
  return static_cast<int>(std::count_if(
      log_.begin(), log_.end(), [&](const Call& call) { return call.Operation == operation; }));
}

FileResult<SimFiles::Place> SimFiles::Find(std::string_view path) const {
  const ParsedPath parsed = ParsePath(path, currentFolder_);
  if (parsed.Fault == PathFault::BadName) return FileError::BadName;
  if (parsed.Fault == PathFault::NoDrive) return FileError::NotFound;

  Place place;
  place.Path = parsed.Path;
  place.Key = KeyOf(parsed.Path);
  place.Host = root_ / std::string(1, parsed.Path.Drive);
  std::error_code error;
  place.Exists = place.ParentExists = fs::is_directory(place.Host, error);
  place.IsFolder = place.Exists;
  for (const std::string& part : parsed.Path.Parts) {
    place.ParentExists = place.Exists && place.IsFolder;
    if (!place.ParentExists) {
      place.Exists = place.IsFolder = false;
      return place;
    }
    fs::path found = FindEntry(place.Host, part);
    if (found.empty()) found = FindShort(place.Host, part);
    place.Exists = !found.empty();
    place.Host = place.Exists ? found : place.Host / part;
    place.IsFolder = place.Exists && fs::is_directory(place.Host, error);
  }
  if (place.Exists && !shortNames_.empty()) {
    // What is known of a file is known of it under either name.
    SimPath named = parsed.Path;
    fs::path host = place.Host;
    for (auto part = named.Parts.rbegin(); part != named.Parts.rend(); ++part) {
      *part = host.filename().string();
      host = host.parent_path();
    }
    place.Key = KeyOf(named);
  }
  return place;
}

fs::path SimFiles::FindShort(const fs::path& folder, std::string_view name) const {
  for (const auto& [host, shortName] : shortNames_) {
    std::error_code error;
    const bool here = host.parent_path() == folder && EqualNoCase(shortName, name);
    if (here && fs::exists(host, error)) return host;
  }
  return {};
}

SimFiles::Place SimFiles::MustFind(std::string_view path) const {
  FileResult<Place> place = Find(path);
  if (!place) EndTest("no such name", path);
  return *std::move(place);
}

FileResult<SimFiles::Place> SimFiles::FindReadable(std::string_view path) const {
  FileResult<Place> place = Find(path);
  if (!place) return place;
  if (!place->Exists) return FileError::NotFound;
  if (place->IsFolder) return FileError::AccessDenied;
  if (place->Path.EndsInBackslash) return FileError::NotFound;
  const auto hold = held_.find(place->Key);
  if (hold != held_.end() && hold->second == Hold::Exclusively) return FileError::InUse;
  return place;
}

FileResult<SimFiles::Place> SimFiles::FindWritable(std::string_view path) const {
  FileResult<Place> place = Find(path);
  if (!place) return place;
  if (!place->ParentExists) return FileError::NotFound;
  if (place->IsFolder) return FileError::AccessDenied;
  if (place->Path.EndsInBackslash) return FileError::NotFound;
  if (AttributesOf(place->Key).ReadOnly && place->Exists) return FileError::AccessDenied;
  if (IsProtected(place->Key)) return FileError::AccessDenied;
  if (IsHeld(place->Key)) return FileError::InUse;
  return place;
}

std::optional<FileError> SimFiles::Enter(std::string_view operation, std::string_view path,
                                         std::string_view other) {
  log_.push_back({std::string(operation), std::string(path), std::string(other)});
  TellCall(operation, path);
  if (beforeCall_) beforeCall_({std::string(operation), std::string(path), std::string(other)});
  if (failOn_ && hit_) return failWith_;
  if (failIn_ == 0 || --failIn_ > 0) return std::nullopt;
  hit_ = true;
  return failWith_;
}

SimFiles::Attributes SimFiles::AttributesOf(const std::string& key) const {
  const auto found = attributes_.find(key);
  return found == attributes_.end() ? Attributes{} : found->second;
}

bool SimFiles::IsProtected(const std::string& key) const {
  return std::any_of(protected_.begin(), protected_.end(), [&](const std::string& folder) {
    return key.starts_with(folder.ends_with('\\') ? folder : folder + "\\");
  });
}

bool SimFiles::HoldsSomethingIn(const std::string& folderKey) const {
  return std::any_of(held_.begin(), held_.end(),
                     [&](const auto& entry) { return entry.first.starts_with(folderKey + "\\"); });
}

void SimFiles::MoveAttributes(const std::string& from, const std::string& to) {
  std::map<std::string, Attributes> moved;
  for (const auto& [key, value] : attributes_) {
    const bool inside = key == from || key.starts_with(from + "\\");
    moved[inside ? to + key.substr(from.size()) : key] = value;
  }
  attributes_ = std::move(moved);
}

FileStatus SimFiles::Store(const Place& place, std::string_view content) {
  const std::uint64_t old = place.Exists ? HostLength(place.Host) : 0;
  if (!bytesLeft_) {
    WriteHost(place.Host, content);
    return Done();
  }
  const std::uint64_t room = old + *bytesLeft_;
  const std::string_view kept =
      content.substr(0, static_cast<std::size_t>(std::min<std::uint64_t>(room, content.size())));
  WriteHost(place.Host, kept);
  bytesLeft_ = room - kept.size();
  if (kept.size() < content.size()) return FileError::DiskFull;
  return Done();
}

FileStatus SimFiles::FailWrite(FileError error, std::string_view path, std::uint64_t offset,
                               std::string_view bytes, bool cut) {
  const FileResult<Place> place = FindWritable(path);
  if (!place || error != FileError::DiskFull) return error;
  std::string content;
  if (!cut && place->Exists) content = ReadHost(place->Host, 0, HostLength(place->Host));
  const std::string_view half = bytes.substr(0, bytes.size() / 2);
  if (content.size() < offset + half.size()) {
    content.resize(static_cast<std::size_t>(offset) + half.size(), '\0');
  }
  content.replace(static_cast<std::size_t>(offset), half.size(), half);
  WriteHost(place->Host, content);
  return error;
}

bool SimFiles::FileExists(std::string_view path) {
  if (Enter("FileExists", path)) return false;
  const FileResult<Place> place = Find(path);
  return place && place->IsFile() && !place->Path.EndsInBackslash;
}

bool SimFiles::FolderExists(std::string_view path) {
  if (Enter("FolderExists", path)) return false;
  const FileResult<Place> place = Find(path);
  return place && place->IsFolder;
}

FileResult<std::vector<FileEntry>> SimFiles::List(std::string_view folder,
                                                  std::string_view pattern) {
  if (const auto error = Enter("List", folder, pattern)) return *error;
  const FileResult<Place> place = Find(folder);
  if (!place) return place.Error();
  if (!place->IsFolder) return FileError::NotFound;
  std::vector<FileEntry> entries;
  for (const fs::directory_entry& host : fs::directory_iterator(place->Host)) {
    FileEntry entry;
    entry.Name = host.path().filename().string();
    if (!FitsPattern(entry.Name, pattern)) continue;
    const Attributes attributes =
        AttributesOf(place->Key + (place->Path.IsRoot() ? "" : "\\") + UpperCase(entry.Name));
    entry.IsFolder = host.is_directory();
    entry.ReadOnly = attributes.ReadOnly;
    entry.Hidden = attributes.Hidden;
    entry.System = attributes.System;
    entry.Temporary = attributes.Temporary;
    entry.Length = entry.IsFolder ? 0 : host.file_size();
    entries.push_back(std::move(entry));
  }
  return entries;
}

FileResult<std::uint64_t> SimFiles::Length(std::string_view path) {
  if (const auto error = Enter("Length", path)) return *error;
  const FileResult<Place> place = Find(path);
  if (!place) return place.Error();
  if (place->IsFolder) return FileError::AccessDenied;
  if (!place->Exists || place->Path.EndsInBackslash) return FileError::NotFound;
  return HostLength(place->Host);
}

FileResult<std::string> SimFiles::Read(std::string_view path, std::uint64_t offset,
                                       std::size_t count) {
  if (const auto error = Enter("Read", path)) return *error;
  const FileResult<Place> place = FindReadable(path);
  if (!place) return place.Error();
  return ReadHost(place->Host, offset, count);
}

FileStatus SimFiles::Write(std::string_view path, std::string_view bytes) {
  if (const auto error = Enter("Write", path)) return FailWrite(*error, path, 0, bytes, true);
  const FileResult<Place> place = FindWritable(path);
  if (!place) return place.Error();
  return Store(*place, bytes);
}

FileStatus SimFiles::WriteAt(std::string_view path, std::uint64_t offset, std::string_view bytes) {
  if (const auto error = Enter("WriteAt", path)) {
    return FailWrite(*error, path, offset, bytes, false);
  }
  const FileResult<Place> place = FindWritable(path);
  if (!place) return place.Error();
  std::string content;
  if (place->Exists) content = ReadHost(place->Host, 0, HostLength(place->Host));
  if (!bytes.empty()) {
    const auto at = static_cast<std::size_t>(offset);
    if (content.size() < at + bytes.size()) content.resize(at + bytes.size(), '\0');
    content.replace(at, bytes.size(), bytes);
  }
  return Store(*place, content);
}

FileStatus SimFiles::Replace(std::string_view path, std::string_view bytes) {
  return ReplaceAs("Replace", path, bytes);
}

FileStatus SimFiles::ReplaceUnflushed(std::string_view path, std::string_view bytes) {
  return ReplaceAs("ReplaceUnflushed", path, bytes);
}

FileStatus SimFiles::Flush(std::string_view path) {
  if (const auto error = Enter("Flush", path)) return *error;
  const FileResult<Place> place = FindWritable(path);
  if (!place) return place.Error();
  return place->IsFile() ? FileStatus(Done()) : FileStatus(FileError::NotFound);
}

FileStatus SimFiles::ReplaceAs(std::string_view operation, std::string_view path,
                               std::string_view bytes) {
  if (const auto error = Enter(operation, path)) return *error;
  const FileResult<Place> place = FindWritable(path);
  if (!place) return place.Error();
  // Old and new content stand beside each other for a moment.
  if (bytesLeft_ && bytes.size() > *bytesLeft_) return FileError::DiskFull;
  return Store(*place, bytes);
}

FileStatus SimFiles::Remove(std::string_view path) {
  if (const auto error = Enter("Remove", path)) return *error;
  const FileResult<Place> there = Find(path);
  if (there && !there->Exists) return FileError::NotFound;
  const FileResult<Place> place = FindWritable(path);
  if (!place) return place.Error();
  if (bytesLeft_) *bytesLeft_ += HostLength(place->Host);
  ++changes_;
  fs::remove(place->Host);
  attributes_.erase(place->Key);
  return Done();
}

FileStatus SimFiles::ClearAttributes(std::string_view path) {
  if (const auto error = Enter("ClearAttributes", path)) return *error;
  const FileResult<Place> place = Find(path);
  if (!place) return place.Error();
  if (place->IsFolder) return FileError::AccessDenied;
  if (!place->Exists || place->Path.EndsInBackslash) return FileError::NotFound;
  if (IsProtected(place->Key)) return FileError::AccessDenied;
  attributes_.erase(place->Key);
  return Done();
}

FileStatus SimFiles::Rename(std::string_view from, std::string_view to) {
  if (const auto error = Enter("Rename", from, to)) return *error;
  const FileResult<Place> source = Find(from);
  const FileResult<Place> target = Find(to);
  if (!source) return source.Error();
  if (!source->Exists) return FileError::NotFound;
  if (!target) return target.Error();
  if (!target->ParentExists) return FileError::NotFound;
  if (source->Path.Drive != target->Path.Drive || source->Path.IsRoot()) return FileError::Failed;
  if (IsProtected(source->Key) || IsProtected(target->Key)) return FileError::AccessDenied;
  if (IsHeld(source->Key)) return FileError::InUse;
  if (HoldsSomethingIn(source->Key)) return FileError::AccessDenied;
  if (target->Exists && target->Key != source->Key) return FileError::AlreadyExists;
  const fs::path host = target->Host.parent_path() / target->Path.Parts.back();
  std::error_code error;
  ++changes_;
  fs::rename(source->Host, host, error);
  if (error) return FileError::Failed;  // a folder into itself
  MoveAttributes(source->Key, target->Key);
  return Done();
}

FileStatus SimFiles::Copy(std::string_view from, std::string_view to) {
  if (const auto error = Enter("Copy", from, to)) return *error;
  const FileResult<Place> source = FindReadable(from);
  if (!source) return source.Error();
  const FileResult<Place> target = Find(to);
  if (!target) return target.Error();
  if (target->IsFolder) return FileError::AccessDenied;
  if (target->Exists) return FileError::AlreadyExists;
  if (!target->ParentExists) return FileError::NotFound;
  if (IsProtected(target->Key)) return FileError::AccessDenied;
  const std::string content = ReadHost(source->Host, 0, HostLength(source->Host));
  if (bytesLeft_ && content.size() > *bytesLeft_) return FileError::DiskFull;
  attributes_[target->Key] = AttributesOf(source->Key);
  return Store(*target, content);
}

FileStatus SimFiles::MakeFolder(std::string_view path) {
  if (const auto error = Enter("MakeFolder", path)) return *error;
  const FileResult<Place> place = Find(path);
  if (!place) return place.Error();
  if (place->Exists) return FileError::AlreadyExists;
  if (!place->ParentExists) return FileError::NotFound;
  if (IsProtected(place->Key)) return FileError::AccessDenied;
  ++changes_;
  fs::create_directory(place->Host);
  return Done();
}

std::string SimFiles::LongPath(std::string_view path) {
  if (Enter("LongPath", path)) return std::string(path);
  const FileResult<Place> place = Find(path);
  if (!place || !place->Exists) return std::string(path);
  SimPath stored = place->Path;
  fs::path host = place->Host;
  for (auto part = stored.Parts.rbegin(); part != stored.Parts.rend(); ++part) {
    *part = host.filename().string();
    host = host.parent_path();
  }
  std::string text = FormatPath(stored);
  if (place->Path.EndsInBackslash && !text.ends_with('\\')) text += "\\";
  return text;
}

void SimFiles::GiveShortName(std::string_view path, std::string_view shortName) {
  const Place place = MustFind(path);
  if (!place.Exists) EndTest("no such file", path);
  shortNames_[place.Host] = std::string(shortName);
}

std::string SimFiles::ShortPath(std::string_view path) {
  if (Enter("ShortPath", path)) return {};
  const FileResult<Place> place = Find(path);
  if (!place || !place->Exists) return {};
  SimPath named = place->Path;
  fs::path host = place->Host;
  for (auto part = named.Parts.rbegin(); part != named.Parts.rend(); ++part) {
    const auto known = shortNames_.find(host);
    if (known != shortNames_.end()) *part = known->second;
    host = host.parent_path();
  }
  std::string text = FormatPath(named);
  if (place->Path.EndsInBackslash && !text.ends_with('\\')) text += "\\";
  return text;
}

}  // namespace corvelle::sim
