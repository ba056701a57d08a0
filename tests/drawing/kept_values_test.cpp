// Values that files keep outside of the obvious places.
#include "drawing/database.h"
#include "drawing/dxf/residue.h"
#include "drawing/entities/mtext.h"
#include "drawing/entities/polyline.h"

#include <gtest/gtest.h>

namespace {

OdDbDatabasePtr reread(const OdDbDatabase& db, OdDb::DwgVersion version = OdDb::kVersionUnknown) {
  const OdDbDatabasePtr back = OdDbDatabase::readDxf(db.writeDxf(version), QStringLiteral("x.dxf"));
  EXPECT_EQ(back->unknownContent(), QStringList());
  return back;
}

class KeptValues : public ::testing::Test {
 protected:
  OdDbLayerTableRecordPtr layerZero() {
    return m_db->getLayerZeroId().openAs<OdDbLayerTableRecord>(OdDb::kForWrite);
  }
  OdDbViewportTableRecordPtr viewport() {
    return m_db->getViewportTableId()
        .openAs<OdDbViewportTable>()
        ->getAt(QStringLiteral("*active"))
        .openAs<OdDbViewportTableRecord>(OdDb::kForWrite);
  }
  static OdString descriptionIn(const OdDbDatabasePtr& db) {
    return db->getLayerZeroId().openAs<OdDbLayerTableRecord>()->description();
  }

  OdDbDatabasePtr m_db = OdDbDatabase::createDatabase();
};

OdCmColor bookColor() {
  OdCmColor color = OdCmColor::fromRgb(1, 2, 3);
  color.setNames(QStringLiteral("Blau $1"), QStringLiteral("Bücher"));
  return color;
}

} // namespace

TEST_F(KeptValues, CurrentColorSurvivesTheFileWithoutLoss) {
  const OdCmColor colors[] = {
      OdCmColor::fromRgb(0, 255, 0), OdCmColor::fromRgb(10, 20, 30), bookColor(),
      OdCmColor::fromColorIndex(3),  OdCmColor(OdCmColor::kByBlock), OdCmColor()};
  for (const OdDb::DwgVersion version : {OdDb::kR2000, OdDb::kR2018})
    for (const OdCmColor& color : colors) {
      m_db->setCurrentColor(color);
      const OdDbDatabasePtr back = reread(*m_db, version);
      EXPECT_EQ(back->currentColor(), color) << color.color();
      EXPECT_FALSE(back->isModified());
      EXPECT_TRUE(back->writeDxf() == m_db->writeDxf(version));
    }
}

TEST_F(KeptValues, ColorThatAnotherProgramMadeCurrentCounts) {
  m_db->setCurrentColor(OdCmColor::fromRgb(10, 20, 30));
  QByteArray text = m_db->writeDxf();
  const QByteArray nearest = QByteArray::number(m_db->currentColor().colorIndex());
  text.replace("$CECOLOR\n 62\n" + nearest + "\n", "$CECOLOR\n 62\n1\n");
  EXPECT_EQ(OdDbDatabase::readDxf(text, QStringLiteral("x.dxf"))->currentColor(),
            OdCmColor::fromColorIndex(1));
}

TEST_F(KeptValues, CurrentColorIsUndoneWithWhatIsKeptOfIt) {
  const QByteArray before = m_db->writeDxf();
  m_db->startUndoRecord(QStringLiteral("COLOR"));
  m_db->setCurrentColor(OdCmColor::fromRgb(10, 20, 30));
  m_db->endUndoRecord();
  const QByteArray after = m_db->writeDxf();
  m_db->undo();
  EXPECT_TRUE(m_db->writeDxf() == before);
  m_db->redo();
  EXPECT_TRUE(m_db->writeDxf() == after);
}

