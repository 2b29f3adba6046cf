#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace corvelle {

class CodePage;

/// The past queries of Net Search, oldest first; the oldest goes when an eleventh comes.
struct QueryHistory {
  static constexpr std::int16_t kMost = 10;

  /// The slot after the last one is room for a new query.
  std::array<std::string, kMost + 1> History;
  /// How many slots are in use, at most 10.
  std::int16_t HistoryCount = 0;

  /// The queries as the user sees them.
  [[nodiscard]] std::vector<std::string> NewestFirst() const;
  /// True if the query is there, ignoring case.
  [[nodiscard]] bool Holds(std::string_view query) const;
  /// False, and nothing changes, for an empty query and one that is there.
  bool Add(std::string_view query);
  void Clear();

  friend bool operator==(const QueryHistory&, const QueryHistory&) = default;
};

/// The content of the history's file: one query a line, oldest first.
[[nodiscard]] std::string FormatHistory(const QueryHistory& history, const CodePage& ansi);
/// What such a content says. Of more than ten queries the newest ten count.
[[nodiscard]] QueryHistory ParseHistory(std::string_view bytes, const CodePage& ansi);

}  // namespace corvelle
