#pragma once

#include "forms/FileDialogs.h"

namespace corvelle {

class MessageBoxes;
namespace forms {
class Form;
}

/// Shows the system's dialog for files over a form, and says so when it fails: nothing is chosen
/// then. The form may be unloaded when it returns.
[[nodiscard]] forms::FileChoice AskFiles(const forms::Form& owner, MessageBoxes& messages,
                                         const forms::FileQuestion& question);

}  // namespace corvelle
