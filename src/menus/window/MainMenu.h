#pragma once

#include <string_view>

#include "core/WindowPorts.h"
#include "menus/window/HelpTopics.h"
#include "menus/window/MainMenuRules.h"

namespace corvelle {

class OptionFile;
struct GuardFlags;
struct MenuState;
struct StripPlacement;
namespace desk {
class AnswerDesk;
}
namespace forms {
class EventPump;
}
class frmQMenu;

/// What the main menu works with. All of it outlives it.
struct MainMenuParts {
  const WindowPorts& Ports;
  StripPlacement& Strip;
  OptionFile& Options;
  GuardFlags& Guards;
  MenuState& Menu;
  forms::EventPump& Events;
  desk::AnswerDesk& Answers;
  HelpTopics Help;
};

/// The program's own menu: a menu like any other in look and behaviour, whose items have no
/// commands. What each does goes by its caption.
class MainMenu final : public MainMenuPort {
 public:
  MainMenu(const MainMenuParts& with, frmQMenu& menu) : with_(with), menu_(menu) {}

  /// Carries out a choice. Without a text the caption of item `index` says what it is, if an item
  /// is selected. Events run, and the program may have ended when this returns.
  void xMainMenu(int index, std::string_view text) override;
  /// Marks and disables the items of the menu on show as the options and the strip are now.
  void CheckLabels() override;
  /// Small icons instead of large ones, or the other way, on a strip that is not vertical.
  void ToggleLargeIcons();

 private:
  struct Choice;

  [[nodiscard]] MainMenuFacts Facts() const;
  void Run(std::string_view text);
  void EndChoice();

  void Customize();
  void RefreshAll();
  void LargeIcons();
  void AutoHide();
  void NotOnTop();
  void ShowHelpTopics();
  void About();
  void Restore();
  void Maximize();
  void Minimize();
  void Exit();

  [[nodiscard]] bool StartAutoHide();
  void EndAutoHide();
  void Forget();

  MainMenuParts with_;
  frmQMenu& menu_;
};

}  // namespace corvelle
