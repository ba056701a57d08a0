#include "catalog/foreign_store.h"

#include "catalog/foreign_folder.h"
#include "catalog/inside_folder.h"
#include "frame/file_path.h"
#include "frame/system_services.h"
#include "host/host_locator.h"
#include "persistence/document_check.h"
#include "persistence/foreign_paths.h"
#include "persistence/path_operations.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

#include <algorithm>
#include <array>
#include <deque>
#include <optional>

namespace tc {
namespace {

/// Roots of files whose entries point to others.
constexpr std::array<QStringView, 2> kCatalogRoots = {u"Catalog", u"Category"};

OdString translated(const char16_t* text) { return host::translate(OdString::fromUtf16(text)); }

OdStreamBufPtr opened(const OdString& file) {
  return odrxSystemServices()->createFile(file, Oda::kFileRead, Oda::kShareDenyNo,
                                          Oda::kOpenExisting);
}

QByteArray readPiece(OdStreamBuf& stream, std::uint64_t most) {
  const std::uint64_t length = std::min(stream.length() - stream.tell(), most);
  QByteArray bytes(static_cast<qsizetype>(length), Qt::Uninitialized);
  stream.getBytes(bytes.data(), static_cast<std::uint32_t>(length));
  return bytes;
}

/// The name of the outermost element, if it stands near the beginning. A palette can be large: to
/// tell it from a catalog its first tag is enough.
OdString rootIn(const QByteArray& beginning) {
  static const QRegularExpression first(
      QStringLiteral("\\A(?:\\x{FEFF}|\\s|<\\?.*?\\?>|<!--.*?-->|<![^>]*>)*<([^\\s/><?!]+)"),
      QRegularExpression::DotMatchesEverythingOption);
  return first.match(OdString::fromUtf8(beginning)).captured(1);
}

/// What a catalog of a store says.
struct Entries {
  QStringList targets;
  struct Palette {
    OdString name;
    QStringList tools; ///< their names; empty ones for those without
  };
  std::vector<Palette> inlinePalettes; ///< those that stand in the catalog itself
  OdString broken;                     ///< where and why it breaks off; empty if it does not
};

/// Reads the text as far as it goes.
class EntriesReader {
 public:
  explicit EntriesReader(const QByteArray& text)
    : m_xml(text) {
    m_xml.setNamespaceProcessing(false);
  }

  Entries read() {
    while (!m_xml.atEnd()) {
      m_xml.readNext();
      if (m_xml.isEndElement()) m_path.removeLast();
      if (!m_xml.isStartElement()) continue;
      m_path << m_xml.qualifiedName().toString();
      visit();
    }
    if (m_xml.hasError())
      m_entries.broken = translated(u"line %1, column %2: %3")
                             .arg(OdString::number(m_xml.lineNumber()),
                                  OdString::number(m_xml.columnNumber()), m_xml.errorString());
    return std::move(m_entries);
  }

 private:
  /// The name of the element that stands `up` levels above the one that begins.
  QStringView outer(qsizetype up) const {
    return up < m_path.size() ? QStringView(m_path[m_path.size() - 1 - up]) : QStringView();
  }

  void visit() {
    const OdString& element = m_path.last();
    std::vector<Entries::Palette>& palettes = m_entries.inlinePalettes;
    if (element == QLatin1String("Url")) {
      m_entries.targets << m_xml.attributes().value(QLatin1String("href")).toString();
    } else if (element == QLatin1String("Palette")) {
      m_name.clear();
    } else if (element == QLatin1String("Tools") && outer(1) == u"Palette") {
      palettes.push_back({m_name, {}});
    } else if (element == QLatin1String("Tool") && outer(1) == u"Tools" && outer(2) == u"Palette") {
      palettes.back().tools << OdString();
    } else if (element == QLatin1String("ItemName")) {
      const bool isTool = outer(1) == u"Properties" && outer(2) == u"Tool" &&
                          outer(3) == u"Tools" && outer(4) == u"Palette";
      const OdString name = m_xml.readElementText(QXmlStreamReader::IncludeChildElements);
      (isTool ? palettes.back().tools.last() : m_name) = name;
      m_path.removeLast();
    }
  }

