#pragma once

#include <string>
#include <utility>
#include <vector>

#include "core/MenuRecord.h"

namespace corvelle {

class CodePage;

/// A menu file in which folder items are replaced by what they hold, as it grows from the first
/// record to the last.
class GeneratedMenu {
 public:
  GeneratedMenu(std::vector<MenuRecord> source, const CodePage& ansi)
      : source_(std::move(source)), ansi_(ansi) {}

  [[nodiscard]] const std::vector<MenuRecord>& Source() const noexcept { return source_; }
  [[nodiscard]] int SourceCount() const noexcept { return static_cast<int>(source_.size()); }

  /// Copies the source's records that have not been taken yet, up to number `last`.
  void CopySource(int last);
  /// Copies what stands before folder item `record` and takes the item itself away.
  void BeginItem(int record);

  /// Adds an entry of the folder item at `record`, and a rule between two folders of one. Its title
  /// is cut as its field in a file would; `name`: see EntryOrigin. False when record numbers end.
  bool AddEntry(int record, MenuRecord entry, std::string name = {});
  void AddRule();

  /// How many records there are so far.
  [[nodiscard]] int Count() const noexcept { return static_cast<int>(records_.size()); }
  [[nodiscard]] bool IsFull() const noexcept { return Count() >= kMaxRecords; }
  [[nodiscard]] const std::vector<MenuRecord>& Records() const noexcept { return records_; }
  /// What each of the records stands for.
  [[nodiscard]] const std::vector<EntryOrigin>& Origins() const noexcept { return origins_; }

 private:
  void Add(MenuRecord record, EntryOrigin origin);

  std::vector<MenuRecord> source_;
  const CodePage& ansi_;
  int nextSource_ = 1;
  std::vector<MenuRecord> records_;
  std::vector<EntryOrigin> origins_;
};

/// The bytes of the generated file: each title carries the number of the record that it stands for
/// (see JoinTitle), and is cut to make room for it. Left out is what would mean another file
/// because its command does not fit into its field.
[[nodiscard]] std::string GeneratedBytes(const std::vector<MenuRecord>& records,
                                         const std::vector<EntryOrigin>& origins,
                                         const CodePage& ansi);

}  // namespace corvelle
