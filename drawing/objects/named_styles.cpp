#include "drawing/objects/named_styles.h"

namespace {

// In the order of NamedKind.
constexpr const char* kNames[] = {"ACAD_GROUP",        "ACAD_LAYOUT",        "ACAD_IMAGE_DICT",
                                  "ACAD_MATERIAL",     "ACAD_MLINESTYLE",    "ACAD_MLEADERSTYLE",
                                  "ACAD_PLOTSETTINGS", "ACAD_PLOTSTYLENAME", "ACAD_TABLESTYLE",
                                  "ACAD_VISUALSTYLE",  "ACAD_SCALELIST"};

OdDbDictionaryPtr dictionaryOf(OdDbObjectId id, OdDb::OpenMode mode = OdDb::kForRead) {
  const OdDbObjectPtr object = id.openObject(mode);
  return OdDbDictionaryPtr(odrxCast<OdDbDictionary>(object.get()));
}

} // namespace

OdString oddb::namedDictionaryName(NamedKind kind) {
  return QLatin1String(kNames[static_cast<std::size_t>(kind)]);
}

OdDbObjectId oddb::namedDictionary(const OdDbDatabase& database, NamedKind kind) {
  const OdDbDictionaryPtr root = dictionaryOf(database.getNamedObjectsDictionaryId());
  const OdDbObjectId found = root ? root->getAt(namedDictionaryName(kind)) : OdDbObjectId();
  return dictionaryOf(found) ? found : OdDbObjectId();
}

OdDbObjectId oddb::createNamedDictionary(OdDbDatabase& database, NamedKind kind) {
  if (const OdDbObjectId found = namedDictionary(database, kind); !found.isNull()) return found;
  const OdDbDictionaryPtr root =
      database.getNamedObjectsDictionaryId().safeOpenObject(OdDb::kForWrite);
  return root->setAt(namedDictionaryName(kind), odrxMake<OdDbDictionary>());
}

QStringList oddb::namesOf(const OdDbDatabase& database, NamedKind kind) {
  QStringList names;
  if (const OdDbDictionaryPtr dictionary = dictionaryOf(namedDictionary(database, kind)))
    for (const OdDbDictionary::Entry& entry : dictionary->entries())
      if (entry.id.isValid()) names << entry.name;
  return names;
}

OdDbObjectId oddb::findNamed(const OdDbDatabase& database, NamedKind kind, const OdString& name) {
  if (const OdDbDictionaryPtr dictionary = dictionaryOf(namedDictionary(database, kind)))
    for (const OdDbDictionary::Entry& entry : dictionary->entries())
      if (entry.id.isValid() && entry.name.compare(name, Qt::CaseInsensitive) == 0) return entry.id;
  return {};
}

OdString oddb::nameOf(OdDbObjectId object) {
  const OdDbObjectPtr opened = object.openObject();
  const OdDbDictionaryPtr owner = opened ? dictionaryOf(opened->ownerId()) : nullptr;
  return owner ? owner->nameAt(object) : OdString();
}
