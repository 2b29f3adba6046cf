#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Edge.h"
#include "core/IconSources.h"
#include "core/WindowPorts.h"
#include "desk/DeskRule.h"
#include "forms/CommandButton.h"
#include "forms/FlatButton.h"
#include "forms/Form.h"
#include "forms/Frame.h"
#include "forms/Graphic.h"
#include "forms/PictureBox.h"
#include "forms/TabStrip.h"
#include "forms/TextBox.h"
#include "forms/Timer.h"
#include "forms/TreeView.h"
#include "icons/AskedIcons.h"
#include "icons/TreeImages.h"
#include "launch/FileTitle.h"
#include "platform/Lookups.h"
#include "properties/ButtonOrder.h"
#include "properties/ItemEdit.h"
#include "properties/PreviewPlan.h"

namespace corvelle {

class CodePage;
class DesktopWindows;
class FileSystem;
class Input;
class MessageBoxes;
class ShellLinks;
class SlowQuestions;
struct EntryEdit;
struct GuardFlags;
struct ProgramPaths;
struct StripPlacement;

/// What the window works with. All of it outlives the window.
struct PropertiesParts {
  const IconSources& Icons;
  FileSystem& Files;
  const CodePage& Ansi;
  ShellLinks& Links;
  Input& Pointer;
  const DesktopWindows& Desktop;
  const ProgramPaths& Paths;
  const WindowPorts& Ports;
  MessageBoxes& Messages;
  const StripPlacement& Strip;
  GuardFlags& Guards;
  EntryEdit& Entry;
  SlowQuestions& Slow;
  FileTitles Titles;
};

/// The window in which one entry is edited in place, the menu buttons are ordered and hidden, and
/// the strip is sent to an edge of the screen. It works on the files: what is confirmed is on the
/// disk at once.
class frmProperties final : public forms::Form, public PropertiesPort, public IconBoxPort {
 public:
  explicit frmProperties(const PropertiesParts& with);

  void LoadWindow() override { Load(); }
  void UnloadWindow() override { Unload(); }
  [[nodiscard]] bool WindowLoaded() const override { return IsLoaded(); }
  void ShowProperties(std::string_view title, std::string_view icon,
                      std::string_view command) override;
  void HidePreview() override;

  forms::Form& BoxWindow() override { return *this; }
  void SetBrowsing(bool browsing) override { browsing_ = browsing; }
  void TakeIcon(std::string_view icon) override;

  /// Makes the current entry (EntryEdit) the one in the boxes.
  void SetFileItem(const MenuRecord& shown);
  /// Draws the icon of the box and puts the title beside it.
  void DrawIcon();

  forms::TabStrip TabStrip1;

  forms::PictureBox Picture1;  // the entry
  forms::PictureBox Pix;
  forms::Label Label1;
  forms::Label lblTitle;
  forms::Label lblIcon;
  forms::Label lblFile;
  forms::Label lblMissing;  // the mark of a command that leads nowhere
  forms::TextBox txtTitle;
  forms::TextBox txtIcon;
  forms::FlatButton cmdLibrary;
  forms::FlatButton cmdAllFiles;
  forms::TextBox txtCommand;
  forms::FlatButton cmdSelectFile;
  forms::FlatButton cmdSelectFolder;
  forms::Frame Frame1;
  forms::CommandButton cmdFile;
  forms::CommandButton cmdFolder;

  forms::PictureBox picButtons;  // the order of the buttons
  forms::TreeView TreeView1;
  forms::CommandButton cmdUp;
  forms::CommandButton cmdDown;
  forms::Label lblHint;  // what Apply would take from a button that is not shown
  forms::Label lblHintCommand;

  forms::PictureBox Picture2;  // the edges
  forms::PictureBox picScreen;
  forms::CommandButton cmdTop;
  forms::CommandButton cmdLeft;
  forms::CommandButton cmdRight;
  forms::CommandButton cmdBottom;

  forms::CommandButton cmdOK;
  forms::CommandButton cmdCancel;
  forms::CommandButton cmdApply;

  bool ButtonsTabShown = false;
  bool ButtonsTabLoaded = false;
  bool PositionTabLoaded = false;
  bool OrderApplied = false;

 protected:
  void Form_Load() override;
  void Form_Unload() override;
  void Form_KeyDown(int keyCode, forms::ShiftState shift) override;
  void Form_KeyPress(char32_t character) override;

