#pragma once

#include "forms/ScrollBarPeer.h"
#include "win32/Win32Control.h"
#include "win32/Win32Peer.h"

namespace corvelle::win32 {

class Win32ScrollBar final : public Win32Control {
 public:
  Win32ScrollBar(Win32WindowSystem& system, forms::ScrollBarEvents& events)
      : Win32Control(system), scrollEvents_(events) {}

  [[nodiscard]] bool Create(const forms::PeerSpec& wanted);
  [[nodiscard]] bool TakesFocus() const override { return false; }
  std::optional<LRESULT> Notified(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  forms::ScrollBarEvents& scrollEvents_;
};

class Win32ScrollBarPeer final : public Win32PeerOf<forms::ScrollBarPeer, Win32ScrollBar> {
 public:
  using Win32PeerOf::Win32PeerOf;

  void SetRange(const forms::ScrollRange& range) override;
};

}  // namespace corvelle::win32
