#include "customize/RowMatch.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <list>
#include <map>
#include <utility>

namespace corvelle {
namespace {

std::size_t At(int place) noexcept { return static_cast<std::size_t>(place); }
int Size(const std::vector<int>& row) noexcept { return static_cast<int>(row.size()); }

// Above it, equal entries between two fixed ones are paired as they come.
constexpr long kMostCells = 250'000;

/// A part of the two rows between two pairs that are fixed: from, and up to but without.
struct RowGap {
  int FromA, ToA, FromB, ToB;
};

class Matching {
 public:
  Matching(const MatchRow& a, const MatchRow& b)
      : a_(a), b_(b), ofA_(a.Keys.size(), -1), ofB_(b.Keys.size(), -1) {}

  std::vector<int> Run(const std::function<bool(int, int)>& similar) {
    const RowGap middle = PairEnds();
    PairUnique(middle);
    for (const RowGap& gap : Gaps()) PairEqual(gap);
    const std::vector<RowGap> gaps = Gaps();
    PairMoved(a_.Keys, b_.Keys, false);
    PairMoved(a_.Names, b_.Names, true);
    for (const RowGap& gap : gaps) PairChanged(gap, similar);
    return std::move(ofA_);
  }

 private:
  void Pair(int a, int b) {
    ofA_[At(a)] = b;
    ofB_[At(b)] = a;
  }
  [[nodiscard]] bool Equal(int a, int b) const { return a_.Keys[At(a)] == b_.Keys[At(b)]; }

  RowGap PairEnds() {
    RowGap middle{0, Size(a_.Keys), 0, Size(b_.Keys)};
    while (middle.FromA < middle.ToA && middle.FromB < middle.ToB &&
           Equal(middle.FromA, middle.FromB)) {
      Pair(middle.FromA++, middle.FromB++);
    }
    while (middle.FromA < middle.ToA && middle.FromB < middle.ToB &&
           Equal(middle.ToA - 1, middle.ToB - 1)) {
      Pair(--middle.ToA, --middle.ToB);
    }
    return middle;
  }

  /// What is there once on either side, as far as it keeps its order.
  void PairUnique(const RowGap& middle) {
    struct Seen {
      int InA = 0, InB = 0, A = 0, B = 0;
    };
    std::map<int, Seen> seen;
    for (int i = middle.FromA; i < middle.ToA; ++i) {
      Seen& entry = seen[a_.Keys[At(i)]];
      ++entry.InA;
      entry.A = i;
    }
    for (int i = middle.FromB; i < middle.ToB; ++i) {
      Seen& entry = seen[b_.Keys[At(i)]];
      ++entry.InB;
      entry.B = i;
    }
    std::vector<int> places(At(middle.ToA), -1);
    for (const auto& [key, entry] : seen) {
      if (entry.InA == 1 && entry.InB == 1) places[At(entry.A)] = entry.B;
    }
    const std::vector<bool> moved = OutOfOrder(places);
    for (int i = middle.FromA; i < middle.ToA; ++i) {
      if (places[At(i)] >= 0 && !moved[At(i)]) Pair(i, places[At(i)]);
    }
  }

  /// Between the pairs, which are all in ascending order as long as this is asked.
  [[nodiscard]] std::vector<RowGap> Gaps() const {
    std::vector<RowGap> gaps;
    int fromA = 0;
    int fromB = 0;
    for (int i = 0; i <= Size(ofA_); ++i) {
      const bool end = i == Size(ofA_);
      if (!end && ofA_[At(i)] < 0) continue;
      const int toB = end ? Size(ofB_) : ofA_[At(i)];
      if (i > fromA && toB > fromB) gaps.push_back({fromA, i, fromB, toB});
      fromA = i + 1;
      fromB = toB + 1;
    }
    return gaps;
  }

