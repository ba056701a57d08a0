// GROUP.
#pragma once

#include "drawing/object.h"

#include <vector>

/// Entities that are picked together.
class OdDbGroup : public OdDbObject {
  ODDB_CONCRETE(OdDbGroup, "GROUP")

  /// The name in the dictionary of groups; empty if it stands in none.
  OdString getName() const;
  const OdString& description() const { return m_group.description; }
  void setDescription(const OdString& text);
  bool isAnonymous() const { return m_group.unnamed != 0; }
  bool isSelectable() const { return m_group.selectable != 0; }
  void setSelectable(bool selectable);
  /// The entities that are not erased, in their order.
  std::vector<OdDbObjectId> allEntityIds() const;
  unsigned numEntities() const { return static_cast<unsigned>(allEntityIds().size()); }
  void append(OdDbObjectId entity);
  void remove(OdDbObjectId entity);
  void clear();
  bool has(OdDbObjectId entity) const;

  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;

  /// What the file knows of a group.
  struct Data {
    OdString description;
    int unnamed = 0, selectable = 1;
    std::vector<OdDbObjectId> entities;
  };

 private:
  friend class OdDbObject;
  Data m_group;
};
using OdDbGroupPtr = OdSmartPtr<OdDbGroup>;
