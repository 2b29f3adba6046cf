#include "core/AskFiles.h"

#include "core/MessageBoxes.h"
#include "forms/Form.h"

namespace corvelle {

forms::FileChoice AskFiles(const forms::Form& owner, MessageBoxes& messages,
                           const forms::FileQuestion& question) {
  forms::FileChoice choice = owner.Windows().AskFiles(owner.hWnd(), question);
  if (choice.Failed && owner.IsLoaded()) {
    messages.Say(owner.hWnd(), "Unable to access the selected files.",
                 forms::msgbox::IconInformation);
  }
  return choice;
}

}  // namespace corvelle
