#include "drafton/engine/commands/undo_marks.h"

#include <gtest/gtest.h>

using drafton::UndoMarks;

TEST(UndoMarks, StepsBackOneByOneWithoutGroups) {
  const UndoMarks marks;
  EXPECT_EQ(marks.before(5), 4u);
  EXPECT_EQ(marks.before(0), 0u);
}

TEST(UndoMarks, GroupIsOneOperation) {
  UndoMarks marks;
  marks.beginGroup(2);
  EXPECT_EQ(marks.openGroup(), 2u);
  EXPECT_TRUE(marks.endGroup(5));
  EXPECT_FALSE(marks.endGroup(5));
  EXPECT_EQ(marks.before(5), 2u);
  EXPECT_EQ(marks.before(6), 5u);
  EXPECT_EQ(marks.before(2), 1u);
}

TEST(UndoMarks, BeginEndsTheOpenGroup) {
  UndoMarks marks;
  marks.beginGroup(1);
  marks.beginGroup(4);
  EXPECT_EQ(marks.before(4), 1u);
  EXPECT_EQ(marks.openGroup(), 4u);
}

TEST(UndoMarks, LastMarkIsTheOneAtOrBefore) {
  UndoMarks marks;
  EXPECT_FALSE(marks.lastMark(9));
  marks.setMark(3);
  marks.setMark(6);
  marks.setMark(3);
  EXPECT_FALSE(marks.lastMark(2));
  EXPECT_EQ(marks.lastMark(5), 3u);
  EXPECT_EQ(marks.lastMark(6), 6u);
  marks.dropMark(6);
  EXPECT_EQ(marks.lastMark(6), 3u);
  EXPECT_TRUE(marks.meetsMark(5, 3));
  EXPECT_FALSE(marks.meetsMark(5, 4));
  EXPECT_FALSE(marks.meetsMark(3, 1)) << "it started there";
}

TEST(UndoMarks, UndoneMarksComeBackWithRedoAndDieWithNewSteps) {
  UndoMarks marks;
  marks.sync(4, false);
  marks.setMark(4);
  marks.wentBack(4, 2);
  marks.settle(2);
  marks.sync(2, true);
  EXPECT_FALSE(marks.lastMark(2));
  EXPECT_EQ(marks.takeRedoTarget(2), 4u);
  marks.settle(4);
  marks.sync(4, false);
  EXPECT_EQ(marks.lastMark(4), 4u);

  marks.wentBack(4, 2);
  marks.settle(2);
  marks.sync(5, false); // three new steps
  EXPECT_FALSE(marks.lastMark(5));
  EXPECT_EQ(marks.takeRedoTarget(5), 6u) << "nothing is remembered of the former redo";
}
