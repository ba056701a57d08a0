#include "drawing/object.h"

#include "drawing/database_data.h"
#include "drawing/object_extras.h"

OdDbObject::OdDbObject() = default;
OdDbObject::~OdDbObject() = default;

OdDbObjectId OdDbObject::objectId() const { return OdDbObjectId(m_stub); }
OdDbHandle OdDbObject::handle() const { return m_stub ? m_stub->handle : OdDbHandle(); }
OdDbDatabase* OdDbObject::database() const { return m_stub ? m_stub->database() : nullptr; }

void OdDbObject::upgradeOpen() { m_writeEnabled = true; }

void OdDbObject::downgradeOpen() {
  if (!m_stub) return;
  m_writeEnabled = false;
  m_stub->database()->deliverChanges();
}

bool OdDbObject::isWriteEnabled() const { return !m_stub || m_writeEnabled; }
bool OdDbObject::isErased() const { return m_stub && m_erased; }

void OdDbObject::assertWriteEnabled() {
  if (!m_stub) return;
  if (!m_writeEnabled)
    throw OdDbError(eNotOpenForWrite, QStringLiteral("%1 %2 is not open for writing")
                                          .arg(QLatin1String(dxfName()), handle().ascii()));
  OdDbDatabaseData& data = m_stub->database()->data();
  data.undo.willModify(*m_stub);
  data.noteChange(*m_stub);
}

void OdDbObject::erase(bool erasing) {
  if (!m_stub || (m_erased != 0) == erasing) return;
  if (!m_writeEnabled)
    throw OdDbError(eNotOpenForWrite, QStringLiteral("%1 %2 is not open for writing")
                                          .arg(QLatin1String(dxfName()), handle().ascii()));
  OdDbDatabase& database = *m_stub->database();
  database.data().undo.willErase(*m_stub);
  database.data().modified = true;
  m_erased = erasing ? 1 : 0;
  if (const auto table = odrxCast<OdDbSymbolTable>(m_owner.openObject().get())) table->renamed();
  database.data().tell(
      [&](OdDbDatabaseReactor& r) { r.objectErased(database, objectId(), erasing); });
}

OdRxObjectPtr OdDbObject::clone() const {
  const OdDbObjectPtr copy = newInstance();
  copy->assignFrom(*this);
  // What other objects know of this one does not hold for its copy.
  if (copy->residue()) copy->m_extras->residue->groups.clear();
  return copy;
}

void OdDbObject::assignFrom(const OdDbObject& other) {
  m_extras = other.m_extras ? std::make_unique<OdDbObjectExtras>(*other.m_extras) : nullptr;
}

OdDbDxfResidue& OdDbObject::editResidue() {
  assertWriteEnabled();
  if (!m_extras) m_extras = std::make_unique<OdDbObjectExtras>();
  if (!m_extras->residue) m_extras->residue.emplace();
  return *m_extras->residue;
}

const OdDbDxfResidue* OdDbObject::residue() const {
  return m_extras && m_extras->residue ? &*m_extras->residue : nullptr;
}

bool OdDbObject::dxfInTag(const OdDbDxfTag&, OdDbDxfIn&) { return false; }
void OdDbObject::dxfOut(OdDbDxfOut&) const {}
