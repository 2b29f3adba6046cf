#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/HelpPages.h"
#include "platform/WindowId.h"

namespace corvelle {

/// The commands that are words of the program rather than files.
class BuiltInCommandsPort {
 public:
  virtual ~BuiltInCommandsPort() = default;

  virtual void ShowNetSearch() = 0;
  virtual void FindComputer() = 0;
  virtual void MinimizeAllWindows() = 0;
  virtual void UndoMinimizeAll() = 0;
  virtual void ClearRecentDocs() = 0;
  virtual void ClearTempFolder() = 0;
  virtual void FileFind() = 0;
};

/// The user's browser and mail program. Each shows its own failures.
class BrowserPort {
 public:
  virtual ~BrowserPort() = default;

  /// Opens one web address; it may go on beside the windows, and the same address is not opened
  /// twice meanwhile. `then`, which may be empty, is told whether a browser took it.
  virtual void OpenUrl(std::string_view url, std::function<void(bool)> then) = 0;
  /// Opens one "mailto:" address.
  virtual void OpenMail(std::string_view address) = 0;

  /// A title for a dropped address, by the window that it came from or the browser's bookmarks;
  /// empty when none is found.
  virtual std::string WindowTitle(std::string_view url) = 0;
  /// The window where a drag of an address began; none when it is not known.
  virtual void NoteDropSource(WindowId window) = 0;

  /// Back to the system's browser. Beeps when the choice cannot be removed.
  virtual void UseDefaultBrowser() = 0;
  /// From now on the browser with that path, which the user chose in the window `owner`: what there
  /// is to say is said there, or by the strip once that window is gone. `then` is told true when it
  /// was taken, inside the call; false, after a message, for one that is not supported, and after a
  /// beep for a choice that cannot be saved. Where a shell link leads is asked beside the windows:
  /// then it is told later, and not at all when another choice came first.
  virtual void UseBrowser(std::string_view path, WindowId owner,
                          std::function<void(bool)> then) = 0;
};

/// The pages that explain the program, one for each matter. What the user asks for opens or is told
/// to be missing.
class HelpPort {
 public:
  virtual ~HelpPort() = default;

  /// Opens a page for the user, who asked for it. False when the pages did not come with the
  /// program, and nothing is told.
  virtual bool ShowPage(HelpPage page) = 0;
  /// Opens a page that nobody asked for; a failure is quiet.
  virtual void OfferPage(HelpPage page) = 0;
  /// The page of a window, by the window's name. Tells the user when that page is missing.
  virtual void ShowPageOf(std::string_view windowName) = 0;
};

/// Reading of shell links.
class ShellLinksPort {
 public:
  virtual ~ShellLinksPort() = default;

  /// Path of the file that a link stands for; empty when it stands for none or cannot be read.
  [[nodiscard]] virtual std::string TargetOf(std::string_view linkPath) = 0;
};

}  // namespace corvelle
