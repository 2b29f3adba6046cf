// The menu buttons: from the menu files to controls and icons.

#include <algorithm>

#include "base/Text.h"
#include "core/MenuFile.h"
#include "core/MenuFolder.h"
#include "core/MenuRecord.h"
#include "core/Program.h"
#include "icons/IconResolution.h"
#include "platform/FileSystem.h"
#include "toolbar/frmToolbar.h"

namespace corvelle {

// A file that went away, that cannot be read, or that another program holds has no record.
std::optional<MenuRecord> frmToolbar::ReadButtonRecord(std::string_view path) {
  const auto bytes = program_.Services.Files.Read(path, 0, kRecordLength);
  if (!bytes) return std::nullopt;
  return ParseRecord(*bytes, program_.Services.Ansi);
}

std::vector<frmToolbar::ButtonFile> frmToolbar::ReadButtonFiles() {
  std::vector<ButtonFile> buttons;
  // A folder that cannot be listed gives a strip with the program's own button only.
  const auto names = OrderedMenuFiles(program_.Services.Files, program_.Paths.MenusPath);
  if (!names) return buttons;
  for (const std::string& name : *names) {
    program_.ShowStartupProgress();
    const std::string path = program_.Paths.MenusPath + name;
    const std::optional<MenuRecord> record = ReadButtonRecord(path);
    // A button that cannot be read is left out, and the others come all the same.
    if (!record) continue;
    buttons.push_back(
        {.Entry = {path, EntryKindOf(record->FIcon, record->FName)}, .Record = *record});
  }
  return buttons;
}

void frmToolbar::UnloadButtons() {
  ForgetMenus();
  LinTB1.UnloadAbove(0);
  LinTB2.UnloadAbove(0);
  lblSep.UnloadAbove(0);
  ToolbarButtons.resize(1);
  records_.resize(1);
  ButtonCount = 0;
  SepCount = 0;
  program_.Menu.CurButton = 0;
}

TwipSize frmToolbar::MakeButtons() {
  EmptyCurrentItem();
  UnloadButtons();
  const std::vector<ButtonFile> files = ReadButtonFiles();
  std::vector<StripEntry> entries;
  entries.reserve(files.size());
  // The program's own menu comes first.
  records_.push_back({program_.Title, program_.Paths.ShippedFile("corvelle.exe"), ""});
  for (const ButtonFile& file : files) {
    entries.push_back(file.Entry);
    if (file.Entry.Kind == EntryKind::Button) records_.push_back(file.Record);
  }
  const TemplateSize size{ToolbarButtons[0].Width, ToolbarButtons[0].Height, TopCut};
  const StripContents strip = LayOutStrip(size, entries, Scale());
  for (const TwipRect& separator : strip.Separators) AddSeparator(separator);
  for (std::size_t i = 1; i < strip.Buttons.size(); ++i) AddButton(strip.Buttons[i]);
  return strip.Box;
}

void frmToolbar::AddSeparator(const TwipRect& place) {
  forms::Label& separator = lblSep.Load();
  SepCount = lblSep.Last();
  separator.SetCaption("");
  separator.Move(place.Left, place.Top, place.Width, place.Height);
}

void frmToolbar::AddButton(const ButtonRect& button) {
  ToolbarButtons.push_back(button);
  const ButtonLines lines = LinesOf(button, ToolbarButtons[0], Scale());
  LinTB1.Load().SetPoints(lines.LinTB1.X1, lines.LinTB1.Y1, lines.LinTB1.X2, lines.LinTB1.Y2);
  LinTB2.Load().SetPoints(lines.LinTB2.X1, lines.LinTB2.Y1, lines.LinTB2.X2, lines.LinTB2.Y2);
  ButtonCount = LinTB1.Last();
  ShowLook(ButtonCount, kRestingLook);
}

void frmToolbar::DrawIcons() {
  const unsigned round = ++iconRounds_;
  picToolbar.SetBackground({});
  for (int i = 1; i <= ButtonCount; ++i) {
    const auto at = static_cast<std::size_t>(i);
    DrawButtonIcon(std::string(records_[at].FIcon), ButtonRect(ToolbarButtons[at]));
    // Messages that came in meanwhile have had all of them drawn again, perhaps other ones.
    if (round != iconRounds_ || !IsLoaded()) return;
  }
  picToolbar.Refresh();
  // From here on a repaint is a copy of this picture.
  picToolbar.SetBackground(picToolbar.Image());
}

// The shell may let messages in while it is asked for an icon, and they may draw in the box: the
// icon is drawn aside, on what it will stand on.
void frmToolbar::DrawIconIn(forms::PictureBox& box, const PixelRect& place, const unsigned& rounds,
                            const std::function<void(Canvas&)>& draw) {
  const std::unique_ptr<Canvas> icon = program_.Windows.CreateCanvas(place.Size());
  box.DrawPixels(place, [&](Canvas& canvas) { icon->DrawCanvas(canvas, place, {0, 0}); });
  const unsigned round = rounds;
  draw(*icon);
  if (round != rounds || !IsLoaded()) return;
  const PixelRect whole{0, 0, place.Width(), place.Height()};
  box.DrawPixels(place, [&](Canvas& canvas) { canvas.DrawCanvas(*icon, whole, place.TopLeft()); });
}

void frmToolbar::DrawButtonIcon(const std::string& iconText, const ButtonRect& button) {
  if (iconText.empty() || EqualNoCase(iconText, kNewButtonIcon)) return;
  const PixelPoint at = IconPlace({.Button = {button.Left, button.Top, button.Width, button.Height},
                                   .IconSize = program_.Icons.IconSize,
                                   .TwipsX = TwipsX,
                                   .TwipsY = TwipsY,
                                   .Where = Where(),
                                   .Vertical = program_.Strip.ToolbarVertical,
                                   .TopCut = TopCut});
  const PixelRect touched = RectAt(at, {program_.Icons.IconSize, program_.Icons.IconSize});
  DrawIconIn(picToolbar, touched, iconRounds_, [&](Canvas& canvas) {
    // What has no icon at all keeps an empty face.
    static_cast<void>(ResolveAndDraw(program_, canvas, iconText, {0, 0}, touched.Width()));
  });
}

void frmToolbar::DoToolbarButtons() {
  picToolbar.SetVisible(false);
  const TwipSize box = MakeButtons();
  picToolbar.Move(picToolbar.Left(), picToolbar.Top(), box.Width, box.Height);
  DrawIcons();
  picToolbar.SetVisible(true);
}

void frmToolbar::RefreshToolbarButtons() {
  MakeButtons();
  DrawIcons();
}

void frmToolbar::RefreshToolbar() {
  const bool visible = picToolbar.Visible();
  const float freeWidth = FreeWidth();
  const int buttons = ButtonCount;
  const int separators = SepCount;
  RefreshToolbarButtons();
  // Other buttons than those there were: they need other places.
  const bool others = ButtonCount != buttons || SepCount != separators;
  if (others) DoToolbarButtons();
  picToolbar.SetVisible(visible);
  picToolbar.Refresh();
  Singles.RefreshSingleButtons();
  picSingleButton.Refresh();
  // A line stays bare, and is fitted when it comes back.
  if (!visible) return;
  if (others) {
    ResizeAfterEdit(freeWidth);
    return;
  }
  DrawBorders();
  InvalidateAll();
  Refresh();
}

}  // namespace corvelle
