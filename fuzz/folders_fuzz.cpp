#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "Check.h"
#include "Input.h"
#include "core/MenuFile.h"
#include "core/Program.h"
#include "menus/folders/FolderMenus.h"
#include "menus/folders/FolderRules.h"
#include "sim/World.h"

// Menu files of any bytes with folder items of any text, on a disk that fails where it likes.
// Whatever comes, the menu file and those beside it are untouched, and every title of the generated
// one names a record that it stands for.

namespace corvelle {
namespace {

constexpr char kMenus[] = "C:\\Menus\\";
constexpr char kFile[] = "C:\\Menus\\BMENU001.MNU";
constexpr char kOther[] = "C:\\Menus\\BMENU001.BTN";

/// What an item begins with; random bytes follow.
constexpr std::string_view kStarts[] = {
    "C:\\Docs\\*", "C:\\Docs\\*.*/",     "CSIDL_", "CSIDL_DESKTOP/",
    "CSIDL_MNU",   "C:\\Docs\\*.*/s-eu", "*",      ""};

struct Home {
  Home()
      : program(world.Services(), world.Windows()),
        folders(program.Services, program.Windows, program.Answers, program.Icons) {
    program.Paths.MenusPath = kMenus;
    world.Files.Put("C:\\Docs\\a.txt", "x");
    world.Files.Put("C:\\Docs\\inner\\b.lnk", "x");
    world.Folders.Put(0, {{"Bin", 3}, {"", 1}, {"a|b", -1}});
    world.Desktop.AnswerAnyOther(forms::msgbox::AnswerOk);
  }
  sim::World world;
  Program program;
  FolderMenus folders;
};

void CheckOrigins(const ExpandedMenu& menu, const std::vector<MenuRecord>& source) {
  for (const MenuItem& item : menu.Items) {
    const int number = item.Origin.Record;
    if (number == 0 && item.Title.empty() && item.Separator) continue;
    const int real = RealRecord(number);
    CORVELLE_CHECK(real >= 1 && real <= static_cast<int>(source.size()));
    const std::string& command = source[static_cast<std::size_t>(real) - 1].FName;
    const bool open =
        real > 1 && (IsFolderItem(command) || IsSpecialFolder(command)) && !IsClosedFolder(command);
    CORVELLE_CHECK(IsGenerated(number) == open);
  }
}

// Each title of the generated file carries the number of the record that it stands for.
void CheckGenerated(Home& home, const ExpandedMenu& menu) {
  const auto records = ReadAllRecords(home.world.Files, home.world.Ansi, menu.File);
  CORVELLE_CHECK(records && records->size() <= menu.Items.size());
  std::size_t at = 0;
  for (const MenuRecord& record : *records) {
    const int number = SplitTitle(record.FTitle, 0).Record;
    const int written = record.FTitle.find('\0') == std::string::npos ? 0 : number;
    while (at < menu.Items.size() && menu.Items[at].Origin.Record != written) ++at;
    CORVELLE_CHECK(at < menu.Items.size());
    ++at;
  }
}

/// True when a menu that was written is up to date. One that shows the folder of the menus itself
/// finds its own generated file there the first time, and is up to date after that.
bool Settles(Home& home, std::string_view bytes) {
  if (!home.folders.UpdateMenu("F2")) return true;
  const auto again = home.folders.Expand("F2", kFile, bytes);
  return again && home.folders.WriteGenerated(*again) && !home.folders.UpdateMenu("F2");
}

}  // namespace
}  // namespace corvelle

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace corvelle;
  static Home home;
  fuzz::Input input(data, size);
  sim::SimFiles& disk = home.world.Files;
  disk.ClearLog();
  const int fault = input.Byte();
  std::vector<MenuRecord> items{{"Button", "", ""}};
  while (!input.AtEnd() && items.size() < 12) {
    const std::string_view start =
        kStarts[static_cast<std::size_t>(input.Byte()) % std::size(kStarts)];
    const std::string title = input.Take(20);
    items.push_back({title, "", std::string(start) + input.Take(12)});
  }
  std::string bytes;
  for (const MenuRecord& item : items) bytes += FormatRecord(item, home.world.Ansi);
  disk.Put(kFile, bytes);
  disk.Put(kOther, "untouched");
  if (fault < 24)
    disk.FailCall(1 + fault % 12, fault < 12 ? FileError::DiskFull : FileError::InUse);
  const std::optional<ExpandedMenu> expanded = home.folders.Expand("F2", kFile, bytes);
  const bool written = expanded && home.folders.WriteGenerated(*expanded);
  disk.StopFailing();
  CORVELLE_CHECK(disk.Get(kFile) == bytes && disk.Get(kOther) == "untouched");
  const auto source = ReadAllRecords(disk, home.world.Ansi, kFile);
  if (expanded) CheckOrigins(*expanded, *source);
  if (written) CheckGenerated(home, *expanded);
  if (expanded && fault >= 24) CORVELLE_CHECK(written && Settles(home, bytes));
  for (const MenuRecord& item : *source) {
    const FolderItem parsed = ParseFolderItem(item.FName);
    CORVELLE_CHECK(parsed.Folder.empty() || parsed.Folder.ends_with('\\'));
    CORVELLE_CHECK(!NameWithoutExtension(item.FTitle + "x").empty());
  }
  return 0;
}
