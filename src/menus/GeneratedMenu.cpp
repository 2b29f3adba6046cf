#include "menus/GeneratedMenu.h"

#include <algorithm>

#include "base/FieldText.h"
#include "base/Text.h"

namespace corvelle {

void GeneratedMenu::CopySource(int last) {
  for (; nextSource_ <= std::min(last, SourceCount()); ++nextSource_) {
    MenuRecord record = source_[static_cast<std::size_t>(nextSource_) - 1];
    record.FTitle = StripAtNull(record.FTitle);
    Add(std::move(record), {nextSource_, {}});
  }
}

void GeneratedMenu::BeginItem(int record) {
  CopySource(record - 1);
  nextSource_ = std::max(nextSource_, record + 1);
}

bool GeneratedMenu::AddEntry(int record, MenuRecord entry, std::string name) {
  if (IsFull()) return false;
  entry.FTitle = DecodeField(EncodeField(entry.FTitle, kTitleWidth, ansi_), ansi_);
  Add(std::move(entry), {kGeneratedBase + record, std::move(name)});
  return true;
}

void GeneratedMenu::AddRule() { Add({"", std::string(kSeparatorIcon), ""}, {}); }

void GeneratedMenu::Add(MenuRecord record, EntryOrigin origin) {
  if (IsFull()) return;
  records_.push_back(std::move(record));
  origins_.push_back(std::move(origin));
}

std::string GeneratedBytes(const std::vector<MenuRecord>& records,
                           const std::vector<EntryOrigin>& origins, const CodePage& ansi) {
  std::string bytes;
  bytes.reserve(records.size() * kRecordLength);
  int last = 0;
  const MenuRecord* rule = nullptr;
  for (std::size_t i = 0; i < records.size(); ++i) {
    MenuRecord record = records[i];
    const int stands = origins[i].Record;
    if (stands == 0) {
      rule = &records[i];
      continue;
    }
    if (EncodeText(record.FName, ansi).size() > kNameWidth) continue;
    // Only between two entries of one folder item that are both there.
    if (rule != nullptr && stands == last) bytes += FormatRecord(*rule, ansi);
    rule = nullptr;
    last = stands;
    record.FTitle = JoinTitle(record.FTitle, stands, ansi);
    bytes += FormatRecord(record, ansi);
  }
  return bytes;
}

}  // namespace corvelle
