#include "customize/CustOptions.h"

namespace corvelle {

namespace {

using enum CustOption;

constexpr CustOptionLine kGapLine{Gap, "-"};

constexpr CustOptionLine kLines[] = {
    {KeepOnTop, "Keep Toolbar On Top of Full Screen Applications", Option::AboveFullScreen},
    {StartupScreen, "Show Startup Screen", Option::NoStartupScreen, false},
    {LeaveExtension, "Leave Extension in File Title", Option::KeepExtension},
    kGapLine,
    {SingleClick, "Activate Single Buttons with Single Click", Option::SingleClick},
    {DoubleClick, "Activate Single Buttons with Double Click", Option::SingleClick, false},
    {SmallSingles, "Always Show Single Buttons with Small Icons", Option::SmallSingles},
    kGapLine,
    {CustomWebIcon, "Use Custom Icon for Web Links Entries", Option::OwnWebLinkIcon},
    {DefaultWebIcon, "Use Default HTML Icon for Web Links Entries", Option::OwnWebLinkIcon, false},
    {WebLinkDialog, "Show Web Link Dialog (URL Drag && Drop)", Option::NoWebLinkDialog, false},
    kGapLine,
    {AlternateBrowser, "Use Alternative Internet Browser"},
    {DefaultBrowser, "Use Default Internet Browser"},
    kGapLine,
    {AdjustLeft, "Auto Adjust Toolbar Left Position (Restore Mode)", Option::MayPassLeft, false},
    {AdjustRight, "Auto Adjust Toolbar Right Position (Restore Mode)", Option::MayPassRight, false},
    {LargeIcons, "Show Large Icons in Restore/Normal Mode", Option::LargeInRestoreMode},
    {ShowDate, "Show Date in Full Screen Mode (Top/Bottom)", Option::ShowDate},
    {DisableHints, "Dsiable Toobar Tooltip (Icon Hint)", Option::NoHints},
    kGapLine,
    {SystemPopup, "Ctrl + Right Click Activates System Popup Menu", Option::SystemPopupWithCtrl},
    {OwnPopup, "Ctrl + Right Click Activates Corvelle Popup Menu", Option::SystemPopupWithCtrl,
     false},
    kGapLine,
    {SetStartup, "Set Corvelle as a Startup Program"},
    {RemoveStartup, "Remove Corvelle from the Startup Folder"},
    kGapLine,
    {ResetTips, "Reset Help Tip Dialog"},
};

}  // namespace

std::span<const CustOptionLine> CustOptionLines() noexcept { return kLines; }

bool IsChecked(const CustOptionLine& line, const OptionFlags& flags, bool ownBrowser) {
  if (line.Line == AlternateBrowser) return ownBrowser;
  if (line.Line == DefaultBrowser) return !ownBrowser;
  return line.Shows && flags.Is(*line.Shows) == line.CheckedAt;
}

}  // namespace corvelle
