// The concrete general properties.
#pragma once

#include "properties/database_property_impl.h"

namespace tc {

template <GeneralProperty Property>
class OdTcGeneralPropertyImpl final : public OdTcDatabasePropertyImpl {
 public:
  const GeneralPropertyKind& kind() const override { return generalPropertyKind(Property); }
  OdRxObjectPtr clone() const override {
    auto copy = odrxMake<OdTcGeneralPropertyImpl>();
    copyTo(*copy);
    return copy;
  }
};

using OdTcColorPropertyImpl = OdTcGeneralPropertyImpl<GeneralProperty::kColor>;
using OdTcLayerPropertyImpl = OdTcGeneralPropertyImpl<GeneralProperty::kLayer>;
using OdTcLineTypePropertyImpl = OdTcGeneralPropertyImpl<GeneralProperty::kLineType>;
using OdTcLineTypeScalePropertyImpl = OdTcGeneralPropertyImpl<GeneralProperty::kLineTypeScale>;
using OdTcPlotStylePropertyImpl = OdTcGeneralPropertyImpl<GeneralProperty::kPlotStyle>;
using OdTcLineWeightPropertyImpl = OdTcGeneralPropertyImpl<GeneralProperty::kLineWeight>;
using OdTcTransparencyPropertyImpl = OdTcGeneralPropertyImpl<GeneralProperty::kTransparency>;
using OdTcTextStylePropertyImpl = OdTcGeneralPropertyImpl<GeneralProperty::kTextStyle>;
using OdTcDimStylePropertyImpl = OdTcGeneralPropertyImpl<GeneralProperty::kDimStyle>;
using OdTcTableStylePropertyImpl = OdTcGeneralPropertyImpl<GeneralProperty::kTableStyle>;

} // namespace tc
