#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Edge.h"
#include "base/Geometry.h"
#include "base/Twips.h"
#include "core/CommandPorts.h"
#include "core/MenuRecord.h"
#include "core/OptionFlags.h"
#include "forms/Types.h"
#include "platform/FileSystem.h"
#include "platform/WindowId.h"

namespace corvelle {

struct EntryEdit;
class FolderMenusPort;
namespace forms {
class Form;
}

// What the windows of the program may ask of one another. Each port lists what others need and no
// more; the windows behind them stand on higher floors.

/// Loading and unloading, the same for every window that the program ends with.
class LoadedWindow {
 public:
  virtual ~LoadedWindow() = default;

  virtual void LoadWindow() = 0;
  /// Does nothing when not loaded.
  virtual void UnloadWindow() = 0;
  [[nodiscard]] virtual bool WindowLoaded() const = 0;
};

/// A window with work that is not saved yet.
class EditingWindow : public LoadedWindow {
 public:
  /// As its user closes it: it may ask, and stay. False when it stays.
  [[nodiscard]] virtual bool CloseWindow() = 0;
  /// As the end of the session closes it: keeps what is unsaved, and goes without a question.
  virtual void EndSession() = 0;
};

/// A window that takes no input while a message of the program is up. A side without a window has
/// nothing to do.
class AskingWindow : public LoadedWindow {
 public:
  [[nodiscard]] virtual WindowId WindowHandle() const = 0;
  /// `owns`: the message belongs to this window, and the system disables it by itself.
  virtual void HoldForMessage(bool /*owns*/) {}
  virtual void ReleaseAfterMessage() {}
};

// The strip has a port for each kind of client.

/// The menus of the strip's buttons, for the menu window and for whoever changes a menu file.
class StripMenusPort {
 public:
  virtual ~StripMenusPort() = default;

  /// Closes any open menu and restores the look of the buttons.
  virtual void ResetMenu() = 0;
  /// Builds a menu that is up again, after its file changed. An empty tag takes the last one.
  virtual void RefreshMenu(std::string_view tag) = 0;
  /// Opens a menu again from its tag.
  virtual void OpenMenu(std::string_view tag) = 0;
  /// Drops a built menu from the cache.
  virtual void RemoveQMenu(std::string_view tag) = 0;
  /// Places the menu window, whose size is known by then, against the strip.
  virtual void SetMenuPosition() = 0;
  /// Where SetMenuPosition would put the upper edge of a menu beside a strip that is not at the
  /// bottom; on a vertical strip this depends on the menu's height, and says nothing. Twips.
  [[nodiscard]] virtual float TopOfMenu() const = 0;
  /// A key of the menu that moves along the strip.
  virtual void ActivateKeyDown(int keyCode) = 0;
  /// The timer that follows the pointer over the strip.
  virtual void SetPointerWatch(bool enabled) = 0;
  /// True while a press on the buttons waits for its release, which the menu gets where it comes
  /// over it.
  [[nodiscard]] virtual bool ButtonsPressed() const { return false; }
};

/// The strip under something that is carried or dropped.
class StripCarryPort {
 public:
  virtual ~StripCarryPort() = default;

  [[nodiscard]] virtual WindowId ButtonBoxHandle() const = 0;  // picToolbar
  [[nodiscard]] virtual WindowId SingleBoxHandle() const = 0;  // picSingleButton
  /// Follows what is carried: opens the menu of the button under the pointer, or ends a carry whose
  /// release went to another program. Returns the index of that button, 0 for none.
  [[nodiscard]] virtual int dragCurButton() = 0;
  /// Drops the carried entry on a button: appended to its menu, and taken away from where it came
  /// unless `released` is the right button, which copies.
  virtual void DoButtonDrag(int button, forms::MouseButton released) = 0;
  /// Tells the user, once the current event is over, that these dropped files were not taken (see
  /// RefusedFilesText). Does nothing for an empty list.
  virtual void TellRefused(std::vector<std::string> files) = 0;
};

/// What is on the strip, for whoever changes its files or its options.
class StripContentsPort {
 public:
  virtual ~StripContentsPort() = default;

