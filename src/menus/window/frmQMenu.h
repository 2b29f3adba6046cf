#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/HeldButton.h"
#include "core/RecordEdits.h"
#include "core/WindowPorts.h"
#include "forms/ControlArray.h"
#include "forms/Form.h"
#include "forms/Graphic.h"
#include "forms/Timer.h"
#include "menus/folders/FolderMenusPort.h"
#include "menus/icons/IconPrefetch.h"
#include "menus/icons/MenuIcons.h"
#include "menus/items/HeldKeys.h"
#include "menus/items/MenuCache.h"
#include "menus/items/MenuLayout.h"
#include "menus/items/MenuRules.h"
#include "menus/items/ShownItems.h"
#include "menus/items/ShownPages.h"
#include "menus/window/MenuDrops.h"

namespace corvelle {

class Program;

/// The one menu window, which is filled again for each menu. A menu that is taller than the screen
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
  /// Empties the window for another menu.
  void ResetQMenu();
  void ForgetMenu(std::string_view menuKey) override { cache_.Remove(menuKey); }
  [[nodiscard]] bool HasBuiltMenu(std::string_view menuKey) const {
    return cache_.Find(menuKey) != nullptr;
  }
  void SetPoll(bool enabled) override { Timer1.SetEnabled(enabled); }
  [[nodiscard]] TwipSize MenuSize() const override { return {Width(), Height()}; }
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

  // ---- icons ----

  void InitIcons() override { prefetch_.InitIcons(); }
  void ResetPicIcons() override;

  // ---- items and the selection (frmQMenuItems.cpp) ----

  /// What is on show: items and pages.
  [[nodiscard]] const ShownItems& Items() const noexcept { return items_; }
  [[nodiscard]] const ShownPages& Pages() const noexcept { return pages_; }
  /// The command of an item; notes in the program whether it follows a separator.
  [[nodiscard]] std::string GetExeName(int index);
  [[nodiscard]] const std::string& GetIconName(int index) const { return items_[index].Icon; }
  [[nodiscard]] int GetRecordNum(int index) const { return items_[index].Origin.Record; }
  /// Gives an item its disabled look, and takes that of all items away.
  void DisableLabel(int index);
  void EnableLabel(int index);
  /// Gives an item another icon for as long as the menu is kept; true if it is another.
  bool SetItemIcon(int index, std::string_view icon) { return items_.SetIcon(index, icon); }
  /// Repaints the icons of the page on show. All its items are enabled then.
  void RedrawPage() { DrawPage(false); }
  /// No item is selected any more.
  void DropSelection();
  /// Reads the menu on show again, with the icons of the page that is up.
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
  forms::Timer KeysTimer;
  forms::Timer UpdateTimer;

  // ---- state ----

  /// Value of ActiveArrow for no arrow button.
  static constexpr int kNoArrow = 100;

  std::string MenuKey;
  std::string MenuFile;
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
  /// The arrow button under the pointer.
  int ActiveArrow = kNoArrow;
  /// The last act was a key or a right click: the selection stays though the pointer is away.
  bool KeyboardActive = false;
  /// The pointer is off the window.
  bool PointerAway = false;
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
  void Form_ScaleChanged() override { InitElements(); }
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
  [[nodiscard]] float RoomForMenu() const;

  // Building (frmQMenuBuild.cpp).
  /// The menu with its folder items expanded, where it has open ones and there is a service for
  /// that.
  [[nodiscard]] std::optional<ExpandedMenu> ExpandFolders(std::string_view menuFile,
                                                          std::string_view stored);
  void WriteOwnMenu();
  /// The menu of a file, not shown yet; null when the window is gone. `expanded`: see
  /// ExpandFolders.
  [[nodiscard]] std::shared_ptr<BuiltMenu> Build(std::string_view menuFile,
                                                 std::optional<ExpandedMenu>& expanded);
  [[nodiscard]] MenuLayout LayOut(std::span<const MenuItem> items, float room) const;
  void Fill(BuiltMenu& menu, MenuLayout layout) const;
  /// Makes a menu the one on show, and the window as large as it is.
  void Take(const std::shared_ptr<BuiltMenu>& menu);
  /// Writes the generated file, once the menu is up.
  void KeepGenerated(const ExpandedMenu& expanded);
  void DisplayFirstPage();

  // What comes later (frmQMenuUpdate.cpp).
  void ListenToFolders();
  /// More is known of the folders of a menu.
  void FoldersArrived(const std::string& key);
  /// Updates the menu on show, now or as soon as the pointer lets it.
  void TryUpdate();
  /// True while the release of a button that is held over the menu, or of a drag, is to come.
  [[nodiscard]] bool IsHeld();
  /// The menu closes, or another one comes.
  void ForgetUpdate();
  /// Builds the menu on show again without closing it.
  void UpdateInPlace();
  /// Shows another menu in the place of the one that is up.
  void ShowInstead(const std::shared_ptr<BuiltMenu>& menu);
  /// What is to be kept of a menu that looks like the one on show.
  void TakeUnchanged(BuiltMenu& menu);
  /// After an update: the item that keys had selected, or what the pointer is on.
  void SelectAgain(const MenuItem& selected);

