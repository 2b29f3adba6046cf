#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "toolbar/StripDesk.h"

namespace corvelle {

/// Notes hints, drag pictures, popups and the shell's menus.
struct NotedParts final : HintPort, DragImagePort, PopupPort, SpecialFoldersPort {
  std::vector<std::string> Asked;
  std::string Hint;

  /// What happens while a hint goes.
  std::function<void()> WhileHintGoes;

  void SetHint(std::string_view text) override {
    Hint = text;
    if (text.empty() && WhileHintGoes) WhileHintGoes();
  }
  WindowId WindowHandle() const override { return kNoWindow; }
  void SetDragImage(std::string_view icon) override {
    Asked.push_back("image " + std::string(icon));
  }
  void RemoveDragImage() override { Asked.emplace_back("no image"); }
  void ShowToolbarPopup(EntryEdit entry) override {
    Asked.emplace_back("popup");
    if (Current != nullptr) SetCurrentEntry(*Current, std::move(entry));
  }
  /// Takes the entry of each popup.
  EntryEdit* Current = nullptr;
  void OpenSpecialFolder(std::string_view, std::string_view) override {}
  bool ShowContextMenu(std::string_view command, std::string_view title, PixelPoint,
                       WindowId) override {
    Asked.push_back("shell menu of " + std::string(command) + "/" + std::string(title));
    return false;
  }
  [[nodiscard]] int Times(std::string_view what) const {
    return static_cast<int>(std::count(Asked.begin(), Asked.end(), what));
  }
};

/// An edge for the strip without a bar service: it stands there whole.
struct NotedEdge final : DockingPort {
  explicit NotedEdge(StripDesk& desk) : Desk(desk) {}
  StripDesk& Desk;
  int Fitted = 0;
  int Revealed = 0;

  void RegisterAppBar() override {}
  void RemoveAppBar() override {}
  void EndAppBar() override {}
  bool AutoHideFree(Edge) override { return true; }
  void SetAppBar(std::optional<Edge> edge, bool rebuild) override;
  void RevealToolbar() override { ++Revealed; }
  void HideToolbar() override {}
  void ShowAutoHideTaken() override {}
  void ResizeToEdge() override;
};

/// A strip with two menus and single buttons.
struct SinglesDesk : StripDesk {
  explicit SinglesDesk(const sim::WorldOptions& options = {});
  ~SinglesDesk();

  NotedParts Parts;
  NotedEdge Edge{*this};

  /// Writes "Menus\\BMENU00N.BTN" with a button that starts "C:\\Tools\\TITLE.exe".
  void PutSingle(int number, const std::string& title);
  void PutSingle(int number, const MenuRecord& record);
  /// One button for each letter, numbered from 1.
  void PutSingles(const std::string& titles);
  void StartAt(corvelle::Edge at);

  /// First letters of the row's titles, "-" for a separator.
  [[nodiscard]] std::string Row() const;
  /// The same from the files, each with its number: "1a 2b".
  [[nodiscard]] std::string OnDisk() const;
  /// Middle of an entry on the screen, pixels.
  [[nodiscard]] PixelPoint MiddleOf(int single) const;
  /// Behind the last entry, or before the first when there is no room there.
  [[nodiscard]] PixelPoint BarePlace() const;
  void PointAtSingle(int single) { PointAt(MiddleOf(single)); }
  void ClickSingle(int single, forms::MouseButton button = forms::MouseButton::Left) {
    PointAtSingle(single);
    World.Desktop.Click(button);
  }
  /// Presses a button, carries it to a point, and stays down.
  void CarryTo(int single, PixelPoint at);
  void Carry(int single, PixelPoint at) {
    CarryTo(single, at);
    World.Desktop.Release();
  }
  [[nodiscard]] std::vector<std::string> Started() const { return World.Shell.Started(); }
};

}  // namespace corvelle
