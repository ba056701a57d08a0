#include "tools/command_conveyor_impl.h"

#include <gtest/gtest.h>

namespace {

using namespace tc;

struct CommandConveyorTest : testing::Test {
  OdSmartPtr<OdTcCommandConveyorImpl> box = odrxMake<OdTcCommandConveyorImpl>();
};

TEST_F(CommandConveyorTest, ABlockRequestBeginsWithTheseValues) {
  const OdTcBlockRequest request;
  EXPECT_TRUE(request.name.isEmpty());
  EXPECT_TRUE(request.sourceFile.isEmpty());
  EXPECT_EQ(request.scale, 1.0);
  EXPECT_EQ(request.rotation, 0.0);
  EXPECT_FALSE(request.askRotation || request.explode || request.wholeDrawing || request.isXref ||
               request.queryAttributes);
  EXPECT_EQ(request.xrefType, 1);
}

TEST_F(CommandConveyorTest, ARasterRequestBeginsWithTheseValues) {
  const OdTcRasterRequest request;
  EXPECT_TRUE(request.name.isEmpty());
  EXPECT_TRUE(request.path.isEmpty());
  EXPECT_EQ(request.scale, 1.0);
  EXPECT_EQ(request.rotation, 0.0);
}

TEST_F(CommandConveyorTest, GivesARequestOutOnce) {
  EXPECT_FALSE(box->hasBlockRequest());
  EXPECT_FALSE(box->takeBlockRequest());
  box->setBlockRequest({.name = QStringLiteral("Door")});
  EXPECT_TRUE(box->hasBlockRequest());
  const auto taken = box->takeBlockRequest();
  ASSERT_TRUE(taken);
  EXPECT_EQ(taken->name, QStringLiteral("Door"));
  EXPECT_FALSE(box->hasBlockRequest());
  EXPECT_FALSE(box->takeBlockRequest());
}

TEST_F(CommandConveyorTest, ASecondRequestOverwritesTheFirst) {
  box->setRasterRequest({.name = QStringLiteral("a")});
  box->setRasterRequest({.name = QStringLiteral("b")});
  EXPECT_EQ(box->takeRasterRequest()->name, QStringLiteral("b"));
  EXPECT_FALSE(box->hasRasterRequest());
}

TEST_F(CommandConveyorTest, KeepsTheKindsApart) {
  box->setBlockRequest({.name = QStringLiteral("Door")});
  EXPECT_FALSE(box->hasRasterRequest());
  EXPECT_FALSE(box->takeRasterRequest());
  EXPECT_TRUE(box->hasBlockRequest());
}

} // namespace
