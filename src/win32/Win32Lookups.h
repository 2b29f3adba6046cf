#pragma once

#include <memory>
#include <string>

#include "platform/Lookups.h"
#include "win32/PostBox.h"

namespace corvelle::win32 {

/// Questions answered by threads of their own, each with its own apartment. A thread that has
/// nothing to do for a while ends. One that the system does not let go is never ended by force: at
/// the end of this object it is given up after a moment, and its answer goes nowhere.
class Win32Lookups final : public Lookups {
 public:
  explicit Win32Lookups(std::shared_ptr<PostBox> posts);
  /// With the program of that path for icons and names, in place of the one beside this program;
  /// without that file the threads look for them.
  Win32Lookups(std::shared_ptr<PostBox> posts, std::string helper);
  Win32Lookups(const Win32Lookups&) = delete;
  Win32Lookups& operator=(const Win32Lookups&) = delete;
  /// Waits for the threads for at most half a second.
  ~Win32Lookups() override;

  void SetListener(Listener listener) override;
  LookupId Ask(Lookup question) override;
  void Drop(std::uint64_t generation) override;
  void Cancel(LookupId id) override;
  bool Collect(int milliseconds) override;

 private:
  class Desk;
  std::shared_ptr<Desk> desk_;
};

}  // namespace corvelle::win32
