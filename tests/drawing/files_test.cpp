// Drawings written and read back, and what another program reads in them.
#include "drawing/database.h"
#include "drawing/entities/arc.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"
#include "drawing/entities/polyline.h"
#include "drawing/entities/text.h"
#include "drawing/objects/raw_object.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

namespace {

/// Runs the script beside this file with the system's Python, which has ezdxf.
QByteArray script(const QStringList& arguments) {
  QProcess python;
  python.start(QStringLiteral("/usr/bin/python3"),
               QStringList{QStringLiteral(SOURCE_DIR "/tests/drawing/audit.py")} + arguments);
  EXPECT_TRUE(python.waitForFinished(120'000));
  EXPECT_EQ(python.exitCode(), 0) << python.readAllStandardError().toStdString();
  return python.readAllStandardOutput();
}

QJsonObject audited(const QString& path) {
  return QJsonDocument::fromJson(script({QStringLiteral("audit"), path})).object();
}

template <class T>
OdSmartPtr<T> add(OdDbDatabase& db, const OdSmartPtr<T>& entity) {
  entity->setDatabaseDefaults(db);
  db.getModelSpaceId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite)->appendOdDbEntity(entity);
  return entity;
}

/// One of everything, with values that do not come by chance.
OdDbDatabasePtr fullDrawing() {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const auto style = odrxMake<OdDbTextStyleTableRecord>();
  style->setName(QStringLiteral("Notes"));
  style->setFileName(QStringLiteral("arial.ttf"));
  style->setFont(QStringLiteral("Arial"), true, false, 0, 34);
  style->setXScale(0.8);
  const OdDbObjectId styleId =
      db->getTextStyleTableId().openAs<OdDbTextStyleTable>(OdDb::kForWrite)->add(style);

  const auto linetype = odrxMake<OdDbLinetypeTableRecord>();
  linetype->setName(QStringLiteral("GAS"));
  linetype->setComments(QStringLiteral("Gas ----GAS----"));
  linetype->setNumDashes(3);
  linetype->setPatternLength(1.25);
  linetype->setDashLengthAt(0, 0.5);
  linetype->setDashLengthAt(1, -0.25);
  linetype->setTextAt(1, QStringLiteral("GAS"));
  linetype->setShapeStyleAt(1, styleId);
  linetype->setShapeScaleAt(1, 0.1);
  linetype->setShapeOffsetAt(1, {-0.1, -0.05});
  linetype->setDashLengthAt(2, -0.5);
  const OdDbObjectId linetypeId =
      db->getLinetypeTableId().openAs<OdDbLinetypeTable>(OdDb::kForWrite)->add(linetype);

  const auto layer = odrxMake<OdDbLayerTableRecord>();
  layer->setName(QStringLiteral("Wände"));
  layer->setColor(OdCmColor::fromRgb(10, 20, 30));
  layer->setLinetypeObjectId(linetypeId);
  layer->setLineWeight(static_cast<OdDb::LineWeight>(35));
  layer->setIsPlottable(false);
  layer->setIsLocked(true);
  const OdDbObjectId layerId =
      db->getLayerTableId().openAs<OdDbLayerTable>(OdDb::kForWrite)->add(layer);

  add(*db, odrxMake<OdDbLine>(OdGePoint3d{1, 2, 3}, OdGePoint3d{4, 5, 6}));
  db->setCurrentLayer(layerId);
  db->setCurrentColor(OdCmColor::fromColorIndex(3));
  db->setCurrentLinetypeScale(2.5);
  db->setCurrentTransparency(OdCmTransparency::fromPercent(40));
  add(*db, odrxMake<OdDbCircle>(OdGePoint3d{10, 20, 0}, OdGeVector3d::zAxis(), 7.5));
  add(*db,
      odrxMake<OdDbArc>(OdGePoint3d{1, 1, 0}, OdGeVector3d::zAxis(), 2, kOdaPi / 6, kOdaPi * 1.5));
  const auto poly = odrxMake<OdDbPolyline>();
  poly->addVertexAt(0, {0, 0}, 1);
  poly->addVertexAt(1, {10, 0}, 0, 0.5, 0.25);
  poly->setClosed(true);
  add(*db, poly);
  const auto text = odrxMake<OdDbText>();
  text->setTextString(QStringLiteral("Größe 40 м²"));
  add(*db, text);
  text->setTextStyle(styleId);
  text->setPosition({5, 6, 0});
  text->setRotation(kOdaPi / 2);
  return db;
}

} // namespace

TEST(DrawingFiles, NewDrawingIsTheSameAfterSavingAndReading) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  EXPECT_EQ(db->unknownContent(), QStringList());
  EXPECT_EQ(db->readNotes(), QStringList());
  const QByteArray first = db->writeDxf();
  const OdDbDatabasePtr back = OdDbDatabase::readDxf(first, QStringLiteral("new.dxf"));
  EXPECT_EQ(back->unknownContent(), QStringList());
  EXPECT_EQ(back->readNotes(), QStringList());
  EXPECT_FALSE(back->isModified());
  EXPECT_TRUE(back->writeDxf() == first);
}

