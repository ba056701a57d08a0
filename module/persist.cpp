#include "module/persist.h"

#include "module/persist_impl.h"
#include "persistence/filer.h"

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcPersist, OdRxObject, "OdTcPersist");

namespace {

/// Hands every pair to the object. A false answer means that no class knows the name, which is then
/// dropped without a word.
void deliver(OdTcPersist& object, const OdTcFieldMap& map) {
  for (const auto& [name, value] : map) object.readField(name, value);
}

} // namespace

bool persist_detail::readAttributes(OdTcPersist& object, OdTcFiler* filer) {
  filer->pushObject(&object);
  OdTcFieldMap& map = filer->scratchMap();
  filer->readAttributes(map);
  deliver(object, map);
  map.clear();
  filer->popObject(false);
  return true;
}

bool persist_detail::readElements(OdTcPersist& object, OdTcFiler* filer) {
  filer->pushObject(&object);
  OdTcFieldMap& map = filer->scratchMap();
  while (filer->readElement(map)) {
    deliver(object, map);
    map.clear();
  }
  map.clear();
  filer->popObject(true);
  return true;
}

} // namespace tc
