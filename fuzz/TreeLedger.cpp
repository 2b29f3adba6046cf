#include "TreeLedger.h"

#include <utility>

namespace corvelle::fuzz {

void TreeLedger::ChangeFiles(const EntryLedger& before, const EntryLedger& after) {
  const EntryLedger more = after.Without(before);
  const EntryLedger less = before.Without(after);
  gone_.Take(more);
  gone_.Add(less);
  came_.Take(less);
  came_.Add(more);
}

void TreeLedger::Open(EntryLedger tree) {
  open_ = true;
  tree_ = std::move(tree);
}

EntryLedger TreeLedger::ChangeTree(const EntryLedger& tree, bool byUser) {
  const EntryLedger lost = tree_.Without(tree);
  EntryLedger unknown = lost.Without(gone_);
  if (byUser) goneTaken_.Add(lost.Without(unknown));
  gone_.Take(lost);
  // What comes in from the files is not what the user took out, though it be equal.
  const EntryLedger added = tree.Without(tree_);
  takenOut_.Take(added.Without(came_));
  came_.Take(added);
  // What the user brings back is gone from the files as before.
  const EntryLedger back = added.Without(added.Without(goneTaken_));
  goneTaken_.Take(back);
  gone_.Add(back);
  tree_ = tree;
  if (!byUser) return unknown;
  takenOut_.Add(unknown);
  return {};
}

TreeLedger::SaveLoss TreeLedger::Save(const EntryLedger& files, const EntryLedger& tree) {
  SaveLoss loss{tree_.Without(tree).Without(gone_), files.Without(tree).Without(takenOut_)};
  tree_ = tree;
  gone_ = {};
  goneTaken_ = {};
  came_ = {};
  takenOut_ = {};
  return loss;
}

}  // namespace corvelle::fuzz
