#include "e2e/Hanging.h"

#include <windows.h>

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

#include "e2e/DeskFiles.h"
#include "e2e/WineDesk.h"

namespace corvelle::e2e {

namespace {

constexpr wchar_t kMarker[] = L"C:\\e2e\\hang";

/// True if the file is found within a moment. A thread that waits for it stays behind.
bool Answers(const std::wstring& path) {
  struct Shared {
    std::mutex Lock;
    std::condition_variable Came;
    bool Found = false;
  };
  const auto shared = std::make_shared<Shared>();
  std::thread([shared, path] {
    const bool found = GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
    const std::scoped_lock lock(shared->Lock);
    shared->Found = found;
    shared->Came.notify_one();
  }).detach();
  std::unique_lock lock(shared->Lock);
  return shared->Came.wait_for(lock, std::chrono::milliseconds(300), [&] { return shared->Found; });
}

}  // namespace

HangingFolder::HangingFolder(int files, const std::string& extension) {
  CreateDirectoryW(Wide(kPath).c_str(), nullptr);
  for (int i = 0; i < files; ++i) {
    HANDLE file = CreateFileW(Wide(File(i, extension)).c_str(), GENERIC_WRITE, 0, nullptr,
                              CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file != INVALID_HANDLE_VALUE) CloseHandle(file);
  }
}

std::string HangingFolder::File(int number, const std::string& extension) {
  return kPath + std::string("tool ") + std::to_string(100 + number) + extension;
}

bool HangingFolder::Hang() {
  HANDLE marker = CreateFileW(kMarker, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
  if (marker == INVALID_HANDLE_VALUE) return false;
  CloseHandle(marker);
  return !Answers(Wide(kPath));
}

void HangingFolder::Answer() { DeleteFileW(kMarker); }

}  // namespace corvelle::e2e
