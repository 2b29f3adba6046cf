#include "core/Instance.h"

#include "base/Text.h"
#include "core/Program.h"
#include "platform/DesktopWindows.h"
#include "platform/SystemInfo.h"

namespace corvelle {
namespace {

constexpr std::string_view kTitle = "Corvelle";
constexpr std::string_view kCompanionClass = "frmMinimize";
constexpr int kLooks = 40;  // for another copy, a moment between them

// A folder window of the same name bears the title too; only the companion can be woken.
bool IsWanted(const DesktopWindows& desktop, WindowId window, std::string_view title) {
  const std::string text = desktop.Text(window);
  if (text.empty() || !EqualNoCase(text, title)) return false;
  return !EqualNoCase(title, kTitle) || desktop.ClassName(window) == kCompanionClass;
}

}  // namespace

bool ActivatePrevInstance(DesktopWindows& desktop, std::string_view title) {
  for (const WindowId window : desktop.TopLevel()) {
    if (!IsWanted(desktop, window, title)) continue;
    if (desktop.IsMinimized(window)) {
      if (desktop.RestoresMaximized(window)) {
        desktop.ShowMaximized(window);
      } else {
        desktop.RestoreMinimized(window);
      }
    } else if (EqualNoCase(title, kTitle)) {
      desktop.Send(window, forms::message::Size, 0, 0);
    } else {
      desktop.BringForward(window);
    }
    return true;
  }
  return false;
}

bool ClaimSession(Program& program) {
  // While another title stands, a search for ours cannot find this process.
  program.Title = "xyz";
  SystemInfo& system = program.Services.System;
  bool other = system.AnotherInstanceRuns();
  bool woken = other && ActivatePrevInstance(program.Services.Desktop, kTitle);
  // One that is just ending has no window any more, and one that starts has none yet.
  for (int look = 1; look < kLooks && other && !woken; ++look) {
    other = system.AnotherInstanceRuns();
    woken = other && ActivatePrevInstance(program.Services.Desktop, kTitle);
  }
  program.Title = kTitle;
  if (other && !woken) {
    program.Messages.Say(
        kNoWindow,
        "Corvelle is already running. If you have minimized it to the taskbar, click its "
        "icon on the taskbar to activate it. If you have set it to Auto Hide, point your "
        "mouse to its previous position.",
        forms::msgbox::IconInformation | forms::msgbox::OnTop);
  }
  return !other;
}

}  // namespace corvelle
