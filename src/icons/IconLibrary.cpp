#include "icons/IconLibrary.h"

#include <cstdint>
#include <optional>
#include <utility>

#include "base/Sort.h"
#include "base/Text.h"
#include "core/Program.h"
#include "icons/LibraryFile.h"
#include "platform/FileSystem.h"
#include "platform/SystemInfo.h"

namespace corvelle {

namespace {

constexpr int kEntriesPerDot = 5;
constexpr std::string_view kMissing =
    "Icon Library couldn't be found in your system. You need to reinstall the program to fix this "
    "error.";
constexpr unsigned kMissingFlags = forms::msgbox::IconStop | forms::msgbox::OnTop;
constexpr std::string_view kAllIconsFile = "CAT0.ics";
constexpr std::string_view kDisplayFile = "clrlib.dat";
constexpr forms::OleColor kWindowColour = 0x80000005;
constexpr std::string_view kCategoryEnding = ".ini";

/// Writes one entry, and notes its path in `written`. A file that cannot be written keeps its old
/// content, and the others follow: one icon that is held open must not cost the rest.
void WriteEntry(Program& program, const std::string& folder, const LibraryEntry& entry,
                std::string_view data, std::string& written) {
  if (!IsPlainFileName(entry.Name)) return;
  std::string path = folder + entry.Name;
  if (program.Services.Files.ReplaceUnflushed(path, data)) written = std::move(path);
}

/// Reads and writes the entry at `offset`. The offset behind it; nothing when the unpacking ends
/// there.
std::optional<std::uint64_t> ExtractEntry(Program& program, const std::string& container,
                                          const std::string& folder, std::uint64_t offset,
                                          std::string& written) {
  FileSystem& files = program.Services.Files;
  const auto header = files.Read(container, offset, kLibraryHeader);
  if (!header) return std::nullopt;
  const auto entry = ParseLibraryEntry(*header, program.Services.Ansi);
  if (!entry) return std::nullopt;
  const std::uint64_t length = LibraryDataLength(*entry);
  if (length == 0) return std::nullopt;
  const auto data =
      files.Read(container, offset + kLibraryHeader, static_cast<std::size_t>(length));
  if (!data || data->size() != length) return std::nullopt;
  WriteEntry(program, folder, *entry, *data, written);
  return offset + kLibraryHeader + length;
}

void RemoveAll(Program& program, std::string_view pattern) {
  FileSystem& files = program.Services.Files;
  const auto entries = files.List(program.Paths.IconsPath, pattern);
  // A folder that cannot be listed holds nothing to remove.
  if (!entries) return;
  for (const FileEntry& entry : *entries) {
    // What cannot be removed is written again with its list.
    if (!entry.IsFolder) static_cast<void>(files.Remove(program.Paths.IconsPath + entry.Name));
  }
}

std::vector<std::string> FileNames(Program& program, std::string_view pattern) {
  std::vector<std::string> names;
  const auto entries = program.Services.Files.List(program.Paths.IconsPath, pattern);
  if (!entries) return names;
  for (const FileEntry& entry : *entries) {
    if (!entry.IsFolder) names.push_back(entry.Name);
  }
  return names;
}

/// The lines of a text file in the folder of icons; nothing when it is not there.
std::optional<std::vector<std::string>> ReadLines(Program& program, const std::string& name) {
  FileSystem& files = program.Services.Files;
  const std::string path = program.Paths.IconsPath + name;
  const auto length = files.Length(path);
  if (!length) return std::nullopt;
  const auto bytes = files.Read(path, 0, static_cast<std::size_t>(*length));
  if (!bytes) return std::nullopt;
  return LibraryLines(*bytes, program.Services.Ansi);
}

}  // namespace

void ExtractIconLibrary(Program& program, std::string_view target, std::string_view source) {
  FileSystem& files = program.Services.Files;
  const std::string folder = EnsureBackslash(target);
  const std::string container = EnsureBackslash(source) + std::string(kLibraryFile);
  if (!files.FileExists(container)) {
    program.Messages.Say(program.Ports.ToolbarWindow(), kMissing, kMissingFlags);
    return;
  }
  const std::uint64_t end = files.Length(container).ValueOr(0);
  std::optional<std::uint64_t> offset = 0;
  std::string written;
  for (int count = 1; offset && *offset < end; ++count) {
    program.Events.DoEvents();
    if (count % kEntriesPerDot == 0) program.Progress.ShowStartupProgress();
    offset = ExtractEntry(program, container, folder, *offset, written);
  }
  // The icons can be unpacked again, so that one wait for the disk is enough. Should even that
  // fail, the icons are there until the power goes.
  if (!written.empty()) static_cast<void>(files.Flush(written));
}

void IconLibrary::ExtractIconLibrary() {
  corvelle::ExtractIconLibrary(program_, program_.Paths.IconsPath, program_.Paths.ShippedFile(""));
}

std::vector<std::string> LibraryCategories(Program& program) {
  std::vector<std::string> names = FileNames(program, "*.ini");
  for (std::string& name : names) name.resize(name.size() - kCategoryEnding.size());
  SortTexts(names);
  return names;
}

std::vector<std::string> CategoryIcons(Program& program, std::string_view category) {
  return ReadLines(program, std::string(category) + std::string(kCategoryEnding))
      .value_or(std::vector<std::string>());
}

std::vector<std::string> AllIcons(Program& program) {
  if (auto known = ReadLines(program, std::string(kAllIconsFile))) return *known;
  std::vector<std::string> names = FileNames(program, "*.ico");
  // Without its list the names are looked up again the next time.
  static_cast<void>(
      program.Services.Files.Replace(program.Paths.IconsPath + std::string(kAllIconsFile),
                                     FormatLibraryLines(names, program.Services.Ansi)));
  return names;
}

void ResetLibrary(Program& program) {
  RemoveAll(program, "*.dat");
  RemoveAll(program, "*.ics");
  program.Icons.LibraryBuilt = false;
}

void DropPreparedLists(Program& program) {
  RemoveAll(program, "*.ics");
  RemoveAll(program, "CAT*.dat");
  program.Icons.LibraryBuilt = false;
}

bool CheckLibraryDisplay(Program& program) {
  FileSystem& files = program.Services.Files;
  const std::string path = program.Paths.AppPath + std::string(kDisplayFile);
  const DisplayValues now{
      .WindowColour = static_cast<std::int32_t>(forms::Resolve(program.Windows, kWindowColour)),
      .BitsPerPixel = program.Services.System.ColourDepth()};
  const auto record = files.Read(path, 0, kDisplayRecord);
  if (record && ParseDisplayRecord(*record) == now) return false;
  // Values that cannot be kept cost no more than a library that is built once too often.
  static_cast<void>(files.WriteAt(path, 0, FormatDisplayRecord(now)));
  DropPreparedLists(program);
  return true;
}

}  // namespace corvelle
