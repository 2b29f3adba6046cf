#pragma once

#include "forms/ListBoxPeer.h"
#include "win32/Win32Control.h"
#include "win32/Win32Peer.h"

namespace corvelle::win32 {

class Win32ListBox final : public Win32Control {
 public:
  Win32ListBox(Win32WindowSystem& system, forms::ListBoxEvents& events)
      : Win32Control(system), listEvents_(events) {}

  [[nodiscard]] bool Create(const forms::PeerSpec& wanted);
  std::optional<LRESULT> Notified(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  forms::ListBoxEvents& listEvents_;
};

class Win32ListBoxPeer final : public Win32PeerOf<forms::ListBoxPeer, Win32ListBox> {
 public:
  using Win32PeerOf::Win32PeerOf;

  void Insert(int at, std::string_view text) override;
  void Remove(int at) override;
  void Clear() override;
  void Select(int row) override;
  int Selected() const override;
  void SetTopRow(int row) override;
  int TopRow() const override;
  int RowAt(PixelPoint at) const override;
};

}  // namespace corvelle::win32
