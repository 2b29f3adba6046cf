#include "sim/SimControlMaker.h"

#include <utility>

#include "sim/SimButton.h"
#include "sim/SimDesktop.h"
#include "sim/SimTextBox.h"

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

}  // namespace corvelle::sim
