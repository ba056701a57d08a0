// Choosing before a command, groups, copies, files of line types, measuring, editing texts.

#include "drawing/entities/block_reference.h"
#include "drawing/entities/dimension_kinds.h"
#include "drawing/entities/hatch.h"
#include "drawing/entities/leader.h"
#include "drawing/entities/line.h"
#include "drawing/entities/mtext.h"
#include "drawing/entities/raster_image.h"
#include "drawing/id_mapping.h"
#include "drawing/objects/group.h"
#include "drawing/objects/named_styles.h"
#include "drawing/xdata.h"
#include "engine/commands/command_fixture.h"

#include <QFile>
#include <QTemporaryDir>

namespace {

class EditCommands : public CommandFixture {
 protected:
  OdDbDictionaryPtr groups() {
    return oddb::createNamedDictionary(database(), oddb::NamedKind::kGroup)
        .safeOpenObject(OdDb::kForWrite);
  }
  /// An insert at 10,0 with an attribute in the middle of 20,5.
  void makeInsert() {
    const auto definition = odrxMake<OdDbAttributeDefinition>();
    definition->setTag(QStringLiteral("NAME"));
    definition->setTextString(QStringLiteral("abc"));
    definition->setHorizontalMode(OdDb::kTextCenter);
    definition->setVerticalMode(OdDb::kTextVertMid);
    definition->setAlignmentPoint({10, 5, 0});
    const auto block = odrxMake<OdDbBlockTableRecord>();
    block->setName(QStringLiteral("Mark"));
    const OdDbObjectId id =
        database().getBlockTableId().openAs<OdDbBlockTable>(OdDb::kForWrite)->add(block);
    block->appendOdDbEntity(definition);
    block->appendOdDbEntity(odrxMake<OdDbLine>(OdGePoint3d{}, OdGePoint3d{10, 0, 0}));
    const auto insert = odrxMake<OdDbBlockReference>(id, OdGePoint3d{10, 0, 0});
    database()
        .getModelSpaceId()
        .openAs<OdDbBlockTableRecord>(OdDb::kForWrite)
        ->appendOdDbEntity(insert);
    insert->appendAttributesFromBlock();
  }
  /// Entities in the form of the file, with bars between the lines.
  void addKept(QByteArray tags) {
    QByteArray file = OdDbDatabase::createDatabase()->writeDxf();
    file.replace("\r\n", "\n");
    file.insert(file.indexOf("  0\nENDSEC\n", file.indexOf("\nENTITIES\n")),
                tags.replace('|', '\n'));
    const OdDbDatabasePtr source = OdDbDatabase::readDxf(file, QStringLiteral("kept.dxf"));
    std::vector<OdDbObjectId> ids;
    const auto space = source->getModelSpaceId().openAs<OdDbBlockTableRecord>();
    for (const auto at = space->newIterator(); !at->done(); at->step())
      ids.push_back(at->objectId());
    OdDbIdMapping mapping;
    database().wblockCloneObjects(ids, database().getModelSpaceId(), mapping, OdDb::kDrcIgnore);
  }
  /// Two lines in a group, and a third one.
  void makeGroup() {
    runScript(u"LINE|0,0|10,0||LINE|0,5|10,5||LINE|0,10|10,10|");
    const OdDbGroupPtr group = odrxMake<OdDbGroup>();
    groups()->setAt(QStringLiteral("Pair"), group);
    group->append(entityAt(0));
    group->append(entityAt(1));
  }
};

} // namespace

