#include "shell/StartupLink.h"

#include "base/Text.h"
#include "core/MessageBoxes.h"
#include "core/ProgramPaths.h"
#include "platform/FileSystem.h"
#include "platform/SystemInfo.h"
#include "shell/FileErrorText.h"
#include "shell/LinkFiles.h"

namespace corvelle {

namespace {

constexpr int kStartupFolder = 7;  // CSIDL_STARTUP
constexpr unsigned kNoteFlags = forms::msgbox::IconInformation;

void Note(const StartupLinkParts& with, std::string_view text) {
  with.Messages.Say(with.Ports.ToolbarWindow(), text, kNoteFlags);
}

bool MakeStartupLink(const StartupLinkParts& with, std::string_view executable) {
  const std::string link = StartupLinkPath(with);
  return !link.empty() && MakeLink(with.Links, link, executable, with.System.ApplicationFolder());
}

}  // namespace

std::string StartupLinkPath(const StartupLinkParts& with) {
  const std::string folder = GetSpecialFolder(with.Links, with.Ports, kStartupFolder);
  // Without a folder the name alone would lie in the root of some drive.
  return folder.empty() ? std::string() : EnsureBackslash(folder) + "Corvelle.lnk";
}

bool StartupLink::Exists() {
  const std::string link = StartupLinkPath(with_);
  return !link.empty() && with_.Files.FileExists(link);
}

void StartupLink::Remove() {
  const std::string link = StartupLinkPath(with_);
  if (link.empty()) return;
  // A link that stays is written over, or stays as it is.
  static_cast<void>(with_.Files.Remove(link));
}

void StartupLink::Create(std::string_view executable) {
  // The user can make it later from the Options menu, which says what came of it.
  static_cast<void>(MakeStartupLink(with_, executable));
}

void SetAsStartupProgram(const StartupLinkParts& with) {
  Note(with, MakeStartupLink(with, with.Paths.ShippedFile("corvelle.exe"))
                 ? "Corvelle has been set as a startup program"
                 : "Couldn't set Corvelle as a startup program.");
}

void RemoveFromStartup(const StartupLinkParts& with) {
  const std::string link = StartupLinkPath(with);
  if (link.empty() || !with.Files.FileExists(link)) {
    Note(with, "Corvelle is not in the Startup folder.");
    return;
  }
  const FileStatus removed = with.Files.Remove(link);
  if (!removed) {
    Note(with, FileErrorText(removed.Error()));
    return;
  }
  Note(with,
       "Corvelle has been removed from the Startup folder. Next time you start your computer, "
       "Corvelle will not run.");
}

}  // namespace corvelle
