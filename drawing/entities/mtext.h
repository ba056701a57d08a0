// MTEXT.
#pragma once

#include "drawing/entities/entity.h"
#include "drawing/graphics/world_draw.h"
#include "drawing/mtext/layout.h"

/// Text of several lines with formatting codes.
class OdDbMText : public OdDbEntity {
  ODDB_CONCRETE(OdDbMText, "MTEXT")

  enum AttachmentPoint : std::uint8_t {
    kTopLeft = 1,
    kTopCenter,
    kTopRight,
    kMiddleLeft,
    kMiddleCenter,
    kMiddleRight,
    kBottomLeft,
    kBottomCenter,
    kBottomRight
  };
  enum FlowDirection : std::uint8_t { kLeftToRight = 1, kTopToBottom = 3, kByStyle = 5 };
  enum LineSpacingStyle : std::uint8_t { kAtLeast = 1, kExactly = 2 };

  /// Also takes the current text style and text height.
  void setDatabaseDefaults(const OdDbDatabase& database) override;

  /// The text with its formatting codes.
  const OdString& contents() const { return m_mtext.contents; }
  void setContents(const OdString& contents);
  /// The text without codes, lines ended by line breaks.
  OdString plainText() const;
  /// Where the text is fastened, in world coordinates.
  const OdGePoint3d& location() const { return m_mtext.location; }
  void setLocation(const OdGePoint3d& location);
  AttachmentPoint attachment() const;
  void setAttachment(AttachmentPoint attachment);
  FlowDirection flowDirection() const;
  void setFlowDirection(FlowDirection direction);
  double textHeight() const { return m_mtext.height; }
  /// Raises OdError(eInvalidInput) unless above 0.
  void setTextHeight(double height);
  /// The width at which lines wrap; 0 for no wrapping.
  double width() const { return std::max(m_mtext.width, 0.0); }
  void setWidth(double width);
  /// Radians, from the x axis of the text's plane.
  double rotation() const;
  void setRotation(double angle);
  /// In world coordinates, of length 1.
  OdGeVector3d direction() const;
  void setDirection(const OdGeVector3d& direction);
  const OdGeVector3d& normal() const { return m_mtext.normal; }
  void setNormal(const OdGeVector3d& normal);
  OdDbObjectId textStyle() const { return m_mtext.style; }
  void setTextStyle(OdDbObjectId style);
  LineSpacingStyle lineSpacingStyle() const;
  void setLineSpacingStyle(LineSpacingStyle style);
  double lineSpacingFactor() const { return m_mtext.spacingFactor; }
  /// Raises OdError(eInvalidInput) unless 0.25 to 4.
  void setLineSpacingFactor(double factor);

  /// An area behind the text: in a colour, or in that of the drawing's ground.
  bool backgroundFillOn() const { return m_mtext.background & 1; }
  void setBackgroundFill(bool on);
  bool useBackgroundColorOn() const { return m_mtext.background & 2; }
  void setUseBackgroundColor(bool on);
  const OdCmColor& backgroundFillColor() const { return m_mtext.fillColor; }
  void setBackgroundFillColor(const OdCmColor& color);
  /// How much larger than the text the area is, by the height of the text; from 1 to 5.
  double backgroundScaleFactor() const { return m_mtext.fillScale; }
  void setBackgroundScaleFactor(double factor);
  bool hasFrame() const { return m_mtext.background & 16; }

  /// The columns of the text as the file tells them; count 0 if there are none.
  const OdMTextColumns& columns() const { return m_mtext.columns; }
  /// Files of R2018 have them with the text, older ones in extended data.
  void setColumns(const OdMTextColumns& columns);

  /// Where each run of letters comes to stand, in the text's own plane: x along the lines, the
  /// attachment point at the origin.
  OdMTextLayout layout() const;
  /// From the layout's plane to the world.
  OdGeMatrix3d layoutToWorld() const;
  /// The size of the text as it is laid out.
  double actualWidth() const;
  double actualHeight() const;

  void worldDraw(OdGiWorldDraw& draw) const override;
  bool transformBy(const OdGeMatrix3d& transform) override;
  /// Into one TEXT for each run.
  bool explode(std::vector<OdDbEntityPtr>& pieces) const override;
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfInEnd(OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;
  void dxfOutXData(OdDbDxfOut& out) const override;

  /// Takes and writes the fields without the rest of an entity, as attributes have them.
  bool takeField(const OdDbDxfTag& tag, OdDbDxfIn& in);
  void putFields(OdDbDxfOut& out) const;

  /// What the file knows of the text.
  struct Data {
    OdGePoint3d location;
    double height = 1, definedHeight = 0;
    /// The file says so even if it says nothing new.
    bool tellsDefinedHeight = false, tellsColumns = false;
    double width = -1; ///< below 0: not given
    double spacingFactor = 1, fillScale = 1.5;
    double rotation = 0;    ///< counts unless there is a direction
    OdGeVector3d direction; ///< in world coordinates; without length: not given
    OdGeVector3d normal = OdGeVector3d::zAxis();
    double extentsWidth = 0, extentsHeight = 0; ///< as the last program saw them
    OdString contents;
    OdDbObjectId style;
    int attachment = 1, flow = 1, spacingStyle = 1, background = 0, fillTransparency = 0;
    double totalWidth = 0, totalHeight = 0; ///< the same of all columns together
    bool hasEmbedded = false;               ///< the file has the part that tells the columns
    bool directionLast = false; ///< the direction stood behind the rotation, and so counts
    bool hasFillColor = false;
    int fillIndex = -1; ///< as the file has it beside a true colour
    OdCmColor fillColor;
    OdMTextColumns columns;
  };

 private:
  std::vector<OdGiTextRun> runsOf(const OdMTextLayout& shown) const;
  static int mirrored(int attachment, bool alongLines);
  void putColumns(OdDbDxfOut& out) const;
  void takeOldColumns();
  bool takeColumnField(const OdDbDxfTag& tag, OdDbDxfIn& in);
  Data m_mtext;
  bool m_embedded = false; ///< while reading
};
using OdDbMTextPtr = OdSmartPtr<OdDbMText>;
