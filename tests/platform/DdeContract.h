#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/DdeClient.h"
#include "platform/FileAssociations.h"

// What every client of other programs' services must do. One file of each test program includes
// this header and instantiates the suite with makers of the sides that it has.

namespace corvelle {

/// A desktop on which a program can offer the service "CorvelleContract" with the topic
/// "WWW_OpenURL".
class ContractDde {
 public:
  virtual ~ContractDde() = default;

  virtual DdeClient& Client() = 0;
  /// Starts the program, which answers each command so; NoAnswer: it takes the conversation and
  /// then keeps silent.
  virtual void StartServer(DdeOutcome answer) = 0;
  virtual void EndServer() = 0;
  /// The commands that it got so far.
  virtual std::vector<std::string> Told() = 0;
  /// True when the program has no conversation left, or that is no question here.
  virtual bool NoConversationLeft() = 0;
};

using ContractDdeMaker = std::unique_ptr<ContractDde> (*)();

class DdeContract : public testing::TestWithParam<ContractDdeMaker> {
 protected:
  std::unique_ptr<ContractDde> home_ = GetParam()();

  DdeOutcome Execute(const std::string& command) {
    return home_->Client().Execute("CorvelleContract", "WWW_OpenURL", command);
  }
};

TEST_P(DdeContract, AServerGetsTheCommandAsItWasGiven) {
  home_->StartServer(DdeOutcome::Done);
  const std::string command = "\"http://a.example/\xC3\xA4?x=1&y=2\",,-1,0,,,,";
  EXPECT_EQ(Execute(command), DdeOutcome::Done);
  EXPECT_EQ(home_->Told(), std::vector<std::string>{command});
  EXPECT_TRUE(home_->NoConversationLeft());
}

TEST_P(DdeContract, ManyCommandsGoOneAfterTheOther) {
  home_->StartServer(DdeOutcome::Done);
  std::vector<std::string> commands;
  for (int i = 0; i < 20; ++i) {
    commands.push_back("\"http://a.example/" + std::to_string(i) + "\"");
    EXPECT_EQ(Execute(commands.back()), DdeOutcome::Done);
  }
  EXPECT_EQ(home_->Told(), commands);
}

TEST_P(DdeContract, NamesOfServicesAreFoundWithoutRegardToCase) {
  home_->StartServer(DdeOutcome::Done);
  EXPECT_EQ(home_->Client().Execute("corvellecontract", "www_openurl", "x"), DdeOutcome::Done);
}

TEST_P(DdeContract, WithoutAServerThereIsNone) { EXPECT_EQ(Execute("x"), DdeOutcome::NoServer); }

TEST_P(DdeContract, AServerOfAnotherTopicOrServiceIsNone) {
  home_->StartServer(DdeOutcome::Done);
  EXPECT_EQ(home_->Client().Execute("CorvelleContract", "Other", "x"), DdeOutcome::NoServer);
  EXPECT_EQ(home_->Client().Execute("CorvelleOther", "WWW_OpenURL", "x"), DdeOutcome::NoServer);
  EXPECT_TRUE(home_->Told().empty());
}

TEST_P(DdeContract, ANameThatIsNoneIsNoServer) {
  home_->StartServer(DdeOutcome::Done);
  EXPECT_EQ(home_->Client().Execute("", "WWW_OpenURL", "x"), DdeOutcome::NoServer);
  EXPECT_EQ(home_->Client().Execute("CorvelleContract", "", "x"), DdeOutcome::NoServer);
  EXPECT_TRUE(home_->Told().empty());
}

TEST_P(DdeContract, AServerThatHasEndedIsNone) {
  home_->StartServer(DdeOutcome::Done);
  EXPECT_EQ(Execute("x"), DdeOutcome::Done);
  home_->EndServer();
  EXPECT_EQ(Execute("y"), DdeOutcome::NoServer);
}

TEST_P(DdeContract, ARefusalIsTold) {
  home_->StartServer(DdeOutcome::Refused);
  EXPECT_EQ(Execute("x"), DdeOutcome::Refused);
  EXPECT_EQ(home_->Told(), std::vector<std::string>{"x"});
}

TEST_P(DdeContract, AServerThatKeepsSilentIsGivenUp) {
  home_->StartServer(DdeOutcome::NoAnswer);
  EXPECT_EQ(Execute("x"), DdeOutcome::NoAnswer);
}

}  // namespace corvelle
