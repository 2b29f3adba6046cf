#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/MenuRecord.h"
#include "core/RecordEdits.h"
#include "core/WindowPorts.h"
#include "forms/ControlArray.h"
#include "forms/Form.h"
#include "forms/Graphic.h"
#include "forms/PictureBox.h"
#include "forms/Timer.h"
#include "toolbar/CarryRules.h"
#include "toolbar/SingleRow.h"
#include "toolbar/StripLayout.h"
#include "toolbar/StripLook.h"
#include "toolbar/StripPlace.h"
#include "toolbar/StripPointer.h"

namespace corvelle {

class Program;

/// The strip: the menu buttons, the grip and the single buttons. It is the program's face and lives
/// for the whole run. All measures are twips.
class frmToolbar final : public forms::Form, public ToolbarPort {
 public:
  explicit frmToolbar(Program& program);
  ~frmToolbar() override;

  // ---- loading, building, unloading (frmToolbar.cpp) ----

  void LoadWindow() override;
  void UnloadWindow() override;
  [[nodiscard]] bool WindowLoaded() const override { return IsLoaded(); }
  [[nodiscard]] WindowId WindowHandle() const override { return hWnd(); }
  void HoldForMessage(bool owns) override { owns ? HoldInputOfOwner() : HoldInput(); }
  void ReleaseAfterMessage() override { ReleaseInput(); }
  [[nodiscard]] WindowId ButtonBoxHandle() const override { return picToolbar.hWnd(); }
  [[nodiscard]] WindowId SingleBoxHandle() const override { return picSingleButton.hWnd(); }
  [[nodiscard]] TwipRect WindowBounds() const override {
    return {Left(), Top(), Width(), Height()};
  }

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

  // ---- buttons (frmToolbarButtons.cpp) ----

  /// Reads the menu files in their order and makes every button anew.
  void DoToolbarButtons() override;
  /// The same on a strip that keeps its size.
  void RefreshToolbarButtons() override;
  void RefreshSingleButtons() override { Singles.RefreshSingleButtons(); }
  /// Reads the files of the single buttons and makes their row anew.
  void DoSingleButtons() override { Singles.DoSingleButtons(); }
  /// Draws the buttons anew without moving anything, after a change of the system's colours.
  void RefreshToolbar() override;
  void MarkCollections() override { CollectionsMarked = true; }
  /// Draws an icon in a box: `draw` gets a canvas of the size of `place` with what stands there.
  /// `rounds` counts the times that all icons of the box are drawn: when it changes meanwhile the
  /// icon is given up.
  void DrawIconIn(forms::PictureBox& box, const PixelRect& place, const unsigned& rounds,
                  const std::function<void(Canvas&)>& draw);

  // ---- new buttons (frmToolbarNewButton.cpp) ----

  void AddNewButton() override;

  // ---- sizes and places (frmToolbarLayout.cpp) ----

  /// Sizes and places everything; a strip at no edge is placed as well.
  void SetToolbar();
  /// Sizes both boxes, the grip and the window.
  void SetControls();
  /// Places a strip at no edge by its saved position.
  void SetToolbarPosition();
  /// Saves the position of a strip at no edge. A failure leaves the old position on the disk.
  void UpdateToolbarPosition();
  /// Places the lines of the window's border in their resting colours.
  void DrawBorders();
  /// Screen width less the strip's right end.
  [[nodiscard]] float FreeWidth() const override;
  void ResizeAfterEdit(float freeWidth) override;

  // ---- menus (frmToolbarMenu.cpp) ----

  /// Opens the menu of a button, or closes it when it is up.
  void ShowMenu(int button);
  void OpenMenu(std::string_view tag) override;
  void RefreshMenu(std::string_view tag) override;
  void ResetMenu() override;
  void SetMenuPosition() override;
  [[nodiscard]] float TopOfMenu() const override;
  void RemoveQMenu(std::string_view tag) override;

  // ---- pointer (frmToolbarPointer.cpp, frmToolbarFrame.cpp) ----

