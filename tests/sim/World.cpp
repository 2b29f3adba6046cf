#include "sim/World.h"

#include <cstddef>
#include <fstream>
#include <initializer_list>

#include "sim/Complain.h"

namespace corvelle::sim {

World::World(const WorldOptions& options)
    : Links(Files),
      Shell(Files, Links),
      Icons(Files),
      FileOps(Files),
      Associations(Files),
      Folders(Files),
      Desktop({.TwipsPerPixel = options.TwipsPerPixel,
               .Screen = options.Screen,
               .OtherMonitors = options.OtherMonitors}) {
  System.Dpi = Desktop.PrimaryDpi();
  System.Caption = options.CaptionHeight;
  System.CaptionButton = options.CaptionButtonWidth;
  for (Priced* const service :
       std::initializer_list<Priced*>{&Files, &Icons, &Links, &Shell, &FileOps, &Dde, &Associations,
                                      &System, &Folders, &SlowAnswers, &Starts}) {
    service->ChargeTo(Costs);
  }
  Desktop.WhenTurnBegins([this] { Costs.BeginTurn(); });
  // The search for files of the system.
  Keys.Set(RegistryRoot::ClassesRoot, "search-ms", "URL Protocol", "");
}

World::~World() {
  if (Desktop.AnswersLeft() > 0) Complain("a message box that was expected did not come");
  if (Desktop.ChoicesLeft() > 0) Complain("a popup menu that was expected did not come");
}

Platform World::Services(ShellExec* shell, ShellIcons* icons, FileSystem* files) {
  SlowAnswers.Use({files != nullptr ? *files : Files, Links, System,
                   icons != nullptr ? *icons : Icons, Folders});
  Starts.Use({shell != nullptr ? *shell : Shell, files != nullptr ? *files : Files, Links, Dde,
              Associations, Keys, Folders, icons != nullptr ? *icons : Icons, Ansi});
  return {.Files = files != nullptr ? *files : Files,
          .Ansi = Ansi,
          .Keys = Keys,
          .Shell = shell != nullptr ? *shell : Shell,
          .Icons = icons != nullptr ? *icons : Icons,
          .Links = Links,
          .FileOps = FileOps,
          .Pointer = Desktop,
          .Keyboard = Keyboard,
          .Desktop = Desktop,
          .Dde = Dde,
          .Associations = Associations,
          .System = System,
          .Folders = Folders,
          .Bars = Bars,
          .Tray = Tray,
          .SlowAnswers = SlowAnswers,
          .Starts = Starts,
          .Copies = Copies,
          .Crashes = Crashes};
}

bool World::SavePicture(const std::string& hostPath) const {
  const SimCanvas screen = Desktop.Picture();
  const PixelSize size = screen.Size();
  std::string bytes =
      "P6\n" + std::to_string(size.width) + " " + std::to_string(size.height) + "\n255\n";
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      const Rgb colour = screen.PixelAt({x, y});
      for (const unsigned shift : {0U, 8U, 16U})
        bytes += static_cast<char>((colour >> shift) & 0xFF);
    }
  }
  std::ofstream file(hostPath, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return file.good();
}

}  // namespace corvelle::sim
