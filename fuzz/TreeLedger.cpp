#include "TreeLedger.h"

#include <utility>

namespace corvelle::fuzz {

void TreeLedger::ChangeFiles(const EntryLedger& before, const EntryLedger& after) {
  gone_.Take(after.Without(before));
  gone_.Add(before.Without(after));
}

void TreeLedger::Open(EntryLedger tree) {
  open_ = true;
  tree_ = std::move(tree);
}

EntryLedger TreeLedger::ChangeTree(const EntryLedger& tree, bool byUser) {
  const EntryLedger lost = tree_.Without(tree);
  EntryLedger unknown = lost.Without(gone_);
  gone_.Take(lost);
  takenOut_.Take(tree.Without(tree_));
  tree_ = tree;
  if (!byUser) return unknown;
  takenOut_.Add(unknown);
  return {};
}

TreeLedger::SaveLoss TreeLedger::Save(const EntryLedger& files, const EntryLedger& tree) {
  SaveLoss loss{tree_.Without(tree).Without(gone_), files.Without(tree).Without(takenOut_)};
  tree_ = tree;
  gone_ = {};
  takenOut_ = {};
  return loss;
}

}  // namespace corvelle::fuzz