TEST_F(EditCommands, CopiesWhatIsKeptAsTheFileHadItIfItCanBeMoved) {
  addKept("0|WIPEOUT|5|F0|100|AcDbEntity|8|0|100|AcDbWipeout|90|0|10|1.0|20|2.0|30|0.0|"
          "11|4.0|21|0.0|31|0.0|12|0.0|22|3.0|32|0.0|13|1.0|23|1.0|340|0|70|7|280|1|"
          "281|50|282|50|283|0|360|0|71|2|91|4|14|-0.5|24|-0.5|14|0.5|24|-0.5|14|0.5|24|"
          "0.5|14|-0.5|24|-0.5|0|MYSTERY|5|F1|100|AcDbEntity|8|0|100|AcDbMystery|");
  runScript(u"COPY|all||0,0|10,0||");
  EXPECT_FALSE(isRunning());
  QByteArray copied = dxf();
  EXPECT_EQ(copied.count("\nWIPEOUT"), 2);
  EXPECT_EQ(copied.count("\nMYSTERY"), 1);
  EXPECT_TRUE(console().shows(QStringLiteral("1 could not be copied.")));
}

TEST_F(EditCommands, TolerancesAndTablesCanBeMirroredAndTablesTellWhyTheyStay) {
  const QByteArray tolerance =
      "0|TOLERANCE|5|F0|100|AcDbEntity|8|0|100|AcDbFcf|3|Standard|10|2.0|20|3.0|30|0.0|1|AB|11|1.0|"
      "21|0.0|31|0.0|";
  const QByteArray table =
      "0|ACAD_TABLE|5|F1|100|AcDbEntity|8|0|100|AcDbBlockReference|2|*T1|10|3.0|20|4.0|30|0.0|100|"
      "AcDbTable|11|1.0|21|0.0|31|0.0|91|1|92|1|141|5.0|142|10.0|";
  addKept(tolerance + table);
  runScript(u"MIRRTEXT|0|MIRROR|all||0,0|0,1|y");
  EXPECT_FALSE(console().shows(QStringLiteral("could not"))) << output().toStdString();
  QByteArray now = dxf();
  EXPECT_TRUE(now.contains("AcDbBlockReference\n  2\n*T1\n 10\n-13.0\n 20\n4.0\n"))
      << now.constData();
  EXPECT_FALSE(now.contains("\n230\n-1.0\n")) << "letters are seen from above";
  runScript(u"MIRRTEXT|1|MIRROR|all||0,0|0,1|y");
  now = dxf();
  EXPECT_TRUE(now.contains("AcDbBlockReference\n  2\n*T1\n 10\n3.0\n 20\n4.0\n"));
  EXPECT_TRUE(now.contains("\n230\n-1.0\n")) << "letters run backwards";
  runScript(u"SCALE|all||0,0|2");
  EXPECT_TRUE(console().shows(QStringLiteral("1 could not be scaled.")));
  EXPECT_TRUE(console().shows(QStringLiteral("1 of them are tables")));
  EXPECT_TRUE(dxf().contains("AcDbBlockReference\n  2\n*T1\n 10\n3.0\n 20\n4.0\n"));
}

TEST_F(EditCommands, WhatIsChosenBeforeACommandIsNotAskedFor) {
  runScript(u"LINE|0,0|10,0||CIRCLE|20,0|2|QSELECT|CIRCLE|*|*||i|ERASE");
  EXPECT_FALSE(isRunning());
  EXPECT_EQ(describeEntities(database()), QStringLiteral("LINE 0,0,0 10,0,0"));
}

TEST_F(EditCommands, QselectCanExclude) {
  runScript(u"LINE|0,0|10,0||CIRCLE|20,0|2|QSELECT|CIRCLE|*|*||e|ERASE");
  EXPECT_EQ(describeEntities(database()), QStringLiteral("CIRCLE 20,0,0 r2"));
}

TEST_F(EditCommands, QselectByColorAndLayer) {
  runScript(u"LAYER|m|Walls||COLOR|1|LINE|0,0|10,0||COLOR|2|LINE|0,5|10,5||QSELECT|*|Walls|*|1|i|"
            u"ERASE");
  EXPECT_EQ(describeEntities(database()), QStringLiteral("LINE 0,5,0 10,5,0"));
}

