#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "platform/ShellExec.h"
#include "platform/Starter.h"

namespace corvelle {

class StartsUnderWay;

/// Until when what was begun counts as under way: the end of its work, after which the user may see
/// what it started and choose it again; or until `then` was told, because only that starts
/// something.
enum class UnderWay { UntilDone, UntilTold };

/// Runs `work` beside the windows, with services of its own thread, and then `done` on the thread
/// of the windows; see Starter. False, and nothing is done, while `what` is under way already.
/// `work` holds values only; `done` is not called once the program is gone.
bool RunBeside(StartsUnderWay& starts, const std::string& what, Starter::Work work,
               std::function<void()> done, UnderWay until = UnderWay::UntilDone);

/// The same, and true when the work was over almost at once. When it takes longer, or `what` is
/// still under way from before, nobody is told. No events run. For what is needed inside an event
/// that cannot wait for a later turn, such as another program's drop.
[[nodiscard]] bool RunAtOnce(StartsUnderWay& starts, const std::string& what, Starter::Work work);

/// RunBeside for work that has a result, which is handed to `then`.
template <class Outcome, class Work>
void StartBeside(StartsUnderWay& starts, const std::string& what, Work work,
                 std::function<void(Outcome)> then, UnderWay until = UnderWay::UntilDone) {
  const auto outcome = std::make_shared<Outcome>();
  RunBeside(
      starts, what,
      [outcome, work = std::move(work)](const StartServices& services) {
        *outcome = work(services);
      },
      [outcome, then = std::move(then)] { then(std::move(*outcome)); }, until);
}

/// RunAtOnce for work that has a result; nothing when it was not there at once.
template <class Outcome, class Work>
[[nodiscard]] std::optional<Outcome> AtOnce(StartsUnderWay& starts, const std::string& what,
                                            Work work) {
  const auto outcome = std::make_shared<Outcome>();
  const bool came =
      RunAtOnce(starts, what, [outcome, work = std::move(work)](const StartServices& services) {
        *outcome = work(services);
      });
  if (!came) return std::nullopt;
  return std::move(*outcome);
}

/// True when the shell has opened it, or when the user has refused that: nothing else is tried.
[[nodiscard]] inline bool IsSettled(const Result<Done, OpenError>& opened) {
  return opened || opened.Error() == OpenError::Cancelled;
}

}  // namespace corvelle
