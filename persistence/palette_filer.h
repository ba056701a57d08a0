// The filer of palette documents.
#pragma once

#include "persistence/filer_base.h"
#include "persistence/foreign_content.h"

#include <optional>

namespace tc {

/// Links objects to their palette's database, and writes 32-bit numbers without a sign, but for
/// colours. Reads palettes exported by AutoCAD as well, in which `CreateInfo` means something else
/// in each parent.
class OdTcPalettePropertiesFilerImpl : public OdTcFilerImplBase<OdTcFiler> {
 public:
  explicit OdTcPalettePropertiesFilerImpl(OdTcForeignContent* foreign = nullptr)
    : m_foreign(foreign) {}

  bool openPalette(OdStreamBuf* stream, OdTcPersist* root, bool saving) override;
  void writeAttributes(const OdTcFieldMap& map) override;
  /// Reads the object's elements from a piece of a palette's document.
  void readPiece(const QByteArray& markup, OdTcPersist* object);

 protected:
  OdString tableName(const TiXmlElement& element, const OdString& name) const override;
  bool isSkipped(const OdString& name) const override { return m_skipNames.contains(name); }
  void link(OdTcPersist* object, OdTcPersist* owner) override {
    object->setOwnerInDatabase(owner, OdString());
  }
  OdTcNumberForm numberForm(const OdString& name) const override;
  const OdTcPassedOver* passedOver() const override {
    return m_foreign ? &treesOfOthers() : nullptr;
  }
  OdTcDeferral deferral() const override;
  void noteEmpty(const TiXmlElement& element) override {
    if (m_losses) m_losses->note(element);
  }

  /// Raises OdError_NotThatKindOfClass unless the object is a palette's database. The class stands
  /// in a higher layer, so it is known here by name.
  static void requireDatabase(const OdTcPersist* root);

 private:
  /// Puts the cursor on the palette's first child; false, with the problem kept, if there is none.
  bool findPalette();
  bool read();
  /// Reads what stands beside the content of a palette that another program exported.
  bool readBesideContent();

  OdTcForeignContent* const m_foreign;
  std::optional<OdTcForeignLosses> m_losses;
  OdTcPersistPtr m_root;
  QStringList m_skipNames;
};

} // namespace tc
