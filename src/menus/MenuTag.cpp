#include "menus/MenuTag.h"

#include "base/Text.h"

namespace corvelle {
namespace {

constexpr char kAfterSeparator = 's';
constexpr char kPlain = 'n';

struct TagParts {
  std::string_view Kind;
  std::string_view Command;
  std::string_view Icon;
  std::string_view Number;
  std::string_view Name;
};

/// Takes what stands before the first NUL off the text, and the NUL with it.
std::string_view TakePart(std::string_view& text) noexcept {
  const std::size_t end = text.find('\0');
  const std::string_view part = text.substr(0, end);
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  return part;
}

TagParts SplitTag(std::string_view tag) noexcept {
  TagParts parts;
  parts.Command = TakePart(tag);
  if (!parts.Command.empty()) {
    parts.Kind = parts.Command.substr(0, 1);
    parts.Command.remove_prefix(1);
  }
  parts.Icon = TakePart(tag);
  parts.Number = TakePart(tag);
  parts.Name = tag;
  return parts;
}

}  // namespace

std::string JoinTag(const MenuTag& tag) {
  std::string text(1, tag.FollowsSeparator ? kAfterSeparator : kPlain);
  text += StripAtNull(tag.Command);
  text += '\0';
  text += StripAtNull(tag.Icon);
  text += '\0';
  text += std::to_string(tag.RecordNumber);
  if (!tag.Name.empty()) {
    text += '\0';
    text += tag.Name;
  }
  return text;
}

std::string TagCommand(std::string_view tag) { return std::string(SplitTag(tag).Command); }

std::string TagIcon(std::string_view tag) { return std::string(SplitTag(tag).Icon); }

int TagRecordNumber(std::string_view tag) { return ParseNumber(SplitTag(tag).Number).value_or(0); }

std::string TagName(std::string_view tag) { return std::string(SplitTag(tag).Name); }

bool TagFollowsSeparator(std::string_view tag) noexcept {
  return SplitTag(tag).Kind.starts_with(kAfterSeparator);
}

}  // namespace corvelle
