// Writing the entities of a block or a space.
#pragma once

#include "drawing/dxf/crew.h"
#include "drawing/dxf/out.h"

#include <span>

/// Writes entities with what follows each of them. Of many, runs are put into words by several
/// threads and written in their order; no more than a few runs are in memory.
class OdDbDxfEntitiesOut {
 public:
  OdDbDxfEntitiesOut(OdDbDxfOut& out, std::size_t threads);
  ~OdDbDxfEntitiesOut();

  /// Leaves out those that are erased or came with an external reference.
  void write(std::span<const OdDbObjectId> ids);

 private:
  class Run;
  void writeOldest();

  OdDbDxfOut& m_out;
  OdDbDxfCrew m_crew;
  std::vector<std::unique_ptr<Run>> m_free; ///< that were written and can be filled again
};
