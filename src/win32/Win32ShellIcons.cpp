#include "win32/Win32ShellIcons.h"

#include <string>
#include <utility>

#include "win32/FileNames.h"
#include "win32/IconToPixels.h"
#include "win32/UniqueHandle.h"
#include "win32/Wide.h"
#include "win32/Win32Canvas.h"

namespace corvelle::win32 {

namespace {

// Never together with SHGFI_EXETYPE, which stands alone.
constexpr UINT kFileInfoFlags =
    SHGFI_SYSICONINDEX | SHGFI_DISPLAYNAME | SHGFI_TYPENAME | SHGFI_SHELLICONSIZE;

/// More than any file holds: what the system answers when it cannot read the file.
constexpr UINT kMostIcons = 0x7FFFFFFF;

UINT SizeFlag(IconList list) { return list == IconList::Small ? SHGFI_SMALLICON : SHGFI_LARGEICON; }

std::size_t PlaceOf(IconList list) { return list == IconList::Small ? 0 : 1; }

HIMAGELIST ToList(std::uintptr_t handle) { return reinterpret_cast<HIMAGELIST>(handle); }

UniqueIcon IndexedIcon(std::string_view file, int index, int size) {
  UniqueIcon large;
  UniqueIcon small;
  ExtractIconExW(Wide(file).c_str(), index, large.Receive(), small.Receive(), 1);
  const bool smallFits = size <= GetSystemMetrics(SM_CXSMICON);
  UniqueIcon& better = smallFits ? small : large;
  UniqueIcon& other = smallFits ? large : small;
  return better ? std::move(better) : std::move(other);
}

/// The icon whose resource has the number -`index`. ExtractIconEx would count the icons for -1.
UniqueIcon ResourceIcon(std::string_view file, int index, int size) {
  UniqueIcon icon;
  UINT id = 0;
  const std::wstring path = Wide(file);
  // The call copies the path into a field of that length.
  if (path.size() >= MAX_PATH) return icon;
  const UINT got = PrivateExtractIconsW(path.c_str(), index, size, size, icon.Receive(), &id, 1, 0);
  if (got != 1) static_cast<void>(icon.Release());
  return icon;
}

UniqueIcon FileIcon(std::string_view file, int index, int size) {
  return index < 0 ? ResourceIcon(file, index, size) : IndexedIcon(file, index, size);
}

}  // namespace

bool LiesElsewhere(unsigned long attributes) noexcept {
  // The compiler's headers do not name the last two.
  constexpr DWORD kRecallOnOpen = 0x00040000;
  constexpr DWORD kRecallOnDataAccess = 0x00400000;
  return attributes != INVALID_FILE_ATTRIBUTES &&
         (attributes & (FILE_ATTRIBUTE_OFFLINE | kRecallOnOpen | kRecallOnDataAccess)) != 0;
}

unsigned long AttributesOfType(unsigned long attributes) noexcept {
  const bool folder =
      attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  return folder ? FILE_ATTRIBUTE_DIRECTORY : FILE_ATTRIBUTE_NORMAL;
}

std::optional<ShellFileInfo> Win32ShellIcons::FileInfo(std::string_view path, IconList list) {
  if (!CanNameFile(path)) return std::nullopt;
  SHFILEINFOW info{};
  const DWORD_PTR handle =
      SHGetFileInfoW(Wide(path).c_str(), 0, &info, sizeof(info), kFileInfoFlags | SizeFlag(list));
  if (handle == 0) return std::nullopt;
  lists_[PlaceOf(list)] = handle;
  return ShellFileInfo{.SystemIndex = info.iIcon,
                       .DisplayName = Narrow(info.szDisplayName),
                       .TypeName = Narrow(info.szTypeName)};
}

std::optional<std::string> Win32ShellIcons::DisplayName(std::string_view path) {
  if (!CanNameFile(path)) return std::nullopt;
  SHFILEINFOW info{};
  if (SHGetFileInfoW(Wide(path).c_str(), 0, &info, sizeof(info), SHGFI_DISPLAYNAME) == 0)
    return std::nullopt;
  return Narrow(info.szDisplayName);
}

std::optional<IconPixels> Win32ShellIcons::PixelsOfFile(std::string_view path, IconList list) {
  if (!CanNameFile(path)) return std::nullopt;
  SHFILEINFOW info{};
  const std::wstring wide = Wide(path);
  // To look into such a file would fetch it.
  const DWORD attributes = GetFileAttributesW(wide.c_str());
  const bool byType = LiesElsewhere(attributes);
  if (SHGetFileInfoW(wide.c_str(), AttributesOfType(attributes), &info, sizeof(info),
                     (byType ? SHGFI_USEFILEATTRIBUTES : 0U) | SHGFI_ICON | SHGFI_SHELLICONSIZE |
                         SizeFlag(list)) == 0) {
    return std::nullopt;
  }
  const UniqueIcon icon(info.hIcon);
  return PixelsOfIcon(icon.Get(), list == IconList::Small ? kSmallIconSize : 0);
}

std::optional<IconPixels> Win32ShellIcons::PixelsInFile(std::string_view file, int index,
                                                        int size) {
  if (size <= 0 || file.find('\0') != std::string_view::npos) return std::nullopt;
  if (LiesElsewhere(GetFileAttributesW(Wide(file).c_str()))) return std::nullopt;
  const UniqueIcon icon = FileIcon(file, index, size);
  return PixelsOfIcon(icon.Get(), size);
}

std::uintptr_t Win32ShellIcons::ListHandle(IconList list) {
  std::uintptr_t& handle = lists_[PlaceOf(list)];
  if (handle == 0) {
    // Any file will do, so it need not exist.
    SHFILEINFOW info{};
    handle = SHGetFileInfoW(L"x", FILE_ATTRIBUTE_NORMAL, &info, sizeof(info),
                            SHGFI_USEFILEATTRIBUTES | SHGFI_SYSICONINDEX | SizeFlag(list));
  }
  return handle;
}

int Win32ShellIcons::IconWidth(IconList list) {
  int width = 0;
  int height = 0;
  const HIMAGELIST icons = ToList(ListHandle(list));
  if (icons == nullptr || ImageList_GetIconSize(icons, &width, &height) == 0) return 0;
  return width;
}

bool Win32ShellIcons::DrawSystemIcon(Canvas& canvas, IconList list, int index, PixelPoint at,
                                     IconStyle style) {
  const HIMAGELIST icons = ToList(ListHandle(list));
  if (icons == nullptr || index < 0 || index >= ImageList_GetImageCount(icons)) return false;
  const Win32Canvas& target = AsWin32(canvas);
  const CanvasDc dc(target);
  if (!dc) return false;
  const UINT form = ILD_TRANSPARENT | (style == IconStyle::Blend25 ? ILD_BLEND25 : 0U);
  const PixelPoint place{at.x + target.Origin().x, at.y + target.Origin().y};
  if (list == IconList::Large || IconWidth(list) == kSmallIconSize) {
    return ImageList_Draw(icons, index, dc.Get(), place.x, place.y, form) != 0;
  }
  // With large system fonts the list holds larger ones.
  UniqueIcon icon;
  *icon.Receive() = ImageList_GetIcon(icons, index, form);
  return icon && DrawIconEx(dc.Get(), place.x, place.y, icon.Get(), kSmallIconSize, kSmallIconSize,
                            0, nullptr, DI_NORMAL) != 0;
}

bool Win32ShellIcons::DrawFileIcon(Canvas& canvas, std::string_view file, int index, PixelPoint at,
                                   int size) {
  if (file.find('\0') != std::string_view::npos) return false;
  const UniqueIcon icon = FileIcon(file, index, size);
  if (!icon) return false;
  const Win32Canvas& target = AsWin32(canvas);
  const CanvasDc dc(target);
  if (!dc) return false;
  return DrawIconEx(dc.Get(), at.x + target.Origin().x, at.y + target.Origin().y, icon.Get(), size,
                    size, 0, nullptr, DI_NORMAL) != 0;
}

int Win32ShellIcons::IconCount(std::string_view file) {
  if (file.empty() || file.find('\0') != std::string_view::npos) return 0;
  const UINT count = ExtractIconExW(Wide(file).c_str(), -1, nullptr, nullptr, 0);
  return count > kMostIcons ? 0 : static_cast<int>(count);
}

}  // namespace corvelle::win32
