#include <gtest/gtest.h>

#include <windows.h>
#include <memory>

#include <shellapi.h>

#include "TempFolder.h"
#include "platform/ShellContract.h"
#include "win32/UniqueHandle.h"
#include "win32/Win32CodePage.h"
#include "win32/Win32Files.h"
#include "win32/Win32Registry.h"
#include "win32/Win32ShellExec.h"
#include "win32/Win32ShellIcons.h"
#include "win32/Win32SystemInfo.h"
#include "win32/Win32WindowSystem.h"

namespace corvelle {
namespace {

/// Tells the number of the first resource that has one.
BOOL CALLBACK TakeNumber(HMODULE, LPCWSTR, LPWSTR name, LONG_PTR found) {
  if (!IS_INTRESOURCE(name)) return TRUE;
  *reinterpret_cast<int*>(found) = static_cast<int>(reinterpret_cast<ULONG_PTR>(name));
  return FALSE;
}

using win32::Narrow;
using win32::Wide;

constexpr wchar_t kKey[] = L"Software\\CorvelleContract";

/// The key of the test below HKEY_CURRENT_USER, for as long as a test needs it.
class TestKey {
 public:
  TestKey() {
    RegCreateKeyExW(HKEY_CURRENT_USER, kKey, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, key_.Receive(),
                    nullptr);
  }
  TestKey(const TestKey&) = delete;
  TestKey& operator=(const TestKey&) = delete;
  ~TestKey() {
    key_.Reset();
    RegDeleteKeyW(HKEY_CURRENT_USER, kKey);
  }

  void Set(const std::wstring& name, DWORD type, const void* data, std::size_t bytes) {
    RegSetValueExW(key_.Get(), name.c_str(), 0, type, static_cast<const BYTE*>(data),
                   static_cast<DWORD>(bytes));
  }

 private:
  win32::UniqueRegistryKey key_;
};

class RealShell final : public ContractShell {
 public:
  RealShell() {
    win32::Win32Files files;
    if (!files.Write(UnknownDocument(), "text")) ADD_FAILURE() << "no document";
  }
  ShellExec& Exec() override { return exec_; }
  ShellIcons& Icons() override { return icons_; }
  Registry& Keys() override { return keys_; }
  SystemInfo& System() override { return system_; }
  std::unique_ptr<Canvas> MakeCanvas(PixelSize size) override {
    return windows_.CreateCanvas(size);
  }
  std::string Program() override { return "C:\\windows\\system32\\hostname.exe"; }
  std::string UnknownDocument() override { return folder_.Path() + "Contract.qzx"; }
  std::string Folder() override { return folder_.Path(); }
  std::string IconFile() override { return "C:\\windows\\notepad.exe"; }
  int IconCount() override {
    return static_cast<int>(ExtractIconExW(Wide(IconFile()).c_str(), -1, nullptr, nullptr, 0));
  }
  std::string ResourceFile() override { return "C:\\windows\\system32\\shell32.dll"; }
  int IconResource() override {
    int number = 0;
    const HMODULE library =
        LoadLibraryExW(L"C:\\windows\\system32\\shell32.dll", nullptr, LOAD_LIBRARY_AS_DATAFILE);
    if (library == nullptr) return number;
    EnumResourceNamesW(library, RT_GROUP_ICON, TakeNumber, reinterpret_cast<LONG_PTR>(&number));
    FreeLibrary(library);
    return number;
  }
  void SetValue(const std::string& name, const RegistryValue& value) override {
    if (const auto* const text = std::get_if<std::string>(&value)) {
      const std::wstring wide = Wide(*text);
      key_.Set(Wide(name), REG_SZ, wide.c_str(), (wide.size() + 1) * sizeof(wchar_t));
    } else if (const auto* const number = std::get_if<std::uint32_t>(&value)) {
      key_.Set(Wide(name), REG_DWORD, number, sizeof(*number));
    } else {
      const auto& bytes = std::get<std::vector<unsigned char>>(value);
      key_.Set(Wide(name), REG_BINARY, bytes.data(), bytes.size());
    }
  }

