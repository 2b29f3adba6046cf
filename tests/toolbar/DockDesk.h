#pragma once

#include <string>
#include <vector>

#include "toolbar/StripDesk.h"
#include "toolbar/docking/frmImage.h"
#include "toolbar/docking/mAppBar.h"
#include "toolbar/strip/StripWiring.h"

namespace corvelle {

/// A desktop whose strip can stand at an edge: six buttons with large icons, 41 or 42 pixels across
/// when docked, wired with its docking and its still pictures.
struct DockDesk : StripDesk {
  explicit DockDesk(const sim::WorldOptions& options = {}) : StripDesk(options) {
    TheProgram.Ports.Docking = &Docking;
    TheProgram.Ports.Capture = &Picture;
    TheProgram.Ports.ImageWindow = &Picture;
    SetOption(Option::LargeIcons, true);
    PutButtons(5);
  }
  DockDesk(const DockDesk&) = delete;
  DockDesk& operator=(const DockDesk&) = delete;
  ~DockDesk() { Exit(); }

  /// The edge that the next start asks for.
  void AskFor(Edge at) {
    const std::string_view code = EdgeCode(at);
    SetOption(Option::AtEdge, true);
    SetOption(Option::EdgeCodeFirst, code[0] == '1');
    SetOption(Option::EdgeCodeSecond, code[1] == '1');
  }
  /// Starts at an edge, without what was said on the way.
  void StartAt(Edge at) {
    AskFor(at);
    Start();
    World.Bars.ClearLog();
  }
  /// Another program's window comes to the front, and the pointer leaves the strip.
  void GoElsewhere() {
    if (other_ == kNoWindow) {
      other_ = World.Desktop.AddOtherWindow({.Title = "Work", .Bounds = {300, 200, 700, 600}});
    }
    World.Desktop.MovePointer(500, 400);
    World.Desktop.TakeForeground(other_);
    World.Desktop.Pump();
  }
  /// One turn of the Auto Hide poll, and then some.
  void Poll() { World.Desktop.Advance(300); }

  [[nodiscard]] PixelRect Bounds() const { return World.Desktop.BoundsOf(Strip.hWnd()); }
  [[nodiscard]] bool Shown() const { return World.Desktop.IsShown(Strip.hWnd()); }
  [[nodiscard]] bool IsLine() const {
    return !Strip.picToolbar.Visible() && !Strip.picSingleButton.Visible() &&
           !Strip.bLine1.Visible() && !Strip.bLineXY.Visible();
  }

  /// The middle of the grip.
  [[nodiscard]] PixelPoint Grip() const {
    const forms::Label& grip = Strip.lblSep[0];
    const PixelRect window = Bounds();
    const auto middle = [&](float left, float width) {
      return static_cast<int>((left + width / 2) / Strip.TwipsX);
    };
    return {window.left + middle(grip.Left(), grip.Width()),
            window.top + middle(grip.Top(), grip.Height())};
  }
  /// Takes the strip by its grip and pulls it somewhere, without letting go.
  void Pull(PixelPoint to) {
    PointAt(Grip());
    World.Desktop.Press();
    PointAt(to);
  }
  void PullAndDrop(PixelPoint to) {
    Pull(to);
    World.Desktop.Release();
  }

  mAppBar Docking{AppBarPartsOf(TheProgram), Strip};
  frmImage Picture{StillPicturePartsOf(TheProgram), Strip};

 private:
  WindowId other_ = kNoWindow;
};

using Messages = std::vector<std::string>;

/// Twips of a pixel at 96, 120, 144, 168, 192, 216 and 336 dpi.
inline constexpr float kScales[] = {15, 12, 10, 1440.0F / 168, 7.5F, 1440.0F / 216, 1440.0F / 336};

/// Where a strip that hides is, for 1024 x 768: as a line, revealed, and the point that reveals it.
struct LineRow {
  const char* name;
  Edge at;
  PixelRect line;
  PixelRect revealed;
  PixelPoint touch;
};

inline const LineRow kLineRows[] = {
    {"top", Edge::Top, {0, 0, 1024, 1}, {0, -3, 1024, 38}, {500, 0}},
    {"bottom", Edge::Bottom, {0, 767, 1024, 768}, {0, 726, 1024, 768}, {500, 767}},
    {"left", Edge::Left, {0, 0, 1, 768}, {0, 0, 41, 768}, {0, 400}},
    {"right", Edge::Right, {1023, 0, 1024, 768}, {982, 0, 1024, 768}, {1023, 400}}};

/// Points well inside of the quarters that the screen's diagonals cut, for 1024 x 768.
inline PixelPoint QuarterOf(Edge at) {
  switch (at) {
    case Edge::Left:
      return {60, 384};
    case Edge::Right:
      return {960, 384};
    case Edge::Bottom:
      return {512, 700};
    case Edge::Top:
      break;
  }
  return {512, 60};
}

}  // namespace corvelle
