// One picture of an item: the implementation.
#pragma once

#include "images/image.h"
#include "module/persist_impl.h"
#include "properties/compact_text.h"

#include <cstdint>
#include <memory>

namespace tc {

/// Kept small: every tool has three or four, of which few are ever decoded.
class OdTcImageImpl final : public OdTcPersistImpl<OdTcImage> {
 public:
  OdTcImageImpl();
  ~OdTcImageImpl() override;

  OdString elementName() const override { return QStringLiteral("Image"); }

  std::int32_t sizeKind() const override { return m_sizeKind; }
  void setSizeKind(std::int32_t kind) override;
  void setResource(const OdString& src, const OdString& resource) override;
  void setSize(std::uint32_t cx, std::uint32_t cy) override;
  std::uint32_t cx() const override { return m_cx; }
  std::uint32_t cy() const override { return m_cy; }
  OdString src() const override { return m_src.toString(); }
  OdString resource() const override { return m_resource.toString(); }
  QImage getBitmap() override;
  void releaseBitmap() override;
  bool isResource() const override;
  bool setSrcFromFile(const OdString& path) override;
  bool setSrcFromPicture(const QImage& picture, const OdString& path) override;
  bool makeFromBlock(OdDbObjectId source) override;
  bool makeFromGradient(const OdString& name, const OdCmColor& first,
                        const OdCmColor& second) override;
  bool makeFromPattern(const OdString& name, const OdString& file,
                       const std::optional<OdCmColor>& color) override;
  bool makeFromUserPattern(double angle, bool isCrosswise) override;
  bool makeFromDrawing(const OdString& path) override;
  bool saveTo(const OdString& path, std::int32_t format) override;
  bool loadFromFile(const OdString& path) override;
  void draw(QPainter* painter, int x, int y, int width, int height) override;
  OdTcImagePtr cloneAtSize(std::int32_t kind) override;
  OdString fullPath() const override;

  /// The picture format's code; 6 after a picture was made.
  std::int32_t format() const { return m_format; }
  /// Takes a picture that was made for this image, under that name.
  void setBitmap(const QImage& bitmap, const OdString& src);

  bool readElements(OdTcFiler* filer) override;
  void writeFields(OdTcFiler* filer) override;
  bool readField(const OdString& name, const OdVariant& value) override;
  OdRxObjectPtr clone() const override;

 private:
  struct Decoded;
  Decoded& decoded();
  /// Keeps a picture that can be decoded again, as long as there is room for it.
  void keepDecoded(const QImage& picture);
  void noteSaved(const QImage& picture, const OdString& path);
  QImage resourcePicture() const;
  void resolveAfterReading();
  void saveBesidePalette();
  /// Takes a preview and names it after what it shows, or freshly after the label if that has no
  /// name or the palette's folder has a file of it. False for a null image.
  bool takePreview(const QImage& picture, const OdString& name, QStringView label);
  void noteLabel(QStringView label);
  /// A name with a fresh id. Should its file exist all the same, another is taken untested.
  OdString uniqueName(const OdString& label) const;
  /// True if the palette's folder has a file of that name.
  bool isTaken(const OdString& src) const;

  CompactText m_src;
  CompactText m_resource;
  std::unique_ptr<Decoded> m_decoded;
  std::uint32_t m_cx = 0;
  std::uint32_t m_cy = 0;
  std::int32_t m_sizeKind = 0;
  // Which palette file the image was read from: its path at that moment, kept once for all images.
  // A palette that is saved elsewhere still has to find the pictures to take along.
  std::uint32_t m_home = 0;
  std::int32_t m_format = 0;
  bool m_isMade = false; ///< the picture is nowhere else yet
};

} // namespace tc
