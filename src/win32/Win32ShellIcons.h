#pragma once

#include <array>
#include <cstdint>

#include "platform/ShellIcons.h"

namespace corvelle::win32 {

/// Icons as the shell of the machine has them. Draws on canvases of Win32WindowSystem.
class Win32ShellIcons final : public ShellIcons {
 public:
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
  /// The handle of one of the two image lists, 0 when the shell gives none. They belong to the
  /// shell and stay for the life of the process.
  std::uintptr_t ListHandle(IconList list);

  std::array<std::uintptr_t, 2> lists_{};
};

/// True for the attributes of a file whose content lies in a cloud or an archive and is fetched
/// when it is read.
[[nodiscard]] bool LiesElsewhere(unsigned long attributes) noexcept;

/// Those by which the shell tells the icon of a type: of a folder or of a file.
[[nodiscard]] unsigned long AttributesOfType(unsigned long attributes) noexcept;

}  // namespace corvelle::win32
