// The tables of block, hatch and raster tools: properties, stored fields, lists.
#include "properties/color_value.h"
#include "properties/gradient_names.h"
#include "support/golden.h"
#include "support/module_fixture.h"
#include "tools/block_tool.h"
#include "tools/hatch_tool.h"
#include "tools/raster_tool.h"

namespace {

using namespace tc;
using Family = ObjectPropertyFamily;

OdString text(const char16_t* s) { return OdString::fromUtf16(s); }

/// A property of an agent, in the order of the rows.
struct PropertyRow {
  const char16_t* caption;
  Family family;
  const char16_t* choices; ///< "value=text" of each entry
  const char* element;     ///< where a value that is set is written
  OdVariant set;
  const char* written;
};

const char16_t kAuxChoices[] = u"Dimscale=Dimscale|Plot scale=Plot scale|None=None";

const std::vector<PropertyRow> kBlockRows = {
    {u"Insert.Name", Family::kText, u"", "BlockName", text(u"Door"), "Door"},
    {u"Insert.Source file", Family::kFileName, u"", "SourceFile", text(u"C:\\a.dwg"), "C:\\a.dwg"},
    {u"Insert.Insert as", Family::kMultiverse, u"1=Block|2=External reference", "InsertAs",
     std::int32_t{2}, "2"},
    {u"Insert.Xref type", Family::kMultiverse, u"1=Attachment|2=Overlay|0=", "XrefType",
     std::int32_t{2}, "2"},
    {u"Insert.Scale", Family::kDouble, u"", "Scale", 3.0, "3"},
    {u"Insert.Auxiliary scale", Family::kMultiverse, kAuxChoices, "AuxiliaryScale",
     text(u"Dimscale"), "DIMSCALE"},
    {u"Insert.Rotation", Family::kAngle, u"", "Rotation", 0.5, "0.5"},
    {u"Insert.Prompt rotation angle", Family::kBool, u"", "PromptRotation", true, "TRUE"},
    {u"Insert.Prompt attributes", Family::kBool, u"", "PromptAttributes", false, "FALSE"},
    {u"Insert.Explode", Family::kBool, u"", "Explode", true, "TRUE"},
};

const std::vector<PropertyRow> kRasterRows = {
    {u"Insert.Name", Family::kText, u"", "RasterName", text(u"plan"), "plan"},
    {u"Insert.Source file", Family::kFileName, u"", "SourceFile", text(u"C:\\a.png"), "C:\\a.png"},
    {u"Insert.Scale", Family::kDouble, u"", "Scale", 2.5, "2.5"},
    {u"Insert.Rotation", Family::kAngle, u"", "Rotation", 0.25, "0.25"},
};

const std::vector<PropertyRow> kHatchRows = {
    {u"Sample.Instrument type", Family::kMultiverse, u"0=Hatch|1=Gradient", "hatchObjectType",
     std::int32_t{1}, "1"},
    {u"Sample.Type", Family::kMultiverse, u"0=User defined|1=Standard|2=Custom", "HatchType",
     std::int32_t{2}, "2"},
    {u"Sample.Pattern name", Family::kCallback, u"", "PatternName", text(u"BRICK"), "BRICK"},
    {u"Sample.Angle", Family::kAngle, u"", "Angle", 0.5, "0.5"},
    {u"Sample.Scale", Family::kDouble, u"", "Scale", 2.5, "2.5"},
    {u"Sample.Auxiliary scale", Family::kMultiverse, kAuxChoices, "AuxiliaryScale",
     text(u"Plot scale"), "Plot scale"},
    {u"Sample.Spacing", Family::kDouble, u"", "Spacing", 0.125, "0.125"},
    {u"Sample.Crosswise", Family::kBool, u"", "Double", true, "TRUE"},
    {u"Sample.Color 1", Family::kColor, u"", nullptr, colorToVariant(OdCmColor::fromColorIndex(4)),
     nullptr},
    {u"Sample.Color 2", Family::kColor, u"", nullptr, colorToVariant(OdCmColor::fromColorIndex(5)),
     nullptr},
    {u"Sample.Gradient angle", Family::kAngle, u"", "GradientAngle", 0.5, "0.5"},
    {u"Sample.Centered", Family::kBool, u"", "GradientCentered", true, "TRUE"},
    {u"Sample.Gradient name", Family::kMultiverse,
     u"Linear=Linear|Cylinder=Cylinder|Inversed-cylinder=Inversed-cylinder|Spherical=Spherical|"
     u"Inversed-spherical=Inversed-spherical|Hemispherical=Hemispherical|"
     u"Inversed-hemispherical=Inversed-hemispherical|Curved=Curved|Inversed-curved=Inversed-curved",
     "GradientName", text(u"Curved"), "CURVED"},
};

struct AgentTables : testhost::ModuleFixture {
  template <class Agent>
  void check(const std::vector<PropertyRow>& rows) {
    const auto order = odrxMake<Agent>();
    QStringList captions, wanted;
    const auto all = order->properties()->enumProperties();
    while (const OdTcProperty* const property = all->next()) captions << property->getDisplayName();
    for (const PropertyRow& row : rows) wanted << text(row.caption);
    ASSERT_EQ(captions, wanted);
    for (const PropertyRow& row : rows) {
      SCOPED_TRACE(text(row.caption).toStdString());
      const auto agent = odrxMake<Agent>();
      auto* const property =
          dynamic_cast<OdTcObjectProperty*>(agent->properties()->findByName(text(row.caption)));
      ASSERT_TRUE(property);
      EXPECT_EQ(property->family(), row.family);
      QStringList choices;
      for (const OdTcChoice& choice : property->choices())
        choices << choice.value.toString() + u'=' + choice.text;
      EXPECT_EQ(choices.join(u'|'), text(row.choices));
      const OdTcPropertyPtr held(property);
      property->setValue(row.set);
      // A property that the agent dropped with its list has no agent any longer.
      const OdTcProperty* const now = agent->properties()->findByName(text(row.caption));
      ASSERT_TRUE(now);
      EXPECT_EQ(now->getValue().toString(), row.set.toString());
      if (row.element) expectWritten(agent, row.element, row.written);
    }
  }
  static void expectWritten(const OdTcPersistPtr& agent, const char* element, const char* value) {
    const QByteArray wanted = QByteArray("<") + element + ">" + value + "</" + element + ">";
    EXPECT_TRUE(testhost::written(agent).contains(wanted))
        << testhost::written(agent).toStdString();
  }
};

TEST_F(AgentTables, OfBlockTools) { check<OdTcToolBlockCommandImpl>(kBlockRows); }
TEST_F(AgentTables, OfRasterTools) { check<OdTcToolRasterCommandImpl>(kRasterRows); }
TEST_F(AgentTables, OfHatchTools) { check<OdTcToolHatchCommandImpl>(kHatchRows); }

/// A field as a file has it, and as it is written back; null where it is not written.
struct FieldRow {
  const char16_t* element;
  const char16_t* inFile;
  const char* written;
};

template <class Agent>
void checkFields(std::initializer_list<FieldRow> rows) {
  const auto agent = odrxMake<Agent>();
  qsizetype last = 0;
  for (const FieldRow& row : rows)
    EXPECT_TRUE(agent->readProperty(text(row.element), OdVariant(text(row.inFile))))
        << text(row.element).toStdString();
  const QByteArray bytes = testhost::written(agent);
  for (const FieldRow& row : rows) {
    const QByteArray name = text(row.element).toUtf8();
    const qsizetype at = bytes.indexOf("<" + name + ">" + row.written + "</" + name + ">");
    EXPECT_GT(at, last) << name.toStdString() << " in " << bytes.toStdString();
    last = std::max(at, last);
  }
}

TEST_F(AgentTables, BlockFieldsComeAndGoInTheirOrder) {
  checkFields<OdTcToolBlockCommandImpl>({{u"BlockType", u"2", "2"},
                                         {u"BlockTypeEx", u"7", "7"},
                                         {u"BlockName", u"Door", "Door"},
                                         {u"SourceFile", u"C:\\a.dwg", "C:\\a.dwg"},
                                         {u"InsertAs", u"2", "2"},
                                         {u"XrefType", u"1", "1"},
                                         {u"Scale", u"2.75", "2"},
                                         {u"Rotation", u"1.5", "1.5"},
                                         {u"PromptRotation", u"true", "TRUE"},
                                         {u"Explode", u"1", "TRUE"},
                                         {u"PromptAttributes", u"yes", "FALSE"},
                                         {u"AuxiliaryScale", u"PLOTSCALE", "PLOTSCALE"}});
}

TEST_F(AgentTables, HatchFieldsComeAndGoInTheirOrder) {
  checkFields<OdTcToolHatchCommandImpl>({{u"hatchObjectType", u"1", "1"},
                                         {u"HatchType", u"2", "2"},
                                         {u"PatternName", u"MINE", "MINE"},
                                         {u"SourceFile", u"C:\\mine.pat", "C:\\mine.pat"},
                                         {u"Angle", u"0.5", "0.5"},
                                         {u"Scale", u"2.5", "2.5"},
                                         {u"AuxiliaryScale", u"DIMSCALE", "DIMSCALE"},
                                         {u"Spacing", u"0.25", "0.25"},
                                         {u"PenWidth", u"50", "50"},
                                         {u"Double", u"1", "TRUE"},
                                         {u"BlockExtent", u"12.5", "12.5"},
                                         {u"GradientAngle", u"0.75", "0.75"},
                                         {u"GradientCentered", u"TRUE", "TRUE"},
                                         {u"GradientName", u"INVCURVED", "INVCURVED"}});
}

TEST_F(AgentTables, RasterFieldsComeAndGoInTheirOrder) {
  checkFields<OdTcToolRasterCommandImpl>({{u"RasterName", u"plan", "plan"},
                                          {u"SourceFile", u"C:\\plan.png", "C:\\plan.png"},
                                          {u"Scale", u"2.5", "2.5"},
                                          {u"Rotation", u"0.25", "0.25"}});
}

TEST_F(AgentTables, NewAgentsHaveTheirDefaults) {
  const auto block = odrxMake<OdTcToolBlockCommandImpl>();
  EXPECT_EQ(block->fields().blockType, 1);
  EXPECT_EQ(block->fields().blockTypeEx, 0);
  EXPECT_EQ(block->getInsertAs(), 1);
  EXPECT_EQ(block->getXrefType(), 0);
  EXPECT_EQ(block->getScale(), 1.0);
  EXPECT_EQ(block->getRotation(), 0.0);
  EXPECT_FALSE(block->getIsAskForRotation());
  EXPECT_FALSE(block->getIsExplode());
  EXPECT_TRUE(block->getIsQueryAttributes());
  EXPECT_EQ(block->getAux(), text(u"None"));
  const auto hatch = odrxMake<OdTcToolHatchCommandImpl>();
  EXPECT_EQ(hatch->getHatchPatternSource(), 0);
  EXPECT_EQ(hatch->getHatchType(), 0);
  EXPECT_EQ(hatch->getPatternName(), OdString());
  EXPECT_EQ(hatch->getSourceFile(), text(u"draftoniso.pat"));
  EXPECT_EQ(hatch->fields().gradientName, text(u"LINEAR"));
  EXPECT_EQ(hatch->getAuxScale(), text(u"None"));
  EXPECT_EQ(hatch->getScale(), 0.0);
  EXPECT_EQ(hatch->fields().penWidth, 100.0);
  EXPECT_EQ(hatch->fields().blockExtent, 0.0);
  EXPECT_FALSE(hatch->getIsGradientCentered());
  EXPECT_TRUE(hatch->previewColor().isByLayer());
  const auto raster = odrxMake<OdTcToolRasterCommandImpl>();
  EXPECT_EQ(raster->getScale(), 1.0);
  EXPECT_EQ(raster->getRotation(), 0.0);
}

TEST_F(AgentTables, GradientsHaveTheirNamesAndNumbers) {
  struct Row {
    const char16_t* key;
    const char16_t* display;
  };
  const Row rows[] = {{u"LINEAR", u"Linear"},
                      {u"CYLINDER", u"Cylinder"},
                      {u"INVCYLINDER", u"Inversed-cylinder"},
                      {u"SPHERICAL", u"Spherical"},
                      {u"INVSPHERICAL", u"Inversed-spherical"},
                      {u"HEMISPHERICAL", u"Hemispherical"},
                      {u"INVHEMISPHERICAL", u"Inversed-hemispherical"},
                      {u"CURVED", u"Curved"},
                      {u"INVCURVED", u"Inversed-curved"}};
  auto& document = testhost::host().documents.open(QStringLiteral("A.dxf"));
  int number = 0;
  for (const Row& row : rows) {
    SCOPED_TRACE(text(row.key).toStdString());
    testhost::host().translations.clear();
    testhost::host().translations[text(row.display)] = text(u"Verlauf");
    EXPECT_EQ(gradientDisplayName(text(row.key)), text(u"Verlauf"));
    EXPECT_EQ(gradientKey(text(u"Verlauf")), text(row.key));
    const auto agent = odrxMake<OdTcToolHatchCommandImpl>();
    agent->setHatchPatternSource(1);
    agent->setGradientName(text(u"Verlauf"));
    document.variableSet.define(text(u"GFNAME"), std::int32_t{0});
    agent->beginExecution(&document);
    EXPECT_EQ(document.variableSet.value(text(u"GFNAME")).toInt32(), ++number);
    agent->endExecution(&document);
  }
}

/// What is enabled and visible for a state of the agent.
TEST_F(AgentTables, WholeFilesAndReferencesEnableWhatTheyCanUse) {
  struct Row {
    int blockType, insertAs;
    bool showsKind, xrefType, attributes, explode;
  };
  const Row rows[] = {{1, 1, false, false, true, true},
                      {1, 2, false, false, true, true},
                      {2, 1, true, false, true, true},
                      {2, 2, true, true, false, false}};
  for (const Row& row : rows) {
    const auto agent = odrxMake<OdTcToolBlockCommandImpl>();
    agent->setBlockType(row.blockType);
    agent->setInsertAs(row.insertAs);
    const auto property = [&](const char16_t* name) {
      return agent->properties()->findByName(text(name));
    };
    EXPECT_EQ(property(u"Insert.Insert as")->isVisible(), row.showsKind);
    EXPECT_EQ(property(u"Insert.Xref type")->isVisible(), row.showsKind);
    EXPECT_EQ(property(u"Insert.Xref type")->isEnabled(), row.xrefType);
    EXPECT_EQ(property(u"Insert.Prompt attributes")->isEnabled(), row.attributes);
    EXPECT_EQ(property(u"Insert.Explode")->isEnabled(), row.explode);
    for (const char16_t* const always :
         {u"Insert.Name", u"Insert.Source file", u"Insert.Scale", u"Insert.Auxiliary scale",
          u"Insert.Rotation", u"Insert.Prompt rotation angle"}) {
      EXPECT_TRUE(property(always)->isVisible());
      EXPECT_TRUE(property(always)->isEnabled());
    }
  }
}

TEST_F(AgentTables, KindsOfPatternEnableWhatTheyCanUse) {
  for (const int type : {0, 1, 2}) {
    const auto agent = odrxMake<OdTcToolHatchCommandImpl>();
    agent->setHatchType(type);
    const auto isEnabled = [&](const char16_t* name) {
      return agent->properties()->findByName(text(name))->isEnabled();
    };
    EXPECT_EQ(isEnabled(u"Sample.Scale"), type != 0);
    EXPECT_EQ(isEnabled(u"Sample.Auxiliary scale"), type != 0);
    EXPECT_EQ(isEnabled(u"Sample.Spacing"), type == 0);
    EXPECT_EQ(isEnabled(u"Sample.Crosswise"), type == 0);
    EXPECT_TRUE(isEnabled(u"Sample.Instrument type"));
    EXPECT_TRUE(isEnabled(u"Sample.Angle"));
  }
}

TEST_F(AgentTables, TheThreeKindsHideThreeGeneralPropertiesInOrder) {
  constexpr std::array<QStringView, 3> kHidden = {u"General.Dimstyle", u"General.Text style",
                                                  u"General.Linetype scale"};
  EXPECT_EQ(kHiddenByInsertion, kHidden);
  const OdTcToolActionAgentPtr agents[] = {odrxMake<OdTcToolBlockCommandImpl>(),
                                           odrxMake<OdTcToolHatchCommandImpl>(),
                                           odrxMake<OdTcToolRasterCommandImpl>()};
  for (const OdTcToolActionAgentPtr& agent : agents) {
    for (const QStringView name : kHidden)
      EXPECT_TRUE(agent->propertyFilter()->contains(name.toString()));
    EXPECT_FALSE(agent->propertyFilter()->contains(text(u"General.Color")));
  }
}

/// The entries of a list, its texts as the user's language has them.
QStringList entriesOf(const OdTcToolActionAgentPtr& agent, const char16_t* caption) {
  const auto* const property =
      dynamic_cast<OdTcObjectProperty*>(agent->properties()->findByName(text(caption)));
  EXPECT_TRUE(property);
  QStringList entries;
  if (property)
    for (const OdTcChoice& choice : property->choices()) entries << choice.text;
  return entries;
}

TEST_F(AgentTables, ListsAreInTheUsersLanguage) {
  auto& words = testhost::host().translations;
  for (const char16_t* const word :
       {u"Block", u"External reference", u"Attachment", u"Overlay", u"Hatch", u"Gradient",
        u"User defined", u"Standard", u"Custom", u"Dimscale", u"Plot scale", u"None", u"Linear"})
    words[text(word)] = text(u"~") + text(word);
  const OdTcToolActionAgentPtr block(odrxMake<OdTcToolBlockCommandImpl>());
  const OdTcToolActionAgentPtr hatch(odrxMake<OdTcToolHatchCommandImpl>());
  EXPECT_EQ(entriesOf(block, u"Insert.Insert as").join(u'|'), text(u"~Block|~External reference"));
  EXPECT_EQ(entriesOf(block, u"Insert.Xref type").join(u'|'), text(u"~Attachment|~Overlay|"));
  EXPECT_EQ(entriesOf(block, u"Insert.Auxiliary scale").join(u'|'),
            text(u"~Dimscale|~Plot scale|~None"));
  EXPECT_EQ(entriesOf(hatch, u"Sample.Instrument type").join(u'|'), text(u"~Hatch|~Gradient"));
  EXPECT_EQ(entriesOf(hatch, u"Sample.Type").join(u'|'), text(u"~User defined|~Standard|~Custom"));
  EXPECT_EQ(entriesOf(hatch, u"Sample.Auxiliary scale").join(u'|'),
            text(u"~Dimscale|~Plot scale|~None"));
  EXPECT_EQ(entriesOf(hatch, u"Sample.Gradient name").front(), text(u"~Linear"));
}

} // namespace
