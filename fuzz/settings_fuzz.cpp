#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>

#include "Check.h"
#include "Input.h"
#include "base/CodePage.h"
#include "base/Utf8.h"
#include "core/OptionFlags.h"
#include "core/SettingsFiles.h"
#include "sim/SimFiles.h"

// The small files of the program's folder with any bytes: each is read as something that the
// program can work with, and what is saved reads the same again.

namespace {

using corvelle::BrowserChoice;
using corvelle::OptionFlags;

constexpr char kApp[] = "C:\\";

void CheckFlags(const std::string& bytes) {
  const OptionFlags flags = OptionFlags::Clean(bytes);
  const std::string text = flags.Text();
  CORVELLE_CHECK(text.size() == 32);
  CORVELLE_CHECK(text.find_first_not_of("01") == std::string::npos);
  CORVELLE_CHECK(OptionFlags::Clean(text) == flags);
  corvelle::EdgePlacement placement;
  corvelle::ReadEdgeFlags(flags, placement);
  OptionFlags saved = flags;
  corvelle::SaveEdgeFlags(saved, placement.AppBarRequested, placement.ToolbarEdge);
  CORVELLE_CHECK(saved == flags);
}

void CheckBrowser(const std::string& bytes) {
  const corvelle::Windows1252 ansi;
  const BrowserChoice choice = corvelle::ParseBrowserChoice(bytes, ansi);
  CORVELLE_CHECK(corvelle::IsValidUtf8(choice.BrowserCommand));
  CORVELLE_CHECK(corvelle::IsValidUtf8(choice.BrowserApplication));
}

// One disk for all inputs: each writes its own files over those before.
corvelle::sim::SimFiles& Disk() {
  static corvelle::sim::SimFiles disk;
  return disk;
}

void CheckFiles(const std::string& bytes, bool ownIcon) {
  const corvelle::Windows1252 ansi;
  corvelle::sim::SimFiles& disk = Disk();
  disk.ClearLog();
  for (const char* name : {"toolbarp.dat", "httpicon.ini", "openurl.ini"}) {
    disk.Put(std::string(kApp) + name, bytes);
  }
  const float left = corvelle::LoadToolbarPosition(disk, kApp);
  CORVELLE_CHECK(std::isfinite(left));
  CORVELLE_CHECK(corvelle::SaveToolbarPosition(disk, kApp, left));
  CORVELLE_CHECK(corvelle::LoadToolbarPosition(disk, kApp) == left);

  OptionFlags flags;
  flags.Set(corvelle::Option::OwnWebLinkIcon, ownIcon);
  const std::string icon = corvelle::LoadWebLinkIcon(disk, ansi, kApp, flags);
  CORVELLE_CHECK(!icon.empty());
  CORVELLE_CHECK(corvelle::IsValidUtf8(icon));
  CORVELLE_CHECK(corvelle::SaveWebLinkIcon(disk, ansi, kApp, icon));
  CORVELLE_CHECK(corvelle::LoadWebLinkIcon(disk, ansi, kApp, flags) == icon || !ownIcon);

  const BrowserChoice choice = corvelle::LoadBrowserChoice(disk, ansi, kApp);
  CORVELLE_CHECK(corvelle::SaveBrowserChoice(disk, ansi, kApp, choice));
  // A line is known by a word anywhere in it. No service that the program writes has it in its
  // name.
  CORVELLE_CHECK(corvelle::LoadBrowserChoice(disk, ansi, kApp) == choice ||
                 choice.BrowserApplication.find("command=") != std::string::npos);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  corvelle::fuzz::Input input(data, size);
  const bool ownIcon = input.Byte() % 2 != 0;
  const std::string bytes = input.Rest();
  CheckFlags(bytes);
  CheckBrowser(bytes);
  CheckFiles(bytes, ownIcon);
  return 0;
}
