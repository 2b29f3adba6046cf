#include <gtest/gtest.h>
#include <windows.h>

#include <chrono>
#include <map>
#include <memory>
#include <optional>
#include <thread>

#include "Com.h"
#include "RealHome.h"
#include "TempFolder.h"
#include "platform/LookupsContract.h"
#include "win32/UniqueHandle.h"
#include "win32/Win32Files.h"
#include "win32/Win32Lookups.h"
#include "win32/Win32ShellLinks.h"

namespace corvelle {
namespace {

using win32::Wide;

class RealLookups final : public ContractLookups {
 public:
  Lookups& Questions() override { return *lookups_; }
  forms::WindowSystem& Windows() override { return *windows_; }
  std::string IconFile() override { return "C:\\windows\\notepad.exe"; }
  FileSystem& Files() override { return files_; }
  std::string Folder() override { return temp_.Path(); }
  void PutLink(const std::string& file, const std::string& target) override {
    const auto link = links_.CreateLinkObject();
    ASSERT_NE(link, nullptr);
    EXPECT_TRUE(link->SetPath(target) && link->Save(file));
  }
  // A pipe that nobody writes: whoever reads the link waits.
  std::string HangingLink(const std::string& lane) override {
    const std::string name =
        "\\\\.\\pipe\\corvelle-" + std::to_string(GetCurrentProcessId()) + "-" + lane + ".lnk";
    pipes_[lane].Reset(CreateNamedPipeW(Wide(name).c_str(), PIPE_ACCESS_OUTBOUND,
                                        PIPE_TYPE_BYTE | PIPE_WAIT, 1, 4096, 4096, 0, nullptr));
    EXPECT_TRUE(pipes_[lane]);
    return name;
  }
  void LetGo(const std::string& lane) override { pipes_[lane].Reset(); }
  bool RunUntil(const std::function<bool()>& done) override {
    const std::int64_t end = windows_->Now() + 8000;
    while (!done() && windows_->Now() < end) corvelle::RunEvents(*windows_, 5);
    return done();
  }
  void RunEvents() override { windows_->DoEvents(); }
  int End() override {
    const auto start = std::chrono::steady_clock::now();
    lookups_.reset();
    const auto took = std::chrono::steady_clock::now() - start;
    return static_cast<int>(std::chrono::duration_cast<std::chrono::milliseconds>(took).count());
  }

 private:
  Com com_;
  TempFolder temp_;
  win32::Win32Files files_;
  win32::Win32ShellLinks links_;
  std::map<std::string, win32::UniqueFile> pipes_;
  std::unique_ptr<win32::Win32WindowSystem> windows_ = std::make_unique<win32::Win32WindowSystem>();
  std::optional<win32::Win32Lookups> lookups_{std::in_place, windows_->Posts()};
};

std::unique_ptr<ContractLookups> MakeRealLookups() { return std::make_unique<RealLookups>(); }

INSTANTIATE_TEST_SUITE_P(Windows, LookupsContract, testing::Values(MakeRealLookups));

struct PostsOfThreads : testing::Test {
  std::unique_ptr<win32::Win32WindowSystem> Windows = std::make_unique<win32::Win32WindowSystem>();
};

TEST_F(PostsOfThreads, WorkFromFourThreadsRunsOnTheWindowsThreadInTheOrderOfEach) {
  constexpr int kEach = 500;
  const DWORD here = GetCurrentThreadId();
  std::vector<std::vector<int>> ran(4);
  std::vector<std::thread> threads;
  for (std::size_t t = 0; t < ran.size(); ++t) {
    threads.emplace_back([this, t, here, &ran] {
      for (int i = 0; i < kEach; ++i) {
        Windows->Post([t, i, here, &ran] {
          EXPECT_EQ(GetCurrentThreadId(), here);
          ran[t].push_back(i);
        });
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  RunEvents(*Windows, 50);
  for (const std::vector<int>& of : ran) {
    ASSERT_EQ(of.size(), static_cast<std::size_t>(kEach));
    for (int i = 0; i < kEach; ++i) EXPECT_EQ(of[static_cast<std::size_t>(i)], i);
  }
}

TEST_F(PostsOfThreads, AThreadThatComesBackLateFindsItClosed) {
  const std::shared_ptr<win32::PostBox> box = Windows->Posts();
  bool ran = false;
  Windows->Post([&ran] { ran = true; });
  Windows.reset();
  std::thread([box, &ran] { box->Post([&ran] { ran = true; }); }).join();
  Windows = std::make_unique<win32::Win32WindowSystem>();
  RunEvents(*Windows, 20);
  EXPECT_FALSE(ran);
}

}  // namespace
}  // namespace corvelle
