// A program that loads the library of its argument by its bare name, as most programs do.

#include <windows.h>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, wchar_t* name, int) {
  LoadLibraryW(name);
  return 0;
}
