#include "drawing/database_data.h"

OdDbStub& OdDbDatabaseData::stubFor(OdDbHandle handle) {
  std::uint32_t number = byHandle.find(handle);
  if (number == OdDbHandleTable::kNone) {
    number = stubs.add(handle);
    byHandle.insert(handle, number);
  }
  return stubs[number];
}

void OdDbDatabaseData::noteChange(OdDbStub& stub) {
  modified = true;
  if (stub.object->m_changePending || reactors.empty()) return;
  stub.object->m_changePending = true;
  changed.push_back(&stub);
}

OdDbDatabase::OdDbDatabase()
  : m_data(std::make_unique<OdDbDatabaseData>(*this)) {
  m_data->vars.resize(oddbHeaderVars().size());
  m_data->varPresent.resize(oddbHeaderVars().size());
}

OdDbDatabase::~OdDbDatabase() {
  m_data->tell([&](OdDbDatabaseReactor& r) { r.goodbye(*this); });
  m_data->undo.clear();
  // Whoever still holds an object keeps it, but it belongs to no drawing any more.
  for (std::uint32_t i = 0; i < m_data->stubs.size(); ++i) {
    OdDbStub& stub = m_data->stubs[i];
    if (!stub.object) continue;
    stub.object->m_stub = nullptr;
    stub.object->m_owner = {};
    stub.object = nullptr;
  }
}

OdDbObjectId OdDbDatabase::addObject(OdDbObject* object, OdDbObjectId owner, OdDbHandle handle) {
  if (object->m_stub)
    throw OdDbError(eAlreadyInDatabase,
                    QStringLiteral("%1 %2 is in a drawing already")
                        .arg(QLatin1String(object->dxfName()), object->handle().ascii()));
  OdDbDatabaseData& d = *m_data;
  d.undo.willAppend();
  const bool isNew = handle.isNull();
  if (isNew) {
    // References to nothing may stand under handles that the file never gave out.
    while (d.byHandle.find(d.handseed) != OdDbHandleTable::kNone) ++d.handseed;
    handle = d.handseed++;
  } else if (handle >= d.handseed) {
    d.handseed = handle + 1;
  }
  OdDbStub& stub = d.stubFor(handle);
  stub.object = object;
  object->m_writeEnabled = true;
  object->m_stub = &stub;
  object->m_owner = owner;
  const OdDbObjectId id(&stub);
  const OdDbObject* const container = owner.stub() ? owner.stub()->object.get() : nullptr;
  auto* const block = odrxCast<OdDbBlockTableRecord>(container);
  if (block && odrxCast<OdDbEntity>(object)) {
    // The bounds of a block come to its drawing before or after its entities, outside of the list;
    // a block may own other things beside, such as its extension dictionary.
    if (std::string_view(object->dxfName()) != "BLOCK" &&
        std::string_view(object->dxfName()) != "ENDBLK")
      block->m_entities.push_back(id);
  } else if (auto* const table = odrxCast<OdDbSymbolTable>(container);
             table && odrxCast<OdDbSymbolTableRecord>(object)) {
    // Tables own extension dictionaries as well, which hold the filters of layers and the like.
    table->attach(id);
  } else if (!odrxCast<OdDbEntity>(object) && !odrxCast<OdDbSymbolTable>(object)) {
    d.objects.push_back(id);
  }
  d.modified = true;
  d.undo.appended(stub);
  if (isNew) object->enteredDatabase();
  d.tell([&](OdDbDatabaseReactor& r) { r.objectAppended(*this, id); });
  return id;
}

const OdString& OdDbDatabase::fileName() const { return m_data->fileName; }
void OdDbDatabase::setFileName(const OdString& path) { m_data->fileName = path; }
const QStringList& OdDbDatabase::unknownContent() const { return m_data->unknownContent; }
const QStringList& OdDbDatabase::readNotes() const { return m_data->readNotes; }
OdDb::DwgVersion OdDbDatabase::originalFileVersion() const { return m_data->version; }
bool OdDbDatabase::isModified() const { return m_data->modified; }
void OdDbDatabase::setSaved() { m_data->modified = false; }