TEST_F(KeptValues, CurrentTransparencySurvivesTheFileWithoutLoss) {
  std::vector<OdCmTransparency> all{OdCmTransparency(),
                                    OdCmTransparency(OdCmTransparency::kByBlock)};
  for (int alpha = 0; alpha < 256; ++alpha)
    all.push_back(OdCmTransparency::fromAlpha(static_cast<std::uint8_t>(alpha)));
  for (const OdCmTransparency transparency : all) {
    m_db->setCurrentTransparency(transparency);
    ASSERT_EQ(m_db->currentTransparency(), transparency) << transparency.value();
    if (transparency.alpha() % 16 > 1) continue; // reading takes its time
    EXPECT_EQ(reread(*m_db)->currentTransparency(), transparency) << transparency.value();
  }
}

TEST_F(KeptValues, EntryThatIsNoVariableIsReplaced) {
  m_db->setCurrentTransparency(OdCmTransparency::fromPercent(20));
  QByteArray text = m_db->writeDxf();
  text.replace("  0\nDICTIONARYVAR\n", "  0\nXRECORD\n");
  const OdDbDatabasePtr back = OdDbDatabase::readDxf(text, QStringLiteral("x.dxf"));
  EXPECT_EQ(back->currentTransparency(), OdCmTransparency());
  back->setCurrentTransparency(OdCmTransparency::fromPercent(30));
  EXPECT_EQ(back->currentTransparency().percent(), 30);
}

TEST_F(KeptValues, ViewportTellsAndTakesItsView) {
  EXPECT_EQ(viewport()->centerPoint(), (OdGePoint2d{210, 148.5}));
  EXPECT_EQ(viewport()->height(), 297);
  EXPECT_EQ(viewport()->aspect(), 1.34);
  const QByteArray before = m_db->writeDxf();
  m_db->startUndoRecord(QStringLiteral("VIEW"));
  viewport()->setCenterPoint({1, 2.5});
  viewport()->setHeight(30);
  viewport()->setAspect(2);
  const OdDbDatabasePtr back = reread(*m_db);
  const auto read = back->getViewportTableId()
                        .openAs<OdDbViewportTable>()
                        ->getAt(QStringLiteral("*Active"))
                        .openAs<OdDbViewportTableRecord>();
  EXPECT_EQ(read->centerPoint(), (OdGePoint2d{1, 2.5}));
  EXPECT_EQ(read->height(), 30);
  EXPECT_EQ(read->aspect(), 2);
  m_db->undo();
  EXPECT_TRUE(m_db->writeDxf() == before);
}

TEST_F(KeptValues, ViewportRefusesWhatNoWindowCanShow) {
  EXPECT_THROW(viewport()->setHeight(0), OdError);
  EXPECT_THROW(viewport()->setAspect(-1), OdError);
  EXPECT_THROW(viewport()->setCenterPoint({std::nan(""), 0}), OdError);
  EXPECT_EQ(viewport()->height(), 297);
}

TEST_F(KeptValues, NewViewportHasAllThatFilesTell) {
  viewport()->erase();
  const auto made = odrxMake<OdDbViewportTableRecord>();
  made->setName(QStringLiteral("*Active"));
  made->setHeight(7);
  m_db->getViewportTableId().openAs<OdDbViewportTable>(OdDb::kForWrite)->add(made);
  EXPECT_EQ(made->height(), 7);
  const QByteArray text = m_db->writeDxf();
  const qsizetype at = text.lastIndexOf("\nVPORT\n");
  const QByteArray record = text.mid(at, text.indexOf("\nENDTAB\n", at) - at);
  EXPECT_TRUE(record.contains("\n 40\n7.0\n"));
  EXPECT_TRUE(record.contains("\n 36\n1.0\n")) << record.toStdString();
  EXPECT_EQ(record.count("\n 40\n"), 1);
  reread(*m_db);
}

