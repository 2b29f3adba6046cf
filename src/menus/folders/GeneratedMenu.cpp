#include "menus/folders/GeneratedMenu.h"

#include <algorithm>
#include <utility>

#include "base/FieldText.h"
#include "base/Text.h"
#include "base/Utf8.h"
#include "core/MenuFile.h"

namespace corvelle {

void GeneratedMenu::CopySource(int last) {
  for (; nextSource_ <= std::min(last, SourceCount()); ++nextSource_) {
    Add(ItemOf(source_[static_cast<std::size_t>(nextSource_) - 1], nextSource_));
  }
}

void GeneratedMenu::BeginItem(int record) {
  CopySource(record - 1);
  nextSource_ = std::max(nextSource_, record + 1);
}

void GeneratedMenu::Expect(std::size_t entries) {
  items_.reserve(std::min(items_.size() + entries, static_cast<std::size_t>(kMaxRecords)));
}

bool GeneratedMenu::AddEntry(int record, MenuRecord entry, std::string name) {
  if (IsFull()) return false;
  // A field holds a short plain title as it is.
  if (entry.FTitle.size() > kTitleWidth || !IsPlain(entry.FTitle)) {
    entry.FTitle = DecodeField(EncodeField(entry.FTitle, kTitleWidth, ansi_), ansi_);
  }
  MenuItem item = ItemOf(std::move(entry), kGeneratedBase + record);
  item.Origin.Name = std::move(name);
  Add(std::move(item));
  return true;
}

void GeneratedMenu::AddWaiting(int record, FolderState state) {
  MenuItem item = ItemOf(source_[static_cast<std::size_t>(record) - 1], record);
  if (item.Title.empty()) item.Title = FolderWithoutOptions(item.Command);
  item.Title += WaitingText(state);
  item.Folder = state;
  Add(std::move(item));
}

void GeneratedMenu::AddKept(int record, MenuItem entry) {
  entry.Origin.Record = kGeneratedBase + record;
  Add(std::move(entry));
}

void GeneratedMenu::AddRule() { Add(ItemOf({"", std::string(kSeparatorIcon), ""}, 0)); }

void GeneratedMenu::Add(MenuItem item) {
  if (!IsFull()) items_.push_back(std::move(item));
}

std::string_view WaitingText(FolderState state) noexcept {
  switch (state) {
    case FolderState::BeingRead:
      return " (reading...)";
    case FolderState::NotAvailable:
      return " (not available)";
    case FolderState::Here:
    case FolderState::Reading:
      break;
  }
  return "";
}

std::vector<MenuItem> EntriesInGenerated(std::string_view bytes, int record,
                                         std::string_view command, const CodePage& ansi) {
  const bool ofShell = IsSpecialFolder(command);
  const std::string folder = FolderWithoutOptions(command);
  const std::string start = folder.substr(0, folder.rfind('\\') + 1);
  std::vector<MenuItem> entries;
  int place = 0;
  for (const MenuRecord& kept : ParseRecords(bytes, ansi)) {
    ++place;
    if (SplitTitle(kept.FTitle, place).Record != kGeneratedBase + record) continue;
    // The menu file may have been edited since: only what comes from that folder counts.
    const bool fits = ofShell ? EqualNoCase(kept.FName, folder)
                              : StartsWithNoCase(kept.FName, start) && !start.empty();
    MenuItem entry = ItemOf(kept, place);
    if (!fits || entry.Separator) continue;
    // The numbers of the shell's icons are those of one session.
    if (ofShell) entry.Icon.clear();
    if (ofShell) entry.Origin.Name = entry.Title;
    entries.push_back(std::move(entry));
  }
  return entries;
}

std::string GeneratedBytes(const std::vector<MenuItem>& items,
                           const std::vector<MenuRecord>& source, const CodePage& ansi) {
  std::string bytes;
  bytes.reserve(items.size() * kRecordLength);
  int last = 0;
  bool rule = false;
  for (const MenuItem& item : items) {
    const int stands = item.Origin.Record;
    if (stands == 0) {
      rule = true;
      continue;
    }
    MenuRecord record{"", item.Icon, item.Command};
    if (!IsGenerated(stands)) record = source[static_cast<std::size_t>(stands) - 1];
    if (EncodeText(record.FName, ansi).size() > kNameWidth) continue;
    // Only between two entries of one folder item that are both there.
    if (rule && stands == last) {
      bytes += FormatRecord({"", std::string(kSeparatorIcon), ""}, ansi);
    }
    rule = false;
    last = stands;
    record.FTitle = JoinTitle(item.Title, stands, ansi);
    bytes += FormatRecord(record, ansi);
  }
  return bytes;
}

}  // namespace corvelle