  /// The longest common row of a gap.
  void PairEqual(const RowGap& gap) {
    const int rows = gap.ToA - gap.FromA;
    const int columns = gap.ToB - gap.FromB;
    if (static_cast<long>(rows) * columns > kMostCells) return;
    const auto width = At(columns) + 1;
    std::vector<int> longest((At(rows) + 1) * width, 0);
    for (int i = rows - 1; i >= 0; --i) {
      for (int j = columns - 1; j >= 0; --j) {
        const std::size_t cell = At(i) * width + At(j);
        longest[cell] = Equal(gap.FromA + i, gap.FromB + j)
                            ? longest[cell + width + 1] + 1
                            : std::max(longest[cell + width], longest[cell + 1]);
      }
    }
    for (int i = 0, j = 0; i < rows && j < columns;) {
      const std::size_t cell = At(i) * width + At(j);
      if (Equal(gap.FromA + i, gap.FromB + j)) {
        Pair(gap.FromA + i++, gap.FromB + j++);
      } else if (longest[cell + width] >= longest[cell + 1]) {
        ++i;
      } else {
        ++j;
      }
    }
  }

  /// What is left and equal, wherever it is; with `once` only where there is no choice.
  void PairMoved(const std::vector<int>& a, const std::vector<int>& b, bool once) {
    struct Places {
      std::vector<int> A, B;
    };
    std::map<int, Places> left;
    for (int i = 0; i < Size(a); ++i) {
      if (ofA_[At(i)] < 0 && a[At(i)] >= 0) left[a[At(i)]].A.push_back(i);
    }
    for (int i = 0; i < Size(b); ++i) {
      if (ofB_[At(i)] < 0 && b[At(i)] >= 0) left[b[At(i)]].B.push_back(i);
    }
    for (const auto& [key, places] : left) {
      if (once && (places.A.size() != 1 || places.B.size() != 1)) continue;
      const std::size_t both = std::min(places.A.size(), places.B.size());
      for (std::size_t i = 0; i < both; ++i) Pair(places.A[i], places.B[i]);
    }
  }

  void PairChanged(const RowGap& gap, const std::function<bool(int, int)>& similar) {
    int next = gap.FromB;
    for (int i = gap.FromA; i < gap.ToA; ++i) {
      if (ofA_[At(i)] >= 0) continue;
      for (int j = next; j < gap.ToB; ++j) {
        if (ofB_[At(j)] >= 0 || !similar(i, j)) continue;
        Pair(i, j);
        next = j + 1;
        break;
      }
    }
    std::vector<int> leftA;
    std::vector<int> leftB;
    for (int i = gap.FromA; i < gap.ToA; ++i) {
      if (ofA_[At(i)] < 0) leftA.push_back(i);
    }
    for (int j = gap.FromB; j < gap.ToB; ++j) {
      if (ofB_[At(j)] < 0) leftB.push_back(j);
    }
    if (leftA.size() != leftB.size()) return;
    for (std::size_t i = 0; i < leftA.size(); ++i) Pair(leftA[i], leftB[i]);
  }

  const MatchRow& a_;
  const MatchRow& b_;
  std::vector<int> ofA_;
  std::vector<int> ofB_;
};

class Merging {
 public:
  Merging(const MatchRow& base, const MatchRow& ours, const MatchRow& theirs,
          const std::vector<int>& inOurs, const std::vector<int>& inTheirs)
      : base_(base), ours_(ours), theirs_(theirs), inOurs_(inOurs), inTheirs_(inTheirs) {}