TEST_F(KeptValues, LayerKeepsItsDescription) {
  const OdString text = QStringLiteral("Türen 扉 ^ \"x\"");
  EXPECT_EQ(layerZero()->description(), OdString());
  const QByteArray before = m_db->writeDxf();
  layerZero()->setDescription(text);
  for (const OdDb::DwgVersion version : {OdDb::kR2000, OdDb::kR2018})
    EXPECT_EQ(descriptionIn(reread(*m_db, version)), text);
  EXPECT_TRUE(m_db->getRegAppTableId().openAs<OdDbRegAppTable>()->has(
      QStringLiteral("AcAecLayerStandard")));
  layerZero()->setDescription({});
  EXPECT_FALSE(layerZero()->residue() && !layerZero()->residue()->xdata.isEmpty());
}

TEST_F(KeptValues, DescriptionOfANewLayerComesWithItsApplication) {
  const auto layer = odrxMake<OdDbLayerTableRecord>();
  layer->setName(QStringLiteral("Doors"));
  layer->setDescription(QStringLiteral("All doors"));
  m_db->getLayerTableId().openAs<OdDbLayerTable>(OdDb::kForWrite)->add(layer);
  EXPECT_TRUE(m_db->getRegAppTableId().openAs<OdDbRegAppTable>()->has(
      QStringLiteral("AcAecLayerStandard")));
}

TEST_F(KeptValues, DescriptionLeavesOtherExtendedDataAlone) {
  const QByteArray xdata = "1001\nOTHER\n1000\none\n1000\ntwo\n"
                           "1001\nAcAecLayerStandard\n1000\nISO\n1000\nW\xC3\xA4nde\n1070\n5\n"
                           "1001\nLAST\n1000\nthree\n";
  layerZero()->editResidue().xdata = xdata;
  EXPECT_EQ(layerZero()->description(), QStringLiteral("Wände"));
  layerZero()->setDescription(QStringLiteral("Walls"));
  QByteArray wanted = xdata;
  EXPECT_EQ(layerZero()->residue()->xdata, wanted.replace("W\xC3\xA4nde", "Walls"));
  layerZero()->setDescription({});
  EXPECT_EQ(layerZero()->residue()->xdata, wanted.replace("Walls", ""));
}

TEST_F(KeptValues, DescriptionIsReadInTheCodePageOfTheFile) {
  layerZero()->setDescription(QStringLiteral("Waende"));
  QByteArray text = m_db->writeDxf(OdDb::kR2000);
  text.replace("Waende", "W\xE4nde");
  EXPECT_EQ(descriptionIn(OdDbDatabase::readDxf(text, QStringLiteral("x.dxf"))),
            QStringLiteral("Wände"));
}

TEST_F(KeptValues, EditingKeptTagsCanBeUndone) {
  layerZero()->editResidue().xdata = "1001\nACAD\n1000\nold\n";
  const QByteArray before = m_db->writeDxf();
  m_db->startUndoRecord(QStringLiteral("EDIT"));
  layerZero()->editResidue().xdata = "1001\nACAD\n1000\nnew\n";
  EXPECT_EQ(m_db->undoDepth(), 1u);
  m_db->undo();
  EXPECT_TRUE(m_db->writeDxf() == before);
  const auto reading = m_db->getLayerZeroId().openAs<OdDbLayerTableRecord>();
  EXPECT_THROW(reading->editResidue(), OdDbError);
}

TEST_F(KeptValues, KeptTextsOutsideOfTheCodePageAreEscapedAndNotLost) {
  layerZero()->editResidue().xdata = "1001\nACAD\n1000\nW\xC3\xA4nde \xE6\x89\x89\n";
  const QByteArray text = m_db->writeDxf(OdDb::kR2000);
  EXPECT_TRUE(text.contains("1000\nW\xE4nde \\U+6249\n"));
}

