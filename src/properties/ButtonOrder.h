#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/MenuRecord.h"

namespace corvelle {

class CodePage;

// The list of menu buttons in the Properties window, in the order that the user gives them: pure
// rules. What the disk holds is in properties/OrderFiles.

/// A node's tag: the path of the button's file, a NUL, and "/h" for a button that is not shown.
[[nodiscard]] std::string NodeTag(std::string_view path, bool shown);
[[nodiscard]] std::string PathOfTag(std::string_view tag);
[[nodiscard]] bool IsShownByTag(std::string_view tag);

/// One menu button.
struct ButtonNode {
  std::string Key;  // "B" and a number that no other node of this window ever had
  std::string Tag;  // see NodeTag; brought up to date by CheckNodes
  std::string Title;
  std::string Icon;     // an icon text
  std::string Name;     // the third field of the record: "/h", nothing, or a command
  std::string Stored;   // the bytes of the button's record
  bool Checked = true;  // shown on the strip
};

/// A button's node as its file has it.
[[nodiscard]] ButtonNode MakeButtonNode(std::string_view path, std::string_view stored,
                                        const CodePage& ansi);

/// The third field that the record of a button gets: "/h" for one that is not shown; otherwise what
/// it is, but nothing instead of "/h".
[[nodiscard]] std::string NameFor(std::string_view name, bool shown);

/// The button's record with that third field. All its other bytes stay.
[[nodiscard]] std::string RecordFor(const ButtonNode& node, const CodePage& ansi);

/// True if hiding the button, as its box says, takes a command from it.
[[nodiscard]] bool LosesCommand(const ButtonNode& node);
/// What the user is told of such a button, in front of its command.
[[nodiscard]] std::string LossText(const ButtonNode& node);

/// The buttons from first to last. Indices are from 0.
class ButtonOrder {
 public:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  [[nodiscard]] const std::vector<ButtonNode>& Nodes() const noexcept { return nodes_; }
  [[nodiscard]] bool Empty() const noexcept { return nodes_.empty(); }
  /// kNone where no node has the key.
  [[nodiscard]] std::size_t Find(std::string_view key) const noexcept;

  void Clear();
  /// Adds a button behind the last one, and gives it its key.
  void Add(ButtonNode node);

  // Moves. The moved node gets a key of its own again. Each returns its new index, or kNone where
  // nothing moves: at the first or the last place, on itself, without such a node.
  std::size_t Up(std::size_t at);
  std::size_t Down(std::size_t at);
  /// The node takes the place of the one that it is dropped on.
  std::size_t Drop(std::size_t from, std::size_t target);

  void SetChecked(std::size_t at, bool checked);
  /// Copies the check boxes into the tags.
  void CheckNodes();

  /// The button whose file has that path; kNone without one.
  [[nodiscard]] std::size_t FindPath(std::string_view path) const noexcept;
  /// The key ("B" or "F" and a number) of a button, or of its menu, as the strip numbers those that
  /// it shows: 1 is the main menu's. `key` tells the letter; any other key stays.
  [[nodiscard]] std::string KeyOnStrip(std::string_view key, std::size_t at) const;

  /// The button's record holds these bytes. Its box stays as the user set it.
  void SetRecord(std::size_t at, std::string_view stored, const CodePage& ansi);
  /// The button's file is called so by now and its record holds these bytes.
  void SetFile(std::size_t at, std::string_view path, std::string_view stored,
               const CodePage& ansi);

 private:
  std::size_t MoveTo(std::size_t from, std::size_t to);

  std::vector<ButtonNode> nodes_;
  int NextMenuNum = 0;
};

}  // namespace corvelle
