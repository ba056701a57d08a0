// The pictures of an item: the implementation.
#pragma once

#include "images/image_list.h"
#include "module/persist_impl.h"
#include "persistence/document_check.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace tc {

/// Of a palette's pictures few are ever shown, so those of a file are read when they are asked for.
class OdTcImageListImpl final : public OdTcPersistImpl<OdTcImageList> {
 public:
  /// The element as it nearly always is.
  static const OdTcPlainElement kPlain;

  OdString elementName() const override { return QStringLiteral("Images"); }

  void add(OdTcImage* image) override;
  void removeAll(bool deleteFiles) override;
  OdTcEnumPtr<OdTcImage> enumImages() const override;
  OdTcImage* findBySize(std::int32_t sizeKind) const override;
  int count() const override { return static_cast<int>(images().size()); }
  std::uint32_t options() const override { return m_options; }
  bool setFromFile(const OdString& path) override;
  bool setFrom(const std::function<bool(OdTcImage& image)>& make) override;
  QStringList pictureFiles() const override;

  /// The number of the palette file that the list was read from; see imageHomeNumber().
  std::uint32_t home() const { return m_home.value_or(0); }

  bool readElements(OdTcFiler* filer) override;
  void writeFields(OdTcFiler* filer) override;
  bool readField(const OdString& name, const OdVariant& value) override;
  OdRxObjectPtr clone() const override;

 private:
  using Images = std::vector<OdTcImagePtr>;

  /// The pictures, which are read if that is still to be done.
  const Images& images() const;
  Images& images();

  Images m_images;
  QByteArray m_deferred; ///< the markup of pictures that nobody has asked for yet
  std::uint32_t m_options = 0;
  std::optional<std::uint32_t> m_home;
};

} // namespace tc
