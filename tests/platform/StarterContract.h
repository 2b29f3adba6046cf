#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "base/CodePage.h"
#include "forms/WindowSystem.h"
#include "platform/DdeClient.h"
#include "platform/FileAssociations.h"
#include "platform/FileSystem.h"
#include "platform/Registry.h"
#include "platform/ShellExec.h"
#include "platform/ShellFolders.h"
#include "platform/ShellLinks.h"
#include "platform/Starter.h"

// What every side of the starter must do. One file of each test program includes this header and
// instantiates the suite with makers of the homes that it has.

namespace corvelle {

class ContractStarter {
 public:
  virtual ~ContractStarter() = default;

  virtual Starter& Starts() = 0;
  virtual forms::WindowSystem& Windows() = 0;
  /// Lets events run until `done`, for some seconds at most; whether it came to that.
  virtual bool RunUntil(const std::function<bool()>& done) = 0;
  /// A number of the thread that asks.
  virtual unsigned ThisThread() = 0;
};

using ContractStarterMaker = std::unique_ptr<ContractStarter> (*)();

class StarterContract : public testing::TestWithParam<ContractStarterMaker> {
 protected:
  std::unique_ptr<ContractStarter> home_ = GetParam()();
};

TEST_P(StarterContract, TheWorkComesFirstAndItsEndIsToldOnTheThreadOfTheWindows) {
  const unsigned here = home_->ThisThread();
  const auto worked = std::make_shared<bool>(false);
  bool done = false;
  home_->Starts().Start([worked](const StartServices&) { *worked = true; },
                        [&, worked] {
                          EXPECT_TRUE(*worked);
                          EXPECT_EQ(home_->ThisThread(), here);
                          done = true;
                        });
  EXPECT_TRUE(home_->RunUntil([&] { return done; }));
}

TEST_P(StarterContract, TheWorkHasServicesThatAnswer) {
  const auto found = std::make_shared<bool>(true);
  const auto error = std::make_shared<RunError>(RunError::Other);
  bool done = false;
  home_->Starts().Start(
      [found, error](const StartServices& services) {
        *found = services.Files.FileExists("C:\\no such file.txt");
        const auto run = services.Shell.Run("C:\\no-such-program.exe");
        if (!run) *error = run.Error();
        EXPECT_NE(services.Links.CreateLinkObject(), nullptr);
      },
      [&] { done = true; });
  ASSERT_TRUE(home_->RunUntil([&] { return done; }));
  EXPECT_FALSE(*found);
  EXPECT_EQ(*error, RunError::FileNotFound);
}

TEST_P(StarterContract, TheWorkCanAskProgramsFoldersAndTheRegistry) {
  struct Seen {
    DdeOutcome Said = DdeOutcome::Done;
    bool HasProgram = true;
    bool HasKey = true;
    bool Opened = true;
    std::string Decoded;
  };
  const auto seen = std::make_shared<Seen>();
  bool done = false;
  home_->Starts().Start(
      [seen](const StartServices& services) {
        seen->Said = services.Dde.Execute("NoSuchProgram", "NoTopic", "x");
        seen->HasProgram =
            services.Associations.ProgramFor("C:\\no such file.corvelle").has_value();
        seen->HasKey =
            services.Keys.Text(RegistryRoot::CurrentUser, "Software\\NoSuchKey", "").has_value();
        seen->Opened = services.Folders.OpenEntry(3, "No such entry", {}, kNoWindow);
        seen->Decoded = services.Ansi.Decode("abc");
      },
      [&] { done = true; });
  ASSERT_TRUE(home_->RunUntil([&] { return done; }));
  EXPECT_EQ(seen->Said, DdeOutcome::NoServer);
  EXPECT_FALSE(seen->HasProgram);
  EXPECT_FALSE(seen->HasKey);
  EXPECT_FALSE(seen->Opened);
  EXPECT_EQ(seen->Decoded, "abc");
}

TEST_P(StarterContract, AnEndThatLetsEventsRunHoldsUpNoPostedWork) {
  bool posted = false;
  bool done = false;
  home_->Starts().Start([](const StartServices&) {},
                        [&] {
                          home_->Windows().Post([&posted] { posted = true; });
                          home_->Windows().DoEvents();
                          EXPECT_TRUE(posted);
                          done = true;
                        });
  EXPECT_TRUE(home_->RunUntil([&] { return done; }));
}

TEST_P(StarterContract, SeveralAtATimeEachEndOnce) {
  int ends = 0;
  for (int i = 0; i < 8; ++i)
    home_->Starts().Start([](const StartServices&) {}, [&ends] { ++ends; });
  EXPECT_TRUE(home_->RunUntil([&] { return ends == 8; }));
  home_->Windows().DoEvents();
  EXPECT_EQ(ends, 8);
}

}  // namespace corvelle
