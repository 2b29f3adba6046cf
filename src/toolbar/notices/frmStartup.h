#pragma once

#include "core/WindowPorts.h"
#include "forms/Form.h"
#include "forms/Graphic.h"

namespace corvelle {

class ShellIcons;
struct ProgramPaths;

/// What the startup window works with. All of it outlives it.
struct StartupParts {
  forms::WindowSystem& Windows;
  ShellIcons& Icons;
  const ProgramPaths& Paths;
  const std::string& Title;
};

/// The small window that counts dots while the program starts or deletes files.
class frmStartup final : public forms::Form, public StartupPort {
 public:
  explicit frmStartup(const StartupParts& with);

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
  StartupParts with_;
};

}  // namespace corvelle
