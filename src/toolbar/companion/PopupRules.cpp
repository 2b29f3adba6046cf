#include "toolbar/companion/PopupRules.h"

#include "base/Text.h"
#include "core/MenuRecord.h"
#include "core/RecordEdits.h"

namespace corvelle {

namespace {

using Facts = PopupFacts;

constexpr std::string_view kGeneratedFileEnd = ".mfd";
constexpr std::string_view kMenuFileEnd = ".MNU";
constexpr int kFirstItem = 2;  // record of a menu's first item

bool IsMainMenu(const Facts& f) { return EqualNoCase(f.Tag, "Q1"); }
bool IsMainButton(const Facts& f) { return EqualNoCase(f.Tag, "B1"); }
bool InMenu(const Facts& f) { return IsMenuTag(f.Tag); }
bool IsButton(const Facts& f) { return IsButtonTag(f.Tag); }
bool InSingles(const Facts& f) { return IsSinglesTag(f.Tag); }
bool IsGeneratedItem(const Facts& f) { return InMenu(f) && IsGenerated(f.Record); }

bool Always(const Facts&) { return true; }

bool MayCopy(const Facts& f) { return !IsMainMenu(f) && f.Record != 0 && !IsButton(f); }

bool MayCut(const Facts& f) { return MayCopy(f) && !IsGeneratedItem(f); }

// The bare row of single buttons has no record, and takes an entry all the same.
bool MayPaste(const Facts& f) {
  if (f.ClipboardEmpty || IsMainMenu(f) || IsButton(f)) return false;
  return f.Record != 0 || InSingles(f);
}

bool MayDelete(const Facts& f) {
  return !IsMainButton(f) && !IsMainMenu(f) && f.Record != 0 && !IsGeneratedItem(f);
}

bool MayDeleteSeparator(const Facts& f) { return f.FollowsSeparator && InMenu(f); }

bool MayUndo(const Facts& f) {
  return !IsMainButton(f) && !IsMainMenu(f) && EqualNoCase(f.UndoTag, f.Tag);
}

bool MayAddButton(const Facts& f) { return !InMenu(f) && !IsMainMenu(f) && !IsMainButton(f); }

bool MayInsertItem(const Facts& f) { return InMenu(f); }

// Two rules in a row, or one above the first item, would only look like a mistake.
bool MayInsertSeparator(const Facts& f) {
  return InMenu(f) && !f.FollowsSeparator && RealRecord(f.Record) != kFirstItem;
}

bool MayOpenFolder(const Facts& f) {
  const bool isFolder = f.Command.find('*') != std::string_view::npos ||
                        StartsWithNoCase(f.Command, kSpecialFolderStart);
  return InMenu(f) && isFolder && IsClosedFolder(f.Command);
}

bool HasFolderProperties(const Facts& f) {
  return !IsMainButton(f) && !IsMainMenu(f) && !EqualNoCase(f.Tag, "Toolbar") &&
         IsGenerated(f.Record);
}

constexpr std::array<PopupRow, kPopupRowCount> kRows = {{
    {"Refresh", "Refresh", Always},
    {"-", "-", Always},
    {"Cut Item", "Cut", MayCut},
    {"Copy Item", "Copy", MayCopy},
    {"Paste Item", "Paste", MayPaste},
    {"-", "-", Always},
    {"Delete Item", "Delete", MayDelete},
    {"Delete Separator", "DeleteSeparator", MayDeleteSeparator},
    {"Undo Delete", "Undo", MayUndo},
    {"-", "", Always},
    {"Add Button", "AddButton", MayAddButton},
    {"Insert Menu Item", "MenuItem", MayInsertItem},
    {"Insert Separator", "Separator", MayInsertSeparator},
    {"-", "", Always},
    {"Open Folder", "OpenFolder", MayOpenFolder},
    {"Close Folder", "CloseFolder", IsGeneratedItem},
    {"-", "", Always},
    {"Properties", "Properties", Always},
    {"Folder Properties", "FolderProperties", HasFolderProperties},
}};

}  // namespace

const std::array<PopupRow, kPopupRowCount>& PopupRows() noexcept { return kRows; }

std::string SourceMenuFile(std::string_view shownFile) {
  if (!EndsWithNoCase(shownFile, kGeneratedFileEnd)) return std::string(shownFile);
  const std::string_view stem = shownFile.substr(0, shownFile.size() - kGeneratedFileEnd.size());
  return std::string(stem) + std::string(kMenuFileEnd);
}

}  // namespace corvelle
