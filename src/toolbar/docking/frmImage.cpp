#include "toolbar/docking/frmImage.h"

#include <utility>

#include "base/Edge.h"
#include "base/Numbers.h"
#include "core/Program.h"
#include "forms/Scale.h"
#include "forms/Scopes.h"
#include "platform/DesktopWindows.h"
#include "toolbar/docking/AppBarRules.h"
#include "toolbar/layout/StripLook.h"

namespace corvelle {
namespace {

constexpr int kBand = 4;  // pixels of the outline's sides
constexpr int kNoKey = 0;

}  // namespace

frmImage::frmImage(Program& program, StripWindow& strip)
    : Form(program.Windows, "frmImage"),
      bLine1(*this, "bLine1"),
      bLine2(*this, "bLine2"),
      bLine3(*this, "bLine3"),
      bLine4(*this, "bLine4"),
      program_(program),
      strip_(strip) {
  ShowLines(false);
}

void frmImage::Form_Load() { SetWindowPos(forms::InsertAfter::Topmost, forms::swp::Hide); }

void frmImage::Form_Unload() {
  menuCaptured_ = false;
  outline_.reset();
  ShowLines(false);
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
  const forms::WindowPicture seen = program_.Windows.PictureOfWindow(window);
  if (seen.Pixels == nullptr) return false;
  const PixelRect shown = Intersect(seen.Bounds, RectAt({0, 0}, program_.Windows.ScreenSize()));
  if (shown.IsEmpty() || !Load()) return false;
  std::unique_ptr<Canvas> picture = program_.Windows.CreateCanvas(shown.Size());
  const PixelPoint corner{shown.left - seen.Bounds.left, shown.top - seen.Bounds.top};
  picture->DrawCanvas(*seen.Pixels, RectAt(corner, shown.Size()), {0, 0});
  PlaceAt(shown);
  SetBackground(std::move(picture));
  ShowNoActivate();
  Refresh();
  return true;
}

void frmImage::CaptureMenu() {
  const QMenuPort* const menu = program_.Ports.QMenu;
  if (menuCaptured_ || menu == nullptr || !menu->MenuVisible()) return;
  ClearBg();
  if (program_.Ports.Toolbar != nullptr) program_.Ports.Toolbar->SetPointerWatch(false);
  menuCaptured_ = Cover(menu->WindowHandle());
}

void frmImage::ReleaseMenu() {
  if (menuCaptured_) {
    menuCaptured_ = false;
    QMenuPort* const menu = program_.Ports.QMenu;
    // The user has pressed the picture, and meant the menu.
    const WindowId active = program_.Services.Desktop.ActiveWindow();
    if (active != kNoWindow && active == hWnd() && menu != nullptr && menu->MenuVisible()) {
      menu->ActivateKeyDown(kNoKey);
    }
    Hide();
    program_.Events.DoEvents();
    program_.Windows.SetMousePointer(forms::MousePointer::Default);
    if (menu != nullptr && menu->MenuVisible()) {
      menu->SetWindowPos(forms::InsertAfter::Top, forms::swp::KeepActivation);
      program_.Services.Desktop.PaintVisibleWindows();
      if (program_.Ports.Toolbar != nullptr) program_.Ports.Toolbar->SetPointerWatch(true);
    }
  }
  Unload();
}

void frmImage::SetPicture1() {
  if (!program_.OptionFlags.Is(Option::AboveFullScreen) || program_.Guards.ChangingMode ||
      !strip_.AsForm().Visible())
    return;
  ClearBg();
  Cover(strip_.AsForm().hWnd());
}

void frmImage::ResetPicture1() {
  program_.Events.DoEvents();
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
    program_.Events.DoEvents();
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
    program_.Services.Desktop.PaintVisibleWindows();
  }
  SetBackground(program_.Windows.PictureOfScreen(bounds));
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
  if (!IsLoaded()) return;
  Hide();
  ShowLines(false);
  SetBackground(nullptr);
}

}  // namespace corvelle
