#pragma once

#include <string>
#include <vector>

#include "forms/ListBoxPeer.h"
#include "sim/SimPeer.h"

namespace corvelle::sim {

class SimListBox final : public SimPeerOf<forms::ListBoxPeer>, public SimControl {
 public:
  static constexpr int kRowHeight = 16;

  SimListBox(SimDesktop& desktop, WindowId window, forms::ListBoxEvents& events)
      : SimPeerOf(desktop, window), events_(events) {}

  void Insert(int at, std::string_view text) override;
  void Remove(int at) override;
  void Clear() override;
  void Select(int row) override;
  int Selected() const override { return selected_; }
  void SetTopRow(int row) override;
  int TopRow() const override { return top_; }
  int RowAt(PixelPoint at) const override;

  void Paint(SimCanvas& canvas, const SimWindow& window, bool focused) const override;
  void Press(forms::MouseButton button, forms::ShiftState shift, PixelPoint at,
             bool second) override;
  void Key(int keyCode, forms::ShiftState shift) override;
  void Character(char32_t character) override;
  bool Wheel(int delta) override;

 private:
  [[nodiscard]] int Count() const noexcept { return static_cast<int>(rows_.size()); }
  [[nodiscard]] int RowsSeen() const;
  /// The user goes to a row, which is told if it is another one.
  void Choose(int row);

  forms::ListBoxEvents& events_;
  std::vector<std::string> rows_;
  int selected_ = -1;
  int top_ = 0;
};

}  // namespace corvelle::sim
