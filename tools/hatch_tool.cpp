#include "tools/hatch_tool.h"

#include "frame/file_path.h"
#include "module/persist_cast.h"
#include "properties/gradient_names.h"
#include "properties/owned_part.h"
#include "tools/object_property_families.h"
#include "tools/tool_source.h"

#include <algorithm>

namespace tc {
namespace {

using Hatch = OdTcToolHatchCommandImpl;
using Fields = OdTcHatchFields;
using Field = StoredField<Fields>;

constexpr std::array kFields = {
    Field{u"hatchObjectType", &Fields::hatchObjectType},
    Field{u"HatchType", &Fields::hatchType},
    Field{u"PatternName", &Fields::patternName},
    Field{u"SourceFile", &Fields::sourceFile, FieldForm::kPath},
    Field{u"Angle", &Fields::angle},
    Field{u"Scale", &Fields::scale},
    Field{u"AuxiliaryScale", &Fields::auxScale},
    Field{u"Spacing", &Fields::spacing},
    Field{u"PenWidth", &Fields::penWidth},
    Field{u"Double", &Fields::isCrosswise},
    Field{u"BlockExtent", &Fields::blockExtent},
    Field{u"GradientAngle", &Fields::gradientAngle},
    Field{u"GradientCentered", &Fields::isGradientCentered},
    Field{u"GradientName", &Fields::gradientName},
};

using HatchOnly = Get<&Hatch::isHatchPropVisible>;
using GradientOnly = Get<&Hatch::isGradientPropVisible>;

template <auto Getter, auto Setter, auto List, class Value, class IsEnabled, class Visible>
constexpr auto kChoice =
    makeObjectProperty<OdTcMultiverseObjectPropertyImplEx<Hatch, Value, Get<Getter>, Set<Setter>,
                                                          Get<List>, IsEnabled, Visible>>;
template <auto Getter, auto Setter, class IsEnabled>
constexpr auto kNumber = makeObjectProperty<
    OdTcDoubleObjectPropertyImplEx<Hatch, Get<Getter>, Set<Setter>, IsEnabled, HatchOnly>>;
template <auto Getter, auto Setter, class Visible>
constexpr auto kAngle =
    makeObjectProperty<OdTcAnglePropertyImplEx<Hatch, Get<Getter>, Set<Setter>, Always, Visible>>;
template <auto Getter, auto Setter, class IsEnabled, class Visible>
constexpr auto kFlag = makeObjectProperty<
    OdTcBoolObjectPropertyImplEx<Hatch, Get<Getter>, Set<Setter>, IsEnabled, Visible>>;
template <auto Getter, auto Setter>
constexpr auto kColor = makeObjectProperty<
    OdTcColorObjectPropertyImplEx<Hatch, Get<Getter>, Set<Setter>, Always, GradientOnly>>;

constexpr std::array kProperties = {
    ObjectPropertyRow{u"Sample.Instrument type",
                      kChoice<&Hatch::getHatchPatternSource, &Hatch::setHatchPatternSource,
                              &Hatch::getHatchPatternSourceEnum, std::int32_t,
                              Get<&Hatch::hatchTypeEnabler>, HatchOnly>},
    ObjectPropertyRow{u"Sample.Type",
                      kChoice<&Hatch::getHatchType, &Hatch::setHatchType, &Hatch::getHatchTypeEnum,
                              std::int32_t, Always, Always>},
    ObjectPropertyRow{u"Sample.Pattern name",
                      makeObjectProperty<OdTcCallbackObjectPropertyImpl<
                          Hatch, Get<&Hatch::getPatternName>, Set<&Hatch::setPatternName>,
                          Run<&Hatch::showHatchPatternSelectDlg>, Always, HatchOnly>>},
    ObjectPropertyRow{u"Sample.Angle", kAngle<&Hatch::getAngle, &Hatch::setAngle, HatchOnly>},
    ObjectPropertyRow{u"Sample.Scale",
                      kNumber<&Hatch::getScale, &Hatch::setScale, Get<&Hatch::scaleEnabler>>},
    ObjectPropertyRow{u"Sample.Auxiliary scale",
                      kChoice<&Hatch::getAuxScale, &Hatch::setAuxScale, &Hatch::getAuxScaleEnum,
                              OdString, Get<&Hatch::auxScaleEnabler>, HatchOnly>},
    ObjectPropertyRow{u"Sample.Spacing",
                      kNumber<&Hatch::getSpacing, &Hatch::setSpacing, Get<&Hatch::spacingEnabler>>},
    ObjectPropertyRow{u"Sample.Crosswise", kFlag<&Hatch::getIsCrosswise, &Hatch::setIsCrosswise,
                                                 Get<&Hatch::crosswiseEnabler>, HatchOnly>},
    ObjectPropertyRow{u"Sample.Color 1",
                      kColor<&Hatch::getGradientColor1, &Hatch::setGradientColor1>},
    ObjectPropertyRow{u"Sample.Color 2",
                      kColor<&Hatch::getGradientColor2, &Hatch::setGradientColor2>},
    ObjectPropertyRow{u"Sample.Gradient angle",
                      kAngle<&Hatch::getGradientAngle, &Hatch::setGradientAngle, GradientOnly>},
    ObjectPropertyRow{
        u"Sample.Centered",
        kFlag<&Hatch::getIsGradientCentered, &Hatch::setGradientCentered, Always, GradientOnly>},
    ObjectPropertyRow{u"Sample.Gradient name",
                      kChoice<&Hatch::getGradientName, &Hatch::setGradientName,
                              &Hatch::getGradientNamesEnum, OdString, Always, GradientOnly>},
};

constexpr QStringView kNoAuxScale = u"None";
constexpr std::array<QStringView, 3> kAuxScales = {u"Dimscale", u"Plot scale", kNoAuxScale};

OdString translated(QStringView text) { return host::translate(text.toString()); }

/// Entries whose values are their positions.
OdTcChoices numbered(std::span<const QStringView> texts) {
  OdTcChoices choices;
  for (const QStringView text : texts)
    choices.push_back({static_cast<std::int32_t>(choices.size()), translated(text)});
  return choices;
}

/// Entries whose values are their texts.
OdTcChoice named(QStringView text) {
  const OdString shown = translated(text);
  return {shown, shown};
}

bool isSolid(const OdString& pattern) {
  return pattern.compare(QLatin1String("SOLID"), Qt::CaseInsensitive) == 0;
}

OdTcToolHatchCommandImpl::PatternDialog g_patternDialog = nullptr;

} // namespace

void OdTcToolHatchCommandImpl::setPatternDialog(PatternDialog dialog) { g_patternDialog = dialog; }

bool OdTcToolHatchCommandImpl::showHatchPatternSelectDlg() {
  const std::optional<OdString> chosen =
      g_patternDialog ? g_patternDialog(m_fields.patternName) : std::nullopt;
  if (chosen) setPatternName(*chosen);
  return chosen.has_value();
}

void OdTcToolHatchCommandImpl::setHatchPatternSource(std::int32_t source) {
  m_fields.hatchObjectType = source;
  createProperties();
}

OdTcChoices OdTcToolHatchCommandImpl::getHatchPatternSourceEnum() const {
  return numbered(std::array<QStringView, 2>{u"Hatch", u"Gradient"});
}

OdTcChoices OdTcToolHatchCommandImpl::getHatchTypeEnum() const {
  return numbered(std::array<QStringView, 3>{u"User defined", u"Standard", u"Custom"});
}

OdString OdTcToolHatchCommandImpl::getAuxScale() const {
  return translated(m_fields.auxScale.isNull() ? kNoAuxScale : QStringView(m_fields.auxScale));
}

/// Files hold the English word, so that a palette means the same in every language.
void OdTcToolHatchCommandImpl::setAuxScale(const OdString& text) {
  const auto word = std::find_if(kAuxScales.begin(), kAuxScales.end(),
                                 [&](QStringView row) { return translated(row) == text; });
  m_fields.auxScale = word == kAuxScales.end() ? text : word->toString();
}

OdTcChoices OdTcToolHatchCommandImpl::getAuxScaleEnum() const {
  OdTcChoices choices;
  for (const QStringView word : kAuxScales) choices.push_back(named(word));
  return choices;
}

OdString OdTcToolHatchCommandImpl::getGradientName() const {
  return gradientDisplayName(m_fields.gradientName);
}

void OdTcToolHatchCommandImpl::setGradientName(const OdString& displayName) {
  m_fields.gradientName = gradientKey(displayName);
}

OdTcChoices OdTcToolHatchCommandImpl::getGradientNamesEnum() const {
  OdTcChoices choices;
  for (const GradientRow& row : kGradients) choices.push_back(named(row.display));
  return choices;
}

OdCmColor OdTcToolHatchCommandImpl::gradientColor(std::size_t index) const {
  return m_colors ? m_colors->color(index) : OdCmColor();
}

void OdTcToolHatchCommandImpl::setGradientColor(std::size_t index, const OdCmColor& color) {
  if (!m_colors) m_colors = adoptPart(odrxMake<OdTcGradientColorsImpl>(), this);
  m_colors->setColor(index, color);
}

bool OdTcToolHatchCommandImpl::onPropertyChanged(OdTcProperty* property) {
  if (!property || property->getDisplayName() != translated(u"General.Color")) return true;
  if (const std::optional<OdCmColor> color = colorFromVariant(property->getValue()))
    m_previewColor = *color;
  updateImages(m_fields.patternName);
  return true;
}

// --- files

bool OdTcToolHatchCommandImpl::readElements(OdTcFiler* filer) {
  const bool isRead = OdTcToolActionAgentImplBase::readElements(filer);
  m_earlyPattern = CompactText();
  return isRead;
}

void OdTcToolHatchCommandImpl::writeProperties(OdTcFiler* filer) {
  Fields fields = m_fields;
  if (fields.auxScale.isNull()) fields.auxScale = kNoAuxScale.toString();
  writeAgentFields<Fields>(filer, fields, kFields);
  filer->writeObject(m_colors ? m_colors : odrxMake<OdTcGradientColorsImpl>());
}

/// The pattern of a user-defined hatch is always the one name, whatever the file says. In files of
/// other programs the name can come before the type that tells so.
void OdTcToolHatchCommandImpl::takePatternName(const OdString& name) {
  m_earlyPattern = name;
  m_fields.patternName = m_fields.hatchType == 0 ? translated(u"_USER") : name;
}

void OdTcToolHatchCommandImpl::takeHatchType() {
  if (m_earlyPattern.isEmpty()) return;
  m_fields.patternName = m_fields.hatchType == 0 ? translated(u"_USER") : m_earlyPattern.toString();
}

bool OdTcToolHatchCommandImpl::readProperty(const OdString& name, const OdVariant& value) {
  if (name == QLatin1String("GradientColors")) {
    m_colors = adoptPart(persistCast<OdTcGradientColorsImpl>(value), this);
    return true;
  }
  if (name == QLatin1String("PatternName")) {
    takePatternName(value.toString());
    return true;
  }
  if (!readStoredField<Fields>(m_fields, kFields, name, value)) return false;
  if (name == QLatin1String("HatchType")) takeHatchType();
  if (name == QLatin1String("hatchObjectType")) createProperties();
  return true;
}

void OdTcToolHatchCommandImpl::createProperties() { fillProperties(kProperties); }

bool OdTcToolHatchCommandImpl::isUserDefined(const OdString& pattern) const {
  return !isSolid(pattern) && (m_fields.hatchType == 0 || pattern == translated(u"_USER"));
}

OdString OdTcToolHatchCommandImpl::soughtPattern() const {
  const OdString& name = m_fields.patternName;
  const bool isSought = m_fields.hatchObjectType == 0 && !isSolid(name) && !isUserDefined(name);
  return isSought ? name : OdString();
}

OdString OdTcToolHatchCommandImpl::namedPattern() const {
  constexpr int kCustom = 2;
  const bool isOfFile =
      m_fields.hatchType == kCustom && !odpath::folderOf(m_fields.sourceFile).isEmpty();
  return isOfFile ? OdString() : soughtPattern();
}

OdString OdTcToolHatchCommandImpl::patternFile() const {
  const bool hasNone = m_fields.patternName == translated(u"_USER");
  return hasNone ? OdString() : sourceFromPalette(*this, m_fields.sourceFile);
}

OdRxObjectPtr OdTcToolHatchCommandImpl::clone() const {
  auto copy = odrxMake<OdTcToolHatchCommandImpl>();
  copy->m_fields = m_fields;
  copy->m_colors = clonePart(m_colors, copy);
  copy->m_previewColor = m_previewColor;
  copy->m_imagesEnabled = m_imagesEnabled;
  return finishClone(copy);
}

} // namespace tc
