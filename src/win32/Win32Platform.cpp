#include "win32/Win32Platform.h"

#include <ole2.h>

#include "win32/ErrorMode.h"
#include "win32/Win32AppBars.h"
#include "win32/Win32Clipboard.h"
#include "win32/Win32CodePage.h"
#include "win32/Win32CrashReports.h"
#include "win32/Win32Dde.h"
#include "win32/Win32Desktop.h"
#include "win32/Win32FileAssociations.h"
#include "win32/Win32Files.h"
#include "win32/Win32Input.h"
#include "win32/Win32KeySynthesis.h"
#include "win32/Win32Lookups.h"
#include "win32/Win32Registry.h"
#include "win32/Win32ShellExec.h"
#include "win32/Win32ShellFiles.h"
#include "win32/Win32ShellFolders.h"
#include "win32/Win32ShellIcons.h"
#include "win32/Win32ShellLinks.h"
#include "win32/Win32Starter.h"
#include "win32/Win32SystemInfo.h"
#include "win32/Win32TrayIcons.h"
#include "win32/Win32WindowSystem.h"

namespace corvelle::win32 {

namespace {

/// OLE for this thread: the shell and drag and drop want it.
class OleScope {
 public:
  OleScope() noexcept : ready_(SUCCEEDED(OleInitialize(nullptr))) {}
  OleScope(const OleScope&) = delete;
  OleScope& operator=(const OleScope&) = delete;
  ~OleScope() {
    if (ready_) OleUninitialize();
  }

 private:
  bool ready_;
};

/// Set before any part of the shell is asked for anything.
struct NoCriticalErrorBoxes {
  NoCriticalErrorBoxes() noexcept { SuppressCriticalErrorBoxes(); }
};

}  // namespace

// In the order in which they are made; the last ones end first.
struct Win32Platform::Parts {
  NoCriticalErrorBoxes NoBoxes;
  OleScope Ole;
  Win32Files Files;
  Win32CodePage Ansi;
  Win32Registry Keys;
  Win32ShellExec Shell;
  Win32ShellIcons Icons;
  Win32ShellLinks Links;
  Win32ShellFiles FileOps;
  Win32Input Pointer;
  Win32KeySynthesis Keyboard;
  Win32Desktop Desktop;
  Win32Dde Dde;
  Win32FileAssociations Associations;
  Win32SystemInfo System;
  Win32ShellFolders Folders;
  Win32AppBars Bars;
  Win32TrayIcons Tray;
  Win32WindowSystem Windows;
  Win32Clipboard Copies;
  Win32Lookups SlowAnswers{Windows.Posts()};
  Win32Starter Starts{Windows};
  Win32CrashReports Crashes;
};

Win32Platform::Win32Platform() : parts_(std::make_unique<Parts>()) {}
Win32Platform::~Win32Platform() = default;

Platform Win32Platform::Services() const {
  return {.Files = parts_->Files,
          .Ansi = parts_->Ansi,
          .Keys = parts_->Keys,
          .Shell = parts_->Shell,
          .Icons = parts_->Icons,
          .Links = parts_->Links,
          .FileOps = parts_->FileOps,
          .Pointer = parts_->Pointer,
          .Keyboard = parts_->Keyboard,
          .Desktop = parts_->Desktop,
          .Dde = parts_->Dde,
          .Associations = parts_->Associations,
          .System = parts_->System,
          .Folders = parts_->Folders,
          .Bars = parts_->Bars,
          .Tray = parts_->Tray,
          .SlowAnswers = parts_->SlowAnswers,
          .Starts = parts_->Starts,
          .Copies = parts_->Copies,
          .Crashes = parts_->Crashes};
}

forms::WindowSystem& Win32Platform::Windows() const { return parts_->Windows; }

}  // namespace corvelle::win32
