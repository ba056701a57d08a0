// Elements of foreign catalogs that are passed over: the implementation.
#pragma once

#include "catalog/source.h"
#include "module/persist_impl.h"

namespace tc {

/// Reads nothing: whatever stands below the element is passed over without making objects of it.
class OdTcSourceImpl : public OdTcPersistImpl<OdTcSource> {
 public:
  bool readAttributes(OdTcFiler*) override { return true; }
  bool readElements(OdTcFiler*) override { return true; }
  OdString elementName() const override { return QStringLiteral("Source"); }
};

class OdTcToolSourceImpl : public OdTcPersistImpl<OdTcToolSource> {
 public:
  OdString sourceId() const override { return m_id; }
  OdString sourcePalette() const override { return m_palette; }

  OdString elementName() const override { return QStringLiteral("ToolSource"); }
  bool readField(const OdString& name, const OdVariant& value) override;

 private:
  OdString m_id;
  OdString m_palette;
};

} // namespace tc
