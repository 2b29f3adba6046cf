#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/RecordEdits.h"
#include "core/WindowPorts.h"
#include "forms/ControlArray.h"
#include "forms/Form.h"
#include "forms/Graphic.h"
#include "forms/Timer.h"
#include "menus/MenuCache.h"
#include "menus/MenuIcons.h"
#include "menus/MenuLayout.h"
#include "menus/MenuRules.h"

namespace corvelle {

class Program;

/// The one menu window, which is filled anew for each menu. A menu that is taller than the screen
/// has pages, turned by two arrow buttons at its foot. All measures are twips.
class frmQMenu final : public forms::Form, public QMenuPort {
 public:
  explicit frmQMenu(Program& program);
  ~frmQMenu() override;

  // ---- loading, showing, emptying (frmQMenu.cpp) ----

  void LoadWindow() override;
  void UnloadWindow() override;
  [[nodiscard]] bool WindowLoaded() const override { return IsLoaded(); }
  [[nodiscard]] WindowId WindowHandle() const override { return hWnd(); }
  void HoldForMessage(bool owns) override { owns ? HoldInputOfOwner() : HoldInput(); }
  void ReleaseAfterMessage() override { ReleaseInput(); }
  [[nodiscard]] bool MenuVisible() const override { return IsLoaded() && Visible(); }
  [[nodiscard]] const std::string& OwnerTag() const override { return Tag; }
  void SetOwnerTag(std::string tag) override { Tag = std::move(tag); }
  [[nodiscard]] const std::string& CurrentKey() const override { return MenuKey; }

  void ShowMenu(std::string_view menuKey, std::string_view menuFile) override;
  void HideMenu() override;
  void ResetQMenu() override;
  void ForgetMenu(std::string_view menuKey) override { cache_.Remove(menuKey); }
  [[nodiscard]] bool HasBuiltMenu(std::string_view menuKey) const override {
    return cache_.Find(menuKey) != nullptr;
  }
  void SetPoll(bool enabled) override { Timer1.SetEnabled(enabled); }
  void SetPollInterval(int milliseconds) override { Timer1.SetInterval(milliseconds); }
  [[nodiscard]] float MenuWidth() const override { return Width(); }
  [[nodiscard]] float MenuHeight() const override { return Height(); }
  void MoveMenu(float left, float top) override { Move(left, top, Width(), Height()); }
  void SetWindowPos(forms::InsertAfter after, unsigned flags) override {
    Form::SetWindowPos(after, flags);
  }
  /// Shows the state marks of the program's own menu.
  void CheckLabels();

  // ---- building (frmQMenuBuild.cpp) ----

  /// Builds the menu whose key is in MenuKey, and puts it into the cache.
  void InitQMenu(std::string_view menuFile);

  // ---- painting (frmQMenuPaint.cpp) ----

  /// Lays out and enables the arrow buttons for CurMenu. Does nothing for a single page.
  void UpDownArrows();
  /// Brings the page CurMenu on the screen.
  void ShowSlide();

  // ---- icons (frmQMenuIcons.cpp) ----

  /// Fetches the icons of all menu files, of the files of their folder items, and of the links.
  void InitIcons() override;
  /// Fetches those of one menu file.
  void InitMenuIcons(std::string_view menuFile);
  void ResetPicIcons() override;

  // ---- items and the selection (frmQMenuItems.cpp) ----

  /// The command of an item; tells whether it follows a separator.
  [[nodiscard]] std::string GetExeName(int index);
  [[nodiscard]] std::string GetIconName(int index) const;
  /// What an item is called: its caption, or its whole name in a folder of the shell.
  [[nodiscard]] std::string NameOf(int index) const;
  [[nodiscard]] int GetRecordNum(int index) const;
  /// Gives an item its disabled look, and takes that of all items away.
  void DisableLabel(int index);
  void EnableLabel(int index);
  /// Gives an item another tag for as long as the menu is kept; true if it is another.
  bool SetItemTag(int index, std::string tag);
  /// Draws the icons of the page on show anew. All its items are enabled then.
  void RedrawPage() { DrawPage(false); }
  /// No item is selected any more.
  void DropSelection();
  /// Reads the menu on show and its icons anew.
  void RefreshQMenu() override;

  // ---- pointer (frmQMenuPointer.cpp) ----

  void Form_MouseDown(forms::MouseButton button, forms::ShiftState shift, float x, float y);
  void Form_MouseMove(forms::MouseButton down, forms::ShiftState shift, float x, float y);
  void Form_MouseUp(forms::MouseButton button, forms::ShiftState shift, float x, float y);
  void xMouseMove(float y) override;
  /// Twips of the screen.
  void mMouseMove(float x, float y) override;
  void xMouseUp(forms::MouseButton button, forms::ShiftState shift, float x, float y) override;

