#include "toolbar/SinglesDesk.h"

#include "base/Numbers.h"

namespace corvelle {

void NotedEdge::SetAppBar(std::optional<Edge> edge, bool rebuild) {
  Program& program = Desk.TheProgram;
  program.Strip.AppBarRequested = true;
  program.Strip.AppBarDocked = true;
  if (edge) program.Strip.ToolbarEdge = *edge;
  program.Strip.ToolbarVertical = IsVertical(program.Strip.ToolbarEdge);
  frmToolbar& strip = Desk.Strip;
  if (rebuild) {
    program.Guards.AppBarBusy = true;
    strip.UnloadItems();
    strip.InitButtons();
    program.Guards.AppBarBusy = false;
  }
  const forms::ScreenInfo screen = Desk.World.Desktop.Screen();
  if (program.Strip.ToolbarVertical) {
    const float left = edge == corvelle::Edge::Right ? screen.Width - strip.Width() : 0;
    strip.Move(left, 0, strip.Width(), screen.Height);
  } else {
    const float top = edge == corvelle::Edge::Bottom ? screen.Height - strip.Height() : 0;
    strip.Move(0, top, screen.Width, strip.Height());
  }
  ResizeToEdge();
  strip.Show();
}

void NotedEdge::ResizeToEdge() {
  ++Fitted;
  frmToolbar& strip = Desk.Strip;
  strip.SetControls();
  forms::PictureBox& box = strip.picSingleButton;
  if (Desk.TheProgram.Strip.ToolbarVertical) {
    box.SetHeight(strip.Height() - box.Top() - 2 * strip.TwipsY);
  } else {
    box.SetWidth(strip.Width() - box.Left() - 2 * strip.TwipsX);
  }
  strip.DrawBorders();
  strip.DoLabelDate();
}

SinglesDesk::SinglesDesk(const sim::WorldOptions& options) : StripDesk(options) {
  PutButtons(2);
  TheProgram.Ports.Hint = &Parts;
  TheProgram.Ports.DragImage = &Parts;
  TheProgram.Ports.Popup = &Parts;
  Parts.Current = &TheProgram.Entry;
  TheProgram.Ports.SpecialFolders = &Parts;
  SetOption(Option::SingleClick, true);
  SetOption(Option::SystemPopupWithCtrl, true);
}

// The parts go before the strip.
SinglesDesk::~SinglesDesk() { Exit(); }

void SinglesDesk::PutSingle(int number, const std::string& title) {
  const std::string program = "C:\\Tools\\" + title + ".exe";
  World.Files.Put(program, "x");
  PutSingle(number, Entry(title, program, program));
}

void SinglesDesk::PutSingle(int number, const MenuRecord& record) {
  World.Files.Put("C:\\Corvelle\\Menus\\" + SingleFileName(number), Records({record}));
}

void SinglesDesk::PutSingles(const std::string& titles) {
  int number = 0;
  for (const char title : titles) {
    if (title == '-') {
      PutSingle(++number, Entry("Separator", "MenuLineSeparator", ""));
    } else {
      PutSingle(++number, std::string(1, title));
    }
  }
}

void SinglesDesk::StartAt(corvelle::Edge at) {
  Start();
  TheProgram.Ports.Docking = &Edge;
  Edge.SetAppBar(at, true);
  World.Desktop.Pump();
}

std::string SinglesDesk::Row() const {
  std::string row;
  for (int i = 1; i <= Strip.Singles.SingleCount; ++i) {
    const SingleRect& single = Strip.Singles.SingleButtons[static_cast<std::size_t>(i)];
    row += single.Kind == SingleKind::Separator ? "-" : single.Title.substr(0, 1);
  }
  return row;
}

std::string SinglesDesk::OnDisk() const {
  const Windows1252 ansi;
  std::string text;
  for (const std::string& name : World.Files.Names("C:\\Corvelle\\Menus")) {
    if (!name.ends_with(".BTN")) continue;
    const std::string bytes = *World.Files.Get("C:\\Corvelle\\Menus\\" + name);
    text += (text.empty() ? "" : " ") + std::to_string(std::stoi(name.substr(5))) +
            ParseRecord(bytes, ansi).FTitle;
  }
  return text;
}

PixelPoint SinglesDesk::MiddleOf(int single) const {
  const SingleRect& rect = Strip.Singles.SingleButtons[static_cast<std::size_t>(single)];
  const float x = Strip.Left() + Strip.picSingleButton.Left() + rect.Left + rect.Width / 2;
  const float y = Strip.Top() + Strip.picSingleButton.Top() + rect.Top + rect.Height / 2;
  return {RoundToInt(x / Strip.TwipsX), RoundToInt(y / Strip.TwipsY)};
}

PixelPoint SinglesDesk::BarePlace() const {
  const PixelRect box = World.Desktop.BoundsOf(Strip.picSingleButton.hWnd());
  return TheProgram.Strip.ToolbarVertical ? PixelPoint{box.left + 8, box.bottom - 3}
                                          : PixelPoint{box.right - 3, box.top + 8};
}

void SinglesDesk::CarryTo(int single, PixelPoint at) {
  PointAtSingle(single);
  World.Desktop.Press();
  const PixelPoint from = MiddleOf(single);
  PointAt({(from.x + at.x) / 2, (from.y + at.y) / 2});
  PointAt(at);
}

}  // namespace corvelle