namespace {

/// A drawing of a version with the tags, whose lines bars part, in its model.
QByteArray drawingWith(const QByteArray& tags, OdDb::DwgVersion version) {
  QByteArray file = OdDbDatabase::createDatabase()->writeDxf(version);
  QByteArray lines = tags;
  lines.replace('|', '\n');
  return file.insert(file.indexOf("  0\nENDSEC\n", file.indexOf("\nENTITIES\n")), lines + '\n');
}

/// As the writer writes it: codes in three places, numbers with a point.
QByteArray head(const char* name, const char* subclass, const char* common = "") {
  return QByteArray("  0|") + name + "|  5|F0|330|1F|100|AcDbEntity|  8|0|" + common + "100|" +
         subclass;
}

struct Oddity {
  const char* what;
  OdDb::DwgVersion version;
  QByteArray tags;
};

const QByteArray kSplineEdge =
    " 10|0.0| 20|0.0| 30|0.0|210|0.0|220|0.0|230|1.0|  2|SOLID| 70|1| 71|0| 91|1| 92|0| 93|1| "
    "72|4| "
    "94|1| 73|0| 74|0| 95|4| 96|2| 40|0.0| 40|0.0| 40|1.0| 40|1.0| 10|0.0| 20|0.0| 10|5.0| 20|5.0|";
const QByteArray kSplineEnd = " 97|0| 75|0| 76|1| 98|0";
const QByteArray kFitData = " 11|0.0| 21|0.0| 11|5.0| 21|5.0| 12|1.0| 22|0.0| 13|0.0| 23|1.0|";
const QByteArray kCircle = "| 10|1.0| 20|2.0| 30|0.0| 40|3.0";
const QByteArray kPolylineHead = "| 66|1| 10|0.0| 20|0.0| 30|0.0";
const QByteArray kSeqend = "|  0|SEQEND|  5|F1|330|F0|100|AcDbEntity|  8|0";
const QByteArray kMtext = "| 10|1.0| 20|2.0| 30|0.0| 40|3.0| 41|9.0|";
const QByteArray kMtextEnd = " 71|1| 72|1|  1|Text|  7|Standard| 73|1| 44|1.0";
const QByteArray kEmbedded = "|101|Embedded Object| 70|1| 10|1.0| 20|0.0| 30|0.0| 11|1.0| 21|2.0| "
                             "31|0.0| 40|9.0| 41|0.0| 42|4.0| 43|3.0| 71|0";

const Oddity kOddities[] = {
    {"fit data of a spline, which newer files count", OdDb::kR2004,
     head("HATCH", "AcDbHatch|") + kSplineEdge + kFitData + kSplineEnd},
    {"counted fit data", OdDb::kR2007,
     head("HATCH", "AcDbHatch|") + kSplineEdge + " 97|2|" + kFitData + kSplineEnd},
    {"a spline without any", OdDb::kR2000, head("HATCH", "AcDbHatch|") + kSplineEdge + kSplineEnd},
    {"fit data where they belong", OdDb::kR2010,
     head("HATCH", "AcDbHatch|") + kSplineEdge + " 97|2|" + kFitData + kSplineEnd},
    {"an index far from the true colour", OdDb::kR2018,
     head("CIRCLE", "AcDbCircle", " 62|5|420|16711680|") + kCircle},
    {"the index of the layer beside a true colour", OdDb::kR2004,
     head("CIRCLE", "AcDbCircle", " 62|0|420|16711680|") + kCircle},
    {"the nearest index", OdDb::kR2018,
     head("CIRCLE", "AcDbCircle", " 62|1|420|16711680|") + kCircle},
    {"flags that are not set", OdDb::kR2018,
     head("POLYLINE", "AcDb2dPolyline") + kPolylineHead + "| 70|0" + kSeqend},
    {"no flags", OdDb::kR2018, head("POLYLINE", "AcDb2dPolyline") + kPolylineHead + kSeqend},
    {"a height that is not defined", OdDb::kR2007,
     head("MTEXT", "AcDbMText") + kMtext + " 46|0.0|" + kMtextEnd},
    {"no height", OdDb::kR2007, head("MTEXT", "AcDbMText") + kMtext + kMtextEnd},
    {"sizes of columns that a text has not", OdDb::kR2018,
     head("MTEXT", "AcDbMText") + kMtext + " 46|0.0|" + kMtextEnd + kEmbedded +
         "| 72|1| 44|9.0| 45|1.5| 73|0| 74|0"},
    {"no columns", OdDb::kR2018, head("MTEXT", "AcDbMText") + kMtext + kMtextEnd + kEmbedded},
};

/// The lines of the one entity in model space.
QByteArray entityIn(const QByteArray& file) {
  const qsizetype begin = file.indexOf("  2\nENTITIES\n") + 13;
  return file.mid(begin, file.indexOf("  0\nENDSEC\n", begin) - begin);
}

template <class T>
OdSmartPtr<T> only(const OdDbDatabase& db) {
  const auto space = db.getModelSpaceId().openAs<OdDbBlockTableRecord>();
  return space->newIterator()->entity(OdDb::kForWrite);
}

template <class T>
void append(OdDbDatabase& db, const OdSmartPtr<T>& entity) {
  db.getModelSpaceId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite)->appendOdDbEntity(entity);
}

} // namespace