  /// Saves the options and rebuilds the strip after a change in the menus or the options.
  virtual void InitNewButtons() = 0;
  /// Unloads all that was made for the buttons; InitButtons makes it again from the files.
  virtual void UnloadItems() = 0;
  virtual void InitButtons() = 0;
  /// Reads the menu buttons again and repaints them, without sizing the strip.
  virtual void DoToolbarButtons() = 0;
  /// Reads the single buttons again and repaints them.
  virtual void DoSingleButtons() = 0;
  /// Reads the menu buttons, or the single buttons, again and draws them on a strip that keeps its
  /// size.
  virtual void RefreshToolbarButtons() {}
  virtual void RefreshSingleButtons() {}
  /// Repaints the buttons without moving anything.
  virtual void RefreshToolbar() = 0;
  /// Makes a new menu button with one item behind those there are.
  virtual void AddNewButton() = 0;
  /// Empties the icon collections kept for menus: at once, or with the next UnloadItems.
  virtual void ResetCollections() = 0;
  virtual void MarkCollections() = 0;
  /// Room between the strip's right end and the screen's, twips.
  [[nodiscard]] virtual float FreeWidth() const = 0;
  /// Sizes the strip after its buttons changed in number, and brings back one that is a line; a
  /// floating strip keeps its right end, so that `freeWidth` (as it was before) stays free.
  virtual void ResizeAfterEdit(float freeWidth) = 0;
  /// The date at the far end of the single buttons: shown, hidden and placed; its text.
  virtual void DoLabelDate() = 0;
};

/// The strip's window on the desktop.
class StripPlacePort {
 public:
  virtual ~StripPlacePort() = default;

  /// Place and size of the window on the screen.
  [[nodiscard]] virtual TwipRect WindowBounds() const = 0;
  /// Its scale in dots of an inch, which what comes up at the strip has too.
  [[nodiscard]] virtual int WindowDpi() const = 0;
  /// Puts a floating strip where it belongs, or keeps its hidden line.
  virtual void CheckToolbarMove() = 0;
  /// Ends a move: a floating strip takes the place that the screen and the options let it have.
  virtual void AdjustToolbarPosition() = 0;
  /// Leaves an edge for the place at the top.
  virtual void RestoreToolbar() = 0;
  /// Brings the strip to the foreground from another program's turn.
  virtual void BringToForeground() = 0;
  /// Shows the window in front, without making it active, if it is hidden.
  virtual void ShowToolbar() {}
  /// Shows the window without making it active and paints it.
  virtual void ShowAndRefresh() = 0;
  virtual void HideWindow() = 0;
  /// Flags of SetWindowPos (forms::swp).
  virtual void SetWindowPos(forms::InsertAfter after, unsigned flags) = 0;
};

/// The strip, for those who need more than one of its sides.
class ToolbarPort : public AskingWindow,
                    public StripMenusPort,
                    public StripCarryPort,
                    public StripContentsPort,
                    public StripPlacePort {};

/// The one menu window.
class QMenuPort : public AskingWindow {
 public:
  [[nodiscard]] virtual bool MenuVisible() const = 0;

  /// Index of the button that owns the menu, as decimal text; "0" when none, empty before the
  /// first.
  [[nodiscard]] virtual const std::string& OwnerTag() const = 0;
  virtual void SetOwnerTag(std::string tag) = 0;
  /// Key of the menu on show or last on show.
  [[nodiscard]] virtual const std::string& CurrentKey() const = 0;

  /// Shows the menu of that key, from the cache or built from its file.
  virtual void ShowMenu(std::string_view menuKey, std::string_view menuFile) = 0;
  virtual void HideMenu() = 0;
  /// Drops a key from the cache of built menus; no matter if it is not there.
  virtual void ForgetMenu(std::string_view menuKey) = 0;

  /// The poll that closes the menu when the user leaves it.
  virtual void SetPoll(bool enabled) = 0;

  /// Twips.
  [[nodiscard]] virtual TwipSize MenuSize() const = 0;
  virtual void MoveMenu(float left, float top) = 0;

  /// A key, a character, a move or a release that the strip got while the menu is up. Points are
  /// twips of the menu's inside.
  virtual void ActivateKeyDown(int keyCode) = 0;
  virtual void xKeyPress(char32_t character) = 0;
  virtual void xMouseMove(float y) = 0;
  virtual void xMouseUp(forms::MouseButton button, forms::ShiftState shift, float x, float y) = 0;

  /// A move on the screen, in twips, while something is dragged over the menu.
  virtual void mMouseMove(float x, float y) = 0;
  /// Drops the carried entry on the item under selection: moves it there, or with Ctrl held copies
  /// it.
  virtual void DoItemDrag(forms::ShiftState shift) = 0;

