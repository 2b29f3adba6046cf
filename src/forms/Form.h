#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "forms/Surface.h"

namespace corvelle::forms {

class PictureBox;
class SystemControl;

enum class BorderStyle {
  None,
  Raised,  // a raised frame of three pixels, as menus have it
};

/// A top-level window. It is made unloaded and invisible; Load makes its window, hidden, and calls
/// Form_Load; Unload calls Form_Unload and destroys the window. To make an unloaded form visible
/// loads it. Handlers that a form does not override do nothing. A form must be unloaded or
/// destroyed before its window system; one that is destroyed while loaded gets no Form_Unload.
class Form : public Surface {
 public:
  ~Form() override;

  /// Does nothing when loaded already. False when the system refuses the window.
  bool Load();
  /// Does nothing when not loaded.
  void Unload();
  bool IsLoaded() const noexcept { return loaded_; }

  const std::string& Caption() const noexcept { return caption_; }
  void SetCaption(std::string caption);

  /// Shows the form and makes it active.
  void Show();
  /// Shows it and leaves the active window alone.
  void ShowNoActivate();
  void Hide() { SetVisible(false); }
  /// Minimizes the form into the task bar, or brings it back.
  void Minimize();
  void RestoreWindow();
  [[nodiscard]] bool IsMinimized() const;

  /// Makes the form the foreground window, if the system lets it.
  void SetForeground();
  void SetWindowPos(InsertAfter after, unsigned flags);

 protected:
  Form(WindowSystem& windows, std::string name, BorderStyle border = BorderStyle::None,
       bool inTaskbar = false);

  virtual void Form_Load() {}
  virtual void Form_Unload() {}
  virtual void Form_KeyDown(int /*keyCode*/, ShiftState /*shift*/) {}
  virtual void Form_KeyPress(char32_t /*character*/) {}
  virtual void Form_Resize() {}
  virtual void Form_Activate() {}
  virtual void Form_Deactivate() {}
  /// The window is asked to close; as it stands, it unloads.
  virtual void Form_QueryClose() { Unload(); }
  /// The session of Windows ends; as it stands, the form unloads.
  virtual void Form_SessionEnd() { Unload(); }
  /// Every message before the system's own treatment; an answer ends it there.
  virtual std::optional<std::intptr_t> WindowProc(std::uint32_t /*message*/,
                                                  std::uintptr_t /*wParam*/,
                                                  std::intptr_t /*lParam*/) {
    return std::nullopt;
  }

  int BorderPixels() const noexcept override { return border_ == BorderStyle::Raised ? 3 : 0; }

  void VisibleChanged() override;
  void OnKeyDown(int keyCode, ShiftState shift) override { Form_KeyDown(keyCode, shift); }
  void OnKeyPress(char32_t character) override { Form_KeyPress(character); }
  void Resized() override;
  void OnActivated(bool active) override;
  void OnClose() override { Form_QueryClose(); }
  void OnSessionEnd() override { Form_SessionEnd(); }
  std::optional<std::intptr_t> OnMessage(std::uint32_t message, std::uintptr_t wParam,
                                         std::intptr_t lParam) override;

 private:
  friend class PictureBox;
  friend class SystemControl;
  [[nodiscard]] bool CreateWindows();
  void DestroyWindows();
  void ShowAs(ShowKind kind);

  std::vector<PictureBox*> boxes_;
  std::vector<SystemControl*> controls_;
  std::string caption_;
  BorderStyle border_;
  bool inTaskbar_;
  bool loaded_ = false;
  bool unloading_ = false;
};

}  // namespace corvelle::forms
