#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/Geometry.h"
#include "platform/Canvas.h"

namespace corvelle {

/// The two lists of icons that the shell keeps for the whole system.
enum class IconList { Small, Large };

enum class IconStyle { Normal, Blend25 };

/// The side of a small icon in pixels, at every scale.
inline constexpr int kSmallIconSize = 16;

struct ShellFileInfo {
  int SystemIndex = 0;  // index in both lists
  std::string DisplayName;
  std::string TypeName;
};

/// What the shell shows of a file, and the drawing of icons. Sizes and places are pixels.
class ShellIcons {
 public:
  virtual ~ShellIcons() = default;

  /// The shell's view of an existing file or folder; nothing when it has none.
  [[nodiscard]] virtual std::optional<ShellFileInfo> FileInfo(std::string_view path,
                                                              IconList list) = 0;

  /// Width of the icons of a list; 0 when the system does not tell.
  [[nodiscard]] virtual int IconWidth(IconList list) = 0;

  /// Draws an icon of a list, transparent; a small one is 16 by 16 whatever the list holds. False
  /// when there is no such icon.
  virtual bool DrawSystemIcon(Canvas& canvas, IconList list, int index, PixelPoint at,
                              IconStyle style) = 0;

  /// Draws icon `index` of an icon file or program at `size` by `size`; below 0 the one whose
  /// resource has the number -`index`. False when the file has no such icon. Keeps no handle.
  virtual bool DrawFileIcon(Canvas& canvas, std::string_view file, int index, PixelPoint at,
                            int size) = 0;

  /// How many icons a file holds; 0 when it holds none or cannot be read.
  [[nodiscard]] virtual int IconCount(std::string_view file) = 0;
};

}  // namespace corvelle