TEST_F(EditCommands, TheChoiceBeforeACommandServesOnce) {
  runScript(u"LINE|0,0|10,0||CIRCLE|20,0|2|QSELECT|CIRCLE|*|*||i|MOVE|0,0|0,5|MOVE");
  EXPECT_TRUE(isRunning());
  EXPECT_EQ(prompt().left(14), QStringLiteral("Select objects"));
}

TEST_F(EditCommands, CancelWithoutACommandForgetsTheChoice) {
  runScript(u"LINE|0,0|10,0||QSELECT|*|*|*||i");
  type(QStringLiteral("^C"));
  runScript(u"ERASE");
  EXPECT_TRUE(isRunning());
}

TEST_F(EditCommands, WithoutPickfirstCommandsAsk) {
  runScript(u"LINE|0,0|10,0||PICKFIRST|0|QSELECT|*|*|*||i|ERASE");
  EXPECT_TRUE(isRunning());
}

TEST_F(EditCommands, AnEntityBringsItsGroup) {
  makeGroup();
  runScript(u"ERASE|5,0|");
  EXPECT_EQ(describeEntities(database()), QStringLiteral("LINE 0,10,0 10,10,0"));
}

TEST_F(EditCommands, AnEntityComesAloneIfGroupsAreNotPicked) {
  makeGroup();
  runScript(u"PICKSTYLE|0|ERASE|5,0|");
  EXPECT_EQ(describeEntities(database()), QStringLiteral("LINE 0,5,0 10,5,0\nLINE 0,10,0 10,10,0"));
}

TEST_F(EditCommands, GroupMembersOnLockedLayersStay) {
  makeGroup();
  runScript(u"LAYER|n|Locked|lo|Locked||");
  const auto layers = database().getLayerTableId().openAs<OdDbLayerTable>();
  entityAt(1)
      .openAs<OdDbEntity>(OdDb::kForWrite)
      ->setLayer(layers->getAt(QStringLiteral("Locked")));
  runScript(u"ERASE|5,0|");
  EXPECT_EQ(describeEntities(database()), QStringLiteral("LINE 0,5,0 10,5,0\nLINE 0,10,0 10,10,0"));
}

TEST_F(EditCommands, CopiesOfAGroupAreAGroup) {
  makeGroup();
  runScript(u"COPY|5,0||0,0|0,100|");
  std::vector<OdDbGroupPtr> all;
  for (const OdDbDictionary::Entry& entry : groups()->entries())
    all.push_back(entry.id.safeOpenObject());
  ASSERT_EQ(all.size(), 2u);
  EXPECT_EQ(all[0]->allEntityIds(), (std::vector<OdDbObjectId>{entityAt(0), entityAt(1)}));
  EXPECT_EQ(all[1]->allEntityIds(), (std::vector<OdDbObjectId>{entityAt(3), entityAt(4)}));
}

TEST_F(EditCommands, CopiesOfAPartOfAGroupAreNone) {
  makeGroup();
  runScript(u"PICKSTYLE|0|COPY|5,0||0,0|0,100|");
  EXPECT_EQ(groups()->entries().size(), 1u);
}

TEST_F(EditCommands, CopiesOfAnInsertHaveAttributesOfTheirOwn) {
  makeInsert();
  runScript(u"COPY|l||0,0|0,100|");
  const OdDbBlockReferencePtr copy = entityAt(1).safeOpenObject();
  ASSERT_EQ(copy->attributes().size(), 1u);
  const OdDbAttributePtr text = copy->attributes()[0];
  EXPECT_EQ(text->textString(), QStringLiteral("abc"));
  EXPECT_EQ(text->alignmentPoint(), (OdGePoint3d{20, 105, 0}));
  EXPECT_EQ(text->ownerId(), copy->objectId());
  runScript(u"ERASE|l|");
  EXPECT_EQ(OdDbBlockReferencePtr(entityAt(0).safeOpenObject())->attributes().size(), 1u);
}

