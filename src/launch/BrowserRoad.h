#pragma once

#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

namespace corvelle {

struct StartServices;

/// What is known of the user's browser, and how it wants to be asked.
struct BrowserState {
  /// Path of the browser's executable, and its DDE service and topic.
  std::string BrowserCommand;
  std::string BrowserApplication;
  std::string BrowserTopic = "WWW_OpenURL";
  /// DDE is to be tried; a plain shell execution of an address is.
  bool BrowserUseDde = false;
  bool BrowserUseShell = false;
  /// The user has chosen it in this program.
  bool OwnBrowser = false;

  /// Back to the state in which the next address looks for the browser.
  void Forget() { *this = {}; }
};

/// The files that are there for a moment so that the shell can be asked who would open them.
/// Whoever makes one holds the lock: several addresses may be on their way, each on its thread.
struct ProbeFiles {
  std::string Folder;  // with a trailing backslash
  /// A call of the shell that is held up may lead to another one on the same thread.
  std::shared_ptr<std::recursive_mutex> Lock = std::make_shared<std::recursive_mutex>();
};

/// The program that the shell would open web pages with.
[[nodiscard]] std::optional<std::string> ProgramForPages(const StartServices& services,
                                                         const ProbeFiles& probe);

/// Finds out which browser there is: the user's own choice, else the program for web pages, else
/// the one for .url files.
[[nodiscard]] BrowserState FindBrowser(const StartServices& services, const ProbeFiles& probe);

/// Opens an address as `known` says, finding the browser first when `known` says nothing, and falls
/// back step by step. Returns what is known afterwards: neither DDE nor the shell when no program
/// took the address.
[[nodiscard]] BrowserState OpenAddress(const StartServices& services, const ProbeFiles& probe,
                                       BrowserState known, std::string_view url);

}  // namespace corvelle
