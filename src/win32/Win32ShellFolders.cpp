#include "win32/Win32ShellFolders.h"
#include "win32/ErrorMode.h"

#include <algorithm>

#include "win32/ComPointer.h"
#include "win32/IconToPixels.h"
#include "win32/ItemIds.h"
#include "win32/ShellMenu.h"
#include "win32/Wide.h"

namespace corvelle::win32 {

namespace {

// What stands above are flags of the call.
constexpr int kLastFolder = 0xFF;

/// Where a folder is in the tree of all folders.
UniqueItem LocationOf(int folder) {
  UniqueItem item;
  if (folder < 0 || folder > kLastFolder) return item;
  if (FAILED(SHGetSpecialFolderLocation(nullptr, folder, item.Receive()))) item.Reset();
  return item;
}

ComPointer<IShellFolder> OpenAt(const ITEMIDLIST* item) {
  ComPointer<IShellFolder> desktop;
  if (item == nullptr || FAILED(SHGetDesktopFolder(desktop.Receive()))) return {};
  // The desktop is the root, whose item is the empty one.
  if (item->mkid.cb == 0) return desktop;
  ComPointer<IShellFolder> folder;
  if (FAILED(desktop->BindToObject(item, nullptr, IID_IShellFolder, folder.ReceiveVoid())))
    return {};
  return folder;
}

/// The text of a name as a folder gives it; what memory it holds is given back.
std::wstring TakeText(STRRET& name, const ITEMIDLIST* child) {
  switch (name.uType) {
    case STRRET_WSTR: {
      std::wstring text = name.pOleStr != nullptr ? name.pOleStr : L"";
      CoTaskMemFree(name.pOleStr);
      return text;
    }
    case STRRET_OFFSET:
    case STRRET_CSTR: {
      const char* const text = name.uType == STRRET_CSTR
                                   ? name.cStr
                                   : reinterpret_cast<const char*>(child) + name.uOffset;
      const int length = MultiByteToWideChar(CP_ACP, 0, text, -1, nullptr, 0);
      std::wstring wide(static_cast<std::size_t>(std::max(length, 1)), L'\0');
      MultiByteToWideChar(CP_ACP, 0, text, -1, wide.data(), length);
      wide.pop_back();
      return wide;
    }
    default:
      return {};
  }
}

std::optional<std::string> NameOf(IShellFolder& folder, const ITEMIDLIST* child) {
  STRRET name{};
  if (FAILED(folder.GetDisplayNameOf(child, SHGDN_INFOLDER, &name))) return std::nullopt;
  return Narrow(TakeText(name, child));
}

/// Its place in the tree.
ShellFolderEntry EntryAt(const ITEMIDLIST* item, std::string name) {
  SHFILEINFOW info{};
  SHGetFileInfoW(reinterpret_cast<LPCWSTR>(item), 0, &info, sizeof(info),
                 SHGFI_PIDL | SHGFI_SYSICONINDEX | SHGFI_SMALLICON);
  return {.Name = std::move(name), .IconIndex = info.iIcon};
}

std::optional<IconPixels> PixelsAt(const ITEMIDLIST* item, IconList list) {
  if (item == nullptr) return std::nullopt;
  const UINT size = list == IconList::Small ? SHGFI_SMALLICON : SHGFI_LARGEICON;
  SHFILEINFOW info{};
  if (SHGetFileInfoW(reinterpret_cast<LPCWSTR>(item), 0, &info, sizeof(info),
                     SHGFI_PIDL | SHGFI_ICON | SHGFI_SHELLICONSIZE | size) == 0) {
    return std::nullopt;
  }
  const UniqueIcon icon(info.hIcon);
  return PixelsOfIcon(icon.Get(), list == IconList::Small ? kSmallIconSize : 0);
}

/// Calls `visit` with each child of a folder until it says false. False when the folder cannot be
/// listed. No drive asks for a disk and no net for a password meanwhile.
template <class Visit>
bool VisitChildren(IShellFolder& folder, Visit visit) {
  ComPointer<IEnumIDList> children;
  const HRESULT result =
      folder.EnumObjects(nullptr, SHCONTF_FOLDERS | SHCONTF_NONFOLDERS, children.Receive());
  if (FAILED(result)) return false;
  // A folder without children may have no list of them.
  if (!children) return true;
  UniqueItem child;
  while (children->Next(1, child.Receive(), nullptr) == S_OK && child) {
    if (!visit(child.Get())) break;
  }
  return true;
}

/// An entry of a folder, and that folder.
struct Found {
  UniqueItem Location;
  ComPointer<IShellFolder> Folder;
  UniqueItem Child;
};

Found Find(int folder, std::string_view name) {
  Found found{.Location = LocationOf(folder), .Folder = {}, .Child = {}};
  found.Folder = OpenAt(found.Location.Get());
  if (!found.Folder) return found;
  IShellFolder& parent = *found.Folder.Get();
  static_cast<void>(VisitChildren(parent, [&](const ITEMIDLIST* child) {
    if (NameOf(parent, child) != name) return true;
    found.Child.Reset(ILClone(child));
    return false;
  }));
  return found;
}

bool Open(ITEMIDLIST* item, std::string_view argument, WindowId owner, ShellExecThread thread) {
  const std::wstring parameters = Wide(argument);
  SHELLEXECUTEINFOW info{};
  info.cbSize = sizeof(info);
  info.fMask = SEE_MASK_IDLIST | SEE_MASK_FLAG_NO_UI;
  if (thread == ShellExecThread::EndsSoon) info.fMask |= SEE_MASK_NOASYNC;
  info.hwnd = owner != kNoWindow ? ToHwnd(owner) : GetDesktopWindow();
  info.lpIDList = item;
  info.lpParameters = parameters.empty() ? nullptr : parameters.c_str();
  info.nShow = SW_SHOWNORMAL;
  const ErrorModeForChildren errorMode;
  return ShellExecuteExW(&info) != FALSE;
}

bool MenuOf(IShellFolder& folder, const ITEMIDLIST* child, PixelPoint at, WindowId owner) {
  ComPointer<IContextMenu> menu;
  if (FAILED(folder.GetUIObjectOf(ToHwnd(owner), 1, &child, IID_IContextMenu, nullptr,
                                  menu.ReceiveVoid())) ||
      !menu) {
    return false;
  }
  return ShowShellMenu(*menu.Get(), {at.x, at.y}, ToHwnd(owner));
}

/// The menu of an item by its place in the tree; the root has none.
bool MenuAt(const ITEMIDLIST* item, PixelPoint at, WindowId owner) {
  if (item == nullptr || item->mkid.cb == 0) return false;
  ComPointer<IShellFolder> parent;
  const ITEMIDLIST* child = nullptr;  // a part of `item`
  if (FAILED(SHBindToParent(item, IID_IShellFolder, parent.ReceiveVoid(), &child))) return false;
  return MenuOf(*parent.Get(), child, at, owner);
}

}  // namespace

std::optional<std::vector<ShellFolderEntry>> Win32ShellFolders::List(int folder) {
  const UniqueItem location = LocationOf(folder);
  const ComPointer<IShellFolder> open = OpenAt(location.Get());
  if (!open) return std::nullopt;
  std::vector<ShellFolderEntry> entries;
  const bool listed = VisitChildren(*open.Get(), [&](const ITEMIDLIST* child) {
    auto name = NameOf(*open.Get(), child);
    const UniqueItem whole(ILCombine(location.Get(), child));
    // An entry without a name cannot be told from others.
    if (name && !name->empty() && whole) entries.push_back(EntryAt(whole.Get(), std::move(*name)));
    return true;
  });
  if (!listed) return std::nullopt;
  return entries;
}

std::optional<std::vector<std::string>> Win32ShellFolders::Names(int folder) {
  const UniqueItem location = LocationOf(folder);
  const ComPointer<IShellFolder> open = OpenAt(location.Get());
  if (!open) return std::nullopt;
  std::vector<std::string> names;
  const bool listed = VisitChildren(*open.Get(), [&](const ITEMIDLIST* child) {
    auto name = NameOf(*open.Get(), child);
    if (name && !name->empty()) names.push_back(std::move(*name));
    return true;
  });
  if (!listed) return std::nullopt;
  return names;
}

std::optional<ShellFolderEntry> Win32ShellFolders::Folder(int folder) {
  const UniqueItem location = LocationOf(folder);
  if (!location) return std::nullopt;
  SHFILEINFOW info{};
  if (SHGetFileInfoW(reinterpret_cast<LPCWSTR>(location.Get()), 0, &info, sizeof(info),
                     SHGFI_PIDL | SHGFI_DISPLAYNAME | SHGFI_SYSICONINDEX | SHGFI_SMALLICON) == 0) {
    return std::nullopt;
  }
  return ShellFolderEntry{.Name = Narrow(info.szDisplayName), .IconIndex = info.iIcon};
}

std::optional<IconPixels> Win32ShellFolders::PixelsOf(int folder, std::string_view name,
                                                      IconList list) {
  if (name.empty()) return PixelsAt(LocationOf(folder).Get(), list);
  const Found found = Find(folder, name);
  if (!found.Child) return std::nullopt;
  const UniqueItem whole(ILCombine(found.Location.Get(), found.Child.Get()));
  return PixelsAt(whole.Get(), list);
}

// One on a server that cannot be reached has its path all the same.
std::optional<std::string> Win32ShellFolders::PathOf(int folder) {
  std::wstring path(MAX_PATH, L'\0');
  if (folder < 0 || folder > kLastFolder ||
      SHGetFolderPathW(nullptr, folder | CSIDL_FLAG_DONT_VERIFY, nullptr, SHGFP_TYPE_CURRENT,
                       path.data()) != S_OK) {
    return std::nullopt;
  }
  std::string text = Narrow(path.c_str());
  if (text.empty()) return std::nullopt;
  return text;
}

bool Win32ShellFolders::OpenFolder(int folder, WindowId owner) {
  const UniqueItem location = LocationOf(folder);
  return location && Open(location.Get(), {}, owner, thread_);
}

bool Win32ShellFolders::OpenEntry(int folder, std::string_view name, std::string_view argument,
                                  WindowId owner) {
  const Found found = Find(folder, name);
  if (!found.Child) return false;
  const UniqueItem whole(ILCombine(found.Location.Get(), found.Child.Get()));
  return whole && Open(whole.Get(), argument, owner, thread_);
}

bool Win32ShellFolders::FolderMenu(int folder, PixelPoint at, WindowId owner) {
  const UniqueItem location = LocationOf(folder);
  return MenuAt(location.Get(), at, owner);
}

bool Win32ShellFolders::EntryMenu(int folder, std::string_view name, PixelPoint at,
                                  WindowId owner) {
  const Found found = Find(folder, name);
  return found.Child && MenuOf(*found.Folder.Get(), found.Child.Get(), at, owner);
}

bool Win32ShellFolders::FileMenu(std::string_view path, PixelPoint at, WindowId owner) {
  if (path.empty() || path.find('\0') != std::string_view::npos) return false;
  const std::wstring wide = Wide(path);
  // The system makes items of what does not exist too.
  if (GetFileAttributesW(wide.c_str()) == INVALID_FILE_ATTRIBUTES) return false;
  const UniqueItem item(ILCreateFromPathW(wide.c_str()));
  return MenuAt(item.Get(), at, owner);
}

}  // namespace corvelle::win32
