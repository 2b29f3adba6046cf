#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace corvelle {

/// Work in lanes: within a lane one piece after another, in the order in which they came; what one
/// lane waits for holds up no other. The owner says when a piece of work is over.
template <class T>
class LaneQueue {
 public:
  struct Taken {
    std::string Lane;
    T Work;
  };

  void Add(std::string lane, T work) {
    lanes_[std::move(lane)].Waiting.push_back({++last_, std::move(work)});
  }

  /// The oldest piece of work whose lane is free; its lane is busy until Free. Nothing when all
  /// that waits is in busy lanes.
  [[nodiscard]] std::optional<Taken> Take() {
    const auto first = std::min_element(
        lanes_.begin(), lanes_.end(),
        [](const auto& a, const auto& b) { return a.second.Turn() < b.second.Turn(); });
    if (first == lanes_.end() || first->second.Turn() == kNever) return std::nullopt;
    Lane& lane = first->second;
    lane.Busy = true;
    Taken taken{first->first, std::move(lane.Waiting.front().Work)};
    lane.Waiting.pop_front();
    return taken;
  }

  /// The work that was taken from a lane is over. A lane that is not busy stays as it is.
  void Free(const std::string& lane) {
    const auto found = lanes_.find(lane);
    if (found == lanes_.end()) return;
    found->second.Busy = false;
    if (found->second.Waiting.empty()) lanes_.erase(found);
  }

  /// Takes out the waiting work for which `chosen` is true, lane by lane in its order.
  template <class Chosen>
  std::vector<T> Remove(Chosen chosen) {
    std::vector<T> removed;
    for (auto lane = lanes_.begin(); lane != lanes_.end();) {
      std::deque<Entry> kept;
      for (Entry& entry : lane->second.Waiting) {
        if (chosen(entry.Work)) {
          removed.push_back(std::move(entry.Work));
        } else {
          kept.push_back(std::move(entry));
        }
      }
      lane->second.Waiting = std::move(kept);
      const bool over = !lane->second.Busy && lane->second.Waiting.empty();
      lane = over ? lanes_.erase(lane) : std::next(lane);
    }
    return removed;
  }

  /// How many pieces of work could be taken now, one after the other, with none of them over.
  [[nodiscard]] std::size_t Ready() const {
    return static_cast<std::size_t>(
        std::count_if(lanes_.begin(), lanes_.end(),
                      [](const auto& lane) { return lane.second.Turn() != kNever; }));
  }

 private:
  static constexpr std::uint64_t kNever = UINT64_MAX;

  struct Entry {
    std::uint64_t Number = 0;
    T Work;
  };
  struct Lane {
    std::deque<Entry> Waiting;
    bool Busy = false;

    [[nodiscard]] std::uint64_t Turn() const {
      return Busy || Waiting.empty() ? kNever : Waiting.front().Number;
    }
  };

  std::map<std::string, Lane> lanes_;  // those with something waiting or under way
  std::uint64_t last_ = 0;
};

}  // namespace corvelle