  /// Sets CurButton by the pointer's place on the screen.
  void GetCurButton();
  /// Shows CurButton pressed and all others at rest.
  void SetButtonBorders();
  void picToolbar_MouseDown(forms::MouseButton button, forms::ShiftState shift, float x, float y);
  void picToolbar_MouseMove(forms::MouseButton down, forms::ShiftState shift, float x, float y);
  void picToolbar_MouseUp(forms::MouseButton button, forms::ShiftState shift, float x, float y);
  void picSingleButton_MouseDown(forms::MouseButton button, forms::ShiftState shift, float x,
                                 float y) {
    Singles.picSingleButton_MouseDown(button, shift, x, y);
  }
  void picSingleButton_MouseMove(forms::MouseButton down, forms::ShiftState shift, float x,
                                 float y) {
    Singles.picSingleButton_MouseMove(down, shift, x, y);
  }
  void picSingleButton_MouseUp(forms::MouseButton button, forms::ShiftState shift, float x,
                               float y) {
    Singles.picSingleButton_MouseUp(button, shift, x, y);
  }
  void lblSep_MouseDown(int index, forms::MouseButton button, forms::ShiftState shift, float x,
                        float y);
  void lblSep_MouseMove(int index, forms::MouseButton down, forms::ShiftState shift, float x,
                        float y);
  void lblSep_MouseUp(int index, forms::MouseButton button, forms::ShiftState shift, float x,
                      float y);
  void Form_MouseDown(forms::MouseButton button, forms::ShiftState shift, float x, float y);
  void Form_MouseMove(forms::MouseButton down, forms::ShiftState shift, float x, float y);
  void Form_MouseUp(forms::MouseButton button, forms::ShiftState shift, float x, float y);
  void Form_DblClick();
  /// Follows the pointer while a menu or a hint is up.
  void Timer2_Timer();
  /// Carries out a pending focus request. With Auto Hide it hides a strip that the pointer left and
  /// brings it back when the pointer touches its line; without, it stops itself.
  void Timer1_Timer();

  // ---- dragging entries (frmToolbarDrag.cpp) ----

  int dragCurButton() override;
  void DoButtonDrag(int button, forms::MouseButton released) override;
  void SetPointerWatch(bool enabled) override { Timer2.SetEnabled(enabled); }

  // ---- drags of other programs (frmToolbarOle.cpp) ----

  void picToolbar_OLEDragOver(forms::DragData& data, forms::DropEffect& effect,
                              forms::MouseButton down, forms::ShiftState shift, float x, float y);
  void picToolbar_OLEDragDrop(forms::DragData& data, forms::DropEffect& effect,
                              forms::MouseButton down, forms::ShiftState shift, float x, float y);
  void picSingleButton_OLEDragOver(forms::DragData& data, forms::DropEffect& effect,
                                   forms::MouseButton down, forms::ShiftState shift, float x,
                                   float y);
  void picSingleButton_OLEDragDrop(forms::DragData& data, forms::DropEffect& effect,
                                   forms::MouseButton down, forms::ShiftState shift, float x,
                                   float y);
  /// Looks each 100 ms whether a drag that came over the strip is still there.
  void tmrDragDrop_Timer();
  void TellRefused(std::vector<std::string> files) override;
  void tmrRefused_Timer();

  // ---- the date (frmToolbarDate.cpp) ----

  void DoLabelDate() override;
  void UpdateLabelDate() override;
  void lblDate_MouseDown(forms::MouseButton button, forms::ShiftState shift, float x, float y);
  void lblDate_MouseMove(forms::MouseButton down, forms::ShiftState shift, float x, float y);
  void lblDate_MouseUp(forms::MouseButton button, forms::ShiftState shift, float x, float y);
  void lblDate_DblClick();

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
  void CacheDisplayMetrics();
  /// Shows the window in front, without making it active, if it is hidden.
  void ShowToolbar() override;
  void BringToForeground() override;
  void ShowAndRefresh() override;
  void HideWindow() override { Hide(); }
  /// Hides all that is on the strip: what remains is a line, or bare.
  void HideContents();
  /// After a strip came out of hiding under a full-screen program: it is topmost until it hides
  /// again.
  void EnsureToolbarVisible();
  /// After a strip went into hiding: under a full-screen program it is behind all again.
  void SinkAgain();
  /// Where the window stands, and the size of the primary screen. Pixels.
  [[nodiscard]] PixelRect WindowPixels() const;
  [[nodiscard]] PixelSize ScreenPixels() const;
  /// Ends a move of the strip: it takes the place that the screen and the options let it have.
  void AdjustToolbarPosition();
  /// Bars or the screen have changed at a moment when the strip could not be placed: it is placed
  /// as soon as it can be.
  void FollowBarsLater();
  void SetWindowPos(forms::InsertAfter after, unsigned flags) override {
    Form::SetWindowPos(after, flags);
  }

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
  /// The next hover changes the menu: one was opened by hand.
  bool MenuOpening = false;
  /// A press has just closed the menu of this button.
  bool LastOpenFlag = false;
  int LastOpenButton = 0;
  /// Pointer tracking has started.
  bool WasHovering = false;
  bool MenuRefreshing = false;
  /// A message to the shell is on its way.
  bool TellingShell = false;
  /// When a hint is to come up, and when it is to go; milliseconds of the clock, 0 for never.
  std::int64_t TipDueAt = 0;
  std::int64_t TipHideAt = 0;
  /// The pointer at the press on the frame, and the same less the size of the button box.
  float DownX = 0;
  float DownY = 0;
  float GrabX = 0;
  float GrabY = 0;
  /// The pointer went more than 3 pixels from the press on the frame.
  bool FrameMoved = false;
  bool FrameDragging = false;
  /// A mouse button went down on the frame and is still down.
  bool FrameHeld = false;

