#include "sim/CallCosts.h"

#include <algorithm>
#include <utility>

namespace corvelle::sim {

void CallCosts::Call(std::string_view call, std::string_view about) {
  if (apart_ > 0 || !price_) return;
  const int milliseconds = price_(call, about);
  if (milliseconds > 0) Charge(milliseconds, std::string(call) + " " + std::string(about));
}

void CallCosts::Wait(int milliseconds) {
  if (price_ && milliseconds > 0) Charge(milliseconds, "waited for an answer");
}

void CallCosts::Charge(int milliseconds, std::string what) {
  turn_ += milliseconds;
  longest_ = std::max(longest_, turn_);
  charged_.push_back(std::move(what));
  if (action_) action_(milliseconds);
}

void CallCosts::Clear() {
  charged_.clear();
  turn_ = 0;
  longest_ = 0;
}

}  // namespace corvelle::sim
