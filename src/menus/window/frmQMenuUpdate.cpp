// What comes to be known of folders while their menu is up.

#include <algorithm>
#include <optional>
#include <utility>

#include "base/Text.h"
#include "core/Program.h"
#include "forms/Scopes.h"
#include "menus/items/UpdateRules.h"
#include "menus/window/frmQMenu.h"

namespace corvelle {

namespace {

constexpr int kUpdateMilliseconds = 50;

bool IsSameEntry(const MenuItem& a, const MenuItem& b) {
  return a.Command == b.Command && a.Origin == b.Origin &&
         (a.Title == b.Title || !b.Command.empty());
}

/// True for two menus of which each item is the same and in the same place.
bool LooksLike(const BuiltMenu& a, const BuiltMenu& b) {
  return a.Items == b.Items && a.MenuInfo.Slides == b.MenuInfo.Slides &&
         a.MenuInfo.Width == b.MenuInfo.Width && a.MenuInfo.Height == b.MenuInfo.Height &&
         a.Dpi == b.Dpi;
}

}  // namespace

void frmQMenu::ListenToFolders() {
  if (FolderMenusPort* const folders = program_.Ports.FolderMenus) {
    folders->SetListener([this](const std::string& key) { FoldersArrived(key); });
  }
}

// What comes for a menu that is not up is known when it opens.
void frmQMenu::FoldersArrived(const std::string& key) {
  const bool shown = EqualNoCase(key, MenuKey) && (MenuVisible() || program_.Guards.MenuBuilding);
  if (!shown) {
    cache_.Remove(key);
    return;
  }
  if (!updateSince_) {
    updateSince_ = program_.Windows.Now();
    releaseWatch_.Reset();
  }
  TryUpdate();
}

void frmQMenu::TryUpdate() {
  UpdateTimer.SetEnabled(false);
  if (!updateSince_) return;
  const std::int64_t now = program_.Windows.Now();
  const bool busy = IsHeld() || program_.Guards.MenuBuilding || program_.Guards.OpenQuestions > 0 ||
                    program_.Entry.ItemDragging ||
                    program_.Drag.DragHolds(program_.Services.Pointer) ||
                    program_.Guards.ItemActionBusy;
  if (!MayUpdate({.Busy = busy,
                  .PointerOver = PointerOver(),
                  .SinceMove = now - movedAt_,
                  .Waited = now - *updateSince_})) {
    UpdateTimer.SetInterval(kUpdateMilliseconds);
    UpdateTimer.SetEnabled(true);
    return;
  }
  updateSince_.reset();
  if (MenuVisible()) UpdateInPlace();
}

bool frmQMenu::IsHeld() {
  const bool over = PointerOver();
  const bool down = AnyButtonDown(program_.Services.Pointer);
  const ToolbarPort* const strip = program_.Ports.Toolbar;
  // Until the event of the release comes: by then the button has been up for a moment.
  const bool waits = IsPressed() || program_.Drag.DragOverButton ||
                     (over && strip != nullptr && strip->ButtonsPressed());
  if (!waits) {
    releaseWatch_.Reset();
    return over && down;
  }
  return !releaseWatch_.Look(down, program_.Windows.Now());
}

void frmQMenu::ForgetUpdate() {
  updateSince_.reset();
  UpdateTimer.SetEnabled(false);
  if (FolderMenusPort* const folders = program_.Ports.FolderMenus) folders->Leave();
  // It opens again with what is known then.
  if (!menu_->Whole) cache_.Remove(menu_->MenuInfo.Key);
}

void frmQMenu::UpdateInPlace() {
  HoldUpForIcons();
  const MenuItem selected = items_[program_.Menu.SelectedItem];
  const int page = pages_.CurMenu();
  std::optional<ExpandedMenu> expanded;
  bool same = false;
  {
    const forms::FlagScope building(program_.Guards.MenuBuilding);
    const std::shared_ptr<BuiltMenu> menu = Build(menu_->Source, expanded);
    if (!menu) return;
    same = LooksLike(*menu, *menu_);
    menu->MenuInfo.CurMenu = std::min(page, menu->MenuInfo.Slides);
    same ? TakeUnchanged(*menu) : ShowInstead(menu);
  }
  if (!IsLoaded()) return;
  cache_.Add(menu_);
  if (expanded && expanded->Whole) KeepGenerated(*expanded);
  if (!same) SelectAgain(selected);
  AwaitHeldKeys();
}

void frmQMenu::ShowInstead(const std::shared_ptr<BuiltMenu>& menu) {
  DropSelection();
  for (int i = 1; i <= LoadedLabels(); ++i) Lbl[i].SetVisible(false);
  HideArrows();
  Take(menu);
  PlaceMenu();
  UpDownArrows();
  DrawPage(false);
}

// More is known, and nothing of it is seen: the names of the files are those that the shell shows.
void frmQMenu::TakeUnchanged(BuiltMenu& menu) {
  menu_->Stored = std::move(menu.Stored);
  menu_->Whole = menu.Whole;
  menu_->MenuInfo.File = std::move(menu.MenuInfo.File);
}

void frmQMenu::SelectAgain(const MenuItem& selected) {
  PrevItem = 0;
  CurItem = 0;
  if (!KeyboardActive) {
    // The pointer may be on another item now.
    rebuilt_ = true;
    if (PointerOver()) FollowPointer();
    return;
  }
  for (int i = std::max(pages_.FirstLabel(), 1); i <= pages_.LastLabel(); ++i) {
    if (!IsSameEntry(items_[i], selected)) continue;
    SelectItem(i);
    return;
  }
}

}  // namespace corvelle
