#include "win32/Win32Window.h"

#include <string>

#include "win32/MenuBar.h"
#include "win32/Wide.h"
#include "win32/Win32Control.h"
#include "win32/Win32DropTarget.h"
#include "win32/Win32WindowSystem.h"

namespace corvelle::win32 {

namespace {

struct WindowStyle {
  DWORD Style;
  DWORD ExStyle;
};

// Only a window with a caption lives well in the task bar: it has an animation, a menu and a text.
// Its frame is taken away again when its inside is worked out.
WindowStyle StyleOf(const forms::PeerSpec& wanted) {
  if (wanted.Kind == forms::PeerKind::PictureBox)
    return {WS_CHILD | WS_CLIPSIBLINGS, WS_EX_NOPARENTNOTIFY};
  if (wanted.Frame != forms::FrameStyle::None) {
    const DWORD style = FrameStyleOf(wanted.Frame) | (wanted.MinimizeBox ? WS_MINIMIZEBOX : 0U);
    return {style | WS_CLIPCHILDREN, wanted.InTaskbar ? WS_EX_APPWINDOW : 0U};
  }
  if (!wanted.InTaskbar) return {WS_POPUP | WS_CLIPCHILDREN, WS_EX_TOOLWINDOW};
  return {WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_CLIPCHILDREN, WS_EX_APPWINDOW};
}

}  // namespace

DWORD FrameStyleOf(forms::FrameStyle frame) noexcept {
  const DWORD fixed = WS_CAPTION | WS_SYSMENU;
  return frame == forms::FrameStyle::Sizable ? fixed | WS_THICKFRAME : fixed;
}

bool Win32Window::RegisterClassNamed(const wchar_t* name) {
  WNDCLASSEXW known{};
  known.cbSize = sizeof(known);
  if (GetClassInfoExW(Module(), name, &known) != 0) return known.lpfnWndProc == &Procedure;
  WNDCLASSEXW made{};
  made.cbSize = sizeof(made);
  made.style = CS_DBLCLKS;
  made.lpfnWndProc = &Procedure;
  made.hInstance = Module();
  made.hIcon = LoadIconW(Module(), MAKEINTRESOURCEW(kProgramIcon));
  made.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  made.lpszClassName = name;
  return RegisterClassExW(&made) != 0;
}

bool Win32Window::Create(const forms::PeerSpec& wanted) {
  tabStop_ = wanted.TabStop;
  frame_ = wanted.Frame;
  const std::wstring name = Wide(wanted.ClassName);
  if (!RegisterClassNamed(name.c_str())) return false;
  const WindowStyle style = StyleOf(wanted);
  HWND owner = IsForm() && !wanted.InTaskbar ? system_.ToolOwner() : nullptr;
  if (wanted.Owner != nullptr) owner = ToHwnd(wanted.Owner->Id());
  const HWND parent = wanted.Parent != nullptr ? ToHwnd(wanted.Parent->Id()) : owner;
  told_ = wanted.Bounds;
  const HWND made = CreateWindowExW(style.ExStyle, name.c_str(), L"", style.Style,
                                    wanted.Bounds.left, wanted.Bounds.top, wanted.Bounds.Width(),
                                    wanted.Bounds.Height(), parent, nullptr, Module(), this);
  if (made == nullptr) return false;
  // The system puts a new child below its siblings, but the one that was made last is to be on top.
  if (!IsForm()) SetWindowPos(made, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  return true;
}

Win32Window* Win32Window::Of(HWND handle) noexcept {
  const LONG_PTR procedure = GetWindowLongPtrW(handle, GWLP_WNDPROC);
  if (procedure != reinterpret_cast<LONG_PTR>(&Procedure) && !Win32Control::Is(procedure)) {
    return nullptr;
  }
  return reinterpret_cast<Win32Window*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
}

bool Win32Window::TakesFocus() const { return tabStop_ || GetWindow(handle_, GW_CHILD) == nullptr; }

// Other programs can send these messages with any handle in them.
std::shared_ptr<Win32Window> Win32Window::TellerOf(HWND parent, UINT message, WPARAM wParam,
                                                   LPARAM lParam) {
  HWND child = nullptr;
  switch (message) {
    case WM_COMMAND:
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLOREDIT:
      child = reinterpret_cast<HWND>(lParam);
      break;
    case WM_CONTEXTMENU:
      child = reinterpret_cast<HWND>(wParam);
      break;
    case WM_NOTIFY:
      child = lParam != 0 ? reinterpret_cast<const NMHDR*>(lParam)->hwndFrom : nullptr;
      break;
    default:
      break;
  }
  if (child == nullptr || GetParent(child) != parent) return nullptr;
  Win32Window* const window = Of(child);
  return window != nullptr ? window->shared_from_this() : nullptr;
}

// A menu that is up keeps its lines, since the system goes on with it: it is changed in its place,
// or later.
void Win32Window::SetMenuBar(const std::vector<forms::PopupItem>& items) {
  menuItemsLater_.reset();
  if (UpdateMenuBar(GetMenu(handle_), menuItems_, items)) {
    menuItems_ = items;
    DrawMenuBar(handle_);
  } else if (menuIsUp_) {
    menuItemsLater_ = items;
  } else {
    ReplaceMenuBar(items);
  }
}

// The window owns its menu bar, but for one that another takes the place of.
void Win32Window::ReplaceMenuBar(const std::vector<forms::PopupItem>& items) {
  menuItems_ = items;
  UniqueMenu before(GetMenu(handle_));
  UniqueMenu bar = items.empty() ? UniqueMenu() : MakeMenuBar(items);
  if (SetMenu(handle_, bar.Get()) != 0) {
    static_cast<void>(bar.Release());
  } else {
    static_cast<void>(before.Release());
  }
  DrawMenuBar(handle_);
}

bool Win32Window::SetTakesDrops(bool takesDrops) {
  if (takesDrops == takesDrops_ || handle_ == nullptr) return true;
  if (!takesDrops) {
    StopTakingDrops(handle_);
  } else if (!StartTakingDrops(handle_, shared_from_this())) {
    return false;
  }
  takesDrops_ = takesDrops;
  return true;
}

void Win32Window::SetToolTip(std::string_view text) {
  if (handle_ == nullptr) return;
  system_.ToolTips().Set(handle_, text);
  hasToolTip_ = !text.empty();
}

void Win32Window::RelayToToolTip(UINT message, WPARAM wParam, LPARAM lParam) const {
  if (handle_ != nullptr) system_.ToolTips().Relay(handle_, message, wParam, lParam);
}

void Win32Window::Destroy() {
  events_ = nullptr;
  if (handle_ != nullptr) DestroyWindow(handle_);
}

PixelRect Win32Window::Bounds() const {
  RECT rect{};
  GetWindowRect(handle_, &rect);
  if (!IsForm()) {
    const HWND parent = GetAncestor(handle_, GA_PARENT);
    POINT corner{rect.left, rect.top};
    ScreenToClient(parent, &corner);
    OffsetRect(&rect, corner.x - rect.left, corner.y - rect.top);
  }
  return FromRect(rect);
}

}  // namespace corvelle::win32
