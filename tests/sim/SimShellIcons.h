#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/ShellIcons.h"
#include "sim/CallCosts.h"
#include "sim/SimFiles.h"

namespace corvelle::sim {

/// A shell that shows each kind of file by an icon of its own: a square of one colour, which tells
/// which icon it is.
class SimShellIcons final : public ShellIcons, public Priced {
 public:
  explicit SimShellIcons(SimFiles& files) : files_(files) {}

  /// Index of this file's icon, or of all files with an extension (".txt"). Files without either
  /// have the index of their extension, in the order in which extensions were asked for.
  void SetIndex(std::string_view pathOrExtension, int index);
  void SetTypeName(std::string_view extension, std::string name);
  /// This file holds so many icons of its own; none at first.
  void SetIconCount(std::string_view file, int count);
  /// This file holds an icon whose resource has that number.
  void AddResource(std::string_view file, int number);
  /// The shell's large size, 32 at first; 0: it does not tell.
  void SetLargeSize(int pixels) noexcept { large_ = pixels; }

  /// The name by which a file is shown; without it that of the disk.
  void SetDisplayName(std::string_view path, std::string_view name);

  /// The colour of system icon `index`, and of icon `index` of a file. Never that of the ground.
  [[nodiscard]] static Rgb ColourOf(int index) noexcept;
  [[nodiscard]] static Rgb ColourOf(std::string_view file, int index);

  /// A square of one colour that covers the ground.
  [[nodiscard]] static IconPixels Square(Rgb colour, int size);

  [[nodiscard]] int Lookups() const noexcept { return lookups_; }
  [[nodiscard]] int Draws() const noexcept { return draws_; }
  void ClearCounts() noexcept {
    lookups_ = draws_ = 0;
    asked_.clear();
  }
  /// The paths that one of the lists was asked for, in order.
  [[nodiscard]] const std::vector<std::string>& Asked(IconList list) { return asked_[list]; }
  /// Runs at the beginning of each lookup.
  void WhileAsked(std::function<void()> action) { action_ = std::move(action); }
  /// Runs at the beginning of each drawing from the system's list.
  void WhileDrawn(std::function<void()> action) { drawAction_ = std::move(action); }

  std::optional<ShellFileInfo> FileInfo(std::string_view path, IconList list) override;
  std::optional<std::string> DisplayName(std::string_view path) override;
  std::optional<IconPixels> PixelsOfFile(std::string_view path, IconList list) override;
  std::optional<IconPixels> PixelsInFile(std::string_view file, int index, int size) override;
  int IconWidth(IconList list) override;
  bool DrawSystemIcon(Canvas& canvas, IconList list, int index, PixelPoint at,
                      IconStyle style) override;
  bool DrawFileIcon(Canvas& canvas, std::string_view file, int index, PixelPoint at,
                    int size) override;
  int IconCount(std::string_view file) override;

 private:
  [[nodiscard]] bool Shows(std::string_view path) const;
  /// Counted, and told to whoever acts on a look-up.
  std::optional<ShellFileInfo> LookUp(std::string_view path, IconList list);
  [[nodiscard]] std::optional<ShellFileInfo> Look(std::string_view path);
  [[nodiscard]] bool HoldsIcon(std::string_view file, int index) const;
  [[nodiscard]] int SizeOf(IconList list) const noexcept;

  SimFiles& files_;
  std::map<std::string, int> indexes_;
  std::map<std::string, std::string> typeNames_;
  std::map<std::string, std::string> displayNames_;  // by path in capitals
  std::map<std::string, int> iconCounts_;
  std::set<std::pair<std::string, int>> resources_;
  std::map<IconList, std::vector<std::string>> asked_;
  std::function<void()> action_;
  std::function<void()> drawAction_;
  int nextIndex_ = 100;
  int large_ = 32;
  int lookups_ = 0;
  int draws_ = 0;
};

}  // namespace corvelle::sim
