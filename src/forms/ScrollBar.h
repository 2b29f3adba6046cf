#pragma once

#include <functional>
#include <string>

#include "forms/ScrollBarPeer.h"
#include "forms/SystemControl.h"

namespace corvelle::forms {

/// An upright scroll bar. What is scrolled by it may hand it the wheel by TurnWheel.
class ScrollBar final : public SystemControl, private ScrollBarEvents {
 public:
  ScrollBar(Window& container, std::string name) : SystemControl(container, std::move(name)) {
    SetTabStop(false);
  }

  [[nodiscard]] int Value() const noexcept { return range_.Value; }
  /// Kept between the ends.
  void SetValue(int value);
  [[nodiscard]] const ScrollRange& Range() const noexcept { return range_; }
  void SetRange(const ScrollRange& range);

  /// The user moved it by steps, or let the thumb go.
  std::function<void()> Change;
  /// The user drags the thumb.
  std::function<void()> Scroll;

  /// Three lines a notch. True if the bar moved.
  bool TurnWheel(int delta);

 protected:
  std::unique_ptr<WindowPeer> NewPeer(WindowPeer* parent) override;
  void PeerMade() override { Own()->SetRange(range_); }
  KeyFacts Keys() const override { return {.Wants = {.Arrows = true, .Paging = true}}; }
  bool OnWheel(int delta, ShiftState shift) override;

 private:
  [[nodiscard]] ScrollBarPeer* Own() const noexcept { return static_cast<ScrollBarPeer*>(Peer()); }
  void OnStep(ScrollStep step, int dragged) override;

  ScrollRange range_;
  int wheel_ = 0;  // what of the wheel is no whole notch yet
};

}  // namespace corvelle::forms
