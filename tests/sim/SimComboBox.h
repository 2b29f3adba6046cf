#pragma once

#include <string>
#include <vector>

#include "forms/ComboBoxPeer.h"
#include "sim/SimPeer.h"
#include "sim/SimTextEdit.h"

namespace corvelle::sim {

/// A combo box. Its open list is a state, without a window of its own: the user goes through it by
/// keys.
class SimComboBox final : public SimPeerOf<forms::ComboBoxPeer>, public SimControl {
 public:
  SimComboBox(SimDesktop& desktop, WindowId window, bool withEntry, forms::ComboBoxEvents& events)
      : SimPeerOf(desktop, window), withEntry_(withEntry), events_(events) {}

  void Insert(int at, std::string_view text) override;
  void Remove(int at) override;
  void Clear() override;
  void Select(int row) override;
  int Selected() const override { return selected_; }
  void SetText(std::string_view text) override;
  std::string Text() const override { return edit_.Text(); }
  void SelectText() override;
  void Drop(bool down) override;

  void Paint(SimCanvas& canvas, const SimWindow& window, bool focused) const override;
  void Press(forms::MouseButton button, forms::ShiftState shift, PixelPoint at,
             bool second) override;
  void Key(int keyCode, forms::ShiftState shift) override;
  void Character(char32_t character) override;
  void Focus(bool gained) override;

 private:
  [[nodiscard]] int Count() const noexcept { return static_cast<int>(rows_.size()); }
  void Choose(int row);
  void TellEdit(bool changed);

  bool withEntry_;
  forms::ComboBoxEvents& events_;
  std::vector<std::string> rows_;
  SimTextEdit edit_;
  int selected_ = -1;
  bool dropped_ = false;
};

}  // namespace corvelle::sim
