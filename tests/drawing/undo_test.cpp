// Steps taken back and done again.
#include "drawing/database.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"

#include <gtest/gtest.h>

namespace {

class DrawingUndo : public ::testing::Test {
 protected:
  OdDbObjectId addLine() {
    const auto line = odrxMake<OdDbLine>(OdGePoint3d{1, 2, 3}, OdGePoint3d{4, 5, 6});
    line->setDatabaseDefaults(*m_db);
    return m_db->getModelSpaceId()
        .openAs<OdDbBlockTableRecord>(OdDb::kForWrite)
        ->appendOdDbEntity(line);
  }
  OdDbObjectId addLayer(const OdString& name) {
    const auto layer = odrxMake<OdDbLayerTableRecord>();
    layer->setName(name);
    return m_db->getLayerTableId().openAs<OdDbLayerTable>(OdDb::kForWrite)->add(layer);
  }
  bool hasLayer(const char* name) {
    return m_db->getLayerTableId().openAs<OdDbLayerTable>()->has(QLatin1String(name));
  }
  void step(const char* name) { m_db->startUndoRecord(QLatin1String(name)); }

  OdDbDatabasePtr m_db = OdDbDatabase::createDatabase();
};

} // namespace

TEST_F(DrawingUndo, EveryKindOfChangeIsTakenBackAndDoneAgainByteForByte) {
  const OdDbObjectId old = addLine();
  std::vector<QByteArray> states{m_db->writeDxf()};
  const auto ended = [&] { states.push_back(m_db->writeDxf()); };

  step("LINE");
  const OdDbObjectId added = addLine();
  addLine();
  ended();
  step("MOVE");
  old.openAs<OdDbLine>(OdDb::kForWrite)->transformBy(OdGeMatrix3d::translation({1.5, 0, 0}));
  added.openAs<OdDbLine>(OdDb::kForWrite)->transformBy(OdGeMatrix3d::translation({0, 7, 0}));
  old.openAs<OdDbLine>(OdDb::kForWrite)->setColor(OdCmColor::fromColorIndex(4));
  ended();
  step("ERASE");
  old.openAs<OdDbLine>(OdDb::kForWrite)->erase();
  added.openAs<OdDbLine>(OdDb::kForWrite)->erase();
  ended();
  step("LAYER");
  const OdDbObjectId layer = addLayer(QStringLiteral("Walls"));
  m_db->setCurrentLayer(layer);
  ended();
  step("RENAME");
  const auto record = layer.openAs<OdDbLayerTableRecord>(OdDb::kForWrite);
  record->setName(QStringLiteral("Outer walls"));
  record->setPlotStyleName(QStringLiteral("Thick"));
  ended();
  step("SETVAR");
  m_db->setSysVar(QStringLiteral("LTSCALE"), 3.5);
  m_db->setCurrentTransparency(OdCmTransparency::fromPercent(20));
  ended();
  step("UNERASE");
  old.safeOpenObject(OdDb::kForWrite, true)->erase(false);
  addLine();
  ended();

  ASSERT_EQ(m_db->undoDepth(), states.size() - 1);
  for (int round = 0; round < 2; ++round) {
    for (std::size_t i = states.size() - 1; i-- > 0;) {
      ASSERT_TRUE(m_db->undo());
      EXPECT_TRUE(m_db->writeDxf() == states[i]) << i;
    }
    EXPECT_FALSE(m_db->undo());
    for (std::size_t i = 1; i < states.size(); ++i) {
      ASSERT_TRUE(m_db->redo());
      EXPECT_TRUE(m_db->writeDxf() == states[i]) << i;
    }
    EXPECT_FALSE(m_db->redo());
  }
}

TEST_F(DrawingUndo, StepsHaveNamesAndEmptyOnesLeaveNoTrace) {
  step("LINE");
  addLine();
  step("ZOOM");
  step("CIRCLE");
  EXPECT_EQ(m_db->undoDepth(), 1u);
  EXPECT_EQ(m_db->undoName(), QLatin1String("LINE"));
  EXPECT_EQ(m_db->redoName(), OdString());
  m_db->undo();
  EXPECT_EQ(m_db->redoName(), QLatin1String("LINE"));
}

TEST_F(DrawingUndo, NothingIsKeptBeforeTheFirstMark) {
  addLine();
  EXPECT_FALSE(m_db->hasUndo());
  EXPECT_FALSE(m_db->undo());
}

TEST_F(DrawingUndo, ChangeBehindAnUndoForgetsWhatCouldBeRedone) {
  step("LINE");
  const OdDbObjectId lost = addLine();
  m_db->undo();
  step("LINE");
  const OdDbObjectId taken = addLine();
  EXPECT_FALSE(m_db->hasRedo());
  // The handle is given out again, but the old id must not reach the new object.
  EXPECT_EQ(lost.getHandle(), taken.getHandle());
  EXPECT_FALSE(lost.isValid());
  EXPECT_TRUE(lost.openObject().isNull());
  EXPECT_EQ(m_db->getOdDbObjectId(taken.getHandle()), taken);
}

