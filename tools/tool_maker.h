// Makes tools from what is in drawings, from files and from the host's commands.
#pragma once

#include "catalog/tool.h"
#include "drawing/object_id.h"
#include "tools/source_files.h"

#include <functional>

class OdDbBlockTableRecord;
class OdDbEntity;
class OdDbHatch;
class OdDbRasterImage;

namespace tc {

class OdTcImage;
enum class StringId : int;

/// Fills new tools. Every road is false if no tool comes of it: the tool that it was given is then
/// good for nothing. A picture that cannot be made does not stop a tool.
///
/// Numbered messages go to the user; whoever makes many tools asks problem() instead of reading
/// them.
class OdTcToolMaker {
 public:
  /// Whether tools get their pictures as they are made. Without them makePictures() makes them
  /// later, when the tool has its palette.
  enum class Pictures { kAtOnce, kLater };
  explicit OdTcToolMaker(Pictures pictures = Pictures::kAtOnce)
    : m_pictures(pictures) {}

  /// From an existing drawing a tool that inserts it whole, from an existing picture one that
  /// attaches it. Any other text is taken for a command. `path` is a stored path.
  bool fromFile(OdTcTool& tool, const OdString& path);
  /// From the drawing or the picture in a file, which is not looked for.
  bool fromDrawing(OdTcTool& tool, const OdString& path);
  bool fromRaster(OdTcTool& tool, const OdString& path);
  /// From a command in the host's menu, by its name.
  bool fromCommand(OdTcTool& tool, const OdString& name);
  /// From an entity: an image, a hatch and an insert become tools of their kinds, every other one
  /// a tool of the command that draws entities of its class. The tool gets the entity's general
  /// properties.
  bool fromEntity(OdTcTool& tool, OdDbObjectId entity);
  /// From a block of an open drawing, which must have been saved.
  bool fromBlock(OdTcTool& tool, const OdString& name, IHostDocument* document);
  /// From a block of a drawing file.
  bool fromDrawingBlock(OdTcTool& tool, const OdString& file, const OdString& name);
  /// From the entities on the clipboard.
  bool fromClipboard(OdTcTool& tool);

  /// The blocks of a drawing file that tools can be made of, by name, in the order of the file;
  /// those that the drawing keeps for itself are left out. Nothing if the file cannot be read or
  /// has none: the user is told.
  QStringList blocksOf(const OdString& file);

  /// Makes the pictures of a tool that was made without. False if it has none.
  bool makePictures(OdTcTool& tool);

  /// Why the last road failed, in words for the user; empty if it says nothing.
  const OdString& problem() const { return m_problem; }

 private:
  OdDbDatabase* open(const OdString& file);
  static bool setPictures(OdTcTool& tool, const std::function<bool(OdTcImage& image)>& make);
  bool fail(const OdString& problem);
  /// Shows a numbered error.
  bool failWith(StringId message);
  bool takeBlock(OdTcTool& tool, const OdDbBlockTableRecord& block, const OdString& file);
  bool takeImage(OdTcTool& tool, const OdDbRasterImage& image);
  bool takeHatch(OdTcTool& tool, const OdDbHatch& hatch);
  bool takeInsert(OdTcTool& tool, OdDbObjectId insert);
  bool takeDrawnBy(OdTcTool& tool, const OdDbEntity& entity);

  Pictures m_pictures;
  OdTcSourceFiles m_sources;
  OdString m_problem;
};

/// The name of a hatch pattern without the sign of where it came from: what stands behind "ACAD_".
OdString withoutForeignPrefix(const OdString& patternName);

} // namespace tc
