#include <algorithm>
#include <utility>

#include "customize/CustEditor.h"
#include "customize/EntryAddress.h"
#include "customize/TreeMerge.h"

namespace corvelle {

namespace {

CustNode WithPicture(CustNode node) {
  const std::string& icon = node.Entry.FileName;
  node.Picture = {icon.empty() ? NodePicture::Kind::Unknown : NodePicture::Kind::Icon, icon,
                  IsHiddenCommand(node.Entry.FileExe)};
  return node;
}

}  // namespace

void CustEditor::TakeRow(CustRef parent, const std::vector<MenuRecord>& records,
                         const std::vector<int>& origins) {
  const std::vector<CustRef> before = Tree.Children(parent);
  std::vector<CustRef> row;
  for (std::size_t i = 0; i < records.size(); ++i) {
    if (origins[i] == kNotThere) {
      std::string key = parent == kMenusRoot ? Tree.NewMenuKey() : Tree.NewItemKey();
      row.push_back(Tree.Add(LastOf(parent), WithPicture(NodeOf(records[i], std::move(key)))));
      continue;
    }
    row.push_back(before[static_cast<std::size_t>(origins[i])]);
    const CustNode& now = Tree.At(row.back());
    if (RecordOf(now) != records[i]) {
      CustNode changed = WithPicture(NodeOf(records[i], now.Key));
      changed.Tag = now.Tag;
      Tree.Set(row.back(), std::move(changed));
    }
  }
  for (const CustRef node : before) {
    if (std::find(row.begin(), row.end(), node) == row.end()) Tree.Remove(node);
  }
  for (std::size_t i = 0; i < row.size(); ++i) Tree.Move(row[i], {parent, i});
}

void CustEditor::TakeMerged(const MergedSet& merged) {
  const CustHistory::Step step(History, "Changes Made Elsewhere", selected_);
  const MenuRecord before = RecordOf(Tree.At(selected_));
  std::vector<MenuRecord> heads;
  std::vector<int> origins;
  for (std::size_t i = 0; i < merged.Set.Menus.size(); ++i) {
    heads.push_back(merged.Set.Menus[i].Head);
    origins.push_back(merged.Menus[i].Menu);
  }
  TakeRow(kMenusRoot, heads, origins);
  const std::vector<CustRef> menus = Tree.Children(kMenusRoot);
  for (std::size_t i = 0; i < menus.size(); ++i) {
    TakeRow(menus[i], merged.Set.Menus[i].Items, merged.Menus[i].Items);
  }
  TakeRow(kSinglesRoot, merged.Set.Singles, merged.Singles);
  if (!Tree.IsInTree(selected_)) Select(kMenusRoot);
  // What the user types meanwhile stays, unless the entry is another one now.
  if (RecordOf(Tree.At(selected_)) != before) UpdateEntryBoxes();
}

}  // namespace corvelle
