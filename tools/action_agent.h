// What a tool does.
#pragma once

#include "module/persist.h"

class IHostDocument;

namespace tc {

class OdTcImage;
class OdTcProperty;
class OdTcPropertyBag;
class OdTcPropertyFilter;
class OdTcSourceFiles;
class OdTcTool;

/// Decides how a tool runs. The element name of the agent inside a tool's `Data` says its kind.
class OdTcToolActionAgent : public OdTcPersist {
  ODRX_DECLARE_MEMBERS_EX(OdTcToolActionAgent, TC_API);

 public:
  /// Types what the tool does into the document's command line; false if there is nothing to type.
  virtual bool execute(IHostDocument* document) = 0;
  virtual void setCommandString(const OdString& text) = 0;
  virtual OdString commandString() const = 0;
  /// The agent's own properties, for the inspector.
  virtual OdTcPropertyBag* properties() const = 0;
  /// Names of general properties that this kind hides and does not apply.
  virtual OdTcPropertyFilter* propertyFilter() const = 0;
  /// Called in a pair around a run.
  virtual void beginExecution(IHostDocument* document) = 0;
  virtual void endExecution(IHostDocument* document) = 0;
  /// False for kinds of foreign palettes that cannot run here.
  virtual bool isSupported() const = 0;
  virtual bool isSpecial() const = 0;

  /// Called after the agent's fields were copied into a clone.
  virtual void afterClone() = 0;
  /// Makes the pictures of the tool anew where imported ones are useless; false if nothing was
  /// done.
  virtual bool refreshImages(IHostDocument* document) = 0;
  /// Makes the picture of what the tool acts on in the size of `image`, which knows its palette.
  /// False, with nothing changed, if the kind has none or none comes of it.
  virtual bool makePicture(OdTcImage& /*image*/, OdTcSourceFiles& /*files*/) const { return false; }
  /// Takes from the host what the agent shows of it.
  virtual void updateFromHost() = 0;
  /// The stored path of the file that the tool brings in; empty if there is none.
  virtual OdString sourcePath() const { return {}; }
  /// Does nothing on kinds that bring no file in.
  virtual void setSourcePath(const OdString& /*path*/) {}
  /// A general property of the tool changed; true if the agent acted on it.
  virtual bool onPropertyChanged(OdTcProperty* property) = 0;
};
using OdTcToolActionAgentPtr = OdSmartPtr<OdTcToolActionAgent>;

/// The registered kinds. They add nothing: what is particular to a kind lies behind its properties.
class OdTcToolCommand : public OdTcToolActionAgent {
  ODRX_DECLARE_MEMBERS_EX(OdTcToolCommand, TC_API);
};
class OdTcToolBlockCommand : public OdTcToolActionAgent {
  ODRX_DECLARE_MEMBERS_EX(OdTcToolBlockCommand, TC_API);
};
class OdTcToolHatchCommand : public OdTcToolActionAgent {
  ODRX_DECLARE_MEMBERS_EX(OdTcToolHatchCommand, TC_API);
};
class OdTcToolRasterCommand : public OdTcToolActionAgent {
  ODRX_DECLARE_MEMBERS_EX(OdTcToolRasterCommand, TC_API);
};

} // namespace tc
