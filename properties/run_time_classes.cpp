// The run-time class surface of this folder's interfaces.
#include "properties/line_type_element.h"
#include "properties/property.h"
#include "properties/property_bag.h"
#include "properties/property_basic_info.h"
#include "properties/property_create_info.h"
#include "properties/property_filter.h"
#include "properties/property_reference.h"
#include "properties/symbol_table_record.h"

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcProperty, OdTcPersist, "OdTcProperty");
ODRX_DEFINE_MEMBERS(OdTcDatabaseProperty, OdTcProperty, "OdTcDatabaseProperty");
ODRX_DEFINE_MEMBERS(OdTcPropertyBag, OdTcPersist, "OdTcPropertyBag");
ODRX_DEFINE_MEMBERS(OdTcPropertyFilter, OdTcPersist, "OdTcPropertyFilter");
ODRX_DEFINE_MEMBERS(OdTcPropertyBasicInfo, OdTcPersist, "OdTcPropertyBasicInfo");
ODRX_DEFINE_MEMBERS(OdTcPropertyCreateInfo, OdTcPersist, "OdTcPropertyCreateInfo");
ODRX_DEFINE_MEMBERS(OdTcPropertyReference, OdTcPersist, "OdTcPropertyReference");

ODRX_DEFINE_MEMBERS(OdTcSymbolTableRecord, OdTcPersist, "OdTcSymbolTableRecord");
ODRX_DEFINE_MEMBERS(OdTcLineTypeElement, OdTcPersist, "OdTcLineTypeElement");
ODRX_DEFINE_MEMBERS(OdTcComplexLineTypeElement, OdTcLineTypeElement, "OdTcComplexLineTypeElement");
ODRX_DEFINE_MEMBERS(OdTcLineTypeElementsList, OdTcPersist, "OdTcLineTypeElementsList");
ODRX_DEFINE_MEMBERS(OdTcTextStyleTableRecordCollection, OdTcPersist,
                    "OdTcTextStyleTableRecordCollection");

} // namespace tc
