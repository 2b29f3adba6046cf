#include "launch/Browser.h"

#include <utility>
#include <variant>

#include "base/Text.h"
#include "core/MessageBoxes.h"
#include "core/ProgramPaths.h"
#include "core/SettingsFiles.h"
#include "core/WindowPorts.h"
#include "desk/AnswerDesk.h"
#include "launch/OpenMail.h"
#include "launch/StartBeside.h"
#include "platform/DesktopWindows.h"
#include "platform/Input.h"

namespace corvelle {

namespace {

namespace msgbox = forms::msgbox;

constexpr std::string_view kBrowserError =
    "Unable to communicate with your default browser. \r\n"
    "This program should work with Netscape 4.02 or later and MS Explorer 4.0 or later. \r\n"
    "If you have one of those in your system and installed properly \r\n"
    "but you still cannot use this program with it, then send email to "
    "support@corvelle.example"
    " and report this problem.";
constexpr std::string_view kUnsupportedBrowser =
    "Unsupported browser. Corvelle couldn't recognize the Internet browser you have selected.";

/// Names the look for the browser among what is under way; no entry can bear it.
constexpr std::string_view kLook = "\"\"browser";

}  // namespace

Browser::~Browser() {
  if (linkOwner_ != 0) with_.Answers.Drop(linkOwner_);
}

const ProbeFiles& Browser::Probe() {
  probe_.Folder = with_.Paths.AppPath;
  return probe_;
}

void Browser::Learn(const BrowserState& found, int choices) {
  if (choices == choices_) static_cast<BrowserState&>(*this) = found;
}

void Browser::InitBrowser() {
  StartBeside<BrowserState>(
      with_.Launch.Starts, std::string(kLook),
      [probe = Probe()](const StartServices& services) { return FindBrowser(services, probe); },
      [this, watch = alive_.MakeWatch(), choices = choices_](const BrowserState& found) {
        if (!watch.Gone()) Learn(found, choices);
      });
}

void Browser::OpenUrl(std::string_view url, std::function<void(bool)> then) {
  StartBeside<BrowserState>(
      with_.Launch.Starts, std::string(url),
      [probe = Probe(), known = static_cast<const BrowserState&>(*this),
       address = std::string(url)](const StartServices& services) {
        return OpenAddress(services, probe, known, address);
      },
      [this, watch = alive_.MakeWatch(), choices = choices_,
       then = std::move(then)](const BrowserState& found) {
        if (watch.Gone()) return;
        Learn(found, choices);
        const bool taken = found.BrowserUseDde || found.BrowserUseShell;
        if (!taken) ShowBrowserError();
        if (then) then(taken);
      });
}

void Browser::OpenMail(std::string_view address) { corvelle::OpenMail(with_.Launch, address); }

void Browser::ShowBrowserError() {
  with_.Launch.Messages.Say(with_.Launch.Ports.ToolbarWindow(), kBrowserError,
                            msgbox::IconStop | msgbox::OnTop);
}

void Browser::ForgetBrowser() {
  ++choices_;
  Forget();
}

void Browser::UseDefaultBrowser() {
  // A file that cannot be removed keeps the old choice; it is read again with the next address.
  if (!ForgetBrowserChoice(with_.Files, with_.Paths.AppPath)) with_.Pointer.Beep();
  ForgetBrowser();
}

void Browser::UseBrowser(std::string_view path, WindowId owner, std::function<void(bool)> then) {
  if (!EndsWithNoCase(path, ".lnk") || with_.Launch.Ports.ShellLinks == nullptr) {
    const bool taken = TakeBrowser(std::string(path), owner);
    if (then) then(taken);
    return;
  }
  if (linkOwner_ == 0) linkOwner_ = with_.Answers.NewOwner();
  // The link that was chosen last counts.
  with_.Answers.Drop(linkOwner_);
  with_.Answers.Ask(
      {.Question = {.Kind = LookupKind::LinkTarget, .Path = std::string(path)},
       .How = desk::Urgency::OnShow,
       .Owner = linkOwner_},
      {.Ended =
           [this, owner, choices = choices_, then = std::move(then)](const desk::Reply& reply) {
             if (choices != choices_) return;
             const auto* const target = std::get_if<std::string>(&reply.Value);
             const bool known = reply.How == desk::End::Answered && target != nullptr;
             // A link that cannot be read leads to no browser.
             const bool taken = TakeBrowser(known ? StripAtNull(*target) : std::string(), owner);
             if (then) then(taken);
           },
       .TakesLonger = {}});
}

bool Browser::TakeBrowser(const std::string& command, WindowId owner) {
  const std::optional<std::string> service = BrowserServiceName(command);
  if (!service) {
    const bool there = with_.Desktop.IsVisible(owner);
    with_.Launch.Messages.Say(there ? owner : with_.Launch.Ports.ToolbarWindow(),
                              kUnsupportedBrowser, msgbox::OnTop);
    return false;
  }
  const BrowserChoice choice{command, *service};
  ForgetBrowser();
  if (!SaveBrowserChoice(with_.Files, with_.Ansi, with_.Paths.AppPath, choice)) {
    with_.Pointer.Beep();
    return false;
  }
  BrowserCommand = choice.BrowserCommand;
  BrowserApplication = choice.BrowserApplication;
  BrowserUseDde = true;
  OwnBrowser = true;
  return true;
}

}  // namespace corvelle
