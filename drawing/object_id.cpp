#include "drawing/stub.h"

bool OdDbObjectId::isValid() const { return m_stub && m_stub->object && !m_stub->object->m_erased; }
bool OdDbObjectId::isErased() const { return m_stub && m_stub->object && m_stub->object->m_erased; }
OdDbHandle OdDbObjectId::getHandle() const { return m_stub ? m_stub->handle : OdDbHandle(); }
OdDbDatabase* OdDbObjectId::database() const { return m_stub ? m_stub->database() : nullptr; }

OdDbObjectPtr OdDbObjectId::openObject(OdDb::OpenMode mode, bool openErased) const {
  if (!m_stub || !m_stub->object || (m_stub->object->m_erased && !openErased)) return nullptr;
  // One reference is the drawing's own: whoever had the object open for writing is through.
  if (m_stub->object->numRefs() == 1) m_stub->object->m_writeEnabled = false;
  if (mode == OdDb::kForWrite) m_stub->object->m_writeEnabled = true;
  return m_stub->object;
}

OdDbObjectPtr OdDbObjectId::safeOpenObject(OdDb::OpenMode mode, bool openErased) const {
  if (OdDbObjectPtr object = openObject(mode, openErased)) return object;
  if (m_stub && m_stub->object)
    throw OdDbError(eWasErased, QStringLiteral("Object %1 is erased").arg(getHandle().ascii()));
  throw OdDbError(eNullObjectId,
                  m_stub ? QStringLiteral("There is no object %1").arg(getHandle().ascii())
                         : QStringLiteral("The object id is empty"));
}
