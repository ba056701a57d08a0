// The texts of an entity that a user can change.
#pragma once

#include "drafton/engine/prompt.h"
#include "drawing/object_id.h"

#include <vector>

namespace drafton {

/// One text of an entity.
struct EditedText {
  enum class Part {
    kText, ///< of a TEXT, an MTEXT, a dimension or an attribute
    kTag,  ///< of an attribute definition, as is what follows
    kPrompt,
    kDefault,
  };

  OdDbObjectId owner;
  Part part = Part::kText;
  OdString question, now;
  TextEditing form = TextEditing::kLine;
  OdGePoint3d place; ///< the upper left corner, as it is seen from above
};

/// What can be edited of an entity, in the order in which it is asked for. Of an insert these are
/// the values of its attributes: the one at `point` alone if there is one, as near as `reach`.
/// Empty for what has no text of its own.
std::vector<EditedText> editedTexts(OdDbObjectId entity, const std::optional<OdGePoint3d>& point,
                                    double reach);

/// Why a text cannot be that, in words; empty if it can.
OdString editingFault(const EditedText& edited, const OdString& text);

/// Puts a text without fault into the place of the former one.
void setEditedText(const EditedText& edited, const OdString& text);

} // namespace drafton
