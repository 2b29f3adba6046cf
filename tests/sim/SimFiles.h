#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/FileSystem.h"
#include "sim/CallCosts.h"
#include "sim/SimPaths.h"

namespace corvelle::sim {

/// A disk that behaves as one of Windows, over real files in a temporary folder that goes with the
/// object. Drive C: is there from the start. Tests set it up and ask it; what they do themselves is
/// neither logged nor made to fail.
class SimFiles final : public FileSystem, public Priced {
 public:
  /// One operation as the program asked for it.
  struct Call {
    std::string Operation;  // name of the port's routine
    std::string Path;
    std::string Other;  // second path or pattern, if the routine has one

    friend bool operator==(const Call&, const Call&) = default;
  };

  /// How another program holds a file open.
  enum class Hold {
    Exclusively,  // nobody can so much as read it
    ForReading,   // it can be read, but not written, renamed or removed
  };

  SimFiles();
  ~SimFiles() override;
  SimFiles(const SimFiles&) = delete;
  SimFiles& operator=(const SimFiles&) = delete;

  // Setting up and asking. Paths as the program writes them. A path that the disk cannot hold ends
  // the test program with a word: the test itself is wrong then.
  void AddDrive(char letter);
  void SetCurrentFolder(std::string_view folder);
  void MakeFolders(std::string_view path);
  /// Writes a file and makes the folders on its way.
  void Put(std::string_view path, std::string_view bytes);
  /// Makes empty files of an existing folder, whose names are new there. For many files at once.
  void PutNew(std::string_view folder, const std::vector<std::string>& names);
  /// The content of a file; nothing when it is missing.
  [[nodiscard]] std::optional<std::string> Get(std::string_view path) const;
  /// Of a path that the disk cannot hold there is nothing.
  [[nodiscard]] bool Has(std::string_view path) const;
  /// Grows with every change of a file or folder, whoever made it. What was found out about the
  /// disk is true as long as this stays the same.
  [[nodiscard]] int Changes() const noexcept { return changes_; }
  /// Names in a folder in the order of their bytes, in the disk's case.
  [[nodiscard]] std::vector<std::string> Names(std::string_view folder) const;
  void SetReadOnly(std::string_view path, bool readOnly);
  void SetHidden(std::string_view path, bool hidden);
  void SetSystem(std::string_view path, bool system);
  void SetTemporary(std::string_view path, bool temporary);
  /// Makes a link that stands for another folder and what is in it.
  void LinkFolder(std::string_view link, std::string_view target);
  /// Gives an existing file or folder a short name beside its own. None has one at first, as on a
  /// volume that keeps none.
  void GiveShortName(std::string_view path, std::string_view shortName);
  void HoldOpen(std::string_view path, Hold hold = Hold::Exclusively);
  void LetGo(std::string_view path);
  /// Takes the right to change anything in a folder and below it, or gives it back.
  void Protect(std::string_view folder, bool isProtected = true);
  /// Takes a file or folder with all that is in it away, as another program would.
  void Vanish(std::string_view path);

  // Faults.
  /// Makes the n-th operation from now (1: the next one) fail, whichever it is. A question is then
  /// answered as if nothing were there. DiskFull lets a writer write half of its bytes.
  void FailCall(int n, FileError error = FileError::Failed);
  /// Makes that operation and all after it fail, as if the program had ended there.
  void FailFrom(int n, FileError error = FileError::Failed);
  /// True if the operation to fail has come.
  [[nodiscard]] bool Hit() const { return hit_; }
  void StopFailing();
  /// Leaves this many bytes free; deleting gives back what it frees.
  void FillDisk(std::uint64_t bytesLeft);
  void FreeDisk() { bytesLeft_.reset(); }

  /// Runs before each operation of the program, which the disk then carries out or not.
  void BeforeEachCall(std::function<void(const Call&)> action) { beforeCall_ = std::move(action); }

  // The log.
  [[nodiscard]] const std::vector<Call>& Log() const { return log_; }
  [[nodiscard]] int Count(std::string_view operation) const;
  [[nodiscard]] int Reads() const { return Count("Read"); }
  void ClearLog() { log_.clear(); }

