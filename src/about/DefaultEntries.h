#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/MenuRecord.h"
#include "core/WindowPorts.h"
#include "launch/FileTitle.h"
#include "platform/FileSystem.h"

namespace corvelle {

class CodePage;
class FileAssociations;
class MessageBoxes;
class Registry;
class ShellLinks;
class StartupProgress;
struct ProgramPaths;
namespace forms {
class EventPump;
}

/// What the entries for a new user are made with. All of it outlives whoever makes them.
struct DefaultEntryParts {
  FileSystem& Files;
  const CodePage& Ansi;
  const Registry& Keys;
  ShellLinks& Links;
  FileAssociations& Associations;
  const ProgramPaths& Paths;
  const WindowPorts& Ports;
  MessageBoxes& Messages;
  const StartupProgress& Progress;
  forms::EventPump& Events;
  FileTitles Titles;
};

/// Fills the folder of the menus with buttons and menus of what the machine has, so that a new user
/// does not meet an empty bar.
class DefaultEntries final : public DefaultEntriesPort {
 public:
  explicit DefaultEntries(const DefaultEntryParts& with) : with_(with) {}

  /// Does nothing in a folder that has a menu or a single button. A failure ends it with a message;
  /// what is written by then stays.
  void IncludeCommonFiles() override;

  /// The program that opens files with this extension (without its dot); nothing when there is none
  /// or it is not on the disk. Makes a file of that kind in the program's folder for the question.
  [[nodiscard]] std::optional<std::string> GetExe(std::string_view extension);

 private:
  [[nodiscard]] FileStatus Fill();
  [[nodiscard]] FileResult<int> Count(std::string_view pattern);
  [[nodiscard]] FileStatus CopyFirstMenu();

  [[nodiscard]] FileStatus WriteSingles();
  [[nodiscard]] FileStatus WriteSingle(const MenuRecord& record);
  [[nodiscard]] FileStatus WriteProgramSingle(std::string_view extension);
  /// The programs of the user's choice in the system's settings; where there is no choice, those
  /// that the system's classes name.
  [[nodiscard]] std::optional<std::string> FindBrowser();
  [[nodiscard]] std::optional<std::string> FindMailProgram();
  /// The path, if it is that of a program that is there.
  [[nodiscard]] std::optional<std::string> IfOnDisk(std::string path);

  [[nodiscard]] FileStatus WriteMenus();
  [[nodiscard]] FileStatus WriteMenu(const std::vector<MenuRecord>& records);
  using Folders = std::vector<std::string>;
  struct Found {
    std::string Folder;
    std::string Name;
  };
  /// Where the Start menu keeps its programs: the user's folder before that of all users.
  [[nodiscard]] Folders ProgramsFolders();
  [[nodiscard]] std::vector<MenuRecord> ProgramsMenu(const Folders& folders);
  [[nodiscard]] std::vector<MenuRecord> AccessoriesMenu(const Folders& folders);
  [[nodiscard]] bool IsWorthAnItem(const Found& file);
  void AddItem(std::vector<MenuRecord>& records, const Found& file);
  /// Adds an item for each file of the folders.
  void AddFiles(std::vector<MenuRecord>& records, const Folders& folders);
  /// The files of several folders as if they were one, sorted by name. Of two with the same name
  /// the first folder's is taken.
  [[nodiscard]] std::vector<Found> FilesOf(const Folders& folders);
  /// The names of the folders in several folders, likewise.
  [[nodiscard]] std::vector<std::string> SubFoldersOf(const Folders& folders);

  /// Visible files or folders of a folder, sorted by name; none of one that cannot be listed.
  [[nodiscard]] std::vector<std::string> Names(const std::string& folder, bool folders);

  DefaultEntryParts with_;
  int BtnNum = 1;
  int MnuNum = 1;
  /// Single buttons written so far.
  int singles_ = 0;
};

}  // namespace corvelle
