// The filer of palettes that go to other programs.
#pragma once

#include "persistence/palette_filer.h"

namespace tc {

/// Writes the palette as AutoCAD exports it: inside an envelope that names the folder of the
/// pictures, with the display settings beside the content. `CreateInfo` has its plain name, entries
/// of the order are called `Tool`, and paths of pictures begin with ".\".
class OdTcExchangeFilerImpl final : public OdTcPalettePropertiesFilerImpl {
 public:
  explicit OdTcExchangeFilerImpl(OdString imageFolder)
    : m_imageFolder(std::move(imageFolder)) {}

  bool openPalette(OdStreamBuf* stream, OdTcPersist* root, bool saving) override;
  void writeObject(OdTcPersist* object) override;
  void writeAttribute(const OdString& name, const OdVariant& value) override;
  void writeElement(const OdString& element, const OdVariant& value, bool cdata) override;

 private:
  const OdString m_imageFolder;
  /// Where the display settings go.
  TiXmlElement* m_beside = nullptr;
};

} // namespace tc
