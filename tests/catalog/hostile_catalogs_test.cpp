// Catalogs and palettes that break every measure, as files: the reason is told on the command line
// with the file's name, and the file stays as it was.
#include "catalog/catalog_fixture.h"
#include "frame/file_path.h"

namespace {

using namespace testhost;

struct Hostile {
  const char* name;
  QByteArray bytes;
  const char16_t* reason;
};

QByteArray nested(const QByteArray& open, const QByteArray& close, int depth) {
  return open.repeated(depth) + close.repeated(depth);
}

QByteArray manyAttributes(const QByteArray& element) {
  QByteArray bytes = "<" + element;
  for (int i = 0; i < 100000; ++i) bytes += " a" + QByteArray::number(i) + "=\"1\"";
  return bytes + "/>";
}

/// What breaks a measure, as the content of a root element of that name.
Hostile hostile(int number, const QByteArray& root) {
  const QByteArray open = "<" + root + ">", close = "</" + root + ">";
  const char16_t* const deep = u"elements are nested more than 256 deep";
  switch (number) {
  case 0:
    return {"levels", open + nested("<a>", "</a>", 100000) + close, deep};
  case 1:
    return {"levels that never end", open + QByteArray("<a>").repeated(100000), deep};
  case 2:
    return {"attributes", open + manyAttributes("Tools") + close,
            u"the element \"Tools\" has more than 512 attributes"};
  case 3:
    return {"attributes of the root", manyAttributes(root), u"more than 512 attributes"};
  case 4:
    return {"groups",
            open + "<Groups>" +
                nested("<ToolPaletteGroup><Contents>", "</Contents></ToolPaletteGroup>", 10000) +
                "</Groups>" + close,
            deep};
  default:
    return {"tools in tools",
            open + "<Tools>" + nested("<Tool><Tools>", "</Tools></Tool>", 10000) + "</Tools>" +
                close,
            deep};
  }
}
constexpr int kHostileFiles = 6;

struct HostileCatalogTest : CatalogFixture, testing::WithParamInterface<int> {};

TEST_P(HostileCatalogTest, IsRefusedWithTheReasonAndLeftAlone) {
  const Hostile file = hostile(GetParam(), "Catalog");
  const OdString path = stored(u"c\\DrfTcCatalog.dtc"_s);
  writeFile(u"c\\DrfTcCatalog.dtc"_s, file.bytes);
  const OdTcCatalogPtr catalog = OdTcCatalog::createObject();
  EXPECT_FALSE(catalog->load(path)) << file.name;
  EXPECT_TRUE(wasTold({path, OdString::fromUtf16(file.reason)}))
      << file.name << ": " << text(theHost().log.join(u'\n').left(1000));
  EXPECT_TRUE(catalog->isUnread());
  EXPECT_EQ(catalog->groups()->count(), 0);
  EXPECT_EQ(readFile(u"c\\DrfTcCatalog.dtc"_s), file.bytes) << file.name;
}

TEST_P(HostileCatalogTest, IsRefusedAsAPaletteAndHarmsNoOther) {
  const Hostile file = hostile(GetParam(), "Palette");
  writeTwoPalettes(u"c"_s);
  writeFile(u"c\\Palettes\\a.dtc"_s, file.bytes);
  const OdTcCatalogPtr catalog = load(stored(u"c\\DrfTcCatalog.dtc"_s));
  EXPECT_TRUE(wasTold({stored(u"c\\Palettes\\a.dtc"_s), OdString::fromUtf16(file.reason)}))
      << file.name << ": " << text(theHost().log.join(u'\n').left(1000));
  EXPECT_EQ(namesOf(catalog->palettesEnum()), QStringList({u"A"_s, u"Beta"_s})) << file.name;
  EXPECT_TRUE(catalog->findPalette(u"A"_s)->getDatabase()->isUnread());
  EXPECT_TRUE(catalog->save());
  EXPECT_EQ(readFile(u"c\\Palettes\\a.dtc"_s), file.bytes) << file.name;
}

INSTANTIATE_TEST_SUITE_P(Files, HostileCatalogTest, testing::Range(0, kHostileFiles));

struct CutFilesTest : CatalogFixture {};

TEST_F(CutFilesTest, APaletteCutAtAnyByteIsReadWholeOrToldAndLeftAlone) {
  const QByteArray bytes =
      paletteXml(
          "P",
          "K\xC3\xBC"
          "che &amp; Bad",
          "<Tools><Tool option='3'><ItemID idValue=\"T\"/><!-- c --><ToolType>1</ToolType><Data>"
          "<Command Macro=\"^C^C_LINE &#x41;\"/></Data></Tool><Tool/></Tools>") +
      "\n";
  const OdString path = stored(u"cut.dtc"_s);
  for (qsizetype length = 0; length <= bytes.size(); ++length) {
    writeFile(u"cut.dtc"_s, bytes.left(length));
    theHost().log.clear();
    const OdTcToolPalettePtr cut = OdTcToolPalette::createObject();
    const bool isRead = cut->load(path);
    // Nothing but the line break at the end may be missing.
    const bool isWhole = length + 1 >= bytes.size();
    ASSERT_EQ(isRead, isWhole) << length;
    ASSERT_EQ(cut->getDatabase()->isUnread(), !isWhole) << length;
    ASSERT_EQ(wasTold({path}), !isWhole) << length;
    ASSERT_EQ(cut->getDatabase()->tools()->count(), isWhole ? 2 : 0) << length;
    ASSERT_EQ(readFile(u"cut.dtc"_s), bytes.left(length));
  }
}

struct LenientReadingTest : CatalogFixture {
  QStringList kept() const {
    return QDir(platform(u"user/ToolPalette/Unread"_s)).entryList(QDir::Files, QDir::Name);
  }
};

TEST_F(LenientReadingTest, Latin1BytesAreReadWithARemarkAndKeptBeforeASave) {
  const QByteArray catalogBytes = "<Catalog><ItemID idValue=\"C\"/><Properties><ItemName>K\xFC"
                                  "chen</ItemName></Properties><Palettes>" +
                                  loaderXml("A", "Palettes\\a.dtc") + "</Palettes></Catalog>";
  const QByteArray paletteBytes = paletteXml("A", "T\xFCren");
  writeFile(u"c\\DrfTcCatalog.dtc"_s, catalogBytes);
  writeFile(u"c\\Palettes\\a.dtc"_s, paletteBytes);
  const OdString path = stored(u"c\\DrfTcCatalog.dtc"_s);
  const OdString palettePath = stored(u"c\\Palettes\\a.dtc"_s);

  const OdTcPaletteManagerPtr manager = OdTcPaletteManager::instance();
  ASSERT_TRUE(manager->openCatalog(path));
  OdString key;
  OdTcCatalog* catalog = nullptr;
  ASSERT_TRUE(manager->catalogsEnum()->next(key, catalog));
  EXPECT_TRUE(wasTold({path, u"no UTF-8"_s}));
  EXPECT_TRUE(wasTold({palettePath, u"no UTF-8"_s}));
  EXPECT_EQ(catalog->name(), u"K\uFFFDchen"_s);
  EXPECT_TRUE(catalog->isUnread());
  OdTcToolPalette* const palette = catalog->findPalette(u"A"_s);
  ASSERT_TRUE(palette);
  EXPECT_EQ(palette->name(), u"T\uFFFDren"_s);
  EXPECT_TRUE(palette->getDatabase()->isUnread());

  EXPECT_TRUE(palette->addItem(tool(u"T"_s)));
  EXPECT_TRUE(wasTold({palettePath, u"left as it is"_s}));
  EXPECT_EQ(readFile(u"c\\Palettes\\a.dtc"_s), paletteBytes);
  EXPECT_EQ(readFile(u"c\\DrfTcCatalog.dtc"_s), catalogBytes);

  EXPECT_TRUE(palette->save());
  manager->saveAll();
  EXPECT_EQ(kept(), QStringList({u"DrfTcCatalog.dtc"_s, u"a.dtc"_s}));
  EXPECT_EQ(readFile(u"user\\ToolPalette\\Unread\\DrfTcCatalog.dtc"_s), catalogBytes);
  EXPECT_EQ(readFile(u"user\\ToolPalette\\Unread\\a.dtc"_s), paletteBytes);
  EXPECT_TRUE(readFile(u"c\\Palettes\\a.dtc"_s).contains("T\xEF\xBF\xBDren"));
}

TEST_F(LenientReadingTest, NamesOfTenThousandLettersAreReadAndSaved) {
  const QByteArray name(10000, 'n');
  writeFile(u"c\\Palettes\\a.dtc"_s, paletteXml("A", name));
  writeFile(
      u"c\\DrfTcCatalog.dtc"_s,
      "<Catalog><Properties><ItemName>" + name + "</ItemName></Properties><Palettes>" +
          loaderXml("A", "Palettes\\a.dtc") + "</Palettes><Groups>" +
          groupXml("G", "<ToolPalette ID=\"A\"/>").replace("<ItemName>G", "<ItemName>" + name) +
          "</Groups></Catalog>");
  const OdString path = stored(u"c\\DrfTcCatalog.dtc"_s);
  for (int i = 0; i < 2; ++i) {
    const OdTcCatalogPtr catalog = load(path);
    const OdString wanted = QString::fromLatin1(name);
    EXPECT_EQ(catalog->name(), wanted);
    EXPECT_EQ(catalog->groups()->at(0)->name(), wanted);
    ASSERT_TRUE(catalog->findPalette(u"A"_s));
    EXPECT_EQ(catalog->findPalette(u"A"_s)->name(), wanted);
    EXPECT_TRUE(catalog->save());
    EXPECT_TRUE(catalog->findPalette(u"A"_s)->save());
  }
}

TEST_F(LenientReadingTest, ANewPaletteOfTenThousandLettersIsSavedAndKeepsItsName) {
  QDir().mkpath(platform(u"c"_s));
  const OdTcCatalogPtr catalog = OdTcCatalog::createObject();
  ASSERT_TRUE(catalog->save(stored(u"c\\DrfTcCatalog.dtc"_s)));
  const OdTcToolPalettePtr added = palette(OdString(10000, u'n'));
  EXPECT_TRUE(catalog->addItem(added));
  EXPECT_TRUE(added->addItem(tool(u"T"_s)));
  EXPECT_TRUE(added->save()) << "its file has the beginning of its name";
  EXPECT_TRUE(catalog->save());
  const OdTcCatalogPtr again = load(stored(u"c\\DrfTcCatalog.dtc"_s));
  const OdTcToolPalettePtr read(again->findPalette(added->id()));
  ASSERT_TRUE(read);
  EXPECT_EQ(read->name().size(), 10000);
  EXPECT_TRUE(read->enumTools()->next());
}

} // namespace