  /// The window in front when a drag came over the strip.
  WindowId SavedForeground = kNoWindow;

  /// Entry 0 is the template, 1 the program's own menu.
  std::vector<ButtonRect> ToolbarButtons;
  int ButtonCount = 0;
  int SepCount = 0;
  int SingleCount = 0;
  /// Pixels by which the window's top is pulled above the screen, 4 or 7.
  int TopCut = 4;
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

  /// The single buttons, in picSingleButton.
  SingleRow Singles;

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
  friend class SingleRow;  // what stands in picSingleButton is a part of the strip

  // Loading and building.
  std::unique_ptr<forms::Label> MakeSeparator(int index);
  void WireEvents();
  void MakeFolders();
  void ReadPlacement();
  void PlaceFirst();
  void ReadTwips();
  void StopTimers();
  void ChooseIconSize();
  void OfferDefaultEntries();
  void ShowInFront();
  void RebuildAtTop();

  // Buttons.
  /// A menu file in its order, and what its first record says.
  struct ButtonFile {
    StripEntry Entry;
    MenuRecord Record;
  };

  void MakeTemplates();
  [[nodiscard]] std::optional<MenuRecord> ReadButtonRecord(std::string_view path);
  [[nodiscard]] std::vector<ButtonFile> ReadButtonFiles();
  /// Makes the buttons of the menu files, without their icons, and gives the size of their box.
  TwipSize MakeButtons();
  void AddButton(const ButtonRect& button);
  void AddSeparator(const TwipRect& place);
  void DrawButtonIcon(const std::string& iconText, const ButtonRect& button);
  /// Draws all icons and freezes the picture of the buttons.
  void DrawIcons();
  void UnloadButtons();
  void ForgetMenus();
  void EmptyCurrentItem();

  // The date.
  void HideDate();
  void ShowDate();

  // Layout.
  [[nodiscard]] Placement Where() const;
  [[nodiscard]] Edge AtEdge() const;
  [[nodiscard]] StripScale Scale() const;
  [[nodiscard]] StripPlace PlaceOnScreen() const;
  /// Where the strip was left: in this run, or saved.
  [[nodiscard]] float LastPosition() const;
  void ShowBorder(forms::Line& line, const BorderLine& border);
  void ShowLook(int button, const ButtonLook& look);

  // Menus.
  [[nodiscard]] bool MenuUp() const;
  /// True if a press on the button has a menu to open.
  [[nodiscard]] bool OpensMenu(int button) const;
  /// Index of the button that owns the menu, 0 for none.
  [[nodiscard]] int MenuOwner() const;
  /// Where a menu of that size goes; nothing without a button that it belongs to.
  [[nodiscard]] std::optional<MenuSpot> SpotFor(const TwipSize& menu) const;
  void ShowMenuOf(int button);
  void ReopenMenu(const std::string& tag);
  /// The strip becomes active if the menu is.
  void TakeOverFromMenu();
  void HideMenuWindow();
  void HideMenuWhileTracking();

