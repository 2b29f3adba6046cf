#pragma once

#include "forms/ControlMaker.h"

namespace corvelle::win32 {

class Win32WindowSystem;

/// Makes controls of the system's own classes.
class Win32ControlMaker final : public forms::ControlMaker {
 public:
  explicit Win32ControlMaker(Win32WindowSystem& system) : system_(system) {}

  std::unique_ptr<forms::ButtonPeer> CreateButton(const forms::PeerSpec& wanted,
                                                  forms::ButtonLook look,
                                                  forms::WindowEvents& events,
                                                  forms::ButtonEvents& buttonEvents) override;
  std::unique_ptr<forms::TextBoxPeer> CreateTextBox(const forms::PeerSpec& wanted,
                                                    const forms::TextBoxStyle& style,
                                                    forms::WindowEvents& events,
                                                    forms::TextBoxEvents& textEvents) override;

 private:
  Win32WindowSystem& system_;
};

}  // namespace corvelle::win32
