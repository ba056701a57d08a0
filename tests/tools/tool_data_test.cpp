#include "tools/tool_data_impl.h"

#include "persistence/element_table.h"
#include "support/module_fixture.h"
#include "support/recording_agent.h"

namespace {

using namespace tc;

struct ToolDataTest : testhost::ModuleFixture {
  OdTcToolDataPtr data = OdTcToolData::createObject();

  static OdTcPersistPtr element(const char16_t* name) {
    return OdTcElementTable::instance().create(OdString::fromUtf16(name));
  }
};

TEST_F(ToolDataTest, IsMadeWithABagOfTheGeneralProperties) {
  EXPECT_EQ(data->elementName(), QStringLiteral("Data"));
  EXPECT_EQ(data->actionAgent(), nullptr);
  OdTcPropertyBag* const bag = data->generalProperties();
  ASSERT_TRUE(bag);
  EXPECT_EQ(bag->getName(), QStringLiteral("General"));
  EXPECT_EQ(bag->owner(), data.get());
  QStringList elements;
  const OdTcEnumPtr<OdTcProperty> properties = bag->enumProperties();
  while (OdTcProperty* property = properties->next()) elements << property->elementName();
  EXPECT_EQ(elements.join(QLatin1Char(' ')),
            QStringLiteral("Color Layer Linetype LinetypeScale PlotStyle LineWeight Transparency "
                           "Textstyle Dimstyle Tablestyle"));
  EXPECT_EQ(data->generalProperties(), bag) << "the bag is made once";
}

class AgentElementTest : public ToolDataTest,
                         public testing::WithParamInterface<const char16_t*> {};

TEST_P(AgentElementTest, IsTakenAsTheAgent) {
  const OdTcPersistPtr agent = element(GetParam());
  ASSERT_TRUE(agent);
  EXPECT_TRUE(data->readField(OdString::fromUtf16(GetParam()), OdVariant(agent)));
  EXPECT_EQ(data->actionAgent(), agent.get());
  EXPECT_EQ(agent->owner(), data.get());
  EXPECT_EQ(agent->elementName(), OdString::fromUtf16(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Kinds, AgentElementTest,
                         testing::Values(u"Command", u"Block", u"Raster", u"Hatch", u"VisualStyle",
                                         u"Light", u"MLeader", u"Table"));

TEST_F(ToolDataTest, KeepsTheSecondOfTwoAgents) {
  data->readField(QStringLiteral("Command"), OdVariant(element(u"Command")));
  const OdTcPersistPtr second = element(u"Block");
  data->readField(QStringLiteral("Block"), OdVariant(second));
  EXPECT_EQ(data->actionAgent(), second.get());
}

TEST_F(ToolDataTest, PassesOverOtherChildrenWithSuccess) {
  EXPECT_TRUE(data->readField(QStringLiteral("Groups"), OdVariant(element(u"Groups"))));
  EXPECT_TRUE(data->readField(QStringLiteral("Note"), OdVariant(OdString(QStringLiteral("text")))));
  EXPECT_TRUE(data->readField(QStringLiteral("Command"), OdVariant(OdString(QStringLiteral("x")))));
  EXPECT_EQ(data->actionAgent(), nullptr);
}

TEST_F(ToolDataTest, AnObjectOfTheWrongClassUnderAKnownNameRaises) {
  EXPECT_THROW(data->readField(QStringLiteral("Command"), OdVariant(element(u"Groups"))),
               OdError_NotThatKindOfClass);
  EXPECT_THROW(data->readField(QStringLiteral("GeneralProperties"), OdVariant(element(u"Block"))),
               OdError_NotThatKindOfClass);
}

TEST_F(ToolDataTest, ABagThatWasReadTakesThePlaceOfItsOwn) {
  const OdTcPersistPtr bag = element(u"GeneralProperties");
  data->readField(QStringLiteral("GeneralProperties"), OdVariant(bag));
  EXPECT_EQ(data->generalProperties(), bag.get());
  EXPECT_EQ(data->generalProperties()->count(), 0);
  EXPECT_EQ(data->generalProperties()->getName(), QStringLiteral("General"));
}

TEST_F(ToolDataTest, ACloneHasItsOwnAgentAndBag) {
  data->setActionAgent(odrxCast<OdTcToolActionAgent>(element(u"Command").get()));
  data->actionAgent()->setCommandString(QStringLiteral("LINE"));
  data->generalProperties();
  const OdTcToolDataPtr copy = data->clone();
  ASSERT_TRUE(copy->actionAgent());
  EXPECT_NE(copy->actionAgent(), data->actionAgent());
  EXPECT_EQ(copy->actionAgent()->commandString(), QStringLiteral("LINE"));
  EXPECT_EQ(copy->actionAgent()->owner(), copy.get());
  copy->actionAgent()->setCommandString(QStringLiteral("ARC"));
  EXPECT_EQ(data->actionAgent()->commandString(), QStringLiteral("LINE"));
  EXPECT_NE(copy->generalProperties(), data->generalProperties());
  EXPECT_EQ(copy->generalProperties()->count(), data->generalProperties()->count());
}

TEST_F(ToolDataTest, ACloneWithoutAnAgentHasNone) {
  const OdTcToolDataPtr copy = data->clone();
  EXPECT_EQ(copy->actionAgent(), nullptr);
  ASSERT_TRUE(copy->generalProperties());
}

} // namespace