TEST(KeptOddities, ComeBackTagByTag) {
  for (const Oddity& odd : kOddities) {
    const QByteArray file = drawingWith(odd.tags, odd.version);
    const OdDbDatabasePtr db = OdDbDatabase::readDxf(file, QStringLiteral("x.dxf"));
    EXPECT_EQ(db->unknownContent(), QStringList()) << odd.what;
    QByteArray lines = odd.tags;
    lines.replace('|', '\n');
    const QByteArray saved = db->writeDxf();
    EXPECT_TRUE(saved.contains(lines + "\n  0\n"))
        << odd.what << "\n"
        << saved.mid(saved.indexOf("\nENTITIES\n"), 1500).constData();
  }
}

TEST(KeptOddities, IndexBesideATrueColorGoesWithIt) {
  const OdDbDatabasePtr db = OdDbDatabase::readDxf(
      drawingWith(head("CIRCLE", "AcDbCircle", " 62|5|420|16711680|") + kCircle, OdDb::kR2018),
      QStringLiteral("x.dxf"));
  const auto space = db->getModelSpaceId().openAs<OdDbBlockTableRecord>();
  const auto circle = space->entityIds().front().openAs<OdDbEntity>(OdDb::kForWrite);
  EXPECT_EQ(circle->color(), OdCmColor::fromRgb(255, 0, 0));
  circle->setColor(OdCmColor::fromRgb(0, 255, 0));
  EXPECT_TRUE(db->writeDxf().contains(" 62\n3\n420\n65280\n"));
}

TEST(KeptOddities, NameOfAColourMayStandWithoutItsBook) {
  const auto nameIn = [](const char* tag) {
    const OdDbDatabasePtr db = OdDbDatabase::readDxf(
        drawingWith(head("CIRCLE", "AcDbCircle", QByteArray("420|255|430|") + tag + "|") + kCircle,
                    OdDb::kR2018),
        QStringLiteral("x.dxf"));
    const OdCmColor color = only<OdDbEntity>(*db)->color();
    return color.bookName() + QStringLiteral(" / ") + color.colorName();
  };
  EXPECT_EQ(nameIn("Signal"), QStringLiteral(" / Signal"));
  EXPECT_EQ(nameIn("$Signal"), QStringLiteral(" / Signal"));
  EXPECT_EQ(nameIn("Book$Signal"), QStringLiteral("Book / Signal"));
  EXPECT_EQ(nameIn("Book$"), QStringLiteral("Book / "));
}

TEST(KeptOddities, IndicesGoUpToThatOfNoColour) {
  const auto read = [](const char* index) {
    return OdDbDatabase::readDxf(
        drawingWith(head("CIRCLE", "AcDbCircle", QByteArray(" 62|") + index + "|") + kCircle,
                    OdDb::kR2018),
        QStringLiteral("x.dxf"));
  };
  for (const int index : {1, 255, 257})
    EXPECT_EQ(only<OdDbEntity>(*read(QByteArray::number(index)))->color().colorIndex(), index);
  // What means nothing is kept for others, and the colour stays that of the layer.
  EXPECT_TRUE(only<OdDbEntity>(*read("258"))->color().isByLayer());
}

