#include "win32/LibraryPlaces.h"
#include "win32/ShellHost.h"

// corvelle-shell.exe: looks for icons in a process of its own, which extensions of the shell may
// take down without the program.
int main() {
  corvelle::win32::KeepLibrariesToTheSystem();
  corvelle::win32::ServeShellQuestions();
  return 0;
}
