// The tool that applies a hatch or a gradient.
#pragma once

#include "drawing/color.h"
#include "properties/compact_text.h"
#include "tools/action_agent_impl_base.h"
#include "tools/gradient_colors.h"

#include <memory>
#include <optional>

class OdDbDatabase;

namespace tc {

class OdTcImage;

/// What a hatch tool keeps; angles are in radians.
struct OdTcHatchFields {
  OdString patternName;
  OdString sourceFile = QStringLiteral("draftoniso.pat");
  OdString gradientName = QStringLiteral("LINEAR"); ///< the stored key
  OdString auxScale;                                ///< in English; null: "None"
  double angle = 0.0;
  double scale = 0.0;
  double spacing = 0.0;
  double penWidth = 100.0;
  double blockExtent = 0.0;
  double gradientAngle = 0.0;
  std::int32_t hatchObjectType = 0; ///< 0 hatch, 1 gradient
  std::int32_t hatchType = 0;       ///< 0 user defined, 1 standard, 2 custom
  bool isGradientCentered = false;
  bool isCrosswise = false;
};

/// Element `Hatch`. A run sets the host's hatch variables, types a command and puts the variables
/// back when the command has ended.
class OdTcToolHatchCommandImpl final : public OdTcToolActionAgentImplBase<OdTcToolHatchCommand> {
 public:
  OdTcToolHatchCommandImpl();
  ~OdTcToolHatchCommandImpl() override;

  OdString elementName() const override { return QStringLiteral("Hatch"); }

  bool execute(IHostDocument* document) override;
  void beginExecution(IHostDocument* document) override;
  void endExecution(IHostDocument* document) override;
  /// Takes the tool's general colour for its pictures, and makes these anew. Always true.
  bool onPropertyChanged(OdTcProperty* property) override;
  /// Puts pictures of our own in the place of those that lie in a library of another program;
  /// false if the tool has others, or no picture came of it.
  bool refreshImages(IHostDocument* document) override;
  /// Makes the pictures of a pattern in all sizes and hands them to open dialogs. Nothing happens
  /// while images are disabled.
  void updateImages(const OdString& pattern);
  void setImagesEnabled(bool enabled) { m_imagesEnabled = enabled; }
  /// Makes the tool's picture in an image of a size; false if there is none.
  bool renderImage(OdTcImage& image) const;

  bool readElements(OdTcFiler* filer) override;
  void writeProperties(OdTcFiler* filer) override;
  bool makePicture(OdTcImage& image, OdTcSourceFiles& files) const override;
  OdString sourcePath() const override { return m_fields.sourceFile; }
  void setSourcePath(const OdString& path) override { m_fields.sourceFile = path; }
  bool readProperty(const OdString& name, const OdVariant& value) override;
  void createProperties() override;
  OdRxObjectPtr clone() const override;

  const OdTcHatchFields& fields() const { return m_fields; }
  /// The pattern that the host must have for the tool to run; empty for a gradient, for lines of
  /// the user's own, for a filling, and for a pattern that comes from a file of its own.
  OdString namedPattern() const;
  /// The same, and a pattern that comes from a file of its own as well.
  OdString soughtPattern() const;
  /// Where the host is to look for the pattern: the file, from the palette's folder if it is there;
  /// empty for lines of the user's own.
  OdString patternFile() const;
  OdString getSourceFile() const { return m_fields.sourceFile; }
  void setSourceFile(const OdString& path) { m_fields.sourceFile = path; }
  const OdCmColor& previewColor() const { return m_previewColor; }

