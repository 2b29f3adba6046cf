#include "launch/BuiltInTempFiles.h"

#include <string>
#include <vector>

#include "base/Text.h"
#include "core/Program.h"
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

int Say(Program& program, std::string_view text, unsigned flags) {
  return program.Messages.Say(program.Ports.ToolbarWindow(), text, flags | msgbox::OnTop);
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
  explicit Progress(Program& program) : program_(program) {}
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress() {
    if (shown_) program_.Ports.Startup->UnloadWindow();
  }

  void Step() {
    StartupPort* window = program_.Ports.Startup;
    if (window == nullptr) return;
    if (shown_) {
      window->AddDot();
    } else {
      window->ShowProgress(kProgressText, program_.Paths.IconsPath + std::string(kProgressPicture));
    }
    shown_ = true;
  }

 private:
  Program& program_;
  bool shown_ = false;
};

/// How many files went.
int DeleteTemporary(Program& program, const std::string& folder,
                    const std::vector<FileEntry>& entries) {
  Progress progress(program);
  int deleted = 0;
  for (const FileEntry& entry : entries) {
    // A folder is no file to delete, nor is a link to one, behind which the files are not
    // temporary.
    if (entry.IsFolder || !IsTemporaryName(entry.Name)) continue;
    if (!Delete(program.Services.Files, folder + entry.Name, entry.ReadOnly)) continue;
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

void ClearTempFolder(Program& program) {
  if (Say(program, kQuestion, msgbox::YesNo) != msgbox::AnswerYes) return;
  const auto path = program.Services.FileOps.TempPath();
  if (!path) {
    Say(program, kNothingDeletedText, msgbox::IconStop);
    return;
  }
  const std::string folder = EnsureBackslash(*path);
  const auto entries = program.Services.Files.List(folder, "*.*");
  if (!entries) {
    Say(program, kNothingDeletedText, msgbox::IconStop);
    return;
  }
  const int deleted = DeleteTemporary(program, folder, *entries);
  Say(program, std::to_string(deleted) + std::string(kReportText), msgbox::Ok);
}

}  // namespace corvelle
