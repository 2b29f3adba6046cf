#include "menus/GeneratedMenu.h"

#include <algorithm>

#include "base/FieldText.h"
#include "base/Text.h"

namespace corvelle {

void GeneratedMenu::CopySource(int last) {
  for (; nextSource_ <= std::min(last, SourceCount()); ++nextSource_) {
    MenuRecord record = source_[static_cast<std::size_t>(nextSource_) - 1];
    record.FTitle = JoinTitle(StripAtNull(record.FTitle), nextSource_, ansi_);
    Add(record);
  }
}

void GeneratedMenu::BeginItem(int record) {
  CopySource(record - 1);
  nextSource_ = std::max(nextSource_, record + 1);
}

bool GeneratedMenu::Takes(const std::string& command) const {
  return !IsFull() && EncodeText(command, ansi_).size() <= kNameWidth;
}

bool GeneratedMenu::AddEntry(int record, const std::string& title, const std::string& icon,
                             const std::string& command) {
  if (!Takes(command)) return false;
  Add({JoinTitle(title, kGeneratedBase + record, ansi_), icon, command});
  return true;
}

void GeneratedMenu::AddRule() { Add({"", std::string(kSeparatorIcon), ""}); }

void GeneratedMenu::Add(const MenuRecord& record) {
  if (IsFull()) return;
  bytes_ += FormatRecord(record, ansi_);
  ++count_;
}

}  // namespace corvelle
