// The tool that inserts a block, a whole drawing or an external reference.
#pragma once

#include "tools/action_agent_impl_base.h"
#include "tools/command_conveyor.h"

#include <optional>

namespace tc {

/// What a block tool keeps; the rotation is in radians.
struct OdTcBlockFields {
  OdString name;
  OdString sourceFile;
  double scale = 1.0;
  double rotation = 0.0;
  std::int32_t blockType = 1; ///< 1 a block of the source file, 2 the source file itself
  std::int32_t blockTypeEx = 0;
  std::int32_t insertAs = 1; ///< 1 a block, 2 an external reference
  std::int32_t xrefType = 0; ///< 1 an attachment, 2 an overlay
  bool isAskForRotation = false;
  bool isExplode = false;
  bool isQueryAttributes = true;
};

/// Element `Block`. Running it only prepares a request for the hidden command.
class OdTcToolBlockCommandImpl final : public OdTcToolActionAgentImplBase<OdTcToolBlockCommand> {
 public:
  OdString elementName() const override { return QStringLiteral("Block"); }

  /// False without a document or a command conveyor.
  bool execute(IHostDocument* document) override;
  /// Keeps `ATTREQ` and sets it as the tool says.
  void beginExecution(IHostDocument* document) override;
  void endExecution(IHostDocument* document) override;

  void writeProperties(OdTcFiler* filer) override;
  bool makePicture(OdTcImage& image, OdTcSourceFiles& files) const override;
  OdString sourcePath() const override { return m_fields.sourceFile; }
  void setSourcePath(const OdString& path) override { m_fields.sourceFile = path; }
  bool readProperty(const OdString& name, const OdVariant& value) override;
  void createProperties() override;
  OdRxObjectPtr clone() const override;

  const OdTcBlockFields& fields() const { return m_fields; }
  /// Rebuilds the property list.
  void setBlockType(std::int32_t type);

  OdString getName() const { return m_fields.name; }
  void setName(const OdString& name) { m_fields.name = name; }
  OdString getSourceFile() const { return m_fields.sourceFile; }
  void setSourceFile(const OdString& path) { m_fields.sourceFile = path; }
  OdString getSourceFileFilter() const;
  std::int32_t getInsertAs() const { return m_fields.insertAs; }
  void setInsertAs(std::int32_t insertAs) { m_fields.insertAs = insertAs; }
  OdTcChoices getInsertAsAsEnum() const;
  std::int32_t getXrefType() const { return m_fields.xrefType; }
  void setXrefType(std::int32_t type) { m_fields.xrefType = type; }
  OdTcChoices getXrefTypeEnum() const;
  double getScale() const { return m_fields.scale; }
  void setScale(double scale) { m_fields.scale = scale; }
  /// What the scale is multiplied by, in the user's language; empty after a file said nothing.
  OdString getAux() const;
  void setAux(const OdString& text);
  OdTcChoices getAuxScaleEnum() const;
  double getRotation() const { return m_fields.rotation; }
  void setRotation(double angle) { m_fields.rotation = angle; }
  bool getIsAskForRotation() const { return m_fields.isAskForRotation; }
  void setIsAskForRotaion(bool ask) { m_fields.isAskForRotation = ask; }
  bool getIsQueryAttributes() const { return m_fields.isQueryAttributes; }
  void setIsQueryAttributes(bool query) { m_fields.isQueryAttributes = query; }
  bool getIsExplode() const { return m_fields.isExplode; }
  void setIsExplode(bool explode) { m_fields.isExplode = explode; }

  /// True if the source file is inserted whole, so that there is a choice between a block and an
  /// external reference.
  bool isWholeFile() const { return m_fields.blockType == 2; }
  /// An xref type can be chosen for external references only; those have no attributes and cannot
  /// be exploded.
  bool xrefTypeEnabler() const { return isWholeFile() && m_fields.insertAs == 2; }
  bool isExplodable() const { return !xrefTypeEnabler(); }
  bool isQueryAttributes() const { return !xrefTypeEnabler(); }

 protected:
  std::span<const QStringView> hiddenProperties() const override { return kHiddenByInsertion; }

 private:
  enum class AuxScale : std::uint8_t { kNone, kUnset, kPlotScale, kDimscale };
  struct AuxRow;
  static const AuxRow kAuxScales[];

  OdTcBlockRequest makeRequest(IHostDocument& document) const;

  OdTcBlockFields m_fields;
  std::optional<std::int32_t> m_savedAttReq; ///< of the run that goes on
  AuxScale m_auxScale = AuxScale::kNone;
};

} // namespace tc
