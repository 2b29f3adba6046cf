#include <gtest/gtest.h>

#include "platform/AppBarsContract.h"
#include "platform/ClipboardContract.h"
#include "platform/DesktopContract.h"
#include "platform/ShellContract.h"
#include "platform/SystemContract.h"
#include "sim/World.h"

namespace corvelle {
namespace {

class SimulatedDesktop final : public ContractDesktop {
 public:
  DesktopWindows& Windows() override { return world_.Desktop; }
  WindowId Other() override { return other_; }
  void CloseOther() override { world_.Desktop.CloseOther(other_); }
  void MinimizeOther() override { world_.Desktop.MinimizeOther(other_); }
  WindowId OpenOwned() override {
    return world_.Desktop.AddOtherWindow({.Title = "Contract owned", .HasOwner = true});
  }
  void Settle() override { world_.Desktop.Advance(100); }

 private:
  sim::World world_;
  WindowId other_ =
      world_.Desktop.AddOtherWindow({.Title = "Contract other", .Bounds = {100, 100, 300, 250}});
};

class SimulatedShell final : public ContractShell {
 public:
  SimulatedShell() {
    world_.Files.Put("C:\\Tools\\run.exe", "");
    world_.Files.Put("C:\\Contract\\Contract.qzx", "text");
    world_.Icons.SetIconCount("C:\\Tools\\run.exe", 2);
    world_.Icons.AddResource("C:\\Tools\\run.exe", 16);
  }
  ShellExec& Exec() override { return world_.Shell; }
  ShellIcons& Icons() override { return world_.Icons; }
  Registry& Keys() override { return world_.Keys; }
  SystemInfo& System() override { return world_.System; }
  std::unique_ptr<Canvas> MakeCanvas(PixelSize size) override {
    return world_.Desktop.CreateCanvas(size);
  }
  std::string Program() override { return "C:\\Tools\\run.exe"; }
  std::string UnknownDocument() override { return "C:\\Contract\\Contract.qzx"; }
  std::string Folder() override { return "C:\\Contract\\"; }
  std::string IconFile() override { return "C:\\Tools\\run.exe"; }
  int IconCount() override { return 2; }
  std::string ResourceFile() override { return "C:\\Tools\\run.exe"; }
  int IconResource() override { return 16; }
  void SetValue(const std::string& name, const RegistryValue& value) override {
    world_.Keys.Set(RegistryRoot::CurrentUser, "Software\\CorvelleContract", name, value);
  }

 private:
  sim::World world_;
};

class SimulatedBars final : public ContractBars {
 public:
  SimulatedBars() {
    world_.Desktop.SetAnswer(
        second_,
        [this](std::uint32_t message, std::uintptr_t what, std::intptr_t) -> std::intptr_t {
          if (message == 1174 && what == 1) ++news_;
          return 0;
        });
  }
  AppBars& Bars() override { return world_.Bars; }
  PixelSize Screen() override { return {1024, 768}; }
  WindowId First() override { return first_; }
  WindowId Second() override { return second_; }
  int NewsOfSecond() override { return news_; }
  void Settle() override { world_.Desktop.Advance(100); }

 private:
  sim::World world_;
  WindowId first_ = world_.Desktop.AddOtherWindow({.Title = "First bar"});
  WindowId second_ = world_.Desktop.AddOtherWindow({.Title = "Second bar"});
  int news_ = 0;
};

class SimulatedMachine final : public ContractMachine {
 public:
  SimulatedMachine() { system_.Drives[EmptyDrive()] = {.Type = 5}; }
  SystemInfo& System() override { return system_; }
  std::string ReadyDrive() override { return "C:\\"; }
  std::string NoDrive() override { return "Q:\\"; }
  std::string EmptyDrive() override { return "D:\\"; }

 private:
  sim::SimSystemInfo system_;
};

class SimulatedClipboard final : public ContractClipboard {
 public:
  Clipboard& Copies() override { return clipboard_; }
  WindowId Window() override { return 1; }
  std::string Pasted() override { return clipboard_.Text; }
  void Hold() override { clipboard_.HeldByAnother = true; }
  void LetGo() override { clipboard_.HeldByAnother = false; }

 private:
  sim::SimClipboard clipboard_;
};

template <class Base, class Made>
std::unique_ptr<Base> Make() {
  return std::make_unique<Made>();
}

INSTANTIATE_TEST_SUITE_P(Simulated, DesktopContract,
                         testing::Values(&Make<ContractDesktop, SimulatedDesktop>));
INSTANTIATE_TEST_SUITE_P(Simulated, AppBarsContract,
                         testing::Values(&Make<ContractBars, SimulatedBars>));
INSTANTIATE_TEST_SUITE_P(Simulated, ShellContract,
                         testing::Values(&Make<ContractShell, SimulatedShell>));
INSTANTIATE_TEST_SUITE_P(Simulated, ClipboardContract,
                         testing::Values(&Make<ContractClipboard, SimulatedClipboard>));
INSTANTIATE_TEST_SUITE_P(Simulated, SystemContract,
                         testing::Values(&Make<ContractMachine, SimulatedMachine>));

}  // namespace
}  // namespace corvelle
