#pragma once

#include <set>
#include <string>

#include "forms/Alive.h"

namespace corvelle {

/// What is being started just now, each by a text of its own: a second press on an entry that is
/// slow to start does not start it twice.
class StartsUnderWay {
 public:
  /// False when it is being started already.
  [[nodiscard]] bool Begin(const std::string& what) { return underWay_.insert(what).second; }
  void End(const std::string& what) { underWay_.erase(what); }

  /// Tells what comes back later whether the program is still there.
  [[nodiscard]] forms::Alive::Watch Watch() const { return alive_.MakeWatch(); }

 private:
  std::set<std::string> underWay_;
  forms::Alive alive_;
};

}  // namespace corvelle
