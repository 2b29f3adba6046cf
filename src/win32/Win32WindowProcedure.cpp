// What Windows tells a window, and how that becomes events.

#include <cstdint>
#include <utility>

#include "forms/Menu.h"
#include "win32/MouseKeys.h"
#include "win32/Win32Canvas.h"
#include "win32/Win32DropTarget.h"
#include "win32/Win32Window.h"
#include "win32/Win32WindowSystem.h"

namespace corvelle::win32 {

namespace {

using forms::MouseButton;
using forms::ShiftState;

constexpr WPARAM kAnyButton = MK_LBUTTON | MK_RBUTTON | MK_MBUTTON;

bool IsDown(int virtualKey) { return GetKeyState(virtualKey) < 0; }

ShiftState ShiftOfKeyboard() {
  return {.Shift = IsDown(VK_SHIFT), .Ctrl = IsDown(VK_CONTROL), .Alt = IsDown(VK_MENU)};
}

MouseButton ButtonOf(UINT message) {
  switch (message) {
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
    case WM_RBUTTONUP:
      return MouseButton::Right;
    case WM_MBUTTONDOWN:
    case WM_MBUTTONDBLCLK:
    case WM_MBUTTONUP:
      return MouseButton::Middle;
    default:
      return MouseButton::Left;
  }
}

// Both are signed: the pointer can be left of and above a window that holds a press.
PixelPoint PointOf(LPARAM lParam) {
  return {static_cast<std::int16_t>(LOWORD(lParam)), static_cast<std::int16_t>(HIWORD(lParam))};
}

/// Begins and ends a paint. The end does no harm when the window is gone by then.
class PaintScope {
 public:
  explicit PaintScope(HWND window) noexcept : window_(window) { BeginPaint(window_, &paint_); }
  PaintScope(const PaintScope&) = delete;
  PaintScope& operator=(const PaintScope&) = delete;
  ~PaintScope() { EndPaint(window_, &paint_); }

  HDC Dc() const noexcept { return paint_.hdc; }
  PixelRect Dirty() const noexcept { return FromRect(paint_.rcPaint); }

