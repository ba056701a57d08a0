// The linked records of a dimension style's snapshot: its colours, text style and line types.
#pragma once

#include "drawing/tables/dim_vars.h"
#include "module/persist_impl.h"
#include "properties/property.h"

#include <QStringView>

#include <array>
#include <cstdint>

class OdDbDatabase;

namespace tc {

/// What a dimension style is linked to, in the order of writing.
enum class DimStylePart : std::uint8_t {
  kLineColor,
  kExtensionColor,
  kTextColor,
  kTextFillColor,
  kTextStyle,
  kLineType,
  kExtension1LineType,
  kExtension2LineType,
};
inline constexpr std::size_t kDimStylePartCount = 8;

class OdTcDimStylePart;
using OdTcDimStylePartPtr = OdSmartPtr<OdTcDimStylePart>;

struct DimStylePartRow {
  QStringView element;
  QStringView child; ///< the element of the one property that the part holds
  bool (*isProperty)(const OdRxObject* object);
  /// The part of a drawing's style; null if the style is linked to nothing there.
  OdTcDimStylePartPtr (*take)(const OdDbDimVarValues& from);
  /// Links a drawing's style to what the property holds, which is made in the drawing if need be.
  /// What cannot be had leaves the style as it is.
  void (*give)(const OdTcDatabaseProperty& property, OdDbDimVarValues& to, OdDbDatabase& database);
};
/// The row of a part.
const DimStylePartRow& dimStylePartRow(DimStylePart part);

/// A small record that holds one general property: a colour, a text style or a line type.
class OdTcDimStylePart : public OdTcPersistImpl<OdTcPersist> {
 public:
  virtual DimStylePart part() const = 0;

  OdString elementName() const override { return dimStylePartRow(part()).element.toString(); }
  /// May be null. Borrowed.
  OdTcDatabaseProperty* property() const { return m_property; }
  /// Raises OdError_NotThatKindOfClass for a property of another kind.
  void setProperty(OdTcDatabaseProperty* property);

  void writeFields(OdTcFiler* filer) override;
  bool readField(const OdString& name, const OdVariant& value) override;

 protected:
  void copyTo(OdTcDimStylePart& copy) const;

 private:
  OdTcDatabasePropertyPtr m_property;
};
template <DimStylePart Part>
class OdTcDimStylePartImpl final : public OdTcDimStylePart {
 public:
  DimStylePart part() const override { return Part; }
  OdRxObjectPtr clone() const override {
    auto copy = odrxMake<OdTcDimStylePartImpl>();
    copyTo(*copy);
    return copy;
  }
};

using OdTcDimclrdImpl = OdTcDimStylePartImpl<DimStylePart::kLineColor>;
using OdTcDimclreImpl = OdTcDimStylePartImpl<DimStylePart::kExtensionColor>;
using OdTcDimclrtImpl = OdTcDimStylePartImpl<DimStylePart::kTextColor>;
using OdTcDimtfillclrImpl = OdTcDimStylePartImpl<DimStylePart::kTextFillColor>;
using OdTcDimStyleTextImpl = OdTcDimStylePartImpl<DimStylePart::kTextStyle>;
using OdTcDimLineTypeImpl = OdTcDimStylePartImpl<DimStylePart::kLineType>;
using OdTcExtLine1LineTypeImpl = OdTcDimStylePartImpl<DimStylePart::kExtension1LineType>;
using OdTcExtLine2LineTypeImpl = OdTcDimStylePartImpl<DimStylePart::kExtension2LineType>;

} // namespace tc
