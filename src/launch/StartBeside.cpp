#include "launch/StartBeside.h"

#include <chrono>
#include <condition_variable>
#include <mutex>

#include "core/StartsUnderWay.h"

namespace corvelle {

namespace {

// With what follows, under a tenth of a second.
constexpr std::chrono::milliseconds kAtOnceFor{80};

struct WorkAtOnce {
  std::mutex Lock;
  std::condition_variable Ended;
  bool Over = false;
};

}  // namespace

bool RunBeside(StartsUnderWay& starts, const std::string& what, Starter::Work work,
               std::function<void()> done, UnderWay until) {
  const auto start = starts.Begin(what);
  if (start == nullptr) return false;
  starts.Starter.Start(
      [start, until, work = std::move(work)](const StartServices& services) {
        work(services);
        if (until == UnderWay::UntilDone) start->SetOver();
      },
      [start, done = std::move(done), watch = starts.Watch()] {
        if (watch.Gone()) return;
        start->SetOver();
        done();
      });
  return true;
}

bool RunAtOnce(StartsUnderWay& starts, const std::string& what, Starter::Work work) {
  const auto shared = std::make_shared<WorkAtOnce>();
  const bool begun = RunBeside(
      starts, what,
      [shared, work = std::move(work)](const StartServices& services) {
        work(services);
        const std::scoped_lock lock(shared->Lock);
        shared->Over = true;
        shared->Ended.notify_one();
      },
      [] {});
  if (!begun) return false;
  std::unique_lock lock(shared->Lock);
  return shared->Ended.wait_for(lock, kAtOnceFor, [&] { return shared->Over; });
}

}  // namespace corvelle
