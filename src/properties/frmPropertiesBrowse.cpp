// What the boxes of the entry are filled from: files, folders, the icon library.

#include "base/Text.h"
#include "core/AskFiles.h"
#include "core/DroppedFiles.h"
#include "core/MessageBoxes.h"
#include "core/ProgramPaths.h"
#include "forms/Scopes.h"
#include "platform/FileSystem.h"
#include "properties/BoxTips.h"
#include "properties/frmProperties.h"
#include "shell/cShellLink.h"

namespace corvelle {
namespace {

constexpr std::string_view kFileTitle = "Select one file.";
constexpr std::string_view kFolderText = "To select a folder, highlight it and click OK.";
constexpr std::string_view kNoAccess = "Unable to access the selected folder.";
constexpr int kNormalWindow = 1;
constexpr int kMostLinks = 1000;

void ShowBoxTip(const WindowPorts& ports, const BoxTip& tip) {
  if (ports.Tip != nullptr) ports.Tip->ShowTip(tip.Title, tip.Text, tip.Field);
}

}  // namespace

bool frmProperties::txtIcon_KeyDown(int keyCode) {
  if (keyCode == forms::key::F2) {
    SelectIconFile();
  } else if (keyCode == forms::key::F3) {
    ShowLibrary();
  } else {
    return false;
  }
  return true;
}

// The folder's flat button has no key of its own elsewhere.
bool frmProperties::txtCommand_KeyDown(int keyCode) {
  if (keyCode == forms::key::F2) {
    SelectCommandFile();
  } else if (keyCode == forms::key::F3) {
    SelectCommandFolder();
  } else {
    return false;
  }
  return true;
}

void frmProperties::SelectCommandFile() {
  if (browsing_) return;
  ShowBoxTip(with_.Ports, kCommandTip);
  SetCommand(ShowOpenFile());
}

void frmProperties::SelectCommandFolder() {
  if (browsing_) return;
  ShowBoxTip(with_.Ports, kCommandTip);
  SetCommand(ShowOpenFolder());
}

void frmProperties::SetCommand(const std::optional<DroppedName>& chosen) {
  if (!chosen || !IsLoaded()) return;
  txtCommand.SetText(*chosen->Stored);
  AskTarget();
  txtCommand.SetFocus();
}

void frmProperties::SelectIconFile() {
  if (browsing_) return;
  ShowBoxTip(with_.Ports, kIconFileTip);
  const auto file = ShowOpenFile();
  if (!file || !IsLoaded()) return;
  txtIcon.SetText(*file->Stored);
  DrawIcon();
  if (IsLoaded()) txtIcon.SetFocus();
}

void frmProperties::ShowLibrary() {
  if (browsing_ || with_.Ports.Library == nullptr) return;
  ShowBoxTip(with_.Ports, kLibraryTip);
  if (IsLoaded()) with_.Ports.Library->Show("frmProperties");
}

void frmProperties::cmdFile_Click() {
  if (!browsing_) SetFileEntry(ShowOpenFile());
}

void frmProperties::cmdFolder_Click() {
  if (!browsing_) SetFileEntry(ShowOpenFolder());
}

// A menu button runs nothing: what its third field says stays.
void frmProperties::SetFileEntry(const std::optional<DroppedName>& chosen) {
  if (!chosen || !IsLoaded()) return;
  txtTitle.SetText(chosen->Title);
  txtIcon.SetText(*chosen->Stored);
  if (txtCommand.Enabled()) {
    txtCommand.SetText(*chosen->Stored);
    AskTarget();
  }
  DrawIcon();
  if (IsLoaded()) txtTitle.SetFocus();
}

std::optional<DroppedName> frmProperties::ShowOpenFile() {
  const forms::FlagScope browsing(browsing_);
  const forms::FileChoice choice = AskFiles(
      *this, with_.Messages, {.Title = std::string(kFileTitle), .StartFolder = lastFolder_});
  if (choice.Paths.empty() || !IsLoaded()) return std::nullopt;
  const std::string& path = choice.Paths.front();
  lastFolder_ = path.substr(0, path.rfind('\\'));
  return NameToStore(path);
}

std::optional<DroppedName> frmProperties::ShowOpenFolder() {
  const forms::FlagScope browsing(browsing_);
  const forms::FolderChoice choice = Windows().AskFolder(
      hWnd(), {.Text = std::string(kFolderText), .StartFolder = lastBrowseFolder_});
  if (!choice.Chosen || !IsLoaded()) return std::nullopt;
  if (!choice.Path.empty()) lastBrowseFolder_ = choice.Path;
  const std::string path = choice.Path.empty() ? LinkToFolder(choice) : choice.Path;
  if (path.empty() || !IsLoaded()) return std::nullopt;
  auto folder = NameToStore(path);
  if (folder) folder->Title = choice.Name;
  return folder;
}

std::optional<DroppedName> frmProperties::NameToStore(const std::string& path) {
  DroppedName name = with_.Titles.GetDroppedNames({path}).front();
  if (name.Stored) return name;
  with_.Messages.Say(hWnd(), RefusedFilesText({path}), forms::msgbox::IconInformation);
  return std::nullopt;
}

// A folder of the shell that is on no disk is reached by a link. An older link of that name can
// belong to another entry.
std::string frmProperties::LinkToFolder(const forms::FolderChoice& choice) {
  FileSystem& files = with_.Files;
  std::string link = with_.Paths.ShellLinkPath + choice.Name + ".lnk";
  for (int n = 2; files.FileExists(link) && n < kMostLinks; ++n) {
    link = with_.Paths.ShellLinkPath + choice.Name + " " + std::to_string(n) + ".lnk";
  }
  cShellLink shell(with_.Links);
  if (!files.FileExists(link) && shell.ShellLinkToObject(link, choice.Item, kNormalWindow)) {
    return link;
  }
  with_.Messages.Say(hWnd(), kNoAccess, forms::msgbox::IconInformation);
  return {};
}

}  // namespace corvelle
