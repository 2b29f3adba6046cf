#pragma once

#include <map>
#include <string>
#include <string_view>

#include "base/CodePage.h"
#include "core/MenuRecord.h"
#include "customize/MenuSet.h"
#include "sim/SimFiles.h"

namespace corvelle::fuzz {

/// What is at the end of a file that the monkey has broken. An edit of that file may make a
/// whole record of it, which is no entry of the user.
inline constexpr std::string_view kDamage = "broken by a monkey";

/// The entries in the menu files and single buttons of a folder: the three texts of
/// each, as often as it occurs. The button of a menu is left out when it has no text at all:
/// the tree shows an empty file as such a button, and a save writes it.
class EntryLedger {
 public:
  EntryLedger() = default;
  /// Nothing when the folder is missing.
  EntryLedger(const sim::SimFiles& files, std::string_view folder);
  /// The entries of a set of menus, as records hold them.
  EntryLedger(const MenuSet& set, const CodePage& ansi);

  /// How many entries of `before` are not here any more; `first` becomes the texts of one of them.
  [[nodiscard]] int Lost(const EntryLedger& before, std::string& first) const;
  /// What is here and not in `other`, each as often as it occurs here more often.
  [[nodiscard]] EntryLedger Without(const EntryLedger& other) const;
  void Add(const EntryLedger& other);
  /// Of what is not here nothing is taken.
  void Take(const EntryLedger& other);
  [[nodiscard]] int Size() const noexcept { return size_; }
  /// The texts of one entry; empty when the ledger has no entry.
  [[nodiscard]] std::string First() const;
  /// With the records that bear the monkey's damage, and the buttons without a text.
  [[nodiscard]] int Records() const noexcept { return size_ + others_; }

  /// The same entries, whatever the monkey has damaged.
  [[nodiscard]] bool HasTheSame(const EntryLedger& other) const {
    return entries_ == other.entries_;
  }

 private:
  [[nodiscard]] int CountOf(const std::string& record) const;
  void Add(const MenuRecord& record);

  std::map<std::string, int> entries_;  // each more than 0 times
  int size_ = 0;
  int others_ = 0;
};

/// True for the files that hold entries of the user, by the end of their name.
[[nodiscard]] bool HoldsEntries(std::string_view name);

}  // namespace corvelle::fuzz
