// Double clicks into the drawing, and texts that are edited where they stand.

#include "desktop/desktop_fixture.h"
#include "drawing/entities/attribute_definition.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/dimension.h"
#include "drawing/entities/line.h"
#include "drawing/entities/mtext.h"
#include "drawing/entities/text.h"

#include <QDockWidget>
#include <QPlainTextEdit>

using namespace drafton;

namespace {

class TextEditorTest : public DesktopFixture {
 protected:
  void doubleClick(double x, double y, Qt::KeyboardModifiers keys = Qt::NoModifier) {
    click(x, y, keys);
    QTest::mouseDClick(&canvas(), Qt::LeftButton, keys, at(x, y));
  }
  TextEditor& editor() { return *canvas().textEditor(); }
  QPlainTextEdit& edit() { return editor().edit(); }
  bool isOpen() { return canvas().textEditor() && editor().isVisibleTo(&canvas()); }
  void press(Qt::Key key, Qt::KeyboardModifiers keys = Qt::NoModifier) {
    QTest::keyClick(&edit(), key, keys);
  }
  OdString text() {
    const auto all = entities();
    const auto* const line = odrxCast<OdDbText>(all.front().get());
    return line ? line->textString() : odrxCast<OdDbMText>(all.front().get())->contents();
  }
  /// A line from the origin to the left, and values beside it, at 5,0 and at 5,5.
  void makeInsert() {
    const auto block = odrxMake<OdDbBlockTableRecord>();
    block->setName(QStringLiteral("Room"));
    const OdDbObjectId id =
        database().getBlockTableId().openAs<OdDbBlockTable>(OdDb::kForWrite)->add(block);
    block->appendOdDbEntity(odrxMake<OdDbLine>(OdGePoint3d{-9, 0, 0}, OdGePoint3d{0, 0, 0}));
    for (const double y : {0.0, 5.0}) {
      const auto definition = odrxMake<OdDbAttributeDefinition>();
      definition->setTag(y == 0 ? QStringLiteral("NAME") : QStringLiteral("AREA"));
      definition->setPrompt(y == 0 ? QStringLiteral("Name") : QString());
      definition->setTextString(y == 0 ? QStringLiteral("hall") : QStringLiteral("9 m2"));
      definition->setHeight(2);
      definition->setPosition({5, y, 0});
      block->appendOdDbEntity(definition);
    }
    const auto insert = odrxMake<OdDbBlockReference>(id, OdGePoint3d());
    database()
        .getModelSpaceId()
        .openAs<OdDbBlockTableRecord>(OdDb::kForWrite)
        ->appendOdDbEntity(insert);
    insert->appendAttributesFromBlock();
    lookAtOrigin();
  }
  QStringList values() {
    QStringList all;
    for (const auto& attribute : only<OdDbBlockReference>()->attributes())
      all << attribute->textString();
    return all;
  }
};

TEST_F(TextEditorTest, ADoubleClickOnATextEditsItWhereItStands) {
  type("TEXT 0,0 2 0\none\n\n");
  const auto steps = database().undoDepth();
  doubleClick(1, 1);
  ASSERT_TRUE(isOpen());
  picture("text-editor");
  EXPECT_EQ(edit().toPlainText(), QStringLiteral("one"));
  EXPECT_EQ(window().focusWidget(), &edit());
  EXPECT_LT((editor().pos() - at(0, 2)).manhattanLength(), 20) << "beside the text";
  QTest::keyClicks(&edit(), QStringLiteral("two \"words\""));
  press(Qt::Key_Return);
  EXPECT_FALSE(isOpen());
  EXPECT_FALSE(desktop().isBusy());
  EXPECT_EQ(text(), QStringLiteral("two \"words\"")) << "with its quotes";
  EXPECT_EQ(database().undoDepth(), steps + 1) << "one step";
}

TEST_F(TextEditorTest, EscLeavesTheTextAsItWas) {
  type("TEXT 0,0 2 0\none\n\n");
  doubleClick(1, 1);
  ASSERT_TRUE(isOpen());
  QTest::keyClicks(&edit(), QStringLiteral("two"));
  press(Qt::Key_Escape);
  EXPECT_FALSE(isOpen());
  EXPECT_FALSE(desktop().isBusy());
  EXPECT_EQ(text(), QStringLiteral("one"));
  EXPECT_TRUE(database().undoName() == QStringLiteral("TEXT"));
}

TEST_F(TextEditorTest, LinesOfAnMTextAreShownAsLines) {
  type("MTEXT -5,5 5,0\none\nC:\\\\Plans\n\n");
  ASSERT_EQ(text(), QStringLiteral("one\\PC:\\\\Plans"));
  doubleClick(-4.5, 4);
  ASSERT_TRUE(isOpen());
  EXPECT_EQ(edit().toPlainText(), QStringLiteral("one\nC:\\\\Plans"));
  edit().setPlainText(QStringLiteral("first"));
  edit().moveCursor(QTextCursor::End);
  press(Qt::Key_Return);
  QTest::keyClicks(&edit(), QStringLiteral("second"));
  press(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(text(), QStringLiteral("first\\Psecond"));
  doubleClick(-4.5, 4);
  edit().setPlainText(QStringLiteral("third"));
  click(15, -10);
  EXPECT_FALSE(isOpen()) << "a click into the drawing takes it";
  EXPECT_EQ(text(), QStringLiteral("third"));
}

TEST_F(TextEditorTest, AClickWithTheOtherButtonTakesItToo) {
  type("TEXT 0,0 2 0\none\n\n");
  doubleClick(1, 1);
  ASSERT_TRUE(isOpen());
  QTest::keyClicks(&edit(), QStringLiteral("two"));
  QTest::mouseClick(&canvas(), Qt::RightButton, {}, at(15, -10));
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(text(), QStringLiteral("two"));
}

TEST_F(TextEditorTest, ADoubleClickEditsWhereWhatIsChosenFirstDoesNotCount) {
  type("TEXT 0,0 2 0\none\n\nPICKFIRST 0 ");
  doubleClick(1, 1);
  ASSERT_TRUE(isOpen());
  QTest::keyClicks(&edit(), QStringLiteral("two"));
  press(Qt::Key_Return);
  EXPECT_EQ(text(), QStringLiteral("two"));
}

TEST_F(TextEditorTest, BlanksThatHoldWordsTogetherStay) {
  const OdString words = QStringLiteral("10\u00a0mm");
  desktop().type(QStringLiteral("TEXT 0,0 2 0\n%1\n\n").arg(words));
  const auto steps = database().undoDepth();
  doubleClick(1, 1);
  ASSERT_TRUE(isOpen());
  press(Qt::Key_Return);
  EXPECT_EQ(text(), words);
  EXPECT_EQ(database().undoDepth(), steps);
}

TEST_F(TextEditorTest, ASlashAtTheEndOfALineLeavesTheLineBreakOne) {
  type("MTEXT -5,5 5,0\none\n\n");
  doubleClick(-4.5, 4);
  ASSERT_TRUE(isOpen());
  edit().setPlainText(QStringLiteral("C:\\\nD:\\\\\nend"));
  press(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(text(), QStringLiteral("C:\\\\\\PD:\\\\\\Pend"));
}

TEST_F(TextEditorTest, WhatWasTypedIsThereAgainAfterALookAtAnotherDrawing) {
  type("TEXT 0,0 2 0\none\n\n");
  doubleClick(1, 1);
  ASSERT_TRUE(isOpen());
  QTest::keyClicks(&edit(), QStringLiteral("two"));
  window().files().newDrawing();
  type("LINE 0,0 1,1  ");
  window().documents().documentTabs().setCurrentIndex(0);
  ASSERT_TRUE(isOpen());
  EXPECT_EQ(edit().toPlainText(), QStringLiteral("two"));
  press(Qt::Key_Return);
  EXPECT_EQ(text(), QStringLiteral("two"));
}

TEST_F(TextEditorTest, EnterTakesTheTextOfADimension) {
  type("DIMLINEAR -5,0 5,0 0,3 ");
  const auto dimension = [this] { return only<OdDbDimension>(); };
  const OdGePoint3d middle = dimension()->textPosition();
  doubleClick(middle.x, middle.y);
  ASSERT_TRUE(isOpen());
  EXPECT_EQ(edit().toPlainText(), QStringLiteral("<>"));
  QTest::keyClicks(&edit(), QStringLiteral("about <>"));
  press(Qt::Key_Return);
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(dimension()->displayedText(), QStringLiteral("about 10"));
}

TEST_F(TextEditorTest, AValueOfAnInsertIsEditedByItselfAndElsewhereAllOfThem) {
  makeInsert();
  doubleClick(6, 6);
  ASSERT_TRUE(isOpen());
  EXPECT_EQ(edit().toPlainText(), QStringLiteral("9 m2"));
  QTest::keyClicks(&edit(), QStringLiteral("12 m2"));
  press(Qt::Key_Return);
  EXPECT_FALSE(desktop().isBusy());
  EXPECT_EQ(values(), (QStringList{QStringLiteral("hall"), QStringLiteral("12 m2")}));

  type("PICKBOX 50 "); // 5 drawing units: both values are near
  doubleClick(6, 4);
  EXPECT_EQ(edit().toPlainText(), QStringLiteral("12 m2")) << "the nearest";
  press(Qt::Key_Escape);
  type("PICKBOX 5 ");

  doubleClick(-4, 0);
  ASSERT_TRUE(isOpen());
  QTest::keyClicks(&edit(), QStringLiteral("bath"));
  press(Qt::Key_Tab);
  ASSERT_TRUE(isOpen()) << "the next one";
  EXPECT_EQ(edit().toPlainText(), QStringLiteral("12 m2"));
  edit().clear();
  press(Qt::Key_Return);
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(values(), (QStringList{QStringLiteral("bath"), QString()}));
  type("U ");
  EXPECT_EQ(values(), (QStringList{QStringLiteral("hall"), QStringLiteral("12 m2")})) << "one step";
}

TEST_F(TextEditorTest, TheNextTextIsShownThoughItIsAskedForInTheSameWords) {
  const OdString start(70, u'x');
  TextEditor own(desktop(), canvas());
  const auto follow = [&](const OdString& text) {
    const InputRequest asked(StringPrompt{
        .text = u"Value", .defaultValue = QStringView(text), .edits = TextEditing::kLine});
    own.follow(&asked, {});
    return asked.shown();
  };
  const OdString shown = follow(start + u'1');
  own.edit().setPlainText(QStringLiteral("typed"));
  EXPECT_EQ(follow(start + u'1'), shown);
  EXPECT_EQ(own.edit().toPlainText(), QStringLiteral("typed")) << "it is still the same text";
  EXPECT_EQ(follow(start + u'2'), shown) << "of a long text the beginning is shown";
  EXPECT_EQ(own.edit().toPlainText(), start + u'2');
}

TEST_F(TextEditorTest, OfWhatHasNoTextTheInspectorIsShown) {
  type("LINE -5,0 5,0  ");
  auto* const inspector = window().findChild<QDockWidget*>(QStringLiteral("inspector"));
  inspector->hide();
  doubleClick(-3, 0);
  EXPECT_TRUE(inspector->isVisible());
  EXPECT_EQ(document().preselection().size(), 1u);
  EXPECT_FALSE(desktop().isBusy());
}

TEST_F(TextEditorTest, ADoubleClickOnAGripMovesNothing) {
  type("TEXT 0,0 2 0\none\n\n");
  click(1, 1);
  doubleClick(0, 0);
  EXPECT_TRUE(isOpen());
  press(Qt::Key_Escape);
  EXPECT_EQ(only<OdDbText>()->position(), OdGePoint3d(0, 0, 0));
}

TEST_F(TextEditorTest, ADoubleClickIntoTheOpenDrawsABoxAsBefore) {
  type("TEXT 0,0 2 0\none\n\n");
  doubleClick(15, 10);
  EXPECT_FALSE(isOpen());
  EXPECT_FALSE(desktop().isBusy());
}

} // namespace
