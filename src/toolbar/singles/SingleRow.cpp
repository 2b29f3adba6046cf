#include "toolbar/singles/SingleRow.h"

#include <utility>

#include "base/Text.h"
#include "core/MenuFile.h"
#include "core/MenuFolder.h"
#include "core/Program.h"
#include "forms/Form.h"
#include "forms/PictureBox.h"
#include "platform/FileSystem.h"
#include "platform/ShellIcons.h"
#include "toolbar/layout/StripLook.h"

namespace corvelle {
namespace {

constexpr int kWatchPoll = 100;  // milliseconds

TwipRect PlaceOf(const SingleRect& single) {
  return {single.Left, single.Top, single.Width, single.Height};
}

void Set(SingleRect& single, const TwipRect& place) {
  single.Left = place.Left;
  single.Top = place.Top;
  single.Width = place.Width;
  single.Height = place.Height;
}

void Show(forms::Line& line, const TwipLine& points, LineColor color) {
  line.SetPoints(points.X1, points.Y1, points.X2, points.Y2);
  line.SetBorderColor(ColorValue(color));
  line.SetVisible(true);
}

}  // namespace

SingleRow::SingleRow(Program& program, RowHost& strip, StripPull& pull, const RowControls& controls)
    : Date(program, strip, pull, controls, *this),
      program_(program),
      strip_(strip),
      window_(strip.AsForm()),
      pull_(pull),
      controls_(controls),
      icons_(program, controls.Box),
      hover1_(controls.Box, "Line1"),
      hover2_(controls.Box, "Line2"),
      watch_(program.Windows) {
  hover1_.SetVisible(false);
  hover2_.SetVisible(false);
  watch_.SetInterval(kWatchPoll);
  watch_.Tick = [this] { LookAround(); };
  SingleButtons.push_back(SingleTemplate({}));
}

SingleScene SingleRow::Scene() const {
  const bool twoRows =
      program_.OptionFlags.Is(Option::SmallSingles) && program_.OptionFlags.Is(Option::LargeIcons);
  const TwipSize button = strip_.Shape().Button;
  return {.Scale = strip_.Shape().Scale,
          .At = strip_.Shape().At,
          .TwoRows = twoRows,
          .IconSize = twoRows ? kSmallIconSize : program_.Icons.IconSize,
          .Template = {button.Width, button.Height}};
}

float SingleRow::LastEnd() const {
  const SingleRect& last = SingleButtons.back();
  return program_.Strip.ToolbarVertical ? last.Bottom() : last.Right();
}

void SingleRow::Unload() {
  SingleCount = 0;
  LineCount = 0;
  if (program_.Menu.CurSingle != MenuState::kDateArea) program_.Menu.CurSingle = 0;
  ShowHover(0);
  press_ = {.On = press_.On == PressOn::Nothing ? PressOn::Nothing : PressOn::Spent};
  icons_.Stop();
  controls_.Line1.UnloadAbove(0);
  controls_.Line2.UnloadAbove(0);
  SingleButtons.assign(1, SingleTemplate(strip_.Shape().Scale));
}

void SingleRow::DoSingleButtons() {
  Unload();
  program_.Menu.CurSingle = 0;
  if (strip_.Shape().Where == Placement::TopHugging) Date.HideDate();
  PlaceBox();
  for (SingleRect& read : ReadSingles()) {
    if (EqualNoCase(read.Icon, kSeparatorIcon)) {
      AddSeparator();
    } else {
      DrawSingleButton(read.Command, read.Icon, read.Title);
    }
    SingleRect& added = SingleButtons.back();
    added.Title = std::move(read.Title);
    added.Icon = std::move(read.Icon);
    added.Command = std::move(read.Command);
    added.File = std::move(read.File);
  }
  SizeBox();
  DrawIcons();
  // A strip that is a line shows nothing.
  controls_.Box.SetVisible(strip_.ButtonsBox().Visible());
}

// Along the strip the box gets its size when the last entry is known.
void SingleRow::PlaceBox() {
  const forms::PictureBox& buttons = strip_.ButtonsBox();
  forms::PictureBox& box = controls_.Box;
  const TwipSize size = strip_.Shape().Button;
  box.SetAutoRedraw(true);
  if (program_.Strip.ToolbarVertical) {
    box.Move(buttons.Left(), buttons.Bottom() + 8 * strip_.Shape().Scale.TwipsY, size.Width,
             box.Height());
  } else {
    box.Move(buttons.Right() + 8 * strip_.Shape().Scale.TwipsX, buttons.Top(), box.Width(),
             size.Height);
  }
  ShowLineLeft();
}

void SingleRow::ShowLineLeft() {
  const TwipSize size = strip_.Shape().Button;
  const TwipLine line = program_.Strip.ToolbarVertical ? TwipLine{0, 0, size.Width, 0}
                                                       : TwipLine{0, 0, 0, size.Height};
  Show(controls_.LineLeft, line, LineColor::Highlight);
}

void SingleRow::SizeBox() {
  const float length = SinglesLength(strip_.Shape().Scale, SingleButtons.back());
  if (program_.Strip.ToolbarVertical) {
    controls_.Box.SetHeight(length);
  } else {
    controls_.Box.SetWidth(length);
  }
}

SingleRect SingleRow::EntryOf(const MenuRecord& record, std::string path) {
  SingleRect single;
  single.Title = record.FTitle;
  single.Icon = record.FIcon;
  single.Command = record.FName;
  single.File = std::move(path);
  return single;
}

std::vector<SingleRect> SingleRow::ReadSingles() {
  std::vector<SingleRect> read;
  // A folder that cannot be listed gives an empty row.
  const auto names = OrderedSingleFiles(program_.Services.Files, program_.Paths.MenusPath);
  if (!names) return read;
  for (const std::string& name : *names) {
    const std::string path = program_.Paths.MenusPath + name;
    const std::optional<MenuRecord> record =
        ReadButtonRecord(program_.Services.Files, program_.Services.Ansi, path);
    // A button that cannot be read is left out, and the others come all the same.
    if (!record) continue;
    program_.Progress.ShowStartupProgress();
    read.push_back(EntryOf(*record, path));
  }
  return read;
}

// Appends a button behind the last entry. Its icon is painted when the size of the box is known.
void SingleRow::DrawSingleButton(const std::string& command, const std::string& icon,
                                 const std::string& title) {
  SingleRect single = EntryOf({title, icon, command}, {});
  Set(single, PlaceSingle(Scene(), SingleButtons.back(), SingleKind::Button));
  SingleButtons.push_back(std::move(single));
  ++SingleCount;
}

void SingleRow::AddSeparator() {
  SingleRect single;
  single.Kind = SingleKind::Separator;
  Set(single, PlaceSingle(Scene(), SingleButtons.back(), SingleKind::Separator));
  DrawSepLine(SeparatorPosition(strip_.Shape().Scale, PlaceOf(single)));
  SingleButtons.push_back(std::move(single));
  ++SingleCount;
}

void SingleRow::DrawSepLine(float position) {
  const TwipSize size = strip_.Shape().Button;
  const LinePair lines = SeparatorLines(strip_.Shape().Scale, position, {size.Width, size.Height});
  Show(controls_.Line1.Load(), lines.Line1, LineColor::Shadow);
  Show(controls_.Line2.Load(), lines.Line2, LineColor::Highlight);
  LineCount = controls_.Line1.Last();
}

void SingleRow::DrawIcons() {
  const SingleScene scene = Scene();
  const StripShape shape = strip_.Shape();
  icons_.Begin();
  for (const SingleRect& single : SingleButtons) {
    if (single.Kind != SingleKind::Button) continue;
    const PixelPoint at = SingleIconPlace(scene, PlaceOf(single), shape.Where, shape.TopCut);
    // A button without any face could not be found: also one whose icon is a word of the program.
    const bool isWord = EqualNoCase(single.Icon, kNewButtonIcon);
    icons_.Draw(isWord ? std::string_view() : single.Icon,
                RectAt(at, {scene.IconSize, scene.IconSize}));
  }
  icons_.End();
}

void SingleRow::RefreshSingleButtons() {
  std::vector<SingleRect> read = ReadSingles();
  if (!FitsRow(read)) {
    // Other buttons than those there were: they need other places.
    DoSingleButtons();
    FitStrip();
    return;
  }
  for (std::size_t i = 0; i < read.size(); ++i) {
    SingleRect& single = SingleButtons[i + 1];
    single.Title = std::move(read[i].Title);
    single.Icon = std::move(read[i].Icon);
    single.Command = std::move(read[i].Command);
  }
  DrawIcons();
}

bool SingleRow::FitsRow(const std::vector<SingleRect>& read) const {
  if (read.size() + 1 != SingleButtons.size()) return false;
  for (std::size_t i = 0; i < read.size(); ++i) {
    const SingleRect& single = SingleButtons[i + 1];
    const bool isSeparator = EqualNoCase(read[i].Icon, kSeparatorIcon);
    if (isSeparator != (single.Kind == SingleKind::Separator)) return false;
    if (!EqualNoCase(read[i].File, single.File)) return false;
  }
  return true;
}

}  // namespace corvelle
