#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "forms/WindowSystem.h"
#include "platform/Lookups.h"

// What every side of the slow questions must do. One file of each test program includes this header
// and instantiates the suite with makers of the homes that it has.

namespace corvelle {

/// Slow questions with a folder of their own and a link that hangs the lane it is asked in.
class ContractLookups {
 public:
  virtual ~ContractLookups() = default;

  virtual Lookups& Questions() = 0;
  virtual forms::WindowSystem& Windows() = 0;
  virtual FileSystem& Files() = 0;
  /// With its trailing backslash.
  virtual std::string Folder() = 0;
  /// A file that holds an icon. There are drives, too, which are a folder of the shell (17).
  virtual std::string IconFile() = 0;
  /// Makes a link file that leads to `target`.
  virtual void PutLink(const std::string& file, const std::string& target) = 0;
  /// Asking for the target of the path that this gives hangs the lane until LetGo.
  virtual std::string HangingLink(const std::string& lane) = 0;
  virtual void LetGo(const std::string& lane) = 0;
  /// Lets events run until `done`, for some seconds at most; whether it came to that.
  virtual bool RunUntil(const std::function<bool()>& done) = 0;
  /// Runs the events there are now, with no time passing.
  virtual void RunEvents() = 0;
  /// Ends the questions, as the program's end does. Gives the milliseconds that it took.
  virtual int End() = 0;
};

using ContractLookupsMaker = std::unique_ptr<ContractLookups> (*)();

class LookupsContract : public testing::TestWithParam<ContractLookupsMaker> {
 protected:
  LookupsContract() {
    home_->Questions().SetListener([this](const std::vector<LookupAnswer>& ends) { Note(ends); });
    EXPECT_TRUE(home_->Files().Write(there_, "abc"));
  }

  void Note(const std::vector<LookupAnswer>& ends) {
    EXPECT_FALSE(inListener_) << "the listener is still at work";
    EXPECT_FALSE(asking_) << "told inside a call";
    inListener_ = true;
    for (const LookupAnswer& end : ends) {
      EXPECT_FALSE(ends_.contains(end.Id)) << "told twice";
      ends_[end.Id] = end;
      order_.push_back(end.Id);
    }
    if (whenTold_) whenTold_();
    inListener_ = false;
  }
  LookupId Ask(const Lookup& question) {
    asking_ = true;
    const LookupId id = home_->Questions().Ask(question);
    asking_ = false;
    EXPECT_TRUE(asked_.insert(id).second) << "a number that was used";
    EXPECT_NE(id, 0U);
    return id;
  }
  LookupId AskIsThere(const std::string& path, const std::string& lane = "c",
                      std::uint64_t generation = 1) {
    return Ask({.Path = path, .Lane = lane, .Generation = generation});
  }
  LookupId AskHanging(const std::string& lane, std::uint64_t generation = 1) {
    return Ask({.Kind = LookupKind::LinkTarget,
                .Path = home_->HangingLink(lane),
                .Lane = lane,
                .Generation = generation});
  }
  void Drop(std::uint64_t generation) {
    asking_ = true;
    home_->Questions().Drop(generation);
    asking_ = false;
  }
  bool Ended(LookupId id) { return ends_.contains(id); }
  bool WaitFor(LookupId id) {
    return home_->RunUntil([&] { return Ended(id); });
  }
  LookupAnswer AnswerTo(const Lookup& question) {
    const LookupId id = Ask(question);
    EXPECT_TRUE(WaitFor(id));
    return ends_[id];
  }