  /// Back to the page that was up before a rebuild.
  virtual void GetCurMenu() = 0;
  /// Reads the menu on show and its icons again.
  virtual void RefreshQMenu() = 0;

  virtual void InitIcons() = 0;
  virtual void ResetPicIcons() = 0;
  virtual void SetWindowPos(forms::InsertAfter after, unsigned flags) = 0;
};

/// The hidden companion, whose end is the program's end.
class MinimizePort : public LoadedWindow {
 public:
  /// Puts the icon into the tray.
  virtual void ShowInSysTray() = 0;
  /// Switches "Not On Top" on and off.
  virtual void ActivateSysTray() = 0;
  virtual void DeActivateSysTray() = 0;
  /// Puts the strip away (from its edge too) and goes into the task bar for it, from the strip's
  /// place on the screen. The companion's return brings the strip back.
  virtual void MinimizeFor(const TwipRect& strip) = 0;
  /// Takes the window out of sight and out of the task bar.
  virtual void HideCompanion() {}
};

/// The picture that the pointer carries while an entry is dragged.
class DragImagePort {
 public:
  virtual ~DragImagePort() = default;

  /// Makes the pointer's picture from an icon text and follows the pointer from now on.
  virtual void SetDragImage(std::string_view icon) = 0;
  /// The pointer is itself again.
  virtual void RemoveDragImage() = 0;
};

/// Notices that can be told not to come again.
class TipPort {
 public:
  virtual ~TipPort() = default;

  /// Shows a notice; its box writes the option `field`, if there is one. Does nothing when that
  /// option is set.
  virtual void ShowTip(std::string_view title, std::string_view text,
                       std::optional<Option> field) = 0;
};

/// The small window that counts dots while the program starts or deletes files.
class StartupPort : public LoadedWindow {
 public:
  /// One more dot; loads the window and makes it visible if it is not.
  virtual void AddDot() = 0;
  virtual void HideWindow() = 0;
  /// Loads the window with another text and picture (an icon file) and no dots, and shows it on top
  /// of all windows without making it active.
  virtual void ShowProgress(std::string_view text, std::string_view iconFile) = 0;
};

/// Hints over buttons and items.
class HintPort {
 public:
  virtual ~HintPort() = default;

  /// Shows the text, or closes the hint when it is empty.
  virtual void SetHint(std::string_view text) = 0;
  [[nodiscard]] virtual WindowId WindowHandle() const = 0;
  /// The window's place in the Z order, with flags of SetWindowPos. A side without a window has
  /// nothing to do.
  virtual void SetHintLevel(forms::InsertAfter /*after*/, unsigned /*flags*/) {}
  /// The program ends, and the hint's window with it.
  virtual void ReleaseHint() {}
};

/// Placement of the strip at a screen edge.
class DockingPort {
 public:
  virtual ~DockingPort() = default;

  virtual void RegisterAppBar() = 0;
  /// Gives up the edge and registers again, without one.
  virtual void RemoveAppBar() = 0;
  /// Gives up the edge for good.
  virtual void EndAppBar() = 0;
  /// Gives up the edge and the claim to hide there, until RegisterAppBar.
  virtual void LeaveEdge() { EndAppBar(); }
  /// True if no other window hides at that edge.
  [[nodiscard]] virtual bool AutoHideFree(Edge edge) = 0;
  /// Puts the strip at the edge; without one, again at the edge where it belongs. A floating strip
  /// in the task bar goes there when it comes back.
  virtual void SetAppBar(std::optional<Edge> edge, bool rebuild) = 0;
  /// Auto Hide: shows the strip, hides it but for its line.
  virtual void RevealToolbar() = 0;
  virtual void HideToolbar() = 0;
  /// Tells the user that another window hides at that edge.
  virtual void ShowAutoHideTaken() = 0;
  /// Fits the row of single buttons into the length of the edge.
  virtual void ResizeToEdge() = 0;
};

/// The entry for the program in the user's Startup folder.
class StartupLinkPort {
 public:
  virtual ~StartupLinkPort() = default;

  [[nodiscard]] virtual bool Exists() = 0;
  virtual void Remove() = 0;
  /// A link to this executable.
  virtual void Create(std::string_view executable) = 0;
};

/// Sample entries for a new user.
class DefaultEntriesPort {
 public:
  virtual ~DefaultEntriesPort() = default;
  virtual void IncludeCommonFiles() = 0;
};

/// The row of single buttons and the rewriting of its files.
class SingleButtonsPort {
 public:
  virtual ~SingleButtonsPort() = default;

