#include "icons/TreeImages.h"

#include <cstddef>
#include <string_view>
#include <utility>

#include "forms/Graphic.h"
#include "forms/TreeView.h"
#include "forms/WindowSystem.h"
#include "icons/AskedIcons.h"
#include "icons/Glyphs.h"
#include "platform/ShellIcons.h"

namespace corvelle {

namespace {

constexpr std::string_view kQuestionMark = "qmark";

}  // namespace

std::shared_ptr<Canvas> TreeImages::Blank() const {
  constexpr PixelRect kWhole{0, 0, kSmallIconSize, kSmallIconSize};
  std::shared_ptr<Canvas> canvas = tree_.Windows().CreateCanvas({kSmallIconSize, kSmallIconSize});
  canvas->FillBox(kWhole, forms::Image::kMask);
  return canvas;
}

int TreeImages::Add(Picture picture) {
  pictures_.push_back(picture);
  return tree_.AddImage(std::move(picture));
}

int TreeImages::OfGlyph(const std::string& key) {
  if (const auto found = glyphs_.find(key); found != glyphs_.end()) return found->second;
  Picture picture = MakeGlyph(tree_.Windows(), key);
  const int image =
      picture != nullptr ? Add(std::move(picture)) : OfGlyph(std::string(kQuestionMark));
  glyphs_[key] = image;
  return image;
}

int TreeImages::OfLook(const IconLook& look, const AskedIcons& icons) {
  if (!look.Glyph.empty()) return OfGlyph(look.Glyph);
  std::shared_ptr<Canvas> canvas = Blank();
  if (!icons.Draw(*canvas, look, kSmallIconSize)) return OfGlyph(std::string(kQuestionMark));
  return Add(std::move(canvas));
}

int TreeImages::Marked(int image) {
  const auto found = marked_.find(image);
  if (found != marked_.end()) return found->second;
  std::shared_ptr<Canvas> canvas = Blank();
  canvas->DrawCanvas(*pictures_[static_cast<std::size_t>(image)],
                     {0, 0, kSmallIconSize, kSmallIconSize}, {0, 0});
  DrawGlyph(*canvas, tree_.Windows(), "missing", {0, 0});
  const int marked = Add(std::move(canvas));
  marked_[image] = marked;
  return marked;
}

void TreeImages::Clear() {
  tree_.ClearImages();
  glyphs_.clear();
  marked_.clear();
  pictures_.clear();
}

}  // namespace corvelle