 private:
  HWND window_;
  PAINTSTRUCT paint_{};
};

}  // namespace

// Nothing that an event does may throw into Windows: noexcept ends the program first.
LRESULT CALLBACK Win32Window::Procedure(HWND handle, UINT message, WPARAM wParam,
                                        LPARAM lParam) noexcept {
  if (message == WM_NCCREATE) {
    const auto* const made = reinterpret_cast<const CREATESTRUCTW*>(lParam);
    auto* const created = static_cast<Win32Window*>(made->lpCreateParams);
    created->handle_ = handle;
    SetWindowLongPtrW(handle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
  }
  auto* const window = reinterpret_cast<Win32Window*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
  if (window == nullptr) return DefWindowProcW(handle, message, wParam, lParam);
  const std::shared_ptr<Win32Window> keep = window->shared_from_this();
  // Whoever destroys it, and while OLE still finds what it keeps with the window.
  if (message == WM_DESTROY) window->Ending();
  if (message == WM_NCDESTROY) {
    SetWindowLongPtrW(handle, GWLP_USERDATA, 0);
    window->handle_ = nullptr;
    window->events_ = nullptr;
    return DefWindowProcW(handle, message, wParam, lParam);
  }
  const LRESULT answer = window->Receive(message, wParam, lParam);
  // What was under the pointer may have another tip now.
  window->RelayToToolTip(message, wParam, lParam);
  return answer;
}

void Win32Window::Ending() {
  if (takesDrops_) StopTakingDrops(handle_);
  if (hasToolTip_) system_.ToolTips().Forget(handle_);
}

LRESULT Win32Window::Receive(UINT message, WPARAM wParam, LPARAM lParam) {
  if (IsForm() && events_ != nullptr) {
    const auto answer = events_->OnMessage(message, wParam, lParam);
    if (answer) return *answer;
  }
  return Treat(message, wParam, lParam);
}

LRESULT Win32Window::Default(UINT message, WPARAM wParam, LPARAM lParam) {
  // The window may be gone by now, and the messages of one that is are nobody's.
  return handle_ != nullptr ? DefWindowProcW(handle_, message, wParam, lParam) : 0;
}

LRESULT Win32Window::Treat(UINT message, WPARAM wParam, LPARAM lParam) {
  if (const auto answer = TreatFrame(message, wParam, lParam)) return *answer;
  if (const auto teller = TellerOf(handle_, message, wParam, lParam)) {
    if (const auto answer = teller->Notified(message, wParam, lParam)) return *answer;
  }
  if (events_ == nullptr) return Default(message, wParam, lParam);
  if (const auto answer = TreatMouse(message, wParam, lParam)) return *answer;
  if (const auto answer = TreatKeys(message, wParam, lParam)) return *answer;
  if (const auto answer = TreatFocus(message, wParam, lParam)) return *answer;
  if (const auto answer = TreatEnd(message, wParam)) return *answer;
  if (const auto answer = TreatMenu(message, wParam, lParam)) return *answer;
  return Default(message, wParam, lParam);
}

// The window itself.

std::optional<LRESULT> Win32Window::TreatFrame(UINT message, WPARAM wParam, LPARAM lParam) {
  // A frame of the system is the system's.
  if (frame_ != forms::FrameStyle::None &&
      (message == WM_NCCALCSIZE || message == WM_NCPAINT || message == WM_NCACTIVATE)) {
    return std::nullopt;
  }
  switch (message) {
    case WM_NCCALCSIZE:
      // The inside is the whole window: forms paint their own frames.
      if (!IsForm()) return std::nullopt;
      return 0;
    case WM_NCPAINT:
      return 0;
    case WM_NCACTIVATE:
      // Without the drawing of the caption that the window does not show.
      return Default(message, wParam, -1);
    case WM_GETMINMAXINFO: {
      // A form can be smaller than a caption with its buttons.
      const LRESULT answer = Default(message, wParam, lParam);
      reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {leastSize_.width, leastSize_.height};
      return answer;
    }
    case WM_PRINTCLIENT:
    case WM_ERASEBKGND:
      // A child that is drawn in the look of a theme asks for the ground beneath it.
      if (WindowFromDC(reinterpret_cast<HDC>(wParam)) != handle_) {
        RECT inside{};
        GetClientRect(handle_, &inside);
        FillRect(reinterpret_cast<HDC>(wParam), &inside, GetSysColorBrush(COLOR_BTNFACE));
      }
      return 1;
    case WM_PAINT:
      Paint();
      return 0;
    case WM_SETCURSOR:
      if (LOWORD(lParam) != HTCLIENT) return std::nullopt;
      // A control asks first whether there is another pointer than that of its kind.
      if (reinterpret_cast<HWND>(wParam) != handle_ &&
          system_.CurrentMousePointer() == forms::MousePointer::Default) {
        return FALSE;
      }
      system_.ShowPointer();
      return TRUE;
    case WM_ACTIVATE:
      Activated(wParam, lParam);
      return 0;
    case WM_WINDOWPOSCHANGED: {
      const WINDOWPOS position = *reinterpret_cast<const WINDOWPOS*>(lParam);
      Default(message, wParam, lParam);
      PositionChanged(position);
      return 0;
    }
    default:
      return std::nullopt;
  }
}

void Win32Window::Paint() {
  const PaintScope paint(handle_);
  const PixelRect dirty = paint.Dirty();
  if (events_ == nullptr || paint.Dc() == nullptr || dirty.IsEmpty()) return;
  RECT inside{};
  GetClientRect(handle_, &inside);
  BorrowedCanvas canvas(paint.Dc(), FromRect(inside).Size(), system_.Tools());
  events_->OnPaint(canvas, dirty);
}

void Win32Window::PositionChanged(const WINDOWPOS& position) {
  if (handle_ == nullptr) return;
  if ((position.flags & SWP_HIDEWINDOW) != 0) {
    // A window that cannot be seen holds no press.
    const HWND captured = GetCapture();
    if (captured == handle_ || IsChild(handle_, captured) != 0) ReleaseCapture();
  }
  // A minimized window has no bounds to tell.
  if (events_ == nullptr || IsIconic(handle_) != 0) return;
  const PixelRect bounds = Bounds();
  if (bounds == told_) return;
  told_ = bounds;
  events_->OnMoved(bounds);
}

// The child that was made first lies at the bottom.
HWND Win32Window::FirstFocusIn(HWND container) {
  const HWND top = GetTopWindow(container);
  for (HWND child = top != nullptr ? GetWindow(top, GW_HWNDLAST) : nullptr; child != nullptr;
       child = GetWindow(child, GW_HWNDPREV)) {
    const Win32Window* const window = Of(child);
    if (window == nullptr || IsWindowVisible(child) == 0 || IsWindowEnabled(child) == 0) continue;
    if (window->TakesFocus()) return child;
    if (const HWND inside = FirstFocusIn(child)) return inside;
  }
  return nullptr;
}

HWND Win32Window::FocusTarget() const {
  if (focus_ != nullptr && IsChild(handle_, focus_) != 0 && IsWindowVisible(focus_) != 0 &&
      IsWindowEnabled(focus_) != 0) {
    return focus_;
  }
  const HWND first = FirstFocusIn(handle_);
  return first != nullptr ? first : handle_;
}

void Win32Window::Activated(WPARAM wParam, LPARAM /*lParam*/) {
  const bool active = LOWORD(wParam) != WA_INACTIVE;
  const bool minimized = HIWORD(wParam) != 0;
  if (!IsForm()) return;
  if (!active && IsChild(handle_, GetFocus()) != 0) focus_ = GetFocus();
  if (active && !minimized) ::SetFocus(FocusTarget());
  if (events_ == nullptr) return;
  events_->OnActivated(active && !minimized);
}

// The mouse.

std::optional<LRESULT> Win32Window::TreatMouse(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_MOUSEMOVE:
      events_->OnMouseMove(ButtonsDown(wParam), ShiftOfMouse(wParam), PointOf(lParam));
      return 0;
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDBLCLK:
    case WM_MBUTTONDBLCLK:
      return Press(message, wParam, lParam);
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
    case WM_MBUTTONUP:
      return ReleaseButton(message, wParam, lParam);
    case WM_CAPTURECHANGED:
      if (reinterpret_cast<HWND>(lParam) == handle_) return 0;
      if (std::exchange(pressed_, false)) events_->OnCaptureLost();
      return 0;
    default:
      return std::nullopt;
  }
}

LRESULT Win32Window::Press(UINT message, WPARAM wParam, LPARAM lParam) {
  SetCapture(handle_);
  pressed_ = true;
  if (tabStop_ && GetFocus() != handle_) ::SetFocus(handle_);
  if (events_ == nullptr) return 0;
  if (message == WM_LBUTTONDBLCLK) {
    events_->OnDoubleClick(PointOf(lParam));
  } else {
    events_->OnMouseDown(ButtonOf(message), ShiftOfMouse(wParam), PointOf(lParam));
  }
  return 0;
}

LRESULT Win32Window::ReleaseButton(UINT message, WPARAM wParam, LPARAM lParam) {
  if ((wParam & kAnyButton) == 0 && GetCapture() == handle_) {
    pressed_ = false;
    ReleaseCapture();
  }
  if (events_ != nullptr)
    events_->OnMouseUp(ButtonOf(message), ShiftOfMouse(wParam), PointOf(lParam));
  return 0;
}

// The keyboard.

std::optional<LRESULT> Win32Window::TreatKeys(UINT message, WPARAM wParam, LPARAM lParam) {
  // The active window is told of the keys even while it is disabled, and so is a child of it.
  if (message >= WM_KEYFIRST && message <= WM_KEYLAST &&
      IsWindowEnabled(GetAncestor(handle_, GA_ROOT)) == 0) {
    return 0;
  }
  switch (message) {
    case WM_KEYDOWN:
      events_->OnKeyDown(static_cast<int>(wParam), ShiftOfKeyboard());
      return 0;
    case WM_SYSKEYDOWN:
      // Alt by itself is the system's, and so is what it does with Alt and another key; F10 is a
      // key of the program.
      if (wParam == VK_MENU) return std::nullopt;
      events_->OnKeyDown(static_cast<int>(wParam), ShiftOfKeyboard());
      if (wParam == VK_F10) return 0;
      return Default(message, wParam, lParam);
    case WM_KEYUP:
      events_->OnKeyUp(static_cast<int>(wParam), ShiftOfKeyboard());
      return 0;
    case WM_SYSKEYUP:
      events_->OnKeyUp(static_cast<int>(wParam), ShiftOfKeyboard());
      return Default(message, wParam, lParam);
    case WM_CHAR:
      if (const auto character = Complete(static_cast<wchar_t>(wParam))) {
        events_->OnKeyPress(*character);
      }
      return 0;
    default:
      return std::nullopt;
  }
}

std::optional<char32_t> Win32Window::Complete(wchar_t unit) noexcept {
  constexpr char32_t kAboveBasicPlane = 0x10000;
  if (IS_HIGH_SURROGATE(unit)) {
    highSurrogate_ = unit;
    return std::nullopt;
  }
  const wchar_t high = std::exchange(highSurrogate_, L'\0');
  if (!IS_LOW_SURROGATE(unit)) return unit;
  if (high == 0) return std::nullopt;
  const auto upper = static_cast<char32_t>(high - HIGH_SURROGATE_START);
  const auto lower = static_cast<char32_t>(unit - LOW_SURROGATE_START);
  return kAboveBasicPlane + (upper << 10) + lower;
}

std::optional<LRESULT> Win32Window::TreatFocus(UINT message, WPARAM wParam, LPARAM /*lParam*/) {
  switch (message) {
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      events_->OnFocus(message == WM_SETFOCUS);
      return std::nullopt;
    case WM_MOUSEWHEEL: {
      const int delta = static_cast<std::int16_t>(HIWORD(wParam));
      if (events_->OnWheel(delta, ShiftOfMouse(LOWORD(wParam)))) return 0;
      return std::nullopt;
    }
    default:
      return std::nullopt;
  }
}

// The menu bar.

std::optional<LRESULT> Win32Window::TreatMenu(UINT message, WPARAM wParam, LPARAM lParam) {
  if (menuItems_.empty()) return std::nullopt;
  if (message == WM_ENTERMENULOOP) menuIsUp_ = true;
  if (message == WM_EXITMENULOOP) {
    menuIsUp_ = false;
    // What was chosen is counted in the lines that were up, and comes first.
    if (menuItemsLater_) system_.Post([window = weak_from_this()] { ReplaceLater(window); });
  }
  if (message == WM_COMMAND && lParam == 0 && HIWORD(wParam) == 0) {
    const int line = static_cast<int>(LOWORD(wParam)) - 1;
    const forms::PopupItem* const item = forms::LineAt(menuItems_, line);
    if (item == nullptr || !item->Items.empty()) return std::nullopt;
    events_->OnMenuChosen(line);
    return 0;
  }
  // The menus of the bar itself are told; the window's own menu is not.
  if (message != WM_INITMENUPOPUP || HIWORD(lParam) != 0) return std::nullopt;
  int line = 0;
  int place = static_cast<int>(LOWORD(lParam));
  for (const forms::PopupItem& item : menuItems_) {
    if (item.Visible && place-- == 0) {
      events_->OnMenuOpening(line);
      return 0;
    }
    line += 1 + forms::CountLines(item.Items);
  }
  return std::nullopt;
}

void Win32Window::ReplaceLater(const std::weak_ptr<Win32Window>& window) {
  const std::shared_ptr<Win32Window> form = window.lock();
  if (!form || form->handle_ == nullptr || form->menuIsUp_) return;
  if (const auto items = std::exchange(form->menuItemsLater_, std::nullopt)) {
    form->ReplaceMenuBar(*items);
  }
}

// The end.

std::optional<LRESULT> Win32Window::TreatEnd(UINT message, WPARAM wParam) {
  switch (message) {
    case WM_CLOSE:
      events_->OnClose();
      return 0;
    case WM_QUERYENDSESSION:
      return TRUE;
    case WM_ENDSESSION:
      if (wParam != FALSE) events_->OnSessionEnd();
      return 0;
    default:
      return std::nullopt;
  }
}

}  // namespace corvelle::win32
