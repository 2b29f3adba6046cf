#pragma once

#include "forms/ButtonPeer.h"
#include "win32/Win32Control.h"
#include "win32/Win32Peer.h"

namespace corvelle::win32 {

/// A button, check box, option or frame of the system. Its tick is the program's affair.
class Win32Button final : public Win32Control {
 public:
  Win32Button(Win32WindowSystem& system, forms::ButtonLook look, forms::ButtonEvents& events)
      : Win32Control(system), look_(look), buttonEvents_(events) {}

  [[nodiscard]] bool Create(const forms::PeerSpec& wanted);
  [[nodiscard]] bool TakesFocus() const override { return look_ != forms::ButtonLook::Frame; }
  std::optional<LRESULT> Notified(UINT message, WPARAM wParam, LPARAM lParam) override;

 protected:
  std::optional<LRESULT> Own(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  forms::ButtonLook look_;
  forms::ButtonEvents& buttonEvents_;
};

class Win32ButtonPeer final : public Win32PeerOf<forms::ButtonPeer, Win32Button> {
 public:
  using Win32PeerOf::Win32PeerOf;

  void SetChecked(bool checked) override;
  void SetDefault(bool isDefault) override;
};

}  // namespace corvelle::win32
