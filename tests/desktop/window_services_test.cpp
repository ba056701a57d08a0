#include "drafton/desktop/window_services.h"

#include "desktop/desktop_fixture.h"
#include "drafton/desktop/help_window.h"
#include "drafton/desktop/window_controls.h"
#include "drafton/program/program_setup.h"
#include "frame/file_path.h"
#include "host/icon_service.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTabBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

using namespace drafton;

namespace {

struct PaneLog : IHostPaneEvents {
  QStringList heard;
  QPointer<QWidget> content;
  KVPtr<IHostPane> pane;

  bool isWanted = true;
  QSize room;

  bool paneCreated() override {
    heard << QStringLiteral("created");
    return isWanted;
  }
  void paneResized(const QSize& size) override { room = size; }
  void paneClosed() override {
    heard << (pane && pane->isVisible() ? QStringLiteral("closed while shown")
                                        : QStringLiteral("closed"));
  }
  void paneShown() override { heard << QStringLiteral("shown"); }
  void paneDestroyed() override {
    heard << (content ? QStringLiteral("destroyed") : QStringLiteral("destroyed without content"));
  }
};

class WindowServicesTest : public DesktopFixture {
 protected:
  KVPtr<IHostWindowServices> windows() {
    return kvQuery<IHostWindowServices>(&desktop().engine().services());
  }
  void make(PaneLog& log) {
    log.heard.clear();
    log.content = new QLabel(QStringLiteral("content"));
    log.pane =
        windows()->createPane(QStringLiteral("Test"), QStringLiteral("A pane"), log.content, &log);
    EXPECT_EQ(log.heard, QStringList{QStringLiteral("created")});
    log.heard.clear();
  }
  PaneDock* dock() { return window().findChild<PaneDock*>(); }
  /// A pane of its own window, as a drafter has it after pulling its title.
  void makeFloating(PaneLog& log) {
    make(log);
    log.pane->show(false);
    dock()->setFloating(true);
    QApplication::processEvents();
  }
};

TEST_F(WindowServicesTest, APaneComesHiddenAtTheRightSide) {
  PaneLog log;
  make(log);
  EXPECT_FALSE(log.pane->isVisible());
  log.pane->show(true);
  EXPECT_TRUE(log.pane->isVisible());
  EXPECT_EQ(window().dockWidgetArea(dock()), Qt::RightDockWidgetArea);
  EXPECT_EQ(log.pane->window(), &window());
  log.pane->setTitle(QStringLiteral("Other"));
  EXPECT_EQ(dock()->windowTitle(), QStringLiteral("Other"));
  log.pane.reset();
}

TEST_F(WindowServicesTest, ContentThatAsksForNothingGetsRoomBesideOtherPanes) {
  const auto pane =
      windows()->createPane(QStringLiteral("Bare"), QStringLiteral("Bare"), new QWidget, nullptr);
  pane->show(false);
  QApplication::processEvents();
  QApplication::processEvents();
  EXPECT_GE(dock()->widget()->height(), 100);
  EXPECT_GE(dock()->widget()->width(), 100);
}

TEST_F(WindowServicesTest, ClosingIsToldWhenThePaneIsHiddenAndHidingIsNot) {
  PaneLog log;
  make(log);
  log.pane->show(false);
  log.pane->hide();
  EXPECT_TRUE(log.heard.isEmpty());
  log.pane->show(false);
  log.pane->close();
  EXPECT_EQ(log.heard, QStringList{QStringLiteral("closed")});
  log.heard.clear();
  log.pane.reset();
  EXPECT_EQ(log.heard, QStringList{QStringLiteral("destroyed")});
  EXPECT_FALSE(log.content) << "the pane owned it";
}

TEST_F(WindowServicesTest, APaneTellsTheRoomOfItsContent) {
  PaneLog log;
  make(log);
  log.pane->show(false);
  QApplication::processEvents();
  dock()->setFloating(true);
  log.pane->place({50, 50}, {260, 380});
  QApplication::processEvents();
  EXPECT_EQ(log.room, log.content->size());
  EXPECT_EQ(log.room.width(), 260);
  log.pane.reset();
}

TEST_F(WindowServicesTest, TheEndOfTheWindowIsNoClosingOfAFloatingPane) {
  PaneLog log;
  makeFloating(log);
  ASSERT_TRUE(window().close());
  // The program's end closes whatever windows are left.
  dock()->close();
  EXPECT_TRUE(log.heard.isEmpty()) << log.heard.join(u' ').toStdString();
  log.pane.reset();
}

TEST_F(WindowServicesTest, APaneThatTheUserBringsBackTellsSo) {
  PaneLog log;
  make(log);
  log.pane->show(false);
  EXPECT_TRUE(log.heard.isEmpty()) << "its owner knows";
  QAction* const entry = dock()->toggleViewAction();
  entry->trigger();
  entry->trigger();
  EXPECT_TRUE(log.pane->isVisible());
  EXPECT_EQ(log.heard, QStringList({QStringLiteral("closed"), QStringLiteral("shown")}));
  log.pane.reset();
}

TEST_F(WindowServicesTest, AFloatingPaneOfItsLeastSizeHasNoRoomAlsoAtTheNextStart) {
  PaneLog log;
  makeFloating(log);
  log.pane->place({50, 50}, {300, 1});
  QApplication::processEvents();
  EXPECT_EQ(log.room.width(), 300) << "one small side is the user's own wish";
  log.pane->place({50, 50}, {1, 1});
  QApplication::processEvents();
  EXPECT_EQ(log.room, QSize(0, 0));
  ASSERT_TRUE(window().close());
  stop();
  log.pane.reset();
  start();
  make(log);
  log.room = QSize(7, 7);
  log.pane->show(false);
  QApplication::processEvents();
  ASSERT_TRUE(dock()->isFloating());
  EXPECT_EQ(log.room, QSize(0, 0));
  log.pane.reset();
}

TEST_F(WindowServicesTest, APaneThatItsOwnerGivesUpIsNone) {
  PaneLog log;
  log.isWanted = false;
  log.content = new QLabel;
  log.pane = windows()->createPane(QStringLiteral("Test"), QStringLiteral("T"), log.content, &log);
  EXPECT_FALSE(log.pane);
  EXPECT_FALSE(log.content);
  EXPECT_EQ(dock(), nullptr);
  EXPECT_EQ(log.heard, QStringList{QStringLiteral("created")});
}

TEST_F(WindowServicesTest, APaneStaysWhereItWasOverARestart) {
  PaneLog log;
  make(log);
  log.pane->show(false);
  window().addDockWidget(Qt::LeftDockWidgetArea, dock());
  EXPECT_TRUE(window().close());
  stop();
  EXPECT_EQ(log.heard.last(), QStringLiteral("destroyed")) << "the window goes first";
  EXPECT_FALSE(log.pane->isVisible()) << "harmless";
  log.pane->show(true);
  log.pane.reset();
  start();
  make(log);
  EXPECT_FALSE(log.pane->isVisible());
  log.pane->show(false);
  EXPECT_EQ(window().dockWidgetArea(dock()), Qt::LeftDockWidgetArea);
  log.pane.reset();
}

TEST_F(WindowServicesTest, AFloatingPaneIsPutWhereItIsWanted) {
  PaneLog log;
  make(log);
  log.pane->show(false);
  dock()->setFloating(true);
  log.pane->place({120, 90}, {300, 400});
  EXPECT_EQ(dock()->size(), QSize(300, 400));
  EXPECT_EQ(dock()->pos(), QPoint(120, 90));
  EXPECT_EQ(log.pane->window(), dock());
  log.pane.reset();
}

class Listener : public QWidget {
 public:
  using QWidget::QWidget;
  int wanted = 0, heard = 0;
  bool event(QEvent* event) override {
    if (event->type() == wanted && static_cast<HostMessage*>(event)->first == 0 &&
        static_cast<HostMessage*>(event)->second == 0)
      ++heard;
    return QWidget::event(event);
  }
};

TEST_F(WindowServicesTest, MessagesHaveOneNumberANameAndReachAllDescendants) {
  const auto services = windows();
  const int message = services->registeredMessage(QStringLiteral("SettingsChanged"));
  EXPECT_EQ(services->registeredMessage(QStringLiteral("SettingsChanged")), message);
  EXPECT_NE(services->registeredMessage(QStringLiteral("Other")), message);
  QWidget top;
  QWidget middle(&top);
  Listener deep(&middle), own(&top);
  deep.wanted = own.wanted = message;
  services->broadcast(&top, message);
  EXPECT_EQ(deep.heard, 1);
  EXPECT_EQ(own.heard, 1);
}

TEST_F(WindowServicesTest, FiltersAreWrittenAsQtReadsThem) {
  EXPECT_EQ(qtFilter(QStringLiteral("Images|*.png;*.jpg|All|*.*||")),
            QStringLiteral("Images (*.png *.jpg);;All (*.*)"));
  EXPECT_EQ(qtFilter(QString()), QString());
}

/// Acts on the modal dialog that is about to be shown.
template <class Dialog, class Act>
void inDialog(Act act) {
  QTimer::singleShot(0, [act] {
    auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    if (dialog) {
      act(*dialog);
      return;
    }
    ADD_FAILURE() << "another dialog is shown";
    if (QWidget* const shown = QApplication::activeModalWidget()) shown->close();
  });
}
const auto giveUp = [](QDialog& dialog) { dialog.reject(); };

class DialogsTest : public WindowServicesTest {
 protected:
  QTemporaryDir folder;
  /// Types a name into a file dialog.
  auto choosing(const QString& name) {
    return [name](QFileDialog& dialog) {
      dialog.findChild<QLineEdit*>()->setText(name);
      QMetaObject::invokeMethod(&dialog, "accept");
    };
  }
};

TEST_F(DialogsTest, AFolderIsChosenAndNoneIsMade) {
  inDialog<QFileDialog>([this](QFileDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Select it"));
    EXPECT_EQ(dialog.fileMode(), QFileDialog::Directory);
    EXPECT_TRUE(dialog.testOption(QFileDialog::ShowDirsOnly));
    EXPECT_TRUE(dialog.testOption(QFileDialog::ReadOnly)) << "no new folders";
    choosing(folder.path())(dialog);
  });
  EXPECT_EQ(windows()->chooseFolder(QStringLiteral("Select it")),
            odpath::fromPlatform(folder.path()));
  inDialog<QFileDialog>([this](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory().absolutePath(), folder.path()) << "where it was last";
    giveUp(dialog);
  });
  EXPECT_EQ(windows()->chooseFolder(QStringLiteral("Select it")), std::nullopt);
}