TEST_F(EditCommands, AttributesOfAMirroredInsertStayReadable) {
  makeInsert();
  runScript(u"MIRRTEXT|0|MIRROR|l||0,0|0,1|y");
  const OdDbBlockReferencePtr insert = entityAt(0).safeOpenObject();
  const OdDbAttributePtr text = insert->attributes()[0];
  EXPECT_NEAR(text->alignmentPoint().x, -20, 1e-9);
  EXPECT_NEAR(text->alignmentPoint().y, 5, 1e-9);
  EXPECT_NEAR(text->normal().z, 1, 1e-9);
  EXPECT_NEAR(text->rotation(), 0, 1e-9);
  EXPECT_FALSE(text->isMirroredInX());
  EXPECT_FALSE(text->isMirroredInY());
}

TEST_F(EditCommands, AttributesThatNobodySeesAreMirroredLikeAllOthers) {
  for (const bool isEmpty : {false, true}) {
    restart({});
    makeInsert();
    const OdDbAttributePtr hidden =
        OdDbBlockReferencePtr(entityAt(0).safeOpenObject())->attributes(OdDb::kForWrite)[0];
    if (isEmpty)
      hidden->setTextString({});
    else
      hidden->setInvisible(true);
    runScript(u"MIRRTEXT|0|MIRROR|l||0,0|0,1|y");
    const OdDbBlockReferencePtr insert = entityAt(0).safeOpenObject();
    const OdDbAttributePtr text = insert->attributes()[0];
    EXPECT_NEAR(text->alignmentPoint().x, -20, 1e-9) << isEmpty;
    EXPECT_NEAR(text->alignmentPoint().y, 5, 1e-9) << isEmpty;
    EXPECT_FALSE(text->isMirroredInX()) << isEmpty;
    EXPECT_FALSE(text->isMirroredInY()) << isEmpty;
  }
}

TEST_F(EditCommands, CopiesLeadToCopies) {
  runScript(u"LEADER|0,0|5,5||note||COPY|all||0,0|100,0|");
  EXPECT_FALSE(isRunning()) << output().toStdString();
  const OdDbLeaderPtr first = entityAt(0).safeOpenObject(), second = entityAt(2).safeOpenObject();
  EXPECT_EQ(first->annotationObjId(), entityAt(1));
  EXPECT_EQ(second->annotationObjId(), entityAt(3));
}

TEST_F(EditCommands, PiecesOfABlockLeadToPieces) {
  runScript(u"LEADER|0,0|5,5||note||CIRCLE|20,0|5|HPNAME|SOLID|BHATCH|20,0|");
  runScript(u"BLOCK|Noted|0,0|all||INSERT|Noted|0,0||||INSERT|Noted|0,100||||EXPLODE|all|");
  EXPECT_FALSE(isRunning()) << output().toStdString();
  std::vector<OdDbObjectId> ids =
      database().getModelSpaceId().openAs<OdDbBlockTableRecord>()->entityIds();
  ASSERT_EQ(ids.size() % 2, 0u) << output().toStdString();
  int leaders = 0, hatches = 0;
  for (const OdDbObjectId id : ids) {
    const OdDbObjectPtr object = id.openObject();
    if (const auto* leader = odrxCast<OdDbLeader>(object.get())) {
      ++leaders;
      const OdDbEntityPtr note = leader->annotationObjId().openObject();
      ASSERT_TRUE(note);
      EXPECT_EQ(note->ownerId(), database().getModelSpaceId());
    }
    if (const auto* hatch = odrxCast<OdDbHatch>(object.get())) {
      ++hatches;
      for (const OdDbObjectId source : hatch->getAssocObjIds())
        EXPECT_EQ(source.openObject()->ownerId(), database().getModelSpaceId());
    }
  }
  EXPECT_EQ(leaders, 2);
  EXPECT_EQ(hatches, 2) << output().toStdString();
}