  /// Drops the carried entry at the pointer's place in the row; the right button copies.
  virtual void DoItemDrag(forms::MouseButton released) = 0;

  // A disk that refuses leaves the files as they were.

  /// Rewrites the files without the button of `file`.
  virtual FileStatus DeleteSingle(std::string_view file) = 0;
  /// Rewrites the files with the clipboard's entry before the button of `file`; behind the last
  /// button when it is empty.
  virtual FileStatus PasteSingle(std::string_view file) = 0;
  /// Rewrites the files with the undo entry back in its place.
  virtual FileStatus UndoDeleteSB(std::string_view file) = 0;

  /// Files dropped by another program at the pointer's place become buttons there; with the right
  /// button on a button its command opens the first of them instead.
  virtual void DropFilesOnSingles(std::vector<std::string> names, forms::MouseButton button) = 0;
};

/// Looks once, at start, how the shell shows icon files.
class IconRulePort {
 public:
  virtual ~IconRulePort() = default;
  virtual void DetectShellIcons() = 0;
};

/// The store of the icons that come with the program.
class IconLibraryPort {
 public:
  virtual ~IconLibraryPort() = default;
  virtual void ExtractIconLibrary() = 0;
};

/// The still picture that covers a window while it is rebuilt.
class CapturePort {
 public:
  virtual ~CapturePort() = default;
  virtual void CaptureMenu() = 0;
  virtual void ReleaseMenu() = 0;
  [[nodiscard]] virtual bool MenuCaptured() const = 0;

  /// The same for the strip.
  virtual void SetPicture1() = 0;
  virtual void ResetPicture1() = 0;

  /// The outline of the strip at an edge to which it is being pulled; none any more.
  virtual void SetPosition(Edge edge) = 0;
  virtual void ClearBg() = 0;
  /// The edge of the outline; nothing while no outline is shown.
  [[nodiscard]] virtual std::optional<Edge> OutlineEdge() const = 0;
};

/// Special folders of the shell.
class SpecialFoldersPort {
 public:
  virtual ~SpecialFoldersPort() = default;

  /// Opens the folder, or an entry of it that the name tells ("Mouse\CSIDL_CONTROLS"). `argument`
  /// may be empty; in double quotes it is a file for the entry to open, else the title of the
  /// entry.
  virtual void OpenSpecialFolder(std::string_view name, std::string_view argument) = 0;
  /// The shell's context menu at a point of the screen, in pixels, for an entry's command: a path,
  /// or a special folder with the title of one of its entries (empty: the folder itself). True when
  /// a command of the menu ran.
  virtual bool ShowContextMenu(std::string_view command, std::string_view title, PixelPoint at,
                               WindowId owner) = 0;
};

/// The program's own menu.
class MainMenuPort {
 public:
  virtual ~MainMenuPort() = default;
  /// Carries out a choice by its caption.
  virtual void xMainMenu(int index, std::string_view text) = 0;
  /// The state marks of its items.
  virtual void CheckLabels() = 0;
};

/// The popup of right clicks.
class PopupPort {
 public:
  virtual ~PopupPort() = default;
  /// Makes the entry the current one (EntryEdit), fills the popup for it, shows it at the
  /// pointer and carries out the choice. While one is up, or its command runs, nothing is changed.
  virtual void ShowToolbarPopup(EntryEdit entry) = 0;
};

/// The window in which an entry is edited.
class PropertiesPort : public LoadedWindow {
 public:
  /// Shows it with these fields for the current entry (EntryEdit).
  virtual void ShowProperties(std::string_view title, std::string_view icon,
                              std::string_view command) = 0;
  /// The strip stands somewhere else by now: the picture of it at an edge goes.
  virtual void HidePreview() {}
};

/// A window with a box for an icon text, as the icon library sees it.
class IconBoxPort {
 public:
  virtual ~IconBoxPort() = default;