TEST_F(DialogsTest, FilesAreChosenToReadAndToWrite) {
  QFile file(folder.filePath(QStringLiteral("in.xtp")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.close();
  const OdString kinds = QStringLiteral("Palettes|*.xtp||");
  inDialog<QFileDialog>([&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.nameFilters(), QStringList{QStringLiteral("Palettes (*.xtp)")});
    choosing(file.fileName())(dialog);
  });
  EXPECT_EQ(windows()->chooseFileToOpen(QStringLiteral("Read"), kinds),
            odpath::fromPlatform(file.fileName()));
  inDialog<QFileDialog>([&](QFileDialog& dialog) {
    EXPECT_TRUE(dialog.findChild<QLineEdit*>()->text().contains(QStringLiteral("Doors")));
    choosing(folder.filePath(QStringLiteral("out")))(dialog);
  });
  EXPECT_EQ(windows()->chooseFileToSave(QStringLiteral("Write"), kinds, QStringLiteral("Doors"),
                                        QStringLiteral("xtp")),
            odpath::fromPlatform(folder.filePath(QStringLiteral("out.xtp"))));
  inDialog<QFileDialog>(giveUp);
  EXPECT_EQ(windows()->chooseFileToOpen(QStringLiteral("Read"), kinds), std::nullopt);
}

TEST_F(DialogsTest, QuestionsAreAnswered) {
  for (const auto button : {QMessageBox::Ok, QMessageBox::Cancel}) {
    inDialog<QMessageBox>([button](QMessageBox& box) {
      EXPECT_EQ(box.text(), QStringLiteral("Remove it?"));
      box.button(button)->click();
    });
    EXPECT_EQ(windows()->confirm(QStringLiteral("Remove it?"), QStringLiteral("Tools")),
              button == QMessageBox::Ok);
  }
}

TEST_F(DialogsTest, AMessageWithACheckBoxIsShownUntilItIsTicked) {
  const auto messages = kvQuery<IHostMessages>(&desktop().engine().services());
  const auto show = [&] {
    return messages->messageBoxWithCheckBox(QStringLiteral("Module\\It"), QStringLiteral("text"),
                                            QStringLiteral("caption"), 0);
  };
  inDialog<QMessageBox>([](QMessageBox& box) { box.accept(); });
  EXPECT_FALSE(show());
  inDialog<QMessageBox>([](QMessageBox& box) {
    EXPECT_EQ(box.text(), QStringLiteral("text"));
    box.checkBox()->setChecked(true);
    box.accept();
  });
  EXPECT_TRUE(show());
  EXPECT_TRUE(show()) << "without a box";
}

TEST_F(DialogsTest, ChosenColoursAreTheRecentOnes) {
  const auto choose = [&](const QColor& wanted) {
    inDialog<QColorDialog>([wanted](QColorDialog& dialog) {
      dialog.setCurrentColor(wanted);
      dialog.accept();
    });
    QColor color(Qt::white);
    EXPECT_TRUE(windows()->chooseColor(color));
    EXPECT_EQ(color, wanted);
  };
  EXPECT_TRUE(windows()->recentColors().empty());
  choose(QColor(1, 2, 3));
  choose(QColor(4, 5, 6));
  choose(QColor(1, 2, 3));
  EXPECT_EQ(windows()->recentColors(), (std::vector<QColor>{{1, 2, 3}, {4, 5, 6}}));
  inDialog<QColorDialog>([](QColorDialog& dialog) {
    EXPECT_EQ(QColorDialog::customColor(0), QColor(1, 2, 3));
    EXPECT_EQ(QColorDialog::customColor(1), QColor(4, 5, 6));
    giveUp(dialog);
  });
  QColor color(Qt::white);
  EXPECT_FALSE(windows()->chooseColor(color));
  EXPECT_EQ(color, QColor(Qt::white));
  for (int i = 0; i < 9; ++i) choose(QColor(100, 0, i));
  EXPECT_EQ(windows()->recentColors().size(), 8u);
  EXPECT_EQ(windows()->recentColors().front(), QColor(100, 0, 8));
  desktop().setSetting("Color1", OdString(QStringLiteral("no colour")));
  EXPECT_EQ(windows()->recentColors().size(), 7u);
}

TEST_F(DialogsTest, APlotStyleIsChosenByName) {
  OdString name = QStringLiteral("Normal");
  inDialog<QInputDialog>([](QInputDialog& dialog) {
    EXPECT_EQ(dialog.textValue(), QStringLiteral("Normal"));
    dialog.accept();
  });
  EXPECT_TRUE(windows()->choosePlotStyle(name));
  EXPECT_EQ(name, QStringLiteral("Normal"));
  inDialog<QInputDialog>(giveUp);
  EXPECT_FALSE(windows()->choosePlotStyle(name));
  desktop().engine().documents().close(document());
  EXPECT_FALSE(windows()->choosePlotStyle(name)) << "without a drawing";
}

TEST_F(WindowServicesTest, IconsComeByTheNamesOfCommands) {
  offerPictures(desktop().engine());
  const auto icons = kvQuery<IHostIconService>(&desktop().engine().services());
  ASSERT_TRUE(icons);
  EXPECT_EQ(icons->icon(QStringLiteral("LINE"), 32).size(), QSize(32, 32));
  EXPECT_TRUE(icons->icon(QStringLiteral("NoSuchThing"), 32).isNull());
}

TEST_F(WindowServicesTest, BehindTheWindowsEndTheyDoNothing) {
  const auto services = windows();
  stop();
  QColor color(Qt::white);
  OdString name;
  EXPECT_EQ(services->mainWindow(), nullptr);
  services->focusDrawing();
  EXPECT_FALSE(services->chooseColor(color));
  EXPECT_TRUE(services->recentColors().empty());
  EXPECT_FALSE(services->choosePlotStyle(name));
  QLabel content;
  EXPECT_FALSE(services->createPane(name, name, &content, nullptr));
}

TEST_F(WindowServicesTest, FocusGoesBackToTheDrawing) {
  QApplication::setActiveWindow(&window());
  window().commandLine().edit().setFocus();
  windows()->focusDrawing();
  EXPECT_EQ(window().focusWidget(), &canvas());
}

/// A list in a pane that floats, or in a page that was pulled out of one.
class FloatingKeysTest : public WindowServicesTest {
 protected:
  FloatingKeysTest() {
    m_tabs = static_cast<HostTabs*>(kvMake<WindowControls>()->createTabs(*m_content));
    list = new QListWidget;
    list->addItems({QStringLiteral("one"), QStringLiteral("two")});
    m_tabs->addPage(list, QStringLiteral("Tools"), true);
    auto* const room = new QVBoxLayout(m_content);
    room->addWidget(m_tabs);
    pane = windows()->createPane(QStringLiteral("Test"), QStringLiteral("T"), m_content, nullptr);
    pane->show(false);
    dock()->setFloating(true);
    take();
  }
  ~FloatingKeysTest() override { pane.reset(); }

  /// The system gives the keys to the list, as it does at a click.
  void take() {
    list->window()->activateWindow();
    // Tool windows call themselves active with the main window.
    ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == list->window(); }));
    ASSERT_TRUE(list->isVisible());
    list->setFocus();
    ASSERT_EQ(QApplication::focusWidget(), list);
  }
  void pullOut() {
    Q_EMIT m_tabs->tabBar()->tabBarDoubleClicked(0);
    ASSERT_NE(list->window(), dock());
    take();
  }
  /// To whatever has the keys now.
  void pressAnywhere(Qt::Key key) {
    QWidget* const focused = QApplication::focusWidget();
    QTest::keyClick(focused ? focused : QApplication::activeWindow(), key);
  }
  void expectKeysForTheCommandLine() {
    type("CIRCLE ");
    take();
    pressAnywhere(Qt::Key_Escape);
    EXPECT_FALSE(desktop().isBusy());
    take();
    pressAnywhere(Qt::Key_L);
    pressAnywhere(Qt::Key_Return);
    EXPECT_EQ(document().processor().runningCommands(), QStringList{QStringLiteral("LINE")})
        << "Enter ends the word that was begun";
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
    press(Qt::Key_Escape);
    take();
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(list->currentRow(), 1) << "the arrows are the list's";
  }

  QListWidget* list;
  KVPtr<IHostPane> pane;

 private:
  QWidget* m_content = new QWidget;
  HostTabs* m_tabs;
};

