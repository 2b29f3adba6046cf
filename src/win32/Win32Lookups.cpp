#include "win32/Win32Lookups.h"

#include <ole2.h>

#include <chrono>
#include <condition_variable>
#include <map>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>

#include "base/Text.h"
#include "forms/LookupLedger.h"
#include "win32/ShellHelpers.h"
#include "win32/UniqueHandle.h"
#include "win32/Win32Files.h"
#include "win32/Win32ShellFolders.h"
#include "win32/Win32ShellIcons.h"
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
    return forms::AnswerLookup({files_, links_, system_, icons_, folders_}, question);
  }

 private:
  bool ready_;
  Win32Files files_;
  Win32ShellLinks links_;
  Win32SystemInfo system_;
  Win32ShellIcons icons_;
  Win32ShellFolders folders_;
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

/// A handle by which other threads can name this one; none when the system refuses.
UniqueKernel ThisThread() {
  UniqueKernel self;
  HANDLE handle = nullptr;
  if (DuplicateHandle(GetCurrentProcess(), GetCurrentThread(), GetCurrentProcess(), &handle,
                      THREAD_TERMINATE, FALSE, 0) != 0) {
    self.Reset(handle);
  }
  return self;
}

}  // namespace

/// What the threads and the program share; it lives as long as the last thread.
class Win32Lookups::Desk : public std::enable_shared_from_this<Desk> {
 public:
  Desk(std::shared_ptr<PostBox> posts, std::string helper)
      : helpers_(std::move(helper)),
        posts_(std::move(posts)),
        work_(CreateSemaphoreW(nullptr, 0, MAXLONG, nullptr)) {}

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

  void Cancel(LookupId id) {
    helpers_.Cancel(id);
    // Under the lock, so that the call that is broken off is that question's and not the next
    // one's.
    const std::scoped_lock lock(mutex_);
    const auto found = atWork_.find(id);
    if (found != atWork_.end()) CancelSynchronousIo(found->second);
  }

  bool Collect(int milliseconds) {
    if (telling_) return false;
    {
      std::unique_lock lock(mutex_);
      ended_.wait_for(lock, std::chrono::milliseconds(milliseconds),
                      [this] { return ledger_.HasEnds(); });
    }
    return Tell();
  }

  void Close() {
    std::unique_lock lock(mutex_);
    closed_ = true;
    helpers_.Close();
    listener_ = nullptr;  // a thread that stays behind keeps nothing of the program's
    ReleaseSemaphore(work_.Get(), static_cast<LONG>(kMostThreads), nullptr);
    left_.wait_for(lock, kFarewell, [this] { return threads_ == 0; });
  }

 private:
  // Under the lock. A new thread counts as idle until it takes something.
  void StartThread() {
    ++threads_;
    ++idle_;
    try {
      std::thread([desk = shared_from_this()] { desk->Work(); }).detach();
    } catch (const std::system_error&) {
      --idle_;
      if (--threads_ > 0) return;  // one of them takes it
      while (const auto begun = ledger_.Begin()) {
        if (ledger_.End(*begun, {.End = LookupEnd::Failed})) PostTelling();
      }
    }
  }

  void Work() {
    {
      Apartment apartment;
      const UniqueKernel self = ThisThread();
      while (const auto begun = Next(self.Get())) {
        auto helped = helpers_.Answer(begun->Id, begun->Question);
        LookupAnswer answer = helped ? *std::move(helped) : apartment.Answer(begun->Question);
        const std::scoped_lock lock(mutex_);
        ++idle_;
        atWork_.erase(begun->Id);
        if (ledger_.End(*begun, std::move(answer))) PostTelling();
        ended_.notify_all();
      }
    }
    const std::scoped_lock lock(mutex_);
    --threads_;
    left_.notify_all();
  }

  /// The next question of this thread. Nothing when it is to end; it is not counted on any more.
  std::optional<Begun> Next(HANDLE self) {
    for (bool goesOn = true;; goesOn = WaitForWork(work_.Get())) {
      const std::scoped_lock lock(mutex_);
      auto begun = closed_ ? std::nullopt : ledger_.Begin();
      // What came at the last moment was left to this thread.
      if (!begun && !closed_ && goesOn) continue;
      --idle_;
      if (begun) atWork_.emplace(begun->Id, self);
      return begun;
    }
  }

  // Under the lock.
  void PostTelling() {
    posts_->Post([desk = weak_from_this()] {
      if (const auto alive = desk.lock()) alive->Tell();
    });
  }

  bool Tell() {
    if (telling_) {
      late_ = true;
      return false;
    }
    std::vector<LookupAnswer> ends;
    {
      const std::scoped_lock lock(mutex_);
      if (closed_) return false;
      ends = ledger_.TakeEnds();
    }
    // The listener may set another one, and may end the program.
    const Listener listener = listener_;
    if (!listener || ends.empty()) return false;
    const auto self = shared_from_this();
    telling_ = true;
    listener(ends);
    telling_ = false;
    if (std::exchange(late_, false)) PostTelling();
    return true;
  }

  ShellHelpers helpers_;
  std::shared_ptr<PostBox> posts_;
  UniqueKernel work_;  // counts what came while threads were idle
  // On the thread of the windows only.
  Listener listener_;
  bool telling_ = false;
  bool late_ = false;  // a turn to tell came while the listener was at work

  std::mutex mutex_;
  std::condition_variable left_;
  std::condition_variable ended_;
  forms::LookupLedger ledger_;
  std::map<LookupId, HANDLE> atWork_;  // the threads of the questions that are being answered
  std::size_t threads_ = 0;
  std::size_t idle_ = 0;  // of them, not at a question
  bool closed_ = false;
};

Win32Lookups::Win32Lookups(std::shared_ptr<PostBox> posts)
    : Win32Lookups(std::move(posts),
                   EnsureBackslash(Win32SystemInfo().ApplicationFolder()) + "corvelle-shell.exe") {}

Win32Lookups::Win32Lookups(std::shared_ptr<PostBox> posts, std::string helper)
    : desk_(std::make_shared<Desk>(std::move(posts), std::move(helper))) {}

Win32Lookups::~Win32Lookups() { desk_->Close(); }

void Win32Lookups::SetListener(Listener listener) { desk_->SetListener(std::move(listener)); }

LookupId Win32Lookups::Ask(Lookup question) { return desk_->Ask(std::move(question)); }

void Win32Lookups::Drop(std::uint64_t generation) { desk_->Drop(generation); }

void Win32Lookups::Cancel(LookupId id) { desk_->Cancel(id); }

bool Win32Lookups::Collect(int milliseconds) { return desk_->Collect(milliseconds); }

}  // namespace corvelle::win32