TEST_F(EditCommands, WhatCannotTakeTheShapeOfAnInsertFallsIntoPieces) {
  runScript(u"DIMLINEAR|0,0|10,5|4,9|LINE|0,0|1,1||BLOCK|Sized|0,0|all||INSERT|Sized|0,0|2|1|0|"
            u"EXPLODE|l|");
  EXPECT_FALSE(isRunning());
  const OdString all = describeEntities(database());
  EXPECT_TRUE(all.contains(QStringLiteral("LINE 0,0,0 2,1,0"))) << all.toStdString();
  EXPECT_FALSE(all.contains(QStringLiteral("INSERT"))) << all.toStdString();
  EXPECT_FALSE(all.contains(QStringLiteral("DIMENSION"))) << all.toStdString();
}

TEST_F(EditCommands, ImagesAreTakenByTheirTurnedEdge) {
  const OdDbRasterImagePtr image = odrxMake<OdDbRasterImage>();
  image->setOrientation({0, 0, 0}, {10, 10, 0}, {-10, 10, 0});
  database()
      .getModelSpaceId()
      .openAs<OdDbBlockTableRecord>(OdDb::kForWrite)
      ->appendOdDbEntity(image);
  runScript(u"SELECT|c|8,0|9,1||");
  EXPECT_TRUE(console().shows(QStringLiteral("0 selected"))) << output().toStdString();
  runScript(u"SELECT|5,5|");
  EXPECT_TRUE(console().shows(QStringLiteral("1 selected"))) << output().toStdString();
}

TEST_F(EditCommands, TheWindowOfTheSheetIsNotChosen) {
  runScript(u"LAYOUT|n|Sheet|LAYOUT|s|Sheet|LINE|0,0|5,5||SELECT|all|");
  EXPECT_TRUE(console().shows(QStringLiteral("1 selected"))) << output().toStdString();
}

