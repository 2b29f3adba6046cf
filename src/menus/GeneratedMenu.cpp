#include "menus/GeneratedMenu.h"

#include <algorithm>

#include "base/FieldText.h"
#include "base/Text.h"

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

bool GeneratedMenu::AddEntry(int record, MenuRecord entry, std::string name) {
  if (IsFull()) return false;
  entry.FTitle = DecodeField(EncodeField(entry.FTitle, kTitleWidth, ansi_), ansi_);
  MenuItem item = ItemOf(entry, kGeneratedBase + record);
  item.Origin.Name = std::move(name);
  Add(std::move(item));
  return true;
}

void GeneratedMenu::AddRule() { Add(ItemOf({"", std::string(kSeparatorIcon), ""}, 0)); }

void GeneratedMenu::Add(MenuItem item) {
  if (!IsFull()) items_.push_back(std::move(item));
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
