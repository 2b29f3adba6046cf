#include "win32/Win32Dde.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <dde.h>

#include <atomic>
#include <functional>
#include <memory>

#include "DdeServer.h"
#include "TempFolder.h"
#include "platform/DdeContract.h"
#include "win32/Wide.h"
#include "win32/Win32FileAssociations.h"
#include "win32/Win32Files.h"

namespace corvelle {
namespace {

using win32::Narrow;

constexpr wchar_t kService[] = L"CorvelleContract";
constexpr wchar_t kTopic[] = L"WWW_OpenURL";
constexpr win32::DdeWaits kShortWaits{.Window = 200, .Search = 1000, .Answer = 500};

class RealDde final : public ContractDde {
 public:
  DdeClient& Client() override { return client_; }
  void StartServer(DdeOutcome answer) override {
    const auto manner = answer == DdeOutcome::Done      ? LibraryServer::Manner::Takes
                        : answer == DdeOutcome::Refused ? LibraryServer::Manner::Refuses
                                                        : LibraryServer::Manner::KeepsSilent;
    server_ = std::make_unique<LibraryServer>(kService, kTopic, manner);
  }
  void EndServer() override { server_.reset(); }
  std::vector<std::string> Told() override {
    std::vector<std::string> told;
    for (const std::wstring& command : server_->Told()) told.push_back(Narrow(command));
    return told;
  }
  bool NoConversationLeft() override {
    for (int i = 0; i < 100 && server_->Conversations() != 0; ++i) Sleep(10);
    return server_->Conversations() == 0;
  }

 private:
  win32::Win32Dde client_{kShortWaits};
  std::unique_ptr<LibraryServer> server_;
};

std::unique_ptr<ContractDde> MakeRealDde() { return std::make_unique<RealDde>(); }

INSTANTIATE_TEST_SUITE_P(Windows, DdeContract, testing::Values(MakeRealDde));

/// A server that answers by the bare messages, as its test wants it.
class MessageServer {
 public:
  using Execute = std::function<void(HWND server, HWND client, LPARAM memory)>;

  explicit MessageServer(Execute execute, DWORD initiatePause = 0)
      : execute_(std::move(execute)), initiatePause_(initiatePause) {
    thread_ = std::make_unique<OtherThread>([this] { Begin(); }, [this] { End(); });
  }
  MessageServer(const MessageServer&) = delete;
  MessageServer& operator=(const MessageServer&) = delete;
  ~MessageServer() { thread_.reset(); }

  /// How often a client has said goodbye, once it has or when a second is over.
  [[nodiscard]] int Goodbyes() const {
    for (int i = 0; i < 100 && goodbyes_ == 0; ++i) Sleep(10);
    return goodbyes_;
  }

 private:
  void Begin() {
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = &Procedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = L"CorvelleMessageServer";
    RegisterClassW(&windowClass);
    window_ = CreateWindowW(L"CorvelleMessageServer", L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                            windowClass.hInstance, nullptr);
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  }
  void End() { DestroyWindow(window_); }
  void Initiate(HWND client, LPARAM names) {
    Sleep(initiatePause_);
    wchar_t service[64] = {};
    GlobalGetAtomNameW(LOWORD(names), service, 64);
    if (_wcsicmp(service, kService) != 0) return;
    SendMessageW(client, WM_DDE_ACK, reinterpret_cast<WPARAM>(window_),
                 MAKELPARAM(GlobalAddAtomW(kService), GlobalAddAtomW(kTopic)));
  }
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* const server = reinterpret_cast<MessageServer*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    const auto client = reinterpret_cast<HWND>(wParam);
    if (server != nullptr && message == WM_DDE_INITIATE) {
      server->Initiate(client, lParam);
      return 0;
    }
    if (server != nullptr && message == WM_DDE_EXECUTE) {
      server->execute_(window, client, lParam);
      return 0;
    }
    if (server != nullptr && message == WM_DDE_TERMINATE) {
      ++server->goodbyes_;
      return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
  }

  Execute execute_;
  DWORD initiatePause_;
  HWND window_ = nullptr;
  std::atomic<int> goodbyes_ = 0;
  std::unique_ptr<OtherThread> thread_;
};

void Answer(HWND server, HWND client, LPARAM memory, UINT status) {
  PostMessageW(client, WM_DDE_ACK, reinterpret_cast<WPARAM>(server),
               PackDDElParam(WM_DDE_ACK, status, static_cast<UINT_PTR>(memory)));
}

struct DdeOnWindows : testing::Test {
  win32::Win32Dde Client{kShortWaits};
  ULONGLONG Began = GetTickCount64();

