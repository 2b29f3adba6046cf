// A program with one window and nothing else: what the start of any program costs.

#include "e2e/start/Bare.h"

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int) {
  if (corvelle::bare::MakeWindow(instance, L"bare", WS_VISIBLE) == nullptr) return 1;
  corvelle::bare::RunMessages();
  return 0;
}
