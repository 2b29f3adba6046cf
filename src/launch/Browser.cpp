#include "launch/Browser.h"

#include "base/Text.h"
#include "core/Program.h"
#include "core/SettingsFiles.h"
#include "launch/BrowserRules.h"
#include "launch/CommandForm.h"
#include "launch/OpenMail.h"
#include "launch/RegistryValue.h"
#include "launch/UserChoice.h"
#include "platform/DdeClient.h"
#include "platform/FileAssociations.h"
#include "platform/FileSystem.h"
#include "platform/Registry.h"
#include "platform/ShellExec.h"

namespace corvelle {

namespace {

namespace msgbox = forms::msgbox;

constexpr std::string_view kPageFile = "temphtml.htm";
constexpr std::string_view kUrlFile = "tempurl.url";
constexpr std::string_view kPlaceholderAddress = "http://www.example.com/";

constexpr std::string_view kBrowserError =
    "Unable to communicate with your default browser. \r\n"
    "This program should work with Netscape 4.02 or later and MS Explorer 4.0 or later. \r\n"
    "If you have one of those in your system and installed properly \r\n"
    "but you still cannot use this program with it, then send email to "
    "support@corvelle.example"
    " and report this problem.";
constexpr std::string_view kUnsupportedBrowser =
    "Unsupported browser. Corvelle couldn't recognize the Internet browser you have selected.";

/// A file of the program's folder that is there for the length of a scope. Where it cannot be
/// written the shell finds no file, and what it says of that serves as well.
class MomentaryFile {
 public:
  MomentaryFile(FileSystem& files, std::string path, std::string_view bytes)
      : files_(files), path_(std::move(path)), bytes_(bytes) {
    Write();
  }
  MomentaryFile(const MomentaryFile&) = delete;
  MomentaryFile& operator=(const MomentaryFile&) = delete;
  // A file that stays behind is written over the next time.
  ~MomentaryFile() {
    if (!kept_) static_cast<void>(files_.Remove(path_));
  }

  const std::string& Path() const noexcept { return path_; }
  void Keep() noexcept { kept_ = true; }
  /// Brings it back when somebody else has removed it meanwhile.
  void Renew() {
    if (!files_.FileExists(path_)) Write();
  }

 private:
  void Write() { static_cast<void>(files_.Write(path_, bytes_)); }

