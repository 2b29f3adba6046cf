#include "customize/TreeMerge.h"

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <unordered_map>
#include <utility>

#include "base/Digest.h"
#include "customize/RowMatch.h"

namespace corvelle {
namespace {

std::size_t PlaceOf(int place) noexcept { return static_cast<std::size_t>(place); }

/// Gives equal entries and equal menus the same number.
class Numbers {
 public:
  int Of(const MenuRecord& record) {
    return records_.try_emplace(&record, static_cast<int>(records_.size())).first->second;
  }
  int Of(const Menu& menu) {
    std::vector<int> parts{Of(menu.Head)};
    parts.reserve(menu.Items.size() + 1);
    for (const MenuRecord& item : menu.Items) parts.push_back(Of(item));
    return menus_.try_emplace(std::move(parts), static_cast<int>(menus_.size())).first->second;
  }

  MatchRow Row(const std::vector<MenuRecord>& records) {
    MatchRow row;
    for (const MenuRecord& record : records) {
      row.Keys.push_back(Of(record));
      row.Names.push_back(NameOf(record));
    }
    return row;
  }
  MatchRow Row(const std::vector<Menu>& menus) {
    MatchRow row;
    for (const Menu& menu : menus) {
      row.Keys.push_back(Of(menu));
      row.Names.push_back(Of(menu.Head));
    }
    return row;
  }

 private:
  struct Hash {
    std::size_t operator()(const MenuRecord* record) const noexcept {
      Digest digest;
      digest.Add(record->FTitle);
      digest.Add(record->FIcon);
      digest.Add(record->FName);
      return static_cast<std::size_t>(digest.Value());
    }
  };
  struct Same {
    bool operator()(const MenuRecord* a, const MenuRecord* b) const { return *a == *b; }
  };

  /// An entry is known by its command.
  int NameOf(const MenuRecord& record) {
    if (record.FName.empty()) return -1;
    return names_.try_emplace(record.FName, static_cast<int>(names_.size())).first->second;
  }

  std::unordered_map<const MenuRecord*, int, Hash, Same> records_;
  std::map<std::vector<int>, int> menus_;
  std::map<std::string, int, std::less<>> names_;
};

bool AreSimilar(const MenuRecord& a, const MenuRecord& b) {
  return (!a.FTitle.empty() && a.FTitle == b.FTitle) || (!a.FName.empty() && a.FName == b.FName);
}
bool AreSimilar(const Menu& a, const Menu& b) { return AreSimilar(a.Head, b.Head); }

template <class T>
std::vector<MergedEntry> MergeOrder(Numbers& numbers, const std::vector<T>& base,
                                    const std::vector<T>& ours, const std::vector<T>& theirs) {
  const MatchRow baseRow = numbers.Row(base);
  const MatchRow oursRow = numbers.Row(ours);
  const MatchRow theirsRow = numbers.Row(theirs);
  const auto similarTo = [&base](const std::vector<T>& other) {
    return
        [&base, &other](int a, int b) { return AreSimilar(base[PlaceOf(a)], other[PlaceOf(b)]); };
  };
  return MergeRows(baseRow, oursRow, theirsRow, MatchRows(baseRow, oursRow, similarTo(ours)),
                   MatchRows(baseRow, theirsRow, similarTo(theirs)));
}

class TreeMerge {
 public:
  TreeMerge(const MenuSet& base, const MenuSet& ours, const MenuSet& theirs)
      : base_(base), ours_(ours), theirs_(theirs) {}

  MergedSet Run() {
    for (const MergedEntry& entry : MergeOrder(numbers_, base_.Menus, ours_.Menus, theirs_.Menus)) {
      AddMenu(entry);
    }
    merged_.Set.Singles =
        MergeRecords(base_.Singles, ours_.Singles, theirs_.Singles, kNotThere, merged_.Singles);
    return std::move(merged_);
  }

 private:
  /// One version of an entry that is on both sides now.
  MenuRecord Choose(const MenuRecord* base, const MenuRecord& ours, const MenuRecord& theirs,
                    int menu, int item) {
    if (ours == theirs || (base != nullptr && theirs == *base)) return ours;
    if (base != nullptr && ours == *base) return theirs;
    merged_.Conflicts.push_back({MergeConflictKind::BothChanged, menu, item, ours, theirs});
    return ours;
  }

  std::vector<MenuRecord> MergeRecords(const std::vector<MenuRecord>& base,
                                       const std::vector<MenuRecord>& ours,
                                       const std::vector<MenuRecord>& theirs, int menu,
                                       std::vector<int>& origins) {
    std::vector<MenuRecord> row;
    for (const MergedEntry& entry : MergeOrder(numbers_, base, ours, theirs)) {
      const int place = static_cast<int>(row.size());
      origins.push_back(entry.Ours);
      if (entry.Ours >= 0 && entry.Theirs >= 0) {
        const MenuRecord* was = entry.Base >= 0 ? &base[PlaceOf(entry.Base)] : nullptr;
        row.push_back(
            Choose(was, ours[PlaceOf(entry.Ours)], theirs[PlaceOf(entry.Theirs)], menu, place));
        continue;
      }
      const bool here = entry.Ours >= 0;
      row.push_back(here ? ours[PlaceOf(entry.Ours)] : theirs[PlaceOf(entry.Theirs)]);
      if (entry.Base >= 0) TellDeleted(here, menu, place, row.back());
    }
    return row;
  }

  void TellDeleted(bool here, int menu, int item, const MenuRecord& changed) {
    if (here) {
      merged_.Conflicts.push_back({MergeConflictKind::DeletedThere, menu, item, changed, {}});
    } else {
      merged_.Conflicts.push_back({MergeConflictKind::DeletedHere, menu, item, {}, changed});
    }
  }

  void AddMenu(const MergedEntry& entry) {
    const int place = static_cast<int>(merged_.Set.Menus.size());
    MergedMenuOrigin origin;
    origin.Menu = entry.Ours;
    Menu menu;
    if (entry.Ours >= 0 && entry.Theirs >= 0) {
      static const Menu kNone;
      const Menu* was = entry.Base >= 0 ? &base_.Menus[PlaceOf(entry.Base)] : nullptr;
      const Menu& ours = ours_.Menus[PlaceOf(entry.Ours)];
      const Menu& theirs = theirs_.Menus[PlaceOf(entry.Theirs)];
      menu.Head =
          Choose(was != nullptr ? &was->Head : nullptr, ours.Head, theirs.Head, place, kNotThere);
      menu.Items = MergeRecords((was != nullptr ? *was : kNone).Items, ours.Items, theirs.Items,
                                place, origin.Items);
    } else {
      const bool here = entry.Ours >= 0;
      menu = here ? ours_.Menus[PlaceOf(entry.Ours)] : theirs_.Menus[PlaceOf(entry.Theirs)];
      for (int i = 0; i < static_cast<int>(menu.Items.size()); ++i) {
        origin.Items.push_back(here ? i : kNotThere);
      }
      if (entry.Base >= 0) TellDeleted(here, place, kNotThere, menu.Head);
    }
    merged_.Set.Menus.push_back(std::move(menu));
    merged_.Menus.push_back(std::move(origin));
  }

  const MenuSet& base_;
  const MenuSet& ours_;
  const MenuSet& theirs_;
  Numbers numbers_;
  MergedSet merged_;
};

}  // namespace

MergedSet MergeTrees(const MenuSet& base, const MenuSet& ours, const MenuSet& theirs) {
  return TreeMerge(base, ours, theirs).Run();
}

}  // namespace corvelle
