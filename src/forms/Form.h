#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/Surface.h"

namespace corvelle::forms {

enum class BorderStyle {
  None,
  Raised,  // a raised frame of three pixels, as menus have it
  // Frames of the system, with a caption and a close box.
  Fixed,
  Sizable
};

/// A top-level window. It is made unloaded and invisible; Load makes its window, hidden, and calls
/// Form_Load; Unload calls Form_Unload and destroys the window. To make an unloaded form visible
/// loads it. Handlers that a form does not override do nothing. A form must be unloaded or
/// destroyed before its window system; one that is destroyed while loaded gets no Form_Unload.
class Form : public Surface {
 public:
  ~Form() override;

  /// Does nothing when loaded already. False when the system refuses the window.
  /// A form takes the scale of its owner, else of the monitor on which it lies or will open.
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

  // Of a form with a frame of the system. The first two are for before it is loaded.
  void SetMinimizeBox(bool minimizeBox) noexcept { minimizeBox_ = minimizeBox; }
  /// The form stays in front of its owner, which outlives it, and shows no button of its own in the
  /// task bar.
  void SetOwner(Form* owner) noexcept { owner_ = owner; }
  /// The user cannot make the form smaller; twips of the whole window.
  void SetLeastSize(float width, float height);
  /// The menu bar. A line with a key behind a tab in its caption ("&Save\tCtrl+S") is chosen by
  /// that key too, when neither the control with the focus nor Form_KeyDown has a use for it.
  void SetMenu(std::vector<PopupItem> items);
  [[nodiscard]] const std::vector<PopupItem>& Menu() const noexcept { return menu_; }
  /// Shows the form in front of `owner`, which takes no input until the form is hidden or unloaded,
  /// and has the foreground again then, if this form had it. Returns at once.
  void ShowModalTo(Form& owner);
  /// Puts the form in the middle of the monitor on which it opened: the primary one, or that on
  /// which a form with a frame of the system was when it was last unloaded, if it is there still.
  void Center() { Center(Width(), Height()); }
  /// The same with another size.
  void Center(float width, float height);
  /// Lays the form out for this many dots of an inch from now on, whichever monitor it lies on: a
  /// menu has the scale of the strip that it belongs to. Its corner stays where it is in pixels,
  /// its size stays in twips; Form_ScaleChanged puts right what was worked out from the old scale.
  void SetDpi(int dpi);

  /// Makes the form the foreground window, if the system lets it.
  void SetForeground();
  void SetWindowPos(InsertAfter after, unsigned flags);

  /// With it Form_KeyDown and Form_KeyPress are called for the keys of controls too, before the
  /// controls and the rules of dialogs get them; SwallowKey keeps a key from both. Without it they
  /// see what is left. An open list or a text of several lines gets its Enter, Esc and Tab first.
  void SetKeyPreview(bool preview) noexcept { keyPreview_ = preview; }

  /// F1 was pressed, wherever the focus is in the form. With a handler nobody else gets that key.
  std::function<void()> HelpAsked;

 protected:
  Form(WindowSystem& windows, std::string name, BorderStyle border = BorderStyle::None,
       bool inTaskbar = false);

  /// In Form_KeyDown or Form_KeyPress of a form with key preview: nobody else gets this key.
  void SwallowKey() noexcept { swallowed_ = true; }

  virtual void Form_Load() {}
  virtual void Form_Unload() {}
  virtual void Form_KeyDown(int /*keyCode*/, ShiftState /*shift*/) {}
  virtual void Form_KeyPress(char32_t /*character*/) {}
  virtual void Form_Resize() {}
  /// The form has another scale. Its controls have been sized by it; places that were worked out
  /// from the twips of a pixel, or from the width of a text, are the form's to set again.
  virtual void Form_ScaleChanged() {}
  /// A line of the menu bar was chosen; counted as ShowPopup counts.
  virtual void Form_Menu(int /*line*/) {}
  /// A menu of the bar is about to come up. SetMenu changes what it shows.
  virtual void Form_MenuOpening(int /*line*/) {}
  virtual void Form_Activate() {}
  virtual void Form_Deactivate() {}
  /// The window is asked to close; unless overridden, it unloads.
  virtual void Form_QueryClose() { Unload(); }
  /// The session of Windows ends; unless overridden, the form unloads.
  virtual void Form_SessionEnd() { Unload(); }
  /// Every message before the system's own treatment; an answer ends it there.
  virtual std::optional<std::intptr_t> WindowProc(std::uint32_t /*message*/,
                                                  std::uintptr_t /*wParam*/,
                                                  std::intptr_t /*lParam*/) {
    return std::nullopt;
  }

  int BorderPixels() const noexcept override { return border_ == BorderStyle::Raised ? 3 : 0; }
  FrameMargins Margins() const override;

  std::unique_ptr<WindowPeer> NewPeer(WindowPeer* parent) override;
  void PeerMade() override;
  void VisibleChanged() override;
  void ScaleChanged() override;
  void OnKeyDown(int keyCode, ShiftState shift) override;
  void OnKeyPress(char32_t character) override { Form_KeyPress(character); }
  void Resized() override;
  void OnActivated(bool active) override;
  void OnClose() override { Form_QueryClose(); }
  void OnMenuChosen(int line) override { Form_Menu(line); }
  void OnMenuOpening(int line) override { Form_MenuOpening(line); }
  void OnSessionEnd() override { Form_SessionEnd(); }
  std::optional<std::intptr_t> OnMessage(std::uint32_t message, std::uintptr_t wParam,
                                         std::intptr_t lParam) override;

 private:
  friend class Window;
  friend class PictureBox;

  // The keys of controls (FormKeys.cpp). True when the control does not get the key.
  bool ControlKey(Window& focus, int keyCode, ShiftState shift);
  bool ControlCharacter(Window& focus, char32_t character);
  /// True when the key asked for help.
  bool AskHelp(int keyCode, ShiftState shift);
  bool Act(DialogAction action, Window& focus, int keyCode, ShiftState shift);
  [[nodiscard]] DialogScene SceneOf(const Window& focus, char32_t letter) const;
  /// All windows inside that can be seen and are enabled, each before what is inside it.
  /// `leaving`, too, which is about to go.
  [[nodiscard]] std::vector<Window*> Reachable(const Window* leaving = nullptr) const;
  /// A window that has the focus, or holds the one that has it, is hidden or disabled: the focus
  /// goes on to the next control, but from inside to what is around, if the Tab key stops there.
  void PassFocusFrom(const Window& leaving);
  void MoveFocus(const Window& from, int step);
  /// True when a line of the menu bar has this key.
  bool PressAccelerator(int keyCode, ShiftState shift);
  void PressAccessKey(char32_t letter);
  void ChangeTab(int step) override;
  void PressFirst(bool KeyFacts::*fact);

  void ShowAs(ShowKind kind);

  [[nodiscard]] FrameStyle Frame() const noexcept;
  void ReleaseOwner();

  std::string caption_;
  Form* owner_ = nullptr;
  Form* blocked_ = nullptr;  // the owner while this form is modal to it
  std::vector<PopupItem> menu_;
  float leastWidth_ = 0;
  float leastHeight_ = 0;
  PixelRect closedAt_;  // with a frame of the system: where it was when it was last unloaded
  PixelRect opensOn_;   // the monitor, since it was last loaded
  bool minimizeBox_ = false;
  bool scaleGiven_ = false;  // by SetDpi
  BorderStyle border_;
  bool inTaskbar_;
  bool loaded_ = false;
  bool unloading_ = false;
  bool keyPreview_ = false;
  bool swallowed_ = false;
};

}  // namespace corvelle::forms
