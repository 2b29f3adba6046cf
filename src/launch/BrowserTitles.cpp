#include <utility>
#include <vector>

#include "base/Text.h"
#include "core/Program.h"
#include "launch/Browser.h"
#include "launch/BrowserRules.h"
#include "launch/RegistryValue.h"
#include "launch/StartBeside.h"
#include "platform/DesktopWindows.h"
#include "platform/FileSystem.h"
#include "platform/Registry.h"

namespace corvelle {

namespace {

constexpr std::string_view kUsersKey = "SOFTWARE\\Netscape\\Netscape Navigator\\Users";
constexpr std::string_view kBookmarkFiles[] = {"bookmark.htm", "bookmark.html"};
// No list of bookmarks that a person keeps is longer.
constexpr std::size_t kBookmarkLimit = 16'777'216;
constexpr std::size_t kChoiceLimit = 65536;
// What is looked for, among all that is under way; no entry can bear such a text.
constexpr std::string_view kBookmarks = "\"\"bookmarks";
constexpr std::string_view kOtherBrowser = "\"\"other browser";

std::string CaptionOf(const DesktopWindows& desktop, WindowId window) {
  const std::string text = desktop.Text(window);
  return text.substr(0, text.find('\0'));
}

/// A title, and the folder of the file that told it or would tell it; each empty when not known.
struct Bookmark {
  std::string Folder;
  std::string Title;
};

/// The folder of the one user that the browser knows, beside its program; empty when there are
/// more.
std::string FolderOfOnlyUser(const StartServices& services, const ProbeFiles& probe) {
  const std::string browser = ProgramForPages(services, probe).value_or("");
  if (!ContainsNoCase(browser, "netscape.exe")) return {};
  for (const std::string& users : UsersFolders(browser)) {
    const auto entries = services.Files.List(users, "*");
    if (!entries) continue;
    std::vector<std::string> found;
    for (const FileEntry& entry : *entries) {
      if (entry.IsFolder) found.push_back(users + entry.Name);
    }
    if (found.size() == 1) return found.front();
  }
  return {};
}

/// With a trailing backslash; empty when it is not known.
std::string FindBookmarkDir(const StartServices& services, const ProbeFiles& probe) {
  std::string folder;
  std::string user;
  if (ReadRegistryValue(services.Keys, RegistryRoot::LocalMachine, kUsersKey, "CurrentUser",
                        user)) {
    const std::string userKey = std::string(kUsersKey) + "\\" + user;
    // Without that value there is no folder yet.
    static_cast<void>(
        ReadRegistryValue(services.Keys, RegistryRoot::LocalMachine, userKey, "DirRoot", folder));
  }
  if (folder.empty()) folder = FolderOfOnlyUser(services, probe);
  if (folder.empty()) {
    const auto bytes = services.Files.Read(probe.Folder + "openurl.ini", 0, kChoiceLimit);
    if (bytes) folder = ParseBookmarkFolder(*bytes, services.Ansi);
  }
  return folder.empty() ? folder : EnsureBackslash(folder);
}

Bookmark FindBookmark(const StartServices& services, const ProbeFiles& probe, std::string folder,
                      std::string_view url) {
  if (folder.empty()) folder = FindBookmarkDir(services, probe);
  Bookmark found{.Folder = std::move(folder), .Title = {}};
  if (found.Folder.empty()) return found;
  for (const std::string_view name : kBookmarkFiles) {
    const auto bytes = services.Files.Read(found.Folder + std::string(name), 0, kBookmarkLimit);
    if (!bytes) continue;
    found.Title = ParseBookmarkTitle(*bytes, url, services.Ansi);
    break;
  }
  return found;
}

bool IsShownByItself(const DesktopWindows& desktop, WindowId window) {
  return desktop.IsVisible(window) && !desktop.HasOwner(window);
}

}  // namespace

void Browser::NoteDropSource(WindowId window) {
  DropSourceWindow = window;
  DropSourceKnown = window != kNoWindow;
}

std::string Browser::WindowTitle(std::string_view url) {
  const std::string address(url);
  if (BrowserApplication.empty()) InitBrowser();  // for the addresses to come
  if (auto title = TitleOfDropSource(address)) return *std::move(title);
  return TitleOfAnyBrowser(address);
}

bool Browser::IsOwnWindow(WindowId window) const {
  const ToolbarPort* strip = program_.Ports.Toolbar;
  return strip != nullptr &&
         (window == strip->WindowHandle() || window == strip->ButtonBoxHandle() ||
          window == strip->SingleBoxHandle());
}

// Nothing when the drag tells nothing.
std::optional<std::string> Browser::TitleOfDropSource(std::string_view url) {
  const DesktopWindows& desktop = program_.Services.Desktop;
  if (!DropSourceKnown || desktop.HasOwner(DropSourceWindow) || IsOwnWindow(DropSourceWindow)) {
    return std::nullopt;
  }
  const std::string caption = Trim(CaptionOf(desktop, DropSourceWindow));
  if (caption.empty()) return std::nullopt;
  DropSourceKnown = false;
  if (IsBookmarkCaption(caption)) {
    std::string title = BookmarkTitle(url);
    if (!title.empty()) return title;
  }
  return PageTitle(caption);
}

std::string Browser::TitleOfAnyBrowser(std::string_view url) {
  const DesktopWindows& desktop = program_.Services.Desktop;
  // The file says the same for every window.
  bool bookmarksAsked = false;
  for (const WindowId window : desktop.TopLevel()) {
    if (!IsShownByItself(desktop, window) || desktop.IsMinimized(window)) continue;
    const std::string caption = CaptionOf(desktop, window);
    if (caption.empty() || caption == program_.Title) continue;
    if (IsBookmarkCaption(caption) && !bookmarksAsked) {
      bookmarksAsked = true;
      std::string title = BookmarkTitle(url);
      if (!title.empty()) return title;
    }
    const bool browser = ContainsNoCase(caption, "Explorer") || ContainsNoCase(caption, "Netscape");
    if (browser && caption.find('-') != std::string::npos) return PageTitle(caption);
  }
  return {};
}

bool Browser::IsNetscapeOnTop(WindowId window) {
  if (!netscapeKnown_) {
    netscapeKnown_ = AtOnce<bool>(
        program_.Starts, std::string(kOtherBrowser),
        [probe = Probe()](const StartServices& services) {
          return services.Keys.Value(RegistryRoot::LocalMachine, kUsersKey, "CurrentUser") ||
                 ContainsNoCase(ProgramForPages(services, probe).value_or(""), "Netscape");
        });
  }
  if (!netscapeKnown_.value_or(false)) return false;
  const DesktopWindows& desktop = program_.Services.Desktop;
  for (const WindowId other : desktop.TopLevel()) {
    if (!IsShownByItself(desktop, other)) continue;
    const std::string caption = CaptionOf(desktop, other);
    if (ContainsNoCase(caption, "Bookmarks") && !desktop.IsMinimized(other) &&
        other != notedNetscape_) {
      return true;
    }
    if (!ContainsNoCase(caption, "Netscape")) continue;
    if (other != window) return true;
    notedNetscape_ = other;
  }
  return false;
}

std::string Browser::BookmarkTitle(std::string_view url) {
  const auto found = AtOnce<Bookmark>(program_.Starts, std::string(kBookmarks),
                                      [probe = Probe(), folder = BookmarkDir,
                                       address = std::string(url)](const StartServices& services) {
                                        return FindBookmark(services, probe, folder, address);
                                      });
  if (!found) return {};
  BookmarkDir = found->Folder;
  return found->Title;
}

}  // namespace corvelle
