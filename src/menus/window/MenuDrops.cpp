#include "menus/window/MenuDrops.h"

#include <utility>

#include "base/Text.h"
#include "core/DroppedFiles.h"
#include "core/DroppedTitle.h"
#include "core/MenuFile.h"
#include "core/Program.h"
#include "core/RecordEdits.h"
#include "forms/Scopes.h"
#include "launch/FileTitle.h"
#include "launch/LaunchItem.h"
#include "menus/items/ShownItems.h"

namespace corvelle {

using forms::DragData;

bool MenuDrops::Takes(const Program& program, const DragData& data) {
  return IsOfUse(data) && program.Guards.TakesDrops();
}

void MenuDrops::Drop(const DragData& data, const Target& target,
                     const std::function<void()>& close) {
  if (!data.Files) {
    OfferAddress(data, target);
    return;
  }
  if (data.Files->empty()) return;
  const bool opens = program_.Drag.DragButtons == forms::MouseButton::Right && target.Item != 0;
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
  if (!command.empty()) OpenWithItem(program_.Launch, data.Files->front(), command);
}

void MenuDrops::InsertFiles(const std::vector<std::string>& names, const Target& target) {
  const int position = items_[target.Item].Origin.Record;
  const std::string key = items_.Key();
  const std::string file = StoredMenuFile(target.File);
  CapturePort* const capture = program_.Ports.Capture;
  const bool captures = capture != nullptr && !capture->MenuCaptured();
  if (captures) capture->CaptureMenu();
  auto outcome = EditOutcome::NothingToDo;
  DroppedEntries dropped;
  {
    const forms::FlagScope busy(program_.Guards.ItemActionBusy);
    FileSystem& files = program_.Services.Files;
    const CodePage& ansi = program_.Services.Ansi;
    dropped = DroppedRecords(names, [this](const std::vector<std::string>& paths) {
      return FileTitles(program_.Starts, program_.Services.Ansi, program_.OptionFlags)
          .GetTrimmedNames(paths);
    });
    outcome = InsertDropped(files, ansi, file, position, dropped.Records);
    if (outcome == EditOutcome::Edited) program_.Ports.TellMenusEdited();
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
void MenuDrops::OfferAddress(const DragData& data, const Target& target) {
  WebLinkPort* const links = program_.Ports.WebLink;
  const auto address = DroppedAddress(*data.Text);
  if (links == nullptr || !address) return;
  const std::string key = items_.Key();
  const std::string file = StoredMenuFile(target.File);
  if (target.Item != 0) SetCurrentEntry(program_.Entry, items_.EntryOf(target.Item));
  program_.Entry.CurFile = file;
  const std::string tag = target.Item != 0 ? key : key.substr(1);
  if (program_.Ports.Capture != nullptr) program_.Ports.Capture->CaptureMenu();
  links->OfferWebLink(*address, TitleOfDrop(program_.Ports.Browser, data, *address), tag, file);
}

}  // namespace corvelle
