#pragma once

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/Canvas.h"

namespace corvelle {

class AskedIcons;
struct IconLook;
namespace forms {
class TreeView;
}

/// The images of a tree of entries. The list of a tree only grows while its window is loaded, so
/// that what many nodes show is in it once: a picture of the program has one image however many
/// icons it stands for, and an icon that comes late leaves none behind.
class TreeImages {
 public:
  /// The tree outlives them.
  explicit TreeImages(forms::TreeView& tree) : tree_(tree) {}
  TreeImages(const TreeImages&) = delete;
  TreeImages& operator=(const TreeImages&) = delete;

  /// Number of the image of a picture of the program (see Glyphs); of a question mark for an
  /// unknown key.
  [[nodiscard]] int OfGlyph(const std::string& key);
  /// Number of the image of what is shown in the place of an icon: a picture of the program, or the
  /// icon itself in an image of its own. A question mark for what cannot be drawn.
  [[nodiscard]] int OfLook(const IconLook& look, const AskedIcons& icons);
  /// Number of that image with the mark of a missing target.
  [[nodiscard]] int Marked(int image);
  /// While the window is not loaded: there are none.
  void Clear();

 private:
  [[nodiscard]] std::shared_ptr<Canvas> Blank() const;
  int Add(Picture picture);

  forms::TreeView& tree_;
  std::unordered_map<std::string, int> glyphs_;
  std::unordered_map<int, int> marked_;  // images with the mark, by those without
  std::vector<Picture> pictures_;        // of all images
};

}  // namespace corvelle