 private:
  TempFolder folder_;
  TestKey key_;
  win32::Win32WindowSystem windows_;
  win32::Win32ShellExec exec_;
  win32::Win32ShellIcons icons_;
  win32::Win32Registry keys_;
  win32::Win32SystemInfo system_;
};

std::unique_ptr<ContractShell> MakeRealShell() { return std::make_unique<RealShell>(); }

INSTANTIATE_TEST_SUITE_P(Windows, ShellContract, testing::Values(MakeRealShell));

// The registry.

struct RegistryTest : testing::Test {
  TestKey Key;
  win32::Win32Registry Registry;

  std::optional<std::string> Read(std::string_view name) {
    return Registry.Text(RegistryRoot::CurrentUser, "Software\\CorvelleContract", name);
  }
};

TEST_F(RegistryTest, VariablesAreExpandedWhereTheValueAsksForIt) {
  const std::wstring text = L"%CORVELLE_TEST%\\x";
  SetEnvironmentVariableW(L"CORVELLE_TEST", L"C:\\There");
  const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
  Key.Set(L"Expanded", REG_EXPAND_SZ, text.c_str(), bytes);
  Key.Set(L"Plain", REG_SZ, text.c_str(), bytes);
  EXPECT_EQ(Read("Expanded"), "C:\\There\\x");
  EXPECT_EQ(Read("Plain"), "%CORVELLE_TEST%\\x");
}

TEST_F(RegistryTest, ATextWithoutItsZeroOrWithMoreBehindItIsCutThere) {
  const wchar_t text[] = L"abc\0def";
  Key.Set(L"Short", REG_SZ, text, 3 * sizeof(wchar_t));
  Key.Set(L"Long", REG_SZ, text, sizeof(text));
  Key.Set(L"Odd", REG_SZ, text, 2 * sizeof(wchar_t) + 1);
  Key.Set(L"Empty", REG_SZ, text, 0);
  EXPECT_EQ(Read("Short"), "abc");
  EXPECT_EQ(Read("Long"), "abc");
  EXPECT_EQ(Read("Odd"), "ab");
  EXPECT_EQ(Read("Empty"), "");
}

TEST_F(RegistryTest, WhatIsNoTextIsNothing) {
  const DWORD number = 7;
  Key.Set(L"Number", REG_DWORD, &number, sizeof(number));
  Key.Set(L"Bytes", REG_BINARY, L"abc", 8);
  EXPECT_EQ(Read("Number"), std::nullopt);
  EXPECT_EQ(Read("Bytes"), std::nullopt);
}

// The shell.

TEST(RunOnWindows, AnEmptyLineIsNoFileName) {
  win32::Win32ShellExec shell;
  for (const char* line : {"", "   "}) {
    const auto result = shell.Run(line);
    ASSERT_FALSE(result) << '"' << line << '"';
    EXPECT_EQ(result.Error(), RunError::BadFileName) << '"' << line << '"';
  }
}

TEST(OpenOnWindows, AFolderThatIsMissingOpensNoBox) {
  win32::Win32ShellExec shell;
  EXPECT_FALSE(shell.Open("C:\\No Such Folder\\", std::nullopt, std::nullopt));
  EXPECT_EQ(FindWindowW(L"#32770", nullptr), nullptr);
}

TEST(OpenOnWindows, TheErrorsOfTheSystemAreToldApart) {
  struct Row {
    DWORD Error;
    OpenError Expected;
  };
  const Row rows[] = {
      {ERROR_CANCELLED, OpenError::Cancelled},
      {ERROR_ACCESS_DENIED, OpenError::AccessDenied},
      {ERROR_SHARING_VIOLATION, OpenError::AccessDenied},
      {ERROR_NETWORK_ACCESS_DENIED, OpenError::AccessDenied},
      {ERROR_ACCESS_DISABLED_BY_POLICY, OpenError::AccessDenied},
      {ERROR_FILE_NOT_FOUND, OpenError::Other},
      {ERROR_PATH_NOT_FOUND, OpenError::Other},
      {ERROR_NO_ASSOCIATION, OpenError::Other},
      {ERROR_DDE_FAIL, OpenError::Other},
      {ERROR_DLL_NOT_FOUND, OpenError::Other},
      {ERROR_NOT_ENOUGH_MEMORY, OpenError::Other},
      {ERROR_SUCCESS, OpenError::Other},
  };
  for (const Row& row : rows) EXPECT_EQ(win32::OpenErrorOf(row.Error), row.Expected) << row.Error;
}

TEST(RunOnWindows, TheErrorsOfTheSystemAreToldApart) {
  struct Row {
    DWORD Error;
    RunError Expected;
  };
  const Row rows[] = {
      {740, RunError::NeedsElevation},
      {ERROR_ACCESS_DENIED, RunError::AccessDenied},
      {ERROR_SHARING_VIOLATION, RunError::AccessDenied},
      {ERROR_ACCESS_DISABLED_BY_POLICY, RunError::AccessDenied},
      {ERROR_FILE_NOT_FOUND, RunError::FileNotFound},
      {ERROR_INVALID_NAME, RunError::BadFileName},
      {ERROR_BAD_EXE_FORMAT, RunError::Other},
      {ERROR_SUCCESS, RunError::Other},
  };
  for (const Row& row : rows) EXPECT_EQ(win32::RunErrorOf(row.Error), row.Expected) << row.Error;
}

// The code page.

TEST(AnsiCodePage, WhatItCannotHoldIsRefused) {
  const win32::Win32CodePage ansi;
  if (GetACP() != CP_UTF8) {
    // No code page but those of Unicode holds both.
    EXPECT_EQ(ansi.Encode("\xD0\x96\xE2\x99\xAB\xE6\xBC\xA2\xC3\xA3"), std::nullopt);
  }
  EXPECT_EQ(ansi.Encode("plain"), "plain");
  EXPECT_EQ(ansi.Encode(""), "");
  EXPECT_EQ(ansi.Decode(""), "");
}

TEST(AnsiCodePage, OnWesternWindowsItIsTheWesternOne) {
  const win32::Win32CodePage ansi;
  ASSERT_EQ(GetACP(), 1252U) << "this test wants a Western European system";
  EXPECT_EQ(ansi.Encode("\xC3\xA4\xE2\x82\xAC"), "\xE4\x80");
  EXPECT_EQ(ansi.Decode("\xE4\x80"), "\xC3\xA4\xE2\x82\xAC");
  // A fraction bar is no slash and a wide letter is no letter of the code page.
  EXPECT_EQ(ansi.Encode("\xE2\x81\x84"), std::nullopt);
  EXPECT_EQ(ansi.Encode("\xEF\xBC\xA1"), std::nullopt);
  const Windows1252 ours;
  for (int byte = 1; byte < 256; ++byte) {
    const std::string one(1, static_cast<char>(byte));
    EXPECT_EQ(ansi.Decode(one), ours.Decode(one)) << byte;
    EXPECT_EQ(ansi.Encode(ansi.Decode(one)), one) << byte;
  }
}

// The machine.

TEST(Session, OnlyTheFirstProcessOfASessionIsAlone) {
  {
    win32::Win32SystemInfo first;
    win32::Win32SystemInfo second;
    EXPECT_FALSE(first.AnotherInstanceRuns());
    EXPECT_FALSE(first.AnotherInstanceRuns());
    EXPECT_TRUE(second.AnotherInstanceRuns());
    EXPECT_TRUE(second.AnotherInstanceRuns());
    EXPECT_FALSE(first.AnotherInstanceRuns());
  }
  win32::Win32SystemInfo later;
  EXPECT_FALSE(later.AnotherInstanceRuns());
}

TEST(Session, BelongsToTheNextProcessAsSoonAsTheFirstHasEnded) {
  auto first = std::make_unique<win32::Win32SystemInfo>();
  win32::Win32SystemInfo second;
  EXPECT_FALSE(first->AnotherInstanceRuns());
  EXPECT_TRUE(second.AnotherInstanceRuns());
  first.reset();
  EXPECT_FALSE(second.AnotherInstanceRuns());
  win32::Win32SystemInfo third;
  EXPECT_TRUE(third.AnotherInstanceRuns());
}

TEST(ProgramFolder, HoldsTheProgramThatRuns) {
  const win32::Win32SystemInfo system;
  wchar_t path[MAX_PATH];
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  const std::string whole = Narrow(path);
  EXPECT_TRUE(whole.starts_with(system.ApplicationFolder() + "\\"));
  EXPECT_EQ(whole.find('\\', system.ApplicationFolder().size() + 1), std::string::npos);
}

}  // namespace
}  // namespace corvelle
