#pragma once

#include <windows.h>

#include <atomic>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "e2e/dragsource/DragSource.h"
#include "scenario/Desk.h"

namespace corvelle::e2e {

/// The folders of a session, which its runner lays out before each test: the program with its
/// icons, the witness, and the place where pictures are asked for.
inline constexpr wchar_t kAppFolder[] = L"C:\\Corvelle\\";
inline constexpr wchar_t kWitnessFolder[] = L"C:\\witness\\";
inline constexpr wchar_t kDocumentFolder[] = L"C:\\documents\\";
inline constexpr wchar_t kPictureFolder[] = L"C:\\e2e\\pictures\\";

/// UTF-8 to UTF-16 and back.
[[nodiscard]] std::wstring Wide(std::string_view text);
[[nodiscard]] std::string Narrow(std::wstring_view text);

/// The real desktop: corvelle.exe as a process of its own, reached as any other program or a hand
/// at the mouse would reach it.
class WineDesk final : public scenario::Desk {
 public:
  WineDesk();
  ~WineDesk() override;
  WineDesk(const WineDesk&) = delete;
  WineDesk& operator=(const WineDesk&) = delete;

  void StartCorvelle() override;
  [[nodiscard]] int RunningCopies() const override;
  /// Ends all copies from outside, at this moment, and waits until they are gone.
  void Kill();
  /// The exit codes of the copies that have ended, in the order in which they were started.
  [[nodiscard]] std::vector<DWORD> ExitCodes() const;

  void MovePointer(PixelPoint at) override;
  void Press(scenario::Button button) override;
  void Release(scenario::Button button) override;
  void DoubleClick(PixelPoint at) override;
  [[nodiscard]] PixelPoint Pointer() const override;
  void Key(int virtualKey) override;
  void HoldKey(int virtualKey) override;
  void LetKeyGo(int virtualKey) override;
  void Type(char letter) override;

  bool Wait(const std::function<bool()>& until, int milliseconds = 8000) override;
  void Pause(int milliseconds) override;

  [[nodiscard]] PixelSize ScreenSize() const override;
  [[nodiscard]] int TwipsPerPixel() const override;
  [[nodiscard]] std::optional<scenario::SeenWindow> Window(
      std::string_view className) const override;
  [[nodiscard]] std::string ForegroundClass() const override;
  void BringToFront(std::string_view className) override;
  void OpenOtherWindow(PixelRect bounds) override;
  PixelRect OpenOtherBar(Edge at, int thickness) override;
  void CloseOtherBar() override;
  void OpenDragSource(PixelRect bounds, const std::vector<std::string>& files,
                      std::string_view text, std::string_view title) override;
  /// How the last drag from that source ended, for the notes of a test that failed.
  [[nodiscard]] std::string DragEnd() const;
  std::intptr_t Send(std::string_view className, std::uint32_t message, std::uintptr_t wParam,
                     std::intptr_t lParam) override;
  void Post(std::string_view className, std::uint32_t message, std::uintptr_t wParam,
            std::intptr_t lParam) override;

  bool EndSession() override;

  void AnswerNext(int button) override { answers_.push_back(button); }
  [[nodiscard]] std::vector<scenario::SeenMessage> Messages() const override { return messages_; }

  void ChooseFromPopup(std::string_view caption) override { choices_.emplace_back(caption); }
  [[nodiscard]] bool PopupIsUp() const override;
  void ClickTrayIcon() override;
  [[nodiscard]] bool HasTaskBarButton() const override;
  void ClickTaskBarButton() override;
  void AnswerShellMenu(char letter) override { menuAnswers_.push_back(letter); }
  [[nodiscard]] int ShellMenus() const override { return static_cast<int>(menusAnswered_); }

  [[nodiscard]] std::optional<std::string> ReadFile(std::string_view name) const override;
  void WriteFile(std::string_view name, std::string_view bytes) override;
  void RemoveFile(std::string_view name) override;
  [[nodiscard]] bool FolderExists(std::string_view name) const override;
  [[nodiscard]] std::vector<std::string> Files(std::string_view folder) const override;

  [[nodiscard]] std::string WitnessProgram() const override;
  [[nodiscard]] std::string WitnessDocument() const override;
  std::string MakeWitnessLink(std::string_view arguments, std::string_view folder) override;
  std::string MakeDamagedLink() override;
  void MakeProgramsEntry(std::string_view title, std::string_view arguments) override;
  [[nodiscard]] std::optional<std::string> StartupLinkTarget() const override;
  [[nodiscard]] std::vector<scenario::Launch> Launched() const override;

  void Picture(std::string_view name) override;

  /// How many different colours a part of a window shows; the part in pixels of its inside. What is
  /// covered by other windows cannot be read.
  [[nodiscard]] int ColoursIn(std::string_view className, PixelRect part) const;

  /// What the running copies have taken of the processor so far, in milliseconds.
  [[nodiscard]] int ProcessorTime() const;

  /// The handle of a window by its class; null when there is none.
  [[nodiscard]] HWND Handle(std::string_view className) const;

 private:
  void SendMouse(DWORD flags);
  void HoldPointer();
  void AnswerMessages();
  void ChooseInPopups();
  void AnswerMenus();

  std::vector<HANDLE> copies_;
  PixelPoint pointer_;  // where the hand put it
  PixelPoint before_;   // and where it was until then
  bool buttonDown_ = false;
  std::vector<int> answers_;
  std::size_t answered_ = 0;
  std::vector<char> menuAnswers_;
  std::size_t menusAnswered_ = 0;
  std::vector<scenario::SeenMessage> messages_;
  std::vector<std::string> choices_;
  std::size_t chosen_ = 0;
  std::thread other_;
  HWND bar_ = nullptr;
  std::atomic<HWND> otherWindow_{nullptr};
  std::unique_ptr<dragsource::DragSource> source_;
};

}  // namespace corvelle::e2e
