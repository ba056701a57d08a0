#include "drafton/engine/selection.h"

#include "drawing/entities/arc.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"
#include "drawing/entities/polyline.h"
#include "engine/support/engine_fixture.h"

using namespace drafton;

namespace {

Selection g_chosen;

Task<> choose(CommandContext& context) { g_chosen = co_await selectObjects(context); }

constexpr NativeCommand kChoose[] = {{u"CHOOSE", kNoUndoStep, choose}};

/// A line from (0,0) to (10,0), a circle of radius 2 around (20,0), a line from (0,5) to (30,5) on
/// the layer "Locked".
class SelectionTest : public EngineFixture {
 protected:
  SelectionTest() {
    engine().commands().add(kChoose);
    g_chosen.clear();
    m_line = add(odrxMake<OdDbLine>(OdGePoint3d{0, 0, 0}, OdGePoint3d{10, 0, 0}));
    m_circle = add(odrxMake<OdDbCircle>(OdGePoint3d{20, 0, 0}, OdGeVector3d::zAxis(), 2.0));
    m_locked = add(odrxMake<OdDbLine>(OdGePoint3d{0, 5, 0}, OdGePoint3d{30, 5, 0}));
    const auto layer = odrxMake<OdDbLayerTableRecord>();
    layer->setName(QStringLiteral("Locked"));
    layer->setIsLocked(true);
    const OdDbObjectId id =
        database().getLayerTableId().openAs<OdDbLayerTable>(OdDb::kForWrite)->add(layer);
    m_locked.openAs<OdDbEntity>(OdDb::kForWrite)->setLayer(id);
  }
  OdDbObjectId add(const OdDbEntityPtr& entity) {
    return database()
        .getModelSpaceId()
        .openAs<OdDbBlockTableRecord>(OdDb::kForWrite)
        ->appendOdDbEntity(entity);
  }
  /// What is chosen by what is typed: "l" the line, "c" the circle, in order.
  OdString chosenBy(const OdString& typed) {
    type(QStringLiteral("CHOOSE ") + typed + QStringLiteral(" \n"));
    type(QStringLiteral("^C"));
    OdString result;
    for (const OdDbObjectId& id : g_chosen)
      result += id == m_line ? u'l' : id == m_circle ? u'c' : u'?';
    g_chosen.clear();
    return result;
  }
  OdDbObjectId m_line, m_circle, m_locked;
};

struct ChoiceRow {
  const char* typed;
  const char* chosen;
};

class Choices : public SelectionTest, public ::testing::WithParamInterface<ChoiceRow> {};

constexpr ChoiceRow kChoices[] = {
    {"all", "lc"},
    {"last", "c"},
    {"5,0", "l"},
    {"5,0.05", "l"},
    {"5,1 6,2", ""}, // an empty place, then a window with nothing in it
    {"18,0", "c"},
    {"20,0 20.5,0.5", ""}, // inside the circle is not on it
    {"20,2", "c"},
    {"w -1,-1 11,1", "l"},
    {"w -1,-1 5,1", ""},
    {"c 5,-1 6,1", "l"},
    {"c 19.5,-0.5 20.5,0.5", ""},
    {"c 5,-1 25,1", "lc"},
    {"-1,-3 30,3", "lc"}, // to the right: a window
    {"6,3 5,-3", "l"},    // to the left: crossing
    {"10,5", ""},         // a locked layer; then the opposite corner is wanted
    {"all r 5,0", "c"},
    {"all r 5,0 a 5,0", "cl"},
    {"all undo", ""},
    {"5,0 all", "lc"},
    {"5,0 5,0", "l"},
    {"box -1,-3 30,3", "lc"},
    {"box 6,3 5,-3", "l"},
    {"wp 0,-1 10,-1 5,9 \n", ""}, // the line's ends are outside of the triangle
    {"wp -5,-1 15,-1 5,9 \n", "l"},
    {"wp -5,-1 15,-1 5,9 15,9 u u 5,9 \n", "l"},
    {"wp -5,-1 15,-1 \n", ""}, // no polygon
    {"cp 4,-1 6,-1 5,1 \n", "l"},
    {"cp 4,1 6,1 5,2 \n", ""},
    {"f 5,-1 5,1 15,1 \n", "l"},
    {"f 19.5,0 20.5,0 \n", ""}, // inside of the circle is not on it
    {"f 5,-1 5,1 30,1 \n", "lc"},
    {"f 5,-1 \n", ""},
    {"si 5,0", "l"},
    {"si 5,0 20,2", "l"},
    {"fi t circle all", "c"},
    {"fi t LINE,CIRCLE all", "lc"},
    {"fi t ~LINE -5,-5 30,5", "c"},
    {"fi t OdDbCircle all", "c"},
    {"fi l 0 all", "lc"},
    {"fi l Other all", ""},
    {"fi c 1 all", ""},
    {"fi c bylayer all", "lc"},
    {"fi lt ByLayer all", "lc"},
    {"fi lt Continuous all", ""},
    {"fi t circle fi n all", "lc"},
};

TEST_P(Choices, AreMade) {
  EXPECT_EQ(chosenBy(OdString::fromLatin1(GetParam().typed)),
            OdString::fromLatin1(GetParam().chosen))
      << GetParam().typed << "\n"
      << output().toStdString();
}

INSTANTIATE_TEST_SUITE_P(All, Choices, ::testing::ValuesIn(kChoices));

} // namespace

