#include "toolbar/docking/ForegroundScope.h"

#include "core/WindowPorts.h"
#include "forms/Form.h"
#include "platform/DesktopWindows.h"

namespace corvelle {
namespace {

/// Where Windows puts what nobody is to see, on no screen. Pixels on both axes.
constexpr float kNowhere = -32000;

class Keeper final : public forms::Form {
 public:
  explicit Keeper(forms::WindowSystem& windows) : Form(windows, "frmKeeper") {
    const forms::ScreenInfo screen = Screen();
    Move(kNowhere * screen.TwipsPerPixelX, kNowhere * screen.TwipsPerPixelY, screen.TwipsPerPixelX,
         screen.TwipsPerPixelY);
  }
};

}  // namespace

ForegroundScope::ForegroundScope(forms::Form& strip, const DesktopWindows& desktop,
                                 const WindowPorts& ports)
    : strip_(strip), desktop_(desktop) {
  const WindowId active = desktop_.ActiveWindow();
  const QMenuPort* const menu = ports.QMenu;
  const bool ours = active == strip_.hWnd() || (menu != nullptr && active == menu->WindowHandle());
  if (active == kNoWindow || !ours) return;
  keeper_ = std::make_unique<Keeper>(strip_.Windows());
  keeper_->Show();
}

ForegroundScope::~ForegroundScope() {
  if (keeper_ == nullptr) return;
  const WindowId active = desktop_.ActiveWindow();
  if (active != kNoWindow && active == keeper_->hWnd() && strip_.Visible()) strip_.SetFocus();
}

}  // namespace corvelle
