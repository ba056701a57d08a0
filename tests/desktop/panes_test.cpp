#include "desktop/desktop_fixture.h"
#include "drafton/desktop/autosave.h"
#include "drafton/desktop/block_list.h"
#include "drafton/desktop/inspector.h"
#include "drafton/desktop/layer_manager.h"
#include "drafton/desktop/options_dialog.h"
#include "drafton/desktop/property_bar.h"
#include "drafton/desktop/theme.h"
#include "drawing/entities/line.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QSpinBox>

using namespace drafton;

namespace {

class PanesTest : public DesktopFixture {
 protected:
  /// The value of a row of the inspector; empty if there is none.
  OdString inspected(const char* name) {
    for (QTreeWidgetItem* const item :
         window().inspector().findItems(QString::fromLatin1(name), Qt::MatchExactly))
      return item->text(1);
    return {};
  }
  void pick(QComboBox& list, const char* text) {
    const int index = list.findText(QString::fromLatin1(text));
    ASSERT_GE(index, 0) << text;
    list.setCurrentIndex(index);
    Q_EMIT list.activated(index);
  }
};

TEST_F(PanesTest, TheInspectorShowsOneEntityAndCountsSeveral) {
  type("LINE -3,0 3,4  LINE -3,5 3,5  ");
  click(0, 2);
  EXPECT_EQ(inspected("Kind"), QStringLiteral("LINE"));
  EXPECT_EQ(inspected("Layer"), QStringLiteral("0"));
  EXPECT_EQ(inspected("Length").toDouble(), std::round(std::hypot(6, 4) * 1e4) / 1e4);
  picture("inspector");
  press(Qt::Key_Escape);
  type("-COLOR 1 LINE -3,-3 3,-3  ");
  click(0, 5);
  click(0, -3);
  EXPECT_EQ(inspected("LINE"), QStringLiteral("2"));
  EXPECT_EQ(inspected("Color"), QStringLiteral("varies"));
  press(Qt::Key_Escape);
  EXPECT_EQ(window().inspector().topLevelItem(0)->text(0), QStringLiteral("Nothing is chosen"));
}

TEST_F(PanesTest, TheLineTypeOfAnObjectThatWasNeverGivenOneIsThatByLayer) {
  const OdDbLinePtr line = OdDbLine::createObject();
  line->setStartPoint({-3, 0, 0});
  line->setEndPoint({3, 0, 0});
  database()
      .getCurrentSpaceId()
      .openAs<OdDbBlockTableRecord>(OdDb::kForWrite)
      ->appendOdDbEntity(line);
  ASSERT_TRUE(line->linetypeId().isNull());
  type("CIRCLE 0,5 2 ");
  click(0, 0);
  EXPECT_EQ(inspected("Line type"), QStringLiteral("ByLayer"));
  EXPECT_EQ(window().properties().linetypes().currentText(), QStringLiteral("ByLayer"));
  click(2, 5);
  EXPECT_EQ(document().preselection().size(), 2u);
  EXPECT_EQ(inspected("Line type"), QStringLiteral("ByLayer")) << "both mean the same";
  EXPECT_EQ(window().properties().linetypes().currentText(), QStringLiteral("ByLayer"));
}

TEST_F(PanesTest, TheListsShowAndSetTheCurrentValues) {
  type("-LAYER New Walls\n ");
  PropertyBar& bar = window().properties();
  pick(bar.layers(), "Walls");
  EXPECT_EQ(database().sysVarText("CLAYER"), QStringLiteral("Walls"));
  pick(bar.colors(), "3 (green)");
  EXPECT_EQ(database().currentColor().colorIndex(), 3);
  pick(bar.lineWeights(), "0.50mm");
  EXPECT_EQ(database().currentLineWeight(), 50);
  type("CLAYER 0 ");
  EXPECT_EQ(bar.layers().currentText(), QStringLiteral("0")) << "however it was changed";
}

TEST_F(PanesTest, TheListsShowAndSetWhatIsChosenAndOneUndoTakesItBack) {
  type("-LAYER New Walls\n LINE -3,0 3,0  LINE -3,5 3,5  ");
  click(0, 0);
  click(0, 5);
  PropertyBar& bar = window().properties();
  pick(bar.layers(), "Walls");
  for (const OdDbEntityPtr& entity : entities())
    EXPECT_EQ(entity->layer(), QStringLiteral("Walls"));
  EXPECT_EQ(database().sysVarText("CLAYER"), QStringLiteral("0")) << "the current layer stays";
  press(Qt::Key_Escape);
  type("U ");
  for (const OdDbEntityPtr& entity : entities()) EXPECT_EQ(entity->layer(), QStringLiteral("0"));
}

TEST_F(PanesTest, ListsDoNothingWhileACommandRuns) {
  type("-LAYER New Walls\n LINE 0,0 ");
  pick(window().properties().layers(), "Walls");
  EXPECT_EQ(database().sysVarText("CLAYER"), QStringLiteral("0"));
  EXPECT_EQ(window().properties().layers().currentText(), QStringLiteral("0"));
}

TEST_F(PanesTest, TheLayerManagerMakesRenamesAndSwitchesLayers) {
  window().actions().find(u"layers")->trigger();
  LayerManager& manager = window().layers();
  manager.addLayer();
  ASSERT_EQ(manager.table().rowCount(), 2);
  manager.table().item(1, 0)->setText(QStringLiteral("Walls"));
  const auto layers = database().getLayerTableId().openAs<OdDbLayerTable>();
  ASSERT_TRUE(layers->has(QStringLiteral("Walls")));
  manager.table().item(1, 3)->setCheckState(Qt::Checked);
  const OdDbLayerTableRecordPtr walls = layers->getAt(QStringLiteral("Walls")).openObject();
  EXPECT_TRUE(walls->isLocked());
  manager.makeCurrent();
  EXPECT_EQ(database().sysVarText("CLAYER"), QStringLiteral("Walls"));
  manager.table().item(0, 0)->setText(QStringLiteral("Walls"));
  EXPECT_EQ(manager.table().item(0, 0)->text(), QStringLiteral("0")) << "the name is taken";
  manager.table().item(1, 6)->setText(QStringLiteral("nonsense"));
  EXPECT_NE(manager.table().item(1, 6)->text(), QStringLiteral("nonsense"));
  EXPECT_TRUE(history().contains(QStringLiteral("There is no line type \"nonsense\".")));
}

TEST_F(PanesTest, TheLayerManagerOffersLineTypesAndWeightsThatALayerCanHave) {
  window().actions().find(u"layers")->trigger();
  QTableWidget& table = window().layers().table();
  const auto editing = [&](int column) {
    const QModelIndex cell = table.model()->index(0, column);
    table.setCurrentIndex(cell);
    table.edit(cell);
    return table.findChild<QComboBox*>();
  };
  QComboBox* list = editing(7);
  ASSERT_TRUE(list);
  EXPECT_EQ(list->findText(QStringLiteral("ByLayer")), -1);
  list->setCurrentIndex(list->findText(QStringLiteral("0.50mm")));
  Q_EMIT list->activated(list->currentIndex());
  const OdDbLayerTableRecordPtr layer = database().currentLayer().safeOpenObject();
  EXPECT_EQ(layer->lineWeight(), 50);
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  list = editing(6);
  ASSERT_TRUE(list);
  EXPECT_EQ(list->count(), 1) << "Continuous; by layer is none for a layer";
}

TEST_F(PanesTest, TheLayersComeUpOverTheWindowWithTheKeys) {
  window().move(300, 40);
  auto* const dock = window().findChild<QDockWidget*>(QStringLiteral("layers"));
  window().actions().find(u"layers")->trigger();
  const QPoint off = dock->geometry().center() - window().geometry().center();
  EXPECT_LT(off.manhattanLength(), 20) << "in the middle at first";
  dock->move(310, 60);
  window().actions().find(u"layers")->trigger();
  EXPECT_EQ(dock->pos(), QPoint(310, 60)) << "then where the user wants it";
  dock->hide();
  dock->move(-2000, -2000);
  window().actions().find(u"layers")->trigger();
  EXPECT_TRUE(window().geometry().contains(dock->geometry().center()));
  QApplication::processEvents();
  EXPECT_TRUE(window().layers().table().hasFocus());
}

TEST_F(PanesTest, TheLayersComeUpInTheMiddleAtFirstAndThenWhereTheyWerePut) {
  // Small enough for the test's screen.
  window().setGeometry(20, 40, 700, 600);
  const auto layers = [&] { return window().findChild<QDockWidget*>(QStringLiteral("layers")); };
  // A corner of it would be seen.
  layers()->move(window().geometry().bottomLeft() - QPoint(600, 30));
  window().actions().find(u"layers")->trigger();
  const QPoint away = layers()->geometry().center() - window().geometry().center();
  EXPECT_LE(away.manhattanLength(), 4);
  const QPoint corner(60, 400);
  layers()->move(corner);
  layers()->close();
  window().actions().find(u"layers")->trigger();
  EXPECT_EQ(layers()->pos(), corner);
  ASSERT_TRUE(window().close());
  stop();
  start();
  window().actions().find(u"layers")->trigger();
  EXPECT_EQ(layers()->pos(), corner);
}

TEST_F(PanesTest, TheBlockListBeginsToInsert) {
  type("CIRCLE 0,0 1 BLOCK dot 0,0 Last\n\n");
  window().actions().find(u"blocks")->trigger();
  BlockList& list = window().blocks();
  ASSERT_EQ(list.count(), 1);
  EXPECT_EQ(list.item(0)->text(), QStringLiteral("dot"));
  EXPECT_FALSE(list.item(0)->icon().isNull());
  Q_EMIT list.itemActivated(list.item(0));
  EXPECT_EQ(document().processor().runningCommands(), QStringList{QStringLiteral("INSERT")});
}

TEST_F(PanesTest, OptionsAreKeptAndTakenOver) {
  OptionsDialog dialog(desktop(), &window());
  dialog.findChild<QSpinBox*>(QStringLiteral("CURSORSIZE"))->setValue(40);
  dialog.findChild<QSpinBox*>(QStringLiteral("AutosaveMinutes"))->setValue(3);
  dialog.accept();
  EXPECT_EQ(desktop().variable("CURSORSIZE").toInt32(), 40);
  EXPECT_EQ(numberOption(desktop(), "AutosaveMinutes"), 3);
  desktop().setSetting("AutosaveMinutes", -7);
  EXPECT_EQ(numberOption(desktop(), "AutosaveMinutes"), 0) << "what a file says is bounded";
  desktop().setSetting("Theme", OdString(QStringLiteral("Plaid")));
  EXPECT_EQ(choiceOption(desktop(), "Theme"), QStringLiteral("System"));
}

/// Whatever a test chooses, the others begin with the system's theme.
class ThemeTest : public PanesTest {
 protected:
  ThemeTest() { applyTheme(QStringLiteral("System")); }
  ~ThemeTest() override { applyTheme(QStringLiteral("System")); }

