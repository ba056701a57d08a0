#include "tools/unsupported_tools.h"

#include "persistence/element_table.h"
#include "support/golden.h"
#include "support/module_fixture.h"

namespace {

using namespace tc;
using testhost::host;

class UnsupportedToolTest : public testhost::ModuleFixture,
                            public testing::WithParamInterface<QStringView> {
 protected:
  OdTcToolActionAgentPtr agent{
      dynamic_cast<OdTcToolActionAgent*>(
          OdTcElementTable::instance().create(GetParam().toString()).detach()),
      kOdRxObjAttach};
};

TEST_P(UnsupportedToolTest, IsRecognisedAndDoesNothing) {
  ASSERT_TRUE(agent);
  EXPECT_EQ(agent->elementName(), GetParam().toString());
  EXPECT_FALSE(agent->isSupported());
  EXPECT_FALSE(agent->isSpecial());
  testhost::TestDocument& document = host().documents.open(QStringLiteral("A.dxf"));
  EXPECT_FALSE(agent->execute(&document));
  EXPECT_TRUE(document.sent.isEmpty());
  EXPECT_EQ(agent->properties()->count(), 0);
}

TEST_P(UnsupportedToolTest, SwallowsItsData) {
  const QByteArray name = GetParam().toString().toLatin1();
  const QByteArray document = "<Palette><" + name +
                              " a=\"1\"><Style x=\"2\">t</Style><Deep><Deeper/>"
                              "</Deep></" +
                              name + "><Command Macro=\"_LINE\"/></Palette>";
  const auto root = testhost::readParts(document);
  ASSERT_EQ(root->parts.size(), 2u) << "what follows is read";
  const QByteArray bytes = testhost::written(root->parts[0]);
  EXPECT_FALSE(bytes.contains("Style x"));
  EXPECT_TRUE(bytes.contains("<" + name + " />"));
}

TEST_P(UnsupportedToolTest, TakesEveryName) {
  EXPECT_TRUE(agent->readField(QStringLiteral("anything"), OdVariant(QStringLiteral("x"))));
  const OdRxObjectPtr copy = agent->clone();
  EXPECT_EQ(dynamic_cast<OdTcToolActionAgent*>(copy.get())->elementName(), GetParam().toString());
}

INSTANTIATE_TEST_SUITE_P(Kinds, UnsupportedToolTest, testing::ValuesIn(kUnsupportedElements));

} // namespace
