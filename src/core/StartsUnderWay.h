#pragma once

#include <atomic>
#include <map>
#include <memory>
#include <string>

#include "forms/Alive.h"

namespace corvelle {

class Starter;

/// What is being started just now, each by a text of its own: a second press on an entry that is
/// slow to start does not start it twice.
class StartsUnderWay {
 public:
  /// `starter` runs what is started beside the windows, and outlives this.
  explicit StartsUnderWay(corvelle::Starter& starter) : Starter(starter) {}

  /// One start until it is over. `SetOver` may be called on any thread, and after the program's
  /// end.
  class Start {
   public:
    void SetOver() noexcept { over_ = true; }
    [[nodiscard]] bool IsOver() const noexcept { return over_; }

   private:
    std::atomic<bool> over_ = false;
  };

  /// Nothing when it is being started already. Whoever starts sets the answer over as soon as the
  /// system has answered: the user may see the program by then and choose it again, before any
  /// event tells how the start ended.
  [[nodiscard]] std::shared_ptr<Start> Begin(const std::string& what) {
    std::erase_if(underWay_, [](const auto& known) { return known.second->IsOver(); });
    const auto [at, added] = underWay_.try_emplace(what);
    if (!added) return nullptr;
    at->second = std::make_shared<Start>();
    return at->second;
  }

  /// Tells what comes back later whether the program is still there.
  [[nodiscard]] forms::Alive::Watch Watch() const { return alive_.MakeWatch(); }

  corvelle::Starter& Starter;

 private:
  std::map<std::string, std::shared_ptr<Start>> underWay_;
  forms::Alive alive_;
};

}  // namespace corvelle
