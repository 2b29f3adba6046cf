#include "sim/SimControlMaker.h"

#include <utility>

#include "sim/SimButton.h"
#include "sim/SimComboBox.h"
#include "sim/SimDesktop.h"
#include "sim/SimListBox.h"
#include "sim/SimScrollBar.h"
#include "sim/SimTabStrip.h"
#include "sim/SimTextBox.h"
#include "sim/SimToolBar.h"
#include "sim/SimTree.h"

namespace corvelle::sim {

template <class Control, class... More>
std::unique_ptr<Control> SimControlMaker::Make(const forms::PeerSpec& wanted,
                                               forms::WindowEvents& events, More&&... more) {
  const WindowId id = desktop_.AddOwn(wanted, events);
  if (id == kNoWindow) return nullptr;
  auto control = std::make_unique<Control>(desktop_, id, std::forward<More>(more)...);
  desktop_.SetControl(id, control.get());
  return control;
}

std::unique_ptr<forms::ButtonPeer> SimControlMaker::CreateButton(
    const forms::PeerSpec& wanted, forms::ButtonLook look, forms::WindowEvents& events,
    forms::ButtonEvents& buttonEvents) {
  return Make<SimButton>(wanted, events, look, buttonEvents);
}

std::unique_ptr<forms::TextBoxPeer> SimControlMaker::CreateTextBox(
    const forms::PeerSpec& wanted, const forms::TextBoxStyle& style, forms::WindowEvents& events,
    forms::TextBoxEvents& textEvents) {
  return Make<SimTextBox>(wanted, events, style, textEvents);
}

std::unique_ptr<forms::ListBoxPeer> SimControlMaker::CreateListBox(
    const forms::PeerSpec& wanted, forms::WindowEvents& events, forms::ListBoxEvents& listEvents) {
  return Make<SimListBox>(wanted, events, listEvents);
}

std::unique_ptr<forms::ComboBoxPeer> SimControlMaker::CreateComboBox(
    const forms::PeerSpec& wanted, bool withEntry, forms::WindowEvents& events,
    forms::ComboBoxEvents& comboEvents) {
  return Make<SimComboBox>(wanted, events, withEntry, comboEvents);
}

std::unique_ptr<forms::ScrollBarPeer> SimControlMaker::CreateScrollBar(
    const forms::PeerSpec& wanted, forms::WindowEvents& events,
    forms::ScrollBarEvents& scrollEvents) {
  return Make<SimScrollBar>(wanted, events, scrollEvents);
}

std::unique_ptr<forms::TabStripPeer> SimControlMaker::CreateTabStrip(
    const forms::PeerSpec& wanted, forms::WindowEvents& events, forms::TabStripEvents& tabEvents) {
  return Make<SimTabStrip>(wanted, events, tabEvents);
}

std::unique_ptr<forms::TreePeer> SimControlMaker::CreateTree(const forms::PeerSpec& wanted,
                                                             const forms::TreeStyle& style,
                                                             forms::WindowEvents& events,
                                                             forms::TreeEvents& treeEvents) {
  return Make<SimTree>(wanted, events, style, treeEvents);
}

std::unique_ptr<forms::ToolBarPeer> SimControlMaker::CreateToolBar(
    const forms::PeerSpec& wanted, forms::WindowEvents& events, forms::ToolBarEvents& toolEvents) {
  return Make<SimToolBar>(wanted, events, toolEvents);
}

}  // namespace corvelle::sim
