// Another program's drag, as OLE carries it on.

#include <utility>

#include "sim/Complain.h"
#include "sim/SimDesktop.h"

namespace corvelle::sim {

namespace {

constexpr int kDragPoll = 50;  // milliseconds

}  // namespace

void SimDesktop::StartDrag(const DragSource& source) {
  if (drag_) Complain("a drag begins before the last one has ended");
  keys_.insert(source.Button == forms::MouseButton::Right ? 2 : 1);
  UserEvent([this, source] {
    if (Get(source.Window) != nullptr) Activate(TopOf(source.Window));
    dragEffect_ = forms::DropEffect::None;
    drag_ = SimDrag{.Source = source};
    drag_->Timer = clock_.Start(kDragPoll, [this] { TrackDrag(); });
    TrackDrag();
  });
}

void SimDesktop::DragFilesOver(std::vector<std::string> files, PixelPoint at) {
  StartDrag({.Data = {.Files = std::move(files)}});
  MovePointer(at.x, at.y);
}

void SimDesktop::KillDragSource() {
  UserEvent([this] {
    if (!drag_) return;
    clock_.Stop(drag_->Timer);
    drag_.reset();
    windowsMoved_ = true;
  });
}

// The innermost window under the pointer that takes drops. A form that is disabled lets nothing in.
WindowId SimDesktop::DropTargetAt(PixelPoint at) const {
  const WindowId inner = WindowAt(at);
  const SimWindow* const top = Look(TopOf(inner));
  if (top == nullptr || !top->Enabled) return kNoWindow;
  for (const SimWindow* window = Look(inner); window != nullptr; window = Look(window->Parent)) {
    if (window->TakesDrops && window->Events != nullptr) return window->Id;
  }
  return kNoWindow;
}

forms::DragPoint SimDesktop::DragPointIn(WindowId window) const {
  return {.At = InWindow(window, pointer_), .Down = ButtonsDown(), .Shift = Shift()};
}

void SimDesktop::TrackDrag() {
  if (!drag_ || drag_->InCall) return;
  const WindowId target = DropTargetAt(pointer_);
  drag_->InCall = true;
  if (target != drag_->Target) {
    const SimWindow* const left = Look(drag_->Target);
    drag_->Target = target;
    drag_->Seen = drag_->Source.Data;
    dragEffect_ = forms::DropEffect::None;
    if (left != nullptr && left->Events != nullptr) left->Events->OnDragLeave();
  }
  const SimWindow* const over = Look(target);
  if (drag_ && over != nullptr && over->Events != nullptr) {
    forms::DragData data = drag_->Seen;
    const forms::DropEffect effect =
        over->Events->OnDragOver(data, drag_->Source.Allowed, DragPointIn(target));
    if (drag_) {
      dragEffect_ = effect & drag_->Source.Allowed;
      drag_->Seen = std::move(data);
    }
  }
  if (!drag_) return;
  drag_->InCall = false;
  if (drag_->Ends) FinishDrag(drag_->EndsDrop);
}

void SimDesktop::EndDrag(bool drop) {
  if (!drag_->InCall) return FinishDrag(drop);
  if (drag_->Ends) return;
  drag_->Ends = true;
  drag_->EndsDrop = drop;
}

void SimDesktop::FinishDrag(bool drop) {
  clock_.Stop(drag_->Timer);
  SimDrag drag = std::move(*drag_);
  // While a window deals with the drop, nothing else is dragged and the mouse is free.
  drag_.reset();
  windowsMoved_ = true;
  const SimWindow* const at = Look(drag.Target);
  const bool taken = drop && dragEffect_ != forms::DropEffect::None;
  if (!taken) dragEffect_ = forms::DropEffect::None;
  if (at == nullptr || at->Events == nullptr) return;
  if (taken) {
    dragEffect_ =
        at->Events->OnDrop(drag.Source.Data, drag.Source.Allowed, DragPointIn(drag.Target));
  } else {
    at->Events->OnDragLeave();
  }
}

}  // namespace corvelle::sim
