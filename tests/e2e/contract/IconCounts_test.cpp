#include <gtest/gtest.h>
#include <windows.h>

#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "e2e/UserNumbers.h"
#include "forms/LookupLedger.h"
#include "icons/IconForm.h"
#include "icons/IconQuestions.h"
#include "win32/Win32Platform.h"

namespace corvelle {
namespace {

constexpr IconPlaces kPlaces{.AppPath = "C:\\windows\\",
                             .IconsPath = "C:\\windows\\icons\\",
                             .WebLinkIcon = "C:\\windows\\notepad.exe"};

/// Looks for what an icon text means and draws it, with the calls that a thread of the program
/// makes for it. False when nothing was found.
bool Draw(const Platform& services, Canvas& canvas, std::string_view text, int size) {
  const IconForm form = ClassifyIcon(text, kPlaces, IconCaller::Toolbar);
  const IconList list = IconListOf(size);
  if (form.Kind == IconKind::SystemIndex &&
      services.Icons.DrawSystemIcon(canvas, list, form.Index, {0, 0}, IconStyle::Normal)) {
    return true;
  }
  std::vector<Lookup> questions = IconQuestions(form, false, size);
  for (Lookup& blank : BlankIconQuestions(kPlaces.IconsPath, false, size))
    questions.push_back(std::move(blank));
  for (const Lookup& question : questions) {
    const LookupAnswer answer = forms::AnswerLookup(
        {services.Files, services.Links, services.System, services.Icons, services.Folders},
        question);
    const auto* const pixels = std::get_if<IconPixels>(&answer.Value);
    if (pixels == nullptr || pixels->IsEmpty()) continue;
    canvas.DrawPixels(*pixels, {0, 0});
    return true;
  }
  return false;
}

struct ObjectCounts {
  DWORD Gdi = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
  DWORD User = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
};

TEST(ObjectCounts, TenThousandIconsOfAllKindsLeaveNothingBehind) {
  constexpr int kRounds = 1250;  // of eight icons
  win32::Win32Platform home;
  const Platform services = home.Services();
  const auto canvas = home.Windows().CreateCanvas({64, 64});
  const std::string_view texts[] = {
      "",                             // the blank document
      "CSIDL_DRIVES",                 // a special folder
      "1",                            // an icon of the system's list
      "C:\\windows\\notepad.exe|0",   // an icon inside a file
      "C:\\windows\\notepad.exe|99",  // one that it does not have
      "C:\\windows\\notepad.exe",     // a file
      "http",                         // the web link's file
      "C:\\windows\\gone.exe",        // a file that is missing
  };
  const auto drawAll = [&](int size) {
    int drawn = 0;
    for (const std::string_view text : texts) {
      if (Draw(services, *canvas, text, size)) ++drawn;
    }
    return drawn;
  };
  // The first draws load what the system keeps for good.
  for (const int size : {16, 32}) ASSERT_GE(drawAll(size), 5);
  const ObjectCounts before;
  const int numberBefore = e2e::HighestUserNumber();
  for (int round = 0; round < kRounds; ++round) ASSERT_GE(drawAll(round % 2 == 0 ? 16 : 32), 5);
  const ObjectCounts after;
  EXPECT_LE(after.Gdi, before.Gdi + 5);
  EXPECT_LE(after.User, before.User + 5);
  EXPECT_LT(e2e::HighestUserNumber() - numberBefore, 250);
}

}  // namespace
}  // namespace corvelle
