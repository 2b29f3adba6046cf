#include <gtest/gtest.h>

#include "e2e/DeskFiles.h"
#include "e2e/WineDesk.h"
#include "scenario/Strip.h"

// Libraries of the system's names that somebody has put beside the program.

namespace corvelle::e2e {
namespace {

constexpr wchar_t kProgramFolder[] = L"C:\\Corvelle\\";
constexpr wchar_t kPlanted[] = L"C:\\e2e\\planted.dll";
// Libraries that are not known to the system by heart, and that are loaded while programs run.
// (Those that Wine's own user32 needs at once, such as version.dll, cannot be asked for: Windows
// has them from elsewhere.)
constexpr const wchar_t* kNames[] = {L"comctl32.dll", L"uxtheme.dll", L"dbghelp.dll", L"winmm.dll",
                                     L"propsys.dll"};

/// Wine takes its own libraries first unless it is told otherwise, for one program.
void PreferFiles(const wchar_t* program, const wchar_t* library) {
  const std::wstring key =
      std::wstring(L"Software\\Wine\\AppDefaults\\") + program + L"\\DllOverrides";
  const std::wstring name(library, wcslen(library) - 4);
  constexpr wchar_t kOrder[] = L"native,builtin";
  ASSERT_EQ(
      RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), name.c_str(), REG_SZ, kOrder, sizeof kOrder),
      ERROR_SUCCESS);
}

std::vector<std::wstring> Loaded() { return FilesIn(kProgramFolder, L"*.loaded"); }

void RunNaive(const wchar_t* library) {
  STARTUPINFOW start = {};
  start.cb = sizeof(start);
  PROCESS_INFORMATION process = {};
  const std::wstring program = std::wstring(kProgramFolder) + L"naive.exe";
  std::wstring command = L"\"" + program + L"\" " + library;
  ASSERT_NE(CreateProcessW(program.c_str(), command.data(), nullptr, nullptr, FALSE, 0, nullptr,
                           kProgramFolder, &start, &process),
            FALSE);
  WaitForSingleObject(process.hProcess, 10000);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
}

TEST(PlantedLibraries, TheProgramLoadsNoneFromItsOwnFolder) {
  WineDesk desk;
  ASSERT_NE(CopyFileW(L"C:\\e2e\\naive.exe", L"C:\\Corvelle\\naive.exe", FALSE), FALSE);
  for (const wchar_t* name : kNames) {
    ASSERT_NE(CopyFileW(kPlanted, (std::wstring(kProgramFolder) + name).c_str(), FALSE), FALSE);
    PreferFiles(L"corvelle.exe", name);
    PreferFiles(L"naive.exe", name);
  }
  // What a program without that care does: each of them is a trap that closes.
  for (const wchar_t* name : kNames) RunNaive(name);
  const std::vector<std::wstring> traps = Loaded();
  EXPECT_EQ(traps.size(), std::size(kNames));
  for (const std::wstring& trap : traps) DeleteFileW((kProgramFolder + trap).c_str());

  desk.WriteFile(scenario::kFlagsFile, scenario::InstalledFlags());
  scenario::WriteMenu(desk, 1, "One", {scenario::Witness(desk, "one")});
  desk.MovePointer(scenario::FarAway(desk));
  ASSERT_TRUE(scenario::StartAndWait(desk));
  ASSERT_TRUE(scenario::OpenMenu(desk, 2));
  scenario::ClickItem(desk, scenario::ItemMiddle(desk, 1, 1));
  ASSERT_TRUE(desk.Wait([&] { return !desk.Launched().empty(); }, 8000));
  ASSERT_TRUE(scenario::CloseAndWait(desk));
  for (const std::wstring& name : Loaded()) {
    ADD_FAILURE() << std::string(name.begin(), name.end());
  }
}

}  // namespace
}  // namespace corvelle::e2e
