#include "win32/Win32ControlMaker.h"

#include "win32/Win32Button.h"
#include "win32/Win32TextBox.h"

namespace corvelle::win32 {

namespace {

/// The peer of a control over a window that its class makes of `wanted` by itself.
template <class PeerKind, class WindowKind>
std::unique_ptr<PeerKind> Make(Win32WindowSystem& system, std::shared_ptr<WindowKind> window,
                               const forms::PeerSpec& wanted, forms::WindowEvents& events) {
  if (!window->Create(wanted)) return nullptr;
  window->Tell(&events);
  return std::make_unique<PeerKind>(system, std::move(window));
}

}  // namespace

std::unique_ptr<forms::ButtonPeer> Win32ControlMaker::CreateButton(
    const forms::PeerSpec& wanted, forms::ButtonLook look, forms::WindowEvents& events,
    forms::ButtonEvents& buttonEvents) {
  return Make<Win32ButtonPeer>(system_, std::make_shared<Win32Button>(system_, look, buttonEvents),
                               wanted, events);
}

std::unique_ptr<forms::TextBoxPeer> Win32ControlMaker::CreateTextBox(
    const forms::PeerSpec& wanted, const forms::TextBoxStyle& style, forms::WindowEvents& events,
    forms::TextBoxEvents& textEvents) {
  return Make<Win32TextBoxPeer>(
      system_, std::make_shared<Win32TextBox>(system_, style, textEvents), wanted, events);
}

}  // namespace corvelle::win32
