#include "catalog/foreign_store.h"

#include "persistence/foreign_paths.h"
#include "catalog/inside_folder.h"
#include "frame/file_path.h"
#include "frame/system_services.h"
#include "host/host_locator.h"
#include "persistence/path_operations.h"

#include <QSet>
#include <QXmlStreamReader>

#include <algorithm>
#include <array>
#include <deque>

namespace tc {
namespace {

/// Roots of files whose entries point to others.
constexpr std::array<QStringView, 2> kCatalogRoots = {u"Catalog", u"Category"};

OdString translated(const char16_t* text) { return host::translate(OdString::fromUtf16(text)); }

/// Hands a file to the XML reader piece by piece: to tell a catalog from a palette its first tag is
/// enough.
class Pieces {
 public:
  explicit Pieces(const OdString& file)
    : m_stream(odrxSystemServices()->createFile(file, Oda::kFileRead, Oda::kShareDenyNo,
                                                Oda::kOpenExisting)) {}
  /// False at the end.
  bool feed(QXmlStreamReader& xml) {
    const std::uint64_t left = m_stream->length() - m_stream->tell();
    if (left == 0) return false;
    QByteArray piece(static_cast<qsizetype>(std::min<std::uint64_t>(left, kPiece)),
                     Qt::Uninitialized);
    m_stream->getBytes(piece.data(), static_cast<std::uint32_t>(piece.size()));
    xml.addData(piece);
    return true;
  }

 private:
  static constexpr std::uint64_t kPiece = std::uint64_t{1} << 16;
  OdStreamBufPtr m_stream;
};

/// The next token; more of the file is read as it is needed.
bool readNext(QXmlStreamReader& xml, Pieces& pieces) {
  for (;;) {
    if (!xml.atEnd()) xml.readNext();
    if (xml.error() == QXmlStreamReader::PrematureEndOfDocumentError) {
      if (!pieces.feed(xml)) return false;
      continue;
    }
    return !xml.hasError() && !xml.atEnd();
  }
}

/// The paths in a catalog's entries; false if the file is no catalog.
bool readEntries(const OdString& file, QStringList& entries) {
  Pieces pieces(file);
  QXmlStreamReader xml;
  while (readNext(xml, pieces) && !xml.isStartElement()) {
  }
  if (!xml.isStartElement() || !isForeignCatalog(xml.name())) return false;
  while (readNext(xml, pieces))
    if (xml.isStartElement() && xml.name() == QLatin1String("Url"))
      entries << xml.attributes().value(QLatin1String("href")).toString();
  return true;
}

class Walk {
 public:
  Walk(const OdString& first, OdTcForeignPalettes& found)
    : m_home(odpath::folderOf(first))
    , m_found(found) {
    m_waiting.push_back(first);
  }

  void run() {
    while (!m_waiting.empty()) {
      const OdString file = m_waiting.front();
      m_waiting.pop_front();
      if (!m_met.contains(file)) visit(file);
    }
  }

 private:
  void problem(const OdString& text) { m_found.problems << text; }

  void visit(const OdString& file) {
    m_met.insert(file);
    if (!odrxSystemServices()->fileExists(file))
      return problem(translated(u"%1: there is no such file").arg(file));
    QStringList entries;
    try {
      if (!readEntries(file, entries)) {
        if (!m_found.files.contains(file)) m_found.files << file;
        return;
      }
    } catch (const OdFileError& error) {
      return problem(error.description());
    }
    for (const OdString& entry : entries) follow(file, entry);
  }

  void follow(const OdString& catalog, const OdString& entry) {
    if (entry.isEmpty()) return;
    const OdString target = expandedStoredPath(odpath::fromPlatform(entry));
    OdString why = whyNotLookedFor(target);
    OdString path = odpath::isRelative(target) ? combinePath(target, catalog) : target;
    normalizePath(path);
    if (why.isEmpty() && !isInsideFolder(path, m_home))
      why = translated(u"it leads out of the store's folder");
    if (!why.isEmpty())
      return problem(translated(u"%1: the entry %2 is not followed: %3").arg(catalog, entry, why));
    m_waiting.push_back(path);
  }

  const OdString m_home;
  OdTcForeignPalettes& m_found;
  std::deque<OdString> m_waiting;
  QSet<OdString> m_met;
};

} // namespace

bool isForeignCatalog(QStringView root) {
  return std::find(kCatalogRoots.begin(), kCatalogRoots.end(), root) != kCatalogRoots.end();
}

void findForeignPalettes(const OdString& file, OdTcForeignPalettes& found) {
  Walk(odpath::fromPlatform(file), found).run();
}

} // namespace tc
