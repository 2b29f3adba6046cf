#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/WindowPorts.h"
#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/Form.h"
#include "forms/Graphic.h"
#include "forms/PictureBox.h"

namespace corvelle {

class OptionFile;
class ShellIcons;
struct ProgramPaths;

/// What a notice works with. All of it outlives it.
struct TipParts {
  forms::WindowSystem& Windows;
  ShellIcons& Icons;
  const ProgramPaths& Paths;
  OptionFile& Options;
};

/// A notice with a box that keeps it from coming again. It is loaded for each notice.
class frmTip final : public forms::Form, public TipPort {
 public:
  explicit frmTip(const TipParts& with);

  void ShowTip(std::string_view title, std::string_view text, std::optional<Option> field) override;
  /// The option that the box writes, if any.
  void FieldNum(std::optional<Option> field) noexcept { TipField = field; }

  forms::PictureBox Picture1;
  forms::Label lblTitle;
  /// One for each line of the notice.
  std::vector<std::unique_ptr<forms::Label>> lblTip;
  forms::CheckBox Check1;
  forms::CommandButton cmdOK;
  std::optional<Option> TipField;

 protected:
  void Form_Load() override;
  // Closed otherwise, it changes no option.
  void Form_SessionEnd() override {}

 private:
  void cmdOK_Click();
  void LayOut(std::string_view text);
  void DrawPicture();

  TipParts with_;
};

}  // namespace corvelle
