#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace corvelle::forms {

/// A run of controls of one kind under one name. Element 0 is the template, there from the
/// start; the others are loaded and unloaded while the program runs.
template <class T>
class ControlArray {
 public:
  /// Makes element `index`; called once for the template and once for each Load.
  using Factory = std::function<std::unique_ptr<T>(int index)>;

  explicit ControlArray(Factory factory) : factory_(std::move(factory)) {
    elements_.push_back(factory_(0));
  }

  T& operator[](int index) { return *elements_[static_cast<std::size_t>(index)]; }
  const T& operator[](int index) const { return *elements_[static_cast<std::size_t>(index)]; }

  /// The highest index that is loaded; 0 when only the template is there.
  int Last() const noexcept { return static_cast<int>(elements_.size()) - 1; }

  /// True for an index that can be used.
  bool Has(int index) const noexcept { return index >= 0 && index <= Last(); }

  /// Adds the next element and returns it.
  T& Load() {
    elements_.push_back(factory_(static_cast<int>(elements_.size())));
    return *elements_.back();
  }

  /// Takes away every element above `index`, which is at least 0.
  void UnloadAbove(int index) {
    while (Last() > index) elements_.pop_back();
  }

 private:
  Factory factory_;
  std::vector<std::unique_ptr<T>> elements_;
};

}  // namespace corvelle::forms