TEST_F(FloatingKeysTest, TheDrawingGetsTheKeysThatAPaneOfItsOwnWindowHad) {
  windows()->focusDrawing();
  EXPECT_FALSE(list->hasFocus()) << "at once: what is typed next is the drawing's";
  EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::focusWidget() == &canvas(); }));
  EXPECT_EQ(QApplication::activeWindow(), &window());
}

TEST_F(FloatingKeysTest, WhatIsTypedOnAFloatingPaneLandsOnTheCommandLine) {
  expectKeysForTheCommandLine();
}

TEST_F(FloatingKeysTest, WhatIsTypedOnAPageThatWasPulledOutLandsOnTheCommandLine) {
  pullOut();
  expectKeysForTheCommandLine();
}

TEST_F(FloatingKeysTest, ShortcutsOfTheWindowWorkInAPageThatWasPulledOut) {
  pullOut();
  EXPECT_EQ(list->window()->parentWidget(), &window());
}

TEST_F(WindowServicesTest, TheManualHasThePagesThatAreAskedFor) {
  const auto help = kvQuery<IHelpService>(&desktop().engine().services());
  ASSERT_TRUE(help);
  EXPECT_TRUE(help->showTopic(QStringLiteral("IDH_ToolPalettes")));
  const auto* const page = window().findChild<QTextBrowser*>();
  ASSERT_TRUE(page);
  EXPECT_TRUE(page->toPlainText().startsWith(QStringLiteral("Tool palettes")));
  EXPECT_FALSE(help->showTopic(QStringLiteral("IDH_Nothing")));
}

