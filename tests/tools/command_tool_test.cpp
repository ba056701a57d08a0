#include "tools/command_tool.h"

#include "images/image_impl.h"
#include "support/golden.h"
#include "support/module_fixture.h"

namespace {

using namespace tc;
using testhost::host;

OdString text(const char16_t* s) { return OdString::fromUtf16(s); }

struct CommandToolTest : testhost::ModuleFixture {
  OdSmartPtr<OdTcToolCommandImpl> agent = odrxMake<OdTcToolCommandImpl>();
  testhost::TestDocument& document = host().documents.open(QStringLiteral("A.dxf"));

  OdString imageName(const char16_t* macro) {
    agent->setCommandString(text(macro));
    const auto image = odrxMake<OdTcImageImpl>();
    EXPECT_TRUE(agent->imageSourceFromMacro(image));
    EXPECT_EQ(image->src(), text(u"%ProgramBtnRes%"));
    return image->resource();
  }
};

TEST_F(CommandToolTest, TypesItsMacroWithAnEnter) {
  agent->setCommandString(text(u"^C^C_LINE "));
  EXPECT_TRUE(agent->execute(&document));
  EXPECT_EQ(document.sent, QStringList{text(u"^C^C_LINE^M")});
  EXPECT_EQ(agent->commandString(), text(u"^C^C_LINE")) << "the stored macro is trimmed";
}

TEST_F(CommandToolTest, KeepsALeadingBlank) {
  agent->setCommandString(text(u"  _LINE \t\n"));
  EXPECT_TRUE(agent->execute(&document));
  EXPECT_EQ(document.sent, QStringList{text(u"  _LINE^M")});
}

TEST_F(CommandToolTest, DoesNothingWithoutAMacroOrADocument) {
  agent->setCommandString(text(u"   \t "));
  EXPECT_FALSE(agent->execute(&document));
  EXPECT_TRUE(document.sent.isEmpty());
  EXPECT_EQ(agent->commandString(), OdString());
  agent->setCommandString(text(u"_LINE"));
  EXPECT_FALSE(agent->execute(nullptr));
}

TEST_F(CommandToolTest, NamesItsImageAfterTheCommandOfTheMacro) {
  EXPECT_EQ(imageName(u"^C^C_LINE "), text(u"LINE"));
  EXPECT_EQ(imageName(u"_LINE 0,0"), text(u"LINE"));
  EXPECT_EQ(imageName(u"^C^C_-_LAYER"), text(u"-LAYER"));
  EXPECT_EQ(imageName(u"_LINE^"), OdString());
  EXPECT_EQ(imageName(u"^"), OdString());
  EXPECT_EQ(imageName(u""), OdString());
}

TEST_F(CommandToolTest, ReadsItsMacroAsAttributeOrAsElement) {
  for (const char* const form :
       {"<Command Macro=\"^C^C_LINE\"/>", "<Command><Macro>^C^C_LINE</Macro></Command>"}) {
    const auto read = testhost::readPart<OdTcToolCommandImpl>(form);
    ASSERT_TRUE(read) << form;
    EXPECT_EQ(read->commandString(), text(u"^C^C_LINE")) << form;
  }
  EXPECT_FALSE(agent->readProperty(text(u"macro"), OdVariant(text(u"x"))));
  EXPECT_FALSE(agent->readProperty(text(u"Macro2"), OdVariant(text(u"x"))));
}

TEST_F(CommandToolTest, KeepsLineBreaksAndRunsOfBlanksInAFile) {
  const OdString macro = text(u"_LINE\n0,0   10,0\r\n\t\"x\" <&> '");
  agent->setCommandString(macro);
  const auto back = testhost::readParts(testhost::written(agent));
  EXPECT_EQ(dynamic_cast<OdTcToolCommandImpl*>(back->parts.at(0).get())->commandString(), macro);
}

TEST_F(CommandToolTest, OffersItsMacroToTheInspector) {
  host().translations[text(u"Command.Command string")] = text(u"Befehl.Text");
  agent->setCommandString(text(u"_LINE"));
  ASSERT_EQ(agent->properties()->count(), 1);
  OdTcProperty* const property = agent->properties()->findByName(text(u"Befehl.Text"));
  ASSERT_TRUE(property);
  EXPECT_EQ(property->owner(), agent.get());
  EXPECT_EQ(property->getValue().toString(), text(u"_LINE"));
  property->setValue(OdVariant(text(u"_CIRCLE")));
  EXPECT_EQ(agent->commandString(), text(u"_CIRCLE"));
  EXPECT_TRUE(property->isEnabled());
  EXPECT_TRUE(property->isVisible());
  EXPECT_FALSE(agent->propertyFilter()->contains(text(u"General.Text style")));
}

TEST_F(CommandToolTest, CloneHasItsOwnBagAndFilter) {
  agent->setCommandString(text(u"_LINE"));
  agent->properties();
  const OdRxObjectPtr made = agent->clone();
  auto* const copy = dynamic_cast<OdTcToolCommandImpl*>(made.get());
  ASSERT_TRUE(copy);
  EXPECT_EQ(copy->commandString(), text(u"_LINE"));
  EXPECT_NE(copy->properties(), agent->properties());
  EXPECT_NE(copy->propertyFilter(), agent->propertyFilter());
  copy->propertyFilter()->add(text(u"General.Layer"));
  EXPECT_FALSE(agent->propertyFilter()->contains(text(u"General.Layer")));
  copy->properties()->enumProperties()->next()->setValue(OdVariant(text(u"_ARC")));
  EXPECT_EQ(agent->commandString(), text(u"_LINE"));
}

TEST_F(CommandToolTest, StandsInAFileAsTheGoldenOne) {
  agent->setCommandString(text(u"^C^C_LINE 0,0 100,0 ^M"));
  testhost::expectGolden("Command",
                         {OdTcPersistPtr(agent), OdTcPersistPtr(odrxMake<OdTcToolCommandImpl>())});
}

} // namespace
