#include "about/DefaultEntryRules.h"

#include <algorithm>
#include <array>
#include <span>

#include "base/Text.h"
#include "base/Utf8.h"

namespace corvelle {
namespace {

constexpr std::array<std::string_view, 4> kOtherFolders = {"Startup", "Accessories", "Explorer",
                                                           "Netscape"};
constexpr std::array<std::string_view, 5> kNotStarted = {"Help", "Read me", "Readme", "Setup",
                                                         "install"};
constexpr std::array<std::string_view, 4> kNoTargets = {"notepad.exe", "wordpad.exe",
                                                        "corvelle.exe", "winhelp.exe"};
constexpr std::string_view kExe = ".exe";
constexpr std::array<std::string_view, 4> kStartable = {kExe, ".com", ".bat", ".cmd"};
constexpr std::array<std::string_view, 8> kStandIns = {
    "OpenWith.exe",      "rundll32.exe",     "dllhost.exe",
    "svchost.exe",       "LaunchWinApp.exe", "ApplicationFrameHost.exe",
    "RuntimeBroker.exe", "explorer.exe"};
// Packaged programs, and the fixed names that some of them are started by.
constexpr std::string_view kPackages = "\\WindowsApps\\";
constexpr std::string_view kPackageAliases = "\\Microsoft\\WindowsApps\\";

bool HoldsAny(std::string_view text, std::span<const std::string_view> words) {
  return std::any_of(words.begin(), words.end(),
                     [text](std::string_view word) { return ContainsNoCase(text, word); });
}

std::string WithCapital(std::string_view text) {
  if (text.empty()) return {};
  const std::size_t first = NextCharacter(text, 0).Length;
  return UpperCase(text.substr(0, first)) + std::string(text.substr(first));
}

MenuRecord OwnIcon(std::string title, std::string_view path) {
  return {.FTitle = std::move(title), .FIcon = std::string(path), .FName = std::string(path)};
}

}  // namespace

std::vector<MenuRecord> FixedSingles(const MachineFacts& facts) {
  std::vector<MenuRecord> singles;
  if (facts.HasFileSearch) {
    singles.push_back(
        {.FTitle = "Find Files", .FIcon = "\\icons\\filefind.ico", .FName = "FileFind"});
  }
  singles.push_back(
      {.FTitle = "Find Computer", .FIcon = "\\icons\\comp02.ico", .FName = "FindComputer"});
  singles.push_back({.FTitle = "Windows Explorer",
                     .FIcon = "\\icons\\Explorer.ico",
                     .FName = "?explorer.exe /e,/root,,::{20D04FE0-3AEA-1069-A2D8-08002B30309D}"});
  if (facts.HasNetSearch) {
    singles.push_back(
        {.FTitle = "Net Search", .FIcon = "\\icons\\netsrch.ico", .FName = "NetSearch"});
  }
  return singles;
}

MenuRecord MyComputerSingle() {
  return {.FTitle = "My Computer",
          .FIcon = "\\icons\\MyComp.ico",
          .FName = "?explorer.exe /root,,::{20D04FE0-3AEA-1069-A2D8-08002B30309D}"};
}

MenuRecord BrowserSingle(const ProgramFacts& program) {
  if (ContainsNoCase(program.Path, "netscape")) return OwnIcon("Netscape", program.Path);
  if (ContainsNoCase(program.Path, "IEXPLORE")) return OwnIcon("Internet Explorer", program.Path);
  return OwnIcon(std::string(program.FileTitle), program.Path);
}

MenuRecord MailSingle(const ProgramFacts& program) {
  if (ContainsNoCase(program.Path, "MSIMN.EXE")) return OwnIcon("Outlook Express", program.Path);
  return ProgramSingle(program);
}

MenuRecord ProgramSingle(const ProgramFacts& program) {
  return OwnIcon(WithCapital(program.FileTitle), program.Path);
}

bool IsProgramAnswer(std::string_view path) {
  const bool startable =
      std::any_of(kStartable.begin(), kStartable.end(),
                  [path](std::string_view end) { return EndsWithNoCase(path, end); });
  const bool inPackage = ContainsNoCase(path, kPackages) && !ContainsNoCase(path, kPackageAliases);
  const std::string_view name = path.substr(path.rfind('\\') + 1);
  const bool standIn = std::any_of(kStandIns.begin(), kStandIns.end(),
                                   [name](std::string_view n) { return EqualNoCase(name, n); });
  return startable && !inPackage && !standIn;
}

const std::vector<std::string_view>& ProgramExtensions() {
  static const std::vector<std::string_view> extensions = {"txt", "doc", "xls", "ppt"};
  return extensions;
}

MenuRecord DesktopButton() { return {.FTitle = "Desktop", .FIcon = "\\icons\\desktop.ico"}; }
MenuRecord ProgramsButton() { return {.FTitle = "Programs", .FIcon = "\\icons\\PROGRAMS.ICO"}; }
MenuRecord DocumentsButton() { return {.FTitle = "Documents", .FIcon = "\\icons\\FOLDER21.ICO"}; }
MenuRecord AccessoriesButton() { return {.FTitle = "Accessories", .FIcon = "\\icons\\clip01.ico"}; }
MenuRecord SettingsButton() { return {.FTitle = "Settings", .FIcon = "\\icons\\settings.ico"}; }

std::vector<MenuRecord> DesktopMenu() {
  return {DesktopButton(),
          {.FTitle = "Desktop Items", .FIcon = "\\icons\\desktop.ico", .FName = "CSIDL_DESKTOP"}};
}

std::vector<MenuRecord> SettingsMenu() {
  return {SettingsButton(),
          {.FTitle = "Control Panel", .FIcon = "\\icons\\ctrpanel.ico", .FName = "CSIDL_CONTROLS"},
          NewSeparatorRecord(),
          {.FTitle = "Printers", .FIcon = "\\icons\\PRINTFLD.ICO", .FName = "CSIDL_PRINTERS"}};
}

std::vector<MenuRecord> DocumentsMenu(std::string_view recentFolder) {
  std::vector<MenuRecord> records{DocumentsButton()};
  // Without the folder its pattern would list the root of the drive.
  if (!recentFolder.empty()) {
    records.push_back({.FTitle = "Recent Documents Folder",
                       .FIcon = DocumentsButton().FIcon,
                       .FName = DropBackslash(recentFolder) + "\\*.*/u"});
  }
  return records;
}

MenuRecord FileItem(std::string_view folder, std::string_view name) {
  return OwnIcon(TitleOfName(name), EnsureBackslash(folder) + std::string(name));
}

std::string TitleOfName(std::string_view name) {
  // The fourth character from the end, however many bytes the last three take.
  std::size_t at = name.size();
  for (int characters = 0; characters < 4; ++characters) {
    if (at == 0) return std::string(name);
    do {
      --at;
    } while (at > 0 && (static_cast<unsigned char>(name[at]) & 0xC0U) == 0x80U);
  }
  return std::string(name[at] == '.' ? name.substr(0, at) : name);
}

bool IsOwnFile(std::string_view name) { return ContainsNoCase(name, "Corvelle"); }
bool IsSkippedFolder(std::string_view name) { return HoldsAny(name, kOtherFolders); }
bool IsSkippedFile(std::string_view name) { return HoldsAny(name, kNotStarted); }
bool IsSkippedTarget(std::string_view target) {
  return !ContainsNoCase(target, kExe) || HoldsAny(target, kNoTargets);
}

}  // namespace corvelle
