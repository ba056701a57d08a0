// Drawings written and read back.
#include "drawing/arc.h"
#include "drawing/circle.h"
#include "drawing/database.h"
#include "drawing/line.h"
#include "drawing/polyline.h"
#include "drawing/text.h"

#include <gtest/gtest.h>

TEST(DrawingFiles, NewDrawingIsTheSameAfterSavingAndReading) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  EXPECT_EQ(db->unknownContent(), QStringList());
  EXPECT_EQ(db->readNotes(), QStringList());
  const QByteArray first = db->writeDxf();
  const OdDbDatabasePtr back = OdDbDatabase::readDxf(first, QStringLiteral("new.dxf"));
  EXPECT_EQ(back->unknownContent(), QStringList());
  EXPECT_EQ(back->readNotes(), QStringList());
  EXPECT_EQ(back->writeDxf(), first);
}
