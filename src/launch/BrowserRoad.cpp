#include "launch/BrowserRoad.h"

#include <utility>

#include "base/Text.h"
#include "core/SettingsFiles.h"
#include "launch/BrowserRules.h"
#include "launch/CommandForm.h"
#include "launch/RegistryValue.h"
#include "launch/StartBeside.h"
#include "launch/UserChoice.h"
#include "platform/DdeClient.h"
#include "platform/FileAssociations.h"
#include "platform/FileSystem.h"
#include "platform/Registry.h"
#include "platform/ShellExec.h"
#include "platform/Starter.h"

namespace corvelle {

namespace {

constexpr std::string_view kPageFile = "temphtml.htm";
constexpr std::string_view kUrlFile = "tempurl.url";
constexpr std::string_view kPlaceholderAddress = "http://www.example.com/";

/// A file of the program's folder that is there for the length of a scope. Where it cannot be
/// written the shell finds no file, and what it says of that serves as well.
class MomentaryFile {
 public:
  MomentaryFile(FileSystem& files, const ProbeFiles& probe, std::string_view name,
                std::string_view bytes)
      : lock_(probe.Lock), held_(*lock_), files_(files), path_(probe.Folder + std::string(name)) {
    static_cast<void>(files_.Write(path_, bytes));
  }
  MomentaryFile(const MomentaryFile&) = delete;
  MomentaryFile& operator=(const MomentaryFile&) = delete;
  // A file that stays behind is written over the next time.
  ~MomentaryFile() {
    if (!kept_) static_cast<void>(files_.Remove(path_));
  }

  const std::string& Path() const noexcept { return path_; }
  void Keep() noexcept { kept_ = true; }

 private:
  std::shared_ptr<std::recursive_mutex> lock_;
  std::unique_lock<std::recursive_mutex> held_;
  FileSystem& files_;
  std::string path_;
  bool kept_ = false;
};

std::string ServiceName(const Registry& keys, std::string_view browserCommand) {
  const ServiceSource source = ServiceSourceOf(browserCommand);
  for (const std::string_view key : source.Keys) {
    std::string name;
    const bool read = ReadRegistryValue(keys, RegistryRoot::ClassesRoot, key, "", name);
    if (read && !name.empty()) return name;
  }
  return std::string(source.Fallback);
}

/// The way of one address.
class Road {
 public:
  Road(const StartServices& services, const ProbeFiles& probe, BrowserState& known,
       std::string_view url)
      : services_(services), probe_(probe), known_(known), url_(url) {}

  void Go() {
    if (!known_.BrowserUseDde && !known_.BrowserUseShell) known_ = FindBrowser(services_, probe_);
    // The shell knows the user's choice, also where no program was found or another one was.
    if (!known_.BrowserUseDde || AnotherIsChosen()) LeaveToShell();
    // An address that a browser has taken is not given to another one.
    if (known_.BrowserUseDde && OpenByDde()) return;
    OpenByShell();
  }

 private:
  void LeaveToShell() {
    known_.BrowserUseDde = false;
    known_.BrowserUseShell = true;
  }

  /// True if the user has chosen another browser in the system's settings than the one that was
  /// found. A browser chosen in this program is the user's choice.
  [[nodiscard]] bool AnotherIsChosen() const {
    if (known_.OwnBrowser) return false;
    const UserChoice choice = UserChoiceFor(services_.Keys, "http");
    return choice.Made && !EqualNoCase(services_.Files.LongPath(choice.Program),
                                       services_.Files.LongPath(known_.BrowserCommand));
  }

  bool OpenByDde() {
    if (services_.Dde.Execute(known_.BrowserApplication, known_.BrowserTopic, BrowserItem(url_)) ==
        DdeOutcome::Done) {
      return true;
    }
    if (StartBrowser(GetItemWorkDir(known_.BrowserCommand))) return true;
    if (ProgramForPages(services_, probe_) && (Open(url_) || StartBrowser({}))) return true;
    LeaveToShell();
    return false;
  }

  bool StartBrowser(std::string_view folder) {
    const std::string address = EscapeAddress(url_);
    std::optional<std::string_view> startIn;
    if (!folder.empty()) startIn = folder;
    return Open(known_.BrowserCommand, address, startIn);
  }

  bool Open(std::string_view file, std::optional<std::string_view> parameters = std::nullopt,
            std::optional<std::string_view> folder = std::nullopt) {
    return IsSettled(services_.Shell.Open(file, parameters, folder));
  }

  void OpenByShell() {
    if (Open(url_)) return;
    MomentaryFile link(services_.Files, probe_, kUrlFile, FormatUrlFile(url_, services_.Ansi));
    known_.BrowserUseShell = Open(link.Path());
    // Whoever took the file reads it after this call; the next look for a browser removes it.
    if (known_.BrowserUseShell) link.Keep();
  }

  const StartServices& services_;
  const ProbeFiles& probe_;
  BrowserState& known_;
  std::string_view url_;
};

}  // namespace

std::optional<std::string> ProgramForPages(const StartServices& services, const ProbeFiles& probe) {
  const MomentaryFile page(services.Files, probe, kPageFile, kEmptyHtml);
  return services.Associations.ProgramFor(page.Path());
}

BrowserState FindBrowser(const StartServices& services, const ProbeFiles& probe) {
  BrowserState found;
  BrowserChoice choice = LoadBrowserChoice(services.Files, services.Ansi, probe.Folder);
  const bool complete = choice.IsComplete();
  found.BrowserApplication = std::move(choice.BrowserApplication);
  if (complete) {
    found.BrowserCommand = std::move(choice.BrowserCommand);
    found.BrowserUseDde = true;
    found.OwnBrowser = true;
    return found;
  }
  const std::optional<std::string> program = ProgramForPages(services, probe);
  found.BrowserCommand = program.value_or("");
  if (program) found.BrowserApplication = ServiceName(services.Keys, found.BrowserCommand);
  if (!Trim(found.BrowserApplication).empty()) {
    found.BrowserUseDde = true;
    return found;
  }
  const MomentaryFile link(services.Files, probe, kUrlFile,
                           FormatUrlFile(kPlaceholderAddress, services.Ansi));
  found.BrowserCommand = services.Associations.ProgramFor(link.Path()).value_or("");
  found.BrowserUseShell = !found.BrowserCommand.empty();
  return found;
}

BrowserState OpenAddress(const StartServices& services, const ProbeFiles& probe, BrowserState known,
                         std::string_view url) {
  Road(services, probe, known, url).Go();
  return known;
}

}  // namespace corvelle
