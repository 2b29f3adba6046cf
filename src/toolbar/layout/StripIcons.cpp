#include "toolbar/layout/StripIcons.h"

#include <memory>

#include "core/Program.h"
#include "forms/PictureBox.h"
#include "forms/Types.h"
#include "platform/Canvas.h"

namespace corvelle {
namespace {

/// How long one icon may hold up a strip that is rebuilt. Milliseconds.
constexpr int kAtOnce = 40;

}  // namespace

StripIcons::StripIcons(Program& program, forms::PictureBox& box)
    : program_(program), box_(box), icons_(program) {}

void StripIcons::Begin() {
  icons_.Drop();
  box_.SetBackground({});
}

void StripIcons::Draw(std::string_view text, const PixelRect& place) {
  // The strip is to be up before its icons are: the first one takes a while to come.
  const int wait = program_.Guards.StartingUp ? 0 : kAtOnce;
  Paint(place, icons_.Ask(text, place.Width(), wait,
                          [this, place](const IconLook& look) { Paint(place, look); }));
}

void StripIcons::End() {
  box_.Refresh();
  box_.SetBackground(box_.Image());
}

void StripIcons::Paint(const PixelRect& place, const IconLook& look) {
  const std::unique_ptr<Canvas> icon = program_.Windows.CreateCanvas(place.Size());
  const PixelRect whole{0, 0, place.Width(), place.Height()};
  icon->FillBox(whole, forms::Resolve(program_.Windows, box_.BackColor()));
  // What has no icon at all keeps an empty face.
  static_cast<void>(icons_.Draw(*icon, look, place.Width()));
  box_.DrawPixels(place, [&](Canvas& canvas) { canvas.DrawCanvas(*icon, whole, place.TopLeft()); });
}

}  // namespace corvelle
