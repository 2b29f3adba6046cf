#pragma once

#include <cstdint>
#include <memory>

#include "platform/SystemInfo.h"

namespace corvelle::win32 {

/// Facts about this machine and process.
class Win32SystemInfo final : public SystemInfo {
 public:
  Win32SystemInfo();
  Win32SystemInfo(const Win32SystemInfo&) = delete;
  Win32SystemInfo& operator=(const Win32SystemInfo&) = delete;
  ~Win32SystemInfo() override;

  std::string ApplicationFolder() const override;
  std::string CurrentFolder() const override;
  std::string WindowsFolder() const override;
  std::string SystemFolder() const override;
  std::string TempFolder() const override;
  std::optional<WindowsVersion> Version() const override;
  ProcessorFacts Processor() const override;
  std::optional<std::uint64_t> PhysicalMemory() const override;
  std::vector<std::string> LogicalDrives() const override;
  DriveFacts FactsOfDrive(const std::string& root) const override;
  bool IsDriveAtHand(const std::string& root) const override;
  bool AnotherInstanceRuns() override;
  int CaptionHeight(int dpi) const override;
  int CaptionButtonWidth(int dpi) const override;
  std::string ShortDate() const override;
  std::string LongDate() const override;
  std::string TimeOfDay() const override;
  int ColourDepth() const override;
  bool ShowHelpTopic(WindowId window, const std::string& file, int topic) override;

 private:
  struct Claim;
  std::unique_ptr<Claim> claim_;  // on the session; none before the first question
};

}  // namespace corvelle::win32
