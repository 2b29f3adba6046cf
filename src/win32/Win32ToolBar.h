#pragma once

#include "forms/ToolBarPeer.h"
#include "win32/Win32Control.h"
#include "win32/Win32Peer.h"

namespace corvelle::win32 {

class Win32ToolBar final : public Win32Control {
 public:
  Win32ToolBar(Win32WindowSystem& system, forms::ToolBarEvents& events)
      : Win32Control(system), toolEvents_(events) {}

  [[nodiscard]] bool Create(const forms::PeerSpec& wanted);
  [[nodiscard]] bool TakesFocus() const override { return false; }
  std::optional<LRESULT> Notified(UINT message, WPARAM wParam, LPARAM lParam) override;
  void AddImage(const Canvas& image);

 private:
  forms::ToolBarEvents& toolEvents_;
  UniqueImageList images_;
};

class Win32ToolBarPeer final : public Win32PeerOf<forms::ToolBarPeer, Win32ToolBar> {
 public:
  using Win32PeerOf::Win32PeerOf;

  void AddImage(const Canvas& image) override { Window().AddImage(image); }
  void Add(const forms::ToolBarButton& button) override;
  void SetButton(int at, bool enabled, bool checked) override;
  PixelRect ButtonRect(int at) const override;
};

}  // namespace corvelle::win32
