#include "core/HeldButton.h"

#include "platform/Input.h"

namespace corvelle {
namespace {

constexpr int kLeftButtonKey = 1;
constexpr int kRightButtonKey = 2;

}  // namespace

bool AnyButtonDown(const Input& input) {
  return input.IsKeyDown(kLeftButtonKey) || input.IsKeyDown(kRightButtonKey);
}

bool AbandonWatch::Look(bool anyButtonDown, std::int64_t now) noexcept {
  if (anyButtonDown) {
    Reset();
    return false;
  }
  if (upSince_ == kDown) upSince_ = now;
  return now - upSince_ >= kGrace;
}

}  // namespace corvelle
