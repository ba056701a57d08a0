// Runs the catalog tool in this process, over catalogs that a test writes.
#pragma once

#include "tpal/command.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

class ToolFixture : public testing::Test {
 protected:
  int run(const QStringList& arguments) {
    m_out.clear();
    m_err.clear();
    QTextStream out(&m_out);
    QTextStream err(&m_err);
    tpal::Console console{out, err, m_isTerminal};
    return tpal::runTool(arguments, console);
  }
  const QString& out() const { return m_out; }
  const QString& err() const { return m_err; }

  QString path(const QString& name) const { return m_folder.filePath(name); }
  void write(const QString& name, const QByteArray& bytes) const {
    QDir().mkpath(QFileInfo(path(name)).path());
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  QByteArray read(const QString& name) const {
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no such file)");
  }

  /// A catalog with the palette "P" in the group "G", and the tools' XML in it.
  void writeCatalog(const QByteArray& tools,
                    const QByteArray& contents = "<ToolPalette ID=\"{P}\"/>") const {
    write(QStringLiteral("c/DrfTcCatalog.dtc"),
          "<Catalog><ItemID idValue=\"{C}\"/><Properties><ItemName>Cat</ItemName></Properties>"
          "<Palettes><Palette><ItemID idValue=\"{P}\"/><Url href=\"Palettes\\p.dtc\"/></Palette>"
          "</Palettes><Groups><ToolPaletteGroup><ItemID idValue=\"{G}\"/>"
          "<Properties><ItemName>G</ItemName></Properties><Contents>" +
              contents + "</Contents></ToolPaletteGroup></Groups></Catalog>");
    write(
        QStringLiteral("c/Palettes/p.dtc"),
        "<Palette><ItemID idValue=\"{P}\"/><Properties><ItemName>P</ItemName></Properties><Tools>" +
            tools + "</Tools></Palette>");
  }
  static QByteArray tool(const QByteArray& id, const QByteArray& name, const QByteArray& data) {
    return "<Tool><ItemID idValue=\"" + id + "\"/><Properties><ItemName>" + name +
           "</ItemName></Properties><ToolType>1</ToolType><Data>" + data + "</Data></Tool>";
  }

  bool m_isTerminal = false;

 private:
  QTemporaryDir m_folder;
  QString m_out;
  QString m_err;
};
