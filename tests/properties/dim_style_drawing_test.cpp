// Dimension styles on their way from one drawing into another, by snapshots that go through a file.
#include "drawing/database.h"
#include "properties/dim_style_table_record_impl.h"
#include "properties/general_properties.h"
#include "properties/line_type_table_record_impl.h"
#include "support/golden.h"
#include "support/module_fixture.h"

#include <functional>

namespace {

using namespace tc;
using namespace Qt::StringLiterals;

using Values = OdDbDimVarValues;
using Property = OdTcDimStylePropertyImpl;

/// What a snapshot of a style keeps of its alternate units does not say how they are written.
constexpr std::string_view kNotKept = "DIMALTU";

struct DimStyleDrawingTest : testhost::ModuleFixture {
  OdDbDatabasePtr source = OdDbDatabase::createDatabase();
  OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();

  template <class Record>
  static OdDbObjectId add(OdDbObjectId table, const OdString& name) {
    auto record = odrxMake<Record>();
    record->setName(name);
    return table.openAs<OdDbSymbolTable>(OdDb::kForWrite)->add(record);
  }
  static OdDbObjectId addBlock(const OdDbDatabase& database, const OdString& name) {
    return add<OdDbBlockTableRecord>(database.getBlockTableId(), name);
  }
  OdDbObjectId addStyle(const std::function<void(Values&)>& change) const {
    Values values;
    change(values);
    auto style = odrxMake<OdDbDimStyleTableRecord>();
    style->setName(u"Site"_s);
    style->setValues(values);
    return source->getDimStyleTableId().openAs<OdDbDimStyleTable>(OdDb::kForWrite)->add(style);
  }
  /// A property with the style's snapshot, as a palette's file gives it back.
  static OdSmartPtr<Property> throughAFile(OdDbObjectId style) {
    const auto taken = odrxMake<Property>();
    taken->takeRecord(style);
    const auto root = testhost::readParts(testhost::written(taken));
    auto* const read = dynamic_cast<Property*>(root->parts.at(0).get());
    read->setOwner(nullptr);
    return OdSmartPtr<Property>(read);
  }
  /// The values of the style that comes of it in the other drawing.
  Values arrived(const std::function<void(Values&)>& change) const {
    const OdDbObjectId made = throughAFile(addStyle(change))->recordIn(drawing);
    const auto style = made.openAs<OdDbDimStyleTableRecord>();
    EXPECT_EQ(style->getName(), u"Site"_s);
    return style->values();
  }
};

class DimValueTest : public DimStyleDrawingTest,
                     public testing::WithParamInterface<OdDbDimVarInfo> {};

TEST_P(DimValueTest, ArrivesInADrawingThatLacksTheStyle) {
  const OdDbDimVarInfo& row = GetParam();
  const auto sourceTable = [&](const OdDbDatabase& database) {
    return row.code == 340   ? database.getTextStyleTableId()
           : row.code <= 344 ? database.getBlockTableId()
                             : database.getLinetypeTableId();
  };
  OdDbObjectId expected;
  const auto change = [&](Values& values) {
    // What the variable counts for only together with another one.
    values.dimsah = true;
    values.dimfxlon = true;
    std::visit(
        [&](auto member) {
          using T = std::remove_cvref_t<decltype(values.*member)>;
          T& value = values.*member;
          if constexpr (std::is_same_v<T, OdString>)
            value = u"<> \"mm\" & Ø"_s;
          else if constexpr (std::is_same_v<T, OdCmColor>)
            value = OdCmColor::fromColorIndex(3);
          else if constexpr (std::is_same_v<T, OdDb::LineWeight>)
            value = static_cast<OdDb::LineWeight>(35);
          else if constexpr (std::is_same_v<T, bool>)
            value = !value;
          else if constexpr (std::is_same_v<T, double>)
            value = 2.75;
          else if constexpr (std::is_same_v<T, int>)
            value = value == 0 ? 1 : value - 1;
          else if (row.code == 340)
            value = add<OdDbTextStyleTableRecord>(sourceTable(*source), u"Fancy"_s);
          else if (row.code <= 344) {
            value = addBlock(*source, u"MyArrow"_s);
            expected = addBlock(*drawing, u"MyArrow"_s);
          } else {
            value = add<OdDbLinetypeTableRecord>(sourceTable(*source), u"Fancy"_s);
          }
        },
        row.member);
  };
  Values sent;
  const Values came = arrived([&](Values& values) {
    change(values);
    sent = values;
  });
  std::visit(
      [&](auto member) {
        using T = std::remove_cvref_t<decltype(came.*member)>;
        if constexpr (std::is_same_v<T, OdDbObjectId>) {
          if (expected.isNull())
            expected = sourceTable(*drawing).template openAs<OdDbSymbolTable>()->getAt(u"Fancy"_s);
          EXPECT_FALSE(expected.isNull());
          EXPECT_EQ(came.*member, expected);
        } else {
          EXPECT_EQ(came.*member, row.name == kNotKept ? Values().*member : sent.*member);
        }
      },
      row.member);
}

INSTANTIATE_TEST_SUITE_P(Variables, DimValueTest,
                         testing::ValuesIn(oddbDimVars().begin(), oddbDimVars().end()),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(DimStyleDrawingTest, ArrowsOfBothEndsCountOnlyIfTheyAreApart) {
  const OdDbObjectId arrow = addBlock(*source, u"MyArrow"_s);
  addBlock(*drawing, u"MyArrow"_s);
  const auto snapshot = odrxMake<OdTcDimStyleTableRecordImpl>();
  snapshot->takeFrom(addStyle([&](Values& values) { values.dimblk1 = values.dimblk2 = arrow; }));
  EXPECT_EQ(snapshot->variables().dimblk1, OdString());
  EXPECT_EQ(snapshot->variables().dimblk2, OdString());
  const QByteArray bytes = testhost::written(snapshot);
  EXPECT_TRUE(bytes.contains("dimblk1=\"\""));
  EXPECT_TRUE(bytes.contains("dimblk2=\"\""));
}

TEST_F(DimStyleDrawingTest, AFixedExtensionLengthCountsOnlyIfItIsOn) {
  const auto snapshot = odrxMake<OdTcDimStyleTableRecordImpl>();
  snapshot->takeFrom(addStyle([](Values& values) { values.dimfxl = 7; }));
  EXPECT_EQ(snapshot->variables().dimfxl, OdTcDimStyleVariables().dimfxl);
}

TEST_F(DimStyleDrawingTest, AMissingArrowLeavesTheUsualOne) {
  const OdDbObjectId arrow = addBlock(*source, u"MyArrow"_s);
  const Values came = arrived([&](Values& values) {
    values.dimsah = true;
    values.dimblk = values.dimblk1 = values.dimblk2 = values.dimldrblk = arrow;
  });
  EXPECT_TRUE(came.dimldrblk.isNull());
  EXPECT_TRUE(came.dimblk.isNull());
  EXPECT_TRUE(came.dimblk1.isNull());
  EXPECT_TRUE(came.dimblk2.isNull());
}

TEST_F(DimStyleDrawingTest, ALayoutIsNoArrow) {
  const auto snapshot = odrxMake<OdTcDimStyleTableRecordImpl>();
  snapshot->setRecordName(u"Odd"_s);
  snapshot->variables().dimblk = u"*Model_Space"_s;
  const auto made = ensureRecord(drawing, snapshot).openAs<OdDbDimStyleTableRecord>();
  EXPECT_TRUE(made->dimblk().isNull());
}

TEST_F(DimStyleDrawingTest, LinkedRecordsOfTheDrawingWinOverTheSnapshots) {
  const OdDbObjectId here =
      add<OdDbLinetypeTableRecord>(drawing->getLinetypeTableId(), u"DASHED"_s);
  here.openAs<OdDbLinetypeTableRecord>(OdDb::kForWrite)->setComments(u"ours"_s);
  const OdDbObjectId there =
      add<OdDbLinetypeTableRecord>(source->getLinetypeTableId(), u"Dashed"_s);
  there.openAs<OdDbLinetypeTableRecord>(OdDb::kForWrite)->setComments(u"theirs"_s);
  const Values came = arrived([&](Values& values) { values.dimltype = there; });
  EXPECT_EQ(came.dimltype, here);
  EXPECT_EQ(here.openAs<OdDbLinetypeTableRecord>()->comments(), u"ours"_s);
}

TEST_F(DimStyleDrawingTest, TakingFromAnotherKindOfRecordIsRefused) {
  EXPECT_THROW(odrxMake<OdTcDimStyleTableRecordImpl>()->takeFrom(drawing->getLayerZeroId()),
               OdError_NotThatKindOfClass);
}

TEST_F(DimStyleDrawingTest, ValuesThatNoDrawingTakesAreToldAndStayAsUsual) {
  const auto snapshot = odrxMake<OdTcDimStyleTableRecordImpl>();
  snapshot->setRecordName(u"Odd"_s);
  snapshot->variables().dimtxt = -1;
  snapshot->variables().dimaunit = 99;
  snapshot->variables().dimlwd = 999;
  snapshot->variables().dimlwe = 0xFFFFFFFD;
  snapshot->variables().dimadec = 0xFFFF;
  const auto made = ensureRecord(drawing, snapshot).openAs<OdDbDimStyleTableRecord>();
  EXPECT_EQ(made->dimtxt(), Values().dimtxt);
  EXPECT_EQ(made->dimaunit(), 0);
  EXPECT_EQ(made->dimlwd(), OdDb::kLnWtByBlock);
  EXPECT_EQ(made->dimlwe(), OdDb::kLnWtByLwDefault);
  EXPECT_EQ(made->dimadec(), -1);
  const QString told = testhost::host().log.join(u'\n');
  for (const QString& name : {u"DIMTXT"_s, u"DIMAUNIT"_s, u"DIMLWD"_s})
    EXPECT_TRUE(told.contains(name + u":"_s)) << told.toStdString();
  EXPECT_FALSE(told.contains(u"DIMLWE"_s));
  EXPECT_FALSE(told.contains(u"DIMADEC"_s));
}

TEST_F(DimStyleDrawingTest, ARunLoadsTheStylesVariablesAndPutsTheDrawingsBack) {
  drawing->setSysVar(u"DIMSCALE"_s, 50.0);
  drawing->setSysVar(u"DIMPOST"_s, u"own"_s);
  const QByteArray before = drawing->writeDxf();
  const OdDbObjectId standard = drawing->currentDimStyle();
  const auto property = throughAFile(addStyle([](Values& values) {
    values.dimscale = 20;
    values.dimtxt = 7;
    values.dimtol = true;
  }));
  property->applyToDatabase(drawing);
  EXPECT_EQ(drawing->currentDimStyle().openAs<OdDbDimStyleTableRecord>()->getName(), u"Site"_s);
  EXPECT_EQ(drawing->sysVarReal("DIMSCALE"), 20);
  EXPECT_EQ(drawing->sysVarReal("DIMTXT"), 7);
  EXPECT_EQ(drawing->sysVarInt("DIMTOL"), 1);
  EXPECT_EQ(drawing->sysVarText("DIMPOST"), OdString());
  // As the tool's own command would do.
  drawing->setSysVar(u"DIMASZ"_s, 9.0);
  property->restoreToDatabase(drawing);
  EXPECT_EQ(drawing->currentDimStyle(), standard);
  drawing->getDimStyleTableId()
      .openAs<OdDbDimStyleTable>()
      ->getAt(u"Site"_s)
      .safeOpenObject(OdDb::kForWrite)
      ->erase();
  const auto header = [](const QByteArray& dxf) { return dxf.left(dxf.indexOf("ENDSEC")); };
  const auto withoutHandles = [&](QByteArray text) {
    const qsizetype at = text.indexOf("$HANDSEED");
    return text.left(at);
  };
  EXPECT_EQ(withoutHandles(header(drawing->writeDxf())), withoutHandles(header(before)));
}

TEST_F(DimStyleDrawingTest, ARunInTheStyleThatIsCurrentPutsItsOverridesBack) {
  const auto property = odrxMake<Property>();
  property->setText(u"Standard"_s);
  drawing->setSysVar(u"DIMSCALE"_s, 50.0);
  property->applyToDatabase(drawing);
  EXPECT_NE(drawing->sysVarReal("DIMSCALE"), 50);
  property->restoreToDatabase(drawing);
  EXPECT_EQ(drawing->sysVarReal("DIMSCALE"), 50);
}

TEST_F(DimStyleDrawingTest, AnUnspecifiedStyleLeavesVariablesToTheToolsOwnCommand) {
  const auto property = throughAFile(addStyle([](Values& values) { values.dimscale = 20; }));
  property->getBasicInfo()->setUnspecified(true);
  property->applyToDatabase(drawing);
  EXPECT_EQ(drawing->sysVarReal("DIMSCALE"), 1);
  drawing->setSysVar(u"DIMSCALE"_s, 3.0);
  property->restoreToDatabase(drawing);
  EXPECT_EQ(drawing->sysVarReal("DIMSCALE"), 3);
  EXPECT_FALSE(drawing->getDimStyleTableId().openAs<OdDbDimStyleTable>()->has(u"Site"_s));
}

TEST_F(DimStyleDrawingTest, HeaderValuesThatNoDrawingTakesComeBackAllTheSame) {
  const QByteArray odd = "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1015\n9\n$DIMBLK\n1\nGone\n"
                         "9\n$DIMTXT\n40\n-4\n0\nENDSEC\n0\nEOF\n";
  const OdDbDatabasePtr read = OdDbDatabase::readDxf(odd, u"odd.dxf"_s);
  const auto blockBefore = read->getSysVar(u"DIMBLK"_s);
  const auto heightBefore = read->getSysVar(u"DIMTXT"_s);
  addBlock(*read, u"MyArrow"_s);
  const OdDbObjectId arrow = addBlock(*source, u"MyArrow"_s);
  const auto property = throughAFile(addStyle([&](Values& values) { values.dimblk = arrow; }));
  property->applyToDatabase(read);
  EXPECT_EQ(read->sysVarText("DIMBLK"), u"MyArrow"_s);
  property->restoreToDatabase(read);
  EXPECT_TRUE(read->getSysVar(u"DIMBLK"_s) == blockBefore);
  EXPECT_TRUE(read->getSysVar(u"DIMTXT"_s) == heightBefore);
}

} // namespace
