#include "toolbar/singles/SingleRow.h"

#include <utility>

#include "base/Text.h"
#include "core/IconState.h"
#include "core/MenuState.h"
#include "core/OptionFlags.h"
#include "forms/Form.h"
#include "forms/PictureBox.h"
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

SingleRow::SingleRow(const SingleRowParts& with, const DateParts& date, RowHost& strip,
                     StripPull& pull, const RowControls& controls)
    : Date(date, strip, pull, controls, *this),
      with_(with),
      strip_(strip),
      window_(strip.AsForm()),
      pull_(pull),
      controls_(controls),
      icons_(with.Icons, with.Guards, controls.Box),
      hover1_(controls.Box, "Line1"),
      hover2_(controls.Box, "Line2"),
      watch_(window_.Windows()) {
  hover1_.SetVisible(false);
  hover2_.SetVisible(false);
  watch_.SetInterval(kWatchPoll);
  watch_.Tick = [this] { LookAround(); };
  SingleButtons.push_back(SingleTemplate({}));
}

SingleScene SingleRow::Scene() const {
  const bool twoRows =
      with_.Options.Is(Option::SmallSingles) && with_.Options.Is(Option::LargeIcons);
  const TwipSize button = strip_.Shape().Button;
  return {.Scale = strip_.Shape().Scale,
          .At = strip_.Shape().At,
          .TwoRows = twoRows,
          .IconSize = twoRows ? kSmallIconSize : with_.Icons.Icons.IconSize,
          .Template = {button.Width, button.Height}};
}

float SingleRow::LastEnd() const {
  const SingleRect& last = SingleButtons.back();
  return strip_.Shape().Scale.Vertical ? last.Bottom() : last.Right();
}

void SingleRow::Unload() {
  SingleCount = 0;
  LineCount = 0;
  if (with_.Menu.CurSingle != MenuState::kDateArea) with_.Menu.CurSingle = 0;
  ShowHover(0);
  press_ = {.On = press_.On == PressOn::Nothing ? PressOn::Nothing : PressOn::Spent};
  icons_.Stop();
  controls_.Line1.UnloadAbove(0);
  controls_.Line2.UnloadAbove(0);
  SingleButtons.assign(1, SingleTemplate(strip_.Shape().Scale));
}

void SingleRow::DoSingleButtons() {
  Unload();
  with_.Menu.CurSingle = 0;
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
  if (strip_.Shape().Scale.Vertical) {
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
  const TwipLine line = strip_.Shape().Scale.Vertical ? TwipLine{0, 0, size.Width, 0}
                                                      : TwipLine{0, 0, 0, size.Height};
  Show(controls_.LineLeft, line, LineColor::Highlight);
}

void SingleRow::SizeBox() {
  const float length = SinglesLength(strip_.Shape().Scale, SingleButtons.back());
  if (strip_.Shape().Scale.Vertical) {
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
  for (const StripFiles::Button& button : with_.Files.SingleButtons())
    read.push_back(EntryOf(button.Record, button.Path));
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

void SingleRow::FitStrip() {
  DockingPort* const docking = with_.Ports.Docking;
  if (strip_.Shape().Where == Placement::TopHugging) {
    strip_.SetToolbar();
  } else if (docking != nullptr) {
    docking->ResizeToEdge();
  }
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
