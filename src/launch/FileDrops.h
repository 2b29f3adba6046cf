#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/RecordEdits.h"
#include "launch/FileTitle.h"

namespace corvelle {

struct GuardFlags;
struct WindowPorts;

/// What writing entries for dropped files works with. All of it outlives it.
struct FileDropParts {
  FileSystem& Files;
  const CodePage& Ansi;
  FileTitles Titles;
  GuardFlags& Guards;
  const WindowPorts& Ports;
};

/// Files that another program drops on a menu or a button become entries of its menu file. While
/// they are written nobody else rewrites one, and the edit is told of
/// (WindowPorts::TellMenusEdited).
class FileDrops {
 public:
  explicit FileDrops(const FileDropParts& with) : with_(with) {}

  struct Written {
    EditOutcome Outcome = EditOutcome::NothingToDo;
    std::vector<std::string> Refused;  // files that no record can hold
  };

  /// Before record `position` of the file; see InsertDropped.
  [[nodiscard]] Written Insert(const std::string& file, int position,
                               std::vector<std::string> names) const;
  /// Behind the last record of the file.
  [[nodiscard]] Written Append(const std::string& file, std::vector<std::string> names) const;

 private:
  [[nodiscard]] DroppedEntries EntriesOf(std::vector<std::string> names) const;
  [[nodiscard]] Written Told(const EditOutcome& outcome, DroppedEntries entries) const;

  FileDropParts with_;
};

}  // namespace corvelle
