#pragma once

#include <string_view>

#include "platform/FileSystem.h"
#include "properties/ButtonOrder.h"

namespace corvelle {

class CodePage;

// The order of the menu buttons on the disk, which is that of their files' names. `menusPath` ends
// in a backslash.

/// Fills the list with the buttons of the folder; the error is that of a folder that cannot be
/// listed.
FileStatus LoadButtons(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                       ButtonOrder& order);

enum class OrderResult {
  Applied,
  Outdated,  // the folder does not hold these buttons any more; nothing was done
  Failed,    // the disk refused; all files are what they were
};

struct OrderOutcome {
  OrderResult Result = OrderResult::Applied;
  FileError Reason = FileError::Failed;  // of a failure
};

/// Numbers the files from 001 on in the order of the list and hides and shows the buttons by their
/// boxes, all of it or nothing, even when the program ends meanwhile. The list leads to the new
/// files then.
OrderOutcome ApplyButtonOrder(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                              ButtonOrder& order);

}  // namespace corvelle
