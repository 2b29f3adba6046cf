#include "sim/SimShellFolders.h"

#include <algorithm>

#include "sim/Complain.h"
#include "sim/SimShellIcons.h"

namespace corvelle::sim {

namespace {

constexpr int kFirstOwnIcon = 200;
constexpr int kLargeIcon = 32;  // pixels

}  // namespace

SimShellFolders::Contents& SimShellFolders::Make(int folder) {
  const auto [place, made] = folders_.try_emplace(folder);
  if (made) place->second.Self = {"Folder " + std::to_string(folder), kFirstOwnIcon + folder};
  return place->second;
}

void SimShellFolders::Put(int folder, std::vector<ShellFolderEntry> entries) {
  Contents& contents = Make(folder);
  contents.Entries = std::move(entries);
  contents.Broken = false;
}

void SimShellFolders::SetSelf(int folder, ShellFolderEntry self) {
  Make(folder).Self = std::move(self);
}

void SimShellFolders::SetPath(int folder, std::string path) { Make(folder).Path = std::move(path); }

void SimShellFolders::Break(int folder) { Make(folder).Broken = true; }

void SimShellFolders::Remove(int folder) { folders_.erase(folder); }

void SimShellFolders::Refuse(int folder, std::string name) {
  refused_.emplace(folder, std::move(name));
}

void SimShellFolders::WhenOpened(int folder, std::string name, std::function<void()> action) {
  actions_[{folder, std::move(name)}] = std::move(action);
}

std::optional<std::vector<ShellFolderEntry>> SimShellFolders::List(int folder) {
  TellCall("ListFolder", "shell");
  ++listings_;
  const auto found = folders_.find(folder);
  if (found == folders_.end() || found->second.Broken) return std::nullopt;
  return found->second.Entries;
}

std::optional<std::vector<std::string>> SimShellFolders::Names(int folder) {
  const auto found = folders_.find(folder);
  if (found == folders_.end() || found->second.Broken) return std::nullopt;
  std::vector<std::string> names;
  for (const ShellFolderEntry& entry : found->second.Entries) names.push_back(entry.Name);
  return names;
}

std::optional<ShellFolderEntry> SimShellFolders::Folder(int folder) {
  TellCall("Folder", "shell");
  const auto found = folders_.find(folder);
  if (found == folders_.end()) return std::nullopt;
  return found->second.Self;
}

std::optional<IconPixels> SimShellFolders::PixelsOf(int folder, std::string_view name,
                                                    IconList list) {
  TellCall("PixelsOf", "shell");
  const auto found = folders_.find(folder);
  if (found == folders_.end()) return std::nullopt;
  const int size = list == IconList::Small ? kSmallIconSize : kLargeIcon;
  const auto square = [size](const ShellFolderEntry& entry) {
    return SimShellIcons::Square(SimShellIcons::ColourOf(entry.IconIndex), size);
  };
  if (name.empty()) return square(found->second.Self);
  if (found->second.Broken) return std::nullopt;
  for (const ShellFolderEntry& entry : found->second.Entries) {
    if (entry.Name == name) return square(entry);
  }
  return std::nullopt;
}

std::optional<std::string> SimShellFolders::PathOf(int folder) {
  TellCall("PathOf", "shell");
  const auto found = folders_.find(folder);
  if (found == folders_.end()) return std::nullopt;
  return found->second.Path;
}

bool SimShellFolders::Holds(int folder, std::string_view name) const {
  const auto found = folders_.find(folder);
  if (found == folders_.end() || found->second.Broken) return false;
  const std::vector<ShellFolderEntry>& entries = found->second.Entries;
  return std::any_of(entries.begin(), entries.end(),
                     [name](const ShellFolderEntry& entry) { return entry.Name == name; });
}

bool SimShellFolders::OpenFolder(int folder, WindowId owner) {
  TellCall("OpenFolder", "shell");
  if (!folders_.contains(folder) || refused_.contains({folder, ""})) return false;
  opened_.push_back({.Folder = folder, .Name = {}, .Argument = {}, .Owner = owner});
  return true;
}

bool SimShellFolders::OpenEntry(int folder, std::string_view name, std::string_view argument,
                                WindowId owner) {
  TellCall("OpenEntry", "shell");
  const std::pair<int, std::string> place{folder, name};
  if (!Holds(folder, name) || refused_.contains(place)) return false;
  opened_.push_back(
      {.Folder = folder, .Name = place.second, .Argument = std::string(argument), .Owner = owner});
  if (const auto action = actions_.find(place); action != actions_.end()) action->second();
  return true;
}

bool SimShellFolders::Show(ShownMenu menu) {
  if (choices_.empty() && dismissesAll_) return false;
  if (choices_.empty()) {
    Complain("a menu of the shell came up that nobody expected: " + menu.Name);
    return false;
  }
  menu.Chosen = choices_.front();
  choices_.pop_front();
  const bool chosen = !menu.Chosen.empty();
  menus_.push_back(std::move(menu));
  if (menuAction_) menuAction_();
  return chosen;
}

bool SimShellFolders::FolderMenu(int folder, PixelPoint at, WindowId owner) {
  TellCall("FolderMenu", "shell");
  if (!folders_.contains(folder)) return false;
  return Show({.Folder = folder, .Name = {}, .At = at, .Owner = owner, .Chosen = {}});
}

bool SimShellFolders::EntryMenu(int folder, std::string_view name, PixelPoint at, WindowId owner) {
  TellCall("EntryMenu", "shell");
  if (!Holds(folder, name)) return false;
  return Show(
      {.Folder = folder, .Name = std::string(name), .At = at, .Owner = owner, .Chosen = {}});
}

bool SimShellFolders::FileMenu(std::string_view path, PixelPoint at, WindowId owner) {
  TellCall("FileMenu", path);
  if (!files_.Has(path)) return false;
  return Show({.Folder = -1, .Name = std::string(path), .At = at, .Owner = owner, .Chosen = {}});
}

}  // namespace corvelle::sim
