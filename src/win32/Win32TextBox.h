#pragma once

#include <string>

#include "forms/TextBoxPeer.h"
#include "win32/Win32Control.h"
#include "win32/Win32Peer.h"

namespace corvelle::win32 {

class Win32TextBox final : public Win32Control {
 public:
  Win32TextBox(Win32WindowSystem& system, const forms::TextBoxStyle& style,
               forms::TextBoxEvents& events)
      : Win32Control(system), style_(style), textEvents_(events) {}

  [[nodiscard]] bool Create(const forms::PeerSpec& wanted);
  std::optional<LRESULT> Notified(UINT message, WPARAM wParam, LPARAM lParam) override;
  void SetBackColor(forms::OleColor colour);

 private:
  forms::TextBoxStyle style_;
  forms::TextBoxEvents& textEvents_;
  forms::OleColor backColor_ = forms::color::WindowGround;
};

class Win32TextBoxPeer final : public Win32PeerOf<forms::TextBoxPeer, Win32TextBox> {
 public:
  using Win32PeerOf::Win32PeerOf;

  void SetText(std::string_view text) override;
  std::string Text() const override;
  void Select(const forms::TextSelection& selection) override;
  forms::TextSelection Selection() const override;
  void SetLimit(int characters) override;
  void SetReadOnly(bool readOnly) override;
  void SetBackColor(forms::OleColor colour) override { Window().SetBackColor(colour); }
  void SetCue(std::string_view cue) override;
  void Replace(std::string_view text) override;
  void Cut() override { SendMessageW(Handle(), WM_CUT, 0, 0); }
  void Copy() override { SendMessageW(Handle(), WM_COPY, 0, 0); }
  void Paste() override { SendMessageW(Handle(), WM_PASTE, 0, 0); }
  void Undo() override { SendMessageW(Handle(), EM_UNDO, 0, 0); }
};

/// The whole text of a window.
[[nodiscard]] std::string TextOf(HWND window);

}  // namespace corvelle::win32