TEST(DrawingFiles, FullDrawingIsTheSameAfterSavingAndReading) {
  for (const OdDb::DwgVersion version : {OdDb::kR2000, OdDb::kR2007, OdDb::kR2018}) {
    const QByteArray first = fullDrawing()->writeDxf(version);
    const OdDbDatabasePtr back = OdDbDatabase::readDxf(first, QStringLiteral("full.dxf"));
    EXPECT_EQ(back->unknownContent(), QStringList());
    EXPECT_EQ(back->originalFileVersion(), version);
    EXPECT_TRUE(back->writeDxf() == first) << version;
  }
}

TEST(DrawingFiles, AnotherProgramAuditsAndReadsWhatWeWrite) {
  QTemporaryDir folder;
  for (const OdDb::DwgVersion version :
       {OdDb::kR2000, OdDb::kR2004, OdDb::kR2007, OdDb::kR2010, OdDb::kR2013, OdDb::kR2018}) {
    const QString path = folder.filePath(QStringLiteral("full.dxf"));
    fullDrawing()->writeFile(path, version);
    const QJsonObject read = audited(path);
    EXPECT_EQ(read[QLatin1String("version")].toString(), QLatin1String(OdDb::versionText(version)));
    EXPECT_TRUE(read[QLatin1String("problems")].toArray().isEmpty())
        << QJsonDocument(read[QLatin1String("problems")].toArray()).toJson().toStdString();
    const QJsonArray entities = read[QLatin1String("entities")].toArray();
    ASSERT_EQ(entities.size(), 5);
    const auto value = [&](int i, const char* name) -> QJsonValue {
      return entities[i].toObject()[QLatin1String(name)];
    };
    EXPECT_EQ(value(0, "start").toArray(), QJsonArray({1, 2, 3}));
    EXPECT_EQ(value(0, "end").toArray(), QJsonArray({4, 5, 6}));
    EXPECT_EQ(value(0, "layer").toString(), QLatin1String("0"));
    EXPECT_EQ(value(1, "radius").toDouble(), 7.5);
    EXPECT_EQ(value(1, "layer").toString(), QStringLiteral("Wände"));
    EXPECT_EQ(value(1, "color").toInt(), 3);
    EXPECT_EQ(value(1, "ltscale").toDouble(), 2.5);
    if (version >= OdDb::kR2004) {
      EXPECT_EQ(value(1, "transparency").toInt(), 0x02000099);
    }
    EXPECT_EQ(value(2, "start_angle").toDouble(), 30);
    EXPECT_EQ(value(2, "end_angle").toDouble(), 270);
    EXPECT_EQ(value(3, "flags").toInt(), 1);
    EXPECT_EQ(value(3, "points").toArray(),
              QJsonArray({QJsonArray({0, 0, 0, 0, 1}), QJsonArray({10, 0, 0.5, 0.25, 0})}));
    EXPECT_EQ(value(4, "text").toString(), QStringLiteral("Größe 40 м²"));
    EXPECT_EQ(value(4, "style").toString(), QLatin1String("Notes"));
    EXPECT_EQ(value(4, "rotation").toDouble(), 90);
    const QJsonObject layer =
        read[QLatin1String("layers")].toObject()[QStringLiteral("Wände")].toObject();
    EXPECT_EQ(layer[QLatin1String("linetype")].toString(), QLatin1String("GAS"));
    EXPECT_EQ(layer[QLatin1String("lineweight")].toInt(), 35);
    EXPECT_EQ(layer[QLatin1String("plot")].toInt(), 0);
    EXPECT_TRUE(layer[QLatin1String("locked")].toBool());
    if (version >= OdDb::kR2004) {
      EXPECT_EQ(layer[QLatin1String("rgb")].toInt(), 0x0A141E);
    }
    const QJsonObject style =
        read[QLatin1String("styles")].toObject()[QLatin1String("Notes")].toObject();
    EXPECT_EQ(style[QLatin1String("extended")].toArray(),
              QJsonArray({QLatin1String("Arial"), 0x2000022}));
    EXPECT_EQ(read[QLatin1String("header")].toObject()[QLatin1String("$CLAYER")].toString(),
              QStringLiteral("Wände"));
    EXPECT_EQ(read[QLatin1String("header")].toObject()[QLatin1String("$INSUNITS")].toInt(), 4);
  }
}

TEST(DrawingFiles, KeepsEveryTagOfDrawingsFromAnotherProgram) {
  QTemporaryDir folder;
  for (const char* version : {"R2000", "R2004", "R2007", "R2010", "R2013", "R2018"}) {
    const QString theirs = folder.filePath(QStringLiteral("theirs.dxf"));
    const QString ours = folder.filePath(QStringLiteral("ours.dxf"));
    script({QStringLiteral("make"), QLatin1String(version), theirs});
    const OdDbDatabasePtr db = OdDbDatabase::readFile(theirs);
    EXPECT_EQ(db->unknownContent(), QStringList()) << version;
    EXPECT_EQ(db->fileName(), theirs);
    db->writeFile(ours);
    const QByteArray differences = script({QStringLiteral("compare"), theirs, ours});
    EXPECT_EQ(differences.toStdString(), std::string()) << version;
    EXPECT_TRUE(audited(ours)[QLatin1String("problems")].toArray().isEmpty());
    const QByteArray once = db->writeDxf();
    EXPECT_TRUE(OdDbDatabase::readDxf(once, ours)->writeDxf() == once) << version;
  }
}

