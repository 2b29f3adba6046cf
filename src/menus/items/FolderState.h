#pragma once

namespace corvelle {

/// How far a question about a folder has got; the later, the worse.
enum class FolderState {
  Here,          // answered, or refused
  Reading,       // not at once
  BeingRead,     // for so long that the user should be told
  NotAvailable,  // it does not answer
};

}  // namespace corvelle
