// Palettes of other programs, from the shell to the drawing.
#include "batch_run.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <gtest/gtest.h>

namespace {

QString sample(const char* name) {
  return QStringLiteral(SOURCE_DIR "/samples/xtp/") + QLatin1String(name);
}

RunResult import(const Workbench& bench, const QStringList& words) {
  return runProgram(QStringLiteral("tpal"),
                    QStringList{QStringLiteral("import")} + words +
                        QStringList{QStringLiteral("--into"), bench.path(QStringLiteral("c")),
                                    QStringLiteral("--group"), QStringLiteral("Imported")});
}

QString field(const QJsonArray& files, const QString& tool, const char* name) {
  for (const QJsonValue& file : files)
    for (const QJsonValue& row : file[QStringLiteral("tools")].toArray())
      if (row[QStringLiteral("name")].toString() == tool)
        return row[QLatin1String(name)].toString();
  return QStringLiteral("(no such tool)");
}

TEST(ImportingPalettes, ToolsOfTheSamplesDrawWhatTheyDrew) {
  const Workbench bench;
  const RunResult imported =
      import(bench, {sample("site-2005.xtp"), sample("office-2012.xtp"), sample("civil-2026.xtp"),
                     QStringLiteral("--convert-commands")});
  ASSERT_EQ(imported.exitCode, 1) << "some tools have no place here" << qPrintable(imported.err);
  const RunResult run = bench.batch(bench.path(QStringLiteral("c")), "TOOL:Wände & Türen\n"
                                                                     "TOOL:Kreis \"groß\"\n"
                                                                     "TOOL:Zwei Zeilen\n"
                                                                     "TOOL:Wall \"A\" 'outer'\n"
                                                                     "TOOL:Kerb\n"
                                                                     "TOOL:Bare macro\n");
  ASSERT_EQ(run.exitCode, 0) << qPrintable(run.out + run.err);
  const QJsonArray entities = bench.entities();
  const auto is = [&](int at, const char* type) {
    return entities[at][QStringLiteral("type")].toString() == QLatin1String(type);
  };
  ASSERT_EQ(entities.size(), 7) << qPrintable(run.out);
  EXPECT_TRUE(is(0, "LINE"));
  EXPECT_TRUE(is(1, "CIRCLE"));
  EXPECT_EQ(entities[1][QStringLiteral("color")].toInt(), 1);
  EXPECT_EQ(entities[1][QStringLiteral("radius")].toDouble(), 25.0);
  EXPECT_TRUE(is(2, "LINE") && is(3, "LINE")) << "a macro over several lines";
  EXPECT_EQ(entities[4][QStringLiteral("layer")].toString(), QStringLiteral("WALLS"));
  EXPECT_TRUE(is(5, "LINE"));
  EXPECT_TRUE(is(6, "CIRCLE")) << "a macro of an add-on product, made a command";
  EXPECT_EQ(entities[6][QStringLiteral("radius")].toDouble(), 3.0);
}

TEST(ImportingPalettes, ToolsOfSeveralCommandsBecomeToolsOfOne) {
  const Workbench bench;
  const RunResult imported = import(bench, {sample("office-2012.xtp"), QStringLiteral("--json")});
  const QJsonArray files = QJsonDocument::fromJson(imported.out.toUtf8()).array();
  EXPECT_EQ(field(files, QStringLiteral("Circle"), "fate"), QStringLiteral("converted"))
      << qPrintable(imported.out);
  const RunResult run = bench.batch(bench.path(QStringLiteral("c")), "TOOL:Circle\n5,5\n2\n");
  ASSERT_EQ(run.exitCode, 0) << qPrintable(run.out + run.err);
  EXPECT_EQ(bench.count(QStringLiteral("CIRCLE")), 1);
}

TEST(ImportingPalettes, ADryRunTellsOfTheSamplesWhatARealOneTells) {
  const Workbench bench;
  const QString namesake = bench.write(QStringLiteral("site-2005.xtp"),
                                       "<Palette><ItemID idValue=\"{P}\"/><Tools/></Palette>");
  const QStringList samples = {sample("site-2005.xtp"), sample("office-2012.xtp"),
                               sample("civil-2026.xtp"), namesake};
  const RunResult dry = import(bench, samples + QStringList(QStringLiteral("--dry-run")));
  const RunResult real = import(bench, samples);
  EXPECT_EQ(QString(dry.out).replace(QStringLiteral("would be"), QStringLiteral("is now")),
            real.out);
  EXPECT_TRUE(real.out.contains(QStringLiteral("Brick [Hatch]; picture made")))
      << qPrintable(real.out);
  EXPECT_TRUE(real.out.contains(QStringLiteral("no hatch pattern \"AR-CONC\"")));
  EXPECT_TRUE(real.out.contains(QStringLiteral("\"site-2005 (2)\"")));
}

TEST(ImportingPalettes, AScriptImportsRunsAndExports) {
  const Workbench bench;
  const QString catalog = bench.writeCatalog(QStringLiteral("c"), {});
  const QByteArray script = "ToolPalettesImport\n" + sample("site-2005.xtp").toUtf8() +
                            "\n\nImported\n"
                            "TOOL:Wände & Türen\n"
                            "ToolPalettesExport\nsite-2005\n" +
                            bench.path(QStringLiteral("back.xtp")).toUtf8() + "\n";
  const RunResult run = bench.batch(catalog, script);
  ASSERT_EQ(run.exitCode, 0) << qPrintable(run.out + run.err);
  EXPECT_EQ(bench.count(QStringLiteral("LINE")), 1);
  EXPECT_TRUE(run.out.contains(QStringLiteral("Skipped unsupported tool: Bauteile")))
      << qPrintable(run.out);
  EXPECT_TRUE(QFileInfo::exists(bench.path(QStringLiteral("back.xtp"))));
  EXPECT_TRUE(QFileInfo::exists(bench.path(QStringLiteral("back/Images/walls.png"))));
}

TEST(ImportingPalettes, BlocksAndHatchesKeepWhatTheyWereGiven) {
  const Workbench bench;
  const RunResult drawn = bench.batch({}, "LINE 0,0 2,0 \n\n");
  ASSERT_EQ(drawn.exitCode, 0) << qPrintable(drawn.out + drawn.err);
  ASSERT_TRUE(QFile::rename(bench.drawing(), bench.path(QStringLiteral("door.dxf"))));
  const QString file = bench.write(
      QStringLiteral("p.xtp"),
      "<Palette><ItemID idValue=\"{P}\"/><Tools><Tool><ItemID idValue=\"{A}\"/><Properties>"
      "<ItemName>Door</ItemName></Properties><ToolType>1</ToolType><Data><Block>"
      "<BlockType>2</BlockType><BlockName>door</BlockName><SourceFile>C:\\Old\\door.dxf"
      "</SourceFile><InsertAs>1</InsertAs><Scale>2</Scale><Rotation>1.5707963267948966</Rotation>"
      "<PromptRotation>FALSE</PromptRotation></Block></Data></Tool><Tool><ItemID "
      "idValue=\"{B}\"/><Properties><ItemName>Lines</ItemName></Properties><ToolType>1</ToolType>"
      "<Data><GeneralProperties><Color><BasicPropInfo><PropValue unspecified=\"FALSE\"/>"
      "</BasicPropInfo><CreateInfo><AcCmColor mRGB=\"-1023410175\"/></CreateInfo></Color>"
      "</GeneralProperties><Hatch><hatchObjectType>0</hatchObjectType><HatchType>1</HatchType>"
      "<PatternName>ANSI31</PatternName><SourceFile>draftoniso.pat</SourceFile><Angle>0.5</Angle>"
      "<Scale>2</Scale></Hatch></Data></Tool></Tools></Palette>");
  const RunResult imported =
      import(bench, {file, QStringLiteral("--map"), QStringLiteral("C:\\Old=") + bench.path({})});
  ASSERT_EQ(imported.exitCode, 0) << qPrintable(imported.out + imported.err);
  const RunResult run = bench.batch(bench.path(QStringLiteral("c")),
                                    "TOOL:Door\n5,5\nRECTANG 0,0 10,10\nTOOL:Lines\n4,1\n\n");
  ASSERT_EQ(run.exitCode, 0) << qPrintable(run.out + run.err);
  const QJsonArray entities = bench.entities();
  ASSERT_EQ(entities.size(), 3) << qPrintable(run.out);
  EXPECT_EQ(entities[0][QStringLiteral("type")].toString(), QStringLiteral("INSERT"));
  EXPECT_EQ(entities[0][QStringLiteral("name")].toString(), QStringLiteral("door"));
  EXPECT_EQ(entities[0][QStringLiteral("xscale")].toDouble(), 2.0);
  EXPECT_NEAR(entities[0][QStringLiteral("rotation")].toDouble(), 90.0, 1e-3)
      << "six digits of the radians stand in the file";
  EXPECT_EQ(entities[2][QStringLiteral("type")].toString(), QStringLiteral("HATCH"));
  EXPECT_EQ(entities[2][QStringLiteral("pattern_name")].toString(), QStringLiteral("ANSI31"));
  EXPECT_EQ(entities[2][QStringLiteral("pattern_scale")].toDouble(), 2.0);
  EXPECT_EQ(entities[2][QStringLiteral("color")].toInt(), 1);
}

TEST(ImportingPalettes, WhatToolsDrawHasTheirGeneralProperties) {
  const Workbench bench;
  const auto property = [](const QByteArray& name, const QByteArray& type,
                           const QByteArray& value) {
    return "<" + name + "><BasicPropInfo><PropValue unspecified=\"FALSE\" valueType=\"" + type +
           "\" value=\"" + value + "\"/></BasicPropInfo></" + name + ">";
  };
  const QString file = bench.write(
      QStringLiteral("p.xtp"),
      "<Palette><ItemID idValue=\"{P}\"/><Tools><Tool><ItemID idValue=\"{A}\"/><Properties>"
      "<ItemName>All</ItemName></Properties><ToolType>1</ToolType><Data><GeneralProperties><Color>"
      "<BasicPropInfo><PropValue unspecified=\"FALSE\"/></BasicPropInfo><CreateInfo><AcCmColor "
      "mRGB=\"-1039130576\"/></CreateInfo></Color>" +
          property("LinetypeScale", "3", "0.5") + property("LineWeight", "2", "50") +
          property("Transparency", "2", "40") +
          "</GeneralProperties><Command Macro=\"_LINE 0,0 1,1 ;\"/></Data></Tool></Tools>"
          "</Palette>");
  ASSERT_EQ(import(bench, {file}).exitCode, 0);
  const RunResult run = bench.batch(bench.path(QStringLiteral("c")), "TOOL:All\nLINE 5,5 6,6 \n\n");
  ASSERT_EQ(run.exitCode, 0) << qPrintable(run.out + run.err);
  const QJsonArray entities = bench.entities();
  ASSERT_EQ(entities.size(), 2) << qPrintable(run.out);
  EXPECT_EQ(entities[0][QStringLiteral("true_color")].toInt(), -1039130576 & 0xFFFFFF);
  EXPECT_EQ(entities[0][QStringLiteral("ltscale")].toDouble(), 0.5);
  EXPECT_EQ(entities[0][QStringLiteral("lineweight")].toInt(), 50);
  EXPECT_EQ(entities[0][QStringLiteral("transparency")].toInt(), 40);
  for (const char* name : {"true_color", "ltscale", "lineweight", "transparency"})
    EXPECT_TRUE(entities[1][QLatin1String(name)].isUndefined() ||
                entities[1][QLatin1String(name)].isNull())
        << name << ": settings are put back";
}

TEST(ImportingPalettes, AScriptFailsAtAFileThatCannotBeImported) {
  const Workbench bench;
  const QString catalog = bench.writeCatalog(QStringLiteral("c"), {});
  const QString bad = bench.write(QStringLiteral("bad.xtp"), "<Palette");
  const RunResult run = bench.batch(catalog, "ToolPalettesImport\n" + bad.toUtf8() + "\n\n\n");
  EXPECT_EQ(run.exitCode, 1) << qPrintable(run.out + run.err);
  EXPECT_FALSE(run.crashed);
}

} // namespace
