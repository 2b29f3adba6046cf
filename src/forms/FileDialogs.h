#pragma once

#include <string>
#include <vector>

#include "platform/ShellLinks.h"

namespace corvelle::forms {

/// One line of the kinds of files in a file dialog.
struct FileKind {
  std::string Name;      // as it is shown
  std::string Patterns;  // "*.exe;*.dll"

  friend bool operator==(const FileKind&, const FileKind&) = default;
};

/// What a file dialog asks for. The files must be there.
struct FileQuestion {
  std::string Title;
  std::string StartFolder;  // empty, or one that is gone: the system's choice
  std::string File;         // what the entry shows first
  std::vector<FileKind> Kinds;
  bool Several = false;

  friend bool operator==(const FileQuestion&, const FileQuestion&) = default;
};

struct FileChoice {
  std::vector<std::string> Paths;  // none: cancelled, or the dialog failed
  bool Failed = false;             // it could not be shown, or could not give its files
};

struct FolderQuestion {
  std::string Text;         // above the tree of folders
  std::string StartFolder;  // empty, or one that is gone: the top of the tree

  friend bool operator==(const FolderQuestion&, const FolderQuestion&) = default;
};

struct FolderChoice {
  bool Chosen = false;
  std::string Path;  // empty for a folder of the shell that is on no disk
  std::string Name;  // as it is shown
  ItemIdList Item;   // the shell's name of it
};

}  // namespace corvelle::forms
