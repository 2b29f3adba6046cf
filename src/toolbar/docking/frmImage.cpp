#include "toolbar/docking/frmImage.h"

#include <utility>

#include "base/Edge.h"
#include "base/Numbers.h"
#include "core/GuardFlags.h"
#include "forms/EventPump.h"
#include "forms/Scale.h"
#include "forms/Scopes.h"
#include "forms/WindowSystem.h"
#include "platform/DesktopWindows.h"
#include "toolbar/docking/AppBarRules.h"
#include "toolbar/layout/StripLook.h"

namespace corvelle {
namespace {

constexpr int kBand = 4;  // pixels of the outline's sides
constexpr int kNoKey = 0;

}  // namespace

frmImage::frmImage(const StillPictureParts& with, StripWindow& strip)
    : Form(with.Windows, "frmImage"),
      bLine1(*this, "bLine1"),
      bLine2(*this, "bLine2"),
      bLine3(*this, "bLine3"),
      bLine4(*this, "bLine4"),
      with_(with),
      strip_(strip) {}

void frmImage::Form_Load() { SetWindowPos(forms::InsertAfter::Topmost, forms::swp::Hide); }

void frmImage::Form_Unload() {
  menuCaptured_ = false;
  outline_.reset();
  SetBackground(nullptr);
}

void frmImage::ShowLines(bool visible) {
  for (forms::Line* line : {&bLine1, &bLine2, &bLine3, &bLine4}) line->SetVisible(visible);
}

void frmImage::PlaceAt(const PixelRect& bounds) {
  const forms::ScreenInfo screen = Screen();
  Move(static_cast<float>(bounds.left) * screen.TwipsPerPixelX,
       static_cast<float>(bounds.top) * screen.TwipsPerPixelY,
       static_cast<float>(bounds.Width()) * screen.TwipsPerPixelX,
       static_cast<float>(bounds.Height()) * screen.TwipsPerPixelY);
}

// A still picture.

bool frmImage::Cover(WindowId window) {
  const forms::WindowPicture seen = with_.Windows.PictureOfWindow(window);
  if (seen.Pixels == nullptr) return false;
  const PixelRect shown = Intersect(seen.Bounds, RectAt({0, 0}, with_.Windows.ScreenSize()));
  if (shown.IsEmpty() || !Load()) return false;
  std::unique_ptr<Canvas> picture = with_.Windows.CreateCanvas(shown.Size());
  const PixelPoint corner{shown.left - seen.Bounds.left, shown.top - seen.Bounds.top};
  picture->DrawCanvas(*seen.Pixels, RectAt(corner, shown.Size()), {0, 0});
  PlaceAt(shown);
  SetBackground(std::move(picture));
  ShowNoActivate();
  Refresh();
  return true;
}

void frmImage::CaptureMenu() {
  const QMenuPort* const menu = with_.Ports.QMenu;
  if (menuCaptured_ || menu == nullptr || !menu->MenuVisible()) return;
  ClearBg();
  if (with_.Ports.Toolbar != nullptr) with_.Ports.Toolbar->SetPointerWatch(false);
  menuCaptured_ = Cover(menu->WindowHandle());
}

void frmImage::ReleaseMenu() {
  if (menuCaptured_) {
    menuCaptured_ = false;
    QMenuPort* const menu = with_.Ports.QMenu;
    // The user has pressed the picture, and meant the menu.
    const WindowId active = with_.Desktop.ActiveWindow();
    if (active != kNoWindow && active == hWnd() && menu != nullptr && menu->MenuVisible()) {
      menu->ActivateKeyDown(kNoKey);
    }
    Hide();
    with_.Events.DoEvents();
    with_.Windows.SetMousePointer(forms::MousePointer::Default);
    if (menu != nullptr && menu->MenuVisible()) {
      menu->SetWindowPos(forms::InsertAfter::Top, forms::swp::KeepActivation);
      with_.Desktop.PaintVisibleWindows();
      if (with_.Ports.Toolbar != nullptr) with_.Ports.Toolbar->SetPointerWatch(true);
    }
  }
  Unload();
}

void frmImage::SetPicture1() {
  if (!with_.Options.Is(Option::AboveFullScreen) || with_.Guards.ChangingMode ||
      !strip_.AsForm().Visible())
    return;
  ClearBg();
  Cover(strip_.AsForm().hWnd());
}

void frmImage::ResetPicture1() {
  with_.Events.DoEvents();
  Hide();
  Unload();
}

// The outline.

// Moves arrive while the outline is being shown: the last of them says where it belongs.
void frmImage::SetPosition(Edge edge) {
  if (!Load()) return;
  outline_ = edge;
  if (MovingToolbar) return;
  const forms::FlagScope moving(MovingToolbar);
  for (std::optional<Edge> shown; IsLoaded() && outline_ && shown != outline_;) {
    shown = outline_;
    ShowOutline(*shown);
    with_.Events.DoEvents();
  }
}

void frmImage::ShowOutline(Edge edge) {
  SetDpi(strip_.AsForm().Dpi());
  const forms::ScreenInfo screen = Screen();
  const float x = screen.TwipsPerPixelX;
  const float y = screen.TwipsPerPixelY;
  const TwipRect place =
      OutlineAt(edge, strip_.Shape().Button, {screen.Width, screen.Height}, {x, y});
  const PixelRect bounds =
      forms::ToPixels(place.Left, place.Top, place.Width, place.Height, screen);
  if (Visible() && bounds == forms::ToPixels(Left(), Top(), Width(), Height(), screen)) return;
  // What lies under the new place is seen without the outline at the old one.
  if (Visible()) {
    Hide();
    with_.Desktop.PaintVisibleWindows();
  }
  SetBackground(with_.Windows.PictureOfScreen(bounds));
  PlaceAt(bounds);
  const float w = static_cast<float>(bounds.Width()) * x;
  const float h = static_cast<float>(bounds.Height()) * y;
  // A line of four pixels covers one before its points and two behind them.
  bLine1.SetPoints(0, y, w, y);
  bLine2.SetPoints(x, 0, x, h);
  bLine3.SetPoints(0, h - 3 * y, w, h - 3 * y);
  bLine4.SetPoints(w - 3 * x, 0, w - 3 * x, h);
  for (forms::Line* line : {&bLine1, &bLine2, &bLine3, &bLine4}) {
    line->SetBorderColor(ColorValue(LineColor::Drag));
    line->SetBorderWidth(kBand);
  }
  ShowLines(true);
  ShowNoActivate();
  Refresh();
}

void frmImage::ClearBg() {
  outline_.reset();
  // Also where no window is up: the next one may be a still picture, and has no lines.
  ShowLines(false);
  if (!IsLoaded()) return;
  Hide();
  SetBackground(nullptr);
}

}  // namespace corvelle