  DdeOutcome Execute() { return Client.Execute("CorvelleContract", "WWW_OpenURL", "x"); }
  [[nodiscard]] ULONGLONG Elapsed() const { return GetTickCount64() - Began; }
};

TEST_F(DdeOnWindows, AServerThatSaysItIsBusyHasRefused) {
  const MessageServer server(
      [](HWND own, HWND client, LPARAM memory) { Answer(own, client, memory, 0x4000); });
  EXPECT_EQ(Execute(), DdeOutcome::Refused);
}

TEST_F(DdeOnWindows, AServerThatNeverAnswersIsGivenUpInTime) {
  const MessageServer server([](HWND, HWND, LPARAM) {});
  EXPECT_EQ(Execute(), DdeOutcome::NoAnswer);
  EXPECT_GE(Elapsed(), kShortWaits.Answer);
  EXPECT_LT(Elapsed(), 5000U);
}

TEST_F(DdeOnWindows, AServerThatEndsTheConversationIsGivenUpAtOnce) {
  const MessageServer server([](HWND own, HWND client, LPARAM) {
    PostMessageW(client, WM_DDE_TERMINATE, reinterpret_cast<WPARAM>(own), 0);
  });
  win32::Win32Dde patient{{.Answer = 60000}};
  EXPECT_EQ(patient.Execute("CorvelleContract", "WWW_OpenURL", "x"), DdeOutcome::NoAnswer);
  EXPECT_LT(Elapsed(), 20000U);
  // It keeps the conversation until the client has said goodbye too.
  EXPECT_EQ(server.Goodbyes(), 1);
}

TEST_F(DdeOnWindows, AServerWhoseWindowGoesAwayIsGivenUpAtOnce) {
  const MessageServer server([](HWND own, HWND, LPARAM) { DestroyWindow(own); });
  win32::Win32Dde patient{{.Answer = 60000}};
  EXPECT_EQ(patient.Execute("CorvelleContract", "WWW_OpenURL", "x"), DdeOutcome::NoAnswer);
  EXPECT_LT(Elapsed(), 20000U);
}

TEST_F(DdeOnWindows, OfTwoServersOneIsTold) {
  std::atomic<int> told = 0;
  const auto take = [&told](HWND own, HWND client, LPARAM memory) {
    ++told;
    Answer(own, client, memory, 0x8000);
  };
  const MessageServer first(take);
  const MessageServer second(take);
  EXPECT_EQ(Execute(), DdeOutcome::Done);
  Sleep(100);
  EXPECT_EQ(told, 1);
}

TEST_F(DdeOnWindows, AWindowThatHangsDoesNotHoldUpTheSearch) {
  const MessageServer hangs([](HWND, HWND, LPARAM) {}, 3000);
  EXPECT_EQ(Execute(), DdeOutcome::NoServer);
  EXPECT_LT(Elapsed(), 2500U);
}

TEST_F(DdeOnWindows, TheEndOfTheProgramIsNotLostWhileItWaits) {
  const MessageServer server([](HWND, HWND, LPARAM) {});
  PostQuitMessage(7);
  EXPECT_EQ(Execute(), DdeOutcome::NoAnswer);
  MSG message{};
  EXPECT_NE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE), FALSE);
  EXPECT_EQ(message.wParam, 7U);
}

TEST_F(DdeOnWindows, AThousandCommandsLeaveNoWindowsBehind) {
  const MessageServer server(
      [](HWND own, HWND client, LPARAM memory) { Answer(own, client, memory, 0x8000); });
  EXPECT_EQ(Execute(), DdeOutcome::Done);
  const DWORD before = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
  for (int i = 0; i < 1000; ++i) ASSERT_EQ(Execute(), DdeOutcome::Done) << i;
  EXPECT_LE(GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS), before + 2);
}

// Associations.

/// A type of files that belongs to a program, for as long as a test needs it.
class TestType {
 public:
  TestType() {
    Set(L"Software\\Classes\\.qzb", L"qzbfile");
    Set(L"Software\\Classes\\qzbfile\\shell\\open\\command",
        L"\"C:\\windows\\notepad.exe\" \"%1\"");
  }
  TestType(const TestType&) = delete;
  TestType& operator=(const TestType&) = delete;
  ~TestType() {
    RegDeleteKeyW(HKEY_LOCAL_MACHINE, L"Software\\Classes\\.qzb");
    for (const wchar_t* part : {L"\\shell\\open\\command", L"\\shell\\open", L"\\shell", L""}) {
      RegDeleteKeyW(HKEY_LOCAL_MACHINE,
                    (std::wstring(L"Software\\Classes\\qzbfile") + part).c_str());
    }
  }

 private:
  static void Set(const wchar_t* key, const wchar_t* text) {
    RegSetValueW(HKEY_LOCAL_MACHINE, key, REG_SZ, text, 0);
  }
};

TEST(FileAssociationsOnWindows, NameTheProgramOfAnExistingFile) {
  const TestType type;
  const TempFolder folder;
  win32::Win32Files files;
  ASSERT_TRUE(files.Write(folder.Path() + "page.qzb", "x"));
  ASSERT_TRUE(files.Write(folder.Path() + "page.qzx", "x"));
  win32::Win32FileAssociations associations;
  const auto program = associations.ProgramFor(folder.Path() + "page.qzb");
  ASSERT_TRUE(program.has_value());
  EXPECT_EQ(_stricmp(program->c_str(), "C:\\windows\\notepad.exe"), 0) << *program;
  EXPECT_EQ(associations.ProgramFor(folder.Path() + "missing.qzb"), std::nullopt);
  EXPECT_EQ(associations.ProgramFor(folder.Path() + "page.qzx"), std::nullopt);
  EXPECT_EQ(associations.ProgramFor(""), std::nullopt);
}

}  // namespace
}  // namespace corvelle
