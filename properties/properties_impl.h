// The name, description, times and images of an item: the implementation.
#pragma once

#include "images/image_list.h"
#include "module/owner_link.h"
#include "module/persist_impl.h"
#include "module/properties.h"
#include "properties/compact_text.h"

#include <memory>

namespace tc {

/// Element `Properties`. Every item has one, so what few of them have stands apart.
class OdTcPropertiesImpl final : public OdTcPersistImpl<OdTcProperties> {
 public:
  ~OdTcPropertiesImpl() override { forgetOwner(m_images, this); }

  OdString elementName() const override { return QStringLiteral("Properties"); }

  OdString getName() const override;
  void setName(const OdString& name) override;
  void setDescription(const OdString& description) override;
  OdString getDescription() const override;
  void clearResource() override;

  OdString created() const override { return m_created.text(); }
  OdString modified() const override { return m_modified.text(); }
  OdString resource() const override;
  OdString src() const override;
  void setResource(const OdString& resource, const OdString& src) override;

  OdTcImageList* images() const override { return m_images; }
  void setImages(OdTcImageList* images) override;

  OdVariant propertyValue(const OdString& name) const override;
  bool setPropertyValue(const OdString& name, const OdVariant& value) override;

  void writeFields(OdTcFiler* filer) override;
  bool readField(const OdString& name, const OdVariant& value) override;
  /// Both times of the clone are now.
  OdRxObjectPtr clone() const override;

 private:
  /// A time as the text of a file, or as the moment at which something happened: most moments are
  /// replaced by a text before anybody asks for them.
  class Stamp {
   public:
    OdString text() const;
    void set(const OdString& text);
    void setNow();

   private:
    CompactText m_text;
    qint64 m_moment = -1;
  };
  struct Rare {
    CompactText description, resource, src;
  };
  struct Field;
  static const Field kFields[];

  Rare& rare();
  OdString storedName() const { return m_name.toString(); }
  void setCreated(const OdString& text) { m_created.set(text); }
  void setModified(const OdString& text) { m_modified.set(text); }
  void setResourceOnly(const OdString& resource);
  void setSrcOnly(const OdString& src);

  CompactText m_name;
  Stamp m_created, m_modified;
  std::unique_ptr<Rare> m_rare;
  OdTcImageListPtr m_images;
};

} // namespace tc
