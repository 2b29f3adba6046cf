#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/DroppedFiles.h"
#include "customize/CustHistory.h"
#include "customize/CustModules.h"
#include "customize/CustTree.h"

namespace corvelle {

struct MergedSet;

/// What the editor asks of the world around it.
class CustHost {
 public:
  virtual ~CustHost() = default;

  virtual void Beep() = 0;
  /// A message box with the application's title, flags and answer as those of MessageBox. The
  /// window may be closed before it returns.
  virtual int Say(std::string_view text, unsigned flags) = 0;
  /// True for a file; a folder is not a file.
  [[nodiscard]] virtual bool FileExists(std::string_view path) = 0;
  [[nodiscard]] virtual bool IsPlainFolder(std::string_view path) = 0;
  /// The titles of new entries for files, and their paths as records can hold them, in that order.
  [[nodiscard]] virtual std::vector<DroppedName> NamesOf(const std::vector<std::string>& paths) = 0;
  /// The folder of recent documents, with a backslash at its end.
  [[nodiscard]] virtual std::string RecentFolder() = 0;
};

/// What the three entry boxes show.
struct EntryBoxes {
  std::string txtTitle;
  std::string txtFile;     // the icon
  std::string txtCommand;  // under the label "File"
  bool Enabled = false;    // and all that belongs to an entry

  friend bool operator==(const EntryBoxes&, const EntryBoxes&) = default;
};

/// An item of the last deletion.
struct clsUndo {
  std::string Key;  // that the item had
  std::string FileTitle;
  std::string FileName;
  std::string FileExe;
};

inline constexpr std::string_view kSeparatorMsg =
    "Separator cannot be edited. Click the Add File or Folder button to replace it.";

/// The tree of the Customize window with its selection, its entry boxes and its commands; all that
/// the window does but for showing it. A command that has nothing to do beeps and answers false.
/// What the user typed is put into Boxes before a command.
class CustEditor {
 public:
  explicit CustEditor(CustHost& host) : host_(host) {}
  CustEditor(const CustEditor&) = delete;
  CustEditor& operator=(const CustEditor&) = delete;

  CustTree Tree;
  CustHistory History{Tree};
  EntryBoxes Boxes;

  std::vector<clsUndo> colUndo;  // the deleted node, then its children
  std::string UndoPrevKey;       // where it was: behind this node,
  std::string UndoParentKey;     // or first below this one
  CustRef CurIndex = kMenusRoot;
  CustRef DragNode = kNoRef;
  std::string ClipNodeTitle, ClipFileName, ClipFileExe;
  bool SavingNow = false;    // from the first save on
  bool InsertAfter = false;  // inserted entries go behind the selected one
  bool AddingEntry = false;  // a separator may be overwritten
  bool TreeChanged = false;  // there is something to save
  std::string LastFolder;    // of the last chosen file

  /// A window that opens: the tree as it was read, nothing selected but the first root.
  void InitMenuTree(const MenuSet& set, std::string_view program, std::string_view menusPath);
  /// The window is closed: a command that waits for an answer does not go on.
  void Close();

  [[nodiscard]] CustRef Selected() const noexcept { return selected_; }
  void Select(CustRef node) noexcept;
  [[nodiscard]] bool OnRoot() const noexcept { return Tree.IsRoot(selected_); }
  [[nodiscard]] bool IsSeparator(CustRef node) const;

  /// The node opened in the tree for the first time: pictures, and the items of all menus below the
  /// first root.
  void Expand(CustRef node);
  void SetNodeIcon(std::string_view icon, CustRef node, bool hidden);

  /// The boxes show the selected node.
  void UpdateEntryBoxes();
  /// Takes the boxes into the selected node.
  bool cmdOK();
  /// The user typed a new label. False when the node keeps its own.
  bool AfterLabelEdit(CustRef node, std::string_view text);

