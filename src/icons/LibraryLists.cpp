#include "icons/LibraryLists.h"

#include <cstddef>
#include <cstdint>

#include "base/CodePage.h"
#include "base/Sort.h"
#include "core/IconState.h"
#include "core/ProgramPaths.h"
#include "forms/WindowSystem.h"
#include "icons/LibraryFile.h"
#include "platform/FileSystem.h"
#include "platform/SystemInfo.h"

namespace corvelle {

namespace {

constexpr std::string_view kAllIconsFile = "CAT0.ics";
constexpr std::string_view kDisplayFile = "clrlib.dat";
constexpr forms::OleColor kWindowColour = 0x80000005;
constexpr std::string_view kCategoryEnding = ".ini";

}  // namespace

void LibraryLists::RemoveAll(std::string_view pattern) const {
  const auto entries = with_.Files.List(with_.Paths.IconsPath, pattern);
  // A folder that cannot be listed holds nothing to remove.
  if (!entries) return;
  for (const FileEntry& entry : *entries) {
    // What cannot be removed is written again with its list.
    if (!entry.IsFolder) static_cast<void>(with_.Files.Remove(with_.Paths.IconsPath + entry.Name));
  }
}

std::vector<std::string> LibraryLists::FileNames(std::string_view pattern) const {
  std::vector<std::string> names;
  const auto entries = with_.Files.List(with_.Paths.IconsPath, pattern);
  if (!entries) return names;
  for (const FileEntry& entry : *entries) {
    if (!entry.IsFolder) names.push_back(entry.Name);
  }
  return names;
}

std::optional<std::vector<std::string>> LibraryLists::ReadLines(const std::string& name) const {
  const std::string path = with_.Paths.IconsPath + name;
  const auto length = with_.Files.Length(path);
  if (!length) return std::nullopt;
  const auto bytes = with_.Files.Read(path, 0, static_cast<std::size_t>(*length));
  if (!bytes) return std::nullopt;
  return LibraryLines(*bytes, with_.Ansi);
}

std::vector<std::string> LibraryLists::Categories() const {
  std::vector<std::string> names = FileNames("*.ini");
  for (std::string& name : names) name.resize(name.size() - kCategoryEnding.size());
  SortTexts(names);
  return names;
}

std::vector<std::string> LibraryLists::IconsOf(std::string_view category) const {
  return ReadLines(std::string(category) + std::string(kCategoryEnding))
      .value_or(std::vector<std::string>());
}

std::vector<std::string> LibraryLists::AllIcons() const {
  if (auto known = ReadLines(std::string(kAllIconsFile))) return *known;
  std::vector<std::string> names = FileNames("*.ico");
  // Without its list the names are looked up again the next time.
  static_cast<void>(with_.Files.Replace(with_.Paths.IconsPath + std::string(kAllIconsFile),
                                        FormatLibraryLines(names, with_.Ansi)));
  return names;
}

void LibraryLists::Reset() const {
  RemoveAll("*.dat");
  RemoveAll("*.ics");
  with_.Icons.LibraryBuilt = false;
}

void LibraryLists::DropPrepared() const {
  RemoveAll("*.ics");
  RemoveAll("CAT*.dat");
  with_.Icons.LibraryBuilt = false;
}

bool LibraryLists::CheckDisplay() const {
  const std::string path = with_.Paths.AppPath + std::string(kDisplayFile);
  const DisplayValues now{
      .WindowColour = static_cast<std::int32_t>(forms::Resolve(with_.Windows, kWindowColour)),
      .BitsPerPixel = with_.System.ColourDepth()};
  const auto record = with_.Files.Read(path, 0, kDisplayRecord);
  if (record && ParseDisplayRecord(*record) == now) return false;
  // Values that cannot be kept cost no more than a library that is built once too often.
  static_cast<void>(with_.Files.WriteAt(path, 0, FormatDisplayRecord(now)));
  DropPrepared();
  return true;
}

}  // namespace corvelle
