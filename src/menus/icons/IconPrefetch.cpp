#include "menus/icons/IconPrefetch.h"

#include <algorithm>
#include <utility>
#include <variant>
#include <vector>

#include "base/Text.h"
#include "core/GuardFlags.h"
#include "core/ProgramPaths.h"
#include "menus/icons/IconWalk.h"
#include "menus/icons/MenuIcons.h"
#include "platform/FileSystem.h"

namespace corvelle {

namespace {

/// Between two files: what the user does comes first.
constexpr int kPause = 10;  // milliseconds

}  // namespace

IconPrefetch::IconPrefetch(const PrefetchSources& from, MenuIcons& icons)
    : from_(from), icons_(icons), timer_(from.Windows) {
  timer_.Tick = [this] { Step(); };
}

void IconPrefetch::InitIcons() {
  Stop();
  folders_ = std::make_unique<FolderQuestions>(
      from_.Answers, from_.Windows,
      [this] {
        waiting_ = 0;
        GoOn(kPause);
      },
      desk::Urgency::Ahead);
  GoOn(kFirstPause);
}

void IconPrefetch::Stop() {
  timer_.SetEnabled(false);
  folders_.reset();
  files_.clear();
  waiting_ = 0;
  listed_ = false;
}

void IconPrefetch::GoOn(int milliseconds) {
  timer_.SetInterval(milliseconds);
  timer_.SetEnabled(true);
}

void IconPrefetch::Step() {
  timer_.SetEnabled(false);
  if (from_.Guards.MenuBuilding) {
    GoOn(kPause);
    return;
  }
  if (!std::exchange(listed_, true)) ListFiles();
  if (files_.empty()) folders_.reset();
  if (waiting_ >= files_.size()) return;
  std::string file = std::move(files_.front());
  files_.pop_front();
  if (!LoadIconsOf(file)) {
    files_.push_back(std::move(file));
    ++waiting_;
  }
  GoOn(kPause);
}

void IconPrefetch::ListFiles() {
  FileSystem& files = from_.Files;
  icons_.Fetch(from_.Paths.ShippedFile("corvelle.exe"));
  // A folder that cannot be listed has no icons to fetch.
  const auto menus = files.List(from_.Paths.MenusPath, "*.mnu");
  if (menus) {
    for (const FileEntry& entry : *menus) files_.push_back(from_.Paths.MenusPath + entry.Name);
  }
  const auto links = files.List(from_.Paths.ShellLinkPath, "*.lnk");
  if (links) {
    for (const FileEntry& entry : *links) files_.push_back(from_.Paths.ShellLinkPath + entry.Name);
  }
}

bool IconPrefetch::LoadIconsOf(const std::string& menuFile) {
  if (EndsWithNoCase(menuFile, ".lnk")) {
    icons_.Fetch(menuFile);
    return true;
  }
  bool known = true;
  const IconTexts texts = IconTextsOf(
      from_.Files, from_.Ansi, menuFile,
      [&](const std::string& folder, const std::string& pattern) {
        const FolderQuestions::Known& answer =
            folders_->Get({.Kind = LookupKind::FolderEntries, .Path = folder, .Pattern = pattern});
        if (answer.State == FolderState::Reading || answer.State == FolderState::BeingRead)
          known = false;
        const auto* const entries = std::get_if<std::vector<FileEntry>>(&answer.Value);
        return entries != nullptr ? *entries : std::vector<FileEntry>{};
      });
  if (!known) return false;
  icons_.Fetch(texts.Button);
  for (const std::string& text : texts.Items) icons_.Fetch(text);
  return true;
}

}  // namespace corvelle
