#pragma once

#include <windows.h>

#include <ddeml.h>

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace corvelle {

/// A thread with a message queue of its own: what `begin` makes lives until the end.
class OtherThread {
 public:
  OtherThread(const std::function<void()>& begin, const std::function<void()>& end) {
    HANDLE ready = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    thread_ = std::thread([=, this] {
      begin();
      id_ = GetCurrentThreadId();
      SetEvent(ready);
      MSG message;
      while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
      end();
    });
    WaitForSingleObject(ready, INFINITE);
    CloseHandle(ready);
  }
  OtherThread(const OtherThread&) = delete;
  OtherThread& operator=(const OtherThread&) = delete;
  ~OtherThread() {
    PostThreadMessageW(id_, WM_QUIT, 0, 0);
    thread_.join();
  }

 private:
  std::atomic<DWORD> id_{0};
  std::thread thread_;
};

/// A program that offers the service by the system's own library, as browsers do.
class LibraryServer {
 public:
  /// What becomes of each command.
  enum class Manner { Takes, Refuses, KeepsSilent };

  LibraryServer(std::wstring service, std::wstring topic, Manner manner)
      : serviceName_(std::move(service)), topicName_(std::move(topic)), manner_(manner) {
    current_ = this;
    thread_ = std::make_unique<OtherThread>([this] { Begin(); }, [this] { End(); });
  }
  LibraryServer(const LibraryServer&) = delete;
  LibraryServer& operator=(const LibraryServer&) = delete;
  ~LibraryServer() {
    thread_.reset();
    current_ = nullptr;
  }

  static constexpr DWORD kSilenceMilliseconds = 1000;

  /// The commands so far, as UTF-16.
  std::vector<std::wstring> Told() {
    const std::lock_guard lock(mutex_);
    return told_;
  }
  [[nodiscard]] int Conversations() const { return conversations_; }

 private:
  void Begin() {
    if (DdeInitializeW(&instance_, &Callback, APPCLASS_STANDARD, 0) != DMLERR_NO_ERROR) return;
    service_ = DdeCreateStringHandleW(instance_, serviceName_.c_str(), CP_WINUNICODE);
    topic_ = DdeCreateStringHandleW(instance_, topicName_.c_str(), CP_WINUNICODE);
    DdeNameService(instance_, service_, nullptr, DNS_REGISTER);
  }
  void End() {
    DdeNameService(instance_, nullptr, nullptr, DNS_UNREGISTER);
    DdeFreeStringHandle(instance_, service_);
    DdeFreeStringHandle(instance_, topic_);
    DdeUninitialize(instance_);
  }
  HDDEDATA Take(HDDEDATA data) {
    const DWORD bytes = DdeGetData(data, nullptr, 0, 0);
    std::wstring text(bytes / sizeof(wchar_t) + 1, L'\0');
    DdeGetData(data, reinterpret_cast<BYTE*>(text.data()), bytes, 0);
    {
      const std::lock_guard lock(mutex_);
      told_.emplace_back(text.c_str());
    }
    // The library answers only when this returns.
    if (manner_ == Manner::KeepsSilent) Sleep(kSilenceMilliseconds);
    return reinterpret_cast<HDDEDATA>(
        static_cast<ULONG_PTR>(manner_ == Manner::Refuses ? DDE_FNOTPROCESSED : DDE_FACK));
  }
  HDDEDATA On(UINT type, HSZ first, HSZ second, HDDEDATA data) {
    switch (type) {
      case XTYP_CONNECT:
        return reinterpret_cast<HDDEDATA>(static_cast<ULONG_PTR>(
            DdeCmpStringHandles(first, topic_) == 0 && DdeCmpStringHandles(second, service_) == 0));
      case XTYP_CONNECT_CONFIRM:
        ++conversations_;
        return nullptr;
      case XTYP_DISCONNECT:
        --conversations_;
        return nullptr;
      case XTYP_EXECUTE:
        return Take(data);
      default:
        return nullptr;
    }
  }
  static HDDEDATA CALLBACK Callback(UINT type, UINT, HCONV, HSZ first, HSZ second, HDDEDATA data,
                                    ULONG_PTR, ULONG_PTR) {
    return current_ == nullptr ? nullptr : current_->On(type, first, second, data);
  }

  static inline LibraryServer* current_ = nullptr;
  std::wstring serviceName_;
  std::wstring topicName_;
  Manner manner_;
  DWORD instance_ = 0;
  HSZ service_ = nullptr;
  HSZ topic_ = nullptr;
  std::mutex mutex_;
  std::vector<std::wstring> told_;
  std::atomic<int> conversations_{0};
  std::unique_ptr<OtherThread> thread_;
};

}  // namespace corvelle
