// Finding entities in the space that is shown.
#pragma once

#include "drafton/engine/selection_filter.h"
#include "drafton/engine/selection_region.h"

class OdDbDatabase;

namespace drafton {

class Document;

/// Entities in the order in which they were chosen, each once.
using Selection = std::vector<OdDbObjectId>;

/// Finds what a user points at. Only the space that is shown counts; what is invisible or on a
/// locked, off or frozen layer is not found, nor what the filter refuses. Results are in drawing
/// order.
class SelectionPicker {
 public:
  explicit SelectionPicker(Document& document)
    : m_document(document) {}

  SelectionFilter& filter() { return m_filter; }

  Selection all() const;
  /// The entity that was drawn last.
  Selection last() const;
  /// Those of the latest finished choice that can still be found.
  Selection previous() const;
  /// The topmost entity near a point.
  Selection at(const OdGePoint3d& point) const;
  Selection inside(const SelectionRegion& region) const;
  Selection meeting(const SelectionRegion& region) const;
  Selection byHandle(const OdString& handle) const;
  /// The entities of a list that can be found.
  Selection amongst(const Selection& entities) const;

  /// How far a point may lie from what it picks, in drawing units.
  double reach() const;

 private:
  struct Candidate {
    OdDbObjectId id;
    FlatBox box; ///< empty if nobody knows it
  };
  bool isReachable(const OdDbEntity& entity) const;
  std::vector<Candidate> candidates() const;
  OdDbDatabase& database() const;

  Document& m_document;
  SelectionFilter m_filter;
};

} // namespace drafton
