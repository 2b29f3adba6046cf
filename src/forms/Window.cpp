#include "forms/Window.h"

#include <algorithm>
#include <utility>

#include "forms/Form.h"
#include "forms/Scale.h"

namespace corvelle::forms {

// Until a form is loaded it counts as one of the primary screen.
Window::Window(WindowSystem& windows, std::string name)
    : Control(std::move(name)), windows_(windows), dpi_(windows.DpiAt({})) {}

Window::Window(Window& container, std::string name)
    : Control(std::move(name)), windows_(container.Windows()), container_(&container) {
  container.children_.push_back(this);
}

Window::~Window() {
  DestroyWindows();
  if (container_ != nullptr) std::erase(container_->children_, this);
}

Form& Window::OwnForm() {
  Window* top = this;
  while (top->container_ != nullptr) top = top->container_;
  return static_cast<Form&>(*top);
}

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

int Window::Dpi() const noexcept {
  const Window* top = this;
  while (top->container_ != nullptr) top = top->container_;
  return top->dpi_;
}

PixelScale Window::Scale() const noexcept {
  const float twips = TwipsOfPixel(Dpi());
  return {.TwipsPerPixelX = twips, .TwipsPerPixelY = twips};
}

ScreenInfo Window::Screen() const {
  const PixelScale scale = Scale();
  const PixelSize pixels = windows_.ScreenSize();
  return {.TwipsPerPixelX = scale.TwipsPerPixelX,
          .TwipsPerPixelY = scale.TwipsPerPixelY,
          .Width = static_cast<float>(pixels.width) * scale.TwipsPerPixelX,
          .Height = static_cast<float>(pixels.height) * scale.TwipsPerPixelY};
}

PixelSize Window::MeasureText(std::string_view text, const FontSpec& font) const {
  return windows_.MeasureText(text, Scaled(font));
}

void Window::ChangeDpi(int dpi) {
  if (dpi == dpi_) return;
  const PixelPoint corner = PixelBounds().TopLeft();
  dpi_ = dpi;
  const float twips = TwipsOfPixel(dpi);
  AdoptBounds(static_cast<float>(corner.x) * twips, static_cast<float>(corner.y) * twips, Width(),
              Height());
  ScaleChanged();
}

void Window::ScaleChanged() {
  for (Window* child : children_) child->ScaleChanged();
  if (!peer_) return;
  peer_->SetDpi(Dpi());
  const PixelRect wanted = PixelBounds();
  if (wanted != shownBounds_) peer_->SetBounds(wanted);
}

PixelRect Window::PixelBounds() const {
  const PixelRect bounds = ToPixels(Left(), Top(), Width(), Height(), Scale());
  const PixelPoint origin = container_ != nullptr ? container_->InsideOrigin() : PixelPoint{};
  return RectAt({bounds.left + origin.x, bounds.top + origin.y}, bounds.Size());
}

PeerSpec Window::SpecIn(WindowPeer* parent) const {
  return {.ClassName = Name(), .Parent = parent, .Bounds = PixelBounds(), .Dpi = Dpi()};
}

bool Window::CreateWindows(WindowPeer* parent) {
  shownBounds_ = PixelBounds();
  peer_ = NewPeer(parent);
  if (!peer_) return false;
  if (!Enabled() || inputHolds_ > 0) peer_->SetEnabled(false);
  if (takesDrops_) static_cast<void>(peer_->SetTakesDrops(true));
  if (!ToolTip().empty()) peer_->SetToolTip(ToolTip());
  PeerMade();
  for (Window* child : children_) {
    if (!child->CreateWindows(Peer())) return false;
  }
  // A form comes up when it is told to.
  if (container_ != nullptr && Visible()) peer_->Show(ShowKind::NoActivate);
  return true;
}

void Window::DestroyWindows() {
  for (Window* child : children_) child->DestroyWindows();
  if (peer_) PeerGoing();
  peer_.reset();
  hasFocus_ = false;
}

// Where the system refuses, the window lives without drops.
void Window::SetTakesDrops(bool takesDrops) {
  if (takesDrops == takesDrops_) return;
  takesDrops_ = takesDrops;
  if (peer_) static_cast<void>(peer_->SetTakesDrops(takesDrops));
}

bool Window::IsWithin(const Window& around) const noexcept {
  const Window* at = this;
  while (at != nullptr && at != &around) at = at->container_;
  return at != nullptr;
}

bool Window::HoldsFocus() const noexcept {
  return (hasFocus_ && tabStop_) ||
         std::any_of(children_.begin(), children_.end(),
                     [](const Window* child) { return child->HoldsFocus(); });
}

// Without this the system would leave the keyboard to nobody, or to the window around.
bool Window::KeepsAfterPassingFocus() {
  if (!peer_ || container_ == nullptr || !HoldsFocus()) return true;
  const Alive::Watch watch = MakeWatch();
  OwnForm().PassFocusFrom(*this);
  return !watch.Gone();
}

void Window::VisibleChanged() {
  if (!Visible() && !KeepsAfterPassingFocus()) return;
  if (peer_) peer_->Show(Visible() ? ShowKind::NoActivate : ShowKind::Hidden);
}

void Window::EnabledChanged() {
  if (!Enabled() && !KeepsAfterPassingFocus()) return;
  if (peer_ && inputHolds_ == 0) peer_->SetEnabled(Enabled());
}

void Window::ToolTipChanged() {
  if (peer_) peer_->SetToolTip(ToolTip());
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
    const PixelScale scale = Scale();
    const PixelPoint origin = (container_ != nullptr ? container_->InsideOrigin() : PixelPoint{});
    AdoptBounds(static_cast<float>(bounds.left - origin.x) * scale.TwipsPerPixelX,
                static_cast<float>(bounds.top - origin.y) * scale.TwipsPerPixelY,
                static_cast<float>(bounds.Width()) * scale.TwipsPerPixelX,
                static_cast<float>(bounds.Height()) * scale.TwipsPerPixelY);
  }
  if (bounds.Size() != oldSize) Resized();
}

// The keyboard and the wheel.

void Window::OnKeyUp(int keyCode, ShiftState shift) {
  const auto handler = KeyUp;  // it may destroy the window
  if (handler) handler(keyCode, shift);
}

bool Window::OnControlKey(int keyCode, ShiftState shift) {
  return OwnForm().ControlKey(*this, keyCode, shift);
}

bool Window::OnControlCharacter(char32_t character) {
  return OwnForm().ControlCharacter(*this, character);
}

void Window::OnFocus(bool gained) {
  hasFocus_ = gained;
  // A copy, since a handler may destroy the window.
  const std::function<void()> handler = gained ? GotFocus : LostFocus;
  if (handler) handler();
}

void Window::FocusFirst() {
  for (Window* child : children_) {
    if (!child->Visible() || !child->Enabled()) continue;
    if (child->StopsTab()) return child->SetFocus();
    if (!child->children_.empty()) return child->FocusFirst();
  }
}

bool Window::OnWheel(int delta, ShiftState shift) {
  const std::function<bool(int, ShiftState)> handler = Wheel;
  return handler && handler(delta, shift);
}

}  // namespace corvelle::forms