  // ---- dragging entries (frmQMenuDrag.cpp) ----

  void DoItemDrag(forms::ShiftState shift) override;

  // ---- drags of other programs (frmQMenuOle.cpp) ----

  void Form_OLEDragOver(forms::DragData& data, forms::DropEffect& effect, forms::MouseButton down,
                        forms::ShiftState shift, float x, float y);
  void Form_OLEDragDrop(forms::DragData& data, forms::DropEffect& effect, forms::MouseButton down,
                        forms::ShiftState shift, float x, float y);
  void Lbl_OLEDragOver(int index, forms::DragData& data, forms::DropEffect& effect,
                       forms::MouseButton down, forms::ShiftState shift, float x, float y);
  void Lbl_OLEDragDrop(int index, forms::DragData& data, forms::DropEffect& effect,
                       forms::MouseButton down, forms::ShiftState shift, float x, float y);

  // ---- arrow buttons and pages (frmQMenuPages.cpp) ----

  void LblButton_MouseDown(int index, forms::MouseButton button);
  void LblButton_MouseMove(int index, forms::MouseButton down);
  void LblButton_MouseUp(int index, forms::MouseButton button, float x, float y);
  void LblButton_DblClick(int index);
  void GetCurMenu() override;

  // ---- keys (frmQMenuKeys.cpp) ----

  void Form_KeyDown(int keyCode, forms::ShiftState shift) override;
  void Form_KeyPress(char32_t character) override;
  void ActivateKeyDown(int keyCode) override;
  void xKeyPress(char32_t character) override;

  // ---- controls, from the back to the front ----

  forms::Shape Shape1;
  forms::Label Label1;
  forms::ControlArray<forms::Label> LblButton;
  forms::ControlArray<forms::Image> imgButton;
  forms::Line Line1;
  forms::Line Line2;
  /// One label for each item; element 0 is the template, never shown, whose Left and Height are the
  /// measures of all.
  forms::ControlArray<forms::Label> Lbl;
  forms::Line mLineTop;
  forms::Line mLineRight;
  forms::Line mLineDown;
  forms::Line mLineLeft;
  forms::Line LineLeft;
  forms::Line LineTop;
  forms::Line LineRight;
  forms::Line LineDown;
  forms::Timer Timer1;

  // ---- state ----

  /// Value of ActiveArrow for no arrow button.
  static constexpr int kNoArrow = 100;

  std::string MenuKey;
  std::string MenuFile;
  int Labels = 0;
  int Slides = 0;
  int CurMenu = 0;
  int PrevPage = 0;
  int FirstLabel = 0;
  int LastLabel = 0;
  float ItemGap = 105;
  float TwipsX = 15;
  float TwipsY = 15;
  float SmallIconW = 0;
  float SmallIconH = 0;
  /// The selection bar's resting Left.
  float ShapeLeft = 0;
  /// False while the window's contents are not valid.
  bool MenuReady = false;
  Picture PagePicture;
  /// The highest index of Lbl that was loaded so far.
  [[nodiscard]] int LoadedLabels() const noexcept { return Lbl.Last(); }

  /// The item last reached by key or pointer.
  int CurItem = 0;
  /// SelectedItem before the current event.
  int PrevItem = 0;
  /// The page to return to after a refresh, from 1 on; 0 for none.
  int SavedPage = 0;
  /// The arrow button under the pointer.
  int ActiveArrow = kNoArrow;
  /// The last act was a key or a right click: the selection stays though the pointer is away.
  bool KeyboardActive = false;
  /// The pointer is off the window.
  bool PointerAway = false;
  /// The pointer is in the menu, but below the last item.
  bool PointerBelowItems = false;
  /// Labels that draw the engraved look of disabled items.
  int ShadowCount = 0;
  /// Key of the menu in which the last popup acted.
  std::string SavedMenuKey;

 protected:
  void Form_Load() override;
  void Form_Unload() override;
  void Form_Deactivate() override;
  // The menu closes by the strip's will; nobody else ends it.
  void Form_QueryClose() override;
  void Form_SessionEnd() override {}
  std::optional<std::intptr_t> WindowProc(std::uint32_t message, std::uintptr_t wParam,
                                          std::intptr_t lParam) override;

 private:
  // Loading, showing (frmQMenu.cpp).
  [[nodiscard]] std::unique_ptr<forms::Label> MakeItemLabel(int index);
  void WireEvents();
  void WireArrow(forms::Graphic& control, int index);
  void InitElements();
  void TakeScale();
  /// False for a menu that was laid out for another place.
  [[nodiscard]] bool RestoreMenu(const std::shared_ptr<BuiltMenu>& built);
  /// True if a folder of a built menu holds something else than when it was built.
  [[nodiscard]] bool FoldersChanged(std::string_view menuKey);
  void PresentMenu();
  void BringUp();
  void PlaceMenu();
  void CloseMenu();
  void HideArrows();
  [[nodiscard]] bool IsCaptured() const;
  /// The greatest height for the window where the strip puts it.
  [[nodiscard]] float PlaceForRoom();

