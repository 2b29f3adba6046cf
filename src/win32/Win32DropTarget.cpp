#include "win32/Win32DropTarget.h"

#include <atomic>
#include <optional>
#include <string>
#include <utility>

#include <ole2.h>

#include "forms/DropFiles.h"
#include "win32/ComPointer.h"
#include "win32/MouseKeys.h"
#include "win32/Win32CodePage.h"
#include "win32/Win32Window.h"

namespace corvelle::win32 {

namespace {

using forms::DragData;
using forms::DragPoint;
using forms::DropEffect;

/// Keeps a block of global memory at its place for the length of a scope.
class LockedBlock {
 public:
  explicit LockedBlock(HGLOBAL block) noexcept : block_(block), bytes_(GlobalLock(block)) {}
  LockedBlock(const LockedBlock&) = delete;
  LockedBlock& operator=(const LockedBlock&) = delete;
  ~LockedBlock() {
    if (bytes_ != nullptr) GlobalUnlock(block_);
  }

  std::string_view Bytes() const noexcept {
    if (bytes_ == nullptr) return {};
    return {static_cast<const char*>(bytes_), GlobalSize(block_)};
  }

 private:
  HGLOBAL block_;
  const void* bytes_;
};

/// A copy of what a source offers in a format; nothing when it does not, or is gone.
std::optional<std::string> BlockOf(IDataObject& source, CLIPFORMAT format) {
  FORMATETC wanted{};
  wanted.cfFormat = format;
  wanted.dwAspect = DVASPECT_CONTENT;
  wanted.lindex = -1;
  wanted.tymed = TYMED_HGLOBAL;
  STGMEDIUM medium{};
  if (FAILED(source.GetData(&wanted, &medium))) return std::nullopt;
  std::optional<std::string> bytes;
  if (medium.tymed == TYMED_HGLOBAL) bytes = std::string(LockedBlock(medium.hGlobal).Bytes());
  ReleaseStgMedium(&medium);
  return bytes;
}

CLIPFORMAT FormatOf(const wchar_t* name) {
  return static_cast<CLIPFORMAT>(RegisterClipboardFormatW(name));
}

forms::DraggedLink LinkOf(IDataObject& source, const Win32CodePage& ansi) {
  static const CLIPFORMAT kWide = FormatOf(L"UniformResourceLocatorW");
  static const CLIPFORMAT kNarrow = FormatOf(L"UniformResourceLocator");
  if (const auto wide = BlockOf(source, kWide)) {
    return forms::ParseLink(forms::ParseWideText(*wide));
  }
  if (const auto narrow = BlockOf(source, kNarrow)) {
    return forms::ParseLink(forms::ParseNarrowText(*narrow, ansi));
  }
  return {};
}

std::string LinkFileTitleOf(IDataObject& source, const Win32CodePage& ansi) {
  static const CLIPFORMAT kWide = FormatOf(L"FileGroupDescriptorW");
  static const CLIPFORMAT kNarrow = FormatOf(L"FileGroupDescriptor");
  if (const auto wide = BlockOf(source, kWide)) {
    return forms::ParseLinkFileTitle(*wide, true, ansi);
  }
  if (const auto narrow = BlockOf(source, kNarrow)) {
    return forms::ParseLinkFileTitle(*narrow, false, ansi);
  }
  return {};
}

// A browser drags an address as text, as an address of its own format and as a file that is to be
// made.
void AddLink(IDataObject& source, const Win32CodePage& ansi, DragData& data) {
  forms::DraggedLink link = LinkOf(source, ansi);
  if (!data.Text && !link.Address.empty()) data.Text = std::move(link.Address);
  if (!data.Text) return;
  data.Title = link.Title.empty() ? LinkFileTitleOf(source, ansi) : std::move(link.Title);
}

// All is read at once and no reference is kept: a source that dies later takes nothing along.
DragData DataOf(IDataObject* source) {
  DragData data;
  if (source == nullptr) return data;
  const Win32CodePage ansi;
  if (const auto files = BlockOf(*source, CF_HDROP)) {
    data.Files = forms::ParseDropFiles(*files, ansi);
  }
  if (const auto wide = BlockOf(*source, CF_UNICODETEXT)) {
    data.Text = forms::ParseWideText(*wide);
  } else if (const auto narrow = BlockOf(*source, CF_TEXT)) {
    data.Text = forms::ParseNarrowText(*narrow, ansi);
  }
  if (!data.Files) AddLink(*source, ansi, data);
  return data;
}

// The system's interfaces have no virtual destructor, and nobody deletes through them.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// OLE's way to one window. OLE may hold it longer than the window lives. As in the window's
/// procedure, nothing may throw into the system: noexcept ends the program first.
class DropTarget final : public IDropTarget {
 public:
  DropTarget(HWND handle, std::weak_ptr<Win32Window> window) noexcept
      : handle_(handle), window_(std::move(window)) {}
  DropTarget(const DropTarget&) = delete;
  DropTarget& operator=(const DropTarget&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (id != IID_IUnknown && id != IID_IDropTarget) return E_NOINTERFACE;
    *object = static_cast<IDropTarget*>(this);
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() noexcept override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  HRESULT STDMETHODCALLTYPE DragEnter(IDataObject* source, DWORD keys, POINTL at,
                                      DWORD* effect) noexcept override {
    data_ = DataOf(source);
    return DragOver(keys, at, effect);
  }
  HRESULT STDMETHODCALLTYPE DragOver(DWORD keys, POINTL at, DWORD* effect) noexcept override {
    return Tell(&forms::WindowEvents::OnDragOver, data_, keys, at, effect);
  }
  HRESULT STDMETHODCALLTYPE DragLeave() noexcept override {
    data_ = {};
    const std::shared_ptr<Win32Window> window = window_.lock();
    if (window && window->Events() != nullptr) window->Events()->OnDragLeave();
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Drop(IDataObject* source, DWORD keys, POINTL at,
                                 DWORD* effect) noexcept override {
    data_ = {};
    DragData dropped = DataOf(source);
    return Tell(&forms::WindowEvents::OnDrop, dropped, keys, at, effect);
  }

 private:
  using Event = DropEffect (forms::WindowEvents::*)(DragData&, DropEffect, const DragPoint&);

  ~DropTarget() = default;

  HRESULT Tell(Event event, DragData& data, DWORD keys, POINTL at, DWORD* effect) {
    if (effect == nullptr) return E_POINTER;
    const auto allowed = static_cast<DropEffect>(*effect);
    *effect = DROPEFFECT_NONE;
    const std::shared_ptr<Win32Window> window = window_.lock();
    if (!window || window->Events() == nullptr) return S_OK;
    POINT point{at.x, at.y};
    ScreenToClient(handle_, &point);
    const DragPoint where{.At = {static_cast<int>(point.x), static_cast<int>(point.y)},
                          .Down = ButtonsDown(keys),
                          .Shift = ShiftOfMouse(keys)};
    const DropEffect answer = (window->Events()->*event)(data, allowed, where) & allowed;
    *effect = static_cast<DWORD>(answer);
    return S_OK;
  }

  std::atomic<ULONG> references_{1};
  HWND handle_;
  std::weak_ptr<Win32Window> window_;
  DragData data_;  // of the drag that is over the window
};

#pragma GCC diagnostic pop

}  // namespace

bool StartTakingDrops(HWND handle, const std::shared_ptr<Win32Window>& window) {
  const ComPointer<IDropTarget> target(new DropTarget(handle, window));
  return SUCCEEDED(RegisterDragDrop(handle, target.Get()));
}

void StopTakingDrops(HWND handle) { RevokeDragDrop(handle); }

}  // namespace corvelle::win32
