// Tools that are made of hatches.
#include "drawing/entities/hatch.h"
#include "tool_maker_fixture.h"
#include "tools/hatch_tool.h"

using namespace tc;
using namespace Qt::StringLiterals;

namespace {

using testhost::host;

struct HatchMakerTest : testhost::ToolMakerFixture {
  OdTcToolPtr toolOfHatch() { return manager().createToolFromEntity(add(hatch)); }
  const OdTcToolHatchCommandImpl& agent() { return agentOf<OdTcToolHatchCommandImpl>(tool); }
  OdSmartPtr<OdDbHatch> hatch = odrxMake<OdDbHatch>();
  OdTcToolPtr tool;
};

TEST_F(HatchMakerTest, PatternIsTakenWithAngleScaleAndSpacing) {
  hatch->setPattern(OdDbHatch::kPreDefined, u"ACAD_ISO02W100"_s, std::vector<OdHatchPatternLine>());
  hatch->setPatternAngle(0.5);
  hatch->setPatternScale(2.5);
  host().customPatterns[u"ISO02W100"_s] = u"C:\\mine.pat"_s;
  tool = toolOfHatch();
  ASSERT_TRUE(tool);
  EXPECT_TRUE(tool->isRegular());
  EXPECT_EQ(tool->name(), u"ISO02W100"_s);
  EXPECT_EQ(agent().fields().hatchObjectType, 0);
  EXPECT_EQ(agent().getHatchType(), 1);
  EXPECT_EQ(agent().getPatternName(), u"ISO02W100"_s);
  EXPECT_EQ(agent().getSourceFile(), u"C:\\mine.pat"_s);
  EXPECT_EQ(agent().getAngle(), 0.5);
  EXPECT_EQ(agent().getScale(), 2.5);
  EXPECT_FALSE(agent().getIsCrosswise());
  EXPECT_EQ(sizesOf(tool), kThree);
  const OdString src = tool->images()->findBySize(1)->src();
  EXPECT_TRUE(src.startsWith(u"\\Images\\Hatch tool instrument_"_s)) << qPrintable(src);
}

TEST_F(HatchMakerTest, PatternThatIsNobodysOwnStandsInTheDefaultFile) {
  hatch->setPattern(OdDbHatch::kCustomDefined, u"MINE"_s, std::vector<OdHatchPatternLine>());
  tool = toolOfHatch();
  EXPECT_EQ(agent().getHatchType(), 2);
  EXPECT_EQ(agent().getSourceFile(), u"draftoniso.pat"_s);
}

TEST_F(HatchMakerTest, LinesAndGradientsNeedNoPattern) {
  host().previews.canRender = false;
  hatch->setPattern(OdDbHatch::kUserDefined, u"_USER"_s, OdHatchPattern::userDefined(1, true));
  ASSERT_TRUE(toolOfHatch());
  hatch = odrxMake<OdDbHatch>();
  hatch->setGradient(true);
  ASSERT_TRUE(toolOfHatch());
  EXPECT_EQ(host().messages.printed, QStringList());
}

TEST_F(HatchMakerTest, HatchOfLinesHasTheTranslatedNameAndIsUserDefined) {
  host().translations[u"From lines"_s] = u"Aus Linien"_s;
  hatch->setPattern(OdDbHatch::kUserDefined, u"_USER"_s, OdHatchPattern::userDefined(1, true));
  hatch->setPatternSpace(6);
  hatch->setPatternDouble(true);
  tool = toolOfHatch();
  ASSERT_TRUE(tool);
  EXPECT_EQ(agent().getPatternName(), u"Aus Linien"_s);
  EXPECT_EQ(agent().getHatchType(), 0);
  EXPECT_EQ(agent().getSpacing(), 6);
  EXPECT_TRUE(agent().getIsCrosswise());
}

TEST_F(HatchMakerTest, GradientIsTakenWithItsColors) {
  hatch->setGradient(true);
  hatch->setGradientName(u"INVSPHERICAL"_s);
  hatch->setGradientColors(OdCmColor::fromRgb(1, 2, 3), OdCmColor::fromRgb(4, 5, 6));
  hatch->setGradientAngle(0.25);
  hatch->setGradientShift(0);
  tool = toolOfHatch();
  ASSERT_TRUE(tool);
  EXPECT_EQ(agent().fields().hatchObjectType, 1);
  EXPECT_EQ(agent().fields().gradientName, u"INVSPHERICAL"_s);
  EXPECT_EQ(tool->name(), u"Inversed-spherical"_s);
  EXPECT_EQ(agent().getGradientColor1(), OdCmColor::fromRgb(1, 2, 3));
  EXPECT_EQ(agent().getGradientColor2(), OdCmColor::fromRgb(4, 5, 6));
  EXPECT_EQ(agent().getGradientAngle(), 0.25);
  EXPECT_TRUE(agent().getIsGradientCentered());
  EXPECT_EQ(sizesOf(tool), kThree);
}

} // namespace
