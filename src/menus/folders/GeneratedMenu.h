#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "menus/items/MenuItem.h"

namespace corvelle {

class CodePage;

/// A menu file in which folder items are replaced by what they hold, as it grows from the first
/// record to the last.
class GeneratedMenu {
 public:
  GeneratedMenu(std::vector<MenuRecord> source, const CodePage& ansi)
      : source_(std::move(source)), ansi_(ansi) {}

  [[nodiscard]] const std::vector<MenuRecord>& Source() const& noexcept { return source_; }
  [[nodiscard]] int SourceCount() const noexcept { return static_cast<int>(source_.size()); }

  /// Copies the source's records that have not been taken yet, up to number `last`.
  void CopySource(int last);
  /// Copies what comes before folder item `record` and takes the item itself away.
  void BeginItem(int record);

  /// So many entries are to come.
  void Expect(std::size_t entries);
  /// Adds an entry of the folder item at `record`, and a rule between two folders of one. Its title
  /// is cut as its field in a file would; `name`: see EntryOrigin. False when record numbers end.
  bool AddEntry(int record, MenuRecord entry, std::string name = {});
  void AddRule();

  /// Adds folder item `record` itself, whose title says how far its folder is known.
  void AddWaiting(int record, FolderState state);
  /// Adds an entry that the menu had when it was built before.
  void AddKept(int record, MenuItem entry);

  /// How many records there are so far.
  [[nodiscard]] int Count() const noexcept { return static_cast<int>(items_.size()); }
  [[nodiscard]] bool IsFull() const noexcept { return Count() >= kMaxRecords; }
  /// All of them, each with the record that it stands for.
  [[nodiscard]] const std::vector<MenuItem>& Items() const& noexcept { return items_; }
  [[nodiscard]] std::vector<MenuItem> Items() && noexcept { return std::move(items_); }
  [[nodiscard]] std::vector<MenuRecord> Source() && noexcept { return std::move(source_); }

 private:
  void Add(MenuItem item);

  std::vector<MenuRecord> source_;
  const CodePage& ansi_;
  int nextSource_ = 1;
  std::vector<MenuItem> items_;
};

/// What a folder item's title says of its folder while nothing of it can be shown.
[[nodiscard]] std::string_view WaitingText(FolderState state) noexcept;

/// The entries of folder item `record` in the bytes of a generated file; none where they come from
/// another folder than that of its command.
[[nodiscard]] std::vector<MenuItem> EntriesInGenerated(std::string_view bytes, int record,
                                                       std::string_view command,
                                                       const CodePage& ansi);

/// The bytes of the generated file: each title carries the number of the record that it stands for
/// (see JoinTitle), and is cut to make room for it. Left out is what would mean another file
/// because its command does not fit into its field. `source`: the records of the menu file, whose
/// icons and commands are copied with all that they hold.
[[nodiscard]] std::string GeneratedBytes(const std::vector<MenuItem>& items,
                                         const std::vector<MenuRecord>& source,
                                         const CodePage& ansi);

}  // namespace corvelle
