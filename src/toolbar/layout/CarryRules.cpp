#include "toolbar/layout/CarryRules.h"

#include <algorithm>

namespace corvelle {
namespace {

constexpr int kFull = 255;
constexpr unsigned kChannels[] = {0, 8, 16};

int Channel(Rgb colour, unsigned shift) noexcept {
  return static_cast<int>(colour >> shift & 0xFFU);
}

}  // namespace

bool MayDrop(const CarryScene& scene) noexcept {
  switch (scene.Over) {
    case CarryOver::Menu:
      return !scene.MainMenu;
    case CarryOver::Buttons:
      return scene.Button > 1;
    case CarryOver::SingleButtons:
      return true;
    case CarryOver::Elsewhere:
      break;
  }
  return false;
}

Rgb CutOut(Rgb onBlack, Rgb onWhite, Rgb mask) noexcept {
  // What shows of the ground is the same in all channels; the one that shows most tells best.
  int shown = 0;
  for (const unsigned shift : kChannels) {
    shown = std::max(shown, Channel(onWhite, shift) - Channel(onBlack, shift));
  }
  const int cover = kFull - shown;
  if (cover <= kFull / 2) return mask;
  Rgb colour = 0;
  for (const unsigned shift : kChannels) {
    const int own = std::min(Channel(onBlack, shift) * kFull / cover, kFull);
    colour |= static_cast<Rgb>(own) << shift;
  }
  return colour;
}

}  // namespace corvelle
