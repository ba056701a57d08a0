#include "drawing/database.h"
#include "drawing/dxf/kept_tags.h"
#include "drawing/dxf/residue.h"
#include "drawing/entities/block_reference.h"

namespace {

// The application under which a state of a block tells which block it is a state of.
constexpr char kRepresents[] = "AcDbBlockRepBTag";
constexpr char kDynamic[] = "AcDbDynamicBlockTrueName";

OdDbObjectId blockOf(OdDbObjectId insert) {
  const OdDbObjectPtr object = insert.openObject();
  const auto* const reference = odrxCast<OdDbBlockReference>(object.get());
  return reference ? reference->blockTableRecord() : OdDbObjectId();
}

/// The block with the parameters that a block is a state of; null if it is none.
OdDbObjectId representedBy(OdDbObjectId block) {
  const OdDbObjectPtr record = block.openObject();
  if (!record || !record->residue()) return {};
  bool isTag = false;
  for (const OdDbKeptTags::Tag& tag : OdDbKeptTags(record->residue()->xdata).tags) {
    if (tag.code == 1001) isTag = tag.value.trimmed() == kRepresents;
    if (!isTag || tag.code != 1005) continue;
    const QByteArray text = tag.value.trimmed();
    const auto handle =
        OdDbHandle::fromText({text.constData(), static_cast<std::size_t>(text.size())});
    const OdDbObjectId found = handle ? block.database()->getOdDbObjectId(*handle) : OdDbObjectId();
    return odrxCast<OdDbBlockTableRecord>(found.openObject().get()) ? found : OdDbObjectId();
  }
  return {};
}

/// True for a block that has parameters itself.
bool hasParameters(OdDbObjectId block) {
  const OdDbObjectPtr record = block.openObject();
  return record && record->residue() && record->residue()->xdata.contains(kDynamic);
}

} // namespace

OdDbObjectId OdDbDynBlockReference::dynamicBlockTableRecord() const {
  const OdDbObjectId block = blockOf(m_insert);
  const OdDbObjectId represented = representedBy(block);
  return represented.isNull() ? block : represented;
}

OdDbObjectId OdDbDynBlockReference::anonymousBlockTableRecord() const {
  const OdDbObjectId block = blockOf(m_insert);
  return representedBy(block).isNull() ? OdDbObjectId() : block;
}

bool OdDbDynBlockReference::isDynamicBlock() const {
  const OdDbObjectId block = blockOf(m_insert);
  return !representedBy(block).isNull() || hasParameters(block);
}