TEST_F(WindowServicesTest, TheFirstPageOfTheManualIsThere) {
  EXPECT_TRUE(showManual(window(), kManualStart));
  EXPECT_FALSE(showManual(window(), QStringLiteral("none.md")));
}

/// The pages and pictures that a page of the manual names.
QStringList targetsOf(const QString& page) {
  QFile file(page);
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error(page.toStdString());
  static const QRegularExpression link(QStringLiteral("\\]\\(([^)#]+)[^)]*\\)"));
  QStringList targets;
  const QString text = QString::fromUtf8(file.readAll());
  for (auto found = link.globalMatch(text); found.hasNext();) {
    const QString target = found.next().captured(1);
    if (!target.startsWith(QLatin1String("http"))) targets << target;
  }
  return targets;
}

TEST_F(WindowServicesTest, AllThatTheManualsPagesNameIsInTheManual) {
  showManual(window(), kManualStart); // brings the pages
  const QDir manual(QStringLiteral(":/drafton/manual"));
  int links = 0;
  for (const QString& page : manual.entryList({QStringLiteral("*.md")}))
    for (const QString& target : targetsOf(manual.filePath(page))) {
      ++links;
      EXPECT_TRUE(manual.exists(target)) << page.toStdString() << " -> " << target.toStdString();
    }
  EXPECT_GT(links, 15);
}