  QXmlStreamReader m_xml;
  QStringList m_path;
  OdString m_name; ///< the last one that was none of a tool
  Entries m_entries;
};

Entries entriesIn(const QByteArray& text) { return EntriesReader(text).read(); }

/// What the catalog in a file says; nothing if the file is no catalog.
std::optional<Entries> readEntries(const OdString& file) {
  constexpr std::uint64_t kBeginning = std::uint64_t{1} << 16;
  const OdStreamBufPtr stream = opened(file);
  const QByteArray beginning = readPiece(*stream, kBeginning);
  if (!isForeignCatalog(rootIn(beginning))) return std::nullopt;
  if (stream->length() > static_cast<std::uint64_t>(kMaxDocumentBytes)) {
    Entries none;
    none.broken = translated(u"the file is too large");
    return none;
  }
  const QByteArray bytes = beginning + readPiece(*stream, stream->length());
  // Read as palettes are: what is mended there is mended here.
  const OdTcCheckedDocument checked = checkDocument(bytes);
  if (checked.refusal.isEmpty()) return entriesIn(checked.text);
  Entries entries = entriesIn(bytes);
  entries.broken = checked.refusal;
  return entries;
}

/// The files of a folder and of those in it, in a stable order. Links are not followed to other
/// folders.
QStringList filesBelow(const OdString& folder) {
  QStringList files;
  QDirIterator each(odpath::toPlatform(folder), {QStringLiteral("*.xtp"), QStringLiteral("*.atc")},
                    QDir::Files, QDirIterator::Subdirectories);
  while (each.hasNext()) files << odpath::fromPlatform(each.next());
  files.sort();
  return files;
}

class Walk {
 public:
  Walk(const OdString& home, OdTcForeignPalettes& found)
    : m_home(home)
    , m_folder(home)
    , m_found(found) {}

  void run(const OdString& first) {
    m_waiting.push_back(first);
    while (!m_waiting.empty()) {
      const OdString file = m_waiting.front();
      m_waiting.pop_front();
      if (m_met.contains(file)) continue;
      m_met.insert(file);
      visit(file);
    }
  }

 private:
  void visit(const OdString& file) {
    if (!odrxSystemServices()->fileExists(file))
      return m_found.add({file, translated(u"there is no such file")});
    std::optional<Entries> entries;
    try {
      entries = readEntries(file);
    } catch (const OdFileError& error) {
      return m_found.add({file, error.reason()});
    }
    if (entries)
      followAll(file, *entries);
    else if (!m_found.files.contains(file))
      m_found.files << file;
  }

  void followAll(const OdString& file, const Entries& entries) {
    if (!entries.broken.isEmpty())
      m_found.add(
          {file, translated(u"the catalog is only read as far as this: %1").arg(entries.broken)});
    for (const Entries::Palette& palette : entries.inlinePalettes)
      m_found.add({file,
                   translated(u"the palette \"%1\" stands in the catalog itself, and is not taken")
                       .arg(palette.name),
                   palette.name, palette.tools});
    if (entries.targets.isEmpty()) m_found.add({file, translated(u"it points to no palettes")});
    for (const OdString& entry : entries.targets) follow(file, entry);
  }

  void follow(const OdString& catalog, const OdString& entry) {
    if (entry.isEmpty()) return refuse(catalog, entry, translated(u"it names no file"));
    const OdString target = expandedStoredPath(odpath::fromPlatform(entry));
    if (const OdString why = whyNotLookedFor(target); !why.isEmpty())
      return refuse(catalog, entry, why);
    OdString path = odpath::isRelative(target) ? combinePath(target, catalog) : target;
    normalizePath(path);
    OdString inside;
    const bool isInside = isInsideFolder(path, m_home) && makeRelativePath(path, m_home, inside);
    const ForeignFolder::Found found = isInside ? m_folder.find(inside) : ForeignFolder::Found{};
    if (!isInside || found.isRefused)
      return refuse(catalog, entry, translated(u"it leads out of the store's folder"));
    m_waiting.push_back(found.path.isEmpty() ? path : found.path);
  }

  void refuse(const OdString& catalog, const OdString& entry, const OdString& why) {
    m_found.add({catalog, translated(u"the entry %1 is not followed: %2").arg(entry, why)});
  }

  const OdString m_home;
  ForeignFolder m_folder;
  OdTcForeignPalettes& m_found;
  std::deque<OdString> m_waiting;
  QSet<OdString> m_met;
};

} // namespace

bool isForeignCatalog(QStringView root) {
  return std::find(kCatalogRoots.begin(), kCatalogRoots.end(), root) != kCatalogRoots.end();
}

OdString OdTcForeignPalettes::Problem::inWords() const {
  return QStringLiteral("%1: %2").arg(file, text);
}

void OdTcForeignPalettes::add(const Problem& problem) {
  for (const Problem& known : problems)
    if (known.file == problem.file && known.text == problem.text) return;
  problems.push_back(problem);
}

void findForeignPalettes(const OdString& path, OdTcForeignPalettes& found) {
  const OdString first = odpath::fromPlatform(path);
  if (!odrxSystemServices()->folderExists(first))
    return Walk(odpath::folderOf(first), found).run(first);
  const QStringList files = filesBelow(first);
  if (files.isEmpty()) found.add({first, translated(u"there are no palettes in the folder")});
  Walk walk(first, found);
  for (const OdString& file : files) walk.run(file);
}

} // namespace tc
