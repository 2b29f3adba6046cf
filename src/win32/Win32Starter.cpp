#include "win32/Win32Starter.h"

#include <ole2.h>

#include <memory>
#include <system_error>
#include <thread>
#include <utility>

#include "win32/ErrorMode.h"
#include "win32/PostBox.h"
#include "win32/Win32CodePage.h"
#include "win32/Win32Dde.h"
#include "win32/Win32FileAssociations.h"
#include "win32/Win32Files.h"
#include "win32/Win32Registry.h"
#include "win32/Win32ShellExec.h"
#include "win32/Win32ShellFolders.h"
#include "win32/Win32ShellIcons.h"
#include "win32/Win32ShellLinks.h"
#include "win32/Win32WindowSystem.h"

namespace corvelle::win32 {

namespace {

/// Runs the work with services and an apartment of this thread's own.
void RunApart(const Starter::Work& work) {
  // Unlike threads that only look, this one lets the system ask: the user has chosen the entry.
  const bool ready =
      SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE));
  SuppressCriticalErrorBoxes();
  {
    Win32ShellExec shell(ShellExecThread::EndsSoon);
    Win32Files files;
    Win32ShellLinks links;
    Win32Dde dde;
    Win32FileAssociations associations;
    Win32Registry keys;
    Win32ShellFolders folders(ShellExecThread::EndsSoon);
    Win32ShellIcons icons;
    const Win32CodePage ansi;
    work({shell, files, links, dde, associations, keys, folders, icons, ansi});
  }
  if (ready) CoUninitialize();
}

}  // namespace

struct Win32Starter::Home {
  Win32WindowSystem& Windows;
  std::shared_ptr<PostBox> Posts;
};

Win32Starter::Win32Starter(Win32WindowSystem& windows)
    : home_(std::make_shared<Home>(Home{windows, windows.Posts()})) {}

void Win32Starter::Start(Work work, std::function<void()> done) {
  // The press that leads here gave this program the right to the foreground; what is started may
  // have it, however long that takes.
  AllowSetForegroundWindow(ASFW_ANY);
  const auto finished = std::make_shared<std::function<void()>>(std::move(done));
  const auto wanted = std::make_shared<const Work>(std::move(work));
  try {
    std::thread([home = home_, wanted, finished]() mutable {
      RunApart(*wanted);
      // Posted work may not wait, and what is to be done may show a message: a timer is an event of
      // its own. A window system that has ended takes no posts.
      home->Posts->Post([home, finished] {
        const auto timer = std::make_shared<forms::TimerId>();
        *timer = home->Windows.StartTimer(1, [home, finished, timer] {
          const auto last = finished;  // the tick goes with its timer
          home->Windows.StopTimer(*timer);
          (*last)();
        });
      });
    }).detach();
  } catch (const std::system_error&) {
    RunApart(*wanted);
    (*finished)();
  }
}

}  // namespace corvelle::win32
