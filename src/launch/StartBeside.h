#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <utility>

#include "core/Program.h"
#include "platform/ShellExec.h"
#include "platform/Starter.h"

namespace corvelle {

/// Until when what was begun counts as under way: the end of its work, after which the user may see
/// what it started and choose it again; or until `then` was told, because only that starts
/// something.
enum class UnderWay { UntilDone, UntilTold };

/// Runs `work` beside the windows, with services of its own thread, and then hands its result to
/// `then` on the thread of the windows; see Starter. Does nothing while `what` is under way
/// already. `work` holds values only; `then` is not called once the program is gone.
template <class Outcome>
void StartBeside(Program& program, const std::string& what,
                 std::function<Outcome(const StartServices&)> work,
                 std::function<void(Outcome)> then, UnderWay until = UnderWay::UntilDone) {
  const auto start = program.Starts.Begin(what);
  if (start == nullptr) return;
  const auto outcome = std::make_shared<Outcome>();
  program.Services.Starts.Start(
      [start, outcome, until, work = std::move(work)](const StartServices& services) {
        *outcome = work(services);
        if (until == UnderWay::UntilDone) start->SetOver();
      },
      [start, outcome, then = std::move(then), watch = program.Starts.Watch()] {
        if (watch.Gone()) return;
        start->SetOver();
        then(std::move(*outcome));
      });
}

/// The result of `work` when it is there almost at once; nothing when it takes longer, or `what` is
/// still under way from before. No events run. For what is needed inside an event that cannot wait
/// for a later turn, such as another program's drop.
template <class Outcome>
[[nodiscard]] std::optional<Outcome> AtOnce(Program& program, const std::string& what,
                                            std::function<Outcome(const StartServices&)> work) {
  constexpr std::chrono::milliseconds kAtOnce{80};  // with what follows, under a tenth of a second
  struct Shared {
    std::mutex Lock;
    std::condition_variable Came;
    std::optional<Outcome> Value;
  };
  const auto start = program.Starts.Begin(what);
  if (start == nullptr) return std::nullopt;
  const auto shared = std::make_shared<Shared>();
  program.Services.Starts.Start(
      [start, shared, work = std::move(work)](const StartServices& services) {
        Outcome outcome = work(services);
        start->SetOver();
        const std::lock_guard lock(shared->Lock);
        shared->Value.emplace(std::move(outcome));
        shared->Came.notify_one();
      },
      [] {});
  std::unique_lock lock(shared->Lock);
  shared->Came.wait_for(lock, kAtOnce, [&] { return shared->Value.has_value(); });
  return std::exchange(shared->Value, std::nullopt);
}

/// True when the shell has opened it, or when the user has refused that: nothing else is tried.
[[nodiscard]] inline bool IsSettled(const Result<Done, OpenError>& opened) {
  return opened || opened.Error() == OpenError::Cancelled;
}

}  // namespace corvelle
