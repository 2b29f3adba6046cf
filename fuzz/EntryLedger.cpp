#include "EntryLedger.h"

#include <algorithm>

#include "base/CodePage.h"
#include "base/Text.h"
#include "core/MenuRecord.h"

namespace corvelle::fuzz {

bool HoldsEntries(std::string_view name) {
  const std::string capitals = UpperCase(name);
  return capitals.ends_with(".MNU") || capitals.ends_with(".BTN");
}

namespace {

bool IsBlank(const MenuRecord& record) {
  return Trim(record.FTitle + record.FIcon + record.FName).empty();
}

}  // namespace

EntryLedger::EntryLedger(const sim::SimFiles& files, std::string_view folder) {
  if (!files.Has(folder)) return;
  const Windows1252 ansi;
  for (const std::string& name : files.Names(folder)) {
    if (!HoldsEntries(name)) continue;
    const auto bytes = files.Get(std::string(folder) + name);
    if (!bytes) continue;
    const bool menu = UpperCase(name).ends_with(".MNU");
    for (std::size_t at = 0; at + kRecordLength <= bytes->size(); at += kRecordLength) {
      const MenuRecord record =
          ParseRecord(std::string_view(*bytes).substr(at, kRecordLength), ansi);
      if (at == 0 && menu && IsBlank(record)) {
        ++others_;
      } else {
        Add(record);
      }
    }
  }
}

EntryLedger::EntryLedger(const MenuSet& set, const CodePage& ansi) {
  const auto add = [&](const MenuRecord& record) {
    Add(ParseRecord(FormatRecord(record, ansi), ansi));
  };
  for (const Menu& menu : set.Menus) {
    if (!IsBlank(menu.Head)) add(menu.Head);
    for (const MenuRecord& item : menu.Items) add(item);
  }
  for (const MenuRecord& single : set.Singles) add(single);
}

void EntryLedger::Add(const MenuRecord& record) {
  if (record.FTitle.starts_with(kDamage)) {
    ++others_;
    return;
  }
  // Blanks at the ends are lost on the way through the windows, which is no loss.
  ++entries_[Trim(record.FTitle) + '\n' + Trim(record.FIcon) + '\n' + Trim(record.FName)];
  ++size_;
}

int EntryLedger::Lost(const EntryLedger& before, std::string& first) const {
  int lost = 0;
  for (const auto& [record, count] : before.entries_) {
    const int missing = count - CountOf(record);
    if (missing <= 0) continue;
    if (lost == 0) first = record;
    lost += missing;
  }
  return lost;
}

int EntryLedger::CountOf(const std::string& record) const {
  const auto found = entries_.find(record);
  return found == entries_.end() ? 0 : found->second;
}

EntryLedger EntryLedger::Without(const EntryLedger& other) const {
  EntryLedger rest;
  for (const auto& [record, count] : entries_) {
    const int more = count - other.CountOf(record);
    if (more <= 0) continue;
    rest.entries_[record] = more;
    rest.size_ += more;
  }
  return rest;
}

void EntryLedger::Add(const EntryLedger& other) {
  for (const auto& [record, count] : other.entries_) entries_[record] += count;
  size_ += other.size_;
}

void EntryLedger::Take(const EntryLedger& other) {
  const int others = others_;
  *this = Without(other);
  others_ = others;
}

std::string EntryLedger::First() const { return entries_.empty() ? "" : entries_.begin()->first; }

}  // namespace corvelle::fuzz