TEST(DrawingFiles, VerticesAndAttributesBelongToTheirLeader) {
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("theirs.dxf"));
  script({QStringLiteral("make"), QStringLiteral("R2018"), path});
  const OdDbDatabasePtr db = OdDbDatabase::readFile(path);
  QStringList leaders;
  for (auto it = db->getModelSpaceId().openAs<OdDbBlockTableRecord>()->newIterator(); !it->done();
       it->step()) {
    const OdDbEntityPtr entity = it->entity(OdDb::kForWrite);
    if (!entity->takesFollowers()) continue;
    leaders << QLatin1String(entity->dxfName());
    entity->erase();
  }
  EXPECT_EQ(leaders, QStringList({QStringLiteral("POLYLINE"), QStringLiteral("POLYLINE"),
                                  QStringLiteral("INSERT")}));
  const QByteArray text = db->writeDxf();
  EXPECT_FALSE(text.contains("\nVERTEX\n"));
  EXPECT_FALSE(text.contains("\nSEQEND\n"));
}

TEST(DrawingFiles, ABlockWithoutItsEndGetsOne) {
  const OdDbDatabasePtr db = OdDbDatabase::readDxf(
      "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1015\n  0\nENDSEC\n"
      "  0\nSECTION\n  2\nTABLES\n  0\nTABLE\n  2\nBLOCK_RECORD\n  5\n9\n"
      "100\nAcDbSymbolTable\n 70\n1\n  0\nBLOCK_RECORD\n  5\nF0\n100\nAcDbSymbolTableRecord\n"
      "100\nAcDbBlockTableRecord\n  2\nHALF\n  0\nENDTAB\n  0\nENDSEC\n"
      "  0\nSECTION\n  2\nBLOCKS\n  0\nBLOCK\n  5\nF1\n330\nF0\n100\nAcDbEntity\n  8\n0\n"
      "100\nAcDbBlockBegin\n  2\nHALF\n 70\n0\n 10\n0\n 20\n0\n  0\nENDSEC\n  0\nEOF\n",
      QStringLiteral("half.dxf"));
  const auto block = db->getBlockTableId()
                         .openAs<OdDbBlockTable>()
                         ->getAt(QStringLiteral("HALF"))
                         .openAs<OdDbBlockTableRecord>();
  EXPECT_EQ(block->blockBeginId().getHandle(), OdDbHandle(0xF1));
  EXPECT_FALSE(block->blockEndId().isNull());
}

TEST(DrawingFiles, SavingOverAFileKeepsItsPermissions) {
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("kept.dxf"));
  fullDrawing()->writeFile(path);
  const auto mine = QFile::ReadOwner | QFile::WriteOwner;
  ASSERT_TRUE(QFile::setPermissions(path, mine));
  fullDrawing()->writeFile(path);
  EXPECT_EQ(QFile::permissions(path) & ~(QFile::ReadUser | QFile::WriteUser), mine);
}

TEST(DrawingFiles, FailedSavingNamesThePathAndLeavesTheFolderAsItWas) {
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("missing/drawing.dxf"));
  const OdDbDatabasePtr db = fullDrawing();
  const QByteArray before = db->writeDxf();
  try {
    db->writeFile(path);
    FAIL() << "saved into a folder that is not there";
  } catch (const OdFileError& e) {
    EXPECT_EQ(e.path(), path);
    EXPECT_FALSE(e.reason().isEmpty());
  }
  EXPECT_TRUE(db->writeDxf() == before);
  EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST(DrawingFiles, OldFilesAreTakenIntoANewDrawing) {
  const QByteArray old = "0\nSECTION\n2\nENTITIES\n"
                         "0\nLINE\n8\nWALLS\n62\n1\n10\n1\n20\n2\n11\n3\n21\n4\n"
                         "0\nPOINT\n8\n0\n10\n1\n20\n2\n"
                         "0\nENDSEC\n0\nEOF\n";
  const OdDbDatabasePtr db = OdDbDatabase::readDxf(old, QStringLiteral("old.dxf"));
  const auto space = db->getModelSpaceId().openAs<OdDbBlockTableRecord>();
  const auto line = space->entityIds().at(0).openAs<OdDbLine>();
  EXPECT_EQ(line->endPoint(), (OdGePoint3d{3, 4, 0}));
  EXPECT_EQ(line->layer(), QLatin1String("WALLS"));
  EXPECT_EQ(db->unknownContent(), QStringList());
  const QByteArray saved = db->writeDxf();
  EXPECT_TRUE(saved.contains("100\nAcDbPoint\n 10\n1"));
}