  std::unique_ptr<ContractLookups> home_ = GetParam()();
  std::string there_ = home_->Folder() + "there.txt";
  std::set<LookupId> asked_;
  std::map<LookupId, LookupAnswer> ends_;
  std::vector<LookupId> order_;
  std::function<void()> whenTold_;
  bool inListener_ = false;
  bool asking_ = false;
};

TEST_P(LookupsContract, AFileAndAFolderAreThereAndAMissingOneIsNot) {
  EXPECT_EQ(AnswerTo({.Path = there_}).Value, LookupValue(true));
  EXPECT_EQ(AnswerTo({.Path = home_->Folder()}).Value, LookupValue(true));
  const LookupAnswer missing = AnswerTo({.Path = there_ + "x"});
  EXPECT_EQ(missing.End, LookupEnd::Answered);
  EXPECT_EQ(missing.Value, LookupValue(false));
}

TEST_P(LookupsContract, AFolderGivesItsEntriesThatFit) {
  EXPECT_TRUE(home_->Files().Write(home_->Folder() + "other.doc", ""));
  const LookupAnswer answer =
      AnswerTo({.Kind = LookupKind::FolderEntries, .Path = home_->Folder(), .Pattern = "*.txt"});
  const auto* const entries = std::get_if<std::vector<FileEntry>>(&answer.Value);
  ASSERT_NE(entries, nullptr);
  ASSERT_EQ(entries->size(), 1U);
  EXPECT_EQ(entries->front().Name, "there.txt");
  EXPECT_EQ(entries->front().Length, 3U);
}

TEST_P(LookupsContract, AMissingFolderFailsWithItsReason) {
  const LookupAnswer answer =
      AnswerTo({.Kind = LookupKind::FolderEntries, .Path = home_->Folder() + "missing"});
  EXPECT_EQ(answer.End, LookupEnd::Failed);
  EXPECT_EQ(answer.Error, FileError::NotFound);
}

TEST_P(LookupsContract, ALinkGivesItsTargetAndADamagedOneFails) {
  const std::string link = home_->Folder() + "a.lnk";
  home_->PutLink(link, there_);
  EXPECT_EQ(AnswerTo({.Kind = LookupKind::LinkTarget, .Path = link}).Value, LookupValue(there_));
  EXPECT_EQ(AnswerTo({.Kind = LookupKind::LinkTarget, .Path = there_}).End, LookupEnd::Failed);
}

TEST_P(LookupsContract, AFileGivesItsNameAndItsIconAndAMissingOneFails) {
  EXPECT_EQ(AnswerTo({.Kind = LookupKind::FileName, .Path = there_}).Value,
            LookupValue(std::string("there.txt")));
  for (const IconList list : {IconList::Small, IconList::Large}) {
    const LookupAnswer answer =
        AnswerTo({.Kind = LookupKind::FileIcon, .Path = there_, .List = list});
    const auto* const icon = std::get_if<IconPixels>(&answer.Value);
    ASSERT_NE(icon, nullptr);
    EXPECT_TRUE(icon->IsWhole());
    EXPECT_EQ(icon->Width, icon->Height);
    EXPECT_EQ(icon->Width == kSmallIconSize, list == IconList::Small);
    EXPECT_TRUE(std::any_of(icon->Pixels.begin(), icon->Pixels.end(), [](std::uint32_t pixel) {
      return pixel >> 24 == 255;
    })) << "nothing is drawn";
  }
  for (const LookupKind kind : {LookupKind::FileName, LookupKind::FileIcon, LookupKind::IconInFile})
    EXPECT_EQ(AnswerTo({.Kind = kind, .Path = there_ + "x"}).End, LookupEnd::Failed);
}

TEST_P(LookupsContract, AnIconInAFileComesAtItsSize) {
  const LookupAnswer answer = AnswerTo(
      {.Kind = LookupKind::IconInFile, .Path = home_->IconFile(), .Number = 0, .Size = 24});
  const auto* const icon = std::get_if<IconPixels>(&answer.Value);
  ASSERT_NE(icon, nullptr);
  EXPECT_TRUE(icon->IsWhole());
  EXPECT_EQ(icon->Width, 24);
}

TEST_P(LookupsContract, TheIconsOfAFileAreCounted) {
  const LookupAnswer answer = AnswerTo({.Kind = LookupKind::IconCount, .Path = home_->IconFile()});
  const int* const count = std::get_if<int>(&answer.Value);
  ASSERT_NE(count, nullptr);
  EXPECT_GE(*count, 1);
  EXPECT_EQ(AnswerTo({.Kind = LookupKind::IconCount, .Path = there_ + "x"}).Value, LookupValue(0));
}

TEST_P(LookupsContract, AFolderOfTheShellGivesItselfItsEntriesAndTheirIcons) {
  constexpr int kDrives = 17;
  const LookupAnswer self = AnswerTo({.Kind = LookupKind::ShellFolder, .Number = kDrives});
  const auto* const folder = std::get_if<std::vector<ShellFolderEntry>>(&self.Value);
  ASSERT_NE(folder, nullptr);
  ASSERT_EQ(folder->size(), 1U);
  const LookupAnswer listed = AnswerTo({.Kind = LookupKind::ShellEntries, .Number = kDrives});
  const auto* const entries = std::get_if<std::vector<ShellFolderEntry>>(&listed.Value);
  ASSERT_NE(entries, nullptr);
  ASSERT_FALSE(entries->empty());
  for (const std::string& name : {std::string(), entries->front().Name}) {
    const LookupAnswer answer =
        AnswerTo({.Kind = LookupKind::ShellIcon, .Path = name, .Number = kDrives});
    const auto* const icon = std::get_if<IconPixels>(&answer.Value);
    ASSERT_NE(icon, nullptr) << name;
    EXPECT_EQ(icon->Width, kSmallIconSize);
    EXPECT_TRUE(icon->IsWhole());
  }
  EXPECT_EQ(AnswerTo({.Kind = LookupKind::ShellIcon, .Path = "No such", .Number = kDrives}).End,
            LookupEnd::Failed);
  for (const LookupKind kind : {LookupKind::ShellFolder, LookupKind::ShellEntries})
    EXPECT_EQ(AnswerTo({.Kind = kind, .Number = 0x7A}).End, LookupEnd::Failed);
}

TEST_P(LookupsContract, ADriveGivesItsFactsAndAMissingOneItsKind) {
  const auto factsOf = [this](const std::string& root) {
    const LookupAnswer answer = AnswerTo({.Kind = LookupKind::Drive, .Path = root, .Lane = root});
    const auto* const facts = std::get_if<DriveFacts>(&answer.Value);
    return facts != nullptr ? *facts : DriveFacts();
  };
  EXPECT_EQ(factsOf("C:\\").Type, 3U);
  EXPECT_TRUE(factsOf("C:\\").Room);
  EXPECT_EQ(factsOf("Q:\\"), DriveFacts{.Type = 1});
}

TEST_P(LookupsContract, ADiskOfTheMachineIsAtHandAndAMissingOneIsNot) {
  const auto atHand = [this](const std::string& root) {
    const LookupAnswer answer =
        AnswerTo({.Kind = LookupKind::DriveAtHand, .Path = root, .Lane = root});
    return answer.Value == LookupValue(true);
  };
  EXPECT_TRUE(atHand("C:\\"));
  EXPECT_FALSE(atHand("Q:\\"));
}

TEST_P(LookupsContract, EachQuestionEndsOnceAndALaneKeepsItsOrder) {
  std::map<std::string, std::vector<LookupId>> asked;
  for (int i = 0; i < 200; ++i) {
    const std::string lane(1, static_cast<char>('c' + i % 4));
    asked[lane].push_back(AskIsThere(i % 3 == 0 ? there_ : there_ + "x", lane));
  }
  ASSERT_TRUE(home_->RunUntil([&] { return ends_.size() == 200; }));
  for (const auto& [lane, ids] : asked) {
    std::vector<LookupId> told;
    std::copy_if(order_.begin(), order_.end(), std::back_inserter(told), [&ids = ids](LookupId id) {
      return std::find(ids.begin(), ids.end(), id) != ids.end();
    });
    EXPECT_EQ(told, ids) << lane;
  }
}

TEST_P(LookupsContract, ALaneThatHangsHoldsUpOnlyItself) {
  const LookupId hanging = AskHanging("dead");
  const LookupId behind = AskIsThere(there_, "dead");
  std::vector<LookupId> others;
  for (const char* lane : {"c", "d", "e", "f"}) others.push_back(AskIsThere(there_, lane));
  for (const LookupId id : others) EXPECT_TRUE(WaitFor(id));
  EXPECT_FALSE(Ended(hanging));
  EXPECT_FALSE(Ended(behind));
  home_->LetGo("dead");
  EXPECT_TRUE(WaitFor(hanging));
  EXPECT_EQ(ends_[hanging].End, LookupEnd::Failed);
  EXPECT_TRUE(WaitFor(behind));
  EXPECT_EQ(ends_[behind].Value, LookupValue(true));
}

TEST_P(LookupsContract, ManyLanesThatHangHoldUpNoOther) {
  for (int i = 0; i < 8; ++i) AskHanging("dead" + std::to_string(i));
  EXPECT_TRUE(WaitFor(AskIsThere(there_, "c")));
  for (int i = 0; i < 8; ++i) home_->LetGo("dead" + std::to_string(i));
  EXPECT_TRUE(home_->RunUntil([&] { return ends_.size() == asked_.size(); }));
}

TEST_P(LookupsContract, DroppedQuestionsEndAtOnceAndOthersGoOn) {
  const LookupId hanging = AskHanging("dead", 1);
  const LookupId behind = AskIsThere(there_, "dead", 1);
  const LookupId other = AskIsThere(there_, "dead", 2);
  EXPECT_TRUE(WaitFor(AskIsThere(there_, "c", 3)));
  Drop(1);
  EXPECT_FALSE(Ended(hanging)) << "told inside the call";
  ASSERT_TRUE(WaitFor(behind));
  EXPECT_EQ(ends_[behind].End, LookupEnd::Dropped);
  ASSERT_TRUE(WaitFor(hanging));
  EXPECT_EQ(ends_[hanging].End, LookupEnd::Dropped);
  EXPECT_FALSE(Ended(other)) << "its lane is still busy";
  home_->LetGo("dead");
  ASSERT_TRUE(WaitFor(other));
  EXPECT_EQ(ends_[other].End, LookupEnd::Answered);
}

TEST_P(LookupsContract, AnAnswerThatWasNotToldYetIsDroppedToo) {
  const LookupId id = AskIsThere(there_, "c", 1);
  Drop(1);
  ASSERT_TRUE(WaitFor(id));
  EXPECT_EQ(ends_[id].End, LookupEnd::Dropped);
  EXPECT_EQ(ends_[id].Value, LookupValue());
}

TEST_P(LookupsContract, DroppingWhatNobodyAskedTellsNothing) {
  Drop(7);
  home_->RunEvents();
  EXPECT_TRUE(order_.empty());
}

TEST_P(LookupsContract, ACancelledQuestionFailsAndFreesItsLane) {
  const LookupId hanging = AskHanging("dead");
  const LookupId behind = AskIsThere(there_, "dead");
  const LookupId other = AskIsThere(there_, "c");
  ASSERT_TRUE(WaitFor(other));
  ASSERT_FALSE(Ended(hanging));
  // The call may be a moment away from the one that waits.
  const bool ended = home_->RunUntil([&] {
    asking_ = true;
    home_->Questions().Cancel(hanging);
    home_->Questions().Cancel(other);
    asking_ = false;
    return Ended(hanging);
  });
  ASSERT_TRUE(ended || WaitFor(hanging));
  EXPECT_EQ(ends_[hanging].End, LookupEnd::Failed);
  home_->LetGo("dead");
  ASSERT_TRUE(WaitFor(behind));
  EXPECT_EQ(ends_[behind].Value, LookupValue(true));
}

TEST_P(LookupsContract, CollectTellsWhatThereIsInsideTheCall) {
  const LookupId id = AskIsThere(there_);
  while (!Ended(id)) ASSERT_TRUE(home_->Questions().Collect(5000));
  EXPECT_FALSE(home_->Questions().Collect(0));
  home_->RunEvents();
  EXPECT_EQ(order_.size(), 1U) << "told again by the turn of the loop";
}

TEST_P(LookupsContract, CollectWaitsNoLongerThanItIsToldAndRunsNoEvents) {
  const LookupId hanging = AskHanging("dead");
  bool ran = false;
  home_->Windows().Post([&ran] { ran = true; });
  EXPECT_FALSE(home_->Questions().Collect(20));
  EXPECT_FALSE(ran);
  home_->LetGo("dead");
  EXPECT_TRUE(WaitFor(hanging));
}

TEST_P(LookupsContract, CollectInsideTheListenerDoesNothingAndLosesNothing) {
  LookupId second = 0;
  whenTold_ = [&] {
    whenTold_ = nullptr;
    second = home_->Questions().Ask({.Path = there_, .Lane = "d"});
    EXPECT_FALSE(home_->Questions().Collect(50));
    // Events that run here may bring the turn that would have told the second.
    home_->RunEvents();
    EXPECT_FALSE(Ended(second));
  };
  const LookupId first = AskIsThere(there_);
  while (!Ended(first)) ASSERT_TRUE(home_->Questions().Collect(5000));
  EXPECT_TRUE(WaitFor(second));
}

TEST_P(LookupsContract, TheListenerMayAskAndIsNotEnteredAgainThoughItLetsEventsRun) {
  LookupId second = 0;
  whenTold_ = [&] {
    whenTold_ = nullptr;
    second = home_->Questions().Ask({.Path = there_, .Lane = "d"});
    home_->RunEvents();
    EXPECT_FALSE(Ended(second));
  };
  EXPECT_TRUE(WaitFor(AskIsThere(there_)));
  EXPECT_TRUE(WaitFor(second));
}

TEST_P(LookupsContract, TheEndIsBoundedWithACallThatNeverReturns) {
  const LookupId hanging = AskHanging("dead");
  EXPECT_TRUE(WaitFor(AskIsThere(there_, "c")));
  EXPECT_LT(home_->End(), 2000);
  home_->LetGo("dead");
  home_->RunEvents();
  EXPECT_FALSE(Ended(hanging));
}

}  // namespace corvelle
