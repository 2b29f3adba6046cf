#pragma once

#include <windows.h>

#include <ole2.h>
#include <shlobj.h>

#include <atomic>
#include <cstring>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

// A program of others that has something to drag: a window on a thread of its own, which begins to
// drag by OLE when it is pressed.

namespace corvelle::dragsource {

/// What is offered. In a file list each path ends with a NUL.
struct Offer {
  std::vector<std::wstring> Files;
  std::optional<std::wstring> Text;
  /// A web address as browsers drag it: the address, which may have a line with its title behind
  /// it, and the name of the file that it would become.
  std::optional<std::wstring> Link;
  std::optional<std::wstring> LinkFile;
  DWORD Allowed = DROPEFFECT_COPY | DROPEFFECT_MOVE | DROPEFFECT_LINK;
};

inline CLIPFORMAT LinkFormat() {
  static const auto kFormat =
      static_cast<CLIPFORMAT>(RegisterClipboardFormatW(L"UniformResourceLocatorW"));
  return kFormat;
}
inline CLIPFORMAT LinkFileFormat() {
  static const auto kFormat =
      static_cast<CLIPFORMAT>(RegisterClipboardFormatW(L"FileGroupDescriptorW"));
  return kFormat;
}

inline HGLOBAL BlockWith(const void* head, std::size_t headSize, const std::wstring& rest) {
  const std::size_t restSize = rest.size() * sizeof(wchar_t);
  HGLOBAL block = GlobalAlloc(GHND, headSize + restSize);
  if (block == nullptr) return nullptr;
  auto* const bytes = static_cast<char*>(GlobalLock(block));
  if (headSize > 0) std::memcpy(bytes, head, headSize);
  std::memcpy(bytes + headSize, rest.data(), restSize);
  GlobalUnlock(block);
  return block;
}

// The system's interfaces have no virtual destructor, and nobody deletes through them.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

class Data final : public IDataObject {
 public:
  explicit Data(Offer offer) : offer_(std::move(offer)) {}
  virtual ~Data() = default;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    *object = id == IID_IUnknown || id == IID_IDataObject ? this : nullptr;
    return *object != nullptr ? S_OK : E_NOINTERFACE;
  }
  // It lives on its window's stack.
  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }

  HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC* format) override {
    if ((format->tymed & TYMED_HGLOBAL) == 0) return DV_E_TYMED;
    const bool has = (format->cfFormat == CF_HDROP && !offer_.Files.empty()) ||
                     (format->cfFormat == CF_UNICODETEXT && offer_.Text) ||
                     (format->cfFormat == LinkFormat() && offer_.Link) ||
                     (format->cfFormat == LinkFileFormat() && offer_.LinkFile);
    return has ? S_OK : DV_E_FORMATETC;
  }
  HRESULT STDMETHODCALLTYPE GetData(FORMATETC* format, STGMEDIUM* medium) override {
    const HRESULT has = QueryGetData(format);
    if (has != S_OK) return has;
    *medium = {};
    medium->tymed = TYMED_HGLOBAL;
    if (format->cfFormat == CF_HDROP) {
      DROPFILES header{};
      header.pFiles = sizeof(header);
      header.fWide = TRUE;
      std::wstring list;
      for (const std::wstring& file : offer_.Files) list += file + L'\0';
      medium->hGlobal = BlockWith(&header, sizeof(header), list + L'\0');
    } else if (format->cfFormat == LinkFileFormat()) {
      FILEGROUPDESCRIPTORW group{};
      group.cItems = 1;
      offer_.LinkFile->copy(group.fgd[0].cFileName, MAX_PATH - 1);
      medium->hGlobal = BlockWith(&group, sizeof(group), {});
    } else {
      const bool link = format->cfFormat == LinkFormat();
      medium->hGlobal = BlockWith(nullptr, 0, (link ? *offer_.Link : *offer_.Text) + L'\0');
    }
    return medium->hGlobal != nullptr ? S_OK : E_OUTOFMEMORY;
  }
  HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD direction, IEnumFORMATETC** formats) override {
    if (direction != DATADIR_GET) return E_NOTIMPL;
    FORMATETC all[4] = {};
    UINT count = 0;
    for (const CLIPFORMAT format :
         {CLIPFORMAT{CF_HDROP}, CLIPFORMAT{CF_UNICODETEXT}, LinkFormat(), LinkFileFormat()}) {
      FORMATETC& next = all[count];
      next.cfFormat = format;
      next.dwAspect = DVASPECT_CONTENT;
      next.lindex = -1;
      next.tymed = TYMED_HGLOBAL;
      if (QueryGetData(&next) == S_OK) ++count;
    }
    return SHCreateStdEnumFmtEtc(count, all, formats);
  }
  HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC*, STGMEDIUM*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC*, FORMATETC*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE SetData(FORMATETC*, STGMEDIUM*, BOOL) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override {
    return OLE_E_ADVISENOTSUPPORTED;
  }
  HRESULT STDMETHODCALLTYPE DUnadvise(DWORD) override { return OLE_E_ADVISENOTSUPPORTED; }
  HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA**) override {
    return OLE_E_ADVISENOTSUPPORTED;
  }

 private:
  Offer offer_;
};

