// One entry on a palette.
#pragma once

#include "module/catalog_item.h"

#include <cstdint>

class IHostDocument;

namespace tc {

class OdTcPropertyBag;
class OdTcToolActionAgent;
class OdTcToolData;

/// A tool: an item with a type and a record of what it does.
class OdTcTool : public OdTcCatalogItem {
  ODRX_DECLARE_MEMBERS_EX(OdTcTool, TC_API);

 public:
  /// Kinds of entry. Only a regular tool can run.
  enum Type : std::uint32_t { kNoType = 0, kRegular = 1, kText = 3, kSeparator = 4 };

  /// Marks nothing as modified.
  virtual void setToolType(std::uint32_t type) = 0;
  virtual void setActionAgent(OdTcToolActionAgent* agent) = 0;
  /// Carries the tool out in a document, unless the guard refuses. Returns at once; the host's
  /// command goes on in its own time and the guard finishes the tool when it ends.
  virtual void execute(IHostDocument* document) = 0;
  /// Hands the object to the agent; false if either is missing.
  virtual bool applyToAgent(OdRxObject* object) = 0;
  /// Lets the agent make itself anew from this tool; false without an agent.
  virtual bool updateAgent() = 0;
  virtual bool isRunningMark() const = 0;
  virtual bool isRegular() const = 0;
  /// May be null. Borrowed.
  virtual OdTcToolActionAgent* getActionAgent() const = 0;
  virtual std::uint32_t getToolType() const = 0;
  virtual OdTcPropertyBag* getGeneralProperties() const = 0;

  virtual OdTcToolData* getData() const = 0;
  /// Ends the run: general properties and the agent's host variables go back. Nothing happens
  /// without a run.
  virtual void finish() = 0;
  /// Ends the run without putting anything back: its document is gone.
  virtual void abandonRun() = 0;
  /// The document in which the tool runs, or null.
  virtual IHostDocument* runningDocument() const = 0;
};
using OdTcToolPtr = OdSmartPtr<OdTcTool>;

} // namespace tc
