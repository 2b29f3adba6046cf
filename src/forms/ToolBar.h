#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/SystemControl.h"
#include "forms/ToolBarPeer.h"

namespace corvelle::forms {

/// A row of buttons with pictures of 16 pixels, each with a key of the program's own and a tip. It
/// takes no focus.
class ToolBar final : public SystemControl, private ToolBarEvents {
 public:
  ToolBar(Window& container, std::string name) : SystemControl(container, std::move(name)) {
    SetTabStop(false);
  }

  /// Gives the number of the image; pixels in Image::kMask are see-through.
  int AddImage(Picture image);
  void Add(ToolBarButton button);
  void AddGap() { Add({}); }
  // A key that no button has changes nothing.
  void SetButtonEnabled(const std::string& key, bool enabled);
  void SetButtonChecked(const std::string& key, bool checked);
  [[nodiscard]] const std::vector<ToolBarButton>& Buttons() const noexcept { return buttons_; }
  /// Pixels of the control; empty while the form is not loaded, or without such a button.
  [[nodiscard]] PixelRect ButtonRect(const std::string& key) const;

  /// The user pressed the button with this key.
  std::function<void(const std::string& key)> ButtonClick;

 protected:
  std::unique_ptr<WindowPeer> NewPeer(WindowPeer* parent) override;
  void PeerMade() override;

 private:
  [[nodiscard]] ToolBarPeer* Own() const noexcept { return static_cast<ToolBarPeer*>(Peer()); }
  [[nodiscard]] int Find(const std::string& key) const;
  void Show(int button);
  void OnToolPressed(int button) override;

  std::vector<Picture> images_;
  std::vector<ToolBarButton> buttons_;
};

}  // namespace corvelle::forms
