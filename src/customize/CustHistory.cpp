#include "customize/CustHistory.h"

#include <utility>

namespace corvelle {

CustHistory::CustHistory(CustTree& tree) : tree_(tree) { tree_.SetRecorder(this); }

CustHistory::~CustHistory() { tree_.SetRecorder(nullptr); }

CustHistory::Step::Step(CustHistory& history, std::string name, const CustRef& selected)
    : history_(history), selected_(selected), outer_(!history.isOpen_) {
  if (!outer_) return;
  history_.open_ = {std::move(name), {}, selected, selected};
  history_.isOpen_ = true;
}

CustHistory::Step::~Step() {
  if (!outer_) return;
  history_.open_.After = selected_;
  history_.Close();
}

void CustHistory::Clear() {
  done_.clear();
  undone_.clear();
}

std::string_view CustHistory::UndoName() const noexcept {
  return done_.empty() ? std::string_view() : std::string_view(done_.back().Name);
}

std::string_view CustHistory::RedoName() const noexcept {
  return undone_.empty() ? std::string_view() : std::string_view(undone_.back().Name);
}

CustRef CustHistory::Undo() {
  if (done_.empty()) return kNoRef;
  Entry entry = std::move(done_.back());
  done_.pop_back();
  for (auto change = entry.Changes.rbegin(); change != entry.Changes.rend(); ++change) {
    tree_.TakeBack(*change);
  }
  const CustRef selected = entry.Before;
  undone_.push_back(std::move(entry));
  return selected;
}

CustRef CustHistory::Redo() {
  if (undone_.empty()) return kNoRef;
  Entry entry = std::move(undone_.back());
  undone_.pop_back();
  for (const TreeChange& change : entry.Changes) tree_.MakeAgain(change);
  const CustRef selected = entry.After;
  done_.push_back(std::move(entry));
  return selected;
}

void CustHistory::Record(TreeChange change) {
  // A change that no command made is a step of its own: the steps before it reckon with it.
  const Step step(*this, "Change", change.Node);
  open_.Changes.push_back(std::move(change));
}

void CustHistory::Close() {
  isOpen_ = false;
  if (open_.Changes.empty()) return;
  // What a step that is taken back had added, only that step and those after it know; what the
  // oldest step removed, no later step knows.
  for (const Entry& entry : undone_) Drop(entry, TreeChange::Kind::Add);
  undone_.clear();
  done_.push_back(std::exchange(open_, {}));
  if (done_.size() <= kMostSteps) return;
  Drop(done_.front(), TreeChange::Kind::Remove);
  done_.pop_front();
}

void CustHistory::Drop(const Entry& entry, TreeChange::Kind what) {
  for (const TreeChange& change : entry.Changes) {
    if (change.What == what) tree_.Forget(change.Node);
  }
}

}  // namespace corvelle
