// The run of a hatch tool: the host's variables, and the two fast commands.
#include "drawing/database.h"
#include "host/document.h"
#include "host/hatch_settings.h"
#include "host/variables.h"
#include "properties/color_value.h"
#include "properties/gradient_names.h"
#include "properties/property_basic_info.h"
#include "tools/hatch_tool.h"
#include "tools/plot_scale.h"
#include "tools/tool_data.h"

namespace tc {
namespace {

constexpr std::array<QStringView, 6> kHatchVariables = {u"HPNAME",   u"HPANG",   u"HPSCALE",
                                                        u"HPDOUBLE", u"HPSPACE", u"HPCOLOR"};
constexpr std::array<QStringView, 5> kGradientVariables = {u"GFNAME", u"GFANG", u"GFSHIFT",
                                                           u"GFCLR1", u"GFCLR2"};
constexpr QStringView kTypeSetting = u"hatch_type";
constexpr QStringView kFileSetting = u"hatch_pattern_file";

/// The host keeps names and values beyond the call.
OdString hostName(QStringView name) { return host::ownText(staticName(name)); }

template <std::size_t N>
void readAll(IHostVariables* variables, const std::array<QStringView, N>& names,
             std::array<OdVariant, N>& values) {
  for (std::size_t i = 0; variables && i < N; ++i) variables->get(staticName(names[i]), values[i]);
}

template <std::size_t N>
void writeAll(IHostVariables* variables, const std::array<QStringView, N>& names,
              const std::array<OdVariant, N>& values) {
  for (std::size_t i = 0; variables && i < N; ++i) variables->set(hostName(names[i]), values[i]);
}

void set(IHostVariables* variables, QStringView name, const OdVariant& value) {
  if (variables) variables->set(hostName(name), value);
}

OdVariant colorNumber(const OdCmColor& color) { return OdVariant(color.color()); }

/// The host counts the kinds of pattern in another order.
std::int32_t hostHatchType(std::int32_t hatchType) {
  switch (hatchType) {
  case 0:
    return 1;
  case 2:
    return 2;
  default:
    return 0;
  }
}

} // namespace

/// The host's values between a run's start and its end. One that cannot be read stays what it was
/// at the last run, or what it is here.
struct OdTcToolHatchCommandImpl::Saved {
  std::array<OdVariant, kHatchVariables.size()> hatch = {
      OdString(), 0.0, 0.0, std::int32_t{0}, 0.0, colorNumber(OdCmColor())};
  std::array<OdVariant, kGradientVariables.size()> gradient = {
      std::int32_t{0}, 0.0, std::int32_t{0}, colorNumber(OdCmColor()), colorNumber(OdCmColor())};
  OdVariant hatchType = std::int32_t{0};
  OdVariant patternFile = OdString();
  std::int32_t objectType = -1; ///< whose side they are: a tool may be changed while it runs
};

OdTcToolHatchCommandImpl::OdTcToolHatchCommandImpl() = default;
OdTcToolHatchCommandImpl::~OdTcToolHatchCommandImpl() = default;

OdTcToolHatchCommandImpl::Saved& OdTcToolHatchCommandImpl::saved() {
  if (!m_saved) m_saved = std::make_unique<Saved>();
  return *m_saved;
}

bool OdTcToolHatchCommandImpl::execute(IHostDocument* document) {
  if (!document) return false;
  IHostCommandInput* const input = document->commandInput();
  if (input && m_fields.hatchObjectType == 0)
    input->sendText(host::ownText(QStringLiteral("FASTHATCHCMD ")));
  else if (input && m_fields.hatchObjectType == 1)
    input->sendText(host::ownText(QStringLiteral("FASTGRADIENTCMD ")));
  return true;
}

/// The colour that the tool imposes; nothing if it leaves the drawing's own.
std::optional<OdCmColor> OdTcToolHatchCommandImpl::generalColor() const {
  const auto* const data = dynamic_cast<OdTcToolData*>(owner());
  OdTcPropertyBag* const bag = data ? data->generalProperties() : nullptr;
  const OdTcProperty* const color =
      bag ? bag->findByName(host::translate(QStringLiteral("General.Color"))) : nullptr;
  if (!color || (color->getBasicInfo() && color->getBasicInfo()->isUnspecified()))
    return std::nullopt;
  return colorFromVariant(color->getValue());
}

/// A tool without a colour of its own draws in the drawing's current one, as all tools do, and not
/// in what the last hatch had.
OdCmColor OdTcToolHatchCommandImpl::runColor(const OdDbDatabase* database) const {
  const OdCmColor current = database ? database->currentColor() : OdCmColor();
  return generalColor().value_or(current);
}

void OdTcToolHatchCommandImpl::beginExecution(IHostDocument* document) {
  if (!document) return;
  if (m_fields.hatchObjectType == 0)
    beginHatch(*document);
  else if (m_fields.hatchObjectType == 1)
    beginGradient(*document);
}

/// The field itself takes the effective scale: multiplied by the drawing's dimension scale, or
/// replaced by the layout's plot scale.
void OdTcToolHatchCommandImpl::takeAuxiliaryScale(const OdDbDatabase* database) {
  if (!database) return;
  if (getAuxScale() == host::translate(QStringLiteral("Dimscale")))
    m_fields.scale *= database->sysVarReal("DIMSCALE");
  else if (getAuxScale() == host::translate(QStringLiteral("Plot scale")))
    m_fields.scale = activePlotScale(*database).value_or(m_fields.scale);
}

void OdTcToolHatchCommandImpl::beginHatch(IHostDocument& document) {
  IHostVariables* const variables = document.variables();
  const KVPtr<IHostHatchSettings> settings = host::service<IHostHatchSettings>();
  readAll(variables, kHatchVariables, saved().hatch);
  m_saved->objectType = m_fields.hatchObjectType;
  if (settings) {
    settings->get(staticName(kTypeSetting), m_saved->hatchType);
    settings->get(staticName(kFileSetting), m_saved->patternFile);
  }
  takeAuxiliaryScale(document.database());
  if (settings) {
    settings->set(hostName(kTypeSetting), hostHatchType(m_fields.hatchType));
    settings->set(hostName(kFileSetting), host::ownText(patternFile()));
  }
  set(variables, u"HPCOLOR", colorNumber(runColor(document.database())));
  set(variables, u"HPNAME", host::ownText(m_fields.patternName));
  set(variables, u"HPANG", m_fields.angle);
  set(variables, u"HPSCALE", m_fields.scale);
  set(variables, u"HPDOUBLE", std::int32_t{m_fields.isCrosswise});
  set(variables, u"HPSPACE", m_fields.spacing);
}

void OdTcToolHatchCommandImpl::beginGradient(IHostDocument& document) {
  IHostVariables* const variables = document.variables();
  readAll(variables, kGradientVariables, saved().gradient);
  m_saved->objectType = m_fields.hatchObjectType;
  set(variables, u"GFNAME", std::int32_t{gradientNumber(m_fields.gradientName)});
  set(variables, u"GFANG", m_fields.gradientAngle);
  set(variables, u"GFSHIFT", std::int32_t{m_fields.isGradientCentered ? 0 : 1});
  set(variables, u"GFCLR1", colorNumber(getGradientColor1()));
  set(variables, u"GFCLR2", colorNumber(getGradientColor2()));
}

void OdTcToolHatchCommandImpl::endExecution(IHostDocument* document) {
  if (!document || !m_saved) return;
  const std::int32_t objectType = std::exchange(m_saved->objectType, -1);
  if (objectType == 0) {
    if (const KVPtr<IHostHatchSettings> settings = host::service<IHostHatchSettings>()) {
      settings->set(hostName(kTypeSetting), m_saved->hatchType);
      settings->set(hostName(kFileSetting), m_saved->patternFile);
    }
    writeAll(document->variables(), kHatchVariables, m_saved->hatch);
  } else if (objectType == 1) {
    writeAll(document->variables(), kGradientVariables, m_saved->gradient);
  }
}

} // namespace tc
