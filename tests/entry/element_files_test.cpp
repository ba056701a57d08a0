// One file for each element that the module stores, in tests/data/golden/elements: what a save
// writes when every field differs from that of a new object. Where reading passes over something
// that others write, the document with it stands beside it as <element>.read.xml.
#include "catalog/catalog.h"
#include "catalog/tool_palette.h"
#include "persistence/element_table.h"
#include "support/golden.h"
#include "support/module_fixture.h"

#include <QDir>

namespace {

using namespace tc;
using testhost::dataFile;
using testhost::dataLines;

OdString text(const char16_t* s) { return OdString::fromUtf16(s); }

/// Holds parts of a catalog, in which the palette {P-1} is loaded.
class CatalogPart : public testhost::PartsRoot {
 public:
  CatalogPart() {
    const OdTcToolPalettePtr palette = OdTcToolPalette::createObject();
    palette->setId(text(u"{P-1}"));
    m_catalog->addItem(palette);
  }
  OdTcCatalog* catalog() const override { return m_catalog; }
  OdString elementName() const override { return text(u"Catalog"); }

 private:
  const OdTcCatalogPtr m_catalog = OdTcCatalog::createObject();
};

OdSmartPtr<testhost::PartsRoot> rootFor(bool isCatalog) {
  if (isCatalog) return odrxMake<CatalogPart>();
  return odrxMake<testhost::PartsRoot>();
}

/// What comes of reading the document and saving it.
QByteArray savedAgain(const QByteArray& document) {
  const bool isCatalog = document.startsWith("<Catalog>");
  const auto root = rootFor(isCatalog);
  const auto in = odrxMake<OdMemoryStream>(document);
  const auto out = odrxMake<OdMemoryStream>();
  const OdTcFilerPtr reader = isCatalog ? makeCatalogFiler() : makePaletteFiler();
  const OdTcFilerPtr writer = isCatalog ? makeCatalogFiler() : makePaletteFiler();
  const bool isRead =
      isCatalog ? reader->openCatalog(in, root, false) : reader->openPalette(in, root, false);
  if (!isRead) return "not read: " + reader->problem().toUtf8();
  if (isCatalog)
    writer->openCatalog(out, root, true);
  else
    writer->openPalette(out, root, true);
  writer->flush();
  return out->bytes();
}

QByteArray elementFile(const OdString& name) {
  return dataFile(text(u"golden/elements/%1.xml").arg(name));
}

struct ElementFilesTest : testhost::ModuleFixture, testing::WithParamInterface<std::string> {};

TEST_P(ElementFilesTest, AreTheSameBytesFromTheFirstSaveOn) {
  const OdString name = OdString::fromStdString(GetParam());
  const QByteArray golden = elementFile(name);
  ASSERT_TRUE(golden.contains("<" + name.toUtf8())) << "no golden file";
  EXPECT_EQ(savedAgain(golden).toStdString(), golden.toStdString());
  const QByteArray foreign = elementFile(name + text(u".read"));
  if (foreign.isEmpty()) return;
  EXPECT_NE(foreign, golden) << "there is nothing to pass over";
  EXPECT_EQ(savedAgain(foreign).toStdString(), golden.toStdString());
}

INSTANTIATE_TEST_SUITE_P(Elements, ElementFilesTest, testing::ValuesIn([] {
                           std::vector<std::string> names;
                           for (const QString& name : dataLines(text(u"entry/elements.txt")))
                             names.push_back(name.toStdString());
                           return names;
                         }()),
                         [](const auto& each) { return each.param; });

struct ElementFolderTest : testhost::ModuleFixture {};

TEST_F(ElementFolderTest, HoldsAFileForEachElementAndNoOther) {
  QStringList wanted = OdTcElementTable::instance().names();
  QStringList found;
  const QStringList files =
      QDir(QStringLiteral(TEST_DATA_DIR "/golden/elements")).entryList(QDir::Files);
  for (const QString& file : files) {
    const QString name = file.section(u'.', 0, 0);
    EXPECT_TRUE(file == name + text(u".xml") || file == name + text(u".read.xml"))
        << file.toStdString();
    if (!found.contains(name)) found << name;
  }
  wanted.sort();
  found.sort();
  EXPECT_EQ(found, wanted);
}

TEST_F(ElementFolderTest, AreReadInAnyOrderOfTheirAttributes) {
  // The parser keeps the order of the file, objects get the attributes by their names.
  const OdString name = text(u"DimstyleTableRecord");
  const QByteArray golden = elementFile(name);
  const qsizetype from = golden.indexOf("<DimstyleTableRecord ") + 21;
  const qsizetype to = golden.indexOf('>', from);
  QList<QByteArray> attributes = golden.mid(from, to - from).split(' ');
  std::reverse(attributes.begin(), attributes.end());
  const QByteArray turned = golden.left(from) + attributes.join(' ') + golden.mid(to);
  ASSERT_NE(turned, golden);
  EXPECT_EQ(savedAgain(turned).toStdString(), golden.toStdString());
}

} // namespace