 private:
  /// Brings the library or the dialog to the front that the user is to choose in.
  void ShowWhatIsOpen();
  void PlaceControls();
  void WireItem();
  void WireButtons();
  void WireEdges();
  void TabStrip1_Click();
  void ShowTab(const std::string& key);
  void FocusPage(const std::string& key);

  // ---- the entry (frmPropertiesItem.cpp) ----
  void EnableItem();
  void PaintIcon(PixelSize side, const IconLook& look);
  [[nodiscard]] MenuRecord Boxes() const;
  [[nodiscard]] bool BoxesChanged() const;
  /// False when the window stays open: it has told the user why, or there is nothing to save.
  bool ApplyItem();
  bool UpdateFileItem();
  void CancelFileItem();
  void ShowEdited();
  void ShowOutcome(const ItemOutcome& outcome);
  void ShowFileError(std::string_view path, FileError error);
  void AskTarget();
  void AskTargetSoon();
  void HearAnswer(const LookupAnswer& answer);

  // ---- what the boxes are filled from (frmPropertiesBrowse.cpp) ----
  bool txtIcon_KeyDown(int keyCode);
  bool txtCommand_KeyDown(int keyCode);
  void SelectCommandFile();
  void SelectCommandFolder();
  void SelectIconFile();
  void ShowLibrary();
  void cmdFile_Click();
  void cmdFolder_Click();
  void SetCommand(const std::optional<DroppedName>& chosen);
  void SetFileEntry(const std::optional<DroppedName>& chosen);
  /// The title and the path of what the user chooses. Nothing after Cancel, and, with a message,
  /// for a path that no record can hold.
  [[nodiscard]] std::optional<DroppedName> ShowOpenFile();
  [[nodiscard]] std::optional<DroppedName> ShowOpenFolder();
  /// Nothing, and a message, for a path that no record can hold.
  [[nodiscard]] std::optional<DroppedName> NameToStore(const std::string& path);
  [[nodiscard]] std::string LinkToFolder(const forms::FolderChoice& choice);

  // ---- the order of the buttons (frmPropertiesButtons.cpp) ----
  void LoadButtonsTab();
  void FillTree();
  [[nodiscard]] int NodeImage(const std::string& icon);
  /// Another picture for all nodes of an icon text.
  void TakeLateImage(const std::string& icon, const IconLook& look);
  [[nodiscard]] std::size_t IndexOf(forms::NodeId node) const;
  [[nodiscard]] forms::NodeId NodeAt(std::size_t index) const;
  void MoveButton(std::size_t to, std::size_t from);
  void cmdUp_Click();
  void cmdDown_Click();
  void ShowDropMark(const forms::TreeHit& hit);
  void TreeView1_DragDrop(const forms::TreeHit& hit, bool dropped);
  void TreeView1_DblClick(forms::NodeId node);
  void SetNodeChecked(forms::NodeId node, bool checked);
  void ShowLoss();
  bool ApplyOrder();

  // ---- the edges (frmPropertiesPosition.cpp) ----
  void LoadPositionTab();
  void DrawPreview();
  void ListDesktop();
  /// The small picture of a desktop that was listed, or could not be.
  void DrawDesktop(const desk::Reply& listed);
  void DrawStrip(std::optional<Edge> edge);
  [[nodiscard]] std::optional<Edge> EdgeInUse() const;
  void MoveToEdge(Edge edge);

  void cmdApply_Click();
  void cmdOK_Click();
  void cmdCancel_Click();
  bool Apply();
  void ShowHidingStrip();

  PropertiesParts with_;
  EditedItem item_;
  ButtonOrder order_;
  bool orderTouched_ = false;  // since the tab was filled or applied
  forms::NodeId dragNode_ = forms::kNoNode;
  AskedIcons icon_;  // of the entry
  AskedIcons nodeIcons_;
  TreeImages nodeImages_;
  std::map<std::string, int, std::less<>> images_;  // of the tree, by their icon texts
  PreviewScene scene_;
  Picture desktop_;  // the small picture without the strip
  std::uint64_t desktopAsked_ = 0;
  std::optional<Edge> shownEdge_;
  forms::Timer tmrEdge_;
  forms::Timer tmrTarget_;
  int targetsLeft_ = 0;  // questions about the command without an answer
  std::uint64_t targetAsked_ = 0;
  std::string lastFolder_;
  std::string lastBrowseFolder_;
  bool browsing_ = false;  // the user chooses in a dialog or the library
  bool busy_ = false;      // a change is carried out
};

}  // namespace corvelle
