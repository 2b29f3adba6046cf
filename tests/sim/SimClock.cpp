#include "sim/SimClock.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace corvelle::sim {

void SimClock::MoveTo(std::int64_t time) noexcept { now_ = std::max(now_, time); }

forms::TimerId SimClock::Start(int milliseconds, std::function<void()> tick) {
  const int interval = std::max(milliseconds, shortest_);
  timers_[++lastId_] = {.Interval = interval,
                        .Due = now_ + interval,
                        .Order = ++lastOrder_,
                        .Tick = std::make_shared<std::function<void()>>(std::move(tick))};
  return lastId_;
}

std::map<forms::TimerId, SimClock::Entry>::const_iterator SimClock::Earliest() const {
  return std::min_element(timers_.begin(), timers_.end(), [](const auto& a, const auto& b) {
    return std::tie(a.second.Due, a.second.Order) < std::tie(b.second.Due, b.second.Order);
  });
}

std::optional<std::int64_t> SimClock::NextDue() const {
  const auto next = Earliest();
  if (next == timers_.end()) return std::nullopt;
  return next->second.Due;
}

bool SimClock::FireOne() {
  const auto next = Earliest();
  if (next == timers_.end() || next->second.Due > now_) return false;
  Entry& entry = timers_[next->first];
  // A late timer does not catch up; one that is due again waits behind its fellows.
  entry.Due = now_ + entry.Interval;
  entry.Order = ++lastOrder_;
  const std::shared_ptr<std::function<void()>> tick = entry.Tick;
  (*tick)();
  return true;
}

}  // namespace corvelle::sim
