#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "base/Geometry.h"
#include "icons/IconForm.h"
#include "platform/Canvas.h"

namespace corvelle {

class Program;

/// The small icons of menus: each text is asked for once and then copied from a strip of icons that
/// stand side by side. Nothing here fails visibly: what has no icon keeps an empty cell.
class MenuIcons {
 public:
  /// Width and height of a cell, pixels.
  static constexpr int kCell = 16;

  explicit MenuIcons(Program& program);
  ~MenuIcons();
  MenuIcons(const MenuIcons&) = delete;
  MenuIcons& operator=(const MenuIcons&) = delete;

  /// Draws what an icon text means into the cell at `at`. Messages may come in while the shell is
  /// asked for an icon; one that LoadSmallIcon has fetched is drawn without.
  void DrawMenuIcon(Canvas& canvas, PixelPoint at, std::string_view iconText);

  /// Fetches an icon into the strip without drawing it.
  void LoadSmallIcon(std::string_view iconText);

  /// Has the shell fetch the large icon of a file that the strip shows on a button. Does nothing
  /// while the strip shows small icons.
  void FetchButtonIcon(std::string_view iconText);

  /// Called, by a turn of its own, when a disk has answered whose icons stood in for until then:
  /// each is found when it is drawn again.
  std::function<void()> Arrived;

  /// Whether an icon has been stood in for since the last call.
  [[nodiscard]] bool TakeStoodIn() noexcept { return std::exchange(stoodIn_, false); }

  /// Forgets all icons, so that each is asked for again.
  void ResetPicIcons();

  /// How many icons the strip holds.
  [[nodiscard]] int Count() const noexcept { return cells_; }

 private:
  static constexpr int kNoCell = -1;

  [[nodiscard]] IconForm Classify(std::string_view text,
                                  IconCaller caller = IconCaller::Menu) const;
  /// The cell of an icon text; loads the icon the first time. kNoCell for texts without one.
  int LoadFileIcon(const std::string& text, const IconForm& form);
  int LoadFile(const std::string& text, const IconForm& form);
  /// The cell of an icon of the system's list, which all texts that mean it share.
  int LoadSystemIcon(int index);
  int LoadFallback();
  /// False for a file of a disk or server that does not answer at once: no icon is looked for there
  /// until it does.
  [[nodiscard]] bool IsReachable(std::string_view path);
  /// Draws on a cell of the menu's ground and appends it to the strip.
  int AddCell(const std::function<bool(Canvas&, PixelPoint)>& draw);
  void MakeRoom();

  Program& program_;
  std::uint64_t owner_ = 0;  // of questions to the desk
  bool stoodIn_ = false;
  std::unique_ptr<Canvas> picIcons_;
  int cells_ = 0;
  int room_ = 0;
  unsigned resets_ = 0;
  std::unordered_map<std::string, int> colIconFile_;   // by the text in lower case
  std::unordered_map<std::string, int> colIconIndex_;  // by "i" and the index in the system's list
  std::unordered_set<std::string> fetched_;            // large icons, by the text in lower case
};

}  // namespace corvelle
