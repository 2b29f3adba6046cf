#include "core/Main.h"
#include "program/Parts.h"
#include "win32/CrashCatcher.h"
#include "win32/CrashWriter.h"
#include "win32/LibraryPlaces.h"
#include "win32/Win32Platform.h"

// All parts of the program are made here and die here, after their windows.
int main() {
  corvelle::win32::KeepLibrariesToTheSystem();
  if (corvelle::win32::WroteCrashReport()) return 0;
  corvelle::win32::CatchCrashes();
  corvelle::win32::Win32Platform windows;
  corvelle::Parts parts(windows.Services(), windows.Windows());
  if (corvelle::Main(parts.TheProgram)) windows.Windows().Run();
  return 0;
}