  FileSystem& files_;
  std::string path_;
  std::string bytes_;
  bool kept_ = false;
};

}  // namespace

std::string Browser::PathOf(std::string_view name) const {
  return program_.Paths.AppPath + std::string(name);
}

std::optional<std::string> Browser::ProgramForPages() {
  MomentaryFile page(program_.Services.Files, PathOf(kPageFile), kEmptyHtml);
  program_.DoEvents();
  // An address that was opened in these events has used the same file and removed it.
  page.Renew();
  return program_.Services.Associations.ProgramFor(page.Path());
}

void Browser::InitBrowser() {
  FileSystem& files = program_.Services.Files;
  const CodePage& ansi = program_.Services.Ansi;
  ForgetBrowser();
  BrowserTopic = "WWW_OpenURL";
  const BrowserChoice choice = LoadBrowserChoice(files, ansi, program_.Paths.AppPath);
  BrowserCommand = choice.BrowserCommand;
  BrowserApplication = choice.BrowserApplication;
  if (choice.IsComplete()) {
    BrowserUseDde = true;
    ownBrowser_ = true;
    return;
  }
  const std::optional<std::string> found = ProgramForPages();
  BrowserCommand = found.value_or("");
  if (found) BrowserApplication = ServiceName();
  if (!Trim(BrowserApplication).empty()) {
    BrowserUseDde = true;
    return;
  }
  const MomentaryFile link(files, PathOf(kUrlFile), FormatUrlFile(kPlaceholderAddress, ansi));
  const std::optional<std::string> opener = program_.Services.Associations.ProgramFor(link.Path());
  BrowserCommand = opener.value_or("");
  BrowserUseShell = !BrowserCommand.empty();
}

std::string Browser::ServiceName() {
  const ServiceSource source = ServiceSourceOf(BrowserCommand);
  for (const std::string_view key : source.Keys) {
    std::string name;
    const bool read =
        ReadRegistryValue(program_.Services.Keys, RegistryRoot::ClassesRoot, key, "", name);
    if (read && !name.empty()) return name;
  }
  return std::string(source.Fallback);
}

bool Browser::OpenUrl(std::string_view url) {
  // The text may go with the window that it came from while events run.
  const std::string address(url);
  if (!BrowserUseDde && !BrowserUseShell) InitBrowser();
  // The shell knows the user's choice, also where no program was found or another one was.
  if (!BrowserUseDde || AnotherIsChosen()) {
    BrowserUseDde = false;
    BrowserUseShell = true;
  }
  if (BrowserUseDde) {
    OpenByDde(address);
    // An address that a browser has taken is not given to another one.
    if (BrowserUseDde) return true;
  }
  if (BrowserUseShell) OpenByShell(address);
  if (BrowserUseDde || BrowserUseShell) return true;
  ShowBrowserError();
  return false;
}

bool Browser::AnotherIsChosen() {
  if (ownBrowser_) return false;
  const UserChoice choice = UserChoiceFor(program_.Services.Keys, "http");
  FileSystem& files = program_.Services.Files;
  return choice.Made &&
         !EqualNoCase(files.LongPath(choice.Program), files.LongPath(BrowserCommand));
}

void Browser::OpenByDde(std::string_view url) {
  if (program_.Services.Dde.Execute(BrowserApplication, BrowserTopic, BrowserItem(url)) ==
      DdeOutcome::Done) {
    return;
  }
  if (StartBrowser(url, GetItemWorkDir(BrowserCommand))) return;
  const bool opened = ProgramForPages() && (Open(url) || StartBrowser(url, {}));
  if (opened) return;
  BrowserUseDde = false;
  BrowserUseShell = true;
}

bool Browser::StartBrowser(std::string_view url, std::string_view folder) {
  const std::string address = EscapeAddress(url);
  std::optional<std::string_view> startIn;
  if (!folder.empty()) startIn = folder;
  return Open(BrowserCommand, address, startIn);
}

bool Browser::Open(std::string_view file, std::optional<std::string_view> parameters,
                   std::optional<std::string_view> folder) {
  const auto opened = program_.Services.Shell.Open(file, parameters, folder);
  return opened || opened.Error() == OpenError::Cancelled;
}

void Browser::OpenByShell(std::string_view url) {
  if (Open(url)) return;
  MomentaryFile link(program_.Services.Files, PathOf(kUrlFile),
                     FormatUrlFile(url, program_.Services.Ansi));
  BrowserUseShell = Open(link.Path());
  // Whoever took the file reads it after this call; the next look for a browser removes it.
  if (BrowserUseShell) link.Keep();
}

void Browser::OpenMail(std::string_view address) { corvelle::OpenMail(program_, address); }

void Browser::ShowBrowserError() {
  program_.Say(program_.ToolbarWindow(), kBrowserError, msgbox::IconStop | msgbox::OnTop);
}

void Browser::ForgetBrowser() {
  BrowserCommand.clear();
  BrowserApplication.clear();
  BrowserUseDde = false;
  BrowserUseShell = false;
  ownBrowser_ = false;
}

void Browser::UseDefaultBrowser() {
  // A file that cannot be removed keeps the old choice; it is read again with the next address.
  static_cast<void>(ForgetBrowserChoice(program_.Services.Files, program_.Paths.AppPath));
  ForgetBrowser();
}

bool Browser::UseBrowser(std::string_view path) {
  std::string command(path);
  if (EndsWithNoCase(path, ".lnk") && program_.Ports.ShellLinks != nullptr) {
    command = program_.Ports.ShellLinks->TargetOf(path);
  }
  const std::optional<std::string> service = BrowserServiceName(command);
  if (!service) {
    program_.Say(program_.ToolbarWindow(), kUnsupportedBrowser, msgbox::OnTop);
    return false;
  }
  const BrowserChoice choice{command, *service};
  ForgetBrowser();
  if (!SaveBrowserChoice(program_.Services.Files, program_.Services.Ansi, program_.Paths.AppPath,
                         choice)) {
    return false;
  }
  BrowserCommand = choice.BrowserCommand;
  BrowserApplication = choice.BrowserApplication;
  BrowserUseDde = true;
  ownBrowser_ = true;
  return true;
}

}  // namespace corvelle
