#include "win32/Win32ShellFolders.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <ole2.h>
#include <shlobj.h>

#include <atomic>
#include <thread>

#include "Com.h"
#include "TempFolder.h"
#include "platform/ShellFoldersContract.h"
#include "win32/ComPointer.h"
#include "win32/ShellMenu.h"
#include "win32/UniqueHandle.h"
#include "win32/Wide.h"
#include "win32/Win32Files.h"

namespace corvelle {
namespace {

using win32::Narrow;
using win32::Wide;

/// A window of this thread in the foreground, for the keys that a menu wants.
class Front {
 public:
  Front()
      : window_(CreateWindowExW(0, L"Static", L"Front", WS_POPUP | WS_VISIBLE, 500, 400, 50, 50,
                                nullptr, nullptr, nullptr, nullptr)) {
    SetForegroundWindow(window_.Get());
    SetFocus(window_.Get());
  }

  HWND Window() const { return window_.Get(); }

 private:
  win32::UniqueWindow window_;
};

/// Another hand at the keyboard: presses the wanted key in the next menu that comes up, and Esc in
/// each for which none is wanted.
class MenuHand {
 public:
  explicit MenuHand(const Front& front) : front_(front.Window()), thread_([this] { Run(); }) {}
  MenuHand(const MenuHand&) = delete;
  MenuHand& operator=(const MenuHand&) = delete;
  ~MenuHand() {
    end_ = true;
    thread_.join();
  }

  /// Before the menu comes up: the one before is done with by then.
  void Press(int virtualKey) {
    while (busy_) Sleep(5);
    key_ = virtualKey;
  }
  int Menus() const { return menus_; }

 private:
  static bool MenuIsUp() {
    HWND menu = FindWindowW(L"#32768", nullptr);
    return menu != nullptr && IsWindowVisible(menu) != FALSE;
  }
  static void Send(int virtualKey) {
    INPUT keys[2]{};
    for (INPUT& key : keys) {
      key.type = INPUT_KEYBOARD;
      key.ki.wVk = static_cast<WORD>(virtualKey);
    }
    keys[1].ki.dwFlags = KEYEVENTF_KEYUP;
    SendInput(2, keys, sizeof(INPUT));
  }
  void Run() {
    while (!end_) {
      Sleep(20);
      if (!MenuIsUp()) continue;
      busy_ = true;
      Sleep(200);  // It begins to listen.
      ++menus_;
      // Without a wish the menu goes away again.
      const int key = key_.exchange(VK_ESCAPE);
      while (MenuIsUp() && !end_) {
        // Keys go to the program in the foreground, whatever was started meanwhile.
        SetForegroundWindow(front_);
        Send(key);
        for (int waited = 0; waited < 100 && MenuIsUp() && !end_; ++waited) Sleep(20);
      }
      busy_ = false;
    }
  }

  HWND front_;
  std::atomic<int> key_ = VK_ESCAPE;
  std::atomic<int> menus_ = 0;
  std::atomic<bool> busy_ = false;
  std::atomic<bool> end_ = false;
  std::thread thread_;
};

class RealFolders final : public ContractFolders {
 public:
  RealFolders() {
    EXPECT_TRUE(files_.Write(File(), "x"));
    wchar_t programs[MAX_PATH] = {};
    EXPECT_TRUE(SHGetSpecialFolderPathW(nullptr, programs, CSIDL_PROGRAMS, TRUE));
    programs_ = Narrow(programs) + "\\";
    Link("Contract \xD0\xB6", "one");
    Link("Contract two", "two");
  }
  ~RealFolders() override {
    for (const std::string& link : links_) static_cast<void>(files_.Remove(link));
  }
  ShellFolders& Folders() override { return folders_; }
  std::string File() override { return temp_.Path() + "file \xD0\xB6.txt"; }
  std::string MissingFile() override { return temp_.Path() + "missing.txt"; }
  std::string Started() override {
    // What was started takes its time to say so.
    for (int waited = 0; waited < 100; ++waited) {
      for (const char* word : {"one", "two"}) {
        if (files_.FileExists(Answer(word))) return word;
      }
      Sleep(50);
    }
    return {};
  }
  void DismissNextMenu() override { hand_.Press(VK_ESCAPE); }
  void CopyInNextMenu() override { hand_.Press('C'); }
  int Menus() override { return hand_.Menus(); }

 private:
  std::string Answer(const std::string& word) { return temp_.Path() + word + ".xml"; }
  /// To this program, which runs no test then but writes down that it ran.
  void Link(const std::string& title, const std::string& word) {
    win32::ComPointer<IShellLinkW> link;
    win32::ComPointer<IPersistFile> file;
    wchar_t self[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, self, MAX_PATH);
    links_.push_back(programs_ + title + ".lnk");
    EXPECT_TRUE(
        SUCCEEDED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                                   link.ReceiveVoid())) &&
        SUCCEEDED(link->QueryInterface(IID_IPersistFile, file.ReceiveVoid())) &&
        SUCCEEDED(link->SetPath(self)) &&
        SUCCEEDED(link->SetArguments(
            Wide("--gtest_filter=None \"--gtest_output=xml:" + Answer(word) + "\"").c_str())) &&
        SUCCEEDED(file->Save(Wide(links_.back()).c_str(), TRUE)));
  }

