// Whoever wants to know what happens to a drawing.
#pragma once

#include "drawing/object_id.h"

/// Learns of changes. Reactors are called in the order in which they were added; they may not
/// change the drawing from within a call.
class OdDbDatabaseReactor {
 public:
  virtual ~OdDbDatabaseReactor() = default;

  /// A new object is in the drawing, or a taken-back one is in it again.
  virtual void objectAppended(const OdDbDatabase&, OdDbObjectId) {}
  /// The step that made an object was undone; the id stays valid but opens nothing.
  virtual void objectUnAppended(const OdDbDatabase&, OdDbObjectId) {}
  /// An object was changed. Changes are gathered: one call for an object between two deliveries
  /// (see OdDbDatabase::deliverChanges).
  virtual void objectModified(const OdDbDatabase&, OdDbObjectId) {}
  /// An object was erased, or that was taken back.
  virtual void objectErased(const OdDbDatabase&, OdDbObjectId, bool /*erased*/) {}
  /// A header variable was changed; `name` is without `$`.
  virtual void headerSysVarChanged(const OdDbDatabase&, const OdString& /*name*/) {}
  /// The drawing is about to be destroyed.
  virtual void goodbye(const OdDbDatabase&) {}
};
