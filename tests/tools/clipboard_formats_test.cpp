#include "tools/clipboard_formats.h"

#include "catalog/palette_manager.h"
#include "frame/file_path.h"
#include "host/clipboard_payload.h"
#include "support/module_fixture.h"

#include <QFile>
#include <QTemporaryDir>

using namespace tc;
using namespace Qt::StringLiterals;

namespace {

using testhost::host;

struct ClipboardTest : testhost::ModuleFixture {
  OdString write(const QString& name) const {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    return odpath::fromPlatform(file.fileName());
  }
  void copy(const OdString& format, const QByteArray& bytes) {
    host().clipboard.contents[host().clipboard.registerFormat(format)] = bytes;
  }
  static QByteArray payload(const OdString& drawing) {
    return *hostclipboard::toBytes({drawing, {}, {}});
  }
  QTemporaryDir folder;
};

TEST_F(ClipboardTest, FormatsAreRegisteredInTheirOrder) {
  registerClipboardFormats();
  EXPECT_EQ(host().clipboard.formats,
            QStringList({u"kvd_clipbrd.1.0"_s, u"AutoCAD.r19"_s, u"AutoCAD.r18"_s, u"AutoCAD.r17"_s,
                         u"AutoCAD.r16"_s, u"AutoCAD.r15"_s}));
  EXPECT_EQ(kClipboardFormats[0], kHostClipboardFormat);
  host().switchOff(IHostClipboard::kId);
  registerClipboardFormats();
  EXPECT_TRUE(drawingOnClipboard().isEmpty());
}

TEST_F(ClipboardTest, DrawingOfThePayloadBecomesATool) {
  const OdString path = write(u"drfa1.dwg"_s);
  copy(u"AutoCAD.r18"_s, payload(path));
  const OdTcToolPtr tool = OdTcPaletteManager::instance()->createToolFromClipboard();
  ASSERT_TRUE(tool);
  EXPECT_EQ(tool->name(), u"drfa1"_s);
}

TEST_F(ClipboardTest, FirstFormatWhoseDrawingIsThereCounts) {
  const OdString newer = write(u"newer.dwg"_s), older = write(u"older.dwg"_s);
  copy(u"AutoCAD.r15"_s, payload(older));
  EXPECT_EQ(drawingOnClipboard(), older);
  copy(u"AutoCAD.r16"_s, payload(newer));
  EXPECT_EQ(drawingOnClipboard(), newer);
  copy(u"kvd_clipbrd.1.0"_s, payload(u"C:\\gone.dwg"_s));
  EXPECT_EQ(drawingOnClipboard(), newer);
}

TEST_F(ClipboardTest, PayloadOfAnybodysBytesNamesAtMostOneDrawing) {
  EXPECT_TRUE(drawingOfPayload({}).isEmpty());
  EXPECT_TRUE(drawingOfPayload(QByteArray(1, 'x')).isEmpty());
  EXPECT_TRUE(drawingOfPayload(QByteArray(5000, '\0')).isEmpty());
  EXPECT_EQ(drawingOfPayload(QByteArray(5000, 'x')).size(), 260);
  EXPECT_EQ(drawingOfPayload(payload(u"C:\\a.dwg"_s).left(9)), u"C:\\a"_s);
  EXPECT_FALSE(OdTcPaletteManager::instance()->createToolFromClipboard());
}

TEST(ClipboardPayload, ComesBackAsItWas) {
  const HostClipboardPayload out{u"C:\\t\\Küche.dwg"_s, u"C:\\plan.dxf"_s, {0x2A, 0x123456789AULL}};
  const QByteArray bytes = *hostclipboard::toBytes(out);
  EXPECT_EQ(bytes.size(), 2 * 2 * 260 + 4 + 2 * 8);
  const HostClipboardPayload in = hostclipboard::fromBytes(bytes);
  EXPECT_EQ(in.drawing, out.drawing);
  EXPECT_EQ(in.source, out.source);
  EXPECT_EQ(in.entities, out.entities);
  EXPECT_EQ(hostclipboard::fromBytes(bytes.chopped(1)).entities.size(), 1u);
  EXPECT_FALSE(hostclipboard::toBytes({QString(260, u'x'), {}, {}}));
}

} // namespace
