#pragma once

#include <string_view>

#include "core/WindowPorts.h"
#include "forms/Form.h"
#include "forms/Graphic.h"
#include "forms/Timer.h"

namespace corvelle {

class DesktopWindows;
class Input;

/// What the hint works with. All of it outlives it.
struct HintParts {
  forms::WindowSystem& Windows;
  const WindowPorts& Ports;
  const OptionFlags& Options;
  const DesktopWindows& Desktop;
  const Input& Pointer;
};

/// The hint that shows the title of a button or an item beside the pointer. It is loaded by the
/// first hint and stays, hidden between hints.
class frmHelp final : public forms::Form, public HintPort {
 public:
  explicit frmHelp(const HintParts& with);

  /// "&" in the text is an access key unless doubled.
  void SetHint(std::string_view text) override;
  [[nodiscard]] WindowId WindowHandle() const override { return hWnd(); }
  void SetHintLevel(forms::InsertAfter after, unsigned flags) override;
  void ReleaseHint() override;

  forms::Label Label1;
  forms::Timer Timer1;

 protected:
  void Form_Load() override;
  void Form_Unload() override { Timer1.SetEnabled(false); }
  // It goes by itself, and only the program's end unloads it.
  void Form_QueryClose() override { CloseHint(); }
  void Form_SessionEnd() override {}

 private:
  void CloseHint();
  void ShowHint(std::string_view text);
  void Form_MouseMove();
  void Timer1_Timer();
  void Form_Paint();

  HintParts with_;
};

}  // namespace corvelle
