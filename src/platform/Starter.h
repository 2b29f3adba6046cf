#pragma once

#include <functional>

namespace corvelle {

class CodePage;
class DdeClient;
class FileAssociations;
class FileSystem;
class Registry;
class ShellExec;
class ShellFolders;
class ShellIcons;
class ShellLinks;

/// Services of the thread that starts something; nobody else uses them.
struct StartServices {
  ShellExec& Shell;
  FileSystem& Files;
  ShellLinks& Links;
  DdeClient& Dde;
  FileAssociations& Associations;
  Registry& Keys;
  ShellFolders& Folders;
  ShellIcons& Icons;
  const CodePage& Ansi;
};

/// Starting programs and documents takes as long as their disk, their server and the system's
/// checks do; it goes on beside the windows.
class Starter {
 public:
  using Work = std::function<void(const StartServices&)>;

  virtual ~Starter() = default;

  /// Runs `work` on a thread of its own, and when it is over `done` on the thread of the windows:
  /// by an event of its own, so that a message shown there holds up nothing else. What is started
  /// may come to the foreground. `work` holds values of its own only. When the program ends first
  /// nobody waits for the work, and `done` is not called. Without a thread to be had both run
  /// inside this call.
  virtual void Start(Work work, std::function<void()> done) = 0;
};

}  // namespace corvelle