  // Pointer and frame. Points are pixels of the screen, or twips where they are floats.
  void FindCurButton(PixelPoint pointer);
  void AbandonDrag();
  /// Notices when the release of what is carried went to another program.
  void WatchCarry();
  void ShowDroppedMenu(int button);
  void ShowRestingLook();
  [[nodiscard]] bool LooksAtRest(int button) const;
  [[nodiscard]] bool IsOursActive() const;
  [[nodiscard]] bool IsOverMenu(WindowId window) const;
  /// A point of the screen in the inside of the menu.
  [[nodiscard]] TwipPoint InMenu(PixelPoint pointer) const;
  /// The point of the screen that a place in the buttons' box, twips, was when an event told it.
  [[nodiscard]] PixelPoint InBox(float x, float y) const;
  [[nodiscard]] bool HasLeft(WindowId under) const;
  void StartHovering();
  /// The title of a button in the form that a hint takes; empty for none.
  [[nodiscard]] std::string HintOf(int button) const;
  /// A hint for the button under the pointer is due in a moment.
  void AnnounceHint();
  /// No hint is up, and none is due.
  void TakeHintDown();
  void KeepHintTimes(WindowId under);
  void HoverButton(int button);
  void ShowButtonPopup();
  [[nodiscard]] EntryEdit EntryOfButton(int button);
  void ShowFramePopup(std::string_view tag);
  void FollowFrame(forms::MouseButton down, float x, float y);
  [[nodiscard]] bool IsBesidePull(forms::MouseButton button) const;
  void LetFrameGo();
  void AbandonPull();
  void EndLostPull();
  /// Notices when the release of the frame went to another program.
  void WatchPull();
  void RevealFromLine();
  /// Shows where the strip would go, and what a pull along its own edge looks like.
  void FollowPull();
  void ClearOutline();
  /// Goes to the edge of the outline. False when no outline is shown.
  bool EndPull();
  void DrawDragLook();
  void EndSlide();

  // Drags of other programs.
  void WireDrags();
  /// True if there is something for the strip, and it is not being worked on.
  [[nodiscard]] bool TakesDrag(const forms::DragData& data) const;
  void NoteDrag(const forms::DragData& data, forms::MouseButton down);
  void EnterDrag();
  /// The drag is over without a drop here.
  void EndDragOver();
  void StopDrag();
  void GiveForegroundBack();
  void DropFiles(std::vector<std::string> names, int button);
  void ShowDropped(int button);
  void DropAddress(const forms::DragData& data, int button);
  void OfferAddress(const forms::DragData& data, std::string_view tag, const std::string& file);
  [[nodiscard]] bool IsItemButton(int button) const noexcept;
  /// Index of the item button with that menu file, 0 for none.
  [[nodiscard]] int ItemButtonOf(std::string_view path) const;

  // Keys.
  [[nodiscard]] bool KeyboardMoves() const;
  [[nodiscard]] bool EnterIsOfMenu() const;
  void StartKeyboard();
  void SelectButton(int button);
  void PressCurButton();
  void EnterCurButton();

  // Messages.
  std::optional<std::intptr_t> ShellNotify(std::uintptr_t what, std::intptr_t lParam);
  std::optional<std::intptr_t> NoteForLater(std::uint32_t message, std::uintptr_t wParam,
                                            std::intptr_t lParam);
  [[nodiscard]] bool IsNewTaskBar(std::uint32_t message) const;
  [[nodiscard]] bool NewsWait() const;
  /// Deals with the news that came while the strip could not.
  void CatchUp();
  /// The place in the Z order that goes with a full-screen program, or with none.
  void TakeLevel();
  void FollowColours();
  void FollowDisplay();
  /// Finds the strip's place anew after bars or the screen have changed.
  void FollowBars();
  void KeepPinned();
  void HideAndReveal();
  [[nodiscard]] bool MayHide(PixelPoint pointer, WindowId under) const;
  [[nodiscard]] bool MustReveal(PixelPoint pointer, WindowId under) const;
  [[nodiscard]] bool ImageLoaded() const;

  Program& program_;
  std::vector<MenuRecord> records_;  // of the buttons, by their index
  unsigned iconRounds_ = 0;          // times that the buttons' icons were drawn
  std::string lastTag_;              // of the menu that was opened last
  AbandonWatch carryWatch_;
  AbandonWatch pullWatch_;
  float menuLeft_ = 0;  // where the menu window was placed
  float menuTop_ = 0;
  PixelPoint pressedPlace_;           // where the buttons' box was pressed last, on the screen
  std::int64_t pressedAt_ = 0;        // when the menu was last changed by hand, milliseconds
  std::vector<std::string> refused_;  // of a drop, not told yet
  int quietTicks_ = 0;                // of tmrDragDrop, since the drag was last heard of
  bool positionUnsaved_ = false;      // the disk refused SavedLeft
  bool positioned_ = false;           // SavedLeft is known
  bool subclassed_ = false;
  bool focusRequested_ = false;
  WindowId frontAtRequest_ = kNoWindow;  // the foreground then
  bool barsWait_ = false;    // bars or the screen have changed since the strip was placed
  bool levelWaits_ = false;  // a full-screen program came or went meanwhile
  bool newTaskBar_ = false;  // the strip is not registered with the shell any more
  // A rebuild, or the way to the top, was asked for while the strip was being placed.
  bool rebuildWaits_ = false;
  bool restoreWaits_ = false;
};

}  // namespace corvelle
