// What `drafton batch --out` leaves alone.
#include "batch_run.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QThread>

#include <gtest/gtest.h>

namespace {

constexpr int kPatience = 120 * 1000;

QByteArray bytesOf(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
  return file.readAll();
}

/// A run that is still at work: what it types comes from the test.
class OpenRun {
 public:
  OpenRun(const Workbench& bench, const QString& drawing) {
    m_process.start(QStringLiteral(BINARY_DIR "/drafton"),
                    {QStringLiteral("batch"), QStringLiteral("--profile"), bench.profile(),
                     QStringLiteral("--out"), drawing, drawing});
  }
  void type(const QByteArray& lines) { m_process.write(lines); }
  /// Waits until the run has written a file.
  bool hasWritten(const QString& path) {
    for (QDeadlineTimer left(kPatience); !left.hasExpired(); QThread::msleep(5)) {
      m_process.waitForBytesWritten(1);
      if (QFileInfo::exists(path)) return true;
      if (m_process.state() == QProcess::NotRunning) break;
    }
    return false;
  }
  RunResult end() {
    m_process.closeWriteChannel();
    RunResult result;
    if (!m_process.waitForFinished(kPatience)) return result;
    result.crashed = m_process.exitStatus() != QProcess::NormalExit;
    result.exitCode = m_process.exitCode();
    result.err = QString::fromUtf8(m_process.readAllStandardError());
    return result;
  }

 private:
  QProcess m_process;
};

/// A drawing that a run has open, and what others make of its file meanwhile.
struct SavingOver : testing::Test {
  void SetUp() override {
    ASSERT_EQ(bench.batch({}, "CIRCLE 0,0 5\n").exitCode, 0);
    before = bytesOf(bench.drawing());
  }
  /// Opens it, has `others` at it, and lets the run draw and end.
  template <class Others>
  RunResult with(Others others) {
    const QString sign = bench.path(QStringLiteral("a sign.dxf"));
    OpenRun run(bench, bench.drawing());
    run.type("WBLOCK " + bench.path(QStringLiteral("a sign")).toUtf8() + "\n*\n");
    EXPECT_TRUE(run.hasWritten(sign)) << "a file name takes the rest of the line, and .dxf";
    others();
    run.type("CIRCLE 9,9 1\n");
    return run.end();
  }

  Workbench bench;
  QByteArray before;
};

TEST_F(SavingOver, WhatNobodyElseHasChangedSaves) {
  const RunResult run = with([] {});
  EXPECT_EQ(run.exitCode, 0) << qPrintable(run.err);
  EXPECT_EQ(bench.count(QStringLiteral("CIRCLE")), 2);
}

TEST_F(SavingOver, WhatAnotherProgramHasChangedLeavesIt) {
  const QByteArray changed = "999\nchanged\n" + before;
  const RunResult run = with([&] { bench.write(QStringLiteral("out.dxf"), changed); });
  EXPECT_FALSE(run.crashed);
  EXPECT_EQ(run.exitCode, 3);
  EXPECT_EQ(run.err, QStringLiteral("drafton: %1 is not saved: another program has changed it "
                                    "since it was opened\n")
                         .arg(bench.drawing()));
  EXPECT_EQ(bytesOf(bench.drawing()), changed);
}

TEST_F(SavingOver, WhatAnotherProgramHasTakenAwayMakesItAgain) {
  const RunResult run = with([&] { ASSERT_TRUE(QFile::remove(bench.drawing())); });
  EXPECT_EQ(run.exitCode, 0) << qPrintable(run.err);
  EXPECT_EQ(bench.count(QStringLiteral("CIRCLE")), 2);
}

} // namespace
