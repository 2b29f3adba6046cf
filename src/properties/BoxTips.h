#pragma once

#include <string_view>

#include "core/OptionFlags.h"

namespace corvelle {

/// A notice about a box for an entry, shown until the user dismisses it.
struct BoxTip {
  Option Field;  // keeps it away
  std::string_view Title;
  std::string_view Text;
};

inline constexpr BoxTip kCommandTip{
    Option::SelectFileTipDone, "Select File/Folder",
    "This option is useful for custom entries where you have an icon file different from the "
    "executable file. You can also enter a web site address here, for example "
    "http://www.example.com. See the Help file for more information.\r\n\r\n"
    "The returned result will be inserted in the File entry box. It will not affect entries in the "
    "Title or Icon field.\r\n\r\n"
    "Entry in this field is not required for Menu Buttons."};

inline constexpr BoxTip kIconFileTip{
    Option::OtherFilesTipDone, "Other Files Icons",
    "You can select an icon from any file in your hard disk that has an icon in the Windows "
    "Explorer. It dosn't have to be an actual icon file. Use icons from other files for the "
    "toolbar buttons and for entries that do not have icons such as DOS programs and custom "
    "commands.\r\n\r\n"
    "All Windows programs have built-in icons. You don't need to specify a different icon for an "
    "application that already has one unless you want to do so."};

inline constexpr BoxTip kLibraryTip{
    Option::IconLibraryTipDone, "Icon Library",
    "Use icons from the library for the toolbar buttons and for applications that do not have "
    "icons such as DOS programs and custom commands. \r\n\r\n"
    "All Windows programs have built-in icons. You don't have to specify a different icon for an "
    "application that already has one unless you want to do so."};

}  // namespace corvelle
