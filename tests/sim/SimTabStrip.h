#pragma once

#include <string>
#include <vector>

#include "forms/TabStripPeer.h"
#include "sim/SimPeer.h"

namespace corvelle::sim {

class SimTabStrip final : public SimPeerOf<forms::TabStripPeer>, public SimControl {
 public:
  static constexpr int kTabHeight = 21;

  SimTabStrip(SimDesktop& desktop, WindowId window, forms::TabStripEvents& events)
      : SimPeerOf(desktop, window), events_(events) {}

  void Add(std::string_view text) override;
  void SetText(int tab, std::string_view text) override;
  void Select(int tab) override;
  int Selected() const override { return selected_; }
  PixelRect PageRect() const override;
  PixelRect TabRect(int tab) const override;

  void Paint(SimCanvas& canvas, const SimWindow& window, bool focused) const override;
  void Press(forms::MouseButton button, forms::ShiftState shift, PixelPoint at,
             bool second) override;
  void Key(int keyCode, forms::ShiftState shift) override;

 private:
  [[nodiscard]] int Count() const noexcept { return static_cast<int>(tabs_.size()); }
  void Choose(int tab);

  forms::TabStripEvents& events_;
  std::vector<std::string> tabs_;
  int selected_ = -1;
};

}  // namespace corvelle::sim
