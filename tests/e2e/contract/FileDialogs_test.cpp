#include <gtest/gtest.h>
#include <windows.h>

#include <atomic>
#include <functional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "RealHome.h"
#include "TempFolder.h"
#include "forms/Form.h"
#include "win32/Wide.h"
#include "win32/Win32Files.h"

// The system's dialogs for files and folders, and a hand that answers them as another thread: the
// one that asks waits inside them.

namespace corvelle {
namespace {

BOOL CALLBACK LookForDialog(HWND window, LPARAM parameter) {
  wchar_t name[16] = {};
  GetClassNameW(window, name, 16);
  if (IsWindowVisible(window) == FALSE || std::wstring(name) != L"#32770") return TRUE;
  *reinterpret_cast<HWND*>(parameter) = window;
  return FALSE;
}

BOOL CALLBACK LookForEdit(HWND window, LPARAM parameter) {
  wchar_t name[16] = {};
  GetClassNameW(window, name, 16);
  if (IsWindowVisible(window) == FALSE || std::wstring(name) != L"Edit") return TRUE;
  *reinterpret_cast<HWND*>(parameter) = window;
  return FALSE;
}

HWND DialogOf(DWORD thread) {
  HWND found = nullptr;
  EnumThreadWindows(thread, &LookForDialog, reinterpret_cast<LPARAM>(&found));
  return found;
}

/// Waits for the next dialog of the thread that makes it, and deals with it. What does not go then
/// is closed, so that the one who asks comes back.
class DialogHand {
 public:
  explicit DialogHand(std::function<void(HWND)> act)
      : asking_(GetCurrentThreadId()), thread_([this, act = std::move(act)] { Run(act); }) {}
  DialogHand(const DialogHand&) = delete;
  DialogHand& operator=(const DialogHand&) = delete;
  ~DialogHand() {
    thread_.join();
    EXPECT_TRUE(acted_) << "no dialog came";
    EXPECT_FALSE(stayed_) << "the dialog stayed";
  }

 private:
  void Run(const std::function<void(HWND)>& act) {
    HWND dialog = nullptr;
    for (int i = 0; i < 1000 && dialog == nullptr; ++i, Sleep(10)) dialog = DialogOf(asking_);
    if (dialog == nullptr) return;
    Sleep(300);  // it fills its lists
    acted_ = true;
    act(dialog);
    for (int i = 0; i < 500 && IsWindow(dialog) != FALSE; ++i) Sleep(10);
    while (HWND left = DialogOf(asking_)) {
      stayed_ = true;
      PostMessageW(left, WM_COMMAND, IDCANCEL, 0);
      Sleep(100);
    }
  }

  DWORD asking_;
  std::atomic<bool> acted_ = false;
  std::atomic<bool> stayed_ = false;
  std::thread thread_;
};

void PressButton(HWND dialog, int button) {
  PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
}

void TypeName(HWND dialog, const std::wstring& text) {
  HWND edit = nullptr;
  EnumChildWindows(dialog, &LookForEdit, reinterpret_cast<LPARAM>(&edit));
  ASSERT_NE(edit, nullptr);
  DWORD_PTR ignored = 0;
  SendMessageTimeoutW(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()), SMTO_NORMAL,
                      5000, &ignored);
}

std::string CaptionOf(HWND window) {
  wchar_t text[256] = {};
  DWORD_PTR length = 0;
  SendMessageTimeoutW(window, WM_GETTEXT, 256, reinterpret_cast<LPARAM>(text), SMTO_NORMAL, 5000,
                      &length);
  return win32::Narrow(text);
}

class AskingForm final : public forms::Form {
 public:
  explicit AskingForm(forms::WindowSystem& windows)
      : Form(windows, "CorvelleAsking", forms::BorderStyle::Fixed) {
    Move(1500, 1500, 4500, 3000);
  }
};

class FileDialogs : public testing::Test {
 protected:
  void SetUp() override {
    win32::Win32Files files;
    for (const char* name : {"one file.txt", "two.txt",
                             "\xC3\x9C"
                             "ber.txt"})
      ASSERT_TRUE(files.Write(folder_.Path() + name, "x"));
    form_.Show();
    home_.Wait(100);
  }
  void TearDown() override { form_.Unload(); }