using Data = OdDbDatabaseData;
OdDbObjectId OdDbDatabase::getBlockTableId() const { return m_data->tables[Data::kBlocks]; }
OdDbObjectId OdDbDatabase::getLayerTableId() const { return m_data->tables[Data::kLayers]; }
OdDbObjectId OdDbDatabase::getLinetypeTableId() const { return m_data->tables[Data::kLinetypes]; }
OdDbObjectId OdDbDatabase::getTextStyleTableId() const { return m_data->tables[Data::kTextStyles]; }
OdDbObjectId OdDbDatabase::getDimStyleTableId() const { return m_data->tables[Data::kDimStyles]; }
OdDbObjectId OdDbDatabase::getViewTableId() const { return m_data->tables[Data::kViews]; }
OdDbObjectId OdDbDatabase::getViewportTableId() const { return m_data->tables[Data::kViewports]; }
OdDbObjectId OdDbDatabase::getUCSTableId() const { return m_data->tables[Data::kUcss]; }
OdDbObjectId OdDbDatabase::getRegAppTableId() const { return m_data->tables[Data::kRegApps]; }
OdDbObjectId OdDbDatabase::getNamedObjectsDictionaryId() const { return m_data->rootDictionary; }
OdDbObjectId OdDbDatabase::getModelSpaceId() const { return m_data->modelSpace; }
OdDbObjectId OdDbDatabase::getPaperSpaceId() const {
  // Which sheet is shown is told by its name alone.
  const OdDbBlockTablePtr blocks = m_data->tables[Data::kBlocks].openObject();
  const OdDbObjectId named =
      blocks ? blocks->getAt(QStringLiteral("*Paper_Space")) : OdDbObjectId();
  return named.isNull() ? m_data->paperSpace : named;
}
OdDbObjectId OdDbDatabase::getCurrentSpaceId() const {
  return sysVarInt("TILEMODE") != 0 ? getModelSpaceId() : getPaperSpaceId();
}
OdDbObjectId OdDbDatabase::getLayerZeroId() const { return m_data->layerZero; }
OdDbObjectId OdDbDatabase::getLinetypeByLayerId() const { return m_data->byLayer; }
OdDbObjectId OdDbDatabase::getLinetypeByBlockId() const { return m_data->byBlock; }
OdDbObjectId OdDbDatabase::getLinetypeContinuousId() const { return m_data->continuous; }

OdDbObjectId OdDbDatabase::getPlotStyleNameDictionaryId() const {
  const OdDbDictionaryPtr root = m_data->rootDictionary.openObject();
  return root ? root->getAt(QStringLiteral("ACAD_PLOTSTYLENAME")) : OdDbObjectId();
}

OdDbObjectId OdDbDatabase::getOdDbObjectId(OdDbHandle handle) const {
  const std::uint32_t number = m_data->byHandle.find(handle);
  if (number == OdDbHandleTable::kNone) return {};
  OdDbStub& stub = m_data->stubs[number];
  return stub.object ? OdDbObjectId(&stub) : OdDbObjectId();
}

std::size_t OdDbDatabase::approxNumObjects() const {
  std::size_t count = 0;
  for (std::uint32_t i = 0; i < m_data->stubs.size(); ++i)
    if (OdDbObjectId(&m_data->stubs[i]).isValid()) ++count;
  return count;
}

OdDbHandle OdDbDatabase::handseed() const { return m_data->handseed; }

OdGeExtents3d OdDbDatabase::extents() const {
  return getModelSpaceId().openAs<OdDbBlockTableRecord>()->extents();
}

void OdDbDatabase::startUndoRecord(const OdString& name) {
  deliverChanges();
  m_data->undo.start(name);
}

void OdDbDatabase::endUndoRecord() {
  deliverChanges();
  m_data->undo.end();
}

bool OdDbDatabase::hasUndo() const { return m_data->undo.undoName(); }
bool OdDbDatabase::hasRedo() const { return m_data->undo.redoName(); }

OdString OdDbDatabase::undoName() const {
  const OdString* name = m_data->undo.undoName();
  return name ? *name : OdString();
}

OdString OdDbDatabase::redoName() const {
  const OdString* name = m_data->undo.redoName();
  return name ? *name : OdString();
}

std::size_t OdDbDatabase::undoDepth() const { return m_data->undo.depth(); }

bool OdDbDatabase::undo() {
  const bool done = m_data->undo.undo();
  deliverChanges();
  return done;
}

bool OdDbDatabase::redo() {
  const bool done = m_data->undo.redo();
  deliverChanges();
  return done;
}

void OdDbDatabase::abandonUndoRecord() {
  m_data->undo.abandon();
  deliverChanges();
}

OdDbUndoMark OdDbDatabase::undoMark() const { return m_data->undo.mark(); }

bool OdDbDatabase::rollbackTo(const OdDbUndoMark& mark) {
  const bool done = m_data->undo.rollBack(mark);
  deliverChanges();
  return done;
}

void OdDbDatabase::clearUndo() { m_data->undo.clear(); }

void OdDbDatabase::addReactor(OdDbDatabaseReactor* reactor) { m_data->reactors.push_back(reactor); }

void OdDbDatabase::removeReactor(OdDbDatabaseReactor* reactor) {
  std::erase(m_data->reactors, reactor);
}

void OdDbDatabase::deliverChanges() {
  for (OdDbStub* stub : std::exchange(m_data->changed, {})) {
    if (!stub->object) continue;
    stub->object->m_changePending = false;
    if (!stub->object->m_erased)
      m_data->tell([&](OdDbDatabaseReactor& r) { r.objectModified(*this, OdDbObjectId(stub)); });
  }
}
