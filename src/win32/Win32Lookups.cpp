#include "win32/Win32Lookups.h"

#include <ole2.h>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

#include "forms/LookupLedger.h"
#include "win32/UniqueHandle.h"
#include "win32/Win32Files.h"
#include "win32/Win32ShellLinks.h"
#include "win32/Win32SystemInfo.h"

namespace corvelle::win32 {

namespace {

using Begun = forms::LookupLedger::Begun;

constexpr std::size_t kMostThreads = 16;
constexpr DWORD kIdleMilliseconds = 10'000;
constexpr std::chrono::milliseconds kFarewell{500};

/// The services of one thread and the apartment they need.
class Apartment {
 public:
  Apartment()
      : ready_(
            SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE))) {
    // Nobody sits before this thread: an empty drive is a failure, not a box of the system's.
    SetThreadErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, nullptr);
  }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
  ~Apartment() {
    if (ready_) CoUninitialize();
  }

  LookupAnswer Answer(const Lookup& question) {
    return forms::AnswerLookup(files_, links_, system_, question);
  }

 private:
  bool ready_;
  Win32Files files_;
  Win32ShellLinks links_;
  Win32SystemInfo system_;
};

/// Waits until there may be work, with the messages of the apartment running. False when none came
/// for a while.
bool WaitForWork(HANDLE work) {
  const ULONGLONG end = GetTickCount64() + kIdleMilliseconds;
  for (ULONGLONG now = GetTickCount64(); now < end; now = GetTickCount64()) {
    const DWORD woken = MsgWaitForMultipleObjectsEx(1, &work, static_cast<DWORD>(end - now),
                                                    QS_ALLINPUT, MWMO_INPUTAVAILABLE);
    if (woken == WAIT_OBJECT_0) return true;
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) DispatchMessageW(&message);
  }
  return false;
}

}  // namespace

/// What the threads and the program share; it lives as long as the last thread.
class Win32Lookups::Desk : public std::enable_shared_from_this<Desk> {
 public:
  explicit Desk(std::shared_ptr<PostBox> posts)
      : posts_(std::move(posts)), work_(CreateSemaphoreW(nullptr, 0, MAXLONG, nullptr)) {}

  void SetListener(Listener listener) { listener_ = std::move(listener); }

  LookupId Ask(Lookup question) {
    const std::scoped_lock lock(mutex_);
    const LookupId id = ledger_.Open(std::move(question));
    if (ledger_.Ready() > idle_ && threads_ < kMostThreads) {
      StartThread();
    } else {
      ReleaseSemaphore(work_.Get(), 1, nullptr);
    }
    return id;
  }

  void Drop(std::uint64_t generation) {
    const std::scoped_lock lock(mutex_);
    if (ledger_.Drop(generation)) PostTelling();
  }

  void Close() {
    std::unique_lock lock(mutex_);
    closed_ = true;
    listener_ = nullptr;  // a thread that stays behind keeps nothing of the program's
    ReleaseSemaphore(work_.Get(), static_cast<LONG>(kMostThreads), nullptr);
    left_.wait_for(lock, kFarewell, [this] { return threads_ == 0; });
  }

 private:
  // Under the lock. A new thread counts as idle until it takes something.
  void StartThread() {
    ++threads_;
    ++idle_;
    std::thread([desk = shared_from_this()] { desk->Work(); }).detach();
  }

  void Work() {
    {
      Apartment apartment;
      while (const auto begun = Next()) {
        LookupAnswer answer = apartment.Answer(begun->Question);
        const std::scoped_lock lock(mutex_);
        ++idle_;
        if (ledger_.End(*begun, std::move(answer))) PostTelling();
      }
    }
    const std::scoped_lock lock(mutex_);
    --threads_;
    left_.notify_all();
  }

  /// The next question of this thread. Nothing when it is to end; it is not counted on any more.
  std::optional<Begun> Next() {
    for (bool goesOn = true;; goesOn = WaitForWork(work_.Get())) {
      const std::scoped_lock lock(mutex_);
      auto begun = closed_ ? std::nullopt : ledger_.Begin();
      // What came at the last moment was left to this thread.
      if (!begun && !closed_ && goesOn) continue;
      --idle_;
      return begun;
    }
  }

  // Under the lock.
  void PostTelling() {
    posts_->Post([desk = weak_from_this()] {
      if (const auto alive = desk.lock()) alive->Tell();
    });
  }

  void Tell() {
    std::vector<LookupAnswer> ends;
    {
      const std::scoped_lock lock(mutex_);
      if (closed_) return;
      ends = ledger_.TakeEnds();
    }
    // The listener may set another one.
    const Listener listener = listener_;
    if (listener && !ends.empty()) listener(ends);
  }

  std::shared_ptr<PostBox> posts_;
  UniqueKernel work_;  // counts what came while threads were idle
  Listener listener_;  // on the thread of the windows only
  std::mutex mutex_;
  std::condition_variable left_;
  forms::LookupLedger ledger_;
  std::size_t threads_ = 0;
  std::size_t idle_ = 0;  // of them, not at a question
  bool closed_ = false;
};

Win32Lookups::Win32Lookups(std::shared_ptr<PostBox> posts)
    : desk_(std::make_shared<Desk>(std::move(posts))) {}

Win32Lookups::~Win32Lookups() { desk_->Close(); }

void Win32Lookups::SetListener(Listener listener) { desk_->SetListener(std::move(listener)); }

LookupId Win32Lookups::Ask(Lookup question) { return desk_->Ask(std::move(question)); }

void Win32Lookups::Drop(std::uint64_t generation) { desk_->Drop(generation); }

}  // namespace corvelle::win32
