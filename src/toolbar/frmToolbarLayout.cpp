// Sizes and places: rules are asked, controls are set.

#include <algorithm>

#include "core/Program.h"
#include "core/SettingsFiles.h"
#include "platform/SystemInfo.h"
#include "toolbar/StripPlace.h"
#include "toolbar/frmToolbar.h"

namespace corvelle {
namespace {

void Place(forms::Control& control, const TwipRect& bounds) {
  control.Move(bounds.Left, bounds.Top, bounds.Width, bounds.Height);
}

}  // namespace

Placement frmToolbar::Where() const {
  return program_.Strip.AppBarDocked || program_.Strip.AppBarRequested ? Placement::AtEdge
                                                                       : Placement::TopHugging;
}

Edge frmToolbar::AtEdge() const { return program_.Strip.ToolbarEdge; }

StripScale frmToolbar::Scale() const { return {program_.Strip.ToolbarVertical, TwipsX, TwipsY}; }

StripPlace frmToolbar::PlaceOnScreen() const { return {Left(), Top(), Scale()}; }

void frmToolbar::MakeTemplates() {
  const TemplateSize size =
      TemplateButton({.LargeIcons = program_.OptionFlags.Is(Option::LargeIcons),
                      .IconSize = program_.Icons.IconSize,
                      .TwipsX = TwipsX,
                      .TwipsY = TwipsY,
                      .CaptionHeight = program_.Services.System.CaptionHeight()});
  TopCut = size.TopCut;
  ButtonRect& button = ToolbarButtons[0];
  button = ButtonRect{.Width = size.Width, .Height = size.Height};

  const ButtonLines lines = TemplateLines(button, Scale());
  LinTB1[0].SetPoints(lines.LinTB1.X1, lines.LinTB1.Y1, lines.LinTB1.X2, lines.LinTB1.Y2);
  LinTB2[0].SetPoints(lines.LinTB2.X1, lines.LinTB2.Y1, lines.LinTB2.X2, lines.LinTB2.Y2);
  LinTB1[0].SetVisible(false);
  LinTB2[0].SetVisible(false);

  const TwipSize separator = TemplateSeparator(button, Scale());
  lblSep[0].Move(lblSep[0].Left(), 0, separator.Width, separator.Height);
  lblSep[0].SetVisible(false);
  lblSep[0].SetCaption("");
}

void frmToolbar::SetToolbar() {
  SetControls();
  if (Where() != Placement::TopHugging) return;
  SetToolbarPosition();
  DrawBorders();
}

void frmToolbar::SetControls() {
  if (ButtonCount == 0) return;
  ReadTwips();
  const ButtonRect& last = ToolbarButtons[static_cast<std::size_t>(ButtonCount)];
  const StripControls controls =
      SetControlsRule({.Where = Where(),
                       .At = AtEdge(),
                       .TwipsX = TwipsX,
                       .TwipsY = TwipsY,
                       .TopCut = TopCut,
                       .Template = {ToolbarButtons[0].Width, ToolbarButtons[0].Height},
                       .LastButton = {last.Left, last.Top, last.Width, last.Height},
                       .SingleCount = SingleCount,
                       .LastSingleRight = Singles.LastEnd(),
                       .Buttons = picToolbar.Bounds(),
                       .Singles = picSingleButton.Bounds(),
                       .Window = Bounds()});
  // Known before the window moves, since a move is checked against it.
  if (Where() == Placement::TopHugging) SavedTop = controls.Window.Top;
  Place(picToolbar, controls.Buttons);
  Place(picSingleButton, controls.Singles);
  Place(lblSep[0], controls.Grip);
  Place(*this, controls.Window);
  lblSep[0].SetVisible(true);
}

void frmToolbar::SetToolbarPosition() {
  const forms::ScreenInfo screen = program_.Windows.Screen();
  const StripPosition position =
      PlaceTopHugging({.SavedLeft = LastPosition(),
                       .ScreenWidth = screen.Width,
                       .TwipsX = TwipsX,
                       .TwipsY = TwipsY,
                       .CaptionButtonWidth = program_.Services.System.CaptionButtonWidth(),
                       .WindowWidth = Width(),
                       .Singles = picSingleButton.Bounds(),
                       .ButtonsHeight = picToolbar.Height(),
                       .TopCut = TopCut});
  SavedLeft = position.SavedLeft;
  SavedTop = position.SavedTop;
  positioned_ = true;
  Place(*this, position.Window);
}

float frmToolbar::LastPosition() const {
  if (positionUnsaved_) return SavedLeft;
  return LoadToolbarPosition(program_.Services.Files, program_.Paths.AppPath);
}

void frmToolbar::UpdateToolbarPosition() {
  if (!positioned_ || Where() != Placement::TopHugging) return;
  // On a disk that refuses it the strip keeps its place for this run only.
  positionUnsaved_ =
      !SaveToolbarPosition(program_.Services.Files, program_.Paths.AppPath, SavedLeft);
}

void frmToolbar::ShowBorder(forms::Line& line, const BorderLine& border) {
  line.SetBorderWidth(1);
  line.SetPoints(border.Points.X1, border.Points.Y1, border.Points.X2, border.Points.Y2);
  line.SetBorderColor(ColorValue(border.Look.Color));
  line.SetVisible(border.Look.Visible);
}

void frmToolbar::DrawBorders() {
  ReadTwips();
  if (LinTB1.Has(1)) {
    LinTB1[1].SetBorderColor(forms::color::Highlight3D);
    LinTB1[1].SetBorderWidth(1);
  }
  if (program_.Strip.AppBarDocked) program_.Strip.AppBarRequested = true;
  const StripBorders borders = DrawBordersRule({.Where = Where(),
                                                .At = AtEdge(),
                                                .TwipsX = TwipsX,
                                                .TwipsY = TwipsY,
                                                .Window = Bounds(),
                                                .ScreenWidth = program_.Windows.Screen().Width,
                                                .SingleCount = SingleCount,
                                                .Singles = picSingleButton.Bounds()});
  picSingleButton.SetHeight(borders.SinglesHeight);
  ShowBorder(bLine1, borders.bLine1);
  ShowBorder(bLine2, borders.bLine2);
  ShowBorder(bLine3, borders.bLine3);
  ShowBorder(bLine4, borders.bLine4);
  ShowBorder(bLineXY, borders.bLineXY);
}

float frmToolbar::FreeWidth() const { return program_.Windows.Screen().Width - (Left() + Width()); }

void frmToolbar::ResizeAfterEdit(float freeWidth) {
  SetControls();
  if (Where() == Placement::TopHugging) {
    SavedLeft = std::max(program_.Windows.Screen().Width - freeWidth - Width(), 0.0F);
    SetLeft(SavedLeft);
    UpdateToolbarPosition();
  } else if (program_.Ports.Docking != nullptr) {
    program_.Ports.Docking->ResizeToEdge();
  }
  DrawBorders();
  InvalidateAll();
  Refresh();
}

void frmToolbar::SetMenuPosition() {
  QMenuPort* const menu = program_.Ports.QMenu;
  if (menu == nullptr) return;
  const std::optional<MenuSpot> spot = SpotFor(menu->MenuSize());
  if (!spot) return;
  menuLeft_ = spot->Left;
  menuTop_ = spot->Top;
  menu->MoveMenu(spot->Left, spot->Top);
}

float frmToolbar::TopOfMenu() const {
  const std::optional<MenuSpot> spot = SpotFor({});
  return spot ? spot->Top : 0;
}

std::optional<MenuSpot> frmToolbar::SpotFor(const TwipSize& menu) const {
  // The menu's own button, since the pointer may have gone on while the menu was built.
  const int owner = MenuOwner() > 0 ? MenuOwner() : program_.Menu.CurButton;
  if (owner < 0 || owner > ButtonCount) return std::nullopt;
  const ButtonRect& button = ToolbarButtons[static_cast<std::size_t>(owner)];
  return MenuPosition(
      {.Where = program_.Strip.AppBarDocked ? Placement::AtEdge : Placement::TopHugging,
       .At = AtEdge(),
       .Window = Bounds(),
       .ButtonLeft = button.Left,
       .ButtonTop = button.Top,
       .MenuWidth = menu.Width,
       .MenuHeight = menu.Height,
       .ScreenHeight = program_.Windows.Screen().Height,
       .TwipsX = TwipsX,
       .TwipsY = TwipsY});
}

}  // namespace corvelle
