#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/ShellFolders.h"
#include "sim/CallCosts.h"
#include "sim/SimFiles.h"

namespace corvelle::sim {

/// Something that was opened: a folder (no name), or an entry in it.
struct OpenedEntry {
  int Folder = 0;
  std::string Name;
  std::string Argument;
  WindowId Owner = kNoWindow;

  friend bool operator==(const OpenedEntry&, const OpenedEntry&) = default;
};

/// A menu of the shell that came up, and what the user chose; empty when nothing.
struct ShownMenu {
  /// Of a folder (no name) or an entry in it; -1 for a file.
  int Folder = -1;
  std::string Name;  // of a file: its path
  PixelPoint At;
  WindowId Owner = kNoWindow;
  std::string Chosen;

  friend bool operator==(const ShownMenu&, const ShownMenu&) = default;
};

/// The shell's folders of a test: what it puts there. Nothing is there at first.
class SimShellFolders final : public ShellFolders, public Priced {
 public:
  explicit SimShellFolders(SimFiles& files) : files_(files) {}

  /// Makes a folder, or gives it other entries.
  void Put(int folder, std::vector<ShellFolderEntry> entries);
  /// The folder as an entry; else it is called "Folder 17" and has icon 217.
  void SetSelf(int folder, ShellFolderEntry self);
  /// Where the folder lies on the disk.
  void SetPath(int folder, std::string path);
  /// The folder is there but cannot be listed; it can again when entries are put.
  void Break(int folder);
  void Remove(int folder);
  /// Opening this entry fails, or does something.
  void Refuse(int folder, std::string name);
  void WhenOpened(int folder, std::string name, std::function<void()> action);

  /// What the user does with the next menu: chooses this command, or none.
  void Choose(std::string command) { choices_.push_back(std::move(command)); }
  void Dismiss() { choices_.emplace_back(); }
  /// Menus that nothing was said of may come or not, and nothing is chosen from them.
  void DismissAnyOther() { dismissesAll_ = true; }
  /// Runs while each menu is up.
  void WhileMenuIsUp(std::function<void()> action) { menuAction_ = std::move(action); }

  const std::vector<OpenedEntry>& Opened() const noexcept { return opened_; }
  const std::vector<ShownMenu>& Menus() const noexcept { return menus_; }
  /// How often a folder was listed with its icons.
  int Listings() const noexcept { return listings_; }

  std::optional<std::vector<ShellFolderEntry>> List(int folder) override;
  std::optional<std::vector<std::string>> Names(int folder) override;
  std::optional<ShellFolderEntry> Folder(int folder) override;
  std::optional<IconPixels> PixelsOf(int folder, std::string_view name, IconList list) override;
  std::optional<std::string> PathOf(int folder) override;
  bool OpenFolder(int folder, WindowId owner) override;
  bool OpenEntry(int folder, std::string_view name, std::string_view argument,
                 WindowId owner) override;
  bool FolderMenu(int folder, PixelPoint at, WindowId owner) override;
  bool EntryMenu(int folder, std::string_view name, PixelPoint at, WindowId owner) override;
  bool FileMenu(std::string_view path, PixelPoint at, WindowId owner) override;

 private:
  struct Contents {
    ShellFolderEntry Self;
    std::vector<ShellFolderEntry> Entries;
    std::optional<std::string> Path;
    bool Broken = false;
  };

  Contents& Make(int folder);
  [[nodiscard]] bool Holds(int folder, std::string_view name) const;
  bool Show(ShownMenu menu);

  SimFiles& files_;
  std::map<int, Contents> folders_;
  std::set<std::pair<int, std::string>> refused_;
  std::map<std::pair<int, std::string>, std::function<void()>> actions_;
  std::deque<std::string> choices_;
  std::function<void()> menuAction_;
  std::vector<OpenedEntry> opened_;
  std::vector<ShownMenu> menus_;
  int listings_ = 0;
  bool dismissesAll_ = false;
};

}  // namespace corvelle::sim
