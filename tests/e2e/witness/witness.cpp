// A program that only writes down how it was started: its own path, the rest of its command line
// and the folder in which it found itself, one to a line, in a file beside it. The file's name
// tells the order.

#include <windows.h>

#include <string>

namespace {

std::string Narrow(const std::wstring& text) {
  const int length = WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                         nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), narrow.data(), length,
                      nullptr, nullptr);
  return narrow;
}

// The command line after the program's name, which may stand in quotes, and the blanks that follow.
std::wstring Arguments(const std::wstring& commandLine) {
  std::size_t at = 0;
  if (!commandLine.empty() && commandLine[0] == L'"') {
    at = commandLine.find(L'"', 1);
    at = at == std::wstring::npos ? commandLine.size() : at + 1;
  } else {
    at = commandLine.find(L' ');
  }
  at = commandLine.find_first_not_of(L' ', at);
  return at == std::wstring::npos ? std::wstring() : commandLine.substr(at);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
  wchar_t program[MAX_PATH] = {};
  wchar_t folder[MAX_PATH] = {};
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  GetCurrentDirectoryW(MAX_PATH, folder);
  const std::string text =
      Narrow(program) + "\n" + Narrow(Arguments(GetCommandLineW())) + "\n" + Narrow(folder);

  std::wstring base = program;
  base.resize(base.rfind(L'\\') + 1);
  FILETIME now = {};
  GetSystemTimeAsFileTime(&now);
  wchar_t name[64] = {};
  wsprintfW(name, L"%08x%08x-%u", now.dwHighDateTime, now.dwLowDateTime, GetCurrentProcessId());
  base += name;
  HANDLE file =
      CreateFileW((base + L".tmp").c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return 1;
  DWORD written = 0;
  const BOOL done =
      WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
  CloseHandle(file);
  // Whoever waits for it must never see half a file.
  if (done == FALSE || MoveFileW((base + L".tmp").c_str(), (base + L".seen").c_str()) == FALSE)
    return 1;
  return 0;
}
