#pragma once

#include <windows.h>

#include <atomic>
#include <memory>
#include <string>
#include <thread>

namespace corvelle::e2e {

/// Knocks at a window of another program from outside, some two hundred times a second, and notes
/// how long each knock waited for its answer.
class Heartbeat {
 public:
  /// From now on at the top-level window of that class, as soon as there is one.
  explicit Heartbeat(std::wstring className);
  Heartbeat(const Heartbeat&) = delete;
  Heartbeat& operator=(const Heartbeat&) = delete;
  ~Heartbeat() { Stop(); }

  /// No more knocks.
  void Stop();
  /// The longest wait so far, milliseconds; also of the knock that waits just now.
  [[nodiscard]] double Longest() const;
  [[nodiscard]] int Answers() const { return answers_; }
  /// Begins to note from here.
  void Forget();

 private:
  void Knock();
  void Note(double waited);

  std::wstring className_;
  std::atomic<bool> over_ = false;
  std::atomic<int> answers_ = 0;
  std::atomic<double> longest_ = 0;
  std::atomic<double> since_ = 0;  // of the knock that waits; 0: none does
  std::thread thread_;
};

/// A window of the test itself that does nothing but answer: what it takes is the machine's doing.
class IdleWindow {
 public:
  static constexpr wchar_t kClass[] = L"CorvelleIdleWindow";
  IdleWindow();
  IdleWindow(const IdleWindow&) = delete;
  IdleWindow& operator=(const IdleWindow&) = delete;
  ~IdleWindow();

 private:
  std::atomic<DWORD> id_ = 0;
  std::thread thread_;
};

/// A thread of the test that does the same small piece of work over and over, with pauses. How long
/// one takes at most beside other programs is what a window would be silent for that works so long.
class SameWork {
 public:
  /// What one piece takes where nothing else runs. Milliseconds.
  static constexpr int kAlone = 25;
  SameWork();
  SameWork(const SameWork&) = delete;
  SameWork& operator=(const SameWork&) = delete;
  ~SameWork() { Stop(); }

  void Stop();
  /// Of all pieces since Forget. Milliseconds.
  [[nodiscard]] double Longest() const { return longest_; }
  void Forget() { longest_ = 0; }

 private:
  void Work();

  std::atomic<bool> over_ = false;
  std::atomic<double> longest_ = 0;
  std::thread thread_;
};

/// Milliseconds since some moment.
[[nodiscard]] double NowInMilliseconds();

}  // namespace corvelle::e2e
