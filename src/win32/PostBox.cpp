#include "win32/PostBox.h"

#include <utility>

namespace corvelle::win32 {

namespace {

constexpr wchar_t kPostClass[] = L"CorvellePosts";
constexpr UINT kWakeMessage = WM_APP;

}  // namespace

PostBox::PostBox() {
  WNDCLASSEXW made{};
  made.cbSize = sizeof(made);
  made.lpfnWndProc = &PostBox::Procedure;
  made.hInstance = Module();
  made.lpszClassName = kPostClass;
  // Fails for a class that is there already, which does as well.
  RegisterClassExW(&made);
  window_ =
      CreateWindowExW(0, kPostClass, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, Module(), nullptr);
  if (window_ != nullptr)
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

PostBox::~PostBox() { Close(); }

void PostBox::Post(forms::PostedWork::Work work) {
  if (work_.Add(std::move(work))) Wake();
}

void PostBox::Close() {
  // Another thread may be the last to let go, and could not destroy the window.
  if (closed_.exchange(true)) return;
  work_.Close();
  if (window_ != nullptr) DestroyWindow(window_);
}

void PostBox::Wake() const { PostMessageW(window_, kWakeMessage, 0, 0); }

LRESULT CALLBACK PostBox::Procedure(HWND window, UINT message, WPARAM wParam,
                                    LPARAM lParam) noexcept {
  if (message == kWakeMessage) {
    auto* const box = reinterpret_cast<PostBox*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (box != nullptr && box->work_.Run()) box->Wake();
    return 0;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace corvelle::win32
