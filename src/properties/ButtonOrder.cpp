#include "properties/ButtonOrder.h"

#include <algorithm>
#include <utility>

#include "base/FieldText.h"
#include "base/Text.h"
#include "core/RecordEdits.h"

namespace corvelle {

namespace {

constexpr std::string_view kHidden = "/h";

}  // namespace

std::string NodeTag(std::string_view path, bool shown) {
  return std::string(path) + '\0' + std::string(shown ? std::string_view() : kHidden);
}

std::string PathOfTag(std::string_view tag) { return std::string(tag.substr(0, tag.find('\0'))); }

bool IsShownByTag(std::string_view tag) {
  const std::size_t end = tag.find('\0');
  return end == std::string_view::npos || !IsHiddenFlag(tag.substr(end + 1));
}

ButtonNode MakeButtonNode(std::string_view path, std::string_view stored, const CodePage& ansi) {
  const MenuRecord record = ParseRecord(stored, ansi);
  const bool shown = !IsHiddenFlag(record.FName);
  return {.Key = {},
          .Tag = NodeTag(path, shown),
          .Title = record.FTitle,
          .Icon = record.FIcon,
          .Name = record.FName,
          .Stored = std::string(stored),
          .Checked = shown};
}

std::string NameFor(std::string_view name, bool shown) {
  if (!shown) return std::string(kHidden);
  return IsHiddenFlag(name) ? std::string() : std::string(name);
}

std::string RecordFor(const ButtonNode& node, const CodePage& ansi) {
  const std::string name = NameFor(node.Name, IsShownByTag(node.Tag));
  std::string record = node.Stored;
  record.resize(kRecordLength, ' ');
  // The same text can be stored in more than one way.
  if (name == node.Name) return record;
  return record.replace(kTitleWidth + kIconWidth, kNameWidth, EncodeField(name, kNameWidth, ansi));
}

bool LosesCommand(const ButtonNode& node) {
  return !node.Checked && !node.Name.empty() && !IsHiddenFlag(node.Name);
}

std::string LossText(const ButtonNode& node) {
  return "Apply hides \"" + node.Title + "\" and removes its command:";
}

std::size_t ButtonOrder::Find(std::string_view key) const noexcept {
  const auto found = std::find_if(nodes_.begin(), nodes_.end(), [key](const ButtonNode& node) {
    return EqualNoCase(node.Key, key);
  });
  return found != nodes_.end() ? static_cast<std::size_t>(found - nodes_.begin()) : kNone;
}

void ButtonOrder::Clear() { nodes_.clear(); }

void ButtonOrder::Add(ButtonNode node) {
  node.Key = "B" + std::to_string(++NextMenuNum);
  nodes_.push_back(std::move(node));
}

std::size_t ButtonOrder::MoveTo(std::size_t from, std::size_t to) {
  CheckNodes();
  ButtonNode node = std::move(nodes_[from]);
  nodes_.erase(nodes_.begin() + static_cast<std::ptrdiff_t>(from));
  node.Key = "B" + std::to_string(++NextMenuNum);
  nodes_.insert(nodes_.begin() + static_cast<std::ptrdiff_t>(to), std::move(node));
  return to;
}

std::size_t ButtonOrder::Up(std::size_t at) {
  if (at >= nodes_.size() || at == 0) return kNone;
  return MoveTo(at, at - 1);
}

std::size_t ButtonOrder::Down(std::size_t at) {
  if (at >= nodes_.size() || at + 1 == nodes_.size()) return kNone;
  return MoveTo(at, at + 1);
}

std::size_t ButtonOrder::Drop(std::size_t from, std::size_t target) {
  if (from >= nodes_.size() || target >= nodes_.size() || from == target) return kNone;
  return MoveTo(from, target);
}

void ButtonOrder::SetChecked(std::size_t at, bool checked) {
  if (at < nodes_.size()) nodes_[at].Checked = checked;
}

void ButtonOrder::CheckNodes() {
  for (ButtonNode& node : nodes_) node.Tag = NodeTag(PathOfTag(node.Tag), node.Checked);
}

std::size_t ButtonOrder::FindPath(std::string_view path) const noexcept {
  const auto found = std::find_if(nodes_.begin(), nodes_.end(), [path](const ButtonNode& node) {
    return EqualNoCase(PathOfTag(node.Tag), path);
  });
  return found != nodes_.end() ? static_cast<std::size_t>(found - nodes_.begin()) : kNone;
}

std::string ButtonOrder::KeyOnStrip(std::string_view key, std::size_t at) const {
  if (at >= nodes_.size() || (!IsButtonTag(key) && !IsMenuTag(key))) return std::string(key);
  // A hidden button has no number, and number 0 names no button.
  if (!nodes_[at].Checked) return std::string(key.substr(0, 1)) + "0";
  const auto shown = std::count_if(nodes_.begin(), nodes_.begin() + static_cast<std::ptrdiff_t>(at),
                                   [](const ButtonNode& node) { return node.Checked; });
  return std::string(key.substr(0, 1)) + std::to_string(shown + 2);
}

void ButtonOrder::SetRecord(std::size_t at, std::string_view stored, const CodePage& ansi) {
  if (at >= nodes_.size()) return;
  const bool checked = nodes_[at].Checked;
  SetFile(at, PathOfTag(nodes_[at].Tag), stored, ansi);
  nodes_[at].Checked = checked;
}

void ButtonOrder::SetFile(std::size_t at, std::string_view path, std::string_view stored,
                          const CodePage& ansi) {
  if (at >= nodes_.size()) return;
  ButtonNode read = MakeButtonNode(path, stored, ansi);
  read.Key = nodes_[at].Key;
  nodes_[at] = std::move(read);
}

}  // namespace corvelle
