#include "toolbar/strip/ButtonRow.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "core/IconState.h"
#include "core/MenuState.h"
#include "core/OptionFlags.h"
#include "core/StripPlacement.h"
#include "core/WindowPorts.h"
#include "forms/Form.h"
#include "platform/SystemInfo.h"

namespace corvelle {

ButtonRow::ButtonRow(const ButtonRowParts& with, StripWindow& strip, const ButtonControls& controls)
    : ToolbarButtons(1),
      with_(with),
      strip_(strip),
      controls_(controls),
      icons_(with.Icons, with.Guards, controls.picToolbar),
      records_(1) {}

void ButtonRow::MakeTemplates() {
  const StripScale scale = strip_.Shape().Scale;
  const TemplateSize size =
      TemplateButton({.LargeIcons = with_.Options.Is(Option::LargeIcons),
                      .IconSize = with_.Icons.Icons.IconSize,
                      .TwipsX = scale.TwipsX,
                      .TwipsY = scale.TwipsY,
                      .CaptionHeight = with_.System.CaptionHeight(strip_.AsForm().Dpi())});
  TopCut = size.TopCut;
  ButtonRect& button = ToolbarButtons[0];
  button = ButtonRect{.Width = size.Width, .Height = size.Height};

  const ButtonLines lines = TemplateLines(button, scale);
  forms::Line& line1 = controls_.LinTB1[0];
  forms::Line& line2 = controls_.LinTB2[0];
  line1.SetPoints(lines.LinTB1.X1, lines.LinTB1.Y1, lines.LinTB1.X2, lines.LinTB1.Y2);
  line2.SetPoints(lines.LinTB2.X1, lines.LinTB2.Y1, lines.LinTB2.X2, lines.LinTB2.Y2);
  line1.SetVisible(false);
  line2.SetVisible(false);

  const TwipSize separator = TemplateSeparator(button, scale);
  forms::Label& grip = controls_.lblSep[0];
  grip.Move(grip.Left(), 0, separator.Width, separator.Height);
  grip.SetVisible(false);
  grip.SetCaption("");
}

void ButtonRow::ForgetMenus() {
  if (with_.Ports.QMenu == nullptr) return;
  for (int button = 1; button <= ButtonCount; ++button) {
    with_.Ports.QMenu->ForgetMenu("F" + std::to_string(button));
  }
}

void ButtonRow::Unload() {
  ForgetMenus();
  icons_.Stop();
  controls_.LinTB1.UnloadAbove(0);
  controls_.LinTB2.UnloadAbove(0);
  controls_.lblSep.UnloadAbove(0);
  ToolbarButtons.resize(1);
  records_.resize(1);
  ButtonCount = 0;
  SepCount = 0;
  with_.Menu.CurButton = 0;
}

TwipSize ButtonRow::Make() {
  ForgetCurrentEntry(with_.Entry);
  Unload();
  const std::vector<StripFiles::Button> files = with_.Files.MenuButtons();
  std::vector<StripEntry> entries;
  entries.reserve(files.size());
  // The program's own menu comes first.
  records_.push_back(with_.Files.MainMenuRecord());
  for (const StripFiles::Button& file : files) {
    const EntryKind kind = EntryKindOf(file.Record.FIcon, file.Record.FName);
    entries.push_back({file.Path, kind});
    if (kind == EntryKind::Button) records_.push_back(file.Record);
  }
  const TemplateSize size{ToolbarButtons[0].Width, ToolbarButtons[0].Height, TopCut};
  const StripContents strip = LayOutStrip(size, entries, strip_.Shape().Scale);
  for (const TwipRect& separator : strip.Separators) AddSeparator(separator);
  for (std::size_t i = 1; i < strip.Buttons.size(); ++i) AddButton(strip.Buttons[i]);
  NotePlaces();
  return strip.Box;
}

void ButtonRow::NotePlaces() {
  std::vector<std::string> places;
  places.reserve(ToolbarButtons.size());
  for (const ButtonRect& button : ToolbarButtons) places.push_back(button.Path);
  // More buttons behind them leave the others where they are. With fewer, the files behind the gap
  // have taken the names before them.
  const bool kept =
      places.size() >= places_.size() && std::equal(places_.begin(), places_.end(), places.begin());
  if (!kept) ForgetMenuUndo(with_.Entry);
  places_ = std::move(places);
}

void ButtonRow::AddSeparator(const TwipRect& place) {
  forms::Label& separator = controls_.lblSep.Load();
  SepCount = controls_.lblSep.Last();
  separator.SetCaption("");
  separator.Move(place.Left, place.Top, place.Width, place.Height);
}

void ButtonRow::AddButton(const ButtonRect& button) {
  ToolbarButtons.push_back(button);
  const ButtonLines lines = LinesOf(button, ToolbarButtons[0], strip_.Shape().Scale);
  controls_.LinTB1.Load().SetPoints(lines.LinTB1.X1, lines.LinTB1.Y1, lines.LinTB1.X2,
                                    lines.LinTB1.Y2);
  controls_.LinTB2.Load().SetPoints(lines.LinTB2.X1, lines.LinTB2.Y1, lines.LinTB2.X2,
                                    lines.LinTB2.Y2);
  ButtonCount = controls_.LinTB1.Last();
  ShowLook(ButtonCount, kRestingLook);
}

void ButtonRow::DrawIcons() {
  icons_.Begin();
  for (std::size_t i = 1; i < ToolbarButtons.size(); ++i)
    DrawButtonIcon(records_[i].FIcon, ToolbarButtons[i]);
  icons_.End();
}

void ButtonRow::DrawButtonIcon(const std::string& iconText, const ButtonRect& button) {
  if (iconText.empty() || EqualNoCase(iconText, kNewButtonIcon)) return;
  const StripShape shape = strip_.Shape();
  const int size = with_.Icons.Icons.IconSize;
  const PixelPoint at = IconPlace({.Button = {button.Left, button.Top, button.Width, button.Height},
                                   .IconSize = size,
                                   .TwipsX = shape.Scale.TwipsX,
                                   .TwipsY = shape.Scale.TwipsY,
                                   .Where = shape.Where,
                                   .Vertical = shape.Scale.Vertical,
                                   .TopCut = TopCut});
  icons_.Draw(iconText, RectAt(at, {size, size}));
}

void ButtonRow::DoToolbarButtons() {
  forms::PictureBox& box = controls_.picToolbar;
  const bool visible = box.Visible();
  box.SetVisible(false);
  const TwipSize size = Make();
  box.Move(box.Left(), box.Top(), size.Width, size.Height);
  DrawIcons();
  // A strip that is a line shows nothing.
  box.SetVisible(visible);
}

void ButtonRow::Refresh() {
  Make();
  DrawIcons();
}

// ---- which button ----

StripPlace ButtonRow::PlaceOnScreen() const {
  const forms::Form& window = strip_.AsForm();
  return {window.Left(), window.Top(), strip_.Shape().Scale};
}

int ButtonRow::At(PixelPoint pointer, int current, bool menuOpen) const {
  return ButtonAt(ToolbarButtons, PlaceOnScreen(), pointer, current, menuOpen);
}

PixelPoint ButtonRow::Middle(int button) const {
  return ButtonMiddle(ToolbarButtons[static_cast<std::size_t>(button)], PlaceOnScreen());
}

int ButtonRow::ItemButtonOf(std::string_view path) const {
  for (int i = 2; i <= ButtonCount; ++i) {
    if (EqualNoCase(PathOf(i), path)) return i;
  }
  return 0;
}

std::string ButtonRow::MenuFileOf(int button) const {
  const std::string& path = PathOf(button);
  return path == kMainMenuPath ? with_.Files.MainMenuFile() : path;
}

std::string ButtonRow::HintOf(int button) const {
  if (!Has(button)) return {};
  return DoubleAmpersands(records_[static_cast<std::size_t>(button)].FTitle);
}

EntryEdit ButtonRow::EntryOf(int button) const {
  EntryEdit entry{.CurMenuTag = "B" + std::to_string(button)};
  if (button == 1) return entry;
  entry.CurFile = PathOf(button);
  // A file that cannot be read now leaves the texts empty, and no edit will find its record.
  const MenuRecord record = with_.Files.RecordOf(entry.CurFile);
  entry.CurRecord = 1;
  entry.CurTitle = record.FTitle;
  entry.CurIcon = record.FIcon;
  entry.CurCommand = record.FName;
  return entry;
}

// ---- looks ----

void ButtonRow::ShowLook(int button, const ButtonLook& look) {
  forms::Line& line1 = controls_.LinTB1[button];
  forms::Line& line2 = controls_.LinTB2[button];
  line1.SetBorderColor(ColorValue(look.LinTB1.Color));
  line1.SetVisible(look.LinTB1.Visible);
  line2.SetBorderColor(ColorValue(look.LinTB2.Color));
  line2.SetVisible(look.LinTB2.Visible);
}

void ButtonRow::ShowResting() {
  for (int i = 1; i <= ButtonCount; ++i) ShowLook(i, kRestingLook);
}

void ButtonRow::ShowPressed(int button) {
  if (!Has(button)) return;
  const StripScale scale = strip_.Shape().Scale;
  const std::vector<ButtonLook> looks = ButtonLooks({.Buttons = ToolbarButtons,
                                                     .CurButton = button,
                                                     .Vertical = scale.Vertical,
                                                     .Docked = with_.Strip.AppBarDocked,
                                                     .TwipsX = scale.TwipsX,
                                                     .TwipsY = scale.TwipsY});
  for (int i = 1; i <= ButtonCount; ++i) ShowLook(i, looks[static_cast<std::size_t>(i)]);
  controls_.LinTB1[button].ZOrder(forms::ZPlace::Front);
  controls_.LinTB2[button].ZOrder(forms::ZPlace::Front);
}

bool ButtonRow::LooksAtRest(int button) const {
  return button > 0 && controls_.LinTB1.Has(button) && controls_.LinTB1[button].Visible();
}

}  // namespace corvelle
