#pragma once

#include <string_view>

#include "base/Geometry.h"
#include "icons/AskedIcons.h"

namespace corvelle {

struct GuardFlags;
namespace forms {
class PictureBox;
}  // namespace forms

/// The icons in one of the strip's boxes: Begin, Draw for each, End. One that is not known by then
/// is stood for by another picture, and painted alone when it comes.
class StripIcons {
 public:
  StripIcons(const IconSources& from, const GuardFlags& guards, forms::PictureBox& box);

  /// Empties the box. Icons of an earlier round that have not come yet are given up.
  void Begin();
  /// Draws the icon of a text in a square of the box. Pixels.
  void Draw(std::string_view text, const PixelRect& place);
  /// Freezes what was drawn: a repaint is a copy of it.
  void End();
  /// The icons that have not come yet are given up.
  void Stop() { icons_.Drop(); }

 private:
  void Paint(const PixelRect& place, const IconLook& look);

  const GuardFlags& guards_;
  forms::PictureBox& box_;
  AskedIcons icons_;
};

}  // namespace corvelle