TEST_F(DrawingUndo, AbandonedStepIsGoneAsIfItHadNeverRun) {
  step("LINE");
  addLine();
  const QByteArray before = m_db->writeDxf();
  step("COPY");
  addLine();
  addLayer(QStringLiteral("Doors"));
  m_db->abandonUndoRecord();
  EXPECT_TRUE(m_db->writeDxf() == before);
  EXPECT_FALSE(m_db->hasRedo());
  EXPECT_EQ(m_db->undoName(), QLatin1String("LINE"));
  m_db->abandonUndoRecord();
  EXPECT_EQ(m_db->undoDepth(), 1u) << "a finished step is not abandoned";
}

TEST_F(DrawingUndo, ChangesBetweenStepsAreNotKept) {
  step("LINE");
  const OdDbObjectId first = addLine();
  m_db->endUndoRecord();
  const OdDbObjectId second = addLine();
  first.openAs<OdDbLine>(OdDb::kForWrite)->setThickness(4);
  m_db->setSysVar(QStringLiteral("PDMODE"), std::int64_t{34});
  EXPECT_EQ(m_db->undoDepth(), 1u);
  EXPECT_EQ(m_db->undoName(), QLatin1String("LINE"));
  const QByteArray before = m_db->writeDxf();
  m_db->undo();
  EXPECT_FALSE(first.isValid());
  EXPECT_TRUE(second.isValid());
  EXPECT_GT(m_db->handseed(), second.getHandle());
  EXPECT_EQ(m_db->sysVarInt("PDMODE"), 34);
  m_db->writeDxf();
  m_db->redo();
  EXPECT_EQ(first.openAs<OdDbLine>()->thickness(), 4);
  const OdDbDatabasePtr back = OdDbDatabase::readDxf(m_db->writeDxf(), QStringLiteral("back.dxf"));
  EXPECT_EQ(back->unknownContent(), QStringList());
  EXPECT_EQ(back->getModelSpaceId().openAs<OdDbBlockTableRecord>()->entityIds().size(), 2u);
}

TEST_F(DrawingUndo, ChangesBetweenStepsDoNotTurnWhatAStepErasedRound) {
  const OdDbObjectId id = addLine();
  step("ERASE");
  id.openAs<OdDbLine>(OdDb::kForWrite)->erase();
  m_db->endUndoRecord();
  id.safeOpenObject(OdDb::kForWrite, true)->erase(false);
  m_db->undo();
  EXPECT_TRUE(id.isValid());
}

TEST_F(DrawingUndo, ObjectOfNoStepKeepsItsHandleWhenStepsCouldBeRedone) {
  step("LINE");
  addLine();
  m_db->endUndoRecord();
  m_db->undo();
  const OdDbObjectId taken = addLine();
  EXPECT_FALSE(m_db->redo());
  EXPECT_EQ(m_db->getOdDbObjectId(taken.getHandle()), taken);
}

TEST_F(DrawingUndo, RunningStepGoesOnBehindAnUndo) {
  step("FIRST");
  addLine();
  m_db->undo();
  addLine();
  EXPECT_EQ(m_db->undoDepth(), 1u);
  EXPECT_EQ(m_db->undoName(), QLatin1String("FIRST"));
}

TEST_F(DrawingUndo, RollBackKeepsWhatTheStepDidBeforeTheMark) {
  const OdDbObjectId old = addLine();
  const QByteArray start = m_db->writeDxf();
  step("OUTER");
  const OdDbObjectId added = addLine();
  old.openAs<OdDbLine>(OdDb::kForWrite)->setThickness(2);
  m_db->setSysVar(QStringLiteral("LTSCALE"), 2.0);
  const QByteArray before = m_db->writeDxf();

  const OdDbUndoMark mark = m_db->undoMark();
  for (int round = 0; round < 2; ++round) {
    old.openAs<OdDbLine>(OdDb::kForWrite)->setThickness(3);
    added.openAs<OdDbLine>(OdDb::kForWrite)->transformBy(OdGeMatrix3d::translation({5, 0, 0}));
    added.openAs<OdDbLine>(OdDb::kForWrite)->erase();
    addLine();
    addLayer(QStringLiteral("Inner"));
    m_db->setSysVar(QStringLiteral("LTSCALE"), 9.0);
    EXPECT_TRUE(m_db->rollbackTo(mark));
    EXPECT_TRUE(m_db->writeDxf() == before) << round;
  }

  old.openAs<OdDbLine>(OdDb::kForWrite)->setThickness(4);
  const QByteArray end = m_db->writeDxf();
  m_db->endUndoRecord();
  EXPECT_EQ(m_db->undoDepth(), 1u);
  m_db->undo();
  EXPECT_TRUE(m_db->writeDxf() == start);
  m_db->redo();
  EXPECT_TRUE(m_db->writeDxf() == end);
}

