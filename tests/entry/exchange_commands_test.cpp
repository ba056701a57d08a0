#include "module/entry/exchange_commands.h"

#include "catalog/catalog.h"
#include "catalog/palette_manager.h"
#include "frame/file_path.h"
#include "support/failing_services.h"
#include "support/module_fixture.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

using namespace tc;
using namespace Qt::StringLiterals;

namespace {

using testhost::host;

struct ExchangeCommandsTest : testhost::ModuleFixture {
  ExchangeCommandsTest() {
    write(u"c/DrfTcCatalog.dtc"_s, "<Catalog><ItemID idValue=\"{C}\"/></Catalog>");
    write(u"p.xtp"_s, "<Palette><ItemID idValue=\"{P}\"/><Tools><Tool><ToolType>1</ToolType><Data>"
                      "<Command Macro=\"_LINE\"/></Data></Tool></Tools></Palette>");
    OdTcPaletteManager::instance()->openCatalog(stored(u"c/DrfTcCatalog.dtc"_s));
  }

  OdString stored(const QString& name) const {
    return odpath::fromPlatform(m_folder.filePath(name));
  }
  void write(const QString& name, const QByteArray& bytes) const {
    QDir().mkpath(QFileInfo(m_folder.filePath(name)).path());
    QFile file(m_folder.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  bool exists(const QString& name) const { return QFileInfo::exists(m_folder.filePath(name)); }
  OdTcCatalog* catalog() const {
    const auto all = OdTcPaletteManager::instance()->catalogsEnum();
    OdString path;
    OdTcCatalog* found = nullptr;
    all->next(path, found);
    return found;
  }
  /// Runs a command with answers to its prompts; 0 on success.
  static int run(ICmdProcess* (*make)(), const QStringList& answers) {
    testhost::TestDocument& document = host().documents.open(u"A.dxf"_s);
    for (const QString& answer : answers) document.input.answer(answer);
    return KVPtr<ICmdProcess>::attach(make())->Run();
  }

 private:
  QTemporaryDir m_folder;
};

TEST_F(ExchangeCommandsTest, OpensTheCatalogOfAFolderThatHasOneOfExactlyThatName) {
  const auto count = [] {
    const auto all = OdTcPaletteManager::instance()->catalogsEnum();
    OdString path;
    OdTcCatalog* found = nullptr;
    int catalogs = 0;
    while (all->next(path, found)) ++catalogs;
    return catalogs;
  };
  write(u"d/DrfTcCatalog.dtc"_s, "<Catalog><ItemID idValue=\"{D}\"/></Catalog>");
  write(u"e/drftccatalog.dtc"_s, "<Catalog/>");
  EXPECT_EQ(run(&makeOpenCommand, {stored(u"d"_s)}), 0);
  EXPECT_EQ(count(), 2);
  EXPECT_NE(run(&makeOpenCommand, {stored(u"e"_s)}), 0);
  ASSERT_EQ(host().messages.boxes.size(), 1u);
  EXPECT_EQ(host().messages.boxes.front().text, u"Cannot find catalog in the specified folder."_s);
  EXPECT_NE(run(&makeOpenCommand, {}), 0) << "cancelled";
  EXPECT_EQ(count(), 2);
}

TEST_F(ExchangeCommandsTest, ImportsIntoTheCatalogAndTheGroupThatWereNamed) {
  EXPECT_EQ(run(&makeImportCommand, {u'"' + stored(u"p.xtp"_s) + u'"', stored(u"c"_s), u"Site"_s}),
            0);
  ASSERT_TRUE(catalog()->findPaletteByName(u"p"_s));
  EXPECT_TRUE(catalog()->findPaletteByName(u"p"_s)->isReferenced());
  EXPECT_TRUE(host().messages.printed.join(u'\n').contains(u"is now the palette \"p\"."_s));
}

TEST_F(ExchangeCommandsTest, TwoEnterMeanTheFirstCatalogAndNoGroup) {
  EXPECT_EQ(run(&makeImportCommand, {stored(u"p.xtp"_s), {}, {}}), 0);
  ASSERT_TRUE(catalog()->findPaletteByName(u"p"_s));
  EXPECT_FALSE(catalog()->findPaletteByName(u"p"_s)->isReferenced());
}

TEST_F(ExchangeCommandsTest, FailsForAFileOrACatalogThatIsNotThereAndForNoAnswer) {
  EXPECT_NE(run(&makeImportCommand, {stored(u"none.xtp"_s), {}, {}}), 0);
  EXPECT_NE(run(&makeImportCommand, {stored(u"p.xtp"_s), stored(u"elsewhere"_s), {}}), 0);
  EXPECT_NE(run(&makeImportCommand, {QString()}), 0);
  EXPECT_NE(run(&makeImportCommand, {stored(u"p.xtp"_s)}), 0) << "cancelled at the second prompt";
  EXPECT_EQ(catalog()->findPaletteByName(u"p"_s), nullptr);
}

TEST_F(ExchangeCommandsTest, ACatalogThatCannotBeWrittenIsToldWithoutBlamingTheFile) {
  testhost::FailingServices readOnly;
  readOnly.deniedFolder = stored(u"c"_s);
  EXPECT_NE(run(&makeImportCommand, {stored(u"p.xtp"_s), {}, {}}), 0);
  EXPECT_TRUE(host().messages.boxes.empty()) << "the file can be read";
  EXPECT_TRUE(host().messages.printed.last().contains(u"is not imported: "_s));
  EXPECT_TRUE(host().messages.printed.last().contains(u"Permission denied"_s));
  write(u"bad.xtp"_s, "Dear reader");
  EXPECT_NE(run(&makeImportCommand, {stored(u"bad.xtp"_s), {}, {}}), 0);
  EXPECT_EQ(host().messages.boxes.size(), 1u);
}

TEST_F(ExchangeCommandsTest, PicturesThatCannotBeWrittenAreToldOnceForEachTool) {
  OdString images;
  for (const int size : {16, 32, 64}) {
    const QString name = u"Door%1.png"_s.arg(size);
    write(u"q/Images/"_s + name, {});
    ASSERT_TRUE(QImage(size, size, QImage::Format_RGB32)
                    .save(odpath::toPlatform(stored(u"q/Images/"_s + name))));
    images += u"<Image cx=\"%1\" cy=\"%1\" src=\"Images\\%2\"/>"_s.arg(size).arg(name);
  }
  write(u"q.xtp"_s, "<Palette><ItemID idValue=\"{Q}\"/><Tools><Tool><Properties><ItemName>Door"
                    "</ItemName><Images>" +
                        images.toUtf8() +
                        "</Images></Properties><ToolType>1</ToolType><Data>"
                        "<Command Macro=\"_LINE\"/></Data></Tool></Tools></Palette>");
  const auto import = [&] {
    host().messages.printed.clear();
    return run(&makeImportCommand, {stored(u"q.xtp"_s), {}, {}});
  };
  struct : testhost::FailingServices {
    void copyFile(const OdString&, const OdString& to) override {
      throw OdFileError(eFileAccess, to, u"Permission denied"_s);
    }
  } readOnly;
  readOnly.deniedFolder = stored(u"c"_s);
  EXPECT_NE(import(), 0);
  EXPECT_FALSE(host().messages.printed.join(u'\n').contains(u"Door"_s)) << "nothing came in";

  readOnly.deniedFolder.clear();
  EXPECT_EQ(import(), 0);
  EXPECT_EQ(host().messages.printed.filter(u"Door: "_s).size(), 2)
      << "the reason, and the picture that is missing";
  EXPECT_EQ(host().messages.printed.join(u'\n').count(u"Permission denied"_s), 1);
}

TEST_F(ExchangeCommandsTest, WithoutADocumentNothingCanBeAsked) {
  EXPECT_NE(KVPtr<ICmdProcess>::attach(makeImportCommand())->Run(), 0);
  EXPECT_NE(KVPtr<ICmdProcess>::attach(makeExportCommand())->Run(), 0);
}

TEST_F(ExchangeCommandsTest, ExportsAPaletteAndAddsTheEndingThatIsMissing) {
  ASSERT_EQ(run(&makeImportCommand, {stored(u"p.xtp"_s), {}, {}}), 0);
  EXPECT_EQ(run(&makeExportCommand, {u"p"_s, stored(u"q"_s)}), 0);
  EXPECT_TRUE(exists(u"q.xtp"_s));
  EXPECT_EQ(
      run(&makeExportCommand, {catalog()->findPaletteByName(u"p"_s)->id(), stored(u"r.xtp"_s)}), 0);
  EXPECT_TRUE(exists(u"r.xtp"_s));
  EXPECT_NE(run(&makeExportCommand, {u"Nothing"_s, stored(u"s.xtp"_s)}), 0);
  EXPECT_TRUE(host().messages.printed.join(u'\n').contains(u"There is no palette \"Nothing\"."_s));
}

} // namespace
