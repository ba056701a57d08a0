#include "drafton/desktop/exchange.h"

#include "desktop/desktop_fixture.h"
#include "frame/file_path.h"
#include "host/clipboard_payload.h"

#include <QClipboard>
#include <QDragEnterEvent>
#include <QMimeData>

using namespace drafton;

namespace {

struct ExchangeTest : ::testing::Test {
  std::shared_ptr<ExchangeFormats> formats = std::make_shared<ExchangeFormats>();
  KVPtr<SystemClipboard> clipboard = kvMake<SystemClipboard>(formats);
  KVPtr<DragDrop> drags = kvMake<DragDrop>(formats);
};

TEST_F(ExchangeTest, AFormatHasOneNumberEverywhere) {
  const int one = clipboard->registerFormat(QStringLiteral("one"));
  EXPECT_GT(one, 0);
  EXPECT_NE(clipboard->registerFormat(QStringLiteral("two")), one);
  EXPECT_EQ(clipboard->registerFormat(QStringLiteral("one")), one);
  EXPECT_EQ(formats->numberOf(QStringLiteral("one")), one);
  for (const int unknown : {0, -1, 99}) EXPECT_EQ(formats->mimeTypeOf(unknown), QString());
  EXPECT_EQ(formats->mimeTypeOf(formats->numberOf(QStringLiteral("text/plain"))),
            QStringLiteral("text/plain"));
}

TEST_F(ExchangeTest, TheClipboardIsTheSystems) {
  const int one = clipboard->registerFormat(QStringLiteral("one"));
  const int text = clipboard->registerFormat(QStringLiteral("text/plain"));
  clipboard->setData(one, "bytes");
  EXPECT_EQ(clipboard->data(one), "bytes");
  EXPECT_TRUE(QApplication::clipboard()->mimeData()->hasFormat(formats->mimeTypeOf(one)));
  EXPECT_EQ(clipboard->data(text), QByteArray());
  QApplication::clipboard()->setText(QStringLiteral("from another program"));
  EXPECT_EQ(clipboard->data(one), QByteArray()) << "a new content replaces all";
  EXPECT_EQ(clipboard->data(text), "from another program");
  clipboard->setData(99, "nobody's");
  EXPECT_EQ(clipboard->data(text), "from another program");
  EXPECT_EQ(clipboard->data(99), QByteArray());
}

TEST_F(ExchangeTest, ADragCarriesDataTextAndFiles) {
  const int one = formats->numberOf(QStringLiteral("one"));
  const QString file = QDir::temp().filePath(QStringLiteral("plan.dxf"));
  HostDragContents contents{
      {{one, "bytes"}, {99, "nobody's"}}, QStringLiteral("LINE"), {odpath::fromPlatform(file)}};
  const auto packed = drags->packed(contents);
  EXPECT_EQ(packed->data(formats->mimeTypeOf(one)), "bytes");
  EXPECT_EQ(packed->text(), QStringLiteral("LINE"));
  EXPECT_EQ(packed->urls(), QList<QUrl>{QUrl::fromLocalFile(file)});
  EXPECT_EQ(packed->formats().size(), 3);
}

/// Answers as it is told and writes down what it hears.
struct Target : IHostDropTarget {
  HostDropEffect answer = kDropCopy;
  QStringList heard;
  QByteArray bytes;
  OdString text;
  QStringList files;
  QPoint place;
  unsigned allowed = 0;
  bool hasFormat = false;
  int format = 0;

  void look(const IHostDraggedData& dragged, const QPoint& at, unsigned effects) {
    hasFormat = dragged.has(format);
    bytes = dragged.data(format);
    text = dragged.text();
    files = dragged.files();
    place = at;
    allowed = effects;
  }
  HostDropEffect dragOver(const IHostDraggedData& dragged, const QPoint& at,
                          unsigned effects) override {
    heard << QStringLiteral("over");
    look(dragged, at, effects);
    return answer;
  }
  void dragLeft() override { heard << QStringLiteral("left"); }
  HostDropEffect dropped(const IHostDraggedData& dragged, const QPoint& at,
                         unsigned effects) override {
    heard << QStringLiteral("dropped");
    look(dragged, at, effects);
    return answer;
  }
};

struct DropTest : ExchangeTest {
  QWidget window;
  Target target;
  std::unique_ptr<QMimeData> dragged;