  [[nodiscard]] forms::FileQuestion Question() const {
    return {.Title = "Select one file.",
            .StartFolder = folder_.Path(),
            .Kinds = {{"Texts", "*.txt"}, {"All Files (*.*)", "*.*"}}};
  }

  RealHome home_;
  TempFolder folder_;
  AskingForm form_{home_.Windows()};
};

TEST_F(FileDialogs, AFileIsChosenUnderTheTitleAndTheOwnerWaits) {
  std::string title;
  bool ownerTakesInput = true;
  std::vector<std::string> paths;
  {
    const DialogHand hand([&](HWND dialog) {
      title = CaptionOf(dialog);
      ownerTakesInput = IsWindowEnabled(reinterpret_cast<HWND>(form_.hWnd())) != FALSE;
      TypeName(dialog, L"one file.txt");
      PressButton(dialog, IDOK);
    });
    paths = home_.Windows().AskFiles(form_.hWnd(), Question()).Paths;
  }
  EXPECT_EQ(paths, std::vector<std::string>{folder_.Path() + "one file.txt"});
  EXPECT_EQ(title, "Select one file.");
  EXPECT_FALSE(ownerTakesInput);
  EXPECT_TRUE(form_.Enabled());
  EXPECT_NE(IsWindowEnabled(reinterpret_cast<HWND>(form_.hWnd())), FALSE);
}

TEST_F(FileDialogs, SeveralFilesAreChosenEachWithItsPath) {
  forms::FileQuestion question = Question();
  question.Several = true;
  const DialogHand hand([](HWND dialog) {
    TypeName(dialog, L"\"one file.txt\" \"two.txt\" \"\u00DCber.txt\"");
    PressButton(dialog, IDOK);
  });
  const forms::FileChoice choice = home_.Windows().AskFiles(form_.hWnd(), question);
  EXPECT_FALSE(choice.Failed);
  EXPECT_EQ(choice.Paths,
            (std::vector<std::string>{folder_.Path() + "one file.txt", folder_.Path() + "two.txt",
                                      folder_.Path() + "\xC3\x9C"
                                                       "ber.txt"}));
}

TEST_F(FileDialogs, ACancelledOneGivesNothingAlsoFromAFolderThatIsGone) {
  for (const std::string& start :
       std::vector<std::string>{folder_.Path(), folder_.Path() + "gone\\", {}}) {
    forms::FileQuestion question = Question();
    question.StartFolder = start;
    const DialogHand hand([](HWND dialog) { PressButton(dialog, IDCANCEL); });
    const forms::FileChoice choice = home_.Windows().AskFiles(form_.hWnd(), question);
    EXPECT_TRUE(choice.Paths.empty()) << start;
    EXPECT_FALSE(choice.Failed) << start;
  }
}

TEST_F(FileDialogs, AFolderIsAskedForFromItsStartFolder) {
  const std::string start = folder_.Path().substr(0, folder_.Path().size() - 1);
  const DialogHand hand([](HWND dialog) {
    Sleep(500);  // it opens the way to the start folder
    PressButton(dialog, IDOK);
  });
  const forms::FolderChoice choice =
      home_.Windows().AskFolder(form_.hWnd(), {.Text = "Select a folder.", .StartFolder = start});
  EXPECT_TRUE(choice.Chosen);
  EXPECT_EQ(choice.Path, start);
  // Wine shows the whole path of a folder that was chosen by its path.
  EXPECT_TRUE(choice.Name.ends_with(start.substr(start.rfind('\\') + 1))) << choice.Name;
  EXPECT_FALSE(choice.Item.Bytes.empty());
}

TEST_F(FileDialogs, ACancelledOneGivesNoFolder) {
  const DialogHand hand([](HWND dialog) { PressButton(dialog, IDCANCEL); });
  const forms::FolderChoice choice =
      home_.Windows().AskFolder(form_.hWnd(), {.Text = "Select a folder."});
  EXPECT_FALSE(choice.Chosen);
  EXPECT_EQ(choice.Path, "");
}

}  // namespace
}  // namespace corvelle
