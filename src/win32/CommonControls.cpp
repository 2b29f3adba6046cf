#include "win32/CommonControls.h"

#include "win32/Sys.h"

namespace corvelle::win32 {

void StartCommonControls() {
  static const bool started = [] {
    INITCOMMONCONTROLSEX wanted{};
    wanted.dwSize = sizeof(wanted);
    wanted.dwICC = ICC_TREEVIEW_CLASSES | ICC_TAB_CLASSES | ICC_BAR_CLASSES;
    return InitCommonControlsEx(&wanted) != 0;
  }();
  // Without them the windows that need them are refused.
  static_cast<void>(started);
}

}  // namespace corvelle::win32