TEST_F(DrawingUndo, StepThatIsRolledBackToItsStartLeavesNoTrace) {
  step("OUTER");
  const OdDbUndoMark mark = m_db->undoMark();
  addLine();
  EXPECT_TRUE(m_db->rollbackTo(mark));
  EXPECT_EQ(m_db->undoDepth(), 0u);
  addLine();
  EXPECT_EQ(m_db->undoName(), QLatin1String("OUTER"));
}

TEST_F(DrawingUndo, MarkOfAnotherStepRollsNothingBack) {
  const OdDbUndoMark never = m_db->undoMark();
  EXPECT_FALSE(m_db->rollbackTo(never));
  step("LINE");
  const OdDbUndoMark mark = m_db->undoMark();
  addLine();
  EXPECT_FALSE(m_db->rollbackTo(never));
  step("COPY");
  addLine();
  EXPECT_FALSE(m_db->rollbackTo(mark));
  m_db->endUndoRecord();
  EXPECT_FALSE(m_db->rollbackTo(m_db->undoMark()));
  EXPECT_EQ(m_db->undoDepth(), 2u);
}

TEST_F(DrawingUndo, NamesOfRecordsAreFoundAsTheyAreNow) {
  step("LAYER");
  const OdDbObjectId layer = addLayer(QStringLiteral("First"));
  step("RENAME");
  layer.openAs<OdDbLayerTableRecord>(OdDb::kForWrite)->setName(QStringLiteral("Second"));
  EXPECT_TRUE(hasLayer("SECOND"));
  EXPECT_FALSE(hasLayer("First"));
  m_db->undo();
  EXPECT_TRUE(hasLayer("First"));
  EXPECT_FALSE(hasLayer("Second"));
  m_db->undo();
  EXPECT_FALSE(hasLayer("First"));
  m_db->redo();
  EXPECT_TRUE(hasLayer("First"));
}

TEST_F(DrawingUndo, ReactorsLearnOfEveryChangeOnceAndInOrder) {
  struct Log : OdDbDatabaseReactor {
    QStringList events;
    void objectAppended(const OdDbDatabase&, OdDbObjectId id) override { add("appended", id); }
    void objectUnAppended(const OdDbDatabase&, OdDbObjectId id) override { add("unappended", id); }
    void objectModified(const OdDbDatabase&, OdDbObjectId id) override { add("modified", id); }
    void objectErased(const OdDbDatabase&, OdDbObjectId id, bool erased) override {
      add(erased ? "erased" : "unerased", id);
    }
    void headerSysVarChanged(const OdDbDatabase&, const OdString& name) override { events << name; }
    void add(const char* what, OdDbObjectId id) {
      events << QLatin1String(what) + QLatin1Char(' ') + id.getHandle().ascii();
    }
    QStringList take() { return std::exchange(events, {}); }
  } log;
  m_db->addReactor(&log);
  step("LINE");
  const OdDbObjectId id = addLine();
  const OdString handle = id.getHandle().ascii();
  EXPECT_EQ(log.take(), QStringList{QStringLiteral("appended ") + handle});
  step("MOVE");
  {
    const auto line = id.openAs<OdDbLine>(OdDb::kForWrite);
    line->setEndPoint({9, 9, 9});
    line->setThickness(3);
    EXPECT_EQ(log.take(), QStringList());
    line->downgradeOpen();
  }
  EXPECT_EQ(log.take(), QStringList{QStringLiteral("modified ") + handle});
  id.openAs<OdDbLine>(OdDb::kForWrite)->erase();
  m_db->setSysVar(QStringLiteral("$pdmode"), std::int64_t{34});
  EXPECT_EQ(log.take(),
            QStringList({QStringLiteral("erased ") + handle, QStringLiteral("PDMODE")}));
  m_db->undo();
  EXPECT_EQ(log.take(), QStringList({QStringLiteral("PDMODE"), QStringLiteral("unerased ") + handle,
                                     QStringLiteral("modified ") + handle}));
  m_db->undo();
  EXPECT_EQ(log.take(), QStringList{QStringLiteral("unappended ") + handle});
  m_db->removeReactor(&log);
}

TEST_F(DrawingUndo, UndoneObjectsMayOutliveTheirDrawing) {
  step("LINE");
  const OdDbLinePtr line = addLine().openAs<OdDbLine>();
  m_db->undo();
  EXPECT_FALSE(line->isDBRO());
  m_db->redo();
  EXPECT_TRUE(line->isDBRO());
  m_db->undo();
  m_db = nullptr;
  EXPECT_TRUE(line->objectId().isNull());
  EXPECT_EQ(line->numRefs(), 1);
}

TEST_F(DrawingUndo, ObjectsMayOutliveTheirDrawing) {
  const OdDbLinePtr line = addLine().openAs<OdDbLine>();
  m_db = nullptr;
  EXPECT_FALSE(line->isDBRO());
  EXPECT_EQ(line->endPoint(), (OdGePoint3d{4, 5, 6}));
  line->setEndPoint({0, 0, 0});
}
