#include "menus/icons/MenuIcons.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "core/MenuRecord.h"
#include "core/Program.h"
#include "icons/Glyphs.h"
#include "icons/IconResolution.h"
#include "platform/ShellIcons.h"

namespace corvelle {

namespace {

constexpr int kFirstRoom = 16;
/// How often an icon is drawn whose colours change each time meanwhile.
constexpr int kMostTries = 3;
/// Under which the fallback icon is kept; no icon text is like it.
const std::string kFallbackKey(1, '\0');
/// For how long a disk that has answered is not asked again. Milliseconds.
constexpr std::int64_t kReachableFor = 10'000;

/// "D:\\", or the share of a path on a server; empty for a text that is no full path.
std::string RootOfPath(std::string_view path) {
  if (path.size() > 2 && path[1] == ':' && path[2] == '\\') return std::string(path.substr(0, 3));
  if (!path.starts_with("\\\\")) return {};
  const std::size_t share = path.find('\\', 2);
  if (share == std::string_view::npos) return std::string(path);
  return std::string(path.substr(0, path.find('\\', share + 1)));
}

}  // namespace

MenuIcons::MenuIcons(Program& program) : program_(program), owner_(program.Answers.NewOwner()) {}

MenuIcons::~MenuIcons() { program_.Answers.Drop(owner_); }

void MenuIcons::ResetPicIcons() {
  ++resets_;
  colIconFile_.clear();
  colIconIndex_.clear();
  fetched_.clear();
  picIcons_.reset();
  cells_ = 0;
  room_ = 0;
}

IconForm MenuIcons::Classify(std::string_view text, IconCaller caller) const {
  return ClassifyIcon(text,
                      {.AppPath = program_.Paths.AppPath,
                       .IconsPath = program_.Paths.IconsPath,
                       .WebLinkIcon = program_.Icons.WebLinkIcon},
                      caller);
}

void MenuIcons::DrawMenuIcon(Canvas& canvas, PixelPoint at, std::string_view iconText) {
  // Nothing of an earlier icon may shine through.
  canvas.FillBox(RectAt(at, {kCell, kCell}),
                 forms::Resolve(program_.Windows, forms::color::ButtonFace));
  const std::string text = Trim(iconText);
  const IconForm form = Classify(text);
  if (form.Kind == IconKind::BuiltIn) {
    DrawGlyph(canvas, program_.Windows, form.Text, at);
    return;
  }
  const int cell = LoadFileIcon(text, form);
  if (cell == kNoCell) return;
  canvas.DrawCanvas(*picIcons_, RectAt({cell * kCell, 0}, {kCell, kCell}), at);
}

void MenuIcons::LoadSmallIcon(std::string_view iconText) {
  const std::string text = Trim(iconText);
  LoadFileIcon(text, Classify(text));
}

void MenuIcons::FetchButtonIcon(std::string_view iconText) {
  if (IconListOf(program_.Icons.IconSize) != IconList::Large) return;
  const std::string text = Trim(iconText);
  const IconForm form = Classify(text, IconCaller::Toolbar);
  if (form.Kind != IconKind::File || !fetched_.insert(LowerCase(text)).second) return;
  // The shell keeps what it finds; a file that is gone has no icon.
  static_cast<void>(program_.Services.Icons.FileInfo(form.Text, IconList::Large));
}

int MenuIcons::LoadFileIcon(const std::string& text, const IconForm& form) {
  if (form.Kind == IconKind::Empty || form.Kind == IconKind::BuiltIn || IsSeparatorIcon(text)) {
    return kNoCell;
  }
  std::string key = LowerCase(text);
  const auto known = colIconFile_.find(key);
  if (known != colIconFile_.end()) return known->second;
  if (form.Kind == IconKind::File && !IsReachable(form.Text)) {
    stoodIn_ = true;
    return LoadFallback();
  }
  const int cell = LoadFile(text, form);
  colIconFile_.emplace(std::move(key), cell);
  return cell;
}

bool MenuIcons::IsReachable(std::string_view path) {
  const std::string root = RootOfPath(path);
  // The disk on which the program itself lies answers.
  if (root.empty() || EqualNoCase(root, RootOfPath(program_.Paths.AppPath))) return true;
  const desk::Request request{.Question = {.Kind = LookupKind::IsThere, .Path = root},
                              .Owner = owner_,
                              .MaxAge = kReachableFor};
  const auto reply = program_.Answers.AskAtOnce(request, {.Ended = [this](const desk::Reply& r) {
                                                  if (r.How == desk::End::NotAvailable) return;
                                                  if (const auto arrived = Arrived) arrived();
                                                }});
  return reply && reply->How != desk::End::NotAvailable;
}

int MenuIcons::LoadFile(const std::string& text, const IconForm& form) {
  if (form.Kind == IconKind::SystemIndex) return LoadSystemIcon(form.Index);
  if (form.Kind == IconKind::File && (!form.OwnIcon || program_.Icons.ShellDrawsIcons)) {
    const auto info = program_.Services.Icons.FileInfo(form.Text, IconList::Small);
    return info ? LoadSystemIcon(info->SystemIndex) : LoadFallback();
  }
  return AddCell([&](Canvas& strip, PixelPoint at) {
    return ResolveAndDraw(program_, strip, text, at, kCell, IconCaller::Menu);
  });
}

int MenuIcons::LoadSystemIcon(int index) {
  const std::string key = "i" + std::to_string(index);
  const auto known = colIconIndex_.find(key);
  if (known != colIconIndex_.end()) return known->second;
  const int cell = AddCell([&](Canvas& strip, PixelPoint at) {
    return program_.Services.Icons.DrawSystemIcon(strip, IconList::Small, index, at,
                                                  IconStyle::Normal);
  });
  colIconIndex_.emplace(key, cell);
  return cell;
}

int MenuIcons::LoadFallback() {
  const auto known = colIconFile_.find(kFallbackKey);
  if (known != colIconFile_.end()) return known->second;
  const int cell = AddCell(
      [&](Canvas& strip, PixelPoint at) { return DrawFallbackIcon(program_, strip, at, kCell); });
  colIconFile_.emplace(kFallbackKey, cell);
  return cell;
}

// The shell may let messages in while it is asked, and they may empty the strip or add to it: the
// icon is drawn aside, and comes into the strip when it is done.
int MenuIcons::AddCell(const std::function<bool(Canvas&, PixelPoint)>& draw) {
  const PixelRect whole{0, 0, kCell, kCell};
  const std::unique_ptr<Canvas> icon = program_.Windows.CreateCanvas(whole.Size());
  unsigned resets = resets_;
  for (int tries = 0; tries < kMostTries; ++tries) {
    resets = resets_;
    icon->FillBox(whole, forms::Resolve(program_.Windows, forms::color::ButtonFace));
    // What has no icon at all keeps its empty cell, and is not asked for again.
    draw(*icon, {0, 0});
    // After a reset the ground may have another colour.
    if (resets == resets_) break;
  }
  MakeRoom();
  picIcons_->DrawCanvas(*icon, whole, {cells_ * kCell, 0});
  return cells_++;
}

void MenuIcons::MakeRoom() {
  if (cells_ < room_) return;
  const int room = std::max(kFirstRoom, 2 * room_);
  std::unique_ptr<Canvas> wider = program_.Windows.CreateCanvas({room * kCell, kCell});
  if (picIcons_) wider->DrawCanvas(*picIcons_, {0, 0, cells_ * kCell, kCell}, {0, 0});
  picIcons_ = std::move(wider);
  room_ = room;
}

}  // namespace corvelle
