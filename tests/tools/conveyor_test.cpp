#include "tools/conveyor_impl.h"

#include <gtest/gtest.h>

namespace {

using namespace tc;

struct Sink : IConveyorSink {
  explicit Sink(QStringList& record, OdString name)
    : heard(record)
    , id(std::move(name)) {}
  QStringList& heard;
  OdString id;
  std::function<void()> then;

  void onConveyed(const OdRxObjectPtr& item) override {
    heard << id + static_cast<OdTcPersist*>(item.get())->tag();
    if (then) then();
  }
};

struct ConveyorTest : testing::Test {
  OdSmartPtr<OdTcConveyorImpl> conveyor = odrxMake<OdTcConveyorImpl>();
  QStringList heard;

  static OdTcPersistPtr item(const OdString& tag) {
    OdTcPersistPtr made = odrxMake<OdTcPersistImpl<OdTcPersist>>();
    made->setTag(tag);
    return made;
  }
};

TEST_F(ConveyorTest, HandsEachItemToEverySinkInOrder) {
  Sink a(heard, QStringLiteral("a")), b(heard, QStringLiteral("b"));
  conveyor->addSink(&a);
  conveyor->addSink(&b);
  conveyor->push(item(QStringLiteral("1")));
  conveyor->push(item(QStringLiteral("2")));
  EXPECT_TRUE(heard.isEmpty());
  conveyor->flush();
  EXPECT_EQ(heard, QStringList({QStringLiteral("a1"), QStringLiteral("b1"), QStringLiteral("a2"),
                                QStringLiteral("b2")}));
  EXPECT_EQ(conveyor->waiting(), 0);
  conveyor->flush();
  EXPECT_EQ(heard.size(), 4);
}

TEST_F(ConveyorTest, DropsItemsWithoutASink) {
  const OdTcPersistPtr dropped = item(QStringLiteral("1"));
  conveyor->push(dropped);
  EXPECT_EQ(dropped->numRefs(), 2);
  conveyor->flush();
  EXPECT_EQ(dropped->numRefs(), 1);
  Sink late(heard, QStringLiteral("a"));
  conveyor->addSink(&late);
  conveyor->flush();
  EXPECT_TRUE(heard.isEmpty());
}

TEST_F(ConveyorTest, PassesOverNull) {
  conveyor->push(nullptr);
  EXPECT_EQ(conveyor->waiting(), 0);
}

TEST_F(ConveyorTest, ReleasesTheHeldObjectAtAFlush) {
  const OdTcPersistPtr held = item(QStringLiteral("h"));
  conveyor->holdUntilFlush(held);
  EXPECT_EQ(held->numRefs(), 2);
  conveyor->flush();
  EXPECT_EQ(held->numRefs(), 1);
}

TEST_F(ConveyorTest, ASinkThatGoesInTheMiddleGetsNothingMore) {
  Sink a(heard, QStringLiteral("a")), b(heard, QStringLiteral("b"));
  a.then = [&] { conveyor->removeSink(&b); };
  conveyor->addSink(&a);
  conveyor->addSink(&b);
  conveyor->push(item(QStringLiteral("1")));
  conveyor->flush();
  EXPECT_EQ(heard, QStringList(QStringLiteral("a1")));
}

TEST_F(ConveyorTest, WhatIsPushedMeanwhileWaits) {
  Sink a(heard, QStringLiteral("a"));
  a.then = [&] { conveyor->push(item(QStringLiteral("2"))); };
  conveyor->addSink(&a);
  conveyor->push(item(QStringLiteral("1")));
  conveyor->flush();
  EXPECT_EQ(heard, QStringList(QStringLiteral("a1")));
  EXPECT_EQ(conveyor->waiting(), 1);
}

} // namespace
