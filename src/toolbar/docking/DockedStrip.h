#pragma once

#include "toolbar/layout/StripWindow.h"

namespace corvelle {

namespace forms {
class PictureBox;
}

/// The strip as its docking sees it: a window with contents that can be built, fitted and hidden.
class DockedStrip : public virtual StripWindow {
 public:
  /// The box of the single buttons, which is fitted into the length of an edge.
  [[nodiscard]] virtual forms::PictureBox& SinglesBox() noexcept = 0;

  /// False while the strip is a line.
  [[nodiscard]] virtual bool ContentsVisible() const = 0;
  virtual void ShowContents() = 0;
  /// What remains is a line, or bare.
  virtual void HideContents() = 0;

  virtual void UnloadItems() = 0;
  virtual void InitButtons() = 0;
  virtual void DoSingleButtons() = 0;
  /// Sizes both boxes, the grip and the window.
  virtual void SetControls() = 0;
  virtual void DrawBorders() = 0;
  virtual void DoLabelDate() = 0;

  /// The timer of Auto Hide, by which the strip also catches up with what it could not follow.
  virtual void WatchHiding(bool enabled) = 0;
  /// After a strip went into hiding: under a full-screen program it is behind all again.
  virtual void SinkAgain() = 0;
  /// Bars or the screen have changed at a moment when the strip could not be placed: it is placed
  /// as soon as it can be.
  virtual void FollowBarsLater() = 0;
};

}  // namespace corvelle
