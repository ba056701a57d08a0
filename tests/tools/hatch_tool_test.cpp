#include "tools/hatch_tool.h"

#include "drawing/database.h"
#include "drawing/objects/layout.h"
#include "properties/color_value.h"
#include "properties/general_properties.h"
#include "support/golden.h"
#include "support/module_fixture.h"
#include "tools/tool_data_impl.h"

namespace {

using namespace tc;
using testhost::host;

OdString text(const char16_t* s) { return OdString::fromUtf16(s); }

struct HatchToolTest : testhost::ModuleFixture {
  OdSmartPtr<OdTcToolHatchCommandImpl> agent = odrxMake<OdTcToolHatchCommandImpl>();
  testhost::TestDocument& document = host().documents.open(QStringLiteral("A.dxf"));

  OdVariant variable(const char16_t* name) { return document.variableSet.value(text(name)); }
  void read(const char16_t* name, const char16_t* value) {
    EXPECT_TRUE(agent->readProperty(text(name), OdVariant(text(value))))
        << text(name).toStdString();
  }
  /// The names of what was set, in order: variables of the host and settings of its hatches.
  static OdString namesOfWhatWasSet() {
    QStringList names;
    for (const QString& line : host().log)
      if (line.startsWith(text(u"set "))) names << line.section(u' ', 2).section(u'=', 0, 0);
    return names.join(u' ');
  }
  void defineHatchVariables() {
    auto& v = document.variableSet;
    v.define(text(u"HPNAME"), text(u"ANSI31"));
    v.define(text(u"HPANG"), 0.1);
    v.define(text(u"HPSCALE"), 7.0);
    v.define(text(u"HPDOUBLE"), std::int32_t{0});
    v.define(text(u"HPSPACE"), 9.0);
    v.define(text(u"HPCOLOR"), OdVariant(OdCmColor().color()));
    host().hatch.values[text(u"hatch_type")] = std::int32_t{2};
    host().hatch.values[text(u"hatch_pattern_file")] = text(u"mine.pat");
  }
};

TEST_F(HatchToolTest, TypesAFastCommandByItsKind) {
  EXPECT_TRUE(agent->execute(&document));
  agent->setHatchPatternSource(1);
  EXPECT_TRUE(agent->execute(&document));
  agent->setHatchPatternSource(2);
  EXPECT_TRUE(agent->execute(&document));
  EXPECT_EQ(document.sent, QStringList({text(u"FASTHATCHCMD "), text(u"FASTGRADIENTCMD ")}));
  EXPECT_FALSE(agent->execute(nullptr));
}

TEST_F(HatchToolTest, OtherKindSavesAndSetsNothing) {
  defineHatchVariables();
  agent->setHatchPatternSource(2);
  host().log.clear();
  agent->beginExecution(&document);
  agent->endExecution(&document);
  EXPECT_EQ(host().log, QStringList());
}

TEST_F(HatchToolTest, SetsTheHatchVariablesInOrderAndPutsThemBack) {
  defineHatchVariables();
  agent->setHatchType(1);
  agent->setPatternName(text(u"BRICK"));
  agent->setAngle(0.5);
  agent->setScale(2);
  agent->setSpacing(3);
  agent->setIsCrosswise(true);
  const auto data = odrxMake<OdTcToolDataImpl>();
  data->setActionAgent(agent);
  auto* const color = dynamic_cast<OdTcColorPropertyImpl*>(
      data->generalProperties()->findByName(text(u"General.Color")));
  ASSERT_TRUE(color);
  color->setColor(OdCmColor::fromColorIndex(3));
  host().log.clear();
  agent->beginExecution(&document);
  EXPECT_EQ(variable(u"HPNAME").toString(), text(u"BRICK"));
  EXPECT_EQ(variable(u"HPANG").toDouble(), 0.5);
  EXPECT_EQ(variable(u"HPSCALE").toDouble(), 2.0);
  EXPECT_EQ(variable(u"HPDOUBLE").toInt32(), 1);
  EXPECT_EQ(variable(u"HPSPACE").toDouble(), 3.0);
  EXPECT_EQ(variable(u"HPCOLOR").toUInt32(), 0xC3000003u);
  EXPECT_EQ(host().hatch.values[text(u"hatch_type")].toInt32(), 0);
  EXPECT_EQ(host().hatch.values[text(u"hatch_pattern_file")].toString(), text(u"draftoniso.pat"));
  EXPECT_EQ(namesOfWhatWasSet(), text(u"hatch_type hatch_pattern_file HPCOLOR HPNAME HPANG HPSCALE "
                                      u"HPDOUBLE HPSPACE"));

  agent->endExecution(&document);
  EXPECT_EQ(variable(u"HPNAME").toString(), text(u"ANSI31"));
  EXPECT_EQ(variable(u"HPSCALE").toDouble(), 7.0);
  EXPECT_EQ(variable(u"HPSPACE").toDouble(), 9.0);
  EXPECT_EQ(variable(u"HPCOLOR").toUInt32(), 0xC0000000u);
  EXPECT_EQ(host().hatch.values[text(u"hatch_type")].toInt32(), 2);
  EXPECT_EQ(host().hatch.values[text(u"hatch_pattern_file")].toString(), text(u"mine.pat"));
}

TEST_F(HatchToolTest, WithoutAColourOfItsOwnDrawsInTheCurrentOne) {
  defineHatchVariables();
  const OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();
  drawing->setCurrentColor(OdCmColor::fromColorIndex(5));
  document.databaseOfDocument = drawing;
  document.variableSet.define(text(u"HPCOLOR"), OdVariant(OdCmColor::fromColorIndex(1).color()));
  agent->beginExecution(&document);
  EXPECT_EQ(variable(u"HPCOLOR").toUInt32(), OdCmColor::fromColorIndex(5).color());
  agent->endExecution(&document);
  EXPECT_EQ(variable(u"HPCOLOR").toUInt32(), OdCmColor::fromColorIndex(1).color());
}

TEST_F(HatchToolTest, CountsKindsOfPatternAsTheHostDoes) {
  defineHatchVariables();
  const std::pair<int, int> rows[] = {{0, 1}, {1, 0}, {2, 2}, {7, 0}};
  for (const auto& [own, hosts] : rows) {
    agent->setHatchType(own);
    agent->beginExecution(&document);
    EXPECT_EQ(host().hatch.values[text(u"hatch_type")].toInt32(), hosts) << own;
    agent->endExecution(&document);
  }
}

TEST_F(HatchToolTest, UserDefinedPatternHasNoFile) {
  defineHatchVariables();
  host().translations[text(u"_USER")] = text(u"_EIGEN");
  read(u"HatchType", u"0");
  read(u"PatternName", u"ANSI31");
  EXPECT_EQ(agent->getPatternName(), text(u"_EIGEN"));
  agent->beginExecution(&document);
  EXPECT_EQ(host().hatch.values[text(u"hatch_pattern_file")].toString(), OdString());
  EXPECT_EQ(agent->getSourceFile(), text(u"draftoniso.pat"));
}

TEST_F(HatchToolTest, ScaleGrowsWithEachRunUnderDimscale) {
  const OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();
  drawing->setSysVar(QStringLiteral("DIMSCALE"), 4.0);
  document.databaseOfDocument = drawing;
  agent->setScale(2);
  agent->setAuxScale(text(u"Dimscale"));
  agent->beginExecution(&document);
  agent->endExecution(&document);
  EXPECT_EQ(agent->getScale(), 8);
  agent->beginExecution(&document);
  agent->endExecution(&document);
  EXPECT_EQ(agent->getScale(), 32);
}

TEST_F(HatchToolTest, FilesHoldTheScaleOfDrawingsInEnglish) {
  host().translations[text(u"Dimscale")] = text(u"Bemaßung");
  host().translations[text(u"None")] = text(u"Ohne");
  EXPECT_EQ(agent->getAuxScale(), text(u"Ohne"));
  agent->setAuxScale(text(u"Bemaßung"));
  EXPECT_EQ(agent->getAuxScale(), text(u"Bemaßung"));
  host().translations.clear();
  EXPECT_EQ(agent->getAuxScale(), text(u"Dimscale"));
  read(u"AuxiliaryScale", u"Plot scale");
  host().translations[text(u"Plot scale")] = text(u"Plotmaßstab");
  EXPECT_EQ(agent->getAuxScale(), text(u"Plotmaßstab"));
}

TEST_F(HatchToolTest, PlotScaleTakesThePlaceOfTheStoredScale) {
  const OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();
  document.databaseOfDocument = drawing;
  const OdDbLayoutPtr layout = oddb::activeLayout(*drawing).openObject(OdDb::kForWrite);
  layout->setUseStandardScale(false);
  layout->setCustomPrintScale(1, 50);
  agent->setScale(2);
  agent->setAuxScale(text(u"Plot scale"));
  agent->beginExecution(&document);
  EXPECT_EQ(agent->getScale(), layout->getStdScale());
}

TEST_F(HatchToolTest, PlotScaleWithoutALayoutKeepsTheStoredScale) {
  const OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();
  document.databaseOfDocument = drawing;
  oddb::activeLayout(*drawing).openObject(OdDb::kForWrite)->erase();
  agent->setScale(2);
  agent->setAuxScale(text(u"Plot scale"));
  agent->beginExecution(&document);
  EXPECT_EQ(agent->getScale(), 2);
}

TEST_F(HatchToolTest, SetsTheGradientVariablesAndPutsThemBack) {
  auto& v = document.variableSet;
  v.define(text(u"GFNAME"), std::int32_t{1});
  v.define(text(u"GFANG"), 0.0);
  v.define(text(u"GFSHIFT"), std::int32_t{1});
  v.define(text(u"GFCLR1"), std::int32_t{11});
  v.define(text(u"GFCLR2"), std::int32_t{12});
  agent->setHatchPatternSource(1);
  agent->setGradientName(text(u"Hemispherical"));
  agent->setGradientAngle(0.75);
  agent->setGradientCentered(true);
  agent->setGradientColor1(OdCmColor::fromRgb(255, 0, 0));
  agent->setGradientColor2(OdCmColor::fromRgb(0, 0, 255));
  host().log.clear();
  agent->beginExecution(&document);
  EXPECT_EQ(namesOfWhatWasSet(), text(u"GFNAME GFANG GFSHIFT GFCLR1 GFCLR2"));
  EXPECT_EQ(variable(u"GFNAME").toInt32(), 6);
  EXPECT_EQ(variable(u"GFANG").toDouble(), 0.75);
  EXPECT_EQ(variable(u"GFSHIFT").toInt32(), 0);
  EXPECT_EQ(variable(u"GFCLR1").toUInt32(), 0xC2FF0000u);
  EXPECT_EQ(variable(u"GFCLR2").toUInt32(), 0xC20000FFu);
  host().log.clear();
  agent->endExecution(&document);
  EXPECT_EQ(namesOfWhatWasSet(), text(u"GFNAME GFANG GFSHIFT GFCLR1 GFCLR2"));
  EXPECT_EQ(variable(u"GFNAME").toInt32(), 1);
  EXPECT_EQ(variable(u"GFSHIFT").toInt32(), 1);
  EXPECT_EQ(variable(u"GFCLR2").toInt32(), 12);
  agent->setGradientCentered(false);
  agent->beginExecution(&document);
  EXPECT_EQ(variable(u"GFSHIFT").toInt32(), 1);
}

TEST_F(HatchToolTest, RunsWithoutTheHostsServices) {
  document.hasVariables = false;
  document.hasCommandInput = false;
  host().switchOff(IHostHatchSettings::kId);
  agent->beginExecution(&document);
  EXPECT_TRUE(agent->execute(&document));
  agent->endExecution(&document);
  agent->beginExecution(nullptr);
  agent->endExecution(nullptr);
}

TEST_F(HatchToolTest, WritesAllVariablesAtTheEndAlsoThoseItCouldNotRead) {
  agent->setHatchType(1);
  agent->beginExecution(&document);
  defineHatchVariables();
  host().log.clear();
  agent->endExecution(&document);
  EXPECT_EQ(variable(u"HPSCALE").toDouble(), 0.0);
  EXPECT_EQ(host().hatch.values[text(u"hatch_pattern_file")].toString(), OdString());
  EXPECT_EQ(namesOfWhatWasSet(), text(u"hatch_type hatch_pattern_file HPNAME HPANG HPSCALE "
                                      u"HPDOUBLE HPSPACE HPCOLOR"));
}

TEST_F(HatchToolTest, PutsBackWhatItBeganAlsoAfterItsKindWasChanged) {
  defineHatchVariables();
  agent->setHatchType(1);
  agent->setPatternName(text(u"BRICK"));
  agent->beginExecution(&document);
  agent->setHatchPatternSource(1);
  agent->endExecution(&document);
  EXPECT_EQ(variable(u"HPNAME").toString(), text(u"ANSI31"));
  EXPECT_TRUE(variable(u"GFNAME").isVoid());
}

TEST_F(HatchToolTest, KeepsAPatternNameThatStandsBeforeItsType) {
  const auto agentOf = [](const char* inner) {
    return testhost::readPart<OdTcToolHatchCommandImpl>(
        (QByteArray("<Hatch>") + inner + "</Hatch>").constData());
  };
  EXPECT_EQ(agentOf("<PatternName>BRICK</PatternName><HatchType>1</HatchType>")->getPatternName(),
            text(u"BRICK"));
  EXPECT_EQ(agentOf("<PatternName>BRICK</PatternName><HatchType>0</HatchType>")->getPatternName(),
            text(u"_USER"));
  EXPECT_EQ(agentOf("<PatternName>BRICK</PatternName>")->getPatternName(), text(u"_USER"));
  EXPECT_EQ(agentOf("<HatchType>2</HatchType><PatternName>BRICK</PatternName>")->getPatternName(),
            text(u"BRICK"));
}

TEST_F(HatchToolTest, KeepsAnEmptyPatternFile) {
  agent->setSourceFile({});
  agent->setAngle(0.5);
  const auto back = testhost::readParts(testhost::written(agent));
  const auto* const read = dynamic_cast<OdTcToolHatchCommandImpl*>(back->parts.at(0).get());
  ASSERT_TRUE(read);
  EXPECT_EQ(read->getSourceFile(), OdString());
  EXPECT_EQ(read->getAngle(), 0.5) << "nothing behind the empty text is lost";
}

TEST_F(HatchToolTest, ShowsEachKindItsOwnProperties) {
  const auto visible = [&] {
    QStringList names;
    const auto properties = agent->properties()->enumProperties();
    while (const OdTcProperty* const property = properties->next())
      if (property->isVisible()) names << property->getDisplayName().section(u'.', 1);
    return names.join(u',');
  };
  EXPECT_EQ(visible(), text(u"Instrument type,Type,Pattern name,Angle,Scale,Auxiliary scale,"
                            u"Spacing,Crosswise"));
  EXPECT_EQ(agent->properties()->count(), 13);
  agent->properties()
      ->findByName(text(u"Sample.Instrument type"))
      ->setValue(OdVariant(std::int32_t{1}));
  EXPECT_EQ(visible(), text(u"Type,Color 1,Color 2,Gradient angle,Centered,Gradient name"));
}

TEST_F(HatchToolTest, EnablesScaleOrSpacingByItsType) {
  const auto enabled = [&](const char16_t* name) {
    return agent->properties()->findByName(text(name))->isEnabled();
  };
  EXPECT_FALSE(enabled(u"Sample.Scale"));
  EXPECT_TRUE(enabled(u"Sample.Spacing"));
  EXPECT_TRUE(enabled(u"Sample.Crosswise"));
  agent->setHatchType(1);
  EXPECT_TRUE(enabled(u"Sample.Scale"));
  EXPECT_TRUE(enabled(u"Sample.Auxiliary scale"));
  EXPECT_FALSE(enabled(u"Sample.Spacing"));
}

TEST_F(HatchToolTest, PropertiesReadAndWriteTheAgent) {
  OdTcPropertyBag* const bag = agent->properties();
  bag->findByName(text(u"Sample.Color 1"))->setValue(colorToVariant(OdCmColor::fromColorIndex(4)));
  EXPECT_EQ(agent->getGradientColor1().colorIndex(), 4);
  EXPECT_EQ(colorFromVariant(bag->findByName(text(u"Sample.Color 1"))->getValue())->colorIndex(),
            4);
  bag->findByName(text(u"Sample.Gradient name"))->setValue(OdVariant(text(u"Inversed-curved")));
  EXPECT_EQ(agent->fields().gradientName, text(u"INVCURVED"));
  bag->findByName(text(u"Sample.Centered"))->setValue(OdVariant(true));
  EXPECT_TRUE(agent->getIsGradientCentered());
  const auto* const names =
      dynamic_cast<OdTcObjectProperty*>(bag->findByName(text(u"Sample.Gradient name")));
  ASSERT_TRUE(names);
  EXPECT_EQ(names->choices().size(), 9u);
  EXPECT_EQ(names->family(), ObjectPropertyFamily::kMultiverse);
}

TEST_F(HatchToolTest, PatternComesFromTheDialogIfThereIsOne) {
  auto* const pattern = dynamic_cast<OdTcObjectProperty*>(
      agent->properties()->findByName(text(u"Sample.Pattern name")));
  ASSERT_TRUE(pattern);
  EXPECT_FALSE(pattern->runDialog());
  OdTcToolHatchCommandImpl::setPatternDialog(
      [](const OdString& current) -> std::optional<OdString> {
        return current.isEmpty() ? std::optional(QStringLiteral("HONEY")) : std::nullopt;
      });
  EXPECT_TRUE(pattern->runDialog());
  EXPECT_EQ(agent->getPatternName(), text(u"HONEY"));
  EXPECT_FALSE(pattern->runDialog()) << "cancelled";
  EXPECT_EQ(agent->getPatternName(), text(u"HONEY"));
  OdTcToolHatchCommandImpl::setPatternDialog(nullptr);
}

TEST_F(HatchToolTest, TakesTheGeneralColorForItsPictures) {
  const auto color = odrxMake<OdTcColorPropertyImpl>();
  color->setColor(OdCmColor::fromColorIndex(3));
  EXPECT_TRUE(agent->previewColor().isByLayer());
  EXPECT_TRUE(agent->onPropertyChanged(color));
  EXPECT_EQ(agent->previewColor().colorIndex(), 3);
  EXPECT_TRUE(agent->onPropertyChanged(odrxMake<OdTcLayerPropertyImpl>()));
  EXPECT_TRUE(agent->onPropertyChanged(nullptr));
}

TEST_F(HatchToolTest, KeepsTwoColorsAndNoThird) {
  const auto colors = testhost::readPart<OdTcGradientColorsImpl>(
      "<GradientColors>"
      "<GradientColor><Color><BasicPropInfo><PropValue unspecified=\"FALSE\"/></BasicPropInfo>"
      "<CreateInfo><AcCmColor mRGB=\"-1023410175\"/></CreateInfo></Color></GradientColor>"
      "<GradientColor><Color><ColorCreateInfo><AcCmColor mRGB=\"3271557122\"/></ColorCreateInfo>"
      "</Color></GradientColor>"
      "<GradientColor><Color><ColorCreateInfo><AcCmColor mRGB=\"3271557123\"/></ColorCreateInfo>"
      "</Color></GradientColor></GradientColors>");
  ASSERT_TRUE(colors);
  EXPECT_EQ(colors->color(0).color(), 0xC3000001u);
  EXPECT_EQ(colors->color(1).color(), 3271557122u);
  EXPECT_EQ(testhost::written(colors).count("<GradientColor>"), 2);
  EXPECT_THROW(
      agent->readProperty(text(u"GradientColors"), OdVariant(odrxMake<OdTcColorPropertyImpl>())),
      OdError_NotThatKindOfClass);
}

TEST_F(HatchToolTest, CloneDoesNotShareItsColors) {
  agent->setGradientColor1(OdCmColor::fromColorIndex(1));
  agent->setPatternName(text(u"BRICK"));
  const OdRxObjectPtr made = agent->clone();
  auto* const copy = dynamic_cast<OdTcToolHatchCommandImpl*>(made.get());
  ASSERT_TRUE(copy);
  EXPECT_EQ(testhost::written(copy), testhost::written(agent));
  copy->setGradientColor1(OdCmColor::fromColorIndex(2));
  EXPECT_EQ(agent->getGradientColor1().colorIndex(), 1);
}

TEST_F(HatchToolTest, StandsInAFileAsTheGoldenOne) {
  const auto full = odrxMake<OdTcToolHatchCommandImpl>();
  full->setHatchPatternSource(1);
  full->setHatchType(1);
  full->setPatternName(text(u"BRICK"));
  full->setAngle(0.785398);
  full->setScale(2.5);
  full->setAuxScale(text(u"Plot scale"));
  full->setSpacing(0.125);
  full->setIsCrosswise(true);
  full->setGradientName(text(u"Curved"));
  full->setGradientAngle(0.5);
  full->setGradientCentered(true);
  full->setGradientColor1(OdCmColor::fromRgb(255, 0, 0));
  full->setGradientColor2(OdCmColor::fromColorIndex(5));
  testhost::expectGolden("Hatch", {OdTcPersistPtr(agent), OdTcPersistPtr(full)});
}

} // namespace
