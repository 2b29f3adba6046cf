#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "platform/FileSystem.h"
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
};

/// A question whose answer may be slow.
struct Lookup {
  LookupKind Kind = LookupKind::IsThere;
  std::string Path;
  std::string Pattern = "*";  // of FolderEntries
  /// What the answer depends on: a drive, a server... Questions of one lane are answered one after
  /// another, in their order.
  std::string Lane;
  /// For whom it is asked: a menu that was opened, a tree that was filled. See Lookups::Drop.
  std::uint64_t Generation = 0;
};

enum class LookupEnd {
  Answered,
  Failed,   // the disk or the shell refused
  Dropped,  // nobody wants to know any more
};

using LookupValue =
    std::variant<std::monostate, bool, std::vector<FileEntry>, std::string, DriveFacts>;

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
/// order in which they came about, by a turn of the message loop: never inside Ask or Drop, and
/// never while the listener is still at work. All calls are made on the thread of the windows.
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
};

}  // namespace corvelle
