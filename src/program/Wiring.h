#pragma once

#include "about/DefaultEntries.h"
#include "about/frmAbout.h"
#include "search/frmNetSearch.h"
#include "weblink/frmURL.h"

namespace corvelle {

class Program;

// What the windows that belong to no room with a file like this one get of a program, which
// outlives them.

[[nodiscard]] DefaultEntryParts DefaultEntryPartsOf(Program& program);
[[nodiscard]] AboutParts AboutPartsOf(Program& program);
[[nodiscard]] NetSearchParts NetSearchPartsOf(Program& program);
[[nodiscard]] WebLinkParts WebLinkPartsOf(Program& program);

}  // namespace corvelle
