// ADDSELECTED.
#include "drawing/entities/dimension.h"
#include "drawing/entities/mtext.h"
#include "drawing/entities/text.h"
#include "engine/commands/command_fixture.h"
#include "engine/commands/hatch_text.h"

namespace {

class AddSelected : public CommandFixture {};

/// What ADDSELECTED draws of the kinds that it knows: the entity, where it is taken, what is
/// answered, and what stands in the drawing at the end.
struct Another {
  const char* name;
  const char16_t* setup;
  const char16_t* point;
  const char16_t* answers;
  const char* drawn; ///< class of the new entity
};

constexpr Another kAnother[] = {
    {"Line", u"LINE|0,0|10,0|", u"5,0", u"0,50|10,50|", "OdDbLine"},
    {"Polyline", u"PLINE|0,0|10,0|", u"5,0", u"0,50|10,50|", "OdDbPolyline"},
    {"Circle", u"CIRCLE|0,0|5", u"5,0", u"0,50|5", "OdDbCircle"},
    {"Arc", u"ARC|0,0|5,5|10,0", u"5,5", u"0,50|5,55|10,50", "OdDbArc"},
    {"Ellipse", u"ELLIPSE|0,0|10,0|3", u"0,0", u"0,50|10,50|3", "OdDbEllipse"},
    {"Spline", u"SPLINE|0,0|10,0|20,0||||", u"10,0", u"0,50|10,55|20,50|||", "OdDbSpline"},
    {"Point", u"POINT|0,0", u"0,0", u"0,50", "OdDbPoint"},
    {"Text", u"TEXT|0,0|7|0|abc|", u"0,0", u"0,50|||def|", "OdDbText"},
    {"Mtext", u"MTEXT|0,0|h|7|50,-20|abc|", u"0,0", u"0,50|50,30|def|", "OdDbMText"},
    {"Attribute", u"ATTDEF||no|||0,0|7|0", u"0,0", u"|name|||0,50||", "OdDbAttributeDefinition"},
    {"Leader", u"LEADER|0,0|10,10||a||", u"5,5", u"0,50|10,60||b|", "OdDbLeader"},
    {"Linear", u"DIMLINEAR|0,0|50,0|25,10", u"50,10", u"0,50|50,50|25,60", "OdDbRotatedDimension"},
    {"Aligned", u"DIMALIGNED|0,0|50,0|25,10", u"50,10", u"0,50|50,50|25,60",
     "OdDbAlignedDimension"},
    {"Insert", u"LINE|0,0|10,0||BLOCK|Door|0,0|l||INSERT|Door|0,0||||INSNAME|Other", u"5,0",
     u"|0,50|||", "OdDbBlockReference"},
};

} // namespace

TEST_F(AddSelected, DrawsAnotherOfTheKind) {
  restart(withProgramFolder());
  runScript(u"LAYER|m|Walls||COLOR|1|CIRCLE|0,0|5|COLOR|bylayer|LAYER|s|0|");
  input().lines = {QStringLiteral("20,0"), QStringLiteral("3")};
  runScript(u"ADDSELECTED|5,0");
  EXPECT_EQ(describeEntities(database()), QStringLiteral("CIRCLE 0,0,0 r5\nCIRCLE 20,0,0 r3"));
  EXPECT_FALSE(isRunning());
  const OdDbEntityPtr made = entityAt(1).safeOpenObject();
  EXPECT_EQ(made->layer(), QStringLiteral("Walls"));
  EXPECT_EQ(made->color(), OdCmColor::fromColorIndex(1));
  EXPECT_EQ(database().currentColor(), OdCmColor());
  EXPECT_EQ(database().currentLayer(), database().getLayerZeroId());
}

