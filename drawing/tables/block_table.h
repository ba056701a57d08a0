// Blocks: the containers of entities.
#pragma once

#include "drawing/entities/entity.h"
#include "drawing/tables/symbol_table.h"

class OdDbBlockIterator;
using OdDbBlockIteratorPtr = std::unique_ptr<OdDbBlockIterator>;

/// A block: the model space, the paper space of a layout, or a definition to insert.
class OdDbBlockTableRecord : public OdDbSymbolTableRecord {
  ODDB_CONCRETE(OdDbBlockTableRecord, "BLOCK_RECORD")

  /// Puts a new entity at the end of the block, and so into the drawing. An entity without a layer
  /// gets layer 0. Raises OdDbError (eAlreadyInDatabase, eNotOpenForWrite).
  OdDbObjectId appendOdDbEntity(OdDbEntity* entity);
  /// Walks the entities that are not erased, in drawing order.
  OdDbBlockIteratorPtr newIterator(bool skipErased = true) const;
  /// All entities in drawing order, erased ones included.
  const std::vector<OdDbObjectId>& entityIds() const { return m_entities; }
  /// The box around all entities; empty if there is none.
  OdGeExtents3d extents() const;

  /// True for *Model_Space and *Paper_Space with any number.
  bool isLayout() const;
  bool isModelSpace() const;
  bool isFromExternalReference() const;
  bool isFromOverlayReference() const;
  /// In world coordinates.
  const OdGePoint3d& origin() const { return m_block.origin; }
  void setOrigin(const OdGePoint3d& origin);
  const OdString& comments() const { return m_block.comments; }
  void setComments(const OdString& text);
  /// The file of an external reference as the drawing stores it; to be set with either separator.
  const OdString& pathName() const { return m_block.xrefPath; }
  void setPathName(const OdString& path);
  /// Makes the block stand for another drawing, or a block of its own again.
  void setIsFromExternalReference(bool xref, bool overlay = false);
  /// True once somebody has unloaded the other drawing.
  bool isUnloaded() const { return isFromExternalReference() && !(m_block.blockFlags & kResolved); }
  void setIsUnloaded(bool unloaded);
  /// A block that programs name by themselves ("*D12").
  bool isAnonymous() const { return m_block.blockFlags & kAnonymousBlock; }
  void setIsAnonymous(bool anonymous);
  /// True if the block has a definition of an attribute that is not constant.
  bool hasAttributeDefinitions() const;
  /// The inserts of the block anywhere in the drawing.
  std::vector<OdDbObjectId> getBlockReferenceIds() const;
  /// As $INSUNITS.
  int blockInsertUnits() const { return m_block.units; }
  void setBlockInsertUnits(int units);
  OdDbObjectId getLayoutId() const { return m_block.layout; }
  void setLayoutId(OdDbObjectId layout);

  const char* dxfSubclass() const override { return "AcDbBlockTableRecord"; }
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;

  /// The objects that stand around the entities in files, with their own handles.
  OdDbObjectId blockBeginId() const { return m_block.begin; }
  OdDbObjectId blockEndId() const { return m_block.end; }
  /// Sets these two, once, when the block gets into its drawing.
  void setBounds(OdDbObjectId begin, OdDbObjectId end);
  /// Makes those of the two that are missing.
  void ensureBounds();
  /// Takes over what was read with the beginning of the block.
  void takeBegin(const OdDbBlockTableRecord& read);

  enum BlockFlag : int {
    kAnonymousBlock = 1,
    kHasAttributes = 2,
    kXref = 4,
    kXrefOverlay = 8,
    kResolved = 32
  };
  struct Data {
    OdGePoint3d origin;
    OdString comments, xrefPath;
    OdDbObjectId layout, begin, end;
    int units = 0;
    int blockFlags = 0;
  };
  /// What stands with the beginning of the block in files.
  bool dxfInBegin(const OdDbDxfTag& tag, OdDbDxfIn& in);
  void dxfOutBegin(OdDbDxfOut& out) const;

 protected:
  void dxfOutFields(OdDbDxfOut& out) const override;
  void enteredDatabase() override;

 private:
  friend class OdDbDatabase;
  friend class OdDbDxfIn;
  friend class OdDbUndo;
  void setBlockFlag(int flag, bool on);
  Data m_block;
  std::vector<OdDbObjectId> m_entities;
};

/// A walk over the entities of a block.
class OdDbBlockIterator {
 public:
  OdDbBlockIterator(const OdDbBlockTableRecord& block, bool skipErased);

  bool done() const { return m_at >= m_block->entityIds().size(); }
  void step();
  OdDbObjectId objectId() const { return m_block->entityIds()[m_at]; }
  OdDbEntityPtr entity(OdDb::OpenMode mode = OdDb::kForRead) const;

 private:
  void skip();
  OdSmartPtr<OdDbBlockTableRecord> m_block;
  std::size_t m_at = 0;
  bool m_skipErased;
};

/// The drawing's blocks; *Model_Space and *Paper_Space are always there.
ODDB_TABLE(OdDbBlockTable, OdDbBlockTableRecord, "BLOCK_RECORD");

namespace oddb {

/// Adds a new block whose name ("*D12") is made from a letter and the next free number.
OdDbObjectId addAnonymousBlock(OdDbDatabase& database, QChar letter);

} // namespace oddb
