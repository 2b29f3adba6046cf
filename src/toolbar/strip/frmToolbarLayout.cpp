// Sizes and places: rules are asked, controls are set.

#include <algorithm>

#include "core/Program.h"
#include "core/SettingsFiles.h"
#include "platform/SystemInfo.h"
#include "toolbar/layout/StripPlace.h"
#include "toolbar/strip/frmToolbar.h"

namespace corvelle {
namespace {

constexpr int kDragWidth = 2;  // of a border line that is pulled, pixels

void Place(forms::Control& control, const TwipRect& bounds) {
  control.Move(bounds.Left, bounds.Top, bounds.Width, bounds.Height);
}

}  // namespace

StripShape frmToolbar::Shape() const {
  // One that left its edge for the task bar has no place at the top meanwhile.
  const bool atEdge = program_.Strip.BelongsToEdge() || program_.Strip.AppBarRequested;
  const ButtonRect& button = Buttons.ToolbarButtons[0];
  return {.Where = atEdge ? Placement::AtEdge : Placement::TopHugging,
          .At = program_.Strip.ToolbarEdge,
          .Scale = {program_.Strip.ToolbarVertical, TwipsX, TwipsY},
          .Button = {button.Width, button.Height},
          .TopCut = Buttons.TopCut};
}

void frmToolbar::SetToolbar() {
  SetControls();
  if (Shape().Where != Placement::TopHugging) return;
  SetToolbarPosition();
  DrawBorders();
}

void frmToolbar::SetControls() {
  if (Buttons.ButtonCount == 0) return;
  ReadTwips();
  const StripShape shape = Shape();
  const ButtonRect& last = Buttons.ToolbarButtons[static_cast<std::size_t>(Buttons.ButtonCount)];
  const StripControls controls =
      SetControlsRule({.Where = shape.Where,
                       .At = shape.At,
                       .TwipsX = TwipsX,
                       .TwipsY = TwipsY,
                       .TopCut = Buttons.TopCut,
                       .Template = shape.Button,
                       .LastButton = {last.Left, last.Top, last.Width, last.Height},
                       .SingleCount = Singles.SingleCount,
                       .LastSingleRight = Singles.LastEnd(),
                       .Buttons = picToolbar.Bounds(),
                       .Singles = picSingleButton.Bounds(),
                       .Window = Bounds()});
  // Known before the window moves, since a move is checked against it.
  if (Shape().Where == Placement::TopHugging) SavedTop = controls.Window.Top;
  Place(picToolbar, controls.Buttons);
  Place(picSingleButton, controls.Singles);
  Place(lblSep[0], controls.Grip);
  Place(*this, controls.Window);
  lblSep[0].SetVisible(true);
}

void frmToolbar::SetToolbarPosition() {
  const forms::ScreenInfo screen = Screen();
  const StripPosition position =
      PlaceTopHugging({.SavedLeft = LastPosition(),
                       .ScreenWidth = screen.Width,
                       .TwipsX = TwipsX,
                       .TwipsY = TwipsY,
                       .CaptionButtonWidth = program_.Services.System.CaptionButtonWidth(Dpi()),
                       .WindowWidth = Width(),
                       .Singles = picSingleButton.Bounds(),
                       .ButtonsHeight = picToolbar.Height(),
                       .TopCut = Buttons.TopCut});
  SavedLeft = position.SavedLeft;
  SavedTop = position.SavedTop;
  positioned_ = true;
  Place(*this, position.Window);
}

float frmToolbar::LastPosition() const {
  if (positionUnsaved_) return StoredLeft(SavedLeft);
  return LoadToolbarPosition(program_.Services.Files, program_.Paths.AppPath);
}

void frmToolbar::UpdateToolbarPosition() {
  if (!positioned_ || Shape().Where != Placement::TopHugging) return;
  // On a disk that refuses it the strip keeps its place for this run only.
  positionUnsaved_ =
      !SaveToolbarPosition(program_.Services.Files, program_.Paths.AppPath, StoredLeft(SavedLeft));
}

void frmToolbar::ShowBorder(forms::Line& line, const BorderLine& border) {
  line.SetBorderWidth(1);
  line.SetPoints(border.Points.X1, border.Points.Y1, border.Points.X2, border.Points.Y2);
  line.SetBorderColor(ColorValue(border.Look.Color));
  line.SetVisible(border.Look.Visible);
}

void frmToolbar::DrawBorders() {
  // A strip that is a line shows nothing.
  if (!ContentsVisible()) return;
  ReadTwips();
  if (LinTB1.Has(1)) {
    LinTB1[1].SetBorderColor(forms::color::Highlight3D);
    LinTB1[1].SetBorderWidth(1);
  }
  if (program_.Strip.AppBarDocked) program_.Strip.AppBarRequested = true;
  const StripShape shape = Shape();
  const StripBorders borders = DrawBordersRule({.Where = shape.Where,
                                                .At = shape.At,
                                                .TwipsX = TwipsX,
                                                .TwipsY = TwipsY,
                                                .Window = Bounds(),
                                                .ScreenWidth = Screen().Width,
                                                .SingleCount = Singles.SingleCount,
                                                .Singles = picSingleButton.Bounds()});
  picSingleButton.SetHeight(borders.SinglesHeight);
  ShowBorder(bLine1, borders.bLine1);
  ShowBorder(bLine2, borders.bLine2);
  ShowBorder(bLine3, borders.bLine3);
  ShowBorder(bLine4, borders.bLine4);
  ShowBorder(bLineXY, borders.bLineXY);
}

float frmToolbar::FreeWidth() const { return Screen().Width - (Left() + Width()); }

void frmToolbar::ResizeAfterEdit(float freeWidth) {
  // One that hid while the user was asked has a line's bounds.
  if (program_.Ports.Docking != nullptr) program_.Ports.Docking->RevealToolbar();
  SetControls();
  if (Shape().Where == Placement::TopHugging) {
    SavedLeft = std::max(Screen().Width - freeWidth - Width(), 0.0F);
    SetLeft(SavedLeft);
    UpdateToolbarPosition();
  } else if (program_.Ports.Docking != nullptr) {
    program_.Ports.Docking->ResizeToEdge();
  }
  DrawBorders();
  InvalidateAll();
  Refresh();
}

void frmToolbar::DoLabelDate() {
  ReadTwips();
  Singles.Date.DoLabelDate();
}

void frmToolbar::DrawDragLook() {
  for (forms::Line* line : {&bLine1, &bLine2, &bLine3, &bLine4}) {
    line->SetBorderColor(ColorValue(LineColor::Drag));
    line->SetBorderWidth(kDragWidth);
  }
}

void frmToolbar::EndSlide() {
  const SlideScene scene{.Left = Left(),
                         .Width = Width(),
                         .ButtonsWidth = picToolbar.Width(),
                         .SingleCount = Singles.SingleCount,
                         .ScreenWidth = Screen().Width,
                         .TwipsX = TwipsX,
                         .CaptionButtonWidth = program_.Services.System.CaptionButtonWidth(Dpi()),
                         .MayPassRight = program_.OptionFlags.Is(Option::MayPassRight),
                         .MayPassLeft = program_.OptionFlags.Is(Option::MayPassLeft)};
  SavedTop = -static_cast<float>(Buttons.TopCut) * TwipsY;
  SavedLeft = SlideEnd(scene);
  Move(SavedLeft, SavedTop, Width(), Height());
  UpdateToolbarPosition();
  DrawBorders();
}

void frmToolbar::ShowContents() {
  picToolbar.SetVisible(true);
  picSingleButton.SetVisible(true);
}

void frmToolbar::HideContents() {
  Pull.EndLostPull();
  picToolbar.SetVisible(false);
  picSingleButton.SetVisible(false);
  for (forms::Line* line : {&bLine1, &bLine2, &bLine3, &bLine4, &bLineXY}) line->SetVisible(false);
}

bool frmToolbar::IsPartOfStrip(WindowId window) const {
  return window == hWnd() || window == picToolbar.hWnd() || window == picSingleButton.hWnd();
}

}  // namespace corvelle
