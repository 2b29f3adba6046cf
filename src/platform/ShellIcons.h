#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/Geometry.h"
#include "platform/Canvas.h"
#include "platform/IconPixels.h"

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

  /// The name alone of an existing file or folder, without its icon being looked for.
  [[nodiscard]] virtual std::optional<std::string> DisplayName(std::string_view path) = 0;

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

  /// The icon that the shell shows for an existing file or folder, as large as those of the list (a
  /// small one is 16 by 16), and icon `index` of an icon file at `size` by `size` (see
  /// DrawFileIcon). Empty when the file has no icon. Unlike the routines above they can be called
  /// on any thread that has an object of its own.
  [[nodiscard]] virtual std::optional<IconPixels> PixelsOfFile(std::string_view path,
                                                               IconList list) = 0;
  [[nodiscard]] virtual std::optional<IconPixels> PixelsInFile(std::string_view file, int index,
                                                               int size) = 0;

  /// How many icons a file holds; 0 when it holds none or cannot be read.
  [[nodiscard]] virtual int IconCount(std::string_view file) = 0;
};

}  // namespace corvelle