TEST_F(WindowServicesTest, PicturesOfTheManualAreSeen) {
  showManual(window(), kManualStart);
  auto* const page = window().findChild<QTextBrowser*>();
  const QVariant picture =
      page->loadResource(QTextDocument::ImageResource, QUrl(QStringLiteral("images/desktop.png")));
  const auto pixmap = picture.value<QPixmap>();
  EXPECT_GT(pixmap.width(), 300);
  EXPECT_LE(pixmap.deviceIndependentSize().width(), page->viewport()->width());
  QApplication::processEvents();
  EXPECT_EQ(page->horizontalScrollBar()->maximum(), 0) << "nothing is wider than the page";
  int pictures = 0;
  for (QTextBlock block = page->document()->begin(); block.isValid(); block = block.next())
    for (auto it = block.begin(); !it.atEnd(); ++it)
      if (it.fragment().charFormat().isImageFormat()) ++pictures;
  EXPECT_GT(pictures, 2);
}

TEST_F(WindowServicesTest, TheManualLeadsBackAndIsNeverBlank) {
  showManual(window(), kManualStart);
  auto* const page = window().findChild<QTextBrowser*>();
  const auto action = [&](const char* text) -> QAction& {
    for (QAction* const each : page->window()->findChild<QToolBar*>()->actions())
      if (each->text() == QLatin1String(text)) return *each;
    throw std::out_of_range(text);
  };
  EXPECT_FALSE(action("Back").isEnabled());
  const QString first = page->toPlainText();
  for (const char* const target : {"tool-palettes.md", "making-tools.md"}) {
    page->setSource(QUrl(QLatin1String(target)));
    EXPECT_NE(page->toPlainText(), first) << target;
    EXPECT_FALSE(page->toPlainText().isEmpty()) << target;
  }
  const QString last = page->toPlainText();
  page->setSource(QUrl(QStringLiteral("no-such-page.md")));
  EXPECT_EQ(page->toPlainText(), last) << "a link that leads nowhere";
  action("Back").trigger();
  EXPECT_TRUE(page->toPlainText().startsWith(QStringLiteral("Tool palettes")));
  action("Back").trigger();
  EXPECT_EQ(page->toPlainText(), first);
  action("Forward").trigger();
  EXPECT_TRUE(page->toPlainText().startsWith(QStringLiteral("Tool palettes")));
  action("Contents").trigger();
  EXPECT_EQ(page->toPlainText(), first);
}

} // namespace