TEST_F(EditCommands, LinetypesAreLoadedFromFiles) {
  QTemporaryDir folder;
  QFile file(folder.filePath(QStringLiteral("ours.lin")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("*DASHES,Dash dash\nA,1,-1\n*DOTS,Dot dot\nA,0,-1\n");
  file.close();
  const OdString load = QStringLiteral("LINETYPE\nl\n%1\n") + file.fileName() + u'\n';
  type(load.arg(QStringLiteral("DASH*")) + u'\n');
  const auto table = database().getLinetypeTableId().openAs<OdDbLinetypeTable>();
  EXPECT_TRUE(table->has(QStringLiteral("DASHES")));
  EXPECT_FALSE(table->has(QStringLiteral("DOTS")));

  const OdDbLinetypeTableRecordPtr dashes =
      table->getAt(QStringLiteral("DASHES")).safeOpenObject(OdDb::kForWrite);
  dashes->setDashLengthAt(0, 7);
  type(load.arg(QStringLiteral("DASHES")) + QStringLiteral("n\n\n"));
  EXPECT_EQ(dashes->dashLengthAt(0), 7);
  type(load.arg(QStringLiteral("*")) + QStringLiteral("y\n\n"));
  EXPECT_EQ(dashes->dashLengthAt(0), 1);
  EXPECT_EQ(dashes->comments(), QStringLiteral("Dash dash"));
  EXPECT_TRUE(table->has(QStringLiteral("DOTS")));
  type(load.arg(QStringLiteral("NONE")) + u'\n');
  EXPECT_TRUE(console().shows(QStringLiteral("The file has no line type \"NONE\".")));
  EXPECT_FALSE(isRunning());
}

TEST_F(EditCommands, ExtendedDataGoesWithItsEntity) {
  runScript(u"LINE|0,0|10,0|");
  oddb::setXData(*entityAt(0).openAs<OdDbEntity>(OdDb::kForWrite), "ACAD",
                 {{1011, "1.0"}, {1021, "2.0"}, {1031, "0.0"}, {1041, "3.0"}});
  const auto kept = [&](int index) {
    std::vector<double> values;
    for (const auto& tag : oddb::xdataOf(*entityAt(index).openAs<OdDbEntity>(), "ACAD"))
      values.push_back(tag.value.toDouble());
    return values;
  };
  runScript(u"MOVE|l||0,0|10,0");
  EXPECT_EQ(kept(0), (std::vector<double>{11, 2, 0, 3}));
  runScript(u"SCALE|l||0,0|2");
  EXPECT_EQ(kept(0), (std::vector<double>{22, 4, 0, 6}));
  runScript(u"MIRROR|l||0,0|0,1|n");
  EXPECT_EQ(kept(0), (std::vector<double>{22, 4, 0, 6}));
  EXPECT_EQ(kept(1), (std::vector<double>{-22, 4, 0, 6}));
}

TEST_F(EditCommands, DistanceTellsLengthAngleAndDifferences) {
  runScript(u"DIST|1,1|4,5,2");
  EXPECT_TRUE(console().shows(QStringLiteral("Distance = 5.3852, angle = 53.1301")));
  EXPECT_TRUE(console().shows(QStringLiteral("Delta X = 3, Y = 4, Z = 2")));
  runScript(u"DIST|1,1|1,1,3");
  EXPECT_TRUE(console().shows(QStringLiteral("Distance = 3, angle = 0")));
  EXPECT_FALSE(database().isModified()) << "nothing was changed";
}

TEST_F(EditCommands, ACornerThatCannotBeIsToldWithItsReason) {
  struct Row {
    const char16_t* setup;
    const char16_t* words;
    const char* told;
  };
  constexpr Row kRows[] = {
      {u"LINE|0,0|10,0||LINE|0,3|10,3|", u"FILLET|5,0|5,3|", "The objects have no such corner."},
      {u"LINE|0,0|10,0||LINE|0,0|0,8|", u"FILLET|r|20|8,0|0,6|",
       "The objects are too short for that corner."},
      {u"LINE|0,0,5|10,0,5||LINE|0,0|0,8|", u"FILLET|8,0|0,6|",
       "The objects lie at different heights."},
      {u"LINE|0,0|10,0||ELLIPSE|c|0,20|5,20|3", u"FILLET|8,0|5,20|",
       "Only lines, arcs, circles and sides of one polyline have such corners."},
      {u"LINE|0,0|10,0|", u"FILLET|8,0|2,0|", "Select two objects, or two sides of one polyline."},
      {u"RECTANG|0,0|10,8", u"FILLET|5,0|5,8|", "The sides do not meet at a corner."},
      {u"RECTANG|0,0|10,8", u"CHAMFER|d|9||5,0|10,4|",
       "The objects are too short for that corner."},
      {u"LINE|0,0|10,0|", u"CHAMFER|p|5,0||", "That is no polyline."},
  };
  for (const Row& row : kRows) {
    restart(withProgramFolder());
    runScript(row.setup);
    const OdString before = describeEntities(database());
    runScript(row.words);
    EXPECT_TRUE(console().shows(QLatin1String(row.told))) << row.told << output().toStdString();
    EXPECT_EQ(describeEntities(database()), before) << row.told;
  }
}

TEST_F(EditCommands, DimensionsFollowWhatIsStretched) {
  runScript(u"LINE|0,0|10,0||DLI|0,0|10,0|5,3|STRETCH|9,-1|11,1|0,0|5,0");
  const auto dimension = entityAt(1).openAs<OdDbAlignedDimension>();
  EXPECT_EQ(dimension->xLine2Point(), OdGePoint3d(15, 0, 0));
  EXPECT_NEAR(dimension->getMeasurement(), 15, 1e-9);
  std::vector<OdDbEntityPtr> pieces;
  ASSERT_TRUE(dimension->explode(pieces));
  OdGeExtents3d box;
  for (const OdDbEntityPtr& piece : pieces)
    if (OdGeExtents3d own; piece->getGeomExtents(own)) box.addExt(own);
  EXPECT_GT(box.maxPoint().x, 14.9) << "its picture does, too";
}

TEST_F(EditCommands, ArraysBeyondAllMeasureAreRefused) {
  runScript(u"LINE|0,0|10,0||ARRAY|l||r|100000|100000");
  EXPECT_TRUE(console().shows(QStringLiteral("More than 100000 copies are not made at once.")));
  EXPECT_FALSE(isRunning());
}

TEST_F(EditCommands, StretchingNothingSaysSo) {
  runScript(u"LINE|0,0|10,0||STRETCH|20,20|30,30");
  EXPECT_TRUE(console().shows(QStringLiteral("Nothing was found there.")));
  EXPECT_FALSE(isRunning());
}

TEST_F(EditCommands, ARadiusThatWasSetStaysSetWhenTheCornerIsGivenUp) {
  const auto size = [this](const char* name) {
    OdVariant value;
    variables().get(QLatin1String(name), value);
    return value.toDouble();
  };
  runScript(u"LINE|0,0|10,0||LINE|0,0|0,8||FILLET|r|3|^C");
  EXPECT_EQ(size("FILLETRAD"), 3);
  EXPECT_EQ(database().sysVarReal("FILLETRAD"), 10) << "the drawing is as it was";
  runScript(u"CHAMFER|d|2|1|^C");
  EXPECT_EQ(size("CHAMFERA"), 2);
  EXPECT_EQ(size("CHAMFERB"), 1);
  runScript(u"FILLET|8,0|0,6");
  EXPECT_TRUE(describeEntities(database()).contains(QLatin1String("ARC 3,3,0 r3")));
  EXPECT_EQ(database().sysVarReal("FILLETRAD"), 3) << "it is saved with the corner";
  runScript(u"U|FILLETRAD|0|FILLET|^C");
  EXPECT_EQ(size("FILLETRAD"), 0) << "what was set last counts";
}

TEST_F(EditCommands, AreasAreToldInTheUnitsAndThePrecisionOfTheDrawing) {
  runScript(u"AREA|0,0|4000,0|4000,3000|");
  EXPECT_TRUE(console().shows(QStringLiteral("Area = 6000000 mm\u00b2 (6 m\u00b2), "
                                             "perimeter = 12000 mm")));
  runScript(u"INSUNITS|6|LUPREC|1|AREA|0,0|1,0|1,0.75|");
  EXPECT_TRUE(console().shows(QStringLiteral("Area = 0.4 m\u00b2, perimeter = 3 m")));
  runScript(u"INSUNITS|1|LUNITS|4|AREA|0,0|36,0|36,48|");
  EXPECT_TRUE(console().shows(QStringLiteral("Area = 864 in\u00b2 (6 ft\u00b2), perimeter = 12'")))
      << output().toStdString();
  runScript(u"INSUNITS|0|LUNITS|2|LUPREC|4|AREA|0,0|1,0|");
  EXPECT_TRUE(console().shows(QStringLiteral("An area needs three corners.")));
  runScript(u"CIRCLE|0,0|1|ARC|c|9,0|10,0|8,0|LINE|0,5|9,5|");
  database().setSaved();
  runScript(u"AREA|o|1,0");
  EXPECT_TRUE(console().shows(QStringLiteral("Area = 3.1416, perimeter = 6.2832")));
  runScript(u"AREA||10,0");
  EXPECT_TRUE(console().shows(QStringLiteral("Area = 1.5708, length = 3.1416")));
  runScript(u"AREA||3,5||");
  EXPECT_TRUE(console().shows(QStringLiteral("The object encloses no area.")));
  EXPECT_FALSE(database().isModified()) << "nothing was changed";
}

TEST_F(EditCommands, HatchesTellTheirArea) {
  runScript(u"INSUNITS|0|RECTANG|0,0|10,8|BHATCH|p|s|5,4||AREA|o|l");
  EXPECT_TRUE(console().shows(QStringLiteral("Area = 80"))) << output().toStdString();
}

TEST_F(EditCommands, ValuesOfAnInsertAreEditedOneByOneOrTheOneThatIsPointedAt) {
  makeInsert();
  const auto value = [this] {
    return entityAt(0).openAs<OdDbBlockReference>()->attributes().front()->textString();
  };
  runScript(u"TEXTEDIT|l|kitchen|");
  EXPECT_EQ(value(), QStringLiteral("kitchen"));
  runScript(u"TEXTEDIT|20,5|bath and hall|");
  EXPECT_EQ(value(), QStringLiteral("bath and hall"));
  const auto attribute = entityAt(0).openAs<OdDbBlockReference>()->attributes().front();
  OdGeExtents3d box;
  ASSERT_TRUE(attribute->getGeomExtents(box));
  EXPECT_NEAR((box.minPoint().x + box.maxPoint().x) / 2, 20, 1) << "it stays in the middle";
  runScript(u"TEXTEDIT|l|\"\"|");
  EXPECT_EQ(value(), OdString()) << "a value can be empty";
  runScript(u"U|TEXTEDIT|l|^C");
  EXPECT_EQ(value(), QStringLiteral("bath and hall"));
}

TEST_F(EditCommands, TheTextOfADimensionIsEditedAndShown) {
  runScript(u"DLI|0,0|10,0|5,3|TEXTEDIT|l|about <>|");
  const auto shown = [this] { return entityAt(0).openAs<OdDbAlignedDimension>()->displayedText(); };
  EXPECT_EQ(shown(), QStringLiteral("about 10"));
  std::vector<OdDbEntityPtr> pieces;
  ASSERT_TRUE(entityAt(0).openAs<OdDbAlignedDimension>()->explode(pieces));
  OdString drawn;
  for (const OdDbEntityPtr& piece : pieces)
    if (const auto* const text = odrxCast<OdDbMText>(piece)) drawn = text->contents();
  EXPECT_TRUE(drawn.contains(QLatin1String("about 10"))) << drawn.toStdString();
  runScript(u"TEXTEDIT|l|<>|");
  EXPECT_EQ(shown(), QStringLiteral("10"));
  EXPECT_TRUE(entityAt(0).openAs<OdDbDimension>()->dimensionText().isEmpty());
}

TEST_F(EditCommands, NumbersBeyondAllFractionsAreToldWhole) {
  runScript(u"AREA|-1e308,-1e308|1e308,-1e308|1e308,1e308|");
  EXPECT_TRUE(console().shows(QStringLiteral("The area is too large to calculate with.")));
  runScript(u"DIST|0,0|1e-9,-1e-9");
  EXPECT_TRUE(console().shows(QStringLiteral("Delta X = 0, Y = 0, Z = 0")));
  for (const char16_t* script :
       {u"LUNITS|3|DIST|0,0|1e19,0", u"LUNITS|4|DIST|0,0|1e19,0", u"LUNITS|5|DIST|0,0|1e19,0"}) {
    console().clear();
    runScript(script);
    EXPECT_TRUE(console().shows(QStringLiteral("Distance = 10000000000000000000, ")))
        << output().toStdString();
  }
}

TEST_F(EditCommands, ATextOnALockedLayerIsNotEditedThoughItWasChosenBefore) {
  runScript(u"TEXT|0,0|||one||LAYER|LO|0|");
  for (const char16_t* script : {u"TEXTEDIT|two|", u"LAYER|U|0||PICKFIRST|0|TEXTEDIT|two|"}) {
    document().preselection() = {entityAt(0)};
    runScript(script);
    runScript(u"^C");
    EXPECT_EQ(entityAt(0).openAs<OdDbText>()->textString(), QStringLiteral("one"));
  }
}

TEST_F(EditCommands, OneTextThatWasChosenBeforeIsEditedAlone) {
  runScript(u"TEXT|0,0|||one|");
  document().preselection() = {entityAt(0)};
  runScript(u"TEXTEDIT|two");
  EXPECT_FALSE(isRunning());
  EXPECT_EQ(entityAt(0).openAs<OdDbText>()->textString(), QStringLiteral("two"));
  runScript(u"U");
  EXPECT_EQ(entityAt(0).openAs<OdDbText>()->textString(), QStringLiteral("one")) << "one step";
}
