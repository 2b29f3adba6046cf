#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "core/IconSources.h"
#include "desk/DeskRule.h"
#include "icons/IconForm.h"
#include "platform/IconPixels.h"
#include "platform/Lookups.h"

namespace corvelle {

class Canvas;

/// What is drawn in the place of an icon: one of these, or nothing at all.
struct IconLook {
  IconPixels Pixels;               // the icon
  std::optional<int> SystemIndex;  // an icon of the shell's list
  std::string Glyph;               // key of a picture of the program, while it stands for the icon

  friend bool operator==(const IconLook&, const IconLook&) = default;
};

/// The icons that one part of a window shows, each asked of the desk by its text. An icon that is
/// not known at once is stood for by the one that was known last, or by a picture of its kind. What
/// has no icon gets that of a blank document. Sizes are pixels: 16, or the shell's large size.
class AskedIcons {
 public:
  using Known = std::function<void(const IconLook&)>;

  explicit AskedIcons(const IconSources& from, IconCaller caller = IconCaller::Toolbar);
  ~AskedIcons() { Drop(); }
  AskedIcons(const AskedIcons&) = delete;
  AskedIcons& operator=(const AskedIcons&) = delete;

  /// What is to be drawn now, after a wait of at most so many milliseconds for what nothing is
  /// known of; a place that was waited for in vain is not waited for again. When that changes,
  /// `known` is called, by a turn of its own and at most once; a place that does not answer is
  /// asked again when it has rested. Words that the caller has a picture for are drawn as nothing.
  [[nodiscard]] IconLook Ask(std::string_view text, int size, int milliseconds, Known known);
  /// Nothing of what was asked is told any more.
  void Drop();

  /// Draws a look of that size with its upper left corner at the canvas's. False when nothing was
  /// drawn.
  bool Draw(Canvas& canvas, const IconLook& look, int size) const;

 private:
  struct Asked {
    std::vector<Lookup> Questions;
    std::size_t Next = 0;  // of them, the one that is being asked
    IconLook Look;
    Known Tell;
  };

  [[nodiscard]] bool HasSystemIcon(int index, int size) const;
  [[nodiscard]] IconLook StandIn(const Asked& icon, const IconForm& form) const;
  /// Asks what is still to be asked. True when it is known what is to be drawn.
  bool GoOn(const std::shared_ptr<Asked>& icon, int milliseconds);
  /// Tells what is to be drawn, if it is not what was drawn before.
  static void TellChange(Asked& icon, const IconLook& before);
  /// The same as GoOn, for an answer.
  static bool Take(Asked& icon, const desk::Reply& reply);

  const IconSources& from_;
  IconCaller caller_;
  std::uint64_t owner_;
  std::set<std::string> late_;  // places that were waited for in vain
};

}  // namespace corvelle
