#include "customize/frmCust.h"

#include <utility>

#include "base/Text.h"
#include "core/MessageBoxes.h"
#include "core/ProgramPaths.h"
#include "core/SpecialFolders.h"
#include "customize/CustLayout.h"
#include "forms/Scopes.h"
#include "icons/Glyphs.h"
#include "platform/FileSystem.h"
#include "platform/Input.h"
#include "shell/FileErrorText.h"
#include "shell/LinkFiles.h"

namespace corvelle {

namespace {

constexpr int kStartMenuFolder = 11;
constexpr int kRecentFolder = 8;
constexpr int kGuard = 1000;       // milliseconds
constexpr int kDraftEvery = 5000;  // milliseconds
constexpr int kSettled = 50;       // milliseconds from an edit elsewhere until its files are read

struct Tool {
  std::string_view Key;
  std::string_view Tip;
  std::string_view Glyph;
};
constexpr Tool kTools[] = {
    {"up", "Move Selection Up", "move up"},
    {"down", "Move Selection down", "move down"},
    {},
    {"button", "Add New Button", "button"},
    {"new", "Add New Menu Item", "new"},
    {"sep", "Insert Separator", "sep"},
    {},
    {"cut", "Cut Item", "cut"},
    {"copy", "Copy Item", "copy"},
    {"paste", "Paste", "paste"},
    {},
    {"delete", "Delete", "delete"},
    {"undo", "Undo Delete", "undo"},
};

void Place(forms::Control& control, const TwipRect& at) {
  control.Move(at.Left, at.Top, at.Width, at.Height);
}

}  // namespace

frmCust::frmCust(const CustParts& with)
    : Form(with.Icons.Windows, "frmCust", forms::BorderStyle::Sizable, true),
      TreeView1(*this, "TreeView1"),
      txtFind(*this, "txtFind"),
      Toolbar1(*this, "Toolbar1"),
      picProperties(*this, "picProperties"),
      picFiles(picProperties, "picFiles"),
      txtTitle(picFiles, "txtTitle"),
      txtFile(picFiles, "txtFile"),
      txtCommand(picFiles, "txtCommand"),
      cmdOK(picProperties, "cmdOK"),
      fraBrowse(picProperties, "fraBrowse"),
      cmdBrowseFiles(fraBrowse, "cmdBrowseFiles"),
      cmdBrowseFolders(fraBrowse, "cmdBrowseFolders"),
      fraSelect(picProperties, "fraSelect"),
      chkSelect0(fraSelect, "chkSelect"),
      chkSelect1(fraSelect, "chkSelect"),
      cmdSave(*this, "cmdSave"),
      cmdCancel(*this, "cmdCancel"),
      lblMenuTree(*this, "lblMenuTree"),
      lblProperties(picProperties, "lblProperties"),
      lblTitle(picFiles, "lblTitle"),
      lblIcon(picFiles, "lblIcon"),
      lblFile(picFiles, "lblFile"),
      cmdLibrary(picFiles, "cmdLibrary"),
      cmdAllFiles(picFiles, "cmdAllFiles"),
      cmdSelectFile(picFiles, "cmdSelectFile"),
      cmdSelectFolder(picFiles, "cmdSelectFolder"),
      cmdShowDraft(*this, "cmdShowDraft"),
      cmdForgetDraft(*this, "cmdForgetDraft"),
      Timer1(with.Icons.Windows),
      tmrDraft(with.Icons.Windows),
      tmrEdits(with.Icons.Windows),
      Editor(*this),
      with_(with),
      tree_(with.Icons, with.Slow, Editor.Tree, TreeView1) {
  SetMinimizeBox(true);
  SetLeastSize(kCustLeastWidth, kCustLeastHeight);
  WireControls();
  WireTree();
  WireBoxes();
  InitCustToolbar();
}

void frmCust::WireControls() {
  lblMenuTree.SetCaption("Menu Tree");
  lblProperties.SetCaption("Properties");
  lblTitle.SetCaption("Title");
  lblIcon.SetCaption("Icon");
  lblFile.SetCaption("File");
  cmdOK.SetCaption("O&K");
  cmdOK.SetToolTip("Confirm Changes in Entry Boxes");
  cmdSave.SetCaption("&Update Toolbar");
  cmdCancel.SetCaption("E&xit");
  cmdCancel.SetCancel(true);
  fraBrowse.SetCaption("Add");
  cmdBrowseFiles.SetCaption("Fi&le...");
  cmdBrowseFiles.SetToolTip("Show Open File Dialog");
  cmdBrowseFolders.SetCaption("Fol&der");
  cmdBrowseFolders.SetToolTip("Show Browse for Folder Dialog");
  fraSelect.SetCaption("Select Files From");
  chkSelect0.SetCaption("&Start Menu");
  chkSelect1.SetCaption("Deskto&p");
  cmdSelectFile.SetCaption("File");
  cmdSelectFile.SetToolTip("Select File");
  cmdSelectFolder.SetCaption("Folder");
  cmdSelectFolder.SetToolTip("Select Folder");
  cmdLibrary.SetCaption("Library");
  cmdLibrary.SetToolTip("Select Icon from Library");
  cmdAllFiles.SetCaption("File");
  cmdAllFiles.SetToolTip("Select Icon From File");
  cmdShowDraft.SetCaption("Show");
  cmdShowDraft.SetToolTip("Show Changes That Were Not Saved");
  cmdForgetDraft.SetCaption("Forget");
  cmdForgetDraft.SetToolTip("Forget Changes That Were Not Saved");
  txtFind.SetVisible(false);
  txtFind.SetCue("Find");
  for (forms::Surface* box :
       {static_cast<forms::Surface*>(&picProperties), static_cast<forms::Surface*>(&picFiles)}) {
    box->SetBackColor(forms::color::ButtonFace);
  }
  cmdSave.Click = [this] { cmdSave_Click(); };
  cmdCancel.Click = [this] { Form_QueryClose(); };
  cmdShowDraft.Click = [this] { ShowDraft(); };
  cmdForgetDraft.Click = [this] { ForgetTheDraft(); };
  tmrEdits.SetInterval(kSettled);
  tmrEdits.Tick = [this] { TakeEditsMadeElsewhere(); };
  tmrDraft.SetInterval(kDraftEvery);
  tmrDraft.Tick = [this] { KeepDraft(); };
}

void frmCust::InitCustToolbar() {
  for (const Tool& tool : kTools) {
    if (tool.Key.empty()) {
      Toolbar1.AddGap();
      continue;
    }
    const int image = Toolbar1.AddImage(MakeGlyph(Windows(), tool.Glyph));
    Toolbar1.Add({.Key = std::string(tool.Key), .Tip = std::string(tool.Tip), .Image = image});
  }
  Toolbar1.ButtonClick = [this](const std::string& key) { Toolbar1_ButtonClick(key); };
}

void frmCust::LoadWindow() {
  if (IsLoaded()) {
    if (IsMinimized()) RestoreWindow();
    SetForeground();
    return;
  }
  if (!InitMenuTree()) return;
  Load();
}

bool frmCust::InitMenuTree() {
  MenusResult<MenuFiles> read = ReadMenuFiles(with_.Files, with_.Ansi, with_.Paths.MenusPath);
  if (!read) {
    // A tree that lacks a file would delete it when it is saved.
    with_.Messages.Say(with_.Ports.WindowInUse(),
                       FileErrorText(read.Error().Reason) + "\r\n" + read.Error().Path,
                       forms::msgbox::IconInformation);
    return false;
  }
  files_ = *std::move(read);
  return true;
}

void frmCust::Form_Load() {
  PropertiesPort* const properties = with_.Ports.Properties;
  if (properties != nullptr && properties->WindowLoaded()) properties->UnloadWindow();
  const forms::HourglassScope hourglass(Windows());
  SetCaption(with_.Title + " . Customize");
  SetBackColor(forms::color::ButtonFace);
  SetTakesDrops(true);
  Center(kCustWidth, kCustHeight);
  Timer1.SetInterval(kGuard);
  Editor.LastFolder = GetSpecialFolder(with_.Links, with_.Ports, kStartMenuFolder);
  LastBrowseFolder.clear();
  Browsing = PickIcon = FolderToCommandOnly = Dragging = ShiftDown = messageWaits_ = false;
  finding_ = false;
  txtFind.SetVisible(false);
  txtFind.SetText("");
  address_.clear();
  mnuPopup = {};
  keeper_ = std::make_unique<DraftKeeper>(with_.Files, with_.Paths.MenusPath);
  {
    const forms::TreeView::FreezeScope freeze(TreeView1);
    Editor.InitMenuTree(files_.Set, with_.Paths.ShippedFile("corvelle.exe"), with_.Paths.MenusPath);
    Editor.Select(kMenusRoot);
    if (!Editor.Tree.Children(kMenusRoot).empty()) {
      ShowNode(Editor.Tree.Children(kMenusRoot).front());
    }
  }
  shownAt_ = keptAt_ = Editor.Tree.Revision();
  theirs_.reset();
  keeper_->Open(files_);
  LookForBrowser();
  ShowOffer();
  ShowState();
  tmrDraft.SetEnabled(true);
  Show();
  if (IsLoaded()) TreeView1.SetFocus();
}

void frmCust::Form_Unload() {
  Timer1.SetEnabled(false);
  tmrDraft.SetEnabled(false);
  tmrEdits.SetEnabled(false);
  Editor.Close();
  tree_.Clear();
  keeper_.reset();
  LibraryPort* const library = with_.Ports.Library;
  if (library != nullptr && library->WindowLoaded()) library->UnloadWindow();
}

// The windows inside are gone by then, the tree too.
void frmCust::PeerGoing() {
  Form::PeerGoing();
  tree_.ForgetImages();
}

void frmCust::Form_Resize() { PlaceControls(); }

void frmCust::PlaceControls() {
  if (!IsLoaded() || arranging_ || IsMinimized()) return;
  const forms::FlagScope arranging(arranging_);
  const CustLayout at = ArrangeCustomize({.Width = ScaleWidth(),
                                          .Height = ScaleHeight(),
                                          .TwipsPerPixel = Scale().TwipsPerPixelX,
                                          .Finding = finding_,
                                          .Offering = Offers() > 0});
  Place(lblMenuTree, at.MenuTree);
  Place(cmdShowDraft, at.ShowDraft);
  Place(cmdForgetDraft, at.ForgetDraft);
  cmdShowDraft.SetVisible(Offers() > 0);
  cmdForgetDraft.SetVisible(Offers() > 0);
  Place(txtFind, at.Find);
  Place(TreeView1, at.Tree);
  Place(Toolbar1, at.ToolBar);
  Place(picProperties, at.PropertiesBox);
  Place(cmdSave, at.Save);
  Place(cmdCancel, at.Exit);
  Place(lblProperties, at.Properties);
  Place(picFiles, at.Files);
  Place(cmdOK, at.Ok);
  Place(fraBrowse, at.Add);
  Place(fraSelect, at.From);
  Place(lblTitle, at.TitleLabel);
  Place(lblIcon, at.IconLabel);
  Place(lblFile, at.FileLabel);
  Place(txtTitle, at.Title);
  Place(txtFile, at.Icon);
  Place(txtCommand, at.File);
  Place(cmdLibrary, at.Library);
  Place(cmdAllFiles, at.AllFiles);
  Place(cmdSelectFile, at.SelectFile);
  Place(cmdSelectFolder, at.SelectFolder);
  Place(cmdBrowseFiles, at.BrowseFiles);
  Place(cmdBrowseFolders, at.BrowseFolders);
  Place(chkSelect0, at.StartMenu);
  Place(chkSelect1, at.Desktop);
}

void frmCust::Beep() { with_.Pointer.Beep(); }

int frmCust::Say(std::string_view text, unsigned flags) {
  return with_.Messages.Say(hWnd(), text, flags);
}

bool frmCust::FileExists(std::string_view path) { return with_.Files.FileExists(path); }

bool frmCust::IsPlainFolder(std::string_view path) { return with_.Files.FolderExists(path); }

std::vector<DroppedName> frmCust::NamesOf(const std::vector<std::string>& paths) {
  return with_.Titles.GetDroppedNames(paths);
}

std::string frmCust::RecentFolder() {
  return EnsureBackslash(GetSpecialFolder(with_.Links, with_.Ports, kRecentFolder));
}

}  // namespace corvelle
