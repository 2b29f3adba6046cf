#include "forms/Form.h"

#include <utility>

#include "forms/MonitorPlace.h"
#include "forms/Scale.h"

namespace corvelle::forms {

Form::Form(WindowSystem& windows, std::string name, BorderStyle border, bool inTaskbar)
    : Surface(windows, std::move(name)), border_(border), inTaskbar_(inTaskbar) {
  AdoptVisible(false);
}

Form::~Form() {
  if (blocked_ != nullptr) blocked_->SetEnabled(true);
  DestroyWindows();
}

std::unique_ptr<WindowPeer> Form::NewPeer(WindowPeer* /*parent*/) {
  PeerSpec wanted = SpecIn(nullptr);
  wanted.InTaskbar = inTaskbar_;
  wanted.Frame = Frame();
  wanted.MinimizeBox = minimizeBox_;
  wanted.Owner = owner_ != nullptr ? owner_->Peer() : nullptr;
  return Windows().CreatePeer(wanted, *this);
}

void Form::PeerMade() {
  if (!caption_.empty()) Peer()->SetCaption(caption_);
  SetLeastSize(leastWidth_, leastHeight_);
  if (!menu_.empty()) Peer()->SetMenuBar(menu_);
}

void Form::SetMenu(std::vector<PopupItem> items) {
  const bool had = !menu_.empty();
  menu_ = std::move(items);
  if (Peer() == nullptr || Frame() == FrameStyle::None) return;
  Peer()->SetMenuBar(menu_);
  // The inside begins elsewhere.
  if (had == menu_.empty()) Resized();
}

FrameStyle Form::Frame() const noexcept {
  if (border_ == BorderStyle::Fixed) return FrameStyle::Fixed;
  return border_ == BorderStyle::Sizable ? FrameStyle::Sizable : FrameStyle::None;
}

FrameMargins Form::Margins() const { return Windows().MarginsOf(Frame(), !menu_.empty(), Dpi()); }

void Form::SetLeastSize(float width, float height) {
  leastWidth_ = width;
  leastHeight_ = height;
  if (Peer() == nullptr || Frame() != FrameStyle::Sizable) return;
  Peer()->SetLeastSize(ToPixels(0, 0, width, height, Scale()).Size());
}

void Form::Center(float width, float height) {
  const ScreenInfo screen = Screen();
  const PixelRect on = MonitorToOpenOn(opensOn_, Windows().Monitors());
  const auto across = static_cast<float>(on.left + on.right) * screen.TwipsPerPixelX;
  const auto down = static_cast<float>(on.top + on.bottom) * screen.TwipsPerPixelY;
  Move((across - width) / 2, (down - height) / 2, width, height);
}

void Form::ShowModalTo(Form& owner) {
  SetOwner(&owner);
  if (!Load()) return;
  blocked_ = &owner;
  Show();
  // Last, so that the foreground has gone to this form.
  if (blocked_ == &owner) owner.SetEnabled(false);
}

// The owner takes input again before this form goes: the system looks for the next active window
// then. A user who is in another program by now stays there.
void Form::ReleaseOwner() {
  if (blocked_ == nullptr) return;
  Form& owner = *std::exchange(blocked_, nullptr);
  const bool front = Peer() != nullptr && Peer()->IsForeground();
  owner.SetEnabled(true);
  if (front && owner.Visible()) owner.SetForeground();
}

void Form::SetDpi(int dpi) {
  scaleGiven_ = true;
  ChangeDpi(dpi);
}

void Form::ScaleChanged() {
  if (Peer() != nullptr) SetLeastSize(leastWidth_, leastHeight_);
  const Alive::Watch watch = MakeWatch();
  Surface::ScaleChanged();
  if (!watch.Gone()) Form_ScaleChanged();
}

bool Form::Load() {
  if (loaded_) return true;
  const bool opened = !closedAt_.IsEmpty();
  opensOn_ = MonitorToOpenOn(closedAt_, Windows().Monitors());
  if (!scaleGiven_) {
    ChangeDpi(owner_ != nullptr ? owner_->Dpi()
                                : Windows().DpiAt(opened ? opensOn_ : PixelBounds()));
  }
  if (!CreateWindows(nullptr)) {
    DestroyWindows();
    return false;
  }
  loaded_ = true;
  const Alive::Watch watch = MakeWatch();
  Form_Load();
  return !watch.Gone() && loaded_;
}

void Form::Unload() {
  if (!loaded_ || unloading_) return;
  unloading_ = true;
  const Alive::Watch watch = MakeWatch();
  Form_Unload();
  if (watch.Gone()) return;
  loaded_ = false;
  if (Frame() != FrameStyle::None) closedAt_ = PixelBounds();
  AdoptVisible(false);
  ReleaseOwner();
  DestroyWindows();
  unloading_ = false;
}

void Form::SetCaption(std::string caption) {
  if (caption == caption_) return;
  caption_ = std::move(caption);
  if (Peer() != nullptr) Peer()->SetCaption(caption_);
}

void Form::ShowAs(ShowKind kind) {
  if (!Load()) return;
  AdoptVisible(true);
  Peer()->Show(kind);
}

void Form::Show() { ShowAs(ShowKind::Normal); }
void Form::ShowNoActivate() { ShowAs(ShowKind::NoActivate); }
void Form::Minimize() { ShowAs(ShowKind::Minimized); }
void Form::RestoreWindow() { ShowAs(ShowKind::Restored); }

bool Form::IsMinimized() const { return Peer() != nullptr && Peer()->IsMinimized(); }

void Form::SetForeground() {
  if (Peer() != nullptr) Peer()->SetForeground();
}

void Form::SetWindowPos(InsertAfter after, unsigned flags) {
  if (Peer() == nullptr) return;
  if ((flags & swp::ShowBit) != 0) AdoptVisible(true);
  if ((flags & swp::HideBit) != 0) AdoptVisible(false);
  Peer()->SetWindowPos(after, flags);
}

void Form::VisibleChanged() {
  if (Visible()) {
    // Visible only once the window exists.
    AdoptVisible(false);
    Show();
  } else if (Peer() != nullptr) {
    ReleaseOwner();
    Peer()->Show(ShowKind::Hidden);
  }
}

void Form::Resized() {
  Surface::Resized();
  Form_Resize();
}

void Form::OnActivated(bool active) {
  if (active) {
    Form_Activate();
  } else {
    Form_Deactivate();
  }
}

std::optional<std::intptr_t> Form::OnMessage(std::uint32_t message, std::uintptr_t wParam,
                                             std::intptr_t lParam) {
  return WindowProc(message, wParam, lParam);
}

}  // namespace corvelle::forms
