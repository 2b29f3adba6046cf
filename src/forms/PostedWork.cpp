#include "forms/PostedWork.h"

#include <utility>

#include "forms/Scopes.h"

namespace corvelle::forms {

bool PostedWork::Add(Work work) {
  const std::scoped_lock lock(mutex_);
  if (closed_) return false;
  waiting_.push_back(std::move(work));
  return !std::exchange(woken_, true);
}

bool PostedWork::Run() {
  if (running_) return false;
  std::vector<Work> batch;
  {
    const std::scoped_lock lock(mutex_);
    batch.swap(waiting_);
  }
  {
    const FlagScope running(running_);
    for (const Work& work : batch) work();
  }
  const std::scoped_lock lock(mutex_);
  woken_ = !waiting_.empty();
  return woken_;
}

void PostedWork::Close() {
  std::vector<Work> dropped;  // what it holds is let go of outside the lock
  const std::scoped_lock lock(mutex_);
  closed_ = true;
  dropped.swap(waiting_);
}

}  // namespace corvelle::forms
