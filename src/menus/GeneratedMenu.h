#pragma once

#include <string>
#include <utility>
#include <vector>

#include "core/MenuRecord.h"

namespace corvelle {

class CodePage;

/// The copy of a menu file in which folder items are replaced by what they hold, as it grows from
/// the first record to the last. Each title carries the number of the record that it stands for;
/// see JoinTitle.
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

  /// False for an entry of this command when record numbers end, or when the command does not fit
  /// into its field and would mean another file.
  [[nodiscard]] bool Takes(const std::string& command) const;
  /// Adds an entry of the folder item at `record`, and a rule between two folders of one. False
  /// when the file does not take it.
  bool AddEntry(int record, const std::string& title, const std::string& icon,
                const std::string& command);
  void AddRule();

  /// How many records there are so far.
  [[nodiscard]] int Count() const noexcept { return count_; }
  [[nodiscard]] bool IsFull() const noexcept { return count_ >= kMaxRecords; }
  /// The file's bytes.
  [[nodiscard]] const std::string& Bytes() const noexcept { return bytes_; }

 private:
  void Add(const MenuRecord& record);

  std::vector<MenuRecord> source_;
  const CodePage& ansi_;
  int nextSource_ = 1;
  int count_ = 0;
  std::string bytes_;
};

}  // namespace corvelle
