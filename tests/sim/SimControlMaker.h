#pragma once

#include "forms/ControlMaker.h"

namespace corvelle::sim {

class SimDesktop;

/// Makes controls of the simulated desktop.
class SimControlMaker final : public forms::ControlMaker {
 public:
  explicit SimControlMaker(SimDesktop& desktop) : desktop_(desktop) {}

  std::unique_ptr<forms::ButtonPeer> CreateButton(const forms::PeerSpec& wanted,
                                                  forms::ButtonLook look,
                                                  forms::WindowEvents& events,
                                                  forms::ButtonEvents& buttonEvents) override;
  std::unique_ptr<forms::TextBoxPeer> CreateTextBox(const forms::PeerSpec& wanted,
                                                    const forms::TextBoxStyle& style,
                                                    forms::WindowEvents& events,
                                                    forms::TextBoxEvents& textEvents) override;
  std::unique_ptr<forms::ListBoxPeer> CreateListBox(const forms::PeerSpec& wanted,
                                                    forms::WindowEvents& events,
                                                    forms::ListBoxEvents& listEvents) override;
  std::unique_ptr<forms::ComboBoxPeer> CreateComboBox(const forms::PeerSpec& wanted, bool withEntry,
                                                      forms::WindowEvents& events,
                                                      forms::ComboBoxEvents& comboEvents) override;
  std::unique_ptr<forms::ScrollBarPeer> CreateScrollBar(
      const forms::PeerSpec& wanted, forms::WindowEvents& events,
      forms::ScrollBarEvents& scrollEvents) override;
  std::unique_ptr<forms::TabStripPeer> CreateTabStrip(const forms::PeerSpec& wanted,
                                                      forms::WindowEvents& events,
                                                      forms::TabStripEvents& tabEvents) override;
  std::unique_ptr<forms::TreePeer> CreateTree(const forms::PeerSpec& wanted,
                                              const forms::TreeStyle& style,
                                              forms::WindowEvents& events,
                                              forms::TreeEvents& treeEvents) override;
  std::unique_ptr<forms::ToolBarPeer> CreateToolBar(const forms::PeerSpec& wanted,
                                                    forms::WindowEvents& events,
                                                    forms::ToolBarEvents& toolEvents) override;

 private:
  /// A control of this kind, with what its events need besides.
  template <class Control, class... More>
  std::unique_ptr<Control> Make(const forms::PeerSpec& wanted, forms::WindowEvents& events,
                                More&&... more);

  SimDesktop& desktop_;
};

}  // namespace corvelle::sim
