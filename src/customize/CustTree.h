#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "customize/MenuSet.h"

namespace corvelle {

/// A node of the tree of menus, for as long as the window is loaded: given once and never again,
/// whatever becomes of the node's key.
using CustRef = int;
inline constexpr CustRef kNoRef = 0;
inline constexpr CustRef kMenusRoot = 1;    // "Menu Buttons"
inline constexpr CustRef kSinglesRoot = 2;  // "Single Buttons"

/// The two texts of an entry beside its title.
struct clsFile {
  std::string FileName;  // the icon
  std::string FileExe;   // the command

  friend bool operator==(const clsFile&, const clsFile&) = default;
};

/// What is drawn before a node's text.
struct NodePicture {
  enum class Kind {
    Root,     // of the two roots
    Unknown,  // not looked up yet
    Icon      // what the icon text stands for
  };
  Kind Shown = Kind::Unknown;
  std::string Icon;     // of Kind::Icon, trimmed
  bool Hidden = false;  // dimmed

  friend bool operator==(const NodePicture&, const NodePicture&) = default;
};

struct CustNode {
  std::string Key;  // empty for the placeholder that stands for items not read yet
  std::string Text;
  clsFile Entry;
  NodePicture Picture;
  std::string Tag;  // not blank: there is work left for the first expansion

  friend bool operator==(const CustNode&, const CustNode&) = default;
};

/// Where a node is: number `Index`, from 0, below `Parent`.
struct CustPlace {
  CustRef Parent = kNoRef;
  std::size_t Index = 0;

  friend bool operator==(const CustPlace&, const CustPlace&) = default;
};

/// One change of the tree, which can be taken back and made again.
struct TreeChange {
  enum class Kind { Add, Remove, Move, Set, Reorder };
  Kind What = Kind::Set;
  CustRef Node = kNoRef;  // the parent, of a new order
  CustPlace From;         // of Remove and Move
  CustPlace To;           // of Add and Move: the place once the node has left its old one
  CustNode Before;        // of Set
  CustNode After;
  std::vector<CustRef> OldOrder;  // of Reorder
  std::vector<CustRef> NewOrder;
};

/// Who shows the tree. Told after each change; not of the nodes below one that comes or goes.
class CustTreeView {
 public:
  virtual ~CustTreeView() = default;

  /// All that was shown is gone.
  virtual void TreeCleared() = 0;
  virtual void NodeAdded(CustRef node) = 0;
  /// It is out of the tree and may come back.
  virtual void NodeRemoved(CustRef node) = 0;
  virtual void NodeMoved(CustRef node) = 0;
  virtual void NodeChanged(CustRef node) = 0;
  virtual void ChildrenReordered(CustRef parent) = 0;
};

/// Who keeps the changes, to take them back.
class TreeRecorder {
 public:
  virtual ~TreeRecorder() = default;
  virtual void Record(TreeChange change) = 0;
};

/// The tree of the Customize window: two roots, the buttons below them and the items of the menus,
/// with their keys and texts. It asks nothing of the disk and knows no window. Questions about a
/// node that is not there give kNoRef, empty or nothing.
class CustTree {
 public:
  void SetView(CustTreeView* view) noexcept { view_ = view; }
  void SetRecorder(TreeRecorder* recorder) noexcept { recorder_ = recorder; }

  // Filling. No change is recorded.

  /// The two roots, with the tags of a window that has just opened, and nothing else; the numbers
  /// of keys begin again. `program` is the path of the executable.
  void Clear(std::string_view program);
  /// The menu buttons and single buttons with the pictures of nodes not expanded yet. A menu with
  /// items gets a placeholder for them. The tag of each is its file's path below `menusPath`.
  void InitMenuTree(const MenuSet& set, std::string_view program, std::string_view menusPath);
  /// Puts the items of a menu button in the place of its placeholder.
  void LoadMenuItems(CustRef menu);
  [[nodiscard]] bool HasPlaceholder(CustRef menu) const;
  void SetPicture(CustRef node, NodePicture picture);
  void SetTag(CustRef node, std::string tag);