TEST(KeptOddities, ScaleInTheHeadOfASolidHatchStaysThroughEverySave) {
  QByteArray file =
      drawingWith(head("HATCH", "AcDbHatch|") + kSplineEdge + kSplineEnd, OdDb::kR2018);
  const qsizetype at = file.indexOf("AcDbHatch\n") + 10;
  file.insert(at, " 41\n7.5\n");
  const QByteArray first = OdDbDatabase::readDxf(file, QStringLiteral("x.dxf"))->writeDxf();
  EXPECT_TRUE(first.contains(" 41\n7.5\n"));
  EXPECT_EQ(OdDbDatabase::readDxf(first, QStringLiteral("y.dxf"))->writeDxf(), first);
}

TEST(KeptOddities, FitDataOfNewerFilesAreNotToldToOldOnes) {
  const OdDbDatabasePtr db = OdDbDatabase::readDxf(
      drawingWith(head("HATCH", "AcDbHatch|") + kSplineEdge + " 97|2|" + kFitData + kSplineEnd,
                  OdDb::kR2018),
      QStringLiteral("x.dxf"));
  QByteArray lines = kSplineEdge + kSplineEnd;
  lines.replace('|', '\n');
  EXPECT_TRUE(db->writeDxf(OdDb::kR2004).contains(lines));
}

TEST_F(KeptValues, TrueColourMayStandAloneAndStaysSo) {
  const auto line = odrxMake<OdDbPolyline>();
  line->setColor(OdCmColor::fromRgb(10, 20, 30));
  append(*m_db, line);
  const QByteArray both = m_db->writeDxf(OdDb::kR2018);
  const QByteArray index = " 62\n" + QByteArray::number(line->color().colorIndex()) + "\n";
  ASSERT_TRUE(entityIn(both).contains(index + "420\n"));
  const QByteArray alone = QByteArray(both).replace(index + "420\n", "420\n");
  const auto read = [](const QByteArray& text) {
    return OdDbDatabase::readDxf(text, QStringLiteral("x.dxf"));
  };
  EXPECT_EQ(entityIn(read(alone)->writeDxf()), entityIn(alone));
  EXPECT_EQ(entityIn(read(both)->writeDxf()), entityIn(both));
  EXPECT_EQ(only<OdDbEntity>(*read(alone))->color(), line->color());
  // Old programs know nothing else than the index.
  EXPECT_TRUE(entityIn(read(alone)->writeDxf(OdDb::kR2000)).contains(index));
  // It may also stand behind the colour, and be another one.
  for (const char* other : {"1\n", "250\n"}) {
    QByteArray behind = alone;
    behind.insert(behind.indexOf("100\nAcDbPolyline\n"), QByteArray(" 62\n") + other);
    EXPECT_TRUE(entityIn(read(behind)->writeDxf()).contains(QByteArray(" 62\n") + other));
  }
  // A colour that is set is told as ever.
  const OdDbDatabasePtr changed = read(alone);
  only<OdDbEntity>(*changed)->setColor(OdCmColor::fromRgb(10, 20, 31));
  EXPECT_TRUE(entityIn(changed->writeDxf()).contains(" 62\n"));
}

TEST_F(KeptValues, LayersTellTheIndexThatStoodBesideTheirTrueColour) {
  layerZero()->setColor(OdCmColor::fromRgb(255, 0, 0));
  const QByteArray own = m_db->writeDxf();
  // Without one of a file it is the nearest.
  ASSERT_EQ(own.count(" 62\n1\n420\n16711680\n"), 1);
  QByteArray other = own;
  other.replace(" 62\n1\n420\n16711680\n", " 62\n5\n420\n16711680\n");
  EXPECT_EQ(OdDbDatabase::readDxf(other, QStringLiteral("x.dxf"))->writeDxf(), other);
  // No layer has the colour of its block: that is as good as none.
  other.replace(" 62\n5\n420\n16711680\n", " 62\n0\n420\n16711680\n");
  EXPECT_EQ(OdDbDatabase::readDxf(other, QStringLiteral("x.dxf"))->writeDxf(), own);
}

