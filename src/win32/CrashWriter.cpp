#include "win32/CrashWriter.h"

#include <cstddef>
#include <cstdio>
#include <string>

#include "win32/Sys.h"

#include <dbghelp.h>
#include <tlhelp32.h>

#include "base/Version.h"
#include "win32/CrashFiles.h"
#include "win32/CrashLine.h"
#include "win32/UniqueHandle.h"
#include "win32/Wide.h"

namespace corvelle::win32 {

namespace {

constexpr std::size_t kLongestText = 256;

template <class... Values>
std::string Formatted(const char* format, Values... values) {
  char text[kLongestText] = "";
  std::snprintf(text, sizeof text, format, values...);
  return text;
}

unsigned long long Number(const void* address) {
  return static_cast<unsigned long long>(reinterpret_cast<std::uintptr_t>(address));
}

std::wstring PathOfProcess(HANDLE process) {
  wchar_t path[kLongestProgram] = L"";
  DWORD length = kLongestProgram;
  return QueryFullProcessImageNameW(process, 0, path, &length) != 0 ? path : L"";
}

std::wstring OwnPath() {
  wchar_t path[kLongestProgram] = L"";
  const DWORD length = GetModuleFileNameW(nullptr, path, kLongestProgram);
  return length < kLongestProgram ? path : L"";
}

/// Only a process of this very program is looked into.
bool IsThisProgram(HANDLE process) {
  const std::wstring path = PathOfProcess(process);
  return !path.empty() && lstrcmpiW(path.c_str(), OwnPath().c_str()) == 0;
}

template <class T>
bool Read(HANDLE process, const void* address, T& value) {
  SIZE_T length = 0;
  return ReadProcessMemory(process, address, &value, sizeof value, &length) != 0 &&
         length == sizeof value;
}

std::string WindowsVersion() {
  using GetVersion = LONG(WINAPI*)(OSVERSIONINFOW*);
  const auto ask = reinterpret_cast<GetVersion>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "RtlGetVersion")));
  OSVERSIONINFOW version{};
  version.dwOSVersionInfoSize = sizeof version;
  if (ask == nullptr || ask(&version) != 0) return "unknown";
  return Formatted("%lu.%lu.%lu", version.dwMajorVersion, version.dwMinorVersion,
                   version.dwBuildNumber);
}

std::string WhatHappened(DWORD code) {
  switch (code) {
    case kUncaughtException:
    case kThrown:
      return "a C++ exception was not caught";
    case kAborted:
      return "the program called abort";
    case EXCEPTION_ACCESS_VIOLATION:
      return "access violation";
    default:
      return Formatted("exception %08lx", code);
  }
}

struct Library {
  std::string Path;
  unsigned long long Base = 0;
  unsigned long long Size = 0;
};

std::string LibraryLine(const Library& library) {
  return Formatted("%016llx %8llx ", library.Base, library.Size) + library.Path + "\r\n";
}

/// The libraries of a process, and the one that an address lies in.
struct Libraries {
  std::string Lines;
  std::string Place;
};

Libraries LibrariesOf(DWORD process, unsigned long long address) {
  Libraries all;
  all.Place = Formatted("%016llx", address);
  const UniqueFile list(CreateToolhelp32Snapshot(TH32CS_SNAPMODULE, process));
  MODULEENTRY32W module{};
  module.dwSize = sizeof module;
  if (!list || Module32FirstW(list.Get(), &module) == 0) return all;
  do {
    const Library library{.Path = Narrow(module.szExePath),
                          .Base = Number(module.modBaseAddr),
                          .Size = module.modBaseSize};
    all.Lines += LibraryLine(library);
    if (address >= library.Base && address - library.Base < library.Size) {
      all.Place = Narrow(module.szModule) + Formatted(" + 0x%llx", address - library.Base);
    }
  } while (Module32NextW(list.Get(), &module) != 0);
  return all;
}

