#include "sim/SimShellIcons.h"

#include <utility>

#include "base/Text.h"

namespace corvelle::sim {

namespace {

/// What all files of a kind share: the extension with its dot, or a word for folders.
std::string KindOf(std::string_view path, bool folder) {
  if (folder) return "<FOLDER>";
  const std::size_t dot = path.rfind('.');
  const std::size_t slash = path.rfind('\\');
  if (dot == std::string_view::npos || (slash != std::string_view::npos && dot < slash)) return ".";
  return UpperCase(path.substr(dot));
}

std::string NameOf(std::string_view path) {
  const std::string whole = DropBackslash(path);
  const std::size_t slash = whole.rfind('\\');
  return slash == std::string::npos ? whole : whole.substr(slash + 1);
}

Rgb Half(Rgb colour, Rgb with) noexcept {
  return ((colour >> 1) & 0x007F7F7FU) + ((with >> 1) & 0x007F7F7FU);
}

}  // namespace

void SimShellIcons::SetIndex(std::string_view pathOrExtension, int index) {
  indexes_[UpperCase(pathOrExtension)] = index;
}

void SimShellIcons::SetTypeName(std::string_view extension, std::string name) {
  typeNames_[UpperCase(extension)] = std::move(name);
}

void SimShellIcons::SetIconCount(std::string_view file, int count) {
  iconCounts_[UpperCase(file)] = count;
}

void SimShellIcons::AddResource(std::string_view file, int number) {
  resources_.emplace(UpperCase(file), number);
}

Rgb SimShellIcons::ColourOf(int index) noexcept {
  // Blue is never 0xC0 or 0, so that no icon has the colour of a face, a line or a text.
  return 0x00400000U | ((static_cast<Rgb>(index) * 37U + 1U) & 0xFFFFU);
}

Rgb SimShellIcons::ColourOf(std::string_view file, int index) {
  Rgb sum = static_cast<Rgb>(index) * 101U + 7U;
  for (const char c : UpperCase(file)) sum = sum * 31U + static_cast<unsigned char>(c);
  return 0x00600000U | (sum & 0xFFFFU);
}

IconPixels SimShellIcons::Square(Rgb colour, int size) {
  const auto count = static_cast<std::size_t>(size) * static_cast<std::size_t>(size);
  return {size, size, std::vector<std::uint32_t>(count, 0xFF000000U | colour)};
}

bool SimShellIcons::Shows(std::string_view path) const {
  if (path.empty() || path.find_first_of("<>|?*\"") != std::string_view::npos) return false;
  return files_.Has(path);
}

std::optional<ShellFileInfo> SimShellIcons::FileInfo(std::string_view path, IconList list) {
  TellCall("FileInfo", path);
  return LookUp(path, list);
}

std::optional<ShellFileInfo> SimShellIcons::LookUp(std::string_view path, IconList list) {
  ++lookups_;
  asked_[list].emplace_back(path);
  if (action_) action_();
  return Look(path);
}

std::optional<ShellFileInfo> SimShellIcons::Look(std::string_view path) {
  if (!Shows(path)) return std::nullopt;
  const bool folder = !files_.Get(path).has_value();
  const std::string kind = KindOf(path, folder);
  ShellFileInfo info{.DisplayName = NameOf(path), .TypeName = kind};
  if (const auto name = typeNames_.find(kind); name != typeNames_.end())
    info.TypeName = name->second;
  auto found = indexes_.find(UpperCase(path));
  if (found == indexes_.end()) found = indexes_.find(kind);
  if (found == indexes_.end()) found = indexes_.emplace(kind, nextIndex_++).first;
  info.SystemIndex = found->second;
  return info;
}

void SimShellIcons::SetDisplayName(std::string_view path, std::string_view name) {
  displayNames_[UpperCase(path)] = name;
}

std::optional<std::string> SimShellIcons::DisplayName(std::string_view path) {
  TellCall("DisplayName", path);
  if (!Shows(path)) return std::nullopt;
  const auto given = displayNames_.find(UpperCase(path));
  return given != displayNames_.end() ? given->second : NameOf(path);
}

std::optional<IconPixels> SimShellIcons::PixelsOfFile(std::string_view path, IconList list) {
  TellCall("PixelsOfFile", path);
  const auto info = LookUp(path, list);
  if (!info) return std::nullopt;
  return Square(ColourOf(info->SystemIndex), SizeOf(list));
}

std::optional<IconPixels> SimShellIcons::PixelsInFile(std::string_view file, int index, int size) {
  TellCall("PixelsInFile", file);
  if (size <= 0 || !HoldsIcon(file, index)) return std::nullopt;
  return Square(ColourOf(file, index), size);
}

bool SimShellIcons::HoldsIcon(std::string_view file, int index) const {
  const std::string key = UpperCase(file);
  const auto count = iconCounts_.find(key);
  return index < 0 ? resources_.contains({key, -index})
                   : count != iconCounts_.end() && index < count->second;
}

int SimShellIcons::SizeOf(IconList list) const noexcept {
  if (list == IconList::Small) return kSmallIconSize;
  return large_ > 0 ? large_ : 32;
}

int SimShellIcons::IconWidth(IconList list) { return list == IconList::Small ? 16 : large_; }

bool SimShellIcons::DrawSystemIcon(Canvas& canvas, IconList list, int index, PixelPoint at,
                                   IconStyle style) {
  ++draws_;
  if (const auto action = drawAction_) action();
  if (index < 0) return false;
  const int size = SizeOf(list);
  const Rgb colour = ColourOf(index);
  const bool blended = style == IconStyle::Blend25;
  canvas.FillBox(RectAt(at, {size, size}), blended ? Half(colour, 0x00800000) : colour);
  return true;
}

bool SimShellIcons::DrawFileIcon(Canvas& canvas, std::string_view file, int index, PixelPoint at,
                                 int size) {
  TellCall("DrawFileIcon", file);
  ++draws_;
  if (!HoldsIcon(file, index)) return false;
  canvas.FillBox(RectAt(at, {size, size}), ColourOf(file, index));
  return true;
}

int SimShellIcons::IconCount(std::string_view file) {
  TellCall("IconCount", file);
  const auto count = iconCounts_.find(UpperCase(file));
  return count == iconCounts_.end() ? 0 : count->second;
}

}  // namespace corvelle::sim
