#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace corvelle {

class CodePage;

/// What the command of an entry means.
enum class CommandKind {
  Empty,
  SpecialFolder,  // or an entry in one
  NetSearch,
  FindComputer,
  MinimizeAllWindows,
  UndoMinimizeAll,
  ClearRecentDocs,
  ClearTempFolder,
  FileFind,
  UrlFile,  // a file that holds a web address
  WebAddress,
  MailAddress,
  ShellLink,
  Other,  // a file, a folder, or a program with arguments
};

struct CommandForm {
  CommandKind Kind = CommandKind::Empty;
  /// The command without blanks at its ends and without the raw marker.
  std::string Text;

  friend bool operator==(const CommandForm&, const CommandForm&) = default;
};

/// The meaning of a command. A "?" in front marks raw text: it is taken off, and what follows it is
/// neither empty nor a special folder whatever it says.
[[nodiscard]] CommandForm ClassifyCommand(std::string_view command);

/// The meaning of what a .url file led to: an address, a link or a file, never another .url file.
[[nodiscard]] CommandKind ClassifyAddress(std::string_view text) noexcept;

/// The web address that the bytes of a .url file hold, if any. One inside an address of another
/// kind does not count.
[[nodiscard]] std::optional<std::string> ParseUrlFile(std::string_view bytes, const CodePage& ansi);

/// The folder in which a command starts: up to and with its last "\" when it begins with a drive;
/// else none, which is an empty text.
[[nodiscard]] std::string GetItemWorkDir(std::string_view path);

/// The folder of a link's target: up to and with its last "\"; empty without one.
[[nodiscard]] std::string LinkFolder(std::string_view target);

/// A command line as the system would take it apart.
struct CommandLineParts {
  std::string Program;  // without quotes
  std::string Arguments;

  friend bool operator==(const CommandLineParts&, const CommandLineParts&) = default;
};

/// The program of a command line and what follows it. Without quotes each blank may end the
/// program's name, tried from the left: it is the first that `exists`, unchanged or with ".exe";
/// when none does, the first word.
[[nodiscard]] CommandLineParts SplitCommandLine(
    std::string_view line, const std::function<bool(const std::string&)>& exists);

/// The text in double quotes.
[[nodiscard]] std::string Quoted(std::string_view text);

/// The file or folder of the disk that a command leads to, to be looked for, in the order of
/// trying: without quotes one of several may be the program, and what follows it its arguments.
/// None for what is not on a disk by its own path (web addresses, folders of the shell, built-in
/// words, programs that the system finds by their name), and for raw text, which is not checked.
[[nodiscard]] std::vector<std::string> TargetsOf(std::string_view command);

/// The drive or the server of a full path, in capital letters: "C:" or "\\\\SERVER". What the
/// answer to a question about the path depends on (Lookup::Lane).
[[nodiscard]] std::string DriveOf(std::string_view path);

}  // namespace corvelle
