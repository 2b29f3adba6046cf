#pragma once

#include <memory>

#include "forms/WindowSystem.h"

namespace corvelle::forms {

class ButtonEvents;
class ButtonPeer;
class ComboBoxEvents;
class ComboBoxPeer;
class ListBoxEvents;
class ListBoxPeer;
class ScrollBarEvents;
class ScrollBarPeer;
class TabStripEvents;
class TabStripPeer;
class ToolBarEvents;
class ToolBarPeer;
class TreeEvents;
class TreePeer;
struct TreeStyle;
enum class ButtonLook;
class TextBoxEvents;
class TextBoxPeer;
struct TextBoxStyle;

/// Makes the controls that the system draws and works, with its own font. Each is hidden at first,
/// reports to its events, which outlive it, and is null when the system refuses it. They take the
/// focus when they are pressed; mouse events are not told, and keys are told as OnControlKey and
/// OnControlCharacter. What the program changes in a control tells no event of its kind.
class ControlMaker {
 public:
  virtual ~ControlMaker() = default;

  virtual std::unique_ptr<ButtonPeer> CreateButton(const PeerSpec& wanted, ButtonLook look,
                                                   WindowEvents& events,
                                                   ButtonEvents& buttonEvents) = 0;
  virtual std::unique_ptr<TextBoxPeer> CreateTextBox(const PeerSpec& wanted,
                                                     const TextBoxStyle& style,
                                                     WindowEvents& events,
                                                     TextBoxEvents& textEvents) = 0;
  virtual std::unique_ptr<ListBoxPeer> CreateListBox(const PeerSpec& wanted, WindowEvents& events,
                                                     ListBoxEvents& listEvents) = 0;
  virtual std::unique_ptr<ComboBoxPeer> CreateComboBox(const PeerSpec& wanted, bool withEntry,
                                                       WindowEvents& events,
                                                       ComboBoxEvents& comboEvents) = 0;
  virtual std::unique_ptr<ScrollBarPeer> CreateScrollBar(const PeerSpec& wanted,
                                                         WindowEvents& events,
                                                         ScrollBarEvents& scrollEvents) = 0;
  virtual std::unique_ptr<TabStripPeer> CreateTabStrip(const PeerSpec& wanted, WindowEvents& events,
                                                       TabStripEvents& tabEvents) = 0;
  virtual std::unique_ptr<TreePeer> CreateTree(const PeerSpec& wanted, const TreeStyle& style,
                                               WindowEvents& events, TreeEvents& treeEvents) = 0;
  virtual std::unique_ptr<ToolBarPeer> CreateToolBar(const PeerSpec& wanted, WindowEvents& events,
                                                     ToolBarEvents& toolEvents) = 0;
};

}  // namespace corvelle::forms
