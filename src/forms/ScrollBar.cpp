#include "forms/ScrollBar.h"

#include <algorithm>

#include "forms/ControlMaker.h"

namespace corvelle::forms {

namespace {

constexpr int kNotch = 120;
constexpr int kLinesOfANotch = 3;

int Between(const ScrollRange& range, int value) noexcept {
  return std::clamp(value, range.Least, std::max(range.Least, range.Most));
}

}  // namespace

int ScrolledTo(const ScrollRange& range, ScrollStep step, int dragged) noexcept {
  switch (step) {
    case ScrollStep::LineBack:
      return Between(range, range.Value - range.Line);
    case ScrollStep::LineOn:
      return Between(range, range.Value + range.Line);
    case ScrollStep::PageBack:
      return Between(range, range.Value - range.Page);
    case ScrollStep::PageOn:
      return Between(range, range.Value + range.Page);
    case ScrollStep::First:
      return range.Least;
    case ScrollStep::Last:
      return Between(range, range.Most);
    case ScrollStep::Drag:
    case ScrollStep::DragEnd:
      return Between(range, dragged);
  }
  return range.Value;
}

void ScrollBar::SetRange(const ScrollRange& range) {
  range_ = range;
  range_.Value = Between(range_, range_.Value);
  if (Own() != nullptr) Own()->SetRange(range_);
}

void ScrollBar::SetValue(int value) {
  ScrollRange range = range_;
  range.Value = value;
  SetRange(range);
}

std::unique_ptr<WindowPeer> ScrollBar::NewPeer(WindowPeer* parent) {
  return Windows().Controls().CreateScrollBar(SpecIn(parent), *this, *this);
}

void ScrollBar::OnStep(ScrollStep step, int dragged) {
  const int before = range_.Value;
  SetValue(ScrolledTo(range_, step, dragged));
  // The end of a drag is told, though the thumb was there already.
  if (range_.Value == before && step != ScrollStep::DragEnd) return;
  const std::function<void()> handler = step == ScrollStep::Drag ? Scroll : Change;
  if (handler) handler();
}

bool ScrollBar::TurnWheel(int delta) {
  wheel_ += delta;
  const int notches = wheel_ / kNotch;
  wheel_ -= notches * kNotch;
  const int before = range_.Value;
  SetValue(before - notches * kLinesOfANotch * range_.Line);
  if (range_.Value == before) return false;
  const std::function<void()> change = Change;
  if (change) change();
  return true;
}

bool ScrollBar::OnWheel(int delta, ShiftState shift) {
  return SystemControl::OnWheel(delta, shift) || TurnWheel(delta);
}

}  // namespace corvelle::forms
