#pragma once

#include <memory>
#include <utility>

#include "forms/WindowSystem.h"
#include "win32/DrawingTools.h"
#include "win32/PostBox.h"
#include "win32/Win32ControlMaker.h"
#include "win32/Win32Timers.h"
#include "win32/Win32ToolTips.h"

namespace corvelle::win32 {

/// The windows of the program on the desktop of Windows.
class Win32WindowSystem final : public forms::WindowSystem {
 public:
  Win32WindowSystem() = default;
  Win32WindowSystem(const Win32WindowSystem&) = delete;
  Win32WindowSystem& operator=(const Win32WindowSystem&) = delete;
  ~Win32WindowSystem() override;

  std::unique_ptr<forms::WindowPeer> CreatePeer(const forms::PeerSpec& wanted,
                                                forms::WindowEvents& events) override;
  forms::FrameMargins MarginsOf(forms::FrameStyle frame, bool menuBar, int dpi) const override;
  forms::ControlMaker& Controls() override { return controls_; }
  std::unique_ptr<Canvas> CreateCanvas(PixelSize size) override;
  forms::WindowPicture PictureOfWindow(WindowId window) override;
  std::unique_ptr<Canvas> PictureOfScreen(const PixelRect& part) override;
  PixelSize MeasureText(std::string_view text, const ScaledFont& font) override;
  Rgb SystemColor(int index) const override;
  int DpiAt(const PixelRect& bounds) const override;
  std::vector<PixelRect> Monitors() const override;
  PixelSize ScreenSize() const override;
  int ScreenBits() const override;
  void SetMousePointer(forms::MousePointer shape) override;
  forms::MousePointer CurrentMousePointer() const override { return pointer_; }
  void SetMouseIcon(Picture picture, PixelPoint hotSpot) override;
  void DoEvents() override;
  void Post(std::function<void()> work) override { posts_->Post(std::move(work)); }
  void PaintWaiting() override;
  void Run() override;
  void Quit() override;
  forms::TimerId StartTimer(int milliseconds, std::function<void()> tick) override;
  void StopTimer(forms::TimerId timer) override { timers_.Stop(timer); }
  std::int64_t Now() const override;
  int ShowMessage(WindowId owner, std::string_view text, std::string_view title,
                  unsigned flags) override;
  forms::FileChoice AskFiles(WindowId owner, const forms::FileQuestion& question) override;
  forms::FolderChoice AskFolder(WindowId owner, const forms::FolderQuestion& question) override;
  int ShowPopup(WindowId owner, const std::vector<forms::PopupItem>& items, PixelPoint at,
                unsigned flags) override;

  /// Shows the pointer's shape now.
  void ShowPointer() const;
  /// A window that is never shown and owns the forms without a button in the task bar: what has an
  /// owner gets none, in whichever task bar. Null when the system refuses it.
  HWND ToolOwner();
  [[nodiscard]] Win32ToolTips& ToolTips() noexcept { return toolTips_; }
  const std::shared_ptr<DrawingTools>& Tools() const noexcept { return tools_; }
  /// For threads that may come back after the window system has ended.
  const std::shared_ptr<PostBox>& Posts() const noexcept { return posts_; }

 private:
  std::shared_ptr<DrawingTools> tools_ = std::make_shared<DrawingTools>();
  UniqueWindow toolOwner_;
  Win32Timers timers_;
  std::shared_ptr<PostBox> posts_ = std::make_shared<PostBox>();
  Win32ControlMaker controls_{*this};
  Win32ToolTips toolTips_;
  forms::MousePointer pointer_ = forms::MousePointer::Default;
  UniqueCursor mouseIcon_;
  bool quit_ = false;
};

}  // namespace corvelle::win32
