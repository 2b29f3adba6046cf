#include "forms/Window.h"

#include "forms/Scale.h"

namespace corvelle::forms {

Window::~Window() { DestroyPeer(); }

WindowId Window::hWnd() const noexcept { return peer_ ? peer_->Id() : kNoWindow; }

void Window::Refresh() {
  if (peer_) peer_->PaintNow();
}

void Window::SetFocus() {
  if (peer_) peer_->SetFocus();
}

void Window::ZOrder(ZPlace place) {
  if (peer_) peer_->SetZOrder(place);
}

PixelRect Window::PixelBounds() const {
  const PixelRect bounds = ToPixels(Left(), Top(), Width(), Height(), windows_.Screen());
  const PixelPoint origin = ContainerOrigin();
  return RectAt({bounds.left + origin.x, bounds.top + origin.y}, bounds.Size());
}

bool Window::CreatePeer(PeerKind kind, WindowPeer* parent, bool inTaskbar) {
  shownBounds_ = PixelBounds();
  peer_ = windows_.CreatePeer({.Kind = kind,
                               .ClassName = Name(),
                               .Parent = parent,
                               .Bounds = shownBounds_,
                               .InTaskbar = inTaskbar},
                              *this);
  if (!peer_) return false;
  if (!Enabled() || inputHolds_ > 0) peer_->SetEnabled(false);
  if (takesDrops_) static_cast<void>(peer_->SetTakesDrops(true));
  return true;
}

void Window::DestroyPeer() { peer_.reset(); }

// Where the system refuses, the window lives without drops.
void Window::SetTakesDrops(bool takesDrops) {
  if (takesDrops == takesDrops_) return;
  takesDrops_ = takesDrops;
  if (peer_) static_cast<void>(peer_->SetTakesDrops(takesDrops));
}

void Window::VisibleChanged() {
  if (peer_) peer_->Show(Visible() ? ShowKind::NoActivate : ShowKind::Hidden);
}

void Window::EnabledChanged() {
  if (peer_ && inputHolds_ == 0) peer_->SetEnabled(Enabled());
}

void Window::HoldInput() {
  ++inputHolds_;
  if (peer_) peer_->SetEnabled(false);
}

void Window::ReleaseInput() {
  if (--inputHolds_ == 0) EnabledChanged();
}

void Window::BoundsChanged(float /*oldLeft*/, float /*oldTop*/, float /*oldWidth*/,
                           float /*oldHeight*/) {
  if (!peer_) return;
  const PixelRect wanted = PixelBounds();
  if (wanted != shownBounds_) peer_->SetBounds(wanted);
}

void Window::OnMoved(const PixelRect& bounds) {
  const PixelSize oldSize = shownBounds_.Size();
  shownBounds_ = bounds;
  // Twips finer than a pixel survive the report of what was asked for.
  if (bounds != PixelBounds()) {
    const ScreenInfo screen = windows_.Screen();
    const PixelPoint origin = ContainerOrigin();
    AdoptBounds(static_cast<float>(bounds.left - origin.x) * screen.TwipsPerPixelX,
                static_cast<float>(bounds.top - origin.y) * screen.TwipsPerPixelY,
                static_cast<float>(bounds.Width()) * screen.TwipsPerPixelX,
                static_cast<float>(bounds.Height()) * screen.TwipsPerPixelY);
  }
  if (bounds.Size() != oldSize) Resized();
}

}  // namespace corvelle::forms
