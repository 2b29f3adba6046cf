#include "core/OptionFlags.h"

#include "base/Text.h"

namespace corvelle {

namespace {

struct EdgeRow {
  std::string_view Code;
  std::string_view Edge;
  bool Vertical;
};

constexpr EdgeRow kEdges[] = {
    {"00", "TOP", false},
    {"01", "BOTTOM", false},
    {"10", "LEFT", true},
    {"11", "RIGHT", true},
};

}  // namespace

OptionFlags::OptionFlags() { flags_.fill('0'); }

OptionFlags OptionFlags::Clean(std::string_view bytes) {
  OptionFlags flags;
  int position = 1;
  for (const char c : bytes.substr(0, kLength)) flags.Set(position++, c);
  return flags;
}

char OptionFlags::At(int position) const noexcept {
  if (position < 1 || position > kLength) return '0';
  return flags_[static_cast<std::size_t>(position) - 1];
}

void OptionFlags::Set(int position, char value) noexcept {
  if (position < 1 || position > kLength) return;
  flags_[static_cast<std::size_t>(position) - 1] = value == '1' ? '1' : '0';
}

std::string OptionFlags::Text() const { return {flags_.begin(), flags_.end()}; }

FileStatus SaveOptionFlags(FileSystem& files, std::string_view appPath, const OptionFlags& flags) {
  return files.Replace(std::string(appPath) + std::string(kOptionFlagsFileName), flags.Text());
}

OptionFlags FlagsAfterUpgrade() {
  OptionFlags flags;
  for (const int position : {14, 15, 16, 19, 24, 26, 32}) flags.Set(position, '1');
  return flags;
}

void ResetHelpTips(OptionFlags& flags) noexcept {
  for (const int position : {5, 6, 7, 8, 29}) flags.Set(position, '0');
}

std::string EdgeCode(std::string_view toolbarEdge) {
  for (const EdgeRow& row : kEdges) {
    if (EqualNoCase(row.Edge, toolbarEdge)) return std::string(row.Code);
  }
  return "00";
}

void ApplyEdgeCode(char atEdge, std::string_view code, EdgePlacement& placement) {
  placement.AppBarRequested = atEdge != '0';
  if (!placement.AppBarRequested) return;
  for (const EdgeRow& row : kEdges) {
    if (row.Code != code) continue;
    placement.ToolbarEdge = row.Edge;
    if (row.Vertical) placement.ToolbarVertical = true;
  }
}

void ReadEdgeFlags(const OptionFlags& flags, EdgePlacement& placement) {
  const char code[] = {flags.At(15), flags.At(16)};
  ApplyEdgeCode(flags.At(14), {code, 2}, placement);
}

void SaveEdgeFlags(OptionFlags& flags, bool atEdge, std::string_view toolbarEdge) {
  flags.Set(14, atEdge);
  if (!atEdge) return;
  const std::string code = EdgeCode(toolbarEdge);
  flags.Set(15, code[0]);
  flags.Set(16, code[1]);
}

}  // namespace corvelle
