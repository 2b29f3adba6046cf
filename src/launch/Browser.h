#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/CommandPorts.h"
#include "platform/WindowId.h"

namespace corvelle {

class Program;

/// The way to the user's browser and mail program. It talks to the browser by DDE where it can and
/// falls back step by step to the shell. Every step is quiet but the last one of each routine.
class Browser final : public BrowserPort {
 public:
  explicit Browser(Program& program) : program_(program) {}

  /// Path of the browser's executable, and its DDE service and topic.
  std::string BrowserCommand;
  std::string BrowserApplication;
  std::string BrowserTopic = "WWW_OpenURL";
  /// DDE is to be tried; a plain shell execution of an address is.
  bool BrowserUseDde = false;
  bool BrowserUseShell = false;
  /// Folder of the bookmark file, with a trailing backslash, or empty while it is not known.
  std::string BookmarkDir;
  /// The window where the last drag of an address began.
  WindowId DropSourceWindow = kNoWindow;
  bool DropSourceKnown = false;

  /// Finds out which browser there is and how it wants to be asked: the user's own choice, else the
  /// program for web pages, else the one for .url files.
  void InitBrowser();

  bool OpenUrl(std::string_view url) override;
  void OpenMail(std::string_view address) override;
  std::string WindowTitle(std::string_view url) override;
  void NoteDropSource(WindowId window) override;
  void UseDefaultBrowser() override;
  bool UseBrowser(std::string_view path) override;

  /// The title of the address in the user's bookmark file; empty without one.
  [[nodiscard]] std::string BookmarkTitle(std::string_view url);

  /// True if a browser of the kind that keeps a bookmark file is open besides `window`. Always
  /// false where none is installed.
  [[nodiscard]] bool IsNetscapeOnTop(WindowId window);

 private:
  [[nodiscard]] std::string PathOf(std::string_view name) const;
  /// The program that the shell would open web pages with.
  [[nodiscard]] std::optional<std::string> ProgramForPages();
  [[nodiscard]] std::string ServiceName();
  bool StartBrowser(std::string_view url, std::string_view folder);
  /// True when the shell has started it, or when the user has refused that: nothing else is tried.
  [[nodiscard]] bool Open(std::string_view file,
                          std::optional<std::string_view> parameters = std::nullopt,
                          std::optional<std::string_view> folder = std::nullopt);
  /// True if the user has chosen another browser in the system's settings than the one that was
  /// found. A browser chosen in this program is the user's choice.
  [[nodiscard]] bool AnotherIsChosen();
  void OpenByDde(std::string_view url);
  void OpenByShell(std::string_view url);
  void ShowBrowserError();
  /// Back to the state in which the next address looks for the browser.
  void ForgetBrowser();

  [[nodiscard]] bool IsOwnWindow(WindowId window) const;
  [[nodiscard]] std::optional<std::string> TitleOfDropSource(std::string_view url);
  [[nodiscard]] std::string TitleOfAnyBrowser(std::string_view url);
  void FindBookmarkDir();
  [[nodiscard]] std::string FolderOfOnlyUser();

  Program& program_;
  bool ownBrowser_ = false;
  std::optional<bool> netscapeKnown_;
  WindowId notedNetscape_ = kNoWindow;
};

}  // namespace corvelle
