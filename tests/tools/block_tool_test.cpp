#include "tools/block_tool.h"

#include "drawing/database.h"
#include "drawing/objects/layout.h"
#include "frame/system_services.h"
#include "support/golden.h"
#include "support/module_fixture.h"

namespace {

using namespace tc;
using testhost::host;

OdString text(const char16_t* s) { return OdString::fromUtf16(s); }

struct BlockToolTest : testhost::ModuleFixture {
  OdSmartPtr<OdTcToolBlockCommandImpl> agent = odrxMake<OdTcToolBlockCommandImpl>();
  testhost::TestDocument& document = host().documents.open(QStringLiteral("A.dxf"));

  OdTcBlockRequest run() {
    EXPECT_TRUE(agent->execute(&document));
    const auto request = OdTcCommandConveyor::instance()->takeBlockRequest();
    EXPECT_TRUE(request.has_value());
    return request.value_or(OdTcBlockRequest());
  }
  void read(const char16_t* name, const char16_t* value) {
    EXPECT_TRUE(agent->readProperty(text(name), OdVariant(text(value))))
        << text(name).toStdString();
  }
};

TEST_F(BlockToolTest, LeavesARequestAndTypesTheHiddenCommand) {
  agent->setName(text(u"Door"));
  agent->setSourceFile(text(u"C:\\blocks.dwg"));
  agent->setScale(2.5);
  agent->setRotation(0.5);
  agent->setIsAskForRotaion(true);
  agent->setIsExplode(true);
  const OdTcBlockRequest request = run();
  EXPECT_EQ(request.name, text(u"Door"));
  EXPECT_EQ(request.sourceFile, text(u"C:\\blocks.dwg"));
  EXPECT_EQ(request.scale, 2.5);
  EXPECT_EQ(request.rotation, 0.5);
  EXPECT_TRUE(request.askRotation);
  EXPECT_TRUE(request.explode);
  EXPECT_TRUE(request.queryAttributes);
  EXPECT_FALSE(request.wholeDrawing);
  EXPECT_FALSE(request.isXref);
  EXPECT_EQ(request.xrefType, 1);
  EXPECT_EQ(document.sent.value(0), text(u"__executetool^M\"<block>\" "));
  EXPECT_FALSE(agent->execute(nullptr));
}

TEST_F(BlockToolTest, WholeFileIsABlockOrAnExternalReference) {
  agent->setBlockType(2);
  EXPECT_TRUE(run().wholeDrawing);
  agent->setInsertAs(2);
  agent->setXrefType(2);
  const OdTcBlockRequest xref = run();
  EXPECT_FALSE(xref.wholeDrawing);
  EXPECT_TRUE(xref.isXref);
  EXPECT_EQ(xref.xrefType, 2);
  EXPECT_TRUE(document.sent.contains(text(u"__executetool^M\"<xref>\" ")));
  agent->setBlockType(1);
  const OdTcBlockRequest block = run();
  EXPECT_FALSE(block.isXref) << "the choice counts for whole files only";
  EXPECT_EQ(block.xrefType, 1);
}

TEST_F(BlockToolTest, MultipliesItsScaleAsTheAuxiliaryScaleSays) {
  const OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();
  drawing->setSysVar(QStringLiteral("DIMSCALE"), 4.0);
  document.databaseOfDocument = drawing;
  host().translations[text(u"Dimscale")] = text(u"Bema\u00dfung");
  agent->setScale(2);
  EXPECT_EQ(run().scale, 2);
  agent->setAux(text(u"Bema\u00dfung"));
  EXPECT_EQ(run().scale, 8);
  EXPECT_EQ(agent->getScale(), 2) << "the tool's own scale stays";
  agent->setAux(text(u"Plot scale"));
  EXPECT_EQ(run().scale, 2) << "the model layout has no plot settings";
}

TEST_F(BlockToolTest, PlotScaleWithoutALayoutKeepsItsScale) {
  const OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();
  document.databaseOfDocument = drawing;
  oddb::activeLayout(*drawing).openObject(OdDb::kForWrite)->erase();
  agent->setScale(2);
  agent->setAux(text(u"Plot scale"));
  EXPECT_EQ(run().scale, 2);
}

TEST_F(BlockToolTest, KeepsTheAttributeVariableAroundARun) {
  document.variableSet.define(text(u"ATTREQ"), std::int32_t{0});
  agent->beginExecution(&document);
  EXPECT_EQ(document.variableSet.value(text(u"ATTREQ")).toInt32(), 1);
  agent->endExecution(&document);
  EXPECT_EQ(document.variableSet.value(text(u"ATTREQ")).toInt32(), 0);
  document.variableSet.define(text(u"ATTREQ"), std::int32_t{1});
  agent->setIsQueryAttributes(false);
  agent->beginExecution(&document);
  EXPECT_EQ(document.variableSet.value(text(u"ATTREQ")).toInt32(), 0);
  agent->endExecution(&document);
  EXPECT_EQ(document.variableSet.value(text(u"ATTREQ")).toInt32(), 1);
  agent->beginExecution(nullptr);
  agent->endExecution(nullptr);
}

TEST_F(BlockToolTest, PutsTheAttributeVariableBackOnceAndOnlyWhatItRead) {
  document.variableSet.define(text(u"ATTREQ"), std::int32_t{0});
  agent->beginExecution(&document);
  agent->endExecution(&document);
  document.variableSet.define(text(u"ATTREQ"), std::int32_t{1});
  agent->endExecution(&document);
  EXPECT_EQ(document.variableSet.value(text(u"ATTREQ")).toInt32(), 1) << "the run is over";
  odrxMake<OdTcToolBlockCommandImpl>()->endExecution(&document);
  EXPECT_EQ(document.variableSet.value(text(u"ATTREQ")).toInt32(), 1) << "nothing was begun";
  agent->beginExecution(&document);
  const OdRxObjectPtr copy = agent->clone();
  dynamic_cast<OdTcToolBlockCommandImpl&>(*copy).endExecution(&document);
  EXPECT_EQ(document.variableSet.value(text(u"ATTREQ")).toInt32(), 1) << "a copy runs not";
}

TEST_F(BlockToolTest, LosesTheFractionOfItsScaleOnReading) {
  read(u"Scale", u"2.5");
  EXPECT_EQ(agent->getScale(), 2.0);
  read(u"Scale", u"0.5");
  EXPECT_EQ(agent->getScale(), 0.0);
}

TEST_F(BlockToolTest, ReadsFlagsFromDigitsAndWords) {
  for (const char16_t* const yes : {u"1", u"true", u"TRUE"}) {
    agent->setIsExplode(false);
    read(u"Explode", yes);
    EXPECT_TRUE(agent->getIsExplode());
  }
  read(u"Explode", u"yes");
  EXPECT_FALSE(agent->getIsExplode());
}

TEST_F(BlockToolTest, MapsTheKeysOfTheAuxiliaryScale) {
  EXPECT_EQ(agent->getAux(), text(u"None"));
  host().translations[text(u"Plot scale")] = text(u"Plotma\u00dfstab");
  read(u"AuxiliaryScale", u"PLOTSCALE");
  EXPECT_EQ(agent->getAux(), text(u"Plotma\u00dfstab"));
  EXPECT_TRUE(testhost::written(agent).contains("<AuxiliaryScale>PLOTSCALE</AuxiliaryScale>"));
  read(u"AuxiliaryScale", u"DIMSCALE");
  EXPECT_EQ(agent->getAux(), text(u"Dimscale"));
  read(u"AuxiliaryScale", u"NONE");
  EXPECT_EQ(agent->getAux(), OdString());
  read(u"AuxiliaryScale", u"plotscale");
  EXPECT_EQ(agent->getAux(), OdString());
  EXPECT_TRUE(testhost::written(agent).contains("<AuxiliaryScale>NONE</AuxiliaryScale>"));
}

TEST_F(BlockToolTest, ExpandsAndCollapsesItsSourceFile) {
  const OdString home = odrxSystemServices()->userProfileFolder();
  ASSERT_FALSE(home.isEmpty());
  read(u"SourceFile", u"%UserProfileFolder%\\doors.dwg");
  EXPECT_EQ(agent->getSourceFile(), home + text(u"\\doors.dwg"));
  EXPECT_TRUE(
      testhost::written(agent).contains("<SourceFile>%UserProfileFolder%\\doors.dwg</SourceFile>"));
}

TEST_F(BlockToolTest, RefusesNamesThatAreNotItsOwn) {
  EXPECT_FALSE(agent->readProperty(text(u"blocktype"), OdVariant(text(u"2"))));
  EXPECT_FALSE(agent->readProperty(text(u"DynamicProperties"), OdVariant(text(u"2"))));
}

TEST_F(BlockToolTest, HidesThreeGeneralProperties) {
  for (const char16_t* const name :
       {u"General.Dimstyle", u"General.Text style", u"General.Linetype scale"})
    EXPECT_TRUE(agent->propertyFilter()->contains(text(name)));
  EXPECT_FALSE(agent->propertyFilter()->contains(text(u"General.Layer")));
}

TEST_F(BlockToolTest, ShowsTheKindOfInsertionForWholeFilesOnly) {
  const auto property = [&](const char16_t* name) {
    return agent->properties()->findByName(text(name));
  };
  EXPECT_EQ(agent->properties()->count(), 10);
  EXPECT_FALSE(property(u"Insert.Insert as")->isVisible());
  agent->setBlockType(2);
  ASSERT_EQ(agent->properties()->count(), 10);
  EXPECT_TRUE(property(u"Insert.Insert as")->isVisible());
  EXPECT_FALSE(property(u"Insert.Xref type")->isEnabled());
  EXPECT_TRUE(property(u"Insert.Explode")->isEnabled());
  property(u"Insert.Insert as")->setValue(OdVariant(std::int32_t{2}));
  EXPECT_EQ(agent->getInsertAs(), 2);
  EXPECT_TRUE(property(u"Insert.Xref type")->isEnabled());
  EXPECT_FALSE(property(u"Insert.Explode")->isEnabled());
  EXPECT_FALSE(property(u"Insert.Prompt attributes")->isEnabled());
}

TEST_F(BlockToolTest, GivesTheInspectorListsAndAFilter) {
  const auto* const insertAs =
      dynamic_cast<OdTcObjectProperty*>(agent->properties()->findByName(text(u"Insert.Insert as")));
  ASSERT_TRUE(insertAs);
  const OdTcChoices choices = insertAs->choices();
  ASSERT_EQ(choices.size(), 2u);
  EXPECT_EQ(choices[1].value.toInt32(), 2);
  EXPECT_EQ(choices[1].text, text(u"External reference"));
  const auto* const file = dynamic_cast<OdTcObjectProperty*>(
      agent->properties()->findByName(text(u"Insert.Source file")));
  ASSERT_TRUE(file);
  EXPECT_EQ(file->fileFilter(), text(u"Drawings (*.dwg *.dxf *.dwf)"));
}

TEST_F(BlockToolTest, CloneCopiesEveryField) {
  agent->setName(text(u"Door"));
  agent->setBlockType(2);
  agent->setScale(2.5);
  agent->setAux(text(u"Dimscale"));
  const OdRxObjectPtr made = agent->clone();
  auto* const copy = dynamic_cast<OdTcToolBlockCommandImpl*>(made.get());
  ASSERT_TRUE(copy);
  EXPECT_EQ(testhost::written(copy), testhost::written(agent));
  EXPECT_EQ(copy->getScale(), 2.5);
}

TEST_F(BlockToolTest, StandsInAFileAsTheGoldenOne) {
  const auto full = odrxMake<OdTcToolBlockCommandImpl>();
  full->setBlockType(2);
  full->setName(text(u"T\u00fcr"));
  full->setSourceFile(text(u"C:\\blocks\\doors.dwg"));
  full->setInsertAs(2);
  full->setXrefType(1);
  full->setScale(3);
  full->setRotation(1.5708);
  full->setIsAskForRotaion(true);
  full->setIsQueryAttributes(false);
  full->setAux(text(u"Dimscale"));
  testhost::expectGolden("Block", {OdTcPersistPtr(agent), OdTcPersistPtr(full)});
}

} // namespace
