#include "base/LaneQueue.h"

#include <gtest/gtest.h>

namespace corvelle {
namespace {

struct LaneQueueTest : testing::Test {
  LaneQueue<int> Queue;

  /// The number of the next piece of work, 0 when none can be taken.
  int Next() {
    const auto taken = Queue.Take();
    return taken ? taken->Work : 0;
  }
};

TEST_F(LaneQueueTest, WithinALaneOneComesAfterTheOther) {
  Queue.Add("c", 1);
  Queue.Add("c", 2);
  EXPECT_EQ(Next(), 1);
  EXPECT_EQ(Next(), 0);
  Queue.Free("c");
  EXPECT_EQ(Next(), 2);
}

TEST_F(LaneQueueTest, ABusyLaneHoldsUpNoOther) {
  Queue.Add("dead", 1);
  Queue.Add("dead", 2);
  Queue.Add("c", 3);
  EXPECT_EQ(Next(), 1);
  EXPECT_EQ(Next(), 3);
  EXPECT_EQ(Next(), 0);
}

TEST_F(LaneQueueTest, OfSeveralFreeLanesTheOldestWorkGoesFirst) {
  Queue.Add("z", 1);
  Queue.Add("a", 2);
  Queue.Add("m", 3);
  EXPECT_EQ(Next(), 1);
  EXPECT_EQ(Next(), 2);
  EXPECT_EQ(Next(), 3);
}

TEST_F(LaneQueueTest, ReadyCountsTheLanesThatCouldGoOn) {
  EXPECT_EQ(Queue.Ready(), 0U);
  Queue.Add("c", 1);
  Queue.Add("c", 2);
  Queue.Add("d", 3);
  EXPECT_EQ(Queue.Ready(), 2U);
  EXPECT_EQ(Next(), 1);
  EXPECT_EQ(Queue.Ready(), 1U);
  Queue.Free("c");
  EXPECT_EQ(Queue.Ready(), 2U);
}

TEST_F(LaneQueueTest, RemovedWorkIsGivenBackAndTheRestKeepsItsOrder) {
  for (int i = 1; i <= 6; ++i) Queue.Add(i % 2 == 0 ? "even" : "odd", i);
  EXPECT_EQ(Next(), 1);
  EXPECT_EQ(Queue.Remove([](int work) { return work <= 4; }), (std::vector<int>{2, 4, 3}));
  EXPECT_EQ(Next(), 6);
  EXPECT_EQ(Next(), 0);
  Queue.Free("odd");
  EXPECT_EQ(Next(), 5);
}

TEST_F(LaneQueueTest, ALaneThatIsNotBusyCanBeFreed) {
  Queue.Free("c");
  Queue.Add("c", 1);
  Queue.Free("c");
  EXPECT_EQ(Next(), 1);
}

}  // namespace
}  // namespace corvelle
