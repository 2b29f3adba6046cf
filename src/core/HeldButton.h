#pragma once

#include <cstdint>

namespace corvelle {

class Input;

/// True while the left or the right mouse button is down, whoever was pressed with it.
[[nodiscard]] bool AnyButtonDown(const Input& input);

/// Tells when the release of a press went to another program. The system may show a button as up
/// some time before the release arrives here, so that one look is not enough.
class AbandonWatch {
 public:
  /// For how long no button must be down, milliseconds.
  static constexpr std::int64_t kGrace = 150;

  /// One look: true if no button has been down since the grace began. `now` in milliseconds.
  [[nodiscard]] bool Look(bool anyButtonDown, std::int64_t now) noexcept;
  /// Forgets what was seen, for another press.
  void Reset() noexcept { upSince_ = kDown; }

 private:
  static constexpr std::int64_t kDown = -1;

  std::int64_t upSince_ = kDown;
};

}  // namespace corvelle