  // Building (frmQMenuBuild.cpp).
  /// The menu with its folder items expanded, where it has open ones and there is a service for
  /// that.
  [[nodiscard]] std::optional<ExpandedMenu> ExpandFolders(std::string_view menuFile);
  /// Writes the generated file, once the menu is up.
  void KeepGenerated(const ExpandedMenu& expanded);
  void TakeLayout(const MenuLayout& layout);
  void DisplayFirstPage();

  // Painting (frmQMenuPaint.cpp).
  [[nodiscard]] clsMenu& CurPage();
  /// Gives the labels of the page on show their texts and places, hidden or not as they are.
  void FillPage();
  void ShowPage();
  /// Draws the page on show; `watched`: the captions come first and then one icon after the other.
  void DrawPage(bool watched);
  void DrawPageOnce(bool watched);
  void DrawItemIcon(int index);
  void DrawRules();
  void PrintCaptions();
  void WipeCaptions();
  void KeepPage();
  void CenterGlyph(int index, std::string_view glyph);
  void ColoursChanged();
  void Form_Paint();

  // Icons (frmQMenuIcons.cpp).
  void LoadIconsOf(const std::string& menuFile);

  // Items (frmQMenuItems.cpp).
  [[nodiscard]] PageScene Page() const;
  [[nodiscard]] ItemBox BoxOf(int index) const;
  void SetNormal(int index);
  void SelectItem(int index);
  void DrawBox(int index);
  void HideBox();
  static void SetLine(forms::Line& line, const TwipLine& at);
  /// The entry that an item stands for; tells whether it follows a separator.
  [[nodiscard]] EntryEdit EntryOf(int index);
  void FillCurrentItem(int index);

  // Pointer (frmQMenuPointer.cpp).
  [[nodiscard]] bool PointerOver() const;
  /// True if the window is what lies at that place of it, twips.
  [[nodiscard]] bool IsOver(float x, float y) const;
  /// True while events at that place are to be ignored.
  [[nodiscard]] bool StillAway(float x, float y);
  /// Selects what a pointer that stands still over a rebuilt menu is on.
  void FollowPointer();
  void TakeFocus();
  void ChooseItem(float x, float y);
  void RunItem(bool mainMenu, int index, const std::string& command, const std::string& title);
  void OfferItem(forms::ShiftState shift);
  void OfferShellMenu(int index);
  [[nodiscard]] WindowId HintWindow() const;
  void Timer1_Timer();

  // Dragging entries (frmQMenuDrag.cpp).
  /// A point of the window's inside (twips) on the screen (pixels).
  [[nodiscard]] PixelPoint OnScreen(float x, float y) const;
  // Drags of other programs (frmQMenuOle.cpp).
  void WireDrags();
  void WireDrags(forms::Label& label, int index);
  [[nodiscard]] bool TakesDrop(const forms::DragData& data) const;
  void DropFiles(const std::vector<std::string>& names);
  void OpenDropped(const std::string& file, int item);
  void InsertFiles(const std::vector<std::string>& names, int item);
  void OfferAddress(const forms::DragData& data, int item);

  // Arrow buttons and pages (frmQMenuPages.cpp).
  void TurnTo(int page);
  void HideUpDownButton();
  void picMouseMove(int index);
  void picMouseDown(int index);
  void picMouseUp(int index);
  void DrawArrowFrame(int index, bool sunken);

  // Keys (frmQMenuKeys.cpp).
  void KeyActs();
  void MoveCursor(int step);
  void MovePage(int keyCode);
  void TypeAheadTo(char32_t character);
  void ReloadOnScreen();

  Program& program_;
  MenuCache cache_;
  MenuIcons icons_;
  /// The menu on show with its pages; never null.
  std::shared_ptr<BuiltMenu> menu_ = std::make_shared<BuiltMenu>();
  /// The items of the page on show, from top to bottom.
  std::vector<ItemBox> pageBoxes_;
  /// The menu was rebuilt, and neither the pointer nor a key has done anything in it since.
  bool rebuilt_ = false;
  /// A page is being drawn, and the colours have changed since that began.
  bool drawingPage_ = false;
  bool coloursChanged_ = false;
  /// A menu of the shell is up for an item, or its command runs.
  bool shellMenuUp_ = false;
  /// The left button went down in this menu and has not come up again.
  bool pressed_ = false;
  std::map<std::string, Picture, std::less<>> glyphs_;
};

}  // namespace corvelle
