#pragma once

#include <functional>
#include <vector>

namespace corvelle {

// Rows of entries compared by numbers that stand for them: two entries are equal when their numbers
// are. Pure functions.

/// A row for RowMatch.
struct MatchRow {
  std::vector<int> Keys;
  /// For each entry what it can be known by when it was moved and changed; negative for nothing.
  std::vector<int> Names;
};

/// For each entry of `before` its place in `after`, or -1: what it has become there. Equal entries
/// are found wherever they went; a changed one by its name or, where it stayed between the same
/// neighbours, by `similar` (places in `before` and `after`) or for want of any other.
[[nodiscard]] std::vector<int> MatchRows(const MatchRow& before, const MatchRow& after,
                                         const std::function<bool(int, int)>& similar);

/// For each entry of a row, whose places in another row are given (-1 for none), true if it left
/// its place among the others: all others are in ascending order. As few as can be.
[[nodiscard]] std::vector<bool> OutOfOrder(const std::vector<int>& places);

/// One entry of a merged row: its place in each of the three rows, or -1.
struct MergedEntry {
  int Base = -1;
  int Ours = -1;
  int Theirs = -1;
};

/// The order of the merged row. Of an entry that one side deleted only what the other changed
/// stays.
[[nodiscard]] std::vector<MergedEntry> MergeRows(const MatchRow& base, const MatchRow& ours,
                                                 const MatchRow& theirs,
                                                 const std::vector<int>& baseInOurs,
                                                 const std::vector<int>& baseInTheirs);

}  // namespace corvelle
