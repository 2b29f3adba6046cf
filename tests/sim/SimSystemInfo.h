#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/SystemInfo.h"
#include "sim/CallCosts.h"

namespace corvelle::sim {

/// A machine of which a test sets every fact.
class SimSystemInfo final : public SystemInfo, public Priced {
 public:
  struct HelpCall {
    WindowId Window = kNoWindow;
    std::string File;
    int Topic = 0;

    friend bool operator==(const HelpCall&, const HelpCall&) = default;
  };

  std::string Folder = "C:\\Corvelle";
  std::string WorkFolder = "C:\\";
  bool OtherInstance = false;
  /// Runs each time the program asks whether there is another one, before it is told.
  std::function<void()> OnInstanceAsked;
  std::string Windows = "C:\\Windows";
  std::string System = "C:\\Windows\\System32";
  std::string Temp = "C:\\Users\\User\\Temp\\";
  std::optional<WindowsVersion> WindowsNumber = WindowsVersion{2, 10, 0, 22631};
  ProcessorFacts Cpu{8664, 9};
  std::optional<std::uint64_t> Memory = 17'179'869'184;
  /// By their roots.
  std::map<std::string, DriveFacts> Drives{
      {"C:\\", {3, "System", "NTFS", DriveRoom{512'000'000'000, 128'000'000'000}}}};
  std::set<std::string> DrivesAtRest;
  /// Measures of a caption on the primary screen, whose scale is Dpi.
  int Dpi = 96;
  int Caption = 19;
  int CaptionButton = 18;
  int Depth = 32;
  std::string Date = "3/14/2026";
  std::string DateInFull = "Saturday, March 14, 2026";
  std::string Time = "09:05 AM";
  bool HasHelpViewer = true;
  std::vector<HelpCall> HelpCalls;

  std::string ApplicationFolder() const override { return Folder; }
  std::string CurrentFolder() const override { return WorkFolder; }
  std::string WindowsFolder() const override { return Windows; }
  std::string SystemFolder() const override { return System; }
  std::string TempFolder() const override { return Temp; }
  std::optional<WindowsVersion> Version() const override { return WindowsNumber; }
  ProcessorFacts Processor() const override { return Cpu; }
  std::optional<std::uint64_t> PhysicalMemory() const override { return Memory; }
  std::vector<std::string> LogicalDrives() const override {
    std::vector<std::string> roots;
    for (const auto& [root, facts] : Drives) roots.push_back(root);
    return roots;
  }
  DriveFacts FactsOfDrive(const std::string& root) const override {
    TellCall("FactsOfDrive", root);
    return Look(root);
  }
  bool IsDriveAtHand(const std::string& root) const override {
    TellCall("IsDriveAtHand", root);
    const unsigned type = Look(root).Type;
    return (type == 3 || type == 6) && !DrivesAtRest.contains(root);
  }
  bool AnotherInstanceRuns() override {
    if (OnInstanceAsked) OnInstanceAsked();
    return OtherInstance;
  }
  int CaptionHeight(int dpi) const override { return Caption * dpi / Dpi; }
  int CaptionButtonWidth(int dpi) const override { return CaptionButton * dpi / Dpi; }
  std::string ShortDate() const override { return Date; }
  std::string LongDate() const override { return DateInFull; }
  std::string TimeOfDay() const override { return Time; }
  int ColourDepth() const override { return Depth; }
  bool ShowHelpTopic(WindowId window, const std::string& file, int topic) override {
    HelpCalls.push_back({window, file, topic});
    return HasHelpViewer;
  }

 private:
  [[nodiscard]] DriveFacts Look(const std::string& root) const {
    const auto found = Drives.find(root);
    return found != Drives.end() ? found->second : DriveFacts{.Type = 1};
  }
};

}  // namespace corvelle::sim
