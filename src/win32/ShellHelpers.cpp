#include "win32/ShellHelpers.h"

#include <utility>
#include <vector>

#include "win32/FileNames.h"
#include "win32/IconToPixels.h"
#include "win32/Wide.h"

namespace corvelle::win32 {

namespace {

constexpr std::size_t kMostHelpers = 4;
constexpr int kMostRestarts = 3;

}  // namespace

ShellHelpers::ShellHelpers(std::string program)
    : program_(std::move(program)),
      closed_(GetFileAttributesW(Wide(program_).c_str()) == INVALID_FILE_ATTRIBUTES) {}

std::optional<LookupAnswer> ShellHelpers::Answer(LookupId id, const Lookup& question) {
  if (!forms::GoesOverWire(question.Kind)) return std::nullopt;
  const std::shared_ptr<Lane> lane = LaneOf(question.Lane);
  if (lane == nullptr) return std::nullopt;
  // Another thread may be at a question of that lane that hangs.
  const std::unique_lock asking(lane->Asking, std::try_to_lock);
  if (!asking || lane->CannotStart) return std::nullopt;
  for (int attempt = 0; attempt < 2 && lane->Deaths <= kMostRestarts; ++attempt) {
    if (!Begin(id, nullptr)) return std::nullopt;
    // What is cancelled meanwhile may break off the start.
    const bool started = lane->Helper.Start();
    std::optional<LookupAnswer> answer;
    if (started && Begin(id, lane)) answer = lane->Helper.Ask(id, question);
    const bool cancelled = End(id);
    if (answer) return answer;
    if (cancelled) return LookupAnswer{.End = LookupEnd::Failed};
    if (!started) {
      lane->CannotStart = true;
      return std::nullopt;
    }
    ++lane->Deaths;
  }
  return AnswerByType(question);
}

void ShellHelpers::Cancel(LookupId id) {
  const std::scoped_lock lock(mutex_);
  const auto found = asking_.find(id);
  if (found == asking_.end()) return;
  cancelled_.insert(id);
  if (found->second != nullptr) found->second->Helper.Kill();
}

void ShellHelpers::Close() {
  const std::scoped_lock lock(mutex_);
  closed_ = true;
  for (const auto& [id, lane] : asking_) cancelled_.insert(id);
  for (const auto& [name, lane] : lanes_) lane->Helper.Kill();
}

std::shared_ptr<ShellHelpers::Lane> ShellHelpers::LaneOf(const std::string& lane) {
  // A lane that hangs is asked again under another mark.
  const std::string name = lane.substr(0, lane.find('#'));
  const std::scoped_lock lock(mutex_);
  if (closed_) return nullptr;
  const auto found = lanes_.find(name);
  if (found != lanes_.end()) return found->second;
  if (lanes_.size() >= kMostHelpers) return nullptr;
  return lanes_.emplace(name, std::make_shared<Lane>(program_)).first->second;
}

bool ShellHelpers::Begin(LookupId id, std::shared_ptr<Lane> lane) {
  const std::scoped_lock lock(mutex_);
  if (closed_ || cancelled_.contains(id)) return false;
  asking_[id] = std::move(lane);
  return true;
}

bool ShellHelpers::End(LookupId id) {
  const std::scoped_lock lock(mutex_);
  asking_.erase(id);
  return cancelled_.erase(id) > 0;
}

LookupAnswer AnswerByType(const Lookup& question) {
  const std::size_t slash = question.Path.rfind('\\');
  const std::string name = question.Path.substr(slash == std::string::npos ? 0 : slash + 1);
  if (!CanNameFile(question.Path) || name.empty()) return {.End = LookupEnd::Failed};
  if (question.Kind == LookupKind::FileName) return {.Value = name};
  if (question.Kind != LookupKind::FileIcon) return {.End = LookupEnd::Failed};
  SHFILEINFOW info{};
  const UINT size = question.List == IconList::Small ? SHGFI_SMALLICON : SHGFI_LARGEICON;
  if (SHGetFileInfoW(Wide(name).c_str(), FILE_ATTRIBUTE_NORMAL, &info, sizeof(info),
                     SHGFI_USEFILEATTRIBUTES | SHGFI_ICON | SHGFI_SHELLICONSIZE | size) == 0) {
    return {.End = LookupEnd::Failed};
  }
  const UniqueIcon icon(info.hIcon);
  auto pixels = PixelsOfIcon(icon.Get(), question.List == IconList::Small ? kSmallIconSize : 0);
  if (!pixels) return {.End = LookupEnd::Failed};
  return {.Value = *std::move(pixels)};
}

}  // namespace corvelle::win32
