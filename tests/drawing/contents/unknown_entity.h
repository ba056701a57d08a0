// Drawings with entities that nobody knows.
#pragma once

#include "drawing/contents/support.h"
#include "drawing/entities/recorder.h"

/// A drawing with layers 0, Red (1) and Off, and an entity of unknown kind.
inline OdDbDatabasePtr drawingWith(const QByteArray& common, const QByteArray& rest,
                                   const QByteArray& name = "MYTHING",
                                   const QByteArray& more = "") {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  oddbtest::addLayer(*db, QStringLiteral("Red"), 1);
  const OdDbObjectId off = oddbtest::addLayer(*db, QStringLiteral("Off"), 2);
  off.openAs<OdDbLayerTableRecord>(OdDb::kForWrite)->setIsOff(true);
  oddbtest::addBlock(*db, QStringLiteral("*T1"));
  QByteArray dxf = db->writeDxf();
  const QByteArray section = "  2\nENTITIES\n";
  dxf.insert(dxf.indexOf(section) + section.size(),
             "  0\n" + name + "\n  5\nF001\n100\nAcDbEntity\n  8\nRed\n" + common +
                 "100\nAcDbMyThing\n 70\n1\n" + rest + more);
  return OdDbDatabase::readDxf(dxf, QString());
}

inline Recorder shownBy(const OdDbDatabase& db) {
  Recorder recorder;
  oddbtest::entitiesOf(db.getModelSpaceId()).at(0)->worldDraw(recorder);
  return recorder;
}
