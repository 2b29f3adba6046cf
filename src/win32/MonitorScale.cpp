#include "win32/MonitorScale.h"

#include <algorithm>

#include "win32/UniqueHandle.h"

namespace corvelle::win32 {

namespace {

using MonitorDpiCall = HRESULT(WINAPI*)(HMONITOR, int, UINT*, UINT*);
using MetricsCall = int(WINAPI*)(int, UINT);
using AdjustCall = BOOL(WINAPI*)(LPRECT, DWORD, BOOL, DWORD, UINT);

/// MDT_EFFECTIVE_DPI: with what the user has set.
constexpr int kEffectiveDpi = 0;

template <class Call>
Call Find(HMODULE library, const char* name) {
  if (library == nullptr) return nullptr;
  return reinterpret_cast<Call>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

/// What the oldest Windows lacks; null there.
struct ScaleCalls {
  MonitorDpiCall MonitorDpi = Find<MonitorDpiCall>(
      LoadLibraryExW(L"shcore.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32), "GetDpiForMonitor");
  MetricsCall Metrics =
      Find<MetricsCall>(GetModuleHandleW(L"user32.dll"), "GetSystemMetricsForDpi");
  AdjustCall Adjust = Find<AdjustCall>(GetModuleHandleW(L"user32.dll"), "AdjustWindowRectExForDpi");
};

const ScaleCalls& Calls() {
  static const ScaleCalls calls;
  return calls;
}

int SystemDpi() {
  const WindowDc screen(nullptr);
  return std::max(GetDeviceCaps(screen.Get(), LOGPIXELSX), 1);
}

}  // namespace

int DpiOfMonitorAt(const PixelRect& bounds) {
  const RECT place{bounds.left, bounds.top, std::max(bounds.right, bounds.left + 1),
                   std::max(bounds.bottom, bounds.top + 1)};
  const HMONITOR monitor = MonitorFromRect(&place, MONITOR_DEFAULTTONEAREST);
  UINT x = 0;
  UINT y = 0;
  if (Calls().MonitorDpi != nullptr &&
      SUCCEEDED(Calls().MonitorDpi(monitor, kEffectiveDpi, &x, &y)) && x > 0) {
    return static_cast<int>(x);
  }
  return SystemDpi();
}

int MetricForDpi(int metric, int dpi) {
  if (Calls().Metrics != nullptr) return Calls().Metrics(metric, static_cast<UINT>(dpi));
  return MulDiv(GetSystemMetrics(metric), dpi, SystemDpi());
}

// Without the newer call frames are those of the system's scale, whatever the window's.
void AddFrame(RECT& inside, DWORD style, bool menuBar, int dpi) {
  const BOOL menu = menuBar ? TRUE : FALSE;
  if (Calls().Adjust == nullptr ||
      Calls().Adjust(&inside, style, menu, 0, static_cast<UINT>(dpi)) == 0) {
    AdjustWindowRectEx(&inside, style, menu, 0);
  }
}

}  // namespace corvelle::win32
