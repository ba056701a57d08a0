#include "tools/tool_data_impl.h"

#include "module/persist_cast.h"
#include "persistence/element_table.h"
#include "persistence/filer.h"
#include "properties/owned_part.h"

#include <algorithm>

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcToolData, OdTcPersist, "OdTcToolData");

namespace {

constexpr char16_t kBagElement[] = u"GeneralProperties";

/// The elements of the kinds of agent.
constexpr QStringView kAgentElements[] = {u"Command",     u"Block", u"Raster",  u"Hatch",
                                          u"VisualStyle", u"Light", u"MLeader", u"Table"};

/// The elements of the general properties, in the order of the bag.
constexpr QStringView kGeneralProperties[] = {
    u"Color",      u"Layer",        u"Linetype",  u"LinetypeScale", u"PlotStyle",
    u"LineWeight", u"Transparency", u"Textstyle", u"Dimstyle",      u"Tablestyle"};

OdTcPropertyBagPtr nameBag(OdTcPropertyBagPtr bag, OdTcPersist* owner) {
  bag->setOwner(owner);
  bag->setName(QStringLiteral("General"));
  return bag;
}

OdTcPropertyBagPtr makeGeneralProperties(OdTcPersist* owner) {
  OdTcPropertyBagPtr bag = nameBag(OdTcPropertyBag::createObject(), owner);
  const OdTcElementTable& table = OdTcElementTable::instance();
  for (const QStringView element : kGeneralProperties)
    bag->add(OdTcPropertyPtr(table.create(element.toString())));
  return bag;
}

} // namespace

void OdTcToolDataImpl::setActionAgent(OdTcToolActionAgent* agent) {
  m_agent = adoptPart(OdTcToolActionAgentPtr(agent), this);
}

OdTcPropertyBag* OdTcToolDataImpl::generalProperties() const {
  if (!m_general) m_general = makeGeneralProperties(self());
  return m_general;
}

void OdTcToolDataImpl::writeFields(OdTcFiler* filer) {
  filer->writeObject(generalProperties());
  if (m_agent) filer->writeObject(m_agent);
}

bool OdTcToolDataImpl::readField(const OdString& name, const OdVariant& value) {
  if (!value.isObject()) return true;
  if (name == QStringView(kBagElement))
    m_general = nameBag(persistCast<OdTcPropertyBag>(value), this);
  else if (std::ranges::find(kAgentElements, QStringView(name)) != std::end(kAgentElements))
    setActionAgent(persistCast<OdTcToolActionAgent>(value));
  return true;
}

OdRxObjectPtr OdTcToolDataImpl::clone() const {
  auto copy = odrxMake<OdTcToolDataImpl>();
  copy->m_agent = clonePart(m_agent, copy);
  copy->m_general = clonePart(m_general, copy);
  return copy;
}

} // namespace tc