  void choose(const char* theme) {
    OptionsDialog dialog(desktop(), &window());
    auto* const list = dialog.findChild<QComboBox*>(QStringLiteral("Theme"));
    list->setCurrentIndex(list->findData(QString::fromLatin1(theme)));
    dialog.accept();
    QApplication::processEvents();
  }
  QImage icon(const char16_t* action) {
    return window().actions().find(action)->icon().pixmap(24, 24).toImage();
  }
  /// The colour in the middle of the picture of the current layer, whose colour is 7.
  QColor layerSwatch() {
    const QComboBox& layers = window().properties().layers();
    return layers.itemIcon(0).pixmap(16, 16).toImage().pixelColor(8, 8);
  }
};

TEST_F(ThemeTest, IsInForceAtOnceThereAndBack) {
  const QPalette before = window().palette();
  const QImage lightIcon = icon(u"LINE");
  ASSERT_FALSE(isDark(before)) << "offscreen the system is light";
  EXPECT_EQ(layerSwatch(), QColor(Qt::black));
  choose("Dark");
  EXPECT_TRUE(isDark(window().palette()));
  EXPECT_TRUE(isDark(canvas().palette()));
  EXPECT_NE(icon(u"LINE"), lightIcon);
  EXPECT_EQ(layerSwatch(), QColor(Qt::white)) << "as it is drawn on the dark";
  picture("theme-dark");
  choose("Light");
  EXPECT_FALSE(isDark(window().palette()));
  EXPECT_EQ(icon(u"LINE"), lightIcon);
  choose("System");
  EXPECT_EQ(window().palette().color(QPalette::Window), before.color(QPalette::Window));
  EXPECT_EQ(layerSwatch(), QColor(Qt::black));
}

TEST_F(ThemeTest, BoxesThatAreNotTickedAreSeenInTheDark) {
  choose("Dark");
  QCheckBox box;
  box.resize(40, 24);
  const QImage image = box.grab().toImage();
  const int ground = image.pixelColor(image.width() - 2, 1).lightness();
  int brightest = 0;
  for (int x = 0; x < image.width(); ++x)
    for (int y = 0; y < image.height(); ++y)
      brightest = std::max(brightest, image.pixelColor(x, y).lightness());
  EXPECT_GT(brightest, ground + 60);
}

TEST_F(PanesTest, EveryControlHasAName) {
  QStringList nameless;
  for (QWidget* const widget : window().findChildren<QWidget*>()) {
    const bool isControl = widget->focusPolicy() != Qt::NoFocus && widget->isVisibleTo(&window());
    if (!isControl || widget->objectName().startsWith(QLatin1String("qt_"))) continue;
    QAccessibleInterface* const face = QAccessible::queryAccessibleInterface(widget);
    if (face && face->text(QAccessible::Name).isEmpty() && widget->toolTip().isEmpty())
      nameless << QString::fromLatin1(widget->metaObject()->className()) + u' ' +
                      widget->objectName();
  }
  EXPECT_EQ(nameless, QStringList()) << nameless.join(u'\n').toStdString();
}

TEST_F(PanesTest, EveryActionHasTextTipAndAKeyOfItsOwn) {
  QStringList keys;
  for (const ActionRow& row : actionTable()) {
    const QAction* const action = window().actions().find(row.name);
    const std::string name = OdString::fromUtf16(row.name).toStdString();
    EXPECT_FALSE(action->text().isEmpty()) << name;
    EXPECT_FALSE(action->toolTip().isEmpty()) << name;
    for (const QKeySequence& key : action->shortcuts()) keys << key.toString();
    EXPECT_TRUE(row.toolbar == ToolbarId::kNone || !action->icon().isNull()) << name;
    EXPECT_TRUE(!row.icon || !action->icon().isNull()) << name << " has the icon of a command";
  }
  EXPECT_EQ(keys.removeDuplicates(), 0);
}

// --- copies for recovery

class AutosaveTest : public DesktopFixture {
 protected:
  OdString folder() { return path("recovery"); }
  /// Leaves copies behind as a crash does.
  void leaveCopies() {
    Autosave crashed(desktop(), path("elsewhere"), nullptr);
    crashed.saveNow();
    const QStringList made = QDir(path("elsewhere")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    ASSERT_EQ(made.size(), 1);
    const QDir from(path("elsewhere") + u'/' + made[0]);
    ASSERT_TRUE(QDir().mkpath(folder() + QStringLiteral("/crashed")));
    for (const QString& name : from.entryList(QDir::Files))
      if (name != QLatin1String("running"))
        QFile::copy(from.filePath(name), folder() + QStringLiteral("/crashed/") + name);
  }
};

TEST_F(AutosaveTest, CopiesOfChangedDrawingsComeBackAsChanged) {
  type("LINE 0,0 5,5  ");
  dialogs.toSave = path("plan.dxf");
  window().actions().find(u"saveAs")->trigger();
  type("LINE 0,0 7,7  ");
  leaveCopies();
  EXPECT_TRUE(document().isModified()) << "a copy is no save";
  desktop().engine().documents().close(document());

  Autosave autosave(desktop(), folder(), nullptr);
  const std::vector<LostDrawing> lost = autosave.findLost();
  ASSERT_EQ(lost.size(), 1u);
  EXPECT_EQ(lost[0].name, QStringLiteral("plan.dxf"));
  ASSERT_TRUE(autosave.open(lost[0]));
  EXPECT_EQ(document().name(), QStringLiteral("plan.dxf"));
  EXPECT_TRUE(document().isModified());
  EXPECT_EQ(entities().size(), 2u);
  autosave.forget();
  EXPECT_TRUE(Autosave(desktop(), folder(), nullptr).findLost().empty());
}

TEST_F(AutosaveTest, CopiesStayUntilTheyAreOpenedOrDeleted) {
  type("LINE 0,0 5,5  ");
  leaveCopies();
  const OdString name = document().name();
  desktop().engine().documents().close(document());
  {
    Autosave autosave(desktop(), folder(), nullptr);
    dialogs.lost = UserDialogs::Lost::kLater;
    recover(autosave, dialogs);
    EXPECT_EQ(dialogs.said, QStringList{name});
    EXPECT_EQ(desktop().document(), nullptr);
  }
  Autosave again(desktop(), folder(), nullptr);
  ASSERT_EQ(again.findLost().size(), 1u) << "Esc, or another time";
  dialogs.lost = UserDialogs::Lost::kOpen;
  recover(again, dialogs);
  ASSERT_NE(desktop().document(), nullptr);
  EXPECT_EQ(entities().size(), 1u);
  EXPECT_EQ(again.findLost().size(), 0u) << "it is open, and copied as every changed drawing";
  leaveCopies();
  dialogs.lost = UserDialogs::Lost::kDelete;
  recover(again, dialogs);
  EXPECT_TRUE(again.findLost().empty());
  dialogs.said.clear();
  recover(again, dialogs);
  EXPECT_TRUE(dialogs.said.isEmpty()) << "nothing is asked where nothing was lost";
}

TEST_F(AutosaveTest, WhatRunsOrEndedAsItShouldLeavesNothing) {
  type("LINE 0,0 5,5  ");
  Autosave other(desktop(), folder(), nullptr);
  {
    Autosave first(desktop(), folder(), nullptr);
    first.saveNow();
    EXPECT_EQ(QDir(folder()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 1);
    EXPECT_TRUE(other.findLost().empty()) << "it still runs";
  }
  EXPECT_TRUE(QDir(folder()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).isEmpty());
}

TEST_F(AutosaveTest, NothingIsCopiedWhileACommandRunsOrWithoutChanges) {
  Autosave autosave(desktop(), folder(), nullptr);
  autosave.saveNow();
  EXPECT_FALSE(QDir(folder()).exists());
  type("LINE 0,0 5,5 ");
  autosave.saveNow();
  EXPECT_FALSE(QDir(folder()).exists());
}

} // namespace
