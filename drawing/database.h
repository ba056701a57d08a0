// The drawing.
#pragma once

#include "drawing/database_reactor.h"
#include "drawing/header_vars.h"
#include "drawing/id_mapping.h"
#include "drawing/objects/dictionary.h"
#include "drawing/tables/block_table.h"
#include "drawing/tables/dim_style_table.h"
#include "drawing/tables/layer_table.h"
#include "drawing/tables/linetype_table.h"
#include "drawing/tables/plain_tables.h"
#include "drawing/tables/text_style_table.h"
#include "drawing/tables/viewport_table.h"
#include "drawing/undo_mark.h"

class QIODevice;
class OdDbUndo;
struct OdDbDatabaseData;
using OdDbDatabasePtr = OdSmartPtr<OdDbDatabase>;

/// A drawing: its objects, header variables and current values, with undo and files.
class OdDbDatabase : public OdRxObject {
  ODRX_DECLARE_MEMBERS(OdDbDatabase);

 public:
  /// A new drawing with layer 0, the line types ByLayer, ByBlock and Continuous, the text and
  /// dimension style Standard, model space and one layout. $MEASUREMENT and $INSUNITS are metric.
  static OdDbDatabasePtr createDatabase();

  // --- files (drawing/database_files.cpp)

  /// Reads a DXF file. Raises OdFileError with the path, the line and the reason if nothing can be
  /// trusted; damage that leaves the rest readable is told by unknownContent().
  static OdDbDatabasePtr readFile(const OdString& path);
  /// As readFile, from memory; `name` stands for the path in messages.
  static OdDbDatabasePtr readDxf(QByteArrayView bytes, const OdString& name);
  /// Writes the drawing into a new file beside `path`, hands it to the disk, and puts it in the
  /// place of the old one, whose permissions it keeps. The version is that of the drawing unless
  /// another is given (R2000 and later). With `keepBackup` the old file stays beside the new one
  /// with ".bak" in the place of its suffix. Raises OdFileError; the old file is then as it was.
  /// Neither looks at unknownContent() nor changes fileName().
  void writeFile(const OdString& path, OdDb::DwgVersion version = OdDb::kVersionUnknown,
                 bool keepBackup = false);
  /// The same into memory.
  QByteArray writeDxf(OdDb::DwgVersion version = OdDb::kVersionUnknown) const;

  /// The stored path of the file that the drawing came from or was last saved to; empty if none.
  const OdString& fileName() const;
  void setFileName(const OdString& path);
  /// True if somebody else has changed, replaced or removed the drawing's file since it was read or
  /// last written: saving over it would lose what they did.
  bool isFileChangedByOthers() const;
  /// The preview picture that the file carries: a device-independent bitmap without file header;
  /// empty if there is none. It is no part of undo.
  QByteArray thumbnail() const;
  void setThumbnail(const QByteArray& bytes);
  /// What the file has and the drawing could not take over: saving over the file would lose it.
  const QStringList& unknownContent() const;
  /// What was mended while reading, without loss.
  const QStringList& readNotes() const;
  /// The version of the file that was read, or the one in which a new drawing is written.
  OdDb::DwgVersion originalFileVersion() const;
  /// True if anything was changed since the drawing was made, read, or marked as saved.
  bool isModified() const;
  void setSaved();

  // --- objects

  OdDbObjectId getBlockTableId() const;
  OdDbObjectId getLayerTableId() const;
  OdDbObjectId getLinetypeTableId() const;
  OdDbObjectId getTextStyleTableId() const;
  OdDbObjectId getDimStyleTableId() const;
  OdDbObjectId getViewTableId() const;
  OdDbObjectId getViewportTableId() const;
  OdDbObjectId getUCSTableId() const;
  OdDbObjectId getRegAppTableId() const;
  OdDbObjectId getNamedObjectsDictionaryId() const;
  OdDbObjectId getModelSpaceId() const;
  OdDbObjectId getPaperSpaceId() const;
  /// The block that is drawn in: the model space, or the paper space while a layout is shown.
  OdDbObjectId getCurrentSpaceId() const;
  OdDbObjectId getLayerZeroId() const;
  OdDbObjectId getLinetypeByLayerId() const;
  OdDbObjectId getLinetypeByBlockId() const;
  OdDbObjectId getLinetypeContinuousId() const;
  /// The dictionary of plot style names; null if the drawing has none.
  OdDbObjectId getPlotStyleNameDictionaryId() const;

  /// The object of a handle; null if there is none.
  OdDbObjectId getOdDbObjectId(OdDbHandle handle) const;
  /// The number of objects that are not erased.
  std::size_t approxNumObjects() const;
  /// The handle that the next new object gets.
  OdDbHandle handseed() const;
  /// The box around the model space; empty if there is nothing in it.
  OdGeExtents3d extents() const;

  // --- copying within and between drawings (drawing/cloning/)

