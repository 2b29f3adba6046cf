#pragma once

#include <atomic>

#include "forms/PostedWork.h"
#include "win32/Sys.h"

namespace corvelle::win32 {

/// Work that other threads hand to the thread of the windows. Shared with those threads, so that
/// one that comes back after the window system has ended finds it closed.
class PostBox {
 public:
  /// Made on the thread of the windows.
  PostBox();
  PostBox(const PostBox&) = delete;
  PostBox& operator=(const PostBox&) = delete;
  ~PostBox();

  /// See forms::WindowSystem::Post. From any thread.
  void Post(forms::PostedWork::Work work);

  /// The windows end: what waits is dropped, and so is all that comes. On their thread.
  void Close();

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam,
                                    LPARAM lParam) noexcept;
  void Wake() const;

  forms::PostedWork work_;
  HWND window_ = nullptr;  // what is posted to it after its end goes nowhere
  std::atomic<bool> closed_ = false;
};

}  // namespace corvelle::win32
