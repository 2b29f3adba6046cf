#pragma once

#include <utility>
#include <variant>

namespace corvelle {

/// Either a value or the reason there is none. `T` and `E` must differ.
template <class T, class E>
class [[nodiscard]] Result {
 public:
  Result(T value) : state_(std::in_place_index<0>, std::move(value)) {}
  Result(E error) : state_(std::in_place_index<1>, std::move(error)) {}

  explicit operator bool() const noexcept { return state_.index() == 0; }
  bool HasValue() const noexcept { return state_.index() == 0; }

  /// The value; only when there is one.
  T& operator*() & { return std::get<0>(state_); }
  const T& operator*() const& { return std::get<0>(state_); }
  T&& operator*() && { return std::get<0>(std::move(state_)); }
  T* operator->() { return &std::get<0>(state_); }
  const T* operator->() const { return &std::get<0>(state_); }

  /// The reason; only when there is no value.
  const E& Error() const { return std::get<1>(state_); }

  T ValueOr(T other) const& { return HasValue() ? **this : std::move(other); }
  T ValueOr(T other) && { return HasValue() ? std::get<0>(std::move(state_)) : std::move(other); }

 private:
  std::variant<T, E> state_;
};

/// The value of an operation that has nothing to give but its success.
struct Done {
  friend bool operator==(const Done&, const Done&) = default;
};

}  // namespace corvelle
