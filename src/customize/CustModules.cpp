#include "customize/CustModules.h"

namespace corvelle {

namespace {

constexpr CustModuleTexts kModules[] = {
    {CustModule::DesktopItems, "Desktop Items", R"(\icons\desktop.ico)", "CSIDL_DESKTOP"},
    {CustModule::ControlPanel, "Control Panel", R"(\icons\ctrpanel.ico)", "CSIDL_CONTROLS"},
    {CustModule::Printers, "Printers", R"(\icons\PRINTFLD.ICO)", "CSIDL_PRINTERS"},
    {CustModule::Documents, "Recent Documents Folder", "", ""},
    {CustModule::NetSearch, "Net Search", R"(\icons\netsrch.ico)", "NetSearch"},
    {CustModule::FileFind, "Find Files", R"(\icons\filefind.ico)", "FileFind"},
    {CustModule::FindComputer, "Find Computer", R"(\icons\comp02.ico)", "FindComputer"},
    {CustModule::RunDialog, "Run", R"(\icons\app02.ico)", "RunDialog"},
    {CustModule::MinimizeAllWindows, "Minimize All Windows", R"(\icons\taskbar.ico)",
     "MinimizeAllWindows"},
    {CustModule::UndoMinimizeAll, "Undo Minimize All", R"(\icons\Windows.ico)", "UndoMinimizeAll"},
    {CustModule::ClearTempFiles, "Delete Temporary Files", R"(\icons\delfiles.ico)",
     "ClearTempFolder"},
    {CustModule::ClearDocuments, "Clear Documents Menu", R"(\icons\Recycle2.ico)",
     "ClearRecentDocs"},
};

}  // namespace

std::span<const CustModuleTexts> CustModuleTable() noexcept { return kModules; }

}  // namespace corvelle
