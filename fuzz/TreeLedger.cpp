#include "TreeLedger.h"

#include <utility>

namespace corvelle::fuzz {
namespace {

EntryLedger Common(const EntryLedger& one, const EntryLedger& other) {
  return one.Without(one.Without(other));
}

}  // namespace

void TreeLedger::ChangeFiles(const EntryLedger& before, const EntryLedger& after) {
  const EntryLedger more = after.Without(before);
  const EntryLedger less = before.Without(after);
  either_.Take(more.Without(gone_));
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
  if (byUser) {
    const EntryLedger taken = lost.Without(unknown);
    goneTaken_.Add(taken);
    either_.Add(Common(taken, tree_.Without(gone_).Without(unknown)));
  }
  gone_.Take(lost);
  // What comes in from the files is not what the user took out, though it be equal.
  const EntryLedger added = tree.Without(tree_);
  takenOut_.Take(added.Without(came_));
  came_.Take(added);
  // What the user brings back is gone from the files as before.
  const EntryLedger back = Common(added, goneTaken_);
  goneTaken_.Take(back);
  either_.Take(back);
  gone_.Add(back);
  tree_ = tree;
  if (!byUser) return WithoutEither(unknown);
  either_ = Common(either_, tree);
  takenOut_.Add(unknown);
  return {};
}

EntryLedger TreeLedger::WithoutEither(const EntryLedger& lost) {
  EntryLedger rest = lost.Without(either_);
  either_.Take(lost);
  return rest;
}

TreeLedger::SaveLoss TreeLedger::Save(const EntryLedger& files, const EntryLedger& tree) {
  SaveLoss loss;
  loss.FromTree = WithoutEither(tree_.Without(tree).Without(gone_));
  loss.FromFiles = WithoutEither(files.Without(tree).Without(takenOut_));
  tree_ = tree;
  gone_ = {};
  goneTaken_ = {};
  either_ = {};
  came_ = {};
  takenOut_ = {};
  return loss;
}

}  // namespace corvelle::fuzz