  /// What would be saved, items behind placeholders included.
  [[nodiscard]] MenuSet ToMenuSet() const;

  // Asking.

  [[nodiscard]] const CustNode& At(CustRef node) const;
  [[nodiscard]] CustRef Parent(CustRef node) const;
  [[nodiscard]] const std::vector<CustRef>& Children(CustRef node) const;
  [[nodiscard]] CustRef Next(CustRef node) const { return Sibling(node, 1); }
  [[nodiscard]] CustRef Previous(CustRef node) const { return Sibling(node, -1); }
  [[nodiscard]] CustPlace PlaceOf(CustRef node) const;
  [[nodiscard]] bool IsInTree(CustRef node) const;
  /// The node of the tree with this key, ignoring case.
  [[nodiscard]] CustRef FindKey(std::string_view key) const;
  /// All nodes below the roots, each before its children, as the tree shows them when all is
  /// expanded.
  [[nodiscard]] std::vector<CustRef> InOrder() const;
  [[nodiscard]] bool IsRoot(CustRef node) const noexcept {
    return node == kMenusRoot || node == kSinglesRoot;
  }
  /// The nodes of the tree and those out of it that may come back.
  [[nodiscard]] std::size_t Known() const noexcept { return nodes_.size(); }
  /// Raised by each change, by taking back too.
  [[nodiscard]] long Revision() const noexcept { return revision_; }
  [[nodiscard]] int MenuNum() const noexcept { return menuNum_; }
  [[nodiscard]] int ItemNum() const noexcept { return itemNum_; }

  // Changing.

  /// A key that no node has had. The counter is raised even if nobody uses the key.
  [[nodiscard]] std::string NewMenuKey();
  [[nodiscard]] std::string NewItemKey();

  /// An index past the end is the end.
  CustRef Add(CustPlace place, CustNode node);
  /// With all below it.
  void Remove(CustRef node);
  /// `to` as it is once the node has left its old place.
  void Move(CustRef node, CustPlace to);
  void Set(CustRef node, CustNode content);
  /// Into alphabetical order ignoring case; equal ones stay as they are.
  void SortChildren(CustRef parent);

  /// Takes a recorded change back, or makes it again.
  void TakeBack(const TreeChange& change);
  void MakeAgain(const TreeChange& change);
  /// A node that is out of the tree will not come back. In the tree it stays.
  void Forget(CustRef node);

 private:
  struct Item {
    CustNode Content;
    CustRef Parent = kNoRef;  // none while it is out of the tree
    std::vector<CustRef> Children;
    std::vector<MenuRecord> Waiting;  // the items that a placeholder stands for
  };

  [[nodiscard]] const Item* Find(CustRef node) const;
  [[nodiscard]] Item* Find(CustRef node);
  [[nodiscard]] CustRef Sibling(CustRef node, int step) const;
  CustRef NewNode(CustNode content);
  void Attach(CustRef node, CustPlace place);
  void Detach(CustRef node);
  void Carry(CustRef node, CustPlace to);
  void Put(CustRef node, const CustNode& content);
  void Order(CustRef parent, std::vector<CustRef> children);
  void Drop(CustRef node);
  void Record(TreeChange change);

  std::unordered_map<CustRef, Item> nodes_;
  std::unordered_map<std::string, CustRef> keys_;  // of all nodes, those out of the tree too
  CustRef last_ = kNoRef;
  int menuNum_ = 0;
  int itemNum_ = 0;
  long revision_ = 0;
  CustTreeView* view_ = nullptr;
  TreeRecorder* recorder_ = nullptr;
};

/// A record as a node's content, and back.
[[nodiscard]] CustNode NodeOf(const MenuRecord& record, std::string key);
[[nodiscard]] MenuRecord RecordOf(const CustNode& node);

}  // namespace corvelle
