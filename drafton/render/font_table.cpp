#include "drafton/render/font_table.h"

#include <QFile>
#include <QFileInfo>

// The library is linked into programs, where nothing else would bring its resources along. Qt wants
// this outside of namespaces.
static void bringResources() { Q_INIT_RESOURCE(render); }

namespace drafton {
namespace {

const OdString kAnyShape = QStringLiteral("*.shx");
const OdString kAny = QStringLiteral("*");
/// What a font name without an extension means.
const OdString kShapeExtension = QStringLiteral(".shx");

bool isSame(const OdString& a, const OdString& b) { return a.compare(b, Qt::CaseInsensitive) == 0; }

/// The bare name of a font's file, which drawings give with all kinds of folders.
OdString bareName(const OdString& file) {
  OdString name = file.trimmed();
  name = name.mid(std::max(name.lastIndexOf(u'\\'), name.lastIndexOf(u'/')) + 1);
  if (!name.isEmpty() && !name.contains(u'.')) name += kShapeExtension;
  return name;
}

} // namespace

const FontTable& FontTable::standard() {
  static const FontTable table = [] {
    bringResources();
    QFile file(QStringLiteral(":/drafton/fonts.fmp"));
    if (!file.open(QIODevice::ReadOnly)) return FontTable();
    return parse(file.readAll());
  }();
  return table;
}

FontTable FontTable::parse(const QByteArray& text) {
  FontTable table;
  for (const QByteArray& bytes : text.split('\n')) {
    const OdString line = OdString::fromUtf8(bytes).trimmed();
    if (line.startsWith(u';')) continue;
    const QStringList fields = line.split(u';');
    if (fields.size() < 2 || fields[0].trimmed().isEmpty() || fields[1].trimmed().isEmpty())
      continue;
    Row row{.name = fields[0].trimmed(), .family = fields[1].trimmed()};
    if (fields.size() > 2) {
      row.bold = fields[2].contains(QLatin1String("bold"), Qt::CaseInsensitive);
      row.italic = fields[2].contains(QLatin1String("italic"), Qt::CaseInsensitive);
    }
    table.m_rows.push_back(row);
  }
  return table;
}

const FontTable::Row* FontTable::find(const OdString& name) const {
  const bool isShape = name.endsWith(kShapeExtension, Qt::CaseInsensitive);
  for (const Row& row : m_rows)
    if (isSame(row.name, name) || (isShape && row.name == kAnyShape) || row.name == kAny)
      return &row;
  return nullptr;
}

QFont FontTable::fontFor(const OdGiFont& font, const QStringList& families) const {
  const OdString name = font.typeface.isEmpty() ? bareName(font.file) : font.typeface;
  QFont result;
  result.setBold(font.bold);
  result.setItalic(font.italic);
  OdString family = name;
  if (!families.contains(name, Qt::CaseInsensitive)) {
    // A file may be named after its family.
    const OdString title = font.typeface.isEmpty() ? QFileInfo(name).completeBaseName() : name;
    const bool isInstalled = !title.isEmpty() && families.contains(title, Qt::CaseInsensitive) &&
                             !name.endsWith(kShapeExtension, Qt::CaseInsensitive);
    if (isInstalled) {
      family = title;
    } else if (const Row* const row = find(name.isEmpty() ? QStringLiteral("txt.shx") : name)) {
      family = row->family;
      result.setBold(font.bold || row->bold);
      result.setItalic(font.italic || row->italic);
    }
  }
  // A family that is not installed either leaves the choice to the system; the last row's font is
  // one that every installation of the program has.
  QStringList wanted{family};
  if (const Row* const last = find(kAny)) wanted << last->family;
  result.setFamilies(wanted);
  return result;
}

} // namespace drafton
