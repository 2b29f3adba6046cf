#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/IconSources.h"
#include "core/WindowPorts.h"
#include "customize/CustEditor.h"
#include "customize/CustOptions.h"
#include "customize/CustPopup.h"
#include "customize/CustTreeControl.h"
#include "customize/Draft.h"
#include "customize/MenuMaker.h"
#include "customize/MenuSetFiles.h"
#include "customize/Saving.h"
#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/FlatButton.h"
#include "forms/Form.h"
#include "forms/Frame.h"
#include "forms/Graphic.h"
#include "forms/PictureBox.h"
#include "forms/TextBox.h"
#include "forms/Timer.h"
#include "forms/ToolBar.h"
#include "forms/TreeView.h"
#include "launch/FileTitle.h"
#include "shell/StartupLink.h"

namespace corvelle {

class CodePage;
class FileSystem;
class Input;
class MessageBoxes;
class OptionFlags;
class ShellLinks;
class SlowQuestions;
struct EntryEdit;
struct LaunchParts;
struct ProgramPaths;
struct StripPlacement;
namespace forms {
class EventPump;
}

/// What the window works with. All of it outlives the window.
struct CustParts {
  const IconSources& Icons;
  SlowQuestions& Slow;
  FileSystem& Files;
  const CodePage& Ansi;
  ShellLinks& Links;
  Input& Pointer;
  const ProgramPaths& Paths;
  const WindowPorts& Ports;
  MessageBoxes& Messages;
  forms::EventPump& Events;
  OptionFlags& Options;
  std::string& WebLinkIcon;  // see IconState
  const StripPlacement& Strip;
  EntryEdit& Entry;
  const std::string& Title;  // of the program
  const LaunchParts& Launch;
  FileTitles Titles;
  StartupLinkParts Startup;
};

/// The Customize window: all menu buttons and single buttons in one tree, the texts of the selected
/// one in three boxes, and the options of the program. What is changed is on the disk only after a
/// save; what was not saved when the window closed is kept as a draft.
class frmCust final : public forms::Form,
                      public EditingWindow,
                      public IconBoxPort,
                      public MenuEditsPort,
                      private CustHost {
 public:
  explicit frmCust(const CustParts& with);

  /// Shows it; one that is up comes to the front.
  void LoadWindow() override;
  /// Closes it, after asking about what is not saved; it cannot be kept open.
  void UnloadWindow() override;
  [[nodiscard]] bool CloseWindow() override;
  void EndSession() override;
  [[nodiscard]] bool WindowLoaded() const override { return IsLoaded(); }
  /// Takes what the strip or another window of the program changed in, as soon as that is done.
  void MenusEdited() override;

  [[nodiscard]] forms::Form& BoxWindow() override { return *this; }
  void SetBrowsing(bool browsing) override;
  void TakeIcon(std::string_view icon) override;
  /// How the tree is shown.
  [[nodiscard]] CustTreeControl& Tree() noexcept { return tree_; }
  /// How many sets of unsaved changes are kept and not shown.
  [[nodiscard]] std::size_t Offers() const { return keeper_ ? keeper_->Offered().size() : 0; }
  /// The library has filled the box for the icon.
  void UpdateField();

  forms::TreeView TreeView1;
  forms::TextBox txtFind;
  forms::ToolBar Toolbar1;
  forms::PictureBox picProperties;
  forms::PictureBox picFiles;
  forms::TextBox txtTitle;
  forms::TextBox txtFile;
  forms::TextBox txtCommand;
  forms::CommandButton cmdOK;
  forms::Frame fraBrowse;
  forms::CommandButton cmdBrowseFiles;
  forms::CommandButton cmdBrowseFolders;
  forms::Frame fraSelect;
  forms::CheckBox chkSelect0;
  forms::CheckBox chkSelect1;
  forms::CommandButton cmdSave;
  forms::CommandButton cmdCancel;
  forms::Label lblMenuTree;
  forms::Label lblProperties;
  forms::Label lblTitle;
  forms::Label lblIcon;
  forms::Label lblFile;
  forms::FlatButton cmdLibrary;
  forms::FlatButton cmdAllFiles;
  forms::FlatButton cmdSelectFile;
  forms::FlatButton cmdSelectFolder;
  // A draft is offered.
  forms::FlatButton cmdShowDraft;
  forms::FlatButton cmdForgetDraft;
  /// Holds the tree off after an expansion.
  forms::Timer Timer1;
  /// Keeps what is not saved.
  forms::Timer tmrDraft;
  forms::Timer tmrEdits;  // runs once after an edit elsewhere

  CustEditor Editor;
  CustPopupState mnuPopup;

  bool ShiftDown = false;
  bool Browsing = false;
  bool PickIcon = false;
  bool FolderToCommandOnly = false;
  bool Dragging = false;
  std::string LastBrowseFolder;

 protected:
  void Form_Load() override;
  void Form_Unload() override;
  void Form_Resize() override;
  void Form_Activate() override;
  void Form_QueryClose() override;
  void Form_SessionEnd() override { EndSession(); }
  void Form_Menu(int line) override;
  void Form_MenuOpening(int line) override;
  void PeerGoing() override;

 private:
  using Command = bool (CustEditor::*)();
  enum class Field { Icon, Command };

  // CustHost.
  void Beep() override;
  int Say(std::string_view text, unsigned flags) override;
  bool FileExists(std::string_view path) override;
  bool IsPlainFolder(std::string_view path) override;
  std::vector<DroppedName> NamesOf(const std::vector<std::string>& paths) override;
  std::string RecentFolder() override;

  // Loading and layout (frmCust.cpp).
  void InitCustToolbar();
  void WireControls();
  bool InitMenuTree();
  void PlaceControls();

  // Showing the editor (frmCustTree.cpp).
  void WireTree();
  /// Boxes, selection and enabled state follow the editor.
  void ShowState();
  void ShowBoxes();
  /// The node can be seen; what is around it opens.
  void ShowNode(CustRef node);
  void TakeBoxes();
  /// Runs a command of the editor and shows what came of it.
  void Run(Command command);
  void StartGuard();
  void Timer1_Timer();
  [[nodiscard]] bool TreeHeld() const { return Browsing || Timer1.Enabled(); }
  void TreeView1_NodeClick(CustRef node);
  void TreeView1_Expand(CustRef node);
  void TreeView1_Collapse();
  bool TreeView1_KeyDown(int keyCode, forms::ShiftState shift);
  void TreeView1_DragOver(CustRef target);
  void TreeView1_DragDrop(CustRef target);
  void EndDrag();
  void TreeView1_OLEDragOver(const forms::DragData& data, forms::DropEffect& effect);
  void TreeView1_OLEDragDrop(const forms::DragData& data, forms::DropEffect& effect);
  [[nodiscard]] bool InTree(float x, float y) const;
  void TakeAddress();

  // The boxes (frmCustBoxes.cpp).
  void WireBoxes();
  void cmdOK_Click();
  void Browse(bool files);
  void ShowAddFileMsg();
  void AddFiles();
  /// Tells the user, once the current event is over, that these files were not taken.
  void TellRefused(const std::vector<std::string>& files);
  /// The path as a record can hold it; empty, after a message, when none can hold it.
  [[nodiscard]] std::string PathToStore(const std::string& path);
  void SelectFolder();
  void SelectFile();
  [[nodiscard]] std::string StartFolder() const;
  [[nodiscard]] std::string FolderLink(const forms::FolderChoice& choice);
  /// Fills a box from a file or folder, for the key F2 in it or the button beside it.
  void FillBox(Field field, bool folder);
  void ShowLibrary();
  /// False, and the message, for a separator; false for a root.
  bool MayFill();
  void StopGuard();

  // Menus (frmCustMenus.cpp).
  void MakeMenuBar();
  void ShowTreeMenu(float x, float y, bool byKey);
  void AddPopupLines(MenuMaker& menu);
  void RunPopupLine(PopupLine line);
  void Toolbar1_ButtonClick(const std::string& key);
  void StartRename();
  void BeginFind();
  void FindNext();
  void NextMissing();
  void SelectFound(CustRef found);
  void RunEntry();

  // The Options menu (frmCustOptions.cpp).
  void AddOptionLines(MenuMaker& menu);
  void ChooseOption(CustOption option);
  void FlipOption(Option option);
  void LookForBrowser();
  void ChooseWebIcon(bool custom);
  void ChooseBrowser(bool own);
  void SetLargeIcons();
  void SetSmallSingles();
  [[nodiscard]] std::string AskOneFile(std::string_view title, std::string_view startFolder);

  // Saving, closing and the draft (frmCustSave.cpp).
  void cmdSave_Click();
  /// False when the files are not those of the tree.
  bool SaveTree();
  /// Takes what was changed elsewhere into the tree. False when an entry was changed on both sides;
  /// then nothing is taken.
  void TakeEditsMadeElsewhere();
  bool Merge();
  bool SettleConflict(const MenusStamp& theirs);
  /// Writes the tree over the files of the last reading.
  SaveResult WriteTree(DraftsAround& around);
  void TakeSaved(SaveResult result, DraftsAround around);
  void Recover(const std::string& message);
  void RefreshStrip();
  /// False: the user wants to go on.
  bool AskToSave(bool canStay);
  [[nodiscard]] bool Unsaved() const;
  /// Keeps what is not saved. False when that cannot be written.
  bool KeepDraft();
  /// Keeps it for good, before the window goes. False: the user wants to go on.
  bool SettleUnsaved(bool canStay);
  void ForgetTheDraft();
  void ShowOffer();
  void ShowDraft();
  void ShowSet(const MenuSet& set);
  void ShowFiles();

  CustParts with_;
  CustTreeControl tree_;
  MenuMaker menuBar_;
  std::unique_ptr<DraftKeeper> keeper_;
  MenuFiles files_;                  // as they were read or saved last
  std::optional<MenuFiles> theirs_;  // as they are now, where that could not come into the tree
  long shownAt_ = 0;                 // revision of the tree that those files hold
  long keptAt_ = 0;                  // revision in the draft
  bool ownBrowser_ = false;          // the user has chosen one
  bool finding_ = false;
  bool arranging_ = false;
  bool messageWaits_ = false;  // the message of a drop on a root
  // A web address that was dropped and not dealt with yet, with its title if the source had one.
  std::string address_;
  std::string addressTitle_;
};

}  // namespace corvelle