  /// 0 a hatch, 1 a gradient. Setting it rebuilds the property list.
  std::int32_t getHatchPatternSource() const { return m_fields.hatchObjectType; }
  void setHatchPatternSource(std::int32_t source);
  OdTcChoices getHatchPatternSourceEnum() const;
  std::int32_t getHatchType() const { return m_fields.hatchType; }
  void setHatchType(std::int32_t type) { m_fields.hatchType = type; }
  OdTcChoices getHatchTypeEnum() const;
  OdString getPatternName() const { return m_fields.patternName; }
  void setPatternName(const OdString& name) { m_fields.patternName = name; }
  /// Lets the user choose a pattern; false if that was cancelled or there is no dialog.
  bool showHatchPatternSelectDlg();
  double getAngle() const { return m_fields.angle; }
  void setAngle(double angle) { m_fields.angle = angle; }
  double getScale() const { return m_fields.scale; }
  void setScale(double scale) { m_fields.scale = scale; }
  OdString getAuxScale() const;
  void setAuxScale(const OdString& text);
  OdTcChoices getAuxScaleEnum() const;
  double getSpacing() const { return m_fields.spacing; }
  void setSpacing(double spacing) { m_fields.spacing = spacing; }
  bool getIsCrosswise() const { return m_fields.isCrosswise; }
  void setIsCrosswise(bool crosswise) { m_fields.isCrosswise = crosswise; }
  OdCmColor getGradientColor1() const { return gradientColor(0); }
  void setGradientColor1(const OdCmColor& color) { setGradientColor(0, color); }
  OdCmColor getGradientColor2() const { return gradientColor(1); }
  void setGradientColor2(const OdCmColor& color) { setGradientColor(1, color); }
  double getGradientAngle() const { return m_fields.gradientAngle; }
  void setGradientAngle(double angle) { m_fields.gradientAngle = angle; }
  bool getIsGradientCentered() const { return m_fields.isGradientCentered; }
  void setGradientCentered(bool centered) { m_fields.isGradientCentered = centered; }
  /// The gradient's name in the user's language.
  OdString getGradientName() const;
  void setGradientName(const OdString& displayName);
  OdTcChoices getGradientNamesEnum() const;

  bool isHatchPropVisible() const { return m_fields.hatchObjectType == 0; }
  bool isGradientPropVisible() const { return m_fields.hatchObjectType == 1; }
  /// A hatch and a gradient can be exchanged for one another at any time.
  bool hatchTypeEnabler() const { return true; }
  /// A user-defined hatch has a spacing and can be crossed; the others have a scale.
  bool scaleEnabler() const { return m_fields.hatchType != 0; }
  bool auxScaleEnabler() const { return m_fields.hatchType != 0; }
  bool spacingEnabler() const { return m_fields.hatchType == 0; }
  bool crosswiseEnabler() const { return m_fields.hatchType == 0; }

  /// Chooses a pattern, given the current one; nothing if that was cancelled. Set by the part of
  /// the program that has windows.
  using PatternDialog = std::optional<OdString> (*)(const OdString& current);
  static void setPatternDialog(PatternDialog dialog);

 protected:
  std::span<const QStringView> hiddenProperties() const override { return kHiddenByInsertion; }

 private:
  struct Saved;
  Saved& saved();
  OdCmColor gradientColor(std::size_t index) const;
  void setGradientColor(std::size_t index, const OdCmColor& color);
  std::optional<OdCmColor> generalColor() const;
  OdCmColor runColor(const OdDbDatabase* database) const;
  /// A pattern of that name in this tool is lines of the user's own, as the host sees it: a filling
  /// is one whatever the type says.
  bool isUserDefined(const OdString& pattern) const;
  /// A filling by layer or by block has no colour of its own: the host shows it in one that is seen
  /// on any ground.
  static std::optional<OdCmColor> ownColorOf(const std::optional<OdCmColor>& color);
  bool renderPattern(OdTcImage& image, const OdString& pattern,
                     const std::optional<OdCmColor>& color) const;
  void takeAuxiliaryScale(const OdDbDatabase* database);
  void beginHatch(IHostDocument& document);
  void beginGradient(IHostDocument& document);
  void takePatternName(const OdString& name);
  void takeHatchType();

  OdTcHatchFields m_fields;
  OdSmartPtr<OdTcGradientColorsImpl> m_colors;
  OdCmColor m_previewColor;
  bool m_imagesEnabled = true;
  std::unique_ptr<Saved> m_saved;
  // The pattern name of a file that tells it before the hatch type.
  CompactText m_earlyPattern;
};

} // namespace tc