  Com com_;
  TempFolder temp_;
  win32::Win32Files files_;
  std::string programs_;
  std::vector<std::string> links_;
  win32::Win32ShellFolders folders_;
  Front front_;
  MenuHand hand_{front_};
};

std::unique_ptr<ContractFolders> MakeReal() { return std::make_unique<RealFolders>(); }

INSTANTIATE_TEST_SUITE_P(Windows, ShellFoldersContract, testing::Values(MakeReal));

/// The user's templates lie somewhere else for a while.
class MovedTemplates {
 public:
  explicit MovedTemplates(const std::wstring& folder) {
    length_ = sizeof before_;
    EXPECT_EQ(RegGetValueW(HKEY_CURRENT_USER, kKey, kName,
                           RRF_RT_REG_SZ | RRF_RT_REG_EXPAND_SZ | RRF_NOEXPAND, nullptr, before_,
                           &length_),
              ERROR_SUCCESS);
    Set(folder.c_str());
  }
  MovedTemplates(const MovedTemplates&) = delete;
  MovedTemplates& operator=(const MovedTemplates&) = delete;
  ~MovedTemplates() { Set(before_); }

 private:
  static constexpr const wchar_t* kKey =
      L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders";
  static constexpr const wchar_t* kName = L"Templates";

  static void Set(const wchar_t* folder) {
    const auto bytes = static_cast<DWORD>((wcslen(folder) + 1) * sizeof(wchar_t));
    EXPECT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, kKey, kName, REG_EXPAND_SZ, folder, bytes),
              ERROR_SUCCESS);
  }

  wchar_t before_[MAX_PATH] = {};
  DWORD length_ = 0;
};

TEST(ShellFolders, AFolderThatCannotBeReachedHasItsPath) {
  const MovedTemplates moved(L"Q:\\Server\\Templates");
  win32::Win32ShellFolders folders;
  EXPECT_EQ(folders.PathOf(CSIDL_TEMPLATES), "Q:\\Server\\Templates");
}

// Objects of COM are given back by Release and never by their bases.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// The menu of an item with a submenu that is filled, and an entry that is drawn, by the item's
/// program; it notes what it is told. Lives on the stack of its test.
class DrawnMenu final : public IContextMenu3 {
 public:
  int Filled = 0;
  int Measured = 0;
  int Drawn = 0;
  int Invoked = -1;
  HWND InvokedFor = nullptr;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    *object = nullptr;
    if (id != IID_IUnknown && id != IID_IContextMenu && id != IID_IContextMenu2 &&
        id != IID_IContextMenu3) {
      return E_NOINTERFACE;
    }
    *object = static_cast<IContextMenu3*>(this);
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override { return --references_; }
  ULONG References() const { return references_; }

  HRESULT STDMETHODCALLTYPE QueryContextMenu(HMENU menu, UINT index, UINT first, UINT,
                                             UINT) override {
    InsertMenuW(menu, index, MF_BYPOSITION | MF_OWNERDRAW, first + 4, L"drawn");
    return MAKE_HRESULT(SEVERITY_SUCCESS, 0, 5);
  }
  HRESULT STDMETHODCALLTYPE InvokeCommand(CMINVOKECOMMANDINFO* info) override {
    Invoked = static_cast<int>(reinterpret_cast<ULONG_PTR>(info->lpVerb));
    InvokedFor = info->hwnd;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetCommandString(UINT_PTR, UINT, UINT*, LPSTR, UINT) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE HandleMenuMsg(UINT message, WPARAM wParam, LPARAM lParam) override {
    return HandleMenuMsg2(message, wParam, lParam, nullptr);
  }
  HRESULT STDMETHODCALLTYPE HandleMenuMsg2(UINT message, WPARAM, LPARAM lParam,
                                           LRESULT* answer) override {
    if (message == WM_INITMENUPOPUP) ++Filled;
    if (message == WM_DRAWITEM) ++Drawn;
    if (message == WM_MEASUREITEM) {
      ++Measured;
      auto* const item = reinterpret_cast<MEASUREITEMSTRUCT*>(lParam);
      item->itemWidth = 80;
      item->itemHeight = 20;
    }
    if (answer != nullptr) *answer = 1;
    return S_OK;
  }

 private:
  ULONG references_ = 1;
};

#pragma GCC diagnostic pop

TEST(ShellMenuOnWindows, HandsOnTheMessagesOfEntriesThatTheItemsProgramDraws) {
  const Com com;
  const Front front;
  MenuHand hand(front);
  DrawnMenu menu;
  hand.Press(VK_ESCAPE);
  EXPECT_FALSE(win32::ShowShellMenu(menu, {300, 200}, nullptr));
  EXPECT_EQ(hand.Menus(), 1);
  EXPECT_GE(menu.Filled, 1);
  EXPECT_GE(menu.Measured, 1);
  EXPECT_GE(menu.Drawn, 1);
  EXPECT_EQ(menu.Invoked, -1);
  EXPECT_EQ(menu.References(), 1U);
}

}  // namespace
}  // namespace corvelle
