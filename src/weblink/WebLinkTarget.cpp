#include "weblink/WebLinkTarget.h"

#include <cstddef>
#include <cstdlib>

#include "base/CodePage.h"
#include "base/FieldText.h"
#include "base/Text.h"
#include "core/MenuFile.h"
#include "core/MenuRecord.h"
#include "core/RecordEdits.h"

namespace corvelle {

namespace {

constexpr char kBetween = '\0';

std::string Joined(std::string_view tag, std::string_view file) {
  return std::string(tag) + kBetween + std::string(file);
}

}  // namespace

std::string LinkTag(std::string_view tag, std::string_view file, std::string_view newSingle) {
  if (IsMenuTag(tag)) return std::string(tag);
  if (!IsSinglesTag(tag)) return Joined(tag, file);
  return file.empty() ? Joined(tag, newSingle) : std::string(tag);
}

WebLinkTarget ParseLinkTag(std::string_view tag) {
  const std::size_t end = tag.find(kBetween);
  const std::string_view name = tag.substr(0, end);
  const std::string file(end == std::string_view::npos ? std::string_view() : tag.substr(end + 1));
  if (IsMenuTag(name)) return {LinkPlace::MenuItem, std::string(name), file};
  if (!IsSinglesTag(name)) return {LinkPlace::MenuEnd, "F" + std::string(name), file};
  return {end == std::string_view::npos ? LinkPlace::SingleRow : LinkPlace::NewSingle, {}, file};
}

std::string LinkTitle(std::string_view title, std::string_view address) {
  std::string given = Trim(title);
  if (!given.empty()) return given;
  constexpr std::string_view kBehindScheme = "://";
  const std::size_t start = address.find(kBehindScheme);
  return Trim(start == std::string_view::npos ? address
                                              : address.substr(start + kBehindScheme.size()));
}

bool FitsRecord(std::string_view address, const CodePage& ansi) {
  return EncodeText(address, ansi).size() <= kNameWidth;
}

int PlaceOfRecord(std::string_view records, std::string_view stored, int number) {
  if (stored.empty()) return number;
  const int count = static_cast<int>(records.size() / kRecordLength);
  int nearest = 0;
  // The first one is the menu's button.
  for (int i = 2; i <= count; ++i) {
    if (StoredRecord(records, i) != stored) continue;
    if (nearest == 0 || std::abs(i - number) < std::abs(nearest - number)) nearest = i;
  }
  return nearest;
}

}  // namespace corvelle
