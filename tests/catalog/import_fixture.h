// Palettes of other programs, beside a catalog that may take them.
#pragma once

#include "catalog/catalog_fixture.h"
#include "catalog/foreign_store.h"
#include "images/image_list.h"
#include "support/data_file.h"

#include <QBuffer>
#include <QDirIterator>
#include <QImage>
#include <QRegularExpression>

namespace testhost {

class ImportFixture : public CatalogFixture {
 protected:
  ImportFixture() {
    writeFile(u"c\\DrfTcCatalog.dtc"_s, catalogXml({}));
    m_catalog = load(stored(u"c\\DrfTcCatalog.dtc"_s));
    theHost().log.clear();
  }

  OdTcCatalog& catalog() const { return *m_catalog; }

  /// Copies a file of tests/data/xtp, and the folder that is called like it, to `in`.
  OdString given(const QString& title) const {
    const QDir data(QStringLiteral(TEST_DATA_DIR "/xtp"));
    copyTree(data.filePath(title), u"in/"_s + title);
    writeFile(u"in/"_s + title + u".xtp"_s, dataFile(QStringLiteral("xtp/%1.xtp").arg(title)));
    return stored(u"in\\"_s + title + u".xtp"_s);
  }
  void copyTree(const QString& from, const OdString& to) const {
    QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
      QFile file(files.next());
      ASSERT_TRUE(file.open(QIODevice::ReadOnly));
      writeFile(to + u'/' + QDir(from).relativeFilePath(file.fileName()), file.readAll());
    }
  }
  /// Writes a palette of these tools in its envelope, and gives its path.
  OdString exported(const QByteArray& tools, const QByteArray& name = "p",
                    const QByteArray& folder = "<DependentFilesPath>p</DependentFilesPath>",
                    const QByteArray& order = {}) const {
    const OdString file = u"in\\"_s + OdString::fromUtf8(name) + u".xtp"_s;
    writeFile(file, "<ToolPaletteExport>" + folder +
                        "<PaletteSets><PaletteSetData><PaletteSetContent><Palettes><PaletteData>"
                        "<PaletteContent><Palette Revision=\"25.1.1\" option=\"0\"><ItemID "
                        "idValue=\"{P}\"/><Properties><ItemName>Own name</ItemName></Properties>"
                        "<Tools>" +
                        tools +
                        "</Tools></Palette></PaletteContent><PaletteUI><CAdUiPalette "
                        "PaletteStyle=\"1\"/><CAcTcUiToolPalette><CatalogView><ToolOrder>" +
                        order +
                        "</ToolOrder></CatalogView></CAcTcUiToolPalette></PaletteUI></PaletteData>"
                        "</Palettes></PaletteSetContent><PaletteSetUI/></PaletteSetData>"
                        "</PaletteSets></ToolPaletteExport>\r\n");
    return stored(file);
  }
  static QByteArray toolXml(const QByteArray& id, const QByteArray& data,
                            const QByteArray& type = "1", const QByteArray& images = {}) {
    return "<Tool><ItemID idValue=\"{" + id + "}\"/><Properties><ItemName>" + id +
           "</ItemName><Images option=\"0\">" + images + "</Images></Properties><ToolType>" + type +
           "</ToolType><StockToolRef/><Data>" + data + "</Data></Tool>";
  }
  static QByteArray commandXml(const QByteArray& id, const QByteArray& images = {}) {
    return toolXml(id, "<Command Macro=\"_" + id + "\"/>", "1", images);
  }
  static QByteArray imageXml(const QByteArray& src,
                             const QByteArray& more = "cx=\"64\" cy=\"64\"") {
    return "<Image " + more + " src=\"" + src + "\"/>";
  }
  /// A picture that can be decoded, of one colour.
  static QByteArray png(int pixels = 64, QRgb color = 0xFFC83C32) {
    QImage image(pixels, pixels, QImage::Format_ARGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
  }

  OdTcToolPalettePtr import(const OdString& path, const OdTcImportOptions& options = {}) {
    return m_catalog->importPalette(path, options, report);
  }
  static std::vector<OdTcTool*> toolsOf(const OdTcToolPalette& palette) {
    std::vector<OdTcTool*> tools;
    const OdTcEnumPtr<OdTcTool> all = palette.enumTools();
    while (OdTcTool* const tool = all->next()) tools.push_back(tool);
    return tools;
  }
  OdTcImportedTool row(const OdString& name) const {
    for (const OdTcImportedTool& tool : report.tools)
      if (tool.name == name) return tool;
    ADD_FAILURE() << "no row of " << text(name);
    return {};
  }
  /// Every file below the test's folder with its bytes.
  QMap<OdString, QByteArray> allFiles() const {
    QMap<OdString, QByteArray> bytes;
    QDirIterator files(platform({}), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
      QFile file(files.next());
      EXPECT_TRUE(file.open(QIODevice::ReadOnly));
      bytes[QDir(platform({})).relativeFilePath(file.fileName())] = file.readAll();
    }
    return bytes;
  }
  static OdString problemsOf(const OdTcForeignPalettes& found) {
    QStringList words;
    for (const OdTcForeignPalettes::Problem& problem : found.problems) words << problem.inWords();
    return words.join(u'\n');
  }
  /// How often a text stands in what was printed.
  static qsizetype printedTimes(const OdString& what) {
    return theHost().messages.printed.join(u'\n').count(what);
  }
  /// The same with each id replaced by its number of appearance, times by a word, and folders of
  /// this machine by their names.
  QByteArray withoutChance(const QByteArray& bytes) const {
    OdString all = OdString::fromUtf8(bytes);
    static const QRegularExpression ids(
        QStringLiteral("\\{?[0-9A-Fa-f]{8}(-[0-9A-Fa-f]{4}){3}-[0-9A-Fa-f]{12}\\}?"));
    static const QRegularExpression times(QStringLiteral("\\d{4}-\\d\\d-\\d\\dT[^\"]*"));
    QStringList known;
    OdString result;
    qsizetype from = 0;
    for (auto at = ids.globalMatch(all); at.hasNext();) {
      const auto match = at.next();
      if (!known.contains(match.captured())) known << match.captured();
      result += QStringView(all).mid(from, match.capturedStart() - from);
      result += u"{id %1}"_s.arg(known.indexOf(match.captured()) + 1);
      from = match.capturedEnd();
    }
    result += QStringView(all).mid(from);
    result.replace(times, u"(time)"_s);
    // In JSON each separator stands twice.
    for (const auto& [path, word] :
         {std::pair(stored({}).chopped(1), u"(folder)"_s),
          std::pair(odrxSystemServices()->userProfileFolder(), u"(home)"_s)}) {
      OdString doubled = path;
      doubled.replace(u"\\"_s, u"\\\\"_s);
      result.replace(doubled, word);
      result.replace(path, word);
    }
    return result.toUtf8();
  }

  OdTcImportReport report;

 private:
  OdTcCatalogPtr m_catalog;
};

} // namespace testhost
