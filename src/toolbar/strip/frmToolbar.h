#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/WindowPorts.h"
#include "forms/ControlArray.h"
#include "forms/Form.h"
#include "forms/Graphic.h"
#include "forms/PictureBox.h"
#include "forms/Timer.h"
#include "toolbar/docking/DockedStrip.h"
#include "toolbar/docking/StripHiding.h"
#include "toolbar/docking/StripPull.h"
#include "toolbar/layout/StripLook.h"
#include "toolbar/singles/SingleDrops.h"
#include "toolbar/singles/SingleRow.h"
#include "toolbar/strip/ButtonRow.h"
#include "toolbar/strip/MenuTracking.h"
#include "toolbar/strip/RefusedFiles.h"
#include "toolbar/strip/StripCarry.h"
#include "toolbar/strip/StripDrops.h"

namespace corvelle {

class Program;

/// What the strip was told at a moment when it could not follow.
struct LaterNews {
  bool Bars = false;        // bars or the screen have changed since the strip was placed
  bool Level = false;       // a full-screen program came or went
  bool NewTaskBar = false;  // the strip is not registered with the shell any more
  // A rebuild, or the way to the top, was asked for while the strip was being placed.
  bool Rebuild = false;
  bool Restore = false;

  [[nodiscard]] bool Waits() const noexcept {
    return Bars || Level || NewTaskBar || Rebuild || Restore;
  }
};

/// The strip: the menu buttons, the grip and the single buttons. It is the program's face and lives
/// for the whole run. It makes the controls, sizes and places them, and hands what happens to the
/// parts that deal with it: the row of buttons, the menus, the pull, hiding, the single buttons and
/// drops. All measures are twips.
class frmToolbar final : public forms::Form,
                         public ToolbarPort,
                         public DockedStrip,
                         public PulledStrip,
                         public HidingStrip,
                         public RowHost,
                         public TrackedStrip {
 public:
  explicit frmToolbar(Program& program);
  ~frmToolbar() override;

  // ---- the window, as its parts and other windows see it ----

  [[nodiscard]] forms::Form& AsForm() noexcept override { return *this; }
  [[nodiscard]] StripShape Shape() const override;
  [[nodiscard]] forms::PictureBox& SinglesBox() noexcept override { return picSingleButton; }
  [[nodiscard]] const forms::PictureBox& ButtonsBox() const noexcept override { return picToolbar; }
  [[nodiscard]] TwipSize ButtonBox() const override {
    return {picToolbar.Width(), picToolbar.Height()};
  }
  [[nodiscard]] bool ContentsVisible() const override { return picToolbar.Visible(); }
  void ShowContents() override;
  void HideContents() override;
  [[nodiscard]] bool IsPartOfStrip(WindowId window) const override;
  void WatchHiding(bool enabled) override { Timer1.SetEnabled(enabled); }
  void SetPointerWatch(bool enabled) override { Timer2.SetEnabled(enabled); }

  void LoadWindow() override;
  void UnloadWindow() override;
  [[nodiscard]] bool WindowLoaded() const override { return IsLoaded(); }
  [[nodiscard]] WindowId WindowHandle() const override { return hWnd(); }
  void HoldForMessage(bool owns) override { owns ? HoldInputOfOwner() : HoldInput(); }
  void ReleaseAfterMessage() override { ReleaseInput(); }
  [[nodiscard]] bool ButtonsPressed() const override { return picToolbar.IsPressed(); }
  [[nodiscard]] WindowId ButtonBoxHandle() const override { return picToolbar.hWnd(); }
  [[nodiscard]] WindowId SingleBoxHandle() const override { return picSingleButton.hWnd(); }
  [[nodiscard]] TwipRect WindowBounds() const override { return Bounds(); }
  [[nodiscard]] int WindowDpi() const override { return Dpi(); }
  void SetWindowPos(forms::InsertAfter after, unsigned flags) override {
    Form::SetWindowPos(after, flags);
  }

  // ---- loading, building, unloading (frmToolbar.cpp) ----

  /// Builds the window's contents from the files and shows it, unless a repositioning runs.
  void InitButtons() override;
  /// Saves the options and rebuilds the strip after a change in the menus or the options.
  void InitNewButtons() override;
  /// Leaves an edge for the place at the top.
  void RestoreToolbar() override;
  /// Unloads all that was made for the buttons and closes the menu. Between this and InitButtons
  /// nothing may draw a button.
  void UnloadItems() override;
  /// Empties the icon collections kept for menus.
  void ResetCollections() override;
  void MarkCollections() override { CollectionsMarked = true; }

  // ---- buttons (frmToolbarButtons.cpp) ----

  /// Reads the menu files in their order and makes every button again.
  void DoToolbarButtons() override { Buttons.DoToolbarButtons(); }
  /// The same on a strip that keeps its size.
  void RefreshToolbarButtons() override { Buttons.Refresh(); }
  void RefreshSingleButtons() override { Singles.RefreshSingleButtons(); }
  /// Reads the files of the single buttons and makes their row again.
  void DoSingleButtons() override { Singles.DoSingleButtons(); }
  /// Repaints the buttons without moving anything, after a change of the system's colours.
  void RefreshToolbar() override;
  void AddNewButton() override;

  // ---- sizes and places (frmToolbarLayout.cpp) ----

  /// Sizes and places everything; a strip at no edge is placed as well.
  void SetToolbar() override;
  /// Sizes both boxes, the grip and the window.
  void SetControls() override;
  /// Places a strip at no edge by its saved position.
  void SetToolbarPosition();
  /// Saves the position of a strip at no edge. A failure leaves the old position on the disk.
  void UpdateToolbarPosition();
  /// Places the lines of the window's border in their resting colours.
  void DrawBorders() override;
  void DrawDragLook() override;
  void EndSlide() override;
  /// Screen width less the strip's right end.
  [[nodiscard]] float FreeWidth() const override;
  void ResizeAfterEdit(float freeWidth) override;
  void DoLabelDate() override;
  void UpdateLabelDate() override { Singles.Date.UpdateLabelDate(); }

  // ---- menus and drops, for other windows ----

  void OpenMenu(std::string_view tag) override { Menus.OpenMenu(tag); }
  void RefreshMenu(std::string_view tag) override { Menus.RefreshMenu(tag); }
  void ResetMenu() override { Menus.ResetMenu(); }
  void SetMenuPosition() override { Menus.SetMenuPosition(); }
  [[nodiscard]] float TopOfMenu() const override { return Menus.TopOfMenu(); }
  void RemoveQMenu(std::string_view tag) override { Menus.RemoveQMenu(tag); }
  int dragCurButton() override { return Carry.dragCurButton(); }
  void DoButtonDrag(int button, forms::MouseButton released) override {
    Carry.DoButtonDrag(button, released);
  }
  void DropOnRow(forms::MouseButton released) override { RowDrops.DoItemDrag(released); }
  void TellRefused(std::vector<std::string> files) override { Refused.Tell(std::move(files)); }

  // ---- what its parts ask of one another ----

  [[nodiscard]] bool MenuUp() const override { return Menus.MenuUp(); }
  [[nodiscard]] bool IsOursActive() const override { return Menus.IsOursActive(); }
  [[nodiscard]] bool IsOverMenu(WindowId window) const override { return Menus.IsOverMenu(window); }
  void EndHovering() override { Menus.EndHovering(); }
  [[nodiscard]] int ButtonUnder(PixelPoint pointer) const override {
    return Buttons.At(pointer, 0, false);
  }
  void CarryOverButtons(forms::MouseButton down, forms::ShiftState /*shift*/, float x,
                        float y) override {
    Menus.picToolbar_MouseMove(down, x, y);
  }
  void FrameMouseMove(forms::MouseButton down, float x, float y) override;
  void RowMouseMove() override { Singles.sMouseMove(); }
  void RowMouseUp(forms::MouseButton button, forms::ShiftState shift, float x, float y) override {
    Singles.picSingleButton_MouseUp(button, shift, x, y);
  }
  void WatchCarry() override { Carry.WatchCarry(); }
  void SinkAgain() override { Hiding.SinkAgain(); }

  // ---- the frame and the grip (frmToolbarFrame.cpp) ----

  void lblSep_MouseDown(int index, forms::MouseButton button, float x, float y);
  void lblSep_MouseMove(int index, forms::MouseButton down, float x, float y);
  void lblSep_MouseUp(int index, forms::MouseButton button, float x, float y);
  void Form_DblClick();

  // ---- keys (frmToolbarKeys.cpp) ----

  void Form_KeyDown(int keyCode, forms::ShiftState shift) override;
  void Form_KeyPress(char32_t character) override;
  void ActivateKeyDown(int keyCode) override;

  // ---- messages and the desktop (frmToolbarMessages.cpp) ----

  /// Every message of the strip's window before the system's treatment; an answer ends it.
  std::optional<std::intptr_t> ToolbarWndProc(std::uint32_t message, std::uintptr_t wParam,
                                              std::intptr_t lParam);
  void FullScreenNotify(std::intptr_t entering);
  void CheckToolbarMove() override;
  void AdjustToolbarPosition() override { Pull.AdjustToolbarPosition(); }
  void CacheDisplayMetrics();
  void ShowToolbar() override;
  void BringToForeground() override;
  void ShowAndRefresh() override;
  void HideWindow() override { Hide(); }
  void FollowBarsLater() override;
  /// Carries out a pending focus request. With Auto Hide it hides a strip that the pointer left and
  /// brings it back when the pointer touches its line; without, it stops itself.
  void Timer1_Timer();

  // ---- controls, from the back to the front ----

  forms::Timer tmrDragDrop;
  /// Ticks once, after a drop of which files were refused.
  forms::Timer tmrRefused;
  forms::PictureBox picSingleButton;
  /// Lines in that box: element 0 is before the date, the others are separators.
  forms::ControlArray<forms::Line> Line1;
  forms::ControlArray<forms::Line> Line2;
  forms::Label lblDate;
  forms::Line LineLeft;
  forms::Timer Timer2;
  forms::Timer Timer1;
  forms::PictureBox picToolbar;
  /// Element 0 is the grip between the boxes, the others are separators between buttons.
  forms::ControlArray<forms::Label> lblSep;
  /// The two lines at the sides of each button; element 0 is the template.
  forms::ControlArray<forms::Line> LinTB1;
  forms::ControlArray<forms::Line> LinTB2;
  forms::Line bLineXY;
  forms::Line bLine4;
  forms::Line bLine2;
  forms::Line bLine3;
  forms::Line bLine1;

  // ---- state ----

  /// Set by whoever wants the icon collections emptied by the next UnloadItems.
  bool CollectionsMarked = false;
  float TwipsX = 15;
  float TwipsY = 15;
  float SavedLeft = 0;
  float SavedTop = 0;
  /// The system's colour of buttons and the screen as they were looked at last: bits of a pixel,
  /// pixels.
  Rgb BaseColor = 0;
  int BaseBits = 0;
  int BaseWidth = 0;
  int BaseHeight = 0;

  // ---- parts, each after those that it uses ----

  ButtonRow Buttons;
  StripPull Pull;
  StripHiding Hiding;
  MenuTracking Menus;
  /// The single buttons, in picSingleButton.
  SingleRow Singles;
  SingleDrops RowDrops;
  StripCarry Carry;
  RefusedFiles Refused;
  StripDrops Drops;

 protected:
  void Form_Load() override;
  void Form_Unload() override;
  void Form_Activate() override;
  void Form_Deactivate() override;
  // Only the companion's end ends the program: a strip that is asked to close stays, and what it
  // has to save when the session ends is saved when the companion unloads it.
  void Form_QueryClose() override {}
  void Form_SessionEnd() override {}
  std::optional<std::intptr_t> WindowProc(std::uint32_t message, std::uintptr_t wParam,
                                          std::intptr_t lParam) override;
  void OnMoved(const PixelRect& bounds) override;

 private:
  // Loading and building.
  std::unique_ptr<forms::Label> MakeSeparator(int index);
  void WireEvents();
  void WireRow();
  void MakeFolders();
  void ReadPlacement();
  void PlaceFirst();
  void ReadTwips();
  void StopTimers();
  void ChooseIconSize();
  void OfferDefaultEntries();
  void ShowInFront();
  void RebuildAtTop();

  // Layout.
  /// Where the strip was left: in this run, or saved.
  [[nodiscard]] float LastPosition() const;
  void ShowBorder(forms::Line& line, const BorderLine& border);

  // Keys.
  [[nodiscard]] bool KeyboardMoves() const;
  [[nodiscard]] bool EnterIsOfMenu() const;
  void StartKeyboard();
  void SelectButton(int button);
  void EnterCurButton();

  // Messages.
  std::optional<std::intptr_t> ShellNotify(std::uintptr_t what, std::intptr_t lParam);
  std::optional<std::intptr_t> NoteForLater(std::uint32_t message, std::uintptr_t wParam,
                                            std::intptr_t lParam);
  [[nodiscard]] bool IsNewTaskBar(std::uint32_t message) const;
  /// Deals with the news that came while the strip could not.
  void CatchUp();
  /// The place in the Z order that goes with a full-screen program, or with none. A menu that is up
  /// goes with its still picture when the program goes. Events may run.
  void TakeLevel();
  void FollowColours();
  void FollowDisplay();
  /// Finds the strip's place again after bars or the screen have changed.
  void FollowBars();
  void KeepPinned();
  void TakeRequestedFocus();

  Program& program_;
  bool positionUnsaved_ = false;  // the disk refused SavedLeft
  bool positioned_ = false;       // SavedLeft is known
  bool subclassed_ = false;
  bool focusRequested_ = false;
  WindowId frontAtRequest_ = kNoWindow;  // the foreground then
  LaterNews news_;
};

}  // namespace corvelle
