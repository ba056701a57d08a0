#include "support/print_text.h"

#include <QProcess>
#include <QSet>
#include <QStringList>

#include <gtest/gtest.h>

namespace {

const QString kLibrary = QStringLiteral(BINARY_DIR "/ToolPaletteManager.so");

/// What a program prints; empty if it cannot be run.
QString outputOf(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  process.waitForFinished(-1);
  EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
  return QString::fromUtf8(process.readAllStandardOutput());
}

QStringList exportedNames() {
  QStringList names;
  const QString all =
      outputOf(QStringLiteral("nm"), {QStringLiteral("-D"), QStringLiteral("--defined-only"),
                                      QStringLiteral("-C"), kLibrary});
  // "00001234 T tc::OdTcTool::desc()"
  for (const QString& line : all.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
    names << line.section(QLatin1Char(' '), 2);
  names.sort();
  return names;
}

QStringList expectedNames() {
  QStringList names = {QStringLiteral("odrxCreateModuleObject"),
                       QStringLiteral("odrxGetAPIVersion"),
                       QStringLiteral("tc::odtcToolPaletteManager()"),
                       QStringLiteral("tc::odtcToolPaletteVisible()"),
                       QStringLiteral("tc::odtcGetSelectedItem()"),
                       QStringLiteral("tc::odtcInitReactor(tc::OdTcCatalogItem*)"),
                       QStringLiteral("tc::odtcUninitReactor(tc::OdTcCatalogItem*)")};
  for (const char* name :
       {"OdTcCatalogItem", "OdTcGroup", "OdTcPaletteManager", "OdTcPersist", "OdTcTool",
        "OdTcToolActionAgent", "OdTcToolBlockCommand", "OdTcToolCommand", "OdTcToolHatchCommand",
        "OdTcToolPalette", "OdTcToolRasterCommand"})
    for (const char* member : {"g_pDesc", "rxInit()", "rxInit(OdRxModule*)", "rxUninit()", "desc()",
                               "isA() const", "queryX(OdRxClass const*) const",
                               "cast(OdRxObject const*)", "createObject()", "pseudoConstructor()"})
      names << QStringLiteral("tc::%1::%2").arg(QLatin1String(name), QLatin1String(member));
  names.sort();
  return names;
}

QString difference(const QStringList& a, const QStringList& b) {
  QSet<QString> left(a.begin(), a.end());
  return QStringList(left.subtract(QSet<QString>(b.begin(), b.end())).values())
      .join(QLatin1Char('\n'));
}

TEST(ExportedSymbolsTest, AreTheSurfaceAndNothingElse) {
  const QStringList found = exportedNames();
  const QStringList expected = expectedNames();
  EXPECT_EQ(difference(found, expected), QString()) << "exported and should not be";
  EXPECT_EQ(difference(expected, found), QString()) << "not exported and should be";
  EXPECT_EQ(found.size(), expected.size()) << "a name is exported twice";
}

TEST(ExportedSymbolsTest, NoProgramLinksTheModule) {
  QStringList programs = QStringLiteral(PROGRAMS).split(QLatin1Char(','), Qt::SkipEmptyParts);
  for (QString& program : programs) program.prepend(QStringLiteral(BINARY_DIR "/"));
  programs << QStringLiteral(BINARY_DIR "/test_loadable");
  for (const QString& program : programs) {
    const QString needed = outputOf(QStringLiteral("readelf"), {QStringLiteral("-d"), program});
    EXPECT_TRUE(needed.contains(QStringLiteral("libodframe.so"))) << program.toStdString();
    EXPECT_FALSE(needed.contains(QStringLiteral("ToolPaletteManager"))) << program.toStdString();
  }
}

TEST(ExportedSymbolsTest, TheModuleSharesTheFrameAndTheDrawingWithItsHost) {
  const QString needed = outputOf(QStringLiteral("readelf"), {QStringLiteral("-d"), kLibrary});
  EXPECT_TRUE(needed.contains(QStringLiteral("libodframe.so")));
  EXPECT_TRUE(needed.contains(QStringLiteral("liboddrawing.so")));
}

TEST(ExportedSymbolsTest, TheCatalogToolNeedsNoWindows) {
  const QString tool = outputOf(QStringLiteral("readelf"),
                                {QStringLiteral("-d"), QStringLiteral(BINARY_DIR "/tpal")});
  EXPECT_TRUE(tool.contains(QStringLiteral("libodframe.so")));
  EXPECT_FALSE(tool.contains(QStringLiteral("Qt6Widgets")));
}

} // namespace
