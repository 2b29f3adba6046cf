#pragma once

#include "core/WindowPorts.h"
#include "forms/Form.h"
#include "forms/Graphic.h"

namespace corvelle {

class Program;

/// The small window that counts dots while the program starts or deletes files.
class frmStartup final : public forms::Form, public StartupPort {
 public:
  explicit frmStartup(Program& program);

  void LoadWindow() override { static_cast<void>(Load()); }
  void UnloadWindow() override { Unload(); }
  [[nodiscard]] bool WindowLoaded() const override { return IsLoaded(); }
  void AddDot() override;
  void HideWindow() override { Hide(); }
  void ShowProgress(std::string_view text, std::string_view iconFile) override;

  forms::Label Label2;  // name and version, and what goes on
  forms::Image Image1;
  forms::Label Label1;  // the dots

 protected:
  void Form_Load() override;

 private:
  Program& program_;
};

}  // namespace corvelle
