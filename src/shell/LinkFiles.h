#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/CommandPorts.h"

namespace corvelle {

class ShellLinks;
struct WindowPorts;

// Links and special folders in one call each, for all windows of the program.

/// The path of a special folder (CSIDL_*) without a trailing backslash but for a root; empty when
/// it has none. Dialogs of the system belong to the strip.
[[nodiscard]] std::string GetSpecialFolder(ShellLinks& links, const WindowPorts& ports, int folder);

/// Writes a link to a program that starts in `WorkDir`, with a normal window. False on failure.
bool MakeLink(ShellLinks& links, std::string_view LnkFile, std::string_view ExeFile,
              std::string_view WorkDir);

struct LinkTarget {
  std::string ExeFile;
  std::string Args;

  friend bool operator==(const LinkTarget&, const LinkTarget&) = default;
};

/// What a link starts; nothing when it cannot be read. A link to an item without a path has an
/// empty target.
[[nodiscard]] std::optional<LinkTarget> ReadLink(ShellLinks& links, std::string_view LnkFile);

/// Links for those who only want to know where they lead.
class LinkReader final : public ShellLinksPort {
 public:
  explicit LinkReader(ShellLinks& links) : links_(links) {}
  std::string TargetOf(std::string_view linkPath) override;

 private:
  ShellLinks& links_;
};

}  // namespace corvelle
