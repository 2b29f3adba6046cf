#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "Check.h"
#include "Input.h"
#include "base/CodePage.h"
#include "base/Utf8.h"
#include "core/Program.h"
#include "icons/IconsWiring.h"
#include "icons/LibraryFile.h"
#include "sim/World.h"

// A container of any bytes, and lists of any bytes: whatever they say, nothing is written outside
// the folder of icons, and no file is longer than the container.

namespace {

using namespace corvelle;

const Windows1252 kAnsi;
constexpr char kIcons[] = "C:\\Corvelle\\Icons\\";

/// Entries whose headers are whole, so that the unpacking gets past the first one; their names and
/// the bytes between are the input's.
std::string Structured(fuzz::Input& input) {
  std::string container;
  while (!input.AtEnd()) {
    std::string name = input.Take(static_cast<std::size_t>(input.Byte() % 21));
    name.resize(kLibraryName, ' ');
    const int length = input.Byte() % 40;
    const int lie = input.Byte() % 16 == 0 ? input.Byte() : length;
    std::string data = input.Take(static_cast<std::size_t>(length) + 1);
    data.resize(static_cast<std::size_t>(length) + 1, 'x');
    container += name + static_cast<char>(lie) + std::string(3, '\0') + data;
  }
  return container;
}

void CheckUnpacking(const std::string& container) {
  sim::World world;
  world.Files.Put("C:\\Corvelle\\icon.lib", container);
  world.Files.MakeFolders(kIcons);
  Program program{world.Services(), world.Windows()};
  program.Paths.AppPath = "C:\\Corvelle\\";
  program.Paths.IconsPath = kIcons;
  IconLibrary(UnpackPartsOf(program)).ExtractIconLibrary();

  CORVELLE_CHECK(world.Files.Names("C:\\") == std::vector<std::string>{"Corvelle"});
  CORVELLE_CHECK(world.Files.Names("C:\\Corvelle") ==
                 (std::vector<std::string>{"Icons", "icon.lib"}));
  CORVELLE_CHECK(world.Files.Get("C:\\Corvelle\\icon.lib") == container);
  std::size_t together = 0;
  for (const std::string& name : world.Files.Names(kIcons)) {
    CORVELLE_CHECK(IsPlainFileName(name));
    const std::string content = world.Files.Get(kIcons + name).value_or("");
    together += content.size();
    CORVELLE_CHECK(content.size() >= 2);
    CORVELLE_CHECK(container.find(content) != std::string::npos);
  }
  CORVELLE_CHECK(together <= container.size());
}

void CheckLists(const std::string& bytes) {
  const std::vector<std::string> lines = LibraryLines(bytes, kAnsi);
  for (const std::string& line : lines) {
    CORVELLE_CHECK(!line.empty() && IsValidUtf8(line));
    if (line.find('|') == std::string::npos) {
      CORVELLE_CHECK(OtherFilePath(OtherFileRow(line)) == line);
    }
    CORVELLE_CHECK(IsValidUtf8(PlainCase(line)));
    CORVELLE_CHECK(PlainCase(PlainCase(line)) == PlainCase(line));
  }
  CORVELLE_CHECK(LibraryLines(FormatLibraryLines(lines, kAnsi), kAnsi) == lines);
  const DisplayValues values = ParseDisplayRecord(bytes);
  CORVELLE_CHECK(ParseDisplayRecord(FormatDisplayRecord(values)) == values);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  const bool raw = input.Byte() % 4 == 0;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  CheckLists(bytes);
  CheckUnpacking(raw ? bytes : Structured(input));
  return 0;
}
