#include "desk/LookupPlaces.h"

#include <algorithm>

#include "base/Text.h"

namespace corvelle::desk {

namespace {

constexpr std::string_view kShellPlace = "shell";
constexpr std::string_view kLongPath = R"(\\?\)";
constexpr std::string_view kLongServer = R"(\\?\UNC\)";

bool IsLetter(char c) noexcept { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

std::string ServerOf(std::string_view path) {
  return R"(\\)" + UpperCase(path.substr(0, path.find('\\')));
}

}  // namespace

std::string PlaceOfPath(std::string_view path) {
  if (StartsWithNoCase(path, kLongServer)) return ServerOf(path.substr(kLongServer.size()));
  if (path.starts_with(kLongPath)) path.remove_prefix(kLongPath.size());
  if (path.size() >= 2 && path[1] == ':' && IsLetter(path[0])) return UpperCase(path.substr(0, 2));
  if (path.starts_with(R"(\\)")) return ServerOf(path.substr(2));
  return std::string(kShellPlace);
}

std::string LaneOfLookup(const Lookup& question) {
  switch (question.Kind) {
    case LookupKind::IsThere:
    case LookupKind::FolderEntries:
    case LookupKind::Drive:
    case LookupKind::DriveAtHand:
    case LookupKind::LinkTarget:
    case LookupKind::IconTarget:
    case LookupKind::ShortPaths:
      return PlaceOfPath(question.Path);
    case LookupKind::ShellFolder:
    case LookupKind::ShellEntries:
      return std::string(kShellPlace);
    case LookupKind::ShellIcon:
      return std::string(kShellPlace) + kIconMark;
    case LookupKind::FileName:
    case LookupKind::FileNames:
    case LookupKind::FileIcon:
    case LookupKind::IconInFile:
    case LookupKind::IconCount:
      break;
  }
  return IconLaneOf(question.Path);
}

std::string IconLaneOf(std::string_view path) { return PlaceOfPath(path) + kIconMark; }

bool IsIconLane(std::string_view lane) noexcept {
  return lane.find(kIconMark) != std::string_view::npos;
}

std::string PlaceOfLane(std::string_view lane) {
  return std::string(lane.substr(0, lane.find(kIconMark)));
}

bool DependsOnTarget(const Lookup& question) noexcept {
  return question.Kind == LookupKind::FileIcon && EndsWithNoCase(question.Path, ".lnk");
}

std::string KeyOfLookup(const Lookup& question) {
  // What no name holds stands between the parts.
  std::string key = std::to_string(static_cast<int>(question.Kind)) + '\n';
  const bool entry = question.Kind == LookupKind::ShellIcon;
  key += entry ? question.Path : UpperCase(DropBackslash(question.Path));
  switch (question.Kind) {
    case LookupKind::FolderEntries:
    case LookupKind::FileNames:
    case LookupKind::ShortPaths:
      key += '\n' + UpperCase(question.Pattern);
      break;
    case LookupKind::FileIcon:
      key += '\n' + std::to_string(static_cast<int>(question.List));
      break;
    case LookupKind::IconInFile:
      key += '\n' + std::to_string(question.Number) + '\n' + std::to_string(question.Size);
      break;
    case LookupKind::ShellFolder:
    case LookupKind::ShellEntries:
      key += '\n' + std::to_string(question.Number);
      break;
    case LookupKind::ShellIcon:
      key += '\n' + std::to_string(question.Number) + '\n' +
             std::to_string(static_cast<int>(question.List));
      break;
    case LookupKind::IsThere:
    case LookupKind::Drive:
    case LookupKind::DriveAtHand:
    case LookupKind::LinkTarget:
    case LookupKind::IconTarget:
    case LookupKind::FileName:
    case LookupKind::IconCount:
      break;
  }
  return key;
}

}  // namespace corvelle::desk
