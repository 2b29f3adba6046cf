#pragma once

#include <memory>
#include <optional>

#include "win32/Win32Window.h"

namespace corvelle::win32 {

/// A window of one of the system's own classes that stands for a control: the system draws and
/// works it, and screen readers know it. Its messages pass by here first, so that its keys follow
/// the rules of dialogs; what it tells its parent comes back to it as Notified.
class Win32Control : public Win32Window {
 public:
  explicit Win32Control(Win32WindowSystem& system)
      : Win32Window(system, forms::PeerKind::PictureBox) {}

  /// Makes a window of the class `name`, hidden and silent. False when the system refuses.
  [[nodiscard]] bool CreateAs(const wchar_t* name, DWORD style, DWORD exStyle,
                              const forms::PeerSpec& wanted);

  [[nodiscard]] bool TakesFocus() const override { return true; }
  void SetDpi(int dpi) override;

  /// True for the address of the procedure of all controls.
  static bool Is(LONG_PTR procedure) noexcept;

  /// While it is alive, what the control notifies of itself is the program's doing, and is not
  /// told.
  class Mute {
   public:
    explicit Mute(Win32Control& control) noexcept : control_(control) { ++control_.muted_; }
    Mute(const Mute&) = delete;
    Mute& operator=(const Mute&) = delete;
    ~Mute() { --control_.muted_; }

   private:
    Win32Control& control_;
  };

 protected:
  /// A message of the control before the system's own treatment; an answer ends it there.
  virtual std::optional<LRESULT> Own(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/) {
    return std::nullopt;
  }
  LRESULT Default(UINT message, WPARAM wParam, LPARAM lParam) override;
  [[nodiscard]] bool Muted() const noexcept { return muted_ > 0; }
  /// False for a control that tells of the focus by a notification.
  [[nodiscard]] virtual bool TellsFocus() const { return true; }
  /// A key or character of the control, or of a part of it. Nothing when the system is to have it.
  std::optional<LRESULT> TreatControlKeys(UINT message, WPARAM wParam, LPARAM lParam);

 private:
  static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wParam,
                                    LPARAM lParam) noexcept;
  LRESULT Treat(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> TreatMenuKey(LPARAM lParam);

  WNDPROC systemProcedure_ = nullptr;
  UniqueFont font_;
  int muted_ = 0;
  bool usedUp_ = false;  // the key whose character comes next
};

}  // namespace corvelle::win32
