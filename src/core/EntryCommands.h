#pragma once

#include <string_view>

#include "core/RecordEdits.h"
#include "platform/WindowId.h"

namespace corvelle {

class CodePage;
class MessageBoxes;
struct ProgramPaths;
struct WindowPorts;

/// What the editing commands work with. All of it outlives them.
struct EntryCommandParts {
  FileSystem& Files;
  const CodePage& Ansi;
  const ProgramPaths& Paths;
  const WindowPorts& Ports;
  MessageBoxes& Messages;
  EntryEdit& Entry;
};

/// The editing commands of the popup, of drags and of keys, on the entry that EntryEdit names when
/// they are called: what becomes current while they ask or let events run changes nothing. Each
/// leaves the file as it was when it fails, and says so itself but for a disk that refused: that is
/// the caller's to say or to pass over. What is done on the strip as a whole counts as edited. Each
/// tells of its edit (WindowPorts::TellMenusEdited).
class EntryCommands {
 public:
  explicit EntryCommands(const EntryCommandParts& with) : with_(with) {}

  /// Deletes or cuts the entry. A whole toolbar button is deleted only after a question, unless
  /// `skipConfirm` or during a drag, and cannot be brought back.
  EditOutcome DeleteItem(bool skipConfirm);

  /// Puts the clipboard's entry before the current one. Ends the chance of an undo.
  EditOutcome PasteItem();

  /// Puts the carried entry, the current one, down in the menu of `tag`: at `place`, taking it away
  /// from where it came unless `copies`. An entry that cannot be taken away stays there too; one
  /// that cannot be put down stays where it is. True if the menu of `tag` changed.
  bool DropItem(std::string_view tag, const DropPlace& place, bool copies);

  /// Puts the last deleted entry back at its place.
  EditOutcome UndoDeleteItem();

  /// True if a record can hold a copy of the current entry. Where its path is too long for that,
  /// the user is told which one it is.
  [[nodiscard]] bool MayBeCopied(WindowId owner);

  /// Tells the user that the file does not hold the entry any more.
  void SayRecordMismatch();

 private:
  [[nodiscard]] bool ConfirmsButtonDelete();
  /// Tells of an edit before anything is shown: what that lets run finds the news there.
  EditOutcome Told(const EditOutcome& outcome);
  template <class Edit>
  EditOutcome EditSingles(const Edit& edit);
  EditOutcome DeleteSingle(const EntryEdit& entry);
  EditOutcome DeleteButton(const EntryEdit& entry);
  EditOutcome DeleteMenuItem(const EntryEdit& entry);
  void RefreshAfterEdit(const EntryEdit& entry);
  void ShowSourceAfterMove(const EntryEdit& entry, const EditOutcome& outcome, float freeWidth);

  EntryCommandParts with_;
};

}  // namespace corvelle
