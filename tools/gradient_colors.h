// The two colours of a gradient.
#pragma once

#include "drawing/color.h"
#include "module/persist_impl.h"
#include "properties/property.h"

#include <array>

namespace tc {

/// One of them; element `GradientColor`. It holds a colour property.
class OdTcGradientColorImpl final : public OdTcPersistImpl<OdTcPersist> {
 public:
  OdString elementName() const override { return QStringLiteral("GradientColor"); }
  /// By layer if none was set.
  OdCmColor color() const;
  void setColor(const OdCmColor& color);

  void writeFields(OdTcFiler* filer) override;
  bool readField(const OdString& name, const OdVariant& value) override;
  OdRxObjectPtr clone() const override;

 private:
  OdTcDatabasePropertyPtr m_color;
};

/// Exactly two; element `GradientColors`. What a file holds beyond them is dropped.
class OdTcGradientColorsImpl final : public OdTcPersistImpl<OdTcPersist> {
 public:
  OdTcGradientColorsImpl();

  OdString elementName() const override { return QStringLiteral("GradientColors"); }
  /// `index` is 0 or 1.
  OdCmColor color(std::size_t index) const { return m_colors.at(index)->color(); }
  void setColor(std::size_t index, const OdCmColor& color) { m_colors.at(index)->setColor(color); }

  void writeFields(OdTcFiler* filer) override;
  bool readField(const OdString& name, const OdVariant& value) override;
  OdRxObjectPtr clone() const override;

 private:
  std::array<OdSmartPtr<OdTcGradientColorImpl>, 2> m_colors;
  std::size_t m_read = 0;
};

} // namespace tc
