#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "platform/Clipboard.h"

// What every side of the clipboard must do. One file of each test program includes this header and
// instantiates the suite with makers of the clipboards that it has.

namespace corvelle {

/// A clipboard with a window to copy from.
class ContractClipboard {
 public:
  virtual ~ContractClipboard() = default;

  virtual Clipboard& Copies() = 0;
  virtual WindowId Window() = 0;
  /// What another program would paste.
  virtual std::string Pasted() = 0;
  /// Another program opens the clipboard and keeps it, and closes it again.
  virtual void Hold() = 0;
  virtual void LetGo() = 0;
};

using ContractClipboardMaker = std::unique_ptr<ContractClipboard> (*)();

class ClipboardContract : public testing::TestWithParam<ContractClipboardMaker> {
 protected:
  std::unique_ptr<ContractClipboard> home_ = GetParam()();
};

TEST_P(ClipboardContract, WhatIsCopiedCanBePasted) {
  const std::string text = "  Drive Type :  Local\r\ncaf\xC3\xA9 \xE6\x97\xA5 \xF0\x9F\x99\x82\r\n";
  ASSERT_TRUE(home_->Copies().PutText(home_->Window(), text));
  EXPECT_EQ(home_->Pasted(), text);
}

TEST_P(ClipboardContract, TheNextTextTakesThePlaceOfTheOneBefore) {
  ASSERT_TRUE(home_->Copies().PutText(home_->Window(), "one and more"));
  ASSERT_TRUE(home_->Copies().PutText(home_->Window(), "two"));
  EXPECT_EQ(home_->Pasted(), "two");
  ASSERT_TRUE(home_->Copies().PutText(home_->Window(), ""));
  EXPECT_EQ(home_->Pasted(), "");
}

TEST_P(ClipboardContract, WhileAnotherProgramHoldsItTheContentStays) {
  ASSERT_TRUE(home_->Copies().PutText(home_->Window(), "one"));
  home_->Hold();
  EXPECT_FALSE(home_->Copies().PutText(home_->Window(), "two"));
  home_->LetGo();
  EXPECT_EQ(home_->Pasted(), "one");
  EXPECT_TRUE(home_->Copies().PutText(home_->Window(), "three"));
  EXPECT_EQ(home_->Pasted(), "three");
}

}  // namespace corvelle
