// What the boxes of the entry are filled from: files, folders, the icon library.

#include "base/Text.h"
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
  const std::string path = ShowOpenFile();
  if (path.empty() || !IsLoaded()) return;
  txtCommand.SetText(path);
  AskTarget();
  txtCommand.SetFocus();
}

void frmProperties::SelectCommandFolder() {
  if (browsing_) return;
  ShowBoxTip(with_.Ports, kCommandTip);
  const auto choice = ShowOpenFolder();
  if (!choice || !IsLoaded()) return;
  const std::string path = choice->Path.empty() ? LinkToFolder(*choice) : choice->Path;
  if (path.empty() || !IsLoaded()) return;
  txtCommand.SetText(path);
  AskTarget();
  txtCommand.SetFocus();
}

void frmProperties::SelectIconFile() {
  if (browsing_) return;
  ShowBoxTip(with_.Ports, kIconFileTip);
  const std::string path = ShowOpenFile();
  if (path.empty() || !IsLoaded()) return;
  txtIcon.SetText(path);
  DrawIcon();
  if (IsLoaded()) txtIcon.SetFocus();
}

void frmProperties::ShowLibrary() {
  if (browsing_ || with_.Ports.Library == nullptr) return;
  ShowBoxTip(with_.Ports, kLibraryTip);
  if (IsLoaded()) with_.Ports.Library->Show("frmProperties");
}

void frmProperties::cmdFile_Click() {
  if (browsing_) return;
  const std::string path = ShowOpenFile();
  if (!path.empty() && IsLoaded()) SetFileEntry(path, with_.Titles.GetFileTitle(path));
}

void frmProperties::cmdFolder_Click() {
  if (browsing_) return;
  const auto choice = ShowOpenFolder();
  if (!choice || !IsLoaded()) return;
  const std::string path = choice->Path.empty() ? LinkToFolder(*choice) : choice->Path;
  if (!path.empty() && IsLoaded()) SetFileEntry(path, choice->Name);
}

// A menu button runs nothing: what its third field says stays.
void frmProperties::SetFileEntry(const std::string& path, const std::string& title) {
  txtTitle.SetText(title);
  txtIcon.SetText(path);
  if (txtCommand.Enabled()) {
    txtCommand.SetText(path);
    AskTarget();
  }
  DrawIcon();
  if (IsLoaded()) txtTitle.SetFocus();
}

std::string frmProperties::ShowOpenFile() {
  const forms::FlagScope browsing(browsing_);
  const forms::FileChoice choice =
      Windows().AskFiles(hWnd(), {.Title = std::string(kFileTitle), .StartFolder = lastFolder_});
  if (choice.Paths.empty()) return {};
  const std::string& path = choice.Paths.front();
  lastFolder_ = path.substr(0, path.rfind('\\'));
  return path;
}

std::optional<forms::FolderChoice> frmProperties::ShowOpenFolder() {
  const forms::FlagScope browsing(browsing_);
  forms::FolderChoice choice = Windows().AskFolder(
      hWnd(), {.Text = std::string(kFolderText), .StartFolder = lastBrowseFolder_});
  if (!choice.Chosen) return std::nullopt;
  if (!choice.Path.empty()) lastBrowseFolder_ = choice.Path;
  return choice;
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
