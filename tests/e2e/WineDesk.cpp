#include "e2e/WineDesk.h"

#include <shellapi.h>

#include <algorithm>
#include <cstdio>
#include <set>

#include "e2e/DeskFiles.h"
#include "e2e/DeskLinks.h"

namespace corvelle::e2e {
namespace {

using scenario::Button;
using scenario::SeenMessage;
using scenario::SeenWindow;

std::wstring ClassOf(HWND window) {
  wchar_t name[128] = {};
  GetClassNameW(window, name, 128);
  return name;
}

std::wstring TextOf(HWND window) {
  wchar_t text[1024] = {};
  DWORD_PTR length = 0;
  SendMessageTimeoutW(window, WM_GETTEXT, 1024, reinterpret_cast<LPARAM>(text), SMTO_ABORTIFHUNG,
                      2000, &length);
  return text;
}

struct Search {
  std::wstring ClassName;
  HWND Found = nullptr;
};

BOOL CALLBACK LookAtWindow(HWND window, LPARAM parameter) {
  Search& search = *reinterpret_cast<Search*>(parameter);
  if (ClassOf(window) != search.ClassName) return TRUE;
  search.Found = window;
  return FALSE;
}

BOOL CALLBACK LookBelowWindow(HWND window, LPARAM parameter) {
  EnumChildWindows(window, LookAtWindow, parameter);
  return reinterpret_cast<Search*>(parameter)->Found == nullptr ? TRUE : FALSE;
}

HWND OpenMessageBox() {
  HWND box = nullptr;
  while ((box = FindWindowExW(nullptr, box, L"#32770", nullptr)) != nullptr) {
    if (IsWindowVisible(box) != FALSE && GetDlgItem(box, 0xFFFF) != nullptr) return box;
  }
  return nullptr;
}

// Keys that real keyboards have twice need their flag, or they count as those of the number pad.
bool IsExtended(int virtualKey) {
  return (virtualKey >= VK_PRIOR && virtualKey <= VK_DOWN) || virtualKey == VK_INSERT ||
         virtualKey == VK_DELETE;
}

void SendKey(int virtualKey, DWORD flags) {
  INPUT input = {};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = static_cast<WORD>(virtualKey);
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(static_cast<UINT>(virtualKey), 0));
  input.ki.dwFlags = flags | (IsExtended(virtualKey) ? KEYEVENTF_EXTENDEDKEY : 0U);
  SendInput(1, &input, sizeof(input));
}

HWND OpenPopup() {
  HWND popup = FindWindowW(L"#32768", nullptr);
  return popup != nullptr && IsWindowVisible(popup) != FALSE ? popup : nullptr;
}

BOOL CALLBACK NoteButton(HWND window, LPARAM list) {
  RECT bounds = {};
  if (IsWindowVisible(window) != FALSE && ClassOf(window) == L"Button" &&
      GetWindowRect(window, &bounds) != FALSE) {
    reinterpret_cast<std::vector<RECT>*>(list)->push_back(bounds);
  }
  return TRUE;
}

// The lines of the popup that the keyboard goes through, from top to bottom: a menu of another
// program cannot be asked for them.
constexpr std::string_view kPopupLines[] = {
    "Refresh",          "Cut Item",     "Copy Item",  "Paste Item",       "Delete Item",
    "Delete Separator", "Undo Delete",  "Add Button", "Insert Menu Item", "Insert Separator",
    "Open Folder",      "Close Folder", "Properties", "Folder Properties"};

LRESULT CALLBACK OtherProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_DESTROY) PostQuitMessage(0);
  return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace

std::wstring Wide(std::string_view text) {
  const int length =
      MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), wide.data(), length);
  return wide;
}

std::string Narrow(std::wstring_view text) {
  const int length = WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                         nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), narrow.data(), length,
                      nullptr, nullptr);
  return narrow;
}

WineDesk::WineDesk() : pointer_(Pointer()), before_(pointer_) {
  // Whoever asks for the desktop first brings it up, with its shell; nothing may start before it.
  GetDesktopWindow();
  Wait([] { return FindWindowW(L"Shell_TrayWnd", nullptr) != nullptr; }, 10000);
  CreateDirectoryW(kDocumentFolder, nullptr);
  if (!WriteBytes(Wide(WitnessDocument()), "A document.\r\n"))
    std::printf("There is no document\n");
  MovePointer({ScreenSize().width / 2, ScreenSize().height / 2});
}

