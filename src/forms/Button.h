#pragma once

#include <functional>
#include <string>

#include "forms/ButtonPeer.h"
#include "forms/SystemControl.h"

namespace corvelle::forms {

/// A control with a caption that is pressed: with the pointer, with Space or with its access key,
/// the letter after "&" in the caption; "&&" shows one "&".
class Button : public SystemControl, private ButtonEvents {
 public:
  const std::string& Caption() const noexcept { return caption_; }
  void SetCaption(std::string caption);

  /// The user pressed it. The handler may end the form and the button with it.
  std::function<void()> Click;

  /// What a press does; nothing while it cannot be seen or is disabled.
  void Press();

 protected:
  Button(Window& container, std::string name, ButtonLook look)
      : SystemControl(container, std::move(name)), look_(look) {}

  virtual void Pressed() = 0;
  [[nodiscard]] ButtonPeer* Own() const noexcept { return static_cast<ButtonPeer*>(Peer()); }
  void TellClick();

  std::unique_ptr<WindowPeer> NewPeer(WindowPeer* parent) override;
  void PeerMade() override;
  KeyFacts Keys() const override;
  void PressByKey() override { Press(); }

 private:
  void OnPress() override { Press(); }

  ButtonLook look_;
  std::string caption_;
};

}  // namespace corvelle::forms
