#include "toolbar/notices/frmHelp.h"

#include <string>

#include "forms/WindowSystem.h"
#include "platform/DesktopWindows.h"
#include "platform/Input.h"
#include "toolbar/notices/HintPlace.h"

namespace corvelle {
namespace {

constexpr int kWatch = 250;      // milliseconds
constexpr float kFirstTop = 10;  // twips

}  // namespace

frmHelp::frmHelp(const HintParts& with)
    : Form(with.Windows, "frmHelp"), Label1(*this, "Label1"), Timer1(with.Windows), with_(with) {
  using forms::MouseButton;
  using forms::ShiftState;
  MouseMove = [this](MouseButton, ShiftState, float, float) { Form_MouseMove(); };
  Label1.MouseMove = [this](MouseButton, ShiftState, float, float) { Form_MouseMove(); };
  Paint = [this] { Form_Paint(); };
  Timer1.Tick = [this] { Timer1_Timer(); };
}

void frmHelp::Form_Load() {
  SetCaption("");
  SetBackColor(forms::color::TooltipFace);
  Label1.SetAutoSize(true);
  Label1.SetForeColor(forms::color::TooltipText);
  Label1.SetTop(kFirstTop);
  Timer1.SetEnabled(false);
  Timer1.SetInterval(kWatch);
  SetWindowPos(forms::InsertAfter::Topmost, forms::swp::Hide | forms::swp::KeepActive);
}

void frmHelp::SetHint(std::string_view text) {
  const std::string wanted(text);
  if (IsLoaded() && Visible()) {
    // The old hint is gone from the screen before the new one is measured.
    CloseHint();
    with_.Windows.PaintWaiting();
  }
  if (wanted.empty() || with_.Options.Is(Option::NoHints)) return;
  if (Load()) ShowHint(wanted);
}

// A hint that is not loaded yet comes up on top by itself.
void frmHelp::SetHintLevel(forms::InsertAfter after, unsigned flags) {
  if (IsLoaded()) SetWindowPos(after, flags);
}

void frmHelp::ReleaseHint() { Unload(); }

void frmHelp::CloseHint() {
  Hide();
  Timer1.SetEnabled(false);
}

void frmHelp::ShowHint(std::string_view text) {
  if (with_.Ports.Toolbar != nullptr) SetDpi(with_.Ports.Toolbar->WindowDpi());
  Label1.SetLeft(Scale().TwipsPerPixelX);
  Label1.SetCaption("");
  Label1.SetCaption(" " + std::string(text) + " ");
  const forms::ScreenInfo screen = Screen();
  const HintPlace place = PlaceHint({.Pointer = with_.Pointer.PointerPosition(),
                                     .Label = {Label1.Width(), Label1.Height()},
                                     .TwipsX = screen.TwipsPerPixelX,
                                     .TwipsY = screen.TwipsPerPixelY,
                                     .ScreenWidth = screen.Width,
                                     .ScreenHeight = screen.Height});
  Move(place.Window.Left, place.Window.Top, place.Window.Width, place.Window.Height);
  Label1.SetTop(place.LabelTop);
  ZOrder(forms::ZPlace::Front);
  ShowNoActivate();
  Timer1.SetEnabled(true);
}

// The pointer can never rest on a hint.
void frmHelp::Form_MouseMove() { CloseHint(); }

void frmHelp::Timer1_Timer() {
  const WindowId under = with_.Desktop.WindowAt(with_.Pointer.PointerPosition());
  const StripCarryPort* const strip = with_.Ports.Toolbar;
  const bool overStrip = strip != nullptr && under != kNoWindow &&
                         (under == strip->ButtonBoxHandle() || under == strip->SingleBoxHandle());
  if (!overStrip) CloseHint();
}

// A thin frame in the colour of the text.
void frmHelp::Form_Paint() {
  const forms::ScreenInfo screen = Screen();
  const float right = ScaleWidth() - screen.TwipsPerPixelX;
  const float bottom = ScaleHeight() - screen.TwipsPerPixelY;
  FillBox(0, 0, right, 0, forms::color::TooltipText);
  FillBox(0, bottom, right, bottom, forms::color::TooltipText);
  FillBox(0, 0, 0, bottom, forms::color::TooltipText);
  FillBox(right, 0, right, bottom, forms::color::TooltipText);
}

}  // namespace corvelle