  // Painting (frmQMenuPaint.cpp).
  /// Gives the labels of the page on show their texts and places, hidden or not as they are.
  void FillPage();
  void ShowPage();
  /// Draws the page on show; `watched`: the captions come first and then one icon after the other.
  void DrawPage(bool watched);
  void DrawPageOnce(bool watched);
  void DrawItemIcon(int index);
  /// Where an item of the page on show has its icon: pixels of the inside.
  [[nodiscard]] PixelRect IconCell(int index) const;
  [[nodiscard]] bool IconsAreFinal() const;
  [[nodiscard]] std::shared_ptr<Canvas> CopyOf(const Canvas& picture);
  /// From now on the page that is drawn may wait a moment for its icons.
  void HoldUpForIcons();
  void DrawRules();
  void PrintCaptions();
  void WipeCaptions();
  void KeepPage();
  void CenterGlyph(int index, std::string_view glyph);
  void ColoursChanged();
  /// More icons are known: each takes its place on the page on show, and nothing else is painted.
  void IconsArrived();
  void Form_Paint();

  // Items (frmQMenuItems.cpp).
  [[nodiscard]] PageScene Page() const;
  [[nodiscard]] ItemBox BoxOf(int index) const;
  void SetNormal(int index);
  void SelectItem(int index);
  void DrawBox(int index);
  void HideBox();
  static void SetLine(forms::Line& line, const TwipLine& at);

  // Pointer (frmQMenuPointer.cpp).
  [[nodiscard]] bool PointerOver() const;
  /// True if the window is what lies at that place of it, twips.
  [[nodiscard]] bool IsOver(float x, float y) const;
  /// True while events at that place are to be ignored.
  [[nodiscard]] bool StillAway(float x, float y);
  /// Selects the item under a pointer that rests over a rebuilt menu.
  void FollowPointer();
  void TakeFocus();
  void ChooseItem(float x, float y);
  void RunItem(bool mainMenu, int index, const std::string& command, const std::string& title);
  void OfferItem(forms::ShiftState shift);
  void OfferShellMenu(int index);
  /// The entry that an item stands for; notes in the program whether it follows a separator.
  [[nodiscard]] EntryEdit CurrentEntry(int index);
  [[nodiscard]] WindowId HintWindow() const;
  void Timer1_Timer();

  // Dragging entries (frmQMenuDrag.cpp).
  /// A point of the window's inside (twips) on the screen (pixels).
  [[nodiscard]] PixelPoint OnScreen(float x, float y) const;
  // Drags of other programs (frmQMenuOle.cpp).
  void WireDrags();
  void WireDrags(forms::Label& label, int index);
  [[nodiscard]] bool TakesDrop(const forms::DragData& data) const;

  // Arrow buttons and pages (frmQMenuPages.cpp).
  void TurnTo(int page);
  void HideUpDownButton();
  void picMouseMove(int index);
  void picMouseDown(int index);
  void picMouseUp(int index);
  void DrawArrowFrame(int index, bool sunken);

  // Keys (frmQMenuKeys.cpp).
  /// True for a key that comes before the menu is up: it acts on it then.
  [[nodiscard]] bool HoldsKey(const HeldKey& key);
  /// Lets them act as soon as nothing is being built.
  void AwaitHeldKeys();
  void ActHeldKeys();
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
  ShownItems items_;
  ShownPages pages_;
  MenuDrops drops_;
  IconPrefetch prefetch_;
  /// The items of the page on show, from top to bottom, and what is drawn for their icons.
  std::vector<ItemBox> pageBoxes_;
  std::vector<IconPicture> pageIcons_;
  /// The menu was rebuilt, and neither the pointer nor a key has done anything in it since.
  bool rebuilt_ = false;
  /// A page is being drawn, and its colours or icons have gone since that began.
  bool drawingPage_ = false;
  bool drawAgain_ = false;
  /// A menu of the shell is up for an item, or its command runs.
  bool shellMenuUp_ = false;
  /// The left button went down in this menu and has not come up again.
  bool pressed_ = false;
  /// Since when there is something new to show of the menu that is up.
  std::optional<std::int64_t> updateSince_;
  AbandonWatch releaseWatch_;
  /// When the pointer moved over the menu last, and to where.
  std::int64_t movedAt_ = 0;
  TwipPoint movedTo_;
  HeldKeys held_;
  /// One of them acts at this moment.
  bool actsHeldKey_ = false;
  std::map<std::string, Picture, std::less<>> glyphs_;
};

}  // namespace corvelle
