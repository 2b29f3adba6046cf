#pragma once

#include <cstdint>
#include <string>

#include "about/AboutLayout.h"
#include "about/InfoPages.h"
#include "core/LaunchParts.h"
#include "core/WindowPorts.h"
#include "forms/ComboBox.h"
#include "forms/CommandButton.h"
#include "forms/Form.h"
#include "forms/Frame.h"
#include "forms/Graphic.h"
#include "forms/PictureBox.h"
#include "forms/TabStrip.h"
#include "forms/TextBox.h"

namespace corvelle {

class Clipboard;
class Input;
class Registry;
class ShellIcons;
class SlowQuestions;
class SystemInfo;
struct ProgramPaths;

/// What the window works with. All of it outlives it.
struct AboutParts {
  SlowQuestions& Slow;
  ShellIcons& Icons;
  const Registry& Keys;
  const SystemInfo& System;
  Clipboard& Copies;
  Input& Pointer;
  const ProgramPaths& Paths;
  const LaunchParts& Launch;
};

/// About the program, and the facts about the machine that a user reads out when asking for help.
class frmAbout final : public forms::Form, public LoadedWindow {
 public:
  explicit frmAbout(const AboutParts& with);

  void LoadWindow() override;
  void UnloadWindow() override { Unload(); }
  [[nodiscard]] bool WindowLoaded() const override { return IsLoaded(); }

  /// Fills the first tab's texts and lays the window out.
  void InitAbout();
  /// The page of a drive of the drive list ("C:"). What a slow drive says comes later.
  void PrintDriveInfo(const std::string& drive);
  void PrintSystemInfo();

  forms::TabStrip TabStrip1;
  forms::PictureBox pnlInfo;
  forms::ComboBox Drive1;
  forms::PictureBox picInfo;
  forms::PictureBox pnlCorvelle;
  forms::PictureBox picCorvelle;
  forms::PictureBox picLogo;
  forms::PictureBox picTitle;
  forms::Label lblVersion;
  forms::Label lblCompany;
  forms::Label lblCopyright;
  forms::PictureBox picArrow;
  // Empty while there is no address that leads anywhere.
  forms::Label lblMail;
  forms::Label lblURL;
  forms::Frame Frame1;
  forms::TextBox txtCopyright;
  forms::CommandButton cmdCopy;
  forms::CommandButton cmdOK;

  /// What picInfo shows.
  [[nodiscard]] const InfoPage& Page() const noexcept { return page_; }

 protected:
  void Form_Load() override;
  void Form_Unload() override;
  void Form_KeyDown(int keyCode, forms::ShiftState shift) override;

 private:
  void TabStrip1_Click();
  void Drive1_Change();
  void cmdCopy_Click();
  void cmdOK_Click() { Unload(); }
  void lblMail_DblClick();
  void LblURL_DblClick();

  void LayOut();
  void PlacePanels(const AboutPanels& places);
  void DrawTitle();
  void FillDrives();
  /// Shows the lines, the values behind the widest caption of all.
  void Print(InfoPage page);
  [[nodiscard]] float WidthOf(std::string_view text) const;
  [[nodiscard]] std::string TextOfTab() const;
  [[nodiscard]] AboutScene Scene() const;

  AboutParts with_;
  AboutPanels places_;
  InfoPage page_;
  std::uint64_t asked_ = 0;  // the generation of the question about a drive
};

}  // namespace corvelle
