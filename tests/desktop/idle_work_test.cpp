#include "drafton/desktop/idle_work.h"

#include <QCoreApplication>
#include <QTest>

#include <gtest/gtest.h>

#include <functional>

using namespace drafton;

namespace {

/// Counts its pieces, and has some left for a while.
struct Work : IHostIdleWork {
  explicit Work(int pieces)
    : left(pieces) {}
  int left, done = 0;
  std::function<void()> during = [] {};

  bool doPiece() override {
    ++done;
    during();
    return --left > 0;
  }
  bool isOver() const { return left <= 0; }
};

struct IdleWorkTest : testing::Test {
  KVPtr<IdleWork> idle = kvMake<IdleWork>();

  static void wait(const std::function<bool()>& holds) { EXPECT_TRUE(QTest::qWaitFor(holds)); }
};

TEST_F(IdleWorkTest, DoesPiecesUntilNoneIsLeft) {
  Work work(3);
  idle->add(&work);
  EXPECT_EQ(work.done, 0) << "not at once";
  wait([&] { return work.isOver(); });
  for (int i = 0; i < 10; ++i) QCoreApplication::processEvents();
  EXPECT_EQ(work.done, 3);
}

TEST_F(IdleWorkTest, WorksTakeTurns) {
  Work one(4), two(4);
  QString order;
  one.during = [&] { order += u'1'; };
  two.during = [&] { order += u'2'; };
  idle->add(&one);
  idle->add(&two);
  wait([&] { return one.isOver() && two.isOver(); });
  EXPECT_EQ(order, QStringLiteral("12121212"));
}

TEST_F(IdleWorkTest, WorkIsThereOnce) {
  Work work(2);
  idle->add(&work);
  idle->add(&work);
  idle->add(nullptr);
  wait([&] { return work.isOver(); });
  for (int i = 0; i < 10; ++i) QCoreApplication::processEvents();
  EXPECT_EQ(work.done, 2);
}

TEST_F(IdleWorkTest, LongPiecesShareNoTurn) {
  Work work(3);
  work.during = [] { QTest::qSleep(6); };
  idle->add(&work);
  wait([&] { return work.done > 0; });
  int most = 0;
  while (!work.isOver()) {
    const int before = work.done;
    QCoreApplication::processEvents();
    most = std::max(most, work.done - before);
  }
  EXPECT_EQ(most, 1);
}

TEST_F(IdleWorkTest, OtherEventsComeBetweenTheTurns) {
  Work work(3);
  work.during = [] { QTest::qSleep(6); };
  QStringList order;
  QObject receiver;
  work.during = [&] {
    QTest::qSleep(6);
    order << QStringLiteral("piece");
    QMetaObject::invokeMethod(
        &receiver, [&] { order << QStringLiteral("event"); }, Qt::QueuedConnection);
  };
  idle->add(&work);
  wait([&] { return order.size() == 6; });
  EXPECT_EQ(order, QStringList({"piece", "event", "piece", "event", "piece", "event"}));
}

TEST_F(IdleWorkTest, WhatIsRemovedIsLeftAlone) {
  Work removed(100), other(3);
  idle->add(&removed);
  idle->add(&other);
  idle->remove(&removed);
  idle->remove(&removed);
  wait([&] { return other.isOver(); });
  EXPECT_EQ(removed.done, 0);
}

TEST_F(IdleWorkTest, APieceMayRemoveItsOwnWorkAndAddAnother) {
  Work first(100), second(2);
  first.during = [&] {
    idle->remove(&first);
    idle->add(&second);
  };
  idle->add(&first);
  wait([&] { return second.isOver(); });
  EXPECT_EQ(first.done, 1);
}

TEST_F(IdleWorkTest, APieceThatWaitsForEventsIsNotDoneTwiceAtATime) {
  Work work(2);
  int depth = 0, deepest = 0;
  work.during = [&] {
    deepest = std::max(deepest, ++depth);
    for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
    --depth;
  };
  idle->add(&work);
  wait([&] { return work.isOver(); });
  EXPECT_EQ(deepest, 1);
}

TEST_F(IdleWorkTest, APieceMayLetGoOfTheService) {
  Work work(100);
  work.during = [&] {
    idle = nullptr;
    QTest::qSleep(6);
  };
  idle->add(&work);
  wait([&] { return work.done > 0; });
  for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
  EXPECT_EQ(work.done, 1);
}

} // namespace
