#include "drafton/engine/host_variables.h"

#include "drafton/engine/variable_table.h"
#include "engine/support/engine_fixture.h"

using namespace drafton;

namespace {

class HostVariablesTest : public EngineFixture {};

struct SetRow {
  const char* name;
  OdVariant value;
  bool accepted;
  OdVariant kept; ///< what is read afterwards, if accepted
};

OdString text(const char* t) { return OdString::fromLatin1(t); }

const SetRow kRows[] = {
    {"ATTREQ", 0, true, 0},
    {"ATTREQ", 2, false, {}},
    {"attreq", text("0"), true, 0},
    {"ATTREQ", text("x"), false, {}},
    {"ATTREQ", 0.5, false, {}},
    {"CIRCLERAD", 2.5, true, 2.5},
    {"CIRCLERAD", -1.0, false, {}},
    {"COPYMODE", 1, true, 1},
    {"COPYMODE", 2, false, {}},
    {"HPNAME", text("BRICK"), true, text("BRICK")},
    {"HPANG", 0.5, true, 0.5},
    {"HPANG", text("0.5"), true, 0.5},
    {"HPANG", std::nan(""), false, {}},
    {"HPSCALE", 0.0, false, {}},
    {"HPSCALE", 2, true, 2.0},
    {"HPDOUBLE", true, true, 1},
    {"HPSPACE", -1.0, false, {}},
    {"HPGAPTOL", 5000.0, true, 5000.0},
    {"HPGAPTOL", 5000.1, false, {}},
    {"HPGAPTOL", -0.1, false, {}},
    {"HPISLANDDETECTION", 2, true, 2},
    {"HPISLANDDETECTION", 3, false, {}},
    {"HPASSOC", 0, true, 0},
    {"HPASSOC", 2, false, {}},
    {"GFSHIFT", 2, false, {}},
    {"GFNAME", 0, false, {}},
    {"HPCOLOR", static_cast<std::int32_t>(0xC2FF0000), true, static_cast<std::int32_t>(0xC2FF0000)},
    {"GFNAME", 9, true, 9},
    {"GFNAME", 10, false, {}},
    {"GFANG", 1.0, true, 1.0},
    {"GFSHIFT", 1, true, 1},
    {"GFCLR1", text("255,0,0"), true, static_cast<std::int32_t>(0xC2FF0000)},
    {"GFCLR2", text("bylayer"), true, static_cast<std::int32_t>(0xC0000000)},
    {"GFCLR2", text("256,0,0"), false, {}},
    {"LASTPOINT", text("1,2,3"), true, text("1,2,3")},
    {"LASTPOINT", text("1"), false, {}},
    {"DWGNAME", text("x"), false, {}},
    {"CETRANSPARENCY", text("50"), true, text("50")},
    {"CETRANSPARENCY", text("ByBlock"), true, text("BYBLOCK")},
    {"CETRANSPARENCY", text("91"), false, {}},
    {"NOSUCHVARIABLE", 1, false, {}},
    {"DIMSCALE", 2.5, true, 2.5},
    {"TEXTSIZE", text("3.5"), true, 3.5},
    {"TEXTSIZE", text("x"), false, {}},
    {"CLAYER", text("0"), true, text("0")},
    {"CLAYER", text("No such layer"), false, {}},
    {"CECOLOR", text("1"), true, static_cast<std::int32_t>(0xC3000001)},
    {"CELTSCALE", 2.0, true, 2.0},
    {"LTSCALE", 0.5, true, 0.5},
    {"FILLETRAD", 4.0, true, 4.0},
    {"ORTHOMODE", 1, true, 1},
    {"PDMODE", 3, true, 3},
    {"INSUNITS", 4, true, 4},
    {"MIRRTEXT", 0, true, 0},
};

class Setting : public HostVariablesTest, public ::testing::WithParamInterface<int> {};

TEST_P(Setting, IsCheckedAndTold) {
  const SetRow& row = kRows[GetParam()];
  const OdString name = text(row.name);
  OdVariant before;
  const bool isKnown = variables().get(name, before);
  EXPECT_EQ(variables().set(name, row.value), row.accepted) << row.name;
  OdVariant after;
  EXPECT_EQ(variables().get(name, after), isKnown);
  if (!row.accepted) {
    EXPECT_EQ(after, before) << row.name;
    EXPECT_TRUE(events({QStringLiteral("variable")}).isEmpty());
    return;
  }
  EXPECT_EQ(after.toString(), row.kept.toString()) << row.name;
  EXPECT_EQ(after.type(), row.kept.type()) << row.name;
}

INSTANTIATE_TEST_SUITE_P(All, Setting, ::testing::Range(0, static_cast<int>(std::size(kRows))));

} // namespace

TEST(VariableTable, IsSortedAndItsPresetsAreInRange) {
  OdString former;
  for (const VariableRow& row : variableTable()) {
    const OdString name = OdString::fromUtf16(row.name);
    EXPECT_LT(former.compare(name, Qt::CaseInsensitive), 0) << name.toStdString();
    former = name;
    EXPECT_EQ(findVariable(name.toLower()), &row);
    if (row.scope == VariableRow::Scope::kComputed) {
      EXPECT_NE(row.get, nullptr);
      continue;
    }
    EXPECT_EQ(checkedValue(row, presetValue(row)), presetValue(row)) << name.toStdString();
  }
}

TEST_F(HostVariablesTest, AChangeIsToldWithTheNameOfTheTable) {
  variables().set(QStringLiteral("refreshproperties"), 1);
  EXPECT_EQ(events(), QStringList(QStringLiteral("variable RefreshProperties")));
}

TEST_F(HostVariablesTest, AChangeOfTheDrawingIsToldWhoeverMakesIt) {
  database().setSysVar(QStringLiteral("TEXTSIZE"), 9.0);
  EXPECT_EQ(events(), QStringList(QStringLiteral("variable TEXTSIZE")));
}

TEST_F(HostVariablesTest, SessionValuesAreSharedAndDocumentValuesAreNot) {
  variables().set(QStringLiteral("HPNAME"), QStringLiteral("NET"));
  variables().set(QStringLiteral("POLYSIDES"), 7);
  engine().documents().newDocument();
  EXPECT_EQ(variable("HPNAME").toString(), QStringLiteral("NET"));
  EXPECT_EQ(variable("POLYSIDES").toInt32(), 4);
}

TEST_F(HostVariablesTest, NamesOfTheDrawingAreComputed) {
  EXPECT_EQ(variable("DWGNAME").toString(), QStringLiteral("Drawing1.dxf"));
  EXPECT_EQ(variable("DWGTITLED").toInt32(), 0);
  EXPECT_EQ(variable("DWGPREFIX").toString(), QString());
}

TEST_F(HostVariablesTest, WithoutADocumentOnlyThoseOfTheSessionAreThere) {
  HostVariables bare(engine(), nullptr);
  OdVariant value;
  EXPECT_TRUE(bare.get(QStringLiteral("HPNAME"), value));
  EXPECT_FALSE(bare.get(QStringLiteral("TEXTSIZE"), value));
  EXPECT_FALSE(bare.set(QStringLiteral("LASTPOINT"), QStringLiteral("1,1")));
}
