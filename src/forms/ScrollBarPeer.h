#pragma once

#include "forms/WindowSystem.h"

namespace corvelle::forms {

/// How the user moves a scroll bar.
enum class ScrollStep { LineBack, LineOn, PageBack, PageOn, First, Last, Drag, DragEnd };

/// The range of a scroll bar. The value goes from Least to Most, both included.
struct ScrollRange {
  int Least = 0;
  int Most = 32767;
  int Line = 1;
  int Page = 1;
  int Value = 0;

  friend bool operator==(const ScrollRange&, const ScrollRange&) = default;
};

/// The value that a step brings; `dragged` is where the thumb is while it is dragged.
[[nodiscard]] int ScrolledTo(const ScrollRange& range, ScrollStep step, int dragged) noexcept;

class ScrollBarEvents {
 public:
  virtual ~ScrollBarEvents() = default;

  /// The user moves the bar; the thumb follows by SetRange alone. `dragged` is a value.
  virtual void OnStep(ScrollStep step, int dragged) = 0;
};

class ScrollBarPeer : public WindowPeer {
 public:
  virtual void SetRange(const ScrollRange& range) = 0;
};

}  // namespace corvelle::forms