  /// Copies objects of this drawing, and what they own, to a new owner in it: entities to a block,
  /// objects to a dictionary (under `*name` if theirs is taken). References among the copies go
  /// to the copies, all others stay. Adds every pair to `mapping`.
  void deepCloneObjects(const std::vector<OdDbObjectId>& objects, OdDbObjectId owner,
                        OdDbIdMapping& mapping);
  /// Copies objects of another drawing to an owner in this one, with what they own and need.
  /// Records and named objects that this drawing has already are treated as `cloning` says;
  /// references to what does not come along are left out.
  void wblockCloneObjects(const std::vector<OdDbObjectId>& objects, OdDbObjectId owner,
                          OdDbIdMapping& mapping,
                          OdDb::DuplicateRecordCloning cloning = OdDb::kDrcIgnore);
  /// A new drawing with all of this one that is in use.
  OdDbDatabasePtr wblock() const;
  /// A new drawing whose model space has what a block consists of; the block's base point becomes
  /// its $INSBASE.
  OdDbDatabasePtr wblock(OdDbObjectId block) const;
  /// A new drawing with copies of entities; `basePoint` comes to its origin.
  OdDbDatabasePtr wblock(const std::vector<OdDbObjectId>& entities,
                         const OdGePoint3d& basePoint) const;
  /// Makes the model space of another drawing a block of this one; a block of that name gets the
  /// new contents. Records of this drawing win over those of the other. Without `preserve` the
  /// other drawing may be left empty.
  OdDbObjectId insert(const OdString& blockName, OdDbDatabase* source, bool preserve = true);
  /// Makes one block of another drawing a block of this one under a name.
  OdDbObjectId insert(const OdString& sourceBlockName, const OdString& blockName,
                      OdDbDatabase* source, bool preserve = true);
  /// Adds the model space of another drawing, moved, to this one's.
  void insert(const OdGeMatrix3d& transform, OdDbDatabase* source, bool preserve = true);

  /// Puts a new object into the drawing. Containers do this; nobody else needs to.
  OdDbObjectId addObject(OdDbObject* object, OdDbObjectId owner, OdDbHandle handle = {});

  // --- header variables (drawing/database_vars.cpp)

  /// The value of a header variable, with or without `$`; nothing if it is not known. Records are
  /// given by name.
  std::optional<OdDbVarValue> getSysVar(const OdString& name) const;
  /// False if the variable is not known, the value is of the wrong kind or outside the range, or
  /// names a record that is not there. Integers are taken for numbers.
  bool setSysVar(const OdString& name, const OdDbVarValue& value);
  /// Shortcuts; 0, empty or the origin if the variable is not known or of another kind.
  std::int64_t sysVarInt(const char* name) const;
  double sysVarReal(const char* name) const;
  OdString sysVarText(const char* name) const;
  OdGePoint3d sysVarPoint(const char* name) const;

  /// Current values: what new entities get. Setters with an id raise OdDbError for a null id.
  OdCmColor currentColor() const;
  void setCurrentColor(const OdCmColor& color);
  OdDbObjectId currentLayer() const;
  void setCurrentLayer(OdDbObjectId layer);
  OdDbObjectId currentLinetype() const;
  void setCurrentLinetype(OdDbObjectId linetype);
  double currentLinetypeScale() const;
  void setCurrentLinetypeScale(double scale);
  OdDb::PlotStyleNameType currentPlotStyleType() const;
  OdDbObjectId currentPlotStyleId() const;
  void setCurrentPlotStyle(OdDb::PlotStyleNameType type, OdDbObjectId id = OdDbObjectId());
  OdDb::LineWeight currentLineWeight() const;
  void setCurrentLineWeight(OdDb::LineWeight weight);
  OdCmTransparency currentTransparency() const;
  void setCurrentTransparency(OdCmTransparency transparency);
  OdDbObjectId currentTextStyle() const;
  void setCurrentTextStyle(OdDbObjectId style);
  OdDbObjectId currentDimStyle() const;
  void setCurrentDimStyle(OdDbObjectId style);
  /// Loads the variables of a dimension style into the drawing's own. Raises OdDbError for a null
  /// id, OdError_NotThatKindOfClass for another record.
  void setDimstyleData(OdDbObjectId style);

  // --- undo (drawing/undo.cpp)

  /// Starts a step. Everything that changes until the next mark is undone at once. A step in which
  /// nothing changes leaves no trace. The first change behind an undo forgets what could be redone.
  void startUndoRecord(const OdString& name);
  /// Ends the step. What changes outside of steps is not kept for undo: a step that is undone later
  /// gives the objects that it changed the state from before it.
  void endUndoRecord();
  /// The place that the running step has come to.
  OdDbUndoMark undoMark() const;
  /// Takes back what changed since a mark; what the step did before it stays. Marks that were
  /// set behind it are void. False if the mark is not of the running step: nothing changes then.
  bool rollbackTo(const OdDbUndoMark& mark);
  bool hasUndo() const;
  bool hasRedo() const;
  /// The name of the step that undo() or redo() would take; empty if there is none.
  OdString undoName() const;
  OdString redoName() const;
  /// How many steps can be undone.
  std::size_t undoDepth() const;
  /// Takes the last step back, or does it again. False if there is none.
  bool undo();
  bool redo();
  /// Takes the step that is under way back and forgets it, as if its command had never run.
  void abandonUndoRecord();
  /// Forgets all steps.
  void clearUndo();

  // --- reactors

  void addReactor(OdDbDatabaseReactor* reactor);
  void removeReactor(OdDbDatabaseReactor* reactor);
  /// Tells reactors of the objects that were changed since the last time. Starting and ending
  /// steps, undo, redo and downgradeOpen do this; a host does it when it has finished with an
  /// input.
  void deliverChanges();

  OdDbDatabase();
  ~OdDbDatabase() override;

  /// What the parts of the library share; nobody else needs it.
  OdDbDatabaseData& data() { return *m_data; }
  const OdDbDatabaseData& data() const { return *m_data; }

 private:
  std::unique_ptr<OdDbDatabaseData> m_data;
};
