#pragma once

// What every home for forms must do with posted work. A test program includes this header once and
// instantiates the suite with its own homes.

#include "forms/ContractHome.h"

namespace corvelle::forms {

class PostContract : public testing::TestWithParam<ContractHomeFactory> {
 protected:
  void Post(const std::string& what, std::function<void()> action = nullptr) {
    windows_.Post([this, what, action = std::move(action)] {
      ran_.push_back(what);
      if (action) action();
    });
  }

  std::unique_ptr<ContractHome> home_ = GetParam()();
  WindowSystem& windows_ = home_->Windows();
  std::vector<std::string> ran_;
};

TEST_P(PostContract, WorkRunsLaterAndInItsOrder) {
  Post("a");
  Post("b");
  EXPECT_TRUE(ran_.empty());
  home_->Wait(20);
  EXPECT_EQ(ran_, (std::vector<std::string>{"a", "b"}));
}

TEST_P(PostContract, WhileWorkLetsEventsRunNoOtherWorkDoes) {
  Post("a", [this] {
    Post("c");
    windows_.DoEvents();
    EXPECT_EQ(ran_, (std::vector<std::string>{"a"}));
  });
  Post("b");
  home_->Wait(20);
  EXPECT_EQ(ran_, (std::vector<std::string>{"a", "b", "c"}));
}

}  // namespace corvelle::forms