class Source final : public IDropSource {
 public:
  explicit Source(DWORD button) : button_(button) {}
  virtual ~Source() = default;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    *object = id == IID_IUnknown || id == IID_IDropSource ? this : nullptr;
    return *object != nullptr ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }

  HRESULT STDMETHODCALLTYPE QueryContinueDrag(BOOL escape, DWORD keys) override {
    if (escape != FALSE) return DRAGDROP_S_CANCEL;
    return (keys & button_) == 0 ? DRAGDROP_S_DROP : S_OK;
  }
  HRESULT STDMETHODCALLTYPE GiveFeedback(DWORD) override { return DRAGDROP_S_USEDEFAULTCURSORS; }

 private:
  DWORD button_;
};

#pragma GCC diagnostic pop

/// The window, of the class "DragSource", in the foreground from the start on.
class DragSource {
 public:
  DragSource(const RECT& bounds, Offer offer) : offer_(std::move(offer)) {
    thread_ = std::thread([this, bounds] { Live(bounds); });
    while (window_ == nullptr && !refused_) Sleep(5);
  }
  DragSource(const DragSource&) = delete;
  DragSource& operator=(const DragSource&) = delete;
  ~DragSource() {
    if (HWND window = window_) PostMessageW(window, WM_CLOSE, 0, 0);
    thread_.join();
  }

  HWND Window() const { return window_; }
  /// True from the press until OLE says that the drag is over.
  bool Dragging() const { return dragging_; }
  /// What the last drag ended with: DRAGDROP_S_DROP or DRAGDROP_S_CANCEL, and the effect.
  HRESULT Result() const { return result_; }
  DWORD Effect() const { return effect_; }

 private:
  void Live(const RECT& bounds) {
    const HRESULT ole = OleInitialize(nullptr);
    WNDCLASSW description = {};
    description.lpfnWndProc = Procedure;
    description.hInstance = GetModuleHandleW(nullptr);
    description.hbrBackground = GetSysColorBrush(COLOR_INFOBK);
    description.lpszClassName = L"DragSource";
    RegisterClassW(&description);
    HWND window = CreateWindowExW(0, L"DragSource", L"Page to drag - Browser",
                                  WS_OVERLAPPEDWINDOW | WS_VISIBLE, bounds.left, bounds.top,
                                  bounds.right - bounds.left, bounds.bottom - bounds.top, nullptr,
                                  nullptr, description.hInstance, this);
    if (window == nullptr) {
      refused_ = true;
    } else {
      SetForegroundWindow(window);
      window_ = window;
      MSG message = {};
      while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
    }
    if (SUCCEEDED(ole)) OleUninitialize();
  }

  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
      SetWindowLongPtrW(
          window, GWLP_USERDATA,
          reinterpret_cast<LONG_PTR>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams));
    }
    auto* const self = reinterpret_cast<DragSource*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_LBUTTONDOWN) self->Drag(MK_LBUTTON);
    if (message == WM_RBUTTONDOWN) self->Drag(MK_RBUTTON);
    if (message == WM_DESTROY) {
      self->window_ = nullptr;
      PostQuitMessage(0);
    }
    return DefWindowProcW(window, message, wParam, lParam);
  }

  void Drag(DWORD button) {
    Data data(offer_);
    Source source(button);
    DWORD effect = DROPEFFECT_NONE;
    dragging_ = true;
    result_ = DoDragDrop(&data, &source, offer_.Allowed, &effect);
    effect_ = effect;
    dragging_ = false;
  }

  Offer offer_;
  std::thread thread_;
  std::atomic<HWND> window_{nullptr};
  std::atomic<bool> refused_{false};
  std::atomic<bool> dragging_{false};
  std::atomic<HRESULT> result_{S_OK};
  std::atomic<DWORD> effect_{DROPEFFECT_NONE};
};

}  // namespace corvelle::dragsource
