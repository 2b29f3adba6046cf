#pragma once

#include <utility>

#include "win32/Sys.h"

namespace corvelle::win32 {

/// Owns one handle of the system and gives it back at its end. `Traits` names the handle's type,
/// the value that means no handle, and how to give it back.
template <class Traits>
class UniqueHandle {
 public:
  using Handle = typename Traits::Handle;

  UniqueHandle() noexcept = default;
  explicit UniqueHandle(Handle handle) noexcept : handle_(handle) {}
  UniqueHandle(UniqueHandle&& other) noexcept : handle_(other.Release()) {}
  UniqueHandle& operator=(UniqueHandle&& other) noexcept {
    if (this != &other) Reset(other.Release());
    return *this;
  }
  UniqueHandle(const UniqueHandle&) = delete;
  UniqueHandle& operator=(const UniqueHandle&) = delete;
  ~UniqueHandle() { Reset(); }

  Handle Get() const noexcept { return handle_; }
  explicit operator bool() const noexcept { return handle_ != Traits::None(); }

  /// Gives back what is held and takes `handle` instead.
  void Reset(Handle handle = Traits::None()) noexcept {
    const Handle before = std::exchange(handle_, handle);
    if (before != Traits::None() && before != handle) Traits::Close(before);
  }

  /// Hands the handle over to the caller.
  [[nodiscard]] Handle Release() noexcept { return std::exchange(handle_, Traits::None()); }

  /// Where a call of Windows stores a new handle; what was held is given back first.
  Handle* Receive() noexcept {
    Reset();
    return &handle_;
  }

 private:
  Handle handle_ = Traits::None();
};

template <class T>
struct NullHandleTraits {
  using Handle = T;
  static Handle None() noexcept { return nullptr; }
};

template <class T>
struct GdiObjectTraits : NullHandleTraits<T> {
  static void Close(T object) noexcept { DeleteObject(object); }
};

struct MemoryDcTraits : NullHandleTraits<HDC> {
  static void Close(HDC dc) noexcept { DeleteDC(dc); }
};

struct IconTraits : NullHandleTraits<HICON> {
  static void Close(HICON icon) noexcept { DestroyIcon(icon); }
};

struct CursorTraits : NullHandleTraits<HCURSOR> {
  static void Close(HCURSOR cursor) noexcept { DestroyCursor(cursor); }
};

struct ImageListTraits : NullHandleTraits<HIMAGELIST> {
  static void Close(HIMAGELIST images) noexcept { ImageList_Destroy(images); }
};

struct WindowTraits : NullHandleTraits<HWND> {
  static void Close(HWND window) noexcept { DestroyWindow(window); }
};

struct MenuTraits : NullHandleTraits<HMENU> {
  static void Close(HMENU menu) noexcept { DestroyMenu(menu); }
};

struct RegistryKeyTraits : NullHandleTraits<HKEY> {
  static void Close(HKEY key) noexcept { RegCloseKey(key); }
};

struct KernelTraits : NullHandleTraits<HANDLE> {
  static void Close(HANDLE handle) noexcept { CloseHandle(handle); }
};

struct FileTraits {
  using Handle = HANDLE;
  static Handle None() noexcept { return INVALID_HANDLE_VALUE; }
  static void Close(Handle file) noexcept { CloseHandle(file); }
};

struct FindTraits {
  using Handle = HANDLE;
  static Handle None() noexcept { return INVALID_HANDLE_VALUE; }
  static void Close(Handle find) noexcept { FindClose(find); }
};

using UniqueFont = UniqueHandle<GdiObjectTraits<HFONT>>;
using UniqueBitmap = UniqueHandle<GdiObjectTraits<HBITMAP>>;
using UniquePen = UniqueHandle<GdiObjectTraits<HPEN>>;
using UniqueMemoryDc = UniqueHandle<MemoryDcTraits>;
using UniqueIcon = UniqueHandle<IconTraits>;
using UniqueCursor = UniqueHandle<CursorTraits>;
using UniqueImageList = UniqueHandle<ImageListTraits>;
using UniqueWindow = UniqueHandle<WindowTraits>;
using UniqueMenu = UniqueHandle<MenuTraits>;
using UniqueRegistryKey = UniqueHandle<RegistryKeyTraits>;
using UniqueKernel = UniqueHandle<KernelTraits>;
using UniqueFile = UniqueHandle<FileTraits>;
using UniqueFind = UniqueHandle<FindTraits>;

/// Keeps an object selected in a device context for the length of a scope.
class SelectedObject {
 public:
  SelectedObject(HDC dc, HGDIOBJ object) noexcept : dc_(dc), before_(SelectObject(dc, object)) {}
  SelectedObject(const SelectedObject&) = delete;
  SelectedObject& operator=(const SelectedObject&) = delete;
  ~SelectedObject() {
    if (before_ != nullptr) SelectObject(dc_, before_);
  }

 private:
  HDC dc_;
  HGDIOBJ before_;
};

/// The device context of a window, or of the screen without one, for the length of a scope.
class WindowDc {
 public:
  explicit WindowDc(HWND window) noexcept : window_(window), dc_(GetDC(window)) {}
  WindowDc(const WindowDc&) = delete;
  WindowDc& operator=(const WindowDc&) = delete;
  ~WindowDc() {
    if (dc_ != nullptr) ReleaseDC(window_, dc_);
  }

  HDC Get() const noexcept { return dc_; }

 private:
  HWND window_;
  HDC dc_;
};

}  // namespace corvelle::win32
