#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Check.h"
#include "Input.h"
#include "base/CodePage.h"
#include "core/MenuFile.h"
#include "core/MenuFolder.h"
#include "core/RecordEdits.h"
#include "sim/SimFiles.h"

// Edits of menus that hold any bytes, in any order, on a disk that fails where it likes. Whatever
// comes, a menu is what it was or what the edit makes of it, and the menus beside it are untouched.

namespace {

using corvelle::EditOutcome;
using corvelle::EntryEdit;
using corvelle::FileError;
using corvelle::kRecordLength;
using corvelle::sim::SimFiles;

const corvelle::Windows1252 kAnsi;
constexpr char kMenus[] = "C:\\";
constexpr char kFile[] = "C:\\BMENU001.MNU";
constexpr char kOther[] = "C:\\BMENU002.MNU";

SimFiles& Disk() {
  static SimFiles disk;
  return disk;
}

void Select(SimFiles& disk, EntryEdit& edit, int record) {
  const auto here = corvelle::ReadRecord(disk, kAnsi, kFile, record);
  edit.CurRecord = record;
  if (!here) return;
  edit.CurTitle = here->FTitle;
  edit.CurIcon = here->FIcon;
  edit.CurCommand = here->FName;
}

EditOutcome RunOne(SimFiles& disk, EntryEdit& edit, int which) {
  switch (which) {
    case 0:
      corvelle::RememberForUndo(edit);
      return corvelle::DeleteMenuEntry(disk, kAnsi, kMenus, edit);
    case 1:
      return corvelle::UndoDeleteMenuEntry(disk, kAnsi, kMenus, edit);
    case 2:
      corvelle::CopyEntry(edit);
      return corvelle::PasteMenuEntry(disk, kAnsi, kMenus, edit);
    case 3:
      return corvelle::CloseFolderItem(disk, kAnsi, edit);
    case 4:
      return corvelle::OpenFolderItem(disk, kAnsi, edit);
    default:
      return corvelle::SelectSeparatorAbove(disk, kAnsi, edit) == EditOutcome::Edited
                 ? corvelle::DeleteMenuEntry(disk, kAnsi, kMenus, edit)
                 : EditOutcome::NothingToDo;
  }
}

/// How many records of `before` are not, byte for byte and in their order, in `after`: the fewest
/// that can be, as some may be equal.
std::size_t Missing(const std::string& before, const std::string& after) {
  const std::size_t rows = before.size() / kRecordLength;
  const std::size_t columns = after.size() / kRecordLength;
  // How many of the first records of both are the same ones.
  std::vector<std::vector<std::size_t>> same(rows + 1, std::vector<std::size_t>(columns + 1));
  for (std::size_t row = 0; row < rows; ++row) {
    for (std::size_t column = 0; column < columns; ++column) {
      const bool equal = before.compare(row * kRecordLength, kRecordLength, after,
                                        column * kRecordLength, kRecordLength) == 0;
      same[row + 1][column + 1] =
          equal ? same[row][column] + 1 : std::max(same[row][column + 1], same[row + 1][column]);
    }
  }
  return rows - same[rows][columns];
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  corvelle::fuzz::Input input(data, size);
  SimFiles& disk = Disk();
  disk.ClearLog();
  disk.StopFailing();
  const std::string script = input.Take(24);
  disk.Put(kFile, input.Rest());
  disk.Put(kOther, "untouched");

  EntryEdit edit;
  edit.CurMenuTag = "F1";
  edit.CurFile = kFile;
  for (std::size_t i = 0; i + 3 <= script.size(); i += 3) {
    const int record = static_cast<unsigned char>(script[i]) % 12;
    const int fault = static_cast<unsigned char>(script[i + 2]) % 32;
    Select(disk, edit, record);
    if (static_cast<unsigned char>(script[i]) >= 240) edit.CurRecord += corvelle::kGeneratedBase;
    const std::string before = disk.Get(kFile).value_or("");
    if (fault < 16) {
      disk.FailCall(1 + fault % 8, fault < 8 ? FileError::DiskFull : FileError::InUse);
    }
    const EditOutcome outcome = RunOne(disk, edit, static_cast<unsigned char>(script[i + 1]) % 6);
    disk.StopFailing();

    const std::optional<std::string> after = disk.Get(kFile);
    CORVELLE_CHECK(after.has_value());
    // An edit in place that a full disk breaks off may leave its own record half written.
    if (outcome != EditOutcome::Edited) {
      CORVELLE_CHECK(*after == before || Missing(before, *after) <= 1);
    } else {
      CORVELLE_CHECK(Missing(corvelle::WholeRecords(before), corvelle::WholeRecords(*after)) <= 1);
    }
    CORVELLE_CHECK(disk.Get(kOther) == "untouched");
  }
  return 0;
}