TEST_F(KeptValues, IndicesOfLayersGoUpToThatOfNoColour) {
  layerZero()->setColor(OdCmColor::fromColorIndex(123));
  const auto read = [&](const char* index) {
    QByteArray text = m_db->writeDxf();
    text.replace(" 62\n123\n", QByteArray(" 62\n") + index + "\n");
    const OdDbDatabasePtr db = OdDbDatabase::readDxf(text, QStringLiteral("x.dxf"));
    return db->getLayerZeroId().openAs<OdDbLayerTableRecord>()->color().colorIndex();
  };
  EXPECT_EQ(read("257"), 257);
  EXPECT_EQ(read("258"), OdCmColor::kACIforeground);
}

TEST_F(KeptValues, LineTypesThatTellOfADashBeforeTheFirstSaySo) {
  const QByteArray whole = m_db->writeDxf();
  // The first line type has no dashes.
  const qsizetype at = whole.indexOf(" 40\n", whole.indexOf("AcDbLinetypeTableRecord"));
  for (const char* tag : {"  9\nX\n", " 44\n1.0\n", " 45\n1.0\n", " 46\n1.0\n", " 50\n1.0\n",
                          " 74\n2\n", " 75\n132\n", "340\n0\n"}) {
    QByteArray odd = whole;
    odd.insert(at, tag);
    const OdDbDatabasePtr read = OdDbDatabase::readDxf(odd, QStringLiteral("x.dxf"));
    ASSERT_EQ(read->readNotes().size(), 1) << tag;
    EXPECT_TRUE(read->readNotes()[0].contains(QStringLiteral("before its first one")));
  }
}

TEST_F(KeptValues, PolylineThatTellsNoFlagsGetsNone) {
  append(*m_db, odrxMake<OdDbPolyline>());
  const QByteArray with = m_db->writeDxf();
  ASSERT_TRUE(entityIn(with).contains(" 70\n0\n"));
  QByteArray without = with;
  without.replace(with.indexOf(" 70\n0\n", with.indexOf("AcDbPolyline")), 6, "");
  const OdDbDatabasePtr read = OdDbDatabase::readDxf(without, QStringLiteral("x.dxf"));
  EXPECT_EQ(entityIn(read->writeDxf()), entityIn(without));
  EXPECT_EQ(entityIn(reread(*m_db)->writeDxf()), entityIn(with));
  only<OdDbPolyline>(*read)->setClosed(true);
  EXPECT_TRUE(entityIn(read->writeDxf()).contains(" 70\n1\n"));
}

