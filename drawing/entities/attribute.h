// ATTRIB.
#pragma once

#include "drawing/entities/attribute_definition.h"

/// A text of an insert, under the tag of its definition.
class OdDbAttribute : public OdDbAttributeText {
  ODDB_CONCRETE(OdDbAttribute, "ATTRIB")

  /// Takes tag, look, place (moved by `blockToWorld`) and the value from a definition. False if the
  /// text cannot take the shape that it would have to take; it is then placed as well as it can be.
  bool setAttributeFromBlock(const OdDbAttributeDefinition& definition,
                             const OdGeMatrix3d& blockToWorld);

 protected:
  const char* dxfSubclass() const override { return "AcDbAttribute"; }
  bool hasPrompt() const override { return false; }
};
using OdDbAttributePtr = OdSmartPtr<OdDbAttribute>;
