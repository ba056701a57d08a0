// The sample libraries and drawings: made anew by their scripts, and looked at with other eyes.

#include "e2e/batch_run.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace {

constexpr int kPatience = 240'000; ///< milliseconds, for a machine that is busy elsewhere

/// What a Python script says; a failure if it ends badly.
QString runPython(const QStringList& arguments) {
  QProcess process;
  process.start(QStringLiteral("/usr/bin/python3"), arguments);
  process.closeWriteChannel();
  EXPECT_TRUE(process.waitForFinished(kPatience));
  EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
  return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

void makeSamples(const QString& folder, const QStringList& names = {}) {
  runPython(QStringList{QStringLiteral(SOURCE_DIR "/samples/make_samples.py"),
                        QStringLiteral("--drafton"), QStringLiteral(BINARY_DIR "/drafton"),
                        QStringLiteral("--out"), folder} +
            names);
}

QByteArray bytesOf(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  return file.readAll();
}

} // namespace

TEST(Samples, AreMadeAlikeEachTimeAndAreSound) {
  const QTemporaryDir first, second;
  makeSamples(first.path());
  makeSamples(second.path(), {QStringLiteral("symbols"), QStringLiteral("floor-plan")});
  int count = 0, again = 0;
  for (const char* folder : {"blocks", "drawings"}) {
    const QString sub = QLatin1Char('/') + QLatin1String(folder);
    for (const QString& name : QDir(first.path() + sub).entryList({QStringLiteral("*.dxf")})) {
      ++count;
      const QString path = sub + QLatin1Char('/') + name;
      if (!QFile::exists(second.path() + path)) continue;
      ++again;
      EXPECT_EQ(bytesOf(first.path() + path), bytesOf(second.path() + path)) << path.toStdString();
    }
  }
  EXPECT_EQ(count, 11);
  EXPECT_EQ(again, 2);
  EXPECT_EQ(runPython({QStringLiteral(SOURCE_DIR "/tests/e2e/check_samples.py"), first.path(),
                       QStringLiteral(SOURCE_DIR "/samples")}),
            QString());
}

TEST(Samples, GiveEachToolItsPictures) {
  const RunResult run =
      runProgram(QStringLiteral("tpal"),
                 {QStringLiteral("images"), QStringLiteral(SOURCE_DIR "/samples/catalog")});
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_EQ(run.out + run.err, QString()) << "make them with tpal images samples/catalog --missing";
}

TEST(Samples, OpenWithoutNotes) {
  for (const char* folder : {"blocks", "drawings"}) {
    const QDir place(QStringLiteral(SOURCE_DIR "/samples/") + QLatin1String(folder));
    const QStringList names = place.entryList({QStringLiteral("*.dxf")});
    EXPECT_FALSE(names.isEmpty());
    for (const QString& name : names) {
      const Workbench bench;
      const RunResult run = runProgram(QStringLiteral("drafton"),
                                       {QStringLiteral("batch"), QStringLiteral("--profile"),
                                        bench.profile(), place.filePath(name)});
      EXPECT_EQ(run.exitCode, 0) << name.toStdString();
      EXPECT_EQ(run.err.trimmed(), QString()) << name.toStdString();
    }
  }
}
