#include "scenario/Strip.h"

#include <bit>
#include <cstdint>
#include <cstdio>

#include "base/CodePage.h"

namespace corvelle::scenario {
namespace {

// Even a single button upright is higher than it is wide: a line lies below it.
bool IsUpright(const PixelRect& strip) { return strip.Height() > strip.Width(); }

// On a level strip a button takes two pixels more than the strip is high: the line at its end, and
// the gap. On an upright one buttons follow each other directly.
int Pitch(const PixelRect& strip) { return IsUpright(strip) ? strip.Width() : strip.Height() + 2; }

// The menu beside the strip at the right, or below it.
bool StandsAtButton(const PixelRect& menu, const PixelRect& strip, PixelPoint middle) {
  if (IsUpright(strip)) {
    const bool beside = menu.right <= strip.left + 2 || menu.left >= strip.right - 2;
    return beside && menu.top < middle.y && middle.y - menu.top < Pitch(strip);
  }
  return menu.left < middle.x && middle.x - menu.left < Pitch(strip) &&
         (menu.top >= strip.bottom - 2 || menu.bottom <= strip.top + 3);
}

}  // namespace

std::string MenuBytes(std::string_view title, const std::vector<MenuRecord>& items) {
  std::string bytes =
      FormatRecord({.FTitle = std::string(title), .FIcon = "\\icons\\folder.ico"}, Windows1252());
  for (const MenuRecord& item : items) bytes += FormatRecord(item, Windows1252());
  return bytes;
}

MenuRecord Witness(const Desk& desk, const std::string& argument) {
  const std::string program = desk.WitnessProgram();
  return {.FTitle = argument, .FIcon = program, .FName = program + " " + argument};
}

void WriteMenu(Desk& desk, int number, std::string_view title,
               const std::vector<MenuRecord>& items) {
  desk.WriteFile("Menus\\" + MenuFileName(number), MenuBytes(title, items));
}

std::string InstalledFlags(const std::vector<int>& turned) {
  std::string flags(32, '0');
  for (const int position : {1, 2, 9, 19, 24, 26, 32})
    flags[static_cast<std::size_t>(position) - 1] = '1';
  for (const int position : turned) {
    char& flag = flags[static_cast<std::size_t>(position) - 1];
    flag = flag == '1' ? '0' : '1';
  }
  return flags;
}

std::string PositionBytes(float twips) {
  const auto bits = std::bit_cast<std::uint32_t>(twips);
  std::string bytes;
  for (unsigned shift = 0; shift < 32; shift += 8)
    bytes += static_cast<char>((bits >> shift) & 0xFFU);
  return bytes;
}

float PositionTwips(const std::optional<std::string>& bytes) {
  if (!bytes || bytes->size() != 4) return -1;
  std::uint32_t bits = 0;
  for (unsigned i = 0; i < 4; ++i) {
    bits |= static_cast<std::uint32_t>(static_cast<unsigned char>((*bytes)[i])) << (8 * i);
  }
  return std::bit_cast<float>(bits);
}

bool StartAndWait(Desk& desk) {
  desk.StartCorvelle();
  const auto stands = [&desk] {
    return desk.IsVisible("frmToolbar") && desk.IsVisible("picToolbar") &&
           desk.Window("frmMinimize").has_value() &&
           desk.BoundsOf("frmToolbar").left < desk.ScreenSize().width;
  };
  if (!desk.Wait(stands, 20000)) return false;
  desk.Pause(300);  // The start ends after the strip is shown: nothing outside tells when.
  return stands();
}

bool CloseAndWait(Desk& desk) {
  desk.Post("frmMinimize", kMessageClose, 0, 0);
  return desk.Wait([&desk] { return desk.RunningCopies() == 0; });
}

int ButtonCount(const Desk& desk) {
  const PixelRect strip = desk.BoundsOf("picToolbar");
  if (strip.IsEmpty()) return 0;
  return (IsUpright(strip) ? strip.Height() : strip.Width()) / Pitch(strip);
}

PixelPoint ButtonMiddle(const Desk& desk, int button) {
  const PixelRect strip = desk.BoundsOf("picToolbar");
  const int pitch = Pitch(strip);
  if (IsUpright(strip)) {
    return {(strip.left + strip.right) / 2, strip.top + (button - 1) * pitch + pitch / 2};
  }
  return {strip.left + (button - 1) * pitch + pitch / 2, (strip.top + strip.bottom) / 2};
}

PixelPoint ItemMiddle(const Desk& desk, int item, int count) {
  const PixelRect menu = desk.BoundsOf("frmQMenu");
  // The first label stands 6 pixels from the top and 13 are left below the last.
  const int gap = desk.TwipsPerPixel() < 14 ? 6 : 7;
  const int line = (menu.Height() - 19 - (count - 1) * gap) / count;
  return {menu.left + 40, menu.top + 6 + (item - 1) * (line + gap) + line / 2};
}

bool WaitForMenuAt(Desk& desk, int button) {
  const auto stands = [&desk, button] {
    if (!desk.IsVisible("frmQMenu")) return false;
    return StandsAtButton(desk.BoundsOf("frmQMenu"), desk.BoundsOf("picToolbar"),
                          ButtonMiddle(desk, button));
  };
  const bool stood = desk.Wait(stands);
  if (stood) desk.Pause(200);  // Icons still arrive.
  if (stood && stands()) return true;
  const PixelRect at = desk.BoundsOf("frmQMenu");
  std::printf("the menu %s is at %d,%d to %d,%d and %s; in front is %s\n",
              stood ? "was there, but" : "", at.left, at.top, at.right, at.bottom,
              desk.IsVisible("frmQMenu") ? "visible" : "hidden", desk.ForegroundClass().c_str());
  return false;
}

bool OpenMenu(Desk& desk, int button) {
  desk.Click(ButtonMiddle(desk, button));
  return WaitForMenuAt(desk, button);
}

bool WaitForNoMenu(Desk& desk) {
  return desk.Wait([&desk] { return !desk.IsVisible("frmQMenu"); });
}

void ClickItem(Desk& desk, PixelPoint at, Button button) {
  desk.MovePointer(at);
  desk.Pause(200);
  desk.Click(at, button);
}

PixelPoint GripMiddle(const Desk& desk) {
  const PixelRect strip = desk.BoundsOf("picToolbar");
  if (IsUpright(strip)) return {(strip.left + strip.right) / 2, strip.bottom + 4};
  return {strip.right + 4, (strip.top + strip.bottom) / 2};
}

void PullTo(Desk& desk, PixelPoint to) {
  const PixelPoint from = GripMiddle(desk);
  desk.MovePointer(from);
  desk.Press(Button::Left);
  for (int step = 1; step <= 5; ++step) {
    desk.Pause(60);
    desk.MovePointer({from.x + (to.x - from.x) * step / 5, from.y + (to.y - from.y) * step / 5});
  }
  desk.Pause(60);
}

// Eleven items with lines between some; a line takes as much as two gaps.
PixelPoint MainItem(const Desk& desk, MainChoice choice) {
  constexpr int kItems = 11;
  constexpr int kLine = 12;  // pixels that a line takes
  const auto linesAbove = [](int item) {
    int lines = 0;
    for (const int last : {3, 5, 7, 10}) lines += item > last ? 1 : 0;
    return lines;
  };
  const int item = static_cast<int>(choice);
  const PixelRect menu = desk.BoundsOf("frmQMenu");
  const int gap = desk.TwipsPerPixel() < 14 ? 6 : 7;
  const int text = (menu.Height() - 19 - linesAbove(kItems) * kLine - (kItems - 1) * gap) / kItems;
  return {menu.left + 60,
          menu.top + 6 + (item - 1) * (text + gap) + linesAbove(item) * kLine + text / 2};
}

bool ChooseInMainMenu(Desk& desk, MainChoice choice) {
  if (!OpenMenu(desk, 1)) return false;
  const PixelPoint at = MainItem(desk, choice);
  desk.MovePointer(at);
  desk.Pause(200);
  desk.Picture("choice-" + std::to_string(static_cast<int>(choice)));
  desk.Click(at);
  return true;
}

char FlagAt(const Desk& desk, int position) {
  const auto flags = desk.ReadFile(kFlagsFile);
  return flags && flags->size() == 32 ? (*flags)[static_cast<std::size_t>(position) - 1] : '?';
}

PixelPoint FarAway(const Desk& desk) {
  const PixelSize screen = desk.ScreenSize();
  return {screen.width / 4, screen.height * 3 / 4};
}

}  // namespace corvelle::scenario
