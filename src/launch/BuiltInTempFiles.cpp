#include "launch/BuiltInTempFiles.h"

#include <string>
#include <vector>

#include "base/Text.h"
#include "core/LaunchParts.h"
#include "core/MessageBoxes.h"
#include "core/ProgramPaths.h"
#include "core/WindowPorts.h"
#include "platform/FileSystem.h"
#include "platform/ShellFiles.h"

namespace corvelle {

namespace {

namespace msgbox = forms::msgbox;

constexpr std::string_view kQuestion =
    "Quit any running application before deleting files from the Temp folder. "
    "Not doing so may lead to undesirable result. "
    "\r\n\r\n"
    "Continue ?";
constexpr std::string_view kNothingDeletedText =
    "An error occured while trying to delete files the Temp Folder. No file has been deleted.";
constexpr std::string_view kReportText =
    " Files have been deleted. Files in-use and non-temporary files have been skipped.";
constexpr std::string_view kProgressText = "Deleting ";
constexpr std::string_view kProgressPicture = "delfile.ico";
constexpr std::string_view kTemporaryEnd = ".tmp";
constexpr int kFilesPerStep = 10;

int Say(const TempFolderParts& with, std::string_view text, unsigned flags) {
  return with.Launch.Messages.Say(with.Launch.Ports.ToolbarWindow(), text, flags | msgbox::OnTop);
}

/// False when the file stays, for whatever reason: another program may hold it, or may have deleted
/// it first.
bool Delete(FileSystem& files, const std::string& path, bool readOnly) {
  // A mark that cannot be taken off is what the deletion fails on.
  if (readOnly) static_cast<void>(files.ClearAttributes(path));
  return files.Remove(path).HasValue();
}

/// The window that counts while files go; it comes with the first step.
class Progress {
 public:
  explicit Progress(const TempFolderParts& with) : with_(with) {}
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress() {
    if (shown_) with_.Launch.Ports.Startup->UnloadWindow();
  }

  void Step() {
    StartupPort* window = with_.Launch.Ports.Startup;
    if (window == nullptr) return;
    if (shown_) {
      window->AddDot();
    } else {
      window->ShowProgress(kProgressText, with_.Paths.IconsPath + std::string(kProgressPicture));
    }
    shown_ = true;
  }

 private:
  const TempFolderParts& with_;
  bool shown_ = false;
};

/// How many files went.
int DeleteTemporary(const TempFolderParts& with, const std::string& folder,
                    const std::vector<FileEntry>& entries) {
  Progress progress(with);
  int deleted = 0;
  for (const FileEntry& entry : entries) {
    // A folder is no file to delete, nor is a link to one, behind which the files are not
    // temporary.
    if (entry.IsFolder || !IsTemporaryName(entry.Name)) continue;
    if (!Delete(with.Files, folder + entry.Name, entry.ReadOnly)) continue;
    ++deleted;
    if (ShowsProgress(deleted)) progress.Step();
  }
  return deleted;
}

}  // namespace

bool IsTemporaryName(std::string_view name) {
  const std::string trimmed = StripAtNull(name);
  if (trimmed.empty()) return false;
  return trimmed.find('.') == std::string::npos || EndsWithNoCase(trimmed, kTemporaryEnd);
}

bool ShowsProgress(int deleted) noexcept { return deleted > 0 && deleted % kFilesPerStep == 0; }

void ClearTempFolder(const TempFolderParts& with) {
  if (Say(with, kQuestion, msgbox::YesNo) != msgbox::AnswerYes) return;
  const auto path = with.FileOps.TempPath();
  if (!path) {
    Say(with, kNothingDeletedText, msgbox::IconStop);
    return;
  }
  const std::string folder = EnsureBackslash(*path);
  const auto entries = with.Files.List(folder, "*.*");
  if (!entries) {
    Say(with, kNothingDeletedText, msgbox::IconStop);
    return;
  }
  const int deleted = DeleteTemporary(with, folder, *entries);
  Say(with, std::to_string(deleted) + std::string(kReportText), msgbox::Ok);
}

}  // namespace corvelle
