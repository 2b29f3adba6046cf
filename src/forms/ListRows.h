#pragma once

#include <string>
#include <vector>

namespace corvelle::forms {

/// The rows of a list, of which at most one is chosen. Rows count from 0; -1 means no row.
class ListRows {
 public:
  [[nodiscard]] const std::vector<std::string>& Items() const noexcept { return items_; }
  [[nodiscard]] int Count() const noexcept { return static_cast<int>(items_.size()); }
  /// The text of a row; empty when the row does not exist.
  [[nodiscard]] const std::string& Text(int row) const noexcept;
  [[nodiscard]] int Selected() const noexcept { return selected_; }

  /// Rows from `at` on move down; the chosen one stays chosen. False when there is no such place.
  bool Insert(int at, std::string text);
  /// No row is chosen any more when the chosen one goes. False when the row does not exist.
  bool Remove(int at);
  void Clear() noexcept;
  /// A row that does not exist clears the choice.
  void Select(int row) noexcept { selected_ = Has(row) ? row : -1; }

 private:
  [[nodiscard]] bool Has(int row) const noexcept { return row >= 0 && row < Count(); }

  std::vector<std::string> items_;
  int selected_ = -1;
};

}  // namespace corvelle::forms