TEST_F(KeptValues, ColumnsOfTextsSurviveInOlderFiles) {
  OdMTextColumns fixed, running, own;
  fixed.kind = OdMTextColumns::kStatic;
  fixed.count = 3;
  fixed.width = 20;
  fixed.gutter = 2.5;
  fixed.height = 30;
  running = fixed;
  running.kind = OdMTextColumns::kDynamic;
  running.autoHeight = running.reversed = true;
  own = running;
  own.autoHeight = false;
  own.height = 0;
  own.heights = {10, 12.5, 0};
  for (const OdMTextColumns& columns : {fixed, running, own}) {
    m_db = OdDbDatabase::createDatabase();
    const auto text = odrxMake<OdDbMText>();
    text->setContents(QStringLiteral("First\\NSecond\\NThird"));
    text->setColumns(columns);
    append(*m_db, text);
    for (const OdDb::DwgVersion version : {OdDb::kR2000, OdDb::kR2013}) {
      const OdDbDatabasePtr old = reread(*m_db, version);
      EXPECT_FALSE(entityIn(m_db->writeDxf(version)).contains("Embedded Object"));
      EXPECT_TRUE(old->writeDxf(version) == m_db->writeDxf(version));
      const OdDbDatabasePtr back = reread(*old, OdDb::kR2018);
      const OdMTextColumns& found = only<OdDbMText>(*back)->columns();
      EXPECT_EQ(found.kind, columns.kind);
      EXPECT_EQ(found.count, columns.autoHeight ? 0 : 3);
      EXPECT_EQ(found.width, 20);
      EXPECT_EQ(found.gutter, 2.5);
      EXPECT_EQ(found.height, columns.height);
      EXPECT_EQ(found.autoHeight, columns.autoHeight);
      EXPECT_EQ(found.reversed, columns.reversed);
      EXPECT_EQ(found.heights, columns.heights);
      EXPECT_EQ(only<OdDbMText>(*back)->contents(), text->contents());
      const QByteArray written = entityIn(back->writeDxf());
      EXPECT_TRUE(written.contains("Embedded Object"));
      EXPECT_TRUE(written.contains(" 42\n65.0\n")) << "of all columns together";
      EXPECT_FALSE(written.contains("ACAD_MTEXT"));
    }
  }
}

TEST_F(KeptValues, ColumnsThatStandInTextsOfTheirOwnStayAsTheyAre) {
  OdMTextColumns columns;
  columns.kind = OdMTextColumns::kStatic;
  columns.count = 2;
  columns.width = 20;
  const auto text = odrxMake<OdDbMText>();
  text->setContents(QStringLiteral("two columns"));
  text->setColumns(columns);
  append(*m_db, text);
  const QByteArray file = m_db->writeDxf(OdDb::kR2013);
  const std::pair<const char*, const char*> changes[] = {
      {"1000\nACAD_MTEXT_COLUMNS_END\n", "1005\n2A\n1000\nACAD_MTEXT_COLUMNS_END\n"},
      {"1040\n20.0\n", "1040\n20.00\n"},
      {"1040\n20.0\n", "1040\ninf\n"},
      {"1070\n75\n1070\n1\n", "1070\n75\n1070\n7\n"},
      {"1070\n49\n", "1070\n99\n"},
      {"1000\nACAD_MTEXT_COLUMN_INFO_BEGIN\n1070\n75\n",
       "1000\nACAD_MTEXT_COLUMN_INFO_BEGIN\n1070\n50\n1070\n2000000000\n1070\n75\n"},
      {"1000\nACAD_MTEXT_DEFINED_HEIGHT_END\n", "1000\nACAD_MTEXT_OTHER\n"},
      {"1000\nACAD_MTEXT_DEFINED_HEIGHT_END\n",
       "1000\nACAD_MTEXT_DEFINED_HEIGHT_END\n1000\nmore\n"},
  };
  for (const auto& [from, to] : changes) {
    ASSERT_TRUE(file.contains(from)) << from;
    const QByteArray other = QByteArray(file).replace(from, to);
    const OdDbDatabasePtr read = OdDbDatabase::readDxf(other, QStringLiteral("x.dxf"));
    EXPECT_EQ(only<OdDbMText>(*read)->columns().kind, OdMTextColumns::kNone) << to;
    EXPECT_EQ(entityIn(read->writeDxf()), entityIn(other)) << to;
  }
  // Other applications' data stand behind as before.
  const QByteArray more =
      QByteArray(file).replace("1000\nACAD_MTEXT_DEFINED_HEIGHT_END\n",
                               "1000\nACAD_MTEXT_DEFINED_HEIGHT_END\n1001\nOTHER\n1000\nkept\n");
  const OdDbDatabasePtr read = OdDbDatabase::readDxf(more, QStringLiteral("x.dxf"));
  EXPECT_EQ(only<OdDbMText>(*read)->columns().count, 2);
  EXPECT_EQ(entityIn(read->writeDxf()), entityIn(more));
}