  /// The window that the library belongs to. It outlives the library's window, and is disabled
  /// while that is up.
  [[nodiscard]] virtual forms::Form& BoxWindow() = 0;
  /// The library is open for it (`Browsing` is 1), until false, which comes when the library
  /// closes.
  virtual void SetBrowsing(bool browsing) = 0;
  /// The icon text that the user chose: it goes into the box for the icon (`txtFile` of `frmCust`,
  /// which `UpdateField` confirms; `txtIcon` of `frmProperties`, whose `DrawIcon` runs). Comes
  /// before SetBrowsing(false), and not at all when nothing was chosen.
  virtual void TakeIcon(std::string_view icon) = 0;
};

/// The window in which an icon is picked.
class LibraryPort : public LoadedWindow {
 public:
  /// Shows it for a caller, "frmCust" or "frmProperties" (WindowPorts::CustomizeIcon and
  /// PropertiesIcon), and returns at once. One that is up comes to the front and stays with the
  /// caller that it has. Without the caller's port a choice goes nowhere.
  virtual void Show(std::string_view caller) = 0;
};

/// The dialog that makes an entry from a dropped web address.
class WebLinkPort {
 public:
  virtual ~WebLinkPort() = default;
  /// Notes an address dropped on a button, on the row of single buttons (tag "SingleButtons") or in
  /// a menu, for `file`. The dialog opens when the drop has returned to the program it came from.
  /// For an item of a menu (tag "F" and the button's index) the current entry is that item, and the
  /// menu's capture is on; for the end of a button's menu the tag is the index alone. In the row
  /// the file is that of the button under the drop, empty when no button lies there.
  virtual void OfferWebLink(std::string_view url, std::string_view title, std::string_view tag,
                            std::string_view file) = 0;
  /// The program ends: an address that waits is given up, and its window goes.
  virtual void EndWebLink() {}
};

/// A window that shows what the menu files hold, and so wants to know of edits made elsewhere.
class MenuEditsPort {
 public:
  virtual ~MenuEditsPort() = default;
  /// Files of menus or single buttons were changed by this program, by its strip, a menu or another
  /// window; they are whole and can be read. Called in the middle of a command, perhaps inside a
  /// drag: only take note, and look at the files later. Not called for a change of names alone.
  virtual void MenusEdited() = 0;
};

/// All windows and services that may be asked for. Those that a build of the program does not have
/// are null, and whoever asks goes on without them.
struct WindowPorts {
  ToolbarPort* Toolbar = nullptr;
  QMenuPort* QMenu = nullptr;
  MinimizePort* Minimize = nullptr;
  StartupPort* Startup = nullptr;
  HintPort* Hint = nullptr;
  DockingPort* Docking = nullptr;
  StartupLinkPort* StartupLink = nullptr;
  DefaultEntriesPort* DefaultEntries = nullptr;
  SingleButtonsPort* SingleButtons = nullptr;
  IconRulePort* IconRule = nullptr;
  IconLibraryPort* IconLibrary = nullptr;
  CapturePort* Capture = nullptr;
  DragImagePort* DragImage = nullptr;
  TipPort* Tip = nullptr;
  WebLinkPort* WebLink = nullptr;
  FolderMenusPort* FolderMenus = nullptr;
  SpecialFoldersPort* SpecialFolders = nullptr;
  MainMenuPort* MainMenu = nullptr;
  PopupPort* Popup = nullptr;
  BuiltInCommandsPort* BuiltInCommands = nullptr;
  BrowserPort* Browser = nullptr;
  HelpPort* Help = nullptr;
  ShellLinksPort* ShellLinks = nullptr;
  // Windows that are loaded on demand and closed at the end.
  LoadedWindow* NetSearch = nullptr;
  PropertiesPort* Properties = nullptr;
  EditingWindow* Customize = nullptr;
  MenuEditsPort* MenuEdits = nullptr;
  LoadedWindow* ImageWindow = nullptr;
  LibraryPort* Library = nullptr;
  LoadedWindow* About = nullptr;
  // The windows that the icon library answers.
  IconBoxPort* CustomizeIcon = nullptr;
  IconBoxPort* PropertiesIcon = nullptr;

  /// The strip's window, none before it is loaded.
  [[nodiscard]] WindowId ToolbarWindow() const;
  /// The window in which the user acts, to which what is asked belongs: the menu that is up, else
  /// the strip.
  [[nodiscard]] WindowId WindowInUse() const;
  /// Shows the hint, or closes it when the text is empty.
  void SetHint(std::string_view text) const;
  /// Tells MenuEdits of an edit. Whoever changes what a menu file or a single button's file holds,
  /// other than that port's own window, calls it as soon as the file is written.
  void TellMenusEdited() const;
};

}  // namespace corvelle
