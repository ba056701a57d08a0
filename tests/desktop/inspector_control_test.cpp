#include "drafton/desktop/inspector_control.h"

#include <QLineEdit>
#include <QPainter>
#include <QTest>

#include <gtest/gtest.h>

using namespace drafton;

namespace {

/// A text that is edited in a line; "no" is refused.
class TextRow : public CKVUnknownImpl<IKVEditableProperty> {
 public:
  TextRow(const char* heading, const char* word, const char* text)
    : kind(QString::fromLatin1(heading))
    , label(QString::fromLatin1(word))
    , value(QString::fromLatin1(text)) {}

  OdString kind, label, value;
  bool visible = true, readOnly = false;
  QColor color;
  IKVEditablePropertySink* sink = nullptr;
  QPointer<QLineEdit> edit;
  int taken = 0;

  OdString name() const override { return label; }
  OdString category() const override { return kind; }
  OdString description() const override { return label + QStringLiteral("?"); }
  bool isVisible() const override { return visible; }
  bool isReadOnly() const override { return readOnly; }
  OdString valueText() const override { return value; }
  void drawValue(QPainter& painter, const QRect& place) const override {
    painter.fillRect(place, color);
  }
  QWidget* createControl(QWidget& parent, const QRect&) override {
    edit = new QLineEdit(value, &parent);
    return edit;
  }
  bool takeFromControl(QWidget& control) override {
    ++taken;
    const OdString text = static_cast<QLineEdit&>(control).text();
    if (text == QLatin1String("no")) return false;
    value = text;
    if (sink) sink->rowChanged(*this);
    return true;
  }
  void setSink(IKVEditablePropertySink* to) override { sink = to; }
};

struct InspectorControlTest : ::testing::Test {
  QWidget parent;
  KVPtr<InspectorService> service = kvMake<InspectorService>();
  InspectorControl& control = *static_cast<InspectorControl*>(service->createInspector(parent));
  QLineEdit elsewhere{&parent};
  KVPtr<TextRow> width = kvMake<TextRow>("Size", "Width", "12");

  InspectorControlTest() {
    parent.resize(400, 340);
    control.setGeometry(0, 0, 400, 300);
    elsewhere.setGeometry(0, 300, 400, 40);
    parent.show();
    QApplication::setActiveWindow(&parent);
  }
  ~InspectorControlTest() override { control.clear(); }

