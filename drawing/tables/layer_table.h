// Layers.
#pragma once

#include "drawing/color.h"
#include "drawing/tables/symbol_table.h"

/// A layer: what its entities look like unless they say otherwise.
class OdDbLayerTableRecord : public OdDbSymbolTableRecord {
  ODDB_CONCRETE(OdDbLayerTableRecord, "LAYER")

  const OdCmColor& color() const { return m_layer.color; }
  void setColor(const OdCmColor& color);
  /// Null stands for Continuous.
  OdDbObjectId linetypeObjectId() const { return m_layer.linetype; }
  void setLinetypeObjectId(OdDbObjectId linetype);
  OdDb::LineWeight lineWeight() const { return m_layer.lineWeight; }
  void setLineWeight(OdDb::LineWeight weight);
  bool isPlottable() const { return m_layer.plottable; }
  void setIsPlottable(bool plottable);
  /// Empty if the layer has none.
  OdString plotStyleName() const;
  /// Before the layer is in a drawing the name is only remembered; afterwards the drawing gets the
  /// plot style if it lacks it.
  void setPlotStyleName(const OdString& name);
  OdDbObjectId plotStyleNameId() const { return m_layer.plotStyle; }
  void setPlotStyleName(OdDbObjectId id);
  /// The text by which users explain the layer; empty if there is none. Files keep it in extended
  /// data.
  OdString description() const;
  /// Takes one line; an empty text takes the description away.
  void setDescription(const OdString& text);
  bool isOff() const { return m_layer.off; }
  void setIsOff(bool off);
  bool isFrozen() const { return hasFlag(1); }
  void setIsFrozen(bool frozen) { setFlag(1, frozen); }
  bool isLocked() const { return hasFlag(4); }
  void setIsLocked(bool locked) { setFlag(4, locked); }

  const char* dxfSubclass() const override { return "AcDbLayerTableRecord"; }
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfInEnd(OdDbDxfIn& in) override;

 protected:
  void dxfOutFields(OdDbDxfOut& out) const override;
  void enteredDatabase() override;

 private:
  struct Data {
    OdCmColor color = OdCmColor::fromColorIndex(OdCmColor::kACIforeground);
    OdDbObjectId linetype, plotStyle;
    OdString plotStyleName;
    OdDb::LineWeight lineWeight = OdDb::kLnWtByLwDefault;
    bool plottable = true, off = false;
    std::int16_t indexInFile = -1; ///< that the file tells beside a true colour; below 0: none
  };
  void registerDescriptions();
  Data m_layer;
};

/// The drawing's layers.
ODDB_TABLE(OdDbLayerTable, OdDbLayerTableRecord, "LAYER");
