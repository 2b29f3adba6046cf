#include <string>

#include "base/Text.h"
#include "core/AskFiles.h"
#include "core/DroppedFiles.h"
#include "core/ProgramPaths.h"
#include "core/SpecialFolders.h"
#include "customize/frmCust.h"
#include "forms/Scopes.h"
#include "platform/FileSystem.h"
#include "platform/Input.h"
#include "shell/LinkFiles.h"
#include "shell/cShellLink.h"

namespace corvelle {

namespace {

constexpr int kKeyF3 = 114;
constexpr int kMenuFilesFolder = 11;  // the Start menu
constexpr std::string_view kOneFile = "Select one file.";

constexpr std::string_view kAddText =
    "Adding files or folders to Corvelle can be done in two steps:\r\n\r\n"
    "1. Add a new entry using the toolbar under the Menu Tree or the popup menu.\r\n\r\n"
    "2. Use the Add File/Folder buttons to replace the new entry with items from your hard disk.";
constexpr std::string_view kCommandText =
    "This option is useful for custom entries where you have an icon file different from the "
    "executable file. You can also enter the address of a web site here, for example "
    "http://www.example.com. See the Help file for more information.\r\n\r\n"
    "The returned result will be inserted in the File entry box. It will not affect entries in the "
    "Title or Icon field.\r\n\r\n"
    "Entry in this field is not required for Menu Buttons.";
constexpr std::string_view kAllFilesText =
    "You can select an icon from any file in your hard disk that has an icon in the Windows "
    "Explorer. It dosn't have to be an actual icon file. Use icons from other files for the "
    "toolbar buttons and for entries that do not have icons such as DOS programs and custom "
    "commands.\r\n\r\n"
    "All Windows programs have built-in icons. You don't need to specify a different icon for an "
    "application that already has one unless you want to do so.";
constexpr std::string_view kLibraryText =
    "Use icons from the library for the toolbar buttons and for applications that do not have "
    "icons such as DOS programs and custom commands. \r\n\r\n"
    "All Windows programs have built-in icons. You don't have to specify a different icon for an "
    "application that already has one unless you want to do so.";

std::string FolderOf(std::string_view path) {
  const std::size_t slash = path.rfind('\\');
  return std::string(path.substr(0, slash == std::string_view::npos ? 0 : slash));
}

}  // namespace

void frmCust::WireBoxes() {
  const auto keys = [this](bool icon, bool command) {
    return [this, icon, command](int keyCode, forms::ShiftState shift) {
      if (keyCode == forms::key::Enter) {
        cmdOK_Click();
        return true;
      }
      if (shift != forms::ShiftState{}) return false;
      if (keyCode == forms::key::F2 && (icon || command)) {
        FillBox(icon ? Field::Icon : Field::Command, false);
        return true;
      }
      if (keyCode == kKeyF3 && icon) {
        ShowLibrary();
        return true;
      }
      return false;
    };
  };
  txtTitle.KeyDown = keys(false, false);
  txtFile.KeyDown = keys(true, false);
  txtCommand.KeyDown = keys(false, true);
  // Whatever shows the boxes again shows what the user has typed so far.
  for (forms::TextBox* box : {&txtTitle, &txtFile, &txtCommand}) {
    box->Change = [this] { TakeBoxes(); };
  }
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdBrowseFiles.Click = [this] { Browse(true); };
  cmdBrowseFolders.Click = [this] { Browse(false); };
  // At most one of the two.
  chkSelect0.GotFocus = [this] { chkSelect1.SetValue(0); };
  chkSelect1.GotFocus = [this] { chkSelect0.SetValue(0); };
  cmdSelectFile.Click = [this] { FillBox(Field::Command, false); };
  cmdSelectFolder.Click = [this] { FillBox(Field::Command, true); };
  cmdAllFiles.Click = [this] { FillBox(Field::Icon, false); };
  cmdLibrary.Click = [this] {
    ShowLibrary();
    if (IsLoaded()) StopGuard();
  };
  txtFind.KeyDown = [this](int keyCode, forms::ShiftState) {
    if (keyCode == forms::key::Escape) {
      finding_ = false;
      PlaceControls();
      txtFind.SetVisible(false);
      TreeView1.SetFocus();
      return true;
    }
    if (keyCode != forms::key::Enter) return false;
    FindNext();
    return true;
  };
}

void frmCust::cmdOK_Click() {
  const bool onRoot = Editor.OnRoot();
  TakeBoxes();
  Editor.cmdOK();
  if (!IsLoaded()) return;
  ShowState();
  if (onRoot) TreeView1.SetFocus();
}

void frmCust::StopGuard() {
  Timer1.SetEnabled(false);
  if (with_.Ports.Library == nullptr || !with_.Ports.Library->WindowLoaded()) {
    Browsing = false;
  }
}

void frmCust::ShowAddFileMsg() {
  if (with_.Ports.Tip != nullptr) {
    with_.Ports.Tip->ShowTip("Add File/Folder", kAddText, Option::AddFileTipDone);
  }
}

void frmCust::Browse(bool files) {
  ShowAddFileMsg();
  if (Editor.OnRoot()) return TreeView1.SetFocus();
  Editor.AddingEntry = true;
  Timer1.SetEnabled(false);
  Browsing = true;
  files ? AddFiles() : SelectFolder();
  Editor.AddingEntry = false;
  if (!IsLoaded()) return;
  txtTitle.SetFocus();
  Timer1.SetEnabled(true);
  ShowState();
}

std::string frmCust::StartFolder() const {
  if (chkSelect0.Value() == 1) return GetSpecialFolder(with_.Links, with_.Ports, kMenuFilesFolder);
  if (chkSelect1.Value() == 1) return GetSpecialFolder(with_.Links, with_.Ports, kDesktopFolder);
  return Editor.LastFolder;
}

void frmCust::AddFiles() {
  const bool one = Editor.Tree.Parent(Editor.Selected()) == kMenusRoot;
  const forms::FileChoice choice =
      AskFiles(*this, with_.Messages,
               {.Title = std::string(one ? kOneFile : "Select one or more files."),
                .StartFolder = StartFolder(),
                .Several = !one});
  if (!IsLoaded() || choice.Paths.empty()) return;
  chkSelect0.SetValue(0);
  chkSelect1.SetValue(0);
  TellRefused(Editor.AddFiles(choice.Paths));
}

// Where files are dropped the source waits, and would be held up by a message.
void frmCust::TellRefused(const std::vector<std::string>& files) {
  if (files.empty()) return;
  Windows().Post([this, files] {
    if (IsLoaded()) Say(RefusedFilesText(files), forms::msgbox::IconInformation);
  });
}

std::string frmCust::PathToStore(const std::string& path) {
  const std::optional<std::string> stored = NamesOf({path}).front().Stored;
  if (!stored) TellRefused({path});
  return stored.value_or(std::string());
}

std::string frmCust::FolderLink(const forms::FolderChoice& choice) {
  std::string name;
  for (const char letter : choice.Name) {
    if (std::string_view("\\/:*?\"<>|").find(letter) == std::string_view::npos) name += letter;
  }
  if (name.empty()) name = "Folder";
  FileSystem& files = with_.Files;
  std::string path = with_.Paths.ShellLinkPath + name + ".lnk";
  for (int number = 2; files.FileExists(path); ++number) {
    path = with_.Paths.ShellLinkPath + name + " " + std::to_string(number) + ".lnk";
  }
  constexpr int kNormalWindow = 1;
  if (cShellLink(with_.Links).ShellLinkToObject(path, choice.Item, kNormalWindow)) {
    return path;
  }
  Say("Unable to access the selected folder.", forms::msgbox::IconInformation);
  return {};
}

void frmCust::SelectFolder() {
  const bool commandOnly = std::exchange(FolderToCommandOnly, false);
  const forms::FolderChoice choice = Windows().AskFolder(
      hWnd(),
      {.Text = "To select a folder, highlight it and click OK.", .StartFolder = LastBrowseFolder});
  PickIcon = false;
  if (!IsLoaded() || !choice.Chosen) return;
  std::string path = StripAtNull(choice.Path);
  std::string title = choice.Name;
  if (path.empty()) {
    path = FolderLink(choice);
    if (!IsLoaded() || path.empty()) return;
  } else {
    LastBrowseFolder = path;
    if (title.empty()) title = path.substr(path.rfind('\\') + 1);
  }
  path = PathToStore(path);
  if (path.empty()) return;
  if (commandOnly) {
    txtCommand.SetText(path);
    return;
  }
  Editor.Boxes.txtFile = path;
  Editor.Boxes.txtTitle = title;
  Editor.Boxes.txtCommand = path;
  Editor.cmdOK();
  Editor.TreeChanged = true;
  Browsing = false;
}

void frmCust::SelectFile() {
  const bool icon = std::exchange(PickIcon, false);
  const forms::FileChoice choice = AskFiles(
      *this, with_.Messages, {.Title = std::string(kOneFile), .StartFolder = StartFolder()});
  if (!IsLoaded() || choice.Paths.empty()) return;
  const std::string path = PathToStore(choice.Paths.front());
  if (!path.empty()) (icon ? txtFile : txtCommand).SetText(path);
  Editor.LastFolder = FolderOf(choice.Paths.front());
  chkSelect0.SetValue(0);
  chkSelect1.SetValue(0);
}

bool frmCust::MayFill() {
  if (Editor.OnRoot()) return false;
  if (!Editor.IsSeparator(Editor.Selected())) return true;
  Editor.UpdateEntryBoxes();
  ShowBoxes();
  Say(kSeparatorMsg, forms::msgbox::IconInformation);
  return false;
}

void frmCust::FillBox(Field field, bool folder) {
  if (!MayFill()) return;
  if (with_.Ports.Tip != nullptr) {
    field == Field::Icon
        ? with_.Ports.Tip->ShowTip("Other Files Icons", kAllFilesText, Option::OtherFilesTipDone)
        : with_.Ports.Tip->ShowTip("Select File/Folder", kCommandText, Option::SelectFileTipDone);
  }
  forms::TextBox& box = field == Field::Icon ? txtFile : txtCommand;
  const std::string before = box.Text();
  Timer1.SetEnabled(false);
  Browsing = true;
  PickIcon = field == Field::Icon;
  FolderToCommandOnly = folder;
  folder ? SelectFolder() : SelectFile();
  if (!IsLoaded()) return;
  Browsing = false;
  if (box.Text() != before) cmdOK_Click();
  if (!IsLoaded()) return;
  Timer1.SetEnabled(true);
  box.SetFocus();
}

void frmCust::ShowLibrary() {
  if (!MayFill()) return;
  if (with_.Ports.Tip != nullptr) {
    with_.Ports.Tip->ShowTip("Icon Library", kLibraryText, Option::IconLibraryTipDone);
  }
  if (with_.Ports.Library != nullptr) with_.Ports.Library->Show("frmCust");
}

void frmCust::SetBrowsing(bool browsing) {
  if (IsLoaded()) Browsing = browsing;
}

void frmCust::TakeIcon(std::string_view icon) {
  if (!IsLoaded() || Editor.OnRoot()) return;
  txtFile.SetText(std::string(icon));
  UpdateField();
}

void frmCust::UpdateField() {
  if (!IsLoaded()) return;
  Timer1.SetEnabled(false);
  cmdOK_Click();
}

}  // namespace corvelle
