#include "core/Instance.h"

#include <cstdint>
#include <optional>

#include "base/Text.h"
#include "core/MessageBoxes.h"
#include "forms/Types.h"
#include "platform/DesktopWindows.h"
#include "platform/SystemInfo.h"

namespace corvelle {
namespace {

constexpr std::string_view kTitle = "Corvelle";
constexpr std::string_view kCompanionClass = "frmMinimize";
constexpr std::uint32_t kNoMessage = 0;  // it only asks for an answer
constexpr int kLooks = 40;               // for another copy, a moment between them

// A folder window of the same name bears the title too; only the companion can be woken.
bool IsWanted(const DesktopWindows& desktop, WindowId window, std::string_view title) {
  const std::string text = desktop.Text(window);
  if (text.empty() || !EqualNoCase(text, title)) return false;
  return !EqualNoCase(title, kTitle) || desktop.ClassName(window) == kCompanionClass;
}

/// False if the window does not come back: its program hangs, or may not be told anything.
bool Restore(DesktopWindows& desktop, WindowId window) {
  // The calls that restore a window wait for its program, however long that takes.
  if (!desktop.Send(window, kNoMessage, 0, 0)) return false;
  if (desktop.RestoresMaximized(window)) {
    desktop.ShowMaximized(window);
  } else {
    desktop.RestoreMinimized(window);
  }
  return !desktop.IsMinimized(window);
}

/// Whether the window with this title was woken; nothing when no window has it.
std::optional<bool> Wake(DesktopWindows& desktop, std::string_view title) {
  for (const WindowId window : desktop.TopLevel()) {
    if (!IsWanted(desktop, window, title)) continue;
    bool woken = true;
    if (desktop.IsMinimized(window)) {
      woken = Restore(desktop, window);
    } else if (EqualNoCase(title, kTitle)) {
      woken = desktop.Send(window, forms::message::Size, 0, 0).has_value();
    } else {
      desktop.BringForward(window);
    }
    // A program that was just ending has none any more.
    if (woken || IsWanted(desktop, window, title)) return woken;
  }
  return std::nullopt;
}

}  // namespace

bool ActivatePrevInstance(DesktopWindows& desktop, std::string_view title) {
  return Wake(desktop, title).value_or(false);
}

bool ClaimSession(std::string& title, SystemInfo& system, DesktopWindows& desktop,
                  MessageBoxes& messages) {
  // While another title stands, a search for ours cannot find this process.
  title = "xyz";
  bool other = system.AnotherInstanceRuns();
  std::optional<bool> woken;
  if (other) woken = Wake(desktop, kTitle);
  // One that is just ending has no window any more, and one that starts has none yet.
  for (int look = 1; look < kLooks && other && !woken; ++look) {
    other = system.AnotherInstanceRuns();
    if (other) woken = Wake(desktop, kTitle);
  }
  title = kTitle;
  if (other && !woken.value_or(false)) {
    messages.Say(kNoWindow,
                 "Corvelle is already running. If you have minimized it to the taskbar, click its "
                 "icon on the taskbar to activate it. If you have set it to Auto Hide, point your "
                 "mouse to its previous position.",
                 forms::msgbox::IconInformation | forms::msgbox::OnTop);
  }
  return !other;
}

}  // namespace corvelle