std::string Report(HANDLE process, const CrashLine& facts, const SYSTEMTIME& now) {
  EXCEPTION_POINTERS pointers{};
  EXCEPTION_RECORD record{};
  static_cast<void>(Read(process, reinterpret_cast<const void*>(facts.Pointers), pointers) &&
                    Read(process, pointers.ExceptionRecord, record));
  const Libraries libraries = LibrariesOf(facts.Process, Number(record.ExceptionAddress));
  return "Corvelle " + std::string(kVersion) + Formatted(", %d bits", int{sizeof(void*) * 8}) +
         "\r\nWindows " + WindowsVersion() +
         Formatted("\r\nTime %04d-%02d-%02d %02d:%02d:%02d UTC\r\n", now.wYear, now.wMonth,
                   now.wDay, now.wHour, now.wMinute, now.wSecond) +
         "What happened: " + WhatHappened(record.ExceptionCode) + "\r\nWhere: " + libraries.Place +
         "\r\n\r\nLibraries (address, size, path):\r\n" + libraries.Lines;
}

// The library that writes dumps is no known library of the system: it comes from the system's
// folder by its whole path, and only now.
void WriteDump(HANDLE process, const CrashLine& facts, const std::wstring& path) {
  using Dump = BOOL(WINAPI*)(HANDLE, DWORD, HANDLE, MINIDUMP_TYPE, MINIDUMP_EXCEPTION_INFORMATION*,
                             void*, void*);
  wchar_t folder[MAX_PATH] = L"";
  if (GetSystemDirectoryW(folder, MAX_PATH) == 0) return;
  HMODULE const library = LoadLibraryW((std::wstring(folder) + L"\\dbghelp.dll").c_str());
  if (library == nullptr) return;
  const auto write =
      reinterpret_cast<Dump>(reinterpret_cast<void*>(GetProcAddress(library, "MiniDumpWriteDump")));
  const UniqueFile file(CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                    CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
  if (write == nullptr || !file) return;
  MINIDUMP_EXCEPTION_INFORMATION crash{};
  crash.ThreadId = facts.Thread;
  crash.ExceptionPointers = reinterpret_cast<EXCEPTION_POINTERS*>(facts.Pointers);
  crash.ClientPointers = TRUE;
  write(process, facts.Process, file.Get(), MiniDumpNormal, &crash, nullptr, nullptr);
}

// The shell would keep the place of a bar whose window is gone.
void GiveEdgeBack(const CrashLine& facts) {
  if (facts.Bar == 0) return;
  APPBARDATA bar{};
  bar.cbSize = sizeof bar;
  bar.hWnd = reinterpret_cast<HWND>(facts.Bar);
  SHAppBarMessage(ABM_REMOVE, &bar);
}

}  // namespace

bool WroteCrashReport() {
  const auto facts = ParseCrashLine(GetCommandLineW());
  if (!facts) return false;
  const UniqueKernel process(OpenProcess(PROCESS_ALL_ACCESS, FALSE, facts->Process));
  if (!process || !IsThisProgram(process.Get())) return true;
  GiveEdgeBack(*facts);
  const std::wstring folder = CrashFolder();
  if (folder.empty() || !MakeFoldersTo(folder)) return true;
  SYSTEMTIME now{};
  GetSystemTime(&now);
  const std::wstring base =
      folder + Wide(Formatted("corvelle-%04d%02d%02d-%02d%02d%02d-%lu", now.wYear, now.wMonth,
                              now.wDay, now.wHour, now.wMinute, now.wSecond, facts->Process));
  // The text first: should the dump fail, it is there.
  if (!WriteWhole(base + L".txt", Report(process.Get(), *facts, now))) return true;
  NoteUntold(folder, base + L".txt");
  WriteDump(process.Get(), *facts, base + L".dmp");
  DropOldReports(folder);
  return true;
}

}  // namespace corvelle::win32
