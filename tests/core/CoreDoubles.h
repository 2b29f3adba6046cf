#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/WindowPorts.h"

namespace corvelle {

using CallLog = std::vector<std::string>;

/// A strip that only writes down what it was asked.
class LoggingToolbar final : public ToolbarPort {
 public:
  explicit LoggingToolbar(CallLog& log) : log_(log) {}

  WindowId Window = 77;  // when loaded
  WindowId ButtonBox = kNoWindow;
  WindowId SingleBox = kNoWindow;

  void LoadWindow() override {
    log_.push_back("toolbar loads");
    loaded_ = true;
  }
  void UnloadWindow() override { loaded_ = false; }
  bool WindowLoaded() const override { return loaded_; }
  WindowId WindowHandle() const override { return loaded_ ? Window : kNoWindow; }
  WindowId ButtonBoxHandle() const override { return ButtonBox; }
  WindowId SingleBoxHandle() const override { return SingleBox; }
  TwipRect WindowBounds() const override { return {}; }
  int WindowDpi() const override { return forms::kPlainDpi; }
  void ResetMenu() override { log_.push_back("ResetMenu"); }
  void RefreshMenu(std::string_view tag) override { Note("RefreshMenu ", tag); }
  void TellRefused(std::vector<std::string>) override { log_.push_back("TellRefused"); }
  void OpenMenu(std::string_view tag) override { Note("OpenMenu ", tag); }
  void RemoveQMenu(std::string_view tag) override { Note("RemoveQMenu ", tag); }
  void SetMenuPosition() override {}
  float TopOfMenu() const override { return 0; }
  void ActivateKeyDown(int) override {}
  void InitNewButtons() override { log_.push_back("InitNewButtons"); }
  void DoToolbarButtons() override { log_.push_back("DoToolbarButtons"); }
  void DoSingleButtons() override { log_.push_back("DoSingleButtons"); }
  void AddNewButton() override { log_.push_back("AddNewButton"); }
  void ResetCollections() override { log_.push_back("ResetCollections"); }
  float FreeWidth() const override { return 1230; }
  void ResizeAfterEdit(float freeWidth) override {
    log_.push_back("resize, free " + std::to_string(static_cast<int>(freeWidth)));
  }
  void BringToForeground() override {}
  void CheckToolbarMove() override {}
  void AdjustToolbarPosition() override {}
  void ShowAndRefresh() override {}
  int dragCurButton() override { return 0; }
  void DoButtonDrag(int, forms::MouseButton) override {}
  void SetPointerWatch(bool) override {}
  void RestoreToolbar() override {}
  void UnloadItems() override {}
  void InitButtons() override {}
  void RefreshToolbar() override {}
  void HideWindow() override {}
  void DoLabelDate() override {}
  void MarkCollections() override {}
  void SetWindowPos(forms::InsertAfter, unsigned) override {}

 private:
  void Note(std::string_view what, std::string_view tag) {
    log_.push_back(std::string(what) + std::string(tag));
  }

  CallLog& log_;
  bool loaded_ = false;
};

class LoggingMinimize final : public MinimizePort {
 public:
  explicit LoggingMinimize(CallLog& log) : log_(log) {}

  void LoadWindow() override {
    log_.push_back("companion loads");
    loaded_ = true;
  }
  void UnloadWindow() override { loaded_ = false; }
  bool WindowLoaded() const override { return loaded_; }
  void ShowInSysTray() override { log_.push_back("into the tray"); }
  void ActivateSysTray() override { log_.push_back("not on top"); }
  void DeActivateSysTray() override { log_.push_back("on top"); }
  void MinimizeFor(const TwipRect&) override { log_.push_back("into the task bar"); }

 private:
  CallLog& log_;
  bool loaded_ = false;
};

class LoggingStartup final : public StartupPort {
 public:
  explicit LoggingStartup(CallLog& log) : log_(log) {}

  void LoadWindow() override {}
  void UnloadWindow() override { log_.push_back("startup window unloads"); }
  bool WindowLoaded() const override { return true; }
  void AddDot() override { log_.push_back("dot"); }
  void HideWindow() override { log_.push_back("startup window hides"); }
  void ShowProgress(std::string_view text, std::string_view iconFile) override {
    log_.push_back("progress \"" + std::string(text) + "\" with " + std::string(iconFile));
  }

 private:
  CallLog& log_;
};

class LoggingStartupLink final : public StartupLinkPort {
 public:
  explicit LoggingStartupLink(CallLog& log) : log_(log) {}

  bool Exists() override { return There; }
  void Remove() override {
    log_.push_back("link removed");
    There = false;
  }
  void Create(std::string_view executable) override {
    log_.push_back("link to " + std::string(executable));
    There = true;
  }

  bool There = false;

 private:
  CallLog& log_;
};

class LoggingIconRule final : public IconRulePort {
 public:
  explicit LoggingIconRule(CallLog& log) : log_(log) {}
  void DetectShellIcons() override { log_.push_back("icons detected"); }

 private:
  CallLog& log_;
};

class LoggingSingles final : public SingleButtonsPort {
 public:
  explicit LoggingSingles(CallLog& log) : log_(log) {}
  void DoItemDrag(forms::MouseButton) override { log_.push_back("drop on the singles"); }
  FileStatus Answer = Done();  // to every edit
  FileStatus DeleteSingle(std::string_view file) override { return Note("delete single ", file); }
  FileStatus PasteSingle(std::string_view file) override { return Note("paste single ", file); }
  FileStatus UndoDeleteSB(std::string_view file) override { return Note("undo single ", file); }
  void DropFilesOnSingles(std::vector<std::string> names, forms::MouseButton) override {
    for (const std::string& name : names) static_cast<void>(Note("files on the singles ", name));
  }

 private:
  FileStatus Note(std::string_view what, std::string_view file) {
    log_.push_back(std::string(what) + std::string(file));
    return Answer;
  }
  CallLog& log_;
};

}  // namespace corvelle
