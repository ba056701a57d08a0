// DIMSTYLE, and variables of dimensions beside a style.
#include "drawing/entities/dimension_kinds.h"
#include "drawing/entities/leader.h"
#include "drawing/tables/dim_var_values.h"
#include "engine/commands/command_fixture.h"

namespace {

class DimensionStyles : public CommandFixture {};

TEST_F(DimensionStyles, AreSavedAndRestored) {
  runScript(u"DIMTXT|9|DIMSTYLE|s|Large|DIMSTYLE|r|Standard");
  EXPECT_EQ(database().sysVarReal("DIMTXT"), 2.5);
  runScript(u"DIMSTYLE|r|Large");
  EXPECT_EQ(database().sysVarReal("DIMTXT"), 9);
  EXPECT_EQ(database().sysVarText("DIMSTYLE"), QStringLiteral("Large"));
}

TEST_F(DimensionStyles, NewDimensionsHaveWhatWasSetBesideTheStyle) {
  runScript(u"DIMTXT|9|DIMLINEAR|0,0|10,5|4,9");
  const OdDbDimensionPtr dimension = entityAt(0).safeOpenObject();
  EXPECT_EQ(dimension->dimVars().dimtxt, 9);
  const OdDbDimStyleTableRecordPtr style = dimension->dimensionStyle().safeOpenObject();
  EXPECT_EQ(style->dimtxt(), 2.5);
}

/// Another value than the variable has, as it is typed.
OdString otherValue(const OdDbDimVarInfo& row, const OdDbVarValue& now) {
  if (const auto* const real = std::get_if<double>(&now)) return OdString::number(*real + 0.25);
  const auto* const whole = std::get_if<std::int64_t>(&now);
  if (std::holds_alternative<bool OdDbDimVarValues::*>(row.member))
    return OdString::number(1 - *whole);
  if (std::holds_alternative<OdDb::LineWeight OdDbDimVarValues::*>(row.member))
    return QStringLiteral("25");
  if (whole) return QStringLiteral("%1").arg(*whole == 1 ? 2 : 1);
  if (std::holds_alternative<OdString OdDbDimVarValues::*>(row.member))
    return QStringLiteral("<>x");
  return row.code == 340   ? QStringLiteral("Notes")
         : row.code <= 344 ? QStringLiteral("_DOT")
                           : QStringLiteral("Ours");
}

TEST_F(DimensionStyles, EveryVariableCanBeSetBesideAStyleOfFewWords) {
  runScript(u"STYLE|Notes|txt|0|1|0|n|n|n|STYLE|Standard|txt|0|1|0|n|n|n|LINETYPE|c|Ours||1,-1|");
  // Files of many programs do not tell the text style.
  database().currentDimStyle().openAs<OdDbDimStyleTableRecord>(OdDb::kForWrite)->setDimtxsty({});
  runScript(u"DIMLINEAR|0,0|10,5|4,9");
  EXPECT_FALSE(isRunning()) << output().toStdString();
  const OdDbDimensionPtr plain = entityAt(0).safeOpenObject();
  EXPECT_FALSE(database().writeDxf().contains("DSTYLE"));
  int set = 0;
  for (const OdDbDimVarInfo& row : oddbDimVars()) {
    const OdString name = QLatin1String(row.name);
    const auto now = database().getSysVar(name);
    if (!now) continue;
    const OdString value = otherValue(row, *now);
    type(name + u'\n' + value + u'\n');
    ASSERT_FALSE(isRunning()) << row.name << ' ' << value.toStdString() << output().toStdString();
    ++set;
    runScript(u"DIMLINEAR|0,0|10,5|4,9");
    const OdDbDimensionPtr made = entityAt(set).openObject();
    ASSERT_TRUE(made) << row.name << output().toStdString();
    OdDbDimVarValues wanted;
    ASSERT_TRUE(oddb::setDimVar(wanted, row, *database().getSysVar(name), &database()));
    std::visit(
        [&](auto member) {
          EXPECT_EQ(made->dimVars().*member, wanted.*member) << row.name;
          EXPECT_FALSE(plain->dimVars().*member == wanted.*member) << row.name;
        },
        row.member);
  }
  EXPECT_GT(set, 60);
  runScript(u"DIMALIGNED|0,0|10,5|4,9|CIRCLE|50,0|5|DIMRADIUS|55,0|60,0|DIMDIAMETER|50,-5|50,-20");
  runScript(u"LEADER|0,0|5,5||note||DIMSTYLE|a|all|");
  EXPECT_FALSE(isRunning()) << output().toStdString();
  const OdDbLeaderPtr leader(odrxCast<OdDbLeader>(entityAt(set + 5).openObject().get()));
  ASSERT_TRUE(leader) << output().right(3000).toStdString();
  EXPECT_NE(leader->residue(), nullptr);
  EXPECT_FALSE(console().shows(QStringLiteral("does not fit"))) << output().toStdString();
}

TEST_F(DimensionStyles, StandardArrowsAreMadeWhenTheyAreWanted) {
  constexpr const char* kNames[] = {"_ArchTick",    "_BoxBlank",   "_BoxFilled",   "_Closed",
                                    "_ClosedBlank", "_DatumBlank", "_DatumFilled", "_Dot",
                                    "_DotBlank",    "_DotSmall",   "_Integral",    "_None",
                                    "_Oblique",     "_Open",       "_Open30",      "_Open90",
                                    "_Origin",      "_Origin2",    "_Small"};
  const auto blocks = database().getBlockTableId().openAs<OdDbBlockTable>();
  for (const char* const name : kNames) {
    const OdString block = QLatin1String(name);
    // Old drawings leave the underscore out.
    type(QStringLiteral("DIMBLK\n") + block.mid(1).toUpper() + u'\n');
    EXPECT_EQ(database().sysVarText("DIMBLK"), block);
    ASSERT_TRUE(blocks->has(block)) << name;
    const auto record = blocks->getAt(block).openAs<OdDbBlockTableRecord>();
    EXPECT_EQ(record->newIterator()->done(), block == u"_None") << name;
    type(QStringLiteral("DIMLINEAR 0,0 10,5 4,9 DIMSTYLE S A") + block + u'\n');
    const OdDbDimStyleTableRecordPtr style = database().currentDimStyle().openObject();
    EXPECT_EQ(style->getName(), u'A' + block) << output().toStdString();
    EXPECT_EQ(style->dimblk(), record->objectId()) << name;
  }
  runScript(u"DIMBLK|.|DIMBLK1|ClosedFilled|DIMLDRBLK|_dot");
  EXPECT_EQ(database().sysVarText("DIMBLK"), OdString());
  EXPECT_EQ(database().sysVarText("DIMBLK1"), OdString());
  EXPECT_EQ(database().sysVarText("DIMLDRBLK"), QStringLiteral("_Dot"));
}

TEST_F(DimensionStyles, ARedefinedStyleShowsAtOnce) {
  runScript(u"DIMLINEAR|0,0|10,5|4,9|DIMPOST|<>mm|DIMSTYLE|s|Standard|y");
  const OdDbDimensionPtr dimension = entityAt(0).safeOpenObject();
  EXPECT_EQ(dimension->displayedText(), QStringLiteral("10mm"));
}

TEST_F(DimensionStyles, AStyleIsAppliedToDimensions) {
  runScript(u"DIMLINEAR|0,0|10,5|4,9|DIMTXT|9|DIMSTYLE|s|Large|DIMSTYLE|a|l|");
  const OdDbDimensionPtr dimension = entityAt(0).safeOpenObject();
  const OdDbDimStyleTableRecordPtr style = dimension->dimensionStyle().safeOpenObject();
  EXPECT_EQ(style->getName(), QStringLiteral("Large"));
}

} // namespace
