#include "frame/file_lock.h"

#include <gtest/gtest.h>

#include <QTemporaryFile>

#include <sys/file.h>

TEST(FileLock, IsSeenWhileSomebodyHoldsItForThemselvesAlone) {
  QTemporaryFile file;
  ASSERT_TRUE(file.open());
  EXPECT_FALSE(odpath::isLockedByOthers(file.fileName()));
  ASSERT_EQ(flock(file.handle(), LOCK_EX), 0);
  EXPECT_TRUE(odpath::isLockedByOthers(file.fileName()));
  ASSERT_EQ(flock(file.handle(), LOCK_UN), 0);
  EXPECT_FALSE(odpath::isLockedByOthers(file.fileName()));
}

TEST(FileLock, IsNoneOfAFileThatIsNotThere) {
  EXPECT_FALSE(odpath::isLockedByOthers(QStringLiteral("/nowhere/a.dxf")));
}
