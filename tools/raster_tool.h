// The tool that attaches a raster image.
#pragma once

#include "tools/action_agent_impl_base.h"

namespace tc {

/// What a raster tool keeps; the rotation is in radians.
struct OdTcRasterFields {
  OdString rasterName;
  OdString sourceFile;
  double scale = 1.0;
  double rotation = 0.0;
};

/// Element `Raster`. Running it only prepares a request for the hidden command.
class OdTcToolRasterCommandImpl final : public OdTcToolActionAgentImplBase<OdTcToolRasterCommand> {
 public:
  OdString elementName() const override { return QStringLiteral("Raster"); }

  /// A relative source file is taken from the document's folder, or else from the palette's. False
  /// without a document or a command conveyor.
  bool execute(IHostDocument* document) override;

  void writeProperties(OdTcFiler* filer) override;
  bool makePicture(OdTcImage& image, OdTcSourceFiles& files) const override;
  OdString sourcePath() const override { return m_fields.sourceFile; }
  void setSourcePath(const OdString& path) override { m_fields.sourceFile = path; }
  bool readProperty(const OdString& name, const OdVariant& value) override;
  void createProperties() override;
  OdRxObjectPtr clone() const override;

  const OdTcRasterFields& fields() const { return m_fields; }
  OdString getRasterName() const { return m_fields.rasterName; }
  void setRasterName(const OdString& name) { m_fields.rasterName = name; }
  OdString getSourceFile() const { return m_fields.sourceFile; }
  void setSourceFile(const OdString& path) { m_fields.sourceFile = path; }
  OdString getSourceFileFilter() const;
  double getScale() const { return m_fields.scale; }
  void setScale(double scale) { m_fields.scale = scale; }
  double getRotation() const { return m_fields.rotation; }
  void setRotation(double angle) { m_fields.rotation = angle; }
  /// The name of the image follows its file: without one there is nothing to name.
  bool fileNameEnabler() const { return !m_fields.sourceFile.isEmpty(); }

 protected:
  std::span<const QStringView> hiddenProperties() const override { return kHiddenByInsertion; }

 private:
  OdString resolvedSource(const IHostDocument& document) const;

  OdTcRasterFields m_fields;
};

} // namespace tc
