#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/SystemControl.h"
#include "forms/TabStripPeer.h"

namespace corvelle::forms {

/// Tabs with keys of the program's own. The pages are other windows, which the handler of Click
/// shows and hides. Ctrl+Tab and Ctrl with PageUp or PageDown change the tab wherever the focus is
/// in the form.
class TabStrip final : public SystemControl, private TabStripEvents {
 public:
  TabStrip(Window& container, std::string name) : SystemControl(container, std::move(name)) {}

  /// The first one is chosen.
  void Add(std::string key, std::string text);
  void SetText(const std::string& key, std::string text);
  /// The key of the tab that is shown; empty without tabs.
  [[nodiscard]] std::string Selected() const;
  /// Tells nothing. A key that no tab has changes nothing.
  void Select(const std::string& key);
  /// Where pages go: pixels of this control. Empty while the form is not loaded.
  [[nodiscard]] PixelRect PageRect() const {
    return Own() != nullptr ? Own()->PageRect() : PixelRect{};
  }
  [[nodiscard]] PixelRect TabRect(int tab) const {
    return Own() != nullptr ? Own()->TabRect(tab) : PixelRect{};
  }

  /// The user wants to leave the tab that is shown; false keeps it.
  std::function<bool()> Leaving;
  /// The user chose another tab.
  std::function<void()> Click;

 protected:
  std::unique_ptr<WindowPeer> NewPeer(WindowPeer* parent) override;
  void PeerMade() override;
  KeyFacts Keys() const override { return {.Wants = {.Arrows = true}, .HasTabs = true}; }
  void ChangeTab(int step) override;

 private:
  struct Tab {
    std::string Key;
    std::string Text;
  };
  [[nodiscard]] TabStripPeer* Own() const noexcept { return static_cast<TabStripPeer*>(Peer()); }
  [[nodiscard]] int Find(const std::string& key) const;
  bool OnTabLeaving() override;
  void OnTabChosen() override;
  void TellClick();

  std::vector<Tab> tabs_;
  int selected_ = -1;
};

}  // namespace corvelle::forms