WineDesk::~WineDesk() {
  if (RunningCopies() > 0) Post("frmMinimize", WM_CLOSE, 0, 0);
  Wait([this] { return RunningCopies() == 0; }, 3000);
  for (HANDLE copy : copies_) {
    TerminateProcess(copy, 99);
    CloseHandle(copy);
  }
  CloseOtherBar();
  if (HWND other = otherWindow_.load()) PostMessageW(other, WM_CLOSE, 0, 0);
  if (other_.joinable()) other_.join();
}

void WineDesk::StartCorvelle() {
  STARTUPINFOW start = {};
  start.cb = sizeof(start);
  PROCESS_INFORMATION process = {};
  const std::wstring program = std::wstring(kAppFolder) + L"corvelle.exe";
  std::wstring command = L"\"" + program + L"\"";
  if (CreateProcessW(program.c_str(), command.data(), nullptr, nullptr, FALSE, 0, nullptr,
                     kAppFolder, &start, &process) == FALSE) {
    std::printf("corvelle.exe did not start: error %lu\n", GetLastError());
    return;
  }
  CloseHandle(process.hThread);
  copies_.push_back(process.hProcess);
}

void WineDesk::Kill() {
  for (HANDLE copy : copies_) TerminateProcess(copy, 99);
  for (HANDLE copy : copies_) WaitForSingleObject(copy, 5000);
}

int WineDesk::RunningCopies() const {
  return static_cast<int>(std::count_if(copies_.begin(), copies_.end(), [](HANDLE copy) {
    return WaitForSingleObject(copy, 0) == WAIT_TIMEOUT;
  }));
}

int WineDesk::ProcessorTime() const {
  constexpr ULONGLONG kMillisecond = 10000;  // a file time counts 100 ns
  const auto whole = [](const FILETIME& time) {
    return (static_cast<ULONGLONG>(time.dwHighDateTime) << 32) | time.dwLowDateTime;
  };
  ULONGLONG sum = 0;
  for (HANDLE copy : copies_) {
    FILETIME began = {};
    FILETIME ended = {};
    FILETIME kernel = {};
    FILETIME user = {};
    if (WaitForSingleObject(copy, 0) == WAIT_TIMEOUT &&
        GetProcessTimes(copy, &began, &ended, &kernel, &user) != FALSE) {
      sum += whole(kernel) + whole(user);
    }
  }
  return static_cast<int>(sum / kMillisecond);
}

std::vector<DWORD> WineDesk::ExitCodes() const {
  std::vector<DWORD> codes;
  for (HANDLE copy : copies_) {
    DWORD code = 0;
    if (WaitForSingleObject(copy, 0) == WAIT_OBJECT_0 && GetExitCodeProcess(copy, &code) != FALSE) {
      codes.push_back(code);
    }
  }
  return codes;
}

// A press that is injected apart from its place can land where the pointer was before: each event
// carries both.
void WineDesk::SendMouse(DWORD flags) {
  const PixelSize screen = ScreenSize();
  INPUT input = {};
  input.type = INPUT_MOUSE;
  input.mi.dx = (pointer_.x * 65536 + screen.width - 1) / screen.width;
  input.mi.dy = (pointer_.y * 65536 + screen.height - 1) / screen.height;
  input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | flags;
  SendInput(1, &input, sizeof(input));
}

void WineDesk::MovePointer(PixelPoint at) {
  before_ = pointer_;
  pointer_ = at;
  SendMouse(0);
}

// News of where the pointer was before a move can arrive after it and put the pointer back, where a
// hand's would stay. Elsewhere it is because the program put it there, and a window that is pulled
// along has its own news.
void WineDesk::HoldPointer() {
  const PixelPoint at = Pointer();
  if (buttonDown_ || at != before_ || at == pointer_) return;
  std::printf("The pointer was at %d,%d again and not at %d,%d\n", at.x, at.y, pointer_.x,
              pointer_.y);
  SendMouse(0);
}

void WineDesk::Press(Button button) {
  buttonDown_ = true;
  SendMouse(button == Button::Left ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_RIGHTDOWN);
}

void WineDesk::Release(Button button) {
  buttonDown_ = false;
  const bool dragging = source_ != nullptr && source_->Dragging();
  // A window that went along with the pointer may have been told of a wrong place since.
  SendMouse(0);
  SendMouse(button == Button::Left ? MOUSEEVENTF_LEFTUP : MOUSEEVENTF_RIGHTUP);
  // Until the source has heard that its drag is over, the pointer is its own, and so the next
  // click.
  if (dragging) Wait([this] { return !source_->Dragging(); }, 5000);
}

