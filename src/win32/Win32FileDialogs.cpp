// The system's dialogs for files and folders.

#include <cstddef>
#include <string>

#include "win32/ItemIds.h"
#include "win32/Wide.h"
#include "win32/Win32WindowSystem.h"

// After the headers of Windows that it builds on.
#include <commdlg.h>

namespace corvelle::win32 {

namespace {

// A smaller buffer is overrun under Wine when many files are chosen.
constexpr std::size_t kRoomForNames = 65536;
constexpr std::size_t kRoomForMany = 1048576;  // four thousand of the longest names

std::wstring FilterOf(const std::vector<forms::FileKind>& kinds) {
  std::wstring filter;
  for (const forms::FileKind& kind : kinds) {
    filter += Wide(kind.Name);
    filter += L'\0';
    filter += Wide(kind.Patterns);
    filter += L'\0';
  }
  filter += L'\0';
  return filter;
}

/// One path; or a folder and the names in it, each with an end of its own.
std::vector<std::string> PathsOf(const std::wstring& names) {
  std::vector<std::wstring> parts;
  for (std::size_t at = 0; at < names.size() && names[at] != 0;) {
    parts.emplace_back(names.c_str() + at);
    at += parts.back().size() + 1;
  }
  std::vector<std::string> paths;
  if (parts.size() == 1) paths.push_back(Narrow(parts.front()));
  for (std::size_t at = 1; at < parts.size(); ++at) {
    std::wstring path = parts.front();
    if (path.back() != L'\\') path += L'\\';
    paths.push_back(Narrow(path + parts[at]));
  }
  return paths;
}

// The start folder can be chosen only when the window is there.
int CALLBACK StartAt(HWND window, UINT message, LPARAM /*lParam*/, LPARAM folder) {
  if (message == BFFM_INITIALIZED && folder != 0) {
    SendMessageW(window, BFFM_SETSELECTIONW, TRUE, folder);
  }
  return 0;
}

}  // namespace

forms::FileChoice Win32WindowSystem::AskFiles(WindowId owner, const forms::FileQuestion& question) {
  std::wstring names(question.Several ? kRoomForMany : kRoomForNames, L'\0');
  const std::wstring first = Wide(question.File);
  if (first.size() + 1 < names.size()) names.replace(0, first.size(), first);
  const std::wstring filter = FilterOf(question.Kinds);
  const std::wstring title = Wide(question.Title);
  const std::wstring start = Wide(question.StartFolder);
  OPENFILENAMEW asked{};
  asked.lStructSize = sizeof(asked);
  asked.hwndOwner = ToHwnd(owner);
  asked.lpstrFilter = question.Kinds.empty() ? nullptr : filter.c_str();
  asked.lpstrFile = names.data();
  asked.nMaxFile = static_cast<DWORD>(names.size());
  asked.lpstrInitialDir = start.empty() ? nullptr : start.c_str();
  asked.lpstrTitle = title.empty() ? nullptr : title.c_str();
  // A shortcut is chosen itself, not what it leads to.
  asked.Flags = OFN_EXPLORER | OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY |
                OFN_NOCHANGEDIR | OFN_NODEREFERENCELINKS;
  if (question.Several) asked.Flags |= OFN_ALLOWMULTISELECT;
  if (GetOpenFileNameW(&asked) == 0) return {.Failed = CommDlgExtendedError() != 0};
  return {.Paths = PathsOf(names)};
}

forms::FolderChoice Win32WindowSystem::AskFolder(WindowId owner,
                                                 const forms::FolderQuestion& question) {
  const std::wstring text = Wide(question.Text);
  const std::wstring start = Wide(question.StartFolder);
  wchar_t name[MAX_PATH] = {};
  BROWSEINFOW asked{};
  asked.hwndOwner = ToHwnd(owner);
  asked.pszDisplayName = name;
  asked.lpszTitle = text.c_str();
  asked.lpfn = &StartAt;
  asked.lParam = start.empty() ? 0 : reinterpret_cast<LPARAM>(start.c_str());
  const UniqueItem item(SHBrowseForFolderW(&asked));
  if (!item) return {};
  forms::FolderChoice choice{.Chosen = true, .Name = Narrow(name)};
  wchar_t path[MAX_PATH] = {};
  if (SHGetPathFromIDListW(item.Get(), path) != 0) choice.Path = Narrow(path);
  const auto* const bytes = reinterpret_cast<const char*>(item.Get());
  choice.Item.Bytes.assign(bytes, ILGetSize(item.Get()));
  return choice;
}

}  // namespace corvelle::win32