  DropTest() {
    target.format = formats->numberOf(QStringLiteral("one"));
    dragged = drags->packed(
        {{{target.format, "bytes"}}, QStringLiteral("LINE"), {QStringLiteral("C:\\a.dxf")}});
    drags->setDropTarget(window, &target);
  }
  /// The action that the system is told; IgnoreAction for none.
  Qt::DropAction over(Qt::DropActions allowed = Qt::CopyAction | Qt::MoveAction) {
    QDragEnterEvent enter({3, 4}, allowed, dragged.get(), Qt::LeftButton, {});
    QApplication::sendEvent(&window, &enter);
    QDragMoveEvent move({5, 6}, allowed, dragged.get(), Qt::LeftButton, {});
    move.ignore();
    QApplication::sendEvent(&window, &move);
    return move.isAccepted() ? move.dropAction() : Qt::IgnoreAction;
  }
  Qt::DropAction drop(Qt::DropActions allowed = Qt::CopyAction | Qt::MoveAction) {
    // Qt hands a drop only to what was entered.
    QDragEnterEvent enter({3, 4}, allowed, dragged.get(), Qt::LeftButton, {});
    QApplication::sendEvent(&window, &enter);
    QDropEvent drop({7, 8}, allowed, dragged.get(), Qt::LeftButton, {});
    drop.ignore();
    QApplication::sendEvent(&window, &drop);
    return drop.isAccepted() ? drop.dropAction() : Qt::IgnoreAction;
  }
};

TEST_F(DropTest, ATargetSeesWhatIsDraggedAndSaysWhatBecomesOfIt) {
  EXPECT_TRUE(window.acceptDrops());
  EXPECT_EQ(over(), Qt::CopyAction);
  EXPECT_TRUE(target.hasFormat);
  EXPECT_EQ(target.bytes, "bytes");
  EXPECT_EQ(target.text, QStringLiteral("LINE"));
  EXPECT_EQ(target.place, QPoint(5, 6));
  EXPECT_EQ(target.allowed, unsigned{kDropCopy | kDropMove});
  target.answer = kDropMove;
  EXPECT_EQ(over(), Qt::MoveAction);
  EXPECT_EQ(drop(), Qt::MoveAction);
  EXPECT_EQ(target.place, QPoint(7, 8));
  EXPECT_EQ(target.heard.last(), QStringLiteral("dropped"));
}

TEST_F(DropTest, ARefusalIsAskedAgainWhereTheCursorGoes) {
  target.answer = kDropRefused;
  EXPECT_EQ(over(), Qt::IgnoreAction);
  QDragEnterEvent enter({3, 4}, Qt::CopyAction, dragged.get(), Qt::LeftButton, {});
  QApplication::sendEvent(&window, &enter);
  EXPECT_TRUE(enter.isAccepted()) << "otherwise nothing more is heard";
  EXPECT_EQ(enter.dropAction(), Qt::IgnoreAction);
  EXPECT_EQ(drop(), Qt::IgnoreAction);
}

TEST_F(DropTest, WhatTheSourceDoesNotAllowDoesNotHappen) {
  target.answer = kDropMove;
  EXPECT_EQ(over(Qt::CopyAction), Qt::IgnoreAction);
  EXPECT_EQ(drop(Qt::CopyAction), Qt::IgnoreAction);
}

TEST_F(DropTest, LeavingIsTold) {
  over();
  QDragLeaveEvent leave;
  QApplication::sendEvent(&window, &leave);
  EXPECT_EQ(target.heard.last(), QStringLiteral("left"));
}

TEST_F(DropTest, ANewTargetTakesThePlaceOfTheFormerAndNoneEndsIt) {
  Target other;
  drags->setDropTarget(window, &other);
  drop();
  EXPECT_TRUE(target.heard.isEmpty());
  EXPECT_EQ(other.heard.last(), QStringLiteral("dropped"));
  other.heard.clear();
  drags->setDropTarget(window, nullptr);
  drop();
  EXPECT_TRUE(other.heard.isEmpty());
  EXPECT_FALSE(window.acceptDrops());
}

class CopiedEntitiesTest : public DesktopFixture {};

TEST_F(CopiedEntitiesTest, GoToTheSystemsClipboard) {
  type("LINE 0,0 5,5  COPYCLIP All\n\n");
  const auto clipboard = kvQuery<IHostClipboard>(&desktop().engine().services());
  const QByteArray bytes =
      clipboard->data(clipboard->registerFormat(kHostClipboardFormat.toString()));
  const HostClipboardPayload payload = hostclipboard::fromBytes(bytes);
  EXPECT_EQ(payload.entities.size(), 1u);
  EXPECT_TRUE(QFile::exists(odpath::toPlatform(payload.drawing)));
  EXPECT_TRUE(
      QApplication::clipboard()->mimeData()->formats().join(u' ').contains(kHostClipboardFormat));
  QFile::remove(odpath::toPlatform(payload.drawing));
  EXPECT_TRUE(kvQuery<IHostDragDrop>(&desktop().engine().services()));
}

} // namespace