  bool AddButton();
  bool InsertButton();
  bool AddMenuItem();
  bool InsertMenuItem();
  /// Add Menu Item, or where none can be Add Button.
  bool AddWhatFits();
  bool InsertSeparator();
  bool HideButton();
  bool SortNode();
  bool Copy();
  bool Cut();
  bool Paste();
  bool Delete();
  bool UndoDelete();
  bool InsertModule(CustModule module);
  /// The node and all below it once more, behind it.
  bool Duplicate();

  bool MoveSelectionUp();
  bool MoveSelectionDown();
  /// DragNode goes to the node at CurIndex; with `copy` another one like it. `after` means behind
  /// it, otherwise before it or, at a node that it fits into, to the end of what is below.
  bool MoveItemNode(bool after, bool copy = false);
  bool MoveMenuNode(bool after, bool copy = false);
  /// The one of the two that fits DragNode.
  bool MoveNode(bool after, bool copy = false);
  /// Where DragNode would come; nothing where it cannot go.
  [[nodiscard]] std::optional<CustPlace> PlaceAt(CustRef node, CustRef target, bool after) const;

  /// Files chosen in a dialog: the first replaces the selected entry, the others come behind it.
  /// Gives those that no record can hold, which are left out.
  std::vector<std::string> AddFiles(const std::vector<std::string>& paths);
  /// Files dropped by another program: they replace the selected entry and come before it, sorted.
  /// A menu button takes the first one only. Not for a root. Gives those that are left out.
  std::vector<std::string> DropFiles(std::vector<std::string> names);
  /// A web address dropped by another program.
  void DropAddress(std::string_view address, std::string_view title);

  /// Makes the tree what it was merged to with edits made elsewhere, in one step; nodes that stay
  /// are the same nodes.
  void TakeMerged(const MergedSet& merged);

  /// The last change, or the one taken back, whatever it was.
  bool Undo();
  bool Redo();

  /// The node after the selected one that is such a one, the placeholders left out; from the
  /// beginning again after the end. kNoRef when there is no other than the selected one.
  [[nodiscard]] CustRef FindWhere(const std::function<bool(CustRef)>& isOne) const;
  /// The node after the selected one whose title, icon or command has the text, ignoring case; from
  /// the beginning again after the end. kNoRef when there is no other than the selected one.
  [[nodiscard]] CustRef Find(std::string_view text) const;

 private:
  enum class Side { Before, After };

  bool Refuse();
  [[nodiscard]] std::string Name(std::string_view command) const;
  [[nodiscard]] const std::string& KeyOf(CustRef node) const { return Tree.At(node).Key; }
  [[nodiscard]] bool IsSingle(CustRef node) const { return Tree.Parent(node) == kSinglesRoot; }
  /// An entry of a menu.
  [[nodiscard]] bool IsInMenu(CustRef node) const;
  [[nodiscard]] CustPlace Beside(CustRef node, Side side) const;
  [[nodiscard]] CustPlace LastOf(CustRef parent) const;
  [[nodiscard]] CustRef NextSelection() const;
  /// A new node with the texts of a record, selected and in the boxes.
  CustRef AddNew(CustPlace place, const MenuRecord& record, std::string key);
  void AddButtonAt(CustPlace place, std::string key);
  void TakeRow(CustRef parent, const std::vector<MenuRecord>& records,
               const std::vector<int>& origins);
  void SaveUndoItems();
  void TakeOut();
  /// Where the deleted node goes back to; nothing when the node that tells it is gone.
  [[nodiscard]] std::optional<CustPlace> UndoPlace() const;
  CustRef CopyOf(CustRef node, CustPlace place, std::string key);
  /// The entry boxes get a file, and the selected node with them.
  void SetFileEntry(std::string_view path, const DroppedName& name);
  std::vector<std::string> FillWithFiles(const std::vector<std::string>& paths);
  /// The end of a command that changed the tree: the node is selected and in the boxes.
  bool Settle(CustRef node);

  CustHost& host_;
  CustRef selected_ = kMenusRoot;
  int life_ = 0;  // another one after each opening and closing
};

}  // namespace corvelle
