#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "core/Program.h"
#include "e2e/UserNumbers.h"
#include "icons/IconResolution.h"
#include "win32/Win32Platform.h"

namespace corvelle {
namespace {

/// A special folder for each name: the first icons of the system's list.
class FirstIcons final : public SpecialFoldersPort {
 public:
  int SpecialFolderIconIndex(std::string_view) override { return 1; }
  void OpenSpecialFolder(std::string_view, std::string_view) override {}
  bool ShowContextMenu(std::string_view, std::string_view, PixelPoint, WindowId) override {
    return false;
  }
};

struct ObjectCounts {
  DWORD Gdi = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
  DWORD User = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
};

TEST(ObjectCounts, TenThousandIconsOfAllKindsLeaveNothingBehind) {
  constexpr int kRounds = 1250;  // of eight icons
  win32::Win32Platform home;
  Program program(home.Services(), home.Windows());
  program.Paths.AppPath = "C:\\windows\\";
  program.Paths.IconsPath = "C:\\windows\\icons\\";
  program.Icons.WebLinkIcon = "C:\\windows\\notepad.exe";
  FirstIcons folders;
  program.Ports.SpecialFolders = &folders;
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
      if (ResolveAndDraw(program, *canvas, text, {0, 0}, size)) ++drawn;
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
