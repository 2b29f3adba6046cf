#include "win32/Win32ScrollBar.h"

#include <algorithm>

namespace corvelle::win32 {

using forms::ScrollStep;

namespace {

std::optional<ScrollStep> StepOf(WORD code) {
  switch (code) {
    case SB_LINEUP:
      return ScrollStep::LineBack;
    case SB_LINEDOWN:
      return ScrollStep::LineOn;
    case SB_PAGEUP:
      return ScrollStep::PageBack;
    case SB_PAGEDOWN:
      return ScrollStep::PageOn;
    case SB_TOP:
      return ScrollStep::First;
    case SB_BOTTOM:
      return ScrollStep::Last;
    case SB_THUMBTRACK:
      return ScrollStep::Drag;
    case SB_THUMBPOSITION:
      return ScrollStep::DragEnd;
    default:
      return std::nullopt;
  }
}

}  // namespace

bool Win32ScrollBar::Create(const forms::PeerSpec& wanted) {
  return CreateAs(WC_SCROLLBARW, SBS_VERT, 0, wanted);
}

std::optional<LRESULT> Win32ScrollBar::Notified(UINT message, WPARAM wParam, LPARAM /*lParam*/) {
  if (message != WM_VSCROLL) return std::nullopt;
  const auto step = StepOf(LOWORD(wParam));
  if (!step || events_ == nullptr) return 0;
  // The message has room for half of the value only.
  SCROLLINFO info{};
  info.cbSize = sizeof(info);
  info.fMask = SIF_TRACKPOS;
  GetScrollInfo(handle_, SB_CTL, &info);
  scrollEvents_.OnStep(*step, info.nTrackPos);
  return 0;
}

void Win32ScrollBarPeer::SetRange(const forms::ScrollRange& range) {
  SCROLLINFO info{};
  info.cbSize = sizeof(info);
  info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_DISABLENOSCROLL;
  info.nMin = range.Least;
  // The last value is the one at which the last page begins.
  info.nMax = std::max(range.Least, range.Most) + std::max(range.Page, 1) - 1;
  info.nPage = static_cast<UINT>(std::max(range.Page, 1));
  info.nPos = range.Value;
  SetScrollInfo(Handle(), SB_CTL, &info, TRUE);
}

}  // namespace corvelle::win32
