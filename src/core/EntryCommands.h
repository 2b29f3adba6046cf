#pragma once

#include <string_view>

#include "core/RecordEdits.h"

namespace corvelle {

class Program;

// The editing commands of the popup, of drags and of keys, on the entry that Program::Entry names.
// Each settles its failures itself: it says what the user must know and leaves the file as it was.

/// Deletes or cuts the entry. A whole toolbar button is deleted only after a question, unless
/// `skipConfirm` or during a drag, and cannot be brought back.
void DeleteItem(Program& program, bool skipConfirm);

/// Puts the clipboard's entry before the current one. Ends the chance of an undo.
void PasteItem(Program& program);

/// Puts the carried entry, the current one, down in the menu of `tag`: at `place`, taking it away
/// from where it came unless `copies`. An entry that cannot be taken away stays there too; one that
/// cannot be put down stays where it is. True if the menu of `tag` changed.
bool DropItem(Program& program, std::string_view tag, const DropPlace& place, bool copies);

/// Puts the last deleted entry back at its place.
void UndoDeleteItem(Program& program);

}  // namespace corvelle