void WineDesk::DoubleClick(PixelPoint at) {
  for (int i = 0; i < 2; ++i) Click(at);
}

PixelPoint WineDesk::Pointer() const {
  POINT at = {};
  GetCursorPos(&at);
  return {static_cast<int>(at.x), static_cast<int>(at.y)};
}

void WineDesk::Key(int virtualKey) {
  SendKey(virtualKey, 0);
  SendKey(virtualKey, KEYEVENTF_KEYUP);
}

void WineDesk::HoldKey(int virtualKey) { SendKey(virtualKey, 0); }

void WineDesk::LetKeyGo(int virtualKey) { SendKey(virtualKey, KEYEVENTF_KEYUP); }

void WineDesk::Type(char letter) { Key(LOBYTE(VkKeyScanW(static_cast<wchar_t>(letter)))); }

bool WineDesk::Wait(const std::function<bool()>& until, int milliseconds) {
  const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(milliseconds);
  while (true) {
    AnswerMessages();
    HoldPointer();
    if (until()) return true;
    if (GetTickCount64() >= end) break;
    Sleep(10);
  }
  if (HWND box = OpenMessageBox()) {
    std::printf("A message is up: %s\n", Narrow(TextOf(GetDlgItem(box, 0xFFFF))).c_str());
  }
  return false;
}

void WineDesk::Pause(int milliseconds) {
  const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(milliseconds);
  while (GetTickCount64() < end) {
    AnswerMessages();
    HoldPointer();
    Sleep(10);
  }
}

