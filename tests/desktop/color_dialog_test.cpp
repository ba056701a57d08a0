#include "drafton/desktop/color_dialog.h"

#include "desktop/desktop_fixture.h"
#include "drafton/desktop/color_choice.h"
#include "drafton/desktop/layer_manager.h"
#include "drafton/desktop/property_bar.h"
#include "drawing/entities/line.h"

#include <QColorDialog>
#include <QComboBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

using namespace drafton;

namespace {

OdCmColor named(const char* book, const char* name, int red) {
  OdCmColor color = OdCmColor::fromRgb(static_cast<std::uint8_t>(red), 2, 3);
  color.setNames(QString::fromLatin1(name), QString::fromLatin1(book));
  return color;
}

class ColorDialogTest : public DesktopFixture {
 protected:
  /// Does something in the dialog when it comes up, and closes it.
  void inDialog(std::function<void(ColorDialog&)> act) {
    auto* const timer = new QTimer(&window());
    QObject::connect(timer, &QTimer::timeout, timer, [act = std::move(act), timer] {
      auto* const dialog = qobject_cast<ColorDialog*>(QApplication::activeModalWidget());
      if (!dialog) return;
      timer->stop();
      timer->deleteLater();
      act(*dialog);
      if (dialog->isVisible()) dialog->reject();
    });
    timer->start(1);
  }
  static QTableWidget& palette(ColorDialog& dialog) {
    return *dialog.findChild<QTableWidget*>(QStringLiteral("palette"));
  }
  static QTreeWidget& books(ColorDialog& dialog) {
    return *dialog.findChild<QTreeWidget*>(QStringLiteral("books"));
  }
  static int page(ColorDialog& dialog) { return dialog.findChild<QTabWidget*>()->currentIndex(); }
};

TEST_F(ColorDialogTest, ThePaletteHasEachIndexOnce) {
  ColorDialog dialog(OdCmColor::fromColorIndex(30), true, {}, {});
  EXPECT_EQ(page(dialog), 0);
  EXPECT_EQ(dialog.color().colorIndex(), 30) << "where it begins";
  QSet<int> seen;
  for (int row = 0; row < palette(dialog).rowCount(); ++row)
    for (int column = 0; column < palette(dialog).columnCount(); ++column) {
      const QTableWidgetItem* const item = palette(dialog).item(row, column);
      if (!item->flags()) continue;
      Q_EMIT palette(dialog).cellClicked(row, column);
      const int index = dialog.color().colorIndex();
      EXPECT_FALSE(seen.contains(index)) << index;
      seen << index;
      EXPECT_EQ(item->background().color().rgb() & 0xFFFFFFu,
                OdCmColor::lookUpRGB(static_cast<std::uint8_t>(index)));
      EXPECT_TRUE(item->data(Qt::AccessibleTextRole).toString().startsWith(QString::number(index)));
    }
  EXPECT_EQ(seen.size(), 255);
}

TEST_F(ColorDialogTest, TheCursorKeysGoThroughThePalette) {
  ColorDialog dialog(OdCmColor::fromColorIndex(1), true, {}, {});
  dialog.show();
  palette(dialog).setFocus();
  QTest::keyClick(&palette(dialog), Qt::Key_Right);
  EXPECT_EQ(dialog.color().colorIndex(), 2);
  QTest::keyClick(&palette(dialog), Qt::Key_Down);
  EXPECT_EQ(dialog.color().colorIndex(), 20);
}

TEST_F(ColorDialogTest, ChoosesTrueColoursAndByLayer) {
  ColorDialog dialog(OdCmColor::fromRgb(10, 20, 30), true, {}, {});
  EXPECT_EQ(page(dialog), 1);
  EXPECT_EQ(dialog.findChild<QColorDialog*>()->currentColor(), QColor(10, 20, 30));
  dialog.findChild<QColorDialog*>()->setCurrentColor(QColor(1, 2, 3));
  EXPECT_EQ(dialog.color(), OdCmColor::fromRgb(1, 2, 3));
  for (QPushButton* const button : dialog.findChildren<QPushButton*>())
    if (button->text() == QStringLiteral("By &Layer")) button->click();
  EXPECT_TRUE(dialog.color().isByLayer());
}

TEST_F(ColorDialogTest, EntriesOfBooksAreChosenAndMade) {
  const OdCmColor sand = named("RAL", "Sand", 200), sky = named("RAL", "Sky", 20);
  ColorDialog dialog(sky, false, {}, {named("House", "Red", 1), sand, sky});
  EXPECT_EQ(page(dialog), 2);
  ASSERT_EQ(books(dialog).topLevelItemCount(), 2);
  QTreeWidgetItem* const ral = books(dialog).topLevelItem(1);
  ASSERT_EQ(ral->childCount(), 2);
  books(dialog).setCurrentItem(ral->child(0));
  EXPECT_EQ(dialog.color(), sand);
  EXPECT_EQ(dialog.color().bookName(), QStringLiteral("RAL"));
  const QList<QLineEdit*> fields = dialog.findChildren<QLineEdit*>();
  QLineEdit* name = nullptr;
  for (QLineEdit* const field : fields)
    if (field->text() == QStringLiteral("Sand")) name = field;
  ASSERT_TRUE(name);
  dialog.show();
  name->setFocus();
  name->selectAll();
  QTest::keyClicks(name, QStringLiteral("Dune"));
  EXPECT_EQ(dialog.color(), named("RAL", "Dune", 200));
}

TEST_F(ColorDialogTest, BooksOfADrawingAreThoseOfItsLayersAndEntities) {
  type("LINE 0,0 5,5  LINE 0,0 6,6  LINE 0,0 7,7  ");
  int number = 0;
  for (const OdDbEntityPtr& entity : entities()) {
    entity->upgradeOpen();
    entity->setColor(named("RAL", "Sky", 20));
    if (++number == 3) entity->setColor(named("House", "Red", 1));
  }
  const OdDbLayerTableRecordPtr layer = database().currentLayer().safeOpenObject(OdDb::kForWrite);
  layer->setColor(named("House", "Blue", 9));
  QStringList names;
  for (const OdCmColor& color : bookColorsOf(database()))
    names << color.bookName() + u'/' + color.colorName();
  EXPECT_EQ(names, (QStringList{QStringLiteral("House/Blue"), QStringLiteral("House/Red"),
                                QStringLiteral("RAL/Sky")}));
}

TEST_F(ColorDialogTest, RecentOnesOfEachKindComeBack) {
  const auto choose = [&](const OdCmColor& wanted) {
    inDialog([](ColorDialog& dialog) { dialog.accept(); });
    EXPECT_EQ(askDrawingColor(desktop(), wanted, true, &window()), wanted);
  };
  choose(OdCmColor::fromColorIndex(30));
  choose(OdCmColor::fromRgb(1, 2, 3));
  choose(named("RAL", "Sky", 20));
  choose(OdCmColor());
  choose(OdCmColor::fromColorIndex(30));
  stop();
  start();
  EXPECT_EQ(recentChoices(desktop()),
            (std::vector{OdCmColor::fromColorIndex(30), named("RAL", "Sky", 20),
                         OdCmColor::fromRgb(1, 2, 3)}))
      << "by layer is none";
  EXPECT_EQ(recentColors(desktop())[1], QColor(20, 2, 3));
  inDialog([](ColorDialog& dialog) {
    QStringList tips;
    for (QToolButton* const button : dialog.findChildren<QToolButton*>())
      if (button->accessibleName().startsWith(QLatin1String("Recent color"))) {
        tips << button->toolTip();
        if (tips.size() == 2) button->click();
      }
    EXPECT_EQ(tips, (QStringList{QStringLiteral("30"), QStringLiteral("RAL$Sky"),
                                 QStringLiteral("1,2,3")}));
    EXPECT_EQ(page(dialog), 2);
    dialog.accept();
  });
  EXPECT_EQ(askDrawingColor(desktop(), OdCmColor(), true, &window()), named("RAL", "Sky", 20));
  for (const char* const nonsense : {"0", "256", "no colour", "#12", "blue"}) {
    desktop().setSetting("Color1", OdString(QString::fromLatin1(nonsense)));
    EXPECT_EQ(recentChoices(desktop()).size(), 2u) << nonsense;
  }
}

TEST_F(ColorDialogTest, ThePropertyListAndTheLayersTakeWhatIsChosen) {
  type("LINE 0,0 5,5  ");
  press(Qt::Key_Escape);
  inDialog([](ColorDialog& dialog) {
    EXPECT_TRUE(dialog.color().isByLayer()) << "what is in force";
    Q_EMIT palette(dialog).cellClicked(0, 4);
    dialog.accept();
  });
  window().actions().find(u"color")->trigger();
  EXPECT_EQ(database().currentColor().colorIndex(), 5);
  window().actions().find(u"selectAll")->trigger();
  inDialog([](ColorDialog& dialog) {
    dialog.findChild<QColorDialog*>()->setCurrentColor(QColor(9, 8, 7));
    dialog.accept();
  });
  QComboBox& list = window().properties().colors();
  list.setCurrentIndex(list.count() - 1);
  Q_EMIT list.activated(list.count() - 1);
  EXPECT_EQ(only<OdDbLine>()->color(), OdCmColor::fromRgb(9, 8, 7));
  EXPECT_EQ(database().currentColor().colorIndex(), 5) << "it stays";
  window().actions().find(u"layers")->trigger();
  inDialog([](ColorDialog& dialog) {
    EXPECT_EQ(dialog.color().colorIndex(), 7);
    Q_EMIT palette(dialog).cellClicked(0, 1);
    dialog.accept();
  });
  QTableWidget& layers = window().layers().table();
  for (int column = 0; column < layers.columnCount(); ++column)
    if (layers.horizontalHeaderItem(column)->text() == QStringLiteral("Color"))
      Q_EMIT layers.cellActivated(0, column);
  const OdDbLayerTableRecordPtr layer = database().currentLayer().safeOpenObject();
  EXPECT_EQ(layer->color().colorIndex(), 2);
}

} // namespace
