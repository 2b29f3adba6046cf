#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/LaunchParts.h"
#include "core/RecordEdits.h"
#include "core/WindowPorts.h"

namespace corvelle {

class CodePage;
class EntryCommands;
class Input;
struct GuardFlags;
struct MenuState;

/// What the popup works with. All of it outlives it.
struct PopupParts {
  EntryEdit& Entry;
  EntryCommands& Commands;
  FileSystem& Files;
  const CodePage& Ansi;
  const WindowPorts& Ports;
  GuardFlags& Guards;
  const MenuState& Menu;
  const Input& Pointer;
  LaunchParts Launch;
};

/// The popup menu of right clicks. Its commands act on the entry that is current (EntryEdit)
/// when they begin.
class Popup final : public PopupPort {
 public:
  explicit Popup(const PopupParts& with);

  void ShowToolbarPopup(EntryEdit entry) override;

  /// Fills the lines for the current entry.
  void DoButtonMenu();
  /// Carries out the command of line `index`, by its tag. A tag that is no command does nothing.
  void mnuItem_Click(int index);
  /// Empties the lines for the next use.
  void ClearButtonMenu();

  /// The lines that can be used; line 0 is never shown.
  static constexpr int ItemCount = 20;
  struct Element {
    std::string Caption;
    std::string Tag;  // names the command
    bool Visible = false;
    bool Enabled = true;
    bool Checked = false;
  };
  std::vector<Element> mnuItem;

 private:
  [[nodiscard]] int LetChoose();

  // The commands (PopupCommands.cpp).
  using Command = void (Popup::*)();
  [[nodiscard]] static Command CommandOf(const std::string& tag);
  void ShowIconLibrary();
  void OpenEntry();
  void Refresh();
  void CutEntry();
  void CopyCurrentEntry();
  void PasteEntry();
  void DeleteEntry();
  void DeleteSeparator();
  void UndoDelete();
  void AddButton();
  void InsertMenuItem();
  void InsertSeparator();
  void OpenFolder();
  void CloseFolder();
  void ShowProperties();
  void ShowFolderProperties();

  void Insert(const MenuRecord& record);
  void AfterFolderEdit(EditOutcome outcome, const EntryEdit& entry);
  void Settle(EditOutcome outcome, const std::string& file);
  void ShowError(std::string_view path, FileError error);

  PopupParts with_;
  bool busy_ = false;
};

}  // namespace corvelle