PixelSize WineDesk::ScreenSize() const {
  return {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

int WineDesk::TwipsPerPixel() const {
  HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
  ReleaseDC(nullptr, screen);
  return 1440 / dpi;
}

HWND WineDesk::Handle(std::string_view className) const {
  Search search{.ClassName = Wide(className)};
  EnumWindows(LookAtWindow, reinterpret_cast<LPARAM>(&search));
  if (search.Found == nullptr) EnumWindows(LookBelowWindow, reinterpret_cast<LPARAM>(&search));
  return search.Found;
}

int WineDesk::ColoursIn(std::string_view className, PixelRect part) const {
  HWND window = Handle(className);
  if (window == nullptr) return 0;
  // Of another program's windows only the outermost can be read, its children with it.
  HWND outermost = GetAncestor(window, GA_ROOT);
  RECT frame = {};
  GetWindowRect(outermost, &frame);
  POINT offset = {-frame.left, -frame.top};
  ClientToScreen(window, &offset);
  HDC surface = GetDCEx(outermost, nullptr, DCX_WINDOW | DCX_CACHE);
  std::set<COLORREF> colours;
  for (int y = part.top; y < part.bottom; ++y) {
    for (int x = part.left; x < part.right; ++x) {
      colours.insert(
          GetPixel(surface, x + static_cast<int>(offset.x), y + static_cast<int>(offset.y)));
    }
  }
  ReleaseDC(outermost, surface);
  colours.erase(CLR_INVALID);
  return static_cast<int>(colours.size());
}

std::optional<SeenWindow> WineDesk::Window(std::string_view className) const {
  HWND window = Handle(className);
  RECT bounds = {};
  if (window == nullptr || GetWindowRect(window, &bounds) == FALSE) return std::nullopt;
  return SeenWindow{.Visible = IsWindowVisible(window) != FALSE,
                    .Bounds = {static_cast<int>(bounds.left), static_cast<int>(bounds.top),
                               static_cast<int>(bounds.right), static_cast<int>(bounds.bottom)},
                    .Title = Narrow(TextOf(window))};
}

std::string WineDesk::ForegroundClass() const {
  HWND window = GetForegroundWindow();
  return window == nullptr ? std::string() : Narrow(ClassOf(window));
}

void WineDesk::BringToFront(std::string_view className) {
  if (HWND window = Handle(className)) SetForegroundWindow(window);
}

void WineDesk::OpenOtherWindow(PixelRect bounds) {
  other_ = std::thread([this, bounds] {
    WNDCLASSW description = {};
    description.lpfnWndProc = OtherProcedure;
    description.hInstance = GetModuleHandleW(nullptr);
    description.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
    description.lpszClassName = L"OtherProgram";
    RegisterClassW(&description);
    HWND window =
        CreateWindowExW(0, L"OtherProgram", L"Another program", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                        bounds.left, bounds.top, bounds.Width(), bounds.Height(), nullptr, nullptr,
                        description.hInstance, nullptr);
    SetForegroundWindow(window);
    otherWindow_ = window;
    MSG message = {};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  });
  Wait([this] { return otherWindow_ != nullptr && GetForegroundWindow() == otherWindow_; }, 5000);
}

// The bar only keeps room: nobody talks to its window, so it needs no thread of its own.
PixelRect WineDesk::OpenOtherBar(Edge at, int thickness) {
  const PixelSize screen = ScreenSize();
  RECT wanted = {0, 0, screen.width, screen.height};
  UINT edge = ABE_TOP;
  switch (at) {
    case Edge::Left:
      edge = ABE_LEFT;
      wanted.right = thickness;
      break;
    case Edge::Right:
      edge = ABE_RIGHT;
      wanted.left = wanted.right - thickness;
      break;
    case Edge::Bottom:
      edge = ABE_BOTTOM;
      wanted.top = wanted.bottom - thickness;
      break;
    case Edge::Top:
      wanted.bottom = thickness;
      break;
  }
  if (bar_ == nullptr) {
    bar_ = CreateWindowExW(WS_EX_TOOLWINDOW, L"Static", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
                           GetModuleHandleW(nullptr), nullptr);
  }
  APPBARDATA bar = {};
  bar.cbSize = sizeof(bar);
  bar.hWnd = bar_;
  bar.uCallbackMessage = WM_APP;
  bar.uEdge = edge;
  SHAppBarMessage(ABM_NEW, &bar);
  bar.rc = wanted;
  if (SHAppBarMessage(ABM_SETPOS, &bar) == 0) return {};
  // The shell moves the near side; the bar keeps its thickness.
  if (at == Edge::Left) bar.rc.right = bar.rc.left + thickness;
  if (at == Edge::Right) bar.rc.left = bar.rc.right - thickness;
  if (at == Edge::Top) bar.rc.bottom = bar.rc.top + thickness;
  if (at == Edge::Bottom) bar.rc.top = bar.rc.bottom - thickness;
  return {static_cast<int>(bar.rc.left), static_cast<int>(bar.rc.top),
          static_cast<int>(bar.rc.right), static_cast<int>(bar.rc.bottom)};
}

void WineDesk::CloseOtherBar() {
  if (bar_ == nullptr) return;
  APPBARDATA bar = {};
  bar.cbSize = sizeof(bar);
  bar.hWnd = bar_;
  SHAppBarMessage(ABM_REMOVE, &bar);
  DestroyWindow(bar_);
  bar_ = nullptr;
}

void WineDesk::OpenDragSource(PixelRect bounds, const std::vector<std::string>& files,
                              std::string_view text, std::string_view title) {
  dragsource::Offer offer;
  for (const std::string& file : files) offer.Files.push_back(Wide(file));
  if (files.empty()) offer.Text = Wide(text);
  if (!title.empty()) {
    offer.Link = offer.Text;
    offer.LinkFile = Wide(std::string(title) + ".url");
  }
  source_ = std::make_unique<dragsource::DragSource>(
      RECT{bounds.left, bounds.top, bounds.right, bounds.bottom}, std::move(offer));
  Wait([this] { return GetForegroundWindow() == source_->Window(); }, 5000);
}

std::string WineDesk::DragEnd() const {
  if (source_ == nullptr) return "no source";
  if (source_->Dragging()) return "nothing yet";
  const HRESULT result = source_->Result();
  const char* const how = result == DRAGDROP_S_DROP     ? "a drop"
                          : result == DRAGDROP_S_CANCEL ? "a cancel"
                                                        : "an error";
  return std::string(how) + ", effect " + std::to_string(source_->Effect());
}

std::intptr_t WineDesk::Send(std::string_view className, std::uint32_t message,
                             std::uintptr_t wParam, std::intptr_t lParam) {
  HWND window = Handle(className);
  DWORD_PTR answer = 0;
  if (window == nullptr ||
      SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, 5000, &answer) == 0) {
    return 0;
  }
  return static_cast<std::intptr_t>(answer);
}

void WineDesk::Post(std::string_view className, std::uint32_t message, std::uintptr_t wParam,
                    std::intptr_t lParam) {
  if (HWND window = Handle(className)) PostMessageW(window, message, wParam, lParam);
}

bool WineDesk::EndSession() {
  std::vector<HWND> windows;
  for (const char* name : {"frmToolbar", "frmQMenu", "frmMinimize"}) {
    if (HWND window = Handle(name)) windows.push_back(window);
  }
  for (HWND window : windows) {
    DWORD_PTR answer = 0;
    if (SendMessageTimeoutW(window, WM_QUERYENDSESSION, 0, 0, SMTO_NORMAL, 5000, &answer) == 0 ||
        answer == 0) {
      return false;
    }
  }
  DWORD_PTR ignored = 0;
  for (HWND window : windows) {
    SendMessageTimeoutW(window, WM_ENDSESSION, TRUE, 0, SMTO_NORMAL, 5000, &ignored);
  }
  return !windows.empty();
}

bool WineDesk::PopupIsUp() const { return OpenPopup() != nullptr; }

// By the keyboard, as the pointer would have to know the height of a line.
void WineDesk::ChooseInPopups() {
  if (chosen_ == choices_.size() || OpenPopup() == nullptr) return;
  const std::string wanted = choices_[chosen_++];
  const auto* const line = std::find(std::begin(kPopupLines), std::end(kPopupLines), wanted);
  if (line == std::end(kPopupLines)) std::printf("No popup has the line %s\n", wanted.c_str());
  Sleep(100);
  for (const auto* at = std::begin(kPopupLines); at <= line && at != std::end(kPopupLines); ++at) {
    Key(VK_DOWN);
    Sleep(20);
  }
  Sleep(100);
  Picture("popup-" + std::to_string(chosen_));
  Key(line == std::end(kPopupLines) ? VK_ESCAPE : VK_RETURN);
  for (int i = 0; i < 300 && OpenPopup() != nullptr; ++i) Sleep(10);
}

// The icons stand in cells of 20 pixels from the right end of the task bar.
void WineDesk::ClickTrayIcon() {
  constexpr int kHalfCell = 10;
  RECT bar = {};
  HWND window = FindWindowW(L"Shell_TrayWnd", nullptr);
  if (window == nullptr || GetWindowRect(window, &bar) == FALSE) return;
  MovePointer(
      {static_cast<int>(bar.right) - kHalfCell, static_cast<int>(bar.top + bar.bottom) / 2});
  Pause(200);
  Press(Button::Left);
  Release(Button::Left);
}

bool WineDesk::HasTaskBarButton() const {
  HWND window = Handle("frmMinimize");
  return window != nullptr && IsWindowVisible(window) != FALSE &&
         (GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_APPWINDOW) != 0;
}

void WineDesk::ClickTaskBarButton() {
  // They have no names: the first stands beside the Start button, and the program came first.
  std::vector<RECT> buttons;
  EnumChildWindows(FindWindowW(L"Shell_TrayWnd", nullptr), NoteButton,
                   reinterpret_cast<LPARAM>(&buttons));
  if (!HasTaskBarButton() || buttons.size() < 2) return;
  std::sort(buttons.begin(), buttons.end(),
            [](const RECT& a, const RECT& b) { return a.left < b.left; });
  MovePointer({static_cast<int>(buttons[1].left + buttons[1].right) / 2,
               static_cast<int>(buttons[1].top + buttons[1].bottom) / 2});
  Pause(200);
  Press(Button::Left);
  Release(Button::Left);
}

void WineDesk::AnswerMenus() {
  if (menusAnswered_ == menuAnswers_.size()) return;
  HWND menu = FindWindowW(L"#32768", nullptr);
  if (menu == nullptr || IsWindowVisible(menu) == FALSE) return;
  Sleep(300);  // It draws itself and begins to listen.
  const char letter = menuAnswers_[menusAnswered_++];
  Picture("menu-" + std::to_string(menusAnswered_));
  if (letter == 0) {
    Key(VK_ESCAPE);
  } else {
    Type(letter);
  }
}

void WineDesk::AnswerMessages() {
  ChooseInPopups();
  AnswerMenus();
  if (answered_ == answers_.size()) return;
  HWND box = OpenMessageBox();
  if (box == nullptr) return;
  messages_.push_back(
      SeenMessage{.Title = Narrow(TextOf(box)), .Text = Narrow(TextOf(GetDlgItem(box, 0xFFFF)))});
  Picture("message-" + std::to_string(messages_.size()));
  const int button = answers_[answered_++];
  DWORD_PTR ignored = 0;
  SendMessageTimeoutW(box, WM_COMMAND, static_cast<WPARAM>(button), 0, SMTO_NORMAL, 5000, &ignored);
}

std::optional<std::string> WineDesk::ReadFile(std::string_view name) const {
  return ReadBytes(kAppFolder + Wide(name));
}

void WineDesk::WriteFile(std::string_view name, std::string_view bytes) {
  const std::wstring path = kAppFolder + Wide(name);
  CreateDirectoryW(path.substr(0, path.rfind(L'\\')).c_str(), nullptr);
  if (!WriteBytes(path, bytes)) std::printf("%s was not written\n", Narrow(path).c_str());
}

void WineDesk::RemoveFile(std::string_view name) {
  if (DeleteFileW((kAppFolder + Wide(name)).c_str()) == FALSE)
    std::printf("%.*s was not removed\n", static_cast<int>(name.size()), name.data());
}

bool WineDesk::FolderExists(std::string_view name) const {
  const DWORD attributes = GetFileAttributesW((kAppFolder + Wide(name)).c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::vector<std::string> WineDesk::Files(std::string_view folder) const {
  std::vector<std::string> names;
  for (std::wstring name : FilesIn(kAppFolder + Wide(folder) + L"\\", L"*")) {
    CharUpperBuffW(name.data(), static_cast<DWORD>(name.size()));
    names.push_back(Narrow(name));
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string WineDesk::WitnessProgram() const { return Narrow(kWitnessFolder) + "witness.exe"; }

// Its name has blanks and letters of two scripts: no single code page holds it.
std::string WineDesk::WitnessDocument() const {
  return Narrow(kDocumentFolder) + "letter to Zo\u00eb, \u043f\u0438\u0441\u044c\u043c\u043e.wit";
}

std::string WineDesk::MakeWitnessLink(std::string_view arguments, std::string_view folder) {
  const std::wstring link = std::wstring(kDocumentFolder) + L"a link.lnk";
  if (!MakeLinkFile(link, Wide(WitnessProgram()), Wide(arguments), Wide(folder))) {
    std::printf("There is no link\n");
  }
  return Narrow(link);
}

std::string WineDesk::MakeDamagedLink() {
  const std::wstring link = std::wstring(kDocumentFolder) + L"damaged.lnk";
  if (!WriteBytes(link, "L\x01 is no link")) std::printf("There is no damaged link\n");
  return Narrow(link);
}

void WineDesk::MakeProgramsEntry(std::string_view title, std::string_view arguments) {
  if (!MakeLinkFile(ProgramsFolder() + L"\\" + Wide(title) + L".lnk", Wide(WitnessProgram()),
                    Wide(arguments), L"")) {
    std::printf("There is no entry among the programs\n");
  }
}

std::optional<std::string> WineDesk::StartupLinkTarget() const {
  const auto target = LinkTargetOf(StartupFolder() + L"\\Corvelle.lnk");
  if (!target) return std::nullopt;
  return Narrow(*target);
}

std::vector<scenario::Launch> WineDesk::Launched() const {
  std::vector<scenario::Launch> launches;
  std::vector<std::wstring> names = FilesIn(kWitnessFolder, L"*.seen");
  std::sort(names.begin(), names.end());
  for (const std::wstring& name : names) {
    const std::string text = ReadBytes(kWitnessFolder + name).value_or("");
    // Three lines; the last one is written whole or the file has another name still.
    const std::size_t first = text.find('\n');
    const std::size_t second = text.find('\n', first + 1);
    launches.push_back({.Program = text.substr(0, first),
                        .Arguments = text.substr(first + 1, second - first - 1),
                        .Folder = text.substr(second + 1)});
  }
  return launches;
}

// The runner of the session takes the picture; where nobody serves requests there is no such
// folder.
void WineDesk::Picture(std::string_view name) {
  const std::wstring base = kPictureFolder + Wide(name);
  if (!WriteBytes(base + L".request", "")) return;
  for (int i = 0; i < 500; ++i) {
    if (GetFileAttributesW((base + L".request").c_str()) == INVALID_FILE_ATTRIBUTES) return;
    Sleep(10);
  }
  std::printf("No picture %s was taken\n", Narrow(base).c_str());
}

}  // namespace corvelle::e2e

namespace corvelle::scenario {

std::unique_ptr<Desk> MakeDesk() { return std::make_unique<e2e::WineDesk>(); }

}  // namespace corvelle::scenario
