// Runs the scripts that look at drawings with another program.
#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QStringList>

/// What a script of tests/drawing/roundtrip prints. The system's Python has ezdxf.
inline QByteArray runScript(const char* name, const QStringList& arguments) {
  QProcess python;
  const QString path = QStringLiteral(SOURCE_DIR "/tests/drawing/roundtrip/") + QLatin1String(name);
  python.start(QStringLiteral("/usr/bin/python3"), QStringList{path} + arguments);
  EXPECT_TRUE(python.waitForFinished(120'000));
  EXPECT_EQ(python.exitCode(), 0) << python.readAllStandardError().toStdString();
  return python.readAllStandardOutput();
}