  // The port.
  bool FileExists(std::string_view path) override;
  bool FolderExists(std::string_view path) override;
  FileResult<std::vector<FileEntry>> List(std::string_view folder,
                                          std::string_view pattern) override;
  FileResult<std::uint64_t> Length(std::string_view path) override;
  FileResult<std::string> Read(std::string_view path, std::uint64_t offset,
                               std::size_t count) override;
  FileStatus Write(std::string_view path, std::string_view bytes) override;
  FileStatus WriteAt(std::string_view path, std::uint64_t offset, std::string_view bytes) override;
  FileStatus Replace(std::string_view path, std::string_view bytes) override;
  FileStatus ReplaceUnflushed(std::string_view path, std::string_view bytes) override;
  FileStatus Flush(std::string_view path) override;
  FileStatus Remove(std::string_view path) override;
  FileStatus ClearAttributes(std::string_view path) override;
  FileStatus Rename(std::string_view from, std::string_view to) override;
  FileStatus Copy(std::string_view from, std::string_view to) override;
  FileStatus MakeFolder(std::string_view path) override;
  std::string LongPath(std::string_view path) override;
  std::string ShortPath(std::string_view path) override;

 private:
  /// Where a path leads to on the host.
  struct Place {
    SimPath Path;
    std::filesystem::path Host;  // an existing entry, or where it would be made
    std::string Key;             // names it in the maps below
    bool Exists = false;
    bool IsFolder = false;
    bool ParentExists = false;

    [[nodiscard]] bool IsFile() const { return Exists && !IsFolder; }
  };

  struct Attributes {
    bool ReadOnly = false;
    bool Hidden = false;
    bool System = false;
    bool Temporary = false;
  };

  [[nodiscard]] FileResult<Place> Find(std::string_view path) const;
  /// The entry of a folder on the host that has that short name; empty when none has.
  [[nodiscard]] std::filesystem::path FindShort(const std::filesystem::path& folder,
                                                std::string_view name) const;
  /// For the test's own doings.
  [[nodiscard]] Place MustFind(std::string_view path) const;
  /// A file that can be opened for reading.
  [[nodiscard]] FileResult<Place> FindReadable(std::string_view path) const;
  /// A file, or the place for one, that can be opened for writing.
  [[nodiscard]] FileResult<Place> FindWritable(std::string_view path) const;

  /// Logs an operation; the error that it is to fail with, if any.
  std::optional<FileError> Enter(std::string_view operation, std::string_view path,
                                 std::string_view other = {});
  [[nodiscard]] Attributes AttributesOf(const std::string& key) const;
  [[nodiscard]] bool IsHeld(const std::string& key) const { return held_.contains(key); }
  [[nodiscard]] bool IsProtected(const std::string& key) const;
  [[nodiscard]] bool HoldsSomethingIn(const std::string& folderKey) const;
  void MoveAttributes(const std::string& from, const std::string& to);

  FileStatus ReplaceAs(std::string_view operation, std::string_view path, std::string_view bytes);
  /// Makes `content` that of a file within the space left, all or a part.
  FileStatus Store(const Place& place, std::string_view content);
  void WriteHost(const std::filesystem::path& host, std::string_view bytes);
  FileStatus FailWrite(FileError error, std::string_view path, std::uint64_t offset,
                       std::string_view bytes, bool cut);

  std::filesystem::path root_;
  std::string currentFolder_ = "C:\\";
  std::map<std::string, Attributes> attributes_;
  std::map<std::string, Hold> held_;
  std::map<std::filesystem::path, std::string> shortNames_;
  std::set<std::string> protected_;  // folders
  std::optional<std::uint64_t> bytesLeft_;
  int failIn_ = 0;
  bool failOn_ = false;
  bool hit_ = false;
  FileError failWith_ = FileError::Failed;
  std::vector<Call> log_;
  std::function<void(const Call&)> beforeCall_;
  int changes_ = 0;
};

}  // namespace corvelle::sim
