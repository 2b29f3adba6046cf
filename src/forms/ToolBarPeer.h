#pragma once

#include <string>

#include "forms/WindowSystem.h"

namespace corvelle::forms {

/// One button of a tool bar, or a gap between two groups.
struct ToolBarButton {
  std::string Key;  // the program's name for it; empty for a gap
  std::string Tip;
  int Image = -1;
  bool Enabled = true;
  bool Checked = false;

  [[nodiscard]] bool IsGap() const noexcept { return Key.empty(); }
};

class ToolBarEvents {
 public:
  virtual ~ToolBarEvents() = default;

  /// The user pressed a button, counted from 0 with the gaps. It may destroy the bar.
  virtual void OnToolPressed(int button) = 0;
};

/// The window of a tool bar. Buttons count from 0, gaps with them.
class ToolBarPeer : public WindowPeer {
 public:
  /// Pixels in Image::kMask are see-through. Images count from 0.
  virtual void AddImage(const Canvas& image) = 0;
  virtual void Add(const ToolBarButton& button) = 0;
  virtual void SetButton(int at, bool enabled, bool checked) = 0;
  /// Pixels of the window.
  [[nodiscard]] virtual PixelRect ButtonRect(int at) const = 0;
};

}  // namespace corvelle::forms
