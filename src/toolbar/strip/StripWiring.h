#pragma once

#include "toolbar/companion/DragImage.h"
#include "toolbar/companion/Popup.h"
#include "toolbar/companion/frmMinimize.h"
#include "toolbar/docking/StripHiding.h"
#include "toolbar/docking/StripPull.h"
#include "toolbar/docking/frmImage.h"
#include "toolbar/docking/mAppBar.h"
#include "toolbar/notices/frmHelp.h"
#include "toolbar/notices/frmStartup.h"
#include "toolbar/notices/frmTip.h"
#include "toolbar/singles/SingleRow.h"
#include "toolbar/strip/ButtonRow.h"
#include "toolbar/strip/MenuTracking.h"
#include "toolbar/strip/StripDrops.h"

namespace corvelle {

class Program;

// What each part of the strip, and each window beside it, gets of a program. The program outlives
// them.

[[nodiscard]] ButtonRowParts ButtonRowPartsOf(Program& program);
[[nodiscard]] PullParts PullPartsOf(Program& program);
[[nodiscard]] HidingParts HidingPartsOf(Program& program);
[[nodiscard]] TrackingParts TrackingPartsOf(Program& program);
[[nodiscard]] DateParts DatePartsOf(Program& program);
[[nodiscard]] SingleRowParts SingleRowPartsOf(Program& program);
[[nodiscard]] StripDropParts StripDropPartsOf(Program& program);

[[nodiscard]] AppBarParts AppBarPartsOf(Program& program);
[[nodiscard]] StillPictureParts StillPicturePartsOf(Program& program);
[[nodiscard]] CompanionParts CompanionPartsOf(Program& program);
[[nodiscard]] PopupParts PopupPartsOf(Program& program);
[[nodiscard]] DragImageParts DragImagePartsOf(Program& program);
[[nodiscard]] HintParts HintPartsOf(Program& program);
[[nodiscard]] StartupParts StartupPartsOf(Program& program);
[[nodiscard]] TipParts TipPartsOf(Program& program);

}  // namespace corvelle
