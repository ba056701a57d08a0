#include "catalog/tool_impl.h"

#include "catalog/multitool_conversion.h"
#include "host/host_locator.h"
#include "module/owner_link.h"
#include "persistence/filer.h"
#include "properties/property.h"
#include "tools/action_agent.h"

#include <algorithm>
#include <limits>

namespace tc {

namespace {

/// A number that is too large is no kind of tool, least of all the one that its last bits are.
std::uint32_t typeFromText(const OdString& text) {
  constexpr std::uint64_t kLargest = std::numeric_limits<std::uint32_t>::max();
  return static_cast<std::uint32_t>(std::min(odParseUInt(text), kLargest));
}

} // namespace

OdTcToolImpl::~OdTcToolImpl() {
  leaveGuard();
  forgetOwner(m_data, this);
}

OdTcToolData* OdTcToolImpl::getData() const {
  if (!m_data) {
    m_data = OdTcToolData::createObject();
    m_data->setOwner(const_cast<OdTcToolImpl*>(this));
  }
  return m_data;
}

OdTcToolActionAgent* OdTcToolImpl::getActionAgent() const {
  return m_data ? m_data->actionAgent() : nullptr;
}

bool OdTcToolImpl::applyToAgent(OdRxObject* object) {
  OdTcToolActionAgent* const agent = getActionAgent();
  if (!object || !agent) return false;
  return agent->onPropertyChanged(OdTcPropertyPtr(object));
}

bool OdTcToolImpl::updateAgent() {
  OdTcToolActionAgent* const agent = getActionAgent();
  return agent && agent->refreshImages(host::curDocument());
}

OdTcToolImpl::ForeignRecords& OdTcToolImpl::foreign() {
  if (!m_foreign) m_foreign = std::make_unique<ForeignRecords>();
  return *m_foreign;
}

void OdTcToolImpl::writeFields(OdTcFiler* filer) {
  OdTcCatalogItemImplBase::writeFields(filer);
  // As text: the filers differ in how they write 32-bit numbers, and a type is unsigned in both.
  filer->writeElement(QStringLiteral("ToolType"), OdString::number(m_toolType));
  if (flyout()) filer->writeObject(flyout());
  filer->writeObject(getData());
}

void OdTcToolImpl::setConvertedAgent(OdTcToolActionAgent* agent) {
  setActionAgent(agent);
  m_hasConvertedAgent = true;
}

void OdTcToolImpl::readData(const OdTcToolDataPtr& data) {
  if (m_hasConvertedAgent && !data->actionAgent()) data->setActionAgent(getActionAgent());
  forgetOwner(m_data, this);
  m_data = data;
  m_data->setOwner(this);
}

bool OdTcToolImpl::readOwnField(const OdString& name, const OdVariant& value) {
  if (name == QLatin1String("ToolType"))
    m_toolType = typeFromText(value.toString());
  else if (name == QLatin1String("CustomData"))
    foreign().customData = value.objectAs<OdTcToolCustomData>();
  else if (name == QLatin1String("Flyout"))
    foreign().flyout = value.objectAs<OdTcToolFlyout>();
  else if (name == QLatin1String("StockToolRef"))
    value.objectAs<OdTcStockToolRef>();
  else if (name == QLatin1String("Data"))
    readData(value.objectAs<OdTcToolData>());
  else
    return false;
  return true;
}

bool OdTcToolImpl::readField(const OdString& name, const OdVariant& value) {
  if (OdTcCatalogItemImplBase::readField(name, value)) return true;
  if (!readOwnField(name, value)) return false;
  if (customData() && flyout()) convertMultitool(*this);
  return true;
}

OdTcCatalogItemPtr OdTcToolImpl::clone(bool) const {
  const auto copy = odrxMake<OdTcToolImpl>();
  copyItemTo(*copy);
  copy->m_toolType = m_toolType;
  if (customData()) copy->foreign().customData = customData()->clone();
  if (flyout()) copy->foreign().flyout = flyout()->clone();
  if (m_data) {
    copy->m_data = m_data->clone();
    copy->m_data->setOwner(copy);
  }
  return copy;
}

} // namespace tc
