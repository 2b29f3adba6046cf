#include "customize/CustOptions.h"

namespace corvelle {

namespace {

using enum CustOption;

constexpr CustOptionLine kGapLine{Gap, "-"};

constexpr CustOptionLine kLines[] = {
    {KeepOnTop, "Keep Toolbar On Top of Full Screen Applications", 4},
    {StartupScreen, "Show Startup Screen", 9, false},
    {LeaveExtension, "Leave Extension in File Title", 10},
    kGapLine,
    {SingleClick, "Activate Single Buttons with Single Click", 11},
    {DoubleClick, "Activate Single Buttons with Double Click", 11, false},
    {SmallSingles, "Always Show Single Buttons with Small Icons", 24},
    kGapLine,
    {CustomWebIcon, "Use Custom Icon for Web Links Entries", 12},
    {DefaultWebIcon, "Use Default HTML Icon for Web Links Entries", 12, false},
    {WebLinkDialog, "Show Web Link Dialog (URL Drag && Drop)", 18, false},
    kGapLine,
    {AlternateBrowser, "Use Alternative Internet Browser"},
    {DefaultBrowser, "Use Default Internet Browser"},
    kGapLine,
    {AdjustLeft, "Auto Adjust Toolbar Left Position (Restore Mode)", 27, false},
    {AdjustRight, "Auto Adjust Toolbar Right Position (Restore Mode)", 13, false},
    {LargeIcons, "Show Large Icons in Restore/Normal Mode", 25},
    {ShowDate, "Show Date in Full Screen Mode (Top/Bottom)", 21},
    {DisableHints, "Dsiable Toobar Tooltip (Icon Hint)", 22},
    kGapLine,
    {SystemPopup, "Ctrl + Right Click Activates System Popup Menu", 19},
    {OwnPopup, "Ctrl + Right Click Activates Corvelle Popup Menu", 19, false},
    kGapLine,
    {SetStartup, "Set Corvelle as a Startup Program"},
    {RemoveStartup, "Remove Corvelle from the Startup Folder"},
    kGapLine,
    {ResetTips, "Reset Help Tip Dialog"},
};

}  // namespace

std::span<const CustOptionLine> CustOptionLines() noexcept { return kLines; }

bool IsChecked(const CustOptionLine& line, const OptionFlags& flags, bool ownBrowser) {
  if (line.Option == AlternateBrowser) return ownBrowser;
  if (line.Option == DefaultBrowser) return !ownBrowser;
  return line.Position != 0 && flags.Is(line.Position) == line.CheckedAt;
}

}  // namespace corvelle
