// The tab of the edges: the small picture of the screen and the four buttons around it.

#include <algorithm>
#include <memory>
#include <variant>

#include "base/Text.h"
#include "core/ProgramPaths.h"
#include "core/SpecialFolders.h"
#include "core/StripPlacement.h"
#include "desk/AnswerDesk.h"
#include "forms/Scopes.h"
#include "platform/DesktopWindows.h"
#include "platform/Input.h"
#include "platform/ShellIcons.h"
#include "properties/DesktopIcons.h"
#include "properties/frmProperties.h"

namespace corvelle {
namespace {

void Draw(Canvas& canvas, const forms::Window& window, const PreviewPlan& plan) {
  const forms::WindowSystem& windows = window.Windows();
  for (const PreviewBox& box : plan.Boxes) {
    canvas.FillBox(box.Area, forms::Resolve(windows, box.Colour));
  }
  for (const PreviewLine& line : plan.Lines) {
    canvas.FillBox({line.From.x, line.From.y, line.To.x + 1, line.To.y + 1},
                   forms::Resolve(windows, line.Colour));
  }
  for (const PreviewText& text : plan.Texts) {
    canvas.DrawString(text.At, text.Text, window.Scaled(),
                      forms::Resolve(windows, forms::color::ButtonText));
  }
}

}  // namespace

void frmProperties::LoadPositionTab() {
  if (PositionTabLoaded) return;
  PositionTabLoaded = true;
  const forms::HourglassScope hourglass(Windows());
  DrawPreview();
}

void frmProperties::DrawPreview() {
  shownEdge_.reset();
  const forms::ScreenInfo screen = Screen();
  scene_ = {.Box = {static_cast<int>(picScreen.Width() / screen.TwipsPerPixelX),
                    static_cast<int>(picScreen.Height() / screen.TwipsPerPixelY)},
            .Dpi = Dpi(),
            .StartText = MeasureText(kStartText),
            .ClockText = MeasureText(kClockText)};
  const int width = with_.Icons.Shell.IconWidth(IconList::Large);
  if (width > 0) scene_.IconSize = width;
  RemoveDesktopLists(with_.Files, with_.Paths.MenusPath);
  ListDesktop();
}

void frmProperties::ListDesktop() {
  const auto listed = with_.Icons.Answers.AskAtOnce(
      {.Question = {.Kind = LookupKind::ShellEntries, .Path = {}, .Number = kDesktopFolder},
       .Owner = desktopAsked_},
      {.Ended = [this](const desk::Reply& reply) { DrawDesktop(reply); },
       .TakesLonger = {},
       .Back = [this] { ListDesktop(); }});
  // Until the shell has listed it the desktop is shown without icons.
  DrawDesktop(listed.value_or(desk::Reply{}));
}

void frmProperties::DrawDesktop(const desk::Reply& listed) {
  std::vector<int> icons;
  const auto* const entries = std::get_if<std::vector<ShellFolderEntry>>(&listed.Value);
  if (listed.How == desk::End::Answered && entries != nullptr) icons = DesktopIcons(*entries);
  const std::vector<PixelPoint> places = IconGrid(scene_, icons.size());
  const std::shared_ptr<Canvas> drawn = Windows().CreateCanvas(scene_.Box);
  Draw(*drawn, *this, PlanPreview(scene_));
  for (std::size_t i = 0; i < places.size(); ++i) {
    // One that the system does not have leaves its place empty.
    static_cast<void>(with_.Icons.Shell.DrawSystemIcon(*drawn, IconList::Large, icons[i], places[i],
                                                       IconStyle::Normal));
  }
  desktop_ = drawn;
  DrawStrip(shownEdge_);
}

// The strip at the edge of the button that would send it there.
void frmProperties::DrawStrip(std::optional<Edge> edge) {
  shownEdge_ = edge;
  if (desktop_ == nullptr) return;
  picScreen.Cls();
  picScreen.PaintPicture(desktop_, 0, 0);
  if (edge) {
    const forms::ScreenInfo screen = Screen();
    const TwipRect strip =
        with_.Ports.Toolbar != nullptr ? with_.Ports.Toolbar->WindowBounds() : TwipRect{};
    const auto thickness =
        static_cast<int>(std::min(strip.Width, strip.Height) / screen.TwipsPerPixelX);
    const PixelRect at = PreviewStrip(scene_, *edge, thickness,
                                      static_cast<int>(screen.Width / screen.TwipsPerPixelX));
    picScreen.DrawPixels(at, [&](Canvas& canvas) { Draw(canvas, *this, PlanStrip(at)); });
  }
  picScreen.Refresh();
}

void frmProperties::HidePreview() {
  if (IsLoaded() && shownEdge_) DrawStrip(std::nullopt);
}

// Of the button under the pointer, else of the one that has the focus.
std::optional<Edge> frmProperties::EdgeInUse() const {
  const std::pair<const forms::CommandButton&, Edge> buttons[] = {{cmdTop, Edge::Top},
                                                                  {cmdBottom, Edge::Bottom},
                                                                  {cmdLeft, Edge::Left},
                                                                  {cmdRight, Edge::Right}};
  const WindowId under = with_.Desktop.WindowAt(with_.Pointer.PointerPosition());
  for (const auto& [button, edge] : buttons) {
    if (button.hWnd() == under) return edge;
  }
  for (const auto& [button, edge] : buttons) {
    if (button.HasFocus()) return edge;
  }
  return std::nullopt;
}

void frmProperties::MoveToEdge(Edge edge) {
  DockingPort* const docking = with_.Ports.Docking;
  if (busy_ || docking == nullptr || with_.Strip.ToolbarMinimizing) return;
  if (with_.Strip.ToolbarMinimized) return;
  if (with_.Strip.AppBarDocked && with_.Strip.ToolbarEdge == edge) return;
  const forms::FlagScope busy(busy_);
  docking->SetAppBar(edge, false);
  if (!IsLoaded()) return;
  if (with_.Strip.AutoHide) docking->RevealToolbar();
  if (with_.Ports.Toolbar != nullptr) with_.Ports.Toolbar->ShowToolbar();
  if (!IsLoaded()) return;
  // The strip may have taken the foreground while it was built.
  SetForeground();
}

}  // namespace corvelle
