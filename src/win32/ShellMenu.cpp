#include "win32/ShellMenu.h"
#include "win32/ErrorMode.h"

#include "win32/ComPointer.h"

namespace corvelle::win32 {

namespace {

constexpr wchar_t kHostClass[] = L"CorvelleMenuHost";
// 0 is the answer of a menu in which nothing was chosen.
constexpr UINT kFirstCommand = 1;
constexpr UINT kLastCommand = 0x7FFF;

/// A window that is never shown and gets the messages of the menu, for the entries that the item's
/// programs draw and the submenus that they fill when they open.
class MenuHost {
 public:
  explicit MenuHost(IContextMenu& menu) {
    // Newer menus know more messages than older ones; some know none.
    if (FAILED(menu.QueryInterface(IID_IContextMenu3, menu3_.ReceiveVoid())))
      static_cast<void>(menu.QueryInterface(IID_IContextMenu2, menu2_.ReceiveVoid()));
    WNDCLASSW made{};
    made.lpfnWndProc = &Procedure;
    made.hInstance = Module();
    made.lpszClassName = kHostClass;
    // It stays registered from the first menu on.
    RegisterClassW(&made);
    window_.Reset(CreateWindowExW(WS_EX_TOOLWINDOW, kHostClass, L"", WS_POPUP, 0, 0, 0, 0, nullptr,
                                  nullptr, Module(), nullptr));
    if (window_) SetWindowLongPtrW(window_.Get(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  }
  MenuHost(const MenuHost&) = delete;
  MenuHost& operator=(const MenuHost&) = delete;
  ~MenuHost() {
    if (window_) SetWindowLongPtrW(window_.Get(), GWLP_USERDATA, 0);
  }

  HWND Window() const noexcept { return window_.Get(); }

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam,
                                    LPARAM lParam) noexcept {
    auto* const host = reinterpret_cast<MenuHost*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    LRESULT answer = 0;
    if (host != nullptr && host->Treat(message, wParam, lParam, answer)) return answer;
    return DefWindowProcW(window, message, wParam, lParam);
  }

  bool Treat(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& answer) {
    switch (message) {
      case WM_DRAWITEM:
      case WM_MEASUREITEM:
        answer = TRUE;
        [[fallthrough]];
      case WM_INITMENUPOPUP:
        if (menu3_) return SUCCEEDED(menu3_->HandleMenuMsg2(message, wParam, lParam, &answer));
        return menu2_ && SUCCEEDED(menu2_->HandleMenuMsg(message, wParam, lParam));
      case WM_MENUCHAR:
      case WM_NEXTMENU:
        return menu3_ && SUCCEEDED(menu3_->HandleMenuMsg2(message, wParam, lParam, &answer));
      default:
        return false;
    }
  }

  ComPointer<IContextMenu2> menu2_;
  ComPointer<IContextMenu3> menu3_;
  UniqueWindow window_;
};

bool Invoke(IContextMenu& menu, UINT command, POINT at, HWND owner) {
  const UINT offset = command - kFirstCommand;
  CMINVOKECOMMANDINFOEX info{};
  info.cbSize = sizeof(info);
  info.fMask = CMIC_MASK_UNICODE | CMIC_MASK_PTINVOKE;
  info.hwnd = owner;
  info.lpVerb = MAKEINTRESOURCEA(offset);
  info.lpVerbW = MAKEINTRESOURCEW(offset);
  info.nShow = SW_SHOWNORMAL;
  info.ptInvoke = at;
  const ErrorModeForChildren errorMode;
  return SUCCEEDED(menu.InvokeCommand(reinterpret_cast<CMINVOKECOMMANDINFO*>(&info)));
}

}  // namespace

bool ShowShellMenu(IContextMenu& menu, POINT at, HWND owner) {
  const UniqueMenu popup(CreatePopupMenu());
  if (!popup ||
      FAILED(menu.QueryContextMenu(popup.Get(), 0, kFirstCommand, kLastCommand, CMF_NORMAL)) ||
      GetMenuItemCount(popup.Get()) <= 0) {
    return false;
  }
  const MenuHost host(menu);
  if (host.Window() == nullptr) return false;
  // A menu closes by itself only while its program is in the foreground.
  if (owner != nullptr) SetForegroundWindow(owner);
  const auto command = static_cast<UINT>(TrackPopupMenuEx(
      popup.Get(), TPM_RETURNCMD | TPM_RIGHTBUTTON, at.x, at.y, host.Window(), nullptr));
  if (command == 0) return false;
  // The owner may have gone while the menu was up.
  return Invoke(menu, command, at, IsWindow(owner) != FALSE ? owner : nullptr);
}

}  // namespace corvelle::win32
