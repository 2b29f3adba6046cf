// What other programs drag over the items of the menu and drop there.

#include <utility>

#include "base/Text.h"
#include "core/DroppedFiles.h"
#include "core/DroppedTitle.h"
#include "core/Program.h"
#include "forms/Scopes.h"
#include "launch/FileTitle.h"
#include "launch/LaunchItem.h"
#include "menus/frmQMenu.h"

namespace corvelle {

using forms::DragData;
using forms::DropEffect;
using forms::MouseButton;
using forms::ShiftState;

void frmQMenu::WireDrags() {
  OLEDragOver = [this](DragData& data, DropEffect& effect, MouseButton down, ShiftState shift,
                       float x, float y) { Form_OLEDragOver(data, effect, down, shift, x, y); };
  OLEDragDrop = [this](DragData& data, DropEffect& effect, MouseButton down, ShiftState shift,
                       float x, float y) { Form_OLEDragDrop(data, effect, down, shift, x, y); };
  OLEDragLeave = [this] {
    program_.Drag.DragOverButton = false;
    DropSelection();
  };
  SetTakesDrops(true);
}

void frmQMenu::WireDrags(forms::Label& label, int index) {
  label.OLEDragOver = [this, index](DragData& data, DropEffect& effect, MouseButton down,
                                    ShiftState shift, float x, float y) {
    Lbl_OLEDragOver(index, data, effect, down, shift, x, y);
  };
  label.OLEDragDrop = [this, index](DragData& data, DropEffect& effect, MouseButton down,
                                    ShiftState shift, float x, float y) {
    Lbl_OLEDragDrop(index, data, effect, down, shift, x, y);
  };
}

void frmQMenu::Lbl_OLEDragOver(int index, DragData& data, DropEffect& effect, MouseButton down,
                               ShiftState shift, float x, float y) {
  Form_OLEDragOver(data, effect, down, shift, x + Lbl[index].Left(), y + Lbl[index].Top());
}

void frmQMenu::Lbl_OLEDragDrop(int index, DragData& data, DropEffect& effect, MouseButton down,
                               ShiftState shift, float x, float y) {
  Form_OLEDragDrop(data, effect, down, shift, x + Lbl[index].Left(), y + Lbl[index].Top());
}

// The program's own menu holds nothing of the user's.
bool frmQMenu::TakesDrop(const DragData& data) const {
  return IsOfUse(data) && program_.Guards.TakesDrops() && MenuVisible() &&
         !EqualNoCase(MenuKey, kMainMenuKey);
}

void frmQMenu::Form_OLEDragOver(DragData& data, DropEffect& effect, MouseButton down,
                                ShiftState shift, float x, float y) {
  // Also where nothing can be dropped the drag is here, and holds the menu.
  program_.Drag.DragOverButton = true;
  if (!TakesDrop(data)) {
    effect = DropEffect::None;
    return;
  }
  program_.Drag.DragButtons = down;
  effect = effect & EffectOfDrag(down);
  Form_MouseMove(MouseButton::Left, shift, x, y);
}

void frmQMenu::Form_OLEDragDrop(DragData& data, DropEffect& effect, MouseButton /*down*/,
                                ShiftState /*shift*/, float /*x*/, float /*y*/) {
  Timer1.SetEnabled(false);
  program_.Drag.DragOverButton = false;
  program_.Drag.DragEntered = false;
  program_.Drag.DragIsUrl = false;
  if (!TakesDrop(data)) {
    effect = DropEffect::None;
  } else {
    effect = effect & EffectOfDrag(program_.Drag.DragButtons);
    if (data.Files) {
      DropFiles(*data.Files);
    } else {
      OfferAddress(data, program_.Menu.SelectedItem);
    }
  }
  if (MenuVisible()) Timer1.SetEnabled(true);
}

void frmQMenu::DropFiles(const std::vector<std::string>& names) {
  if (names.empty()) return;
  const int item = program_.Menu.SelectedItem;
  const bool opens =
      program_.Drag.DragButtons == MouseButton::Right && item != 0 && Lbl[item].Enabled();
  if (opens) {
    OpenDropped(names.front(), item);
  } else {
    InsertFiles(names, item);
  }
}

void frmQMenu::OpenDropped(const std::string& file, int item) {
  std::string command = GetExeName(item);
  // A folder of the shell goes with the title of the entry in it; any other one opens as itself.
  if (StartsWithNoCase(command, kSpecialFolderStart)) {
    command += "\\" + NameOf(item);
  } else {
    command = Trim(command.substr(0, command.find('*')));
  }
  CloseMenu();
  // An entry without a command has nothing that could open a file.
  if (!command.empty()) OpenWithItem(program_, file, command);
}

void frmQMenu::InsertFiles(const std::vector<std::string>& names, int item) {
  const int position = item != 0 ? GetRecordNum(item) : 0;
  const std::string key = MenuKey;
  const std::string file = StoredMenuFile(MenuFile);
  CapturePort* const capture = program_.Ports.Capture;
  const bool captures = capture != nullptr && !capture->MenuCaptured();
  if (captures) capture->CaptureMenu();
  auto outcome = EditOutcome::NothingToDo;
  DroppedEntries dropped;
  {
    const forms::FlagScope busy(program_.Guards.ItemActionBusy);
    FileSystem& files = program_.Services.Files;
    const CodePage& ansi = program_.Services.Ansi;
    dropped = DroppedRecords(files, ansi, names, [this](std::string_view name) {
      return Trim(GetFileTitle(program_, name));
    });
    outcome = InsertDropped(files, ansi, file, position, dropped.Records);
    if (outcome == EditOutcome::Edited) program_.TellMenusEdited();
  }
  // After a failure the menu shows what the file still holds.
  if (outcome == EditOutcome::Edited && program_.Ports.Toolbar != nullptr) {
    program_.Ports.Toolbar->RefreshMenu(key);
  }
  if (captures) capture->ReleaseMenu();
  if (program_.Ports.Toolbar != nullptr) {
    program_.Ports.Toolbar->TellRefused(std::move(dropped.Refused));
  }
}

// The dialog writes the entry before the item under the drop, or at the end of the button's menu.
void frmQMenu::OfferAddress(const DragData& data, int item) {
  WebLinkPort* const links = program_.Ports.WebLink;
  const auto address = DroppedAddress(*data.Text);
  if (links == nullptr || !address) return;
  const std::string file = StoredMenuFile(MenuFile);
  if (item != 0) FillCurrentItem(item);
  program_.Entry.CurFile = file;
  const std::string tag = item != 0 ? MenuKey : MenuKey.substr(1);
  if (program_.Ports.Capture != nullptr) program_.Ports.Capture->CaptureMenu();
  links->OfferWebLink(*address, TitleOfDrop(program_, data, *address), tag, file);
}

}  // namespace corvelle
