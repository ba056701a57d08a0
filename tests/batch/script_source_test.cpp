#include "drafton/batch/script_source.h"

#include "engine/support/recording_console.h"
#include "engine/support/test_commands.h"

#include <gtest/gtest.h>

#include <QBuffer>

using namespace drafton;

namespace {

/// Runs a script as the program does.
class ScriptTest : public ::testing::Test {
 protected:
  void run(QByteArray script) {
    m_device.setData(script);
    m_device.open(QIODevice::ReadOnly);
    m_script.setEngine(m_engine);
    m_engine.commands().add(testCommands());
    m_engine.documents().newDocument();
    while (!m_script.isEnded() && m_script.waitForInput()) m_engine.run();
  }

  RecordingConsole m_console;
  QBuffer m_device;
  ScriptSource m_script{m_device};
  Engine m_engine{{}, m_console, &m_script};
};

} // namespace

TEST_F(ScriptTest, EachLineIsFollowedByEnter) {
  run("ASKTEXT\r\nabc\n# a comment\n\nASKWORDS\n# text\nASKTEXT last");
  EXPECT_TRUE(m_console.shows(QStringLiteral("got <abc>")));
  EXPECT_TRUE(m_console.shows(QStringLiteral("got <# text>"))) << "a waiting command gets it";
  EXPECT_TRUE(m_console.shows(QStringLiteral("got <last>"))) << "the last line needs no line end";
  EXPECT_TRUE(m_console.troubles.isEmpty());
}

TEST_F(ScriptTest, AToolRunsByItsLine) {
  int runs = 0;
  m_engine.completion().registerSource(
      QStringLiteral("tools"), [&](const HostEdCompletion::Callback& offer) {
        auto entry = std::make_shared<HostEdCompletion::Entry>();
        entry->displayText = QStringLiteral("TOOL:My tool");
        entry->action = std::make_shared<HostEdCompletion::CallFunction>([&] { ++runs; });
        offer(entry);
      });
  run("TOOL:My tool\nTOOL:My tool\nTOOL:Other\nTOOL:My tool\n");
  EXPECT_EQ(runs, 2);
  EXPECT_TRUE(m_script.hasFailed());
  EXPECT_EQ(m_script.failure(), QStringLiteral("line 3: TOOL:Other\nThere is no tool \"Other\"."));
}

TEST_F(ScriptTest, ACommandInsideAnotherThatGetsNothingMoreFailsTheScript) {
  // So do tools whose command runs one of the host's: that one is given up before the script ends.
  m_engine.completion().registerSource(
      QStringLiteral("tools"), [&](const HostEdCompletion::Callback& offer) {
        auto entry = std::make_shared<HostEdCompletion::Entry>();
        entry->displayText = QStringLiteral("TOOL:Asks");
        entry->action = std::make_shared<HostEdCompletion::CallFunction>(
            [&] { m_engine.currentProcessor().run(QStringLiteral("ASKTEXT"), nullptr); });
        offer(entry);
      });
  run("TOOL:Asks\nabc\nTOOL:Asks\n");
  EXPECT_TRUE(m_console.shows(QStringLiteral("got <abc>")));
  EXPECT_TRUE(m_script.hasFailed());
  EXPECT_EQ(m_script.failure(), QStringLiteral("line 3: TOOL:Asks\nThe script ends while ASKTEXT "
                                               "waits for input."));
}

TEST_F(ScriptTest, TellsOnceThatAtItsEndACommandWaits) {
  QStringList failures;
  m_script.keepGoing([&](const OdString& failure) { failures << failure; });
  run("ASKTEXT\n");
  m_script.missInput(m_engine.currentProcessor());
  EXPECT_EQ(failures.size(), 1) << failures.join(u'\n').toStdString();
}

TEST_F(ScriptTest, GoesOnBehindLinesThatFailIfToldSo) {
  QStringList failures;
  m_script.keepGoing([&](const OdString& failure) { failures << failure; });
  run("TOOL:Other\nASKTEXT\nabc\nDOCUMENT:gone\nASKTEXT last\n");
  EXPECT_EQ(
      failures,
      (QStringList{QStringLiteral("line 1: TOOL:Other\nThere is no tool \"Other\"."),
                   QStringLiteral("line 4: DOCUMENT:gone\nThere is no open drawing \"gone\".")}));
  EXPECT_TRUE(m_script.hasFailed());
  EXPECT_FALSE(m_script.isEnded());
  EXPECT_TRUE(m_console.shows(QStringLiteral("got <abc>")));
  EXPECT_TRUE(m_console.shows(QStringLiteral("got <last>")));
}

TEST_F(ScriptTest, TextKeepsItsSignsAcrossThePiecesOfALongLine) {
  // Pieces of 65,535 bytes part both the letter of two bytes and the caret from its letter.
  const QByteArray filler(65535 - 10, 'x');
  run("ASKWORDS\n" + filler + "aaaaaaaaa\xC3\xA4" + QByteArray(65530, 'y') + "\nASKTEXT " +
      QByteArray(65535 - 9, 'z') + "^C\n");
  EXPECT_TRUE(m_console.shows(QString::fromUtf8("a\xC3\xA4y")));
  EXPECT_TRUE(m_console.shows(QStringLiteral("*Cancel*")));
}

/// The same letter for ever.
class EndlessDevice : public QIODevice {
 public:
  EndlessDevice() { open(ReadOnly); }
  bool isSequential() const override { return true; }
  bool atEnd() const override { return false; }

 protected:
  qint64 readData(char* data, qint64 size) override {
    std::fill_n(data, size, 'x');
    return size;
  }
  qint64 writeData(const char*, qint64) override { return -1; }
};

TEST_F(ScriptTest, ALineWithoutEndFailsTheScript) {
  EndlessDevice device;
  ScriptSource script(device);
  script.setEngine(m_engine);
  while (script.waitForInput()) m_engine.keyboard().clear();
  EXPECT_TRUE(script.hasFailed());
  EXPECT_TRUE(script.failure().startsWith(QStringLiteral("line 1: xxx")));
  EXPECT_TRUE(script.failure().endsWith(QStringLiteral("The line is longer than 16777216 bytes.")));
}

TEST_F(ScriptTest, AMillionLinesAreCountedAndTheFailingOneIsNamed) {
  run(QByteArray("#\n").repeated(1'000'000) + "ASKTEXT end\nTOOL:none\n");
  EXPECT_TRUE(m_console.shows(QStringLiteral("got <end>")));
  EXPECT_TRUE(m_script.failure().startsWith(QStringLiteral("line 1000002: TOOL:none")));
}

TEST_F(ScriptTest, BytesThatAreNoTextDoNoHarm) {
  run(QByteArray("ASKTEXT a\xFF\xFE\x00z\n", 13));
  EXPECT_TRUE(m_console.shows(QStringLiteral("got <a")));
}
