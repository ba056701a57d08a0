// The main window on an engine of its own, for tests.
#pragma once

#include "drafton/desktop/command_line.h"
#include "drafton/desktop/main_window.h"

#include <QApplication>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

/// Answers dialogs as a test has set them, and remembers what was said.
class ScriptedDialogs : public drafton::UserDialogs {
 public:
  QStringList said;
  QStringList toOpen;
  OdString toSave, suggested;
  bool confirms = true;
  Save save = Save::kDiscard;
  Lost lost = Lost::kLater;
  int asked = 0;

  void tell(const OdString& text) override { said << text; }
  void warn(const OdString& text) override { said << text; }
  bool confirm(const OdString& text, const OdString&) override {
    said << text;
    return confirms;
  }
  Save askSave(const OdString&) override {
    ++asked;
    return save;
  }
  Lost askLost(const QStringList& names) override {
    said << names;
    return lost;
  }
  QStringList chooseToOpen(const OdString&, const OdString&, const OdString&) override {
    return toOpen;
  }
  OdString chooseToSave(const OdString&, const OdString& suggestion, const OdString&) override {
    suggested = suggestion;
    return toSave;
  }
};

/// One new drawing is open, 10 pixels to a drawing unit, with the origin in the middle. The
/// crosshair has no aids.
class DesktopFixture : public ::testing::Test {
 protected:
  DesktopFixture() { start(); }
  ~DesktopFixture() override { stop(); }

  void start(bool withDrawing = true) {
    drafton::EngineOptions options;
    options.settingsFile = m_folder.filePath(QStringLiteral("drafton.ini"));
    options.userDataFolder = m_folder.filePath(QStringLiteral("data"));
    m_desktop = std::make_unique<drafton::Desktop>(options);
    m_window = std::make_unique<drafton::MainWindow>(*m_desktop, dialogs);
    m_window->resize(1000, 700);
    m_window->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(m_window.get()));
    if (!withDrawing) return;
    m_window->files().newDrawing();
    for (const drafton::AidRow& row : drafton::draftingAids())
      drafton::DraftingAids(*m_desktop).set(row.aid, false);
    lookAtOrigin();
    database().setSaved();
  }
  void stop() {
    m_window.reset();
    m_desktop.reset();
  }

  void lookAtOrigin() {
    type("ZOOM Center 0,0 40 ");
    ASSERT_EQ(desktop().isBusy(), false);
  }

  drafton::Desktop& desktop() { return *m_desktop; }
  drafton::MainWindow& window() { return *m_window; }
  drafton::Canvas& canvas() { return *m_window->documents().canvas(); }
  drafton::Document& document() { return *m_desktop->document(); }
  OdDbDatabase& database() { return *document().database(); }
  QString path(const char* name) { return m_folder.filePath(QString::fromLatin1(name)); }

  /// Types into the command line, as with a keyboard.
  void type(const char* text) {
    for (const QChar c : QString::fromUtf8(text))
      if (c == u'\n')
        press(Qt::Key_Return);
      else
        QTest::keyClicks(&m_window->commandLine().edit(), c);
  }
  void press(Qt::Key key) { QTest::keyClick(&m_window->commandLine().edit(), key); }
  QPoint at(double x, double y) {
    // The window may just be laying itself out.
    QApplication::processEvents();
    return canvas().widgetPointOf({x, y, 0}).toPoint();
  }
  void moveTo(double x, double y) { QTest::mouseMove(&canvas(), at(x, y)); }
  void click(double x, double y, Qt::KeyboardModifiers keys = Qt::NoModifier) {
    moveTo(x, y);
    QTest::mouseClick(&canvas(), Qt::LeftButton, keys, at(x, y));
  }
  void drag(double x, double y, double toX, double toY) {
    moveTo(x, y);
    QTest::mousePress(&canvas(), Qt::LeftButton, Qt::NoModifier, at(x, y));
    moveTo(toX, toY);
    QTest::mouseRelease(&canvas(), Qt::LeftButton, Qt::NoModifier, at(toX, toY));
  }

  /// The entities of the current space.
  std::vector<OdDbEntityPtr> entities() {
    std::vector<OdDbEntityPtr> all;
    const auto space = database().getCurrentSpaceId().openAs<OdDbBlockTableRecord>();
    for (auto it = space->newIterator(); !it->done(); it->step()) all.push_back(it->entity());
    return all;
  }
  template <class T>
  OdSmartPtr<T> only() {
    const auto all = entities();
    EXPECT_EQ(all.size(), 1u);
    return all.empty() ? OdSmartPtr<T>() : OdSmartPtr<T>(odrxCast<T>(all.front().get()));
  }
  OdString history() { return desktop().console().history().join(u'\n'); }
  /// Writes what the window shows into a folder of pictures, if a run asks for that.
  void picture(const char* name) {
    const QString folder = qEnvironmentVariable("DRAFTON_PICTURES");
    if (!folder.isEmpty())
      m_window->grab().save(folder + u'/' + QString::fromLatin1(name) + QStringLiteral(".png"));
  }

  ScriptedDialogs dialogs;

 private:
  QTemporaryDir m_folder;
  std::unique_ptr<drafton::Desktop> m_desktop;
  std::unique_ptr<drafton::MainWindow> m_window;
};
