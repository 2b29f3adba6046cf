#pragma once

#include <string>
#include <string_view>

namespace corvelle {

class CodePage;
class FileSystem;
class ShellLinksPort;
struct LaunchParts;

// What is chosen is started here, and nothing that waits comes before it. Files, links and command
// lines are started beside the windows (see Starter): the call returns before it is known how that
// ends, a failure is told later, and the same entry is not started a second time meanwhile.
// Messages let events run, so whoever calls must be ready for anything to have happened.

/// Carries out the command of an entry, whatever its form. Failures that the user should know of
/// are shown. Returns the command as it was run: trimmed and without its raw marker.
std::string LaunchItem(const LaunchParts& with, std::string_view command);

/// Opens a file that was dropped on an entry with the entry's command, and gives the pointer its
/// normal shape.
void OpenWithItem(const LaunchParts& with, std::string_view droppedFile, std::string_view target);

/// The web address that a .url file holds, or the path itself when it holds none.
[[nodiscard]] std::string ReadUrlFile(FileSystem& files, const CodePage& ansi,
                                      std::string_view path);

/// The folder of a shell link's target; sets `target` to the target. Both are empty when the link
/// cannot be read, or `links` is null.
[[nodiscard]] std::string GetLinkWorkDir(ShellLinksPort* links, std::string_view linkPath,
                                         std::string& target);

}  // namespace corvelle
