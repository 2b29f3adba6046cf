#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace corvelle::sim {

/// What the system's services cost the thread of the windows. The simulated services tell it of
/// each call; those of the threads that answer slow questions, or that start something, cost
/// nothing. At first no call has a price.
class CallCosts {
 public:
  /// While one lives, calls are made by another thread than that of the windows.
  class Apart {
   public:
    explicit Apart(CallCosts* costs) : costs_(costs) {
      if (costs_ != nullptr) ++costs_->apart_;
    }
    Apart(const Apart&) = delete;
    Apart& operator=(const Apart&) = delete;
    ~Apart() {
      if (costs_ != nullptr) --costs_->apart_;
    }

   private:
    CallCosts* costs_;
  };

  /// The price of a call in milliseconds, by its name ("List", "FileInfo") and what it is about: a
  /// path, or "shell" for the shell's own folders. 0: it costs nothing and is not written down.
  using Price = std::function<int(std::string_view call, std::string_view about)>;
  void SetPrice(Price price) { price_ = std::move(price); }
  /// Runs with the milliseconds of each call that costs something. For a test that lets its clock
  /// go on.
  void WhenCharged(std::function<void(int)> action) { action_ = std::move(action); }

  /// A service was called.
  void Call(std::string_view call, std::string_view about);
  /// The thread of the windows waited for a slow answer, with no events running.
  void Wait(int milliseconds);
  /// The message loop takes its next event.
  void BeginTurn() noexcept { turn_ = 0; }

  /// What cost something, in order: "List D:\Docs\".
  [[nodiscard]] const std::vector<std::string>& Charged() const noexcept { return charged_; }
  /// The most that one turn of the message loop cost since the last Clear. Milliseconds.
  [[nodiscard]] int LongestTurn() const noexcept { return longest_; }
  void Clear();

 private:
  void Charge(int milliseconds, std::string what);

  Price price_;
  std::function<void(int)> action_;
  std::vector<std::string> charged_;
  int apart_ = 0;
  int turn_ = 0;
  int longest_ = 0;
};

/// A simulated service whose calls may cost something.
class Priced {
 public:
  /// Tells `costs` of each call from now on; it outlives the service.
  void ChargeTo(CallCosts& costs) noexcept { costs_ = &costs; }

 protected:
  void TellCall(std::string_view call, std::string_view about) const {
    if (costs_ != nullptr) costs_->Call(call, about);
  }
  [[nodiscard]] CallCosts* Costs() const noexcept { return costs_; }

 private:
  CallCosts* costs_ = nullptr;
};

}  // namespace corvelle::sim
