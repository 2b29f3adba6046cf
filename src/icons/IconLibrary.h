#pragma once

#include <string_view>

#include "core/WindowPorts.h"

namespace corvelle {

class CodePage;
class FileSystem;
class MessageBoxes;
class StartupProgress;
struct ProgramPaths;
namespace forms {
class EventPump;
}

// The unpacking of the icons that come with the program into its folder of icons. Failures are
// quiet, save that of the missing container: what cannot be written keeps its old content.

/// Name of the container, which comes with the program.
inline constexpr std::string_view kLibraryFile = "icon.lib";

/// What the unpacking works with. All of it outlives it.
struct UnpackParts {
  FileSystem& Files;
  const CodePage& Ansi;
  const ProgramPaths& Paths;
  const WindowPorts& Ports;
  MessageBoxes& Messages;
  const StartupProgress& Progress;
  forms::EventPump& Events;
};

/// Unpacks the container of `source` into the folder `target`. Files of the same name are replaced,
/// each in one step, and others stay; the disk is waited for once, at the end. An entry whose name
/// would leave the folder is passed over; one that is longer than the container ends the unpacking.
/// Lets events run and counts every fifth entry in the startup window. Without a container the user
/// is told.
void ExtractIconLibrary(const UnpackParts& with, std::string_view target, std::string_view source);

/// The port of it: from where the program lies into its folder of icons.
class IconLibrary final : public IconLibraryPort {
 public:
  explicit IconLibrary(const UnpackParts& with) : with_(with) {}
  void ExtractIconLibrary() override;

 private:
  UnpackParts with_;
};

}  // namespace corvelle
