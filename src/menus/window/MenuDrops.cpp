#include "menus/window/MenuDrops.h"

#include <utility>

#include "base/Text.h"
#include "core/DroppedTitle.h"
#include "core/GuardFlags.h"
#include "core/MenuFile.h"
#include "core/RecordEdits.h"
#include "core/WindowPorts.h"
#include "launch/LaunchItem.h"
#include "menus/items/ShownItems.h"

namespace corvelle {

using forms::DragData;

bool MenuDrops::Takes(const GuardFlags& guards, const DragData& data) {
  return IsOfUse(data) && guards.TakesDrops();
}

void MenuDrops::Drop(const DragData& data, forms::MouseButton buttons, const Target& target,
                     const std::function<void()>& close) {
  if (!data.Files) {
    OfferAddress(data, target);
    return;
  }
  if (data.Files->empty()) return;
  const bool opens = buttons == forms::MouseButton::Right && target.Item != 0;
  if (!opens || !target.Enabled) {
    InsertFiles(*data.Files, target);
    return;
  }
  std::string command = items_[target.Item].Command;
  // A folder of the shell goes with the title of the entry in it; any other one opens as itself.
  if (StartsWithNoCase(command, kSpecialFolderStart)) {
    command += "\\" + items_.NameOf(target.Item);
  } else {
    command = Trim(command.substr(0, command.find('*')));
  }
  close();
  // An entry without a command has nothing that could open a file.
  if (!command.empty()) OpenWithItem(with_.Launch, data.Files->front(), command);
}

void MenuDrops::InsertFiles(const std::vector<std::string>& names, const Target& target) {
  const int position = items_[target.Item].Origin.Record;
  const std::string key = items_.Key();
  const std::string file = StoredMenuFile(target.File);
  CapturePort* const capture = with_.Ports.Capture;
  const bool captures = capture != nullptr && !capture->MenuCaptured();
  if (captures) capture->CaptureMenu();
  FileDrops::Written written = with_.Files.Insert(file, position, names);
  // After a failure the menu shows what the file still holds.
  if (written.Outcome == EditOutcome::Edited && with_.Ports.Toolbar != nullptr) {
    with_.Ports.Toolbar->RefreshMenu(key);
  }
  if (captures) capture->ReleaseMenu();
  if (with_.Ports.Toolbar != nullptr) {
    with_.Ports.Toolbar->TellRefused(std::move(written.Refused));
  }
}

// The dialog writes the entry before the item under the drop, or at the end of the button's menu.
void MenuDrops::OfferAddress(const DragData& data, const Target& target) {
  WebLinkPort* const links = with_.Ports.WebLink;
  const auto address = DroppedAddress(*data.Text);
  if (links == nullptr || !address) return;
  const std::string key = items_.Key();
  const std::string file = StoredMenuFile(target.File);
  if (target.Item != 0) SetCurrentEntry(with_.Entry, items_.EntryOf(target.Item));
  with_.Entry.CurFile = file;
  const std::string tag = target.Item != 0 ? key : key.substr(1);
  if (with_.Ports.Capture != nullptr) with_.Ports.Capture->CaptureMenu();
  links->OfferWebLink(*address, TitleOfDrop(with_.Ports.Browser, data, *address), tag, file);
}

}  // namespace corvelle
