#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/MenuFile.h"
#include "toolbar/StripDesk.h"

namespace corvelle {

inline constexpr PixelPoint kDragSource{700, 600};

/// Notes the addresses that are handed over.
struct NotedLinks final : WebLinkPort {
  std::vector<std::string> Offered;
  void OfferWebLink(std::string_view url, std::string_view title, std::string_view tag,
                    std::string_view file) override {
    Offered.push_back(std::string(url) + "|" + std::string(title) + "|" + std::string(tag) + "|" +
                      std::string(file));
  }
};

struct NotedBrowser final : BrowserPort {
  std::vector<WindowId> Sources;
  void OpenUrl(std::string_view, std::function<void(bool)>) override {}
  void OpenMail(std::string_view) override {}
  std::string WindowTitle(std::string_view) override { return "A page "; }
  void NoteDropSource(WindowId window) override { Sources.push_back(window); }
  void UseDefaultBrowser() override {}
  void UseBrowser(std::string_view, WindowId, std::function<void(bool)>) override {}
};

struct NotedSingles final : SingleButtonsPort {
  std::vector<std::string> Dropped;
  void DoItemDrag(forms::MouseButton) override {}
  FileStatus DeleteSingle(std::string_view) override { return Done(); }
  FileStatus PasteSingle(std::string_view) override { return Done(); }
  FileStatus UndoDeleteSB(std::string_view) override { return Done(); }
  void DropFilesOnSingles(std::vector<std::string> names, forms::MouseButton button) override {
    for (const std::string& name : names) {
      Dropped.push_back(std::to_string(static_cast<int>(button)) + " " + name);
    }
  }
};

/// A hint that counts how often it was closed.
struct NotedHint final : HintPort {
  int Closed = 0;
  /// What comes in the events that run while it goes.
  std::function<void()> WhileItGoes;
  void SetHint(std::string_view text) override {
    Closed += text.empty() ? 1 : 0;
    if (text.empty() && WhileItGoes) WhileItGoes();
  }
  WindowId WindowHandle() const override { return kNoWindow; }
};

/// A shell that knows no file, and in which events come through while it is asked.
struct BusyIcons final : ShellIcons {
  std::function<void()> WhileAsked;
  std::optional<ShellFileInfo> FileInfo(std::string_view, IconList) override {
    return std::nullopt;
  }
  std::optional<std::string> DisplayName(std::string_view) override {
    if (const auto action = std::exchange(WhileAsked, nullptr)) action();
    return std::nullopt;
  }
  int IconWidth(IconList) override { return 32; }
  bool DrawSystemIcon(Canvas&, IconList, int, PixelPoint, IconStyle) override { return false; }
  bool DrawFileIcon(Canvas&, std::string_view, int, PixelPoint, int) override { return false; }
  std::optional<IconPixels> PixelsOfFile(std::string_view, IconList) override {
    return std::nullopt;
  }
  std::optional<IconPixels> PixelsInFile(std::string_view, int, int) override {
    return std::nullopt;
  }
  int IconCount(std::string_view) override { return 0; }
};

/// A strip with three menus, started, and another program's window with the foreground.
struct DragDesk : StripDesk {
  WindowId Source = kNoWindow;

  explicit DragDesk(const sim::WorldOptions& options = {}, ShellIcons* icons = nullptr)
      : StripDesk(options, icons) {
    PutButtons(3);
    Start();
    Source =
        World.Desktop.AddOtherWindow({.Title = "A page - Browser", .Bounds = {600, 500, 900, 700}});
    World.Desktop.LockForeground(true);
  }

  void Take(forms::DragData data, forms::MouseButton button = forms::MouseButton::Left) {
    PointAt(kDragSource);
    World.Desktop.StartDrag({.Data = std::move(data), .Button = button, .Window = Source});
    Wait(10);
  }
  void TakeFiles(std::vector<std::string> files,
                 forms::MouseButton button = forms::MouseButton::Left) {
    Take({.Files = std::move(files)}, button);
  }
  void TakeText(std::string text) { Take({.Text = std::move(text)}); }
  void DragToButton(int button) {
    PointAtButton(button);
    Wait(10);
  }
  void Drop(forms::MouseButton button = forms::MouseButton::Left) {
    World.Desktop.Release(button);
    Wait(10);
  }
  forms::DropEffect Effect() const { return World.Desktop.DragEffect(); }

  std::vector<MenuRecord> RecordsOf(int file) {
    return ReadAllRecords(World.Files, World.Ansi, "C:\\Corvelle\\Menus\\" + MenuFileName(file))
        .ValueOr({});
  }
  bool FileUnchanged(int file) {
    return World.Files.Get("C:\\Corvelle\\Menus\\" + MenuFileName(file)) ==
           Records({Entry("Menu " + std::to_string(file), "Button"),
                    Entry("Item", "", "C:\\Tools\\tool.exe")});
  }
  WindowId Foreground() { return World.Desktop.ForegroundWindow(); }
};

}  // namespace corvelle
