#include "win32/Win32ShellFiles.h"

#include <windows.h>

#include <future>
#include <thread>
#include <utility>
#include <vector>

#include "TempFolder.h"
#include "launch/BuiltInKeys.h"
#include "platform/ShellFilesContract.h"
#include "win32/Wide.h"
#include "win32/Win32Files.h"
#include "win32/Win32KeySynthesis.h"

namespace corvelle {
namespace {

/// Sets a variable of this process until the object's end.
class Variable {
 public:
  explicit Variable(const wchar_t* name) : name_(name) {
    wchar_t text[1024];
    if (GetEnvironmentVariableW(name, text, 1024) != 0) before_ = text;
  }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;
  ~Variable() { SetEnvironmentVariableW(name_, before_ ? before_->c_str() : nullptr); }

  void Set(const std::string& text) { SetEnvironmentVariableW(name_, win32::Wide(text).c_str()); }

 private:
  const wchar_t* name_;
  std::optional<std::wstring> before_;
};

class RealShellFiles final : public ContractShellFiles {
 public:
  ShellFiles& Shell() override { return shell_; }
  FileSystem& Files() override { return files_; }
  std::string Root() override { return folder_.Path(); }
  void SetTempPath(const std::string& path) override { temp_.Set(path); }

 private:
  TempFolder folder_;
  Variable temp_{L"TMP"};
  win32::Win32ShellFiles shell_;
  win32::Win32Files files_;
};

std::unique_ptr<ContractShellFiles> MakeRealShellFiles() {
  return std::make_unique<RealShellFiles>();
}

INSTANTIATE_TEST_SUITE_P(Windows, ShellFilesContract, testing::Values(MakeRealShellFiles));

TEST(TempPathOnWindows, TheFolderOfWindowsIsNoneForTemporaryFiles) {
  wchar_t windows[MAX_PATH];
  ASSERT_NE(GetWindowsDirectoryW(windows, MAX_PATH), 0U);
  Variable temp(L"TMP");
  temp.Set(win32::Narrow(windows));
  EXPECT_EQ(win32::Win32ShellFiles().TempPath(), std::nullopt);
}

TEST(TempPathOnWindows, APathThatIsTooLongIsNone) {
  Variable temp(L"TMP");
  temp.Set("C:\\" + std::string(300, 'x'));
  EXPECT_EQ(win32::Win32ShellFiles().TempPath(), std::nullopt);
}

using Stroke = std::pair<int, bool>;  // key, and whether it went up

std::vector<Stroke>& Seen() {
  static std::vector<Stroke> seen;
  return seen;
}

LRESULT CALLBACK NoteKey(int code, WPARAM wParam, LPARAM lParam) {
  if (code != HC_ACTION) return CallNextHookEx(nullptr, code, wParam, lParam);
  const auto* key = reinterpret_cast<const KBDLLHOOKSTRUCT*>(lParam);
  const auto number = key->vkCode == VK_LCONTROL ? VK_CONTROL
                      : key->vkCode == VK_LSHIFT ? VK_SHIFT
                                                 : key->vkCode;
  Seen().emplace_back(static_cast<int>(number), (key->flags & LLKHF_UP) != 0);
  // Nobody else gets the keys: they would minimize what stands on the desktop.
  return 1;
}

/// A thread that notes all keys of the machine while the object lives.
class KeyWatch {
 public:
  KeyWatch() {
    Seen().clear();
    std::promise<DWORD> ready;
    std::future<DWORD> thread = ready.get_future();
    thread_ = std::thread([&ready] {
      MSG message;
      PeekMessageW(&message, nullptr, WM_USER, WM_USER, PM_NOREMOVE);
      HHOOK hook = SetWindowsHookExW(WH_KEYBOARD_LL, NoteKey, GetModuleHandleW(nullptr), 0);
      ready.set_value(GetCurrentThreadId());
      while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
      UnhookWindowsHookEx(hook);
    });
    id_ = thread.get();
  }
  KeyWatch(const KeyWatch&) = delete;
  KeyWatch& operator=(const KeyWatch&) = delete;
  ~KeyWatch() { End(); }

  /// What was seen until now.
  std::vector<Stroke> End() {
    if (thread_.joinable()) {
      PostThreadMessageW(id_, WM_QUIT, 0, 0);
      thread_.join();
    }
    return Seen();
  }

 private:
  std::thread thread_;
  DWORD id_ = 0;
};

TEST(KeySynthesisOnWindows, TheMachineGetsTheKeysInTheirOrder) {
  win32::Win32KeySynthesis keyboard;
  for (const ShellKeys keys :
       {ShellKeys::FindComputer, ShellKeys::MinimizeAllWindows, ShellKeys::UndoMinimizeAll}) {
    KeyWatch watch;
    std::vector<Stroke> expected;
    for (const KeyStroke& stroke : KeySequence(keys)) {
      keyboard.KeybdEvent(stroke.VirtualKey, stroke.Flags);
      expected.emplace_back(stroke.VirtualKey, stroke.Flags == keyevent::Up);
    }
    EXPECT_EQ(watch.End(), expected) << static_cast<int>(keys);
  }
}

}  // namespace
}  // namespace corvelle
