#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/CommandPorts.h"
#include "core/LaunchParts.h"
#include "forms/Alive.h"
#include "launch/BrowserRoad.h"
#include "platform/WindowId.h"

namespace corvelle {

class CodePage;
class DesktopWindows;
class FileSystem;
class Input;
struct ProgramPaths;
namespace desk {
class AnswerDesk;
}

/// What the way to the browser works with. All of it outlives it.
struct BrowserParts {
  desk::AnswerDesk& Answers;
  FileSystem& Files;
  const CodePage& Ansi;
  const DesktopWindows& Desktop;
  Input& Pointer;
  const ProgramPaths& Paths;
  const std::string& Title;
  const LaunchParts& Launch;
};

/// The way to the user's browser and mail program. It talks to the browser by DDE where it can and
/// falls back step by step to the shell. Every step is quiet but the last one of each routine. What
/// may take its time (other programs, the disk) goes on beside the windows; see StartBeside.
class Browser final : public BrowserPort, public BrowserState {
 public:
  explicit Browser(const BrowserParts& with) : with_(with) {}
  Browser(const Browser&) = delete;
  Browser& operator=(const Browser&) = delete;
  ~Browser() override;

  /// Folder of the bookmark file, with a trailing backslash, or empty while it is not known.
  std::string BookmarkDir;
  /// The window where the last drag of an address began.
  WindowId DropSourceWindow = kNoWindow;
  bool DropSourceKnown = false;

  /// Begins to find out which browser there is and how it wants to be asked: the user's own choice,
  /// else the program for web pages, else the one for .url files.
  void InitBrowser();

  void OpenUrl(std::string_view url, std::function<void(bool)> then) override;
  void OpenMail(std::string_view address) override;
  std::string WindowTitle(std::string_view url) override;
  void NoteDropSource(WindowId window) override;
  void UseDefaultBrowser() override;
  void UseBrowser(std::string_view path, WindowId owner, std::function<void(bool)> then) override;

  /// The title of the address in the user's bookmark file; empty without one, or when the disk does
  /// not answer at once.
  [[nodiscard]] std::string BookmarkTitle(std::string_view url);

  /// True if a browser of the kind that keeps a bookmark file is open besides `window`. Always
  /// false where none is installed, and when it cannot be found out at once.
  [[nodiscard]] bool IsNetscapeOnTop(WindowId window);

 private:
  /// Takes over what was found out, unless the user has chosen a browser since `choices`.
  void Learn(const BrowserState& found, int choices);
  void ShowBrowserError();
  /// False, and a message, for a program that is not supported; false, and a beep, for a choice
  /// that cannot be saved.
  bool TakeBrowser(const std::string& command, WindowId owner);
  /// Back to the state in which the next address looks for the browser.
  void ForgetBrowser();
  /// Where the files for a moment go; the folder is known when the program has started.
  [[nodiscard]] const ProbeFiles& Probe();

  [[nodiscard]] bool IsOwnWindow(WindowId window) const;
  [[nodiscard]] std::optional<std::string> TitleOfDropSource(std::string_view url);
  [[nodiscard]] std::string TitleOfAnyBrowser(std::string_view url);

  BrowserParts with_;
  ProbeFiles probe_;
  int choices_ = 0;
  std::uint64_t linkOwner_ = 0;  // of the question where a chosen link leads
  std::optional<bool> netscapeKnown_;
  WindowId notedNetscape_ = kNoWindow;
  forms::Alive alive_;
};

}  // namespace corvelle
