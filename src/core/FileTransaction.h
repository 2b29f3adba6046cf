#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FileSystem.h"

namespace corvelle {

/// The note that a change of several files leaves in their folder while it is carried out.
inline constexpr std::string_view kJournalFileName = "change.jnl";

/// A change of several files of one folder that takes place as a whole or not at all, even when the
/// program or the machine stops in the middle. Before the first file is touched, a journal in the
/// folder keeps what all of them held; it goes when the last one is done. What a journal is found
/// for later was cut short, and RecoverFiles takes it back.
///
/// The order of the calls does not matter: they say what the folder is to look like afterwards. A
/// file named by two of them, other than as the old name of one Rename and the target of another
/// call, gets what the last one says. Paths are full ones.
class FileTransaction {
 public:
  /// `folder` ends in a backslash. Both live as long as the transaction.
  FileTransaction(FileSystem& files, std::string_view folder) : files_(files), folder_(folder) {}

  /// The file is to hold these bytes. It keeps its marks (hidden...).
  void Write(std::string_view path, std::string bytes);
  /// The file is to go; a missing one is fine.
  void Remove(std::string_view path);
  /// What `from` holds now is to be called `to`, whatever is called so now; files can change
  /// places. The bytes move, the marks stay behind.
  void Rename(std::string_view from, std::string_view to);

  /// Does it. After a failure the files are what they were; should the disk refuse even that, the
  /// journal stays and they become so at the next Commit in this folder, or at the next start.
  /// BadName for a path that does not lie in the folder itself, NotFound for a missing file to be
  /// renamed. Failed too when files of an earlier change had to be put back first: what the caller
  /// has read of them is out of date then.
  FileStatus Commit();

 private:
  struct Step {
    std::string Path;
    std::optional<std::string> Bytes;  // nothing: the file is to go
    std::string From;                  // not empty: it takes the bytes of this file
  };

  FileSystem& files_;
  std::string folder_;
  std::vector<Step> steps_;
};

/// Takes a change that was cut short back: all its files are what they were. Called at the start,
/// before anything else looks into the folder. One that was done but for its journal stays done,
/// and one whose files hold anything else by now is left alone, as is a journal that is damaged.
/// The error is that of a disk that refused; the journal is then still there for another try.
FileStatus RecoverFiles(FileSystem& files, std::string_view folder);

}  // namespace corvelle
