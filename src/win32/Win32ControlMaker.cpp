#include "win32/Win32ControlMaker.h"

#include "win32/Win32Button.h"
#include "win32/Win32ComboBox.h"
#include "win32/Win32ListBox.h"
#include "win32/Win32ScrollBar.h"
#include "win32/Win32TabStrip.h"
#include "win32/Win32TextBox.h"
#include "win32/Win32ToolBar.h"
#include "win32/Win32Tree.h"

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
  return Make<Win32TextBoxPeer>(system_, std::make_shared<Win32TextBox>(system_, style, textEvents),
                                wanted, events);
}

std::unique_ptr<forms::ListBoxPeer> Win32ControlMaker::CreateListBox(
    const forms::PeerSpec& wanted, forms::WindowEvents& events, forms::ListBoxEvents& listEvents) {
  return Make<Win32ListBoxPeer>(system_, std::make_shared<Win32ListBox>(system_, listEvents),
                                wanted, events);
}

std::unique_ptr<forms::ComboBoxPeer> Win32ControlMaker::CreateComboBox(
    const forms::PeerSpec& wanted, bool withEntry, forms::WindowEvents& events,
    forms::ComboBoxEvents& comboEvents) {
  return Make<Win32ComboBoxPeer>(
      system_, std::make_shared<Win32ComboBox>(system_, withEntry, comboEvents), wanted, events);
}

std::unique_ptr<forms::ScrollBarPeer> Win32ControlMaker::CreateScrollBar(
    const forms::PeerSpec& wanted, forms::WindowEvents& events,
    forms::ScrollBarEvents& scrollEvents) {
  return Make<Win32ScrollBarPeer>(system_, std::make_shared<Win32ScrollBar>(system_, scrollEvents),
                                  wanted, events);
}

std::unique_ptr<forms::TabStripPeer> Win32ControlMaker::CreateTabStrip(
    const forms::PeerSpec& wanted, forms::WindowEvents& events, forms::TabStripEvents& tabEvents) {
  return Make<Win32TabStripPeer>(system_, std::make_shared<Win32TabStrip>(system_, tabEvents),
                                 wanted, events);
}

std::unique_ptr<forms::TreePeer> Win32ControlMaker::CreateTree(const forms::PeerSpec& wanted,
                                                               const forms::TreeStyle& style,
                                                               forms::WindowEvents& events,
                                                               forms::TreeEvents& treeEvents) {
  return Make<Win32TreePeer>(system_, std::make_shared<Win32Tree>(system_, style, treeEvents),
                             wanted, events);
}

std::unique_ptr<forms::ToolBarPeer> Win32ControlMaker::CreateToolBar(
    const forms::PeerSpec& wanted, forms::WindowEvents& events, forms::ToolBarEvents& toolEvents) {
  return Make<Win32ToolBarPeer>(system_, std::make_shared<Win32ToolBar>(system_, toolEvents),
                                wanted, events);
}

}  // namespace corvelle::win32
