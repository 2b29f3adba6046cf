#include "forms/ListRows.h"

#include <utility>

namespace corvelle::forms {

const std::string& ListRows::Text(int row) const noexcept {
  static const std::string kEmpty;
  return Has(row) ? items_[static_cast<std::size_t>(row)] : kEmpty;
}

bool ListRows::Insert(int at, std::string text) {
  if (at < 0 || at > Count()) return false;
  items_.insert(items_.begin() + at, std::move(text));
  if (selected_ >= at) ++selected_;
  return true;
}

bool ListRows::Remove(int at) {
  if (!Has(at)) return false;
  items_.erase(items_.begin() + at);
  if (selected_ == at) {
    selected_ = -1;
  } else if (selected_ > at) {
    --selected_;
  }
  return true;
}

void ListRows::Clear() noexcept {
  items_.clear();
  selected_ = -1;
}

}  // namespace corvelle::forms
