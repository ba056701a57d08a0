#include "persistence/element_table.h"

#include <utility>

namespace tc {
namespace {

OdTcElementTable::Builder g_builder = nullptr;
bool g_isBuilt = false;

} // namespace

OdTcElementTable& OdTcElementTable::instance() {
  static OdTcElementTable table;
  if (!g_isBuilt && g_builder) {
    g_isBuilt = true;
    g_builder(table);
  }
  return table;
}

void OdTcElementTable::setBuilder(Builder builder) {
  if (builder == g_builder) return;
  g_builder = nullptr;
  instance() = OdTcElementTable();
  g_builder = builder;
  g_isBuilt = false;
}

void OdTcElementTable::add(const OdString& element, Creator creator) {
  if (!m_creators.contains(element)) m_names.append(element);
  m_creators.insert(element, creator);
}

bool OdTcElementTable::contains(const OdString& element) const {
  return m_creators.contains(element);
}

OdTcElementTable::Creator OdTcElementTable::creatorOf(const OdString& element) const {
  return m_creators.value(element, nullptr);
}

OdTcPersistPtr OdTcElementTable::create(const OdString& element) const {
  const Creator creator = creatorOf(element);
  return creator ? OdTcPersistPtr(creator(), kOdRxObjAttach) : OdTcPersistPtr();
}

} // namespace tc
