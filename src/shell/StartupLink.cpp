#include "shell/StartupLink.h"

#include "base/Text.h"
#include "core/Program.h"
#include "platform/FileSystem.h"
#include "platform/SystemInfo.h"
#include "shell/FileErrorText.h"
#include "shell/LinkFiles.h"

namespace corvelle {

namespace {

constexpr int kStartupFolder = 7;  // CSIDL_STARTUP
constexpr unsigned kNoteFlags = forms::msgbox::IconInformation;

void Note(Program& program, std::string_view text) {
  program.Messages.Say(program.Ports.ToolbarWindow(), text, kNoteFlags);
}

bool MakeStartupLink(Program& program, std::string_view executable) {
  const std::string link = StartupLinkPath(program);
  return !link.empty() && MakeLink(program.Services.Links, link, executable,
                                   program.Services.System.ApplicationFolder());
}

}  // namespace

std::string StartupLinkPath(Program& program) {
  const std::string folder = GetSpecialFolder(program, kStartupFolder);
  // Without a folder the name alone would lie in the root of some drive.
  return folder.empty() ? std::string() : EnsureBackslash(folder) + "Corvelle.lnk";
}

bool StartupLink::Exists() {
  const std::string link = StartupLinkPath(program_);
  return !link.empty() && program_.Services.Files.FileExists(link);
}

void StartupLink::Remove() {
  const std::string link = StartupLinkPath(program_);
  if (link.empty()) return;
  // A link that stays is written over, or stays as it is.
  static_cast<void>(program_.Services.Files.Remove(link));
}

void StartupLink::Create(std::string_view executable) {
  // The user can make it later from the Options menu, which says what came of it.
  static_cast<void>(MakeStartupLink(program_, executable));
}

void SetAsStartupProgram(Program& program) {
  Note(program, MakeStartupLink(program, program.Paths.ShippedFile("corvelle.exe"))
                    ? "Corvelle has been set as a startup program"
                    : "Couldn't set Corvelle as a startup program.");
}

void RemoveFromStartup(Program& program) {
  const std::string link = StartupLinkPath(program);
  if (link.empty() || !program.Services.Files.FileExists(link)) {
    Note(program, "Corvelle is not in the Startup folder.");
    return;
  }
  const FileStatus removed = program.Services.Files.Remove(link);
  if (!removed) {
    Note(program, FileErrorText(removed.Error()));
    return;
  }
  Note(program,
       "Corvelle has been removed from the Startup folder. Next time you start your computer, "
       "Corvelle will not run.");
}

}  // namespace corvelle
