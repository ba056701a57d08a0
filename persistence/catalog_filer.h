// The filer of catalog documents.
#pragma once

#include "persistence/filer_base.h"

namespace tc {

/// Links objects to their catalog, and writes 32-bit numbers with their sign.
class OdTcCatalogFilerImpl : public OdTcFilerImplBase<OdTcFiler> {
 public:
  bool openCatalog(OdStreamBuf* stream, OdTcPersist* root, bool saving) override;

 protected:
  OdString tableName(const TiXmlElement&, const OdString& name) const override { return name; }
  bool isSkipped(const OdString&) const override { return false; }
  void link(OdTcPersist* object, OdTcPersist* owner) override { object->setOwnerInCatalog(owner); }
  OdTcNumberForm numberForm(const OdString&) const override { return OdTcNumberForm::kSigned; }

 private:
  bool read(OdTcPersist* root);
};

} // namespace tc