  std::vector<MergedEntry> Run() {
    std::vector<int> baseOfOurs(ours_.Keys.size(), -1);
    std::vector<int> baseOfTheirs(theirs_.Keys.size(), -1);
    for (int b = 0; b < Size(base_.Keys); ++b) {
      if (inOurs_[At(b)] >= 0) baseOfOurs[At(inOurs_[At(b)])] = b;
      if (inTheirs_[At(b)] >= 0) baseOfTheirs[At(inTheirs_[At(b)])] = b;
    }
    const std::vector<int> twins = Twins(baseOfOurs, baseOfTheirs);
    const std::vector<bool> movedHere = OutOfOrder(baseOfOurs);
    const std::vector<bool> movedThere = OutOfOrder(baseOfTheirs);
    placed_.assign(theirs_.Keys.size(), merged_.end());

    for (int o = 0; o < Size(ours_.Keys); ++o) {
      const int b = baseOfOurs[At(o)];
      const int t = b >= 0 ? inTheirs_[At(b)] : twins[At(o)];
      const bool deleted = b >= 0 && t < 0 && base_.Keys[At(b)] == ours_.Keys[At(o)];
      const bool goesThere = b >= 0 && t >= 0 && movedThere[At(t)] && !movedHere[At(o)];
      if (deleted || goesThere) continue;
      merged_.push_back({b, o, t});
      if (t >= 0) placed_[At(t)] = std::prev(merged_.end());
    }
    // Each behind the one that it follows there.
    auto after = merged_.begin();
    for (int t = 0; t < Size(theirs_.Keys); ++t) {
      const int b = baseOfTheirs[At(t)];
      const int o = b >= 0 ? inOurs_[At(b)] : -1;
      const bool gone = b >= 0 && o < 0 && base_.Keys[At(b)] == theirs_.Keys[At(t)];
      if (gone) continue;
      if (placed_[At(t)] == merged_.end()) placed_[At(t)] = merged_.insert(after, {b, o, t});
      after = std::next(placed_[At(t)]);
    }
    return {merged_.begin(), merged_.end()};
  }

 private:
  /// What both sides have added is there once.
  [[nodiscard]] std::vector<int> Twins(const std::vector<int>& baseOfOurs,
                                       const std::vector<int>& baseOfTheirs) const {
    std::map<int, std::list<int>> added;
    for (int t = 0; t < Size(theirs_.Keys); ++t) {
      if (baseOfTheirs[At(t)] < 0) added[theirs_.Keys[At(t)]].push_back(t);
    }
    std::vector<int> twins(ours_.Keys.size(), -1);
    for (int o = 0; o < Size(ours_.Keys); ++o) {
      const auto found = added.find(ours_.Keys[At(o)]);
      if (baseOfOurs[At(o)] >= 0 || found == added.end() || found->second.empty()) continue;
      twins[At(o)] = found->second.front();
      found->second.pop_front();
    }
    return twins;
  }

  const MatchRow& base_;
  const MatchRow& ours_;
  const MatchRow& theirs_;
  const std::vector<int>& inOurs_;
  const std::vector<int>& inTheirs_;
  std::list<MergedEntry> merged_;
  std::vector<std::list<MergedEntry>::iterator> placed_;  // of theirs
};

}  // namespace

std::vector<int> MatchRows(const MatchRow& before, const MatchRow& after,
                           const std::function<bool(int, int)>& similar) {
  return Matching(before, after).Run(similar);
}

std::vector<bool> OutOfOrder(const std::vector<int>& places) {
  // The longest ascending row: for each length the entry with the least place that ends one.
  std::vector<int> ends;
  std::vector<int> before(places.size(), -1);
  for (int i = 0; i < Size(places); ++i) {
    if (places[At(i)] < 0) continue;
    const auto at = std::lower_bound(ends.begin(), ends.end(), places[At(i)],
                                     [&](int end, int place) { return places[At(end)] < place; });
    if (at != ends.begin()) before[At(i)] = *std::prev(at);
    if (at == ends.end()) {
      ends.push_back(i);
    } else {
      *at = i;
    }
  }
  std::vector<bool> moved(places.size(), false);
  for (std::size_t i = 0; i < places.size(); ++i) moved[i] = places[i] >= 0;
  for (int i = ends.empty() ? -1 : ends.back(); i >= 0; i = before[At(i)]) moved[At(i)] = false;
  return moved;
}

std::vector<MergedEntry> MergeRows(const MatchRow& base, const MatchRow& ours,
                                   const MatchRow& theirs, const std::vector<int>& baseInOurs,
                                   const std::vector<int>& baseInTheirs) {
  return Merging(base, ours, theirs, baseInOurs, baseInTheirs).Run();
}

}  // namespace corvelle
