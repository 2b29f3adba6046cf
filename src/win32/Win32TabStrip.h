#pragma once

#include "forms/TabStripPeer.h"
#include "win32/Win32Control.h"
#include "win32/Win32Peer.h"

namespace corvelle::win32 {

class Win32TabStrip final : public Win32Control {
 public:
  Win32TabStrip(Win32WindowSystem& system, forms::TabStripEvents& events)
      : Win32Control(system), tabEvents_(events) {}

  [[nodiscard]] bool Create(const forms::PeerSpec& wanted);
  std::optional<LRESULT> Notified(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  forms::TabStripEvents& tabEvents_;
};

class Win32TabStripPeer final : public Win32PeerOf<forms::TabStripPeer, Win32TabStrip> {
 public:
  using Win32PeerOf::Win32PeerOf;

  void Add(std::string_view text) override;
  void SetText(int tab, std::string_view text) override;
  void Select(int tab) override;
  int Selected() const override;
  PixelRect PageRect() const override;
  PixelRect TabRect(int tab) const override;
};

}  // namespace corvelle::win32
