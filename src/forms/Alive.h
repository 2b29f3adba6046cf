#pragma once

#include <memory>

namespace corvelle::forms {

/// Lets a routine that calls a handler ask afterwards whether its object still exists.
class Alive {
 public:
  /// Asks after one object.
  class Watch {
   public:
    /// True once the object is destroyed.
    [[nodiscard]] bool Gone() const noexcept { return token_.expired(); }

   private:
    friend class Alive;
    explicit Watch(std::weak_ptr<const char> token) : token_(std::move(token)) {}
    std::weak_ptr<const char> token_;
  };

  Alive() : token_(std::make_shared<const char>()) {}
  Alive(const Alive&) = delete;
  Alive& operator=(const Alive&) = delete;

  [[nodiscard]] Watch MakeWatch() const { return Watch(token_); }

 private:
  std::shared_ptr<const char> token_;
};

}  // namespace corvelle::forms