TEST_F(SelectionTest, PreviousIsWhatWasChosenLast) {
  EXPECT_EQ(chosenBy(QStringLiteral("p")), QString());
  EXPECT_EQ(chosenBy(QStringLiteral("5,0")), QStringLiteral("l"));
  EXPECT_EQ(chosenBy(QStringLiteral("p")), QStringLiteral("l"));
}

TEST_F(SelectionTest, AnEntityIsNamedByItsHandle) {
  const OdString handle = m_circle.getHandle().ascii();
  EXPECT_EQ(chosenBy(QStringLiteral("h ") + handle), QStringLiteral("c"));
  EXPECT_EQ(chosenBy(QStringLiteral("h FFFFFF")), QString());
  EXPECT_EQ(chosenBy(QStringLiteral("h xyz")), QString());
}

TEST_F(SelectionTest, OnlyTheSpaceThatIsShownCounts) {
  EXPECT_EQ(chosenBy(QStringLiteral("5,0")), QStringLiteral("l"));
  database().setSysVar(QStringLiteral("TILEMODE"), std::int64_t{0});
  const OdDbObjectId onPaper =
      database()
          .getPaperSpaceId()
          .openAs<OdDbBlockTableRecord>(OdDb::kForWrite)
          ->appendOdDbEntity(odrxMake<OdDbLine>(OdGePoint3d{5, 0, 0}, OdGePoint3d{5, 9, 0}));
  for (const char* typed : {"all", "last", "5,0", "w -1,-1 40,10"})
    EXPECT_EQ(chosenBy(QString::fromLatin1(typed)), QStringLiteral("?")) << typed;
  EXPECT_EQ(chosenBy(QStringLiteral("h ") + onPaper.getHandle().ascii()), QStringLiteral("?"));
  EXPECT_EQ(chosenBy(QStringLiteral("h ") + m_line.getHandle().ascii()), QString());
  database().setSysVar(QStringLiteral("TILEMODE"), std::int64_t{1});
  EXPECT_EQ(chosenBy(QStringLiteral("p")), QString());
  EXPECT_EQ(chosenBy(QStringLiteral("all")), QStringLiteral("lc"));
}

TEST_F(SelectionTest, WhatBoundsASpaceIsNotChosenByItsHandle) {
  const auto space = database().getModelSpaceId().openAs<OdDbBlockTableRecord>();
  for (const OdDbObjectId id : {space->blockBeginId(), space->blockEndId()})
    EXPECT_EQ(chosenBy(QStringLiteral("h ") + id.getHandle().ascii()), QString());
}
