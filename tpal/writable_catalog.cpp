#include "tpal/writable_catalog.h"

#include "catalog/database.h"
#include "frame/file_path.h"
#include "frame/system_services.h"

#include <QFileInfo>
#include <QSet>

namespace tpal {
namespace {

void noteLostReferences(const tc::OdTcCatalogItem& group, QSet<OdString>& ids) {
  forEach(group.children(), [&](tc::OdTcCatalogItem* child) {
    const auto* const reference = odrxCast<tc::OdTcPaletteSoftRef>(child);
    if (!reference)
      noteLostReferences(*child, ids);
    else if (!reference->resolve())
      ids << reference->id();
  });
}

OdString whyPalettesAreMissed(const OdString& file, const QHash<OdString, OdString>& missing) {
  QStringList names = missing.values();
  names.sort();
  return QStringLiteral("%1 is not written: the files of these palettes are not there, and writing "
                        "it would take them out of their groups: \"%2\". Bring the files back, or "
                        "give the palettes up with tpal resave DIR --drop-missing")
      .arg(odpath::toPlatform(file), names.join(QLatin1String("\", \"")));
}

} // namespace

QHash<OdString, OdString> missingPalettes(const tc::OdTcCatalog& catalog) {
  QSet<OdString> lost;
  forEach(catalog.groupsEnum(),
          [&](tc::OdTcCatalogItem* group) { noteLostReferences(*group, lost); });
  QHash<OdString, OdString> missing;
  forEach(catalog.loadersEnum(), [&](tc::OdTcCatalogItem* loader) {
    if (lost.contains(loader->id())) missing.insert(loader->id(), loader->name());
  });
  return missing;
}

WritableCatalog::WritableCatalog(const OdString& folder, Writes writes, const Arguments& arguments,
                                 Console& console) {
  const bool mayBeNew = writes == Writes::kCatalogThatMayBeNew;
  const OdString place = QFileInfo(odpath::toPlatform(folder)).absoluteFilePath();
  const bool isHere = writes >= Writes::kPalettes && (mayBeNew || QFileInfo(place).isDir());
  const bool losesMissing = writes != Writes::kNothing && writes != Writes::kPalettes;
  if (isHere && !arguments.dryRun) {
    m_lock.emplace(place, arguments, console);
    if (!m_lock->isHeld()) return;
  }
  load(mayBeNew || writes == Writes::kElsewhere ? place : folder, mayBeNew);
  for (const OdString& message : m_loaded.messages) console.err << "tpal: " << message << "\n";
  if (!m_loaded.isRead) return;
  const auto missing = missingPalettes(*m_loaded.catalog);
  if (losesMissing && !missing.isEmpty() && !arguments.dropMissing) {
    console.err << "tpal: " << whyPalettesAreMissed(m_loaded.file, missing) << "\n";
    return;
  }
  m_isOpen = true;
}

void WritableCatalog::load(const OdString& folder, bool mayBeNew) {
  // What changes while the catalog is being read counts as changed after it. Only palettes that
  // lie elsewhere are first heard of then.
  const OdString stored = catalogFileIn(folder);
  noteWritten(stored);
  const OdString palettes = odpath::folderOf(stored) + QLatin1String("\\Palettes");
  for (const OdString& name : odrxSystemServices()->filesIn(palettes))
    noteWritten(palettes + u'\\' + name);
  m_loaded = mayBeNew ? openOrNewCatalog(folder) : loadCatalog(folder);
  for (const tc::OdTcToolPalette* palette : palettesOf(*m_loaded.catalog))
    if (!m_stamps.contains(palette->getPath())) noteWritten(palette->getPath());
}

OdString WritableCatalog::whyNotWritable(const OdString& file) const {
  const auto known = m_stamps.constFind(file);
  if (known == m_stamps.constEnd() || !known->isChanged(file)) return {};
  return QStringLiteral("another program has written %1 since it was read; start again")
      .arg(odpath::toPlatform(file));
}

void WritableCatalog::noteWritten(const OdString& file) { m_stamps[file].note(file); }

OdString WritableCatalog::save(tc::OdTcToolPalette& palette) {
  const OdString problem = whyNotWritable(palette.getPath());
  if (!problem.isEmpty()) return problem;
  if (!palette.getDatabase()->saveAtOnce()) return palette.getDatabase()->saveProblem();
  noteWritten(palette.getPath());
  return {};
}

} // namespace tpal
