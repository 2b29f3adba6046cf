#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "base/Text.h"
#include "core/CoreDoubles.h"
#include "core/WindowPorts.h"

namespace corvelle {

/// Words of the program that are only written down.
class LoggingBuiltIns final : public BuiltInCommandsPort {
 public:
  explicit LoggingBuiltIns(CallLog& log) : log_(log) {}

  void ShowNetSearch() override { log_.emplace_back("ShowNetSearch"); }
  void FindComputer() override { log_.emplace_back("FindComputer"); }
  void MinimizeAllWindows() override { log_.emplace_back("MinimizeAllWindows"); }
  void UndoMinimizeAll() override { log_.emplace_back("UndoMinimizeAll"); }
  void ClearRecentDocs() override { log_.emplace_back("ClearRecentDocs"); }
  void ClearTempFolder() override { log_.emplace_back("ClearTempFolder"); }
  void FileFind() override { log_.emplace_back("FileFind"); }

 private:
  CallLog& log_;
};

class LoggingBrowser final : public BrowserPort {
 public:
  explicit LoggingBrowser(CallLog& log) : log_(log) {}

  /// False: no browser takes an address.
  bool Takes = true;

  void OpenUrl(std::string_view url, std::function<void(bool)> then) override {
    log_.push_back("OpenUrl " + std::string(url));
    if (then) then(Takes);
  }
  void OpenMail(std::string_view address) override {
    log_.push_back("OpenMail " + std::string(address));
  }
  std::string WindowTitle(std::string_view url) override {
    log_.push_back("WindowTitle " + std::string(url));
    return "title";
  }
  void NoteDropSource(WindowId window) override {
    log_.push_back("NoteDropSource " + std::to_string(window));
  }
  void UseDefaultBrowser() override { log_.emplace_back("UseDefaultBrowser"); }
  void UseBrowser(std::string_view path, WindowId, std::function<void(bool)> then) override {
    log_.push_back("UseBrowser " + std::string(path));
    if (then) then(true);
  }

 private:
  CallLog& log_;
};

/// Links that a test sets up.
class KnownLinks final : public ShellLinksPort {
 public:
  void Set(std::string_view link, std::string target) {
    targets_[UpperCase(link)] = std::move(target);
  }
  std::string TargetOf(std::string_view linkPath) override {
    const auto found = targets_.find(UpperCase(linkPath));
    return found == targets_.end() ? std::string() : found->second;
  }

 private:
  std::map<std::string, std::string> targets_;
};

class LoggingFolders final : public SpecialFoldersPort {
 public:
  explicit LoggingFolders(CallLog& log) : log_(log) {}

  void OpenSpecialFolder(std::string_view name, std::string_view argument) override {
    log_.push_back("OpenSpecialFolder " + std::string(name) + " with " + std::string(argument));
  }
  bool ShowContextMenu(std::string_view, std::string_view, PixelPoint, WindowId) override {
    return false;
  }

 private:
  CallLog& log_;
};

class LoggingHint final : public HintPort {
 public:
  explicit LoggingHint(CallLog& log) : log_(log) {}

  void SetHint(std::string_view text) override { log_.push_back("hint " + std::string(text)); }
  WindowId WindowHandle() const override { return kNoWindow; }

 private:
  CallLog& log_;
};

}  // namespace corvelle