TEST_F(AddSelected, DrawsEveryKind) {
  for (const Another& row : kAnother) {
    SCOPED_TRACE(row.name);
    restart(withProgramFolder());
    runScript(u"LAYER|m|Walls|");
    runScript(row.setup);
    runScript(u"LAYER|s|0|");
    for (const OdString& answer : wordsOf(row.answers)) input().lines.push_back(answer);
    runScript(u"ADDSELECTED");
    runScript(row.point);
    EXPECT_FALSE(isRunning()) << prompt().toStdString();
    EXPECT_TRUE(input().lines.empty());
    input().lines.clear();
    const auto space = database().getModelSpaceId().openAs<OdDbBlockTableRecord>();
    int count = 0;
    for (auto at = space->newIterator(); !at->done(); at->step()) {
      const OdDbEntityPtr entity = at->entity();
      if (entity->isA()->name() != QLatin1String(row.drawn)) continue; // such as a note
      ++count;
      EXPECT_EQ(entity->layer(), QStringLiteral("Walls"));
      if (const auto* const text = odrxCast<OdDbText>(entity)) {
        EXPECT_EQ(text->height(), 7);
      }
      if (const auto* const text = odrxCast<OdDbMText>(entity)) {
        EXPECT_EQ(text->textHeight(), 7);
      }
    }
    EXPECT_EQ(count, 2) << output().right(1500).toStdString();
  }
}

TEST_F(AddSelected, HatchesInTheSameWay) {
  for (const char16_t* const fill : {u"BHATCH|p|p|net|2|30|50,40|", u"BHATCH|p|s|50,40|",
                                     u"BHATCH|p|g|curved|30|n|1|3|50,40|"}) {
    restart(withProgramFolder());
    runScript(u"RECTANG|0,0|100,80|RECTANG|200,0|300,80");
    runScript(fill);
    runScript(u"SETVAR|HPNAME|ANSI31|SETVAR|GFNAME|1|SETVAR|GFANG|0");
    input().lines = {QStringLiteral("250,40"), QString()};
    runScript(u"ADDSELECTED|l");
    EXPECT_FALSE(isRunning());
    const QStringList shown = describeHatches(database()).split(u'\n');
    ASSERT_EQ(shown.size(), 3) << shown.join(u'\n').toStdString();
    EXPECT_EQ(shown[2].toStdString(), shown[1].toStdString());
    EXPECT_EQ(variable("HPNAME").toString(), QStringLiteral("ANSI31"));
    EXPECT_EQ(variable("GFNAME").toInt32(), 1);
    EXPECT_EQ(variable("GFANG").toDouble(), 0);
  }
}

TEST_F(AddSelected, TakesTheStyleOfADimension) {
  restart(withProgramFolder());
  runScript(u"DIMTXT|4|DIMSTYLE|s|Large|DIMLINEAR|0,0|50,0|25,10|DIMSTYLE|r|Standard|DIMTXT|3");
  input().lines = {QStringLiteral("0,50"), QStringLiteral("50,50"), QStringLiteral("25,60")};
  runScript(u"ADDSELECTED|50,10");
  EXPECT_FALSE(isRunning());
  const OdDbDimensionPtr made = entityAt(1).safeOpenObject();
  const OdDbDimStyleTableRecordPtr style = made->dimensionStyle().safeOpenObject();
  EXPECT_EQ(style->getName(), QStringLiteral("Large"));
  EXPECT_EQ(made->dimVars().dimtxt, 4);
  EXPECT_EQ(database().sysVarReal("DIMTXT"), 3) << "what is set beside the style counts on";
}

TEST_F(AddSelected, ACancelBringsTheCurrentValuesBack) {
  restart(withProgramFolder());
  runScript(u"LAYER|m|Walls||CIRCLE|0,0|5|LAYER|s|0|");
  const QByteArray before = dxf();
  input().lines = {QStringLiteral("20,0"), QStringLiteral("^C")};
  runScript(u"ADDSELECTED|5,0");
  EXPECT_FALSE(isRunning());
  EXPECT_EQ(dxf(), before);
}

TEST_F(AddSelected, NeedsACommandForTheKind) {
  runScript(u"CIRCLE|0,0|5|ADDSELECTED|5,0");
  EXPECT_TRUE(
      console().shows(QStringLiteral("There is no command that draws objects of this kind.")));
  EXPECT_TRUE(isRunning());
}
