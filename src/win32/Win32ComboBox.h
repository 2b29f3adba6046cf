#pragma once

#include "forms/ComboBoxPeer.h"
#include "win32/Win32Control.h"
#include "win32/Win32Peer.h"

namespace corvelle::win32 {

class Win32ComboBox final : public Win32Control {
 public:
  /// How far below the line the list may reach, in pixels.
  static constexpr int kListHeight = 160;

  Win32ComboBox(Win32WindowSystem& system, bool withEntry, forms::ComboBoxEvents& events)
      : Win32Control(system), withEntry_(withEntry), comboEvents_(events) {}

  [[nodiscard]] bool Create(const forms::PeerSpec& wanted);
  std::optional<LRESULT> Notified(UINT message, WPARAM wParam, LPARAM lParam) override;
  void SetToolTip(std::string_view text) override;
  [[nodiscard]] bool WithEntry() const noexcept { return withEntry_; }

 protected:
  /// The window in it that has the entry tells of the focus.
  bool TellsFocus() const override { return false; }

 private:
  static LRESULT CALLBACK EntryProcedure(HWND entry, UINT message, WPARAM wParam, LPARAM lParam,
                                         UINT_PTR id, DWORD_PTR combo) noexcept;

  bool withEntry_;
  HWND entryWindow_ = nullptr;
  forms::ComboBoxEvents& comboEvents_;
};

class Win32ComboBoxPeer final : public Win32PeerOf<forms::ComboBoxPeer, Win32ComboBox> {
 public:
  using Win32PeerOf::Win32PeerOf;

  void SetBounds(const PixelRect& bounds) override;
  void Insert(int at, std::string_view text) override;
  void Remove(int at) override;
  void Clear() override;
  void Select(int row) override;
  int Selected() const override;
  void SetText(std::string_view text) override;
  std::string Text() const override;
  void SelectText() override;
  void Drop(bool down) override;
};

}  // namespace corvelle::win32
