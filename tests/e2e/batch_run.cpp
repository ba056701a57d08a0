#include "batch_run.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QProcess>
#include <QUuid>

#include <gtest/gtest.h>

namespace {

constexpr int kPatience = 120 * 1000;

RunResult runProcess(const QString& program, const QStringList& arguments,
                     const QByteArray& input) {
  QProcess process;
  process.start(program, arguments);
  process.write(input);
  process.closeWriteChannel();
  RunResult result;
  if (!process.waitForFinished(kPatience)) {
    result.err = process.errorString();
    process.kill();
    process.waitForFinished();
    return result;
  }
  result.crashed = process.exitStatus() != QProcess::NormalExit;
  result.exitCode = process.exitCode();
  result.out = QString::fromUtf8(process.readAllStandardOutput());
  result.err = QString::fromUtf8(process.readAllStandardError());
  return result;
}

QString freshId() { return QUuid::createUuid().toString().toUpper(); }

} // namespace

RunResult runProgram(const QString& name, const QStringList& arguments, const QByteArray& input) {
  return runProcess(QStringLiteral(BINARY_DIR "/") + name, arguments, input);
}

QString Workbench::write(const QString& name, const QByteArray& bytes) const {
  const QString full = path(name);
  QDir().mkpath(QFileInfo(full).path());
  QFile file(full);
  EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(full);
  file.write(bytes);
  return full;
}

QString Workbench::writeCatalog(const QString& name, const QList<ToolText>& tools) const {
  const QString palette = freshId();
  QString text =
      QStringLiteral("<Palette><ItemID idValue=\"%1\"/><Properties><ItemName>Palette</ItemName>"
                     "</Properties><Tools>")
          .arg(palette);
  for (const ToolText& tool : tools)
    text += QStringLiteral(
                "<Tool><ItemID idValue=\"%1\"/><Properties><ItemName>%2</ItemName></Properties>"
                "<ToolType>1</ToolType><Data><GeneralProperties>%4</GeneralProperties>"
                "<Command Macro=\"%3\"/></Data></Tool>")
                .arg(freshId(), tool.name, tool.macro.toHtmlEscaped(), tool.generalProperties);
  text += QStringLiteral("</Tools></Palette>");
  write(name + QStringLiteral("/Palettes/palette.dtc"), text.toUtf8());
  write(
      name + QStringLiteral("/DrfTcCatalog.dtc"),
      QStringLiteral("<Catalog><ItemID idValue=\"%1\"/><Palettes><Palette><ItemID idValue=\"%2\"/>"
                     "<Url href=\"Palettes\\palette.dtc\"/></Palette></Palettes>"
                     "<Groups><ToolPaletteGroup><ItemID idValue=\"%3\"/>"
                     "<Contents><ToolPalette ID=\"%2\"/></Contents></ToolPaletteGroup></Groups>"
                     "</Catalog>")
          .arg(freshId(), palette, freshId())
          .toUtf8());
  return path(name);
}

RunResult Workbench::batch(const QString& catalogs, const QByteArray& script,
                           const QStringList& more) const {
  const QString file = write(QStringLiteral("script.scr"), script);
  return runProgram(QStringLiteral("drafton"),
                    QStringList{QStringLiteral("batch"), QStringLiteral("--profile"), profile(),
                                QStringLiteral("--catalogs"), catalogs, QStringLiteral("--script"),
                                file, QStringLiteral("--out"), drawing()} +
                        more);
}

QJsonArray Workbench::entities(const QString& file) const {
  const RunResult result =
      runProcess(QStringLiteral("/usr/bin/python3"),
                 {QStringLiteral(SOURCE_DIR "/tests/e2e/describe_drawing.py"), file}, {});
  EXPECT_EQ(result.exitCode, 0) << qPrintable(result.err);
  return QJsonDocument::fromJson(result.out.toUtf8()).array();
}

int Workbench::count(const QString& type) const {
  int n = 0;
  const QJsonArray all = entities();
  for (const QJsonValue& e : all)
    if (e[QStringLiteral("type")].toString() == type) ++n;
  return n;
}