  KVPtr<TextRow> add(const char* heading, const char* name, const char* value) {
    const auto row = kvMake<TextRow>(heading, name, value);
    control.addRow(KVPtr<IKVEditableProperty>(row.get()));
    return row;
  }
  QModelIndex place(int heading, int row, int column = 1) {
    return control.model()->index(row, column, control.model()->index(heading, 0));
  }
  QLineEdit& edit(const QModelIndex& at, const KVPtr<TextRow>& row) {
    control.setCurrentIndex(at);
    control.edit(at);
    EXPECT_TRUE(row->edit);
    row->edit->setFocus();
    row->edit->selectAll();
    return *row->edit;
  }
  /// What was typed into is destroyed from the event loop.
  static void settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
};

TEST_F(InspectorControlTest, RowsStandUnderTheirHeadings) {
  add("Size", "Width", "12");
  add("Look", "Color", "red");
  add("Size", "Height", "7");
  const auto hidden = kvMake<TextRow>("Secret", "Key", "x");
  hidden->visible = false;
  control.addRow(KVPtr<IKVEditableProperty>(hidden.get()));
  ASSERT_EQ(control.topLevelItemCount(), 2);
  EXPECT_EQ(control.topLevelItem(0)->text(0), QStringLiteral("Size"));
  EXPECT_TRUE(control.topLevelItem(0)->isExpanded());
  EXPECT_EQ(control.topLevelItem(0)->childCount(), 2);
  EXPECT_EQ(place(0, 1, 0).data().toString(), QStringLiteral("Height"));
  EXPECT_EQ(place(0, 1).data().toString(), QStringLiteral("7")) << "for those who hear it";
  EXPECT_EQ(place(0, 1).data(Qt::ToolTipRole).toString(), QStringLiteral("Height?"));
  EXPECT_EQ(control.rowAt(control.model()->index(0, 0)), nullptr) << "a heading";
  control.clear();
  EXPECT_EQ(control.topLevelItemCount(), 0);
}

TEST_F(InspectorControlTest, ARowDrawsItsValueItself) {
  const auto row = add("Look", "Color", "red");
  row->color = QColor(200, 30, 30);
  const QRect at = control.visualRect(place(0, 0));
  EXPECT_EQ(control.viewport()->grab().toImage().pixelColor(at.center()), row->color);
}

TEST_F(InspectorControlTest, EnterTakesTheValueAndEscapeDoesNot) {
  const auto row = add("Size", "Width", "12");
  QTest::keyClicks(&edit(place(0, 0), row), QStringLiteral("15"));
  QTest::keyClick(row->edit, Qt::Key_Return);
  EXPECT_EQ(row->value, QStringLiteral("15"));
  EXPECT_EQ(place(0, 0).data().toString(), QStringLiteral("15"));
  settle();
  EXPECT_FALSE(row->edit);
  QTest::keyClicks(&edit(place(0, 0), row), QStringLiteral("99"));
  QTest::keyClick(row->edit, Qt::Key_Escape);
  settle();
  EXPECT_FALSE(row->edit);
  EXPECT_EQ(row->value, QStringLiteral("15"));
  EXPECT_EQ(row->taken, 1);
}

TEST_F(InspectorControlTest, ARefusedValueKeepsTextAndFocus) {
  const auto row = add("Size", "Width", "12");
  QTest::keyClicks(&edit(place(0, 0), row), QStringLiteral("no"));
  QTest::keyClick(row->edit, Qt::Key_Return);
  EXPECT_FALSE(control.endEdit());
  settle();
  ASSERT_TRUE(row->edit);
  EXPECT_EQ(row->edit->text(), QStringLiteral("no"));
  EXPECT_TRUE(row->edit->hasFocus());
  row->edit->setText(QStringLiteral("8"));
  EXPECT_TRUE(control.endEdit());
  EXPECT_EQ(row->value, QStringLiteral("8"));
  EXPECT_TRUE(control.endEdit()) << "nothing is edited any more";
}

TEST_F(InspectorControlTest, LosingTheFocusTakesTheValueUnlessItIsLocked) {
  const auto row = add("Size", "Width", "12");
  QTest::keyClicks(&edit(place(0, 0), row), QStringLiteral("15"));
  row->edit->setProperty(kHostFocusLock, 1);
  elsewhere.setFocus();
  settle();
  ASSERT_TRUE(row->edit) << "a dialog has the focus";
  EXPECT_EQ(row->taken, 0);
  row->edit->setProperty(kHostFocusLock, {});
  row->edit->setFocus();
  elsewhere.setFocus();
  settle();
  EXPECT_EQ(row->value, QStringLiteral("15"));
  EXPECT_EQ(row->taken, 1);
  EXPECT_FALSE(row->edit);
}

TEST_F(InspectorControlTest, AReadOnlyRowIsNotEdited) {
  width->readOnly = true;
  control.addRow(KVPtr<IKVEditableProperty>(width.get()));
  control.edit(place(0, 0, 0));
  EXPECT_FALSE(place(0, 0).flags() & Qt::ItemIsEditable);
  EXPECT_FALSE(width->edit);
}

TEST_F(InspectorControlTest, AChangedRowIsShownAnew) {
  const auto row = add("Size", "Width", "12");
  row->value = QStringLiteral("13");
  row->sink->rowChanged(*row.get());
  EXPECT_EQ(place(0, 0).data().toString(), QStringLiteral("13"));
  control.clear();
  EXPECT_EQ(row->sink, nullptr) << "nobody listens behind the end";
}

TEST_F(InspectorControlTest, TheSplitIsKept) {
  control.setSplit(77);
  EXPECT_EQ(control.split(), 77);
  control.setRedraw(false);
  EXPECT_FALSE(control.updatesEnabled());
  control.setRedraw(true);
  EXPECT_TRUE(control.updatesEnabled());
}

} // namespace
