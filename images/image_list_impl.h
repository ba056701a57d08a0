// The pictures of an item: the implementation.
#pragma once

#include "images/image_list.h"
#include "module/persist_impl.h"

#include <cstdint>
#include <vector>

namespace tc {

class OdTcImageListImpl final : public OdTcPersistImpl<OdTcImageList> {
 public:
  OdString elementName() const override { return QStringLiteral("Images"); }

  void add(OdTcImage* image) override;
  void removeAll(bool deleteFiles) override;
  OdTcEnumPtr<OdTcImage> enumImages() const override;
  OdTcImage* findBySize(std::int32_t sizeKind) const override;
  int count() const override { return static_cast<int>(m_images.size()); }
  std::uint32_t options() const override { return m_options; }
  bool setFromFile(const OdString& path) override;
  bool setFrom(const std::function<bool(OdTcImage& image)>& make) override;
  QStringList pictureFiles() const override;

  void writeFields(OdTcFiler* filer) override;
  bool readField(const OdString& name, const OdVariant& value) override;
  OdRxObjectPtr clone() const override;

 private:
  std::vector<OdTcImagePtr> m_images;
  std::uint32_t m_options = 0;
};

} // namespace tc
