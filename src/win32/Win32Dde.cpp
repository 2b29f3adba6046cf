#include "win32/Win32Dde.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "win32/UniqueHandle.h"
#include "win32/Wide.h"

#include <dde.h>

namespace corvelle::win32 {

namespace {

constexpr wchar_t kClientClass[] = L"CorvelleDdeClient";
constexpr WORD kAcknowledged = 0x8000;

struct GlobalAtomTraits {
  using Handle = ATOM;
  static Handle None() noexcept { return 0; }
  static void Close(Handle atom) noexcept { GlobalDeleteAtom(atom); }
};
using UniqueGlobalAtom = UniqueHandle<GlobalAtomTraits>;

struct GlobalMemoryTraits : NullHandleTraits<HGLOBAL> {
  static void Close(HGLOBAL memory) noexcept { GlobalFree(memory); }
};
using UniqueGlobalMemory = UniqueHandle<GlobalMemoryTraits>;

ATOM MakeAtom(std::string_view name) {
  const std::wstring wide = Wide(name);
  return wide.empty() ? ATOM{0} : GlobalAddAtomW(wide.c_str());
}

/// One conversation, as the client's window knows it.
struct Conversation {
  HWND Client = nullptr;
  HWND Server = nullptr;
  bool Searching = false;
  bool Ended = false;  // by the server
};

void EndWith(HWND server, HWND client) {
  PostMessageW(server, WM_DDE_TERMINATE, reinterpret_cast<WPARAM>(client), 0);
}

/// A server wants to talk. The first one is taken, all others are told goodbye.
void TakeServer(Conversation& talk, HWND server, LPARAM names) {
  GlobalDeleteAtom(LOWORD(names));
  GlobalDeleteAtom(HIWORD(names));
  if (talk.Searching && talk.Server == nullptr) {
    talk.Server = server;
  } else if (server != talk.Server) {
    EndWith(server, talk.Client);
  }
}

LRESULT CALLBACK ClientProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  auto* const talk = reinterpret_cast<Conversation*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  const auto server = reinterpret_cast<HWND>(wParam);
  if (talk != nullptr && message == WM_DDE_ACK && InSendMessage() != FALSE) {
    TakeServer(*talk, server, lParam);
    return 0;
  }
  if (talk != nullptr && message == WM_DDE_TERMINATE) {
    if (server == talk->Server) talk->Ended = true;
    return 0;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

bool RegisterClient() {
  WNDCLASSEXW windowClass{};
  windowClass.cbSize = sizeof(windowClass);
  windowClass.lpfnWndProc = &ClientProcedure;
  windowClass.hInstance = Module();
  windowClass.lpszClassName = kClientClass;
  return RegisterClassExW(&windowClass) != 0 || GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
}

struct Search {
  Conversation* Talk;
  LPARAM Names;
  UINT WindowWait;
  ULONGLONG Until;
};

BOOL CALLBACK AskWindow(HWND window, LPARAM parameter) noexcept {
  const Search& search = *reinterpret_cast<const Search*>(parameter);
  if (window == search.Talk->Client) return TRUE;
  const ULONGLONG now = GetTickCount64();
  if (now >= search.Until) return FALSE;
  const UINT wait = std::min(search.WindowWait, static_cast<UINT>(search.Until - now));
  DWORD_PTR answer = 0;
  SendMessageTimeoutW(window, WM_DDE_INITIATE, reinterpret_cast<WPARAM>(search.Talk->Client),
                      search.Names, SMTO_ABORTIFHUNG, wait, &answer);
  return search.Talk->Server == nullptr ? TRUE : FALSE;
}

/// The command as the server wants it: wide when its window is, else in the system's code page.
UniqueGlobalMemory CommandMemory(std::string_view command, bool wide) {
  const std::wstring text = Wide(command);
  std::string bytes;
  if (wide) {
    bytes.resize((text.size() + 1) * sizeof(wchar_t));
    std::memcpy(bytes.data(), text.c_str(), bytes.size());
  } else {
    const int size = WideCharToMultiByte(CP_ACP, 0, text.c_str(), -1, nullptr, 0, nullptr, nullptr);
    bytes.resize(static_cast<std::size_t>(std::max(size, 1)));
    WideCharToMultiByte(CP_ACP, 0, text.c_str(), -1, bytes.data(), size, nullptr, nullptr);
  }
  UniqueGlobalMemory memory(GlobalAlloc(GMEM_MOVEABLE | GMEM_DDESHARE, bytes.size()));
  if (!memory) return memory;
  void* const place = GlobalLock(memory.Get());
  if (place == nullptr) return UniqueGlobalMemory();
  std::memcpy(place, bytes.data(), bytes.size());
  GlobalUnlock(memory.Get());
  return memory;
}

/// What the server said of the command; the memory of the command is the client's again.
DdeOutcome ReadAnswer(const MSG& message, UniqueGlobalMemory& sent) {
  UINT_PTR status = 0;
  UINT_PTR memory = 0;
  if (UnpackDDElParam(WM_DDE_ACK, message.lParam, &status, &memory) == FALSE)
    return DdeOutcome::Refused;
  FreeDDElParam(WM_DDE_ACK, message.lParam);
  // Between processes the answer names a copy of the memory.
  const auto named = reinterpret_cast<HGLOBAL>(memory);
  if (named != nullptr && named != sent.Get()) sent.Reset(named);
  return (status & kAcknowledged) != 0 ? DdeOutcome::Done : DdeOutcome::Refused;
}

/// Runs the messages of this conversation until the one that is wanted; false when it does not come
/// before that moment. All other events of the program wait.
bool WaitFor(const Conversation& talk, UINT wanted, ULONGLONG until, MSG& message) {
  for (;;) {
    while (PeekMessageW(&message, talk.Client, WM_DDE_FIRST, WM_DDE_LAST, PM_REMOVE) != FALSE) {
      // The end of the program comes through every filter, and must come again where it is awaited.
      if (message.message == WM_QUIT) {
        PostQuitMessage(static_cast<int>(message.wParam));
        return false;
      }
      const bool fromServer = reinterpret_cast<HWND>(message.wParam) == talk.Server;
      if (message.message == wanted && fromServer) return true;
      DispatchMessageW(&message);
    }
    if (talk.Ended || IsWindow(talk.Server) == FALSE) return false;
    const ULONGLONG now = GetTickCount64();
    if (now >= until) return false;
    // A server that dies sends no message.
    const auto wait = static_cast<DWORD>(std::min<ULONGLONG>(until - now, 50));
    MsgWaitForMultipleObjects(0, nullptr, FALSE, wait, QS_POSTMESSAGE | QS_SENDMESSAGE);
  }
}

DdeOutcome Tell(Conversation& talk, std::string_view command, unsigned answerWait) {
  UniqueGlobalMemory memory = CommandMemory(command, IsWindowUnicode(talk.Server) != FALSE);
  if (!memory) return DdeOutcome::Refused;
  if (PostMessageW(talk.Server, WM_DDE_EXECUTE, reinterpret_cast<WPARAM>(talk.Client),
                   reinterpret_cast<LPARAM>(memory.Get())) == FALSE) {
    return DdeOutcome::NoAnswer;
  }
  MSG answer{};
  if (WaitFor(talk, WM_DDE_ACK, GetTickCount64() + answerWait, answer))
    return ReadAnswer(answer, memory);
  // The server may still read it; a lost block is less than a crash of the browser.
  static_cast<void>(memory.Release());
  return DdeOutcome::NoAnswer;
}

}  // namespace

DdeOutcome Win32Dde::Execute(std::string_view service, std::string_view topic,
                             std::string_view command) {
  const UniqueGlobalAtom serviceAtom(MakeAtom(service));
  const UniqueGlobalAtom topicAtom(MakeAtom(topic));
  // An empty name stands for any program, which would be the wrong one.
  if (!serviceAtom || !topicAtom || !RegisterClient()) return DdeOutcome::NoServer;
  const UniqueWindow window(CreateWindowExW(0, kClientClass, nullptr, WS_POPUP, 0, 0, 0, 0, nullptr,
                                            nullptr, Module(), nullptr));
  if (!window) return DdeOutcome::NoServer;
  Conversation talk{.Client = window.Get(), .Searching = true};
  SetWindowLongPtrW(window.Get(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&talk));

  const Search search{.Talk = &talk,
                      .Names = MAKELPARAM(serviceAtom.Get(), topicAtom.Get()),
                      .WindowWait = waits_.Window,
                      .Until = GetTickCount64() + waits_.Search};
  EnumWindows(&AskWindow, reinterpret_cast<LPARAM>(&search));
  talk.Searching = false;
  DdeOutcome outcome = DdeOutcome::NoServer;
  if (talk.Server != nullptr) {
    outcome = Tell(talk, command, waits_.Answer);
    // A server that has ended it waits for the answer to that.
    EndWith(talk.Server, talk.Client);
  }
  SetWindowLongPtrW(window.Get(), GWLP_USERDATA, 0);
  return outcome;
}

}  // namespace corvelle::win32
