#include "toolbar/layout/StripIcons.h"

#include <memory>

#include "core/GuardFlags.h"
#include "forms/PictureBox.h"
#include "forms/Types.h"
#include "forms/WindowSystem.h"
#include "platform/Canvas.h"

namespace corvelle {
namespace {

/// How long one icon may hold up a strip that is rebuilt. Milliseconds.
constexpr int kIconsAtOnce = 40;

}  // namespace

StripIcons::StripIcons(const IconSources& from, const GuardFlags& guards, forms::PictureBox& box)
    : guards_(guards), box_(box), icons_(from) {}

void StripIcons::Begin() {
  icons_.Drop();
  box_.SetBackground({});
}

void StripIcons::Draw(std::string_view text, const PixelRect& place) {
  // The strip is to be up before its icons are: the first one takes a while to come.
  const int wait = guards_.StartingUp ? 0 : kIconsAtOnce;
  Paint(place, icons_.Ask(text, place.Width(), wait,
                          [this, place](const IconLook& look) { Paint(place, look); }));
}

void StripIcons::End() {
  box_.Refresh();
  box_.SetBackground(box_.Image());
}

void StripIcons::Paint(const PixelRect& place, const IconLook& look) {
  const std::unique_ptr<Canvas> icon = box_.Windows().CreateCanvas(place.Size());
  const PixelRect whole{0, 0, place.Width(), place.Height()};
  icon->FillBox(whole, forms::Resolve(box_.Windows(), box_.BackColor()));
  // What has no icon at all keeps an empty face.
  static_cast<void>(icons_.Draw(*icon, look, place.Width()));
  box_.DrawPixels(place, [&](Canvas& canvas) { canvas.DrawCanvas(*icon, whole, place.TopLeft()); });
}

}  // namespace corvelle
