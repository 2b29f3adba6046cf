#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "platform/FileSystem.h"
#include "platform/IconPixels.h"
#include "platform/ShellFolders.h"
#include "platform/ShellIcons.h"
#include "platform/SystemInfo.h"

namespace corvelle {

/// Names a question that was asked. Never 0, and never used twice.
using LookupId = std::uint64_t;

enum class LookupKind {
  IsThere,        // whether a file or folder of that path exists: bool
  FolderEntries,  // what FileSystem::List gives for the path and the pattern
  Drive,          // what SystemInfo::FactsOfDrive gives for the root: DriveFacts
  DriveAtHand,    // what SystemInfo::IsDriveAtHand tells of the root: bool
  LinkTarget,     // where the shell link of that path leads: std::string, empty without a path
  FileName,       // the name by which the shell shows a file or folder: std::string
  FileNames,      // the names by which the shell shows files of the folder Path, one to a line of
                  // Pattern (each with a line feed): a list of entries in that order
  FileIcon,       // the icon that the shell shows for a file or folder: IconPixels
  IconInFile,     // icon `Number` of an icon file, at `Size`: IconPixels
  ShellFolder,    // folder `Number` of the shell as an entry: one ShellFolderEntry in a list
  ShellEntries,   // what folder `Number` of the shell holds: std::vector<ShellFolderEntry>
  ShellIcon,      // icon of the entry `Path` of folder `Number`, of the folder itself when it is
                  // empty: IconPixels
  ShortPaths,     // what FileSystem::ShortPath gives for files of the folder Path, named as for
                  // FileNames: a list of entries in that order, empty for what it refuses
  IconCount,      // how many icons a file holds: int
  IconTarget,     // LinkTarget for the icon of the link: fails where the link lies in a cloud
};

/// A question whose answer may be slow.
struct Lookup {
  LookupKind Kind = LookupKind::IsThere;
  std::string Path;
  std::string Pattern = "*";  // of FolderEntries, FileNames and ShortPaths
  int Number = 0;             // of IconInFile, and the folders of the shell by their CSIDL number
  IconList List = IconList::Small;  // of FileIcon and ShellIcon
  int Size = kSmallIconSize;        // of IconInFile, pixels
  /// What the answer depends on: a drive, a server... Questions of one lane are answered one after
  /// another, in their order. What follows a "#" only tells a lane from another that hangs.
  std::string Lane;
  /// For whom it is asked: a menu that was opened, a tree that was filled. See Lookups::Drop.
  std::uint64_t Generation = 0;
};

enum class LookupEnd {
  Answered,
  Failed,   // the disk or the shell refused
  Dropped,  // nobody wants to know any more
};

using LookupValue = std::variant<std::monostate, bool, std::vector<FileEntry>, std::string,
                                 DriveFacts, IconPixels, std::vector<ShellFolderEntry>, int>;

struct LookupAnswer {
  LookupId Id = 0;
  LookupEnd End = LookupEnd::Answered;
  LookupValue Value;                    // of an answer
  FileError Error = FileError::Failed;  // of a failure
};

/// Questions to the disk and the shell that must not hold up the windows. Questions and answers are
/// values. A lane that hangs holds up only itself; as many as 16 may hang before others wait too.
///
/// Each question ends exactly once. Ends are told to the listener, several at a time and in the
/// order in which they came about, by a turn of the message loop or by Collect: never inside Ask,
/// Drop or Cancel, and never while the listener is still at work. All calls are made on the thread
/// of the windows.
class Lookups {
 public:
  using Listener = std::function<void(const std::vector<LookupAnswer>&)>;

  virtual ~Lookups() = default;

  /// Who is told from now on. Without a listener, as at first, ends are told to nobody.
  virtual void SetListener(Listener listener) = 0;

  [[nodiscard]] virtual LookupId Ask(Lookup question) = 0;

  /// Ends all questions of that generation that have not been told of yet as Dropped, also one
  /// that is being answered just now: its lane stays busy until the system comes back.
  virtual void Drop(std::uint64_t generation) = 0;

  /// Tries to bring the system back from a question that is being answered; when that helps, the
  /// question ends as Failed. It need not help, and does nothing to any other question.
  virtual void Cancel(LookupId id) = 0;

  /// Tells the listener of all ends there are now, inside this call; when there are none, waits for
  /// the first for at most so many milliseconds. No events run meanwhile. False when there was
  /// nothing to tell. Does nothing while the listener is at work.
  virtual bool Collect(int milliseconds) = 0;
};

}  // namespace corvelle
