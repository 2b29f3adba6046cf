#include "core/OptionFlags.h"

#include <cstddef>

namespace corvelle {

namespace {

struct EdgeRow {
  std::string_view Code;
  Edge At;
};

constexpr EdgeRow kEdges[] = {
    {"00", Edge::Top},
    {"01", Edge::Bottom},
    {"10", Edge::Left},
    {"11", Edge::Right},
};

constexpr bool IsPosition(int position) noexcept {
  return position >= 1 && position <= OptionFlags::kLength;
}

}  // namespace

OptionFlags::OptionFlags() { flags_.fill('0'); }

OptionFlags OptionFlags::Clean(std::string_view bytes) {
  OptionFlags flags;
  int position = 1;
  for (const char c : bytes.substr(0, kLength)) flags.Set(OptionAt(position++), c);
  return flags;
}

char OptionFlags::At(Option option) const noexcept {
  const int position = PositionOf(option);
  return IsPosition(position) ? flags_[static_cast<std::size_t>(position) - 1] : '0';
}

void OptionFlags::Set(Option option, char value) noexcept {
  const int position = PositionOf(option);
  if (!IsPosition(position)) return;
  flags_[static_cast<std::size_t>(position) - 1] = value == '1' ? '1' : '0';
}

std::string OptionFlags::Text() const { return {flags_.begin(), flags_.end()}; }

FileStatus SaveOptionFlags(FileSystem& files, std::string_view appPath, const OptionFlags& flags) {
  return files.Replace(std::string(appPath) + std::string(kOptionFlagsFileName), flags.Text());
}

OptionFlags FlagsAfterUpgrade() {
  OptionFlags flags;
  for (const Option option :
       {Option::AtEdge, Option::EdgeCodeFirst, Option::EdgeCodeSecond, Option::SystemPopupWithCtrl,
        Option::SmallSingles, Option::LargeIcons, Option::UpgradeDone}) {
    flags.Set(option, true);
  }
  return flags;
}

void ResetHelpTips(OptionFlags& flags) noexcept {
  for (const Option option :
       {Option::IconLibraryTipDone, Option::OtherFilesTipDone, Option::SelectFileTipDone,
        Option::AddFileTipDone, Option::NotOnTopTipDone}) {
    flags.Set(option, false);
  }
}

std::string_view EdgeCode(Edge edge) noexcept {
  for (const EdgeRow& row : kEdges) {
    if (row.At == edge) return row.Code;
  }
  return "00";
}

void ApplyEdgeCode(char atEdge, std::string_view code, EdgePlacement& placement) {
  placement.AppBarRequested = atEdge != '0';
  if (!placement.AppBarRequested) return;
  for (const EdgeRow& row : kEdges) {
    if (row.Code != code) continue;
    placement.ToolbarEdge = row.At;
    if (IsVertical(row.At)) placement.ToolbarVertical = true;
  }
}

void ReadEdgeFlags(const OptionFlags& flags, EdgePlacement& placement) {
  const char code[] = {flags.At(Option::EdgeCodeFirst), flags.At(Option::EdgeCodeSecond)};
  ApplyEdgeCode(flags.At(Option::AtEdge), {code, 2}, placement);
}

void SaveEdgeFlags(OptionFlags& flags, bool atEdge, Edge edge) {
  flags.Set(Option::AtEdge, atEdge);
  if (!atEdge) return;
  const std::string_view code = EdgeCode(edge);
  flags.Set(Option::EdgeCodeFirst, code[0]);
  flags.Set(Option::EdgeCodeSecond, code[1]);
}

void SaveEdgeFlags(OptionFlags& flags, const StripPlacement& strip) {
  SaveEdgeFlags(flags, strip.BelongsToEdge(), strip.ToolbarEdge);
}

}  // namespace corvelle
