#include "core/MenuRecord.h"

#include <algorithm>

#include "base/FieldText.h"
#include "base/Numbers.h"
#include "base/Text.h"

namespace corvelle {

namespace {

std::string_view Part(std::string_view bytes, std::size_t from, std::size_t width) noexcept {
  return from < bytes.size() ? bytes.substr(from, width) : std::string_view();
}

}  // namespace

MenuRecord ParseRecord(std::string_view bytes, const CodePage& ansi) {
  return {DecodeField(Part(bytes, 0, kTitleWidth), ansi),
          DecodeField(Part(bytes, kTitleWidth, kIconWidth), ansi),
          DecodeField(Part(bytes, kTitleWidth + kIconWidth, kNameWidth), ansi)};
}

std::string FormatRecord(const MenuRecord& record, const CodePage& ansi) {
  return EncodeField(record.FTitle, kTitleWidth, ansi) +
         EncodeField(record.FIcon, kIconWidth, ansi) + EncodeField(record.FName, kNameWidth, ansi);
}

int RecordCount(std::uint64_t length) noexcept {
  const std::uint64_t whole = length / kRecordLength;
  if (whole >= static_cast<std::uint64_t>(kMaxRecords)) return kMaxRecords;
  return RoundToInt(static_cast<double>(length) / static_cast<double>(kRecordLength));
}

bool IsSeparatorIcon(std::string_view icon) noexcept {
  return EqualNoCase(icon, kSeparatorIcon) || EqualNoCase(icon, kBreakerIcon);
}

bool IsHiddenFlag(std::string_view name) { return EqualNoCase(RemoveBlanks(name), "/h"); }

bool IsFolderItem(std::string_view name) noexcept {
  return name.find('*') != std::string_view::npos;
}

bool IsSpecialFolder(std::string_view name) noexcept {
  return StartsWithNoCase(name, kSpecialFolderStart) && name.find('\\') == std::string_view::npos;
}

std::string FolderOptions(std::string_view name) {
  const std::size_t slash = name.find('/');
  return slash == std::string_view::npos ? std::string() : UpperCase(name.substr(slash + 1));
}

std::string FolderWithoutOptions(std::string_view name) {
  return Trim(name.substr(0, name.find('/')));
}

bool IsClosedFolder(std::string_view name) {
  return FolderOptions(name).find('X') != std::string::npos;
}

std::string CloseFolderText(std::string_view name) {
  const bool hasOptions = name.find('/') != std::string_view::npos;
  return std::string(name) + (hasOptions ? " X" : " /X");
}

std::string OpenFolderText(std::string_view name) {
  const std::size_t slash = name.find('/');
  if (slash == std::string_view::npos) return Trim(name);
  std::string options(name.substr(slash));
  std::erase_if(options, [](char c) { return c == 'X' || c == 'x'; });
  if (options == "/") options.clear();
  return Trim(std::string(name.substr(0, slash)) + options);
}

NumberedTitle SplitTitle(std::string_view title, int place) {
  const std::size_t mark = title.find('\0');
  if (mark == std::string_view::npos) return {Trim(title), place};
  return {Trim(title.substr(0, mark)), ParseNumber(title.substr(mark + 1)).value_or(0)};
}

std::string JoinTitle(std::string_view title, int recordNumber, const CodePage& ansi) {
  const std::string number = FormatNumber(recordNumber, 1);
  const std::size_t room = kTitleWidth - 1 - number.size();
  std::string joined = DecodeField(EncodeField(title, room, ansi), ansi);
  joined.push_back('\0');
  return joined + number;
}

MenuRecord NewButtonRecord() { return {"New Button", std::string(kNewButtonIcon), ""}; }

MenuRecord NewItemRecord() { return {"New Menu Item", std::string(kNewItemIcon), ""}; }

MenuRecord NewSeparatorRecord() { return {"Separator", std::string(kSeparatorIcon), ""}; }

std::vector<MenuRecord> MainMenuRecords() {
  const std::string line(kSeparatorIcon);
  return {
      {"", "", ""},
      {"Customize...", "imgIcons cust", ""},
      {"Refresh All", "", ""},
      {"Large Icons", "xCircle", ""},
      {"", line, ""},
      {"Auto Hide", "xCircle", ""},
      {"Not On Top", "xCircle", ""},
      {"", line, ""},
      {"Help Topics", "imgIcons help", ""},
      {"About...", "", ""},
      {"", line, ""},
      {"Restore", "", ""},
      {"Maximize", "", ""},
      {"Minimize", "", ""},
      {"", line, ""},
      {"Exit", "", ""},
  };
}

std::string MenuFileName(int number) { return "BMENU" + FormatNumber(number, 3) + ".MNU"; }

std::string SingleFileName(int number) { return "BMENU" + FormatNumber(number, 3) + ".BTN"; }

}  // namespace corvelle
