#include "tools/gradient_colors.h"

#include "module/persist_cast.h"
#include "persistence/filer.h"
#include "properties/general_properties.h"
#include "properties/owned_part.h"

namespace tc {

OdCmColor OdTcGradientColorImpl::color() const {
  const auto* const property = static_cast<const OdTcColorPropertyImpl*>(m_color.get());
  return property ? property->color() : OdCmColor();
}

void OdTcGradientColorImpl::setColor(const OdCmColor& color) {
  auto property = odrxMake<OdTcColorPropertyImpl>();
  property->setColor(color);
  m_color = adoptPart(OdTcDatabasePropertyPtr(property), this);
}

void OdTcGradientColorImpl::writeFields(OdTcFiler* filer) {
  filer->writeObject(m_color ? m_color
                             : OdTcDatabasePropertyPtr(odrxMake<OdTcColorPropertyImpl>()));
}

bool OdTcGradientColorImpl::readField(const OdString& name, const OdVariant& value) {
  if (name != QLatin1String("Color")) return false;
  m_color = adoptPart(OdTcDatabasePropertyPtr(persistCast<OdTcColorPropertyImpl>(value)), this);
  return true;
}

OdRxObjectPtr OdTcGradientColorImpl::clone() const {
  auto copy = odrxMake<OdTcGradientColorImpl>();
  copy->m_color = clonePart(m_color, copy);
  return copy;
}

OdTcGradientColorsImpl::OdTcGradientColorsImpl() {
  for (auto& color : m_colors) color = adoptPart(odrxMake<OdTcGradientColorImpl>(), this);
}

void OdTcGradientColorsImpl::writeFields(OdTcFiler* filer) {
  for (const auto& color : m_colors) filer->writeObject(color);
}

bool OdTcGradientColorsImpl::readField(const OdString& name, const OdVariant& value) {
  if (name != QLatin1String("GradientColor")) return false;
  const auto color = persistCast<OdTcGradientColorImpl>(value);
  if (m_read < m_colors.size()) m_colors[m_read++] = adoptPart(color, this);
  return true;
}

OdRxObjectPtr OdTcGradientColorsImpl::clone() const {
  auto copy = odrxMake<OdTcGradientColorsImpl>();
  for (std::size_t i = 0; i < m_colors.size(); ++i)
    copy->m_colors[i] = clonePart(m_colors[i], copy);
  return copy;
}

} // namespace tc
